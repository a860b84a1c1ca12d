// pc_register_kind: what the kinds of stored registers differ in, a row a kind. The pages of the
// Effect, Snapshot and Shotbox menus are one family (pc_register); a further kind is a row here, a
// row of pages in page_table/register_pages.h and, where it has attributes of its own, a
// RegisterExtra.
//
// A row says where the registers are mirrored, which regions they have and which selector chooses
// them, how a mask of regions is written, the path of each command, what a line of the list holds
// and which columns show it. A command that a kind does not have is null: its key is not offered.
#pragma once
#include "pc_register_line.h"
#include "register_mirror.h"
#include "register_region.h"
#include "types.h"

enum REGKIND : int { // rows of register_kinds; in the argument of the page code
    REGKIND_MASTER_SS,
    REGKIND_SNAPSHOT,
    REGKIND_WIPESS,
    REGKIND_DMESS,
    REGKIND_KEYSS,
    REGKIND_MASTER_TL,
    REGKIND_EFFECT,
    REGKIND_EFF100,
    REGKIND_EFF200,
    REGKIND_EFF300,
    REGKIND_EFFECT_EX,
    REGKIND_SHOTBOX,
    REGKIND_MACRO,
    REGKIND_MENU_MACRO,
    REGKINDS,
};

enum REGMASKFORM : int {
    REGMASK_NONE,   // a command begins with the number
    REGMASK_NARROW, // "%X"; "%x" in a recall
    REGMASK_WIDE,   // "%08X%08X", the high word first
};

// A command on two runs of registers, and the switch that goes with it.
struct RegisterRuns {
    const char* path = nullptr;
    const char* auto_correct = nullptr; // null: no such switch
    bool* own_correct = nullptr; // this unit keeps it and only reports it; null: the server does
};

// Paths, without the verb in front and the value behind. Values, with MASK for the regions where
// the kind has any; numbers are the operator's:
struct RegisterCommands {
    const char* recall = nullptr; // MASK, NUMBER with a blank before it; or the number
    const char* store = nullptr;  // MASK,NUMBER
    const char* lock = nullptr;   // MASK,FROM,TO; with a Boolean behind where unlock is null
    const char* unlock = nullptr;
    const char* remove = nullptr; // MASK,FROM,TO
    const char* rename = nullptr; // MASK,NUMBER,NAME
    RegisterRuns copy = {};       // MASK,FROM,TO,MASK,TARGET,W/O NAME
    RegisterRuns move = {};
    RegisterRuns swap = {};
    const char* merge = nullptr;       // MASK,NUMBER,MASK,TARGET
    const char* list = nullptr;        // %s: the region; read when lines are missing
    const char* temp_dur = nullptr;    // %s: the region
    const char* edit_recall = nullptr; // of a master: NUMBER
    const char* edit_store = nullptr;  // NUMBER, then the links
    const char* current = nullptr;     // subscribed while the page of a master is open
};

// What the commands do to a kind that is this unit's own. Numbers are the operator's.
struct RegisterLocal {
    void (*lock)(int from, int to, bool on);
    void (*remove)(int from, int to);
    void (*rename)(int number, const char* name);
    void (*copy)(int from, int to, int target, bool wo_name);
    const char* locked; // what the operator is told when a locked register is in the way
};

// Of the snapshots' copy: what goes from a main side to a sub side, or back, is made to fit.
extern bool SnapshotMP2AutoCorrect;

struct RegisterKind {
    REGKIND kind = REGKINDS;
    const char* word = "";             // of the path of the pages
    uint32_t page = 0;                 // of the group of its pages: 0x63200000
    int mirror = 0;                    // REGISTER_, row of register_mirrors
    int mirror_row = 0;                // of a kind without regions
    int registers = REGISTERS;         // that the operator sees; at most those of the mirror
    int first_number = 1;              // of register 0
    const SSREGION* regions = nullptr; // null: none
    uint64_t fixed_mask = 0;           // of a kind without regions whose commands bear a mask
    int (*group)() = nullptr;          // selector of the regions, by what this system has
    bool has_dme_groups = false;       // the rows of the mirror are groups of channels
    REGMASKFORM mask = REGMASK_NONE;
    const RegisterCommands* commands = nullptr;
    const RegisterLocal* local = nullptr; // in place of commands, which are all null then
    // Digest a raw text into a line. Returns the index of its register, or -1 for a number that is
    // not this kind's and a text with too few fields: the line is as it was.
    int (*setdata)(const RegisterKind& kind, const char* text, RegisterLine* line) = nullptr;
    // What the line does not tell: complete a line of register no, mirrored in row.
    void (*complete)(int row, int no, RegisterLine* line) = nullptr;
    const RegisterColumn* columns = nullptr;      // of a list over the whole width
    const RegisterColumn* dual_columns = nullptr; // of one of two
    const char* delete_title = "";
    const char* copy_title = nullptr; // null: a copy over data asks nothing
};
extern const RegisterKind register_kinds[REGKINDS];

// --- What follows from a row ---
// Row of the mirror for a row of the kind's regions; the kind's own row without regions.
int RegisterKind_MirrorRow(const RegisterKind& kind, int region);
// What the mirror has of register no; region is a row of the kind's table.
const char* RegisterKind_Name(const RegisterKind& kind, int region, int no);
// The line of register no, complete; with the number alone where there is none. False when the
// server has not told the register yet.
bool RegisterKind_Line(const RegisterKind& kind, int region, int no, RegisterLine* line);
int RegisterKind_Exist(const RegisterKind& kind, int region, int no);
int RegisterKind_Lock(const RegisterKind& kind, int region, int no);
// Rows of the region table; 1 without regions.
int RegisterKind_Regions(const RegisterKind& kind);
// The path of a command that has "%s" for the region, if it has.
void RegisterKind_Path(const RegisterKind& kind, const char* pattern, int region, char* path,
                       int size);
// The region that stands for this one in the selector: a group of channels has its first one there.
int RegisterKind_SelectorRow(const RegisterKind& kind, int region);
// Bring the kind's selector in line with the units that are there; where no switcher is, a channel
// leads.
void RegisterKind_InitRegions(const RegisterKind& kind);
// The bits of all regions that are selected in the kind's selector; 0 for none. The fixed mask of a
// kind without regions.
uint64_t RegisterKind_SelectedMask(const RegisterKind& kind);
// Place of the reference in the region table. Without a reference: of the first selected region,
// else 0.
int RegisterKind_Reference(const RegisterKind& kind);
// 0 empty, 1 holds data in a region that is selected, -1 in one that is not.
int RegisterKind_RegionExist(const RegisterKind& kind, int id, int no);
// Whether the system runs the region: a sub side needs a bank of two programs, a channel its unit.
bool RegisterKind_HasSubSides(); // some bank runs two programs
bool RegisterKind_IsInUse(const RegisterKind& kind, int region);

// --- Commands. mask is ignored by a kind without masks, as is a command that it does not have.
// Numbers count from 1 as the operator sees them. A mask of 0 is sent: the server ignores it. ---
void RegisterCmd_Recall(const RegisterKind& kind, uint64_t mask, int number);
void RegisterCmd_Store(const RegisterKind& kind, uint64_t mask, int number);
void RegisterCmd_Lock(const RegisterKind& kind, uint64_t mask, int from, int to, bool on);
void RegisterCmd_Delete(const RegisterKind& kind, uint64_t mask, int from, int to);
void RegisterCmd_Rename(const RegisterKind& kind, uint64_t mask, int number, const char* name);
struct RegisterSpan {
    uint64_t mask = 0;
    int from = 0;
    int to = 0;
};
// Copy, move and swap: the span goes to the registers from target on, of the regions to_mask.
void RegisterCmd_Runs(const RegisterKind& kind, const RegisterRuns& runs, const RegisterSpan& span,
                      uint64_t to_mask, int target, bool wo_name);
// Copy one register within a region (row of the kind's table); the commands of the effects name it
// by its word.
void RegisterCmd_CopyInRegion(const RegisterKind& kind, int region, int from, int to, bool wo_name);
void RegisterCmd_Merge(const RegisterKind& kind, uint64_t mask, int number, uint64_t to_mask,
                       int target);
// "put PATH#MASK,FROM,TO,VALUE": an attribute of all registers of the span.
void RegisterCmd_Attribute(const RegisterKind& kind, const char* path, const RegisterSpan& span,
                           const char* value);
