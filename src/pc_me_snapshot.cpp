// The wipe and DME wipe snapshots of a bank and those of a key. What a key shows comes from the
// mirror of the registers; a press sends a command and its result comes back as a line of the
// register.
#include "pc_me_snapshot.h"
#include "a_bt.h"
#include "a_nb.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_dmewipe.h"
#include "pc_register_kind.h"
#include "register.h"
#include "tally_value.h"
#include "tdl.h"
#include "safeguards.h"

#define LOCAL_SNAPSHOT "LOCAL@M/E@Snapshot@"

namespace
{
constexpr int KEYS = 10;
constexpr int WIPEDME_BTN_TO_REG[KEYS] = {7, 8, 9, 4, 5, 6, 1, 2, 3, 10}; // by the place of the key
constexpr int keypad_buttons[KEYS] = {17, 18, 19, 33, 34, 35, 49, 50, 51, 52};
static_assert(KEYS == REGISTERS_WIPESS);

constexpr int BTN_STORE = 22;
constexpr int BTN_DELETE = 38;
constexpr int HIGHLIGHT_MS = 150;
constexpr int NO_PATTERN = 0;
constexpr int CAPTION_PX = 74; // of a line on a standard key: eleven letters of the usual width
constexpr int CAPTION_SIZE = 48;

// What the pages differ in.
struct Kind {
    int registers;   // REGISTER_WIPESS, REGISTER_DMESS or REGISTER_KEYSS
    int keys = KEYS; // places in use
    const int* number_of_place = WIPEDME_BTN_TO_REG;
    const int* button_of_place = keypad_buttons;
    const char* list;                   // of a region
    const char* commands = "";          // of a bank's snapshots
    const char* pattern_tail = nullptr; // behind the bank; null: a register has no pattern
    int first_pattern = 0, last_pattern = 0;
    int digits = 0;
    int (*exist)(int region, int no);
    int (*lock)(int region, int no);
    const char* (*name)(int region, int no);
    const char* (*tally)(int region, int no);
};
constexpr Kind wipe_kind = {.registers = REGISTER_WIPESS,
                            .list = "Snapshot@Wipe Snapshot@%s@List",
                            .commands = "Snapshot@Wipe Snapshot@",
                            .pattern_tail = "Wipe@Main Pattern@Pattern",
                            .first_pattern = 1,
                            .last_pattern = 999,
                            .digits = 3,
                            .exist = Register_Exist_WipeSS,
                            .lock = Register_Lock_WipeSS,
                            .name = Register_Name_WipeSS,
                            .tally = Register_Tally_WipeSS};
constexpr Kind dme_kind = {.registers = REGISTER_DMESS,
                           .list = "Snapshot@DME Snapshot@%s@List",
                           .commands = "Snapshot@DME Snapshot@",
                           .pattern_tail = "DME Wipe@Pattern Select@Pattern",
                           .first_pattern = 1001,
                           .last_pattern = 9999,
                           .digits = 4,
                           .exist = Register_Exist_DMESS,
                           .lock = Register_Lock_DMESS,
                           .name = Register_Name_DMESS,
                           .tally = Register_Tally_DMESS};
constexpr int numbers_of_key[REGISTERS_KEYSS] = {1, 2, 3, 4};
constexpr int buttons_of_key[REGISTERS_KEYSS] = {17, 18, 19, 20};
constexpr Kind key_kind = {.registers = REGISTER_KEYSS,
                           .keys = REGISTERS_KEYSS,
                           .number_of_place = numbers_of_key,
                           .button_of_place = buttons_of_key,
                           .list = "Snapshot@Key Snapshot@Attribute@%s@List",
                           .exist = Register_Exist_KeySS,
                           .lock = Register_Lock_KeySS,
                           .name = Register_Name_KeySS,
                           .tally = Register_Tally_KeySS};

struct Key {
    char caption[CAPTION_SIZE] = ""; // the button shows it from here
    int pattern = NO_PATTERN;        // that the register recalls
};
} // namespace

static struct {
    const Kind* kind = &wipe_kind;
    int region = 0;                 // row of DMEWipeSSRegion and of the mirror
    char PatternCmd[CMD_SIZE] = ""; // "M/E-1@Wipe@Main Pattern@Pattern"
    int WipeStore_OnOff = 0;        // at most one of the two modes is on
    int WipeDelete_OnOff = 0;
    int pressed = -1;   // place of the key that sent the last command; -1 once it is over
    int pressed_ms = 0; // left of its highlight
    Key key[KEYS];      // by place
} Snapshot;             // valid from create(1) to create(0)

static int index_of_place(int place)
{
    return Snapshot.kind->number_of_place[place] - 1;
}

static bool is_empty(int place)
{
    return !Snapshot.kind->exist(Snapshot.region, index_of_place(place));
}

static bool is_locked(int place)
{
    return Snapshot.kind->lock(Snapshot.region, index_of_place(place)) != 0;
}

// --- What a key shows ---

static int pattern_in(const char* text)
{
    char* end = nullptr;
    const long number = strtol(text, &end, 10);
    const bool is_number = end != text && *end == '\0' && number >= Snapshot.kind->first_pattern &&
                           number <= Snapshot.kind->last_pattern;
    return is_number ? int(number) : NO_PATTERN;
}

// The pattern follows the status in the line of the register; a server that sends no such field
// calls an unnamed register by the number of its pattern.
static int pattern_of(int index)
{
    const char* line = Snapshot.kind->tally(Snapshot.region, index);
    if (!line || !Snapshot.kind->pattern_tail)
        return NO_PATTERN;
    Parts parts;
    if (SplitValue(parts, line, 5) >= 4)
        return pattern_in(parts.v[3]);
    return pattern_in(Snapshot.kind->name(Snapshot.region, index));
}

static void print_caption(int place)
{
    Key& key = Snapshot.key[place];
    const int index = index_of_place(place);
    PrintText(key.caption, "%d%s", index + 1, is_locked(place) ? "   Lock" : "");
    if (is_empty(place))
        return;
    char name[16];
    CopyText(name, Snapshot.kind->name(Snapshot.region, index));
    (void)TDL_CutText(name, sizeof name, CAPTION_PX, "", ME_CAPTION_FONT); // "" always fits
    const bool is_pattern = key.pattern != NO_PATTERN && pattern_in(name) == key.pattern;
    if (*name && !is_pattern) {
        AppendText(key.caption, "\n");
        AppendText(key.caption, name);
    }
    if (key.pattern == NO_PATTERN)
        return;
    char number[8];
    PrintText(number, "\n%*d", Snapshot.kind->digits, key.pattern);
    AppendText(key.caption, number);
}

// An empty register can be stored to and nothing else.
static void show_key(int place)
{
    Snapshot.key[place].pattern = is_empty(place) ? NO_PATTERN : pattern_of(index_of_place(place));
    print_caption(place);
    BT_SetCaption(Snapshot.kind->button_of_place[place], Snapshot.key[place].caption);
    BT_SetDisable(Snapshot.kind->button_of_place[place],
                  is_empty(place) && !Snapshot.WipeStore_OnOff);
}

static void show_keys()
{
    for (int place = 0; place < Snapshot.kind->keys; place++)
        show_key(place);
}

// --- Modes ---

// An armed mode shows in the third state; only one can be armed.
static void set_modes(int store, int del)
{
    Snapshot.WipeStore_OnOff = store;
    Snapshot.WipeDelete_OnOff = del;
    BT_SetStatus(BTN_STORE, store ? BT_THIRD : BT_OFF);
    BT_SetStatus(BTN_DELETE, del ? BT_THIRD : BT_OFF);
    show_keys();
}

// --- The highlight of a key that has sent its command ---

static void end_highlight()
{
    if (Snapshot.pressed >= 0)
        BT_SetStatus(Snapshot.kind->button_of_place[Snapshot.pressed], BT_OFF);
    Snapshot.pressed = -1;
}

static void highlight(int place)
{
    end_highlight();
    Snapshot.pressed = place;
    Snapshot.pressed_ms = HIGHLIGHT_MS;
    BT_SetStatus(Snapshot.kind->button_of_place[place], BT_ON);
}

static int snapshot_redraw(int elapsed_ms)
{
    if (Snapshot.pressed < 0)
        return 0;
    Snapshot.pressed_ms -= elapsed_ms;
    if (Snapshot.pressed_ms <= 0)
        end_highlight();
    return 0;
}

// --- Keys ---

static bool is_of_key()
{
    return Snapshot.kind == &key_kind;
}

static uint64_t region_bits()
{
    return is_of_key() ? KeySSRegion[size_t(Snapshot.region)].bitmap
                       : DMEWipeSSRegion[size_t(Snapshot.region)].bitmap;
}

// A command of a bank's snapshots; those of keys go the way of the Snapshot menu.
static void send(const char* verb, const char* rest)
{
    Net_SendCommandFormat("put %s%s#%x,%s", Snapshot.kind->commands, verb, unsigned(region_bits()),
                          rest);
}

static void recall(int place)
{
    if (is_empty(place))
        return;
    const int pattern = Snapshot.key[place].pattern;
    const int number = index_of_place(place) + 1;
    if (is_of_key())
        RegisterCmd_Recall(register_kinds[REGKIND_KEYSS], region_bits(), number);
    else
        send("Recall", NumStr(number));
    if (pattern != NO_PATTERN)
        Net_SendCommandFormat("put %s#%d", Snapshot.PatternCmd, pattern);
    highlight(place);
}

static void store(int place)
{
    if (!is_locked(place)) {
        const int number = index_of_place(place) + 1;
        if (is_of_key())
            RegisterCmd_Store(register_kinds[REGKIND_KEYSS], region_bits(), number);
        else
            send("Store", NumStr(number));
        highlight(place);
    }
    set_modes(0, 0);
}

static void delete_register(int place)
{
    if (is_empty(place))
        return;
    const int number = index_of_place(place) + 1;
    char from_to[16];
    PrintText(from_to, "%d,%d", number, number);
    if (!is_locked(place)) {
        if (is_of_key())
            RegisterCmd_Delete(register_kinds[REGKIND_KEYSS], region_bits(), number, number);
        else
            send("Delete", from_to);
    }
    set_modes(0, 0);
}

static void press_register(const char* value)
{
    const int place = Index(value, Snapshot.kind->keys);
    // A mode ends with its command: a touch that chatters must not recall what it has stored.
    if (place < 0 || place == Snapshot.pressed)
        return;
    if (Snapshot.WipeStore_OnOff)
        store(place);
    else if (Snapshot.WipeDelete_OnOff)
        delete_register(place);
    else
        recall(place);
}

static void press_store(const char*)
{
    set_modes(!Snapshot.WipeStore_OnOff, 0);
}

static void press_delete(const char*)
{
    set_modes(0, !Snapshot.WipeDelete_OnOff);
}

static int snapshot_press(const char* path, const char* value)
{
    static constexpr struct {
        const char* path;
        void (*press)(const char* value);
    } keys[] = {
        {LOCAL_SNAPSHOT "Register", press_register},
        {LOCAL_SNAPSHOT "Store", press_store},
        {LOCAL_SNAPSHOT "Delete", press_delete},
    };
    for (const auto& key : keys)
        if (Same(path, key.path))
            key.press(value);
    return 0;
}

// --- Lines of the registers ---

static int snapshot_register(int kind, int region, int index)
{
    if (kind != Snapshot.kind->registers || region != Snapshot.region)
        return 0;
    for (int place = 0; place < Snapshot.kind->keys; place++)
        if (index_of_place(place) == index)
            show_key(place);
    return 0;
}

// The mirror is filled at the start; what it has not been told yet is asked for.
static void ask_for_missing_lines()
{
    const SSREGION& region = is_of_key() ? KeySSRegion[size_t(Snapshot.region)]
                                         : DMEWipeSSRegion[size_t(Snapshot.region)];
    char list[CMD_SIZE];
    PrintText(list, Snapshot.kind->list, region.cmd);
    for (int index = 0; index < Snapshot.kind->keys; index++)
        if (!Snapshot.kind->tally(Snapshot.region, index)) {
            Net_SendCommandFormat("read %s", list);
            return;
        }
}

// --- The pages ---

// The key of the page in the order of the banks' regions.
static int region_of_key()
{
    const MeBank* bank = Page_Bank();
    const int key = int(GL_NowPage >> 20 & 0xF) - 1;
    const int side = bank && MeBank_IsSub(*bank, GL_NowPage) ? REGION_KEYS / 2 : 0;
    return bank ? bank->place * REGION_KEYS + side + key : 0;
}

static int snapshot_create(int on, const Kind* kind)
{
    Register_StatusReport(on);
    if (!on)
        return 1;
    Snapshot = {};
    Snapshot.kind = kind;
    Snapshot.region = is_of_key() ? region_of_key() : ME_SnapshotRegion();
    char bank[16];
    ME_BankWord(bank);
    if (kind->pattern_tail)
        PrintText(Snapshot.PatternCmd, "%s@%s", bank, kind->pattern_tail);
    for (int place = 0; place < kind->keys; place++)
        BT_SetStatus(Snapshot.kind->button_of_place[place], BT_OFF);
    set_modes(0, 0);
    NB_SetTitle("Snapshot"); // no knobs; the page's own name is longer than the title
    ask_for_missing_lines();
    return 0;
}

static int pc_me_wipe_wipess_create(int on, uint32_t)
{
    return snapshot_create(on, &wipe_kind);
}

static int pc_me_dmewipe_dmewipesnapshot_create(int on, uint32_t)
{
    const int gone = snapshot_create(on, &dme_kind);
    if (on && dmewipe_is_off())
        BT_SetAllDisable(1);
    return gone;
}

static int pc_me_key_snapshot_create(int on, uint32_t)
{
    return snapshot_create(on, &key_kind);
}

static int snapshot_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return snapshot_redraw(int(ax));
    case LMSG_BTNSEL: return snapshot_press(Text(ax), Text(bx));
    case LMSG_REGISTER: return snapshot_register(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

const PC_TBL pc_me_wipe_wipess = {snapshot_proc, pc_me_wipe_wipess_create};
const PC_TBL pc_me_dmewipe_dmewipesnapshot = {snapshot_proc, pc_me_dmewipe_dmewipesnapshot_create};
const PC_TBL pc_me_key_snapshot = {snapshot_proc, pc_me_key_snapshot_create};
