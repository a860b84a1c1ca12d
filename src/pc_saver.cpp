// The setup page of the screen saver: its pattern and speeds on the knobs, its names in a list.
#include "a_ls.h"
#include "a_nb.h"
#include "a_pc.h"
#include "global.h"
#include "message.h"
#include "saver.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int LIST = 1;
constexpr int ROW_PATTERN = SAVER_NAMES; // behind the names
constexpr int ROW_FOLDER = SAVER_NAMES + 1;
constexpr int ROWS = SAVER_NAMES + 2;
constexpr int KNOB_PATTERN = 1;
constexpr int KNOB_SPEED = 2;
constexpr int KNOB_HOLD = 3;

constexpr const char* row_titles[ROWS] = {"Name 1", "Name 2",  "Name 3",  "Name 4",
                                          "Name 5", "Name 6",  "Name 7",  "Name 8",
                                          "Name 9", "Name 10", "Pattern", "Image Path"};
constexpr const char* pattern_titles[SAVER_PATTERNS + 1] = {
    "Plain text",        "Lines, leftwards",       "Lines, rightwards",  "Lines, both ways",
    "Lines, in depth",   "Lines, a wave",          "Lines, breathing",   "Lines, comets",
    "Side to side",      "Side to side, rising",   "Text, fading",       "Text, fading in colour",
    "Pictures, cut",     "Pictures, fading",       "Pictures, shuffled", "Pictures, cross-fade",
    "Pictures, overlay", "Text, fading (default)",
};
} // namespace

static struct {
    int renamed = 0;         // the name that the keyboard is open for
    bool is_changed = false; // there is something to save
} setup;                     // valid from create(1) to create(0)

static int setup_row = 0; // that the list stands on; the saver closes the page and opens it again

static void setup_show()
{
    for (int row = 0; row < SAVER_NAMES; row++)
        LS_SetData(LIST, row, 1, GL_Scr_disp_name[row]);
    const int mode = GL_ScreenSaverPTN_Mode;
    const bool is_known = mode >= 0 && mode <= SAVER_PATTERNS;
    LS_SetData(LIST, ROW_PATTERN, 1, pattern_titles[is_known ? mode : SAVER_PATTERNS]);
    LS_SetData(LIST, ROW_FOLDER, 1, GL_Scr_disp_ImagePath);
    LS_RedrawData(LIST);
}

static void setup_changed()
{
    setup.is_changed = true;
    setup_show();
}

// The name that the list stands on, -1 on the rows behind them.
static int setup_name_row()
{
    const int row = LS_GetNowLine(LIST);
    return row >= 0 && row < SAVER_NAMES ? row : -1;
}

// --- Buttons ---

static void setup_push_start()
{
    GL_SSver_PVW = 1;
}

static int setup_take_name(const char* text)
{
    CopyText(GL_Scr_disp_name[setup.renamed], text);
    setup_changed();
    return 0;
}

static void setup_rename()
{
    const int row = setup_name_row();
    if (row < 0)
        return;
    setup.renamed = row;
    WindowArgs args;
    args.value = GL_Scr_disp_name[setup.renamed];
    args.input_max = SAVER_TEXT - 1;
    args.ok_text = setup_take_name;
    CreateWindow(WINDOW_KEYBOARD, "ReName", args);
}

static void setup_default()
{
    const int row = setup_name_row();
    if (row < 0)
        return;
    CopyText(GL_Scr_disp_name[row], "KTR-20");
    setup_changed();
}

static int setup_take_folder(const char* text)
{
    CopyText(GL_Scr_disp_ImagePath, text);
    setup_changed();
    return 0;
}

static void setup_path()
{
    WindowArgs args;
    args.value = GL_Scr_disp_ImagePath;
    args.input_max = SAVER_TEXT - 1;
    args.ok_text = setup_take_folder;
    CreateWindow(WINDOW_KEYBOARD, "Image File Path", args);
}

namespace
{
struct Command {
    const char* path;
    void (*run)();
};
constexpr Command commands[] = {
    {"LOCAL@Screen Sever@Setup@Push START", setup_push_start},
    {"LOCAL@Screen Sever@Setup@Rename", setup_rename},
    {"LOCAL@Screen Sever@Setup@Default", setup_default},
    {"LOCAL@Screen Sever@Setup@Path", setup_path},
};
} // namespace

static int setup_button(const char* path)
{
    for (const Command& command : commands)
        if (strcmp(path, command.path) == 0)
            command.run();
    return 0;
}

// --- Knobs ---

static int setup_knob(int knob, int value)
{
    switch (knob) {
    case KNOB_PATTERN: GL_ScreenSaverPTN_Mode = std::clamp(value, 0, SAVER_PATTERNS); break;
    case KNOB_SPEED:
        GL_ScreenSaverVariable_speed = std::clamp(value - 1, 0, SAVER_SPEEDS - 1);
        break;
    case KNOB_HOLD: GL_ScreenSaverPath_Time = std::clamp(value, 1, SAVER_HOLD_MAX_S); break;
    default: return 0;
    }
    setup_changed();
    return 0;
}

// --- The page ---

static int pc_screen_saver_setup_create(int on, uint32_t)
{
    if (!on) {
        GL_SSver_PVW = 0; // a preview that did not come is not wanted elsewhere
        if (setup.is_changed)
            (void)Saver_SaveSettings(); // the log has it; the settings hold until the end
        setup.is_changed = false;
        return 1;
    }
    setup = {};
    for (int row = 0; row < ROWS; row++)
        LS_SetData(LIST, row, 0, row_titles[row]);
    setup_show();
    LS_SetNData(LIST, ROWS);
    if (!GL_ScreenSaver_Now)
        setup_row = 0;
    LS_SetNowLine(LIST, setup_row);
    NB_SetVar(KNOB_PATTERN, GL_ScreenSaverPTN_Mode);
    NB_SetVar(KNOB_SPEED, GL_ScreenSaverVariable_speed + 1);
    NB_SetVar(KNOB_HOLD, GL_ScreenSaverPath_Time);
    return 0;
}

static int pc_screen_saver_setup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_LISTSEL: setup_row = LS_GetNowLine(LIST); return 0;
    case LMSG_BTNSEL: return setup_button(Text(ax));
    case LMSG_KNOBVAR: return setup_knob(int(ax), int(bx));
    default: return 0;
    }
}

extern const PC_TBL pc_screen_saver_setup;
const PC_TBL pc_screen_saver_setup = {pc_screen_saver_setup_proc, pc_screen_saver_setup_create};
