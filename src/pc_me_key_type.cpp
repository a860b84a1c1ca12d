// The key type page. Clean mode and key position exist once for each key type, and their buttons
// stand for those of the type that is chosen: they are bound to local paths, which are played here
// from the settings of that type.
#include "a_bt.h"
#include "a_nb.h"
#include "a_st.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define LOCAL_TYPE "LOCAL@M/E@Key@Type@"
#define LOCAL_FILL "LOCAL@M/E@Key@Key Fill@"

namespace
{
constexpr const char* KeyType_TypeStr[] = {"Luminance",    "Linear",       "Chroma",
                                           "Color Vector", "Wipe Pattern", "Key Wipe Pattern"};
constexpr int KEY_TYPES = int(std::size(KeyType_TypeStr));
enum : int { TYPE_UNKNOWN = -1, TYPE_WIPE = 4, TYPE_KEY_WIPE = 5 };
enum : int { FILL_KEY_BUS = 0, FILL_MATTE = 1 };
enum : int { ASSIGN_FILL = 0, ASSIGN_SOURCE = 1 }; // GL_FillSourceAssignMode

constexpr int BTN_POSITION = 35;
constexpr int BTN_PATTERN = 38;
constexpr int BTN_FILL_ADJUST = 51;
constexpr int BTN_NOT_IN_4K[] = {19, 20, 21, 22, 35, 36, 37, 38};

constexpr uint32_t PAGE_MAIN_PATTERN = 0x11510000;
constexpr uint32_t PAGE_KEY_PATTERN = 0x11170002;
constexpr uint32_t PAGE_MATTE_ADJUST = 0x11110002;
constexpr uint32_t PAGE_SIGNAL_SELECT = 0x11110003;
constexpr uint32_t BANK_BYTE = 0xFF000000;
constexpr int KEY_OF_SUB_BANK = 2; // isNowPageMeKey
} // namespace

static struct {
    char KeyType_TypeCmd[CMD_SIZE] = "";      // "M/E-1@Key1@Type@Key Type"
    char KeyType_CleanModeCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Clean Mode@"; the type follows
    char KeyType_PositionCmd[CMD_SIZE] = "";  // "M/E-1@Key1@Type@Key Position@"; the type follows
    char KeyFill_TypeCmd[CMD_SIZE] = "";      // "M/E-1@Key1@Type@Key Fill"
    int KeyType_Entry = 0;                    // the first tallies are still on their way
    int KeyType_Type = TYPE_UNKNOWN;          // index into KeyType_TypeStr
    int CleanMode[KEY_TYPES] = {};
    int Position[KEY_TYPES] = {};
    int KeyFill_Type = FILL_KEY_BUS;
} kt; // valid from create(1) to create(0)

// --- What the buttons show ---

static void mirror_clean_mode()
{
    ME_Mirror(LOCAL_TYPE "Clean Mode#%s", Bool(kt.CleanMode[kt.KeyType_Type]));
}

static void mirror_position()
{
    ME_Mirror(LOCAL_TYPE "Key Position#%s", Bool(kt.Position[kt.KeyType_Type]));
}

static bool is_wipe_type()
{
    return kt.KeyType_Type == TYPE_WIPE || kt.KeyType_Type == TYPE_KEY_WIPE;
}

// One button opens the pattern of a wipe or the signals of every other type. On the small panel it
// is for patterns alone.
static void show_pattern_button()
{
    const bool only_patterns = SYS_RefPnlType == DEVTYPE_QRD33;
    BT_SetCaption(BTN_PATTERN,
                  is_wipe_type() || only_patterns ? "Pattern\nSelect" : "Signal\nSelect");
    if (only_patterns && BT_GetVisible(BTN_PATTERN) != BT_CUTOFF) // it would come back
        BT_SetDisable(BTN_PATTERN, !is_wipe_type());
}

// In the 4K format these two keys have neither chroma nor vector, neither wipe nor position.
static void hide_what_4k_lacks()
{
    if (!is4KFormat() || !ME_IsKey3Or4())
        return;
    for (const int id : BTN_NOT_IN_4K)
        BT_SetCutoff(id, 1);
}

// --- Knobs ---

// The position knobs follow the key type, too.
static void keytype_knob_assign(int button)
{
    static constexpr struct {
        int knob;
        const char* name;
    } knobs[] = {{1, "H Phase"}, {2, "Left"}, {3, "Right"}};
    if (button != BTN_POSITION || kt.KeyType_Type == TYPE_UNKNOWN)
        return;
    for (const auto& k : knobs) {
        char path[CMD_SIZE];
        PrintText(path, "%.900s%s@%s", kt.KeyType_PositionCmd, k.name,
                  KeyType_TypeStr[kt.KeyType_Type]);
        NB_SetCommand(k.knob, path);
    }
}

// --- Tallies ---

static int type_of_word(const char* word)
{
    for (int i = 0; i < KEY_TYPES; i++)
        if (Same(word, KeyType_TypeStr[i]))
            return i;
    return TYPE_UNKNOWN;
}

static void type_tally(const char* value)
{
    const int type = type_of_word(value);
    if (type == TYPE_UNKNOWN)
        return;
    kt.KeyType_Type = type;
    show_pattern_button();
    if (kt.KeyType_Entry)
        return; // the settings of this type follow
    mirror_clean_mode();
    mirror_position();
    keytype_knob_assign(BT_GetKnobAssign());
}

static void clean_mode_tally(int type, const char* value)
{
    kt.CleanMode[type] = *value == 't';
    if (type == kt.KeyType_Type)
        mirror_clean_mode();
}

// The position of the chosen type is the last of the first tallies that the page needs.
static void position_tally(int type, const char* value)
{
    kt.Position[type] = *value == 't';
    if (type != kt.KeyType_Type)
        return;
    mirror_position();
    if (kt.KeyType_Entry && kt.Position[type] && BT_GetKnobAssign() == BTN_POSITION)
        keytype_knob_assign(BTN_POSITION);
    kt.KeyType_Entry = 0;
}

static void fill_tally(const char* value)
{
    const bool is_matte = Same(value, "Matte");
    if (!is_matte && !Same(value, "Key Bus"))
        return;
    kt.KeyFill_Type = is_matte ? FILL_MATTE : FILL_KEY_BUS;
    BT_SetCaption(BTN_FILL_ADJUST, is_matte ? "Matte\nAdjust" : "Signal\nSelect");
}

// The key type behind a path, TYPE_UNKNOWN when the path is another one.
static int type_behind(const char* path, const char* prefix)
{
    return BeginsWith(path, prefix) ? type_of_word(path + strlen(prefix)) : TYPE_UNKNOWN;
}

static int type_page_tally(const char* path, const char* value)
{
    if (Same(path, kt.KeyType_TypeCmd))
        type_tally(value);
    else if (Same(path, kt.KeyFill_TypeCmd))
        fill_tally(value);
    else if (const int type = type_behind(path, kt.KeyType_CleanModeCmd); type != TYPE_UNKNOWN)
        clean_mode_tally(type, value);
    else if (const int place = type_behind(path, kt.KeyType_PositionCmd); place != TYPE_UNKNOWN)
        position_tally(place, value);
    return 0;
}

// --- Keys ---

static void press_clean_mode(bool)
{
    const int type = kt.KeyType_Type;
    if (type != TYPE_UNKNOWN)
        Net_SendCommandFormat("put %s%s#%s", kt.KeyType_CleanModeCmd, KeyType_TypeStr[type],
                              ToggleBool(kt.CleanMode[type]));
}

static void press_position(bool only_knobs)
{
    const int type = kt.KeyType_Type;
    if (type != TYPE_UNKNOWN && !only_knobs)
        Net_SendCommandFormat("put %s%s#%s", kt.KeyType_PositionCmd, KeyType_TypeStr[type],
                              ToggleBool(kt.Position[type]));
    keytype_knob_assign(BTN_POSITION);
}

static void open_signals(int assign)
{
    GL_FillSourceAssignMode = assign;
    ME_OpenPageOfKey(PAGE_SIGNAL_SELECT);
}

// Of a key in the sub bank, too, it is the wipe of the main side that cuts it: the page change goes
// on to the side that the panel has.
static void open_main_pattern()
{
    uint32_t bank = GL_NowPage & BANK_BYTE;
    if (isNowPageMeKey(0) == KEY_OF_SUB_BANK)
        bank -= TO_SUB_BANK;
    GL_CreatePage = (PAGE_MAIN_PATTERN & ~BANK_BYTE) | bank;
}

static void press_pattern(bool)
{
    switch (kt.KeyType_Type) {
    case TYPE_WIPE: open_main_pattern(); break;
    case TYPE_KEY_WIPE: ME_OpenPageOfKey(PAGE_KEY_PATTERN); break;
    default: open_signals(ASSIGN_SOURCE); break;
    }
}

static void press_fill_adjust(bool)
{
    if (kt.KeyFill_Type == FILL_MATTE)
        ME_OpenPageOfKey(PAGE_MATTE_ADJUST);
    else
        open_signals(ASSIGN_FILL);
}

static int type_page_press(const char* path, bool only_knobs)
{
    static constexpr struct {
        const char* path;
        void (*press)(bool only_knobs);
    } keys[] = {
        {LOCAL_TYPE "Clean Mode", press_clean_mode},
        {LOCAL_TYPE "Key Position", press_position},
        {LOCAL_TYPE "Pattern Select", press_pattern},
        {LOCAL_FILL "Adjust", press_fill_adjust},
    };
    for (const auto& key : keys)
        if (Same(path, key.path))
            key.press(only_knobs);
    return 0;
}

static int type_page_knobs(int button)
{
    keytype_knob_assign(button);
    return 0;
}

// --- The page ---

static void print_paths()
{
    const char* bank = GL_NowTree[0];
    const char* key = GL_NowTree[1];
    PrintText(kt.KeyType_TypeCmd, "%s@%s@Type@Key Type", bank, key);
    PrintText(kt.KeyType_CleanModeCmd, "%s@%s@Type@Clean Mode@", bank, key);
    PrintText(kt.KeyType_PositionCmd, "%s@%s@Type@Key Position@", bank, key);
    PrintText(kt.KeyFill_TypeCmd, "%s@%s@Type@Key Fill", bank, key);
}

// The type and the fill are subscribed by their buttons.
static void subscribe(const char* verb)
{
    for (const char* type : KeyType_TypeStr) {
        Net_SendCommandFormat("%s %s%s", verb, kt.KeyType_CleanModeCmd, type);
        Net_SendCommandFormat("%s %s%s", verb, kt.KeyType_PositionCmd, type);
    }
}

static int pc_me_key_type_create(int on, uint32_t)
{
    if (!on) {
        subscribe("remove");
        return 1;
    }
    kt = {};
    kt.KeyType_Entry = 1;
    print_paths();
    subscribe("add");
    hide_what_4k_lacks();
    show_pattern_button();
    return 0;
}

static int pc_me_key_type_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return type_page_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return type_page_press(Text(ax), cx != 0);
    case LMSG_KNOBCREATE: return type_page_knobs(int(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_key_type = {pc_me_key_type_proc, pc_me_key_type_create};
