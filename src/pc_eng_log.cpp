// The last lines of a log, the newest on top: of one module or all, with a text in them or any.
// While it follows, the page takes up what is written meanwhile.
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "command.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sys/stat.h>

#include "safeguards.h"

namespace
{
constexpr size_t TAIL = 128 * 1024; // bytes of the file that are looked at
constexpr int LINES = 1000;
constexpr int ALL_MODULES = -1;
constexpr Rect STRIP = {100, 302, 697, 338};
enum : int { COLUMN_TIME, COLUMN_MODULE, COLUMN_TEXT };

enum LogFile { LOG_MENU, LOG_MAINTENANCE, LOG_ERRORS, LOG_FILES };
constexpr const char* file_words[LOG_FILES] = {"Menu", "Maintenance", "Errors"};
constexpr const char* other_files[LOG_FILES] = {nullptr, "/mnt/sys/log/maintenance.log",
                                                "/var/log2/tm3err.log"};

// Of a line that has been cut up: each points into the tail.
struct Line {
    const char* time;
    const char* module;
    const char* text;
};
} // namespace

static struct {
    LogFile file = LOG_MENU;
    int module = ALL_MODULES;
    char find[32] = "";
    bool follows = true;
    bool is_strip_dirty = false;
    int wait_ms = 0;
    long long seen_size = -1; // of the file when it was read
    int lines = 0;            // in the list
} eg;                         // kept while other pages are shown, but for what is read
static char tail[TAIL + 1];
static Line shown[LINES];

static const char* file_name()
{
    return eg.file == LOG_MENU ? GL_LogFileName : other_files[eg.file];
}

static long long file_size()
{
    struct stat st;
    return stat(file_name(), &st) == 0 ? (long long)st.st_size : -1;
}

// The end of the file into tail, from its first whole line on. Returns where that begins.
static char* read_tail()
{
    tail[0] = '\0';
    FILE* fp = fopen(file_name(), "r");
    if (!fp)
        return tail;
    const bool is_cut = eg.seen_size > (long long)TAIL;
    if (is_cut)
        fseek(fp, -long(TAIL), SEEK_END);
    const size_t n = fread(tail, 1, TAIL, fp);
    fclose(fp);
    tail[n] = '\0';
    std::replace(tail, tail + n, '\0', ' '); // what a power failure has left
    char* const end = is_cut ? strchr(tail, '\n') : nullptr;
    return end ? end + 1 : tail;
}

// "[Mar 05 07:08:09][ 15] text", "[Mar 05 07:08:09] [SWR1]text", or a line without a stamp, which
// has come over the text link as it is. Cuts it in place.
static Line cut_line(char* line)
{
    constexpr size_t STAMP = sizeof "Mar 05 07:08:09" - 1;
    Line l = {"", "", line};
    if (line[0] != '[')
        return l;
    char* const time_end = strchr(line, ']');
    if (!time_end || size_t(time_end - line - 1) > STAMP)
        return l;
    *time_end = '\0';
    l = {line + 1, "", time_end + 1};
    char* const module = time_end + 1 + strspn(time_end + 1, " ");
    char* const module_end = *module == '[' ? strchr(module, ']') : nullptr;
    if (!module_end)
        return l;
    *module_end = '\0';
    l.module = module + 1 + strspn(module + 1, " ");
    l.text = module_end + 1 + strspn(module_end + 1, " ");
    return l;
}

static bool is_wanted(const Line& line)
{
    if (eg.file == LOG_MENU && eg.module != ALL_MODULES &&
        (!*line.module || Decimal(line.module) != eg.module))
        return false;
    return !eg.find[0] || StrIStr(line.text, eg.find);
}

// From the last line up. The newest lines are kept when there are more than the list takes.
static int take_lines(char* first)
{
    int n = 0;
    for (char* end = first + strlen(first); end > first && n < LINES;) {
        if (end[-1] == '\n')
            *--end = '\0';
        char* line = end;
        while (line > first && line[-1] != '\n')
            line--;
        const Line cut = cut_line(line);
        end = line;
        if (*cut.text && is_wanted(cut))
            shown[n++] = cut;
    }
    return n;
}

static void read_log()
{
    eg.seen_size = file_size();
    LS_SetNData(ENG_LIST, 0); // the list must not show what is overwritten
    eg.lines = take_lines(read_tail());
    for (int i = 0; i < eg.lines; i++) {
        LS_SetData(ENG_LIST, i, COLUMN_TIME, shown[i].time);
        LS_SetData(ENG_LIST, i, COLUMN_MODULE, shown[i].module);
        LS_SetData(ENG_LIST, i, COLUMN_TEXT, shown[i].text);
    }
    LS_SetNData(ENG_LIST, eg.lines);
    LS_RedrawData(ENG_LIST);
    eg.is_strip_dirty = true;
}

// The whole text of the current line; the list cuts it.
static void draw_strip()
{
    eg.is_strip_dirty = false;
    TDL_FillRectS(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2, 0x0A1A20);
    const int row = LS_GetNowLine(ENG_LIST);
    if (eg.lines == 0)
        TDL_SymbolS(STRIP.x1 + 4, STRIP.y1 + 2,
                    eg.seen_size < 0 ? "There is no such file." : "No such line.", 2, WHITE);
    else if (row >= 0 && row < eg.lines)
        TDL_SymbolBS(STRIP.x1 + 4, STRIP.y1 + 3, STRIP.x2 - STRIP.x1 - 8, STRIP.y2 - STRIP.y1 - 3,
                     shown[row].text, 2, WHITE, 0);
    TDL_UpdateRect(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2);
}

static void show_settings()
{
    Eng_Mirror(ENG_LOG "File", file_words[eg.file]);
    Eng_Mirror(ENG_LOG "Module", NumStr(eg.module));
    Eng_Mirror(ENG_LOG "Follow", Bool(eg.follows));
    Eng_Mirror(ENG_LOG "Find", Bool(eg.find[0] != '\0'));
    for (int id : {BTN_LOG_MODULE_ALL, BTN_LOG_MODULE_START, BTN_LOG_MODULE_GLOBAL,
                   BTN_LOG_MODULE_LINKS, BTN_LOG_MODULE_PAGES})
        BT_SetDisable(id, eg.file != LOG_MENU); // the others have no modules
}

static int take_text(const char* text)
{
    CopyText(eg.find, text);
    show_settings();
    read_log();
    return 0;
}

// While a text is looked for the key lets go of it.
static void find_button()
{
    if (eg.find[0]) {
        (void)take_text("");
        return;
    }
    WindowArgs args;
    args.value = eg.find;
    args.input_max = sizeof eg.find - 1;
    args.ok_text = take_text;
    CreateWindow(WINDOW_KEYBOARD, "Find", args);
}

static int log_button(const char* path, const char* value)
{
    if (Same(path, ENG_LOG "Find")) {
        find_button();
        return 0;
    }
    for (int f = 0; Same(path, ENG_LOG "File") && f < LOG_FILES; f++)
        if (Same(value, file_words[f]))
            eg.file = LogFile(f);
    if (Same(path, ENG_LOG "Module"))
        eg.module = Decimal(value);
    if (Same(path, ENG_LOG "Follow"))
        eg.follows = !eg.follows;
    show_settings();
    read_log();
    LS_SetNowLine(ENG_LIST, 0);
    return 0;
}

static int log_redraw(int elapsed_ms)
{
    eg.wait_ms -= elapsed_ms;
    if (eg.wait_ms <= 0) {
        eg.wait_ms = ENG_REFRESH;
        if (eg.follows && file_size() != eg.seen_size)
            read_log();
    }
    if (eg.is_strip_dirty)
        draw_strip();
    return 0;
}

static int log_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return log_button(Text(ax), Text(bx));
    case LMSG_LISTSEL: eg.is_strip_dirty = true; return 0;
    case MSG_REDRAW: return log_redraw(int(ax));
    default: return 0;
    }
}

static int log_create(int on, uint32_t)
{
    if (!on)
        return 1;
    show_settings();
    read_log();
    LS_SetNowLine(ENG_LIST, 0);
    return 0;
}

const PC_TBL pc_eng_log = {log_proc, log_create};
