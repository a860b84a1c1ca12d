// autoload: loading of files when the power comes on.
#pragma once
#include "types.h"

extern int AutoLoadFindID; // work id of the running search, 0 none
void AutoLoad_Tally(const char* path, const char* value);
void AutoLoadFind_Tally(MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void AutoLoadFindEnd_Tally(MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// All that the All page has chosen, to or from the automation's folder "/tmp/FTPIF". 0 when the job
// has begun, -1 when it cannot begin now. The reply file comes at its end.
int AllSave();
int AllLoad();
