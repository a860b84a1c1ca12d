// The Load page of the clip store: checked clips are taken into the memory of the frame memory, or
// out of it. A request goes to the hub for each; its results move one progress for all of them.
#include "a_bt.h"
#include "a_ff.h"
#include "a_pc.h"
#include "command.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "page_table/fm.h"
#include "page_table/fmem_clip.h"
#include "pane.h"
#include "text.h"
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
enum : int { PROTOCOL_TYPE_SHP_REGISTER = 0, PROTOCOL_TYPE_SHP_UNREGISTER = 1 };
struct PROTOCOL_TYPE {
    const char* table;
    const char* verb;
    const char* message;
};
constexpr PROTOCOL_TYPE protocol_list[] = {
    {"ClipStoreFile", "Register", "Load to Memory"},
    {"ClipStoreFile", "UnRegister", "Unload"},
};
constexpr char FM2_Ext_Str[] = ".SFH";
constexpr int IDLE = -1;
constexpr int STATUS_DONE = 127; // and above: the item has ended, well or not
constexpr int STATUS_MEMORY_FULL = 133;

struct PROGRESS {
    int command = IDLE;
    int pane_id = 0;
    int execute_cnt = 0;
    int result_cnt = 0;
    int error_cnt_frame_memory_full = 0;
};
} // namespace

static PROGRESS progress; // idle while the page is not shown

// --- Keys ---

static void enable_keys()
{
    const bool nothing = FF_GetCheckedObjectNum(0) == 0;
    BT_SetDisable(BTN_FMEM_LOAD, nothing);
    BT_SetDisable(BTN_FMEM_UNLOAD, nothing);
}

// --- Requests ---

static void request(const PROTOCOL_TYPE& p, const char* folder, const FF_OBJECT& clip)
{
    if (clip.type != OBJECT_TYPE_FILE)
        return;
    (void)Net_SendSHPCommandFormat("Execute#CS*.%s:%s %s/%s%s", p.table, p.verb, folder, clip.name,
                                   FM2_Ext_Str);
    progress.execute_cnt++;
}

// The hub's paths begin with the root's name.
static const char* hub_folder()
{
    const char* const path = FF_GetCurrentPath(0);
    return path[0] == '/' ? path + 1 : path;
}

static void clipstill_register(int command)
{
    const PROTOCOL_TYPE& p = protocol_list[command];
    const int count = FF_GetCheckedObjectNum(0);
    auto* const list = count > 0 && progress.command == IDLE
                           ? static_cast<FF_OBJECT*>(GDL_Calloc(size_t(count), sizeof(FF_OBJECT)))
                           : nullptr;
    if (!list)
        return;
    char folder[ELEMENT_PATH_SIZE];
    CopyText(folder, hub_folder());
    if (char* const end = folder + strlen(folder); end > folder && end[-1] == '/')
        end[-1] = '\0'; // of the root
    const int written = FF_GetCheckedObjectList(0, list, count);
    for (int i = 0; i < written; i++)
        request(p, folder, list[i]);
    GDL_Free(list);
    if (progress.execute_cnt == 0)
        return;
    progress.command = command;
    progress.pane_id = PaneProgress_Create(p.message, "", 1);
}

// --- Results ---

static void stop()
{
    if (progress.pane_id)
        (void)Pane_Quit(progress.pane_id);
    progress = {};
}

static void finish()
{
    char message[160];
    const int full = progress.error_cnt_frame_memory_full;
    stop();
    FF_ClearCheckedObjectList(0);
    if (full == 0)
        return;
    PrintText(message,
              "Some of the files could not be loaded, \nbecause the memory capacity is "
              "insufficient.\n%d file(s)",
              full);
    (void)PaneMessage_Create("Frame Memory Load", PANE_ALERT, message);
}

static void item_ended(int status)
{
    progress.result_cnt++;
    if (progress.command == PROTOCOL_TYPE_SHP_REGISTER && status == STATUS_MEMORY_FULL)
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

// "Register root/NEWS/OPENING.SFH:7F"
static void progress_display(const char* verb, const char* table, const char* row)
{
    if (progress.command == IDLE || strcmp(verb, "Result") != 0)
        return;
    const PROTOCOL_TYPE& p = protocol_list[progress.command];
    const char* const dot = strchr(table, '.');
    const size_t n = strlen(p.verb);
    if (!dot || strcmp(dot + 1, p.table) != 0 || strncmp(row, p.verb, n) != 0 || row[n] != ' ')
        return;
    const char* const colon = strrchr(row, ':');
    if (!colon || colon[1] == '\0') {
        Log_Output(LOG_DETAIL, MOD_PAGE,
                   "progress_display(): Unexpected error. Progress doesn't exist. [%s][%s]", table,
                   row);
        return;
    }
    char* end = nullptr;
    const long status = strtol(colon + 1, &end, 16);
    if (end == colon + 1) {
        Log_Output(LOG_DETAIL, MOD_PAGE,
                   "progress_display(): Unexpected error. Progress value is wrong. [%s][%s] "
                   "progress=%s",
                   table, row, colon + 1);
        return;
    }
    if (status >= STATUS_DONE)
        item_ended(int(status));
}

// --- The page ---

static void button(const char* path)
{
    if (strcmp(path, "LOCAL@LoadToMemory") == 0)
        clipstill_register(PROTOCOL_TYPE_SHP_REGISTER);
    else if (strcmp(path, "LOCAL@Unload") == 0)
        clipstill_register(PROTOCOL_TYPE_SHP_UNREGISTER);
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    switch (msg) {
    case LMSG_BTNSEL: button(Text(ax)); return 0;
    case LMSG_FFCRNTCHANGE:
    case LMSG_FFLISTCHANGE:
    case LMSG_FFCHKCHNAGE: enable_keys(); return 0;
    case LMSG_PANEQUIT: // by "Cancel": nobody waits any more, late results are nobody's
        if (progress.pane_id && int(ax) == progress.pane_id)
            progress = {};
        return 0;
    case LMSG_FMCTRL3CHANGE: // the hub has gone, and the results with it
        if (ax == FMCTRL_MSG_TALBE_CLEAR)
            stop();
        return 0;
    case MSG_SHPTALLY:
        if (ax && bx && dx)
            progress_display(Text(ax), Text(bx), Text(dx));
        return 0;
    default: return 0;
    }
}

static int open_or_leave(int on, uint32_t)
{
    stop();
    if (on)
        enable_keys();
    return 0;
}

const PC_TBL pc_fmem_clipstill_load = {.proc_func = proc, .create_func = open_or_leave};

// --- The menu of the frame memory ---

static int open_top(int on, uint32_t)
{
    if (on)
        BT_SetCutoffEx(BTN_FM_TOP_LOAD, GL_ClipStoreSupportMode == 0);
    return 0;
}

static int pass(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

const PC_TBL pc_fmem_top = {.proc_func = pass, .create_func = open_top};
