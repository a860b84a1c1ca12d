// The status hub link: a text link of its own, present only in clip store mode, fed slowly, and
// reconnected rarely.
#include "command.h"
#include "device.h"
#include "global.h"
#include "log.h"
#include "netio_private.h"
#include "text.h"
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "safeguards.h"

static constexpr int HUB_PACE_MS = 100;
// Calls without an attempt after one that failed: about a minute of passes.
static constexpr int HUB_BACK_OFF = 6000;

static int SockFD_SHP = 0;
static NetDial hub_dial = {.owner = READY_HUB};
static NetQueue SHPSendCommandQueue;
static char RBuf_SHP[1024]; // always terminated
static char RCmd_SHP[4096];
static uint32_t received_rows = 0;
static char SCmd_SHP[CMD_SIZE];
static char FCmd2[CMD_SIZE];
static int hub_back_off = 0;
static int hub_pace_ms = 0;      // until the next line may go
static bool is_hub_lost = false; // fallen, and nobody has asked yet

static_assert(sizeof RCmd_SHP >= NET_LINE_MAX);

// Any control byte that is not beyond 15, and the one at the end of the table.
bool net_is_hub_end(unsigned char c)
{
    return (c >= 1 && c <= 15) || c == 127;
}

static bool hub_connect()
{
    if (!GL_ClipStoreSupportMode)
        return false;
    if (hub_back_off > 0) {
        hub_back_off--;
        return false;
    }
    if (net_may_begin(hub_dial))
        Log_Output(LOG_TRACE, MOD_LINK, "create_inet_connection_shp(%s:%d)", SYS_StatusHubAddress,
                   SYS_StatusHubPort);
    const int state = net_dial(&hub_dial, SYS_StatusHubAddress, SYS_StatusHubPort, &SockFD_SHP);
    if (state == NET_FAILED)
        hub_back_off = HUB_BACK_OFF;
    if (state < 1)
        return false;
    GL_NetReConnect_SHP = 1;
    net_queue_restart(&SHPSendCommandQueue);
    net_drop_open_line(RBuf_SHP, net_is_hub_end);
    return true;
}

void net_hub_init()
{
    net_close(&SockFD_SHP);
    net_hang_up(&hub_dial);
    RBuf_SHP[0] = '\0';
    hub_back_off = 0;
    hub_pace_ms = 0;
    is_hub_lost = false;
    (void)hub_connect();
}

static void send_shpcommand(const char* cmd)
{
    CopyText(SCmd_SHP, cmd);
    net_end_line(SCmd_SHP);
    if (!net_queue_append(&SHPSendCommandQueue, SCmd_SHP, int(strlen(SCmd_SHP))))
        Log_Output(LOG_TRACE, MOD_LINK, "Net_SendSHCommand:alloc error !\n");
}

static bool hub_is_subscription(const char* verb)
{
    return strcmp(verb, "Listen") == 0 || strcmp(verb, "Unlisten") == 0 ||
           strcmp(verb, "InitRead") == 0;
}

// Unit of the i-th switcher of this panel, -1 when there is none.
static int hub_my_switcher(int i)
{
    if (i >= DEVICE_MAX || !DEV_MySwr[i])
        return -1;
    return Device_UnitNumber(*DEV_MySwr[i]);
}

// A request to "CS*." means the clip store of this panel's own switcher; with two switchers side by
// side, each of theirs. A subscription names its unit itself.
int Net_SendSHPCommand(const char* cmd)
{
    if (!cmd)
        return 0;
    char verb[CMD_SIZE];
    CopyText(verb, cmd);
    char* rest = FindVarPointer(verb);
    if (rest > verb && *(rest - 1) == '#')
        rest[-1] = '\0';
    if (hub_is_subscription(verb) || !BeginsWith(rest, "CS*.")) {
        send_shpcommand(cmd);
        return 0;
    }

    const int copies = SYS_DualSimul ? SYS_MySwrMax : 1;
    for (int i = 0; i < copies; i++) {
        const int unit = hub_my_switcher(i);
        if (unit < 0) {
            Log_Output(LOG_LINK, MOD_LINK, "no switcher for \"%s\"", cmd);
            break;
        }
        char line[CMD_SIZE];
        PrintText(line, "%s#CS%d.%s", verb, unit, rest + 4);
        send_shpcommand(line);
    }
    return 0;
}

int Net_SendSHPCommandFormat(const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    vsnprintf(FCmd2, sizeof FCmd2, format, ap);
    va_end(ap);
    return Net_SendSHPCommand(FCmd2);
}

static int hub_send_first()
{
    const ClientSendQueue_t& item = *SHPSendCommandQueue.first;
    const int sent = net_send(SockFD_SHP, item);
    const int error = errno;
    if (sent == NET_NO_ROOM)
        return 0;
    net_log_sent(item);
    if (sent < 1) {
        Log_Output(LOG_LINK, MOD_LINK, "send_shp_command: ERROR on send() returns [%d] err=%d.",
                   sent, error);
        return -1;
    }
    (void)net_queue_sent(&SHPSendCommandQueue, sent,
                         "send_shp_command"); // a rest waits for its turn
    return 0;
}

int Net_SendSHPCommandQueue(int elapsed_ms)
{
    // In an installation without a clip store there will never be a hub that takes them.
    while (!GL_ClipStoreSupportMode && SHPSendCommandQueue.first)
        net_queue_remove(&SHPSendCommandQueue);
    if (!SHPSendCommandQueue.first) {
        hub_pace_ms = 0; // the next line goes at once
        return 0;
    }
    hub_pace_ms -= elapsed_ms;
    if (hub_pace_ms > 0)
        return 0;
    hub_pace_ms = HUB_PACE_MS;
    if (SockFD_SHP == 0) {
        (void)hub_connect();
        return 0;
    }
    return hub_send_first();
}

static void hub_fill()
{
    if (strlen(RBuf_SHP) == sizeof RBuf_SHP - 1) {
        Log_Output(LOG_LINK, MOD_LINK, "Net_ReceiveSHCommand() Buffer Full!!");
        return;
    }
    if (SockFD_SHP == 0 && !hub_connect())
        return;
    const size_t used = strlen(RBuf_SHP);
    const int n =
        net_read(READY_HUB, &SockFD_SHP, RBuf_SHP + used, int(sizeof RBuf_SHP - 1 - used));
    RBuf_SHP[used + size_t(n)] = '\0';
    is_hub_lost |= SockFD_SHP == 0;
}

int Net_TakeHubLoss()
{
    const bool was_lost = is_hub_lost;
    is_hub_lost = false;
    return was_lost;
}

// An empty line (an end at the front of the buffer) is dropped and ends this pass's reading.
char* Net_ReceiveSHPCommand()
{
    const bool has_none =
        SockFD_SHP > 0 ? Ready_IsQuiet(READY_HUB) : !GL_ClipStoreSupportMode; // at rest
    if (!RBuf_SHP[0] && has_none)
        return nullptr;
    if (!net_has_line(RBuf_SHP, net_is_hub_end))
        hub_fill();
    const int length = net_take_line(RBuf_SHP, RCmd_SHP, net_is_hub_end);
    const bool is_full = strlen(RBuf_SHP) == sizeof RBuf_SHP - 1;
    // A full buffer without an end would never be read again.
    if (length == NET_LINE_TOO_LONG || (length == NET_LINE_OPEN && is_full)) {
        Log_Output(LOG_ALWAYS, MOD_LINK, "Command is too long!!  Received data is lost.");
        RBuf_SHP[0] = '\0';
        return nullptr;
    }
    if (length < 1)
        return nullptr;
    if (GL_ClipStoreDebugMode)
        Log_Output(LOG_TRACE, MOD_LINK, "<<==[%s]", RCmd_SHP);
    received_rows++;
    return RCmd_SHP;
}

NetState net_hub_state()
{
    return net_state_of(SockFD_SHP, SHPSendCommandQueue, received_rows);
}

int Net_TakeQueuedSHP(char* text, int size)
{
    if (!SHPSendCommandQueue.first)
        return 0;
    ktr_strncpy(text, reinterpret_cast<const char*>(SHPSendCommandQueue.first->data_array),
                size_t(size));
    text[strcspn(text, "\n")] = '\0';
    net_queue_remove(&SHPSendCommandQueue);
    return 1;
}

int Get_SHPTargetId(const char* table)
{
    if (!table)
        return -1;
    char text[CMD_SIZE];
    CopyText(text, table);
    const char* unit = strchr(text, '#');
    unit = unit ? unit + 1 : text;
    for (const char* letters : {"CS", "SWR", "PNL"}) {
        if (BeginsWith(unit, letters))
            return int(strtol(unit + strlen(letters), nullptr, 10));
    }
    return -1;
}

int is_refCS_command(const char* table)
{
    if (!table || strlen(table) < 3 || SYS_MySwrMax < 1 || !BeginsWith(table, "CS"))
        return 0;
    const int unit = hub_my_switcher(0);
    return unit >= 0 && Get_SHPTargetId(table) == unit;
}
