#include "register.h"
#include "safeguards.h"

// No register is mirrored yet.

int RegisterProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void Register_RefreshDME() {}

void Register_InitCommand() {}

void Register_DeathCommand() {}

void Register_InitCommand_MP2() {}
