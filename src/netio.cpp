// The text link.
#include "command.h"
#include "global.h"
#include "log.h"
#include "menu_macro.h"
#include "netio_private.h"
#include "page.h"
#include "text.h"
#include <SDL.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

// Keeps the screen alive while a subscription burst goes out.
static constexpr int TEXT_ITEMS_A_PASS = 33;

static int SockFD1 = 0;
static NetDial text_dial = {.owner = READY_TEXT};
static NetQueue SendCommandQueue;
static char RBuf[406];             // always terminated; a line must end within it
static bool is_lost = false;       // fallen, and nobody has asked yet
static uint32_t RBufFullSince = 0; // clock at which it had filled up, 0 while it has room
static constexpr uint32_t FULL_BUFFER_MS = 10000;
static char RCmd[NET_LINE_MAX];
static uint32_t received_lines = 0;
static char SCmd[CMD_SIZE];
static char FCmd[CMD_SIZE];

static bool text_is_end(unsigned char c)
{
    return c == '\r' || c == '\n';
}

static bool text_connect()
{
    if (net_connect_inet(&text_dial, NET_TEXT_PORT, &SockFD1) < 1)
        return false;
    net_queue_restart(&SendCommandQueue);
    net_drop_open_line(RBuf, text_is_end); // its end went down with the old connection
    return true;
}

static void net_sigpipe(int) {}

void Net_Init()
{
    struct sigaction action = {};
    // A write to a dead socket then fails instead of ending the process.
    action.sa_handler = net_sigpipe;
    sigaction(SIGPIPE, &action, nullptr);

    net_close(&SockFD1);
    net_hang_up(&text_dial);
    RBuf[0] = '\0';
    (void)text_connect(); // goes on in every pass
    net_bin_init();
    net_hub_init();
}

// While a store waits for a freeze, note that one has been asked for, whoever did.
static void text_note_freeze(const char* cmd)
{
    if (!GL_FreezeStore)
        return;
    if (BeginsWith(cmd, "put Frame Mem@Edit@Freeze@Freeze@Frame@PROC") ||
        BeginsWith(cmd, "put Frame Mem@Edit@Freeze@Freeze@Field@PROC"))
        GL_FreezeStore_Exec = 1;
}

int Net_SendCommand(const char* cmd)
{
    if (!cmd)
        return 0;
    CopyText(SCmd, cmd);
    net_end_line(SCmd);
    if (net_queue_append(&SendCommandQueue, SCmd, int(strlen(SCmd))))
        mm_protcol_get(SCmd);
    else
        Log_Output(LOG_TRACE, MOD_LINK, "Net_SendCommand:alloc error !\n");
    text_note_freeze(cmd);
    return 0;
}

int Net_SendCommandFormat(const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    vsnprintf(FCmd, sizeof FCmd, format, ap);
    va_end(ap);
    return Net_SendCommand(FCmd);
}

// "TM3WAIT#" and milliseconds. Everything stops for that time, on purpose: the server is to digest
// what it got.
static bool text_is_pause(const ClientSendQueue_t& item)
{
    // A rest never is one, whatever it begins with.
    return SendCommandQueue.taken_length == 0 &&
           BeginsWith(reinterpret_cast<const char*>(item.data_array), "TM3WAIT#");
}

static void text_pause(const ClientSendQueue_t& item)
{
    const char* ms = FindVarPointer(reinterpret_cast<const char*>(item.data_array));
    net_log_sent(item);
    SDL_Delay(Uint32(std::clamp(strtol(ms, nullptr, 10), 0L, long(INT32_MAX))));
    net_queue_remove(&SendCommandQueue);
}

// 1 when the first item is gone, 0 when it or a rest of it stays, -1 on failure.
static int text_send_first()
{
    const ClientSendQueue_t& item = *SendCommandQueue.first;
    if (text_is_pause(item)) {
        text_pause(item);
        return 1;
    }
    const int sent = net_send(SockFD1, item);
    const int error = errno;
    if (sent == NET_NO_ROOM)
        return 0;
    net_log_sent(item);
    if (sent < 1) {
        Log_Output(LOG_LINK, MOD_LINK, "send_client_command: ERROR on send() returns [%d] err=%d.",
                   sent, error);
        return -1;
    }
    return net_queue_sent(&SendCommandQueue, sent, "send_client_command");
}

int Net_SendCommandQueue()
{
    for (int i = 0; i < TEXT_ITEMS_A_PASS && SendCommandQueue.first; i++) {
        if (SockFD1 == 0) {
            (void)text_connect();
            return 0;
        }
        const int result = text_send_first();
        if (result < 1)
            return result;
    }
    return 0;
}

static bool text_is_full()
{
    return strlen(RBuf) == sizeof RBuf - 1;
}

// A line of 405 characters that has no end fills the buffer, and nothing is read any more. That is
// meant: the size is part of the contract with the server, and the log says so on every call. But a
// panel on air must not stay deaf: what cannot end is given up after a while with its connection,
// and the new one begins clean.
static void text_hold_full()
{
    Log_Output(LOG_LINK, MOD_LINK, "Net_ReceiveCommand() Buffer Full!!");
    const uint32_t now = SDL_GetTicks();
    if (!RBufFullSince)
        RBufFullSince = now ? now : 1; // 0 means that it is not full
    if (now - RBufFullSince < FULL_BUFFER_MS)
        return;
    Log_Output(LOG_LINK, MOD_LINK, "ERROR: no line end for %u ms, connection given up",
               unsigned(FULL_BUFFER_MS));
    net_close(&SockFD1);
    Ready_Watch(READY_TEXT, 0);
    is_lost = true;
    RBuf[0] = '\0';
    RBufFullSince = 0;
}

static void text_fill()
{
    if (text_is_full()) {
        text_hold_full();
        return;
    }
    RBufFullSince = 0;
    if (SockFD1 == 0 && !text_connect())
        return;
    const size_t used = strlen(RBuf);
    const int n = net_read(READY_TEXT, &SockFD1, RBuf + used, int(sizeof RBuf - 1 - used));
    RBuf[used + size_t(n)] = '\0';
    is_lost |= SockFD1 == 0;
}

int Net_TakeTextLoss()
{
    const bool was_lost = is_lost;
    is_lost = false;
    return was_lost;
}

// Line ends before the first line come from a CRLF that was split between two reads.
static void text_skip_ends()
{
    const size_t ends = strspn(RBuf, "\r\n");
    if (ends > 0)
        memmove(RBuf, RBuf + ends, strlen(RBuf + ends) + 1);
}

// At trace level the traffic of one page class, which would swamp the log, stays out of it.
static void text_log_received()
{
    const bool is_quiet_page = GL_NowPage >> 24 == 0x52;
    if (GL_DebugMode)
        Log_Output(LOG_TRACE, MOD_LINK, "<--[%s]", RCmd);
    else
        Log_Output2(is_quiet_page ? 0 : LOG_TRACE, RCmd);
}

// What has come whole is given out before more is read: a burst costs a read a buffer and not a
// line.
char* Net_ReceiveCommand()
{
    if (!RBuf[0] && SockFD1 > 0 && Ready_IsQuiet(READY_TEXT))
        return nullptr; // at rest, which is most passes
    text_skip_ends();
    if (!net_has_line(RBuf, text_is_end)) {
        text_fill();
        text_skip_ends();
    }
    const int length = net_take_line(RBuf, RCmd, text_is_end);
    if (length == NET_LINE_OPEN)
        return nullptr;
    if (length == NET_LINE_TOO_LONG) {
        Log_Output(LOG_ALWAYS, MOD_LINK, "Command is too long!!  Received data is lost.");
        RBuf[0] = '\0';
        return nullptr;
    }
    text_log_received();
    received_lines++;
    return RCmd;
}

NetState Net_State(NetLink link)
{
    switch (link) {
    case NET_LINK_TEXT: return net_state_of(SockFD1, SendCommandQueue, received_lines);
    case NET_LINK_BIN: return net_bin_state();
    case NET_LINK_HUB: return net_hub_state();
    default: return {};
    }
}

// --- For tests and the benchmark ---

int Net_QueueLength()
{
    return SendCommandQueue.count;
}

int Net_TakeQueued(char* text, int size)
{
    if (!SendCommandQueue.first)
        return 0;
    ktr_strncpy(text, reinterpret_cast<const char*>(SendCommandQueue.first->data_array),
                size_t(size));
    text[strcspn(text, "\n")] = '\0';
    net_queue_remove(&SendCommandQueue);
    return 1;
}

int Net_FeedText(const char* bytes, int length)
{
    const size_t used = strlen(RBuf);
    const size_t n = std::min(size_t(length), sizeof RBuf - 1 - used);
    memcpy(RBuf + used, bytes, n);
    RBuf[used + n] = '\0';
    return int(n);
}
