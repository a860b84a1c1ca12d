// pc_register: the pages of the stored registers. A page is a shape (a list with the keys of one
// job, two lists, a grid) of a kind (pc_register_kind); the row of a page names both as the
// argument of its page code, and one body serves all. A kind that can do more than the family on
// its first page says so in a RegisterExtra. Registers change on the server only: a press sends a
// command, and what it did comes back as lines of the mirror.
//
// Operations go to all regions that are selected in the kind's selector; the list shows those of
// the reference.
#pragma once
#include "a_pc.h"
#include "pc_register_kind.h"

enum REGSHAPE : int {
    REGSHAPE_ATTRIBUTE, // of masters: Store/Recall
    REGSHAPE_LOCK,
    REGSHAPE_COPY, // this and the next two: two lists
    REGSHAPE_MOVE,
    REGSHAPE_SWAP,
    REGSHAPE_DELETE,
    REGSHAPE_RENAME,
    REGSHAPES,
};
constexpr uint32_t RegisterPageVar(REGKIND kind, REGSHAPE shape)
{
    return uint32_t(kind) << 8 | uint32_t(shape);
}

extern const PC_TBL pc_register;        // argument: RegisterPageVar
extern const PC_TBL pc_register_status; // the overview; argument: the kind
extern const PC_TBL pc_register_edit;   // the links of a master or shotbox; argument: the kind

// Buttons that the code names.
enum : int {
    BTN_REGISTER_REGION = 49, // single pages; of two lists: 1 and 4
    BTN_REGISTER_REGION_1 = 1,
    BTN_REGISTER_REGION_2 = 4,
    BTN_REGISTER_WO_NAME = 50,
    BTN_REGISTER_AUTO_CORRECT = 51,
    BTN_REGISTER_EDIT_SNAPSHOT = 50, // of a shotbox
};

// --- What a kind can do beyond the family, on its first page alone or on all ---

struct RegisterTouch {
    const char* tail; // of the button's command, behind "LOCAL@" and the menu's word
    int (*act)();
};
struct RegisterExtra {
    REGKIND kind = REGKINDS;
    bool is_everywhere = false;             // not on the first page alone
    const RegisterTouch* touches = nullptr; // ended by a null tail
    void (*open)(int on) = nullptr;         // the page is opened (1) or left (0)
    void (*redraw)() = nullptr;             // once a pass
    void (*shown)() = nullptr; // the register or the region at the cursor has changed, or its line
    void (*tally)(const char* path, const char* value) = nullptr;
    void (*knob)(int id, int value) = nullptr; // LMSG_KNOBVAR
};
// Some that have one; a further one is added in pc_register.cpp.
extern const RegisterExtra snapshot_extra;
extern const RegisterExtra keyss_extra;

// --- For the extras and the sub pages ---
const RegisterKind* RegisterPage_Kind(); // null: no page of ours is open
const RegisterLine& RegisterPage_Line(); // of the register at the cursor
int RegisterPage_Region();               // that the list shows: row of the kind's regions
int RegisterPage_Number();               // of the register at the cursor, as the operator counts
// An attribute of each run of selected registers of the list, in all selected regions; nothing for
// a locked register at the cursor.
void RegisterPage_PutAttribute(const char* path, const char* value);

// What of a kind outlives its pages, also for sub pages.
struct RegisterMemory {
    int region1 = 0;  // rows of the kind's regions that the lists show
    int region2 = -1; // -1: as region1
    int sel1 = 0;     // rows of the lists
    int sel2 = 0;
    bool wo_name = false;
};
RegisterMemory& RegisterPage_Memory(REGKIND kind);
void RegisterPages_Reset(); // as at process start; for tests
