// The gallery pages of the objects that stand on a page.
#include "a_bt.h"
#include "a_fl.h"
#include "a_hf.h"
#include "a_ls.h"
#include "a_nb.h"
#include "a_pc.h"
#include "a_st_draw.h"
#include "a_vf.h"
#include "bus.h"
#include "command.h"
#include "message.h"
#include "page_table/gallery_shared.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

// A page's own memory of what its keys have switched.
static struct {
    bool is_undecided = false;
    bool has_grey_title = false;
    bool has_bars = false;
    bool has_gaps = false;
} gallery; // valid from create(1) to create(0)

static void mirror(const char* path, const char* value)
{
    char line[CMD_SIZE];
    PrintText(line, "%s#%s", path, value);
    SendDummyTally(line);
}

// --- Buttons ---

namespace
{
struct ButtonState {
    const char* name;
    int status = BT_OFF;
    bool is_disabled = false;
    bool is_hidden = false;
};
constexpr ButtonState button_states[] = {
    {.name = "Off"},
    {.name = "On", .status = BT_ON},
    {.name = "Third", .status = BT_THIRD},
    {.name = "Disabled", .is_disabled = true},
    {.name = "Disabled On", .status = BT_ON, .is_disabled = true},
    {.name = "Hidden", .is_hidden = true},
};
// The keys that are put into a state: all but those that choose it and those that lead away. Only
// the first of them can be on.
constexpr int shown_buttons[] = {1,  2,  3, 4,  5,  33, 34, 35, 37, 38,
                                 49, 50, 6, 17, 18, 19, 20, 21, 22};
constexpr int FIRST_WITHOUT_STATUS = 12;
} // namespace

static void buttons_state(const char* name)
{
    for (const ButtonState& state : button_states) {
        if (strcmp(name, state.name) != 0)
            continue;
        for (size_t i = 0; i < std::size(shown_buttons); i++) {
            const int id = shown_buttons[i];
            BT_SetStatus(id, i < FIRST_WITHOUT_STATUS ? state.status : BT_OFF);
            BT_SetCutoff(id, 0);
            BT_SetDisable(id, state.is_disabled);
            if (state.is_hidden) // last: the others bring a hidden button back
                BT_SetCutoff(id, 1);
        }
        mirror("LOCAL@Gallery@State", name);
    }
}

static void buttons_undecided()
{
    gallery.is_undecided = !gallery.is_undecided;
    BT_UndecidedRequest("LOCAL@Gallery@Undecided#true", gallery.is_undecided);
}

static int gallery_buttons_pressed(const char* path, const char* value)
{
    if (strcmp(path, "LOCAL@Gallery@State") == 0)
        buttons_state(value);
    else if (strcmp(path, "LOCAL@Gallery@Undecided") == 0)
        buttons_undecided();
    else if (strcmp(path, "LOCAL@Gallery@Choice") == 0)
        mirror(path, value); // what the server would say
    else if (strcmp(path, "LOCAL@Gallery@Toggle") == 0)
        mirror(path, ToggleBool(BT_GetStatus(1) == BT_ON));
    else if (strcmp(path, "LOCAL@Gallery@Action State") == 0)
        mirror(path, ToggleBool(BT_GetStatus(4) == BT_ON));
    return 0;
}

static int pc_gallery_buttons_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? gallery_buttons_pressed(Text(ax), Text(bx)) : 0;
}

static int pc_gallery_buttons_create(int on, uint32_t)
{
    gallery = {};
    if (!on)
        return 1;
    buttons_state("Off");
    return 0;
}

// --- Boxes ---

static const NB_TBL* boxes_shown()
{
    switch (BT_GetKnobAssign()) {
    case 17: return nb_gallery_kinds;
    case 18: return nb_gallery_reversed;
    case 19: return nb_gallery_layers;
    default: return NB_Non;
    }
}

// The place of a value in the range of its box: 0 the lower limit, 1 the upper one.
static void boxes_set(double place)
{
    for (const NB_TBL* box = boxes_shown(); box->id >= 1; box++)
        NB_SetVar(box->id, box->min + (box->max - box->min) * place);
}

static void boxes_empty()
{
    for (const NB_TBL* box = boxes_shown(); box->id >= 1; box++)
        NB_InvalidVar(box->id);
}

static int gallery_boxes_pressed(const char* path, const char* value)
{
    if (strcmp(path, "LOCAL@Gallery@Table") == 0)
        boxes_set(0.5);
    else if (strcmp(value, "Lower") == 0)
        boxes_set(0);
    else if (strcmp(value, "Middle") == 0)
        boxes_set(0.5);
    else if (strcmp(value, "Upper") == 0)
        boxes_set(1);
    else if (strcmp(value, "Beyond") == 0)
        boxes_set(1.25);
    else if (strcmp(value, "None") == 0)
        boxes_empty();
    return 0;
}

// A local box keeps nothing by itself.
static int gallery_box_entered(int id, const double* value)
{
    NB_SetVar(id, *value);
    return 0;
}

static int pc_gallery_boxes_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return gallery_boxes_pressed(Text(ax), Text(bx));
    case LMSG_KNOBFVAR: return gallery_box_entered(int(ax), reinterpret_cast<const double*>(bx));
    default: return 0;
    }
}

static int pc_gallery_boxes_create(int on, uint32_t)
{
    if (!on)
        return 1;
    boxes_set(0.5);
    return 0;
}

// --- Lists ---

static char list_numbers[LS_ROWS][8]; // the lists keep pointers

static void lists_fill(int rows)
{
    constexpr int CLASSES = 8;
    static constexpr const char* names[CLASSES] = {"0", "1", "2", "3", "4", "5", "6", "127"};
    static constexpr int classes[CLASSES] = {0, 1, 2, 3, 4, 5, 6, 127};
    for (int row = 0; row < rows; row++) {
        const int kind = row % CLASSES;
        PrintText(list_numbers[row], "%d", row + 1);
        LS_SetData(1, row, 0, list_numbers[row]);
        LS_SetData(1, row, 1, row % 3 == 2 ? "A NAME THAT IS TOO LONG" : "OPENING");
        LS_SetData(1, row, 2, names[kind]);
        LS_SetData(1, row, 3, "A");
        LS_SetData(1, row, 4, "B");
        LS_SetHStatus(1, row, classes[kind]);
        LS_SetData(2, row, 0, list_numbers[row]);
        LS_SetData(2, row, 1, "M/E-1");
        LS_SetData(2, row, 2, "P/P");
    }
    LS_SetNData(1, rows);
    LS_SetNData(2, rows);
    LS_SetNowLine(1, rows > 0 ? 0 : -1);
    LS_SetNowLine(2, rows > 0 ? 0 : -1);
}

static int gallery_lists_pressed(const char* value)
{
    if (strcmp(value, "Empty") == 0)
        lists_fill(0);
    else if (strcmp(value, "30") == 0)
        lists_fill(30);
    else if (strcmp(value, "12000") == 0)
        lists_fill(LS_ROWS);
    else if (strcmp(value, "Grey") == 0) {
        gallery.has_grey_title = !gallery.has_grey_title;
        LS_HeaderDisable(1, 3, gallery.has_grey_title);
    }
    return 0;
}

static int pc_gallery_lists_proc(int msg, MsgArg, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? gallery_lists_pressed(Text(bx)) : 0;
}

static int pc_gallery_lists_create(int on, uint32_t)
{
    gallery = {};
    if (!on)
        return 1;
    lists_fill(30);
    return 0;
}

// --- File list ---

static void files_next_device(int side)
{
    const int device = FL_GetDevice(side) + 1;
    (void)FL_list_init(side,
                       device > FL_DIRDATA_REMOVABLE_DRIVE ? FL_DIRDATA_STORAGE_ROOT : device);
}

static void files_open(int side)
{
    const FM_FILEPATH shown = [side] {
        FM_FILEPATH where = {.storage = side, .devType = FL_GetDevice(side)};
        CopyText(where.dirPath, FL_GetCurrentPath(side));
        return where;
    }();
    FL_DIRFILE_NAMES names;
    const int row = LS_GetSelected(side + 1, 0);
    if (row >= 0 && FL_GetDirectoryName(&shown, row, &names) == 0 && names.DirName[0])
        (void)FL_ChangeDirectory(side, names.DirName); // it is one of those that are shown
}

static int gallery_files_pressed(const char* path, const char* value)
{
    const int side = strcmp(value, "1") == 0 ? FL_R_LIST : FL_L_LIST;
    if (strcmp(path, "LOCAL@Gallery@Files@Device") == 0)
        files_next_device(side);
    else if (strcmp(path, "LOCAL@Gallery@Files@Up") == 0)
        (void)FL_ChangeDirectory(side, ".."); // at the top there is none
    else if (strcmp(path, "LOCAL@Gallery@Files@Open") == 0)
        files_open(side);
    return 0;
}

static int pc_gallery_files_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? gallery_files_pressed(Text(ax), Text(bx)) : 0;
}

static int pc_gallery_files_create(int on, uint32_t)
{
    return on ? 0 : 1;
}

// --- Status cells ---

namespace
{
struct CellSwitch {
    const char* path; // of its key
    int* value;
    const char* tally; // what the cells of the page take for it, null none
};
constexpr CellSwitch cell_switches[] = {
    {"LOCAL@Gallery@Cells@Lit", &bgcen, nullptr},
    {"LOCAL@Gallery@Cells@Inverted", &inven, "LOCAL@Gallery@Cell@Invert"},
    {"LOCAL@Gallery@Cells@Veiled", &gryen, nullptr},
    {"LOCAL@Gallery@Cells@Small Font", &s_font, nullptr},
};
constexpr const char* cell_tallies[] = {
    "LOCAL@Gallery@Cell@Type 1#Luminance",
    "LOCAL@Gallery@Cell@Type 2#Linear",
    "LOCAL@Gallery@Cell@Type 3#Color Vector",
    "LOCAL@Gallery@Cell@Type 4#Chroma",
    "LOCAL@Gallery@Cell@Type 5#Wipe Pattern",
    "LOCAL@Gallery@Cell@Type 6#Key Wipe Pattern",
    "LOCAL@Gallery@Cell@Clean#true",
    "LOCAL@Gallery@Cell@Mix#Additive Mix",
    "LOCAL@Gallery@Cell@Wipe#49",
    "LOCAL@Gallery@Cell@Key Wipe#65",
};
} // namespace

static void cells_switch(const CellSwitch& s, int on)
{
    *s.value = on;
    mirror(s.path, on ? "true" : "false");
    if (s.tally)
        mirror(s.tally, on ? "true" : "false");
    GL_ST_area_update_draw();
}

static int gallery_cells_pressed(const char* path)
{
    for (const CellSwitch& s : cell_switches)
        if (strcmp(path, s.path) == 0)
            cells_switch(s, !*s.value);
    return 0;
}

static int pc_gallery_cells_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? gallery_cells_pressed(Text(ax)) : 0;
}

static int pc_gallery_cells_create(int on, uint32_t)
{
    // Also when the page is left: the small font would follow the operator to his own pages.
    for (const CellSwitch& s : cell_switches)
        *s.value = 0;
    if (!on)
        return 1;
    for (const char* tally : cell_tallies)
        SendDummyTally(tally);
    for (const CellSwitch& s : cell_switches)
        cells_switch(s, 0);
    return 0;
}

// --- Tabs ---

static void tabs_bars(bool on)
{
    gallery.has_bars = on;
    mirror("LOCAL@Gallery@Tabs@Bars", Bool(on));
}

static void tabs_gaps(bool on)
{
    constexpr int GAPS[] = {3, 6}; // tabs of both edges that go
    gallery.has_gaps = on;
    for (int id : GAPS) {
        HF_SetDisplay(id, !on);
        VF_SetDisplay(id, !on);
    }
    mirror("LOCAL@Gallery@Tabs@Gaps", Bool(on));
}

static int pc_gallery_tabs_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (msg != LMSG_BTNSEL)
        return 0;
    if (strcmp(Text(ax), "LOCAL@Gallery@Tabs@Bars") == 0)
        tabs_bars(!gallery.has_bars);
    else if (strcmp(Text(ax), "LOCAL@Gallery@Tabs@Gaps") == 0)
        tabs_gaps(!gallery.has_gaps);
    return 0;
}

static int pc_gallery_tabs_create(int on, uint32_t)
{
    gallery = {};
    if (!on)
        return 1;
    tabs_bars(false);
    tabs_gaps(false);
    return 0;
}

const PC_TBL pc_gallery_buttons = {pc_gallery_buttons_proc, pc_gallery_buttons_create};
const PC_TBL pc_gallery_boxes = {pc_gallery_boxes_proc, pc_gallery_boxes_create};
const PC_TBL pc_gallery_lists = {pc_gallery_lists_proc, pc_gallery_lists_create};
const PC_TBL pc_gallery_files = {pc_gallery_files_proc, pc_gallery_files_create};
const PC_TBL pc_gallery_cells = {pc_gallery_cells_proc, pc_gallery_cells_create};
const PC_TBL pc_gallery_tabs = {pc_gallery_tabs_proc, pc_gallery_tabs_create};
