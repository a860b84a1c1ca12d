// The self test of the three links: how each stands, what went over it, and how soon the other
// side answers; and how far the initial read of each unit is. The binary link has no request that
// is always answered: its frames are counted.
#include "a_ls.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "text.h"
#include <SDL.h>
#include <algorithm>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr uint32_t ANSWER_MS = 3000; // no answer after that
constexpr int REPEAT_MS = 1000;
constexpr char TEXT_PING[] = "Engineering Setup@System@Format@4K Mode";
constexpr char HUB_PING[] = "CS*.ClipStoreInfo:CAPACITY:";
constexpr char HUB_ANSWER[] = ".ClipStoreInfo";

enum : int {
    COLUMN_LINK,
    COLUMN_ADDRESS,
    COLUMN_STATE,
    COLUMN_CONNECTS,
    COLUMN_SENT,
    COLUMN_RECEIVED,
    COLUMN_WAITING,
    COLUMN_ANSWER,
    COLUMNS
};
enum : int { CELLS_NORMAL = 0, CELLS_GREY = 1, CELLS_RED = 2 };

constexpr int UNIT_LIST = 2;
constexpr int UNITS = int(std::size(GL_ProcStatus));
constexpr const char* unit_names[UNITS] = {"Control server", "Processor 1", "Processor 2",
                                           "Processor 3",    "Processor 4", "Processor 5",
                                           "Processor 6"};
constexpr const char* link_names[NET_LINKS] = {"Text", "Binary", "Status hub"};

enum PingState { PING_IDLE, PING_ASKED, PING_ANSWERED, PING_LOST };
struct Ping {
    PingState state = PING_IDLE;
    uint32_t asked = 0; // SDL_GetTicks
    int ms = 0;
};
} // namespace

static struct {
    Ping ping[NET_LINKS];
    bool repeats = false;
    int repeat_ms = 0; // until the next ping
    int wait_ms = 0;   // until the lists are looked at
    char cell[NET_LINKS][COLUMNS][ENG_CELL];
    char read[UNITS][ENG_CELL];
} el; // valid from create(1) to create(0)

// --- Ping ---

static void ping(NetLink link)
{
    if (!Net_State(link).is_up)
        return;
    if (link == NET_LINK_TEXT)
        Net_SendCommandFormat("read %s", TEXT_PING);
    else if (link == NET_LINK_HUB)
        Net_SendSHPCommandFormat("Read#%s", HUB_PING);
    else
        return;
    el.ping[link] = {PING_ASKED, SDL_GetTicks(), 0};
}

static void ping_all()
{
    for (int link = 0; link < NET_LINKS; link++)
        ping(NetLink(link));
    el.repeat_ms = REPEAT_MS;
    el.wait_ms = 0;
}

static void answered(NetLink link)
{
    Ping& p = el.ping[link];
    if (p.state != PING_ASKED)
        return;
    p.state = PING_ANSWERED;
    p.ms = int(SDL_GetTicks() - p.asked);
    el.wait_ms = 0;
}

static void give_up_late_ones()
{
    for (Ping& p : el.ping)
        if (p.state == PING_ASKED && SDL_GetTicks() - p.asked > ANSWER_MS)
            p.state = PING_LOST;
}

// --- The lists ---

static void answer_text(NetLink link, char (&text)[ENG_CELL])
{
    const Ping& p = el.ping[link];
    if (link == NET_LINK_BIN)
        CopyText(text, "--");
    else if (p.state == PING_ANSWERED)
        PrintText(text, "%d ms", p.ms);
    else
        CopyText(text, p.state == PING_ASKED ? "waiting" : p.state == PING_LOST ? "none" : "");
}

static void address_text(NetLink link, char (&text)[ENG_CELL])
{
    if (link == NET_LINK_HUB)
        PrintText(text, "%s:%d", SYS_StatusHubAddress, SYS_StatusHubPort);
    else
        PrintText(text, "%s:%d", GL_ServerAddress,
                  link == NET_LINK_TEXT ? NET_TEXT_PORT : NET_BIN_PORT);
}

static void show_link(NetLink link)
{
    auto& cell = el.cell[link];
    const NetState s = Net_State(link);
    const bool is_used = link != NET_LINK_HUB || GL_ClipStoreSupportMode;
    CopyText(cell[COLUMN_LINK], link_names[link]);
    address_text(link, cell[COLUMN_ADDRESS]);
    CopyText(cell[COLUMN_STATE], s.is_up ? "Up" : is_used ? "Down" : "Not used");
    PrintText(cell[COLUMN_CONNECTS], "%u", unsigned(s.connects));
    PrintText(cell[COLUMN_SENT], "%u", unsigned(s.sent));
    PrintText(cell[COLUMN_RECEIVED], "%u", unsigned(s.received));
    PrintText(cell[COLUMN_WAITING], "%d", s.waiting);
    answer_text(link, cell[COLUMN_ANSWER]);
    for (int column = 0; column < COLUMNS; column++)
        LS_SetData(ENG_LIST, link, column, cell[column]);
    LS_SetStatus(ENG_LIST, link, COLUMN_STATE,
                 s.is_up   ? CELLS_NORMAL
                 : is_used ? CELLS_RED
                           : CELLS_GREY);
    LS_SetStatus(ENG_LIST, link, COLUMN_ANSWER,
                 el.ping[link].state == PING_LOST ? CELLS_RED : CELLS_NORMAL);
}

static void show_unit(int n)
{
    const bool is_up = GL_ProcStatus[n] == 1;
    LS_SetData(UNIT_LIST, n, 0, unit_names[n]);
    LS_SetData(UNIT_LIST, n, 1, is_up ? "Up" : "--");
    LS_SetData(UNIT_LIST, n, 2, GL_InitReadStatus[n] ? "Reading" : "Idle");
    LS_SetStatus(UNIT_LIST, n, 1, is_up ? CELLS_NORMAL : CELLS_GREY);
}

static void show()
{
    for (int link = 0; link < NET_LINKS; link++)
        show_link(NetLink(link));
    for (int n = 0; n < UNITS; n++)
        show_unit(n);
    LS_SetNData(ENG_LIST, NET_LINKS);
    LS_SetNData(UNIT_LIST, UNITS);
    LS_RedrawData(ENG_LIST);
    LS_RedrawData(UNIT_LIST);
}

// --- The page ---

static int links_button(const char* path)
{
    if (Same(path, ENG_LINK "Ping"))
        ping_all();
    else if (Same(path, ENG_LINK "Repeat")) {
        el.repeats = !el.repeats;
        el.repeat_ms = 0;
        Eng_Mirror(ENG_LINK "Repeat", Bool(el.repeats));
    }
    return 0;
}

static int links_redraw(int elapsed_ms)
{
    give_up_late_ones();
    el.repeat_ms -= elapsed_ms;
    if (el.repeats && el.repeat_ms <= 0)
        ping_all();
    el.wait_ms -= elapsed_ms;
    if (el.wait_ms > 0)
        return 0;
    el.wait_ms = ENG_REFRESH;
    show();
    return 0;
}

static int links_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return links_redraw(int(ax));
    case MSG_TALLY:
        if (Same(Text(ax), TEXT_PING))
            answered(NET_LINK_TEXT);
        return 0;
    case MSG_SHPTALLY:
        if (StrIStr(Text(bx), HUB_ANSWER))
            answered(NET_LINK_HUB);
        return 0;
    case LMSG_BTNSEL: return links_button(Text(ax));
    default: return 0;
    }
}

static int links_create(int on, uint32_t)
{
    el = {};
    if (!on)
        return 1;
    Eng_Mirror(ENG_LINK "Repeat", "false");
    ping_all();
    show();
    return 0;
}

const PC_TBL pc_eng_links = {links_proc, links_create};
