#include "file_name.h"
#include "device.h"
#include "fmctrl.h"
#include "global.h"
#include "pane.h"
#include "text.h"
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

// --- Drives ---

const char* File_DriveCaption(int drive)
{
    static constexpr const char* captions[FILE_DRIVES] = {"Register", "Local Drive",
                                                          "Removable\nDrive", "Network"};
    return drive >= 0 && drive < FILE_DRIVES ? captions[drive] : "";
}

// False when it was cut.
__attribute__((format(printf, 3, 4))) static bool print(char* buffer, int size, const char* format,
                                                        ...)
{
    va_list ap;
    va_start(ap, format);
    const int n = size > 0 ? vsnprintf(buffer, size_t(size), format, ap) : -1;
    va_end(ap);
    return n >= 0 && n < size;
}

bool File_Root(char* buffer, int size, int drive)
{
    switch (drive) {
    case FILE_LOCAL: return print(buffer, size, "MYHOST:%suser/root/", GL_RegistDataPath);
    case FILE_REMOVABLE: {
        const char* path = GL_ImportDataPath[0] ? GL_ImportDataPath : "/mnt/usb/usb1/";
        const bool is_whole = path[strlen(path) - 1] == '/'; // a server may tell it without
        return print(buffer, size, "MYHOST:%s%s", path, is_whole ? "" : "/");
    }
    case FILE_NETWORK: return print(buffer, size, "MYHOST:/var/nfs/user/root/");
    case FILE_REMOTE_PNL:
        return DEV_MyPnl[0] &&
               print(buffer, size, "%s:%suser/root/", DEV_MyPnl[0]->id, GL_RegistDataPath);
    case FILE_FTP: return print(buffer, size, "MYHOST:/tmp/FTPIF/");
    default: return false;
    }
}

bool File_DirPath(char* buffer, int size, int drive, const char* dir)
{
    char root[PATH_SIZE];
    return File_Root(root, sizeof root, drive) && print(buffer, size, "%s%s", root, dir);
}

bool File_CategoryPath(char* buffer, int size, int drive, const char* dir, const char* category)
{
    char root[PATH_SIZE];
    return File_Root(root, sizeof root, drive) &&
           print(buffer, size, "%s%s/%s/", root, dir, category);
}

bool File_FrameFolderPath(char* buffer, int size, int drive, const char* dir, const char* folder)
{
    char root[PATH_SIZE];
    return File_Root(root, sizeof root, drive) &&
           print(buffer, size, *folder ? "%s%s/FMEMFOL/%s/" : "%s%s/FMEMFOL/", root, dir, folder);
}

// --- Groups ---

constexpr int RegisterNum[FILE_GROUPS] = {
    1,   1,   1,  1,                // setup, initial status, key and video process memory
    99,  99,  99, 99,               // effects
    99,  99,  99, 99, 99,           // user effects of the effects units
    99,  99,  99, 99,               // snapshots
    10,  10,  4,  99, 250, 1,  224, // wipe, DME, key snapshots, shotbox, macros, frame memory
    0,   0,                         // copies of units and groups
    99,  99,  99, 99, 10,  10,      // the forms with sub sides
    0,   99,                        // menu macros
    250, 250,                       // effects of the devices
    99,  99,  99,                   // user effects again
    0,   99,  1,  1,                // source names, user setup
    99,  99,  99,
};

constexpr int RegionDirExist[FILE_GROUPS] = {
    0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0,
    0, 0, 0, 1, 1, 1, 1, 1, 1, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0, 1, 1, 1,
};

// The second forms of effects (5, 6) and snapshots (14, 15) count from 0 in their files, as 26, 27
// and 34 do. That is meant: they belong to pages that have no files.
int File_FirstNumber(int grp)
{
    switch (grp) {
    case 4:
    case 7:
    case 13:
    case 16:
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
    case 23:
    case 28:
    case 29:
    case 30:
    case 31:
    case 35: return 1;
    case 8:
    case 9:
    case 36:
    case 43: return 101;
    case 10:
    case 11:
    case 37:
    case 44: return 201;
    case 12:
    case 38:
    case 45: return 301;
    default: return 0;
    }
}

int File_NumberWidth(const char* ext)
{
    static constexpr const char* narrow[] = {"SWS", "SDS", "SSS", "SKF", "SFM"};
    if (strcmp(ext, "SKS") == 0)
        return 2;
    for (const char* word : narrow)
        if (strcmp(ext, word) == 0)
            return 3;
    return 4;
}

// --- Which unit has a region ---

namespace
{
enum : int { GRP_SETUP = 0, GRP_FRAMEMEM = 23, GRP_USERSETUP = 41 };
enum : int { FIRST_CHANNEL = 288, LAST_CHANNEL = 295 }; // region ids

constexpr int FRAME_REGISTERS = 5662; // of a store of the newer frame memory
constexpr char FRAME_WORD[] = "FMEM";
constexpr char FRAME_EXTENDED_WORD[] = "FMEX";
constexpr char FRAME_EXT[] = "SFM";
constexpr char FRAME_ANCILLARY_EXT[] = "SFA";

enum class Split { // how effects units share the eight channels
    Fours,
    Pairs,
    FourTwoTwo,
    Single,
};
} // namespace

static Split split_of(int grp)
{
    switch (grp) {
    case 6:
    case 7:
    case 9:
    case 11:
    case 15:
    case 16: return Split::Single;
    case 36:
    case 37:
    case 38: return Split::Pairs;
    case 43:
    case 44:
    case 45: return Split::FourTwoTwo;
    default: break;
    }
    if (isDualProc_DualLink_DME())
        return Split::Pairs;
    return is1080P_3G_DME() && SYS_MyDme2S >= 0 ? Split::FourTwoTwo : Split::Fours;
}

static const DEVICE* unit_of_channel(int grp, int channel)
{
    const int units[] = {SYS_MyDme1, SYS_MyDme1S, SYS_MyDme2, SYS_MyDme2S};
    int place = 0;
    switch (split_of(grp)) {
    case Split::Fours: place = channel < 4 ? 0 : 2; break;
    case Split::Pairs: place = channel / 2; break;
    case Split::FourTwoTwo: place = channel < 4 ? 0 : channel < 6 ? 2 : 3; break;
    case Split::Single: place = channel == 0 ? 0 : 2; break;
    }
    const int row = units[place];
    return row >= 0 && row < DEVICE_MAX ? &DEV_Dme[row] : nullptr;
}

static const DEVICE* own(DEVICE* const (&table)[DEVICE_MAX + 1], int n)
{
    for (int i = 0; i < DEVICE_MAX && table[i]; i++)
        if (i == n)
            return table[i];
    return nullptr;
}

static int own_index(DEVICE* const (&table)[DEVICE_MAX + 1], const DEVICE* unit)
{
    for (int i = 0; i < DEVICE_MAX && table[i]; i++)
        if (table[i] == unit)
            return i;
    return -1;
}

// The own units of the class that a file type belongs to; null: it is a file of this panel.
static DEVICE* const (*units_of(const char* ext))[DEVICE_MAX + 1]
{
    return ext[0] == 'S' ? &DEV_MySwr : ext[0] == 'D' ? &DEV_MyDme : nullptr;
}

// Null: no unit here has it.
static const DEVICE* unit_of_region(int grp, int main, int sub)
{
    constexpr int ENTRIES = 3; // of a switcher in setup and user setup
    const char* const ext = PaneRegion_GetGrpFIExt(grp, main, sub);
    const char* const name = PaneRegion_GetGrpName(grp, main);
    const int id = PaneRegion_GetGrpID(grp, main, sub);
    switch (ext[0]) {
    case 'S': {
        const bool has_entries = grp == GRP_SETUP || grp == GRP_USERSETUP;
        const bool is_unit = strcmp(name, "SWR") == 0;
        return own(DEV_MySwr, !is_unit ? 0 : has_entries ? sub / ENTRIES : sub);
    }
    case 'D':
        if (id >= FIRST_CHANNEL && id <= LAST_CHANNEL)
            return unit_of_channel(grp, id - FIRST_CHANNEL);
        return own(DEV_MyDme, sub);
    case 'P':
    case 'M': return own(DEV_MyPnl, 0);
    default: return nullptr;
    }
}

int File_HasRegion(int grp, int main, int sub)
{
    return unit_of_region(grp, main, sub) != nullptr;
}

const char* File_RegionWord(int grp, int main, int sub)
{
    const int id = PaneRegion_GetGrpID(grp, main, sub);
    if (id < FIRST_CHANNEL || id > LAST_CHANNEL)
        return PaneRegion_GetGrpFIRegion(grp, main, sub);
    const Split split = split_of(grp);
    // The units that serve two channels call them 1 and 2.
    const bool is_pair =
        split == Split::Pairs || (split == Split::FourTwoTwo && id >= FIRST_CHANNEL + 4);
    return is_pair ? PaneRegion_GetGrpFIRegion_DualProc(grp, main, sub)
                   : PaneRegion_GetGrpFIRegion(grp, main, sub);
}

// --- Reading a path ---

namespace
{
// A piece of the path that is being read.
struct Piece {
    const char* at = nullptr;
    int length = 0;
};

struct Pieces {
    Piece ext, number, region, name, unit;
};
} // namespace

static bool is_text(const Piece& p, const char* text)
{
    return p.length == int(strlen(text)) && strncmp(p.at, text, size_t(p.length)) == 0;
}

// What lies between the last c before end and end; end moves to that c. False: there is none.
static bool cut_back(const char* path, const char** end, char c, Piece* piece)
{
    for (const char* p = *end; p > path; p--) {
        if (p[-1] != c)
            continue;
        *piece = {p, int(*end - p)};
        *end = p - 1;
        return true;
    }
    return false;
}

static int cut_path(const char* path, bool has_region_dir, Pieces* p)
{
    const char* end = path + strlen(path);
    Piece folder;
    if (!cut_back(path, &end, '.', &p->ext))
        return NAME_NO_EXT;
    if (!cut_back(path, &end, '_', &p->number))
        return NAME_NO_NUMBER;
    if (!cut_back(path, &end, '.', &p->region))
        return NAME_NO_REGION;
    if (!cut_back(path, &end, '/', &p->name))
        return NAME_NO_FOLDER;
    if (has_region_dir && !cut_back(path, &end, '/', &folder))
        return NAME_NO_UNIT;
    return cut_back(path, &end, '/', &p->unit) ? 0 : NAME_NO_UNIT;
}

// "SWR000D001" is the unit whatever its group; a whole id is that unit alone.
static int device_number(const Piece& folder, const char* ext)
{
    constexpr int CLASS_AND_GROUP = 6;
    DEVICE* const(*units)[DEVICE_MAX + 1] = units_of(ext);
    if (!units)
        return is_text(folder, "CTRLCPU") ? 0 : -1;
    for (int i = 0; i < DEVICE_MAX && (*units)[i]; i++)
        if (is_text(folder, (*units)[i]->id))
            return i + FILE_WHOLE_ID;
    const char* const head = ext[0] == 'S' ? "SWR000" : "DME000";
    if (folder.length <= CLASS_AND_GROUP || strncmp(folder.at, head, CLASS_AND_GROUP) != 0)
        return -1;
    const Piece tail = {folder.at + CLASS_AND_GROUP, folder.length - CLASS_AND_GROUP};
    for (int i = 0; i < DEVICE_MAX && (*units)[i]; i++)
        if (strlen((*units)[i]->id) > CLASS_AND_GROUP &&
            is_text(tail, (*units)[i]->id + CLASS_AND_GROUP))
            return i;
    return -1;
}

// The newer frame memory has more registers than a page of the older one shows.
static int registers_of(int grp)
{
    return grp == GRP_FRAMEMEM && SYS_FmemV6 ? FRAME_REGISTERS : RegisterNum[grp];
}

// The register's number from 0, or why there is none.
static int register_number(int grp, const Piece& digits)
{
    constexpr int DIGITS_MAX = 4;
    if (digits.length < 1 || digits.length > DIGITS_MAX)
        return NAME_BAD_NUMBER;
    int number = 0;
    for (int i = 0; i < digits.length; i++) {
        if (!isdigit(uint8_t(digits.at[i])))
            return NAME_BAD_NUMBER;
        number = number * 10 + digits.at[i] - '0';
    }
    const int first = File_FirstNumber(grp);
    const int no = number - first;
    if (no >= 0 && no < registers_of(grp))
        return no;
    return first > 100 ? -(first - 1) : NAME_BAD_NUMBER;
}

// The newer frame memory has two stores and images with an ancillary channel: their words stand for
// those of the region table.
static bool take_frame_words(Pieces* p)
{
    if (is_text(p->ext, FRAME_ANCILLARY_EXT))
        p->ext = {FRAME_EXT, int(strlen(FRAME_EXT))};
    if (!is_text(p->region, FRAME_EXTENDED_WORD))
        return false;
    p->region = {FRAME_WORD, int(strlen(FRAME_WORD))};
    return true;
}

// Place of the file's region in the group's table; the same word may stand for several units.
static int find_region(const Pieces& p, int device, FILEINFO* info)
{
    int result = NAME_UNKNOWN_REGION;
    const int mains = PaneRegion_GetMainMax(info->grp);
    for (int main = 0; main < mains; main++) {
        for (int sub = 0; *PaneRegion_GetGrpFIExt(info->grp, main, sub); sub++) {
            const char* const ext = PaneRegion_GetGrpFIExt(info->grp, main, sub);
            if (!is_text(p.ext, ext) || !is_text(p.region, File_RegionWord(info->grp, main, sub)))
                continue;
            const DEVICE* const unit = unit_of_region(info->grp, main, sub);
            DEVICE* const(*units)[DEVICE_MAX + 1] = units_of(ext);
            if (!unit) {
                if (result == NAME_UNKNOWN_REGION)
                    result = NAME_NO_UNIT_HERE;
            } else if (units && own_index(*units, unit) != device % FILE_WHOLE_ID) {
                result = NAME_NOT_OF_UNIT;
            } else {
                info->main = main;
                info->sub = sub;
                return 0;
            }
        }
    }
    return result;
}

int name2info(const char* path, FILEINFO* info)
{
    FILEINFO found = {.grp = info->grp};
    if (found.grp < 0 || found.grp >= FILE_GROUPS)
        return NAME_UNKNOWN_REGION;
    Pieces p;
    const int cut = cut_path(path, RegionDirExist[found.grp] != 0, &p);
    if (cut != 0)
        return cut;
    bool is_extended = false;
    if (found.grp == GRP_FRAMEMEM && SYS_FmemV6) {
        found.is_ancillary = is_text(p.ext, FRAME_ANCILLARY_EXT);
        is_extended = take_frame_words(&p);
    }
    found.device = device_number(p.unit, p.ext.at);
    if (found.device < 0)
        return NAME_UNKNOWN_UNIT;
    const int no = register_number(found.grp, p.number);
    const int region = find_region(p, found.device, &found);
    if (region == NAME_UNKNOWN_REGION)
        return region;
    if (no < 0)
        return no;
    if (region != 0)
        return region;
    found.no = no + (is_extended ? FMEM_EXTENDED : 0);
    strncpy_secu(found.name, p.name.at, sizeof found.name, size_t(p.name.length));
    *info = found;
    return 0;
}

// --- Making a path ---

// A register's name as it stands in a file name: what would end the path or the command is
// replaced.
static void name_of_file(const FILEINFO& info, int device, char (&name)[FILE_NAME_SIZE])
{
    if (info.grp == GRP_FRAMEMEM)
        fname2dispname(info.name, name, sizeof name);
    else
        CopyText(name, info.name);
    if (device == FILE_REMOVABLE)
        (void)StrFatFileName(name); // an empty name is an empty name
    for (char* p = name; *p; p++)
        if (*p == '/' || *p == ',' || iscntrl(uint8_t(*p)))
            *p = '_';
}

// A register of the frame memory, in the words of its store and kind.
static bool append_frame(const FILEINFO& info, char* buffer, int device, int size, const char* name)
{
    const bool is_extended = info.no >= FMEM_EXTENDED;
    const int number = info.no - (is_extended ? FMEM_EXTENDED : 0) + 1;
    const bool is_wide = SYS_FmemV6 && device == FILE_REGISTER && number > 999;
    const size_t used = strlen(buffer);
    return print(buffer + used, size - int(used), is_wide ? "%s%s%s%04d.%s" : "%s%s%s_%03d.%s",
                 name, *name ? "." : "", is_extended ? FRAME_EXTENDED_WORD : FRAME_WORD, number,
                 info.is_ancillary ? FRAME_ANCILLARY_EXT : FRAME_EXT);
}

static bool append_file(const FILEINFO& info, char* buffer, int device, int size)
{
    const char* const ext = PaneRegion_GetGrpFIExt(info.grp, info.main, info.sub);
    char name[FILE_NAME_SIZE];
    name_of_file(info, device, name);
    if (info.grp == GRP_FRAMEMEM)
        return append_frame(info, buffer, device, size, name);
    const size_t used = strlen(buffer);
    return print(buffer + used, size - int(used), "%s.%s_%0*d.%s", name,
                 File_RegionWord(info.grp, info.main, info.sub), File_NumberWidth(ext),
                 info.no + File_FirstNumber(info.grp), ext);
}

static int unit_number(const DEVICE* unit)
{
    return unit ? Device_UnitNumber(*unit) : 0;
}

// The switcher whose work folder holds the files of an effects unit.
static int switcher_of(const DEVICE* dme)
{
    const int first = unit_number(DEV_MySwr[0]);
    const int second = DEV_MySwr[0] && DEV_MySwr[1] ? unit_number(DEV_MySwr[1]) : first;
    if (first < 0 || first >= UNIT_MAX)
        return second;
    for (const int assigned : SYS_SwrAssign[first])
        if (assigned > 0 && assigned == unit_number(dme))
            return first;
    return second;
}

static bool unit_folder(const DEVICE* unit, const char* ext, const char* category, char* buffer,
                        int size)
{
    const char* const name = ext[0] == 'P' ? "PNL" : "SWR";
    const int number = ext[0] == 'D' ? switcher_of(unit) : unit_number(unit);
    return print(buffer, size, "%s:/vorn/tmp/file/%s/%s%d/", unit->id, category, name, number);
}

static bool drive_folder(const FILEINFO& info, const DEVICE* unit, const char* ext, char* buffer,
                         int device, const char* dir, int size)
{
    constexpr int CLASS_AND_GROUP = 6;
    char category[PATH_SIZE];
    if (*info.folder ? !File_FrameFolderPath(category, sizeof category, device, dir, info.folder)
                     : !File_CategoryPath(category, sizeof category, device, dir,
                                          PaneRegion_GetGrpCategoryStr(info.grp)))
        return false;
    char region[16] = "";
    if (RegionDirExist[info.grp]) {
        const char* const word = File_RegionWord(info.grp, info.main, info.sub);
        strncpy_secu(region, word, sizeof region - 1, strcspn(word, "_"));
        AppendText(region, "/");
    }
    if (!units_of(ext))
        return print(buffer, size, "%sCTRLCPU/%s", category, region);
    if (info.device >= FILE_WHOLE_ID)
        return print(buffer, size, "%s%s/%s", category, unit->id, region);
    return strlen(unit->id) > CLASS_AND_GROUP &&
           print(buffer, size, "%s%s000%s/%s", category, ext[0] == 'S' ? "SWR" : "DME",
                 unit->id + CLASS_AND_GROUP, region);
}

int info2name(const FILEINFO& info, char* buffer, int device, const char* dir, int size)
{
    if (size < 1)
        return -1;
    buffer[0] = '\0';
    if (info.grp < 0 || info.grp >= FILE_GROUPS)
        return -1;
    const char* const ext = PaneRegion_GetGrpFIExt(info.grp, info.main, info.sub);
    const DEVICE* const unit = unit_of_region(info.grp, info.main, info.sub);
    if (!unit)
        return -1;
    if (device == FILE_REGISTER && ext[0] == 'M') // the recorder writes it there for the transfer
        return print(buffer, size, "MYHOST:/var/tmp/MenuMacro/mm_reg%02d.tmp", info.no + 1) ? 0
                                                                                            : -1;
    const bool is_folder =
        device == FILE_REGISTER
            ? unit_folder(unit, ext, PaneRegion_GetGrpCategoryStr(info.grp), buffer, size)
            : drive_folder(info, unit, ext, buffer, device, dir, size);
    if (is_folder && append_file(info, buffer, device, size))
        return 0;
    buffer[0] = '\0';
    return -1;
}

int File_FrameName(const FILEINFO& info, char* buffer, int size)
{
    const DEVICE* const unit = unit_of_region(info.grp, info.main, info.sub);
    if (size < 1)
        return -1;
    if (unit && print(buffer, size, "%s:", unit->id) &&
        append_file(info, buffer, FILE_REGISTER, size))
        return 0;
    buffer[0] = '\0';
    return -1;
}

int File_Target(const char* path, char* target, int size)
{
    const char* begin = strrchr(path, '/');
    if (!begin || BeginsWith(path, "MYHOST:") || size < 1)
        return -1;
    const char* const end = begin;
    while (begin > path && begin[-1] != '/')
        begin--;
    if (!BeginsWith(begin, "SWR") && !BeginsWith(begin, "PNL"))
        return -1;
    strncpy_secu(target, begin, size_t(size), size_t(end - begin));
    return 0;
}
