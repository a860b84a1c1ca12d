// The clips that start with a snapshot of a user region: one row a frame-memory sub region, with
// what the register's clip event says; below the list the clip of the row at the cursor and what
// its output shows now. Only the automatic play is switched here; a clip is put into an event where
// it is recorded. Outputs that the setup gives to another user are grey and stay as they are.
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "fmctrl3.h"
#include "message.h"
#include "netio.h"
#include "pc_register.h"
#include "pc_register_list.h"
#include "pc_snapshot.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define OUTPUT_STATUS "Frame Mem 2@Clip/Still@Output Status@FM"
#define USER_CONFIG "Engineering Setup@Switcher@Config@User1-8 Config@User"
#define AUTO_PLAY "LOCAL@Snapshot@Attribute@Frame Memory@Auto Play"

namespace
{
constexpr int LIST = 1;
constexpr int FONT_HEAD = 3;
constexpr int FONT_DETAIL = 2;
constexpr Rect HEAD = {100, 368, 560, 386};
constexpr Rect DETAIL = {100, 387, 566, 428};
constexpr unsigned DETAIL_LABEL = 0x9FD8DC;
constexpr int HOURS = 4; // down to frames
constexpr int SUB_REGIONS = int(ClipEventSubREG.size());
enum : int { COL_REGION, COL_AUTO, COL_NAME, COL_LOOP, COL_START, COL_STOP, COL_OUTPUT };
enum : int { CELL_USUAL = 0, CELL_EMPTY = 1 };

// What an output of the frame memory shows, by the server's number. A clip or still has its file
// behind the number.
constexpr const char* output_status[] = {"Black", "Through", ""};
constexpr int OUTPUT_FILE = 2;
constexpr char FILE_END[] = ".SFH";

struct CE_FMCLIP {
    char name[ELEMENT_NAME_SIZE] = ""; // "" none
    bool pair = false;
    int dur = 0; // frames, 0 not known
    char file[ELEMENT_PATH_SIZE] = "";
    bool loop = false;
};
// Of the row at the cursor: the clip of the event, and what the output shows.
struct CE_FMCLIP_INFO {
    CE_FMCLIP clip[2];
};

struct CE_FMUserReg {
    char start[16] = "";
    char stop[16] = "";
    char output[ELEMENT_NAME_SIZE] = "";
    char file[ELEMENT_PATH_SIZE] = ""; // that the output shows
    bool is_users = true;              // false: the setup gives it to another user
};
} // namespace

static struct {
    bool is_open = false;
    int user = 0; // from 0
    int no = 0;
    int cursor = -1;          // as looked at last
    bool head_redraw = false; // with all that stands below the list
    CE_FMUserReg row[SUB_REGIONS];
} cp; // valid from create(1) to create(0)

// --- The list ---

static void show_row(int sub)
{
    const int user = cp.user, no = cp.no;
    const bool is_event = ClipEvent_Tally_Event(user, sub, no) != 0;
    CE_FMUserReg& row = cp.row[sub];
    *row.start = *row.stop = '\0';
    if (is_event) {
        CopyText(row.start, Frame2TC(ClipEvent_Tally_Start_TC(user, sub, no), HOURS));
        CopyText(row.stop, Frame2TC(ClipEvent_Tally_Stop_TC(user, sub, no), HOURS));
    }
    (void)LS_SetData(LIST, sub, COL_REGION, ClipEventSubREG[size_t(sub)]);
    (void)LS_SetData(LIST, sub, COL_AUTO, ClipEvent_Tally_AutoPlay(user, sub, no) ? "On" : "");
    (void)LS_SetData(LIST, sub, COL_NAME, is_event ? ClipEvent_Tally_Name(user, sub, no) : "");
    (void)LS_SetData(LIST, sub, COL_LOOP,
                     is_event && ClipEvent_Tally_Loop(user, sub, no) ? "On" : "");
    (void)LS_SetData(LIST, sub, COL_START, row.start);
    (void)LS_SetData(LIST, sub, COL_STOP, row.stop);
    (void)LS_SetData(LIST, sub, COL_OUTPUT, row.output);
    (void)LS_SetHStatus(LIST, sub, is_event && row.is_users ? CELL_USUAL : CELL_EMPTY);
    (void)LS_RedrawData(LIST);
}

static bool plays(int sub)
{
    return ClipEvent_Tally_AutoPlay(cp.user, sub, cp.no) != 0;
}

// --- The key: all selected rows take the opposite of the row at the cursor ---

static int autoplay_sel()
{
    const bool on = !plays(LS_GetNowLine(LIST));
    if (Register_Lock_Snapshot(SS_REGION_USER1 + cp.user, cp.no))
        return 0;
    for (int i = 0, sub; (sub = LS_GetSelected(LIST, i)) >= 0; i++)
        if (ClipEvent_Tally_Event(cp.user, sub, cp.no) && cp.row[sub].is_users)
            Net_SendCommandFormat("put Snapshot@Snapshot@Clip Event@User%d@FM%d@AutoPlay#%d,%s",
                                  cp.user + 1, sub + 1, cp.no + 1, on ? "ON" : "OFF");
    return 0;
}

// --- The outputs ---

static void follow(const char* verb)
{
    Net_SendCommandFormat("%s " USER_CONFIG "%d", verb, cp.user + 1);
    for (int sub = 0; sub < SUB_REGIONS; sub++)
        Net_SendCommandFormat("%s " OUTPUT_STATUS "%d", verb, sub + 1);
}

static const char* name_of_file(const char* file)
{
    const char* const slash = strrchr(file, '/');
    return slash ? slash + 1 : file;
}

// "2,/NEWS/OPENING.SFH": the name is the file's without its end.
static void output_told(int sub, const char* value)
{
    CE_FMUserReg& row = cp.row[sub];
    Parts p;
    const int parts = SplitValue(p, value, 2);
    const int status = parts > 0 ? Index(p.v[0], int(std::size(output_status))) : -1;
    if (status < 0)
        return;
    CopyText(row.file, status == OUTPUT_FILE && parts == 2 ? p.v[1] : "");
    if (char* const end = strstr(row.file, FILE_END))
        *end = '\0';
    CopyText(row.output, *row.file ? name_of_file(row.file) : output_status[status]);
    cp.head_redraw = true;
    show_row(sub);
}

// "Aux1,FM1,FM2": what the setup has given to the user. A list without any output says nothing
// about them.
static void users_told(const char* list)
{
    unsigned outputs = 0;
    for (const char* at = list; at; at = strchr(at, ',') ? strchr(at, ',') + 1 : nullptr) {
        at += *at == ' ';
        const int sub = BeginsWith(at, "FM") ? IndexFrom1(at + 2, SUB_REGIONS) : -1;
        if (sub >= 0)
            outputs |= 1u << sub;
    }
    for (int sub = 0; sub < SUB_REGIONS; sub++) {
        cp.row[sub].is_users = outputs == 0 || (outputs >> sub & 1) != 0;
        show_row(sub);
    }
}

static int take_tally(const char* path, const char* value)
{
    if (BeginsWith(path, USER_CONFIG) &&
        IndexFrom1(path + sizeof USER_CONFIG - 1, int(ClipEventCmd.size())) == cp.user)
        users_told(value);
    const int sub = BeginsWith(path, OUTPUT_STATUS)
                        ? IndexFrom1(path + sizeof OUTPUT_STATUS - 1, SUB_REGIONS)
                        : -1;
    if (sub >= 0)
        output_told(sub, value);
    return 0;
}

// --- The clips of the row at the cursor ---

// What the clip store says of it. An event names the clip alone; then only a clip outside all
// folders is found.
static void look_up(CE_FMCLIP& clip, const char* file)
{
    char path[ELEMENT_PATH_SIZE];
    PrintText(path, "%s%s", *file == '/' ? "" : "/", file);
    const ELEMENT_LIST* const found = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, path);
    if (!found)
        return;
    clip.pair = found->element.is_pair != 0;
    clip.dur = found->element.duration;
    CopyText(clip.file, path);
}

static CE_FMCLIP_INFO clips_at(int sub)
{
    CE_FMCLIP_INFO info;
    CE_FMCLIP& event = info.clip[0];
    CE_FMCLIP& shown = info.clip[1];
    if (ClipEvent_Tally_Event(cp.user, sub, cp.no)) {
        CopyText(event.name, ClipEvent_Tally_Name(cp.user, sub, cp.no));
        look_up(event, event.name);
        event.dur = std::max(ClipEvent_Tally_Stop_TC(cp.user, sub, cp.no) -
                                 ClipEvent_Tally_Start_TC(cp.user, sub, cp.no),
                             0); // of what it plays
        event.loop = ClipEvent_Tally_Loop(cp.user, sub, cp.no) != 0;
    }
    CopyText(shown.name, cp.row[sub].output);
    if (*cp.row[sub].file)
        look_up(shown, cp.row[sub].file);
    return info;
}

static void draw_clip(const char* label, const CE_FMCLIP& clip, int y)
{
    constexpr int NAME_X = 48, DUR_X = 170, PAIR_X = 244, LOOP_X = 276, FILE_X = 312;
    const int x = DETAIL.x1 + 8;
    TDL_SymbolS(x, y, label, FONT_DETAIL, DETAIL_LABEL);
    TDL_SymbolWS(x + NAME_X, y, DUR_X - NAME_X - 8, *clip.name ? clip.name : "--", FONT_DETAIL,
                 WHITE);
    if (clip.dur > 0)
        TDL_SymbolS(x + DUR_X, y, Frame2TC(clip.dur, HOURS), FONT_DETAIL, WHITE);
    TDL_SymbolS(x + PAIR_X, y, clip.pair ? "Pair" : "", FONT_DETAIL, WHITE);
    TDL_SymbolS(x + LOOP_X, y, clip.loop ? "Loop" : "", FONT_DETAIL, WHITE);
    TDL_SymbolWS(x + FILE_X, y, DETAIL.x2 - 4 - x - FILE_X, clip.file, FONT_DETAIL, WHITE);
}

static void draw_detail()
{
    const CE_FMCLIP_INFO info = clips_at(cp.cursor);
    RegisterStrip_DrawGround(DETAIL);
    draw_clip("Event", info.clip[0], DETAIL.y1 + 5);
    draw_clip("Output", info.clip[1], DETAIL.y1 + 22);
    TDL_UpdateRect(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2);
}

// --- Messages ---

static void draw_head()
{
    char text[64];
    TDL_FillRectS(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2, BLACK);
    PrintText(text, "User %d   %d  %s", cp.user + 1, cp.no + 1,
              Register_Name_Snapshot(SS_REGION_USER1 + cp.user, cp.no));
    TDL_SymbolS(HEAD.x1 + 4, HEAD.y1 + 4, text, FONT_HEAD, WHITE);
    TDL_UpdateRect(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2);
}

static int clip_redraw()
{
    const int cursor = LS_GetNowLine(LIST); // all rows are there while the page is
    if (cursor != cp.cursor) {
        cp.cursor = cursor;
        cp.head_redraw = true;
        (void)BT_SetStatus(BTN_CLIP_AUTO_PLAY, plays(cursor) ? BT_ON : BT_OFF);
    }
    if (cp.head_redraw) {
        draw_head();
        draw_detail();
    }
    cp.head_redraw = false;
    return 0;
}

static int event_changed(int kind, int user, int sub, int no)
{
    if (kind != REGISTER_CLIP_EVENT || user != cp.user || no != cp.no)
        return 0;
    show_row(sub);
    cp.cursor = -1;
    return 0;
}

static int clip_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (!cp.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return clip_redraw();
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return Same(Text(ax), AUTO_PLAY) ? autoplay_sel() : 0;
    case LMSG_FMCTRL3CHANGE: cp.head_redraw = true; return 0;
    case LMSG_REGISTER: return event_changed(int(ax), int(bx), int(cx), int(dx));
    default: return 0;
    }
}

static int clip_create(int on, uint32_t)
{
    if (!on) {
        if (cp.is_open) {
            follow("remove");
            Register_StatusReport(0);
        }
        cp.is_open = false;
        return 0;
    }
    const RegisterMemory& m = RegisterPage_Memory(REGKIND_SNAPSHOT);
    const bool is_user = m.region1 >= SS_REGION_USER1 && m.region1 <= SS_REGION_USER8;
    cp = {.is_open = true, .user = is_user ? m.region1 - SS_REGION_USER1 : 0};
    cp.no = std::clamp(m.sel1, 0, REGISTERS - 1);
    cp.head_redraw = true;
    Register_StatusReport(1);
    follow("add");
    for (int sub = 0; sub < SUB_REGIONS; sub++)
        show_row(sub);
    (void)LS_SetNData(LIST, SUB_REGIONS);
    (void)LS_SetNowLine(LIST, 0);
    return 0;
}

const PC_TBL pc_snapshot_clip = {clip_proc, clip_create};
