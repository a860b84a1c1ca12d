// Border and crop of a processed key. The server has the four edges of the crop; a box for two or
// four of them at once exists only here, shows one of its edges and moves them all.
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

namespace
{
enum : int { TOP, LEFT, RIGHT, BOTTOM, EDGES };
constexpr const char* EDGE_WORDS[EDGES] = {"Top", "Left", "Right", "Bottom"};
constexpr double CROP_MAX = 100; // an edge at the border of the picture; 0 is the centre

enum : int { BOX_H = 17, BOX_V = 18, BOX_ALL = 19 };
struct CropBox {
    int id;
    int shown; // the edge whose value the box has
    double min;
    double max;
    struct {
        int edge;
        int sense;
    } moved[EDGES]; // in the order of the commands; a sense of 0 ends them
};
constexpr CropBox crop_boxes[] = {
    {BOX_H, LEFT, -CROP_MAX, 0, {{RIGHT, -1}, {LEFT, 1}}},
    {BOX_V, TOP, 0, CROP_MAX, {{BOTTOM, -1}, {TOP, 1}}},
    {BOX_ALL, LEFT, -CROP_MAX, 0, {{RIGHT, -1}, {LEFT, 1}, {BOTTOM, 1}, {TOP, -1}}},
};

constexpr int BTN_CROP = 33;
constexpr int BTN_CROP_4_3 = 34;
constexpr struct {
    int button;
    bool needs_mix;
} fill_buttons[] = {{20, false}, {21, false}, {22, true}, {36, false}, {37, true}};
} // namespace

static struct {
    char CropCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Processed Key@Border/Crop@Crop@"; the edge follows
    char PageCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Processed Key@Border/Crop@"
    double Edge[EDGES] = {CROP_MAX, -CROP_MAX, CROP_MAX, -CROP_MAX};
    bool IsKnown[EDGES] = {}; // the server has told the edge
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
    for (const CropBox& box : crop_boxes)
        if (Crop.IsKnown[box.shown])
            (void)NB_SetVar(box.id, Crop.Edge[box.shown]); // the boxes are those of the owner
}

static void edge_tally(const char* edge, const char* value)
{
    for (int i = 0; i < EDGES; i++) {
        if (!Same(edge, EDGE_WORDS[i]))
            continue;
        char* end = nullptr;
        const double v = strtod(value, &end);
        if (end == value || !std::isfinite(v))
            return;
        Crop.Edge[i] = v;
        Crop.IsKnown[i] = true;
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

static const CropBox* crop_box(int id)
{
    for (const CropBox& box : crop_boxes)
        if (box.id == id)
            return &box;
    return nullptr;
}

// H and All never go above 0, V never below.
static int crop(int id, double v)
{
    const CropBox* box = crop_box(id);
    if (!box || !std::isfinite(v))
        return 0;
    v = std::clamp(v, box->min, box->max);
    for (const auto& m : box->moved)
        if (m.sense)
            Net_SendCommandFormat("put %s%s#%.2f", Crop.CropCmd, EDGE_WORDS[m.edge],
                                  v == 0 ? 0.0 : m.sense * v); // no "-0.00"
    return 0;
}

// Counts of a knob: on from the edge as the server has it.
static int turn_crop(int id, double difference)
{
    const CropBox* box = crop_box(id);
    return box ? crop(id, Crop.Edge[box->shown] + difference) : 0;
}

static int reset_crop(int id)
{
    const CropBox* box = crop_box(id);
    if (!box)
        return 0;
    for (const auto& m : box->moved)
        if (m.sense)
            Net_SendCommandFormat("default %s%s", Crop.CropCmd, EDGE_WORDS[m.edge]);
    return 0;
}

// The boxes hand a value over by its address. On the pages of these banks it is the only message;
// on the others a rounded number comes first.
static bool var_is_address()
{
    return (GL_NowPage & 0xF00FFFFF) == 0x10060003;
}

static int take_value(int id, MsgArg address)
{
    return crop_box(id) ? crop(id, *reinterpret_cast<const double*>(address)) : 0;
}

static int take_difference(int id, MsgArg address)
{
    return crop_box(id) ? turn_crop(id, *reinterpret_cast<const double*>(address)) : 0;
}

static void subscribe_edges(const char* verb)
{
    for (const char* edge : EDGE_WORDS)
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
