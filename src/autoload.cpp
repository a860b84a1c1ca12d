#include "autoload.h"
#include "safeguards.h"

// Nothing is loaded at power-on yet, and no search runs.

int AutoLoadFindID = 0;

void AutoLoad_Tally(const char*, const char*) {}

void AutoLoadFind_Tally(MsgArg, MsgArg, MsgArg, MsgArg) {}

void AutoLoadFindEnd_Tally(MsgArg, MsgArg, MsgArg, MsgArg) {}
