// main: start-up in its order, the loop, the end. Everything that needs no server is in start.
#include "colours.h"
#include "drive_check.h"
#include "global.h"
#include "graphics.h"
#include "initread.h"
#include "log.h"
#include "loop.h"
#include "memory.h"
#include "netio.h"
#include "page.h"
#include "process.h"
#include "start.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include "version.h"
#include <SDL.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include "safeguards.h"

namespace
{
constexpr int SERVER_WAIT_MS = 5000; // deliberately lost: the server is left to accept the links
} // namespace

// Reaps the one tracked child; others are waited for by whoever started them.
static void sig_chld(int)
{
    if (cpid == 0)
        return;
    const int interrupted = errno; // it belongs to whoever was at work
    waitpid(cpid, nullptr, WNOHANG);
    errno = interrupted;
    cpid = 0;
}

static void start_log_versions()
{
    Log_Output(LOG_ALWAYS, MOD_START, "APP  : %s\n", GL_MenuDetailInfoFull[0]);
    Log_Output(LOG_ALWAYS, MOD_START, "LINUX: %s\n", GL_MenuDetailInfoFull[1]);
    Log_Output(LOG_ALWAYS, MOD_START, "UBOOT: %s\n", GL_MenuDetailInfoFull[2]);
}

int main(int argc, char** argv)
{
    signal(SIGCHLD, sig_chld);
    Start_Init(0);
    GetMenuDetailInfo();
    TDL_FillRect(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0);
    TDL_Symbol(20, 20, "Initializing now...", 8, WHITE);
    start_log_versions();
    if (argc > 1)
        CopyText(GL_ServerAddress, argv[1]);
    Net_Init();
    SDL_Delay(SERVER_WAIT_MS);
    LoadGraphics();
    Net_SendCommand("put Info@Initial Read Status#true");
    (void)Net_SendCommandQueue(); // takes up the connection that was made meanwhile
    GL_NetReConnect = 0;
    (void)CreatePage(PAGE_TOP);   // the one page change outside the loop
    (void)Net_SendCommandQueue(); // the server answers while the drives are looked at
    DriveCheck();
    InitialProgress(1);
    Touch_LoadCalibration();
    touch_open();

    while (!MainPass()) {
    }
    printf("UsedMemPtr = %d\n", UsedMemPtr);
    return 0;
}
