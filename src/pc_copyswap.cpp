#include "pc_copyswap.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "message.h"
#include "netio.h"
#include "overview.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>
#include "safeguards.h"

namespace
{
struct CopyPage {
    const char* path; // of the commands
    OVERVIEW rows;
    const CopyPart* parts = nullptr;
    int part_count = 0;
};
} // namespace

static constexpr int LIST_FROM = 1, LIST_TO = 2;
static constexpr int LOOK_USUAL = 0, LOOK_EMPTY = 1; // colour classes of a list
static constexpr char PART_PATH[] = COPY_LOCAL "Part@";
static constexpr char ALL[] = "All";

static struct {
    int from = 0; // rows
    int to = 0;
    unsigned parts = 0; // bits; none: all of it
} cs;                   // valid from create(1) to create(0)

// --- What is chosen ---

// The thing that is taken is grey among those that may be given it.
static void show_choice()
{
    for (int row = 0; row < Overview_Count(); row++)
        LS_SetHStatus(LIST_TO, row, row == cs.from ? LOOK_EMPTY : LOOK_USUAL);
    LS_RedrawData(LIST_TO);
    const int is_same = cs.from == cs.to || Overview_Count() == 0;
    BT_SetDisable(BTN_COPY, is_same);
    BT_SetDisable(BTN_SWAP, is_same);
}

static void show_part(const char* word, bool is_on)
{
    char line[CMD_SIZE];
    PrintText(line, "%s%s#%s", PART_PATH, word, is_on ? "true" : "false");
    SendDummyTally(line);
}

static void show_parts(const CopyPage& p)
{
    if (p.part_count == 0)
        return;
    show_part(ALL, cs.parts == 0);
    for (int n = 0; n < p.part_count; n++)
        show_part(p.parts[n].word, cs.parts >> n & 1);
}

// The first part that is chosen takes the place of all; without the last, and with the last one
// missing, it is all again.
static void press_part(const CopyPage& p, const char* word)
{
    if (Same(word, ALL))
        cs.parts = 0;
    for (int n = 0; n < p.part_count; n++)
        if (Same(word, p.parts[n].word))
            cs.parts ^= 1u << n;
    if (cs.parts == (1u << p.part_count) - 1)
        cs.parts = 0;
    show_parts(p);
}

static int touch(int list, int row)
{
    if (!Overview_Item(row))
        return 0;
    if (list == LIST_FROM)
        cs.from = row;
    if (list == LIST_TO)
        cs.to = row;
    show_choice();
    return 0;
}

// --- What is sent ---

// "put Copy/Swap@Key@Copy#M/E-1@Key1,PGM/PST@DSK2,Type,Edge"
static void send(const CopyPage& p, const char* verb)
{
    const OVERVIEWITEM* from = Overview_Item(cs.from);
    const OVERVIEWITEM* to = Overview_Item(cs.to);
    if (!from || !to || from == to)
        return;
    char parts[CMD_SIZE] = "";
    for (int n = 0; n < p.part_count; n++)
        if (cs.parts >> n & 1) {
            AppendText(parts, ",");
            AppendText(parts, p.parts[n].word);
        }
    Net_SendCommandFormat("put %s@%s#%s,%s%s", p.path, verb, from->path, to->path,
                          parts[0] ? parts : ",All");
}

static int press(const CopyPage& p, const char* cmd)
{
    if (BeginsWith(cmd, PART_PATH))
        press_part(p, cmd + sizeof PART_PATH - 1);
    else if (Same(cmd, COPY_LOCAL "Copy"))
        send(p, "Copy");
    else if (Same(cmd, COPY_LOCAL "Swap"))
        send(p, "Swap");
    return 0;
}

// --- Page code ---

static int create(const CopyPage& p, int on)
{
    if (!on) {
        Overview_Close(p.rows);
        return 1;
    }
    cs = {};
    Overview_Open(p.rows);
    show_choice();
    show_parts(p);
    return 0;
}

static int proc(const CopyPage& p, int msg, MsgArg ax, MsgArg bx, MsgArg cx)
{
    switch (msg) {
    case MSG_TALLY: return (void)Overview_Tally(p.rows, Text(ax), Text(bx), uint32_t(cx)), 0;
    case LMSG_LISTSEL: return touch(int(ax), int(bx));
    case LMSG_BTNSEL: return press(p, Text(ax));
    default: return 0;
    }
}

template <const CopyPage& page> static int create_of(int on, uint32_t)
{
    return create(page, on);
}
template <const CopyPage& page> static int proc_of(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    return proc(page, msg, ax, bx, cx);
}
template <const CopyPage& page>
static constexpr PC_TBL code_of = {.proc_func = proc_of<page>, .create_func = create_of<page>};

// --- The things of each page ---

static int me_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    Overview_ForEachBank(
        [&](const MeBank& bank) { (void)Overview_Add(items, bank.word, "%s", bank.caption); });
    return items.count;
}

static int key_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    Overview_ForEachBank([&](const MeBank& bank) {
        for (int key = 0; key < Overview_Keys(bank); key++) {
            char name[OVERVIEW_TEXT];
            PrintText(name, "%s %s", bank.word, Overview_KeyWord(bank, key));
            (void)Overview_Add(items, name, "%s@%s", bank.caption, Overview_KeyWord(bank, key));
        }
    });
    return items.count;
}

// A sub side has a wipe of its own.
static int wipes(OVERVIEWITEM* item, int max, const char* group)
{
    OVERVIEWITEMS items{item, max};
    Overview_ForEachBank([&](const MeBank& bank) {
        (void)Overview_Add(items, bank.word, "%s@%s", bank.caption, group);
        if (!isMP2SettingME(bank.main << 24))
            return;
        char name[OVERVIEW_TEXT];
        PrintText(name, "%s Sub", bank.word);
        (void)Overview_Add(items, name, "%s SUB@%s", bank.caption, group);
    });
    return items.count;
}

static int wipe_items(OVERVIEWITEM* item, int max)
{
    return wipes(item, max, "Wipe");
}

static int dmewipe_items(OVERVIEWITEM* item, int max)
{
    return wipes(item, max, "DME Wipe");
}

static void add_backgrounds(OVERVIEWITEMS& items)
{
    (void)Overview_Add(items, "Bkgd 1", "Color Bkgd@Bkgd 1");
    (void)Overview_Add(items, "Bkgd 2", "Color Bkgd@Bkgd 2");
}

static void add_mattes_of_keys(OVERVIEWITEMS& items, const MeBank& bank)
{
    for (int key = 0; key < Overview_Keys(bank); key++) {
        const char* const word = Overview_KeyWord(bank, key);
        char name[OVERVIEW_TEXT];
        PrintText(name, "%s %s Fill", bank.word, word);
        (void)Overview_Add(items, name, "%s@%s@Type@Matte Adjust", bank.caption, word);
        PrintText(name, "%s %s Edge", bank.word, word);
        (void)Overview_Add(items, name, "%s@%s@Edge@Matte Adjust", bank.caption, word);
    }
}

static int matte_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    add_backgrounds(items);
    Overview_ForEachBank([&](const MeBank& bank) {
        char name[OVERVIEW_TEXT];
        PrintText(name, "%s Wipe Edge", bank.word);
        (void)Overview_Add(items, name, "%s@Wipe@Edge/Direction@Matte Adjust", bank.caption);
        PrintText(name, "%s Color Mix", bank.word);
        (void)Overview_Add(items, name, "%s@Misc@Transition@Color Matte", bank.caption);
        add_mattes_of_keys(items, bank);
    });
    return items.count;
}

static int bkgd_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    add_backgrounds(items);
    return items.count;
}

static int channel_items(OVERVIEWITEM* item, int max)
{
    constexpr int CHANNELS_OF_UNIT = 4;
    OVERVIEWITEMS items{item, max};
    const int units = SYS_MyDme2 >= 0 ? 2 : 1;
    for (int n = 1; n <= units * CHANNELS_OF_UNIT; n++) {
        char name[OVERVIEW_TEXT];
        PrintText(name, "DME%d", n);
        (void)Overview_Add(items, name, "%d", n);
    }
    return items.count;
}

// --- The pages ---

static constexpr ONEOFWORD key_types[] = {{"Wipe Pattern", "Wipe Ptn"},
                                          {"Key Wipe Pattern", "Key Wipe"},
                                          {"Color Vector", "Color Vct"},
                                          {}};
static constexpr OVERVIEWCOLUMN me_columns[] = {{"$@Status@Xpt Assign@A"},
                                                {"$@Status@Xpt Assign@B"}};
static constexpr OVERVIEWCOLUMN key_columns[] = {{"$@Type@Key Type", key_types},
                                                 {"$@Status@Source Name"}};
static constexpr OVERVIEWCOLUMN wipe_columns[] = {{"$@Main Pattern@Pattern"},
                                                  {"$@Sub Pattern@Pattern"}};
static constexpr OVERVIEWCOLUMN dmewipe_columns[] = {{"$@Pattern Select@Pattern"}};
static constexpr OVERVIEWCOLUMN matte_columns[] = {{"$@Mode"}, {"$@Color 1@Hue"}};
static constexpr OVERVIEWCOLUMN channel_columns[] = {{"DME@Status@Channel@$"}};

#define COPY_PAGE(word, of_items, of_columns, of_parts)                                            \
    {                                                                                              \
        .path = "Copy/Swap@" word,                                                                 \
        .rows = {.items = of_items,                                                                \
                 .columns = of_columns,                                                            \
                 .column_count = std::size(of_columns),                                            \
                 .lists = 2},                                                                      \
        .parts = of_parts, .part_count = std::size(of_parts)                                       \
    }
static constexpr CopyPage me_page = COPY_PAGE("M/E", me_items, me_columns, copy_me_parts);
static constexpr CopyPage key_page = COPY_PAGE("Key", key_items, key_columns, copy_key_parts);
static constexpr CopyPage wipe_page = COPY_PAGE("Wipe", wipe_items, wipe_columns, copy_wipe_parts);
static constexpr CopyPage dmewipe_page =
    COPY_PAGE("DME Wipe", dmewipe_items, dmewipe_columns, copy_dmewipe_parts);
static constexpr CopyPage matte_page =
    COPY_PAGE("Matte/Color", matte_items, matte_columns, copy_matte_parts);
static constexpr CopyPage bkgd_page =
    COPY_PAGE("Color Bkgd", bkgd_items, matte_columns, copy_matte_parts);
static constexpr CopyPage effect_page =
    COPY_PAGE("DME Effect", channel_items, channel_columns, copy_dme_parts);
static constexpr CopyPage effect_1080p_page =
    COPY_PAGE("DME Effect", channel_items, channel_columns, copy_dme_1080p_parts);
#undef COPY_PAGE
// A channel goes whole.
static constexpr CopyPage channel_page = {.path = "Copy/Swap@DME Channel",
                                          .rows = {.items = channel_items,
                                                   .columns = channel_columns,
                                                   .column_count = std::size(channel_columns),
                                                   .lists = 2}};

const PC_TBL pc_copyswap_me = code_of<me_page>;
const PC_TBL pc_copyswap_key = code_of<key_page>;
const PC_TBL pc_copyswap_wipe = code_of<wipe_page>;
const PC_TBL pc_copyswap_dmewipe = code_of<dmewipe_page>;
const PC_TBL pc_copyswap_matte = code_of<matte_page>;
const PC_TBL pc_copyswap_bkgd = code_of<bkgd_page>;
const PC_TBL pc_copyswap_channel = code_of<channel_page>;
const PC_TBL pc_copyswap_effect = code_of<effect_page>;
const PC_TBL pc_copyswap_effect_1080p = code_of<effect_1080p_page>;
