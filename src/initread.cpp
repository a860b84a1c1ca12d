#include "initread.h"
#include "a_kf.h"
#include "bin_frame.h"
#include "bus_tally.h"
#include "device.h"
#include "file.h"
#include "global.h"
#include "initread_list.h"
#include "log.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "register.h"
#include "selfdiag.h"
#include "tally_value.h"
#include "window.h"
#include <iterator>

#include "safeguards.h"

constexpr uint32_t PAGE_MAINTENANCE = 0x99990000; // runs beside an initial read
constexpr uint32_t PAGE_MACRO_ONLINE = 0x71420002;

static int InitRead_PaneID;            // "Initial Read", 0 while none
static uint32_t progress_page_changes; // Page_Changes when the timed progress began

// --- The schedule ---

void InitialRead()
{
    GL_InitRead = 1;
    GL_MainCounter = 0;
}

void InitialProgress(int cancel)
{
    if (GL_InitProgress)
        (void)Pane_Quit(GL_InitProgress_PaneID); // the operator may have closed it
    progress_page_changes = Page_Changes;
    GL_InitProgress_PaneID = PaneProgress_Create("Initialize", "Initializing now...", cancel);
    GL_InitProgress = 1;
    GL_MainCounter = 0;
}

bool InitialProgress_HasScreen()
{
    // A page that is only built anew is not asked for by the operator.
    const bool is_asked_for = GL_CreatePage != 0 && GL_CreatePage != GL_NowPage;
    return Page_Changes == progress_page_changes && !is_asked_for;
}

static int any_unit_reads()
{
    for (const int status : GL_InitReadStatus)
        if (status)
            return 1;
    return 0;
}

static bool busy_pane_is_welcome()
{
    return !GL_InitialReadPopupDisable && GL_NowPage != PAGE_MAINTENANCE && GetWindow() == 0;
}

static void show_busy()
{
    const int busy = any_unit_reads();
    if (busy == GL_InitReadStatus_Busy)
        return;
    GL_InitReadStatus_Busy = busy;
    if (!busy) {
        (void)Pane_Quit(InitRead_PaneID); // the operator may have closed it
        InitRead_PaneID = 0;
    } else if (busy_pane_is_welcome()) {
        InitRead_PaneID = PaneMessage_Create("Initial Read", 0, "Initializing now...");
    }
}

void InitialRead_Status(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) != 2)
        return;
    const int unit = Index(p.v[0], int(std::size(GL_InitReadStatus)));
    if (unit < 0)
        return;
    switch (p.v[1][0]) {
    case 's':
    case 'p': GL_InitReadStatus[unit] = 1; break;
    case 'e':
        GL_InitReadStatus[unit] = 0;
        if (unit == 0)
            InitialRead(); // the end of the server's own initial read starts ours
        break;
    default: break;
    }
    show_busy();
}

// --- Sending a list ---

static const char* own_panel_name()
{
    return SYS_MyPnl >= 0 && SYS_MyPnl < UNIT_MAX ? SYS_PnlName[SYS_MyPnl] : "--";
}

// The path of the row with item in it, and those of its further heads behind it.
static void send_item(const char* verb, const SubscribeRow& row, const char* item)
{
    Net_SendCommandFormat("%s %s%s%s", verb, row.head, item, row.tail);
    for (const char* head : row.also)
        if (head)
            Net_SendCommandFormat("%s %s%s%s", verb, head, item, row.tail);
}

static void send_row(const char* verb, const SubscribeRow& row)
{
    if (row.words) {
        for (const char* const* word = row.words; *word; word++)
            send_item(verb, row, *word);
    } else if (row.to >= row.from) {
        for (int n = row.from; n <= row.to; n++)
            send_item(verb, row, NumStr(n));
    } else {
        send_item(verb, row, "");
    }
}

template <size_t N> static void subscribe(const SubscribeRow (&list)[N])
{
    for (const SubscribeRow& row : list) {
        switch (row.verb) {
        case Verb::Add: send_row("add", row); break;
        case Verb::AddOwnPanel: send_item("add", row, own_panel_name()); break;
        case Verb::Read: send_row("read", row); break;
        case Verb::Put: send_row("put", row); break;
        case Verb::Wait: Net_SendCommand(row.head); break;
        }
    }
}

// What was read or put once leaves nothing behind.
template <size_t N> static void unsubscribe(const SubscribeRow (&list)[N])
{
    for (const SubscribeRow& row : list) {
        if (row.verb == Verb::Add)
            send_row("remove", row);
        if (row.verb == Verb::AddOwnPanel)
            send_item("remove", row, own_panel_name());
    }
}

// --- Stage 0 ---

void InitialCommand0()
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "InitialCommand0() Called.");
    SYS_FmemV6 = 1;
    subscribe(initial_0);
}

void DeathCommand0()
{
    Net_SendCommand("put Info@Status Report#false");
    unsubscribe(initial_0);
    Net_SendCommand("put Info@Initial Read Status#false");
}

// --- Stage 1 ---

static constexpr uint32_t region_streams[] = {STREAM_SELECTION, STREAM_STATUS, STREAM_DATA};
constexpr int KEYS = 8;

static void send_region_streams(int command)
{
    for (const uint32_t id : region_streams)
        Net_SendBinCommand(command, id, nullptr, 0);
}

static void send_region_group(unsigned char letter)
{
    const unsigned char begin[] = {1, letter, 1, 0};
    Net_SendBinCommand(BIN_SETUP, STREAM_JOIN, begin, sizeof begin);
    Net_SendBinCommand(BIN_SETUP, STREAM_JOINED, &letter, 1);
}

static void send_key_rotations(const char* verb)
{
    for (int key = 1; key <= KEYS; key++)
        for (const char* const* bank = words_key_banks; *bank; bank++)
            Net_SendCommandFormat("%s %s%d@Processed Key@Rotation", verb, *bank, key);
}

// Of what this list brings, the tallies of the units' formats let the sub sides be subscribed anew
// where there are any. The page that is up is opened once more: the server has forgotten what it
// follows, and what it shows may be from before.
void InitialCommand1()
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "InitialCommand1() Called.");
    Get_DeviceType();
    subscribe(initial_1);
    send_region_streams(BIN_SUBSCRIBE);
    KF_InitCommand();
    send_region_group('D');
    send_region_group('E');
    Register_InitCommand();
    send_key_rotations("add");
    SYS_ConfigChange = 0;
    Device_ForgetMultiProgram();
    // The others are in the middle of something; the online editor's is at the server.
    if (IsUserPages(GL_NowPage) || GL_NowPage == PAGE_MACRO_ONLINE)
        tally_reload_page();
}

void DeathCommand1()
{
    unsubscribe(initial_1);
    send_region_streams(BIN_UNSUBSCRIBE);
    Register_DeathCommand();
    send_key_rotations("remove");
}

// --- Stage 2 ---

static constexpr const char* notices[] = {"PNL", "SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4"};

void InitialCommand2()
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "InitialCommand2() Called.");
    subscribe(initial_2);
    Get_DeviceType();
    SelfDiag_Refresh_All();
}

void DeathCommand2()
{
    unsubscribe(initial_2);
    for (const char* unit : notices)
        Net_SendCommandFormat("put Info@Self Diagnosis Notice@%s#false", unit);
}

void InitialCommand_MP2()
{
    KF_InitCommand_MP2();
    Register_InitCommand_MP2();
}

// --- The status hub ---

constexpr int HUB_UNITS = 2; // clip stores and switchers whose file tables are followed
static constexpr const char* clip_store_tables[] = {"ClipStoreInfo", "ClipStoreFolder",
                                                    "ClipStoreFile"};

static void listen_files(const char* unit, int number)
{
    Net_SendSHPCommandFormat("Listen#%s%d.File", unit, number);
    char target[16];
    PrintText(target, "%s%d", unit, number);
    Filescp_trnasferlist_init(target);
}

// Call with the unit number of each device that belongs to this panel.
static void for_own_units(DEVICE* const* own, int count, void (*call)(int number))
{
    for (int i = 0; i < count && i < DEVICE_MAX; i++)
        if (own[i])
            call(Device_UnitNumber(*own[i]));
}

static void listen_clip_store(int number)
{
    for (const char* table : clip_store_tables)
        Net_SendSHPCommandFormat("Listen#CS%d.%s", number, table);
}

static void listen_panel(int number)
{
    listen_files("PNL", number);
}

void InitialCommandSHP()
{
    for_own_units(DEV_MySwr, SYS_MySwrMax > 0 ? 1 : 0, listen_clip_store);
    for_own_units(DEV_MyPnl, SYS_MyPnlMax, listen_panel);
    for (int n = 1; n <= HUB_UNITS; n++) {
        listen_files("CS", n);
        listen_files("SWR", n);
    }
}

static void unlisten_clip_store(int number)
{
    for (size_t i = std::size(clip_store_tables); i-- > 0;)
        Net_SendSHPCommandFormat("Unlisten#CS%d.%s", number, clip_store_tables[i]);
}

static void unlisten_panel(int number)
{
    Net_SendSHPCommandFormat("Unlisten#PNL%d.File", number);
}

void DeathCommandSHP()
{
    for_own_units(DEV_MySwr, SYS_MySwrMax, unlisten_clip_store);
    for_own_units(DEV_MyPnl, SYS_MyPnlMax, unlisten_panel);
    for (int n = 1; n <= HUB_UNITS; n++) {
        Net_SendSHPCommandFormat("Unlisten#CS%d.File", n);
        Net_SendSHPCommandFormat("Unlisten#SWR%d.File", n);
    }
}
