// netio: the three TCP links. Text commands out and tallies in (port 10001), binary frames (port
// 10000), the status hub. Everything queues; a link that is down loses nothing and comes back by
// itself. The words on the links belong to command and to those who send them.
#pragma once
#include "types.h"

constexpr int NET_TEXT_PORT = 10001;
constexpr int NET_BIN_PORT = 10000;

// One queued item of any link. Node and text belong to the queue until sent.
struct ClientSendQueue_t {
    ClientSendQueue_t* prev = nullptr;
    ClientSendQueue_t* next = nullptr;
    int16_t length = 0; // bytes still to send
    unsigned char* data_array = nullptr;
};

// --- Life ---
// Install the empty SIGPIPE handler and open the links. Failures are retried by the calls below.
void Net_Init();

// --- For everybody: queue, never fail for a link that is down ---
// One text command without its line end. Cut at 1023 characters; one of that length goes out
// without a line end. Returns 0.
int Net_SendCommand(const char* cmd);
int Net_SendCommandFormat(const char* format, ...) __attribute__((format(printf, 1, 2)));
// One frame: command byte, 32-bit id, ndata bytes of data. Returns -1 for more than 1024 bytes,
// else 0.
int Net_SendBinCommand(int command, uint32_t id, const unsigned char* data, int ndata);
int Net_SendSHPCommand(const char* cmd);
int Net_SendSHPCommandFormat(const char* format, ...) __attribute__((format(printf, 1, 2)));
int Get_SHPTargetId(const char* table);  // unit number of a hub table, -1
int is_refCS_command(const char* table); // 1 for the clip store of this panel's first switcher

// --- For the main loop, once a pass ---
int Net_SendCommandQueue(); // at most 33 items. Returns 0, or -1 on a send failure
int Net_SendBinCommandQueue();
int Net_SendSHPCommandQueue(int elapsed_ms);

// --- For the engineering pages ---
enum NetLink : int { NET_LINK_TEXT, NET_LINK_BIN, NET_LINK_HUB, NET_LINKS };
// A link at this moment, and what went over it since the start of the process.
struct NetState {
    bool is_up = false;
    int waiting = 0;       // items not yet sent
    uint32_t connects = 0; // times that it came up
    uint32_t sent = 0;     // whole items
    uint32_t received = 0; // whole lines or frames
};
NetState Net_State(NetLink link);

// --- For ReceiveCommand_Management ---
// The next complete line without its end, or null. It has at least one character, lives until the
// next call and may be changed.
char* Net_ReceiveCommand();
// The text link has fallen since the last call: what the server was asked there is not answered any
// more. 1 once for each loss, or for several in a row.
int Net_TakeTextLoss();
int Net_TakeHubLoss(); // the same of the status hub
// The next complete frame as it came, both length bytes and the trailer included, or null; *length
// gets its size in bytes, which may be less than the head has: only impossible lengths are refused.
// It lives until the next call.
const unsigned char* Net_ReceiveBinCommand(int* length);
char* Net_ReceiveSHPCommand();

// --- For tests and the benchmark ---
int Net_QueueLength(); // text commands not yet sent
// Take the head of the text queue without sending it: its text without the line end into text. 1,
// or 0 when empty.
int Net_TakeQueued(char* text, int size);
int Net_TakeQueuedSHP(char* text, int size); // the same of the hub's queue
void Net_DropBinQueue();                     // frames that wait for the binary link are forgotten
// Feed received bytes as if they had come over the text link, as far as the buffer has room.
// Returns bytes taken.
int Net_FeedText(const char* bytes, int length);
