// The queue of file operations of the clip store. Each goes through the steps of its kind: what may
// not be is refused, what is doubtful is asked, outputs that show the element go to black, then the
// hub is asked and its result is waited for. A folder is worked at as the queue of what is in it;
// folders that are to go are removed at the very end, the deepest first.
#include "fmctrl3.h"
#include "indexed.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_fmem.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include <new>

#include "safeguards.h"

namespace
{
constexpr int PATH_CHARS = 129;
constexpr int TO_BLACK_MS = 2000; // an output that does not answer is not waited for any longer

enum FMFILEOPE_SEQ : int {
    INIT = 0,
    START = 1,
    DUPLICATE_CHK = 2,
    DUPLICATE_DUPPOPUP = 3,
    DUPLICATE_POPUP = 4,
    RECALLPLAY_CHK = 5,
    RECALLPLAY_POPUP = 6,
    LAYEROVER_POPUP = 7,
    MAKEFOLDER = 8,
    DELETEFOLDER = 9,
    COPY = 10,
    MOVE = 11,
    DELETE = 12,
    RENAME = 13,
    TOBLACK = 14,
    PLAYREC_CHK = 15,
    PLAYREC_POPUP = 16,
    STORE_CHK = 17,
    STORE = 18,
    DELETEFOLDER_LATER = 19,
    FINISH = -1,
};
enum Verdict : int { GO_ON, WAIT, DROP };

struct FMFILEOPE {
    char path1[PATH_CHARS] = "";
    char path2[PATH_CHARS] = ""; // "": it has none
    int path1_layer = 0;         // folders above, the root not counted
    int path2_layer = 0;
    int pane_id = 0; // the question that is open
    int cmd = FMFILEOPE_COPY;
    int type = OBJECT_TYPE_FILE;
    int sequence_id = INIT;
    int recalled = 0;      // ms for which outputs have been going to black
    int status = 0;        // of the last result
    int child_num = 0;     // operations that it stands for besides itself
    int step = 0;          // of its flow
    int request = -1;      // PROTOCOL_TYPE_ of what is waited for
    bool is_child = false; // of an operation that has been asked about
};
struct FMFILEOPE_LIST {
    FMFILEOPE ope;
    FMFILEOPE_LIST* next = nullptr;
};
struct FMDELFOLDER_LIST {
    char path[PATH_CHARS] = "";
    FMDELFOLDER_LIST* next = nullptr;
    FMDELFOLDER_LIST* prev = nullptr;
};
struct PROGRESS_FMFILEOPE {
    int command = -1; // -1 idle
    int pane_id = 0;
    int execute_cnt = 0;
    int result_cnt = 0;
};
} // namespace

static struct {
    FMFILEOPE_LIST* first = nullptr;
    FMFILEOPE_LIST* last = nullptr;
    FMDELFOLDER_LIST* del_first = nullptr;
    FMDELFOLDER_LIST* del_last = nullptr;
    PROGRESS_FMFILEOPE progress;
    void (*func)() = nullptr;
    bool is_running = false; // inside fmfileope_run
} fo;

static const struct {
    int cmd;
    const char* title;
    const char* word; // of its refusal; null: playing does not forbid it
    int protocol;     // of a file
} kinds[] = {
    {FMFILEOPE_DUPLICATE, "Frame Memory Copy", nullptr, PROTOCOL_TYPE_SHP_COPY},
    {FMFILEOPE_COPY, "Frame Memory Copy", nullptr, PROTOCOL_TYPE_SHP_COPY},
    {FMFILEOPE_MOVE, "Frame Memory Move",
     "Cannot move while playing back or\nrecording is in progress.", PROTOCOL_TYPE_SHP_MOVE},
    {FMFILEOPE_DELETE, "Frame Memory Delete",
     "Cannot delete while playing back or\nrecording is in progress.", PROTOCOL_TYPE_SHP_DELETE},
    {FMFILEOPE_RENAME, "Frame Memory Rename",
     "Cannot rename while playing back or\nrecording is in progress.", PROTOCOL_TYPE_SHP_RENAME},
    {FMFILEOPE_STORE, "Frame Memory Store", "This file is using for playback.",
     PROTOCOL_TYPE_SHP_STORE},
};

const char* fmfileope_title(int cmd)
{
    return cmd >= 0 && cmd < FMFILEOPE_CMDS ? kinds[cmd].title : "";
}

bool fmfileope_is_busy()
{
    return fo.first || fo.del_first;
}

// --- Paths ---

static bool is_folder(const FMFILEOPE& o)
{
    return o.type == OBJECT_TYPE_FOLDER;
}

static const ELEMENT_LIST* find(const char* path, int type)
{
    return FMCtrl3_FindPath(
        nullptr, type == OBJECT_TYPE_FOLDER ? ELEMENT_TYPE_FOLDER : ELEMENT_TYPE_FILE, path);
}

static int layer_of(const char* path)
{
    int slashes = 0;
    for (const char* p = path; *p; p++)
        slashes += *p == '/' && p[1] != '\0';
    return slashes > 2 ? slashes - 2 : 0; // "/root/A" lies in the root
}

// Folders below a folder, one in another, itself counted.
static int height_of(const ELEMENT_LIST* folder)
{
    int below = 0;
    for (const ELEMENT_LIST* e = FMCtrl3_GetChild(folder, nullptr); e;
         e = FMCtrl3_GetChild(folder, e))
        if (e->element.type == ELEMENT_TYPE_FOLDER)
            if (const int h = height_of(e); h > below)
                below = h;
    return below + 1;
}

static bool lies_in(const char* path, const char* folder)
{
    const size_t n = strlen(folder);
    return strncmp(path, folder, n) == 0 && (path[n] == '/' || path[n] == '\0');
}

// --- The queues ---

static bool add_folder_to_delete(const char* path)
{
    void* const memory = GDL_Malloc(sizeof(FMDELFOLDER_LIST));
    if (!memory)
        return false;
    auto* const node = new (memory) FMDELFOLDER_LIST;
    CopyText(node->path, path);
    node->prev = fo.del_last;
    (fo.del_last ? fo.del_last->next : fo.del_first) = node;
    fo.del_last = node;
    Log_Output(LOG_DETAIL, MOD_PAGE, "fm delete folder queue is added. (%s)", path);
    return true;
}

// The deepest one: it came last.
static void take_folder_to_delete(char (&path)[PATH_CHARS])
{
    FMDELFOLDER_LIST* const node = fo.del_last;
    CopyText(path, node->path);
    fo.del_last = node->prev;
    (fo.del_last ? fo.del_last->next : fo.del_first) = nullptr;
    GDL_Free(node);
    Log_Output(LOG_DETAIL, MOD_PAGE, "fm delete folder queue is removed. (%s)", path);
}

// Behind the node, at the end for null. Null when memory is out.
static FMFILEOPE_LIST* add(const FMFILEOPE& ope, FMFILEOPE_LIST* behind)
{
    void* const memory = GDL_Malloc(sizeof(FMFILEOPE_LIST));
    if (!memory)
        return nullptr;
    auto* const node = new (memory) FMFILEOPE_LIST;
    node->ope = ope;
    node->ope.path1_layer = layer_of(ope.path1);
    node->ope.path2_layer = layer_of(ope.path2);
    FMFILEOPE_LIST* const before = behind ? behind : fo.last;
    FMFILEOPE_LIST*& link = before ? before->next : fo.first;
    node->next = link;
    link = node;
    if (!node->next)
        fo.last = node;
    Log_Output(LOG_DETAIL, MOD_PAGE, "fm file operation queue is added. (%s)", ope.path1);
    return node;
}

static void remove_first()
{
    FMFILEOPE_LIST* const node = fo.first;
    fo.first = node->next;
    if (!fo.first)
        fo.last = nullptr;
    GDL_Free(node);
}

static void forget_all()
{
    char path[PATH_CHARS];
    while (fo.first)
        remove_first();
    while (fo.del_last)
        take_folder_to_delete(path);
    fo.progress = {};
    fo.func = nullptr;
}

void fmfileope_drop()
{
    const int panes[] = {fo.first ? fo.first->ope.pane_id : 0, fo.progress.pane_id};
    forget_all();
    for (const int pane : panes)
        if (pane)
            (void)Pane_Quit(pane);
}

// What is done to a folder is done to each file in it, and twice to each folder where it goes.
static int children_of(int cmd, const char* path)
{
    const int all = FF_GetChildObjectNum(path, OBJECT_TYPE_ALL, 0, 0, true);
    const int folders = FF_GetChildObjectNum(path, OBJECT_TYPE_FOLDER, 0, 0, true);
    const bool goes = cmd == FMFILEOPE_MOVE || cmd == FMFILEOPE_DELETE;
    return all < 0 ? 0 : all + (goes ? folders + 1 : 0);
}

int fmfileope_start(int cmd, int type, const char* name, const char* name2)
{
    FMFILEOPE ope;
    if (cmd < 0 || cmd >= FMFILEOPE_CMDS || !name || !find(name, type) ||
        (name2 && strlen(name2) >= ELEMENT_PATH_SIZE))
        return -1;
    CopyText(ope.path1, name);
    CopyText(ope.path2, name2 ? name2 : "");
    ope.cmd = cmd;
    ope.type = type;
    if (is_folder(ope) && cmd != FMFILEOPE_RENAME)
        ope.child_num = children_of(cmd, name);
    if (!add(ope, nullptr))
        return -1;
    fo.progress.execute_cnt += 1 + ope.child_num;
    return 0;
}

// --- Questions ---

static Verdict ask(FMFILEOPE& o, int sequence, const char* text)
{
    o.sequence_id = sequence;
    o.pane_id = PaneYesNo_Create(kinds[o.cmd].title, PANE_ALERT, text);
    return o.pane_id ? WAIT : DROP;
}

static Verdict refuse(FMFILEOPE& o, int sequence, const char* title, const char* text)
{
    o.sequence_id = sequence;
    o.pane_id = PaneMessage_Create(title, PANE_ALERT, text);
    return o.pane_id ? WAIT : DROP;
}

// --- Steps ---

static Verdict start(FMFILEOPE& o)
{
    const ELEMENT_LIST* const e = find(o.path1, o.type);
    if (!e || strcmp(o.path1, o.path2) == 0)
        return DROP;
    if (!is_folder(o) || !o.path2[0])
        return GO_ON;
    if (o.cmd != FMFILEOPE_RENAME && lies_in(o.path2, o.path1))
        return refuse(o, LAYEROVER_POPUP, "Invalid Folder", "A folder cannot be put into itself.");
    if (o.path2_layer + height_of(e) > ELEMENT_DEPTH)
        return refuse(o, LAYEROVER_POPUP, kinds[o.cmd].title,
                      "The number of folder hierarchy has\nexceeded the upper limit.");
    return GO_ON;
}

static Verdict duplicate_chk(FMFILEOPE& o)
{
    return find(o.path2, o.type) ? ask(o, DUPLICATE_POPUP,
                                       "This name is already existing.\nDo you want to overwrite?")
                                 : GO_ON;
}

static Verdict playrec_chk(FMFILEOPE& o)
{
    return FM_FindUser(o.path1, true) < 0
               ? GO_ON
               : refuse(o, PLAYREC_POPUP, kinds[o.cmd].title, kinds[o.cmd].word);
}

// What the operation takes away: the element itself, or what stands where it goes.
static bool is_victim(const FMFILEOPE& o, const char* path)
{
    const bool keeps_first = o.cmd == FMFILEOPE_COPY || o.cmd == FMFILEOPE_DUPLICATE;
    return path[0] && !(path == o.path1 && keeps_first);
}

static bool is_in_use(const FMFILEOPE& o)
{
    for (const char* path : {o.path1, o.path2})
        if (is_victim(o, path) && FM_FindUser(path, false) >= 0)
            return true;
    return false;
}

static Verdict recallplay_chk(FMFILEOPE& o)
{
    return is_in_use(o) ? ask(o, RECALLPLAY_POPUP,
                              "The file which is being used is included in\nan operational "
                              "target.\nContinue?")
                        : GO_ON;
}

static Verdict to_black(FMFILEOPE& o)
{
    for (const char* path : {o.path1, o.path2})
        for (int n = -1; is_victim(o, path) && (n = FM_FindNextUser(path, false, n)) >= 0;)
            (void)Net_SendCommandFormat("put %sRecord@Through@%s#%d,%d", FM_TREE, FM_GetFMOutStr(n),
                                        0, 0);
    return is_in_use(o) ? WAIT : GO_ON;
}

static Verdict request(FMFILEOPE& o, int protocol, bool is_file)
{
    o.request = protocol;
    fmem_request(protocol, is_file, o.path1, o.path2[0] ? o.path2 : nullptr);
    return WAIT;
}

static Verdict make_folder(FMFILEOPE& o)
{
    if (!is_folder(o) || find(o.path2, OBJECT_TYPE_FOLDER))
        return GO_ON;
    o.request = PROTOCOL_TYPE_SHP_MAKE_FOLDER;
    fmem_request(o.request, false, o.path2);
    return WAIT;
}

// What is in the folder comes next in the queue, with all questions answered.
static Verdict queue_children(FMFILEOPE& o)
{
    const ELEMENT_LIST* const folder = find(o.path1, OBJECT_TYPE_FOLDER);
    FMFILEOPE_LIST* behind = fo.first;
    for (const ELEMENT_LIST* e = folder ? FMCtrl3_GetChild(folder, nullptr) : nullptr; e;
         e = FMCtrl3_GetChild(folder, e)) {
        FMFILEOPE child;
        CopyText(child.path1, e->element.full_name);
        if (o.path2[0] &&
            size_t(PrintText(child.path2, "%s/%s", o.path2, e->element.name)) >= sizeof child.path2)
            continue;
        child.cmd = o.cmd;
        child.type = e->element.type == ELEMENT_TYPE_FOLDER ? OBJECT_TYPE_FOLDER : OBJECT_TYPE_FILE;
        child.is_child = true;
        FMFILEOPE_LIST* const node = add(child, behind);
        if (!node)
            break; // no memory: the folder is not empty then and stays
        behind = node;
    }
    return GO_ON;
}

static Verdict work(FMFILEOPE& o)
{
    if (is_folder(o) && o.cmd != FMFILEOPE_RENAME)
        return queue_children(o);
    return request(o, kinds[o.cmd].protocol, !is_folder(o));
}

static Verdict delete_folder_later(FMFILEOPE& o)
{
    return !is_folder(o) || add_folder_to_delete(o.path1) ? GO_ON : DROP;
}

static Verdict delete_folder(FMFILEOPE& o)
{
    return request(o, PROTOCOL_TYPE_SHP_DELETE_FOLDER, false);
}

// --- The order of steps ---

namespace
{
struct Step {
    int sequence;
    Verdict (*enter)(FMFILEOPE& o);
};
struct Flow {
    int cmd;
    int work_from; // step where an operation begins that belongs to another one
    Step step[9];  // ended by one without a function
};
} // namespace

static constexpr Flow flows[] = {
    {FMFILEOPE_DUPLICATE,
     2,
     {{START, start}, {DUPLICATE_CHK, duplicate_chk}, {MAKEFOLDER, make_folder}, {COPY, work}}},
    {FMFILEOPE_COPY,
     4,
     {{START, start},
      {DUPLICATE_CHK, duplicate_chk},
      {RECALLPLAY_CHK, recallplay_chk},
      {TOBLACK, to_black},
      {MAKEFOLDER, make_folder},
      {COPY, work}}},
    {FMFILEOPE_MOVE,
     5,
     {{START, start},
      {PLAYREC_CHK, playrec_chk},
      {DUPLICATE_CHK, duplicate_chk},
      {RECALLPLAY_CHK, recallplay_chk},
      {TOBLACK, to_black},
      {MAKEFOLDER, make_folder},
      {DELETEFOLDER_LATER, delete_folder_later},
      {MOVE, work}}},
    {FMFILEOPE_DELETE,
     4,
     {{START, start},
      {PLAYREC_CHK, playrec_chk},
      {RECALLPLAY_CHK, recallplay_chk},
      {TOBLACK, to_black},
      {DELETEFOLDER_LATER, delete_folder_later},
      {DELETE, work}}},
    {FMFILEOPE_RENAME,
     4,
     {{START, start},
      {PLAYREC_CHK, playrec_chk},
      {RECALLPLAY_CHK, recallplay_chk},
      {TOBLACK, to_black},
      {RENAME, work}}},
    {FMFILEOPE_STORE, 2, {{START, start}, {STORE_CHK, playrec_chk}, {STORE, work}}},
};
static constexpr Step last_step = {DELETEFOLDER, delete_folder};
static_assert(IndexedBy(flows, &Flow::cmd, FMFILEOPE_CMDS));

// --- Working at the queue ---

static void show_progress()
{
    PROGRESS_FMFILEOPE& p = fo.progress;
    char text[48];
    if (p.pane_id == 0 || p.execute_cnt == 0)
        return;
    PrintText(text, "(%d/%d)\n", p.result_cnt, p.execute_cnt);
    (void)PaneProgress_SetProg(p.pane_id, p.result_cnt * 100 / p.execute_cnt, text);
}

static void fmfileope_remove_one(bool is_done)
{
    const FMFILEOPE& o = fo.first->ope;
    if (is_done)
        fo.progress.result_cnt++;
    else
        fo.progress.execute_cnt -= 1 + o.child_num;
    remove_first();
    show_progress();
}

static bool fmfileope_delfolder_exec_end()
{
    FMFILEOPE ope;
    if (!fo.del_last)
        return false;
    take_folder_to_delete(ope.path1);
    ope.cmd = FMFILEOPE_DELETE;
    ope.type = OBJECT_TYPE_FOLDER;
    ope.sequence_id = DELETEFOLDER;
    ope.is_child = true;
    return add(ope, nullptr) != nullptr;
}

static void finish()
{
    const int pane = fo.progress.pane_id;
    void (*const func)() = fo.func;
    forget_all();
    if (pane)
        (void)Pane_SetQuitFlag(pane);
    if (func)
        func();
}

static void open_progress(const FMFILEOPE& o)
{
    if (fo.progress.command >= 0)
        return;
    fo.progress.command = kinds[o.cmd].protocol;
    fo.progress.pane_id = PaneProgress_Create(protocol_list[fo.progress.command].message, "", 1);
    show_progress();
}

// The step where the first operation stands; without a function behind its last one.
static Step step_of(FMFILEOPE& o)
{
    const Flow& flow = flows[o.cmd];
    if (o.sequence_id == INIT)
        o.step = o.is_child ? flow.work_from : 0;
    if (o.sequence_id == DELETEFOLDER)
        return o.step == 0 ? last_step : Step{FINISH, nullptr};
    return o.step < int(std::size(flow.step)) ? flow.step[o.step] : Step{FINISH, nullptr};
}

static bool is_of_hub(int sequence)
{
    return sequence >= MAKEFOLDER && sequence <= RENAME ? true : sequence == STORE;
}

// One step of the first operation. False: it waits.
static bool advance()
{
    FMFILEOPE& o = fo.first->ope;
    const Step step = step_of(o);
    if (!step.enter) {
        fmfileope_remove_one(true);
        return true;
    }
    o.sequence_id = step.sequence;
    if (is_of_hub(step.sequence))
        open_progress(o);
    o.recalled = 0;
    const Verdict verdict = step.enter(o);
    if (verdict == GO_ON)
        o.step++;
    else if (verdict == DROP)
        fmfileope_remove_one(false);
    return verdict != WAIT;
}

static void run()
{
    if (fo.is_running)
        return;
    fo.is_running = true;
    for (;;) {
        if (!fo.first && !fmfileope_delfolder_exec_end())
            break;
        if (!advance())
            break;
    }
    fo.is_running = false;
    if (!fmfileope_is_busy())
        finish();
}

void fmfileope_do(void (*func)())
{
    fo.func = func;
    run();
}

static void next_step()
{
    fo.first->ope.step++;
    fo.first->ope.request = -1;
    run();
}

// --- What comes in ---

static void pane_closed(int id, int answer)
{
    if (fo.progress.pane_id && id == fo.progress.pane_id) { // "Cancel"
        fo.progress.pane_id = 0;
        fmfileope_drop();
        return;
    }
    if (!fo.first || fo.first->ope.pane_id == 0 || id != fo.first->ope.pane_id)
        return;
    FMFILEOPE& o = fo.first->ope;
    const bool is_question = o.sequence_id == DUPLICATE_POPUP || o.sequence_id == RECALLPLAY_POPUP;
    o.pane_id = 0;
    if (is_question && answer == 1) {
        next_step();
        return;
    }
    fmfileope_remove_one(false);
    run();
}

static void result(const char* verb, const char* table, const char* row)
{
    FMFILEOPE* const o = fo.first ? &fo.first->ope : nullptr;
    if (!o || o->request < 0)
        return;
    const bool is_making = o->request == PROTOCOL_TYPE_SHP_MAKE_FOLDER;
    if (!fmem_result(o->request, verb, table, row, is_making ? o->path2 : o->path1, !is_folder(*o),
                     &o->status) ||
        o->status < PROTOCOL_DONE)
        return;
    next_step();
}

// Outputs that show the element are on their way to black.
static void wait_for_black(int elapsed_ms)
{
    FMFILEOPE* const o = fo.first ? &fo.first->ope : nullptr;
    if (!o || o->sequence_id != TOBLACK)
        return;
    o->recalled += elapsed_ms;
    if (!is_in_use(*o) || o->recalled >= TO_BLACK_MS)
        next_step();
}

static void cut_off()
{
    if (!fmfileope_is_busy())
        return;
    const FMFILEOPE none = {.cmd = FMFILEOPE_DELETE}; // only folders are left
    const FMFILEOPE o = fo.first ? fo.first->ope : none;
    fmfileope_drop();
    fmem_tell_cut_off(kinds[o.cmd].title, o.path1);
}

void fmfileope_proc(int msg, MsgArg ax, MsgArg bx, MsgArg dx)
{
    switch (msg) {
    case LMSG_PANEQUIT: pane_closed(int(ax), int(bx)); return;
    case MSG_SHPTALLY:
        if (ax && bx && dx)
            result(Text(ax), Text(bx), Text(dx));
        return;
    case MSG_TALLY: wait_for_black(0); return;
    case MSG_REDRAW:
    case MSG_PANETICK: wait_for_black(int(ax)); return;
    case LMSG_FMCTRL3CHANGE: // the hub has gone, and the results with it
        if (ax == FMCTRL_MSG_TALBE_CLEAR)
            cut_off();
        return;
    default: return;
    }
}
