// The page: a change to a page of 24 captioned buttons with its base area, one button's repaint,
// and a burst of tallies as the page takes it.
#include "a_ba.h"
#include "a_bt.h"
#include "bench_support.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "types.h"

static char taken[CMD_SIZE];

// The queue is emptied as it goes over the wire, so that it does not grow from run to run.
static void TakeCommands()
{
    while (Net_TakeQueued(taken, sizeof taken)) {
    }
}

static void OpenTopMenu()
{
    (void)CreatePage(0x00110000);
    TakeCommands();
}

constexpr uint32_t KEY_PAGE = 0x11110000;

static void OpenKeyPage()
{
    (void)CreatePage(KEY_PAGE);
    TakeCommands();
}

// A tally that turns a button on or off, and the pass that paints it and the cell of the same
// setting. The cases may run in any order: on another page nothing would be painted.
static void RepaintButton()
{
    if (GL_NowPage != KEY_PAGE)
        OpenKeyPage();
    static constexpr char path[] = "M/E-1@Key1@Type@Key Invert";
    const char* value = BT_GetOnOff(33) ? "false" : "true";
    SendMessage(MSG_TALLY, Arg(path), Arg(value), MsgArg(Hash(path)), 0);
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
}

// A pass in which nothing has changed.
static void IdlePass()
{
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
}

static constexpr BenchCase cases[] = {
    {.name = "page change, top menu of 27 keys", .once = OpenTopMenu, .limit_copies = 8.0},
    {.name = "page change, key page with its tabs", .once = OpenKeyPage, .limit_copies = 8.0},
    // The inversion of a key stands in both cells of its type.
    {.name = "one button and its two cells repainted", .once = RepaintButton, .limit_copies = 0.5},
    {.name = "a pass without a change", .once = IdlePass, .limit_copies = 0.05},
};

int main(int argc, char** argv)
{
    Bench_Screen();
    Log_SetLevel(LOG_FORCED);
    Device_Init();
    Global_InitBusNames();
    OpenKeyPage();
    return Bench_Main(argc, argv, cases);
}
