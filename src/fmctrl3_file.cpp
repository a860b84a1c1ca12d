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
constexpr int NAMES_A_PASS = 1024;  // of the folder, looked at
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
    ELEMENT of; // as it was
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

void clip_folder(char (&text)[PATH_SIZE])
{
    PrintText(text, "%s%d", FOLDER, store_unit());
}

void clip_local_path(char (&text)[PATH_SIZE], const char* name)
{
    clip_folder(text);
    AppendText(text, "/");
    AppendText(text, name);
}

static void path_of_frame(char (&text)[PATH_SIZE], const ELEMENT& e, int frame)
{
    char name[CLIP_FILE_SIZE];
    clip_local_name(name, e, frame);
    clip_local_path(text, name);
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

static void path_of_note(char (&text)[PATH_SIZE], const ELEMENT& e)
{
    ELEMENT still = e;
    still.duration = 1;
    path_of_frame(text, still, 0);
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
bool clip_write_note(const ELEMENT& e)
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

static void remove_note(const ELEMENT& e)
{
    char path[PATH_SIZE];
    path_of_note(path, e);
    (void)unlink(path); // there may be none
}

// --- What is to become of them ---

static Change* change_of(const ELEMENT& e)
{
    const auto is_of = [&](const Change& c) { return Same(c.of.full_name, e.full_name); };
    const auto found = std::find_if(changes.begin(), changes.end(), is_of);
    return found == changes.end() ? nullptr : &*found;
}

bool clip_files_change(const ELEMENT& e)
{
    return change_of(e) != nullptr;
}

static void close_folder(Change& c)
{
    if (c.folder)
        (void)closedir(c.folder);
    c.folder = nullptr;
}

// One that is under way, a trim as well, begins anew with all the names that it may have left.
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
    *c = {.of = of};
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
    if (e.type == ELEMENT_TYPE_FILE && DEV_MySwr[0] && !clip_files_change(e) && read_note(e, is))
        (void)clip_write_note(e); // at the worst they are fetched once more
}

// The store tells of a trim when it is done: a frame that was fetched in between has its new number
// already. The note says the old length until all have their new numbers: where the program ends in
// between, they are fetched anew.
bool clip_thumbnails_renumber(const ELEMENT& e, int first, int last)
{
    if (!e.thumbnail || !DEV_MySwr[0])
        return true;
    char note[NOTE_SIZE];
    if (clip_files_change(e) || !clip_has_frame(e, first) ||
        (!read_note(e, note) && !clip_write_note(e)))
        return false;
    changes.push_back(
        {.of = e, .is_trim = true, .first = first, .last = last, .told = time(nullptr)});
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
    const size_t head = strcspn(name_of_first, "#") + strlen("#");
    if (strncmp(file, name_of_first, head) != 0 || strlen(file) != strlen(name_of_first))
        return -1;
    return int(strtol(file + head, nullptr, 10));
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
        clip_folder(path);
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
    path_of_frame(from, c.of, frame);
    path_of_frame(to, kept, frame - c.first);
    if (!c.is_trim || frame < c.first || frame > c.last || is_fresh(from, c.told)) {
        (void)unlink(from); // it may not be there
        return REMOVAL_COSTS;
    }
    if (strcmp(from, to) != 0 && rename(from, to) != 0)
        (void)unlink(to); // the frame that had this number before
    return 1;
}

// True at the end.
static bool change_some(Change& c)
{
    if (!c.has_frames)
        find_frames(c);
    if (!c.has_frames)
        return false;
    const ELEMENT kept = what_is_left(c);
    for (int cost = 0; cost < FILES_A_PASS && c.done < c.frames.size(); c.done++)
        cost += change_frame(c, kept, c.frames[c.done]);
    return c.done == c.frames.size();
}

// The note goes last: what is broken off before is found again.
static void write_what_is_left(const Change& c, const CLIP_NODE* node)
{
    const ELEMENT kept = what_is_left(c);
    if (!c.is_trim) {
        clip_remove_frame(kept, 0); // of a trim to one frame that was broken off
        remove_note(c.of);
    } else if (node && node->list.element.duration == kept.duration) {
        (void)clip_write_note(node->list.element); // its time may have been told since
    } else {
        (void)clip_write_note(kept); // at the worst they are fetched once more
    }
}

void clip_files_pass()
{
    if (changes.empty() || !change_some(changes.front()))
        return;
    const Change c = std::move(changes.front());
    changes.pop_front();
    CLIP_NODE* const node = clip_tree_find(c.of.full_name, ELEMENT_TYPE_FILE);
    write_what_is_left(c, node);
    if (!node)
        return;
    clip_thumbnails_want(node);
    if (isNowPageFM(0))
        SendMessage(LMSG_FMCTRL3CHANGE, FMCTRL_MSG_THUMBNAIL_CHANGE, Arg(&node->list.element), 0,
                    FMCtrl3_MidFrame(node->list.element));
}

void clip_files_end()
{
    for (Change& c : changes)
        close_folder(c);
    changes.clear();
}
