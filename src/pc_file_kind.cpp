#include "pc_file_kind.h"
#include "fmctrl.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

// --- Registers ---

static char frame_name[FILE_NAME_SIZE];
static const char* name_frame(int no)
{
    fname2dispname(FMCtrl2_GetRegNameMulti(no), frame_name, sizeof frame_name);
    return frame_name;
}
constexpr int FIRST_SWITCHER = 896; // the catalogue is its
static constexpr FileRegisters frames = {FMCtrl2_IsRegStoreMulti, name_frame, FIRST_SWITCHER};

// --- The kinds ---

constexpr FileKind file_kinds[FILEPAGES] = {
    {.page = FILEPAGE_SETUP, .id = 0x71120000, .grp = 0},
    {.page = FILEPAGE_INITSTAT, .id = 0x71130000, .grp = 1},
    {.page = FILEPAGE_KEYMEM, .id = 0x71140000, .grp = 2},
    {.page = FILEPAGE_VPROCMEM, .id = 0x71150000, .grp = 3},
    {.page = FILEPAGE_USERSETUP, .id = 0x71160000, .grp = 41, .way = FILEWAY_PLAIN},
    {.page = FILEPAGE_EFFECT,
     .id = 0x71210000,
     .kind = KIND_EFFECT,
     .stored = &register_kinds[REGKIND_EFFECT]},
    {.page = FILEPAGE_EFF100,
     .id = 0x71220000,
     .kind = KIND_EFF100,
     .stored = &register_kinds[REGKIND_EFF100]},
    {.page = FILEPAGE_EFF200,
     .id = 0x71230000,
     .kind = KIND_EFF200,
     .stored = &register_kinds[REGKIND_EFF200]},
    {.page = FILEPAGE_EFF300,
     .id = 0x71240000,
     .kind = KIND_EFF300,
     .stored = &register_kinds[REGKIND_EFF300]},
    {.page = FILEPAGE_EFFECT_EX,
     .id = 0x71250000,
     .kind = KIND_EFFECT_EX,
     .stored = &register_kinds[REGKIND_EFFECT_EX]},
    {.page = FILEPAGE_SNAPSHOT,
     .id = 0x71310000,
     .kind = KIND_SNAPSHOT,
     .stored = &register_kinds[REGKIND_SNAPSHOT]},
    {.page = FILEPAGE_WIPESS,
     .id = 0x71320000,
     .kind = KIND_WIPESS,
     .stored = &register_kinds[REGKIND_WIPESS]},
    {.page = FILEPAGE_DMESS,
     .id = 0x71330000,
     .kind = KIND_DMESS,
     .stored = &register_kinds[REGKIND_DMESS]},
    {.page = FILEPAGE_KEYSS, .id = 0x71340000, .grp = 19, .stored = &register_kinds[REGKIND_KEYSS]},
    {.page = FILEPAGE_SHOTBOX,
     .id = 0x71410000,
     .grp = 20,
     .stored = &register_kinds[REGKIND_SHOTBOX]},
    {.page = FILEPAGE_MACRO, .id = 0x71420000, .grp = 21, .stored = &register_kinds[REGKIND_MACRO]},
    {.page = FILEPAGE_MACROATC, .id = 0x71430000, .grp = 22},
    {.page = FILEPAGE_MENU_MACRO,
     .id = 0x71440000,
     .grp = 33,
     .stored = &register_kinds[REGKIND_MENU_MACRO],
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
     .way = FILEWAY_FRAME},
    {.page = FILEPAGE_FMEM_V6,
     .id = 0x71510200,
     .grp = 23,
     .registers = &frames,
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

int FileKind_Mirror(const FileKind& kind)
{
    return kind.stored ? kind.stored->mirror : -1;
}

int FileKind_Register(const FileKind& kind, int region_id, int no, char* name, int size, int* lock)
{
    *lock = 0;
    if (kind.stored) {
        const int region =
            kind.stored->regions ? Region_RowOfId(kind.stored->regions, region_id) : 0;
        if (region < 0 || !RegisterKind_Exist(*kind.stored, region, no))
            return -1;
        ktr_strncpy(name, RegisterKind_Name(*kind.stored, region, no), size_t(size));
        *lock = RegisterKind_Lock(*kind.stored, region, no);
        return 0;
    }
    if (!kind.registers) { // the unit's one setting
        ktr_strncpy(name, PaneRegion_GetGrpCategoryStr(FileKind_Group(kind)), size_t(size));
        return no == 0 ? 0 : -1;
    }
    const int only = kind.registers->region_id;
    if ((only != 0 && only != region_id) || !kind.registers->exist(no))
        return -1;
    ktr_strncpy(name, kind.registers->name(no), size_t(size));
    return 0;
}

// --- Commands ---

bool FileKind_HasCommands(const FileKind& kind)
{
    return kind.stored || kind.way == FILEWAY_FRAME;
}

uint64_t FileKind_Mask(const FileKind& kind, int region_id)
{
    constexpr uint64_t ANY = 1; // the commands have none
    if (!kind.stored)
        return ANY;
    if (!kind.stored->regions)
        return kind.stored->fixed_mask != 0 ? kind.stored->fixed_mask : ANY;
    const int region = Region_RowOfId(kind.stored->regions, region_id);
    return region < 0 ? 0 : kind.stored->regions[region].bitmap;
}

// A register of the frame memory is told by its name.
void FileKind_Rename(const FileKind& kind, uint64_t mask, int no, const char* name)
{
    if (mask == 0)
        return;
    if (kind.stored)
        RegisterCmd_Rename(*kind.stored, mask, no + kind.stored->first_number, name);
    else if (kind.way == FILEWAY_FRAME)
        Net_SendCommandFormat("put Frame Mem@File@Rename#%s,%s", FMCtrl2_GetRegNameMulti(no), name);
}

void FileKind_Delete(const FileKind& kind, uint64_t mask, int no)
{
    if (mask == 0)
        return;
    const int number = kind.stored ? no + kind.stored->first_number : 0;
    if (kind.stored)
        RegisterCmd_Delete(*kind.stored, mask, number, number);
    else if (kind.way == FILEWAY_FRAME)
        Net_SendCommandFormat("put Frame Mem@File@Delete Thumbnail@Single#%s",
                              FMCtrl2_GetRegNameMulti(no));
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
