// The file of a register: a line a command. A word of it is misspelt for ever.
//
//   #FName: mm_reg07.tmp.##################
//   Header:OPENING,0,3                name, lock, commands
//   Interval:500                      ms between events
//   DME CH:00000001,00000001          of the event that follows
//   Event:put M/E-1@...#true          its first command
//   Contnue:put M/E-2@...#true        the others
//   Pause:1.5                         seconds
//   Local:LOCAL@...                   an action of this menu
#include "file_name.h"
#include "log.h"
#include "menu_macro_private.h"
#include "process.h"
#include "safe_file.h"
#include "text.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "safeguards.h"

namespace
{
constexpr char BACKUP_DIR[] = "/mnt/data/Menu_Macro_tmp";
constexpr char TRANSFER_DIR[] = "/var/tmp/MenuMacro";
constexpr int LINE_SIZE = CMD_SIZE + 32; // the longest command behind the longest word
using Path = char[PATH_SIZE];
} // namespace

static void backup_path(int no, Path& path)
{
    PrintText(path, "%s/mm_reg%02d.tmp", BACKUP_DIR, no + 1);
}

static void transfer_path(int no, Path& path)
{
    PrintText(path, "%s/mm_reg%02d.tmp", TRANSFER_DIR, no + 1);
}

// --- Writing ---

static void write_command(FILE* fp, const char* word, const char* text)
{
    fprintf(fp, "%s:%.*s\n", word, int(strcspn(text, "\r\n")), text);
}

static void write_event(FILE* fp, const CURRENT_EVENT_DATA& event)
{
    fprintf(fp, "DME CH:%08X,%08X\n", event.RefCH, event.SelCH);
    for (int n = 0; n < event.protcol_cnt; n++) {
        const char* const line = mm_event_command(event, n);
        if (BeginsWith(line, MM_PAUSE))
            write_command(fp, "Pause", line + strlen(MM_PAUSE));
        else if (BeginsWith(line, MM_LOCAL))
            write_command(fp, "Local", line + strlen(MM_LOCAL));
        else
            write_command(fp, n == 0 ? "Event" : "Contnue", line);
    }
}

static void write_register(FILE* fp, int no)
{
    const MMACRO_REGISTER_TBL table = mm_register_table(no);
    fprintf(fp, "#FName: mm_reg%02d.tmp.##################\n", no + 1);
    fprintf(fp, "Header:%s,%d,%d\n", table.name, table.lock, reg_data[no].register_protcol_max);
    fprintf(fp, "Interval:%d\n", mm_register_interval(no));
    for (const CURRENT_REGISTER_DATA* node = reg_data[no].register_data; node; node = node->next)
        write_event(fp, node->event_data);
}

static void make_directory(const char* dir)
{
    char command[PATH_SIZE + 16];
    PrintText(command, "/bin/mkdir -p %s", dir);
    (void)ktr_system(command); // without it the file cannot be opened, which is told
}

int mm_register2hdd_bk_file(int no, const char* path)
{
    const MACRO_REGISTER_DATA* const reg = mm_register(no);
    if (!reg)
        return -1;
    if (!reg->register_data)
        return 0;
    char dir[PATH_SIZE];
    CopyText(dir, path);
    if (char* const slash = strrchr(dir, '/'))
        *slash = '\0';
    if (!FileExist(dir))
        make_directory(dir);
    SafeFile file;
    if (SafeFile_Open(file, path) != 0)
        return -1;
    write_register(file.fp, no);
    return SafeFile_Commit(file);
}

int mm_macro_file_save(int n)
{
    Path path;
    if (!mm_register(n))
        return -1;
    backup_path(n, path);
    RegDataWaitList[n].change = 0;
    return mm_register2hdd_bk_file(n, path);
}

void mm_file_remove(int no)
{
    Path path;
    backup_path(no, path);
    (void)remove(path); // most often there is none
}

// --- Reading ---

static void append_node(MacroReader& r, const char* line)
{
    CURRENT_EVENT_DATA event;
    const bool has_room =
        r.events < MENU_MACRO_EVENTS && r.reg.register_protcol_max < MENU_MACRO_LINES;
    CURRENT_REGISTER_DATA* node = nullptr;
    if (has_room && mm_event_begin(event, line) == 0) {
        event.RefCH = r.RefCH;
        event.SelCH = r.SelCH;
        node = mm_list_insert(r.reg.register_data, r.last, event);
    }
    mm_event_free(event);
    if (!node) {
        r.left_out++;
        return;
    }
    r.last = node;
    r.events++;
    r.reg.register_protcol_max++;
}

// A command as it is sent; anything else that stands in a file must not reach the server.
static void read_command(MacroReader& r, const char* text, bool is_first)
{
    char line[CMD_SIZE];
    if (!BeginsWith(text, "put ") && !BeginsWith(text, "default ")) {
        r.left_out++;
        return;
    }
    PrintText(line, "%.*s\n", int(sizeof line - 2), text);
    const bool is_command = r.last && mm_event_pause(r.last->event_data) < 0 &&
                            !BeginsWith(r.last->event_data.event_data, MM_LOCAL);
    const bool may_join = !is_first && is_command && r.reg.register_protcol_max < MENU_MACRO_LINES;
    if (may_join && mm_event_append(r.last->event_data, line) == 0)
        r.reg.register_protcol_max++;
    else
        append_node(r, line);
}

static void read_event(MacroReader& r, const char* text)
{
    read_command(r, text, true);
}

static void read_continue(MacroReader& r, const char* text)
{
    read_command(r, text, false);
}

static void read_pause(MacroReader& r, const char* text)
{
    char line[CMD_SIZE];
    PrintText(line, "%s%.*s\n", MM_PAUSE, 64, text);
    append_node(r, line);
}

static void read_local(MacroReader& r, const char* text)
{
    char line[CMD_SIZE];
    PrintText(line, "%s%.*s\n", MM_LOCAL, int(sizeof line - sizeof MM_LOCAL - 1), text);
    append_node(r, line);
}

// "NAME,LOCK,COMMANDS"; the commands are counted anew, and a name with a comma keeps it.
static void read_header(MacroReader& r, const char* text)
{
    char name[LINE_SIZE];
    CopyText(name, text);
    for (int field = 0; field < 2; field++) {
        char* const comma = strrchr(name, ',');
        if (!comma)
            break;
        if (field == 1)
            r.reg.lock = strtol(comma + 1, nullptr, 10) != 0;
        *comma = '\0';
    }
    name[MENU_MACRO_NAME - 1] = '\0';
    (void)StrRegName(name); // an empty one gets its default later
    CopyText(r.reg.name, name);
}

static void read_interval(MacroReader& r, const char* text)
{
    r.interval = int(std::clamp(strtol(text, nullptr, 10), 0L, long(MENU_MACRO_INTERVAL_MAX)));
}

static void read_channels(MacroReader& r, const char* text)
{
    char* end = nullptr;
    r.RefCH = unsigned(strtoul(text, &end, 16));
    r.SelCH = *end == ',' ? unsigned(strtoul(end + 1, nullptr, 16)) : 0;
}

static constexpr struct {
    const char* word;
    void (*read)(MacroReader& r, const char* text);
} words[] = {
    {"Header:", read_header},   {"Interval:", read_interval}, {"Wait Time:", read_interval},
    {"DME CH:", read_channels}, {"Event:", read_event},       {"Contnue:", read_continue},
    {"Pause:", read_pause},     {"Local:", read_local},
};

void mm_read_line(MacroReader& reader, const char* line)
{
    if (*line == '#' || *line == '\0')
        return;
    for (const auto& w : words)
        if (BeginsWith(line, w.word)) {
            w.read(reader, line + strlen(w.word));
            return;
        }
    reader.left_out++;
}

// A line without its end into text, which has room for every line of ours; what is longer is cut.
static bool next_line(FILE* fp, char (&text)[LINE_SIZE])
{
    size_t n = 0;
    int c = getc(fp);
    if (c == EOF)
        return false;
    for (; c != EOF && c != '\n'; c = getc(fp))
        if (n + 1 < sizeof text && c != '\r')
            text[n++] = char(c);
    text[n] = '\0';
    return true;
}

static int read_file(const char* path, MacroReader& reader)
{
    FILE* const fp = fopen(path, "re");
    if (!fp)
        return -1;
    char line[LINE_SIZE];
    while (next_line(fp, line))
        mm_read_line(reader, line);
    (void)fclose(fp); // nothing was written
    if (reader.left_out)
        Log_Output(LOG_LINK, MOD_GLOBAL, "%s: %d lines left out", path, reader.left_out);
    return 0;
}

// The list of the reader becomes that of the register.
static void take_register(int no, const MacroReader& reader)
{
    mm_current_register_all_dele(reg_data[no].register_data);
    reg_data[no] = reader.reg;
    if (*reg_data[no].name == '\0')
        mm_default_name(no, reg_data[no].name);
    RegDataWaitList[no] = {0, reader.interval};
    mm_register_told(no);
}

int mm_macro_file_load(int n)
{
    Path path;
    MacroReader reader;
    if (!mm_register_begins_read(n))
        return -1;
    backup_path(n, path);
    if (read_file(path, reader) != 0)
        return -1;
    take_register(n, reader);
    return 0;
}

// --- On its way to or from a drive ---

// From 0; -1 when the path names no register.
static int register_of_path(const char* path)
{
    constexpr char WORD[] = "mm_reg";
    const char* const digits = strstr(path, WORD);
    if (!digits)
        return -1;
    const char* const d = digits + strlen(WORD);
    const bool is_number = d[0] >= '0' && d[0] <= '9' && d[1] >= '0' && d[1] <= '9';
    const int no = is_number ? (d[0] - '0') * 10 + (d[1] - '0') - 1 : -1;
    return mm_register(no) ? no : -1;
}

int mm_macro_tmpfile_save(const char* tmp)
{
    Path path;
    const int no = register_of_path(tmp);
    if (no < 0 || !reg_data[no].register_data)
        return -1;
    transfer_path(no, path);
    return mm_register2hdd_bk_file(no, path);
}

void mm_macro_tmpfile_prepare(const char* src, const char* dst)
{
    if (strstr(src, ".tmp"))
        (void)mm_macro_tmpfile_save(src);
    else if (strstr(dst, ".tmp") && !FileExist(TRANSFER_DIR))
        make_directory(TRANSFER_DIR);
}

// A file on a drive is called as the operator has called it there.
static void name_of_drive(const char* src, char (&name)[MENU_MACRO_NAME])
{
    constexpr int GROUP = 33; // of the menu macros
    FILEINFO info = {.grp = GROUP};
    if (name2info(src, &info) != 0 || *info.name == '\0')
        return;
    char text[sizeof info.name];
    CopyText(text, info.name);
    if (StrRegName(text))
        CopyText(name, text);
}

int mm_macro_tmpfile_load(const char* src, const char* tmp)
{
    Path path;
    MacroReader reader;
    const int no = register_of_path(tmp);
    if (no < 0 || reg_data[no].lock)
        return -1;
    transfer_path(no, path);
    if (read_file(path, reader) != 0)
        return -1;
    if (!reader.reg.register_data) // no macro, or none of ours
        return -1;
    name_of_drive(src, reader.reg.name);
    take_register(no, reader);
    return mm_macro_file_save(no);
}

void mm_macro_tmpfile_del(int n)
{
    Path path;
    transfer_path(n, path);
    (void)remove(path); // most often there is none
}
