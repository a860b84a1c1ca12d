// The Play page of the clip store: transport, the points between which a clip plays, its mode and
// speed, and a time line of the selected output. What an output does is the server's to tell: keys
// ask, tallies show.
#include "a_ba.h"
#include "a_bt.h"
#include "a_fm.h"
#include "a_nb.h"
#include "a_pc.h"
#include "box.h"
#include "bus.h"
#include "colours.h"
#include "fmctrl3.h"
#include "graphics.h"
#include "message.h"
#include "netio.h"
#include "page_table/fmem_clip.h"
#include "pane.h"
#include "pc_fmem.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int FM_PLAY_MODE_LOOP = 1;
constexpr int FM_PLAY_MODE_PINGPONG = 2;
enum : int { POINT_NOW = 0, POINT_NUMBER = 4, POINT_RESET = 6 }; // of Start and Stop TC
enum : int {
    JUMP_START = 0,
    JUMP_STOP = 1,
    JUMP_MIDDLE = 2,
    JUMP_NUMBER = POINT_NUMBER
};                                 // of Jump Frame
enum : int { PLAY = 0, STOP = 1 }; // of Play
constexpr int SPEED_DEFAULT = 50;  // percent
constexpr int SPEED_NORMAL = 0;    // not variable

struct CLIPPLAY {
    int outstatus = FMOUT_STATUS_NONE;
    char fname[129] = "";
    int start_tc = 0; // frames, the first and the last one that play
    int stop_tc = 0;
    int jump_mode = 0;
    int jump_frame = 0;
    int playstatus = 0; // 1 runs
    int looptype = 0;   // FM_PLAY_MODE_, 0 once
    int frame = 0;
    int speed = SPEED_DEFAULT; // percent, of variable speed
    int speed_status = 0;      // 1: variable
};
constexpr Rect LINE = {250, 118, 690, 149};
constexpr int WELL_Y = 166;
constexpr int WELL_W = 130;
constexpr int WELL_H = 40;
constexpr int NAME_Y = 88;
} // namespace

static CLIPPLAY ClipPlay[FM_OUTPUTS];
static bool ClipPlay_tl_redraw = false; // the name and the time line
static bool ClipPlay_tc_redraw = false; // the start and stop time codes
static bool FMTC_redraw = false;        // the running one
static struct {
    int duration = 0; // of what the selected output has
    int trim_pane_id = 0;
} pl; // valid from create(1) to create(0)

static CLIPPLAY& selected()
{
    return ClipPlay[FM_GetSelect()];
}

static bool has_clip()
{
    return pl.duration > 1;
}

// --- What the server tells ---

// The last number of a tally: it may have the pair's flag and a kind in front, or not.
static int last_number(const char* value)
{
    const char* const comma = strrchr(value, ',');
    const long number = strtol(comma ? comma + 1 : value, nullptr, 10);
    return int(std::clamp(number, -long(ELEMENT_FRAMES_MAX), long(ELEMENT_FRAMES_MAX)));
}

static void clipplay_start_tc_tly(CLIPPLAY& c, const char* value)
{
    c.start_tc = std::max(last_number(value), 0);
}

static void clipplay_stop_tc_tly(CLIPPLAY& c, const char* value)
{
    c.stop_tc = std::max(last_number(value), 0);
}

static void clipplay_playmode_tly(CLIPPLAY& c, const char* value)
{
    c.looptype = last_number(value);
}

static void clipplay_variablespeed_tly(CLIPPLAY& c, const char* value)
{
    const int speed = last_number(value);
    c.speed_status = speed != SPEED_NORMAL;
    if (c.speed_status)
        c.speed = speed;
}

static void clipplay_jumpframe_tly(CLIPPLAY& c, const char* value)
{
    c.jump_mode = int(strtol(value, nullptr, 10));
    c.jump_frame = last_number(value);
}

namespace
{
struct PLAY_TALLY {
    const char* path; // below FM_TREE
    void (*take)(CLIPPLAY& c, const char* value);
};
} // namespace

static constexpr PLAY_TALLY tallies[] = {
    {"Play@Start TC", clipplay_start_tc_tly},
    {"Play@Stop TC", clipplay_stop_tc_tly},
    {"Play@Play Mode", clipplay_playmode_tly},
    {"Play@Variable Speed", clipplay_variablespeed_tly},
    {"Play@Jump Frame", clipplay_jumpframe_tly},
};

// --- Keys and boxes ---

static void tell_lamp(const char* name, bool is_on)
{
    char line[64];
    PrintText(line, "LOCAL@Clip/Still@%s#%s", name, is_on ? "true" : "false");
    (void)SendDummyTally(line);
}

static void show_keys()
{
    const CLIPPLAY& c = selected();
    for (const int id : {BTN_FMEM_REW, BTN_FMEM_PLAY, BTN_FMEM_STOP, BTN_FMEM_FF, BTN_FMEM_MIDDLE,
                         BTN_FMEM_START_SET, BTN_FMEM_START_RESET, BTN_FMEM_STOP_SET,
                         BTN_FMEM_STOP_RESET, BTN_FMEM_LOOP, BTN_FMEM_PINGPONG, BTN_FMEM_SPEED})
        BT_SetDisable(id, !has_clip());
    BT_SetDisable(BTN_FMEM_TRIM, !has_clip() || c.playstatus || c.start_tc > c.stop_tc ||
                                     (c.start_tc == 0 && c.stop_tc == pl.duration - 1));
    BT_SetStatus(BTN_FMEM_PLAY, c.playstatus ? BT_ON : BT_OFF);
    tell_lamp("Loop", c.looptype == FM_PLAY_MODE_LOOP);
    tell_lamp("Ping-Pong", c.looptype == FM_PLAY_MODE_PINGPONG);
    tell_lamp("Variable Speed", c.speed_status);
}

static void show_boxes()
{
    const CLIPPLAY& c = selected();
    const int last = std::max(pl.duration - 1, 0);
    for (const int id : {NB_FMEM_START, NB_FMEM_STOP, NB_FMEM_FRAME})
        (void)NB_SetMinMax(id, 0, last);
    (void)NB_SetVar(NB_FMEM_START, c.start_tc);
    (void)NB_SetVar(NB_FMEM_STOP, c.stop_tc);
    (void)NB_SetVar(NB_FMEM_FRAME, c.frame);
    (void)NB_SetVar(NB_FMEM_SPEED, c.speed);
}

static void clipplay_status(int n)
{
    CLIPPLAY& c = ClipPlay[n];
    const FM_PLAY& p = *FM_GetPlay(n);
    c.playstatus = p.is_running;
    c.frame = p.frame;
    c.start_tc = p.start;
    c.stop_tc = p.stop;
}

static void clipplay_outputstatus_tly()
{
    FM_OBJECT object;
    const int n = FM_GetSelect();
    if (FM_GetRecalledObject(n, &object) != 0)
        return;
    ClipPlay[n].outstatus = object.fmout_status;
    CopyText(ClipPlay[n].fname, object.name);
    pl.duration = object.frame;
}

static void show_all()
{
    clipplay_outputstatus_tly();
    clipplay_status(FM_GetSelect());
    show_keys();
    show_boxes();
    ClipPlay_tl_redraw = ClipPlay_tc_redraw = FMTC_redraw = true;
}

static void frame_changed()
{
    CLIPPLAY& c = selected();
    c.frame = FM_GetPlay(FM_GetSelect())->frame;
    (void)NB_SetVar(NB_FMEM_FRAME, c.frame);
    ClipPlay_tl_redraw = FMTC_redraw = true;
}

static void tally(const char* path, const char* value)
{
    if (!path || !value || !BeginsWith(path, FM_TREE))
        return;
    path += strlen(FM_TREE);
    for (const PLAY_TALLY& t : tallies) {
        const size_t n = strlen(t.path);
        if (!BeginsWith(path, t.path) || !BeginsWith(path + n, "@FM"))
            continue;
        const long output = strtol(path + n + strlen("@FM"), nullptr, 10);
        if (output < 1 || output > FM_OUTPUTS)
            return;
        t.take(ClipPlay[output - 1], value);
        if (output - 1 != FM_GetSelect())
            return;
        show_keys();
        show_boxes();
        ClipPlay_tl_redraw = ClipPlay_tc_redraw = true;
        return;
    }
    // Points are told with every frame, too.
    const CLIPPLAY& c = selected();
    const FM_PLAY& p = *FM_GetPlay(FM_GetSelect());
    if (BeginsWith(path, "Play@FM") && (p.start != c.start_tc || p.stop != c.stop_tc))
        show_all();
}

// --- What the keys ask for ---

static void put_play(int what)
{
    const CLIPPLAY& c = selected();
    char rest[48];
    PrintText(rest, "%d,%d,%d", what, c.start_tc, c.stop_tc);
    fmem_put("Play", rest);
}

static void play()
{
    const CLIPPLAY& c = selected();
    if (c.start_tc > c.stop_tc)
        (void)PaneMessage_Create("Clip Play", PANE_ALERT,
                                 "The Start TC or Stop TC is not properly set.");
    else
        put_play(PLAY);
}

static void stop()
{
    put_play(STOP);
}

static void put_point(const char* path, int kind, int frame = -1)
{
    char rest[32];
    PrintText(rest, frame < 0 ? "%d" : "%d,%d", kind, frame);
    fmem_put(path, rest);
}

static void rewind_clip()
{
    put_point("Play@Jump Frame", JUMP_START);
}

static void forward_clip()
{
    put_point("Play@Jump Frame", JUMP_STOP);
}

static void to_middle()
{
    put_point("Play@Jump Frame", JUMP_MIDDLE);
}

static void set_start()
{
    put_point("Play@Start TC", POINT_NOW);
}

static void reset_start()
{
    put_point("Play@Start TC", POINT_RESET);
}

static void set_stop()
{
    put_point("Play@Stop TC", POINT_NOW);
}

static void reset_stop()
{
    put_point("Play@Stop TC", POINT_RESET);
}

static void toggle_mode(int mode)
{
    fmem_put_number("Play@Play Mode", selected().looptype == mode ? 0 : mode);
}

static void toggle_loop()
{
    toggle_mode(FM_PLAY_MODE_LOOP);
}

static void toggle_pingpong()
{
    toggle_mode(FM_PLAY_MODE_PINGPONG);
}

static void toggle_speed()
{
    const CLIPPLAY& c = selected();
    fmem_put_number("Play@Variable Speed", c.speed_status ? SPEED_NORMAL : c.speed);
}

static void ask_trim()
{
    pl.trim_pane_id = PaneYesNo_Create(
        "Trim", PANE_ALERT,
        "Frames before Start TC and behind Stop TC\nwill be deleted.\n\nContinue?");
}

static void trim()
{
    const CLIPPLAY& c = selected();
    if (!has_clip() || !fmem_progress_begin(PROTOCOL_TYPE_SHP_TRIM, nullptr))
        return;
    fmem_progress_trim(c.fname, c.start_tc, c.stop_tc);
    fmem_progress_show();
}

static constexpr FMEM_KEY keys[] = {
    {"LOCAL@Clip/Still@Play", play},
    {"LOCAL@Clip/Still@Stop", stop},
    {"LOCAL@Clip/Still@Rewind", rewind_clip},
    {"LOCAL@Clip/Still@Forward", forward_clip},
    {"LOCAL@Clip/Still@Middle", to_middle},
    {"LOCAL@Clip/Still@Start TC Set", set_start},
    {"LOCAL@Clip/Still@Start TC Reset", reset_start},
    {"LOCAL@Clip/Still@Stop TC Set", set_stop},
    {"LOCAL@Clip/Still@Stop TC Reset", reset_stop},
    {"LOCAL@Clip/Still@Loop", toggle_loop},
    {"LOCAL@Clip/Still@Ping-Pong", toggle_pingpong},
    {"LOCAL@Clip/Still@Variable Speed", toggle_speed},
    {"LOCAL@Clip/Still@Trim", ask_trim},
};

static void number_entered(int id, int value)
{
    CLIPPLAY& c = selected();
    if (id == NB_FMEM_SPEED && value != SPEED_NORMAL) {
        c.speed = value;
        if (c.speed_status)
            fmem_put_number("Play@Variable Speed", value);
    }
    if (!has_clip())
        return;
    if (id == NB_FMEM_START)
        put_point("Play@Start TC", POINT_NUMBER, value);
    else if (id == NB_FMEM_STOP)
        put_point("Play@Stop TC", POINT_NUMBER, value);
    else if (id == NB_FMEM_FRAME)
        put_point("Play@Jump Frame", JUMP_NUMBER, value);
}

// A touch on the time line.
static void press(int x, int y)
{
    if (has_clip() && Inside(LINE, x, y) && !BA_IsDefaultButton())
        put_point("Play@Jump Frame", JUMP_NUMBER,
                  (x - LINE.x1) * (pl.duration - 1) / (LINE.x2 - LINE.x1));
}

// --- Picture ---

static int x_of(int frame)
{
    return LINE.x1 + frame * (LINE.x2 - LINE.x1) / std::max(pl.duration - 1, 1);
}

static void draw_name(const CLIPPLAY& c)
{
    const char* const name = fmem_server_path(c.fname);
    TDL_FillRectS(LINE.x1, NAME_Y, LINE.x2, NAME_Y + 21, HEADER_GROUND);
    TDL_SymbolWS(LINE.x1 + 6, NAME_Y + 4, 300, name[0] == '/' ? name + 1 : name, 3, WHITE);
    char text[48] = "";
    if (pl.duration > 0)
        PrintText(text, "%d %s", pl.duration, pl.duration == 1 ? "frame" : "frames");
    TDL_SymbolWS(LINE.x2 - 110, NAME_Y + 4, 106, text, 3, LABEL);
    TDL_UpdateRect(LINE.x1, NAME_Y, LINE.x2, NAME_Y + 21);
}

static void draw_timeline(const CLIPPLAY& c)
{
    TDL_FillRectS(LINE.x1 - 2, LINE.y1 - 2, LINE.x2 + 2, LINE.y2 + 2, BLACK);
    TDL_FillRectS(LINE.x1, LINE.y1, LINE.x2, LINE.y2, HEADER_GROUND);
    if (has_clip()) {
        const int last = pl.duration - 1;
        const int from = x_of(std::clamp(c.start_tc, 0, last));
        const int to = x_of(std::clamp(c.stop_tc, 0, last));
        if (from <= to)
            TDL_FillRectS(from, LINE.y1 + 8, to, LINE.y2 - 8, BAR_GROUND);
        for (const int x : {from, to})
            TDL_FillRectS(std::max(x - 1, LINE.x1), LINE.y1 + 4, std::min(x + 1, LINE.x2),
                          LINE.y2 - 4, CYAN);
        const int now = x_of(std::clamp(c.frame, 0, last));
        TDL_FillRectS(std::max(now - 1, LINE.x1), LINE.y1, std::min(now + 1, LINE.x2), LINE.y2,
                      RED);
    }
    Box_Edge({LINE.x1 - 1, LINE.y1 - 1, LINE.x2 + 1, LINE.y2 + 1}, CELL_FRAME, CELL_FRAME);
    TDL_UpdateRect(LINE.x1 - 2, LINE.y1 - 2, LINE.x2 + 2, LINE.y2 + 2);
}

static void draw_well(int x, const char* caption, int frame, bool is_on)
{
    TDL_PutS(x, WELL_Y, is_on ? G_FMTC_on : G_FMTC_off);
    TDL_SymbolS(x + 8, WELL_Y + 4, caption, 1, LABEL);
    if (has_clip())
        TDL_SymbolS(x + 30, WELL_Y + 16, Frame2TC_SWR(frame, 4, 0), 8, WHITE);
    TDL_UpdateRect(x, WELL_Y, x + WELL_W - 1, WELL_Y + WELL_H - 1);
}

static void redraw()
{
    const CLIPPLAY& c = selected();
    if (ClipPlay_tl_redraw) {
        draw_name(c);
        draw_timeline(c);
    }
    if (ClipPlay_tc_redraw) {
        draw_well(LINE.x1, "Start TC", c.start_tc, false);
        draw_well(LINE.x2 - WELL_W + 1, "Stop TC", c.stop_tc, false);
    }
    if (FMTC_redraw)
        draw_well((LINE.x1 + LINE.x2 - WELL_W) / 2, "Now", c.frame, c.playstatus != 0);
    ClipPlay_tl_redraw = ClipPlay_tc_redraw = FMTC_redraw = false;
}

// --- The page ---

static void subscribe(const char* verb)
{
    for (int n = 0; n < FM_OUTPUTS; n++)
        for (const PLAY_TALLY& t : tallies)
            (void)Net_SendCommandFormat("%s  %s%s@FM%d#", verb, FM_TREE, t.path, n + 1);
}

static void pane_closed(int id, int answer)
{
    if (pl.trim_pane_id == 0 || id != pl.trim_pane_id)
        return;
    pl.trim_pane_id = 0;
    if (answer == 1)
        trim();
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    fmem_proc(msg, ax, bx, dx);
    switch (msg) {
    case MSG_REDRAW: redraw(); return 0;
    case MSG_PRESS: press(int(ax), int(bx)); return 0;
    case MSG_TALLY: tally(Text(ax), Text(bx)); return 0;
    case LMSG_BTNSEL: fmem_button(keys, Text(ax)); return 0;
    case LMSG_KNOBVAR: number_entered(int(ax), int(bx)); return 0;
    case LMSG_PANEQUIT: pane_closed(int(ax), int(bx)); return 0;
    case LMSG_FMCLIPPLAY:
    case LMSG_FMCLIPCHANGE:
    case LMSG_FMPAIRCHANGE: show_all(); return 0;
    case LMSG_FMFRAMECHANGE: frame_changed(); return 0;
    default: return 0;
    }
}

static int open_or_leave(int on, uint32_t)
{
    fmem_drop();
    pl = {};
    if (!on) {
        subscribe("remove");
        return 0;
    }
    subscribe("add");
    fmem_read_outputs("Output Status");
    fmem_read_outputs("Play");
    show_all();
    return 0;
}

const PC_TBL pc_fmem_clipstill_play = {.proc_func = proc, .create_func = open_or_leave};
