// Border and crop of a processed key. The server has the four edges of the crop; a box for two or
// four of them at once exists only here, shows one of its edges and moves them all.
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me_crop.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int FIRST_BOX = 17; // the boxes of the second layer are the knobs in their order
constexpr int BTN_CROP = 33;
constexpr int BTN_CROP_4_3 = 34;
constexpr struct {
    int button;
    bool needs_mix;
} fill_buttons[] = {{20, false}, {21, false}, {22, true}, {36, false}, {37, true}, {38, true}};
} // namespace

static struct {
    char CropCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Processed Key@Border/Crop@Crop@"; the edge follows
    char PageCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Processed Key@Border/Crop@"
    double Edge[CROP_EDGES] = {NAN, NAN, NAN, NAN}; // not a number until the server has told it
    CropRun Run;
    bool IsBorder = false;
    bool IsMix = false;
    bool IsCrop = false;
} Crop; // valid from create(1) to create(0)

static void show_border_greys()
{
    for (const auto& f : fill_buttons)
        ME_DisableKey(f.button, !Crop.IsBorder || (f.needs_mix && !Crop.IsMix));
    ME_DisableKey(BTN_CROP_4_3, !Crop.IsCrop);
}

static void show_crop_boxes()
{
    if (BT_GetKnobAssign() != BTN_CROP)
        return;
    for (int knob = 0; knob < CROP_KNOBS; knob++)
        (void)NB_SetVar(FIRST_BOX + knob, Crop.Edge[crop_knobs[knob].shown]); // refuses no number
}

static void edge_tally(const char* edge, const char* value)
{
    for (int i = 0; i < CROP_EDGES; i++) {
        if (!Same(edge, CROP_WORDS[i]))
            continue;
        char* end = nullptr;
        const double v = strtod(value, &end);
        if (end == value || !std::isfinite(v))
            return;
        Crop.Edge[i] = v;
        show_crop_boxes();
    }
}

static int bordercrop_tally(const char* path, const char* value)
{
    if (!BeginsWith(path, Crop.PageCmd))
        return 0;
    if (BeginsWith(path, Crop.CropCmd)) {
        edge_tally(path + strlen(Crop.CropCmd), value);
        return 0;
    }
    const char* setting = path + strlen(Crop.PageCmd);
    if (Same(setting, "Border"))
        Crop.IsBorder = IsTrue(value);
    else if (Same(setting, "Border Fill"))
        Crop.IsMix = Same(value, "Mix");
    else if (Same(setting, "Crop"))
        Crop.IsCrop = IsTrue(value);
    show_border_greys();
    return 0;
}

// The knob of a box, -1 for a box that is none of them.
static int knob_of(int box)
{
    const int knob = box - FIRST_BOX;
    return knob >= 0 && knob < CROP_KNOBS ? knob : -1;
}

static int put_crop(int knob, double place)
{
    if (!std::isfinite(place))
        return 0;
    for (const auto& m : crop_knobs[knob].moved)
        if (m.sense)
            Net_SendCommandFormat("put %s%s#%.2f", Crop.CropCmd, CROP_WORDS[m.edge],
                                  Crop_Value(m.sense, place));
    return 0;
}

static int reset_crop(int box)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    Crop.Run = {};
    for (const auto& m : crop_knobs[knob].moved)
        if (m.sense)
            Net_SendCommandFormat("default %s%s", Crop.CropCmd, CROP_WORDS[m.edge]);
    return 0;
}

// The boxes hand a value over by its address. On the pages of these banks it is the only message;
// on the others a rounded number comes first.
static bool var_is_address()
{
    return (GL_NowPage & 0xF00FFFFF) == 0x10060003;
}

static int take_value(int box, MsgArg address)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    const double v = *reinterpret_cast<const double*>(address);
    return std::isfinite(v) ? put_crop(knob, Crop_Place(Crop.Run, knob, v)) : 0;
}

// Counts of a knob: on from where the hand or the server has brought the edge.
static int take_difference(int box, MsgArg address)
{
    const int knob = knob_of(box);
    if (knob < 0)
        return 0;
    const double by = *reinterpret_cast<const double*>(address);
    return put_crop(knob, Crop_Turn(Crop.Run, knob, Crop.Edge[crop_knobs[knob].shown], by));
}

static void subscribe_edges(const char* verb)
{
    for (const char* edge : CROP_WORDS)
        Net_SendCommandFormat("%s %s%s", verb, Crop.CropCmd, edge);
}

static int pc_me_key_prockey_bordercrop_create(int on, uint32_t)
{
    if (!on) {
        subscribe_edges("remove");
        return 1;
    }
    Crop = {};
    PrintText(Crop.PageCmd, "%s@%s@Processed Key@Border/Crop@", GL_NowTree[0], GL_NowTree[1]);
    PrintText(Crop.CropCmd, "%.900sCrop@", Crop.PageCmd);
    subscribe_edges("add");
    show_border_greys();
    show_crop_boxes();
    return 0;
}

static int pc_me_key_prockey_bordercrop_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return bordercrop_tally(Text(ax), Text(bx));
    case MSG_REDRAW: Crop_Pass(Crop.Run, int(ax)); return 0;
    case LMSG_KNOBCREATE: show_crop_boxes(); return 0;
    case LMSG_KNOBVAR: return cx == 0 && var_is_address() ? take_value(int(ax), bx) : 0;
    case LMSG_KNOBFVAR: return take_value(int(ax), bx);
    case LMSG_KNOBDIFF: return take_difference(int(ax), bx);
    case LMSG_KNOBDEFAULT: return reset_crop(int(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_key_prockey_bordercrop = {pc_me_key_prockey_bordercrop_proc,
                                             pc_me_key_prockey_bordercrop_create};
