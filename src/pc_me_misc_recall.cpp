// What a bank recalls: the clip of a clip transition, and its part of a snapshot.
#include "a_bt.h"
#include "a_nb.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "pc_me.h"
#include "pc_me_misc.h"
#include "pc_me_misc_private.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>
#include "safeguards.h"

// --- Clip transition ---

namespace
{
constexpr int BTN_CLIP_TC = 37;
constexpr int BTN_CUE_UP = 53;
constexpr int CLIP_FRAMES_MAX = 24 * 60 * 60 * 60; // a day at 60 frames a second
} // namespace

static struct {
    char name_path[CMD_SIZE] = "";   // "M/E-1@Misc@Clip Transition@Clip Name"
    char length_path[CMD_SIZE] = ""; // "M/E-1@Misc@Clip Transition@Clip Duration"
    int frames = 0;                  // of the clip; 0 unknown
} Clip;                              // valid from create(1) to create(0)

// The two points lie in the clip.
static int clip_limit_knobs(int button)
{
    if (button != BTN_CLIP_TC || Clip.frames <= 1)
        return 0;
    for (const int box : {1, 2})
        (void)NB_AddMinMax(box, 0, Clip.frames - 1); // the table has both
    return 0;
}

static int clip_tally(const char* path, const char* value)
{
    if (Same(path, Clip.name_path))
        for (const int id : {BTN_CLIP_TC, BTN_CUE_UP})
            BT_SetDisable(id, value[0] == '\0');
    if (Same(path, Clip.length_path)) {
        Clip.frames = Index(value, CLIP_FRAMES_MAX + 1);
        clip_limit_knobs(BT_GetKnobAssign());
    }
    return 0;
}

static void clip_subscribe(const char* verb)
{
    Net_SendCommandFormat("%s %s", verb, Clip.name_path);
    Net_SendCommandFormat("%s %s", verb, Clip.length_path);
}

static int pc_me_misc_cliptrans_create(int on, uint32_t)
{
    if (!on) {
        clip_subscribe("remove");
        return 1;
    }
    Clip = {};
    misc_path(Clip.name_path, "Clip Transition@Clip Name");
    misc_path(Clip.length_path, "Clip Transition@Clip Duration");
    clip_subscribe("add");
    misc_show_tabs();
    return 0;
}

static int pc_me_misc_cliptrans_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return clip_tally(Text(ax), Text(bx));
    case LMSG_KNOBCREATE: return clip_limit_knobs(int(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_misc_cliptrans = {pc_me_misc_cliptrans_proc, pc_me_misc_cliptrans_create};

// --- Snapshot ---

#define LOCAL_ALL "LOCAL@M/E@Misc@Snapshot@Xpt Hold@All"

namespace
{
constexpr const char* buses[] = {"Bkgd A", "Bkgd B", "Utility 1", "Utility 2"};
constexpr int BUSES = int(std::size(buses));
constexpr int HOLDS = BUSES + MISC_KEYS; // the buses, then the keys
constexpr int BTN_ALL = 5;
constexpr MiscKeyButton hold_keys[] = {{17, 1}, {18, 2}, {19, 3}, {20, 4},
                                       {33, 5}, {34, 6}, {35, 7}, {36, 8}};
} // namespace

static struct {
    char path[HOLDS][CMD_SIZE] = {}; // "M/E-1@Misc@Snapshot@Xpt Hold@Bkgd A"
    bool is_held[HOLDS] = {};
} Hold; // valid from create(1) to create(0)

static int holds_there()
{
    return BUSES + misc_key_max();
}

static int held_count()
{
    int count = 0;
    for (int i = 0; i < holds_there(); i++)
        count += Hold.is_held[i];
    return count;
}

// Some of them held is a state of its own.
static void mirror_all()
{
    const int held = held_count();
    ME_Mirror(LOCAL_ALL "#%s", Bool(held == holds_there()));
    if (held > 0 && held < holds_there())
        BT_SetStatus(BTN_ALL, BT_THIRD);
}

// The paths are subscribed by their buttons.
static int hold_tally(const char* path, const char* value)
{
    for (int i = 0; i < HOLDS; i++) {
        if (!Same(path, Hold.path[i]))
            continue;
        Hold.is_held[i] = value[0] == 't';
        mirror_all();
    }
    return 0;
}

static int hold_press(const char* path)
{
    if (!Same(path, LOCAL_ALL))
        return 0;
    const bool wanted = held_count() < holds_there();
    for (int i = 0; i < holds_there(); i++)
        if (Hold.is_held[i] != wanted)
            Net_SendCommandFormat("put %s#%s", Hold.path[i], Bool(wanted));
    return 0;
}

static int pc_me_misc_snapshot_create(int on, uint32_t)
{
    if (!on)
        return 1;
    Hold = {};
    for (int i = 0; i < HOLDS; i++) {
        char tail[64];
        if (i < BUSES)
            PrintText(tail, "Snapshot@Xpt Hold@%s", buses[i]);
        else
            PrintText(tail, "Snapshot@Xpt Hold@Key%d", i - BUSES + 1);
        misc_path(Hold.path[i], tail);
    }
    misc_show_tabs();
    misc_show_keys(hold_keys);
    return 0;
}

static int pc_me_misc_snapshot_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return hold_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return hold_press(Text(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_misc_snapshot = {pc_me_misc_snapshot_proc, pc_me_misc_snapshot_create};
