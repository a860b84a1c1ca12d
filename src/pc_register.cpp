#include "pc_register.h"
#include "a_bt.h"
#include "a_ls.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_effect.h"
#include "pc_macro.h"
#include "pc_menu_macro.h"
#include "pc_register_list.h"
#include "pc_shotbox.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr Rect DETAIL = {100, 371, 566, 428};
constexpr int NAME_CHARS = 8;
constexpr int CAPTION_SIZE = 40;
enum : int { LIST_1 = 1, LIST_2 = 2 };
} // namespace

static RegisterMemory memories[REGKINDS];

static struct {
    const RegisterKind* kind = nullptr; // null: no page of ours is open
    REGSHAPE shape = REGSHAPES;
    const RegisterExtra* extra = nullptr;       // of the first page
    int pane_1 = 0;                             // chooses the regions of the first list
    int pane_2 = 0;                             // that of the second
    int shown_no = -1;                          // register at the cursor when it was looked at last
    bool is_auto_correct = false;               // last tally
    char caption[REGISTER_LISTS][CAPTION_SIZE]; // the keys of the regions show them from here
} rp;                                           // valid from create(1) to create(0)

static constexpr const RegisterExtra* extras[] = {
    &snapshot_extra,   &keyss_extra,      &effect_extras[0], &effect_extras[1], &effect_extras[2],
    &effect_extras[3], &effect_extras[4], &shotbox_extra,    &macro_extra,      &menu_macro_extra};

static RegisterMemory& memory()
{
    return memories[rp.kind->kind];
}

static bool is_dual()
{
    return rp.shape >= REGSHAPE_COPY && rp.shape <= REGSHAPE_SWAP;
}

// --- Regions ---

static uint64_t source_mask()
{
    return RegisterKind_SelectedMask(*rp.kind);
}

static int selected_regions()
{
    int n = 0;
    for (int i = 0; rp.kind->regions && rp.kind->regions[i].id != 0; i++)
        n += PaneRegion_IsSelected(rp.kind->group(), rp.kind->regions[i].id) != 0;
    return n;
}

// Several regions go to themselves: a target of its own is only for one.
static bool has_own_target()
{
    return selected_regions() == 1 && memory().region2 >= 0;
}

static uint64_t target_mask()
{
    return has_own_target() ? rp.kind->regions[memory().region2].bitmap : source_mask();
}

static int target_region()
{
    return has_own_target() ? memory().region2 : memory().region1;
}

static void show_region_key(int list, int button, int region)
{
    char(&caption)[CAPTION_SIZE] = rp.caption[list];
    const int others = selected_regions() - 1;
    const bool is_one = list == 1 && has_own_target();
    const SSREGION& one = rp.kind->regions[region];
    const char* const name =
        rp.kind->has_dme_groups
            ? PaneRegion_GetCaption(rp.kind->group(), one.id) // a run of channels
            : one.caption;
    const char* const word = others < 0 ? "None" : name;
    PrintText(caption, "%s%s", is_dual() ? "" : "Region\n", word);
    if (others > 0 && !is_one) {
        AppendText(caption, "\n+");
        AppendText(caption, NumStr(others));
    }
    (void)BT_SetCaption(button, caption);
}

static void show_regions()
{
    if (!rp.kind->regions)
        return;
    if (!is_dual()) {
        show_region_key(0, BTN_REGISTER_REGION, memory().region1);
        return;
    }
    show_region_key(0, BTN_REGISTER_REGION_1, memory().region1);
    show_region_key(1, BTN_REGISTER_REGION_2, target_region());
    BT_SetDisable(BTN_REGISTER_REGION_2, selected_regions() != 1);
}

static void cursor_moved()
{
    rp.shown_no = -1; // the next pass looks anew
}

static void regions_chosen()
{
    RegisterMemory& m = memory();
    m.region1 = RegisterKind_Reference(*rp.kind);
    const bool is_other_sort = m.region2 >= 0 && !Region_IsSameSort(rp.kind->regions[m.region1].id,
                                                                    rp.kind->regions[m.region2].id);
    if (is_other_sort)
        m.region2 = -1;
    Region_Count = selected_regions() > 1;
    RegisterList_SetRegion(0, m.region1);
    if (is_dual())
        RegisterList_SetRegion(1, target_region());
    show_regions();
    RegisterDetail_SetDirty();
    cursor_moved();
}

static void target_chosen(int id)
{
    const int region = Region_RowOfId(rp.kind->regions, id);
    if (region < 0 || !Region_IsSameSort(rp.kind->regions[memory().region1].id, id))
        return; // a register of a bank does not fit a user
    memory().region2 = region;
    RegisterList_SetRegion(1, target_region());
    show_regions();
}

static int region_sel()
{
    constexpr int SEVERAL = 0;
    if (rp.kind->regions)
        rp.pane_1 = PaneRegion_Create(rp.kind->group(), SEVERAL);
    return 0;
}

static int region2_sel()
{
    constexpr int SINGLE = 1;
    if (rp.kind->regions && selected_regions() == 1)
        rp.pane_2 = PaneRegion_Create(rp.kind->group(), SINGLE);
    return 0;
}

static int pane_closed(int pane, int result)
{
    if (pane == 0 || result <= 0)
        return 0;
    if (pane == rp.pane_1)
        regions_chosen();
    else if (pane == rp.pane_2)
        target_chosen(result);
    return 0;
}

// --- Runs of registers ---

static int number_of(int no)
{
    return rp.kind->first_number + no;
}

static bool is_locked(int list, int no)
{
    return *RegisterList_Line(list, no).le == 'L';
}

// Each run of selected registers of the first list that accept lets through.
template <typename Accept, typename Act> static void each_run(Accept accept, Act act)
{
    int from = -1, to = -1;
    for (int i = 0, no; (no = LS_GetSelected(LIST_1, i)) >= 0; i++) {
        if (!accept(no))
            continue;
        if (from >= 0 && no != to + 1) {
            act(from, to);
            from = -1;
        }
        from = from < 0 ? no : from;
        to = no;
    }
    if (from >= 0)
        act(from, to);
}

// Whether a register that act would change is locked, and the operator has been told so. Where
// nothing is said the keys leave locked registers as they are.
template <typename Target> static bool is_refused(Target target)
{
    if (!rp.kind->local)
        return false;
    for (int i = 0, no; (no = LS_GetSelected(LIST_1, i)) >= 0; i++)
        if (is_locked(is_dual(), target(no))) {
            (void)CreateWindow(WINDOW_MESSAGE, "Lock", {.message = rp.kind->local->locked});
            return true;
        }
    return false;
}
static int itself(int no)
{
    return no;
}

static bool is_any(int)
{
    return true;
}
static bool is_free(int no)
{
    return !is_locked(0, no);
}

// --- One list ---

static int cursor()
{
    return std::max(LS_GetNowLine(LIST_1), 0);
}

static int recall_sel()
{
    RegisterCmd_Recall(*rp.kind, source_mask(), number_of(cursor()));
    return 0;
}

static int store_sel()
{
    if (!is_locked(0, cursor()))
        RegisterCmd_Store(*rp.kind, source_mask(), number_of(cursor()));
    return 0;
}

static int lock_sel()
{
    const bool on = !is_locked(0, cursor());
    each_run(is_any, [on](int from, int to) {
        RegisterCmd_Lock(*rp.kind, source_mask(), number_of(from), number_of(to), on);
    });
    return 0;
}

static int delete_sel_core(int)
{
    if (rp.kind)
        each_run(is_free, [](int from, int to) {
            RegisterCmd_Delete(*rp.kind, source_mask(), number_of(from), number_of(to));
        });
    return 0;
}

static int delete_sel()
{
    if (is_refused(itself))
        return 0;
    return CreateWindow(
        WINDOW_MESSAGE, rp.kind->delete_title,
        {.message = "This operation will cause the data to be\ndeleted.\n\nContinue?",
         .is_yes_no = true,
         .ok = delete_sel_core});
}

static int rename_sel_core(const char* text)
{
    char name[NAME_CHARS + 1];
    CopyText(name, text);
    if (rp.kind && StrRegName(name))
        RegisterCmd_Rename(*rp.kind, source_mask(), number_of(cursor()), name);
    return 0;
}

static int rename_sel()
{
    if (is_refused(itself) || is_locked(0, cursor()))
        return 0;
    return CreateWindow(WINDOW_KEYBOARD, "Name",
                        {.value = RegisterList_Line(0, cursor()).name,
                         .input_max = NAME_CHARS,
                         .ok_text = rename_sel_core});
}

// --- Two lists ---

static const RegisterRuns& runs_of_shape()
{
    const RegisterCommands& c = *rp.kind->commands;
    return rp.shape == REGSHAPE_COPY ? c.copy : rp.shape == REGSHAPE_MOVE ? c.move : c.swap;
}

// How far the registers go in the list; the first one goes to the cursor of the second.
static int shift()
{
    const int first = LS_GetSelected(LIST_1, 0);
    return std::max(LS_GetNowLine(LIST_2), 0) - std::max(first, 0);
}

static bool may_go(int no, int by)
{
    const int to = no + by;
    const bool is_source_kept = rp.shape == REGSHAPE_COPY;
    if (to < 0 || to >= rp.kind->registers || (by == 0 && source_mask() == target_mask()))
        return false;
    return !is_locked(1, to) && (is_source_kept || is_free(no));
}

static int runs_sel_core(int by)
{
    if (!rp.kind)
        return 0;
    each_run([by](int no) { return may_go(no, by); },
             [by](int from, int to) {
                 RegisterCmd_Runs(*rp.kind, runs_of_shape(),
                                  {source_mask(), number_of(from), number_of(to)}, target_mask(),
                                  number_of(from + by), memory().wo_name);
             });
    return 0;
}

static bool is_any_overwritten(int by)
{
    for (int i = 0, no; (no = LS_GetSelected(LIST_1, i)) >= 0; i++)
        if (may_go(no, by) && RegisterKind_Exist(*rp.kind, target_region(), no + by))
            return true;
    return false;
}

static int runs_sel()
{
    const int by = shift();
    if (is_refused([by](int no) { return no + by; }))
        return 0;
    const char* const title = rp.shape == REGSHAPE_COPY ? rp.kind->copy_title : nullptr;
    if (!title || !is_any_overwritten(by))
        return runs_sel_core(by);
    return CreateWindow(WINDOW_MESSAGE, title,
                        {.message = "This operation will cause the data to be\noverwritten in the "
                                    "register.\n\nContinue?",
                         .is_yes_no = true,
                         .ok = runs_sel_core,
                         .ok_var = by});
}

static int merge_sel()
{
    const int no = std::max(LS_GetSelected(LIST_1, 0), 0);
    if (may_go(no, shift()))
        RegisterCmd_Merge(*rp.kind, source_mask(), number_of(no), target_mask(),
                          number_of(no + shift()));
    return 0;
}

// The switch of the page that is open, wherever it is kept.
static bool& auto_correct()
{
    bool* const own = runs_of_shape().own_correct;
    return own ? *own : rp.is_auto_correct;
}

static void show_switches()
{
    (void)BT_SetStatus(BTN_REGISTER_WO_NAME, memory().wo_name ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_REGISTER_AUTO_CORRECT, auto_correct() ? BT_ON : BT_OFF);
}

static int wo_name_sel()
{
    memory().wo_name = !memory().wo_name;
    show_switches();
    return 0;
}

static int auto_correct_sel()
{
    const RegisterRuns& runs = runs_of_shape();
    if (!runs.auto_correct)
        return 0;
    const bool on = !auto_correct();
    if (runs.own_correct)
        *runs.own_correct = on;
    show_switches();
    return Net_SendCommandFormat("put %s#%s", runs.auto_correct, Bool(on));
}

// --- Messages ---

// By the last word of the command.
static constexpr RegisterTouch touches[] = {
    {"Region", region_sel},    {"Region 1", region_sel},
    {"Region 2", region2_sel}, {"Recall", recall_sel},
    {"Store", store_sel},      {"Lock", lock_sel},
    {"Delete", delete_sel},    {"Rename", rename_sel},
    {"Copy", runs_sel},        {"Move", runs_sel},
    {"Swap", runs_sel},        {"Merge", merge_sel},
    {"W/o Name", wo_name_sel}, {"MP2 Auto Correct", auto_correct_sel},
};

static int button_pressed(const char* command)
{
    constexpr char LOCAL[] = "LOCAL@";
    if (!BeginsWith(command, LOCAL))
        return 0;
    const char* const menu_end = strchr(command + sizeof LOCAL - 1, '@');
    const char* const tail = menu_end ? menu_end + 1 : "";
    for (const RegisterTouch* t = rp.extra ? rp.extra->touches : nullptr; t && t->tail; t++)
        if (Same(tail, t->tail))
            return t->act();
    const char* const word = strrchr(command, '@') + 1;
    for (const RegisterTouch& touch : touches)
        if (Same(word, touch.tail))
            return touch.act();
    return 0;
}

static bool is_view()
{
    return rp.shape == REGSHAPE_ATTRIBUTE;
}

// A list for display keeps no selection of its own: the row at the cursor is shown as selected.
static int list_touched(int list, int row)
{
    if (is_view() && list == LIST_1) {
        (void)LS_SetNowLine(LIST_1, row);
        (void)LS_SetSelected(LIST_1, row, 0, 1);
    }
    return 0;
}

// The arrows move the cursor, too, so it is looked at once a pass.
static int page_redraw()
{
    RegisterMemory& m = memory();
    m.sel1 = cursor();
    if (is_dual())
        m.sel2 = std::max(LS_GetNowLine(LIST_2), 0);
    if (m.sel1 != rp.shown_no) {
        rp.shown_no = m.sel1;
        RegisterDetail_SetDirty();
        if (rp.extra && rp.extra->shown)
            rp.extra->shown();
    }
    RegisterDetail_Redraw();
    if (rp.extra && rp.extra->redraw)
        rp.extra->redraw();
    return 0;
}

static int register_changed(int kind, int row, int no)
{
    if (RegisterList_Registered(kind, row, no) && no == rp.shown_no)
        cursor_moved();
    const bool is_clip = kind == REGISTER_CLIP_EVENT && rp.kind->kind == REGKIND_SNAPSHOT;
    if (is_clip)
        for (int list = 0; list < (is_dual() ? 2 : 1); list++)
            RegisterList_Refresh(list, no);
    return 0;
}

static int take_tally(const char* path, const char* value)
{
    const char* const correct = is_dual() ? runs_of_shape().auto_correct : nullptr;
    if (correct && Same(path, correct)) {
        auto_correct() = IsTrue(value) != 0;
        show_switches();
    }
    if (rp.extra && rp.extra->tally)
        rp.extra->tally(path, value);
    return 0;
}

static int register_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (!rp.kind)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_LISTSEL: return list_touched(int(ax), int(bx));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case LMSG_REGISTER:
        return register_changed(int(ax), int(bx), int(ax == REGISTER_CLIP_EVENT ? dx : cx));
    case LMSG_KNOBVAR:
        if (rp.extra && rp.extra->knob)
            rp.extra->knob(int(ax), int(bx));
        return 0;
    default: return 0;
    }
}

// --- Opening and closing ---

static const RegisterExtra* extra_of(REGKIND kind, REGSHAPE shape)
{
    for (const RegisterExtra* extra : extras)
        if (extra->kind == kind && (extra->is_everywhere || shape == REGSHAPE_ATTRIBUTE))
            return extra;
    return nullptr;
}

static void follow(const char* verb)
{
    const char* const correct = is_dual() ? runs_of_shape().auto_correct : nullptr;
    const char* const current =
        rp.shape == REGSHAPE_ATTRIBUTE ? rp.kind->commands->current : nullptr;
    for (const char* path : {correct, current})
        if (path)
            Net_SendCommandFormat("%s %s", verb, path);
}

static int leave()
{
    if (!rp.kind)
        return 0;
    if (rp.extra && rp.extra->open)
        rp.extra->open(0);
    follow("remove");
    Register_StatusReport(0);
    RegisterList_CloseAll();
    rp = {};
    return 0;
}

static void open_lists()
{
    const RegisterMemory& m = memory();
    if (!is_dual()) {
        RegisterList_Open(0, *rp.kind, rp.kind->columns, m.region1, m.sel1);
        if (!is_view() && RegisterDetail_Has(*rp.kind))
            RegisterDetail_Open(DETAIL);
        return;
    }
    RegisterList_Open(0, *rp.kind, rp.kind->dual_columns, m.region1, m.sel1);
    RegisterList_Open(1, *rp.kind, rp.kind->dual_columns, target_region(), m.sel2);
}

static int open(uint32_t var)
{
    const uint32_t kind = var >> 8, shape = var & 0xFF;
    if (kind >= REGKINDS || shape >= REGSHAPES)
        return -1;
    rp = {.kind = &register_kinds[kind], .shape = REGSHAPE(shape)};
    rp.extra = extra_of(REGKIND(kind), rp.shape);
    RegisterKind_InitRegions(*rp.kind);
    memory().region1 = RegisterKind_Reference(*rp.kind);
    Region_Count = selected_regions() > 1;
    Register_StatusReport(1);
    follow("add");
    open_lists();
    show_regions();
    if (is_dual())
        show_switches();
    if (is_dual() && !RegisterKind_HasSubSides())
        BT_SetCutoffEx(BTN_REGISTER_AUTO_CORRECT, 1);
    if (rp.extra && rp.extra->open)
        rp.extra->open(1);
    return 0;
}

static int register_create(int on, uint32_t var)
{
    return on ? open(var) : leave();
}

const PC_TBL pc_register = {register_proc, register_create};

// --- For the extras and the sub pages ---

const RegisterKind* RegisterPage_Kind()
{
    return rp.kind;
}

const RegisterLine& RegisterPage_Line()
{
    return RegisterList_Line(0, cursor());
}

int RegisterPage_Region()
{
    return memory().region1;
}

int RegisterPage_Number()
{
    return number_of(cursor());
}

void RegisterPage_PutAttribute(const char* path, const char* value)
{
    if (is_locked(0, cursor()))
        return;
    each_run(is_any, [path, value](int from, int to) {
        RegisterCmd_Attribute(*rp.kind, path, {source_mask(), number_of(from), number_of(to)},
                              value);
    });
}

RegisterMemory& RegisterPage_Memory(REGKIND kind)
{
    return memories[kind];
}

void RegisterPages_Reset()
{
    std::fill(std::begin(memories), std::end(memories), RegisterMemory{});
    RegisterList_CloseAll();
    rp = {};
    Region_Count = 1;
    SnapshotMP2AutoCorrect = false;
}
