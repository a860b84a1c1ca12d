// The pages of a processed key. The eight channels of the effects units serve all banks: who uses
// which is one tally for the whole system, and a channel of another key is taken only on purpose,
// with Override.
#include "bus.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

#define PROCKEY "M/E-1@Key1@Processed Key@" // of the whole system: not that of a bank
#define LOCAL_PROCKEY "LOCAL@Processed Key@"

namespace
{
constexpr int DME_CHANNELS = 8;
constexpr char STATUS_CMD[] = PROCKEY "DME Status";
constexpr char MONITOR_CMD[] = PROCKEY "Monitor";
constexpr int BTN_SELECT[DME_CHANNELS] = {33, 34, 35, 36, 49, 50, 51, 52};
constexpr int BTN_OVERRIDE = 37;
constexpr int BTN_MONITOR[DME_CHANNELS] = {17, 18, 19, 20, 33, 34, 35, 36};

struct Channel {
    char user[64] = ""; // "M/E-2@Key1"; "" free
    bool is_missing = false;
    bool is_on = false; // selected for the key of the page
    char caption[80] = "";
};
} // namespace

static struct {
    const int* Buttons = nullptr;  // the page's button of each channel
    char Own[128] = "";            // "M/E-1@Key1", as a user in the status
    char SelectCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Processed Key@DME Select@DME"; the number follows
    char OverrideCmd[CMD_SIZE] = ""; // likewise
    int Prockey_Override = 0;        // the next channel may be one of another key
    int Monitor = 0;                 // channel on the monitor, 0 none
    Channel Dme[DME_CHANNELS];
} pk; // valid from create(1) to create(0)

// --- Who uses the channels ---

static bool is_anothers(const Channel& c)
{
    return c.user[0] && !Same(c.user, pk.Own);
}

// The user stands below the number, a word a line.
static void show_user(int n)
{
    Channel& c = pk.Dme[n];
    PrintText(c.caption, "DME%d%s%s", n + 1, c.user[0] ? "\n" : "", c.user);
    std::replace(std::begin(c.caption), std::end(c.caption), '@', '\n');
    (void)BT_SetCaption(pk.Buttons[n], c.caption); // never null
}

// One part of the status: "None" for a channel that isn't fitted, "Free", or bank and key.
static void take_user(int n, const char* word)
{
    Channel& c = pk.Dme[n];
    c.is_missing = Same(word, "None");
    CopyText(c.user, c.is_missing || Same(word, "Free") ? "" : word);
    show_user(n);
}

static bool status_tally(const char* value)
{
    Parts parts;
    if (SplitValue(parts, value, DME_CHANNELS) < DME_CHANNELS)
        return false;
    char* const last = parts.v[DME_CHANNELS - 1];
    last[strcspn(last, ",")] = '\0'; // channels beyond those that a key can have
    for (int n = 0; n < DME_CHANNELS; n++)
        take_user(n, parts.v[n]);
    return true;
}

// The number behind a prefix as a channel from 0; -1 for another path.
static int channel_behind(const char* path, const char* prefix)
{
    return BeginsWith(path, prefix) ? Index(path + strlen(prefix), DME_CHANNELS + 1) - 1 : -1;
}

static void open_channels(const int* buttons)
{
    pk = {};
    pk.Buttons = buttons;
    PrintText(pk.Own, "%s@%s", GL_NowTree[0], GL_NowTree[1]);
    PrintText(pk.SelectCmd, "%s@Processed Key@DME Select@DME", pk.Own);
    PrintText(pk.OverrideCmd, "%s@Processed Key@Override@DME", pk.Own);
    Net_SendCommandFormat("add %s", STATUS_CMD);
}

// --- Selection ---

// An armed mode has the look of the third state.
static void show_override()
{
    SendDummyTally(LOCAL_PROCKEY "Override#false");
    if (pk.Prockey_Override)
        (void)BT_SetStatus(BTN_OVERRIDE, BT_THIRD); // the button is there
}

// In use by another key is the third state of a button.
static void show_channel(int n)
{
    const Channel& c = pk.Dme[n];
    ME_Mirror(LOCAL_PROCKEY "DME Select@DME%d#%s", n + 1, Bool(c.is_on));
    if (is_anothers(c))
        (void)BT_SetStatus(BTN_SELECT[n], BT_THIRD); // the button is there
    ME_DisableKey(BTN_SELECT[n], c.is_missing || (is_anothers(c) && !pk.Prockey_Override));
}

static void show_channels()
{
    for (int n = 0; n < DME_CHANNELS; n++)
        show_channel(n);
}

static void set_override(int on)
{
    pk.Prockey_Override = on;
    show_override();
    show_channels();
}

static int prockey_tally(const char* path, const char* value)
{
    if (Same(path, STATUS_CMD)) {
        if (status_tally(value))
            show_channels();
    } else if (const int n = channel_behind(path, pk.SelectCmd); n >= 0) {
        pk.Dme[n].is_on = IsTrue(value);
        show_channel(n);
    }
    return 0;
}

static void press_channel(int n)
{
    const char* cmd = pk.Prockey_Override ? pk.OverrideCmd : pk.SelectCmd;
    const bool is_ours = pk.Dme[n].is_on && !is_anothers(pk.Dme[n]);
    if (pk.Prockey_Override)
        set_override(0);
    Net_SendCommandFormat("put %s%d#%s", cmd, n + 1, ToggleBool(is_ours));
}

static int prockey_press(const char* path)
{
    if (Same(path, LOCAL_PROCKEY "Override"))
        set_override(!pk.Prockey_Override);
    else if (const int n = channel_behind(path, LOCAL_PROCKEY "DME Select@DME"); n >= 0)
        press_channel(n);
    return 0;
}

static void subscribe_selection(const char* verb)
{
    for (int n = 1; n <= DME_CHANNELS; n++)
        Net_SendCommandFormat("%s %s%d", verb, pk.SelectCmd, n);
}

static int pc_me_key_prockey_create(int on, uint32_t)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", STATUS_CMD);
        subscribe_selection("remove");
        return 1;
    }
    open_channels(BTN_SELECT);
    subscribe_selection("add");
    show_override();
    return 0;
}

static int pc_me_key_prockey_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return prockey_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return prockey_press(Text(ax));
    default: return 0;
    }
}

// --- Monitor ---

static int monitor_tally(const char* path, const char* value)
{
    if (Same(path, STATUS_CMD)) {
        if (status_tally(value))
            for (int n = 0; n < DME_CHANNELS; n++)
                ME_DisableKey(BTN_MONITOR[n], pk.Dme[n].is_missing);
    } else if (Same(path, MONITOR_CMD)) {
        pk.Monitor = Decimal(value);
        ME_Mirror(LOCAL_PROCKEY "Monitor#%d", pk.Monitor);
    }
    return 0;
}

// A second press takes the channel off the monitor.
static int monitor_press(const char* path, const char* value)
{
    if (!Same(path, LOCAL_PROCKEY "Monitor"))
        return 0;
    const int channel = Decimal(value);
    Net_SendCommandFormat("put %s#%d", MONITOR_CMD, channel == pk.Monitor ? 0 : channel);
    return 0;
}

static int pc_me_key_prockey_mon_create(int on, uint32_t)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", STATUS_CMD);
        Net_SendCommandFormat("remove %s", MONITOR_CMD);
        return 1;
    }
    open_channels(BTN_MONITOR);
    Net_SendCommandFormat("add %s", MONITOR_CMD);
    return 0;
}

static int pc_me_key_prockey_mon_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return monitor_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return monitor_press(Text(ax), Text(bx));
    default: return 0;
    }
}

const PC_TBL pc_me_key_prockey = {pc_me_key_prockey_proc, pc_me_key_prockey_create};
const PC_TBL pc_me_key_prockey_mon = {pc_me_key_prockey_mon_proc, pc_me_key_prockey_mon_create};
