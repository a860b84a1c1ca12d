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
#include <csignal>
#include <cstdio>
#include <cstdlib>

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
    while (char* line = Net_ReceiveCommand()) {
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

void Guest_Settle(int rounds)
{
    for (int round = 0; round < rounds; round++) {
        Net_SendCommandFormat("put %s#%d", QUESTION, ++guest.asked);
        for (int i = 0; i < SETTLE_PASSES && guest.answered != guest.asked; i++) {
            Guest_Pass();
            SDL_Delay(ANSWER_MS);
        }
    }
    Guest_Pass();
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

bool Guest_Open(const PAGE& row)
{
    GL_CreatePage = 0;
    // By its number, as an operator asks for it.
    const uint32_t number = row.id & ~0xFF00u;
    if (SearchPageTable(number) == &row)
        return CreatePage(number) == 0;
    const bool is_here = SearchPageTable(row.id) == &row;
    GL_AllPageDisplayMode = !is_here && SearchPageTable_Free_ALL(PageTable, row.id) != nullptr;
    const int result = CreatePage(row.id);
    GL_AllPageDisplayMode = 0;
    KF_DrawTopArea(777); // without the keys of the walk
    return result == 0;
}

void Guest_CloseAll()
{
    (void)CloseWindow(); // none may be open
    while (const int id = Pane_GetActiveID())
        (void)Pane_Quit(id);
}
