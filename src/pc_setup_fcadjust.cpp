#include "pc_setup_fcadjust.h"
#include "a_bt.h"
#include "a_nb.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

// --- Settings and their words ---

#define FC_SELECT "Engineering Setup@Switcher@Input@FC Input Select@FC"

namespace
{
enum : int {
    FLD_CONVERT,
    FLD_MOTION,
    FLD_ASPECT,
    FLD_TYPE,
    FLD_EC_POS,
    FLD_EC_MODE,
    FLD_LB_POS,
    FLD_LB_MODE,
    FLD_ENHANCER,
    FLD_GAIN,
    FLD_CRISP,
    FLD_LEVEL,
    FLD_LIMITER,
    FLD_FREQ,
    FLD_HV,
    FLD_EC_CENTER,
    FLD_LB_CENTER,
    FLD_NAME,
    FLD_NO,
    FLD_COUNT,
    FLD_DIVISION = FLD_COUNT,
    FLD_IP,
    FLD_COUNT_4K,
};
} // namespace

static constexpr SETUPWORD words_convert[] = {
    {"0", "Through"}, {"1", "Up"}, {"2", "Down"}, {"3", "Cross"}, {}};
static constexpr SETUPWORD words_aspect[] = {{"0", "16:9"}, {"1", "4:3"}, {}};
static constexpr SETUPWORD words_switch[] = {{"0", "false"}, {"1", "true"}, {}};
static constexpr SETUPWORD words_division[] = {{"0", "Square"}, {"1", "2SI"}, {}};
static constexpr SETUPWORD words_ip[] = {{"0", "Off"}, {"1", "On"}, {}};
enum : size_t { TYPE_EDGE_CROP, TYPE_LETTER_BOX, TYPE_SQUEEZE };
static constexpr const char* types[] = {"Edge Crop", "Letter Box", "Squeeze"};

#define ROW _fcadjuststatus
#define ENHANCER(i, word)                                                                          \
    {                                                                                              \
        .offset = offsetof(ROW, enhancer) + (i) * sizeof(ROW::enhancer[0]),                        \
        .size = sizeof(ROW::enhancer[0]), .path = "~@" word "@$"                                   \
    }
static constexpr SETUPFIELD fields[] = {
    {SETUP_CELL(ROW, convert_mode), .path = "~@Convert Mode@$", .column = 2,
     .words = words_convert},
    {SETUP_CELL(ROW, motion_sel), .path = "~@Motion Sel@$", .column = 3},
    {SETUP_CELL(ROW, aspect), .path = "~@Aspect@$", .words = words_aspect},
    {SETUP_CELL(ROW, aspect_type), .path = "~@Aspect Type@$", .column = 4},
    {SETUP_CELL(ROW, ec_pos), .path = "~@EC Pos@$", .column = 5},
    {SETUP_CELL(ROW, ec_pos_mode), .path = "~@EC Pos Mode@$", .words = words_switch},
    {SETUP_CELL(ROW, lb_pos), .path = "~@LB Pos@$", .column = 6},
    {SETUP_CELL(ROW, lb_pos_mode), .path = "~@LB Pos Mode@$", .words = words_switch},
    {SETUP_CELL(ROW, enhancer_mode), .path = "~@Enhancer Mode@$", .words = words_switch},
    ENHANCER(0, "Detail Gain"),
    ENHANCER(1, "Crisp"),
    ENHANCER(2, "Level"),
    ENHANCER(3, "Limiter"),
    ENHANCER(4, "Freq"),
    ENHANCER(5, "H/V"),
    {SETUP_CELL(ROW, ec_pos_center), .path = "~@EC Pos Center@$", .is_put = 0},
    {SETUP_CELL(ROW, lb_pos_center), .path = "~@LB Pos Center@$", .is_put = 0},
    {SETUP_CELL(ROW, name), .column = 1},
    {SETUP_CELL(ROW, no), .column = 0},
    {SETUP_CELL(ROW, division), .path = "~@Division@$", .words = words_division},
    {SETUP_CELL(ROW, ip), .path = "~@IP@$", .words = words_ip},
};
#undef ENHANCER
#undef ROW
static_assert(std::size(fields) == FLD_COUNT_4K);

static constexpr SETUPCHOICE choices[] = {
    {.cmd = FCADJUST("Convert Mode"), .field = FLD_CONVERT},
    {.cmd = FCADJUST("Aspect"), .field = FLD_ASPECT, .on = "4:3", .off = "16:9"},
    {.cmd = FCADJUST("Aspect Type"), .field = FLD_TYPE},
    {.cmd = FCADJUST("EC Pos Mode"), .field = FLD_EC_MODE, .on = "true", .off = "false"},
    {.cmd = FCADJUST("LB Pos Mode"), .field = FLD_LB_MODE, .on = "true", .off = "false"},
    {.cmd = FCADJUST("Enhancer Mode"), .field = FLD_ENHANCER, .on = "true", .off = "false"},
    {.cmd = FCADJUST_4K("Division"), .field = FLD_DIVISION},
    {.cmd = FCADJUST_4K("IP"), .field = FLD_IP},
};
static constexpr int CHOICES = std::size(choices) - 2;
static constexpr int CHOICES_4K = std::size(choices);

// --- Knobs: which there are follows from the mode ---

namespace
{
// A box of a table and the setting that it turns.
struct Knob {
    int box = 0;
    int field = 0;
};
struct KnobTable {
    const NB_TBL* boxes = nullptr;
    Knob knob[6] = {}; // ended by box 0
};
} // namespace

static constexpr NB_TBL EcPos(int box)
{
    return {.id = box, .caption = "EC Pos", .type = NB_INT, .min = -100, .max = 100, .cmd = ""};
}
static constexpr NB_TBL LbPos(int box)
{
    return {.id = box, .caption = "LB Pos", .type = NB_INT, .min = -100, .max = 100, .cmd = ""};
}
static constexpr NB_TBL MotionSel(int box)
{
    return {.id = box, .caption = "Motion Sel", .type = NB_INT, .min = 1, .max = 5, .cmd = ""};
}
static constexpr NB_TBL Percent(int box, const char* caption)
{
    return {.id = box, .caption = caption, .type = NB_INT, .min = 0, .max = 100, .cmd = ""};
}

static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust[] = {EcPos(1), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust2[] = {LbPos(1), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust3[] = {MotionSel(1), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust4[] = {MotionSel(1), EcPos(2), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust5[] = {MotionSel(1), LbPos(2), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust_Non[] = {NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust_Conv[] = {MotionSel(1), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust_Enhan[] = {Percent(1, "Detail\nGain"),
                                                                       Percent(2, "Crisp"),
                                                                       Percent(3, "Level"),
                                                                       Percent(4, "Limiter"),
                                                                       Percent(5, "Freq"),
                                                                       Percent(0x11, "H/V"),
                                                                       NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust3g[] = {EcPos(1), LbPos(2), NB_END};
static constexpr NB_TBL nb_engsetup_switcher_input_fcadjust3g_motionsel[] = {MotionSel(1), NB_END};

static constexpr KnobTable knobs_ec = {nb_engsetup_switcher_input_fcadjust, {{1, FLD_EC_POS}}};
static constexpr KnobTable knobs_lb = {nb_engsetup_switcher_input_fcadjust2, {{1, FLD_LB_POS}}};
static constexpr KnobTable knobs_motion = {nb_engsetup_switcher_input_fcadjust3, {{1, FLD_MOTION}}};
static constexpr KnobTable knobs_motion_ec = {nb_engsetup_switcher_input_fcadjust4,
                                              {{1, FLD_MOTION}, {2, FLD_EC_POS}}};
static constexpr KnobTable knobs_motion_lb = {nb_engsetup_switcher_input_fcadjust5,
                                              {{1, FLD_MOTION}, {2, FLD_LB_POS}}};
static constexpr KnobTable knobs_none = {nb_engsetup_switcher_input_fcadjust_Non, {}};
static constexpr KnobTable knobs_conv = {nb_engsetup_switcher_input_fcadjust_Conv,
                                         {{1, FLD_MOTION}}};
static constexpr KnobTable knobs_enhancer = {nb_engsetup_switcher_input_fcadjust_Enhan,
                                             {{1, FLD_GAIN},
                                              {2, FLD_CRISP},
                                              {3, FLD_LEVEL},
                                              {4, FLD_LIMITER},
                                              {5, FLD_FREQ},
                                              {0x11, FLD_HV}}};
static constexpr KnobTable knobs_3g = {nb_engsetup_switcher_input_fcadjust3g,
                                       {{1, FLD_EC_POS}, {2, FLD_LB_POS}}};
static constexpr KnobTable knobs_3g_motion = {nb_engsetup_switcher_input_fcadjust3g_motionsel,
                                              {{1, FLD_MOTION}}};

// --- The kinds of converters ---

static constexpr int FC6_ROWS = 12;
static constexpr int FC4K_ROWS = 8;
_fcadjuststatus FCAdjustStatus[FCADJUST_ROWS];
_fcadjust3g FCAdjust3G[FCADJUST_3G_ROWS];
int FCInput = 0;
static _fcadjuststatus told_status[FCADJUST_ROWS], told_3g[FCADJUST_3G_ROWS];
static _fcadjuststatus status_6[FC6_ROWS], told_6[FC6_ROWS];
static _fcadjuststatus status_4k[FC4K_ROWS], told_4k[FC4K_ROWS];
static _fcadjuststatus status_out[FCADJUST_ROWS], told_out[FCADJUST_ROWS];

namespace
{
enum : int { FC_FOUR, FC_SIX, FC_3G, FC_4K, FC_OUTPUT, FC_KINDS };
struct FcKind {
    _fcadjuststatus* work = nullptr;
    _fcadjuststatus* told = nullptr;
    int rows = 0;
    int inputs = 0; // of one converter
    // Through, then Up and Down by the aspect type, then Cross.
    const KnobTable* through = nullptr;
    const KnobTable* by_type[std::size(types)] = {};
    const KnobTable* cross = nullptr;
    int is_4k = 0;
    int is_selected = 0; // which sources it converts is chosen on a page of its own
};
} // namespace

static constexpr FcKind kinds[FC_KINDS] = {
    {FCAdjustStatus,
     told_status,
     FCADJUST_ROWS,
     4,
     &knobs_none,
     {&knobs_motion_ec, &knobs_motion_lb, &knobs_motion},
     &knobs_conv,
     0,
     1},
    {status_6,
     told_6,
     FC6_ROWS,
     6,
     &knobs_none,
     {&knobs_motion_ec, &knobs_motion_lb, &knobs_motion},
     &knobs_conv,
     0},
    {FCAdjust3G,
     told_3g,
     FCADJUST_3G_ROWS,
     4,
     &knobs_none,
     {&knobs_3g, &knobs_3g, &knobs_3g_motion},
     &knobs_3g_motion,
     0},
    {status_4k,
     told_4k,
     FC4K_ROWS,
     4,
     &knobs_none,
     {&knobs_conv, &knobs_conv, &knobs_conv},
     &knobs_conv,
     1},
    {status_out,
     told_out,
     FCADJUST_ROWS,
     4,
     &knobs_none,
     {&knobs_ec, &knobs_lb, &knobs_none},
     &knobs_none,
     0},
};

static int rows_used[FC_KINDS];
static SETUPSTATE states[FC_KINDS];

static struct {
    int kind = -1; // of the open page, -1 none
    const SETUPTABLE* table = nullptr;
    int is_enhancer = 0;      // the knobs are the enhancer's
    int group_pane = 0;       // choice of the converter
    int format_pane = 0;      // choice of the signal format
    int size = -1, scan = -1; // of the signal, as told
    int convert = 0;          // conversion that goes with it
    char caption[16] = "";    // of the converter's key
    int first_source = 1;     // of the converter's inputs
} fc;

static const FcKind& kind_now()
{
    return kinds[fc.kind];
}

int fcadjust_n_to_id(int n)
{
    const int inputs = fc.kind >= 0 ? kind_now().inputs : 4;
    const int id = n - FCInput * inputs;
    return id >= 0 && id < inputs ? id : -1;
}

int fcadjust_format_check(int a, int b, int c, int d, int e, int f)
{
    const auto is = [](int size, int scan, int other_size, int other_scan) {
        return size == other_size && scan == other_scan;
    };
    const bool is_low_target = is(d, f, 2, 1) || is(d, f, 0, 0);
    const bool is_low = is(a, c, 2, 1) || is(a, c, 0, 0);
    if (a == 4 && c != 0)
        return 0;
    if (a == 0 && c == 2)
        return (b == 5 && is(d, f, 3, 0) && e == 2) || (b == 4 && is(d, f, 4, 0) && e == 1);
    if ((is_low || a == 4) && b == 1)
        return (is(d, f, 4, 0) || is_low_target) && e == 1;
    if ((is_low || is(a, c, 3, 0)) && b == 2)
        return (is(d, f, 3, 0) || is_low_target) && e == 2;
    // The same picture: only the kind may become the one that it is permitted to be.
    return a == d && c == f && e == (b == 4 || b == 1 ? 1 : 2);
}

// --- What stands on the page ---

static int cursor()
{
    return fc.table->state->cursor;
}

static const char* now(int field)
{
    return SetupPage_Text(*fc.table, cursor(), field);
}

// The number on the wire of the current input.
static int input_number()
{
    return FCInput * kind_now().inputs + cursor();
}

static void page_path(char (&path)[CMD_SIZE], const char* word)
{
    char page[CMD_SIZE];
    DecodeCommand(page, "~", CMD_SIZE);
    PrintText(path, "%.500s@%s@%d", page, word, input_number());
}

// The picture stays where the type puts it: no position to turn.
static bool is_fixed(size_t type)
{
    return (type == TYPE_EDGE_CROP && !Same(now(FLD_EC_MODE), "true")) ||
           (type == TYPE_LETTER_BOX && !Same(now(FLD_LB_MODE), "true"));
}

static const KnobTable& knobs_now()
{
    const FcKind& k = kind_now();
    if (fc.is_enhancer)
        return Same(now(FLD_ENHANCER), "true") ? knobs_enhancer : knobs_none;
    const char* const mode = now(FLD_CONVERT);
    if (Same(mode, "Cross"))
        return *k.cross;
    if (!Same(mode, "Up") && !Same(mode, "Down"))
        return *k.through;
    for (size_t i = 0; i < std::size(types); i++)
        if (Same(now(FLD_TYPE), types[i]))
            return *k.by_type[is_fixed(i) ? TYPE_SQUEEZE : i];
    return *k.through;
}

// The word of a setting in its path.
static const char* word_of(int field, char (&word)[SETUP_TEXT])
{
    const char* const path = fields[field].path + strlen("~@");
    strncpy_secu(word, path, sizeof word, strcspn(path, "@"));
    return word;
}

// A crop moves within what the wide picture has more; a narrow one has nothing to cut.
static void fcadjust_fcec_range_set(int box)
{
    const int limit = Same(now(FLD_ASPECT), "4:3") ? 40 : 100;
    (void)NB_SetMinMax(box, -limit, limit);
}

// A letter box moves within the bars that it leaves.
static void fcadjust_fclb_range_set(int box)
{
    const int limit = Same(now(FLD_ASPECT), "4:3") ? 100 : 60;
    (void)NB_SetMinMax(box, -limit, limit);
}

static void show_value(const Knob& k)
{
    const char* const text = now(k.field);
    if (*text)
        (void)NB_SetVar(k.box, Decimal(text));
    else
        (void)NB_InvalidVar(k.box);
}

// Point the knobs at the current input. This page is subscribed to the paths itself.
static void fcadjust_change_knobassign(const KnobTable& table)
{
    char path[CMD_SIZE];
    char word[SETUP_TEXT];
    for (const Knob* k = table.knob; k < std::end(table.knob) && k->box; k++) {
        page_path(path, word_of(k->field, word));
        (void)NB_SetCommand_NoAdd(k->box, path);
        if (k->field == FLD_MOTION)
            Net_SendCommandFormat("read %s", path);
        if (k->field == FLD_EC_POS)
            fcadjust_fcec_range_set(k->box);
        if (k->field == FLD_LB_POS)
            fcadjust_fclb_range_set(k->box);
        show_value(*k);
    }
}

static struct {
    const KnobTable* table = nullptr;
    int input = -1; // that they turn
} shown;            // on the knobs

static void show_knobs()
{
    const KnobTable& table = knobs_now();
    if (shown.table != &table)
        (void)NB_Create_NoAdd(table.boxes, fc.is_enhancer ? "Enhancer" : "FC Adjust");
    if (shown.table != &table || shown.input != input_number()) {
        shown.table = &table;
        shown.input = input_number();
        fcadjust_change_knobassign(table);
        return;
    }
    for (const Knob* k = table.knob; k < std::end(table.knob) && k->box; k++) {
        if (k->field == FLD_EC_POS)
            fcadjust_fcec_range_set(k->box);
        if (k->field == FLD_LB_POS)
            fcadjust_fclb_range_set(k->box);
        show_value(*k);
    }
}

// Keys that mean nothing in the mode of the current input are out.
static void fcadjust_status_buttondisp()
{
    const char* const mode = now(FLD_CONVERT);
    const int no_type = !Same(mode, "Up") && !Same(mode, "Down");
    for (int i = 0; i < int(std::size(types)); i++)
        (void)BT_SetDisable(BTN_FCADJUST_TYPE + i, no_type);
    const int no_ec = no_type || !Same(now(FLD_TYPE), "Edge Crop");
    const int no_lb = no_type || !Same(now(FLD_TYPE), "Letter Box");
    if (!kind_now().is_4k) {
        (void)BT_SetDisable(BTN_FCADJUST_EC_MODE, no_ec);
        (void)BT_SetDisable(BTN_FCADJUST_LB_MODE, no_lb);
        (void)BT_SetDisable(BTN_FCADJUST_EC_CENTER, no_ec || is_fixed(TYPE_EDGE_CROP));
        (void)BT_SetDisable(BTN_FCADJUST_LB_CENTER, no_lb || is_fixed(TYPE_LETTER_BOX));
    }
    (void)BT_SetStatus(BTN_FCADJUST_ENHANCER_ADJUST, fc.is_enhancer ? BT_ON : BT_OFF);
    if (kind_now().is_4k)
        return;
    (void)BT_SetStatus(BTN_FCADJUST_EC_CENTER, IsTrue(now(FLD_EC_CENTER)) ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_FCADJUST_LB_CENTER, IsTrue(now(FLD_LB_CENTER)) ? BT_ON : BT_OFF);
}

static void fcadjust_status_listdisp()
{
    for (int row = 0; row < kind_now().inputs; row++) {
        _fcadjuststatus& s = kind_now().work[row];
        const int source = fc.first_source + row;
        PrintText(s.no, "%d", source);
        const char* const name = source < BUS_XPT_SRC ? BUS_XptSrc[source] : nullptr;
        CopyText(s.name, name ? name : "");
    }
}

// What was chosen goes out; the answer shows it.
static void changed()
{
    if (SetupPage_Differs(*fc.table)) {
        SetupPage_Put(*fc.table);
        return SetupPage_Clear(*fc.table); // comes here once more
    }
    fcadjust_status_buttondisp();
    show_knobs();
}

// --- The converter that is on the page ---

static int inputs_of_group(const char** keys, int max)
{
    static char numbers[8][8];
    int n = 0;
    for (; n < kind_now().inputs && n < max && n < int(std::size(numbers)); n++) {
        PrintText(numbers[n], "%d", FCInput * kind_now().inputs + n);
        keys[n] = numbers[n];
    }
    return n;
}

template <int kind>
static constexpr SETUPTABLE fc_table = {
    .work = kinds[kind].work,
    .tally = kinds[kind].told,
    .rows = &rows_used[kind],
    .state = &states[kind],
    .row_size = sizeof(_fcadjuststatus),
    .max = kinds[kind].rows,
    .fields = fields,
    .field_count = kinds[kind].is_4k ? int(FLD_COUNT_4K) : int(FLD_COUNT),
    .keys = inputs_of_group,
    .list = 1,
    .choices = choices,
    .choice_count = kinds[kind].is_4k ? CHOICES_4K : CHOICES,
    .changed = changed,
};
static constexpr const SETUPTABLE* tables[FC_KINDS] = {&fc_table<FC_FOUR>, &fc_table<FC_SIX>,
                                                       &fc_table<FC_3G>, &fc_table<FC_4K>,
                                                       &fc_table<FC_OUTPUT>};

// Which sources the converter has is chosen elsewhere, for the kind that can.
static void follow_select(const char* verb)
{
    if (kind_now().is_selected)
        Net_SendCommandFormat("%s " FC_SELECT "%d", verb, FCInput + 1);
}

// "5-8"
static int take_select(const char* path, const char* value)
{
    if (!kind_now().is_selected || !BeginsWith(path, FC_SELECT) ||
        Decimal(path + strlen(FC_SELECT)) != FCInput + 1)
        return 0;
    const int first = Decimal(value);
    if (first >= 1 && first < BUS_XPT_SRC) {
        fc.first_source = first;
        fcadjust_status_listdisp();
        SetupPage_Show(*fc.table);
    }
    return 1;
}

static void open_group()
{
    fc.first_source = FCInput * kind_now().inputs + 1;
    follow_select("add");
    shown = {};
    SetupPage_Open(*fc.table);
    fcadjust_status_listdisp();
    SetupPage_Show(*fc.table);
    PrintText(fc.caption, "FC Input\nFC%d", FCInput + 1);
    (void)BT_SetCaption(BTN_FCADJUST_GROUP, fc.caption);
}

static int groups()
{
    return kind_now().rows / kind_now().inputs;
}

static void choose_group(int group)
{
    if (group < 0 || group >= groups() || group == FCInput)
        return;
    SetupPage_Close(*fc.table);
    follow_select("remove");
    FCInput = group;
    open_group();
}

static void ask_group()
{
    static constexpr const char* names[] = {"FC1", "FC2", "FC3", "FC4"};
    BTNSEL cells[std::size(names)];
    for (int i = 0; i < groups(); i++)
        cells[i] = {i + 1, names[i], i == FCInput};
    fc.group_pane = PanePopup_Create(1, groups(), cells);
}

// --- Signal format ---

namespace
{
struct SignalFormat {
    const char* caption = "";
    int size = 0; // FORMAT_SIZE_
    int scan = 0; // FORMAT_SCAN_
};
} // namespace

static constexpr SignalFormat formats[] = {
    {"480i", 0, 0}, {"480p", 0, 2}, {"720PsF", 2, 1}, {"1080i", 3, 0}, {"2160i", 4, 0},
};

static void ask_format()
{
    BTNSEL cells[std::size(formats)];
    for (size_t i = 0; i < std::size(formats); i++)
        cells[i] = {int(i) + 1, formats[i].caption,
                    formats[i].size == fc.size && formats[i].scan == fc.scan};
    fc.format_pane = PanePopup_Create(1, std::size(formats), cells);
}

// The kind that the converter must be of for the new format, if it may be at all.
static void choose_format(const SignalFormat& to)
{
    constexpr int last_kind = 5;
    for (int kind = 1; kind <= last_kind; kind++)
        if (fcadjust_format_check(fc.size, fc.convert, fc.scan, to.size, kind, to.scan)) {
            char page[CMD_SIZE];
            DecodeCommand(page, "~", CMD_SIZE);
            Net_SendCommandFormat("put %.500s@FC Signal Format#%d,%d,%d", page, to.size, kind,
                                  to.scan);
            return;
        }
    (void)PaneMessage_Create("FC Signal Format", PANE_ALERT,
                             "The converter can't change\nto this format.");
}

static int take_format(const char* path, const char* value)
{
    char own[CMD_SIZE];
    DecodeCommand(own, "~@FC Signal Format", CMD_SIZE);
    if (!Same(path, own))
        return 0;
    Parts p;
    if (SplitValue(p, value, 3) == 3) {
        fc.size = Decimal(p.v[0]);
        fc.convert = Decimal(p.v[1]);
        fc.scan = Decimal(p.v[2]);
    }
    return 1;
}

// --- Buttons ---

static void fcadjust_read()
{
    char path[CMD_SIZE];
    char word[SETUP_TEXT];
    for (int i = 0; i < fc.table->field_count; i++)
        if (fields[i].path) {
            page_path(path, word_of(i, word));
            Net_SendCommandFormat("read %s", path);
        }
}

static void put(const char* word, const char* value)
{
    char path[CMD_SIZE];
    page_path(path, word);
    Net_SendCommandFormat("put %s#%s", path, value);
}

static void put_default()
{
    char page[CMD_SIZE];
    DecodeCommand(page, "~", CMD_SIZE);
    Net_SendCommandFormat("put %.500s@Default#%d", page, input_number());
    fcadjust_read();
}

static int button(const char* cmd)
{
    static constexpr struct {
        const char* cmd;
        void (*press)();
    } presses[] = {
        {FCADJUST("FC Input"), ask_group},
        {FCADJUST("Signal Format"), ask_format},
        {FCADJUST("Default"), put_default},
        {FCADJUST("EC Pos Center"), [] { put("EC Pos", "0"); }},
        {FCADJUST("LB Pos Center"), [] { put("LB Pos", "0"); }},
        {FCADJUST("Enhancer Adjust"),
         [] {
             fc.is_enhancer = !fc.is_enhancer;
             changed();
         }},
    };
    for (const auto& p : presses)
        if (Same(cmd, p.cmd)) {
            p.press();
            return 1;
        }
    return 0;
}

static int pane_closed(int pane, int result)
{
    if (pane == 0)
        return 0;
    if (pane == fc.group_pane) {
        fc.group_pane = 0;
        choose_group(result - 1);
        return 1;
    }
    if (pane != fc.format_pane)
        return 0;
    fc.format_pane = 0;
    if (result >= 1 && result <= int(std::size(formats)))
        choose_format(formats[result - 1]);
    return 1;
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (fc.kind < 0)
        return 0;
    if ((msg == LMSG_BTNSEL && button(Text(ax))) ||
        (msg == LMSG_PANEQUIT && pane_closed(int(ax), int(bx))) ||
        (msg == MSG_TALLY && (take_format(Text(ax), Text(bx)) || take_select(Text(ax), Text(bx)))))
        return 0;
    if (msg == LMSG_XPTSRCCHANGE)
        fcadjust_status_listdisp();
    (void)SetupPage_Proc(*fc.table, msg, ax, bx);
    return 0;
}

static void follow_format(const char* verb, const SETUPTABLE& t)
{
    char path[CMD_SIZE] = "";
    for (int i = 0; t.state->tree && i < PAGE_DEPTH && t.state->tree[i]; i++) {
        AppendText(path, t.state->tree[i]);
        AppendText(path, "@");
    }
    Net_SendCommandFormat("%s %sFC Signal Format", verb, path);
}

template <int kind> static int create(int on, uint32_t)
{
    if (!on) {
        if (fc.kind < 0)
            return 1;
        SetupPage_Close(*fc.table);
        follow_select("remove");
        follow_format("remove", *fc.table);
        fc.kind = -1;
        return 1;
    }
    fc = {};
    fc.kind = kind;
    fc.table = tables[kind];
    if (FCInput >= groups())
        FCInput = 0;
    open_group();
    follow_format("add", *fc.table);
    Net_SendCommand("read Engineering Setup@System@Format@FC Format");
    return 0;
}

const PC_TBL pc_engsetup_switcher_input_fcadjust = {.proc_func = proc,
                                                    .create_func = create<FC_FOUR>};
const PC_TBL pc_engsetup_switcher_input_fcadjust6 = {.proc_func = proc,
                                                     .create_func = create<FC_SIX>};
const PC_TBL pc_engsetup_switcher_input_fcadjust3g = {.proc_func = proc,
                                                      .create_func = create<FC_3G>};
const PC_TBL pc_engsetup_switcher_input_f4kadjust = {.proc_func = proc,
                                                     .create_func = create<FC_4K>};
const PC_TBL pc_engsetup_switcher_output_fcadjust = {.proc_func = proc,
                                                     .create_func = create<FC_OUTPUT>};

void SetupFcAdjust_Reset()
{
    for (const SETUPTABLE* t : tables)
        SetupPage_Forget(*t);
    FCInput = 0;
    fc = {};
    shown = {};
}
