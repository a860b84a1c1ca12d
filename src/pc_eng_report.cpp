// The status reports of the error detection: the server tells of what it has found while the
// initial read has switched that on. "Info@Status Report@UNIT#text" is a report of a unit,
// "Info@Status Report#text" one of the server itself; with "true" or "false" the latter says
// whether reports come. They are kept from the start on, whatever page is shown, and logged.
#include "a_ls.h"
#include "colours.h"
#include "log.h"
#include "message.h"
#include "pc_eng.h"
#include "selfdiag.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <ctime>

#include "safeguards.h"

namespace
{
constexpr int REPORTS = 200;
constexpr char PATH[] = "Info@Status Report";
enum : int { COLUMN_TIME, COLUMN_UNIT, COLUMN_TEXT };
enum : int { CELLS_NORMAL = 0, CELLS_RED = 2 };

struct Report {
    char time[16];
    char unit[24];
    char text[ENG_CELL];
};
} // namespace

static struct {
    Report report[REPORTS]; // report[next] is the oldest when all are in use
    int next = 0;
    int used = 0;
    int is_on = -1; // as the server has told; -1 not yet
    bool is_dirty = false;
} er; // for the life of the process

static void take(const char* unit, const char* text)
{
    Report& r = er.report[er.next];
    const time_t now = time(nullptr);
    tm t{};
    gmtime_r(&now, &t);
    PrintText(r.time, "%02d:%02d:%02d", t.tm_hour, t.tm_min, t.tm_sec);
    CopyText(r.unit, unit);
    CopyText(r.text, text);
    er.next = (er.next + 1) % REPORTS;
    er.used = std::min(er.used + 1, REPORTS);
    er.is_dirty = true;
    Log_Output(LOG_LIFE, MOD_GLOBAL, "Status report of %s: %s", r.unit, r.text);
}

static void take_switch(bool is_on)
{
    er.is_on = is_on;
    er.is_dirty = true;
}

int maintenance_info_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY || !ax || !bx || !BeginsWith(Text(ax), PATH))
        return 0;
    const char* const unit = Text(ax) + sizeof PATH - 1;
    const char* const value = Text(bx);
    if (*unit == '@')
        take(unit + 1, value);
    else if (*unit == '\0' && (Same(value, "true") || Same(value, "false")))
        take_switch(IsTrue(value));
    else if (*unit == '\0')
        take("Server", value);
    return 0;
}

// --- The page ---

static bool is_error(const Report& r)
{
    return BeginsWith(r.text, "NG") || BeginsWith(r.text, "OK->NG") || StrIStr(r.text, "error");
}

static void reports_show()
{
    er.is_dirty = false;
    for (int i = 0; i < er.used; i++) {
        const Report& r = er.report[(er.next - 1 - i + REPORTS) % REPORTS]; // the newest on top
        LS_SetData(ENG_LIST, i, COLUMN_TIME, r.time);
        LS_SetData(ENG_LIST, i, COLUMN_UNIT, r.unit);
        LS_SetData(ENG_LIST, i, COLUMN_TEXT, r.text);
        LS_SetStatus(ENG_LIST, i, COLUMN_TEXT, is_error(r) ? CELLS_RED : CELLS_NORMAL);
    }
    LS_SetNData(ENG_LIST, er.used);
    LS_RedrawData(ENG_LIST);
    char text[ENG_CELL];
    PrintText(text, "%d reports.  The server %s.", er.used,
              er.is_on < 0 ? "has not said whether it reports"
              : er.is_on   ? "reports"
                           : "does not report");
    Eng_Text(104, 392, 697, text, 3, LABEL);
    TDL_UpdateRect(104, 392, 697, 410);
}

static int reports_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), ENG_REPORT "Clear")) {
        er.used = er.next = 0;
        er.is_dirty = true;
    }
    if (msg == MSG_REDRAW && er.is_dirty)
        reports_show();
    return 0;
}

static int reports_create(int on, uint32_t)
{
    if (!on)
        return 1;
    reports_show();
    return 0;
}

const PC_TBL pc_eng_reports = {reports_proc, reports_create};
