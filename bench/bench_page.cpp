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
#include "tdl.h"
#include "types.h"
#include <cstdio>

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

// --- From page to page ---

// Two pages that have little in common, in turn.
static void ToTheTopMenuAndBack()
{
    OpenTopMenu();
    OpenKeyPage();
}

constexpr uint32_t EDGE_PAGE = 0x11120000; // beside the key page, in the same tabs

// There and back: two changes.
static void ToTheNeighbourAndBack()
{
    (void)CreatePage(EDGE_PAGE);
    TakeCommands();
    OpenKeyPage();
}

// The key page as it stands when the server has answered: lit keys, filled cells, boxes with
// values.
static void OpenToldKeyPage()
{
    static constexpr const char* told[] = {
        "M/E-1@Key1@Type@Key Type#Luminance",
        "M/E-1@Key1@Type@Clean Mode@Luminance#true",
        "M/E-1@Key1@Type@Key Fill#Matte",
        "M/E-1@Key1@Type@Matte Adjust@Mode#Flat",
        "M/E-1@Key1@Type@Key Source#Split",
        "M/E-1@Key1@Type@Signal Select@Source#CG 1 K",
        "M/E-1@Key1@Type@Signal Select@Fill#CG 1",
        "M/E-1@Key1@Status@Source Name#CG 1 K",
        "M/E-1@Key1@Type@Key Invert#true",
        "M/E-1@Key1@Edge@Edge#Border",
        "M/E-1@Key1@Main Mask@Main Mask#true",
        "M/E-1@Key1@Main Mask@Mask Source#Box",
        "M/E-1@Key1@Sub Mask@Sub Mask#false",
        "M/E-1@Key1@Sub Mask@Mask Source#Pattern",
        "M/E-1@Key1@Processed Key@Resizer#true",
        "M/E-1@Key1@Resizer@Size#0.75",
        "M/E-1@Key1@Video Process@Luminance#98.00",
        "M/E-1@Key1@Type@Key Type@Luminance@Clip#12.00",
        "M/E-1@Key1@Type@Key Type@Luminance@Gain#50.00",
        "M/E-1@Key1@Type@Key Type@Luminance@Density#100.00",
    };
    OpenKeyPage();
    for (const char* line : told)
        SendDummyTally(line);
    TDL_Hold();
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    TDL_Release();
    TakeCommands();
}

static long pixels_written = 0;
static void CountPixels(int, int, int w, int h)
{
    pixels_written += long(w) * h;
}

// What reaches the display; a pixel is a pixel on every machine.
static void ReportPixels(const char* name, void (*once)())
{
    TDL_WatchFlush(CountPixels);
    pixels_written = 0;
    once();
    TDL_WatchFlush(nullptr);
    printf("pixels written: %-28s %12ld\n", name, pixels_written);
}

// A pass in which nothing has changed.
static void IdlePass()
{
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
}

static constexpr BenchCase cases[] = {
    {.name = "page change, to the top menu of 27 keys and back",
     .once = ToTheTopMenuAndBack,
     .limit_copies = 12.0,
     .per = 2.0},
    {.name = "page change, to the same key page", .once = OpenKeyPage, .limit_copies = 3.0},
    {.name = "page change, key page told by the server",
     .once = OpenToldKeyPage,
     .limit_copies = 14.0},
    {.name = "page change, to a neighbour in its tabs",
     .once = ToTheNeighbourAndBack,
     .limit_copies = 9.0,
     .per = 2.0},
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
    OpenTopMenu();
    ReportPixels("top menu to the key page", OpenKeyPage);
    ReportPixels("key page to its neighbour", [] {
        (void)CreatePage(EDGE_PAGE);
        TakeCommands();
    });
    ReportPixels("back, and told by the server", OpenToldKeyPage);
    return Bench_Main(argc, argv, cases);
}
