// How a key comes and goes. In one installation on and off share a setting, which is kept as that
// of on; in another each has its own. What can be adjusted follows from the types that govern: the
// type of on alone, or both.
#include "message.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include <initializer_list>
#include "safeguards.h"

#define LOCAL_TRANS "LOCAL@M/E@Key@Transition@"

namespace
{
enum TransType { OTHER, CUT, WIPE, DME_WIPE };
constexpr struct {
    const char* word;
    TransType type;
} type_words[] = {{"Cut", CUT}, {"Wipe", WIPE}, {"DME Wipe", DME_WIPE}};

enum : int { ON, OFF, WAYS };
constexpr const char* WAY_WORDS[WAYS] = {"ON", "OFF"};
constexpr uint32_t PAGE_WIPE_PATTERN[WAYS] = {0x11170004, 0x11170005};
constexpr uint32_t PAGE_DME_WIPE_PATTERN = 0x11170006;

// The buttons of one form of the page; -1: it has none.
struct TransForm {
    int ways; // that have a type of their own
    int pattern[WAYS];
    int direction[3];
    int dme_adjust;
    int rate;
};
constexpr TransForm same_form = {1, {36, -1}, {33, 34, 35}, 37, 51};
constexpr TransForm independ_form = {2, {22, 38}, {54, -1, -1}, 53, -1};

// Where three keys would not fit.
constexpr ME_PULLDOWN direction = {
    54,
    "Direction",
    {{"Normal", "Normal"}, {"Reverse", "Reverse"}, {"Normal/Reverse", "Norm/Rev"}},
    3};
} // namespace

static struct {
    const TransForm* Form = nullptr;
    char TypeCmd[WAYS][CMD_SIZE] = {}; // "M/E-1@Key1@Transition@ON Transition Type"
    TransType Type[WAYS] = {OTHER, OTHER};
    ME_PULLDOWN_STATE Direction = {}; // no path in the form that has keys
} KeyTrans;                           // valid from create(1) to create(0)

// --- What the buttons show ---

static bool any_way_is(std::initializer_list<TransType> types)
{
    for (int way = 0; way < KeyTrans.Form->ways; way++)
        for (const TransType type : types)
            if (KeyTrans.Type[way] == type)
                return true;
    return false;
}

static void show_type()
{
    const TransForm& form = *KeyTrans.Form;
    for (int way = 0; way < form.ways; way++) {
        const TransType type = KeyTrans.Type[way];
        ME_DisableKey(form.pattern[way], type != WIPE && type != DME_WIPE);
    }
    for (const int id : form.direction)
        ME_DisableKey(id, !any_way_is({WIPE, DME_WIPE}));
    ME_DisableKey(form.dme_adjust, !any_way_is({DME_WIPE}));
    ME_DisableKey(form.rate, !any_way_is({OTHER, WIPE, DME_WIPE}));
}

// --- Tallies ---

static TransType type_of_word(const char* word)
{
    for (const auto& t : type_words)
        if (Same(word, t.word))
            return t.type;
    return OTHER; // has a rate and no pattern
}

static int trans_tally(const char* path, const char* value)
{
    for (int way = 0; way < KeyTrans.Form->ways; way++) {
        if (!Same(path, KeyTrans.TypeCmd[way]))
            continue;
        KeyTrans.Type[way] = type_of_word(value);
        show_type();
    }
    ME_PullDownTally(direction, KeyTrans.Direction, path, value);
    return 0;
}

// --- Keys ---

static int open_pattern(int way)
{
    ME_OpenPageOfKey(KeyTrans.Type[way] == DME_WIPE ? PAGE_DME_WIPE_PATTERN
                                                    : PAGE_WIPE_PATTERN[way]);
    return 0;
}

static int trans_press(const char* path)
{
    if (Same(path, LOCAL_TRANS "ON Pattern"))
        return open_pattern(ON);
    if (Same(path, LOCAL_TRANS "OFF Pattern"))
        return open_pattern(OFF);
    if (Same(path, LOCAL_TRANS "Direction"))
        ME_PullDownOpen(direction, KeyTrans.Direction);
    return 0;
}

static int trans_chosen(int pane, int id)
{
    ME_PullDownClosed(direction, KeyTrans.Direction, pane, id);
    return 0;
}

// --- The page ---

// The types are subscribed by their buttons.
static int trans_create(int on, const TransForm& form)
{
    if (!on)
        return 1;
    KeyTrans = {};
    KeyTrans.Form = &form;
    const char* bank = GL_NowTree[0];
    const char* key = GL_NowTree[1];
    for (int way = 0; way < WAYS; way++)
        PrintText(KeyTrans.TypeCmd[way], "%s@%s@Transition@%s Transition Type", bank, key,
                  WAY_WORDS[way]);
    show_type();
    return 0;
}

static int pc_me_key_trans_same_create(int on, uint32_t)
{
    return trans_create(on, same_form);
}

static int pc_me_key_trans_independ_create(int on, uint32_t)
{
    const int result = trans_create(on, independ_form);
    if (on)
        PrintText(KeyTrans.Direction.Cmd, "%s@%s@Transition@Direction", GL_NowTree[0],
                  GL_NowTree[1]);
    return result;
}

static int pc_me_key_trans_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return trans_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return trans_press(Text(ax));
    case LMSG_PANEQUIT: return trans_chosen(int(ax), int(bx));
    default: return 0;
    }
}

const PC_TBL pc_me_key_trans_same = {pc_me_key_trans_proc, pc_me_key_trans_same_create};
const PC_TBL pc_me_key_trans_independ = {pc_me_key_trans_proc, pc_me_key_trans_independ_create};
