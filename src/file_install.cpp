// A file of the install, to a unit that is reached by its address. The install waits for it.
#include "bus.h"
#include "file.h"
#include "netio.h"
#include "ready.h"
#include "text.h"
#include <SDL.h>

#include "safeguards.h"

static struct {
    uint32_t label = 0; // of the transfer that is waited for, 0 none
    int result = -1;
} install_put; // valid while File_InstallPut runs

static void installed(uint32_t label, int, const char* reply)
{
    if (label != install_put.label)
        return;
    install_put.result = BeginsWith(reply, "OK") ? 0 : -1;
    install_put.label = 0;
}

int File_InstallPut(const char* src, const char* dst, const char* addr)
{
    constexpr int PUMP_MS = 10;
    char from[CMD_SIZE];
    char to[CMD_SIZE];
    if (!src || !dst || !addr)
        return -1;
    PrintText(from, "MYHOST:%s", src);
    PrintText(to, "%s:%s", addr, dst);
    const int label = File_ExecTransfer(from, to, installed, 0);
    if (label == -1)
        return -1;
    install_put = {.label = uint32_t(label), .result = -1};
    while (install_put.label != 0) {
        Ready_Ask();
        ReceiveCommand_Management();
        (void)Net_SendCommandQueue(); // a link that is down comes back
        (void)Net_SendBinCommandQueue();
        SDL_Delay(PUMP_MS);
    }
    return install_put.result;
}
