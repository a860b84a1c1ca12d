#include "info.h"
#include "autoload.h"
#include "file.h"
#include "fmctrl.h"
#include "fmctrl3.h"
#include "global.h"
#include "info_config.h"
#include "initread.h"
#include "menu_macro.h"
#include "message.h"
#include "register.h"
#include "selfdiag.h"
#include "tally_value.h"
#include <iterator>

#include "safeguards.h"

constexpr int PROCESSORS = 6;
constexpr int PROCESSOR_DME = 3;   // from here on an effects unit
constexpr int FIND_WORK_TYPE = 64; // the search for power-on files

int FileProc_Prog[FILE_PROG_UNITS];
int FileProc_Timeout;

// --- Links and processors ---

static void lose_server()
{
    for (int& status : GL_ProcStatus)
        status = 0;
    GL_FMThumbnailGetAfter = 0;
}

static void info_connect(const char* value)
{
    if (Same(value, "OK"))
        GL_ProcStatus[0] = 1;
    if (Same(value, "NG"))
        lose_server();
}

static void info_processor(const char* number, const char* value)
{
    const int n = Index(number, PROCESSORS + 1);
    if (n < 1)
        return;
    if (Same(value, "OK") || Same(value, "NG->OK")) {
        GL_ProcStatus[n] = 1;
        if (n >= PROCESSOR_DME)
            Register_RefreshDME();
    } else if (Same(value, "NG") || Same(value, "OK->NG")) {
        GL_ProcStatus[n] = 0;
        if (n == 1)
            GL_FMThumbnailGetAfter = 0;
    }
}

// --- Progress of file work ---

constexpr int PROG_FULL = 65536;
constexpr int PROG_DECAY = PROG_FULL / 4; // a pass, once a unit has fallen silent
constexpr int PROG_SILENCE_MS = 5000;

namespace
{
struct ProgressUnit {
    const char* name;
    int index; // into FileProc_Prog
};
} // namespace

static constexpr ProgressUnit progress_switchers[] = {{"SWR1", 1}, {"SWR2", 2}};
static constexpr ProgressUnit progress_dmes[] = {
    {"DME1", 3}, {"DME2", 4}, {"DME3", 5}, {"DME4", 6}};

static void set_progress(int unit, const char* current_text, const char* total_text)
{
    FileProc_Timeout = PROG_SILENCE_MS;
    const uint64_t total = Hex(total_text);
    if (total == 0) {
        FileProc_Prog[unit] = 0;
    } else {
        const uint64_t current = Hex(current_text);
        const int prog = current >= total ? PROG_FULL : int(current * PROG_FULL / total);
        if (prog <= FileProc_Prog[unit])
            return; // late reports do not turn a bar back
        FileProc_Prog[unit] = prog;
    }
    fileprocessprogress_update();
}

static void info_panel_progress(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 2) == 2)
        set_progress(0, p.v[0], p.v[1]);
}

template <size_t N>
static void info_unit_progress(const ProgressUnit (&units)[N], const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) < 3)
        return;
    for (const ProgressUnit& unit : units)
        if (Same(unit.name, p.v[0]))
            set_progress(unit.index, p.v[1], p.v[2]);
}

static void info_switcher_progress(const char* value)
{
    info_unit_progress(progress_switchers, value);
}

static void info_dme_progress(const char* value)
{
    info_unit_progress(progress_dmes, value);
}

static void info_decay(int elapsed_ms)
{
    if (!GL_FileProcessing)
        return;
    if (FileProc_Timeout > 0)
        FileProc_Timeout -= elapsed_ms;
    if (FileProc_Timeout > 0)
        return;
    bool fell = false;
    for (int& prog : FileProc_Prog) {
        if (prog <= 0)
            continue;
        prog = prog > PROG_DECAY ? prog - PROG_DECAY : 0;
        fell = true;
    }
    if (fell)
        fileprocessprogress_update();
}

// --- Single values ---

static void info_xpt_button_count(const char* value)
{
    GL_XptButtonCount = Decimal(value);
}

static void info_initial_menu(const char* value)
{
    const uint32_t page = Hex(value);
    if (page != 0)
        GL_InitialPage = page;
}

// --- Tallies by path ---

namespace
{
struct PathRow {
    const char* path;
    void (*take)(const char* value);
};
} // namespace

static constexpr PathRow exact_rows[] = {
    {"CONNECT@Status", info_connect},
    {"Info@Initial Read Status", InitialRead_Status},
    {"INFORMATION@PNL File Process Progress", info_panel_progress},
    {"INFORMATION@SWR File Process Progress", info_switcher_progress},
    {"INFORMATION@DME File Process Progress", info_dme_progress},
    {"Engineering Setup@Switcher@Config@M/E Output Assign@List", info_output_assign},
    {"Engineering Setup@Switcher@Config@PGM Config@List", info_pgm_config},
    {"Option@Debug@Memory count", ifd_memcnt_info},
    {"Engineering Setup@System@System Config@Setup Target", info_setup_target},
    {"INFORMATION@SWR Self Diagnosis Notice@Circuit Board ID", circuitboardid_tly},
};

// With or without a unit in front.
static constexpr PathRow contained_rows[] = {
    {"Info@Xpt Button Count", info_xpt_button_count},
    {"Info@Operation Setup Data@Initial Menu Set", info_initial_menu},
};

namespace
{
struct PrefixRow {
    const char* path;
    void (*take)(const char* rest, const char* value);
};
} // namespace

static constexpr PrefixRow prefix_rows[] = {
    {"Info@Processor Status@", info_processor},
    {"Engineering Setup@Switcher@Config@M/E Config@", info_me_config},
    {"Engineering Setup@Panel@Config@Compact Key Module Assign@KY Unit Config@", info_key_unit},
};

static bool is_auto_load(const char* path)
{
    return Same(path, "Info@Operation Setup Data@Auto Load") || Same(path, "CONNECT@Status") ||
           BeginsWith(path, "Info@Auto Load@Data Exist@") ||
           BeginsWith(path, "Info@Auto Load@Start@");
}

static void info_tally(const char* path, const char* value)
{
    for (const PathRow& row : exact_rows)
        if (Same(row.path, path))
            row.take(value);
    for (const PrefixRow& row : prefix_rows)
        if (BeginsWith(path, row.path))
            row.take(path + strlen(row.path), value);
    for (const PathRow& row : contained_rows)
        if (strstr(path, row.path))
            row.take(value);
    if (is_auto_load(path))
        AutoLoad_Tally(path, value);
}

static void info_auto_load_find(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (ax != FIND_WORK_TYPE || AutoLoadFindID == 0 || uint32_t(bx) != AutoLoadFindID)
        return;
    if (msg == LMSG_FILESTATUS)
        AutoLoadFind_Tally(Text(cx), Text(dx));
    else
        AutoLoadFindEnd_Tally();
}

int InfoProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    switch (msg) {
    case MSG_TALLY:
        if (ax && bx)
            info_tally(Text(ax), Text(bx));
        break;
    case MSG_REDRAW: // of those below one only has a clock
        info_decay(int(ax));
        menu_macro_run_proc(msg, ax, bx, cx, dx);
        return 0;
    case LMSG_FILESTATUS:
    case LMSG_FINDSTATUS: info_auto_load_find(msg, ax, bx, cx, dx); break;
    default: break;
    }
    meassign_proc(msg, ax, bx, cx, dx);
    mainsubassign_proc(msg, ax, bx, cx, dx);
    menu_macro_run_proc(msg, ax, bx, cx, dx);
    maintenance_info_proc(msg, ax, bx, cx, dx);
    selfdiag_proc(msg, ax, bx, cx, dx);
    framememory_proc(msg, ax, bx, cx, dx);
    clipstore_proc(msg, ax, bx, cx, dx);
    operationsetup_proc(msg, ax, bx, cx, dx);
    systemsetup_proc(msg, ax, bx, cx, dx);
    return 0;
}
