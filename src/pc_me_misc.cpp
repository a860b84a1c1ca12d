// The transition and the video process of a bank.
#include "pc_me_misc.h"
#include "a_bt.h"
#include "a_hf.h"
#include "a_nb.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/me_misc.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "pc_me_misc_private.h"
#include "tab_status.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define LOCAL_TYPE "LOCAL@M/E@Misc@Transition@Type"
#define LOCAL_LIMIT "LOCAL@M/E@Misc@Transition@Limit"
#define LOCAL_UNITY "LOCAL@M/E@Misc@Video Process@Unity"

namespace
{
constexpr int TAB_CLIP = 5;

constexpr const char* Trans_TypeStr[] = {"Mix",  "NAM",      "Super Mix", "Preset Color Mix",
                                         "Wipe", "DME Wipe", "Clip"};
constexpr int TRANS_TYPES = int(std::size(Trans_TypeStr));
constexpr int BTN_DME_WIPE = 18;
constexpr int BTN_CLIP = 19;
constexpr int BTN_RATE = 22;
constexpr MiscKeyButton main_keys[] = {{34, 1}, {35, 2}, {36, 3}, {37, 4},
                                       {50, 5}, {51, 6}, {52, 7}, {53, 8}};
constexpr MiscKeyButton sub_keys[] = {{34, 5}, {35, 6}, {36, 7}, {37, 8}};
} // namespace

// --- For all pages of the group ---

void misc_path(char (&dst)[CMD_SIZE], const char* tail)
{
    char bank[32];
    ME_BankWord(bank);
    PrintText(dst, "%s@Misc@%s", bank, tail);
}

int misc_key_max()
{
    return GL_KeyMax[Now_disp_draw()];
}

bool misc_is_pgm()
{
    return Now_disp_draw() == ME_BANK_PP;
}

// The keys of a sub side are there whatever the main side has.
bool misc_lacks_key(int key)
{
    return key > misc_key_max() && !ME_IsSubPage();
}

void misc_show_keys(std::span<const MiscKeyButton> buttons)
{
    static constexpr const char* dsk[MISC_KEYS] = {"DSK1", "DSK2", "DSK3", "DSK4",
                                                   "DSK5", "DSK6", "DSK7", "DSK8"};
    for (const MiscKeyButton& b : buttons) {
        if (misc_is_pgm())
            BT_SetCaption(b.id, dsk[b.key - 1]);
        if (misc_lacks_key(b.key))
            BT_SetCutoff(b.id, 1);
    }
}

void misc_show_tabs()
{
    if (!ME_IsSubPage() && !Is_clip_transition_enable())
        (void)HF_SetDisplay(TAB_CLIP, 0); // every main side has the tab
}

static int pc_me_misc_tabs_create(int on, uint32_t)
{
    if (!on)
        return 1;
    misc_show_tabs();
    return 0;
}

static int pc_me_misc_tabs_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

const PC_TBL pc_me_misc_tabs = {pc_me_misc_tabs_proc, pc_me_misc_tabs_create};

// --- Transition ---

static struct {
    char path[TRANS_TYPES][CMD_SIZE] = {}; // "M/E-1@Misc@Transition@Mix"
    bool is_on[TRANS_TYPES] = {};
    char mode_path[CMD_SIZE] = ""; // "M/E-1@Misc@Transition@Transition Mode"
    bool is_limited = false;
    std::span<const MiscKeyButton> keys;
    char key_path[MISC_KEYS][CMD_SIZE] =
        {};                            // "M/E-1@Misc@Key Assign@Key1"; "" in a bank of one side
    char key_word[MISC_KEYS][16] = {}; // what the server says there
} Trans;                               // valid from create(1) to create(0)

// The buttons are one choice; between two types the server has none.
static void mirror_type()
{
    const char* shown = "";
    for (int i = TRANS_TYPES - 1; i >= 0; i--)
        if (Trans.is_on[i])
            shown = Trans_TypeStr[i];
    ME_Mirror(LOCAL_TYPE "#%s", shown);
}

// A key takes part in the transitions of the sides that it is assigned to.
static void show_sides()
{
    if (!Trans.key_path[0][0])
        return;
    const int own = ME_IsSubPage() ? SIDE_SUB : SIDE_MAIN;
    for (const MiscKeyButton& b : Trans.keys)
        if (!misc_lacks_key(b.key))
            ME_DisableKey(b.id, !(misc_sides_of(b.key - 1, Trans.key_word[b.key - 1]) & own));
}

static void assign_tally(const char* path, const char* value)
{
    for (int key = 0; key < MISC_KEYS; key++)
        if (Same(path, Trans.key_path[key]))
            CopyText(Trans.key_word[key], value);
    if (IsKeyAssignPath(path) || strstr(path, "@Key Assign@"))
        show_sides();
}

static int trans_tally(const char* path, const char* value)
{
    assign_tally(path, value);
    if (Same(path, Trans.mode_path)) {
        Trans.is_limited = Same(value, "Limit");
        ME_Mirror(LOCAL_LIMIT "#%s", Trans.is_limited ? "true" : "false");
    }
    for (int i = 0; i < TRANS_TYPES; i++) {
        if (!Same(path, Trans.path[i]))
            continue;
        Trans.is_on[i] = value[0] == 't';
        mirror_type();
    }
    return 0;
}

// A server that keeps the types apart must not be left with two of them.
static int trans_press(const char* path, const char* type, bool only_knobs)
{
    if (only_knobs)
        return 0;
    if (Same(path, LOCAL_LIMIT))
        Net_SendCommandFormat("put %s#%s", Trans.mode_path, Trans.is_limited ? "Full" : "Limit");
    if (!Same(path, LOCAL_TYPE))
        return 0;
    for (int i = 0; i < TRANS_TYPES; i++)
        if (Trans.is_on[i] && !Same(type, Trans_TypeStr[i]))
            Net_SendCommandFormat("put %s#false", Trans.path[i]);
    for (int i = 0; i < TRANS_TYPES; i++)
        if (Same(type, Trans_TypeStr[i]))
            Net_SendCommandFormat("put %s#true", Trans.path[i]);
    return 0;
}

// A request for the side that no panel row is assigned to never gets here: it opens the other.
static bool has_dme_wipe()
{
    return !ME_IsSubPage() || SYS_DWSubEnable != 0;
}

// The boxes of keys that the bank lacks would turn nothing.
static void show_rates()
{
    if (ME_IsSubPage() || misc_key_max() > MISC_HALF_KEYS)
        return;
    const NB_TBL* rates = misc_is_pgm() ? nb_pp_misc_rates_4key : nb_me_misc_rates_4key;
    BT_SetKnob(BTN_RATE, rates);
    if (BT_GetKnobAssign() == BTN_RATE)
        NB_Create(rates, "Rate");
}

static void trans_subscribe(const char* verb)
{
    for (const char* path : Trans.path)
        Net_SendCommandFormat("%s %s", verb, path);
    Net_SendCommandFormat("%s %s", verb, Trans.mode_path);
    for (const char* path : Trans.key_path)
        if (path[0])
            Net_SendCommandFormat("%s %s", verb, path);
}

static int trans_create(int on, std::span<const MiscKeyButton> keys)
{
    if (!on) {
        trans_subscribe("remove");
        return 1;
    }
    Trans = {};
    for (int i = 0; i < TRANS_TYPES; i++) {
        char tail[64];
        PrintText(tail, "Transition@%s", Trans_TypeStr[i]);
        misc_path(Trans.path[i], tail);
    }
    misc_path(Trans.mode_path, "Transition@Transition Mode");
    Trans.keys = keys;
    if (isMP2SettingME(GL_NowPage))
        for (int key = 0; key < MISC_KEYS; key++)
            PrintText(Trans.key_path[key], "%s@Misc@Key Assign@Key%d", GL_NowTree[0], key + 1);
    trans_subscribe("add");
    misc_show_tabs();
    misc_show_keys(keys);
    show_sides();
    show_rates();
    if (!has_dme_wipe())
        BT_SetDisable(BTN_DME_WIPE, 1);
    if (!Is_clip_transition_enable())
        BT_SetDisable(BTN_CLIP, 1);
    return 0;
}

static int pc_me_misc_trans_create(int on, uint32_t)
{
    return trans_create(on, main_keys);
}

static int pc_me_misc_trans_sub_create(int on, uint32_t)
{
    return trans_create(on, sub_keys);
}

static int pc_me_misc_trans_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return trans_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return trans_press(Text(ax), Text(bx), cx != 0);
    default: return 0;
    }
}

const PC_TBL pc_me_misc_trans = {pc_me_misc_trans_proc, pc_me_misc_trans_create};
const PC_TBL pc_me_misc_trans_sub = {pc_me_misc_trans_proc, pc_me_misc_trans_sub_create};

// --- Video process ---

static int videoproc_press(const char* path)
{
    static constexpr struct {
        const char* name;
        const char* value;
    } unity[] = {
        {"Luminance", "100.00"}, {"Chroma", "100.00"}, {"Hue", "0.00"}, {"Black Level", "0.00"}};
    if (!Same(path, LOCAL_UNITY))
        return 0;
    for (const auto& u : unity) {
        char tail[64];
        char level[CMD_SIZE];
        PrintText(tail, "Video Process@%s", u.name);
        misc_path(level, tail);
        Net_SendCommandFormat("put %s#%s", level, u.value);
    }
    return 0;
}

static int pc_me_misc_videoproc_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? videoproc_press(Text(ax)) : 0;
}

const PC_TBL pc_me_misc_videoproc = {pc_me_misc_videoproc_proc, pc_me_misc_tabs_create};
