#include "file_dir.h"
#include "file.h"
#include "message.h"
#include "pane.h"
#include "safe_file.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <unistd.h>

#include "safeguards.h"

DIRINFO DirListHDD[DIRLIST_HDD_MAX];
DIRINFO DirListMC[DIRLIST_MC_MAX];
DIRINFO DirListNet[DIRLIST_NET_MAX];

namespace
{
constexpr int WAITERS = 4; // of one search

struct DirList {
    int drive;
    DIRINFO* row;
    int max;
};
constexpr DirList lists[] = {
    {FILE_LOCAL, DirListHDD, DIRLIST_HDD_MAX},
    {FILE_REMOVABLE, DirListMC, DIRLIST_MC_MAX},
    {FILE_NETWORK, DirListNet, DIRLIST_NET_MAX},
};

struct Reading {
    int count = 0;      // rows of the list
    uint32_t label = 0; // of the search that runs, 0 none
    struct {
        void (*done)(int tag) = nullptr;
        int tag = 0;
    } waiter[WAITERS];
};

struct Choice {
    FILESIDE* side = nullptr; // null: no choice is under way
    int device = 0;           // what has been chosen so far
    int pane = 0;
    bool is_dir = false; // the pane shows directories
    void (*chosen)(int tag) = nullptr;
    int tag = 0;
};
} // namespace

static Reading reading[std::size(lists)];
static Choice choice;
static BTNSEL dir_cells[DIRLIST_HDD_MAX]; // of the pane that is being opened
static uint32_t choice_turn =
    0; // tells the directories of an abandoned choice from the present one

// --- Lists ---

static int list_of(int drive)
{
    for (int i = 0; i < int(std::size(lists)); i++)
        if (lists[i].drive == drive)
            return i;
    return -1;
}

// The default directory is always offered.
static void begin_list(int list)
{
    DIRINFO* const row = lists[list].row;
    row[0] = {};
    CopyText(row[0].name, FILE_DIR_DEFAULT);
    row[0].protect = File_DirIsProtected(lists[list].drive, FILE_DIR_DEFAULT);
    reading[list].count = 1;
}

DIRINFO* File_DirList(int drive, int* count)
{
    const int list = list_of(drive);
    *count = list < 0 ? 0 : reading[list].count;
    return list < 0 ? nullptr : lists[list].row;
}

static bool is_same_dir(int drive, const char* a, const char* b)
{
    return drive == FILE_REMOVABLE ? StrICmp(a, b) == 0 : strcmp(a, b) == 0;
}

int File_DirIsAutoload(int drive, const char* name)
{
    return drive == FILE_LOCAL && StrICmp(name, FILE_DIR_AUTOLOAD) == 0;
}

int File_DirFind(int drive, const char* name)
{
    int count = 0;
    const DIRINFO* const row = File_DirList(drive, &count);
    for (int i = 0; i < count; i++)
        if (is_same_dir(drive, row[i].name, name))
            return i;
    return -1;
}

// False also for what lies on another machine.
static bool is_there(const char* path)
{
    static constexpr char host[] = "MYHOST:";
    return BeginsWith(path, host) && access(path + sizeof host - 1, F_OK) == 0;
}

int File_FindIsWhole(int drive, const char* dir, const char* folder)
{
    char path[PATH_SIZE];
    if (!File_FindFailed())
        return 1;
    return !is_there(folder) && File_DirPath(path, sizeof path, drive, dir) && is_there(path);
}

int File_DirIsProtected(int drive, const char* name)
{
    char path[PATH_SIZE];
    char file[PATH_SIZE + 16];
    if (!File_DirPath(path, sizeof path, drive, name))
        return 0;
    PrintText(file, "%s/.dirprotect", path);
    return is_there(file);
}

bool File_DirMarker(char (&path)[PATH_SIZE], int drive, const char* name)
{
    constexpr char host[] = "MYHOST:";
    char folder[PATH_SIZE];
    return File_DirPath(folder, sizeof folder, drive, name) && BeginsWith(folder, host) &&
           PrintText(path, "%s/.dirprotect", folder + sizeof host - 1) < PATH_SIZE;
}

// As name, time and protect, big-endian.
int File_DirWriteMarker(const char* path, const DIRINFO& d)
{
    uint8_t raw[sizeof(DIRINFO)] = {};
    memcpy(raw, d.name, sizeof d.name);
    memcpy(raw + sizeof d.name, d.time, sizeof d.time);
    raw[sizeof raw - 1] = uint8_t(d.protect);
    return SafeFile_Write(path, raw, sizeof raw);
}

// What a row of the server's names right below the root of the drive that was asked about: it comes
// as a bare name or as a whole path, with or without the host. Null for a place elsewhere.
static const char* below_root(int drive, const char* path)
{
    static constexpr char host[] = "MYHOST:";
    char root[PATH_SIZE];
    if (!strchr(path, '/'))
        return path;
    if (!File_Root(root, sizeof root, drive))
        return nullptr;
    const char* const place = BeginsWith(root, host) ? root + sizeof host - 1 : root;
    if (BeginsWith(path, host))
        path += sizeof host - 1;
    return BeginsWith(path, place) ? path + strlen(place) : nullptr;
}

// What is no directory of an operator's is left out: the autoload's own, hidden ones, names that no
// list could hold.
static void add_dir(int list, const char* path, const char* time)
{
    const int drive = lists[list].drive;
    const char* const text = below_root(drive, path);
    const size_t length = text ? strcspn(text, "/") : 0;
    char name[FILE_DIR_SIZE];
    if (length == 0 || length >= sizeof name || text[0] == '.' ||
        text[length + strspn(text + length, "/")] != '\0')
        return;
    strncpy_secu(name, text, sizeof name, length);
    if (File_DirIsAutoload(drive, name))
        return;
    Reading& r = reading[list];
    DIRINFO* const row = lists[list].row;
    const int known = File_DirFind(drive, name);
    if (known >= 0) {
        CopyText(row[known].time, time);
        return;
    }
    if (r.count >= lists[list].max)
        return;
    DIRINFO& added = row[r.count++];
    added = {};
    CopyText(added.name, name);
    CopyText(added.time, time);
    added.protect = File_DirIsProtected(drive, name);
}

static void end_list(int list)
{
    Reading& r = reading[list];
    std::sort(lists[list].row + 1, lists[list].row + r.count,
              [](const DIRINFO& a, const DIRINFO& b) { return strcmp(a.name, b.name) < 0; });
    r.label = 0;
    const Reading told = r;
    for (auto& w : r.waiter)
        w = {};
    for (const auto& w : told.waiter)
        if (w.done)
            w.done(w.tag);
}

static void dir_tly(uint32_t label, int list, const char* name, const char* const* pair)
{
    if (reading[list].label != label)
        return;
    if (name)
        add_dir(list, name, pair && pair[1] ? pair[1] : "");
    else
        end_list(list);
}

static bool wait_for(Reading* r, void (*done)(int tag), int tag)
{
    for (auto& w : r->waiter) {
        if (w.done && !(w.done == done && w.tag == tag))
            continue;
        w = {done, tag};
        return true;
    }
    return false;
}

int File_DirRead(int drive, void (*done)(int tag), int tag)
{
    const int list = list_of(drive);
    char root[PATH_SIZE];
    if (list < 0 || !File_Root(root, sizeof root, drive))
        return -1;
    Reading& r = reading[list];
    if (!wait_for(&r, done, tag))
        return -1;
    if (r.label != 0) // begun anew: the link may have lost the answer to the last one
        (void)File_ExecUSBReload_cancel(r.label);
    r.label = 0;
    const int label = File_ExecListDir(root, dir_tly, list);
    if (label < 0) {
        for (auto& w : r.waiter)
            w = {};
        return -1;
    }
    r.label = uint32_t(label);
    begin_list(list);
    return 0;
}

// --- Choosing ---

int File_DrivePane(int drives)
{
    static constexpr const char* captions[FILE_DRIVES] = {"Register", "Local\nDrive",
                                                          "Removable\nDrive", "Network"};
    BTNSEL cells[FILE_DRIVES];
    int n = 0;
    for (int drive = 0; drive < FILE_DRIVES; drive++)
        if (drives & 1 << drive)
            cells[n++] = {drive + 1, captions[drive]};
    return n > 0 ? PanePopup_Create(1, n, cells) : 0;
}

static int dir_pane(const FILESIDE& side, int drive)
{
    int count = 0;
    const DIRINFO* const row = File_DirList(drive, &count);
    for (int i = 0; i < count; i++)
        dir_cells[i] = {i + 1, row[i].name,
                        drive == side.device && is_same_dir(drive, row[i].name, side.dir)};
    return count > 0 ? PaneDirectory_Create(count, dir_cells) : 0;
}

static void take_choice(const char* dir)
{
    const Choice c = choice;
    choice = {};
    c.side->device = c.device;
    if (dir)
        CopyText(c.side->dir, dir);
    c.chosen(c.tag);
}

static void dirs_have_come(int turn)
{
    if (!choice.side || uint32_t(turn) != choice_turn || choice.pane != 0)
        return;
    choice.is_dir = true;
    choice.pane = dir_pane(*choice.side, choice.device);
    if (choice.pane == 0)
        choice = {};
}

static void choose_dir(int drive)
{
    choice.device = drive;
    choice.pane = 0;
    if (File_DirRead(drive, dirs_have_come, int(choice_turn)) != 0)
        choice = {};
}

int FileSelect_Device(FILESIDE* side, int drives, void (*chosen)(int tag), int tag)
{
    choice_turn++;
    choice = {.side = side, .chosen = chosen, .tag = tag};
    choice.pane = File_DrivePane(drives);
    if (choice.pane == 0)
        choice = {};
    return choice.side ? 0 : -1;
}

int FileSelect_Dir(FILESIDE* side, void (*chosen)(int tag), int tag)
{
    if (side->device == FILE_REGISTER)
        return -1;
    choice_turn++;
    choice = {.side = side, .chosen = chosen, .tag = tag};
    choose_dir(side->device);
    return choice.side ? 0 : -1;
}

static void device_chosen(int drive)
{
    if (drive == FILE_REGISTER)
        take_choice(nullptr);
    else
        choose_dir(drive);
}

static void dir_chosen(int place)
{
    int count = 0;
    const DIRINFO* const row = File_DirList(choice.device, &count);
    if (place < count)
        take_choice(row[place].name);
    else
        choice = {};
}

int FileSelect_Proc(int msg, MsgArg ax, MsgArg bx)
{
    if (msg != LMSG_PANEQUIT || !choice.side || choice.pane == 0 || int(ax) != choice.pane)
        return 0;
    const int id = int(bx);
    if (id < 1)
        choice = {};
    else if (choice.is_dir)
        dir_chosen(id - 1);
    else
        device_chosen(id - 1);
    return 1;
}

void FileSelect_Close()
{
    choice = {};
}

void File_DirReset()
{
    choice = {};
    for (Reading& r : reading)
        r = {};
}
