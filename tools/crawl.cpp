// crawl: a guest that touches everything. It opens pages one after the other, presses, drags and
// turns whatever is there, also in what comes up over a page, lets go, and looks whether the page
// gave back what it had taken: memory and descriptors. A key that can be pressed and asks for a
// page that the installation lacks is a fault. What it subscribed stands on the wire; each visit
// ends there with "put Crawl@Left#ID", and each round begins with "#Round", so that the books can
// be made up from the server's log.
//
// usage: crawl [EVERY [ROUNDS [BANK]...]]   in the working directory build/run
//        every EVERYth page (1) of the banks (all), ROUNDS times (2); the first round counts for
//        nothing, since what is loaded once and kept is loaded there
#include "a_bt.h"
#include "bus.h"
#include "global.h"
#include "guest.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include "window.h"
#include <SDL.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

namespace
{
struct Point {
    int x;
    int y;
};
constexpr int FELT_MS = 160; // a key that looks pushed has done its work by then
constexpr int COLUMN_X = 750;
constexpr int BOX_Y[] = {150, 235, 315, 395, 480};
constexpr Point OVER_STEP = {67, 53}; // of the touches where a pane or a window may stand
constexpr Point AREA_STEP = {97, 61}; // and of those on the whole screen
constexpr int OVER_PRESSES = 12;      // in one pane or window
#ifdef __SANITIZE_ADDRESS__
constexpr long RESIDENT_MORE_KB = 1 << 20; // what has been freed is kept to be watched
#else
constexpr long RESIDENT_MORE_KB = 4096;
#endif
} // namespace

static struct {
    unsigned random = 1;
    long presses = 0;
    long turns = 0;
    int panes = 0;
    int windows = 0;
    std::set<std::pair<uint32_t, uint32_t>> dead_ends; // of a page that is here, to one that is not
} crawl;

static int Random(int below)
{
    crawl.random = crawl.random * 1664525u + 1013904223u;
    return int((crawl.random >> 8) % unsigned(below));
}

static void Touch(int x, int y)
{
    crawl.presses++;
    SendMessage(MSG_PRESS, x, y, SDL_BUTTON_LEFT, 0);
    SendMessage(MSG_DRAG, x + 5, y + 3, 1, 0);
    SendMessage(MSG_RELEASE, x, y, 0, 0);
    SendMessage(MSG_REDRAW, FELT_MS, 0, 0, 0);
}

static void TurnKnobs()
{
    for (int knob = 0; knob < 5; knob++)
        for (const int detents : {3, -2}) {
            crawl.turns++;
            char tally[64];
            PrintText(tally, "Panel@Common@Knob%d#%d", knob, detents);
            SendDummyTally(tally);
        }
}

// Touches at chance in what stands over the page, then it is closed.
static void PlayOver()
{
    for (int i = 0; i < OVER_PRESSES && (GetWindow() || Pane_GetActiveID()); i++) {
        (GetWindow() ? crawl.windows : crawl.panes)++;
        Touch(Random(800 / OVER_STEP.x) * OVER_STEP.x + 20,
              Random(600 / OVER_STEP.y) * OVER_STEP.y + 20);
    }
    Guest_CloseAll();
}

// A touch on the page, and what follows; the page stays.
static void TouchPage(int x, int y)
{
    Touch(x, y);
    if (GetWindow() || Pane_GetActiveID())
        PlayOver();
    if (GL_CreatePage && Guest_IsHere(*Page) && !Page_Exists(GL_CreatePage))
        crawl.dead_ends.insert({GL_NowPage, GL_CreatePage});
    GL_CreatePage = 0;
    GL_AllPageDisplayMode = 0;
}

static std::vector<Point> PointsOfPage()
{
    std::vector<Point> points;
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
        points.push_back({(b->x1 + b->x2) / 2, (b->y1 + b->y2) / 2});
    for (int y = 20 + Random(AREA_STEP.y); y < 600; y += AREA_STEP.y)
        for (int x = 20 + Random(AREA_STEP.x); x < 800; x += AREA_STEP.x)
            points.push_back({x, y});
    return points;
}

static void TouchAll()
{
    for (const Point& p : PointsOfPage())
        TouchPage(p.x, p.y);
    Guest_Settle(1); // what the keys have led to; what is free to be turned now was not before
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
        TouchPage((b->x1 + b->x2) / 2, (b->y1 + b->y2) / 2);
        TurnKnobs();
    }
    for (const int y : BOX_Y) {
        TouchPage(COLUMN_X, y);
        SendMessage(MSG_WHEELUP, COLUMN_X, y, 0, 0);
    }
    Guest_Settle(1);
}

// Back at the top menu, where nothing of the page is left.
static void Leave(uint32_t id)
{
    Guest_CloseAll();
    GL_CreatePage = 0;
    GL_Macro_Offline_Store = 0; // an editor would ask what becomes of what has been changed
    (void)CreatePage(PAGE_TOP);
    Guest_Settle(2);
    Guest_CloseAll();
    // Nobody goes back to a page that this installation does not have.
    for (int* place :
         {&Omote_History_NowPtr, &Omote_History_MaxPtr, &Ura_History_NowPtr, &Ura_History_MaxPtr})
        *place = -1;
    for (uint32_t* page :
         {&GL_PrevPage, &GL_OmoteNowPage, &GL_UraNowPage, &GL_OmotePrevPage, &GL_UraPrevPage})
        *page = PAGE_TOP;
    if (id)
        Net_SendCommandFormat("put Crawl@Left#%08X", unsigned(id));
}

static int Round(int every, char** banks, int count)
{
    int visited = 0, n = 0;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++) {
        if (!Guest_IsWanted(row->id, banks, count) || n++ % every != 0)
            continue;
        if (!Guest_Open(*row)) {
            fprintf(stderr, "crawl: %08X cannot be opened\n", unsigned(row->id));
            continue;
        }
        visited++;
        Guest_Settle(1);
        TouchAll();
        Leave(row->id);
    }
    return visited;
}

int main(int argc, char** argv)
{
    const int every = argc > 1 ? std::max(1, atoi(argv[1])) : 1;
    const int rounds = argc > 2 ? std::max(1, atoi(argv[2])) : 2;
    if (!Guest_Start())
        return 1;
    Leave(0);
    int memory = 0, descriptors = 0, faults = 0;
    long resident_kb = 0;
    for (int round = 0; round < rounds; round++) {
        Guest_BeginRound(round + 1);
        Net_SendCommand("put Crawl@Left#Round");
        const Uint32 start = SDL_GetTicks();
        const int visited = Round(every, argv + std::min(argc, 3), std::max(0, argc - 3));
        printf("round %d: %d pages, %ld touches, %ld turns, %d in panes, %d in windows, %.1f s; %d "
               "blocks, %d descriptors, %ld KB\n",
               round + 1, visited, crawl.presses, crawl.turns, crawl.panes, crawl.windows,
               (SDL_GetTicks() - start) / 1000.0, UsedMemPtr, Guest_Descriptors(),
               Guest_ResidentKb());
        fflush(stdout);
        // Registers and files that the touches have made are held, too, but not one a page.
        if (round > 0 && (UsedMemPtr > memory + visited / 2 || Guest_Descriptors() > descriptors ||
                          Guest_ResidentKb() > resident_kb + RESIDENT_MORE_KB)) {
            fprintf(stderr, "crawl: it holds more than after the round before\n");
            faults++;
        }
        memory = UsedMemPtr;
        descriptors = Guest_Descriptors();
        resident_kb = Guest_ResidentKb();
    }
    for (const auto& [page, target] : crawl.dead_ends)
        fprintf(stderr, "crawl: a touch on %08X asks for %08X, which is not there\n",
                unsigned(page), unsigned(target));
    return faults != 0 || !crawl.dead_ends.empty();
}
