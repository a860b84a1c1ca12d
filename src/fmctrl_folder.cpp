#include "bus.h"
#include "device.h"
#include "fmctrl_private.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>

#include "safeguards.h"

FOLDER_LIST FolderList;

static_assert(FOLDER_MAX <= 16); // an id is one hexadecimal digit

constexpr int NAME_PAIRS = 13; // of one line

void init_folder()
{
    FolderList = {};
    for (int row = 0; row < FOLDER_MAX; row++)
        FolderList.rec[row].folder_id = row;
    CopyText(FolderList.rec[0].name, "Default.");
    FolderList.rec[0].type = FOLDER_TYPE_SYSTEM;
    FolderList.rec_num = 1;
}

// A register's folder is written in hexadecimal, a folder's own number in decimal. There are so few
// that no text means two of them: "A" and "10" are the same. -1 for anything else.
static int folder_id_in(const char* text)
{
    char* end = nullptr;
    for (int base : {16, 10}) {
        const long long id = strtoll(text, &end, base);
        if (end != text && *end == '\0' && id >= 0 && id < FOLDER_MAX)
            return int(id);
    }
    return -1;
}

// --- Folder Status: the folder of each register, two digits each, in the order of the registers
// ---

// The value of two hexadecimal digits, -1 for other characters.
static int two_digits(const char* p)
{
    if (!isxdigit(uint8_t(p[0])) || !isxdigit(uint8_t(p[1])))
        return -1;
    const char text[3] = {p[0], p[1], '\0'};
    return int(Hex(text));
}

static void set_folder(int index, int folder_id)
{
    FMEMREG& r = *fm_register(index);
    if (r.folder_id == folder_id)
        return;
    r.folder_id = folder_id;
    if (!r.store)
        return;
    fm_list_set_folder(index);
    fm_tell(index, 0);
}

void fm_take_folder_status(int bank, const char* value)
{
    const int base = bank * FM_BANK;
    for (int i = 0; i < FM_BANK; i++) {
        const int folder_id = two_digits(value + 2 * i); // false at the end of the text
        if (folder_id < 0 || !fm_register(base + i))
            return;
        set_folder(base + i, folder_id);
    }
}

void fm_take_move_still(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) < 3)
        return;
    const int index = FMCtrl2_GetRegIndex(p.v[1]);
    const int folder_id = folder_id_in(p.v[2]);
    if (index >= 0 && folder_id >= 0)
        set_folder(index, folder_id);
}

// --- Folder Name Sense ---

static FOLDER* folder_of_id(int folder_id)
{
    const int row = FMCtrl_GetIsFolderIdx(folder_id);
    return row < 0 ? nullptr : &FolderList.rec[row];
}

// By name, those without one last, by their numbers.
static bool stands_before(const FOLDER& a, const FOLDER& b)
{
    if (!a.name[0] || !b.name[0])
        return a.name[0] ? true : b.name[0] ? false : a.folder_id < b.folder_id;
    return strcmp(a.name, b.name) < 0;
}

static void sort_folders()
{
    std::stable_sort(std::begin(FolderList.rec) + 1, std::end(FolderList.rec), stands_before);
}

void fm_take_folder_names(const char* value)
{
    char text[CMD_SIZE];
    char* v[2 * NAME_PAIRS] = {};
    CopyText(text, value);
    const int parts = SplitVars(text, v, int(std::size(v)));
    bool changed = false;
    for (int i = 0; i + 1 < parts; i += 2) {
        const int folder_id = folder_id_in(v[i]);
        FOLDER* folder = folder_of_id(folder_id);
        if (!folder)
            break;
        char name[sizeof folder->name];
        CopyText(name, v[i + 1]);
        if (Same(folder->name, name))
            continue;
        CopyText(folder->name, name);
        changed = true;
    }
    if (changed)
        sort_folders();
    FolderList.rec_num = int(std::ranges::count_if(
        FolderList.rec, [](const FOLDER& folder) { return folder.name[0] != '\0'; }));
    SendMessage(LMSG_FOLDERNAMESENSE, 0, 0, 0, 0);
}

// --- Questions ---

int FMCtrl_GetFolderNum()
{
    return FolderList.rec_num;
}

const FOLDER* FMCtrl_GetFolder(int row)
{
    return row >= 0 && row < FOLDER_MAX ? &FolderList.rec[row] : nullptr;
}

int FMCtrl_GetFolderId(int row)
{
    const FOLDER* folder = FMCtrl_GetFolder(row);
    return folder ? folder->folder_id : -1;
}

int FMCtrl_GetIsFolderIdx(int folder_id)
{
    for (int row = 0; row < FOLDER_MAX; row++)
        if (FolderList.rec[row].folder_id == folder_id)
            return row;
    return -1;
}

static const FOLDER* folder_of_name(const char* name)
{
    if (!name || !*name)
        return nullptr;
    for (const FOLDER& folder : FolderList.rec)
        if (Same(folder.name, name))
            return &folder;
    return nullptr;
}

int FMCtrl_ExistFolderName(const char* name)
{
    return folder_of_name(name) != nullptr;
}

void FMCtrl_MoveStill(const DEVICE* switcher, const char* name, int folder_id)
{
    constexpr int ADDRESSES = 16; // of a switcher: the second one has twice the first one's
    if (switcher && *name)
        Net_SendCommandFormat("put %d@Frame Mem@Folder@Move Still#0,%s,%d",
                              ADDRESSES * Device_UnitNumber(*switcher), name, folder_id);
}

int fm_folder_named(const char* name)
{
    if (const FOLDER* folder = folder_of_name(name)) {
        Log_Output(LOG_LIFE, MOD_FM, "%s folder already exist (%d)", name, folder->folder_id);
        return folder->folder_id;
    }
    for (int folder_id = 1; folder_id < FOLDER_MAX; folder_id++) {
        const FOLDER* folder = folder_of_id(folder_id);
        if (!folder || folder->name[0])
            continue;
        Net_SendCommandFormat("put Frame Mem@Folder@Rename#%d,%s", folder_id, name);
        return folder_id;
    }
    return 0;
}
