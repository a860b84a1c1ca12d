// Thumbnails of the clip store: files on the local drive, one a frame, fetched from the switcher.
// Two queues of elements wait: for their middle frame, and for all others. What is on the drive
// already is found out when an element's turn comes, a few files a pass; and the files of a long
// clip go so, too.
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
#include <ctime>
#include <deque>
#include <dirent.h>
#include <fcntl.h>
#include <numeric>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "safeguards.h"

constexpr int FETCHES_MAX = 30; // at once: the server's file link is slow
constexpr int RETRIES = 5;
constexpr int LOOKS_A_PASS = 128;   // files
constexpr int FRAMES_BY_NAME = 128; // of a clip that has no more, each name is tried at once
constexpr int REMOVED_A_PASS = 32;
constexpr int NAMES_A_PASS = 512;   // of the folder
constexpr int QUIET_MS = 5000;      // without a new element: the tree has been told
constexpr time_t FRESH_S = 3;       // what came so shortly before a trim was told may come after it
constexpr long SMALL_BYTES = 6966;  // 64 x 36
constexpr long LARGE_BYTES = 21222; // 112 x 63
constexpr char FOLDER[] = "/mnt/sys/FM/";
constexpr char LIST_FILE[] = "/var/tmp/__tm3_fmctrl_thumbnail_list__.tmp";
constexpr char NOTE_END[] = ".of"; // "NEWS.OPENING.SFH.THM.of"
constexpr int NOTE_SIZE = 64;
constexpr int NAME_SIZE = ELEMENT_PATH_SIZE + 20;

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
    char local[NAME_SIZE] = ""; // what comes for nobody is removed
};
struct Queue {
    CLIP_NODE* first = nullptr;
    CLIP_NODE* last = nullptr;
};
struct Removal {
    ELEMENT of;
    DIR* folder = nullptr; // null: not begun
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
static std::deque<Removal> removals;

// --- Names ---

int FMCtrl3_MidFrame(const ELEMENT& element)
{
    return std::max(element.duration / 2 - 1, 0);
}

// "NEWS/OPENING.SFH#000012.THM"; a still has no number.
static void remote_name(char (&text)[NAME_SIZE], const ELEMENT& e, int frame)
{
    const char* const path = e.full_name + strlen("/") + strlen(ELEMENT_ROOT) + strlen("/");
    if (e.duration > 1)
        PrintText(text, "%s.SFH#%06d.THM", path, frame);
    else
        PrintText(text, "%s.SFH.THM", path);
}

static void local_name(char (&text)[NAME_SIZE], const ELEMENT& e, int frame)
{
    remote_name(text, e, frame);
    std::replace(text, text + strlen(text), '/', '.');
}

static int store_unit()
{
    return DEV_MySwr[0] ? Device_UnitNumber(*DEV_MySwr[0]) : 0;
}

static void local_path(char (&text)[PATH_SIZE], const char* name)
{
    PrintText(text, "%s%d%s%s", FOLDER, store_unit(), "/", name);
}

static void path_of_frame(char (&text)[PATH_SIZE], const ELEMENT& e, int frame)
{
    char name[NAME_SIZE];
    local_name(name, e, frame);
    local_path(text, name);
}

// --- Files ---

static bool is_thumbnail_file(const char* path)
{
    struct stat s;
    return stat(path, &s) == 0 && (s.st_size == SMALL_BYTES || s.st_size == LARGE_BYTES);
}

static bool has_frame(const ELEMENT& e, int frame)
{
    char path[PATH_SIZE];
    path_of_frame(path, e, frame);
    return is_thumbnail_file(path);
}

// A clock that was set back makes all fresh for a while: then they are fetched once more.
static bool is_fresh(const char* path)
{
    struct stat s;
    return stat(path, &s) == 0 && s.st_mtime >= time(nullptr) - FRESH_S;
}

static void remove_frame(const ELEMENT& e, int frame)
{
    char path[PATH_SIZE];
    path_of_frame(path, e, frame);
    (void)unlink(path); // it may not be there
}

// Of which frame of a clip with this name a file is; -1: of none.
static int frame_of_file(const char* file, const char* name_of_first)
{
    const size_t head = strcspn(name_of_first, "#") + strlen("#");
    if (strncmp(file, name_of_first, head) != 0 || strlen(file) != strlen(name_of_first))
        return -1;
    return int(strtol(file + head, nullptr, 10));
}

// The frames that may have a file, in their order. A long clip has far more names than files, and
// to ask for each of them would hold up the screen: its files are looked for in the folder.
static std::vector<int> frames_to_try(const ELEMENT& e)
{
    std::vector<int> frames;
    if (e.duration <= FRAMES_BY_NAME) {
        frames.resize(size_t(std::max(e.duration, 0)));
        std::iota(frames.begin(), frames.end(), 0);
        return frames;
    }
    char folder[PATH_SIZE];
    char name[NAME_SIZE];
    local_path(folder, "");
    local_name(name, e, 0);
    DIR* const dir = opendir(folder);
    for (const dirent* entry = nullptr; dir && (entry = readdir(dir));) {
        const int frame = frame_of_file(entry->d_name, name);
        if (frame >= 0 && frame < e.duration)
            frames.push_back(frame);
    }
    if (dir)
        (void)closedir(dir);
    std::sort(frames.begin(), frames.end());
    return frames;
}

// --- What the files are of ---
// Beside the thumbnails of a clip lies a text that says which clip they were fetched of: its length
// and its time. A clip that was trimmed or recorded anew while nobody here took note of it (the
// program was off, it ended before it had renumbered them, the link was down) has another one.

static void path_of_note(char (&text)[PATH_SIZE], const ELEMENT& e)
{
    ELEMENT still = e;
    still.duration = 1;
    path_of_frame(text, still, 0);
    AppendText(text, NOTE_END);
}

static void note_text(char (&text)[NOTE_SIZE], const ELEMENT& e)
{
    PrintText(text, "%d %s", e.duration, e.create_time);
}

// The text, empty where a write of it was broken off; false when there is none.
static bool read_note(const ELEMENT& e, char (&text)[NOTE_SIZE])
{
    char path[PATH_SIZE];
    path_of_note(path, e);
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const ssize_t size = read(fd, text, sizeof text - 1);
    text[std::max<ssize_t>(size, 0)] = '\0';
    (void)close(fd); // it was only read
    return true;
}

// Not through a file beside it, and without waiting for the disk: half a text is of no clip.
static bool write_note(const ELEMENT& e)
{
    char path[PATH_SIZE];
    char text[NOTE_SIZE];
    path_of_note(path, e);
    note_text(text, e);
    const int fd = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const bool is_written = write(fd, text, strlen(text)) == ssize_t(strlen(text));
    return close(fd) == 0 && is_written;
}

// The note goes last: what is broken off here is found again.
static void remove_note(const ELEMENT& e)
{
    char path[PATH_SIZE];
    path_of_note(path, e);
    (void)unlink(path); // there may be none
}

static bool is_being_removed(const ELEMENT& e)
{
    return std::any_of(removals.begin(), removals.end(),
                       [&](const Removal& r) { return Same(r.of.full_name, e.full_name); });
}

static void remove_all(const ELEMENT& e)
{
    if (e.duration > FRAMES_BY_NAME) {
        if (!is_being_removed(e))
            removals.push_back({.of = e});
        return;
    }
    for (int frame = 0; frame < e.duration; frame++)
        remove_frame(e, frame);
    remove_note(e);
}

// True when the files may stay and the note says so. Files without a note are left: they are from
// before there were notes.
static bool drop_what_is_of_another(const ELEMENT& e)
{
    char is[NOTE_SIZE];
    char should_be[NOTE_SIZE];
    if (!read_note(e, is))
        return false;
    note_text(should_be, e);
    if (strcmp(is, should_be) == 0)
        return true;
    Log_Output(LOG_LINK, MOD_CLIP, "thumbnails of %s are of another clip: %s", e.full_name, is);
    ELEMENT before = e;
    before.duration = int(NumberIn(is, 0, ELEMENT_FRAMES_MAX));
    remove_all(before);
    remove_all(e);
    return false;
}

void clip_thumbnails_remove(const ELEMENT& e)
{
    if (e.thumbnail && DEV_MySwr[0])
        remove_all(e);
}

void clip_thumbnails_same(const ELEMENT& e)
{
    char is[NOTE_SIZE];
    if (e.type == ELEMENT_TYPE_FILE && DEV_MySwr[0] && !is_being_removed(e) && read_note(e, is))
        (void)write_note(e); // at the worst they are fetched once more
}

// The store tells of a trim when it is done: a frame that was fetched in between has its new number
// already. The note says the old length until all have their new numbers: where the program ends in
// between, they are fetched anew.
bool clip_thumbnails_renumber(const ELEMENT& e, int first, int last)
{
    if (!e.thumbnail || !DEV_MySwr[0])
        return true;
    char note[NOTE_SIZE];
    if (is_being_removed(e) || !has_frame(e, first) || (!read_note(e, note) && !write_note(e)))
        return false;
    ELEMENT kept = e;
    kept.duration = last - first + 1;
    for (const int frame : frames_to_try(e)) {
        char from[PATH_SIZE];
        char to[PATH_SIZE];
        path_of_frame(from, e, frame);
        path_of_frame(to, kept, frame - first);
        if (frame < first || frame > last || is_fresh(from))
            (void)unlink(from);
        else if (strcmp(from, to) != 0 && rename(from, to) != 0)
            (void)unlink(to); // the frame that had this number before
    }
    (void)write_note(kept); // at the worst they are fetched once more
    return true;
}

SDL_Surface* FMCtrl3_GetThumbnail(const ELEMENT* element, int frame)
{
    if (!element || element->type != ELEMENT_TYPE_FILE || frame < 0 || frame >= element->duration ||
        is_being_removed(*element))
        return nullptr;
    char path[PATH_SIZE];
    path_of_frame(path, *element, frame);
    return is_thumbnail_file(path) ? fm_load_bmp(path) : nullptr;
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
    const bool is_note = cut_end(name, NOTE_END);
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
    local_path(path, name);
    CopyText(text, name);
    return clip_thumbnail_is_known(name) && (cut_end(text, NOTE_END) || is_thumbnail_file(path));
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
    char command[PATH_SIZE];
    th.has_cleaned = true;
    PrintText(command, "/bin/ls -1 %s%d", FOLDER, store_unit());
    (void)ktr_system_and_redirect(command, LIST_FILE); // no folder: nothing to clean up
    th.list = fopen(LIST_FILE, "re");
}

// Some files of the list. The end of it ends the clean-up.
static void cleanup_some()
{
    char name[PATH_SIZE];
    for (int i = 0; i < LOOKS_A_PASS; i++) {
        if (!fgets(name, sizeof name, th.list)) {
            end_cleanup();
            return;
        }
        name[strcspn(name, "\n")] = '\0';
        char path[PATH_SIZE];
        local_path(path, name);
        if (!is_of_use(name))
            (void)unlink(path);
    }
}

// A file that is being fetched has not its size yet: only while nothing is under way.
static void cleanup_pass(int elapsed_ms)
{
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
    char src[NAME_SIZE];
    remote_name(src, task.node->list.element, task.frame);
    local_name(task.local, task.node->list.element, task.frame);
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
        local_path(folder, "");
        (void)MakeDir(folder); // when there is none, nothing can arrive either
    }
    remove_frame(node->list.element, frame);
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
    if (!has_frame(e, frame))
        thumbnail_start(node, frame);
    if (!node->has_note)
        node->has_note = write_note(e); // before anything arrives: requests go out later
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
    if (!is_being_removed(e))
        node->has_note = drop_what_is_of_another(e);
    if (e.duration < 1 || is_being_removed(e)) // it is wanted again when they have gone
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

// --- Removing by and by ---

// Some files of it. True at the end.
static bool remove_some(Removal& r)
{
    if (!r.folder) {
        char path[PATH_SIZE];
        local_path(path, "");
        r.folder = opendir(path);
    }
    char name[NAME_SIZE];
    local_name(name, r.of, 0);
    for (int names = 0, removed = 0; names < NAMES_A_PASS && removed < REMOVED_A_PASS; names++) {
        const dirent* const entry = r.folder ? readdir(r.folder) : nullptr;
        if (!entry)
            return true;
        if (frame_of_file(entry->d_name, name) < 0)
            continue;
        (void)unlinkat(dirfd(r.folder), entry->d_name, 0); // the next start finds what stays
        removed++;
    }
    return false;
}

static void removal_end(const Removal& r)
{
    if (r.folder)
        (void)closedir(r.folder);
    removals.pop_front();
}

static void removal_pass()
{
    if (removals.empty() || !remove_some(removals.front()))
        return;
    const ELEMENT of = removals.front().of;
    remove_note(of);
    removal_end(removals.front());
    if (CLIP_NODE* const node = clip_tree_find(of.full_name, ELEMENT_TYPE_FILE))
        clip_thumbnails_want(node);
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
    while (!removals.empty())
        removal_end(removals.front());
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
    local_path(path, task.local);
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
    removal_pass();
    if (ThumbGetting > 0)
        return;
    cleanup_pass(elapsed_ms);
    if (!th.list)
        start_waiting(LOOKS_A_PASS);
}
