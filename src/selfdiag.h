// selfdiag: the health of the units' boards, fans and power supplies.
#pragma once
#include "types.h"

constexpr int DIAG_UNITS = 8;
constexpr int DIAG_BOARDS = 31;
constexpr int DIAG_FANS = 25;
constexpr int DIAG_PSUS = 4;
extern char GL_CircuitBoard[DIAG_UNITS][DIAG_BOARDS][16];
extern char GL_Fan[DIAG_UNITS][DIAG_FANS][16];
extern char GL_PSU[DIAG_UNITS][DIAG_PSUS][16];

void SelfDiag_Init(); // every entry "NG"
void SelfDiag_I2C_Update(int passed_ms);
void SelfDiag_Refresh_All();
void Diag_FocusTM3(); // bring the menu to the front of the display
int selfdiag_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
int maintenance_info_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void circuitboardid_tly(const char* value);
void ifd_memcnt_info(const char* value);
