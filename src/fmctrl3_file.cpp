// The thumbnails of the clip store on the local drive: what they are called, of which clip they
// are, and what becomes of them when their clip is deleted, recorded anew or trimmed. Thousands of
// files may go then, and a drive that tells its blocks free takes its time for each: some go a
// pass, clip after clip, and nobody sees or fetches files of a clip whose turn has not come.
#include "bus.h"
#include "device.h"
#include "fmctrl3_private.h"
#include "fmctrl_private.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cerrno>
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

constexpr int FRAMES_BY_NAME = 128; // of a clip that has no more, each name is tried
constexpr int NAMES_A_PASS = 4096;  // of the folder, looked at
constexpr int FILES_A_PASS = 32;    // given another name
constexpr int REMOVAL_COSTS = 4;    // as many of them
constexpr time_t FRESH_S = 3;       // what came so shortly before a trim was told may come after it
constexpr long SMALL_BYTES = 6966;  // 64 x 36
constexpr long LARGE_BYTES = 21222; // 112 x 63
constexpr char FOLDER[] = "/mnt/sys/FM/";
constexpr int NOTE_SIZE = 64;

namespace
{
// What is to become of the files of a clip.
struct Change {
    int unit = 0; // whose store the clip was in
    ELEMENT of;   // as it was
    bool is_trim = false;
    int first = 0; // of a trim: what is left
    int last = 0;
    time_t told = 0;
    DIR* folder = nullptr; // while its files are looked for
    bool has_frames = false;
    std::vector<int> frames; // that may have a file, in their order
    size_t done = 0;
};
} // namespace

static std::deque<Change> changes; // the first is being carried out

// --- Names ---

// "NEWS/OPENING.SFH#000012.THM"; a still has no number.
void clip_remote_name(char (&text)[CLIP_FILE_SIZE], const ELEMENT& e, int frame)
{
    const char* const path = e.full_name + strlen("/") + strlen(ELEMENT_ROOT) + strlen("/");
    if (e.duration > 1)
        PrintText(text, "%s.SFH#%06d.THM", path, frame);
    else
        PrintText(text, "%s.SFH.THM", path);
}

void clip_local_name(char (&text)[CLIP_FILE_SIZE], const ELEMENT& e, int frame)
{
    clip_remote_name(text, e, frame);
    std::replace(text, text + strlen(text), '/', '.');
}

static int store_unit()
{
    return DEV_MySwr[0] ? Device_UnitNumber(*DEV_MySwr[0]) : 0;
}

static void folder_of(char (&text)[PATH_SIZE], int unit)
{
    PrintText(text, "%s%d", FOLDER, unit);
}

void clip_folder(char (&text)[PATH_SIZE])
{
    folder_of(text, store_unit());
}

static void path_of(char (&text)[PATH_SIZE], int unit, const char* name)
{
    folder_of(text, unit);
    AppendText(text, "/");
    AppendText(text, name);
}

void clip_local_path(char (&text)[PATH_SIZE], const char* name)
{
    path_of(text, store_unit(), name);
}

static void path_in(char (&text)[PATH_SIZE], int unit, const ELEMENT& e, int frame)
{
    char name[CLIP_FILE_SIZE];
    clip_local_name(name, e, frame);
    path_of(text, unit, name);
}

static void path_of_frame(char (&text)[PATH_SIZE], const ELEMENT& e, int frame)
{
    path_in(text, store_unit(), e, frame);
}

// --- Files ---

bool clip_is_thumbnail_file(const char* path)
{
    struct stat s;
    return stat(path, &s) == 0 && (s.st_size == SMALL_BYTES || s.st_size == LARGE_BYTES);
}

bool clip_has_frame(const ELEMENT& e, int frame)
{
    char path[PATH_SIZE];
    path_of_frame(path, e, frame);
    return clip_is_thumbnail_file(path);
}

// A clock that was set back makes all fresh for a while: then they are fetched once more.
static bool is_fresh(const char* path, time_t told)
{
    struct stat s;
    return stat(path, &s) == 0 && s.st_mtime >= told - FRESH_S;
}

void clip_remove_frame(const ELEMENT& e, int frame)
{
    char path[PATH_SIZE];
    path_of_frame(path, e, frame);
    (void)unlink(path); // it may not be there
}

// --- What the files are of ---
// Beside the thumbnails of a clip lies a text that says which clip they were fetched of: its length
// and its time. A clip that was trimmed or recorded anew while nobody here took note of it (the
// program was off, it ended before it had renumbered them, the link was down) has another one.

static void path_of_note(char (&text)[PATH_SIZE], int unit, const ELEMENT& e)
{
    ELEMENT still = e;
    still.duration = 1;
    path_in(text, unit, still, 0);
    AppendText(text, CLIP_NOTE_END);
}

static void note_text(char (&text)[NOTE_SIZE], const ELEMENT& e)
{
    PrintText(text, "%d %s", e.duration, e.create_time);
}

// The text, empty where a write of it was broken off; false when there is none.
static bool read_note(const ELEMENT& e, char (&text)[NOTE_SIZE])
{
    char path[PATH_SIZE];
    path_of_note(path, store_unit(), e);
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const ssize_t size = read(fd, text, sizeof text - 1);
    text[std::max<ssize_t>(size, 0)] = '\0';
    (void)close(fd); // it was only read
    return true;
}

// Not through a file beside it, and without waiting for the disk: half a text is of no clip, and
// neither is an empty one.
static bool put_note(int unit, const ELEMENT& e, const char* text)
{
    char path[PATH_SIZE];
    path_of_note(path, unit, e);
    const int fd = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const bool is_written = write(fd, text, strlen(text)) == ssize_t(strlen(text));
    return close(fd) == 0 && is_written;
}

static bool write_note_in(int unit, const ELEMENT& e)
{
    char text[NOTE_SIZE];
    note_text(text, e);
    return put_note(unit, e, text);
}

bool clip_write_note(const ELEMENT& e)
{
    return write_note_in(store_unit(), e);
}

static bool remove_note(int unit, const ELEMENT& e)
{
    char path[PATH_SIZE];
    path_of_note(path, unit, e);
    return unlink(path) == 0 || errno == ENOENT;
}

// --- What is to become of them ---

static Change* change_of(const ELEMENT& e)
{
    const int unit = store_unit();
    const auto is_of = [&](const Change& c) {
        return c.unit == unit && Same(c.of.full_name, e.full_name);
    };
    const auto found = std::find_if(changes.begin(), changes.end(), is_of);
    return found == changes.end() ? nullptr : &*found;
}

bool clip_files_change(const ELEMENT& e)
{
    return change_of(e) != nullptr;
}

bool clip_files_wait()
{
    return !changes.empty();
}

static void close_folder(Change& c)
{
    if (c.folder)
        (void)closedir(c.folder);
    c.folder = nullptr;
}

// One that is under way, a trim as well, begins anew with all the names that it may have left. An
// empty note says from now on that the files are of no clip, should the program end before.
static void remove_all(const ELEMENT& e)
{
    Change* c = change_of(e);
    ELEMENT of = e;
    if (c) {
        close_folder(*c);
        of.duration = std::max(e.duration, c->of.duration);
    } else {
        c = &changes.emplace_back();
    }
    *c = {.unit = store_unit(), .of = of};
    (void)put_note(c->unit, of, ""); // where it can't be, the files can't go either
}

// Files without a note are left: they are from before there were notes.
bool clip_files_are_of(const ELEMENT& e)
{
    char is[NOTE_SIZE];
    char should_be[NOTE_SIZE];
    if (!read_note(e, is))
        return false;
    note_text(should_be, e);
    if (strcmp(is, should_be) == 0)
        return true;
    Log_Output(LOG_LINK, MOD_CLIP, "thumbnails of %s are of another clip: %s", e.full_name, is);
    ELEMENT both = e;
    both.duration = std::max(e.duration, int(NumberIn(is, 0, ELEMENT_FRAMES_MAX)));
    remove_all(both);
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
    if (e.type != ELEMENT_TYPE_FILE || !DEV_MySwr[0])
        return;
    if (Change* const c = change_of(e))
        CopyText(c->of.create_time, e.create_time); // of what a trim leaves
    else if (read_note(e, is))
        (void)clip_write_note(e); // at the worst they are fetched once more
}

// A trim of what a trim will leave, while that one has its old numbers.
static bool trim_again(Change& c, int first, int last)
{
    char path[PATH_SIZE];
    path_in(path, c.unit, c.of, c.first + first);
    if (!c.is_trim || c.done > 0 || !clip_is_thumbnail_file(path))
        return false;
    c.last = c.first + last;
    c.first += first;
    return true;
}

// The store tells of a trim when it is done: a frame that was fetched in between has its new number
// already. The note says the old length until all have their new numbers: where the program ends in
// between, they are fetched anew. An operator waits for it: it goes before what else is waiting.
bool clip_thumbnails_renumber(const ELEMENT& e, int first, int last)
{
    if (!e.thumbnail || !DEV_MySwr[0])
        return true;
    char note[NOTE_SIZE];
    if (Change* const c = change_of(e))
        return trim_again(*c, first, last);
    if (!clip_has_frame(e, first) || (!read_note(e, note) && !clip_write_note(e)))
        return false;
    changes.insert(changes.begin() + (changes.empty() ? 0 : 1), {.unit = store_unit(),
                                                                 .of = e,
                                                                 .is_trim = true,
                                                                 .first = first,
                                                                 .last = last,
                                                                 .told = time(nullptr)});
    return true;
}

SDL_Surface* FMCtrl3_GetThumbnail(const ELEMENT* element, int frame)
{
    if (!element || element->type != ELEMENT_TYPE_FILE || frame < 0 || frame >= element->duration ||
        clip_files_change(*element))
        return nullptr;
    char path[PATH_SIZE];
    path_of_frame(path, *element, frame);
    return clip_is_thumbnail_file(path) ? fm_load_bmp(path) : nullptr;
}

// --- Carrying it out ---

// Of which frame of a clip with this name a file is; -1: of none.
static int frame_of_file(const char* file, const char* name_of_first)
{
    constexpr size_t DIGITS = 6;
    constexpr size_t TAIL = DIGITS + sizeof ".THM" - 1;
    const size_t length = strlen(name_of_first);
    if (strlen(file) != length || strncmp(file, name_of_first, length - TAIL) != 0)
        return -1;
    const char* const number = file + length - TAIL;
    if (strspn(number, "0123456789") != DIGITS || strcmp(number + DIGITS, ".THM") != 0)
        return -1;
    return int(strtol(number, nullptr, 10));
}

// A long clip has far more names than files: its files are looked for in the folder, some names at
// a time.
static void look_for_files(Change& c)
{
    char name[CLIP_FILE_SIZE];
    clip_local_name(name, c.of, 0);
    for (int i = 0; i < NAMES_A_PASS; i++) {
        const dirent* const entry = c.folder ? readdir(c.folder) : nullptr;
        if (!entry) {
            close_folder(c);
            std::sort(c.frames.begin(), c.frames.end());
            c.has_frames = true;
            return;
        }
        const int frame = frame_of_file(entry->d_name, name);
        if (frame >= 0 && frame < c.of.duration)
            c.frames.push_back(frame);
    }
}

static void find_frames(Change& c)
{
    if (c.of.duration <= FRAMES_BY_NAME) {
        c.frames.resize(size_t(std::max(c.of.duration, 0)));
        std::iota(c.frames.begin(), c.frames.end(), 0);
        c.has_frames = true;
        return;
    }
    if (!c.folder) {
        char path[PATH_SIZE];
        folder_of(path, c.unit);
        c.folder = opendir(path); // without a folder there are no files
    }
    look_for_files(c);
}

static ELEMENT what_is_left(const Change& c)
{
    ELEMENT kept = c.of;
    kept.duration = c.is_trim ? c.last - c.first + 1 : 1;
    return kept;
}

// What it took, in files that are given another name.
static int change_frame(const Change& c, const ELEMENT& kept, int frame)
{
    char from[PATH_SIZE];
    char to[PATH_SIZE];
    path_in(from, c.unit, c.of, frame);
    path_in(to, c.unit, kept, frame - c.first);
    if (!c.is_trim || frame < c.first || frame > c.last || is_fresh(from, c.told))
        return unlink(from) == 0 ? REMOVAL_COSTS : 1; // it may not be there
    if (strcmp(from, to) != 0 && rename(from, to) != 0)
        (void)unlink(to); // the frame that had this number before
    return 1;
}

// True at the end, unless that cost as much as a pass may.
static bool change_some(Change& c, int* cost)
{
    if (!c.has_frames) {
        find_frames(c);
        *cost += c.of.duration > FRAMES_BY_NAME ? FILES_A_PASS / 2 : 0;
    }
    if (!c.has_frames)
        return false;
    const ELEMENT kept = what_is_left(c);
    for (; *cost < FILES_A_PASS && c.done < c.frames.size(); c.done++)
        *cost += change_frame(c, kept, c.frames[c.done]);
    return c.done == c.frames.size();
}

// The note goes last: what is broken off before is found again. False when it stays as it was.
static bool write_what_is_left(const Change& c)
{
    const ELEMENT kept = what_is_left(c);
    if (c.is_trim)
        return write_note_in(c.unit, kept);
    char path[PATH_SIZE];
    path_in(path, c.unit, kept, 0);
    (void)unlink(path); // of a trim to one frame that was broken off
    return remove_note(c.unit, c.of);
}

static void end_change(const Change& c)
{
    const bool is_done = write_what_is_left(c);
    if (!is_done)
        Log_Output(LOG_LINK, MOD_CLIP, "thumbnails of %s can't be changed, errno=%d",
                   c.of.full_name, errno);
    CLIP_NODE* const node =
        c.unit == store_unit() ? clip_tree_find(c.of.full_name, ELEMENT_TYPE_FILE) : nullptr;
    if (!node || !is_done)
        return;
    clip_thumbnails_want(node);
    if (isNowPageFM(0))
        SendMessage(LMSG_FMCTRL3CHANGE, FMCTRL_MSG_THUMBNAIL_CHANGE, Arg(&node->list.element), 0,
                    FMCtrl3_MidFrame(node->list.element));
}

void clip_files_pass()
{
    for (int cost = 0; cost < FILES_A_PASS && !changes.empty();) {
        if (!change_some(changes.front(), &cost))
            return;
        const Change c = std::move(changes.front());
        changes.pop_front();
        cost++;
        end_change(c);
    }
}

void clip_files_end()
{
    for (Change& c : changes)
        close_folder(c);
    changes.clear();
}
