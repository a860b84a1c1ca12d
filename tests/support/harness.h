// harness: what the tests share: a clock that only moves when told, a 32-bit screen without a
// display, and peers on the loopback that play the server.
#pragma once
#include "types.h"
#include <SDL.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <string>
#include <vector>

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Strings = std::vector<std::string>;

// The fake clock behind SDL_GetTicks and SDL_Delay (which only advances it).
extern uint32_t Clock_ms;
extern bool Clock_IsReal; // SDL_Delay takes its time: somebody else is to do something meanwhile

// SDL, the drawing layer and the bitmaps, once a process.
void Harness_Video();
// Every module's state as at process start, as far as tests lean on it; the screen black.
void Harness_Reset();

// While it lives, also across a reset, the installation has everything that a page may ask for:
// both sides of every bank with all wipes, eight keys, the large switcher, the newest frame memory,
// a clip store.
struct FullHouse {
    FullHouse();
    ~FullHouse(); // the state as at process start
    FullHouse(const FullHouse&) = delete;
    FullHouse& operator=(const FullHouse&) = delete;
};

// A server for one link: listens on 127.0.0.1:port, speaks lines.
struct Peer {
    int listen_fd = -1;
    int fd = -1;
    std::string received;

    explicit Peer(int port, int backlog = 4);
    ~Peer();
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    bool Accept();                      // take the connection that waits (up to 2 s)
    void Send(const std::string& text); // as it stands
    void Drop();                        // close the connection, keep listening
    void StopListening();
    // Everything that has arrived and the whole lines of it, without their ends; the rest stays.
    Strings Lines(int wait_ms = 50);
};
sockaddr_in LocalAddress(int port);

// The commands that the application has queued since the last call, as they would go over the wire.
// Takes them off the queue: for tests without a peer.
Strings TakeQueuedCommands();
Strings TakeQueuedHubLines(); // the same for the hub

// What a file holds; nothing when it is not there.
std::string FileText(const std::string& path);

// --- Pictures ---
uint32_t PixelAt(int x, int y);                // 0x00RRGGBB
std::vector<uint32_t> PixelsIn(const Rect& r); // the same, row by row
// Compare the screen with tests/screen/golden/NAME.png. A missing or different picture fails;
// expected, actual and difference are left in the build folder's screen/. With TM3_GOLDEN_UPDATE
// set in the environment the picture is written instead: look at it before you commit it.
testing::AssertionResult MatchesGolden(const std::string& name, Rect part = {0, 0, 799, 599});
// The screen as a PNG file, for people.
bool WritePng(const std::string& path, SDL_Surface* surface);
