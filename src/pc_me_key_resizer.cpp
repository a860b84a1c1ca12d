// The pages of a key's resizer. A resizer has two channels: with Combine the second one carries the
// partner of the key, and what is made by the second channel (enhanced effects, rotation) is out of
// use. Which buttons are grey follows from settings of several pages, so it is worked out here and
// not in their rows. A switcher without the large frame memory has no resizer at all.
#include "command.h"
#include "global.h"
#include "me_config.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include <iterator>
#include <span>
#include "safeguards.h"

#define LOCAL_PROCKEY "LOCAL@Processed Key@"

namespace
{
enum : unsigned { // what can keep a button from being used
    RESIZER_OFF = 1 << 0,
    COMBINE = 1 << 1,
    CG_BORDER = 1 << 2,
    BORDER_OFF = 1 << 3,
    FILL_FLAT = 1 << 4,
    CROP_OFF = 1 << 5,
    MOSAIC = 1 << 6,
    DEFOCUS = 1 << 7,
    DEFOCUS_OFF = 1 << 8,
    FILTER_OFF = 1 << 9,
    MASK_OFF = 1 << 10,
    ROTATION_OFF = 1 << 11,
};

// A tally of the path raises the bit with this value and clears it with every other.
struct State {
    const char* path;
    const char* value;
    unsigned bit;
};
struct Grey {
    int button;
    unsigned by; // any of these bits
};
struct ResizerPage {
    std::span<const State> states;
    std::span<const Grey> greys;
};
constexpr int STATES_MAX = 6;

constexpr State resizer_off = {"~2@Processed Key@Resizer", "false", RESIZER_OFF};
constexpr State combine = {"~2@Resizer@Combine", "true", COMBINE};

constexpr State main_states[] = {resizer_off, combine};
constexpr Grey main_greys[] = {
    {17, 0},           {18, RESIZER_OFF}, {20, RESIZER_OFF},           {21, RESIZER_OFF},
    {33, RESIZER_OFF}, {34, RESIZER_OFF}, {35, RESIZER_OFF},           {49, RESIZER_OFF},
    {50, RESIZER_OFF}, {52, RESIZER_OFF}, {51, RESIZER_OFF | COMBINE}, {53, RESIZER_OFF | COMBINE},
};

constexpr State process_states[] = {resizer_off, {"~@Filter", "false", FILTER_OFF}};
constexpr Grey process_greys[] = {
    {17, RESIZER_OFF}, {18, RESIZER_OFF}, {19, RESIZER_OFF}, {20, RESIZER_OFF},
    {21, RESIZER_OFF}, {22, RESIZER_OFF}, {33, RESIZER_OFF}, {34, RESIZER_OFF | FILTER_OFF},
    {35, RESIZER_OFF}, {36, RESIZER_OFF}, {38, RESIZER_OFF},
};

// The border of a character generator comes with its picture: the resizer's own is then out of use.
constexpr State border_states[] = {
    resizer_off,
    {"~@CG Border", "true", CG_BORDER},
    {"~@Border", "false", BORDER_OFF},
    {"~@Border Fill", "Flat", FILL_FLAT},
    {"~@Crop", "false", CROP_OFF},
};
constexpr unsigned NO_BORDER = RESIZER_OFF | CG_BORDER | BORDER_OFF;
constexpr Grey border_greys[] = {
    {17, RESIZER_OFF | CG_BORDER},
    {18, NO_BORDER},
    {19, RESIZER_OFF},
    {20, NO_BORDER},
    {21, NO_BORDER},
    {22, NO_BORDER | FILL_FLAT},
    {36, NO_BORDER},
    {37, NO_BORDER | FILL_FLAT},
    {38, NO_BORDER | FILL_FLAT},
    {33, RESIZER_OFF},
    {34, RESIZER_OFF | CROP_OFF},
};

// One generator makes the mosaic or the defocus.
constexpr State effect_states[] = {
    resizer_off,
    combine,
    {"~@Mosaic", "true", MOSAIC},
    {"~@Defocus", "true", DEFOCUS},
    {"~@Defocus", "false", DEFOCUS_OFF},
};
constexpr unsigned NO_EFFECT = RESIZER_OFF | COMBINE;
constexpr Grey effect_greys[] = {
    {17, NO_EFFECT | DEFOCUS}, {18, NO_EFFECT | MOSAIC}, {19, NO_EFFECT | DEFOCUS_OFF},
    {33, NO_EFFECT},           {34, NO_EFFECT},          {35, NO_EFFECT},
    {36, NO_EFFECT},
};

constexpr State mask_states[] = {resizer_off, {"~@Mask", "false", MASK_OFF}};
constexpr unsigned NO_MASK = RESIZER_OFF | MASK_OFF;
constexpr Grey mask_greys[] = {
    {17, RESIZER_OFF}, {18, NO_MASK}, {19, NO_MASK}, {20, NO_MASK}, {33, NO_MASK}, {34, NO_MASK},
};

constexpr State rotation_states[] = {
    resizer_off, combine, {LOCAL_PROCKEY "Rotation@Enable", "false", ROTATION_OFF}};
constexpr unsigned NO_ROTATION = RESIZER_OFF | COMBINE | ROTATION_OFF;
constexpr Grey rotation_greys[] = {
    {17, RESIZER_OFF | COMBINE}, {19, NO_ROTATION}, {20, NO_ROTATION}, {22, NO_ROTATION}};

constexpr ResizerPage main_page = {main_states, main_greys};
constexpr ResizerPage process_page = {process_states, process_greys};
constexpr ResizerPage border_page = {border_states, border_greys};
constexpr ResizerPage effect_page = {effect_states, effect_greys};
constexpr ResizerPage mask_page = {mask_states, mask_greys};
constexpr ResizerPage rotation_page = {rotation_states, rotation_greys};
static_assert(std::size(border_states) <= STATES_MAX);

enum : int { AXIS_X = 1, AXIS_Y = 2, AXES_ALL = AXIS_X | AXIS_Y };
constexpr int BTN_ROTATION_FIRST = 17; // enable and the two axes: all show the angles
constexpr int BTN_ROTATION_LAST = 20;
constexpr double ANGLE_MAX = 360; // degrees
} // namespace

static struct {
    const ResizerPage* Page = nullptr;
    bool IsFitted = false;                // there is a resizer, and paths are subscribed
    char Path[STATES_MAX][CMD_SIZE] = {}; // of the page's states
    bool IsAdded[STATES_MAX] = {};        // from here, as no button has it
    unsigned On = 0;                      // the bits that are raised
    char RotationCmd[CMD_SIZE] = "";      // "M/E-1@Key1@Processed Key@Rotation"
    int Axes = AXES_ALL;                  // that turn when the rotation is switched on
} Resizer;                                // valid from create(1) to create(0)

// --- Greys ---

static void show_greys()
{
    for (const Grey& g : Resizer.Page->greys)
        ME_DisableKey(g.button, !Resizer.IsFitted || (Resizer.On & g.by));
}

static int state_tally(const char* path, const char* value)
{
    const unsigned before = Resizer.On;
    for (size_t i = 0; i < Resizer.Page->states.size(); i++) {
        const State& state = Resizer.Page->states[i];
        if (!Same(path, Resizer.Path[i]))
            continue;
        Resizer.On &= ~state.bit;
        if (Same(value, state.value))
            Resizer.On |= state.bit;
    }
    if (Resizer.On != before)
        show_greys();
    return 0;
}

// --- Opening and closing ---

static bool is_path_of_a_button(const char* path)
{
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
        if (Same(b->cmd[0], path))
            return true;
    return false;
}

static void add_states()
{
    for (size_t i = 0; i < Resizer.Page->states.size(); i++) {
        char* path = Resizer.Path[i];
        DecodeCommand(path, Resizer.Page->states[i].path, CMD_SIZE);
        Resizer.IsAdded[i] = Resizer.IsFitted && !IsLocal(path) && !is_path_of_a_button(path);
        if (Resizer.IsAdded[i])
            Net_SendCommandFormat("add %s", path);
    }
}

static int remove_states()
{
    for (size_t i = 0; i < STATES_MAX; i++)
        if (Resizer.IsAdded[i])
            Net_SendCommandFormat("remove %s", Resizer.Path[i]);
    return 1;
}

static int resizer_create(int on, const ResizerPage& page)
{
    if (!on)
        return remove_states();
    Resizer = {};
    Resizer.Page = &page;
    Resizer.IsFitted = SYS_FmemV6 != 0;
    add_states();
    show_greys();
    return 0;
}

static int pc_me_key_resizer_create(int on, uint32_t)
{
    return resizer_create(on, main_page);
}

static int pc_me_key_resizer_resproc_create(int on, uint32_t)
{
    return resizer_create(on, process_page);
}

static int pc_me_key_resizer_bordercrop_create(int on, uint32_t)
{
    return resizer_create(on, border_page);
}

static int pc_me_key_resizer_enhancedeffect_create(int on, uint32_t)
{
    return resizer_create(on, effect_page);
}

static int pc_me_key_resizer_mask_create(int on, uint32_t)
{
    return resizer_create(on, mask_page);
}

static int pc_me_key_resizer_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? state_tally(Text(ax), Text(bx)) : 0;
}

// --- Rotation ---
// One setting of the key says which axes turn, as a sum of AXIS bits; 0: the key doesn't turn. It
// is subscribed for the life of the process and kept in me_config, so it is neither added nor
// removed here.

static int turning_axes()
{
    const int key = Index(GL_NowTree[1] + strlen("Key"), 9);
    return GL_ProcKeyRotationInfo(ME_ServerBank(), key) & AXES_ALL;
}

// An axis that doesn't turn has a box without a range.
static int show_angle_limits(int button)
{
    if (button < BTN_ROTATION_FIRST || button > BTN_ROTATION_LAST)
        return 0;
    for (const int axis : {AXIS_X, AXIS_Y}) {
        const double limit = turning_axes() & axis ? ANGLE_MAX : 0;
        (void)NB_AddMinMax(axis, -limit, limit); // slot 1 is X, slot 2 is Y; always there
    }
    return 0;
}

static void show_rotation()
{
    const int axes = turning_axes();
    if (axes)
        Resizer.Axes = axes;
    ME_Mirror(LOCAL_PROCKEY "Rotation@Enable#%s", Bool(axes));
    ME_Mirror(LOCAL_PROCKEY "X Rotation#%s", Bool(axes & AXIS_X));
    ME_Mirror(LOCAL_PROCKEY "Y Rotation#%s", Bool(axes & AXIS_Y));
    (void)show_angle_limits(BT_GetKnobAssign());
}

static int rotation_tally(const char* path, const char* value)
{
    if (Same(path, Resizer.RotationCmd))
        show_rotation();
    return state_tally(path, value);
}

static int rotation_press(const char* path, bool only_knobs)
{
    const int axes = turning_axes();
    int wanted;
    if (only_knobs)
        return 0;
    if (Same(path, LOCAL_PROCKEY "Rotation@Enable"))
        wanted = axes ? 0 : Resizer.Axes;
    else if (Same(path, LOCAL_PROCKEY "X Rotation"))
        wanted = axes ^ AXIS_X;
    else if (Same(path, LOCAL_PROCKEY "Y Rotation"))
        wanted = axes ^ AXIS_Y;
    else
        return 0;
    Net_SendCommandFormat("put %s#%d", Resizer.RotationCmd, wanted);
    return 0;
}

static int pc_me_key_resizer_rotation_create(int on, uint32_t)
{
    const int result = resizer_create(on, rotation_page);
    if (!on)
        return result;
    PrintText(Resizer.RotationCmd, "%s@%s@Processed Key@Rotation", GL_NowTree[0], GL_NowTree[1]);
    show_rotation();
    return 0;
}

static int pc_me_key_resizer_rotation_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return rotation_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return rotation_press(Text(ax), cx != 0);
    case LMSG_KNOBCREATE: return show_angle_limits(int(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_key_resizer = {pc_me_key_resizer_proc, pc_me_key_resizer_create};
const PC_TBL pc_me_key_resizer_resproc = {pc_me_key_resizer_proc, pc_me_key_resizer_resproc_create};
const PC_TBL pc_me_key_resizer_bordercrop = {pc_me_key_resizer_proc,
                                             pc_me_key_resizer_bordercrop_create};
const PC_TBL pc_me_key_resizer_enhancedeffect = {pc_me_key_resizer_proc,
                                                 pc_me_key_resizer_enhancedeffect_create};
const PC_TBL pc_me_key_resizer_mask = {pc_me_key_resizer_proc, pc_me_key_resizer_mask_create};
const PC_TBL pc_me_key_resizer_rotation = {pc_me_key_resizer_rotation_proc,
                                           pc_me_key_resizer_rotation_create};
