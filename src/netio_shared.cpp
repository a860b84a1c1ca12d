// What the three links share: reading, the send queue, cutting lines.
#include "command.h"
#include "log.h"
#include "memory.h"
#include "netio_private.h"
#include "text.h"
#include <cassert>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

#include "safeguards.h"

// --- Sockets ---

void net_close(int* fd)
{
    if (*fd > 0)
        close(*fd);
    *fd = 0;
}

static bool net_would_wait(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

int net_read(Ready owner, int* fd, void* buf, int room)
{
    assert(room > 0);
    if (*fd <= 0 || Ready_IsQuiet(owner))
        return 0;
    const int n = int(read(*fd, buf, size_t(room)));
    if (n > 0)
        return n;
    if (n < 0 && net_would_wait(errno))
        return 0;
    Log_Output(LOG_LINK, MOD_LINK, "ERROR: net_read() -> %d", n);
    net_close(fd);
    Ready_Watch(owner, 0);
    return 0;
}

// A peer that no longer reads must not stop the screen, and that it is slow is no failure: it would
// fill the log.
int net_send(int fd, const ClientSendQueue_t& item)
{
    const int sent = int(send(fd, item.data_array, size_t(item.length), MSG_DONTWAIT));
    return sent < 0 && net_would_wait(errno) ? NET_NO_ROOM : sent;
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
    queue->connects++;
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
        queue->sent++;
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

NetState net_state_of(int fd, const NetQueue& queue, uint32_t received)
{
    return {.is_up = fd > 0,
            .waiting = queue.count,
            .connects = queue.connects,
            .sent = queue.sent,
            .received = received};
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

bool net_has_line(const char* buf, NetLineEnd is_end)
{
    while (*buf && !is_end(static_cast<unsigned char>(*buf)))
        buf++;
    return *buf != '\0';
}

void net_drop_open_line(char* buf, NetLineEnd is_end)
{
    size_t length = strlen(buf);
    while (length > 0 && !is_end(static_cast<unsigned char>(buf[length - 1])))
        length--;
    buf[length] = '\0';
}
