// The clips that start with a snapshot of a user region: one row a frame-memory sub region, with
// what the register's clip event says. Only the automatic play is switched here; a clip is put into
// an event where it is recorded.
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "message.h"
#include "netio.h"
#include "pc_register.h"
#include "pc_snapshot.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

#define OUTPUT_STATUS "Frame Mem 2@Clip/Still@Output Status@FM"
#define AUTO_PLAY "LOCAL@Snapshot@Attribute@Frame Memory@Auto Play"

namespace
{
constexpr int LIST = 1;
constexpr int FONT_HEAD = 3;
constexpr Rect HEAD = {100, 372, 560, 392};
constexpr int HOURS = 4; // down to frames
constexpr int SUB_REGIONS = int(ClipEventSubREG.size());
enum : int { COL_REGION, COL_AUTO, COL_NAME, COL_LOOP, COL_START, COL_STOP, COL_OUTPUT };
enum : int { CELL_USUAL = 0, CELL_EMPTY = 1 };

// What an output of the frame memory does, by the server's number.
constexpr const char* output_status[] = {"", "Black", "Through", "Freeze", "Rec", "Play"};

struct ClipRow {
    char start[16] = "";
    char stop[16] = "";
    const char* output = "";
};
} // namespace

static struct {
    bool is_open = false;
    int user = 0; // from 0
    int no = 0;
    int cursor = -1; // as looked at last
    bool head_redraw = false;
    ClipRow row[SUB_REGIONS];
} cp; // valid from create(1) to create(0)

// --- The list ---

static void show_row(int sub)
{
    const int user = cp.user, no = cp.no;
    const bool is_event = ClipEvent_Tally_Event(user, sub, no) != 0;
    ClipRow& row = cp.row[sub];
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
    (void)LS_SetHStatus(LIST, sub, is_event ? CELL_USUAL : CELL_EMPTY);
    (void)LS_RedrawData(LIST);
}

static bool plays(int sub)
{
    return ClipEvent_Tally_AutoPlay(cp.user, sub, cp.no) != 0;
}

// --- The key: all selected rows take the opposite of the row at the cursor ---

static int autoplay_sel()
{
    const int cursor = std::max(LS_GetNowLine(LIST), 0);
    const bool on = !plays(cursor);
    if (Register_Lock_Snapshot(SS_REGION_USER1 + cp.user, cp.no))
        return 0;
    for (int i = 0, sub; (sub = LS_GetSelected(LIST, i)) >= 0; i++)
        if (ClipEvent_Tally_Event(cp.user, sub, cp.no))
            Net_SendCommandFormat("put Snapshot@Snapshot@Clip Event@User%d@FM%d@AutoPlay#%d,%s",
                                  cp.user + 1, sub + 1, cp.no + 1, on ? "ON" : "OFF");
    return 0;
}

// --- The outputs ---

static void follow_outputs(const char* verb)
{
    for (int sub = 0; sub < SUB_REGIONS; sub++)
        Net_SendCommandFormat("%s " OUTPUT_STATUS "%d", verb, sub + 1);
}

static int take_tally(const char* path, const char* value)
{
    constexpr int HEAD_LENGTH = sizeof OUTPUT_STATUS - 1;
    if (!BeginsWith(path, OUTPUT_STATUS))
        return 0;
    const int sub = IndexFrom1(path + HEAD_LENGTH, SUB_REGIONS);
    const int status = Index(value, int(std::size(output_status)));
    if (sub < 0)
        return 0;
    cp.row[sub].output = output_status[std::max(status, 0)];
    show_row(sub);
    return 0;
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
    const int cursor = std::clamp(LS_GetNowLine(LIST), 0, SUB_REGIONS - 1);
    if (cursor != cp.cursor) {
        cp.cursor = cursor;
        (void)BT_SetStatus(BTN_CLIP_AUTO_PLAY, plays(cursor) ? BT_ON : BT_OFF);
    }
    if (cp.head_redraw)
        draw_head();
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
    case LMSG_REGISTER: return event_changed(int(ax), int(bx), int(cx), int(dx));
    default: return 0;
    }
}

static int clip_create(int on, uint32_t)
{
    if (!on) {
        if (cp.is_open) {
            follow_outputs("remove");
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
    follow_outputs("add");
    for (int sub = 0; sub < SUB_REGIONS; sub++)
        show_row(sub);
    (void)LS_SetNData(LIST, SUB_REGIONS);
    (void)LS_SetNowLine(LIST, 0);
    return 0;
}

const PC_TBL pc_snapshot_clip = {clip_proc, clip_create};
