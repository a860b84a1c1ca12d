// pc_register_line: a line of a list of registers: what the server's raw line says, cut up for the
// columns. It keeps texts only; which registers a list shows belongs to pc_register_list.
#pragma once
#include "types.h"

constexpr int REGISTER_LINKS = 44; // of a master or a shotbox register, at most
constexpr int REGISTER_GROUPS = 7; // of regions: M/E, user, DME, device, P-Bus, GPI, macro
constexpr int REGISTER_LINK_COLUMNS = 13;
constexpr int SHOTBOX_RTR = 43;  // place of a shotbox's router link, behind those of the effects
constexpr int XPTHOLD_SIZE = 36; // all marks of a bank, displayed
constexpr int XPTHOLD_TLY_SIZE = 260; // the router's 256 digits

struct RegisterLine {
    char no[4] = "";
    char name[12] = "";
    char le[5] = ""; // "L", "E", or "E" with the count of regions that do hold it
    // Snapshots
    char xpthold[XPTHOLD_SIZE] = "";         // as it is shown
    char xpthold_tly[XPTHOLD_TLY_SIZE] = ""; // as it came
    char effdiss[5] = "";
    char autotrans[5] = "";
    char gpi[5] = "";
    char attri[12] = ""; // " X" all held, " x" some; then " D", " T", " G"
    char clip[4] = "";   // "On"
    // Effects
    char region[REGISTER_GROUPS][6] = {}; // "*" where a region of the group holds it
    int dur = 0;                          // frames
    // Masters and shotboxes: the register of each region; 0 none, below 0 a snapshot's
    int data[REGISTER_LINKS] = {};
    char link[REGISTER_LINK_COLUMNS][5] = {}; // as texts: the banks, a text a group, the router
    // Menu macros
    char events[5] = "";
    char interval[8] = ""; // seconds
    // Wipe and DME wipe snapshots
    char pattern[6] = "";
};

struct RegisterColumn {
    const char* head = nullptr; // null behind the last
    int width = 0;              // px
    const char* (*text)(const RegisterLine& line) = nullptr;
};

extern int Region_Count; // an effect that is empty here shows how many regions do hold it

struct RegisterKind;
// --- The digests of register_kinds, see setdata there ---
int snapshot_setdata(const RegisterKind& kind, const char* text, RegisterLine* line);
int wipess_setdata(const RegisterKind& kind, const char* text, RegisterLine* line); // dmess, keyss
int effect_setdata(const RegisterKind& kind, const char* text, RegisterLine* line); // all effects
int master_setdata(const RegisterKind& kind, const char* text, RegisterLine* line);
int shotbox_setdata(const RegisterKind& kind, const char* text, RegisterLine* line);
int macro_setdata(const RegisterKind& kind, const char* text, RegisterLine* line);
int menu_macro_setdata(const RegisterKind& kind, const char* text, RegisterLine* line);
// What the mirror adds to a line.
void snapshot_complete(int row, int no, RegisterLine* line); // hold, flags and clip of the region
void effect_complete(int row, int no, RegisterLine* line);
void effect_ex_complete(int row, int no, RegisterLine* line);
void eff100_complete(int row, int no, RegisterLine* line);
void eff200_complete(int row, int no, RegisterLine* line);
void eff300_complete(int row, int no, RegisterLine* line);
