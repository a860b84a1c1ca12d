// Requests to the status hub, and one progress for many of a kind.
#include "pc_fmem.h"
#include "colours.h"
#include "file.h"
#include "fmctrl3.h"
#include "indexed.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "tdl.h"
#include "text.h"
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

const PROTOCOL_TYPE protocol_list[PROTOCOL_TYPES] = {
    {PROTOCOL_TYPE_SHP_REGISTER, "ClipStoreFile", "Register", "Load to Memory"},
    {PROTOCOL_TYPE_SHP_UNREGISTER, "ClipStoreFile", "UnRegister", "Unload"},
    {PROTOCOL_TYPE_SHP_COUPLE, "ClipStoreFile", "Couple", "Couple"},
    {PROTOCOL_TYPE_SHP_SEPARATE, "ClipStoreFile", "Separate", "Separate"},
    {PROTOCOL_TYPE_SHP_TRIM, "ClipStoreFile", "Trim", "Trim"},
    {PROTOCOL_TYPE_SHP_COPY, "ClipStoreFile", "Copy", "Copy"},
    {PROTOCOL_TYPE_SHP_MOVE, "ClipStoreFile", "Move", "Move"},
    {PROTOCOL_TYPE_SHP_DELETE, "ClipStoreFile", "Delete", "Delete"},
    {PROTOCOL_TYPE_SHP_STORE, "ClipStoreFile", "Store", "Store"},
    {PROTOCOL_TYPE_SHP_DELETE_FOLDER, "ClipStoreFolder", "DeleteFolder", "Delete Folder"},
    {PROTOCOL_TYPE_SHP_MAKE_FOLDER, "ClipStoreFolder", "MakeFolder", "Make Folder"},
    {PROTOCOL_TYPE_SHP_RENAME, "ClipStoreFile", "Move", "Rename"},
};
static constexpr char OWN_STORE[] = "CS*.";

namespace
{
constexpr int IDLE = -1;
struct PROGRESS {
    int command = IDLE;
    int pane_id = 0;
    int execute_cnt = 0;
    int result_cnt = 0;
    int error_cnt_frame_memory_full = 0;
    void (*func)() = nullptr;
};
} // namespace

static PROGRESS progress;

// --- Names ---

void fmem_name_in(char (&name)[ELEMENT_PATH_SIZE], const char* folder, const char* child)
{
    const size_t n = strlen(folder);
    PrintText(name, "%s%s%s", folder, n && folder[n - 1] == '/' ? "" : "/", child);
}

const char* fmem_server_path(const char* full_name)
{
    static constexpr char HEAD[] = "/root/";
    return BeginsWith(full_name, HEAD) ? full_name + strlen(HEAD) - 1 : full_name;
}

// The hub's paths begin with the root's name.
static const char* hub_path(const char* full_name)
{
    return full_name[0] == '/' ? full_name + 1 : full_name;
}

// --- Requests ---

void fmem_request(int protocol, bool is_file, const char* name, const char* name2)
{
    const PROTOCOL_TYPE& p = protocol_list[protocol];
    const char* const ext = is_file ? FM2_Ext_Str : "";
    if (name2)
        (void)Net_SendSHPCommandFormat("Execute#%s%s:%s %s%s %s%s", OWN_STORE, p.table, p.verb,
                                       hub_path(name), ext, hub_path(name2), ext);
    else
        (void)Net_SendSHPCommandFormat("Execute#%s%s:%s %s%s", OWN_STORE, p.table, p.verb,
                                       hub_path(name), ext);
}

void fmem_request_trim(const char* name, int first, int last)
{
    const PROTOCOL_TYPE& p = protocol_list[PROTOCOL_TYPE_SHP_TRIM];
    (void)Net_SendSHPCommandFormat("Execute#%s%s:%s %s%s %d %d", OWN_STORE, p.table, p.verb,
                                   hub_path(name), FM2_Ext_Str, first, last);
}

// --- Results ---

// "Register root/NEWS/OPENING.SFH:7F"
static bool is_result_of(const PROTOCOL_TYPE& p, const char* table, const char* row,
                         const char* name, bool is_file)
{
    const char* const dot = strchr(table, '.');
    const size_t n = strlen(p.verb);
    if (!dot || strcmp(dot + 1, p.table) != 0 || strncmp(row, p.verb, n) != 0 || row[n] != ' ')
        return false;
    if (!name)
        return true;
    char path[ELEMENT_PATH_SIZE + sizeof FM2_Ext_Str];
    PrintText(path, "%s%s", hub_path(name), is_file ? FM2_Ext_Str : "");
    const size_t length = strlen(path);
    const char end = strncmp(row + n + 1, path, length) == 0 ? row[n + 1 + length] : '\0';
    return end == ':' || end == ' ';
}

bool fmem_result(int protocol, const char* verb, const char* table, const char* row,
                 const char* name, bool is_file, int* status)
{
    if (strcmp(verb, "Result") != 0 ||
        !is_result_of(protocol_list[protocol], table, row, name, is_file))
        return false;
    const char* const colon = strrchr(row, ':');
    if (!colon || colon[1] == '\0') {
        Log_Output(LOG_DETAIL, MOD_PAGE,
                   "progress_display(): Unexpected error. Progress doesn't exist. [%s][%s]", table,
                   row);
        return false;
    }
    char* end = nullptr;
    *status = int(strtol(colon + 1, &end, 16));
    if (end == colon + 1) {
        Log_Output(LOG_DETAIL, MOD_PAGE,
                   "progress_display(): Unexpected error. Progress value is wrong. [%s][%s] "
                   "progress=%s",
                   table, row, colon + 1);
        return false;
    }
    return true;
}

// --- The progress ---

bool fmem_progress_is_busy()
{
    return progress.command != IDLE;
}

bool fmem_progress_begin(int protocol, void (*func)())
{
    if (fmem_progress_is_busy())
        return false;
    progress = {.command = protocol, .func = func};
    return true;
}

void fmem_progress_file(const char* name, const char* name2)
{
    fmem_request(progress.command, true, name, name2);
    progress.execute_cnt++;
}

void fmem_progress_trim(const char* name, int first, int last)
{
    fmem_request_trim(name, first, last);
    progress.execute_cnt++;
}

void fmem_progress_show()
{
    if (progress.execute_cnt == 0)
        progress = {};
    else
        progress.pane_id = PaneProgress_Create(protocol_list[progress.command].message, "", 1);
}

static void stop()
{
    if (progress.pane_id)
        (void)Pane_Quit(progress.pane_id);
    progress = {};
}

void fmem_tell_cut_off(const char* title, const char* name)
{
    char message[ELEMENT_PATH_SIZE + 64];
    const char* const slash = strrchr(name, '/');
    PrintText(message, "%s%s%s", slash ? slash + 1 : name, *name ? ": " : "",
              File_ServerNotReady());
    (void)PaneMessage_Create(title, PANE_ALERT, message);
}

static void cut_off()
{
    if (!fmem_progress_is_busy())
        return;
    const char* const title = protocol_list[progress.command].message;
    stop();
    fmem_tell_cut_off(title, "");
}

static void finish()
{
    char message[160];
    const PROGRESS ended = progress;
    stop();
    if (ended.func)
        ended.func();
    if (ended.error_cnt_frame_memory_full == 0)
        return;
    PrintText(message,
              "Some of the files could not be loaded, \nbecause the memory capacity is "
              "insufficient.\n%d file(s)",
              ended.error_cnt_frame_memory_full);
    (void)PaneMessage_Create("Frame Memory Load", PANE_ALERT, message);
}

static void item_ended(int status)
{
    progress.result_cnt++;
    if (progress.command == PROTOCOL_TYPE_SHP_REGISTER && status == PROTOCOL_MEMORY_FULL)
        progress.error_cnt_frame_memory_full++;
    if (progress.result_cnt >= progress.execute_cnt) {
        finish();
        return;
    }
    char text[48];
    PrintText(text, "(%d/%d)\n", progress.result_cnt, progress.execute_cnt);
    (void)PaneProgress_SetProg(progress.pane_id, progress.result_cnt * 100 / progress.execute_cnt,
                               text);
}

static void progress_display(const char* verb, const char* table, const char* row)
{
    int status = 0;
    if (fmem_progress_is_busy() &&
        fmem_result(progress.command, verb, table, row, nullptr, true, &status) &&
        status >= PROTOCOL_DONE)
        item_ended(status);
}

// --- For the page codes ---

void fmem_put(const char* path, const char* rest)
{
    (void)Net_SendCommandFormat("put %s%s@%s#%d,%s", FM_TREE, path, FM_GetFMOutStr(FM_GetSelect()),
                                FM_IsPair(), rest);
}

void fmem_put_number(const char* path, int number)
{
    char text[16];
    PrintText(text, "%d", number);
    fmem_put(path, text);
}

void fmem_read_outputs(const char* path)
{
    for (int n = 0; n < FM_OUTPUTS; n++)
        (void)Net_SendCommandFormat("read  %s%s@FM%d#", FM_TREE, path, n + 1);
}

void fmem_through()
{
    fmem_put_number("Record@Through", 1);
}

void fmem_black()
{
    fmem_put_number("Record@Through", 0);
}

void fmem_line(const char* text)
{
    static constexpr Rect LINE = {244, 430, 690, 451};
    TDL_FillRectS(LINE.x1, LINE.y1, LINE.x2, LINE.y2, HEADER_GROUND);
    TDL_SymbolWS(LINE.x1 + 6, LINE.y1 + 4, LINE.x2 - LINE.x1 - 10, text, 3, WHITE);
    TDL_UpdateRect(LINE.x1, LINE.y1, LINE.x2, LINE.y2);
}

void fmem_proc(int msg, MsgArg ax, MsgArg bx, MsgArg dx)
{
    switch (msg) {
    case LMSG_PANEQUIT: // by "Cancel": nobody waits any more, late results are nobody's
        if (progress.pane_id && int(ax) == progress.pane_id)
            progress = {};
        break;
    case LMSG_FMCTRL3CHANGE: // the hub has gone, and the results with it
        if (ax == FMCTRL_MSG_TALBE_CLEAR)
            cut_off();
        break;
    case MSG_SHPTALLY:
        if (ax && bx && dx)
            progress_display(Text(ax), Text(bx), Text(dx));
        break;
    default: break;
    }
    fmfileope_proc(msg, ax, bx, dx);
}

void fmem_drop()
{
    stop();
    fmfileope_drop();
}
