// info: the module that always listens. It keeps the server's "Info@" tree, the processor states,
// the setup of the operation and of the system, and the M/E configuration, whatever page is up. It
// paints nothing.
#pragma once
#include "types.h"

int InfoProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0

// The parts of InfoProc, each a subject of its own.
void operationsetup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void systemsetup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void meassign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void mainsubassign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// Progress of file work by unit: 0 panel, 1 and 2 switchers, 3 to 6 effects units.
constexpr int FILE_PROG_UNITS = 7;
extern int FileProc_Prog[FILE_PROG_UNITS];
extern int FileProc_Timeout; // ms until the bars begin to fall
