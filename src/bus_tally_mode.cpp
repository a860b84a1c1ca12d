// Operation modes: which pages exist in them, and whether the current one still does.
#include "a_st.h"
#include "bus_tally.h"
#include "device.h"
#include "global.h"
#include "netio.h"
#include "page.h"
#include <iterator>

#include "safeguards.h"

// --- Proc and simulcast mode of this panel ---

static constexpr const char* second_pair_paths[] = {
    "Engineering Setup@Switcher@SDI I/F@DME3",
    "Engineering Setup@Switcher@SDI I/F@DME4",
    "Engineering Setup@DME@Model@DME3",
    "Engineering Setup@DME@Model@DME4",
};
static constexpr const char* combine_paths[] = {
    "Global Effect@Ch1-Ch2@Combine@Ch2", "Global Effect@Ch3-Ch4@Combine@Ch2",
    "Global Effect@Ch5-Ch6@Combine@Ch2", "Global Effect@Ch7-Ch8@Combine@Ch2",
    "Global Effect@Ch1-Ch4@Combine@Ch1", "Global Effect@Ch1-Ch4@Combine@Ch2",
    "Global Effect@Ch1-Ch4@Combine@Ch3", "Global Effect@Ch1-Ch4@Combine@Ch4",
    "Global Effect@Ch5-Ch8@Combine@Ch5", "Global Effect@Ch5-Ch8@Combine@Ch6",
    "Global Effect@Ch5-Ch8@Combine@Ch7", "Global Effect@Ch5-Ch8@Combine@Ch8",
};

static bool contains(const char* text, const char* part)
{
    return strstr(text, part) != nullptr;
}

void Tally_FollowCombine()
{
    for (const char* path : combine_paths)
        Net_SendCommandFormat("add %s", path);
}

TallyRoute tally_operation_mode(const Tally& t)
{
    if (SYS_MyPnl < 0 || SYS_MyPnl >= UNIT_MAX || !Same(t.rest, SYS_PnlName[SYS_MyPnl]))
        return TallyRoute::Pass;

    const int before[] = {SYS_DualProc, SYS_Simul, SYS_DualSimul};
    SYS_DualProc = contains(t.value, "Dual");
    SYS_Simul = contains(t.value, "Single Simul");
    SYS_DualSimul = contains(t.value, "Dual Simul");
    const int after[] = {SYS_DualProc, SYS_Simul, SYS_DualSimul};

    if (contains(t.value, "Single Proc 3G") || contains(t.value, "Dual Proc"))
        for (const char* path : second_pair_paths)
            Net_SendCommandFormat("add %s", path);
    // Every time, not on a change only: after a restart of the server the mode is the same and its
    // subscriptions are gone. A second "add" does no harm.
    Tally_FollowCombine();
    DeviceStructure();
    if (memcmp(before, after, sizeof before) != 0 && Page && GL_CreatePage == 0)
        GL_CreatePage = Page_Nearest(GL_NowPage);
    return TallyRoute::Pass;
}

// --- Combined channels of the effects units ---

constexpr uint32_t PAGE_COMBINE_FIRST = 0x42170000; // the combine pages of Ch1-Ch4 and Ch5-Ch8
constexpr uint32_t PAGE_COMBINE_SECOND = 0x42270000;
constexpr int QUAD = 4;

static void reload_combine_page()
{
    if (GL_NowPage == PAGE_COMBINE_FIRST || GL_NowPage == PAGE_COMBINE_SECOND)
        tally_reload_page();
}

// A channel says whether it is combined with the one before it, so it takes part in a combination
// when itself or the next one says so. The first of a quad has none before it.
static void combine_quad(int first)
{
    for (int i = 0; i < QUAD; i++) {
        const bool with_previous = i > 0 && SYS_CombineCh[first + i];
        const bool with_next = i + 1 < QUAD && SYS_CombineCh[first + i + 1];
        SYS_Combine[first + i] = with_previous || with_next;
    }
}

// arg: the quad's first channel, from 0.
TallyRoute tally_combine(const Tally& t)
{
    const int channel = Index(t.rest, t.arg + QUAD + 1) - 1;
    if (channel < t.arg)
        return TallyRoute::Pass;
    const int on = IsTrue(t.value);
    if (SYS_CombineCh[channel] == on)
        return TallyRoute::Pass;
    SYS_CombineCh[channel] = on;
    combine_quad(t.arg);
    reload_combine_page();
    return TallyRoute::Pass;
}

// arg: the pair, from 0.
TallyRoute tally_combine_pair(const Tally& t)
{
    const int on = IsTrue(t.value);
    if (SYS_CombineDP[t.arg] == on)
        return TallyRoute::Pass;
    SYS_CombineDP[t.arg] = on;
    reload_combine_page();
    const uint32_t bank = GL_NowPage >> 24;
    if (bank == 0x41 || bank == 0x42)
        GL_ST_area_update_draw();
    return TallyRoute::Pass;
}

// --- Banks ---

constexpr uint32_t FIRST_KEY_PAGE = 0x11110000; // of M/E-1

// A bank that the operator may no longer touch is left for the next one that is free.
static void leave_disabled_bank()
{
    const MeBank* now = MeBank_OfPage(GL_NowPage);
    if (!now || !MeBank_IsOff(*now))
        return;
    uint32_t page = PAGE_TOP;
    for (int i = now->place + 1; i < ME_COUNT; i++) {
        if (MeBank_IsOff(me_bank[i]))
            continue;
        page = FIRST_KEY_PAGE + MeBank_Offset(me_bank[i]);
        break;
    }
    // The page that is given up must not stay the "current" one: neither history nor a reload may
    // go back to it.
    GL_NowPage = page;
    GL_CreatePage = page;
}

TallyRoute tally_me_operation(const Tally& t)
{
    const MeBank* bank = MeBank_OfWord(t.rest);
    if (!bank)
        return TallyRoute::Pass;
    SYS_MEOperation[bank->place] = Same(t.value, "Disable") ? 1 : Same(t.value, "Inhibit") ? 2 : 0;
    leave_disabled_bank();
    return TallyRoute::Pass;
}

static bool is_transition_page(uint32_t id)
{
    const uint32_t tab = id >> 16 & 0xFF;
    return MeBank_OfPage(id) && (tab == 0x17 || tab == 0x27 || tab == 0x37 || tab == 0x47);
}

TallyRoute tally_key_transition(const Tally& t)
{
    const MeBank* bank = MeBank_OfWord(t.rest);
    if (!bank)
        return TallyRoute::Pass;
    const int on = Same(t.value, "Independent") || SwitchOrNumber(t.value) != 0;
    if (*bank->key_transition == on)
        return TallyRoute::Pass;
    *bank->key_transition = on;
    if (is_transition_page(GL_NowPage))
        tally_reload_page();
    return TallyRoute::Pass;
}

// --- Formats with pages of their own ---

constexpr int FRAME_DELAYS = 4;
constexpr int FRAME_DELAY_PART = 2; // two parts of the format itself stand before them

TallyRoute tally_frame_delay(const Tally& t)
{
    Parts p;
    if (SplitValue(p, t.value, FRAME_DELAY_PART + FRAME_DELAYS) < FRAME_DELAY_PART + FRAME_DELAYS)
        return TallyRoute::Pass;
    bool changed = false;
    for (int i = 0; i < FRAME_DELAYS; i++) {
        const int mode = SwitchOrNumber(p.v[FRAME_DELAY_PART + i]);
        changed = changed || SYS_FrameDelayMode2[i] != mode;
        SYS_FrameDelayMode2[i] = mode;
    }
    if (changed)
        tally_reload_page();
    return TallyRoute::Pass;
}

static int is_on(const char* value)
{
    return Same(value, "On") || SwitchOrNumber(value) != 0;
}

// arg: the switcher, from 1. Only this panel's own counts.
TallyRoute tally_3d_mode(const Tally& t)
{
    if (SYS_MySwrMax > 0 && DEV_MySwr[0] && Device_UnitNumber(*DEV_MySwr[0]) != t.arg)
        return TallyRoute::Pass;
    SYS_3DMode = is_on(t.value);
    return TallyRoute::Pass;
}

TallyRoute tally_4k_mode(const Tally& t)
{
    SYS_4KMode = is_on(t.value);
    DeviceStructure();
    return TallyRoute::Pass;
}

// One number a board, with commas between them: in how many banks it works. A board has eight keys
// and gives them to its bank, or to two; in a finer split each bank is left with four. The boards
// are those of M/E-1 to M/E-5; the program bank is never split.
TallyRoute tally_me_split(const Tally& t)
{
    constexpr int BOARDS = int(std::size(GL_BoardMESplit));
    constexpr int MAX_WITH_ALL_KEYS = 2;
    Parts p;
    const int n = SplitValue(p, t.value, BOARDS);
    for (int i = 0; i < BOARDS; i++) {
        GL_BoardMESplit[i] = i < n ? Decimal(p.v[i]) : 0;
        GL_KeyMax[i] = GL_BoardMESplit[i] > MAX_WITH_ALL_KEYS ? 4 : 8;
    }
    return TallyRoute::Pass;
}
