// The Region Select page: the ten keys of the panel with the regions on them. A touch on a key
// shows its regions at the right, where each can be made the reference and switched in and out.
#include "a_bt.h"
#include "a_kf.h"
#include "bin_frame.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "graphics.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_kf.h"
#include "setup_index.h"
#include "tally_value.h"
#include "tdl.h"
#include "tenkey.h"
#include "text.h"
#include <algorithm>
#include <initializer_list>
#include <iterator>
#include "safeguards.h"

#define LOCAL_PAD "LOCAL@Key Frame@Region Select@FlexiPadSel"
#define REGION_SELECT "Key Frame@Region Select@"

namespace
{
constexpr int SLOTS = TEN_KEY_SLOTS;
constexpr int PAD_MAX = 7; // region keys of the first pad
constexpr int FLEXI_PAD_MAX = 15;
constexpr int BTN_PAD = 53;
constexpr int BTN_FLEXI_PAD = 54;

constexpr unsigned UNAVAILABLE = 0x787878;
constexpr int FONT_NUMBER = 2;
constexpr int FONT_KEY = 1;
constexpr int CAPTION_X = 8;
constexpr int CAPTION_Y = 9;
constexpr int FONT_TITLE = 3;

// Codes of regions and their numbers on the ten keys. A channel and its global twin share one.
struct Change {
    int kf_code;
    int tenkey_id;
};
constexpr Change id_change_tbl[] = {
    {0, 0},    {1, 1},    {2, 2},    {3, 3},    {8, 4},     {9, 5},    {10, 6},   {11, 7},
    {12, 8},   {13, 9},   {14, 10},  {15, 11},  {16, 32},   {17, 33},  {18, 34},  {19, 35},
    {20, 36},  {21, 37},  {22, 38},  {23, 39},  {32, 32},   {33, 33},  {34, 34},  {35, 35},
    {36, 36},  {37, 37},  {38, 38},  {39, 39},  {48, 96},   {49, 97},  {50, 98},  {51, 99},
    {52, 100}, {53, 101}, {54, 102}, {55, 103}, {56, 104},  {57, 105}, {58, 106}, {59, 107},
    {64, 64},  {65, 65},  {66, 67},  {4, 12},   {5, 13},    {6, 14},   {7, 15},   {69, 69},
    {80, 16},  {81, 17},  {82, 18},  {83, 19},  {255, 255},
};
static_assert(std::size(id_change_tbl) == 53);

struct RegionKey {
    const regnametbl* slot[SLOTS] = {&TenKey_NoAssign, &TenKey_NoAssign, &TenKey_NoAssign,
                                     &TenKey_NoAssign};
};

constexpr int REG_BUTTONS = 2 * SLOTS;
constexpr Rect KF_RegBtnRect(int button) // from 0: four of the reference, four of the selection
{
    const int x = 456 + 61 * (button % SLOTS);
    const int y = 120 + 90 * (button / SLOTS);
    return {x, y, x + TEN_KEY_W - 1, y + TEN_KEY_H - 1};
}
constexpr Rect RIGHT_PART = {450, 84, 701, 260};
} // namespace

static const char* const FlexiPadSel_Text[] = {"Region", "Flexi Pad"};

int GL_PCX_Mode = PCX_ONE_PAD;

static struct {
    RegionKey key[TEN_KEYS];  // by the number in the tally, from 0
    int RegBtnMax = TEN_KEYS; // buttons that are there
    int FlexiPadSel = 0;      // they are those of the second pad
    int current = 0;          // the button whose regions stand at the right
    int reference = -1;       // code of the reference region as painted
    bool redraw_all = false;
    bool redraw[TEN_KEYS] = {}; // by button
} rs;                           // valid from create(1) to create(0)

// --- What is on the keys ---

static const regnametbl* find_name(const char* tally)
{
    return TenKey_Find(tally, TenKey_IdMax(GL_PCX_Mode == PCX_TWO_PADS));
}

static int region_of(const regnametbl* r)
{
    for (const Change& change : id_change_tbl)
        if (change.tenkey_id == r->id && TenKey_IsAssigned(r))
            return KF_RegionOfCode(change.kf_code);
    return -1;
}

static bool is_selected(const regnametbl* r)
{
    return KF_IsRegionSelected(region_of(r)) != 0;
}

static bool is_reference(const regnametbl* r)
{
    for (const Change& change : id_change_tbl)
        if (change.kf_code == KF_RefRegionCode())
            return TenKey_IsAssigned(r) && change.tenkey_id == r->id;
    return false;
}

static int count_assigned(const RegionKey& key)
{
    return int(std::count_if(std::begin(key.slot), std::end(key.slot), TenKey_IsAssigned));
}

static int count_selected(const RegionKey& key)
{
    return int(std::count_if(std::begin(key.slot), std::end(key.slot), is_selected));
}

static const regnametbl* first_assigned(const RegionKey& key)
{
    const auto at = std::find_if(std::begin(key.slot), std::end(key.slot), TenKey_IsAssigned);
    return at == std::end(key.slot) ? &TenKey_NoAssign : *at;
}

// Some of its regions are selected, some not.
static bool Button_Discord_check(const RegionKey& key)
{
    const int selected = count_selected(key);
    return selected > 0 && selected != count_assigned(key);
}

// --- The keys at the left ---

static int number_of_first_button()
{
    return GL_PCX_Mode == PCX_TWO_PADS && rs.FlexiPadSel ? PAD_MAX : 0;
}

static const RegionKey& key_of_button(int button)
{
    return rs.key[button + number_of_first_button()]; // 15 + 7 is within the 23
}

static unsigned key_colour(const RegionKey& key, const regnametbl* shown)
{
    if (TenKey_IsGrayout(shown))
        return UNAVAILABLE;
    if (is_reference(shown))
        return GREEN;
    return count_selected(key) > 0 ? ORANGE : WHITE;
}

static void draw_number(int button, const RegionKey& key, const Rect& r)
{
    char text[16];
    TDL_SymbolS(r.x1 + 2, r.y1, NumStr(button + 1), FONT_NUMBER, WHITE);
    PrintText(text, "( %d )", count_assigned(key));
    TDL_SymbolS(r.x1 + 28, r.y1, text, FONT_NUMBER, ORANGE);
}

static void draw_face(const RegionKey& key, int x, int y)
{
    const regnametbl* const shown = first_assigned(key);
    const unsigned colour = key_colour(key, shown);
    TDL_PutS(x, y, G_PSELm_off);
    if (TenKey_IsAssigned(shown))
        TDL_SymbolS(x + CAPTION_X, y + CAPTION_Y, shown->caption, FONT_KEY, colour);
    if (!Button_Discord_check(key))
        return;
    for (int line = 0; line < 3; line++)
        TDL_LineHS(x + CAPTION_X, y + 33 + line, 30, colour == UNAVAILABLE ? UNAVAILABLE : RED);
}

static void draw_key(int button)
{
    constexpr int RIM = 2; // of the frame that marks the current key
    const Rect r = RegBtnRect(button);
    const Rect cap = {r.x1, r.y1 + TEN_KEY_NUMBER_PX, r.x2, r.y2};
    TDL_FillRectS(r.x1 - RIM, r.y1, r.x2 + RIM, r.y2 + RIM, BLACK);
    if (button < rs.RegBtnMax) {
        const RegionKey& key = key_of_button(button);
        draw_number(button, key, r);
        draw_face(key, cap.x1, cap.y1);
        for (int i = 1; i <= RIM && button == rs.current; i++)
            TDL_RectS(cap.x1 - i, cap.y1 - i, cap.x2 + i, cap.y2 + i, ORANGE);
    }
    TDL_UpdateRect(r.x1 - RIM, r.y1, r.x2 + RIM, r.y2 + RIM);
}

// --- The regions of the current key at the right ---

static bool can_use(const regnametbl* r)
{
    return TenKey_IsAssigned(r) && !TenKey_IsGrayout(r);
}

static void draw_region(int button)
{
    const Rect r = KF_RegBtnRect(button);
    const regnametbl* const region = key_of_button(rs.current).slot[button % SLOTS];
    const bool is_on = button < SLOTS ? is_reference(region) : is_selected(region);
    const bool is_usable = can_use(region);
    TDL_PutS(r.x1, r.y1, !is_usable ? G_PSELm_dis : is_on ? G_PSELm_on : G_PSELm_off);
    TDL_SymbolS(r.x1 + CAPTION_X, r.y1 + CAPTION_Y, region->caption, FONT_KEY,
                !is_usable ? UNAVAILABLE
                : is_on    ? BLACK
                           : WHITE);
}

static void draw_regions()
{
    const Rect& r = RIGHT_PART;
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, BLACK);
    TDL_SymbolS(KF_RegBtnRect(0).x1, KF_RegBtnRect(0).y1 - 20, "Ref Region Select", FONT_TITLE,
                WHITE);
    TDL_SymbolS(KF_RegBtnRect(SLOTS).x1, KF_RegBtnRect(SLOTS).y1 - 20, "Region Select", FONT_TITLE,
                WHITE);
    for (int button = 0; button < REG_BUTTONS; button++)
        draw_region(button);
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

static int region_redraw()
{
    if (rs.reference != KF_RefRegionCode()) {
        rs.reference = KF_RefRegionCode();
        rs.redraw_all = true;
    }
    for (int button = 0; button < TEN_KEYS; button++) {
        const bool wanted = rs.redraw_all || rs.redraw[button];
        rs.redraw[button] = false;
        if (!wanted)
            continue;
        draw_key(button);
        if (button == rs.current)
            draw_regions();
    }
    rs.redraw_all = false;
    return 0;
}

// --- Presses ---

// As on the engineering pages: a page of the lock set takes no change while the lock is on.
static bool is_locked()
{
    return SetupIndex_IsLocked(GL_NowPage);
}

static void choose_key(int button)
{
    rs.redraw[rs.current] = true;
    rs.current = button;
    rs.redraw[button] = true;
}

static void press_region(int button)
{
    const regnametbl* const region = key_of_button(rs.current).slot[button % SLOTS];
    if (!can_use(region))
        return;
    const int dis_select = !is_selected(region);
    if (button >= SLOTS)
        Net_SendCommandFormat("put " REGION_SELECT "Region Enable@%s#%s", region->tally,
                              Bool(dis_select));
    else if (!dis_select)
        Net_SendCommandFormat("put " REGION_SELECT "Ref Region Set#%s", region->tally);
}

static int region_press(int x, int y)
{
    if (is_locked())
        return 0;
    for (int button = 0; button < rs.RegBtnMax; button++)
        if (Inside(RegBtnRect(button), x, y))
            choose_key(button);
    for (int button = 0; button < REG_BUTTONS; button++)
        if (Inside(KF_RegBtnRect(button), x, y))
            press_region(button);
    return 0;
}

static void show_pad()
{
    char line[CMD_SIZE];
    PrintText(line, LOCAL_PAD "#%s", FlexiPadSel_Text[rs.FlexiPadSel]);
    SendDummyTally(line);
}

static int region_button(const char* path, const char* value)
{
    if (!Same(path, LOCAL_PAD) || is_locked())
        return 0;
    rs.FlexiPadSel = *value != 'R';
    rs.RegBtnMax = rs.FlexiPadSel ? FLEXI_PAD_MAX : PAD_MAX;
    rs.current = std::min(rs.current, rs.RegBtnMax - 1);
    rs.redraw_all = true;
    show_pad();
    return 0;
}

// --- The page ---

static int region_tally(const char* path, const char* value)
{
    if (!BeginsWith(path, TEN_KEY_REGIONS))
        return 0;
    const int number = Index(path + sizeof TEN_KEY_REGIONS - 1, TEN_KEYS + 1) - 1;
    Parts p;
    if (number < 0 || SplitValue(p, value, TEN_KEY_FIELDS) <= TEN_KEY_FIRST_NAME)
        return 0;
    for (int slot = 0; slot < SLOTS; slot++) {
        const char* const name = p.v[TEN_KEY_FIRST_NAME + slot];
        rs.key[number].slot[slot] = name ? find_name(name) : &TenKey_NoAssign;
    }
    rs.redraw_all = true;
    return 0;
}

static void tell_panel()
{
    Net_SendCommand("put " TEN_KEY_ASSIGN "@Pcx#40");
}

static int region_create(int on, uint32_t)
{
    tell_panel();
    rs = {};
    if (!on)
        return 0;
    GL_PCX_Mode = isRefPnlPCX50() ? PCX_TWO_PADS : PCX_ONE_PAD;
    rs.redraw_all = true;
    for (const int button : {BTN_PAD, BTN_FLEXI_PAD})
        BT_SetCutoff(button, GL_PCX_Mode != PCX_TWO_PADS);
    for (int number = 1; number <= TEN_KEYS; number++)
        Net_SendCommandFormat("read " TEN_KEY_REGIONS "%d", number);
    (void)Net_SendBinCommand(BIN_READ, STREAM_SELECTION, nullptr, 0); // it fits
    return 0;
}

static int region_selection()
{
    rs.redraw_all = true;
    return 0;
}

static int region_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return region_redraw();
    case MSG_PRESS: return region_press(int(ax), int(bx));
    case MSG_TALLY: return region_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return region_button(Text(ax), Text(bx));
    case LMSG_REGSELCHANGE: return region_selection();
    default: return 0;
    }
}

const PC_TBL pc_keyframe_region_select = {region_proc, region_create};
