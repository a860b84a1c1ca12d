#include "pc_file.h"
#include "a_hf.h"
#include "device.h"
#include "err.h"
#include "netio.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

// --- The load lock ---

const char* const Lock_RegionName[SETUP_REGIONS] = {"SWR", "DME", "PNL", "SYS"};

int File_LockOfCategory(const char* category)
{
    static constexpr const char* categories[] = {
        "SETUP", "INITSTAT", "KEYMEM",  "VPROCMEM", "EFFECT",   "SNAPSHOT",  "WSNAP",
        "DSNAP", "KSNAP",    "SHOTBOX", "MACRO",    "MACROATC", "MENUMACRO", "USRSETUP"};
    static_assert(std::size(categories) == FILELOCK_CATEGORY_USERSETUP + 1);
    for (int i = 0; i < int(std::size(categories)); i++)
        if (strcmp(category, categories[i]) == 0)
            return i;
    return -1;
}

int File_IsSetupRegionLocked(int main)
{
    return main >= 0 && main < SETUP_REGIONS &&
           GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP + main] != 0;
}

int File_IsSetupLocked()
{
    for (int main = 0; main < SETUP_REGIONS; main++)
        if (!File_IsSetupRegionLocked(main))
            return 0;
    return 1;
}

// --- The groups of this installation ---

int File_GroupOf(FILEKIND kind)
{
    enum { FOURS, SINGLE, PAIRS, FOUR_TWO_TWO };
    constexpr int SINGLE_CHANNEL_MODEL = 5;
    bool has_sub_sides = false;
    for (int me = 0; me < ME_COUNT; me++)
        has_sub_sides |= multiprogram2_me[me] != 0;
    const bool is_single = GL_DmeModel[0] == SINGLE_CHANNEL_MODEL;
    const int split = is_single                              ? SINGLE
                      : isDualProc_DualLink_DME()            ? PAIRS
                      : is1080P_3G_DME() && SYS_MyDme2S >= 0 ? FOUR_TWO_TWO
                                                             : FOURS;
    static constexpr int eff100[] = {8, 9, 36, 43};
    static constexpr int eff200[] = {10, 11, 37, 44};
    static constexpr int eff300[] = {12, 12, 38, 45}; // the single channel has none
    switch (kind) {
    case KIND_EFFECT: return is_single ? 7 : has_sub_sides ? 28 : 4;
    case KIND_EFFECT_EX: return 35;
    case KIND_EFF100: return eff100[split];
    case KIND_EFF200: return eff200[split];
    case KIND_EFF300: return eff300[split];
    case KIND_SNAPSHOT: return is_single ? 16 : has_sub_sides ? 29 : 13;
    case KIND_WIPESS: return has_sub_sides ? 30 : 17;
    case KIND_DMESS: return has_sub_sides ? 31 : 18;
    }
    return 0;
}

// --- The tabs of the frame memory's pages ---

void File_ShowFrameTabs()
{
    constexpr int TAB_FOLDER = 2;
    (void)HF_SetDisplay(TAB_FOLDER, SYS_FmemV6); // -1: opened without its tabs
}

// --- After a transfer ---

static void read_snapshots()
{
    static constexpr const char* banks[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"};
    Net_SendCommand("put Snapshot@Snapshot@Register Status#1F803FFF");
    for (const char* bank : banks)
        Net_SendCommandFormat("read Snapshot@Snapshot@Attribute@%s@List", bank);
}

static void read_wipe_snapshots()
{
    Net_SendCommand("put Snapshot@Wipe Snapshot@Register Status#1F80003F");
}

static void read_dme_snapshots()
{
    Net_SendCommand("put Snapshot@DME Snapshot@Register Status#1F80003F");
}

static void read_key_snapshots()
{
    Net_SendCommand("put Snapshot@Key Snapshot@Register Status#0000FFFFFFFFFFFF");
}

// The panel's own setup: its key map is taken over.
static void read_key_map()
{
    Net_SendCommand("put Info@Operation Setup Data@SRAM Map KeyCode#true");
}

static bool has_ext(const char* path, const char* ext)
{
    const char* const dot = strrchr(path, '.');
    return dot && strcmp(dot + 1, ext) == 0;
}

// Its path tells what an item holds: not every job's items carry a category.
static bool is_of_category(const FILEXFERLIST* item, const char* category)
{
    char folder[48];
    PrintText(folder, "/%s/", category);
    return strcmp(item->category, category) == 0 || strstr(item->src, folder) ||
           strstr(item->dst, folder);
}

static bool is_screen_setup(const FILEXFERLIST* item)
{
    return has_ext(item->dst, "PST") && (strstr(item->dst, ".GUI_") || strstr(item->dst, ":GUI_"));
}

static constexpr struct {
    const char* category; // null: the screen's own setup
    void (*read)();
} readings[] = {
    {"SNAPSHOT", read_snapshots},  {"WSNAP", read_wipe_snapshots}, {"DSNAP", read_dme_snapshots},
    {"KSNAP", read_key_snapshots}, {nullptr, read_key_map},
};

void File_ReadCategory(const char* category)
{
    for (const auto& row : readings)
        if (row.category && strcmp(row.category, category) == 0)
            row.read();
}

void xferlist_result_display(const FILEXFERLIST* list)
{
    for (const auto& row : readings) {
        const FILEXFERLIST* item = list;
        while (item &&
               !(item->status == FILESTATUS_OK &&
                 (row.category ? is_of_category(item, row.category) : is_screen_setup(item))))
            item = item->next;
        if (item)
            row.read();
    }
}

void xferlist_errors_add(const FILEXFERLIST* list)
{
    const FILEXFERLIST* first = nullptr;
    int more = 0;
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        if (item->status != FILESTATUS_NG && item->status != FILESTATUS_CANCEL)
            continue;
        if (first)
            more++;
        else
            first = item;
    }
    if (first && more)
        (void)Err_Add("%s (and %d more)", first->mesg, more);
    else if (first)
        (void)Err_Add("%s", first->mesg);
}
