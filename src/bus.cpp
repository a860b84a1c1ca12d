#include "bus.h"
#include "a_kf.h"
#include "autoload.h"
#include "bin_frame.h"
#include "command.h"
#include "file.h"
#include "fmctrl.h"
#include "fmctrl3.h"
#include "global.h"
#include "held.h"
#include "info.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_family.h"
#include "pane.h"
#include "pc_file_all.h"
#include "pc_macro_online_edit.h"
#include "register.h"
#include "scrollbar.h"
#include "text.h"
#include "window.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

// As BUS_TEXT_LINES_A_PASS, of the other links.
constexpr int BIN_FRAMES_A_PASS = 257;
constexpr int SHP_LINES_A_PASS = 129;

constexpr uint32_t INTERNAL_BITS = 0xF0000000;

static int MsgMask[BUS_OBJECT_TYPES]; // message bits withheld, by object type

// --- Names for the log ---

namespace
{
struct MessageName {
    int msg;
    const char* name;
};
} // namespace

#define NAMED(msg)                                                                                 \
    {                                                                                              \
        msg, #msg                                                                                  \
    }
static constexpr MessageName message_names[] = {
    NAMED(LMSG_LISTSEL),     NAMED(LMSG_BTNSEL),       NAMED(LMSG_KNOBVAR),
    NAMED(LMSG_KNOBFVAR),    NAMED(LMSG_PULLDOWNSEL),  NAMED(LMSG_SBSEL),
    NAMED(LMSG_LISTAREASEL), NAMED(LMSG_REGIONSTATUS), NAMED(LMSG_REGSELCHANGE),
    NAMED(LMSG_SELECTBOX),   NAMED(LMSG_PATHSELSEL),   NAMED(LMSG_LISTFLASH),
    NAMED(LMSG_KNOBUPPER),   NAMED(LMSG_KNOBLOWER),    NAMED(LMSG_KNOBCREATE),
    NAMED(LMSG_KNOBDEFAULT), NAMED(LMSG_FMPAIRCHANGE), NAMED(LMSG_FMSELCHANGE),
    NAMED(LMSG_FMOUTCHANGE), NAMED(LMSG_FMREGSEL),     NAMED(LMSG_FMCTRLCHANGE),
    NAMED(LMSG_PANEBTNSEL),  NAMED(LMSG_PANEQUIT),     NAMED(LMSG_PANEREGION),
    NAMED(LMSG_FILESTATUS),  NAMED(LMSG_REGISTER),     NAMED(LMSG_DMEREFCHANGE),
    NAMED(LMSG_KNOBDIFF),
};
#undef NAMED

constexpr bool NamesAreInOrder()
{
    for (size_t i = 0; i < std::size(message_names); i++)
        if ((message_names[i].msg & 0xFF) != int(i) + 1)
            return false;
    return std::size(message_names) == 28;
}
static_assert(NamesAreInOrder());

static void bus_log_internal(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    const size_t number = msg & 0xFF;
    if (number < 1 || number > std::size(message_names))
        return;
    Log_Output(LOG_TRACE, MOD_PAGE, "LMSG: %s ax=%d, bx=%d, cx=%d, dx=%d",
               message_names[number - 1].name, int(ax), int(bx), int(cx), int(dx));
}

// --- Delivery ---

static bool bus_is_event(int msg)
{
    return (uint32_t(msg) & INTERNAL_BITS) == 0;
}

static bool bus_is_masked(int type, int msg)
{
    return bus_is_event(msg) && (msg & MsgMask[type]) != 0;
}

static bool bus_find_takes_input(int msg)
{
    switch (msg) {
    case MSG_PRESS:
    case MSG_RELEASE:
    case MSG_DRAG:
    case MSG_WHEELUP:
    case MSG_WHEELDOWN: return GL_FM_Find_Window != 0 || Pane_Exist(GL_FM_Find_PaneID) != 0;
    default: return false;
    }
}

static void bus_walk_objects(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (!Page)
        return;
    for (const _pageobject& object : Page->obj) {
        if (object.type <= OBJ_END)
            return;
        const PageFamily* family = PageFamily_Of(object.type);
        if (!family || bus_is_masked(object.type, msg))
            continue;
        if (family->proc(msg, ax, bx, cx, dx) && !family->is_watcher)
            return;
    }
}

// The release that the page is owed has gone, or will go, to somebody else. What stands over the
// page has no part in this one, and no mask keeps it.
static void bus_let_go()
{
    constexpr int NOWHERE = -1;
    (void)ScrollBarProc(MSG_RELEASE, NOWHERE, NOWHERE, 0, 0);
    if (!Page)
        return;
    for (const _pageobject& object : Page->obj) {
        if (object.type <= OBJ_END)
            return;
        if (const PageFamily* family = PageFamily_Of(object.type))
            (void)family->proc(MSG_RELEASE, NOWHERE, NOWHERE, 0, 0);
    }
}

int SendMessage(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (Held_IsLost(msg))
        bus_let_go();
    if (!bus_is_event(msg))
        bus_log_internal(msg, ax, bx, cx, dx);
    if (msg == MSG_TALLY) {
        switch (InterpretTally(Text(ax), Text(bx), uint32_t(cx))) {
        case TallyRoute::Taken: return 1;
        case TallyRoute::Refused: return -1;
        case TallyRoute::Pass: break;
        }
    }

    RegisterProc(msg, ax, bx, cx, dx);
    FileProc(msg, ax, bx, cx, dx);
    FileAllProc(msg, ax, bx, cx, dx);
    FMCtrlProc(msg, ax, bx, cx, dx);
    FMCtrl3_Proc(msg, ax, bx, cx, dx);
    InfoProc(msg, ax, bx, cx, dx);

    if (PaneProc(msg, ax, bx, cx, dx))
        return 0;
    if (WindowProc(msg, ax, bx, cx, dx))
        return 0;
    // The scroll bars have no mask of their own: they follow the base area's.
    if (!bus_is_masked(OBJ_BA, msg))
        ScrollBarProc(msg, ax, bx, cx, dx);
    if (bus_find_takes_input(msg))
        return 0;
    bus_walk_objects(msg, ax, bx, cx, dx);
    return 0;
}

// Cut "path#value" in place and return the value. A text without '#' has no value, and the cut
// falls on its last character. That is meant: such lines lose it. The text must not be empty.
static char* bus_cut_value(char* text)
{
    char* value = FindVarPointer(text);
    value[-1] = '\0';
    return value;
}

int SendDummyTally(const char* text)
{
    if (!text)
        return -1;
    Log_Output(LOG_TRACE, MOD_GLOBAL, "LOCAL: %s", text);
    if (!*text)
        return 0;
    // On the stack: a handler of this tally may well play another one.
    char line[CMD_SIZE];
    CopyText(line, text);
    const char* value = bus_cut_value(line);
    SendMessage(MSG_TALLY, Arg(line), Arg(value), Hash(line), 0);
    return 0;
}

// --- Masks ---

void HackMessage(int type, int mask)
{
    if (type >= BUS_OBJECT_TYPES)
        return;
    for (int t = 0; t < BUS_OBJECT_TYPES; t++)
        if (type <= 0 || t == type)
            MsgMask[t] |= mask;
}

void UnHackMessage(int type)
{
    if (type >= BUS_OBJECT_TYPES)
        return;
    for (int t = 0; t < BUS_OBJECT_TYPES; t++)
        if (type <= 0 || t == type)
            MsgMask[t] = 0;
}

// --- The drain of the links ---

static void bus_drain_text()
{
    for (int i = 0; i < BUS_TEXT_LINES_A_PASS; i++) {
        char* path = Net_ReceiveCommand();
        if (!path)
            return;
        if (!*path)
            continue;
        const char* value = bus_cut_value(path);
        SendMessage(MSG_TALLY, Arg(path), Arg(value), Hash(path), 0);
    }
}

// The data are what came between head and trailer. The length bytes are not read a second time, the
// other way round: for many counts of keyframes that number is smaller than the data, and the end
// of an effect would be lost.
static void bus_drain_frames()
{
    constexpr int NO_DATA = FRAME_HEAD + FRAME_TRAILER;
    for (int i = 0; i < BIN_FRAMES_A_PASS; i++) {
        int length = 0;
        const unsigned char* frame = Net_ReceiveBinCommand(&length);
        if (!frame)
            return;
        if (length >= NO_DATA && frame[2] == BIN_TALLY)
            KF_Proc(MSG_BINTALLY, MsgArg(Frame_Id(frame)), Arg(frame + FRAME_HEAD),
                    length - NO_DATA, 0);
    }
}

// Of the hub's tables only the file tables of all units and this panel's own clip store are of
// interest.
static bool bus_shp_is_wanted(const char* table)
{
    if (BeginsWith(table, "SWR") || BeginsWith(table, "PNL"))
        return table[3] != '\0' && strcmp(table + 4, ".File") == 0;
    if (BeginsWith(table, "CS"))
        return (table[2] != '\0' && strcmp(table + 3, ".File") == 0) || is_refCS_command(table);
    return false;
}

static void bus_drain_shp()
{
    for (int i = 0; i < SHP_LINES_A_PASS; i++) {
        char* verb = Net_ReceiveSHPCommand();
        if (!verb)
            return;
        if (!*verb)
            continue;
        char* table = bus_cut_value(verb);
        char* row = nullptr;
        if (strcmp(verb, "Ready") != 0) {
            row = FindSHPRowIDPointer(table);
            if (row > table && row[-1] == ':')
                row[-1] = '\0'; // no row: the table name stays whole
        }
        if (!bus_shp_is_wanted(table))
            continue;
        SendMessage(MSG_SHPTALLY, Arg(verb), Arg(table), Hash(verb), Arg(row));
    }
}

void ReceiveCommand_Management()
{
    bus_drain_text();
    if (Net_TakeTextLoss()) {
        AutoLoad_LinkLost();
        FileAll_LinkLost();
        File_LinkLost();
        MacroOnline_LinkLost();
    }
    bus_drain_frames();
    bus_drain_shp();
    if (Net_TakeHubLoss()) {
        File_HubLost();
        FMCtrl3_HubLost();
    }
}
