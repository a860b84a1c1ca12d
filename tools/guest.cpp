// guest: see guest.h.
#include "guest.h"
#include "a_kf.h"
#include "bus.h"
#include "global.h"
#include "graphics.h"
#include "initread.h"
#include "loop.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "saver.h"
#include "start.h"
#include "text.h"
#include "window.h"
#include <SDL.h>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>

static constexpr int ANSWER_MS = 1;           // the server is on the same machine
static constexpr int ANNOUNCED_PASSES = 5000; // of a millisecond: it lets a starting panel wait
static constexpr int STAGE_ROUNDS = 20;
static constexpr int SETTLE_PASSES =
    3000; // a link that has fallen does not hold the tool up for ever

static struct {
    int asked = 0;    // the last question that the server was sent
    int answered = 0; // and that it has answered: in the order in which they were asked
} guest;

static constexpr char QUESTION[] = "Guest@Question";

void Guest_Pass(int elapsed_ms)
{
    for (int i = 0; i < BUS_TEXT_LINES_A_PASS; i++) {
        char* line = Net_ReceiveCommand();
        if (!line)
            break;
        if (BeginsWith(line, QUESTION))
            guest.answered = atoi(line + sizeof QUESTION);
        else
            SendDummyTally(line);
    }
    ReceiveCommand_Management(); // the other links
    (void)Net_SendCommandQueue();
    (void)Net_SendBinCommandQueue();
    (void)Net_SendSHPCommandQueue(elapsed_ms);
    if (GL_CreatePage && !GetWindow() && !Pane_GetActiveID()) {
        const uint32_t id = GL_CreatePage;
        (void)CreatePage(id); // one that is not there leaves the page as it is
        if (GL_CreatePage == id)
            GL_CreatePage = 0;
    }
    SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0);
    if (IsSaver())
        (void)EndScreenSaver();
}

static double timed_pass()
{
    const double start = Guest_ProcessorMs();
    Guest_Pass();
    return Guest_ProcessorMs() - start;
}

double Guest_Settle(int rounds)
{
    double longest = 0;
    for (int round = 0; round < rounds; round++) {
        Net_SendCommandFormat("put %s#%d", QUESTION, ++guest.asked);
        for (int i = 0; i < SETTLE_PASSES && guest.answered != guest.asked; i++) {
            longest = std::max(longest, timed_pass());
            SDL_Delay(ANSWER_MS);
        }
    }
    return std::max(longest, timed_pass());
}

void Guest_BeginRound(int round)
{
    Net_SendCommandFormat("put Guest@Round#%d", round);
    Guest_Settle(STAGE_ROUNDS);
    Guest_CloseAll();
    GL_CreatePage = 0;
    (void)CreatePage(PAGE_TOP); // it was there before
    Guest_Settle(1);
}

bool Guest_Start()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    signal(SIGPIPE, SIG_IGN);
    Start_Init(32);
    LoadGraphics();
    Net_Init();
    Net_SendCommand("put Info@Initial Read Status#true");
    if (CreatePage(PAGE_TOP) != 0)
        return false;
    for (int i = 0; !GL_InitRead && i < ANNOUNCED_PASSES; i++)
        Guest_Settle(1);
    if (!GL_InitRead) {
        fprintf(stderr, "no server answers at %s\n", GL_ServerAddress);
        return false;
    }
    for (void (*stage)() : {InitialCommand0, InitialCommand1, InitialCommand2}) {
        stage();
        Guest_Settle(STAGE_ROUNDS);
    }
    GL_InitRead = 0;
    Guest_CloseAll();
    return true;
}

// As an operator asks for it.
static uint32_t number_of(const PAGE& row)
{
    return row.id & ~0xFF00u;
}

bool Guest_IsHere(const PAGE& row)
{
    return SearchPageTable(number_of(row)) == &row;
}

bool Guest_Open(const PAGE& row)
{
    GL_CreatePage = 0;
    if (Guest_IsHere(row))
        return CreatePage(number_of(row)) == 0;
    const bool is_here = SearchPageTable(row.id) == &row;
    GL_AllPageDisplayMode = !is_here && SearchPageTable_Free_ALL(PageTable, row.id) != nullptr;
    const int result = CreatePage(row.id);
    GL_AllPageDisplayMode = 0;
    KF_DrawTopArea(777); // without the keys of the walk
    return result == 0;
}

bool Guest_IsWanted(uint32_t id, char** banks, int count)
{
    char text[16];
    PrintText(text, "%08X", unsigned(id));
    return count == 0 ||
           std::any_of(banks, banks + count, [&](const char* b) { return BeginsWith(text, b); });
}

void Guest_CloseAll()
{
    (void)CloseWindow(); // none may be open
    while (const int id = Pane_GetActiveID())
        (void)Pane_Quit(id);
}

int Guest_Descriptors()
{
    int count = 0;
    DIR* dir = opendir("/proc/self/fd");
    while (dir && readdir(dir))
        count++;
    if (dir)
        closedir(dir);
    return count;
}

long Guest_ResidentKb()
{
    long pages = 0;
    FILE* fp = fopen("/proc/self/statm", "r");
    if (fp && fscanf(fp, "%*d %ld", &pages) != 1)
        pages = 0;
    if (fp)
        fclose(fp);
    return pages * 4;
}

double Guest_ProcessorMs()
{
    timespec t = {};
    (void)clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t); // a clock that every Linux has
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}
