#include "pc_macro_offline.h"
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "file.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "pc_macro.h"
#include "register.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <unistd.h>
#include "safeguards.h"

STOREMODEL MacroOffLine_StoreModel = STOREMODEL_NONE;

namespace
{
constexpr Rect HEAD = {100, 75, 700, 95};
constexpr int FONT_HEAD = 2;
constexpr int GROUPS = 2 + MACRO_GROUPS;
enum : int { CLASS_USUAL = 0, CLASS_GREY = 1 }; // of cells

enum : int { LEAVE_STORE = 1, LEAVE_DISCARD = 2 };
constexpr BTNSEL leave_choices[] = {{LEAVE_STORE, "Store"}, {LEAVE_DISCARD, "Discard"}};

constexpr NB_TBL nb_number = {.id = NB_MACRO_VALUE,
                              .caption = "Value",
                              .type = NB_INT,
                              .min = 0,
                              .max = 1,
                              .cmd = "Panel@Common@Knob1",
                              .scale = 1};
constexpr NB_TBL nb_time_code = {.id = NB_MACRO_VALUE,
                                 .caption = "Time\nCode",
                                 .type = NB_TC,
                                 .min = 0,
                                 .max = 1,
                                 .cmd = "Panel@Common@Knob1",
                                 .scale = 1};
} // namespace

static struct {
    MacroEventList list;                     // the cursor is that of list 1
    int focus = MACRO_COL_CONTENTS;          // contents, symbol, or MACRO_COL_SLOT + slot
    int first_slot = 0;                      // that the list shows
    const ParamValueTBL* words = nullptr;    // that list 2 shows; null: none
    int target = 1;                          // register that a store goes to
    const char* note = "";                   // beside the register's name, until the next touch
    char own_header[MACRO_HEADER_SIZE] = ""; // of the register that is edited, "" none
    bool is_head_dirty = false;
    bool is_open = false;
    uint32_t leave_to = 0; // page that waits for a store or an answer; 0 none
    int leave_pane = 0;
} oe; // valid from create(1) to create(0)

// A store that is under way outlives the page.
static struct {
    FILEXFERLIST* list = nullptr; // the job's; null while none runs
} push;

// --- The line at the cursor ---

static MacroEvent* cursor()
{
    return oe.list.pMacroEventEditList;
}

static int count_of(const MacroEvent& event)
{
    return MacroEvent_IsComment(event) ? 1 : std::max(get_param_count(event.Symbol), 0);
}

static const MACROPARAM& parameter(const MacroEvent& event, int slot)
{
    static constexpr MACROPARAM comment = {.buttonname = "Comment",
                                           .parametername = "Comment",
                                           .entry = MACROENTRY_TEXT,
                                           .min = 1,
                                           .max = MACRO_COMMENT_CHARS};
    static constexpr MACROPARAM none = {.entry = MACROENTRY_TEXT};
    const MACROPARAM* const slots = MacroSymbol_Find(event.Symbol);
    if (MacroEvent_IsComment(event))
        return slot == 0 ? comment : none;
    return slots && slot >= 0 && slot < count_of(event) ? slots[slot] : none;
}

static int focus_slot()
{
    return oe.focus - MACRO_COL_SLOT;
}

// The parameter in focus; null when that is another column, or none.
static const MACROPARAM* focus_parameter()
{
    const MacroEvent* const event = cursor();
    if (!event || focus_slot() < 0 || focus_slot() >= count_of(*event))
        return nullptr;
    return &parameter(*event, focus_slot());
}

// Whether the event before it, comments aside, may be followed.
static bool may_follow(const MacroEvent& event)
{
    const MacroEvent* before = event.pPrev;
    while (before && MacroEvent_IsComment(*before))
        before = before->pPrev;
    return before && MacroValue_Find(EVNT, before->Symbol) > 0 &&
           !MacroSymbol_IsContinueGray(before->Symbol);
}

bool is_continue_valid(const MacroEvent& event)
{
    return may_follow(event) && !MacroSymbol_IsContinueGray(event.Symbol);
}

// What comes behind a line that has changed or gone may have lost the event that it went on from.
static void mend_continue(MacroEvent* event)
{
    while (event && MacroEvent_IsComment(*event))
        event = event->pNext;
    if (event && Same(event->Contents, "Continue") && !may_follow(*event))
        CopyText(event->Contents, "Event");
}

// --- List 1 ---

static void show_row(int row, const MacroEvent& event)
{
    const int count = count_of(event);
    (void)LS_SetData(LIST_MACRO_EVENTS, row, MACRO_COL_CONTENTS, event.ContentsWithNo);
    (void)LS_SetData(LIST_MACRO_EVENTS, row, MACRO_COL_SYMBOL, event.Symbol);
    for (int i = 0; i < MACRO_SHOWN_SLOTS; i++) {
        const int slot = oe.first_slot + i;
        (void)LS_SetData(LIST_MACRO_EVENTS, row, MACRO_COL_SLOT + i,
                         slot < count ? event.Data[slot] : "");
    }
}

static void show_events()
{
    MacroList_Number(oe.list);
    int row = 0;
    for (const MacroEvent* e = oe.list.pHead; e; e = e->pNext)
        show_row(row++, *e);
    (void)LS_SetNData(LIST_MACRO_EVENTS, oe.list.count);
    (void)LS_RedrawData(LIST_MACRO_EVENTS);
}

static int row_of(const MacroEvent* event)
{
    int row = 0;
    for (const MacroEvent* e = oe.list.pHead; e && e != event; e = e->pNext)
        row++;
    return row;
}

// The column that the focus stands in; the parameters move below it.
static void show_focus()
{
    const int slot = std::max(focus_slot(), 0);
    const int first = slot / MACRO_SHOWN_SLOTS * MACRO_SHOWN_SLOTS;
    if (first != oe.first_slot) {
        oe.first_slot = first;
        show_events();
    }
    for (int i = 0; i < MACRO_SHOWN_SLOTS; i++)
        (void)LS_SetHeadStr(LIST_MACRO_EVENTS, MACRO_COL_SLOT + i,
                            cursor() ? parameter(*cursor(), first + i).parametername : "");
    const int column = focus_slot() < 0 ? oe.focus : MACRO_COL_SLOT + slot - first;
    (void)LS_SetSplitSel(LIST_MACRO_EVENTS, column);
    (void)LS_RedrawData(LIST_MACRO_EVENTS);
}

// --- List 2 ---

// The words of the focus, without those that name a column; null where none are chosen from.
static const ParamValueTBL* words_of_focus(const MacroEvent& event)
{
    if (oe.focus == MACRO_COL_CONTENTS) {
        CONT[MacroValue_Find(CONT, "Continue")].status = is_continue_valid(event);
        return CONT + 1;
    }
    if (oe.focus == MACRO_COL_SYMBOL) {
        if (MacroEvent_IsComment(event))
            return nullptr;
        return Same(event.Contents, "Continue") ? Continue + 1 : EVNT + 1;
    }
    const MACROPARAM* const p = focus_parameter();
    return p && p->entry == MACROENTRY_LIST ? p->paramvaluetbl : nullptr;
}

static const char* value_of_focus(const MacroEvent& event)
{
    return oe.focus == MACRO_COL_CONTENTS ? event.Contents
           : oe.focus == MACRO_COL_SYMBOL ? event.Symbol
           : focus_parameter()            ? event.Data[focus_slot()]
                                          : "";
}

static const char* title_of_focus()
{
    const MACROPARAM* const p = focus_parameter();
    return p ? p->parametername : oe.focus <= MACRO_COL_SYMBOL ? CONT[oe.focus].paramvalue : "";
}

static bool is_available(const ParamValueTBL& word)
{
    return word.status != 0 && (oe.focus != MACRO_COL_SYMBOL || is_symbol_support(word.paramvalue));
}

static void set_listB_status(int row, const ParamValueTBL& word)
{
    (void)LS_SetHStatus(LIST_MACRO_VALUES, row, is_available(word) ? CLASS_USUAL : CLASS_GREY);
}

static void displ_ParamValueTBL_in_listB()
{
    (void)LS_ClearData(LIST_MACRO_VALUES);
    oe.words = cursor() ? words_of_focus(*cursor()) : nullptr;
    (void)LS_SetHeadStr(LIST_MACRO_VALUES, 0, title_of_focus());
    int n = 0, chosen = -1;
    for (const ParamValueTBL* word = oe.words; word && word->index >= 0; word++, n++) {
        (void)LS_SetData(LIST_MACRO_VALUES, n, 0, word->paramvalue);
        set_listB_status(n, *word);
        if (Same(word->paramvalue, value_of_focus(*cursor())))
            chosen = n;
    }
    (void)LS_SetNData(LIST_MACRO_VALUES, n);
    if (chosen >= 0) {
        (void)LS_SetNowLine(LIST_MACRO_VALUES, chosen);
        (void)LS_SetSelected(LIST_MACRO_VALUES, chosen, 0, 1);
    }
    (void)LS_RedrawData(LIST_MACRO_VALUES);
}

// --- Groups ---

static int button_of(int group) // from 0
{
    constexpr int A_ROW = 4;
    if (group < 2)
        return BTN_MACRO_GROUP_1 + group;
    group -= 2;
    return group < A_ROW ? BTN_MACRO_GROUP_3 + group : BTN_MACRO_GROUP_7 + group - A_ROW;
}

static bool begins_group(const MacroEvent& event, int slot)
{
    return slot == 0 ||
           !Same(parameter(event, slot).buttonname, parameter(event, slot - 1).buttonname);
}

// The group of a slot, and the reverse: its first slot, -1 for a group that the event has not.
static int group_of_slot(const MacroEvent& event, int slot)
{
    int group = 1;
    for (int i = 0; i <= slot; i++)
        group += begins_group(event, i);
    return group;
}
static int slot_of_group(const MacroEvent& event, int group)
{
    for (int slot = 0; slot < count_of(event); slot++)
        if (group_of_slot(event, slot) == group)
            return slot;
    return -1;
}

static void set_caption_1_2()
{
    (void)BT_SetCaption(button_of(0), CONT[0].paramvalue);
    (void)BT_SetCaption(button_of(1), EVNT[0].paramvalue);
    BT_SetDisable(button_of(1), cursor() && MacroEvent_IsComment(*cursor()));
}

static void set_caption_3_10()
{
    for (int group = 2; group < GROUPS; group++) {
        const int slot = cursor() ? slot_of_group(*cursor(), group) : -1;
        if (slot >= 0)
            (void)BT_SetCaption(button_of(group), parameter(*cursor(), slot).buttonname);
        BT_SetCutoffEx(button_of(group), slot < 0);
    }
}

static int group_of_focus()
{
    return focus_parameter()              ? group_of_slot(*cursor(), focus_slot())
           : oe.focus <= MACRO_COL_SYMBOL ? oe.focus
                                          : -1;
}

static void select_group_button()
{
    for (int group = 0; group < GROUPS; group++)
        (void)BT_SetStatus(button_of(group), group == group_of_focus() ? BT_ON : BT_OFF);
}

// --- The box of the value ---

static void set_V4_enable()
{
    const MACROPARAM* const p = focus_parameter();
    const bool is_time_code = p && p->entry == MACROENTRY_TIMECODE;
    (void)NB_DeleteTable(NB_MACRO_VALUE); // there may be none
    if (!p || (p->entry != MACROENTRY_NUMBER && !is_time_code))
        return;
    (void)NB_PushTable2(is_time_code ? &nb_time_code : &nb_number);
    const char* const value = value_of_focus(*cursor());
    const int day = 24 * 60 * 60 * SYS_FrameRate; // frames
    (void)NB_AddMinMax(NB_MACRO_VALUE, is_time_code ? 0 : p->min, is_time_code ? day - 1 : p->max);
    if (!MacroValue_IsLegal(*p, value))
        (void)NB_InvalidVar(NB_MACRO_VALUE);
    else
        (void)NB_SetVar(NB_MACRO_VALUE, is_time_code ? TC2Frame(value) : Decimal(value));
}

// --- All of it ---

static void RegNo_FileName_RemainEventNum_draw()
{
    char text[32];
    if (!oe.is_head_dirty)
        return;
    oe.is_head_dirty = false;
    TDL_FillRectS(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2, BLACK);
    TDL_SymbolWS(HEAD.x1 + 4, HEAD.y1 + 4, 200, GL_MacroEditNoName, FONT_HEAD, TEAL);
    TDL_SymbolWS(HEAD.x1 + 210, HEAD.y1 + 4, 250, oe.note, FONT_HEAD, ORANGE);
    PrintText(text, "Remain: %d", MACRO_EVENTS - oe.list.count);
    const int width = int(TDL_GetSymbolWidth(text, FONT_HEAD));
    TDL_SymbolS(HEAD.x2 - 4 - width, HEAD.y1 + 4, text, FONT_HEAD, WHITE);
    TDL_UpdateRect(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2);
}

static void tell(const char* note)
{
    oe.note = note;
    oe.is_head_dirty = true;
}

// Everything that follows from the cursor and the focus.
static void show_line()
{
    show_focus();
    displ_ParamValueTBL_in_listB();
    set_caption_1_2();
    set_caption_3_10();
    select_group_button();
    set_V4_enable();
    oe.is_head_dirty = true;
}

static void set_focus(int focus)
{
    const MacroEvent* const event = cursor();
    const int last = event ? MACRO_COL_SLOT + count_of(*event) - 1 : MACRO_COL_CONTENTS;
    const bool is_comment = event && MacroEvent_IsComment(*event);
    oe.focus = std::clamp(focus, int(MACRO_COL_CONTENTS), std::max(last, int(MACRO_COL_SYMBOL)));
    if (is_comment && oe.focus == MACRO_COL_SYMBOL)
        oe.focus = MACRO_COL_SLOT;
    show_line();
}

static void set_cursor(MacroEvent* event, int focus)
{
    oe.list.pMacroEventEditList = event;
    if (event) {
        (void)LS_SetNowLine(LIST_MACRO_EVENTS, row_of(event));
        (void)LS_SetSelected(LIST_MACRO_EVENTS, row_of(event), 0, 1);
    }
    set_focus(focus);
}

static void changed()
{
    GL_Macro_Offline_Store = 1;
    tell("");
}

// --- Changing a line ---

static void set_contents(MacroEvent& event, const char* contents)
{
    const bool was_comment = MacroEvent_IsComment(event);
    CopyText(event.Contents, contents);
    if (was_comment != MacroEvent_IsComment(event)) {
        *event.Symbol = '\0';
        MacroEvent_ClearData(event);
    }
}

// On to the next column that has no value yet.
static int next_focus(const MacroEvent& event)
{
    if (oe.focus == MACRO_COL_CONTENTS)
        return *event.Symbol ? oe.focus : oe.focus + 1;
    const int slot = focus_slot() + 1;
    const bool is_missing = slot < count_of(event) && Same(event.Data[slot], MACRO_NO_VALUE);
    return is_missing ? MACRO_COL_SLOT + slot : oe.focus;
}

// The focus goes on, unless a knob is being turned: the rest of the turn is for this value, too.
static void event_set_listA_process(const char* value, bool goes_on = true)
{
    MacroEvent* const event = cursor();
    if (!event || Same(value, value_of_focus(*event)))
        return;
    event->is_made = true; // or nothing is done
    if (oe.focus == MACRO_COL_CONTENTS) {
        set_contents(*event, value);
        mend_continue(event->pNext);
    } else if (oe.focus == MACRO_COL_SYMBOL) {
        CopyText(event->Symbol, value);
        MacroEvent_ClearData(*event);
        mend_continue(event->pNext);
    } else if (focus_parameter()) {
        CopyText(event->Data[focus_slot()], value);
    } else {
        return;
    }
    changed();
    show_events();
    if (goes_on)
        set_focus(next_focus(*event));
}

static int value_touched(int row)
{
    const ParamValueTBL* word = oe.words;
    for (int i = 0; word && word->index >= 0 && i < row; i++)
        word++;
    if (!word || word->index < 0)
        return 0;
    if (is_available(*word))
        event_set_listA_process(word->paramvalue);
    else
        displ_ParamValueTBL_in_listB(); // the selection stays with the value
    return 0;
}

static int text_entered(const char* text)
{
    char value[MACRO_VALUE_SIZE];
    const MACROPARAM* const p = oe.is_open ? focus_parameter() : nullptr;
    if (!p || p->entry != MACROENTRY_TEXT)
        return 0;
    strncpy_secu(value, text, sizeof value, size_t(p->max));
    std::replace(value, value + strlen(value), ',', '_'); // it would end the field
    if (MacroValue_IsLegal(*p, value))
        event_set_listA_process(value);
    return 0;
}

static int display_keyboard()
{
    const MACROPARAM* const p = focus_parameter();
    if (!p || p->entry != MACROENTRY_TEXT)
        return 0;
    const char* const value = value_of_focus(*cursor());
    return CreateWindow(WINDOW_KEYBOARD, p->parametername,
                        {.value = Same(value, MACRO_NO_VALUE) ? "" : value,
                         .input_max = p->max,
                         .ok_text = text_entered});
}

// A time code as the file has it, from frames.
static void process_timecode(int frames, bool goes_on)
{
    event_set_listA_process(Frame2TC(frames, 4), goes_on);
}

static void value_turned(int value, bool is_entered)
{
    const MACROPARAM* const p = focus_parameter();
    if (p && p->entry == MACROENTRY_TIMECODE)
        process_timecode(value, is_entered);
    else if (p && p->entry == MACROENTRY_NUMBER)
        event_set_listA_process(NumStr(std::clamp(value, p->min, p->max)), is_entered);
}

// --- Lines come and go ---

static void delete_line(MacroEvent* event)
{
    MacroEvent* const next = event->pNext;
    del_node(oe.list, event);
    mend_continue(next);
}

static int insert(MacroEvent* after)
{
    MacroEvent* const event = add_node(oe.list, after);
    if (!event) {
        tell("No more events");
        return 0;
    }
    CopyText(event->Contents, "Event");
    event->is_made = true;
    changed();
    show_events();
    set_cursor(event, MACRO_COL_SYMBOL);
    return 0;
}
static int insert_before_sel()
{
    return insert(cursor() ? cursor()->pPrev : nullptr);
}
static int insert_after_sel()
{
    return insert(cursor());
}

static void keep_a_line()
{
    if (oe.list.count > 0)
        return;
    if (MacroEvent* const event = add_node(oe.list, nullptr))
        CopyText(event->Contents, "Event");
}

static int delete_sel()
{
    if (!cursor())
        return 0;
    delete_line(cursor());
    keep_a_line();
    changed();
    show_events();
    set_cursor(cursor(), MACRO_COL_CONTENTS);
    return 0;
}

static void delete_blank_line()
{
    for (MacroEvent *event = oe.list.pHead, *next; event; event = next) {
        next = event->pNext;
        if (MacroEvent_IsBlank(*event))
            delete_line(event);
    }
}

// --- Storing ---

static void set_header(int number)
{
    char name[12];
    PrintText(name, "MCRO%d", number);
    const bool is_same = number == GL_MacroEditNo && !GL_Macro_Offline_RegStore;
    if (!is_same)
        MacroFile_Header(number, name, oe.list.MacroFileName);
    else if (*oe.own_header)
        CopyText(oe.list.MacroFileName, oe.own_header);
    else
        MacroFile_Header(number, GL_Macro_Offline_OriginalName, oe.list.MacroFileName);
}

// The first line that is not complete gets the cursor. False when there is one. Panels record
// events without the values that they leave alone, so the Store key passes over lines that nobody
// has touched here.
static bool is_complete()
{
    for (MacroEvent* event = oe.list.pHead; event; event = event->pNext) {
        const bool is_asked = event->is_made || oe.leave_to != 0;
        const int slot = is_asked ? MacroEvent_Missing(*event) : -1;
        if (slot < 0)
            continue;
        set_cursor(event, MACRO_COL_SLOT + slot);
        tell("A value is missing");
        return false;
    }
    return true;
}

static int event_store_listA_process(int number)
{
    delete_blank_line();
    const bool may_go = is_complete();
    if (may_go) {
        set_header(number);
        if (MacroFile_Write(MACRO_EDIT_FILE, oe.list) == 0)
            return 0;
        Macro_ShowFileError();
    }
    return -1;
}

static bool macro_offline_store_result_check()
{
    return push.list && push.list->status == FILESTATUS_OK;
}

static void stored(int number)
{
    char name[12];
    PrintText(name, "MCRO%d", number);
    const bool is_same = number == GL_MacroEditNo && !GL_Macro_Offline_RegStore;
    const char* const shown = is_same ? GL_Macro_Offline_OriginalName : name;
    if (shown != GL_Macro_Offline_OriginalName)
        CopyText(GL_Macro_Offline_OriginalName, shown);
    GL_MacroEditNo = number;
    GL_Macro_Offline_RegStore = 0;
    PrintText(GL_MacroEditNoName, "%d  Name: %s", number, GL_Macro_Offline_OriginalName);
    GL_Macro_Offline_Store = 0;
    CopyText(oe.own_header, oe.list.MacroFileName);
    tell("Stored");
    if (oe.leave_to != 0)
        GL_CreatePage = oe.leave_to;
}

static void macro_offline_store_result(uint32_t, int number)
{
    const bool is_ok = macro_offline_store_result_check();
    if (!oe.is_open) {
        (void)unlink(MACRO_EDIT_FILE); // left behind for the job
    } else if (is_ok) {
        stored(number);
    } else {
        oe.leave_to = 0;
        tell("");
    }
    if (!is_ok) {
        File_FailuresTold();
        Macro_ShowFileError();
    }
}

static int send_file(int number)
{
    char src[FILE_PATH_SIZE], dst[FILE_PATH_SIZE], target[32];
    PrintText(src, "MYHOST:%s", MACRO_EDIT_FILE);
    if (Macro_PanelFile(number, dst, sizeof dst, target, sizeof target) == 0 &&
        File_XferList_SCPAdd(&push.list, src, dst, "MACRO", target) == 0 &&
        File_TransSCPdirPutList(&push.list, macro_offline_store_result, number) >= 0)
        return 0;
    File_XferList_RemoveAll(&push.list);
    Macro_ShowFileError();
    return -1;
}

static int store(int number)
{
    const bool is_written = event_store_listA_process(number) == 0;
    keep_a_line();
    show_events();
    if (is_written)
        set_cursor(cursor(), MACRO_COL_CONTENTS);
    if (is_written && send_file(number) == 0)
        return 0;
    oe.leave_to = 0;
    return -1;
}

static int store_confirmed(int number)
{
    return oe.is_open && !push.list ? store(number) : 0;
}

// Store under a register of the panel. The data of another register is not overwritten unasked.
static int macro_offline_store_sel(int number)
{
    MacroOffLine_StoreModel = STOREMODEL_NONE;
    if (push.list)
        return 0; // one at a time
    if (Register_Lock_Macro(0, number - 1)) {
        MacroOffLine_StoreModel = STOREMODEL_LOCKED;
        oe.leave_to = 0;
        tell("The register is locked");
        return 0;
    }
    if (number == GL_MacroEditNo || !Register_Exist_Macro(0, number - 1))
        return store(number);
    return CreateWindow(WINDOW_MESSAGE, "Macro Store",
                        {.message = "This operation will cause the data to be\noverwritten in the "
                                    "register.\n\nContinue?",
                         .is_yes_no = true,
                         .ok = store_confirmed,
                         .ok_var = number});
}

static int store_sel()
{
    oe.leave_to = 0;
    return macro_offline_store_sel(oe.target);
}

// --- Leaving ---

static int leave_asked(uint32_t page)
{
    if (page == PAGE_MACRO_OFFLINE)
        return 0; // it would be built anew: nobody leaves
    oe.leave_to = page;
    if (push.list || (oe.leave_pane && Pane_Exist(oe.leave_pane)))
        return 0; // what goes on will lead there
    tell("Changes are not stored");
    RegNo_FileName_RemainEventNum_draw(); // before the pane lies over the page
    oe.leave_pane = PaneSelect_Create(int(std::size(leave_choices)), 1, leave_choices);
    return 0;
}

static int leave_answered(int pane, int choice)
{
    if (pane == 0 || pane != oe.leave_pane)
        return 0;
    oe.leave_pane = 0;
    if (choice == LEAVE_STORE)
        return macro_offline_store_sel(oe.target);
    if (choice == LEAVE_DISCARD) {
        GL_Macro_Offline_Store = 0;
        GL_CreatePage = oe.leave_to;
    }
    oe.leave_to = 0;
    return 0;
}

// --- Messages ---

static int group_touched(int group) // from 0
{
    const MacroEvent* const event = cursor();
    if (!event)
        return 0;
    if (group < MACRO_COL_SLOT) {
        set_focus(group);
        return 0;
    }
    const int first = slot_of_group(*event, group);
    if (first < 0)
        return 0;
    const int next = focus_slot() + 1;
    const bool goes_on = group == group_of_focus() && next < count_of(*event) &&
                         group_of_slot(*event, next) == group;
    set_focus(MACRO_COL_SLOT + (goes_on ? next : first));
    return display_keyboard();
}

static int button_pressed(const char* command, const char* value)
{
    static constexpr struct {
        const char* command;
        int (*act)();
    } touches[] = {
        {"LOCAL@Macro@Reg@Off Line Edit@Before", insert_before_sel},
        {"LOCAL@Macro@Reg@Off Line Edit@After", insert_after_sel},
        {"LOCAL@Macro@Reg@Off Line Edit@Delete", delete_sel},
        {"LOCAL@Macro@Reg@Off Line Edit@Store", store_sel},
    };
    tell("");
    if (Same(command, "LOCAL@Macro@Reg@Off Line Edit@Group"))
        return group_touched(Decimal(value) - 1);
    for (const auto& touch : touches)
        if (Same(command, touch.command))
            return touch.act();
    return 0;
}

static int event_touched(int row, int column)
{
    const int slot = column - MACRO_COL_SLOT;
    tell("");
    set_cursor(MacroList_At(oe.list, row), slot < 0 ? column : column + oe.first_slot);
    return 0;
}

static int page_redraw()
{
    RegNo_FileName_RemainEventNum_draw();
    return 0;
}

static int knob_turned(int id, int value, bool is_entered)
{
    if (id == NB_MACRO_REGISTER)
        oe.target = std::clamp(value, 1, REGISTERS_MACRO);
    else if (id == NB_MACRO_VALUE)
        value_turned(value, is_entered);
    return 0;
}

static int pc_macro_offline_edit_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!oe.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case LMSG_BTNSEL: return button_pressed(Text(ax), Text(bx));
    case LMSG_LISTSEL:
        return int(ax) == LIST_MACRO_EVENTS ? event_touched(int(bx), int(cx))
                                            : value_touched(int(bx));
    case LMSG_KNOBVAR: return knob_turned(int(ax), int(bx), cx != 0);
    case LMSG_PAGEREQUEST: return leave_asked(uint32_t(ax));
    case LMSG_PANEQUIT: return leave_answered(int(ax), int(bx));
    default: return 0;
    }
}

static int leave()
{
    MacroList_Clear(oe.list);
    oe = {};
    GL_Macro_Offline_Store = 0;
    const bool IsStored = push.list;                   // on its way: the job still reads the file
    if (!IsStored && GL_NowPage != PAGE_MACRO_OFFLINE) // else it is only built anew
        (void)unlink(MACRO_EDIT_FILE);
    return 0;
}

static int pc_macro_offline_edit_create(int on, uint32_t)
{
    if (!on)
        return leave();
    MacroList_Clear(oe.list);
    oe = {};
    oe.is_open = true;
    oe.target = std::clamp(GL_MacroEditNo, 1, REGISTERS_MACRO);
    GL_Macro_Offline_Store = 0;
    MacroOffLine_StoreModel = STOREMODEL_NONE;
    MacroSymbols_ForSystem();
    if (MacroFile_Read(MACRO_EDIT_FILE, oe.list) == 0)
        keep_a_line();
    else
        Log_Output(LOG_ALWAYS, MOD_PAGE, "File:%s--Func:%s--Line:%d--Open macro file failure!\n",
                   __FILE__, __func__, __LINE__);
    CopyText(oe.own_header, oe.list.MacroFileName);
    (void)NB_SetVar(NB_MACRO_REGISTER, oe.target);
    show_events();
    set_cursor(oe.list.pHead, MACRO_COL_CONTENTS);
    return 0;
}

const PC_TBL pc_macro_offline = {pc_macro_offline_edit_proc, pc_macro_offline_edit_create};

bool MacroOffline_IsStoring()
{
    return push.list != nullptr;
}

void MacroOffline_Reset()
{
    (void)leave();
    File_XferList_RemoveAll(&push.list);
    push = {};
}
