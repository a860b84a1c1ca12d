// a_kp: the list of keyframe paths.
#pragma once
#include "types.h"

struct KP_TBL;

// A null table empties the object and returns 1.
int KP_Create(const KP_TBL* table, uint32_t var);
int KP_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// As DW_ConvPosForWheel.
int KP_ConvPosForWheel(int* x, int* y, int button);
