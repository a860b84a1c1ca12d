// The boxes of the modify page: they show the leading channel, and what their knobs, the ten keys
// and the default key tell goes to all chosen channels.
#include "a_bt.h"
#include "a_nb.h"
#include "netio.h"
#include "pc_me_dmewipe_modify_private.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include "safeguards.h"

// The edge that a crop knob's box shows, in a channel.
static constexpr double _modify::*crop_edges[CROP_EDGES] = {&_modify::top, &_modify::left,
                                                            &_modify::right, &_modify::bottom};

static double crop_shown(int knob)
{
    return modify_leading().*crop_edges[crop_knobs[knob].shown];
}

// --- What the boxes show ---

// In relative mode a box shows how far the first channel is from the second.
static void show_position()
{
    const bool relative = modify_releffect();
    const double far = relative ? 400 : 200;
    const _modify& leading = modify_leading();
    const _modify& other = dm.Modify[1];
    const double shown[] = {relative ? leading.h - other.h : leading.h,
                            relative ? leading.v - other.v : leading.v};
    static constexpr const char* captions[][2] = {{"H Pos", "V Pos"}, {"H Distance", "V Distance"}};
    for (int axis = 0; axis < 2; axis++) {
        NB_SetCaption(axis + 1, captions[relative][axis]);
        NB_AddMinMax(axis + 1, -far, far);
        NB_SetVar(axis + 1, shown[axis]);
    }
}

void modify_show_boxes()
{
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: show_position(); break;
    case BTN_SIZE: NB_SetVar(1, modify_leading().size); break;
    case BTN_CROP:
        for (int knob = 0; knob < CROP_KNOBS; knob++)
            NB_SetVar(knob + 1, crop_shown(knob));
        break;
    default: break;
    }
}

// --- Position ---

// Two channels that move against each other are told again.
static void read_back(int axis)
{
    if (!modify_releffect())
        return;
    modify_send_position("read", axis, 0);
    modify_send_position("read", axis, 1);
}

static void turn_position(int axis, double step)
{
    const bool relative = modify_releffect();
    modify_for_chosen(
        [&](int ch) { modify_put_position(axis, ch, "diff", relative && ch == 1 ? -step : step); });
    read_back(axis);
}

// The number is how far apart the two are: each takes half of it, to its side of the middle.
static void modify_relative_input(int axis, double number)
{
    const double half = std::fabs(number / 2);
    const double first = number < 0 ? -half : half;
    modify_put_position(axis, 0, "", first);
    modify_put_position(axis, 1, "", 0 - first);
    read_back(axis);
}

static void set_position(int axis, double v)
{
    if (modify_releffect())
        modify_relative_input(axis, v);
    else
        modify_for_chosen([&](int ch) { modify_put_position(axis, ch, "", v); });
}

// --- Size ---

static void put_size(const char* kind, double v)
{
    modify_for_chosen([&](int ch) {
        Net_SendCommandFormat("put %s@Modify@Size@Size@%d#%s%.2f", dm.ModifyReg, ch + 1, kind, v);
    });
}

// --- Crop ---

template <typename Act> static void for_edges(int knob, Act act)
{
    modify_for_chosen([&](int ch) {
        if (!dm.modify_cropactive[ch])
            return;
        for (const auto& m : crop_knobs[knob].moved)
            if (m.sense)
                act(ch, m.edge, m.sense);
    });
}

static void put_crop(int knob, double place)
{
    if (!std::isfinite(place))
        return;
    for_edges(knob, [&](int ch, CropEdge edge, int sense) {
        Net_SendCommandFormat("put %s@Modify@Crop Mode@Crop@%s@%d#%.2f", dm.ModifyReg,
                              CROP_WORDS[edge], ch + 1, Crop_Value(sense, place));
    });
}

// The edges stay together: all go to where the leading channel's shown one goes.
static void turn_crop(int knob, double step)
{
    put_crop(knob, Crop_Turn(dm.crop, knob, crop_shown(knob), step / 100));
}

static void default_crop(int knob)
{
    dm.crop = {};
    for_edges(knob, [](int ch, CropEdge edge, int) {
        Net_SendCommandFormat("default %s@Modify@Crop Mode@Crop@%s@%d", dm.ModifyReg,
                              CROP_WORDS[edge], ch + 1);
    });
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

// From a box to the knob of the button that owns the column, from 0; -1 when it has no such knob.
static int knob_of(int box)
{
    static constexpr struct {
        int button, knobs;
    } owners[] = {{BTN_POSITION, 2}, {BTN_SIZE, 1}, {BTN_CROP, CROP_KNOBS}};
    for (const auto& o : owners)
        if (o.button == BT_GetKnobAssign() && box >= 1 && box <= o.knobs)
            return box - 1;
    return -1;
}

int modify_turn(int box, double steps)
{
    const int knob = knob_of(box);
    const int step = modify_position_knobsel(int(std::clamp(std::round(steps), -99.0, 99.0)));
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

int modify_set(int box, double v)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION: set_position(knob, v); break;
    case BTN_SIZE: put_size("", v); break;
    case BTN_CROP: put_crop(knob, Crop_Place(dm.crop, knob, v)); break;
    default: break;
    }
    return 0;
}

int modify_default(int box)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    switch (BT_GetKnobAssign()) {
    case BTN_POSITION:
        modify_for_chosen([&](int ch) { modify_send_position("default", knob, ch); });
        break;
    case BTN_SIZE:
        modify_for_chosen([](int ch) { modify_send("default", "Size@Size", ch); });
        break;
    case BTN_CROP: default_crop(knob); break;
    default: break;
    }
    return 0;
}
