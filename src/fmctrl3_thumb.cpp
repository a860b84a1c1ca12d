// Thumbnails of the clip store: files on the local drive, one a frame, fetched from the switcher.
// Two queues of elements wait: for their middle frame, and for all others. What is on the drive
// already is found out when an element's turn comes, a few files a pass.
#include "bus.h"
#include "device.h"
#include "file.h"
#include "fmctrl3_private.h"
#include "fmctrl_private.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "process.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "safeguards.h"

constexpr int FETCHES_MAX = 30; // at once: the server's file link is slow
constexpr int RETRIES = 5;
constexpr int LOOKS_A_PASS = 128; // files
constexpr int REMOVALS_A_PASS = 8;
constexpr int QUIET_MS = 5000; // without a new element: the tree has been told
constexpr char LIST_FILE[] = "/var/tmp/__tm3_fmctrl_thumbnail_list__.tmp";

enum : int { // queues, by urgency
    WANTED_MID = 0,
    WANTED_OTHERS = 1,
    WANTED_MAX = 2,
};

namespace
{
struct THUMBNAIL_TASK_LIST {
    uint32_t filelabel = 0;
    CLIP_NODE* node = nullptr; // null: nobody wants it any more
    int frame = 0;
    int retry = 0;
    char local[CLIP_FILE_SIZE] = ""; // what comes for nobody is removed
};
struct Queue {
    CLIP_NODE* first = nullptr;
    CLIP_NODE* last = nullptr;
};
} // namespace

static struct {
    THUMBNAIL_TASK_LIST task[FETCHES_MAX]; // those in flight come first
    Queue queue[WANTED_MAX];
    int quiet_ms = -1; // since the last new element; -1 nothing to clean up
    bool has_cleaned = false;
    FILE* list = nullptr; // of what is on the drive, while it is cleaned up
} th;

static int ThumbGetting = 0; // in flight

int FMCtrl3_MidFrame(const ELEMENT& element)
{
    return std::max(element.duration / 2 - 1, 0);
}

// --- Files that belong to no element ---

enum : int { // for the number of a frame
    FRAME_STILL = -1,
    FRAME_WRONG = -2,
    FRAME_ANY = -3,
};

static bool is_frame_of(const ELEMENT& e, int frame)
{
    if (frame < 0)
        return frame == FRAME_ANY || e.duration == 1;
    return e.duration > 1 && frame < e.duration;
}

// "NEWS.OPENING" may be a clip of that name, or one in a folder; true when there is such a clip
// with this frame.
static bool is_known(const ELEMENT_LIST* folder, const char* name, int depth, int frame)
{
    CURRENT_INFO info;
    CopyText(info.path, folder->element.full_name);
    const ELEMENT_LIST* const file = FMCtrl3_FindPath(&info, ELEMENT_TYPE_FILE, name);
    if (file && is_frame_of(file->element, frame))
        return true;
    for (const char* dot = strchr(name, '.'); dot && depth < ELEMENT_DEPTH;
         dot = strchr(dot + 1, '.')) {
        char first[ELEMENT_FOLDER_SIZE];
        if (dot - name >= ELEMENT_FOLDER_SIZE)
            break;
        strncpy_secu(first, name, sizeof first, size_t(dot - name));
        const ELEMENT_LIST* const below = FMCtrl3_FindPath(&info, ELEMENT_TYPE_FOLDER, first);
        if (below && is_known(below, dot + 1, depth + 1, frame))
            return true;
    }
    return false;
}

// Cut an ending off; false when there is another one.
static bool cut_end(char* name, const char* end)
{
    const size_t length = strlen(name);
    const size_t n = strlen(end);
    if (length < n || strcmp(name + length - n, end) != 0)
        return false;
    name[length - n] = '\0';
    return true;
}

// Cut "#" and six digits off. The frame, or what there is instead.
static int cut_frame(char* name)
{
    constexpr size_t DIGITS = 6;
    char* const mark = strrchr(name, '#');
    if (!mark || strstr(mark, ".SFH"))
        return FRAME_STILL;
    if (strlen(mark + 1) != DIGITS || strspn(mark + 1, "0123456789") != DIGITS)
        return FRAME_WRONG;
    *mark = '\0';
    return int(strtol(mark + 1, nullptr, 10));
}

bool clip_thumbnail_is_known(const char* file_name)
{
    char name[PATH_SIZE];
    CopyText(name, file_name);
    const bool is_note = cut_end(name, CLIP_NOTE_END);
    if (!cut_end(name, ".THM"))
        return false;
    const int frame = is_note ? FRAME_ANY : cut_frame(name);
    return frame != FRAME_WRONG && cut_end(name, ".SFH") &&
           is_known(ElementListTop.next, name, 0, frame);
}

static bool is_of_use(const char* name)
{
    char path[PATH_SIZE];
    char text[PATH_SIZE];
    clip_local_path(path, name);
    CopyText(text, name);
    return clip_thumbnail_is_known(name) &&
           (cut_end(text, CLIP_NOTE_END) || clip_is_thumbnail_file(path));
}

static void end_cleanup()
{
    if (!th.list)
        return;
    fclose(th.list);
    th.list = nullptr;
    (void)unlink(LIST_FILE);
}

static void cleanup_thumbnail()
{
    char command[PATH_SIZE + 16];
    char folder[PATH_SIZE];
    clip_folder(folder);
    PrintText(command, "/bin/ls -1 %s", folder);
    (void)ktr_system_and_redirect(command, LIST_FILE); // no folder: nothing to clean up
    th.list = fopen(LIST_FILE, "re");
    th.has_cleaned = !th.list;
}

// Some files of the list. The end of it ends the clean-up.
static void cleanup_some()
{
    char name[PATH_SIZE];
    for (int looks = 0, removals = 0; looks < LOOKS_A_PASS && removals < REMOVALS_A_PASS; looks++) {
        if (!fgets(name, sizeof name, th.list)) {
            end_cleanup();
            th.has_cleaned = true;
            return;
        }
        name[strcspn(name, "\n")] = '\0';
        if (is_of_use(name))
            continue;
        char path[PATH_SIZE];
        clip_local_path(path, name);
        (void)unlink(path); // the next start finds it again
        removals++;
    }
}

// A file that is being fetched has not its size yet, one of a trim not its number: only while
// nothing is under way.
static void cleanup_pass(int elapsed_ms)
{
    if (clip_files_wait())
        return;
    if (th.list) {
        cleanup_some();
    } else if (th.quiet_ms >= 0 && !th.has_cleaned && DEV_MySwr[0]) {
        th.quiet_ms += elapsed_ms;
        if (th.quiet_ms >= QUIET_MS)
            cleanup_thumbnail();
    }
}

void clip_thumbnails_inserted()
{
    th.quiet_ms = 0;
}

// --- Queues ---

static void queue_append(int kind, CLIP_NODE* node)
{
    Queue& queue = th.queue[kind];
    if (node->is_wanted[kind])
        return;
    node->is_wanted[kind] = true;
    node->next_wanted[kind] = nullptr;
    node->prev_wanted[kind] = queue.last;
    (queue.last ? queue.last->next_wanted[kind] : queue.first) = node;
    queue.last = node;
}

static void queue_drop(int kind, CLIP_NODE* node)
{
    Queue& queue = th.queue[kind];
    if (!node->is_wanted[kind])
        return;
    node->is_wanted[kind] = false;
    CLIP_NODE* const next = node->next_wanted[kind];
    CLIP_NODE* const prev = node->prev_wanted[kind];
    (prev ? prev->next_wanted[kind] : queue.first) = next;
    (next ? next->prev_wanted[kind] : queue.last) = prev;
}

// --- Fetching ---

static void thumbnail_getted(uint32_t label, int tag, const char* reply);

static bool thumbnail_get(THUMBNAIL_TASK_LIST& task)
{
    char src[CLIP_FILE_SIZE];
    clip_remote_name(src, task.node->list.element, task.frame);
    clip_local_name(task.local, task.node->list.element, task.frame);
    Log_Output(0, MOD_CLIP, "thumbnail_get() : src=%s dst=%s", src, task.local);
    const int label = File_ThumbnailGet(src, task.local, thumbnail_getted, task.frame);
    if (label == -1)
        return false;
    task.filelabel = uint32_t(label);
    return true;
}

static void thumbnail_start(CLIP_NODE* node, int frame)
{
    if (ThumbGetting == 0) {
        char folder[PATH_SIZE];
        clip_folder(folder);
        (void)MakeDir(folder); // when there is none, nothing can arrive either
    }
    clip_remove_frame(node->list.element, frame);
    THUMBNAIL_TASK_LIST& task = th.task[ThumbGetting];
    task = {.node = node, .frame = frame};
    if (thumbnail_get(task))
        ThumbGetting++;
}

// The next frame of the element at the head; the head is taken off with its last.
static int next_frame(int kind, CLIP_NODE* node)
{
    const int middle = FMCtrl3_MidFrame(node->list.element);
    if (kind == WANTED_MID) {
        queue_drop(kind, node);
        return middle;
    }
    if (node->next_frame == middle)
        node->next_frame++;
    if (node->next_frame + 1 >= node->list.element.duration)
        queue_drop(kind, node);
    return node->next_frame++;
}

static void look_at_frame(CLIP_NODE* node, int frame)
{
    const ELEMENT& e = node->list.element;
    if (!clip_has_frame(e, frame))
        thumbnail_start(node, frame);
    if (!node->has_note)
        node->has_note = clip_write_note(e); // before anything arrives: requests go out later
}

// Look at up to this many files, fetch what is missing.
static void start_waiting(int looks)
{
    for (int kind = 0; kind < WANTED_MAX; kind++) {
        for (; th.queue[kind].first && looks > 0 && ThumbGetting < FETCHES_MAX; looks--) {
            CLIP_NODE* const node = th.queue[kind].first;
            const int frame = next_frame(kind, node);
            if (frame < node->list.element.duration)
                look_at_frame(node, frame);
        }
    }
}

void clip_thumbnails_want(CLIP_NODE* node)
{
    const ELEMENT& e = node->list.element;
    if (e.type != ELEMENT_TYPE_FILE || e.thumbnail != 1 || !DEV_MySwr[0])
        return;
    if (!clip_files_change(e))
        node->has_note = clip_files_are_of(e);
    if (e.duration < 1 || clip_files_change(e)) // then it is wanted again
        return;
    node->next_frame = 0;
    queue_append(WANTED_MID, node);
    if (e.duration > 1)
        queue_append(WANTED_OTHERS, node);
    if (ThumbGetting == 0 && !th.list)
        start_waiting(1);
}

void clip_thumbnails_forget(CLIP_NODE* node)
{
    for (int kind = 0; kind < WANTED_MAX; kind++)
        queue_drop(kind, node);
    for (int i = 0; i < ThumbGetting; i++)
        if (th.task[i].node == node)
            th.task[i].node = nullptr;
}

void clip_thumbnails_forget_all()
{
    for (int i = 0; i < ThumbGetting; i++)
        (void)File_ExecUSBReload_cancel(th.task[i].filelabel); // else it stays for an answer
    end_cleanup();
    th = {.has_cleaned = th.has_cleaned};
    ThumbGetting = 0;
}

void clip_thumbnails_end()
{
    clip_thumbnails_forget_all();
    clip_files_end();
}

void clip_thumbnails_init()
{
    clip_thumbnails_end();
    th.has_cleaned = false;
}

static void tell_received(const CLIP_NODE* node, int frame)
{
    if (isNowPageFM(0))
        SendMessage(LMSG_FMCTRL3CHANGE, FMCTRL_MSG_THUMBNAIL_RECV, Arg(&node->list.element), 0,
                    frame);
}

static bool try_again(THUMBNAIL_TASK_LIST& task)
{
    if (task.retry >= RETRIES) {
        Log_Output(LOG_ALWAYS, MOD_CLIP, "### GIVE UP THUMBNAIL ###");
        return false;
    }
    task.retry++;
    Log_Output(LOG_ALWAYS + 1, MOD_CLIP, "retry thumbnail get... (%d times)", task.retry);
    return thumbnail_get(task);
}

static void remove_unwanted(const THUMBNAIL_TASK_LIST& task)
{
    char path[PATH_SIZE];
    Log_Output(LOG_TRACE, MOD_CLIP, "...but, not find filelabel... (L%u)", task.filelabel);
    clip_local_path(path, task.local);
    (void)unlink(path); // a failed fetch leaves none
}

static void thumbnail_getted(uint32_t label, int, const char* reply)
{
    THUMBNAIL_TASK_LIST* const end = th.task + ThumbGetting;
    THUMBNAIL_TASK_LIST* const task = std::find_if(
        th.task, end, [=](const THUMBNAIL_TASK_LIST& t) { return t.filelabel == label; });
    if (task == end)
        return;
    const bool is_there = reply && strcmp(reply, "OK") == 0;
    if (task->node && !is_there && try_again(*task))
        return;
    const THUMBNAIL_TASK_LIST done = *task;
    *task = th.task[--ThumbGetting];
    if (!done.node)
        remove_unwanted(done);
    else if (is_there)
        tell_received(done.node, done.frame);
    if (ThumbGetting == 0)
        start_waiting(LOOKS_A_PASS);
}

void clip_thumbnails_pass(int elapsed_ms)
{
    clip_files_pass();
    if (ThumbGetting > 0)
        return;
    cleanup_pass(elapsed_ms);
    if (!th.list)
        start_waiting(LOOKS_A_PASS);
}
