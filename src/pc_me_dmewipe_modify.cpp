// Place, size and crop of the channels of an effects-unit wipe: of a bank, whose pattern takes one
// to three channels, and of a key, where it takes one. The operator chooses channels; the keys and
// knobs act on all of them and show the leading one, the lowest chosen. The keys are bound to local
// paths, since what they stand for moves with the choice.
#include "a_bt.h"
#include "device.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me_dmewipe.h"
#include "pc_me_dmewipe_modify_private.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

#define DME_STATUS "M/E-1@Key1@Processed Key@DME Status" // one for the whole system
#define DME_ASPECT "Engineering Setup@System@Format@DME Aspect"
#define SWITCHER_ASPECT "Engineering Setup@System@Format@Switcher Aspect"

ModifyState dm;

// --- Questions ---

const _modify& modify_leading()
{
    return dm.Modify[dm.modify_ch];
}

int modify_chosen_channels()
{
    return int(std::count(dm.modify_chsel, dm.modify_chsel + dm.modify_ptn, 1));
}

bool modify_releffect()
{
    return dm.modify_relative && modify_chosen_channels() == 2 && dm.modify_chsel[0] &&
           dm.modify_chsel[1];
}

bool modify_is_small_panel()
{
    return SYS_RefPnlType == DEVTYPE_QRD33;
}

// --- Lines to the server ---

void modify_send(const char* verb, const char* path, int ch, const char* tail)
{
    Net_SendCommandFormat("%s %s@Modify@%s@%d%s", verb, dm.ModifyReg, path, ch + 1, tail);
}

static constexpr const char* ModifyPosition[] = {"H", "V"}; // by axis

void modify_send_position(const char* verb, int axis, int ch)
{
    Net_SendCommandFormat("%s %s@Modify@Position@Position@%s@%d", verb, dm.ModifyReg,
                          ModifyPosition[axis], ch + 1);
}

void modify_put_position(int axis, int ch, const char* kind, double v)
{
    Net_SendCommandFormat("put %s@Modify@Position@Position@%s@%d#%s%.2f", dm.ModifyReg,
                          ModifyPosition[axis], ch + 1, kind, v);
}

// --- Tallies ---

// A channel that was off when it was chosen has cost the button its knobs; it comes on at once.
static void switch_tally(const ModifyFunction& f, int ch, const char* value)
{
    const int on = IsTrue(value);
    (dm.*f.active)[ch] = on;
    if (ch != dm.modify_ch)
        return;
    modify_mirror(f.path, on);
    BT_MEM* b = bt_find(f.button);
    if (on && b && f.button == dm.knobs_of && BT_GetKnobAssign() < 0)
        bt_take_knobs(b);
}

// True when the picture has come to a corner or left one.
static bool take_corners(_modify& m)
{
    bool moved = false;
    for (const ModifyCorner& c : modify_corners) {
        const int is_there = m.h == c.h && m.v == c.v;
        moved |= m.*c.is_there != is_there;
        m.*c.is_there = is_there;
    }
    return moved;
}

static void value_tally(const ModifyValue& what, int ch, const char* value)
{
    const double number = strtod(value, nullptr);
    _modify& m = dm.Modify[ch];
    if (!std::isfinite(number) || m.*what.value == number)
        return;
    m.*what.value = number;
    if (take_corners(m) && ch == dm.modify_ch)
        modify_mirror_corners();
    if (ch == dm.modify_ch || modify_releffect())
        modify_show_boxes();
}

// rest: what stands behind "...@Modify@". The channel is its last word.
static void channel_tally(const char* rest, const char* value)
{
    const char* at = strrchr(rest, '@');
    const int ch = at ? IndexFrom1(at + 1, dm.modify_ptn) : -1;
    if (ch < 0)
        return;
    const auto is = [&](const char* path) {
        return strlen(path) == size_t(at - rest) && BeginsWith(rest, path);
    };
    for (const ModifyFunction& f : modify_functions)
        if (is(f.path))
            switch_tally(f, ch, value);
    for (const ModifyValue& v : modify_values)
        if (is(v.path))
            value_tally(v, ch, value);
}

static int modify_tally(const char* path, const char* value)
{
    const size_t reg = strlen(dm.ModifyReg);
    if (Same(path, dm.PatternCmd))
        modify_pattern_tly(value);
    else if (Same(path, DME_ASPECT))
        modify_dme_aspect_tally(value);
    else if (Same(path, DME_STATUS))
        Net_SendCommand("read " DME_ASPECT); // a DME has gone to another wipe
    else if (BeginsWith(path, dm.ModifyReg) && BeginsWith(path + reg, "@Modify@"))
        channel_tally(path + reg + strlen("@Modify@"), value);
    else if (Same(path, SWITCHER_ASPECT) || StrIStr(path, "Transition Type"))
        (void)modify_crop_mask(); // of the bank; of the key, whose buttons have just followed it
    return 0;
}

// --- Keys ---

static void press_function(const ModifyFunction& f)
{
    dm.knobs_of = 0;
    const char* value = (dm.*f.active)[dm.modify_ch] ? "#false" : "#true";
    modify_for_chosen([&](int ch) { modify_send("put", f.path, ch, value); });
}

static void press_corner(const ModifyCorner& c)
{
    modify_for_chosen([&](int ch) {
        modify_put_position(0, ch, "", c.h);
        modify_put_position(1, ch, "", c.v);
    });
}

static void press_relative()
{
    dm.modify_relative = !dm.modify_relative;
    modify_mirror("Position@Relative", dm.modify_relative);
    modify_show_boxes();
}

// key: the path behind "LOCAL@Modify@".
static int modify_press(const char* key)
{
    for (const ModifyFunction& f : modify_functions)
        if (Same(key, f.path))
            press_function(f);
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++)
        if (Same(key, modify_channel_keys[ch].path))
            modify_chselect_sel(ch);
    for (const ModifyCorner& c : modify_corners)
        if (Same(key, c.path))
            press_corner(c);
    if (Same(key, "Position@Relative"))
        press_relative();
    dm.crop = {}; // a crop to 4:3 moves the edges from elsewhere
    for (const char* action : {"Position@Center", "Crop Mode@4:3 Crop"})
        if (Same(key, action))
            modify_for_chosen([&](int ch) { modify_send("put", action, ch, "#true"); });
    return 0;
}

static int modify_button(const char* path, bool only_knobs)
{
    if (only_knobs || !BeginsWith(path, LOCAL_MODIFY))
        return 0;
    return modify_press(path + strlen(LOCAL_MODIFY));
}

// --- The page ---

constexpr uint32_t PAGE_REMOVE_FROM_BEGIN = 0x11600007;
constexpr int BTN_REMOVE_FROM_BEGIN = 54;

// But for the third channel's key on the small panel, which hides it.
static void disable_all()
{
    static constexpr int buttons[] = {BTN_POSITION, BTN_CENTER, BTN_RELATIVE,    BTN_CROP,
                                      BTN_CROP_4_3, BTN_SIZE,   BTN_TOP_LEFT,    BTN_TOP_RIGHT,
                                      BTN_1ST_CH,   BTN_2ND_CH, BTN_BOTTOM_LEFT, BTN_BOTTOM_RIGHT};
    for (const int id : buttons)
        BT_SetDisable(id, 1);
    if (!modify_is_small_panel())
        BT_SetDisable(BTN_3RD_CH, 1);
}

// max_channels: that a pattern may take.
static int modify_create(int on, int max_channels)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", dm.PatternCmd);
        Net_SendCommand("remove " DME_STATUS);
        modify_leave_pattern();
        return 1;
    }
    dm = {};
    dm.max_channels = max_channels;
    dmewipe_path(dm.ModifyReg, "");
    dmewipe_path(dm.PatternCmd, "@Pattern Select@Pattern");
    dm.off = dmewipe_is_off();
    if (dm.off)
        disable_all();
    Net_SendCommand("read " DME_ASPECT);
    Net_SendCommand("add " DME_STATUS);
    Net_SendCommandFormat("add %s", dm.PatternCmd);
    if (modify_is_small_panel())
        BT_SetCutoff(BTN_3RD_CH, 1);
    modify_show_channels(); // none until the pattern is known
    (void)modify_crop_mask();
    return 0;
}

static double number_at(MsgArg a)
{
    return *reinterpret_cast<const double*>(a);
}

// The boxes of the crop tell their exact value by this message on most banks, and by the one for
// fractions on the others; the whole number that comes along with the latter is of no use.
static int modify_knobvar(int box, MsgArg value, bool from_screen)
{
    if (from_screen || BT_GetKnobAssign() != BTN_CROP)
        return 0;
    return modify_set(box, number_at(value));
}

static int pc_me_dmewipe_modify_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return modify_tally(Text(ax), Text(bx));
    case MSG_REDRAW: Crop_Pass(dm.crop, int(ax)); return 0;
    case LMSG_BTNSEL: return modify_button(Text(ax), cx != 0);
    case LMSG_KNOBCREATE: modify_show_boxes(); return 0;
    case LMSG_KNOBDIFF: return modify_turn(int(ax), number_at(bx));
    case LMSG_KNOBVAR: return modify_knobvar(int(ax), bx, cx != 0);
    case LMSG_KNOBFVAR: return modify_set(int(ax), number_at(bx));
    case LMSG_KNOBDEFAULT: return modify_default(int(ax));
    default: return 0;
    }
}

// The page behind the key is one of the newer switchers, and of the main sides, which alone have
// the key.
static bool has_remove_page()
{
    uint32_t id = PAGE_REMOVE_FROM_BEGIN;
    AddPageOffset(&id);
    return SearchPageTable(id) != nullptr;
}

static int pc_me_dmewipe_modify_create(int on, uint32_t)
{
    if (on && !has_remove_page())
        BT_SetCutoff(BTN_REMOVE_FROM_BEGIN, 1);
    return modify_create(on, PATTERN_CHANNELS);
}

static int pc_me_key_trans_dmewipead_create(int on, uint32_t)
{
    return modify_create(on, 1);
}

const PC_TBL pc_me_dmewipe_modify = {pc_me_dmewipe_modify_proc, pc_me_dmewipe_modify_create};
const PC_TBL pc_me_key_trans_dmewipead = {pc_me_dmewipe_modify_proc,
                                          pc_me_key_trans_dmewipead_create};
