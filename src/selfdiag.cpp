#include "selfdiag.h"
#include "text.h"
#include "safeguards.h"

char GL_CircuitBoard[DIAG_UNITS][DIAG_BOARDS][16];
char GL_Fan[DIAG_UNITS][DIAG_FANS][16];
char GL_PSU[DIAG_UNITS][DIAG_PSUS][16];

void SelfDiag_Init()
{
    for (auto& unit : GL_CircuitBoard)
        for (auto& board : unit)
            CopyText(board, "NG");
    for (auto& unit : GL_Fan)
        for (auto& fan : unit)
            CopyText(fan, "NG");
    for (auto& unit : GL_PSU)
        for (auto& psu : unit)
            CopyText(psu, "NG");
}

// Reports of the units are not kept yet.

void SelfDiag_I2C_Update(int) {}

void SelfDiag_Refresh_All() {}

void Diag_FocusTM3() {}

int selfdiag_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

int maintenance_info_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void circuitboardid_tly(const char*) {}

void ifd_memcnt_info(const char*) {}
