// autoload: loading of files when the power comes on.
#pragma once
#include "types.h"

extern int AutoLoadFindID; // work id of the running search, 0 none
void AutoLoad_Tally(const char* path, const char* value);
void AutoLoadFind_Tally(MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void AutoLoadFindEnd_Tally(MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
