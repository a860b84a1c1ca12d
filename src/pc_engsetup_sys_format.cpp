// The Format pages: signal format, reference and screen aspect of the units; the formats of the
// auxiliary outputs; the level of 3G signals.
#include "a_bt.h"
#include "device.h"
#include "message.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define FORMAT "Engineering Setup@System@Format@"
#define LOCAL_FORMAT "LOCAL@" FORMAT

namespace
{
constexpr int FORMAT_ROWS = 16;
struct format {
    char device[16];
    char format[32];
    char aspect[16];
    char reffmt[16];
};

enum : int { REFTYPE_BOTH, REFTYPE_BB, REFTYPE_TRI };

// Size, frequency and scan as a switcher has them; rate and lines as the others do.
struct format_table {
    const char* format;
    const char* command;
    const char* oldcommand;
    int popup; // id
    int reftype;
    const char* caption; // on the key, which is narrow
};
} // namespace

static constexpr format_table FormatTable[] = {
    {"576i/50", "1,5,0", "25/50,576i", 1, REFTYPE_BOTH, "576i\n50"},
    {"480i/59.94", "0,6,0", "29.97/59.94,480i", 2, REFTYPE_BOTH, "480i\n59.94"},
    {"720P/50", "2,5,2", "25/50,720p", 3, REFTYPE_BB, "720P\n50"},
    {"720P/59.94", "2,6,2", "29.97/59.94,720p", 4, REFTYPE_BOTH, "720P\n59.94"},
    {"1080i/50", "3,5,0", "25/50,1080i", 5, REFTYPE_BOTH, "1080i\n50"},
    {"1080i/59.94", "3,6,0", "29.97/59.94,1080i", 6, REFTYPE_BOTH, "1080i\n59.94"},
    {"1080PsF/23.98", "3,0,1", "23.976,1080PsF", 7, REFTYPE_TRI, "1080PsF\n23.98"},
    {"1080PsF/24", "3,1,1", "24,1080PsF", 8, REFTYPE_TRI, "1080PsF\n24"},
    {"1080PsF/25", "3,2,1", "25/50,1080PsF", 9, REFTYPE_BOTH, "1080PsF\n25"},
    {"1080PsF/29.97", "3,3,1", "29.97/59.94,1080PsF", 10, REFTYPE_BOTH, "1080PsF\n29.97"},
    {"1080P/23.98", "3,0,2", "23.976,1080p", 11, REFTYPE_TRI, "1080P\n23.98"},
    {"1080P/24", "3,1,2", "24,1080p", 12, REFTYPE_TRI, "1080P\n24"},
    {"1080P/25", "3,2,2", "---,1080p", 13, REFTYPE_BOTH, "1080P\n25"},
    {"1080P/29.97", "3,3,2", "---,1080p", 14, REFTYPE_BOTH, "1080P\n29.97"},
    {"1080P/50", "3,5,2", "25/50,1080p", 15, REFTYPE_BOTH, "1080P\n50"},
    {"1080P/59.94", "3,6,2", "29.97/59.94,1080p", 16, REFTYPE_BOTH, "1080P\n59.94"},
    {"3840x2160P/50", "4,5,4", "25/50,3840x2160p", 17, REFTYPE_BOTH, "2160P\n50"},
    {"3840x2160P/59.94", "4,6,4", "29.97/59.94,3840x2160p", 18, REFTYPE_BOTH, "2160P\n59.94"},
};

static format Format[FORMAT_ROWS];
static format FormatTly[FORMAT_ROWS];
static int FormatMax = 0;
static int Format_AspectExec_PaneID = 0;
static SETUPSTATE format_state;
static int signal_pane = 0; // the choice of the signal format, 0 none

static const format_table* format_by_text(const char* text)
{
    for (const format_table& f : FormatTable)
        if (Same(f.format, text))
            return &f;
    return nullptr;
}

// The popup's id of a format, -1 for one that the table does not have.
static int format_popup_id(const char* text)
{
    const format_table* f = format_by_text(text);
    return f ? f->popup : -1;
}

static bool is_panel(const char* unit)
{
    return BeginsWith(unit, "PNL");
}
static bool is_switcher(const char* unit)
{
    return BeginsWith(unit, "SWR");
}
static bool is_effects(const char* unit)
{
    return BeginsWith(unit, "DME");
}

// --- Formats on the wire ---

static void format_of_command(const char* value, const char*, char* text, size_t size)
{
    ktr_strncpy(text, value, size);
    for (const format_table& f : FormatTable)
        if (Same(f.command, value))
            ktr_strncpy(text, f.format, size);
}

static void command_of_format(const char* text, char* value, size_t size)
{
    const format_table* f = format_by_text(text);
    ktr_strncpy(value, f ? f->command : text, size);
}

static bool has_oldcommand(const char* text, const char* oldcommand)
{
    const format_table* f = format_by_text(text);
    return f && Same(f->oldcommand, oldcommand);
}

// Two formats share a word. It then means the one in hand, or what a switcher tells more exactly.
static void format_of_oldcommand(const char* value, const char* now, char* text, size_t size)
{
    ktr_strncpy(text, value, size);
    if (has_oldcommand(now, value))
        return (void)ktr_strncpy(text, now, size);
    for (int row = 0; row < FormatMax; row++)
        if (is_switcher(FormatTly[row].device) && has_oldcommand(FormatTly[row].format, value))
            return (void)ktr_strncpy(text, FormatTly[row].format, size);
    for (const format_table& f : FormatTable)
        if (Same(f.oldcommand, value))
            return (void)ktr_strncpy(text, f.format, size);
}

static void oldcommand_of_format(const char* text, char* value, size_t size)
{
    const format_table* f = format_by_text(text);
    ktr_strncpy(value, f ? f->oldcommand : text, size);
}

// --- The table ---

namespace
{
enum : int { FLD_SWR_ASPECT, FLD_DME_ASPECT, FLD_REFERENCE, FLD_FORMAT2, FLD_FORMAT, FLD_HEARD };
constexpr uint32_t ASPECT_FIELDS = 1u << FLD_SWR_ASPECT | 1u << FLD_DME_ASPECT;
enum : int { COL_DEVICE, COL_FORMAT, COL_ASPECT, COL_REFERENCE };
constexpr int SWR_ASPECTS = 7; // outputs of a switcher
constexpr int DME_ASPECTS = 4; // channels of an effects unit
} // namespace

// In the order of the puts: the signal format last, as it restarts the units.
static constexpr SETUPFIELD format_fields[] = {
    {SETUP_CELL(format, aspect), .path = FORMAT "Switcher Aspect", .part = 1, .parts = SWR_ASPECTS,
     .column = COL_ASPECT, .ask = SETUP_READ, .has = is_switcher},
    {SETUP_CELL(format, aspect), .path = FORMAT "DME Aspect", .part = 1, .parts = DME_ASPECTS,
     .column = COL_ASPECT, .ask = SETUP_READ, .has = is_effects},
    {SETUP_CELL(format, reffmt), .path = FORMAT "Reference@$", .column = COL_REFERENCE,
     .ask = SETUP_READ, .is_reread = 1},
    {SETUP_CELL(format, format), .path = FORMAT "Video Format2@$", .column = COL_FORMAT,
     .ask = SETUP_READ, .has = is_switcher, .from_wire = format_of_command,
     .to_wire = command_of_format},
    {SETUP_CELL(format, format), .path = FORMAT "Video Format@$", .column = COL_FORMAT,
     .ask = SETUP_READ, .has = is_panel, .from_wire = format_of_oldcommand,
     .to_wire = oldcommand_of_format},
    {SETUP_CELL(format, format), .path = FORMAT "Video Format@$", .column = COL_FORMAT,
     .is_put = 0, // an effects unit follows its switcher
     .ask = SETUP_READ, .has = is_effects, .from_wire = format_of_oldcommand},
    {SETUP_CELL(format, device), .column = COL_DEVICE},
};

static constexpr SETUPCHOICE format_choices[] = {
    {LOCAL_FORMAT "Screen Aspect", FLD_SWR_ASPECT},
    {LOCAL_FORMAT "Ref Input Format", FLD_REFERENCE},
};

static int add_units(const char** keys, int n, int max, DEVICE* const* units)
{
    for (; *units && n < max; units++)
        keys[n++] = (*units)->name;
    return n;
}

static int format_units(const char** keys, int max)
{
    int n = add_units(keys, 0, max, DEV_MyPnl);
    n = add_units(keys, n, max, DEV_MySwr);
    return add_units(keys, n, max, DEV_MyDme);
}

static void format_changed();

static constexpr SETUPTABLE format_page = {
    .work = Format,
    .tally = FormatTly,
    .rows = &FormatMax,
    .state = &format_state,
    .row_size = sizeof(format),
    .max = FORMAT_ROWS,
    .fields = format_fields,
    .field_count = std::size(format_fields),
    .keys = format_units,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_FORMAT "Clear",
    .execute = LOCAL_FORMAT "Execute",
    .question = setup_reboot_question,
    .choices = format_choices,
    .choice_count = std::size(format_choices),
    .changed = format_changed,
};

static int current()
{
    return format_state.cursor;
}

// The signal format is one for the whole system.
static const format_table* system_format()
{
    for (int row = 0; row < FormatMax; row++)
        if (is_switcher(Format[row].device) || is_panel(Format[row].device))
            if (const format_table* f = format_by_text(Format[row].format))
                return f;
    return nullptr;
}

static void format_changed()
{
    const format_table* f = system_format();
    BT_SetDisable(BTN_FORMAT_TRI, FormatMax == 0 || (f && f->reftype == REFTYPE_BB));
    BT_SetDisable(BTN_FORMAT_BB, FormatMax == 0 || (f && f->reftype == REFTYPE_TRI));
    const int has_no_aspect = !SetupPage_Has(format_page, current(), FLD_SWR_ASPECT);
    BT_SetDisable(BTN_FORMAT_WIDE, has_no_aspect);
    BT_SetDisable(BTN_FORMAT_NARROW, has_no_aspect);
    BT_SetDisable(BTN_FORMAT_SIGNAL, FormatMax == 0 || is_effects(Format[current()].device));
    const int is_same = !SetupPage_Differs(format_page, ASPECT_FIELDS);
    BT_SetDisable(BTN_FORMAT_ASPECT_CLEAR, is_same);
    BT_SetDisable(BTN_FORMAT_ASPECT_EXECUTE, is_same);
}

// --- What the buttons do ---

// Units that take their reference from one input.
static constexpr const char* shared_references[][4] = {
    {"SWR1", "DME1", "DME2", nullptr},
    {"SWR2", "DME3", "DME4", nullptr},
};

static bool share_reference(const char* a, const char* b)
{
    for (const auto& group : shared_references) {
        bool has_a = false;
        bool has_b = false;
        for (const char* const* unit = group; *unit; unit++) {
            has_a = has_a || Same(*unit, a);
            has_b = has_b || Same(*unit, b);
        }
        if (has_a && has_b)
            return true;
    }
    return Same(a, b);
}

static void set_reference(const char* value)
{
    if (!SetupPage_Has(format_page, current(), FLD_REFERENCE))
        return;
    for (int row = 0; row < FormatMax; row++)
        if (share_reference(Format[row].device, Format[current()].device))
            SetupPage_Set(format_page, row, FLD_REFERENCE, value);
}

static void choose_signal()
{
    constexpr int columns = 3;
    BTNSEL keys[std::size(FormatTable)];
    const int now = format_popup_id(SetupPage_Text(format_page, current(), FLD_FORMAT2));
    for (size_t i = 0; i < std::size(FormatTable); i++)
        keys[i] = {FormatTable[i].popup, FormatTable[i].caption, FormatTable[i].popup == now};
    signal_pane = PanePopup_Create(int(std::size(keys)) / columns, columns, keys);
}

static void set_signal(int popup)
{
    for (const format_table& f : FormatTable) {
        if (f.popup != popup)
            continue;
        for (int row = 0; row < FormatMax; row++) {
            if (!is_effects(Format[row].device))
                SetupPage_Set(format_page, row, FLD_FORMAT2, f.format);
            if (f.reftype != REFTYPE_BOTH)
                SetupPage_Set(format_page, row, FLD_REFERENCE,
                              f.reftype == REFTYPE_BB ? "BB" : "Tri Sync");
        }
    }
}

static int format_button(const char* cmd, const char* value)
{
    if (Same(cmd, LOCAL_FORMAT "Ref Input Format"))
        set_reference(value);
    else if (Same(cmd, LOCAL_FORMAT "Signal Format"))
        choose_signal();
    else if (Same(cmd, LOCAL_FORMAT "Screen Aspect@Clear"))
        SetupPage_Clear(format_page, ASPECT_FIELDS);
    else if (Same(cmd, LOCAL_FORMAT "Screen Aspect@Aspect Execute"))
        Format_AspectExec_PaneID =
            PaneYesNo_Create("Aspect Execute", PANE_ALERT,
                             "This operation will cause the screen aspect\nratio to be "
                             "changed.\n\nContinue?");
    else
        return 0;
    return 1;
}

static int format_pane(int pane, int result)
{
    constexpr int yes = 1;
    if (pane != 0 && pane == signal_pane) {
        signal_pane = 0;
        set_signal(result);
        return 1;
    }
    if (pane == 0 || pane != Format_AspectExec_PaneID)
        return 0;
    Format_AspectExec_PaneID = 0;
    if (result == yes)
        SetupPage_Put(format_page, ASPECT_FIELDS);
    return 1;
}

static int pc_engsetup_system_format_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && format_button(Text(ax), Text(bx)))
        return 0;
    if (msg == LMSG_PANEQUIT && format_pane(int(ax), int(bx)))
        return 0;
    (void)SetupPage_Proc(format_page, msg, ax, bx);
    return 0;
}

static int pc_engsetup_system_format_create(int on, uint32_t)
{
    signal_pane = Format_AspectExec_PaneID = 0;
    return SetupPage_CreateOf<format_page>(on, 0);
}

const PC_TBL pc_engsetup_system_format = {.proc_func = pc_engsetup_system_format_proc,
                                          .create_func = pc_engsetup_system_format_create};

// --- The auxiliary outputs ---

#define OUTPUT "Engineering Setup@Switcher@Output@"
#define LOCAL_AUX LOCAL_FORMAT "AUX Signal Forma@" // the system's own word
#define AUX_NORMAL "Normal"

namespace
{
constexpr int OUTPUTS = 48;
struct auxsignal {
    char number[8]; // from 1
    char caption[24];
    char assign[24];
    char source[24];
    char signal[16];
};
enum : int { FLD_SIGNAL = 0 };
} // namespace

static auxsignal AuxSignal[OUTPUTS];
static auxsignal AuxSignalTly[OUTPUTS];
static int AuxSignalMax = 0;
static SETUPSTATE aux_state;

// What has not been told goes out as a normal one: a put has all outputs.
static constexpr SETUPWORD aux_words[] = {
    {"0", ""}, {"0", AUX_NORMAL}, {"1", "1080i"}, {"2", "59.94Hz(2x)"}, {}};
static constexpr SETUPFIELD aux_fields[] = {
    {SETUP_CELL(auxsignal, signal), .path = OUTPUT "Signal Format", .part = SETUP_EACH_ROW,
     .column = 3, .words = aux_words},
    {SETUP_CELL(auxsignal, assign), .path = OUTPUT "Assign", .part = 1, .column = 1, .is_put = 0},
    {SETUP_CELL(auxsignal, source), .path = OUTPUT "Source", .part = 1, .column = 2, .is_put = 0},
    {SETUP_CELL(auxsignal, caption), .column = 0},
};
static constexpr SETUPCHOICE aux_choices[] = {{LOCAL_AUX "Signal Format", FLD_SIGNAL}};

static int output_numbers(const char** keys, int max)
{
    static char numbers[OUTPUTS][8];
    int n = 0;
    for (; n < OUTPUTS && n < max; n++) {
        PrintText(numbers[n], "%d", n + 1);
        keys[n] = numbers[n];
    }
    return n;
}

static void aux_changed()
{
    for (int row = 0; row < AuxSignalMax; row++) {
        auxsignal& a = AuxSignal[row];
        if (!a.signal[0] || Same(a.signal, AUX_NORMAL))
            PrintText(a.caption, "%-2d", row + 1);
        else
            PrintText(a.caption, "%-2d (%s)", row + 1, a.signal);
    }
}

static constexpr SETUPTABLE aux_page = {
    .work = AuxSignal,
    .tally = AuxSignalTly,
    .rows = &AuxSignalMax,
    .state = &aux_state,
    .row_size = sizeof(auxsignal),
    .max = OUTPUTS,
    .fields = aux_fields,
    .field_count = std::size(aux_fields),
    .keys = output_numbers,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_AUX "Clear",
    .execute = LOCAL_AUX "Execute",
    .question = setup_reboot_question,
    .choices = aux_choices,
    .choice_count = std::size(aux_choices),
    .changed = aux_changed,
};
const PC_TBL pc_engsetup_system_format_auxsignal = SetupPage_Code<aux_page>;

// --- The level of 3G signals ---

namespace
{
struct level {
    char device[16];
    char level[16];
};
} // namespace

static level Level[FORMAT_ROWS];
static level LevelTly[FORMAT_ROWS];
static int LevelMax = 0;
static SETUPSTATE level_state;

static constexpr SETUPFIELD level_fields[] = {
    {SETUP_CELL(level, level), .path = FORMAT "Level A/B@$", .column = 1},
    {SETUP_CELL(level, device), .column = 0},
};
static constexpr SETUPCHOICE level_choices[] = {{LOCAL_FORMAT "Level A/B", 0}};

static int level_units(const char** keys, int max)
{
    const int n = add_units(keys, 0, max, DEV_MySwr);
    return add_units(keys, n, max, DEV_MyDme);
}

static constexpr SETUPTABLE level_page = {
    .work = Level,
    .tally = LevelTly,
    .rows = &LevelMax,
    .state = &level_state,
    .row_size = sizeof(level),
    .max = FORMAT_ROWS,
    .fields = level_fields,
    .field_count = std::size(level_fields),
    .keys = level_units,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_FORMAT "Level A/B@Clear",
    .execute = LOCAL_FORMAT "Level A/B@Execute",
    .question = setup_reboot_question,
    .choices = level_choices,
    .choice_count = std::size(level_choices),
};
const PC_TBL pc_engsetup_system_format_level = SetupPage_Code<level_page>;

void EngSetupFormat_Reset()
{
    for (const SETUPTABLE* t : {&format_page, &aux_page, &level_page})
        SetupPage_Forget(*t);
    signal_pane = Format_AspectExec_PaneID = 0;
}
