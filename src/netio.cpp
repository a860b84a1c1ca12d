// The text link, and what the links share.
#include "command.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "menu_macro.h"
#include "netio_private.h"
#include "page.h"
#include "text.h"
#include <SDL.h>
#include <algorithm>
#include <arpa/inet.h>
#include <cassert>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

#include "safeguards.h"

// --- Sockets ---

static bool net_resolve(const char* address, in_addr* result)
{
    result->s_addr = inet_addr(address);
    if (result->s_addr != INADDR_NONE)
        return true;
    errno = 0;
    const hostent* host = gethostbyname(address);
    if (!host || host->h_addrtype != AF_INET || !host->h_addr_list[0])
        return false;
    memcpy(&result->s_addr, host->h_addr_list[0], sizeof result->s_addr);
    return true;
}

int net_open(const char* address, int port)
{
    sockaddr_in server{};
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    const int on = 1;
    (void)setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on); // connects without it as well
    server.sin_family = AF_INET;
    server.sin_port = htons(uint16_t(port));
    if (!net_resolve(address, &server.sin_addr)) {
        if (fd >= 0)
            close(fd);
        return 0;
    }
    // 0 would read as "not connected", and a set for select holds no number from FD_SETSIZE on.
    const bool is_usable = fd > 0 && fd < FD_SETSIZE;
    if (is_usable && connect(fd, reinterpret_cast<sockaddr*>(&server), sizeof server) == 0)
        return fd;

    Log_Output(LOG_LINK, MOD_LINK, "ERROR: Failed to connect server");
    if (fd >= 0)
        close(fd);
    return 0;
}

int net_connect_inet(int port)
{
    Log_Output(LOG_TRACE, MOD_LINK, "create_inet_connection(%s:%d)", GL_ServerAddress, port);
    const int fd = net_open(GL_ServerAddress, port);
    if (fd > 0)
        GL_NetReConnect = 1;
    return fd;
}

void net_close(int* fd)
{
    if (*fd > 0)
        close(*fd);
    *fd = 0;
}

// The set is made anew for each poll: a link that comes back may come back with another descriptor
// number.
static bool net_is_readable(int fd)
{
    if (fd <= 0)
        return false;
    fd_set set;
    FD_ZERO(&set);
    FD_SET(fd, &set);
    timeval no_wait{};
    return select(fd + 1, &set, nullptr, nullptr, &no_wait) > 0;
}

int net_read(int* fd, void* buf, int room)
{
    if (!net_is_readable(*fd))
        return 0;
    const int n = int(read(*fd, buf, size_t(room)));
    if (n > 0)
        return n;
    Log_Output(LOG_LINK, MOD_LINK, "ERROR: net_read() -> %d", n);
    net_close(fd);
    return 0;
}

// The sockets block, this write does not: a peer that no longer reads must not stop the screen.
int net_send(int fd, const ClientSendQueue_t& item)
{
    return int(send(fd, item.data_array, size_t(item.length), MSG_DONTWAIT));
}

// --- Send queue ---

bool net_queue_append(NetQueue* queue, const void* bytes, int length)
{
    assert(length > 0 && length <= NET_ITEM_MAX);
    auto* item = static_cast<ClientSendQueue_t*>(GDL_Malloc(sizeof(ClientSendQueue_t)));
    auto* data = static_cast<unsigned char*>(GDL_Malloc(size_t(length) + 1));
    if (!item || !data) {
        GDL_Free(item);
        GDL_Free(data);
        return false;
    }
    memcpy(data, bytes, size_t(length));
    data[length] = '\0';
    *item = {.prev = queue->last, .length = int16_t(length), .data_array = data};
    (queue->last ? queue->last->next : queue->first) = item;
    queue->last = item;
    queue->count++;
    return true;
}

void net_queue_remove(NetQueue* queue)
{
    ClientSendQueue_t* item = queue->first;
    queue->first = item->next;
    (item->next ? item->next->prev : queue->last) = nullptr;
    queue->count--;
    queue->taken_length = 0;
    GDL_Free(item->data_array);
    GDL_Free(item);
}

void net_queue_restart(NetQueue* queue)
{
    if (queue->taken_length == 0)
        return;
    // The allocation still has the whole item's size.
    ClientSendQueue_t* item = queue->first;
    memmove(item->data_array + queue->taken_length, item->data_array, size_t(item->length) + 1);
    memcpy(item->data_array, queue->taken, size_t(queue->taken_length));
    item->length = int16_t(item->length + queue->taken_length);
    queue->taken_length = 0;
}

int net_queue_sent(NetQueue* queue, int sent, const char* who)
{
    ClientSendQueue_t* item = queue->first;
    if (sent >= item->length) {
        net_queue_remove(queue);
        return 1;
    }
    Log_Output(LOG_LINK, MOD_LINK, "%s: nsend [%d] != length [%d] on send().", who, sent,
               item->length);
    memcpy(queue->taken + queue->taken_length, item->data_array, size_t(sent));
    queue->taken_length += sent;
    item->length = int16_t(item->length - sent);
    memmove(item->data_array, item->data_array + sent, size_t(item->length));
    item->data_array[item->length] = '\0';
    return 0;
}

void net_end_line(char* line)
{
    ktr_strncat(line, "\n", CMD_SIZE);
}

void net_log_sent(const ClientSendQueue_t& item)
{
    const auto* text = reinterpret_cast<const char*>(item.data_array);
    Log_Output(LOG_TRACE, MOD_LINK, "%.*s", int(strcspn(text, "\n")), text);
}

// --- Received lines ---

int net_take_line(char* buf, char* line, NetLineEnd is_end)
{
    int length = 0;
    for (; buf[length] && !is_end(static_cast<unsigned char>(buf[length])); length++) {
        if (length == NET_LINE_MAX - 1)
            return NET_LINE_TOO_LONG;
        line[length] = buf[length];
    }
    if (!buf[length])
        return NET_LINE_OPEN;
    line[length] = '\0';

    const char* rest = buf + length;
    while (is_end(static_cast<unsigned char>(*rest)))
        rest++;
    memmove(buf, rest, strlen(rest) + 1);
    return length;
}

void net_drop_open_line(char* buf, NetLineEnd is_end)
{
    size_t length = strlen(buf);
    while (length > 0 && !is_end(static_cast<unsigned char>(buf[length - 1])))
        length--;
    buf[length] = '\0';
}

// --- Text link ---

// Keeps the screen alive while a subscription burst goes out.
static constexpr int TEXT_ITEMS_A_PASS = 33;

static int SockFD1 = 0;
static NetQueue SendCommandQueue;
static char RBuf[406];             // always terminated; a line must end within it
static uint32_t RBufFullSince = 0; // clock at which it had filled up, 0 while it has room
static constexpr uint32_t FULL_BUFFER_MS = 10000;
static char RCmd[NET_LINE_MAX];
static char SCmd[CMD_SIZE];
static char FCmd[CMD_SIZE];

static bool text_is_end(unsigned char c)
{
    return c == '\r' || c == '\n';
}

static bool text_connect()
{
    SockFD1 = net_connect_inet(NET_TEXT_PORT);
    if (SockFD1 == 0)
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
    RBuf[0] = '\0';
    (void)text_connect(); // retried every pass
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

// 1 when the first item is gone, 0 when a rest of it stays, -1 on failure.
static int text_send_first()
{
    const ClientSendQueue_t& item = *SendCommandQueue.first;
    if (text_is_pause(item)) {
        text_pause(item);
        return 1;
    }
    const int sent = net_send(SockFD1, item);
    const int error = errno;
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
    const int n = net_read(&SockFD1, RBuf + used, int(sizeof RBuf - 1 - used));
    RBuf[used + size_t(n)] = '\0';
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

char* Net_ReceiveCommand()
{
    text_fill();
    text_skip_ends();
    const int length = net_take_line(RBuf, RCmd, text_is_end);
    if (length == NET_LINE_OPEN)
        return nullptr;
    if (length == NET_LINE_TOO_LONG) {
        Log_Output(LOG_ALWAYS, MOD_LINK, "Command is too long!!  Received data is lost.");
        RBuf[0] = '\0';
        return nullptr;
    }
    text_log_received();
    return RCmd;
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
