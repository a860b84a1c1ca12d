// netio_private: what the three links share inside netio: connecting, polling, the send queue,
// cutting lines. Nobody else includes it but tests and fuzz targets of those parts.
#pragma once
#include "netio.h"
#include "ready.h"

constexpr int NET_ITEM_MAX = 1040; // bytes of the largest item of any link
constexpr int NET_LINE_MAX = 1024; // characters of a received line with its terminator

constexpr int NET_FD_MAX = 1024; // no descriptor of this process is above

// --- Connecting: begun without waiting, then looked at once a call ---
// One connection in the making, and what is known of its host.
struct NetDial {
    Ready owner = READY_TEXT;      // of the link
    int fd = 0;                    // the socket that connects, 0 while none does
    uint32_t begun = 0;            // SDL_GetTicks of the attempt, or of the last one
    bool is_paused = false;        // its name did not resolve; the next attempt waits
    char name[64] = "";            // the host that address belongs to or is looked up for
    uint32_t address = UINT32_MAX; // in network order; all ones: not known
    uint32_t found = 0;            // SDL_GetTicks of the answer of a look-up
    int lookup_pid = 0;            // the child that looks the name up, 0 none
    int lookup_fd = -1;            // its answer
};
enum : int { NET_PENDING = 0, NET_FAILED = -1 };
// Begin a connection, or look at the one that is being made. 1 with the socket in *fd, which does
// not block; NET_PENDING; NET_FAILED with a log line (without one when the name does not resolve).
int net_dial(NetDial* dial, const char* host, int port, int* fd);
bool net_may_begin(const NetDial& dial); // the next net_dial begins an attempt
void net_hang_up(NetDial* dial);         // as if nothing had been begun
// net_dial to the control server, with its log line for each attempt and GL_NetReConnect.
int net_connect_inet(NetDial* dial, int port, int* fd);

// --- Sockets: a descriptor of 0 is a link that is down ---
void net_close(int* fd);
// Read what has arrived for the owner's socket, without waiting; one that the pass has found quiet
// is not asked. room is at least 1. Returns the bytes read. 0 when there is nothing, or when the
// link was lost: then the socket is closed and *fd 0.
int net_read(Ready owner, int* fd, void* buf, int room);
// Write as much of an item as the kernel takes at once. Returns the bytes taken, NET_NO_ROOM when
// the peer is behind with its reading, below that on failure.
int net_send(int fd, const ClientSendQueue_t& item);
constexpr int NET_NO_ROOM = 0;

// --- Send queue ---
struct NetQueue {
    ClientSendQueue_t* first = nullptr;
    ClientSendQueue_t* last = nullptr;
    int count = 0;
    uint32_t connects = 0; // since the start of the process, as sent
    uint32_t sent = 0;
    // What this connection has taken of a first item that did not go in one write. When the link
    // comes back the peer has no use for the second half alone, so the item is made whole again.
    int taken_length = 0;
    unsigned char taken[NET_ITEM_MAX] = {};
};

bool net_queue_append(NetQueue* queue, const void* bytes, int length); // false when memory is out
void net_queue_remove(NetQueue* queue);                                // the first item
void net_queue_restart(NetQueue* queue);                               // the link has come up
// Note that sent bytes (at least 1) of the first item have gone. Returns 1 when that was all of it,
// 0 when a rest stays.
int net_queue_sent(NetQueue* queue, int sent, const char* who);
// Append "\n" as far as line (CMD_SIZE bytes) has room. A line of 1023 characters goes out without
// an end. That is meant: the limit is the link's own.
void net_end_line(char* line);
void net_log_sent(const ClientSendQueue_t& item); // a text item

// --- Received lines ---
using NetLineEnd = bool (*)(unsigned char c);
enum : int { NET_LINE_OPEN = -1, NET_LINE_TOO_LONG = -2 };
// Move the first line of buf to line (NET_LINE_MAX bytes) and drop it with all ends that follow.
// Returns its length; in the two other cases buf stays as it is.
int net_take_line(char* buf, char* line, NetLineEnd is_end);
bool net_has_line(const char* buf, NetLineEnd is_end); // an end has come
void net_drop_open_line(char* buf, NetLineEnd is_end); // what follows the last line end

// --- The other two links ---
void net_bin_init();
void net_hub_init();
NetState net_bin_state();
NetState net_hub_state();
NetState net_state_of(int fd, const NetQueue& queue, uint32_t received);
bool net_is_hub_end(unsigned char c);
constexpr int NET_FRAME_MAX = 1039 + 2; // bytes of a received frame with its trailer
// Move the first frame of buf, which holds *fill bytes, to frame (NET_FRAME_MAX bytes). Returns its
// size; 0 when it is not yet whole; -1 when its length is impossible, with *fill 0: there is no way
// to find the next one.
int net_take_frame(unsigned char* buf, int* fill, unsigned char* frame);
