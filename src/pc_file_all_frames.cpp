#include "pc_file_all_frames.h"
#include "device.h"
#include "file_newest.h"
#include "fmctrl.h"
#include "global.h"
#include "netio.h"
#include "text.h"
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int STEP_REGISTERS = 256; // of a save, in one pass
constexpr int GRP_FRAMEMEM = 23;
constexpr const char* DEFAULT_FOLDER = FRAME_FOLDER_DEFAULT;
constexpr int FOLDER_NAME = sizeof(FOLDER::name);
constexpr int CLASS_AND_GROUP = 6; // of a unit's id

// A picture as its file tells it.
struct Frame {
    char name[FMEM_NAME_SIZE] = "";
    char folder[FOLDER_NAME] = ""; // empty without folders
    bool is_extended = false;
    bool is_ancillary = false;
    int number = 0; // of the register, from 1
};
} // namespace

static struct {
    FILESIDE from;
    FILESIDE to;
    FILEXFERLIST** list = nullptr; // null: no search runs
    void (*done)(bool is_whole) = nullptr;
    bool is_whole = true; // so far
    uint32_t label = 0;
    char folder[FOLDER_MAX][FOLDER_NAME] = {}; // that the side has
    int folders = 0;
    int now = 0; // the folder that is searched
} search;
static FILENEWEST found; // of the list that is searched for

static struct {
    char name[FOLDER_MAX][FOLDER_NAME] = {}; // by id: the store's folders with those being made
} place;

// --- Names ---

static const DEVICE* switcher()
{
    const DEVICE* const swr = DEV_MySwr[0];
    return swr && strlen(swr->id) > CLASS_AND_GROUP ? swr : nullptr;
}

// Where the files of a side lie, with "/" behind; false when it does not fit.
static bool base_path(char (&path)[PATH_SIZE], const FILESIDE& side)
{
    char dir[PATH_SIZE];
    if (!File_DirPath(dir, sizeof dir, side.device, side.dir))
        return false;
    const int n = PrintText(path, "%s/%s/", dir, SYS_FmemV6 ? "FMEMFOL" : "FRAMEMEM");
    return n < int(sizeof path);
}

static FILEINFO info_of(const Frame& f)
{
    FILEINFO info = {.grp = GRP_FRAMEMEM, .is_ancillary = f.is_ancillary};
    info.no = f.number - 1 + (f.is_extended ? FMEM_EXTENDED : 0);
    CopyText(info.name, f.name);
    CopyText(info.folder, f.folder);
    return info;
}

// A picture is loaded under the name of its file.
static bool target_of(const FILESIDE& to, const Frame& f, char (&dst)[FILE_PATH_SIZE])
{
    const FILEINFO info = info_of(f);
    return (to.device == FILE_REGISTER ? File_FrameName(info, dst, sizeof dst)
                                       : info2name(info, dst, to.device, to.dir, sizeof dst)) == 0;
}

// The last piece of a path that ends at *end, behind a c; *end moves before that c.
static bool cut_back(const char* path, const char** end, char c, char* piece, size_t size)
{
    const char* p = *end;
    while (p > path && p[-1] != c)
        p--;
    if (p == path || size_t(*end - p) >= size)
        return false;
    strncpy_secu(piece, p, size, size_t(*end - p));
    *end = p - 1;
    return true;
}

static bool take_number(const char* digits, int* number)
{
    constexpr size_t DIGITS_MAX = 4;
    const size_t n = strspn(digits, "0123456789");
    *number = int(strtol(digits, nullptr, 10));
    return n > 0 && n <= DIGITS_MAX && !digits[n] && *number >= 1 && *number <= SYS_FmemRegMax;
}

static bool is_own_unit(const char* unit)
{
    const DEVICE* const swr = switcher();
    return strcmp(unit, swr->id) == 0 ||
           (BeginsWith(unit, "SWR000") &&
            strcmp(unit + CLASS_AND_GROUP, swr->id + CLASS_AND_GROUP) == 0);
}

// "<folder>/<unit>/<name>.FMEM_<number>.SFM". False for what is no picture of the first switcher,
// or of a store that is not there.
static bool read_path(const char* path, Frame* f)
{
    const char* end = path + strlen(path);
    char ext[4], number[8], store[8], name[FMEM_NAME_SIZE], unit[16];
    if (!switcher() || !cut_back(path, &end, '.', ext, sizeof ext) ||
        !cut_back(path, &end, '_', number, sizeof number) ||
        !cut_back(path, &end, '.', store, sizeof store) ||
        !cut_back(path, &end, '/', name, sizeof name) ||
        !cut_back(path, &end, '/', unit, sizeof unit))
        return false;
    if (SYS_FmemV6 && !cut_back(path, &end, '/', f->folder, sizeof f->folder))
        return false;
    fname2dispname(name, f->name, sizeof f->name);
    f->is_extended = strcmp(store, "FMEX") == 0;
    f->is_ancillary = strcmp(ext, "SFA") == 0;
    // What would end a command is no name of a register.
    return f->name[0] && !strpbrk(name, "#,") && (f->is_extended || strcmp(store, "FMEM") == 0) &&
           (f->is_ancillary || strcmp(ext, "SFM") == 0) && is_own_unit(unit) &&
           take_number(number, &f->number) && (!f->is_extended || FMCtrl2_IsExtendedCapacity());
}

// --- Saving ---

static const char* folder_of(int index)
{
    if (!SYS_FmemV6)
        return "";
    const int id = FMCtrl_GetRegFolderId(index);
    const FOLDER* const folder = FMCtrl_GetFolder(FMCtrl_GetIsFolderIdx(id));
    return id > 0 && folder && folder->name[0] ? folder->name : DEFAULT_FOLDER;
}

static void add_register(const FILESIDE& to, int index, FILEXFERLIST** list)
{
    char src[FILE_PATH_SIZE];
    Frame f;
    CopyText(f.name, FMCtrl2_GetRegNameMulti(index));
    CopyText(f.folder, folder_of(index));
    f.is_extended = index >= FMEM_EXTENDED;
    f.number = index % FMEM_EXTENDED + 1;
    f.is_ancillary = FMCtrl_GetStillAncillary(FMCtrl_GetStillIdx(f.name)) == 1;
    FILEINFO from = info_of(f);
    from.name[0] = '\0'; // its number says all
    char dst[FILE_PATH_SIZE];
    if (File_FrameName(from, src, sizeof src) == 0 && target_of(to, f, dst))
        (void)File_XferList_Add(list, src, dst);
}

int AllFrames_Save(const FILESIDE& to, int step, FILEXFERLIST** list)
{
    const int stores = FMCtrl2_IsExtendedCapacity() ? 2 : 1;
    const int steps = (SYS_FmemRegMax + STEP_REGISTERS - 1) / STEP_REGISTERS;
    if (!switcher() || step >= stores * steps)
        return 0;
    const int store = step / steps;
    const int first = step % steps * STEP_REGISTERS;
    const int end = std::min(first + STEP_REGISTERS, SYS_FmemRegMax);
    for (int n = first; n < end; n++) {
        const int index = store * FMEM_EXTENDED + n;
        if (FMCtrl2_IsRegStoreMulti(index))
            add_register(to, index, list);
    }
    return step + 1 < stores * steps;
}

// --- Searching ---

// Of the newer frame memory each name is a picture of its own, whatever its number.
static void add_file(const char* path, const char* date)
{
    char src[FILE_PATH_SIZE];
    char dst[FILE_PATH_SIZE];
    Frame f;
    if (!read_path(path, &f) || !target_of(search.to, f, dst))
        return;
    PrintText(src, "%s%s", BeginsWith(path, "MYHOST:") ? "" : "MYHOST:", path);
    if (SYS_FmemV6)
        (void)File_XferList_Add(search.list, src, dst);
    else
        (void)FileNewest_Add(found, search.list, src, dst, date);
}

static void end_search()
{
    const auto ended = search;
    search = {};
    ended.done(ended.is_whole);
}

static void search_next();

// The search that ends was of a folder, or without a name of what holds them.
static void note_end(const char* folder)
{
    char base[PATH_SIZE];
    char path[2 * PATH_SIZE];
    if (!base_path(base, search.from))
        return;
    PrintText(path, "%s%s", base, folder);
    search.is_whole &= File_FindIsWhole(search.from.device, search.from.dir, path) != 0;
}

static void frame_tly(uint32_t label, int, const char* path, const char* const* pair)
{
    if (!search.list || label != search.label)
        return; // one that was given up
    if (path) {
        add_file(path, pair[1]);
        return;
    }
    note_end(search.now < search.folders ? search.folder[search.now] : "");
    search.now++;
    search_next();
}

static bool find(const char* path)
{
    const int label = File_ExecFind(path, "*.*.*", frame_tly, 0);
    search.label = label > 0 ? uint32_t(label) : 0;
    return label > 0;
}

// The next of the folders, the default folder first.
static void search_next()
{
    char base[PATH_SIZE];
    char path[PATH_SIZE];
    while (search.now < search.folders && base_path(base, search.from)) {
        const int n = PrintText(path, "%s%s/", base, search.folder[search.now]);
        if (n < int(sizeof path) && find(path))
            return;
        search.is_whole = false;
        search.now++;
    }
    end_search();
}

static void folder_tly(uint32_t label, int, const char* path, const char* const*)
{
    if (!search.list || label != search.label)
        return;
    if (!path) {
        note_end("");
        search_next();
        return;
    }
    const char* const slash = strrchr(path, '/');
    const char* const name = slash ? slash + 1 : path;
    // A longer name is no folder of the store, nor is what could lead elsewhere.
    if (!*name || *name == '.' || strlen(name) >= FOLDER_NAME || strpbrk(name, ",#") ||
        strcmp(name, DEFAULT_FOLDER) == 0 || search.folders == FOLDER_MAX)
        return;
    CopyText(search.folder[search.folders++], name);
}

int AllFrames_Search(const FILESIDE& from, const FILESIDE& to, FILEXFERLIST** list,
                     void (*done)(bool is_whole))
{
    char path[PATH_SIZE];
    AllFrames_Forget();
    found = {};
    if (!switcher() || !base_path(path, from))
        return -1;
    search.from = from;
    search.to = to;
    search.list = list;
    search.done = done;
    if (!SYS_FmemV6) {
        if (find(path))
            return 0;
        search = {};
        return -1;
    }
    CopyText(search.folder[search.folders++], DEFAULT_FOLDER);
    const int label = File_ExecListDir(path, folder_tly, 0);
    if (label <= 0) {
        search = {};
        return -1;
    }
    search.label = uint32_t(label);
    return 0;
}

void AllFrames_Forget()
{
    if (search.list && search.label != 0)
        (void)File_ExecUSBReload_cancel(search.label); // -1: it has ended meanwhile
    search = {};
}

// --- Folders of the store ---

static int folder_id(const char* name)
{
    for (int id = 1; id < FOLDER_MAX; id++)
        if (strcmp(place.name[id], name) == 0)
            return id;
    return 0; // the default folder
}

static void make_folder(const char* name)
{
    if (strcmp(name, DEFAULT_FOLDER) == 0 || folder_id(name) > 0)
        return;
    const int id = folder_id(""); // the first that is free
    if (id == 0)
        return; // none: the default folder takes its stills
    CopyText(place.name[id], name);
    Net_SendCommandFormat("put Frame Mem@Folder@Rename#%d,%s", id, name);
}

// A name stands for one picture: where it stands elsewhere, the one that is loaded replaces it.
static void delete_namesake(const Frame& f)
{
    const int index = FMCtrl2_GetRegIndex(f.name);
    const int target = f.number - 1 + (f.is_extended ? FMEM_EXTENDED : 0);
    // Where both stores have the name, a deletion would take both.
    if (index >= 0 && index != target && strcmp(FMCtrl2_GetRegNameMulti(target), f.name) != 0)
        Net_SendCommandFormat("put Frame Mem@File@Delete Thumbnail@Single#%s", f.name);
}

void AllFrames_Prepare(const FILEXFERLIST* list)
{
    place = {};
    for (int row = 0; row < FOLDER_MAX; row++)
        if (const FOLDER* folder = FMCtrl_GetFolder(row); folder->folder_id > 0)
            CopyText(place.name[folder->folder_id], folder->name);
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        Frame f;
        if (!read_path(item->src, &f))
            continue;
        if (f.folder[0])
            make_folder(f.folder);
        delete_namesake(f);
    }
}

void AllFrames_Place(const FILEXFERLIST* list)
{
    for (const FILEXFERLIST* item = list; item && SYS_FmemV6; item = item->next) {
        Frame f;
        if (item->status == FILESTATUS_OK && read_path(item->src, &f))
            FMCtrl_MoveStill(switcher(), f.name, folder_id(f.folder));
    }
}
