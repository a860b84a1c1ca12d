// Lists of files between drives, switchers and panels: what stands on a stick or comes from frame
// memory goes through a staging path, what an old switcher is to take is converted before.
#include "device.h"
#include "file_private.h"
#include "global.h"
#include "log.h"
#include "menu_macro.h"
#include "pane.h"
#include "process.h"
#include "text.h"
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

static constexpr char STICK[] = "MYHOST:/mnt/usb/";
static constexpr char STAGING[] = "MYHOST:/var/tmp/";
static constexpr char FM_STAGING[] = "MYHOST:/var/tmp/FMXfer/";
static constexpr int ON_RAM_DISK = 1; // staged items under way where staging takes memory

enum : int { // steps, as the tables of file_list go on from them
    STEP_TO_STICK = 1,
    STEP_FROM_STICK = 2,
    STEP_TO_FM = 3,
    STEP_FROM_FM = 4,
    STEP_CONVERT = 201,
};

// --- The way of frame memory ---

static bool is_frame_memory(const char* path)
{
    for (const char* ext : {".SFM", ".SF2", ".SFA", ".SF4", ".SFT"})
        if (strstr(path, ext))
            return true;
    return false;
}

// n of a host "SWR...D<n>", 0 for another.
static int switcher_of(const char* path)
{
    if (!BeginsWith(path, "SWR"))
        return 0;
    const char* colon = strchr(path, ':');
    const char* d = strchr(path, 'D');
    return colon && d && d < colon ? int(strtol(d + 1, nullptr, 10)) : 0;
}

bool file_is_on_data_port(const char* path, const DEVICE* only)
{
    const int n = switcher_of(path);
    if (n < 1 || n > int(std::size(GL_FMDataPortStatus)) || !is_frame_memory(path))
        return false;
    if (only && Device_UnitNumber(*only) != n)
        return false;
    return GL_FMDataPortStatus[n - 1] == 1 &&
           (GL_FMDataPortDisable[n - 1] & FILE_DATA_PORT_BITS) != 0;
}

void file_hold_thumbnails(const char* path)
{
    const DEVICE* first = DEV_MySwr[0];
    if (!GL_FMThumbnailGetAfter && first && file_is_on_data_port(path, first))
        GL_FMThumbnailGetAfter = 1;
}

static void set_thumbnailwait(const FILEXFERLIST* item)
{
    file_hold_thumbnails(item->src);
    file_hold_thumbnails(item->dst);
}

// --- Items under way ---

static FILEXFERLIST* flight_item(uint32_t& place)
{
    FILEXFERLIST* item = queue_item_by_label(place);
    if (item && item->status < FILESTATUS_OK)
        return item;
    place = 0;
    return nullptr;
}

int file_flight_count(QUEUE* job)
{
    int n = 0;
    for (uint32_t& place : job->flight)
        n += flight_item(place) != nullptr;
    return n;
}

// Two files of one name in different folders have one staging path: the second waits.
bool file_flight_join(QUEUE* job, const FILEXFERLIST* item)
{
    uint32_t* free_place = nullptr;
    for (uint32_t& place : job->flight) {
        const FILEXFERLIST* other = flight_item(place);
        if (!other)
            free_place = &place;
        else if (strcmp(other->tmp, item->tmp) == 0)
            return false;
    }
    if (!free_place)
        return false;
    *free_place = item->label;
    return true;
}

static int staging_limit()
{
    return GL_IsRamDisk ? ON_RAM_DISK : FILE_IN_FLIGHT;
}

// --- Files for old switchers ---

static bool is_old_version(const char* version)
{
    for (const char* head : {"5.42", "5.43", "5.44", "5.45", "5.46", "5.47", "5.48", "5.49", "5.5",
                             "5.6", "5.7", "5.8", "5.9"})
        if (BeginsWith(version, head))
            return true;
    return false;
}

static constexpr struct {
    const char* ext;
    const char* tool;
} converters[] = {
    {".SST", "dg_setup"},    {".SIS", "dg_initstat"}, {".SSS", "dg_snapshot"},
    {".SKF", "dg_keyframe"}, {".SKS", "dg_keyss"},    {".SWS", "dg_wipess"},
    {".SDS", "dg_dmess"},    {".SKM", "dg_keymem"},   {".SVM", "dg_vprocmem"},
};

// The tool that makes a file fit for the switcher at dst, which gets its version; null: none is
// needed.
static const char* check_datagokan(const char* dst, const char** version)
{
    constexpr size_t ID = 10;
    if (!GL_DataGokan)
        return nullptr;
    const DEVICE* swr = nullptr;
    for (int i = 0; i < DEVICE_MAX && DEV_MySwr[i]; i++)
        if (strncmp(dst, DEV_MySwr[i]->id, ID) == 0 && strlen(DEV_MySwr[i]->id) == ID)
            swr = DEV_MySwr[i];
    if (!swr || swr->type > DEVTYPE_KTR40SF || !is_old_version(swr->version))
        return nullptr;
    const char* ext = strrchr(file_name_of(dst), '.');
    for (const auto& row : converters)
        if (ext && strcmp(ext, row.ext) == 0) {
            *version = swr->version;
            return row.tool;
        }
    return nullptr;
}

// What becomes a word of the server's shell: no blank either.
static bool is_word(const char* text)
{
    return IsShellSafe(text) && !strchr(text, ' ');
}

static void stage(FILEXFERLIST* item, int step, const char* path)
{
    item->usb = step;
    PrintText(item->tmp, "%s%.*s", STAGING, int(sizeof item->tmp - sizeof STAGING),
              *path == '/' ? path + 1 : path);
}

// Mark an item that goes over a staging path.
static void change_usb(FILEXFERLIST* item)
{
    const char* version = nullptr;
    if (file_is_macro_pair(item))
        return;
    if (BeginsWith(item->dst, STICK))
        stage(item, STEP_TO_STICK, item->dst + strlen(STICK));
    else if (file_is_local(item->src) && check_datagokan(item->dst, &version))
        stage(item, STEP_CONVERT, file_local_path(item->src));
    else if (BeginsWith(item->src, STICK))
        stage(item, STEP_FROM_STICK, item->src + strlen(STICK));
}

// --- The first command of an item ---

static bool compose(FILEXFERLIST* item, const char* verb, const char* from, const char* to)
{
    return file_compose_item(item, "put File@%s#L%d,%s,%s", verb, int(item->label), from, to);
}

static bool is_picture(const char* path)
{
    return strstr(path, ".SFM") || strstr(path, ".SFA");
}

static const char* compressed_ext(const char* path)
{
    return strstr(path, ".SFA") ? ".SF4" : ".SF2";
}

// By the host of the device and the file's name on it: that pair is there once.
static void stage_picture(FILEXFERLIST* item, int step, const char* remote)
{
    const char* colon = strchr(remote, ':');
    const int host = colon ? int(colon - remote) : 0;
    item->usb = step;
    PrintText(item->tmp, "%s%.*s%.200s", FM_STAGING, host < 32 ? host : 32, remote,
              file_name_of(remote));
}

static bool compose_compress(FILEXFERLIST* item)
{
    file_set_ext(item->dst, compressed_ext(item->src));
    stage_picture(item, STEP_TO_FM, item->dst);
    return compose(item, "Frame Memory@Compress", item->src, item->tmp);
}

static bool compose_picture_v6(FILEXFERLIST* item)
{
    if (file_is_local(item->src) && item->usb != STEP_TO_STICK)
        return compose_compress(item);
    file_set_ext(item->src, compressed_ext(item->src));
    stage_picture(item, STEP_FROM_FM, item->src);
    return compose(item, "Frame Memory@Get", item->src, item->tmp);
}

static bool compose_picture(FILEXFERLIST* item)
{
    if (SYS_FmemV6)
        return compose_picture_v6(item);
    switch (item->usb) {
    case STEP_TO_STICK: return compose(item, "Frame Memory@Get", item->src, item->tmp);
    case STEP_FROM_STICK:
        item->usb = STEP_TO_FM;
        return compose(item, "Access@Copy", item->src, item->tmp);
    default:
        return compose(item, file_is_local(item->src) ? "Frame Memory@PutV3" : "Frame Memory@Get",
                       item->src, item->dst);
    }
}

static bool compose_macro(FILEXFERLIST* item)
{
    mm_macro_tmpfile_prepare(item->src, item->dst);
    return compose(item, "Access@Copy", item->src, item->dst);
}

// A path that no shell may see is loaded as it is, and the operator is told as when the tool fails.
static bool compose_convert(QUEUE* job, FILEXFERLIST* item)
{
    const char* version = "";
    const char* tool = check_datagokan(item->dst, &version);
    if (tool && is_word(version) && is_word(item->src) && is_word(item->tmp))
        return file_compose_item(item, "put File@Access@Raw#L%d,MYHOST:/usr/local/sbin/%s %s %s %s",
                                 int(item->label), tool, version, file_local_path(item->src),
                                 file_local_path(item->tmp));
    item->usb = 0;
    file_set_text(item, "Can't convert file. It is not supported version.");
    file_pane_append_line(job, item->mesg);
    return compose(item, "Transfer@Transfer", item->src, item->dst);
}

static bool compose_plain(QUEUE* job, FILEXFERLIST* item)
{
    switch (item->usb) {
    case STEP_TO_STICK: return compose(item, "Transfer@Transfer", item->src, item->tmp);
    case STEP_FROM_STICK: return compose(item, "Access@Copy", item->src, item->tmp);
    case STEP_CONVERT: return compose_convert(job, item);
    default: return compose(item, "Transfer@Transfer", item->src, item->dst);
    }
}

// False: it has to wait until another one has left its staging path.
static bool send_picture(QUEUE* job, FILEXFERLIST* item)
{
    const FILEXFERLIST untouched = *item;
    if (compose_picture(item) && item->usb > 0 && !file_flight_join(job, item)) {
        item->usb = untouched.usb;
        CopyText(item->src, untouched.src);
        CopyText(item->dst, untouched.dst);
        return false;
    }
    if (item->status == FILESTATUS_NON)
        file_send_item(item);
    return true;
}

int file_launch_transfer(QUEUE* job)
{
    bool is_converting = false;
    while (FILEXFERLIST* item = file_next_new(job)) {
        if (item->usb == 0)
            change_usb(item);
        set_thumbnailwait(item);
        if (is_picture(item->src)) {
            if (!send_picture(job, item))
                break;
            if (item->usb > 0 && file_flight_count(job) >= staging_limit())
                break;
            continue;
        }
        const bool is_composed =
            file_is_macro_pair(item) ? compose_macro(item) : compose_plain(job, item);
        if (is_composed)
            file_send_item(item);
        is_converting |= item->usb == STEP_CONVERT;
    }
    if (is_converting)
        file_pane_append(job, "File Converting...\n");
    return 0;
}

// Pictures of the drop folders. An older frame memory takes them as they are.
int file_launch_autoload(QUEUE* job)
{
    while (FILEXFERLIST* item = file_next_new(job)) {
        set_thumbnailwait(item);
        if (!SYS_FmemV6) {
            if (compose(item, "Frame Memory@PutV3", item->src, item->dst))
                file_send_item(item);
            continue;
        }
        if (compose_compress(item)) {
            if (!file_flight_join(job, item))
                break;
            file_send_item(item);
        }
        if (file_flight_count(job) >= staging_limit())
            break;
    }
    return 0;
}
