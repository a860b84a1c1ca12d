// Place, size and crop of the channels of an effects-unit wipe: of a bank, whose pattern takes one
// to three channels, and of a key, where it takes one. The operator chooses channels; the keys and
// knobs act on all of them and show the leading one, the lowest chosen. The keys are bound to local
// paths, since what they stand for moves with the choice.
//
// An edge of the crop is a place on the screen from -100 to 100: a picture that isn't cropped has
// its left edge at -100 and its right one at 100.
#include "a_bt.h"
#include "a_dw.h"
#include "a_nb.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_dmewipe.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define LOCAL_MODIFY "LOCAL@Modify@"
#define DME_STATUS "M/E-1@Key1@Processed Key@DME Status" // one for the whole system
#define DME_ASPECT "Engineering Setup@System@Format@DME Aspect"
#define SWITCHER_ASPECT "Engineering Setup@System@Format@Switcher Aspect"

namespace
{
constexpr int CHANNELS = 4; // records; a pattern takes up to three of them
constexpr int PATTERN_CHANNELS = 3;
constexpr int DMES = 8;
constexpr int DME_GROUP = 4; // DMEs that work together on one wipe
constexpr int FIRST_OF_SECOND_SET = 7001;

enum : int { // DmeFunc; below them are the keys from 0
    FUNC_WIPE = 8,
    FUNC_SUB_WIPE = 9
};

enum : int {
    BTN_POSITION = 17,
    BTN_CENTER = 18,
    BTN_RELATIVE = 19,
    BTN_CROP = 20,
    BTN_CROP_4_3 = 21,
    BTN_SIZE = 22,
    BTN_TOP_LEFT = 33,
    BTN_TOP_RIGHT = 34,
    BTN_1ST_CH = 35,
    BTN_2ND_CH = 36,
    BTN_3RD_CH = 37,
    BTN_BOTTOM_LEFT = 49,
    BTN_BOTTOM_RIGHT = 50,
};
constexpr int all_buttons[] = {17, 18, 19, 20, 21, 22, 33, 34, 35, 36, 37, 49, 50};
constexpr int channel_buttons[PATTERN_CHANNELS] = {BTN_1ST_CH, BTN_2ND_CH, BTN_3RD_CH};
constexpr const char* channel_words[PATTERN_CHANNELS] = {"1st Ch", "2nd Ch", "3rd Ch"};

// A value that no tally has told yet is not a number, and a box refuses to show it.
struct _modify {
    int tl = 0; // the picture stands in this corner
    int tr = 0;
    int bl = 0;
    int br = 0;
    double h = NAN;
    double v = NAN;
    double size = NAN;
    double top = NAN;
    double left = NAN;
    double right = NAN;
    double bottom = NAN;
    int posactive = 0;
    int sizeactive = 0;
    int cropactive = 0;
};

// What a key switches for a channel.
struct Function {
    const char* path = "";
    int _modify::*active = nullptr;
    int button = 0;
};
constexpr Function functions[] = {
    {"Position@Position", &_modify::posactive, BTN_POSITION},
    {"Size", &_modify::sizeactive, BTN_SIZE},
    {"Crop Mode@Crop", &_modify::cropactive, BTN_CROP},
};

struct Value {
    const char* path = "";
    double _modify::*value = nullptr;
};
constexpr Value values[] = {
    {"Position@Position@H", &_modify::h},
    {"Position@Position@V", &_modify::v},
    {"Size@Size", &_modify::size},
    {"Crop Mode@Crop@Top", &_modify::top},
    {"Crop Mode@Crop@Left", &_modify::left},
    {"Crop Mode@Crop@Right", &_modify::right},
    {"Crop Mode@Crop@Bottom", &_modify::bottom},
};
constexpr const char* ModifyPosition[] = {"H", "V"}; // by knob

// A corner is the place where the middle of the picture is that of the screen's corner.
struct Corner {
    const char* word = "";
    int _modify::*is_there = nullptr;
    double h = 0;
    double v = 0;
};
constexpr Corner corners[] = {
    {"Top Left", &_modify::tl, -100, 100},
    {"Top Right", &_modify::tr, 100, 100},
    {"Bttm Left", &_modify::bl, -100, -100},
    {"Bttm Right", &_modify::br, 100, -100},
};

// Each crop knob moves opposite edges towards the middle. Left of the middle and below it is
// negative.
struct Edge {
    const char* word = nullptr; // null ends a list
    int sign = 0;
};
struct CropKnob {
    int sense = 0; // the sign that its values keep to
    double _modify::*shown = nullptr;
    Edge edges[4];
};
constexpr CropKnob crop_knobs[] = {
    {-1, &_modify::left, {{"Right", -1}, {"Left", 1}}},
    {1, &_modify::top, {{"Bottom", -1}, {"Top", 1}}},
    {-1, &_modify::left, {{"Right", -1}, {"Left", 1}, {"Bottom", 1}, {"Top", -1}}},
};

// What differs between the wipe of a bank and that of a key.
struct Kind {
    int channels = 0; // that a pattern may take
};
constexpr Kind bank_kind = {PATTERN_CHANNELS};
constexpr Kind key_kind = {1};
} // namespace

static struct {
    const Kind* kind = nullptr;
    char ModifyReg[CMD_SIZE] = "";  // "M/E-1 SUB@DME Wipe", "M/E-1@Key1@Transition@DME Wipe"
    char PatternCmd[CMD_SIZE] = ""; // "M/E-1@DME Wipe@Pattern Select@Pattern"
    bool off = false;               // the bank has no such wipe now: all keys are dead
    int number = -1;                // of the pattern; -1 until the first tally
    int ptn = 0;                    // channels that it takes, whose switches are subscribed
    _modify Modify[CHANNELS];
    int chsel[CHANNELS] = {};    // chosen
    int added[CHANNELS] = {};    // its values are subscribed
    int ch = 0;                  // leading
    int nextcrop[CHANNELS] = {}; // its picture is wider than 4:3
    int relative = 0;
    int knobs_of = 0; // the button whose knobs go along to a channel just chosen, 0 none
    char DmeAsp[DMES][8] = {};
    int DmeMe[DMES] = {-1, -1, -1, -1, -1, -1, -1, -1}; // 0 PGM/PST, 1 to 5 the M/Es, -1 free
    int DmeFunc[DMES] = {-1, -1, -1, -1, -1, -1, -1, -1};
} modify; // valid from create(1) to create(0)

// --- Questions ---

static const _modify& leading()
{
    return modify.Modify[modify.ch];
}

static int chosen_channels()
{
    return int(std::count(modify.chsel, modify.chsel + modify.ptn, 1));
}

// Relative mode is of two pictures: they move against each other.
static bool modify_releffect()
{
    return modify.relative && chosen_channels() == 2 && modify.chsel[0] && modify.chsel[1];
}

// The small panel has wipes of two channels at most.
static bool is_small_panel()
{
    return SYS_RefPnlType == DEVTYPE_QRD33;
}

template <typename Act> static void for_chosen(Act act)
{
    for (int ch = 0; ch < modify.ptn; ch++)
        if (modify.chsel[ch])
            act(ch);
}

// --- Lines to the server; a channel counts from 1 there ---

static void send_channel(const char* verb, const char* path, int ch, const char* tail = "")
{
    Net_SendCommandFormat("%s %s@Modify@%s@%d%s", verb, modify.ModifyReg, path, ch + 1, tail);
}

static void put_number(const char* path, int ch, const char* kind, double v)
{
    Net_SendCommandFormat("put %s@Modify@%s@%d#%s%.2f", modify.ModifyReg, path, ch + 1, kind, v);
}

static void send_position(const char* verb, int axis, int ch)
{
    Net_SendCommandFormat("%s %s@Modify@Position@Position@%s@%d", verb, modify.ModifyReg,
                          ModifyPosition[axis], ch + 1);
}

static void send_switches(const char* verb, int ch)
{
    for (const Function& f : functions)
        send_channel(verb, f.path, ch);
}

static void add_values(int ch)
{
    modify.added[ch] = 1;
    for (const Value& value : values)
        send_channel("add", value.path, ch);
}

// The values of the previous choice.
static void modify_remove_btn()
{
    for (int ch = 0; ch < CHANNELS; ch++) {
        if (!modify.added[ch])
            continue;
        modify.added[ch] = 0;
        for (const Value& value : values)
            send_channel("remove", value.path, ch);
    }
}

// A channel that is chosen has all three switched on, so that each of its knobs takes effect.
static void modify_ch_assign()
{
    for_chosen([](int ch) {
        for (const Function& f : functions)
            send_channel("put", f.path, ch, "#true");
        add_values(ch);
    });
}

// --- What the buttons show ---

static void mirror(const char* path, int on)
{
    char line[CMD_SIZE];
    PrintText(line, LOCAL_MODIFY "%s#%s", path, Bool(on));
    SendDummyTally(line);
}

static void mirror_switches()
{
    for (const Function& f : functions)
        mirror(f.path, leading().*f.active);
}

static void mirror_corner(const Corner& c, int on)
{
    char path[64];
    PrintText(path, "Position Select@%s", c.word);
    mirror(path, on);
}

static void mirror_corners()
{
    for (const Corner& c : corners)
        mirror_corner(c, leading().*c.is_there);
}

static void mirror_channel(int ch)
{
    char path[64];
    PrintText(path, "Ch Select@%s", channel_words[ch]);
    mirror(path, modify.chsel[ch]);
}

// A page that has just opened keeps the knobs that it was left with: the tally of their function,
// which follows, decides about them.
static void clear_buttons(bool keep_knobs)
{
    for (const Function& f : functions)
        if (!keep_knobs || f.button != BT_GetKnobAssign())
            mirror(f.path, 0);
    for (const Corner& c : corners)
        mirror_corner(c, 0);
    mirror("Position@Relative", modify.relative);
}

static void show_channels()
{
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++) {
        mirror_channel(ch);
        if (!modify.off && !(ch == 2 && is_small_panel())) // that one is hidden
            BT_SetDisable(channel_buttons[ch], modify.ptn < 2 || ch >= modify.ptn);
    }
    if (!modify.off)
        BT_SetDisable(BTN_RELATIVE, modify.ptn < 2);
}

// --- Boxes ---

// In relative mode a box shows how far the first channel is from the second.
static void show_position()
{
    const bool relative = modify_releffect();
    const double far = relative ? 400 : 200;
    const _modify& other = modify.Modify[1];
    const double shown[] = {relative ? leading().h - other.h : leading().h,
                            relative ? leading().v - other.v : leading().v};
    static constexpr const char* captions[][2] = {{"H Pos", "V Pos"}, {"H Distance", "V Distance"}};
    for (int axis = 0; axis < 2; axis++) {
        NB_SetCaption(axis + 1, captions[relative][axis]);
        NB_AddMinMax(axis + 1, -far, far);
        NB_SetVar(axis + 1, shown[axis]);
    }
}

static void show_boxes()
{
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: show_position(); break;
    case BTN_SIZE: NB_SetVar(1, leading().size); break;
    case BTN_CROP:
        for (int knob = 0; knob < int(std::size(crop_knobs)); knob++)
            NB_SetVar(knob + 1, leading().*crop_knobs[knob].shown);
        break;
    default: break;
    }
}

// The place of the leading channel: its boxes and the corner that it is in.
static void modify_position_select()
{
    mirror_corners();
    show_boxes();
}

// --- 4:3 crop ---

// 0 PGM/PST, 1 to 5 the M/Es.
static int dme_bank()
{
    return (Now_disp_draw() + 1) % ME_BANKS_SHOWN;
}

static int dme_function()
{
    if (isNowPageMeKey(0)) {
        const char* key = GL_NowTree[1];
        return *key ? key[strlen(key) - 1] - '1' : -1; // "Key3", "DSK3"
    }
    return ME_IsSubPage() ? FUNC_SUB_WIPE : FUNC_WIPE;
}

// The first DME of the wipe, -1 when none works for it.
static int find_dme()
{
    const int bank = dme_bank();
    const int function = dme_function();
    for (int i = 0; i < DMES; i++)
        if (modify.DmeMe[i] == bank && modify.DmeFunc[i] == function)
            return i;
    return -1;
}

static int is_wide(int dme)
{
    return strcmp(modify.DmeAsp[dme], "4:3") != 0;
}

// The aspect of each channel from its DME. Two further channels count as one: both are as wide as
// the DME next to the first.
static void find_wide_channels()
{
    std::fill(modify.nextcrop, modify.nextcrop + CHANNELS, 0);
    const int first = find_dme();
    if (first < 0)
        return;
    modify.nextcrop[0] = is_wide(first);
    const int next = first + 1;
    if (modify.ptn < 2 || next % DME_GROUP == 0 || modify.DmeMe[next] != modify.DmeMe[first])
        return;
    for (int ch = 1; ch < modify.ptn; ch++)
        modify.nextcrop[ch] = is_wide(next);
}

// A 4:3 crop makes sense on a picture that is wider. The second set of channels has the aspect of
// the bank itself. -1, and nothing changes, when the bank has no such wipe now.
static int modify_crop_mask()
{
    constexpr int BANK_PP = 5;
    if (dmewipe_is_off())
        return -1;
    find_wide_channels();
    const int bank = Now_disp_draw();
    const bool by_dme =
        modify.number < FIRST_OF_SECOND_SET && !(is_small_panel() && bank == BANK_PP);
    const int wide = by_dme ? modify.nextcrop[modify.ch] : SYS_RefSwrScreenAspect[bank] == 1;
    BT_SetDisable(BTN_CROP_4_3, !wide || BT_GetVisible(BTN_CROP) != BT_ENABLED);
    return 0;
}

// "3,16:9,1,8": DME 3 is 16:9 and makes the wipe of M/E-1. The lines of whole units, which stand
// on the same path, have no number in front.
static void dme_aspect_tally(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 4) < 4)
        return;
    const int dme = IndexFrom1(p.v[0], DMES);
    if (dme < 0)
        return;
    CopyText(modify.DmeAsp[dme], p.v[1]);
    modify.DmeMe[dme] = Decimal(p.v[2]);
    modify.DmeFunc[dme] = Decimal(p.v[3]);
    (void)modify_crop_mask();
}

// --- Choice of channels ---

// The last one can't be let go: the choice moves on to the first that it isn't.
static void toggle_channel(int n)
{
    modify.chsel[n] = !modify.chsel[n];
    if (chosen_channels() == 0)
        modify.chsel[n == 0 ? 1 : 0] = 1;
    modify.ch = int(std::find(modify.chsel, modify.chsel + modify.ptn, 1) - modify.chsel);
}

static void modify_chselect_sel(int n)
{
    if (modify.ptn < 2 || n >= modify.ptn)
        return;
    toggle_channel(n);
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++)
        mirror_channel(ch);
    if (BT_GetKnobAssign() > 0)
        modify.knobs_of = BT_GetKnobAssign();
    modify_remove_btn();
    send_switches("add", modify.ch); // subscribed already: added once more, they are told anew
    mirror_switches();
    modify_position_select(); // also with its position off: what was on show is another channel's
    modify_ch_assign();
    (void)modify_crop_mask();
}

// --- Tallies ---

static void leave_pattern()
{
    for (int ch = 0; ch < modify.ptn; ch++)
        send_switches("remove", ch);
    modify_remove_btn();
}

static void modify_pattern_tly(const char* value)
{
    const int number = Decimal(value);
    if (number == modify.number)
        return;
    const bool is_first = modify.number < 0;
    leave_pattern();
    modify.number = number;
    modify.ptn = std::min(DW_ChannelsOf(number), modify.kind->channels);
    modify.ch = 0;
    std::fill(modify.Modify, modify.Modify + CHANNELS, _modify{});
    std::fill(modify.chsel, modify.chsel + CHANNELS, 0);
    modify.chsel[0] = modify.ptn > 0;
    modify.relative = 0;
    clear_buttons(is_first);
    show_channels();
    for (int ch = 0; ch < modify.ptn; ch++) {
        send_switches("add", ch);
        send_position("read", 0, ch);
        send_position("read", 1, ch);
    }
    for_chosen(add_values);
    (void)modify_crop_mask();
}

// A channel that was off when it was chosen has cost the button its knobs; it comes on at once.
static void switch_tally(const Function& f, int ch, const char* value)
{
    const int on = IsTrue(value);
    modify.Modify[ch].*f.active = on;
    if (ch != modify.ch)
        return;
    mirror(f.path, on);
    BT_MEM* b = bt_find(f.button);
    if (on && b && f.button == modify.knobs_of && BT_GetKnobAssign() < 0)
        bt_take_knobs(b);
}

// True when the picture has come to a corner or left one.
static bool take_corners(_modify& m)
{
    bool moved = false;
    for (const Corner& c : corners) {
        const int is_there = m.h == c.h && m.v == c.v;
        moved |= m.*c.is_there != is_there;
        m.*c.is_there = is_there;
    }
    return moved;
}

static void value_tally(const Value& what, int ch, const char* value)
{
    const double number = strtod(value, nullptr);
    _modify& m = modify.Modify[ch];
    if (!std::isfinite(number) || m.*what.value == number)
        return;
    m.*what.value = number;
    if (take_corners(m) && ch == modify.ch)
        mirror_corners();
    if (ch == modify.ch || modify_releffect())
        show_boxes();
}

// rest: what stands behind "...@Modify@". The channel is its last word.
static void channel_tally(const char* rest, const char* value)
{
    const char* at = strrchr(rest, '@');
    const int ch = at ? IndexFrom1(at + 1, modify.ptn) : -1;
    if (ch < 0)
        return;
    const auto is = [&](const char* path) {
        return strlen(path) == size_t(at - rest) && BeginsWith(rest, path);
    };
    for (const Function& f : functions)
        if (is(f.path))
            switch_tally(f, ch, value);
    for (const Value& v : values)
        if (is(v.path))
            value_tally(v, ch, value);
}

static int modify_tally(const char* path, const char* value)
{
    const size_t reg = strlen(modify.ModifyReg);
    if (strcmp(path, modify.PatternCmd) == 0)
        modify_pattern_tly(value);
    else if (strcmp(path, DME_ASPECT) == 0)
        dme_aspect_tally(value);
    else if (strcmp(path, DME_STATUS) == 0)
        Net_SendCommand("read " DME_ASPECT); // a DME has gone to another wipe
    else if (BeginsWith(path, modify.ModifyReg) && BeginsWith(path + reg, "@Modify@"))
        channel_tally(path + reg + strlen("@Modify@"), value);
    else if (strcmp(path, SWITCHER_ASPECT) == 0 || StrIStr(path, "Transition Type"))
        (void)modify_crop_mask(); // of the bank; of the key, whose buttons have just followed it
    return 0;
}

// --- Knobs ---

// A knob goes the faster the more steps it makes in a pass. In hundredths, with the sign of the
// steps.
static int modify_position_knobsel(int steps)
{
    static constexpr int knob_calc_tbl[] = {0,    8,    32,   76,   155,  284,  478,
                                            752,  1121, 1600, 2204, 2933, 3787, 4766,
                                            5870, 7099, 8453, 9932, 11536};
    const int n = std::min(std::abs(steps), int(std::size(knob_calc_tbl)) - 1);
    return steps < 0 ? -knob_calc_tbl[n] : knob_calc_tbl[n];
}

// Two channels that move against each other are told again.
static void read_back(int axis)
{
    if (!modify_releffect())
        return;
    send_position("read", axis, 0);
    send_position("read", axis, 1);
}

static const char* position_path(int axis)
{
    return values[axis].path;
}

static void turn_position(int axis, double step)
{
    const bool relative = modify_releffect();
    for_chosen([&](int ch) {
        put_number(position_path(axis), ch, "diff", relative && ch == 1 ? -step : step);
    });
    read_back(axis);
}

// The number is how far apart the two are: each takes half of it, to its side of the middle.
static void modify_relative_input(int axis, double number)
{
    const double half = std::fabs(number / 2);
    const double first = number < 0 ? -half : half;
    put_number(position_path(axis), 0, "", first);
    put_number(position_path(axis), 1, "", 0 - first);
    read_back(axis);
}

static void set_position(int axis, double v)
{
    if (modify_releffect())
        modify_relative_input(axis, v);
    else
        for_chosen([&](int ch) { put_number(position_path(axis), ch, "", v); });
}

static void put_size(const char* kind, double v)
{
    for_chosen([&](int ch) { put_number("Size@Size", ch, kind, v); });
}

template <typename Act> static void for_edges(int knob, Act act)
{
    for_chosen([&](int ch) {
        if (!modify.Modify[ch].cropactive)
            return;
        for (const Edge& e : crop_knobs[knob].edges)
            if (e.word)
                act(ch, e);
    });
}

// What goes beyond the middle counts as the middle.
static void set_crop(int knob, double v)
{
    const double within = crop_knobs[knob].sense < 0 ? std::min(v, 0.0) : std::max(v, 0.0);
    for_edges(knob, [&](int ch, const Edge& e) {
        char path[64];
        PrintText(path, "Crop Mode@Crop@%s", e.word);
        put_number(path, ch, "", e.sign < 0 ? 0 - within : within);
    });
}

// The edges stay together, so a turn starts from what the box shows.
static void turn_crop(int knob, double step)
{
    const double shown = leading().*crop_knobs[knob].shown;
    if (std::isfinite(shown))
        set_crop(knob, std::clamp(shown + step / 100, -100.0, 100.0));
}

// From a box to the knob of the button that owns the column, from 0; -1 when it has no such knob.
static int knob_of(int box)
{
    static constexpr struct {
        int button, knobs;
    } owners[] = {{BTN_POSITION, 2}, {BTN_SIZE, 1}, {BTN_CROP, int(std::size(crop_knobs))}};
    for (const auto& o : owners)
        if (o.button == BT_GetKnobAssign() && box >= 1 && box <= o.knobs)
            return box - 1;
    return -1;
}

static int modify_turn(int box, double counts)
{
    const int knob = knob_of(box);
    const int step = modify_position_knobsel(int(std::clamp(std::round(counts), -99.0, 99.0)));
    if (knob < 0 || step == 0)
        return 0;
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: turn_position(knob, step); break;
    case BTN_SIZE: put_size("diff", step); break;
    case BTN_CROP: turn_crop(knob, step); break;
    default: break;
    }
    return 0;
}

// From the ten keys, the bar and the wheel.
static int modify_set(int box, double v)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: set_position(knob, v); break;
    case BTN_SIZE: put_size("", v); break;
    case BTN_CROP: set_crop(knob, v); break;
    default: break;
    }
    return 0;
}

// The boxes of the crop tell their exact value by this message on most banks, and by the one for
// fractions on the others; the whole number that comes along with the latter is of no use.
static int modify_knobvar(int box, MsgArg value, bool from_screen)
{
    if (from_screen || BT_GetKnobAssign() != BTN_CROP)
        return 0;
    return modify_set(box, *reinterpret_cast<const double*>(value));
}

static void default_crop(int knob)
{
    for_edges(knob, [](int ch, const Edge& e) {
        Net_SendCommandFormat("default %s@Modify@Crop Mode@Crop@%s@%d", modify.ModifyReg, e.word,
                              ch + 1);
    });
}

static int modify_default(int box)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: for_chosen([&](int ch) { send_position("default", knob, ch); }); break;
    case BTN_SIZE: for_chosen([](int ch) { send_channel("default", "Size@Size", ch); }); break;
    case BTN_CROP: default_crop(knob); break;
    default: break;
    }
    return 0;
}

// --- Keys ---

static void press_function(const Function& f)
{
    modify.knobs_of = 0;
    const char* value = leading().*f.active ? "#false" : "#true";
    for_chosen([&](int ch) { send_channel("put", f.path, ch, value); });
}

static void press_corner(const Corner& c)
{
    for_chosen([&](int ch) {
        put_number(position_path(0), ch, "", c.h);
        put_number(position_path(1), ch, "", c.v);
    });
}

static void press_relative()
{
    modify.relative = !modify.relative;
    mirror("Position@Relative", modify.relative);
    show_boxes();
}

// key: the path behind "LOCAL@Modify@".
static int modify_press(const char* key)
{
    char path[64];
    for (const Function& f : functions)
        if (strcmp(key, f.path) == 0)
            press_function(f);
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++) {
        PrintText(path, "Ch Select@%s", channel_words[ch]);
        if (strcmp(key, path) == 0)
            modify_chselect_sel(ch);
    }
    for (const Corner& c : corners) {
        PrintText(path, "Position Select@%s", c.word);
        if (strcmp(key, path) == 0)
            press_corner(c);
    }
    if (strcmp(key, "Position@Relative") == 0)
        press_relative();
    for (const char* action : {"Position@Center", "Crop Mode@4:3 Crop"})
        if (strcmp(key, action) == 0)
            for_chosen([&](int ch) { send_channel("put", action, ch, "#true"); });
    return 0;
}

static int modify_button(const char* path, bool only_knobs)
{
    if (only_knobs || !BeginsWith(path, LOCAL_MODIFY))
        return 0;
    return modify_press(path + strlen(LOCAL_MODIFY));
}

// --- The page ---

static int modify_create(int on, const Kind* kind)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", modify.PatternCmd);
        Net_SendCommand("remove " DME_STATUS);
        leave_pattern();
        return 1;
    }
    modify = {};
    modify.kind = kind;
    dmewipe_root(modify.ModifyReg);
    PrintText(modify.PatternCmd, "%.900s@Pattern Select@Pattern", modify.ModifyReg);
    modify.off = dmewipe_is_off();
    if (modify.off)
        for (const int id : all_buttons)
            if (id != BTN_3RD_CH || !is_small_panel())
                BT_SetDisable(id, 1);
    Net_SendCommand("read " DME_ASPECT);
    Net_SendCommand("add " DME_STATUS);
    Net_SendCommandFormat("add %s", modify.PatternCmd);
    if (is_small_panel())
        BT_SetCutoff(BTN_3RD_CH, 1);
    show_channels(); // none until the pattern is known
    (void)modify_crop_mask();
    return 0;
}

static int pc_me_dmewipe_modify_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return modify_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return modify_button(Text(ax), cx != 0);
    case LMSG_KNOBCREATE: show_boxes(); return 0;
    case LMSG_KNOBDIFF: return modify_turn(int(ax), *reinterpret_cast<const double*>(bx));
    case LMSG_KNOBVAR: return modify_knobvar(int(ax), bx, cx != 0);
    case LMSG_KNOBFVAR: return modify_set(int(ax), *reinterpret_cast<const double*>(bx));
    case LMSG_KNOBDEFAULT: return modify_default(int(ax));
    default: return 0;
    }
}

static int pc_me_dmewipe_modify_create(int on, uint32_t)
{
    return modify_create(on, &bank_kind);
}

static int pc_me_key_trans_dmewipead_create(int on, uint32_t)
{
    return modify_create(on, &key_kind);
}

const PC_TBL pc_me_dmewipe_modify = {pc_me_dmewipe_modify_proc, pc_me_dmewipe_modify_create};
const PC_TBL pc_me_key_trans_dmewipead = {pc_me_dmewipe_modify_proc,
                                          pc_me_key_trans_dmewipead_create};
