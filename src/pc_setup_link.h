// pc_setup_link: what follows what: keys, banks, buses and contacts that go along with another. A
// kind of link is a sheet whose first two columns are the master and what is linked to it; this
// module knows what both may be, deletes links, and applies only links that make sense. The tables
// of an internal bus link say which source the linked bus takes for each of the master's; they and
// the choice of buses have pages of their own, which write into the link in hand.
#pragma once
#include "setup_sheet.h"

#define SETUP_LINK_PATH "Engineering Setup@Switcher@Link@"
#define SETUP_LINK_LOCAL "LOCAL@" SETUP_LINK_PATH

constexpr int LINK_TABLES = 8;
constexpr int LINK_SOURCES = 64;
enum : int { LINK_MASTER = 0, LINK_LINKED = 1, LINK_TABLE = 2 }; // columns
inline constexpr SETUPWORD link_none[] = {{"None", "None"}, {}};

// --- What the columns of a kind of link may be: SETUPSHEET.offer. None is the last of them. ---
int SetupLink_Keys(int column, const char** texts, int max);  // "M/E-1 Key1" to "P/P Key8"
int SetupLink_Banks(int column, const char** texts, int max); // "M/E-1" to "P/P"

// SETUPSHEET.is_sound: no link is half, none leads to itself, and nothing has two masters. Says why
// not.
bool SetupLink_IsSound();
void SetupLink_Changed(); // SETUPSHEET.changed
enum : int { BTN_LINK_DELETE = 38 };

int SetupLink_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on);
int SetupLink_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx);
template <const SETUPSHEET& s> int SetupLink_CreateOf(int on, uint32_t)
{
    return SetupLink_Create(s, SetupSheet_Table<s>, on);
}
template <const SETUPSHEET& s> int SetupLink_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return SetupLink_Proc(s, SetupSheet_Table<s>, msg, ax, bx);
}
template <const SETUPSHEET& s>
inline constexpr PC_TBL SetupLink_Code = {.proc_func = SetupLink_ProcOf<s>,
                                          .create_func = SetupLink_CreateOf<s>};

// --- The pages beside the internal bus link, and beside the panel's external one ---
extern const PC_TBL pc_engsetup_switcher_link_ibuslink_tablesel;
extern const PC_TBL pc_engsetup_switcher_link_ibuslink_bussel;
extern const PC_TBL pc_engsetup_panel_linkbusadj;
extern const PC_TBL pc_engsetup_panel_linktableadj;

void SetupLink_Reset(); // as at process start; for tests
