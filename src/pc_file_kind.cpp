#include "pc_file_kind.h"
#include "fmctrl.h"
#include "menu_macro.h"
#include "netio.h"
#include "pane.h"
#include "register_mirror.h"
#include "register_region.h"
#include "text.h"
#include <cstring>
#include <iterator>
#include <unistd.h>

#include "safeguards.h"

// --- Regions ---

static int row_of_effect(int id)
{
    return Region_RowOfId(EffectRegion.data(), id);
}
static int row_of_snapshot(int id)
{
    return Region_RowOfId(SnapshotRegion.data(), id);
}
static int row_of_side(int id)
{
    return Region_RowOfId(WipeSSRegion.data(), id);
}
static int row_of_channel(int id)
{
    const int row = row_of_effect(id);
    return row >= SS_REGION_DME1 && row <= SS_REGION_DME8 ? Register_DMEGroup(row) : -1;
}
static int row_of_key(int id)
{
    return Region_RowOfId(KeySSRegion.data(), id);
}
static int row_of_panel(int)
{
    return 0;
}

// EffReg and EffRegx00, SSReg, WipeSSReg and DmeSSReg, KeySSReg: the bits of a region.
static uint64_t mask_in(const SSREGION* table, int id)
{
    const int row = Region_RowOfId(table, id);
    return row < 0 ? 0 : table[row].bitmap;
}
static uint64_t mask_of_effect(int id)
{
    return mask_in(EffectRegion.data(), id);
}
static uint64_t mask_of_snapshot(int id)
{
    return mask_in(SnapshotRegion.data(), id);
}
static uint64_t mask_of_key(int id)
{
    return mask_in(KeySSRegion.data(), id);
}
static uint64_t mask_of_frame(int) // its name says all
{
    return 1;
}

static uint64_t mask_of_panel(int)
{
    return 1;
}
// The bit of the macros in the commands of their registers, not that of their effects.
static uint64_t mask_of_macro(int)
{
    return 0x0000100000000000;
}

// --- Registers ---

static constexpr FileRegisters Mirrored(int kind, int (*row)(int region_id))
{
    const RegisterMirror& m = register_mirrors[kind];
    return {kind, m.exist, m.lock, m.name, row};
}
static constexpr FileRegisters effects = Mirrored(REGISTER_EFFECT, row_of_effect);
static constexpr FileRegisters effects_100 = Mirrored(REGISTER_EFF100, row_of_channel);
static constexpr FileRegisters effects_200 = Mirrored(REGISTER_EFF200, row_of_channel);
static constexpr FileRegisters effects_300 = Mirrored(REGISTER_EFF300, row_of_channel);
static constexpr FileRegisters snapshots = Mirrored(REGISTER_SNAPSHOT, row_of_snapshot);
static constexpr FileRegisters wipe_snapshots = Mirrored(REGISTER_WIPESS, row_of_side);
static constexpr FileRegisters dme_snapshots = Mirrored(REGISTER_DMESS, row_of_side);
static constexpr FileRegisters key_snapshots = Mirrored(REGISTER_KEYSS, row_of_key);
static constexpr FileRegisters shotboxes = Mirrored(REGISTER_SHOTBOX, row_of_panel);
static constexpr FileRegisters macros = Mirrored(REGISTER_MACRO, row_of_panel);

// A menu macro is kept as a file of this unit.
static int exist_menu_macro(int, int no)
{
    char path[PATH_SIZE];
    PrintText(path, "/mnt/data/Menu_Macro_tmp/mm_reg%02d.tmp", no + 1);
    return no >= 0 && no < MENU_MACRO_REGISTERS && access(path, R_OK) == 0;
}
static int lock_menu_macro(int, int)
{
    return 0;
}
static char menu_macro_name[16]; // until the next call
static const char* name_menu_macro(int, int no)
{
    PrintText(menu_macro_name, "MMCR%d", no + 1);
    return menu_macro_name;
}
static constexpr int NOT_TOLD = -1; // no message tells of it
static constexpr FileRegisters menu_macros = {NOT_TOLD, exist_menu_macro, lock_menu_macro,
                                              name_menu_macro, row_of_panel};

// The frame memory's catalogue is of the first switcher.
static int row_of_frames(int id)
{
    constexpr int FIRST_SWITCHER = 896;
    return id == FIRST_SWITCHER ? 0 : -1;
}
static int exist_frame(int, int no)
{
    return FMCtrl2_IsRegStoreMulti(no);
}
static int lock_frame(int, int)
{
    return 0;
}
static char frame_name[FILE_NAME_SIZE]; // until the next call
static const char* name_frame(int, int no)
{
    fname2dispname(FMCtrl2_GetRegNameMulti(no), frame_name, sizeof frame_name);
    return frame_name;
}
static constexpr FileRegisters frames = {NOT_TOLD, exist_frame, lock_frame, name_frame,
                                         row_of_frames};

static constexpr FileCommands effect_commands = {"put Effect@Effect@Rename@Rename",
                                                 "put Effect@Effect@Delete@Delete", mask_of_effect,
                                                 FILEMASK_WIDE};
static constexpr FileCommands snapshot_commands = {"put Snapshot@Snapshot@Rename",
                                                   "put Snapshot@Snapshot@Delete", mask_of_snapshot,
                                                   FILEMASK_SHORT};
static constexpr FileCommands wipe_commands = {"put Snapshot@Wipe Snapshot@Rename",
                                               "put Snapshot@Wipe Snapshot@Delete",
                                               mask_of_snapshot, FILEMASK_SHORT};
static constexpr FileCommands dme_commands = {"put Snapshot@DME Snapshot@Rename",
                                              "put Snapshot@DME Snapshot@Delete", mask_of_snapshot,
                                              FILEMASK_SHORT};
static constexpr FileCommands key_commands = {"put Snapshot@Key Snapshot@Rename",
                                              "put Snapshot@Key Snapshot@Delete", mask_of_key,
                                              FILEMASK_WIDE};
static constexpr FileCommands shotbox_commands = {
    "put Shotbox@Register@Rename", "put Shotbox@Register@Delete", mask_of_panel, FILEMASK_NONE};
static constexpr FileCommands macro_commands = {"put Macro@Register@Rename@Rename",
                                                "put Macro@Register@Delete@Delete", mask_of_macro,
                                                FILEMASK_WIDE};

static constexpr FileCommands frame_commands = {
    "put Frame Mem@File@Rename", "put Frame Mem@File@Delete Thumbnail@Single", mask_of_frame,
    FILEMASK_NONE, FMCtrl2_GetRegNameMulti};

constexpr FileKind file_kinds[FILEPAGES] = {
    {.page = FILEPAGE_SETUP, .id = 0x71120000, .grp = 0},
    {.page = FILEPAGE_INITSTAT, .id = 0x71130000, .grp = 1},
    {.page = FILEPAGE_KEYMEM, .id = 0x71140000, .grp = 2},
    {.page = FILEPAGE_VPROCMEM, .id = 0x71150000, .grp = 3},
    {.page = FILEPAGE_USERSETUP, .id = 0x71160000, .grp = 41, .way = FILEWAY_PLAIN},
    {.page = FILEPAGE_EFFECT,
     .id = 0x71210000,
     .kind = KIND_EFFECT,
     .registers = &effects,
     .commands = &effect_commands},
    {.page = FILEPAGE_EFF100,
     .id = 0x71220000,
     .kind = KIND_EFF100,
     .registers = &effects_100,
     .commands = &effect_commands},
    {.page = FILEPAGE_EFF200,
     .id = 0x71230000,
     .kind = KIND_EFF200,
     .registers = &effects_200,
     .commands = &effect_commands},
    {.page = FILEPAGE_EFF300,
     .id = 0x71240000,
     .kind = KIND_EFF300,
     .registers = &effects_300,
     .commands = &effect_commands},
    {.page = FILEPAGE_EFFECT_EX,
     .id = 0x71250000,
     .kind = KIND_EFFECT_EX,
     .registers = &effects,
     .commands = &effect_commands},
    {.page = FILEPAGE_SNAPSHOT,
     .id = 0x71310000,
     .kind = KIND_SNAPSHOT,
     .registers = &snapshots,
     .commands = &snapshot_commands},
    {.page = FILEPAGE_WIPESS,
     .id = 0x71320000,
     .kind = KIND_WIPESS,
     .registers = &wipe_snapshots,
     .commands = &wipe_commands},
    {.page = FILEPAGE_DMESS,
     .id = 0x71330000,
     .kind = KIND_DMESS,
     .registers = &dme_snapshots,
     .commands = &dme_commands},
    {.page = FILEPAGE_KEYSS,
     .id = 0x71340000,
     .grp = 19,
     .registers = &key_snapshots,
     .commands = &key_commands},
    {.page = FILEPAGE_SHOTBOX,
     .id = 0x71410000,
     .grp = 20,
     .registers = &shotboxes,
     .commands = &shotbox_commands},
    {.page = FILEPAGE_MACRO,
     .id = 0x71420000,
     .grp = 21,
     .registers = &macros,
     .commands = &macro_commands},
    {.page = FILEPAGE_MACROATC, .id = 0x71430000, .grp = 22},
    {.page = FILEPAGE_MENU_MACRO,
     .id = 0x71440000,
     .grp = 33,
     .registers = &menu_macros,
     .way = FILEWAY_MACRO},
    {.page = FILEPAGE_FNAMEDATA, .id = 0x71530000, .grp = 40, .way = FILEWAY_PLAIN},
    {.page = FILEPAGE_XPTSRCNAME, .id = 0x71740000, .grp = 42, .way = FILEWAY_PLAIN},
    // The names as on the page before; here they come from a stick.
    {.page = FILEPAGE_IMPORTSRCNAME,
     .id = 0x71750000,
     .grp = 42,
     .way = FILEWAY_PLAIN,
     .left = FILE_REMOVABLE,
     .right = FILE_REGISTER},
    {.page = FILEPAGE_FMEM,
     .id = 0x71510100,
     .grp = 23,
     .registers = &frames,
     .commands = &frame_commands,
     .way = FILEWAY_FRAME},
    {.page = FILEPAGE_FMEM_V6,
     .id = 0x71510200,
     .grp = 23,
     .registers = &frames,
     .commands = &frame_commands,
     .way = FILEWAY_FRAME,
     .has_folders = true},
};

static constexpr bool KindsAreSound()
{
    for (int i = 0; i < FILEPAGES; i++)
        if (file_kinds[i].page != i || file_kinds[i].id == 0)
            return false;
    return true;
}
static_assert(KindsAreSound());

int FileKind_Group(const FileKind& kind)
{
    return kind.grp >= 0 ? kind.grp : File_GroupOf(kind.kind);
}

int FileKind_Register(const FileKind& kind, int region_id, int no, char* name, int size, int* lock)
{
    if (!kind.registers) { // the unit's one setting
        ktr_strncpy(name, PaneRegion_GetGrpCategoryStr(FileKind_Group(kind)), size_t(size));
        *lock = 0;
        return no == 0 ? 0 : -1;
    }
    const int row = kind.registers->row(region_id);
    if (row < 0 || !kind.registers->exist(row, no))
        return -1;
    ktr_strncpy(name, kind.registers->name(row, no), size_t(size));
    *lock = kind.registers->lock(row, no);
    return 0;
}

// --- Commands ---

// With the comma behind it; empty where there is none.
static void print_mask(const FileCommands& commands, uint64_t mask, char (&text)[20])
{
    text[0] = '\0';
    if (commands.form == FILEMASK_WIDE)
        PrintText(text, "%08X%08X,", unsigned(mask >> 32), unsigned(mask & 0xFFFFFFFF));
    else if (commands.form == FILEMASK_SHORT)
        PrintText(text, "%X,", unsigned(mask));
}

static int number_of(const FileKind& kind, int no)
{
    return no + File_FirstNumber(FileKind_Group(kind));
}

void FileKind_Rename(const FileKind& kind, uint64_t mask, int no, const char* name)
{
    char text[20];
    if (!kind.commands || mask == 0)
        return;
    if (kind.commands->name) {
        Net_SendCommandFormat("%s#%s,%s", kind.commands->rename, kind.commands->name(no), name);
        return;
    }
    print_mask(*kind.commands, mask, text);
    Net_SendCommandFormat("%s#%s%d,%s", kind.commands->rename, text, number_of(kind, no), name);
}

void FileKind_Delete(const FileKind& kind, uint64_t mask, int no)
{
    char text[20];
    if (!kind.commands || mask == 0)
        return;
    if (kind.commands->name) {
        Net_SendCommandFormat("%s#%s", kind.commands->remove, kind.commands->name(no));
        return;
    }
    print_mask(*kind.commands, mask, text);
    const int number = number_of(kind, no);
    Net_SendCommandFormat("%s#%s%d,%d", kind.commands->remove, text, number, number);
}

// --- Names of the frame memory ---

// "image" and three digits: the switcher gives these in turn.
static bool is_default_name(const char* bare)
{
    constexpr char WORD[] = "image";
    constexpr size_t DIGITS = 3;
    const char* const digits = bare + strlen(WORD);
    return BeginsWith(bare, WORD) && strlen(digits) == DIGITS &&
           strspn(digits, "0123456789") == DIGITS;
}

// A file on a drive may bear a name without a prefix.
static bool is_side(char c)
{
    return c == 'M' || c == 'S';
}

int FileKind_FrameName(char (&name)[FILE_NAME_SIZE], const char* own, const char* first,
                       const char* entered)
{
    constexpr size_t CHARACTERS = 8; // behind the prefix
    const bool has_prefix = is_side(*first) && *entered == *first;
    char text[CMD_SIZE];
    CopyText(text, entered + has_prefix);
    name[0] = '\0';
    if (!StrRegName(text) || is_default_name(text))
        return -1;
    PrintText(name, "%.*s%.*s", is_side(*own), own, int(CHARACTERS), text);
    return 0;
}
