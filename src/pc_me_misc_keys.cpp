// The keys of a bank among themselves: who lies on top of whom, now and after the next transition,
// and which side each belongs to.
#include "a_bt.h"
#include "command.h"
#include "device.h"
#include "me_config.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "pc_me_misc.h"
#include "pc_me_misc_private.h"
#include "tab_status.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define LOCAL_PRIORITY "LOCAL@M/E@Misc@Key Priority@"
#define LOCAL_ASSIGN "LOCAL@M/E@Misc@Key Assign@"

// --- Priority ---

namespace
{
enum : int { LIST_CURRENT = 0, LIST_NEXT = 1, LISTS = 2 };
constexpr const char* list_words[LISTS] = {"Current", "Next"};
constexpr uint32_t PAGE_DIGITS = 0x00FFFFFF;
constexpr uint32_t PAGE_KEYS_5_TO_8 = 0x00730001;
constexpr char NORMAL[] = "1,2,3,4";
constexpr size_t HALF = sizeof NORMAL - 1; // the rest of a list begins one behind
constexpr int BTN_FURTHER_KEYS = 53;
constexpr int choice_buttons[] = {5, 6, 21, 22};
} // namespace

static struct {
    char path[LISTS][CMD_SIZE] = {}; // "M/E-1@Misc@Key Priority@Key Priority", "...@Next ..."
    char value[LISTS][64] = {};      // "" until the first tally
    int shown = LIST_CURRENT;        // that the matrix is bound to
    bool is_moved = false;           // off the path that the table gave it
    bool has_next = false;           // a sub side has no next order
    char sub_path[CMD_SIZE] = ""; // "M/E-1 SUB@Misc@Key Priority@Enable"; "" where it is no matter
} Priority;                       // valid from create(1) to create(0)

static void mirror_list()
{
    ME_Mirror(LOCAL_PRIORITY "List#%s", list_words[Priority.shown]);
}

// The subscriptions of both lists stay with the page: the matrix reads.
static void show_list(int list)
{
    if (list == Priority.shown)
        return;
    Priority.shown = list;
    Priority.is_moved = true;
    for (int priority = 1; priority <= MISC_HALF_KEYS; priority++)
        for (int key = 1; key <= MISC_HALF_KEYS; key++)
            BT_SetCommand_NoAdd(priority * 16 + key, 0, Priority.path[list]);
    mirror_list();
}

static bool is_page_of_second_half()
{
    return ME_IsSubPage() || (GL_NowPage & PAGE_DIGITS) == PAGE_KEYS_5_TO_8;
}

// The keys of the page in their normal order; what the list says of the others stays.
static void press_normal()
{
    const char* value = Priority.value[Priority.shown];
    const char* path = Priority.path[Priority.shown];
    const bool is_whole = strlen(value) > HALF;
    if (is_page_of_second_half())
        Net_SendCommandFormat("put %s#%.7s,%s", path, is_whole ? value : NORMAL, NORMAL);
    else
        Net_SendCommandFormat("put %s#%s%s", path, NORMAL, is_whole ? value + HALF : "");
}

static int priority_press(const char* path, const char* value)
{
    if (Same(path, LOCAL_PRIORITY "List")) {
        for (int list = 0; list < LISTS; list++)
            if (Same(value, list_words[list]))
                show_list(list);
    } else if (Same(path, LOCAL_PRIORITY "Normal")) {
        press_normal();
    } else if (Same(path, LOCAL_PRIORITY "Copy") && Priority.value[LIST_CURRENT][0]) {
        Net_SendCommandFormat("put %s#%s", Priority.path[LIST_NEXT], Priority.value[LIST_CURRENT]);
    }
    return 0;
}

// An order that the sub side does not follow is not to be edited by mistake.
static void show_sub_has_own(bool has_own)
{
    for (int priority = 1; priority <= MISC_HALF_KEYS; priority++)
        for (int key = 1; key <= MISC_HALF_KEYS; key++)
            ME_DisableKey(priority * 16 + key, has_own);
    for (const int id : choice_buttons)
        ME_DisableKey(id, has_own);
}

static int priority_tally(const char* path, const char* value)
{
    if (Same(path, Priority.sub_path))
        show_sub_has_own(IsTrue(value));
    for (int list = 0; list < LISTS; list++)
        if (Same(path, Priority.path[list]))
            CopyText(Priority.value[list], value);
    return 0;
}

// What the table subscribed is given back here once the matrix has left it. The next page is
// already the current one.
static int priority_leave()
{
    if (Priority.has_next)
        Net_SendCommandFormat("remove %s", Priority.path[LIST_NEXT]);
    if (Priority.is_moved)
        Net_SendCommandFormat("remove %s", Priority.path[LIST_CURRENT]);
    if (Priority.sub_path[0])
        Net_SendCommandFormat("remove %s", Priority.sub_path);
    return 1;
}

// Keys 5 to 8 of a bank of two sides: where the sub side can be reached, its own page has their
// order, and this one is of use only while the sub side follows the main side.
static void follow_sub_side()
{
    enum { MAIN_ONLY = 0 };
    if (!isMP2SettingME(GL_NowPage))
        return;
    if (MainSubAssign_StatusCheck() != MAIN_ONLY)
        (void)BT_SetCommand(BTN_FURTHER_KEYS, 0, "#+15730000"); // the second page lacks the button
    if (!is_page_of_second_half())
        return;
    PrintText(Priority.sub_path, "%s SUB@Misc@Key Priority@Enable", GL_NowTree[0]);
    Net_SendCommandFormat("add %s", Priority.sub_path);
}

static int pc_me_misc_keypriority_create(int on, uint32_t)
{
    if (!on)
        return priority_leave();
    Priority = {};
    misc_path(Priority.path[LIST_CURRENT], "Key Priority@Key Priority");
    misc_path(Priority.path[LIST_NEXT], "Key Priority@Next Key Priority");
    misc_show_tabs();
    Priority.has_next = !ME_IsSubPage();
    if (!Priority.has_next)
        return 0;
    Net_SendCommandFormat("add %s", Priority.path[LIST_NEXT]);
    if (misc_is_pgm())
        BT_SetCaption(BTN_FURTHER_KEYS, "DSK 5-8");
    if (misc_key_max() <= MISC_HALF_KEYS)
        BT_SetCutoff(BTN_FURTHER_KEYS, 1);
    follow_sub_side();
    mirror_list();
    return 0;
}

static int pc_me_misc_keypriority_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return priority_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return priority_press(Text(ax), Text(bx));
    default: return 0;
    }
}

const PC_TBL pc_me_misc_keypriority = {pc_me_misc_keypriority_proc, pc_me_misc_keypriority_create};

// --- Assignment ---

namespace
{
constexpr const char* side_words[] = {"Off", "Main", "Sub", "Both"}; // by the two bits
struct SideWord {
    const char* word;
    int bit;
};
constexpr SideWord sides[] = {{"Main", SIDE_MAIN}, {"Sub", SIDE_SUB}};
constexpr MiscKeyButton main_buttons[] = {{1, 1},  {2, 2},  {3, 3},  {4, 4},
                                          {17, 5}, {18, 6}, {19, 7}, {20, 8}};
constexpr MiscKeyButton sub_buttons[] = {{33, 1}, {34, 2}, {35, 3}, {36, 4},
                                         {49, 5}, {50, 6}, {51, 7}, {52, 8}};
constexpr uint32_t BANK_BYTE = 0xFF000000;
constexpr uint32_t KEY_DIGIT = 0x00100000;
constexpr uint32_t TAB_TYPE = 0x00010000;
} // namespace

static struct {
    char path[MISC_KEYS][CMD_SIZE] = {}; // "M/E-1@Misc@Key Assign@Key1"
    char word[MISC_KEYS][16] = {};       // one of side_words; anything else: as the setup says
} Assign;                                // valid from create(1) to create(0)

// A bank of one side has its keys there.
static int sides_in_setup(int key)
{
    if (!isMP2SettingME(GL_NowPage))
        return SIDE_MAIN;
    const uint32_t side = key < MISC_HALF_KEYS ? 0 : TO_SUB_BANK;
    const uint32_t digit = (uint32_t(key % MISC_HALF_KEYS) + 1) * KEY_DIGIT;
    const KeyAssignText text =
        keyassign_str_get((GL_NowPage & BANK_BYTE) + side + digit + TAB_TYPE);
    return (text.main[0] ? SIDE_MAIN : 0) | (text.further[0] ? SIDE_SUB : 0);
}

int misc_sides_of(int key, const char* word)
{
    for (int i = 0; i < int(std::size(side_words)); i++)
        if (Same(word, side_words[i]))
            return i;
    return sides_in_setup(key);
}

static int sides_of(int key)
{
    return misc_sides_of(key, Assign.word[key]);
}

static void mirror_key(int key)
{
    for (const SideWord& side : sides) {
        ME_Mirror(LOCAL_ASSIGN "%s@Key%d#%s", side.word, key + 1, Bool(sides_of(key) & side.bit));
    }
}

static void mirror_keys()
{
    for (int key = 0; key < MISC_KEYS; key++)
        mirror_key(key);
}

static int assign_tally(const char* path, const char* value)
{
    if (IsKeyAssignPath(path))
        mirror_keys();
    for (int key = 0; key < MISC_KEYS; key++) {
        if (!Same(path, Assign.path[key]))
            continue;
        CopyText(Assign.word[key], value);
        mirror_key(key);
    }
    return 0;
}

static void press_side(const char* name)
{
    for (int key = 0; key < MISC_KEYS; key++)
        for (const SideWord& side : sides) {
            char own[32];
            PrintText(own, "%s@Key%d", side.word, key + 1);
            if (Same(name, own))
                Net_SendCommandFormat("put %s#%s", Assign.path[key],
                                      side_words[sides_of(key) ^ side.bit]);
        }
}

static int assign_press(const char* path)
{
    if (!BeginsWith(path, LOCAL_ASSIGN))
        return 0;
    const char* name = path + sizeof LOCAL_ASSIGN - 1;
    if (!Same(name, "Setup")) {
        press_side(name);
        return 0;
    }
    for (int key = 0; key < misc_key_max(); key++)
        Net_SendCommandFormat("put %s#%s", Assign.path[key], side_words[sides_in_setup(key)]);
    return 0;
}

static void assign_subscribe(const char* verb)
{
    for (const char* path : Assign.path)
        Net_SendCommandFormat("%s %s", verb, path);
}

static int pc_me_misc_keyassign_create(int on, uint32_t)
{
    if (!on) {
        assign_subscribe("remove");
        return 1;
    }
    Assign = {};
    for (int key = 0; key < MISC_KEYS; key++) {
        char tail[32];
        PrintText(tail, "Key Assign@Key%d", key + 1);
        misc_path(Assign.path[key], tail);
    }
    assign_subscribe("add");
    misc_show_tabs();
    misc_show_keys(main_buttons);
    misc_show_keys(sub_buttons);
    for (const MiscKeyButton& b : sub_buttons)
        if (!isMP2SettingME(GL_NowPage) && b.key <= misc_key_max())
            BT_SetDisable(b.id, 1);
    mirror_keys();
    return 0;
}

static int pc_me_misc_keyassign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return assign_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return assign_press(Text(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_misc_keyassign = {pc_me_misc_keyassign_proc, pc_me_misc_keyassign_create};
