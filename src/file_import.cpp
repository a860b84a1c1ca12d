// Images from drives into frame memory, and stills out of it as images.
#include "device.h"
#include "file_private.h"
#include "global.h"
#include "log.h"
#include "netio.h"
#include "process.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

static constexpr int IMPORTS_IN_FLIGHT = 4;
static constexpr int ON_RAM_DISK = 1;
static constexpr int NO_REGISTER = 9999; // where the table has no place for an image
static constexpr int REG_NAME = 8;
static constexpr int REG_DIGITS_MAX = 999; // above, a name has four digits and no "_"

enum : int { // steps
    STEP_CONVERTED = 101,
    STEP_FIRST_STORED = 102,
    STEP_SECOND_STORED = 103,
    STEP_FIRST_REMOVED = 104,
    STEP_EXPORT_GOT = 111,
    STEP_EXPORT_READY = 113,
};

static struct {
    int cnt[2] = {}; // place of the next image in the table, from 1, by switcher
    int ImportFmNo[IMPORT_REGISTERS] = {};
} import_file; // valid from the page's setting to the end of its import

void File_ExecFmImportStartRegNoSet(int n)
{
    import_file.cnt[0] = import_file.cnt[1] = n;
}

int File_ExecFmImportRegNoSet(int reg, int i)
{
    if (i < 0 || i >= IMPORT_REGISTERS)
        return -1;
    import_file.ImportFmNo[i] = reg + 1;
    return 0;
}

void file_import_reset()
{
    import_file = {};
}

// --- The first command ---

static bool may_import_from(const QUEUE* job, const char* src)
{
    if (strstr(src, "/../"))
        return false;
    if (BeginsWith(src, "MYHOST:/mnt/usb/") || BeginsWith(src, "MYHOST:/var/nfs/user/"))
        return true;
    // The drop folders are a job of their own.
    return job->worktype == FILEWORK_FMEM_IMPORTLIST_AUTOLOAD &&
           BeginsWith(src, "MYHOST:/mnt/sys/FMLoad/");
}

static const DEVICE* own_switcher(const char* id)
{
    for (int i = 0; i < DEVICE_MAX && DEV_MySwr[i]; i++)
        if (strcmp(DEV_MySwr[i]->id, id) == 0)
            return DEV_MySwr[i];
    return nullptr;
}

static bool is_sub(const char* path)
{
    return strstr(path, ".SUB") != nullptr;
}

// "TIF" of "a.TIF" and "a.Tif.SUB"; null for another kind.
static const char* image_kind(const char* src)
{
    static constexpr const char* kinds[][3] = {
        {"TIF", "Tif", "tif"}, {"BMP", "Bmp", "bmp"}, {"TGA", "Tga", "tga"}, {"PNG", "Png", "png"}};
    char name[FILE_PATH_SIZE];
    CopyText(name, file_name_of(src));
    if (char* sub = strstr(name, ".SUB"))
        *sub = '\0';
    const char* dot = strrchr(name, '.');
    if (!dot)
        return nullptr;
    for (const auto& kind : kinds)
        for (const char* ext : kind)
            if (strcmp(dot + 1, ext) == 0)
                return kind[0];
    return nullptr;
}

static int converter_format(const DEVICE& swr)
{
    switch (swr.activeline) {
    case 1: return 1;
    case 2: return 2;
    case 3: return 4;
    case 6: return swr.framerate == 25.0 ? 5 : 6;
    default: return 3;
    }
}

static void register_name(char (&name)[REG_NAME + 1], const char* path)
{
    strncpy_close(name, file_name_of(path), REG_NAME);
    name[strcspn(name, ".")] = '\0';
    (void)StrRegName(name); // an empty name is the prefix alone
}

static const char* stored_ext()
{
    return SYS_FmemV6 ? "SF2" : "SFM";
}

// Where the converter leaves its two files, the main side first unless the image is a sub side.
static void stage_import(FILEXFERLIST* item)
{
    char name[REG_NAME + 1];
    register_name(name, item->src);
    const char* sides = is_sub(item->src) ? "SM" : "MS";
    char path[2][FILE_PATH_SIZE / 2];
    for (int i = 0; i < 2; i++)
        PrintText(path[i], "MYHOST:/var/tmp/XPORT/%s/%c%s.FMEM_%03d.%s", item->dst, sides[i], name,
                  i + 1, stored_ext());
    PrintText(item->tmp, "%s,%s", path[0], path[1]);
    item->usb = STEP_CONVERTED;
}

static void refuse(FILEXFERLIST* item)
{
    file_set_text(item, "Canceled");
    file_set_status(item, FILESTATUS_CANCEL);
}

int file_launch_import(QUEUE* job)
{
    const int limit = GL_IsRamDisk ? ON_RAM_DISK : IMPORTS_IN_FLIGHT;
    while (FILEXFERLIST* item = file_flight_count(job) < limit ? file_next_new(job) : nullptr) {
        const DEVICE* swr = own_switcher(item->dst);
        const char* kind = image_kind(item->src);
        if (!swr || !kind || !may_import_from(job, item->src)) {
            refuse(item);
            continue;
        }
        stage_import(item);
        if (!file_flight_join(job, item))
            break;
        const char* verb = SYS_FmemV6 ? "2SFM with Compress" : "2SFM";
        if (file_compose_item(item, "put File@Frame Memory@%s%s#L%d,%s,%s,%d,0,0", kind, verb,
                              int(item->label), item->src, item->tmp, converter_format(*swr)))
            file_send_item(item);
    }
    return 0;
}

// --- What follows the conversion ---

struct Pair {
    char path[2][FILE_PATH_SIZE] = {};
};

static void split_pair(Pair& pair, const FILEXFERLIST* item)
{
    CopyText(pair.path[0], item->tmp);
    char* comma = strchr(pair.path[0], ',');
    if (!comma)
        return;
    *comma = '\0';
    CopyText(pair.path[1], comma + 1);
}

static bool is_there(const char* path)
{
    return *path && FileExist(file_local_path(path));
}

// The next register of the switcher at dst, whose number stands behind "SWR000D00".
static int next_register(const char* dst)
{
    constexpr size_t NUMBER = 9;
    const bool is_second = strlen(dst) > NUMBER && dst[NUMBER] == '2';
    const int n = import_file.cnt[is_second]++;
    return n >= 1 && n <= IMPORT_REGISTERS ? import_file.ImportFmNo[n - 1] : NO_REGISTER;
}

static bool compose_put(FILEXFERLIST* item, const char* path, int number)
{
    const bool is_wide = SYS_FmemV6 && number > REG_DIGITS_MAX;
    const char* store = SYS_FmemV6 && item->fmext ? "FMEX" : "FMEM";
    const char* ext = !SYS_FmemV6 ? "SFM" : strstr(path, ".SFA") ? "SF4" : "SF2";
    char place[FILE_PATH_SIZE];
    PrintText(place, is_wide ? "%.200s:%s%04d.%s" : "%.200s:%s_%03d.%s", item->dst, store, number,
              ext);
    file_hold_thumbnails(place);
    return file_compose_item(item, "put File@Frame Memory@PutV3#L%d,%s,%s", int(item->label), path,
                             place);
}

static bool compose_remove(FILEXFERLIST* item, const char* path)
{
    return file_compose_item(item, "put File@Access@Remove#L%d,%s", int(item->label), path);
}

static bool put(FILEXFERLIST* item, const Pair& pair, int which)
{
    item->usb = which == 0 ? STEP_FIRST_STORED : STEP_SECOND_STORED;
    return compose_put(item, pair.path[which], item->import_no[which]);
}

static bool remove(FILEXFERLIST* item, const Pair& pair, int which, int step)
{
    item->usb = step;
    return compose_remove(item, pair.path[which]);
}

static bool after_conversion(FILEXFERLIST* item, const Pair& pair)
{
    for (int i = 0; i < 2; i++)
        item->import_no[i] = !is_there(pair.path[i]) ? 0
                             : i == 1 && item->info  ? IMPORT_KEY_LEFT_OUT
                                                     : next_register(item->dst);
    for (int i = 0; i < 2; i++)
        if (item->import_no[i] > 0)
            return put(item, pair, i);
    file_set_text(item, "NG([ERROR] File Not Exist.)");
    file_set_status(item, FILESTATUS_NG);
    file_import_drop_temporaries(item); // there, but no register for them
    return false;
}

bool file_import_step(FILEXFERLIST* item)
{
    Pair pair;
    split_pair(pair, item);
    const bool has_first = item->import_no[0] > 0;
    const bool has_second = item->import_no[1] > 0;
    switch (item->usb) {
    case STEP_CONVERTED: return after_conversion(item, pair);
    case STEP_FIRST_STORED:
        if (has_second)
            return put(item, pair, 1);
        return remove(item, pair, 0, is_there(pair.path[1]) ? STEP_FIRST_REMOVED : 0);
    case STEP_SECOND_STORED:
        return has_first ? remove(item, pair, 0, STEP_FIRST_REMOVED) : remove(item, pair, 1, 0);
    default: return remove(item, pair, 1, 0);
    }
}

void file_import_drop_temporaries(const FILEXFERLIST* item)
{
    Pair pair;
    split_pair(pair, item);
    for (const auto& path : pair.path)
        if (is_there(path) && file_compose("put File@Access@Remove#Lx,%s", path))
            Net_SendCommand(FileCmd);
}

// --- Export ---

static void stage_export(FILEXFERLIST* item)
{
    char name[REG_NAME + 1];
    register_name(name, item->dst);
    file_set_ext(item->src, SYS_FmemV6 ? ".SF2" : ".SFM");
    PrintText(item->tmp, "MYHOST:/var/tmp/%c%s.FMEM_000.%s", is_sub(item->dst) ? 'S' : 'M', name,
              stored_ext());
    item->usb = SYS_FmemV6 ? STEP_EXPORT_GOT : STEP_EXPORT_READY;
}

int file_launch_export(QUEUE* job)
{
    const int limit = GL_IsRamDisk ? ON_RAM_DISK : FILE_IN_FLIGHT;
    while (FILEXFERLIST* item = file_flight_count(job) < limit ? file_next_new(job) : nullptr) {
        stage_export(item);
        file_hold_thumbnails(item->src);
        if (!file_flight_join(job, item))
            break;
        if (file_compose_item(item, "put File@Frame Memory@Get#L%d,%s,%s", int(item->label),
                              item->src, item->tmp))
            file_send_item(item);
    }
    return 0;
}
