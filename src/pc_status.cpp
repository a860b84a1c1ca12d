#include "pc_status.h"
#include "a_fm.h"
#include "a_ls.h"
#include "command.h"
#include "device.h"
#include "message.h"
#include "netio.h"
#include "overview.h"
#include "page.h"
#include "pc_aux_mon.h"
#include "pc_device.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

static constexpr int LIST = 1;

namespace
{
struct StatusPage {
    OVERVIEW rows;
    void (*choose)(int row) = nullptr; // on the page that opens, where it is about one of many
};
} // namespace

static void open_page_of_row(const StatusPage& p, const char* offset)
{
    const int row = LS_GetNowLine(LIST);
    const OVERVIEWITEM* const item = Overview_Item(row);
    if (!item || !item->page)
        return;
    if (p.choose)
        p.choose(row);
    GL_CreatePage = item->page + Hex(offset);
}

static int create(const StatusPage& p, int on)
{
    on ? Overview_Open(p.rows) : Overview_Close(p.rows);
    return !on;
}

static int proc(const StatusPage& p, int msg, MsgArg ax, MsgArg bx, MsgArg cx)
{
    if (msg == MSG_TALLY)
        (void)Overview_Tally(p.rows, Text(ax), Text(bx), uint32_t(cx));
    else if (msg == LMSG_BTNSEL && Same(Text(ax), "LOCAL@Status@Open"))
        open_page_of_row(p, Text(bx));
    return 0;
}

template <const StatusPage& page> static int create_of(int on, uint32_t)
{
    return create(page, on);
}
template <const StatusPage& page>
static int proc_of(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    return proc(page, msg, ax, bx, cx);
}
template <const StatusPage& page>
static constexpr PC_TBL code_of = {.proc_func = proc_of<page>, .create_func = create_of<page>};

// --- Rows ---

static int key_items(OVERVIEWITEM* item, int max)
{
    constexpr uint32_t PAGE_KEY = 0x11100000;
    OVERVIEWITEMS items{item, max};
    Overview_ForEachBank([&](const MeBank& bank) {
        for (int key = 0; key < Overview_Keys(bank); key++) {
            const char* const word = Overview_KeyWord(bank, key);
            char name[OVERVIEW_TEXT];
            PrintText(name, "%s %s", bank.word, word);
            Overview_Add(items, name, "%s@%s", bank.caption, word)->page =
                Overview_KeyPage(bank, key, PAGE_KEY);
        }
    });
    return items.count;
}

static int bank_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    Overview_ForEachBank([&](const MeBank& bank) {
        Overview_Add(items, bank.word, "%s", bank.caption)->page = bank.main << 24;
        if (!isMP2SettingME(bank.main << 24))
            return;
        char name[OVERVIEW_TEXT];
        PrintText(name, "%s Sub", bank.word);
        Overview_Add(items, name, "%s SUB", bank.caption)->page = (bank.main << 24) + TO_SUB_BANK;
    });
    return items.count;
}

static int numbered(OVERVIEWITEM* item, int max, const char* word, int count, uint32_t page)
{
    OVERVIEWITEMS items{item, max};
    for (int n = 1; n <= count; n++) {
        char name[OVERVIEW_TEXT];
        PrintText(name, "%s%d", word, n);
        Overview_Add(items, name, "%s", name)->page = page;
    }
    return items.count;
}

static int aux_items(OVERVIEWITEM* item, int max)
{
    return numbered(item, max, "Aux ", AUX_BUSES, 0x23110000);
}

static int monitor_items(OVERVIEWITEM* item, int max)
{
    return numbered(item, max, "Mon ", MONITORS, 0x23210000);
}

// Each unit has four channels, which are combined among themselves.
static int effect_items(OVERVIEWITEM* item, int max)
{
    constexpr int OF_UNIT = 4;
    OVERVIEWITEMS items{item, max};
    for (int n = 1; n <= (SYS_MyDme2 >= 0 ? 2 : 1) * OF_UNIT; n++) {
        char name[OVERVIEW_TEXT];
        PrintText(name, "DME%d", n);
        OVERVIEWITEM* const row = Overview_Add(items, name, "%d", n);
        CopyText(row->group, n <= OF_UNIT ? "Ch1-Ch4" : "Ch5-Ch8");
        row->page = n <= OF_UNIT ? 0x42110000 : 0x42210000;
    }
    return items.count;
}

static int recorder_items(OVERVIEWITEM* item, int max)
{
    return numbered(item, max, "Dev", DEVICES, 0x53210000);
}

static int clip_output_items(OVERVIEWITEM* item, int max)
{
    return numbered(item, max, "FM", FM_OUTPUTS, 0x21110000);
}

static int register_output_items(OVERVIEWITEM* item, int max)
{
    constexpr int OUTPUTS = 8; // of a frame memory without clips
    return numbered(item, max, "FM", OUTPUTS, 0x25110000);
}

static int device_items(OVERVIEWITEM* item, int max)
{
    OVERVIEWITEMS items{item, max};
    const struct {
        const DEVICE* unit;
        int count;
    } classes[] = {{DEV_Pnl, std::min(SYS_PnlMax, 4)},
                   {DEV_Swr, std::min(SYS_SwrMax, 2)},
                   {DEV_Dme, std::min(SYS_DmeMax, 4)},
                   {DEV_Mpe, std::min(SYS_MpeMax, 4)}}; // as many as have a format of their own
    for (const auto& c : classes)
        for (int n = 0; n < c.count; n++)
            Overview_Add(items, c.unit[n].name, "%s", c.unit[n].name)->page = 0x74110000;
    return items.count;
}

// --- Columns ---

static constexpr ONEOFWORD key_types[] = {{"Wipe Pattern", "Wipe Ptn"},
                                          {"Key Wipe Pattern", "Key Wipe"},
                                          {"Color Vector", "Color Vct"},
                                          {}};
static constexpr ONEOFWORD transition_modes[] = {{"null", "Full"}, {}};
static constexpr OVERVIEWCOLUMN key_columns[] = {
    {"$@Status@Key ON", one_of_switch},
    {"$@Type@Key Type", key_types},
    {"$@Status@Source Name"},
    {"$@Type@Key Fill"},
    {"$@Edge@Edge"},
    {"$@Processed Key@Processed Key", one_of_switch},
};
static constexpr OVERVIEWCOLUMN wipe_columns[] = {
    {"$@Misc@Transition@Transition Mode", transition_modes},
    {"$@Misc@Transition@Transition Rate"},
    {"$@Wipe@Main Pattern@Pattern"},
    {"$@Wipe@Sub Pattern@Pattern"},
    {"$@Wipe@Pattern Mix@Pattern Mix"},
    {"$@DME Wipe@Pattern Select@Pattern"},
};
static constexpr OVERVIEWCOLUMN aux_columns[] = {
    {"Aux/Mon@Aux Bus@$@Source"},
    {"Aux/Mon@Aux Bus@$@Mix", one_of_switch},
    {"Aux/Mon@Aux Bus@$@Key Link", one_of_switch},
    {"Aux/Mon@Aux Bus@$@Inhibit", one_of_switch},
    {"Aux/Mon@Aux Bus@$@Side Flags"},
    {"Aux/Mon@Aux Bus@$@Aspect"},
};
static constexpr OVERVIEWCOLUMN monitor_columns[] = {
    {"Aux/Mon@Monitor@$@Source"},
    {"Aux/Mon@Monitor@$@Safe Area", one_of_switch},
    {"Aux/Mon@Monitor@$@Center Cross", one_of_switch},
    {"Aux/Mon@Monitor@$@4:3 Marker", one_of_switch},
    {"Aux/Mon@Monitor@$@Show Key", one_of_switch},
    {"Aux/Mon@Monitor@$@Mono", one_of_switch},
};
static constexpr OVERVIEWCOLUMN effect_columns[] = {
    {"DME@Status@Channel@$"},
    {"Global Effect@%@Combine@Ch$", one_of_switch},
    {"Global Effect@%@Priority@Ch$"},
    {"Global Effect@%@Trail@Ch$"},
};
static constexpr OVERVIEWCOLUMN device_columns[] = {
    {.path = "Engineering Setup@System@Format@Video Format@$", .is_for_life = true},
    {.path = "Engineering Setup@System@Format@Reference@$", .is_for_life = true},
};

#define RECORDER "Device@DDR/VTR@$@"
static constexpr OVERVIEWCOLUMN recorder_columns[] = {
    {RECORDER "Type", device_type_words},
    {RECORDER "Transport"},
    {RECORDER "Time Code"},
    {RECORDER "File"},
    {RECORDER "Control"},
    {RECORDER "Rec Enable", one_of_switch},
};
#undef RECORDER

// "2,/NEWS/OPENING": what an output does, and what it has got.
static void state_of_output(const char* value, char* text, size_t size)
{
    static constexpr const char* states[] = {"Black", "Through", "Recall"};
    const unsigned state = unsigned(*value - '0');
    ktr_strncpy(text, state < std::size(states) ? states[state] : "", size);
}
static void name_of_element(const char* value, char* text, size_t size)
{
    const char* const slash = strrchr(value, '/');
    ktr_strncpy(text, slash ? slash + 1 : "", size);
}
static void folder_of_element(const char* value, char* text, size_t size)
{
    const char* const first = strchr(value, '/');
    const char* const last = strrchr(value, '/');
    text[0] = '\0';
    if (first != last)
        strncpy_secu(text, first + 1, size, size_t(last - first - 1));
}
static void dot_of_play(const char* value, char* text, size_t size)
{
    ktr_strncpy(text, *value == '1' ? "O" : "", size); // the rest counts frames
}
static void state_of_register(const char* value, char* text, size_t size)
{
    ktr_strncpy(text, *value ? "Recall" : "", size);
}

#define CLIP_OUTPUT "Frame Mem 2@Clip/Still@"
#define REGISTER_OUTPUT "Frame Mem@Recall@Recall Thumbnail@"
static constexpr OVERVIEWCOLUMN clip_output_columns[] = {
    {.path = CLIP_OUTPUT "Output Status@$", .from_wire = state_of_output},
    {.path = CLIP_OUTPUT "Output Status@$", .from_wire = name_of_element},
    {.path = CLIP_OUTPUT "Output Status@$", .from_wire = folder_of_element},
    {.path = CLIP_OUTPUT "Play@$", .from_wire = dot_of_play},
};
static constexpr OVERVIEWCOLUMN register_output_columns[] = {
    {.path = REGISTER_OUTPUT "$", .from_wire = state_of_register},
    {.path = REGISTER_OUTPUT "$"},
};
static void select_clip_output(int output)
{
    Net_SendCommandFormat("put " CLIP_OUTPUT "Out Pair Select#%s", FM_GetFMOutPairStr(output / 2));
}
static void select_register_output(int output)
{
    Net_SendCommandFormat("put " REGISTER_OUTPUT "Select#%s", FM_GetFMOutPairStr(output / 2));
}
#undef CLIP_OUTPUT
#undef REGISTER_OUTPUT

#define STATUS_PAGE(of_items, of_columns, of_choose)                                               \
    {                                                                                              \
        .rows = {.items = of_items, .columns = of_columns, .column_count = std::size(of_columns)}, \
        .choose = of_choose                                                                        \
    }
static constexpr StatusPage key_page = STATUS_PAGE(key_items, key_columns, nullptr);
static constexpr StatusPage wipe_page = STATUS_PAGE(bank_items, wipe_columns, nullptr);
static constexpr StatusPage aux_page = STATUS_PAGE(aux_items, aux_columns, AuxBus_OpenNext);
static constexpr StatusPage effect_page = STATUS_PAGE(effect_items, effect_columns, nullptr);
static constexpr StatusPage monitor_page =
    STATUS_PAGE(monitor_items, monitor_columns, Monitor_OpenNext);
static constexpr StatusPage device_page = STATUS_PAGE(device_items, device_columns, nullptr);
static constexpr StatusPage recorder_page =
    STATUS_PAGE(recorder_items, recorder_columns, Device_OpenNext);
static constexpr StatusPage clip_output_page =
    STATUS_PAGE(clip_output_items, clip_output_columns, select_clip_output);
static constexpr StatusPage register_output_page =
    STATUS_PAGE(register_output_items, register_output_columns, select_register_output);
#undef STATUS_PAGE

const PC_TBL pc_status_key = code_of<key_page>;
const PC_TBL pc_status_wipe = code_of<wipe_page>;
const PC_TBL pc_status_aux = code_of<aux_page>;
const PC_TBL pc_status_effect = code_of<effect_page>;
const PC_TBL pc_status_monitor = code_of<monitor_page>;
const PC_TBL pc_status_device = code_of<device_page>;

// The time codes are told while a page asks for them.
static int recorder_create(int on, uint32_t)
{
    Net_SendCommandFormat("put Device@DDR/VTR@Cueup&Play@Tally Back#%s", Bool(on));
    return create(recorder_page, on);
}
const PC_TBL pc_status_recorder = {proc_of<recorder_page>, recorder_create};

// The two kinds of frame memory say in different words what their outputs have.
static const StatusPage* output_page = &clip_output_page; // since the page was opened

static int output_create(int on, uint32_t)
{
    if (on)
        output_page = GL_ClipStoreSupportMode ? &clip_output_page : &register_output_page;
    return create(*output_page, on);
}
static int output_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    return proc(*output_page, msg, ax, bx, cx);
}
const PC_TBL pc_status_output = {output_proc, output_create};
