// selfdiag: the health of the units and of the menu computer.
// The units report the state of their boards, fans, power supplies and reference; the menu computer
// reads its own board. Each report is kept as an item of its unit; a change becomes an entry of the
// log, a line of the system log and of the maintenance log, and counts for the mark in the title.
// Which items a unit has stands in selfdiag_tally; what a page shows of them belongs to pc_diag.
#pragma once
#include "device.h"
#include "types.h"
#include <cstddef>

// The LAN by which a unit reports: DEVICE.selfdiag_from.
enum SELFDIAG_FROM : int { SELFDIAG_FROM_DATALAN = 0, SELFDIAG_FROM_CTRLLAN = 1 };

// SELFDIAG.status. Below SELFDIAG_ERROR is healthy or unknown.
enum : int { SELFDIAG_UNKNOWN = 0, SELFDIAG_OK = 1, SELFDIAG_ABSENT = 2, SELFDIAG_ERROR = 128 };

struct SELFDIAG_LOG {
    char time[24] = "";
    char device[8] = "";
    char message[64] = "";
};
constexpr int SELFDIAG_LOGS = 1024;

enum DIAG_CLASS : int {
    DIAG_MENU, // this computer
    DIAG_PANEL,
    DIAG_DCU,
    DIAG_SWITCHER,
    DIAG_DME,
    DIAG_MPE,
    DIAG_CLASSES,
};
constexpr int DIAG_MENU_ITEMS = 6;

// A unit that this panel looks after. Valid until the table of the units changes.
struct DiagUnit {
    const char* name = ""; // "SWR1"
    const char* id = "";   // "SWR001D001"; of the panel for what has none of its own
    SELFDIAG* item = nullptr;
    int items = 0;
};

// What stands in the units, as words: a board's id, or the last report of a fan or a power supply;
// "NG" until there is one. Switchers 1 to 4 are units 0 to 3, effects units 1 to 4 units 4 to 7.
constexpr int DIAG_UNITS = 8;
constexpr int DIAG_BOARDS = 31;
constexpr int DIAG_FANS = 25;
constexpr int DIAG_PSUS = 4;
extern char GL_CircuitBoard[DIAG_UNITS][DIAG_BOARDS][16];
extern char GL_Fan[DIAG_UNITS][DIAG_FANS][16];
extern char GL_PSU[DIAG_UNITS][DIAG_PSUS][16];
extern int GL_FanTold[DIAG_UNITS]; // how many of them the unit's last report named
extern int GL_PSUTold[DIAG_UNITS];

// --- Life ---
void SelfDiag_Init(); // every entry "NG", nothing reported, the log empty
// Read the board's sensors and count the operating hours. Takes some milliseconds, and 200 more
// when the hours do not answer at the first call.
void SelfDiag_I2C_Update(int passed_ms);

// --- Asking anew: forget the items of the class and have the units report them ---
void SelfDiag_Refresh_SWR();
void SelfDiag_Refresh_DME();
void SelfDiag_Refresh_PNL(); // with both DCUs
void SelfDiag_Refresh_MPE();
void SelfDiag_Refresh_All(); // ends with LMSG_SELFDIAGCHANGE

// --- The items ---
// Unit n of a class, from 0. False behind the last.
bool SelfDiag_Unit(DIAG_CLASS unit_class, int n, DiagUnit* unit);
SELFDIAG* SelfDiag_GetUI(int item); // of this computer; null out of range
const char* SelfDiag_ValueUnit(DIAG_CLASS unit_class, int item); // "h", "C", or "": it has no value
// Count the errors, set the title's mark and, where the operator wants it, let the first one take
// the title. Everybody who changes a status calls this afterwards.
void check_errorexist();

// --- The log, newest first ---
// Add what the item says now; item is in range. code null: into the log only, otherwise also into
// the system log and the maintenance log.
void SelfDiag_LogAdd(const DiagUnit& device, int item, const char* code);
const SELFDIAG_LOG* SelfDiag_GetLog(int i); // null above 1023 or below 0
int SelfDiag_GetLogMax();
uint32_t SelfDiag_LogAdded();   // entries since the start, the deleted ones too
int SelfDiag_LogIsError(int i); // 1 when the entry tells of an error
int SelfDiag_LogDelete(int i);  // -1 for an entry that is not there
void SelfDiag_LogDeleteAll();

// --- For the reports ---
// Take over a status. The same one changes nothing. A change is noted with its time and text, and
// logged under code unless it is the first report of an item that has never been in error. Returns
// whether it changed. message and code are cut to the item's fields.
bool SelfDiag_Take(const DiagUnit& unit, int item, int status, const char* message,
                   const char* code);
// Each takes what stands behind its prefix in the path. 0, or -1 when the report was not
// understood, -2 for a unit that this panel does not look after.
int SelfDiag_SWR_Tally(const char* cmd, const char* varptr);
int SelfDiag_DME_Tally(const char* cmd, const char* varptr);
int SelfDiag_PNL_Tally(const char* cmd, const char* varptr);
int SelfDiag_MPE_Tally(const char* cmd, const char* varptr);
int selfdiag_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void circuitboardid_tly(const char* value); // "SWR1,id of slot 1,id of slot 2..."

// --- Hooks of the maintenance pages ---
void Diag_FocusTM3(); // bring the menu to the front of the display; it is alone there
int maintenance_info_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void ifd_memcnt_info(const char* value); // a service counter: into the log
