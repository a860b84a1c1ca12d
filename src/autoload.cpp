#include "autoload.h"
#include "device.h"
#include "err.h"
#include "file.h"
#include "file_dir.h"
#include "file_name.h"
#include "file_newest.h"
#include "fmctrl.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_file.h"
#include "tally_value.h"
#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>

#include "safeguards.h"

constexpr int MOD_AUTOLOAD = 26;
constexpr char LOAD_DIR[] = "PWON_LD";
constexpr char FOLDER_DIR[] = "FMEMFOL"; // holds the folders of the frame memory
constexpr char PATTERN[] = "*.*.*";
constexpr char DATA_EXIST[] = "Info@Auto Load@Data Exist@";
constexpr char START[] = "Info@Auto Load@Start@";
constexpr uint32_t ERROR_PAGE = 0x99000000;

int GL_AutoLoad = -1;
uint32_t AutoLoadFindID = 0;

// --- Units and categories ---

namespace
{
struct Unit {
    const char* word;
    const char* folder; // of its files, whatever its group
};

struct Category {
    const char* word;
    int lock; // FILELOCK_CATEGORY_, -1 none
    int grp;
    int single_grp; // the same where the effects unit has one channel
};

// A picture of the frame memory, as the search found it.
struct FILEBASE2 {
    int is_extended = 0;
    char path[PATH_SIZE] = "";
};
} // namespace

static constexpr Unit DevNameTable[] = {
    {"PNL", "CTRLCPU"},     {"SWR1", "SWR000D001"}, {"SWR2", "SWR000D002"}, {"DME1", "DME000D001"},
    {"DME2", "DME000D002"}, {"DME3", "DME000D003"}, {"DME4", "DME000D004"},
};
constexpr int UNITS = int(std::size(DevNameTable));

enum : int { GRP_FRAMEMEM = 23, FRAMEMEM_ROW = 8 };
static constexpr Category categories[] = {
    // in the order in which they are searched
    {"EFFECT", FILELOCK_CATEGORY_EFFECT, 4, 7},
    {"SNAPSHOT", FILELOCK_CATEGORY_SNAPSHOT, 13, 16},
    {"WSNAP", FILELOCK_CATEGORY_WIPE_SNAPSHOT, 17, 17},
    {"DSNAP", FILELOCK_CATEGORY_DME_SNAPSHOT, 18, 18},
    {"KSNAP", FILELOCK_CATEGORY_KEY_SNAPSHOT, 19, 19},
    {"SHOTBOX", FILELOCK_CATEGORY_SHOTBOX, 20, 20},
    {"MACRO", FILELOCK_CATEGORY_MACRO, 21, 21},
    {"MACROATC", FILELOCK_CATEGORY_MACRO_ATTACHMENT, 22, 22},
    {"FRAMEMEM", -1, GRP_FRAMEMEM, GRP_FRAMEMEM}, // the older frame memory
};
constexpr int CATEGORIES = int(std::size(categories));
static_assert(categories[FRAMEMEM_ROW].grp == GRP_FRAMEMEM);

constexpr int LOAD_FOLDERS = 40;

static struct {
    FILEXFERLIST* FileXferList_Exist = nullptr; // found and waiting
    FILEXFERLIST* FileXferList_Now = nullptr;   // being transferred: the job's
    bool FileXferExist[UNITS] = {};             // of the unit something waits
    bool FileXferNow[UNITS] = {};               // ... is under way
    uint32_t job_label = 0;                     // of the transfer, 0 none
    int PaneID_Message = 0;                     // the notice

    int FindCount = 0; // searches in flight; they are of one unit
    struct {
        uint32_t label = 0;
        int category = 0;
    } search[CATEGORIES]; // the first searches entries
    int searches = 0;
    uint32_t list_label = 0; // of the list of folders, 0 none

    // The newer frame memory. Place 0 is its default folder, the others are those of its folders
    // that shall be made, by number.
    DIRINFO FolderList[LOAD_FOLDERS];
    int folders = 1;
    int AutoLoadCount = 0; // place of the folder that is searched
    FILEBASE2* ListBase2 = nullptr;
    int ListBase2Max = 0;
    int room = 0;
    unsigned stored = 0; // units whose pictures were found since the store was cleared, a bit each
    int device = 0;      // the unit that is searched
    FILENEWEST newest;   // of the items that wait
    unsigned listed = 0; // units whose load has ended since the error list was emptied, a bit each
} al;

static int unit_of(const char* word)
{
    for (int i = 0; i < UNITS; i++)
        if (Same(DevNameTable[i].word, word))
            return i;
    return -1;
}

static bool is_switcher(int dev)
{
    return BeginsWith(DevNameTable[dev].word, "SWR");
}

static bool is_running()
{
    return std::ranges::any_of(al.FileXferNow, [](bool now) { return now; });
}

static int group_of(const Category& category)
{
    constexpr int SINGLE_CHANNEL_MODEL = 5;
    return GL_DmeModel[0] == SINGLE_CHANNEL_MODEL ? category.single_grp : category.grp;
}

static void reply(const char* question, int dev, bool yes)
{
    Net_SendCommandFormat("put %s%s#%s", question, DevNameTable[dev].word, yes ? "true" : "false");
}

static void find_countdown(int dev)
{
    if (al.FindCount > 0 && --al.FindCount == 0)
        reply(DATA_EXIST, dev, al.FileXferExist[dev]);
}

// --- What was found ---

// Its place on the unit, under its name.
static bool target_of(const FILEINFO& info, char* target, int size)
{
    return (info.grp == GRP_FRAMEMEM ? File_FrameName(info, target, size)
                                     : info2name(info, target, FILE_REGISTER, "", size)) == 0;
}

static void add_xfer(const char* path, const char* target, int dev)
{
    char src[FILE_PATH_SIZE];
    PrintText(src, "MYHOST:%s", path);
    if (File_XferList_Add(&al.FileXferList_Exist, src, target) == 0)
        al.FileXferExist[dev] = true;
}

static void find_addxfer(const FILEINFO& info, const char* path, const char* date, int dev)
{
    char src[FILE_PATH_SIZE];
    char target[FILE_PATH_SIZE];
    PrintText(src, "MYHOST:%s", path);
    if (target_of(info, target, sizeof target) &&
        FileNewest_Add(al.newest, &al.FileXferList_Exist, src, target, date) == 0)
        al.FileXferExist[dev] = true;
}

static void find_tly(uint32_t label, int dev, const char* path, const char* const* pair)
{
    int i = 0;
    while (i < al.searches && al.search[i].label != label)
        i++;
    if (i == al.searches)
        return; // of a link that is gone
    if (!path) {
        al.search[i] = al.search[--al.searches];
        find_countdown(dev);
        return;
    }
    FILEINFO info = {.grp = group_of(categories[al.search[i].category])};
    if (name2info(path, &info) == 0)
        find_addxfer(info, path, pair[1], dev);
}

static void find_category(int row, int dev)
{
    char root[PATH_SIZE];
    char path[FILE_PATH_SIZE];
    if (!File_CategoryPath(root, sizeof root, FILE_LOCAL, LOAD_DIR, categories[row].word))
        return;
    PrintText(path, "%s%s/", root, DevNameTable[dev].folder);
    const int label = File_ExecFind(path, PATTERN, find_tly, dev);
    if (label == -1)
        return;
    al.search[al.searches++] = {.label = uint32_t(label), .category = row};
    al.FindCount++;
}

// --- The newer frame memory: its folders one after the other ---

// Place of the unit among the own switchers, -1 none.
static int own_switcher(int dev)
{
    constexpr int CLASS_AND_GROUP = 6;
    for (int i = 0; i < DEVICE_MAX && DEV_MySwr[i]; i++)
        if (strlen(DEV_MySwr[i]->id) > CLASS_AND_GROUP &&
            Same(DEV_MySwr[i]->id + CLASS_AND_GROUP, DevNameTable[dev].folder + CLASS_AND_GROUP))
            return i;
    return -1;
}

static bool folder_root(char* buffer, int size)
{
    return File_CategoryPath(buffer, size, FILE_LOCAL, LOAD_DIR, FOLDER_DIR);
}

static void forget_pictures()
{
    GDL_Free(al.ListBase2);
    al.ListBase2 = nullptr;
    al.ListBase2Max = al.room = 0;
}

static int folder_place(const char* name)
{
    for (int i = 0; i < al.folders; i++)
        if (Same(al.FolderList[i].name, name))
            return i;
    return -1;
}

// The registers stand for nothing any more: all goes to numbers in the order found.
static void clear_store(int dev)
{
    if (al.stored != 0 && !(al.stored & 1u << dev)) {
        al.stored |= 1u << dev; // it would take with it what another unit was given
        return;
    }
    al.stored = 1u << dev;
    Net_SendCommand("put Frame Mem@File@Delete Thumbnail@All#true");
    for (int row = 0; row < FOLDER_MAX; row++)
        if (const FOLDER* folder = FMCtrl_GetFolder(row);
            folder && folder->folder_id != 0 && folder->name[0])
            Net_SendCommandFormat("put Frame Mem@Folder@Delete#%d", folder->folder_id);
}

// What stands before the store's word, as the register is called.
static void name_of_picture(const char* path, char* name, int size)
{
    char stem[PATH_SIZE];
    const char* const file = strrchr(path, '/') + 1;
    strncpy_secu(stem, file, sizeof stem, strcspn(file, "."));
    fname2dispname(stem, name, size);
}

static void add_pictures(int dev)
{
    const int swr = own_switcher(dev);
    int number[2] = {};
    for (int i = 0; swr >= 0 && i < al.ListBase2Max; i++) {
        const FILEBASE2& picture = al.ListBase2[i];
        const int n = ++number[picture.is_extended];
        if (n > (SYS_FmemRegMax > 0 ? SYS_FmemRegMax : IMPORT_REGISTERS)) {
            Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "no register for %s", picture.path);
            continue;
        }
        char target[FILE_PATH_SIZE];
        FILEINFO info = {.grp = GRP_FRAMEMEM, .sub = swr};
        info.no = n - 1 + (picture.is_extended ? FMEM_EXTENDED : 0);
        info.is_ancillary = strstr(picture.path, ".SFA") != nullptr;
        name_of_picture(picture.path, info.name, sizeof info.name);
        if (target_of(info, target, sizeof target))
            add_xfer(picture.path, target, dev);
    }
}

static void end_pictures()
{
    if (al.ListBase2Max > 0) { // otherwise the store stays as it is
        clear_store(al.device);
        for (int id = 1; id < al.folders && id < FOLDER_MAX; id++)
            Net_SendCommandFormat("put Frame Mem@Folder@Rename#%d,%s", id, al.FolderList[id].name);
        add_pictures(al.device);
    }
    find_countdown(al.device);
}

static void search_next_folder()
{
    char root[PATH_SIZE];
    char path[FILE_PATH_SIZE];
    AutoLoadFindID = 0;
    while (++al.AutoLoadCount < al.folders + 1) {
        const char* const name = al.FolderList[al.AutoLoadCount - 1].name;
        if (!folder_root(root, sizeof root) || name[0] == '\0')
            continue;
        PrintText(path, "%s%s/%s/", root, name, DevNameTable[al.device].folder);
        const int label = File_ExecFind(path, PATTERN, nullptr, al.device);
        if (label == -1)
            continue;
        AutoLoadFindID = uint32_t(label);
        return;
    }
    end_pictures();
}

static void get_folder(uint32_t label, int, const char* path, const char* const* pair)
{
    if (label != al.list_label)
        return;
    if (!path) {
        al.list_label = 0;
        search_next_folder();
        return;
    }
    const char* const slash = strrchr(path, '/');
    const char* const name = slash ? slash + 1 : path;
    DIRINFO folder;
    if (strlen(name) >= sizeof folder.name || folder_place(name) >= 0)
        return; // a name that is cut is another folder's
    const bool is_default = Same(name, "DEFAULT");
    if (!is_default && al.folders == LOAD_FOLDERS)
        return;
    CopyText(folder.name, name);
    CopyText(folder.time, pair[1]);
    al.FolderList[is_default ? 0 : al.folders++] = folder;
}

static void find_folders(int dev)
{
    char root[PATH_SIZE];
    if (!folder_root(root, sizeof root))
        return;
    forget_pictures();
    std::fill_n(al.FolderList, LOAD_FOLDERS, DIRINFO{});
    al.folders = 1;
    al.AutoLoadCount = 0;
    const int label = File_ExecListDir(root, get_folder, dev);
    if (label == -1)
        return;
    al.list_label = uint32_t(label);
    al.FindCount++;
}

// "<name>.FMEM_<digits>.SFM": 1 when it is one, 2 when it is of the extended store, otherwise 0.
static int picture_kind(const char* path)
{
    const char* const slash = strrchr(path, '/');
    const char* const ext = strrchr(path, '.');
    if (!slash || !ext || ext < slash || (!Same(ext, ".SFM") && !Same(ext, ".SFA")))
        return 0;
    const char* digit = ext;
    while (digit > slash && isdigit(uint8_t(digit[-1])))
        digit--;
    constexpr ptrdiff_t WORD = 6; // ".FMEM_"
    if (digit == ext || digit - slash <= WORD + 1)
        return 0;
    const char* const word = digit - WORD;
    return BeginsWith(word, ".FMEM_") ? 1 : BeginsWith(word, ".FMEX_") ? 2 : 0;
}

void AutoLoadFind_Tally(const char* path, const char*)
{
    const int kind = path ? picture_kind(path) : 0;
    if (kind == 0 || strlen(path) >= sizeof al.ListBase2->path)
        return;
    if (kind == 2 && !FMCtrl2_IsExtendedCapacity())
        return;
    if (al.ListBase2Max == al.room) {
        const int room = std::max(64, al.room * 2);
        auto* const list =
            static_cast<FILEBASE2*>(GDL_Realloc(al.ListBase2, size_t(room) * sizeof(FILEBASE2)));
        if (!list)
            return;
        al.ListBase2 = list;
        al.room = room;
    }
    FILEBASE2& picture = al.ListBase2[al.ListBase2Max++];
    picture.is_extended = kind == 2;
    CopyText(picture.path, path);
}

void AutoLoadFindEnd_Tally()
{
    search_next_folder();
}

// --- Data Exist ---

static bool is_in_the_way()
{
    const int pane = Pane_GetActiveID();
    return (BkgdFileTransfer_Check(0) && !is_running()) || (pane != 0 && pane != al.PaneID_Message);
}

static void find_all(int dev)
{
    al.FindCount = al.searches = 0;
    al.device = dev;
    for (int row = 0; row < CATEGORIES; row++) {
        if (row == FRAMEMEM_ROW && SYS_FmemV6)
            continue;
        if (categories[row].lock < 0 || !GL_FileLock[categories[row].lock])
            find_category(row, dev);
    }
    if (SYS_FmemV6 && is_switcher(dev))
        find_folders(dev);
}

int AutoLoad_DataExist(const char* device)
{
    Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "AutoLoad_DataExist(%s) called.", device);
    const int dev = unit_of(device);
    if (dev < 0)
        return AUTOLOAD_UNKNOWN;
    if (GL_AutoLoad == -1) {
        Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "but, waiting for GL_AutoLoad tally...");
        return AUTOLOAD_NOT_TOLD;
    }
    if (GL_AutoLoad == 0) {
        reply(DATA_EXIST, dev, false);
        return AUTOLOAD_OFF;
    }
    if (al.FindCount > 0) {
        Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "but, finding now...");
        return AUTOLOAD_BUSY;
    }
    if (al.FileXferExist[dev]) {
        Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "but, already data exist...");
        reply(DATA_EXIST, dev, true);
        return AUTOLOAD_FOUND;
    }
    if (is_in_the_way())
        return AUTOLOAD_BUSY;
    find_all(dev);
    if (al.FindCount == 0)
        reply(DATA_EXIST, dev, false); // all is locked, nothing to wait for
    return AUTOLOAD_SEARCHING;
}

// --- Start ---

static void tell_operator()
{
    if (al.PaneID_Message != 0 && Pane_Exist(al.PaneID_Message))
        return;
    al.PaneID_Message = PaneMessage_Create(
        "Power ON Auto Load", PANE_INFO,
        "Auto load process started.\nTo display the file progress, see File menu.\n\nOperation in "
        "some menus are inhibited\nduring auto load.");
}

static bool is_of_unit(const FILEXFERLIST* item, int dev)
{
    char folder[32];
    PrintText(folder, "/%s/", DevNameTable[dev].folder);
    return strstr(item->src, folder) != nullptr;
}

static void take_items(int dev)
{
    FILEXFERLIST* next = nullptr;
    al.newest = {};
    for (FILEXFERLIST* item = al.FileXferList_Exist; item; item = next) {
        next = item->next;
        if (is_of_unit(item, dev))
            (void)File_XferList_Move(&al.FileXferList_Exist, item, &al.FileXferList_Now);
    }
}

// A picture lies in its folder on the drive; on the unit it is moved into the one of that name.
static void place_picture(const FILEXFERLIST* item)
{
    const char* const dir = strstr(item->src, FOLDER_DIR);
    const char* const file = strrchr(item->src, '/');
    const char* const ext = strrchr(item->src, '.');
    int swr = 0;
    while (swr < DEVICE_MAX && DEV_MySwr[swr] && !BeginsWith(item->dst, DEV_MySwr[swr]->id))
        swr++;
    if (!dir || !file || !ext || !BeginsWith(ext, ".SF") || swr == DEVICE_MAX || !DEV_MySwr[swr])
        return;
    const char* const folder = dir + sizeof FOLDER_DIR;
    char name[PATH_SIZE];
    strncpy_secu(name, folder, sizeof name, strcspn(folder, "/"));
    const int id = folder_place(name);
    if (id < 0 || id >= FOLDER_MAX)
        return;
    name_of_picture(item->src, name, sizeof name);
    FMCtrl_MoveStill(DEV_MySwr[swr], name, id);
}

static void end_load()
{
    al.job_label = 0;
    for (bool& now : al.FileXferNow)
        now = false;
    (void)BkgdFileTransfer_Set(0, 0);
    (void)PaneProgress_RestoreQuit(); // it is not always open
    GL_CreatePage = GL_NowPage;
}

// The list is emptied when a unit is loaded for the second time: what went wrong with the unit
// before this one is still to be read. True when something was added.
static bool list_failures(unsigned ended)
{
    if (al.listed == 0 || (al.listed & ended) != 0) {
        Err_Clear();
        al.listed = 0;
    }
    al.listed |= ended;
    const int before = Err_GetMax();
    for (const FILEXFERLIST* item = al.FileXferList_Now; item; item = item->next)
        if (item->status == FILESTATUS_NG)
            (void)Err_Add("%s", item->mesg); // a full list is long enough
    return Err_GetMax() > before;
}

static void load_result(uint32_t, int)
{
    unsigned ended = 0;
    for (int dev = 0; dev < UNITS; dev++) {
        if (!al.FileXferNow[dev])
            continue;
        reply(START, dev, false);
        ended |= 1u << dev;
    }
    end_load();
    if (list_failures(ended))
        GL_CreatePage = ERROR_PAGE;
    for (const FILEXFERLIST* item = al.FileXferList_Now; SYS_FmemV6 && item; item = item->next)
        if (item->status == FILESTATUS_OK)
            place_picture(item);
    File_FailuresTold(); // a pane that nobody is there to close would keep the next unit waiting
}

int AutoLoad_Start(const char* device)
{
    Log_Output(LOG_DETAIL, MOD_AUTOLOAD, "AutoLoad_Start(%s) called.", device);
    const int dev = unit_of(device);
    if (dev < 0)
        return -1;
    if (!al.FileXferExist[dev])
        return 0;
    reply(START, dev, true);
    tell_operator();
    take_items(dev);
    al.FileXferExist[dev] = false;
    al.FileXferNow[dev] = true;
    (void)BkgdFileTransfer_Set(0, 1);
    const int label = File_ExecTransferList(&al.FileXferList_Now, load_result, 0);
    if (label == -1) { // memory is out
        File_XferList_RemoveAll(&al.FileXferList_Now);
        load_result(0, 0);
    } else if (is_running()) { // otherwise it has ended already
        al.job_label = uint32_t(label);
    }
    BkgdFileTransfer_PaneQuit();
    GL_CreatePage = GL_NowPage;
    forget_pictures();
    return 0;
}

// --- Tallies ---

void AutoLoad_LinkLost()
{
    for (int i = 0; i < al.searches; i++)
        (void)File_ExecUSBReload_cancel(al.search[i].label);
    for (const uint32_t label : {al.list_label, AutoLoadFindID})
        if (label != 0)
            (void)File_ExecUSBReload_cancel(label);
    AutoLoadFindID = 0;
    al.list_label = 0;
    al.FindCount = al.searches = 0;
    al.stored = 0;
    forget_pictures();
    File_XferList_RemoveAll(&al.FileXferList_Exist);
    al.newest = {};
    for (bool& exist : al.FileXferExist)
        exist = false;
}

void AutoLoad_Tally(const char* path, const char* value)
{
    if (Same(path, "Info@Operation Setup Data@Auto Load")) {
        GL_AutoLoad = Decimal(value);
    } else if (Same(path, "CONNECT@Status")) {
        if (Same(value, "NG"))
            AutoLoad_LinkLost();
    } else if (Same(value, "false")) {
        return; // the server has taken an answer
    } else if (BeginsWith(path, DATA_EXIST)) {
        (void)AutoLoad_DataExist(path + strlen(DATA_EXIST)); // the server asks again
    } else if (BeginsWith(path, START)) {
        (void)AutoLoad_Start(path + strlen(START));
    }
}

void AutoLoad_Reset()
{
    AutoLoad_LinkLost();
    if (is_running()) {
        (void)File_ExecUSBReload_cancel(al.job_label);
        end_load();
    }
    al.PaneID_Message = 0;
    al.listed = 0;
    GL_AutoLoad = -1;
}
