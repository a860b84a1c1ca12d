#include "pc_device.h"
#include "a_ba.h"
#include "a_ls.h"
#include "colours.h"
#include "message.h"
#include "netio.h"
#include "one_of.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

static_assert(DEVICES <= ONEOF_ROWS && PBUS_DEVICES <= ONEOF_ROWS);

namespace
{
constexpr int LIST = 1;
constexpr int FILES = 2;

// A page, and the switch that asks the server to tell what goes on while it stands.
struct View {
    const ONEOF* table = nullptr;
    const char* tally_back = nullptr;
};

enum : int { COL_STATE, COL_TIMECODE, COL_TYPE, COL_FILE }; // of the control page

// The chosen device, large.
constexpr Rect STRIP = {364, 78, 697, 158};
constexpr int FONT_TIMECODE = 9;
constexpr int FONT_STATE = 8;
constexpr int FONT_TEXT = 3;
constexpr Rect LAMP = {676, 86, 687, 97}; // lit while it records

constexpr int FILE_ROWS = 512;
constexpr int FILE_NAME = 32;
constexpr int FILE_COLUMNS = 3; // number, name, length
constexpr char FILE_LIST[] = "Device@DDR/VTR@File List";
} // namespace

// --- Names ---

template <int N> static int numbered(const char* word, const char** names, int max)
{
    static char text[N][12];
    const int n = std::min(N, max);
    for (int i = 0; i < n; i++) {
        PrintText(text[i], "%s%d", word, i + 1);
        names[i] = text[i];
    }
    return n;
}
static int device_names(const char** names, int max)
{
    return numbered<DEVICES>("Dev", names, max);
}
static int pbus_names(const char** names, int max)
{
    return numbered<PBUS_DEVICES>("P-Bus", names, max);
}
static int gpi_names(const char** names, int max)
{
    return numbered<GPI_OUTPUTS>("", names, max);
}
// --- Pages that are no more than one of many with a switch ---

static int view_create(const View& v, int on)
{
    on ? OneOf_Open(*v.table) : OneOf_Close(*v.table);
    if (v.tally_back)
        Net_SendCommandFormat("put %s#%s", v.tally_back, Bool(on));
    return !on;
}

template <const View& view> static int create_of(int on, uint32_t)
{
    return view_create(view, on);
}
template <const View& view> static int proc_of(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    (void)OneOf_Proc(*view.table, msg, ax, bx);
    return 0;
}

static ONEOFSTATE devices;
static ONEOFSTATE pbus;
static ONEOFSTATE gpi;

void Device_OpenNext(int device)
{
    if (device >= 0 && device < DEVICES)
        devices.cursor = device;
}

template <size_t N>
static constexpr ONEOF table_of(ONEOFSTATE* state, int (*names)(const char**, int),
                                const ONEOFCOLUMN (&columns)[N])
{
    return {.list = LIST, .state = state, .names = names, .columns = columns, .column_count = N};
}

#define DEVICE_PATH "Device@DDR/VTR@$@"

const ONEOFWORD device_type_words[] = {{"Extended VTR", "Ext VTR"}, {}};

static constexpr ONEOFCOLUMN timeline_columns[] = {{DEVICE_PATH "Timeline@Action"},
                                                   {DEVICE_PATH "Timeline@Start TC", nullptr, 1},
                                                   {DEVICE_PATH "Timeline@Stop TC", nullptr, 1},
                                                   {DEVICE_PATH "Timeline@Rewind Action"}};
static constexpr ONEOF timeline = table_of(&devices, device_names, timeline_columns);
static constexpr View timeline_view = {&timeline, "Device@DDR/VTR@Timeline@Tally Back"};
const PC_TBL pc_device_timeline = {proc_of<timeline_view>, create_of<timeline_view>};

static constexpr ONEOFCOLUMN setting_columns[] = {{DEVICE_PATH "Type", device_type_words},
                                                  {DEVICE_PATH "Control"},
                                                  {DEVICE_PATH "Preroll"},
                                                  {DEVICE_PATH "Edit@Mode"}};
static constexpr ONEOF setting = table_of(&devices, device_names, setting_columns);
static constexpr View setting_view = {.table = &setting};
const PC_TBL pc_device_setting = {proc_of<setting_view>, create_of<setting_view>};

static constexpr ONEOFCOLUMN pbus_columns[] = {
    {"Device@P-BUS@$@Name"}, {"Device@P-BUS@$@Enable", one_of_switch}, {"Device@P-BUS@$@Last"}};
static constexpr ONEOF pbus_table = table_of(&pbus, pbus_names, pbus_columns);
static constexpr View pbus_view = {.table = &pbus_table};
const PC_TBL pc_device_pbus = {proc_of<pbus_view>, create_of<pbus_view>};

static constexpr ONEOFCOLUMN pbus_timeline_columns[] = {{"Device@P-BUS Timeline@$@Action"},
                                                        {"Device@P-BUS Timeline@$@Register"},
                                                        {"Device@P-BUS Timeline@$@Trigger"}};
static constexpr ONEOF pbus_timeline = table_of(&pbus, pbus_names, pbus_timeline_columns);
static constexpr View pbus_timeline_view = {&pbus_timeline, "Device@P-BUS Timeline@Tally Back"};
const PC_TBL pc_device_pbus_timeline = {proc_of<pbus_timeline_view>, create_of<pbus_timeline_view>};

static constexpr ONEOFCOLUMN gpi_timeline_columns[] = {
    {"Device@GPI Timeline@$@Fire", one_of_switch}, {"Device@GPI Timeline@$@Delay"}};
static constexpr ONEOF gpi_timeline = table_of(&gpi, gpi_names, gpi_timeline_columns);
static constexpr View gpi_timeline_view = {&gpi_timeline, "Device@GPI Timeline@Tally Back"};
const PC_TBL pc_device_gpi_timeline = {proc_of<gpi_timeline_view>, create_of<gpi_timeline_view>};

// --- GPI: the test is the setup's ---

static constexpr ONEOFCOLUMN gpi_columns[] = {{"Device@GPI@$@Name"},
                                              {"Device@GPI@$@Enable", one_of_switch}};
static constexpr ONEOF gpi_table = table_of(&gpi, gpi_names, gpi_columns);
static constexpr View gpi_view = {.table = &gpi_table};

static int gpi_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    constexpr char TEST_FIRE[] = "Engineering Setup@Switcher@Device Interface@GPI Output@Test Fire";
    if (msg == LMSG_BTNSEL && Same(Text(ax), DEVICE_GPI_FIRE))
        Net_SendCommandFormat("put %s@%d#", TEST_FIRE, gpi.cursor + 1);
    else
        (void)OneOf_Proc(gpi_table, msg, ax, bx);
    return 0;
}
const PC_TBL pc_device_gpi = {gpi_proc, create_of<gpi_view>};

// --- Control ---

static constexpr ONEOFCOLUMN control_columns[] = {{DEVICE_PATH "Transport"},
                                                  {DEVICE_PATH "Time Code"},
                                                  {DEVICE_PATH "Type", device_type_words},
                                                  {DEVICE_PATH "File"}};
static constexpr ONEOF control = table_of(&devices, device_names, control_columns);
static constexpr View control_view = {&control, "Device@DDR/VTR@Cueup&Play@Tally Back"};

static bool is_strip_dirty; // valid while the page stands

static int draw_strip()
{
    if (!is_strip_dirty)
        return 0;
    is_strip_dirty = false;
    const auto cell = [](int column) { return OneOf_Cell(control, devices.cursor, column); };
    const int x = STRIP.x1 + 12;
    TDL_FillRectS(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2, HEADER_GROUND);
    TDL_RectS(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2, CELL_FRAME);
    TDL_SymbolWS(x, STRIP.y1 + 8, 90, OneOf_Name(control), FONT_STATE, WHITE);
    TDL_SymbolWS(x + 84, STRIP.y1 + 8, 120, cell(COL_STATE), FONT_STATE, TEAL);
    TDL_SymbolWS(x + 204, STRIP.y1 + 12, 90, cell(COL_TYPE), FONT_TEXT, LABEL);
    TDL_SymbolWS(x, STRIP.y1 + 34, 160, cell(COL_TIMECODE), FONT_TIMECODE, WHITE);
    TDL_SymbolWS(x, STRIP.y1 + 62, STRIP.x2 - x - 8, cell(COL_FILE), FONT_TEXT, LABEL);
    const bool is_recording = Same(cell(COL_STATE), "Record");
    TDL_FillRectS(LAMP.x1, LAMP.y1, LAMP.x2, LAMP.y2, is_recording ? RED : LAMP_OFF);
    TDL_UpdateRect(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2);
    return 0;
}

static int control_create(int on, uint32_t)
{
    is_strip_dirty = on;
    return view_create(control_view, on);
}

static int control_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_REDRAW)
        return draw_strip();
    if (OneOf_Proc(control, msg, ax, bx))
        is_strip_dirty = true;
    return 0;
}
const PC_TBL pc_device_control = {control_proc, control_create};

// --- Files: the server lists those of one device when it is asked for them ---

static constexpr ONEOFCOLUMN file_columns[] = {
    {DEVICE_PATH "Type", device_type_words}, {DEVICE_PATH "Transport"}, {DEVICE_PATH "File"}};
static constexpr ONEOF file_devices = table_of(&devices, device_names, file_columns);

static struct {
    char text[FILE_ROWS][FILE_COLUMNS][FILE_NAME]; // valid to count; the list keeps pointers
    int count = 0;
    int cursor = -1; // -1: none is chosen
} fl;                // valid from create(1) to create(0)

static void ask_for_files()
{
    fl.count = 0;
    fl.cursor = -1;
    LS_ClearData(FILES);
    LS_RedrawData(FILES);
    Net_SendCommandFormat("put %s#%s", FILE_LIST, OneOf_Name(file_devices));
}

// "KILL", or "Dev3,1,NAME,00:00:10:00". What is left of an answer about another device is dropped.
static int file_listed(const char* value)
{
    Parts p;
    if (IsKill(value)) {
        fl.count = 0;
        return LS_SetNData(FILES, 0);
    }
    if (SplitValue(p, value, 4) < 4 || !Same(p.v[0], OneOf_Name(file_devices)) || !p.v[2][0])
        return 0;
    const int row = IndexFrom1(p.v[1], std::min(fl.count + 1, FILE_ROWS)); // no gap
    if (row < 0)
        return 0;
    fl.count = std::max(fl.count, row + 1);
    for (int n = 0; n < FILE_COLUMNS; n++) {
        CopyText(fl.text[row][n], p.v[n + 1]);
        LS_SetData(FILES, row, n, fl.text[row][n]);
    }
    LS_SetNData(FILES, fl.count);
    return LS_RedrawData(FILES);
}

static int load_file(bool is_cued)
{
    if (fl.cursor < 0 || fl.cursor >= fl.count)
        return 0;
    const char* const device = OneOf_Name(file_devices);
    Net_SendCommandFormat("put Device@DDR/VTR@%s@File#%s", device, fl.text[fl.cursor][1]);
    if (is_cued)
        Net_SendCommandFormat("put Device@DDR/VTR@%s@Transport#Cue Up", device);
    return 0;
}

static int file_key(const char* command)
{
    if (Same(command, DEVICE_FILE_READ))
        ask_for_files();
    else if (Same(command, DEVICE_FILE_LOAD) || Same(command, DEVICE_FILE_CUE))
        load_file(Same(command, DEVICE_FILE_CUE));
    return 0;
}

static int file_touched(int list, int row)
{
    if (list == FILES && row >= 0 && row < fl.count)
        fl.cursor = row;
    if (list != LIST || row == devices.cursor)
        return 0;
    OneOf_Choose(file_devices, row);
    ask_for_files();
    return 0;
}

static int files_create(int on, uint32_t)
{
    if (on) {
        fl.count = 0;
        OneOf_Open(file_devices);
        Net_SendCommandFormat("add %s", FILE_LIST);
        ask_for_files();
    } else {
        Net_SendCommandFormat("remove %s", FILE_LIST);
        OneOf_Close(file_devices);
    }
    return !on;
}

static int files_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_LISTSEL: return file_touched(int(ax), int(bx));
    case LMSG_BTNSEL: return file_key(Text(ax));
    case MSG_TALLY:
        if (Same(Text(ax), FILE_LIST))
            return file_listed(Text(bx));
        break;
    default: break;
    }
    (void)OneOf_Proc(file_devices, msg, ax, bx);
    return 0;
}
const PC_TBL pc_device_files = {files_proc, files_create};
