// The gallery pages of what stands above a page: panes and windows. A line at the top of the page
// says how the last one was answered.
#include "a_nb.h"
#include "a_pc.h"
#include "colours.h"
#include "message.h"
#include "page_table/gallery_shared.h"
#include "pane.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include "window.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr int PROGRESS_STEP_MS = 50; // a percent
constexpr int INDICATOR_MS = 3000;
constexpr Rect ANSWER = {112, 100, 690, 116};
constexpr char BOX_TIME[] = "00:12:34:15";
constexpr int ENTRIES = 85; // more than two pages of a directory

// A key of the page and what it opens; returns the id of a pane, or nothing of use for a window.
struct Opener {
    const char* name; // the value of the key's command
    int (*open)();
};
} // namespace

static struct {
    const char* name = ""; // what was opened last
    int pane = 0;
    char answer[128] = "";
    bool is_dirty = true; // the line has to be drawn
    int elapsed_ms = 0;   // since then
    int progress = 0;     // a pane whose progress runs; 0 none
    int indicator = 0;    // a pane whose indicator is lit; 0 none
} layers;                 // valid from create(1) to create(0)

static void say(const char* what, long number)
{
    PrintText(layers.answer, "%s: %s %ld", layers.name, what, number);
    layers.is_dirty = true;
}

static int draw_answer()
{
    if (!layers.is_dirty)
        return 0;
    layers.is_dirty = false;
    TDL_FillRectS(ANSWER.x1, ANSWER.y1, ANSWER.x2, ANSWER.y2, 0);
    TDL_SymbolWS(ANSWER.x1, ANSWER.y1, ANSWER.x2 - ANSWER.x1, layers.answer, 4, WHITE);
    TDL_UpdateRect(ANSWER.x1, ANSWER.y1, ANSWER.x2, ANSWER.y2);
    return 0;
}

template <size_t N> static int open_named(const Opener (&openers)[N], const char* name)
{
    for (const Opener& opener : openers) {
        if (strcmp(name, opener.name) != 0)
            continue;
        layers.name = opener.name;
        layers.elapsed_ms = 0;
        layers.pane = opener.open();
    }
    return 0;
}

// --- Panes ---

static constexpr char LONG_TEXT[] =
    "A text of many lines, to be scrolled with the arrows beside it. The first lines say what "
    "happened, the next ones to what, the last ones what can be done about it.\n\nOne\nTwo\nThree\n"
    "Four\nFive\nSix\nSeven\nEight\nNine\nTen\nEleven\nTwelve";

static constexpr BTNSEL choices[] = {
    {.id = 1, .caption = "First", .select = 1},
    {.id = 2, .caption = "Second"},
    {.id = 3, .caption = "Third\nof three"},
    {.id = 4, .caption = "Disabled"},
    {.id = 5, .caption = "Hidden"},
    {.id = 6, .caption = "Sixth"},
    {.id = 0, .caption = ""},
    {.id = 8, .caption = "Eighth"},
    {.id = 9, .caption = "Ninth"},
};

static char entry_names[ENTRIES][16];
static BTNSEL entries[ENTRIES];

static const BTNSEL* directory_entries()
{
    for (int i = 0; i < ENTRIES; i++) {
        PrintText(entry_names[i], "ENTRY %02d", i + 1);
        entries[i] = {.id = i + 1, .caption = entry_names[i]};
    }
    return entries;
}

static int open_stack()
{
    (void)PaneMessage_Create("Lowest", PANE_INFO, "This was the first.");
    (void)PaneYesNo_Create("Middle", PANE_ALERT, "This was the second.");
    return PaneMessage_Create("Top", PANE_FATAL, "The lower ones wait.");
}

static int open_progress(int cancel)
{
    layers.progress = PaneProgress_Create("Progress", "Copying files...", cancel);
    return layers.progress;
}

static int open_popup()
{
    const int id = PanePopup_Create(3, 3, choices);
    PanePopup_BtnDisable(4, 1);
    PanePopup_BtnCutOff(5, 1);
    return id;
}

static int open_indicator()
{
    layers.indicator = PaneFind_Create(300, 200, 1);
    return layers.indicator;
}

namespace
{
constexpr int GRP_EFFECT = 4;
constexpr int GRP_SNAPSHOT = 13;
constexpr Opener panes[] = {
    {"Info", [] { return PaneMessage_Create("Info", PANE_INFO, "All is well."); }},
    {"Alert", [] { return PaneMessage_Create("Alert", PANE_ALERT, LONG_TEXT); }},
    {"Fatal", [] { return PaneMessage_Create("Fatal", PANE_FATAL, "Nothing works."); }},
    {"Yes/No", [] { return PaneYesNo_Create("Question", PANE_ALERT, "Is it so?"); }},
    {"Stack", open_stack},
    {"Progress", [] { return open_progress(1); }},
    {"No Cancel", [] { return open_progress(0); }},
    {"Find", [] { return PaneFind_Create(300, 200, 0); }},
    {"Indicator", open_indicator},
    {"Run Control", KeyFrameRunCtrl_Create},
    {"Pull-down", [] { return PanePullDown_Create(0, 184, 4, choices); }},
    {"Select", [] { return PaneSelect_Create(3, 3, choices); }},
    {"Color", [] { return PaneSelect_Color_Button_Create(3, 3, choices); }},
    {"Popup", open_popup},
    {"FM Out", [] { return FMOutPopup_Create(3, 3, choices); }},
    {"Directory", [] { return PaneDirectory_Create(ENTRIES, directory_entries()); }},
    {"Folders", [] { return PaneDirectory_Create_FolderPopup(ENTRIES, directory_entries()); }},
    {"Region", [] { return PaneRegion_Create(GRP_EFFECT, 0); }},
    {"Single Region", [] { return PaneRegion_Create(GRP_SNAPSHOT, 1); }},
    {"Router Levels", [] { return PaneRTRLvl_Create(0); }},
    {"Router Level", [] { return PaneRTRLvl_Create(1); }},
};
} // namespace

static void run_progress()
{
    if (!Pane_Exist(layers.progress)) {
        layers.progress = 0; // cancelled
        return;
    }
    const int percent = layers.elapsed_ms / PROGRESS_STEP_MS;
    char text[32];
    PrintText(text, "%d of 100", percent);
    PaneProgress_SetProg(layers.progress, percent, text);
    PaneProgress_SetRouteLamp(layers.progress, percent < 50 ? ROUTE_LAMP_CONTROL : ROUTE_LAMP_DATA);
    if (percent < 100)
        return;
    Pane_Quit(layers.progress);
    layers.progress = 0;
    say("closed by code at", percent);
}

// The page hears this in place of a repaint while a pane is up.
static int panes_tick(int elapsed_ms)
{
    layers.elapsed_ms += elapsed_ms;
    if (layers.progress)
        run_progress();
    if (layers.indicator && layers.elapsed_ms >= INDICATOR_MS) {
        PaneFind_Indicator(0);
        layers.indicator = 0;
    }
    return 0;
}

static int pane_button(int id)
{
    say("button", id);
    return 0;
}

static int pane_closed(int id, int result)
{
    say(id == layers.pane ? "answered with" : "(a lower one) answered with", result);
    return 0;
}

static int pc_gallery_panes_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return draw_answer();
    case MSG_PANETICK: return panes_tick(int(ax));
    case LMSG_BTNSEL: return open_named(panes, Text(bx));
    case LMSG_PANEBTNSEL: return pane_button(int(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    default: return 0;
    }
}

static int pc_gallery_panes_create(int on, uint32_t)
{
    layers = {};
    return on ? 0 : 1;
}

// --- Windows ---

static int answer_number(int value)
{
    say("answered with", value);
    return 0;
}

static int answer_text(const char* text)
{
    PrintText(layers.answer, "%s: \"%s\"", layers.name, text);
    layers.is_dirty = true;
    return 0;
}

static constexpr const char* window_choices[] = {"First", "Second", "Third", "", "Fifth", "Sixth"};

static int open_knob(int type, int box)
{
    NB_SetSelect(box);
    if (box == 2)
        return CreateWindow(type, "Time Code",
                            {.value = BOX_TIME,
                             .min_text = "00:00:00:00",
                             .max_text = "23:59:59:29",
                             .is_timecode = true});
    return CreateWindow(type, "Value",
                        {.value = "12.50", .min_text = "-100.00", .max_text = "100.00"});
}

static int open_numbers(int type, const char* caption)
{
    return CreateWindow(type, caption, {.value = "10", .ok = answer_number});
}

static int open_choices(int type)
{
    return CreateWindow(type, "Choice",
                        {.columns = 2, .rows = 3, .captions = window_choices, .selected = 1});
}

static int open_path(int path_type)
{
    return CreateWindow(WINDOW_PATH, "Path", {.selected = 0, .path_type = path_type});
}

static int open_keyboard()
{
    return CreateWindow(WINDOW_KEYBOARD, "Keyboard",
                        {.value = "STUDIO 4", .input_max = 16, .ok_text = answer_text});
}

static int open_box(bool is_yes_no)
{
    return CreateWindow(WINDOW_MESSAGE, "Message",
                        {.message = "Two lines of text,\nand nothing to scroll.",
                         .is_yes_no = is_yes_no,
                         .ok = answer_number,
                         .ok_var = 1});
}

static int open_progress_box()
{
    const int result = CreateWindow(WINDOW_PROGRESS, "Progress",
                                    {.message = "Working...", .ok = answer_number, .ok_var = 1});
    ProgBox_RedrawProgress(40);
    return result;
}

namespace
{
constexpr Opener windows[] = {
    {"Knob", [] { return open_knob(WINDOW_KNOB, 1); }},
    {"Time Code", [] { return open_knob(WINDOW_KNOB, 2); }},
    {"Trim", [] { return open_knob(WINDOW_KNOB_TRIM, 1); }},
    {"Bank", [] { return open_numbers(WINDOW_BANK, "Bank"); }},
    {"Hex", [] { return open_numbers(WINDOW_HEX, "Hex"); }},
    {"Keyboard", open_keyboard},
    {"Page Jump", [] { return CreateWindow(WINDOW_PAGE_JUMP, "Page"); }},
    {"Page Get", [] { return open_numbers(WINDOW_PAGE_GET, "Page"); }},
    {"Page Initial", [] { return open_numbers(WINDOW_PAGE_INITIAL, "Page"); }},
    {"Message", [] { return open_box(false); }},
    {"Yes/No", [] { return open_box(true); }},
    {"Progress", open_progress_box},
    {"Pull-down", [] { return open_choices(WINDOW_PULLDOWN); }},
    {"Select", [] { return open_choices(WINDOW_SELECT); }},
    {"Xpt", [] { return open_path(PATHSEL_XPT); }},
    {"Hue", [] { return open_path(PATHSEL_HUE); }},
    {"Curve 0", [] { return open_path(PATHSEL_CURVE0); }},
    {"Curve 3", [] { return open_path(PATHSEL_CURVE3); }},
};
} // namespace

// A local box keeps nothing by itself.
static int windows_box_entered(int id, const double* value)
{
    NB_SetVar(id, *value);
    PrintText(layers.answer, "Box %d: %.2f", id, *value);
    layers.is_dirty = true;
    return 0;
}

static int pc_gallery_windows_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return draw_answer();
    case LMSG_BTNSEL: return open_named(windows, Text(bx));
    case LMSG_KNOBFVAR: return windows_box_entered(int(ax), reinterpret_cast<const double*>(bx));
    case LMSG_PULLDOWNSEL:
    case LMSG_SELECTBOX:
    case LMSG_PATHSELSEL: return answer_number(int(bx));
    default: return 0;
    }
}

static int pc_gallery_windows_create(int on, uint32_t)
{
    layers = {};
    if (!on)
        return 1;
    NB_SetVar(1, 12.5);
    NB_SetVar(2, TC2Frame_SWR(BOX_TIME, 0));
    return 0;
}

const PC_TBL pc_gallery_panes = {pc_gallery_panes_proc, pc_gallery_panes_create};
const PC_TBL pc_gallery_windows = {pc_gallery_windows_proc, pc_gallery_windows_create};
