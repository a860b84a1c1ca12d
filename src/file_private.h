// file_private: what the files of the work engine share. file takes messages and replies;
// file_xferlist builds lists; file_queue numbers jobs and finds them; file_work says what each kind
// of work is; file_list takes the items of a job through their steps, file_transfer and file_import
// start them; file_pane keeps the panes and file_cancel ends jobs before their time; file_scp* is
// the remote copy.
#pragma once
#include "device.h"
#include "file.h"

constexpr int MOD_FILE = 21;
constexpr int TEXT_AND_NAME = 120; // of a line in a pane: file name and reply together

// --- file_work: what each kind of work is ---

enum class Reply {
    Single, // also of a remote device
    Find,
    Rows, // of seven fields
    Usb,
    ListDir,
    CopyDir,
    List,
    Background,
    Scp,
    None,
};
struct FileWork {
    FILEWORKTYPE type;
    const char* verb; // between "put File@" and "#"
    const char* pane; // title, null: no pane
    Reply reply;
    int (*launch)(QUEUE*) = nullptr; // of a list: send what may be sent. 0
    bool is_routed = false;          // the server tells by which way it goes
    bool wakes_thumbnails = false;   // at its end the thumbnails that waited are fetched
    int paths = 2;
};
const FileWork* file_work(FILEWORKTYPE type); // null for an unknown one

// --- file_xferlist ---
void file_free_items(FILEXFERLIST** list); // of a job that has been unlinked
FILEXFERLIST* file_list_tail(FILEXFERLIST** list);

// --- file_queue ---

extern FILEXFERLIST* NullXfer; // the list of a single job: always empty
extern char FileCmd[CMD_SIZE]; // not to be held across a call that could send

uint32_t file_next_label();
// Number the items that have no label. The job that has this list, or a new one at the tail; null
// when memory is out.
QUEUE* queue_add(FILEWORKTYPE worktype, FILEXFERLIST** list, FILERETFUNC retfunc, int tag);
void queue_remove(uint32_t label); // of the job or of one of its items; unknown: nothing
QUEUE* queue_find(uint32_t label); // the same key
FILEXFERLIST* queue_item_by_label(uint32_t label);
FILEXFERLIST* queue_item_by_ack(uint32_t ack);
QUEUE* queue_by_ack(uint32_t ack); // single jobs only
void queue_ack(FILEXFERLIST* item, uint32_t ack);
void queue_forget_item(FILEXFERLIST* item); // it leaves its job
void queue_drop(QUEUE* job);                // its list is empty already
// The one way to change a status: the job's counts and the indexes follow.
void file_set_status(FILEXFERLIST* item, int status);
inline bool file_is_finished(const FILEXFERLIST* item)
{
    return item->status >= FILESTATUS_OK && item->status != FILESTATUS_CHKRESULT;
}
// Callback, message, pane, remove.
void file_finish(QUEUE* job);
void file_tell(const QUEUE* job, const void* cx, const void* dx); // LMSG_FILESTATUS

// --- Commands ---

// Compose into FileCmd. False, with a log line, when it does not fit: a path that is cut would name
// another file. Control characters in paths become "_".
bool file_compose(const char* format, ...) __attribute__((format(printf, 1, 2)));
// The same into the item's own cmd. On failure the item is NG with the internal-error text.
bool file_compose_item(FILEXFERLIST* item, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
void file_send_item(FILEXFERLIST* item); // its cmd; it waits for a new acknowledgement

// --- Texts and paths ---

const char* file_name_of(const char* path);               // behind the last "/", else the first ":"
void file_set_text(FILEXFERLIST* item, const char* text); // mesg
bool file_is_ctime(const char* text);
void file_reduce_date(char (&dst)[24], const char* ctime_text); // empty when it is none
void file_set_ext(char (&path)[FILE_PATH_SIZE],
                  const char* ext);                // ".SF2"; the last one is replaced
bool file_is_local(const char* path);              // "MYHOST:"
bool file_is_macro_pair(const FILEXFERLIST* item); // ".tmp" and ".MMR"
const char* file_local_path(const char* path);     // without "MYHOST:"

// Cut a row "<name>,<date>" in place; a null name where it holds a comma. False: no row.
bool file_cut_row(char* text, char** name, char** date);

// --- file_sync ---
int file_sync_start(); // the child that syncs; 0: nothing to wait for; -1: none can be made
bool file_sync_is_done(int pid);
void file_sync_release(int pid); // nobody asks for it any more
void file_sync_tick();

// --- file_list ---
// A list entry: the job's pane, with the title of its work unless one is given, and its first
// items.
int file_run(FILEWORKTYPE type, FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag,
             const char* title = nullptr);
void file_list_status(QUEUE* job, FILEXFERLIST* item, const char* text);
void file_list_tick();                   // jobs whose drives have been written end
FILEXFERLIST* file_next_new(QUEUE* job); // the first item at FILESTATUS_NON, null: none
// The item is given up in the middle: what it may have left on its staging path goes.
void file_drop_staged(const FILEXFERLIST* item);
int file_percent(const QUEUE* job); // items that are being checked count half
void file_wake_thumbnails(FILEWORKTYPE type);
void file_finish_macro(FILEXFERLIST* item); // a menu macro has been copied

// --- file_transfer, file_import ---
int file_launch_plain(QUEUE* job);
int file_launch_transfer(QUEUE* job);
int file_launch_autoload(QUEUE* job);
int file_launch_import(QUEUE* job);
int file_launch_export(QUEUE* job);
// The conversion of an import has ended: the next command of the step it is at. False: none, the
// item is finished.
bool file_import_step(FILEXFERLIST* item);
void file_import_drop_temporaries(const FILEXFERLIST* item);
void file_import_reset();
bool file_is_on_data_port(const char* path, const DEVICE* only); // of this switcher, null: any
// A job with wakes_thumbnails is to move this file. Thumbnails come over the data port, too: if it
// does, they wait until the job is done.
void file_hold_thumbnails(const char* path);
// The staged items of a job under way: join with the path set; false: another one has it.
bool file_flight_join(QUEUE* job, const FILEXFERLIST* item);
int file_flight_count(QUEUE* job);

// --- file_pane ---
void file_pane_open(QUEUE* job, const char* title, bool has_cancel);
void file_pane_progress(QUEUE* job, int percent, const char* text);
void file_pane_append(QUEUE* job, const char* text);
void file_pane_append_line(QUEUE* job, const char* text); // with a line break
void file_pane_lamp(QUEUE* job, int lamp);
bool file_pane_is_in_view(const QUEUE* job); // the operator looks at its page
// What went wrong in the job, a line an item, the first that find room. False: nothing.
bool file_pane_failures(const QUEUE* job, char* text, size_t size);
void file_pane_tick(); // at each redraw
void file_pane_reset();
void file_pane_cancelled(int pane);

// --- file_scp ---
int file_launch_scp(QUEUE* job);
bool file_scp_prepare(QUEUE* job); // false: memory is out
void file_scp_status(QUEUE* job, FILEXFERLIST* item, const char* text);
bool file_scp_cancel(QUEUE* job); // true: the hub's answers will end it
void file_scp_forget(QUEUE* job); // it is being removed
void file_scp_ack(uint32_t label, uint32_t ack);
void scplist_category_resultlist(uint32_t ack, const char* text);
void file_scp_count(FILEXFERLIST* item, int n);
void file_shp_tally(const char* verb, const char* table, const char* param); // param may be null
void file_scp_reset();
