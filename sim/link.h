// link: the three listening sockets, the clients on them, and lines in both directions. It also
// ill-treats what is sent when a fault asks for it. What a line means belongs to verbs; flood and
// garbage to fault. Nothing here waits for a client: what a slow one doesn't take stays in its
// buffer.
#pragma once
#include <cstdint>
#include <poll.h>
#include <string>
#include <string_view>
#include <vector>

enum LinkKind { LINK_TEXT, LINK_BIN, LINK_HUB, LINK_KINDS };

constexpr int KNOBS = 5;
constexpr size_t LINK_OUT_BYTES = 32 << 20; // a client that lets this much pile up is dropped

struct Client {
    int number = 0; // from 1, never used again
    int fd = -1;    // -1: gone, the entry goes at the end of the turn
    LinkKind kind = LINK_TEXT;
    std::string in;           // the begin of a line or frame
    bool is_skipping = false; // in the rest of a line that was too long
    std::string out;
    size_t out_at = 0; // bytes of out that are on their way
    int64_t next_write_ms = 0;
    std::string knob[KNOBS]; // paths, empty: free
    std::string menu;        // the caption that the client has set as its context
};

// --- The main loop ---
bool Link_Start(const char* address); // false with a log line when a port is taken
void Link_Stop();
// Add what there is to wait for; returns the time of the next thing to do without an event.
int64_t Link_Wait(std::vector<pollfd>* set, int64_t now);
void Link_Serve(int64_t now); // accept, read, handle lines, write

// --- Sending; to a client that is gone nothing happens ---
void Link_SendLine(int client, const std::string& line);
void Link_SendBytes(int client, std::string_view bytes); // as they stand, no log line
size_t Link_Waiting(int client);                         // bytes not yet written

// --- Clients ---
Client* Link_Find(int client); // valid until the next Link_Serve
std::vector<int> Link_Clients(LinkKind kind);

// --- Faults ---
void Link_Drop(LinkKind kind, int down_ms); // close all clients; the port stays closed for down_ms
// Close the next client of this kind in the middle of what is sent to it, when so many bytes more
// have gone; with 0 before the next one goes.
void Link_Cut(LinkKind kind, long bytes);
void Link_Refuse(bool on); // stop listening on all ports; who is connected stays
void Link_Stall(int ms);   // neither read nor write nor accept
// Write at most so many bytes at once, then leave the client alone for gap_ms; 0 bytes: as usual.
void Link_Pieces(size_t bytes, int gap_ms);

// --- The record of what clients have sent, for "expect" ---
// Text lines as they came; "hub LINE" and "bin 07 00 ..." for the other links. Numbered from 0.
int64_t Link_HeardCount();
// The first line from *from on that matches; *from moves behind it, or to the end when there is
// none.
bool Link_Heard(int64_t* from, const std::string& pattern, std::string* line);
