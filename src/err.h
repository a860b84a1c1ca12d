// err: the error list that the operator reads on the error page.
#pragma once
#include "types.h"

constexpr int ERR_MAX = 12000;

// Add a line with the UTC time. -1 when the list is full or memory is out; then nothing changes.
int Err_Add(const char* format, ...) __attribute__((format(printf, 1, 2)));
void Err_Clear();
int Err_GetMax();
// The error page was created: fill list 1 of the page and write "/var/log2/tm3err.log".
void Err_Create();
int Err_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // takes nothing, returns 0
