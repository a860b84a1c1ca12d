// The file list's drives: what stands in a folder, and what the head of a clip says.
#include "a_fl_private.h"
#include "bus.h"
#include "file.h"
#include "file_name.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "month.h"
#include "text.h"
#include <cctype>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

constexpr char EXT[] = ".SFH";
constexpr size_t EXT_LENGTH = sizeof EXT - 1;
constexpr char HOST[] = "MYHOST:";

// --- Names ---

static bool ends_with_ext(const char* name, size_t length)
{
    return length > EXT_LENGTH && memcmp(name + length - EXT_LENGTH, EXT, EXT_LENGTH) == 0;
}

int check_clip_still_file(const char* fname)
{
    return ends_with_ext(fname, strlen(fname));
}

void get_clip_frame_file_name(char* dst, size_t size, const char* clip, int frame)
{
    (void)snprintf(dst, size, "%s#%06d.SFH", clip, frame);
}

// The number of a frame, "clip#000012.SFH", in a clip's folder; -1 for any other name.
static int frame_number(const char* file, const char* clip)
{
    constexpr int DIGITS = 6;
    const char* const mark = strrchr(file, '#');
    if (!mark || !BeginsWith(file, clip))
        return -1;
    int number = 0;
    for (int i = 1; i <= DIGITS; i++) {
        if (!isdigit(uint8_t(mark[i])))
            return -1;
        number = number * 10 + mark[i] - '0';
    }
    return strcmp(mark + 1 + DIGITS, EXT) == 0 ? number : -1;
}

// "/mnt/data/user/root", "/mnt/usb/usb1": as the drive's own paths begin.
static bool drive_prefix(int dev, char (&prefix)[PATH_SIZE])
{
    char root[PATH_SIZE];
    if (!fl_is_drive(dev) ||
        !File_Root(root, sizeof root, dev == FL_DIRDATA_LOCAL_DRIVE ? FILE_LOCAL : FILE_REMOVABLE))
        return false;
    CopyText(prefix, root + strlen(HOST));
    for (size_t n = strlen(prefix); n > 0 && prefix[n - 1] == '/'; n--)
        prefix[n - 1] = '\0';
    return true;
}

// What stands behind the drive's root, with its "/"; null for a path of another place.
static const char* on_drive(const char* path, int dev)
{
    char prefix[PATH_SIZE];
    if (!drive_prefix(dev, prefix) || !BeginsWith(path, prefix))
        return nullptr;
    const char* const rest = path + strlen(prefix);
    return *rest == '/' && !strstr(rest, "/../") && !strstr(rest, "/./") ? rest : nullptr;
}

// The name behind the folder that is shown; null when it lies elsewhere.
static const char* in_current(const char* rest, const char* current)
{
    const size_t length = strcmp(current, "/") == 0 ? 0 : strlen(current);
    if (strncmp(rest, current, length) != 0 || rest[length] != '/' || rest[length + 1] == '\0')
        return nullptr;
    return rest + length + 1;
}

// --- The head of a clip ---

bool fl_take_sfh(const uint8_t* bytes, size_t size, SFH_HEADER* header)
{
    enum : int { AT_FORMAT = 4, AT_PAIR = 5, AT_4K = 6, AT_CRC = 60 };
    if (size < SFH_BYTES)
        return false;
    SFH_HEADER h;
    memcpy(h.xvs, bytes, sizeof h.xvs);
    h.sys_format = bytes[AT_FORMAT];
    h.info_pair = bytes[AT_PAIR];
    h.info_4k = bytes[AT_4K];
    h.crc32 = uint32_t(bytes[AT_CRC]) << 24 | uint32_t(bytes[AT_CRC + 1]) << 16 |
              uint32_t(bytes[AT_CRC + 2]) << 8 | bytes[AT_CRC + 3];
    *header = h;
    return true;
}

// All fields stay 0 when there is no such file, when it is none or too short. A pipe of that name
// must not hold the pass.
static SFH_HEADER read_head(const char* path)
{
    SFH_HEADER header;
    const int fd = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return header;
    struct stat st;
    uint8_t bytes[SFH_BYTES];
    const bool is_file = fstat(fd, &st) == 0 && S_ISREG(st.st_mode);
    const ssize_t size = is_file ? read(fd, bytes, sizeof bytes) : 0;
    (void)close(fd); // it was only read
    if (size > 0)
        (void)fl_take_sfh(bytes, size_t(size), &header); // too short: as without a head
    return header;
}

// --- Rows ---

// The engine's "Nov.25.2026 09:20" as the hub writes it; anything else as it is.
static void hub_time(const char* time, char (&text)[32])
{
    char month[4] = "", day[3] = "", year[5] = "", clock[6] = "";
    CopyText(text, time && !strchr(time, ',') ? time : "");
    if (!time || sscanf(time, "%3[A-Za-z].%2[0-9 ].%4[0-9] %5[0-9:]", month, day, year, clock) < 4)
        return;
    if (const int number = Month_Number(month))
        PrintText(text, "%s-%02d-%s%s %s", year, number, day[0] == ' ' ? "0" : "",
                  day[0] == ' ' ? day + 1 : day, clock);
}

// A row of the hub's for what lies at this place of the drive.
static bool read_row(const char* place, const char* values, int type, int id, FL_FILE* file)
{
    char row[CMD_SIZE];
    if (strchr(place, ':') || // it would end the path
        PrintText(row, "%s%s:%s", ELEMENT_ROOT, place, values) >= int(sizeof row) ||
        FMCtrl3_ReadRow(row, type, &file->element) != 0)
        return false;
    if (file->element.layer != fl.side[id].current_layer)
        return false;
    file->file_type = type == ELEMENT_TYPE_FOLDER ? OBJECT_TYPE_FOLDER : OBJECT_TYPE_FILE;
    file->root_flag = file->element.layer == 0;
    file->dev = fl.side[id].device;
    return true;
}

static bool read_file(const char* place, const char* head, int frames, const char* time, int id,
                      FL_FILE* file)
{
    const SFH_HEADER header = read_head(head);
    char when[32];
    char values[128];
    hub_time(time, when);
    PrintText(values, "%d,%d,%d,%d,%s,0,0", frames, header.info_pair, header.info_4k,
              header.sys_format, when);
    return read_row(place, values, ELEMENT_TYPE_FILE, id, file);
}

static FL_LIST* clip_of(int id, const ELEMENT& e)
{
    FL_LIST* const last = fl.now[id].clip;
    if (last && strcmp(last->file.element.full_name, e.full_name) == 0)
        return last;
    return fl_list_equal(id, e);
}

// A frame: the first one seen makes the clip, number 0 says what it is.
static void take_frame(int id, const char* path, const char* rest, int slash, int number,
                       const char* time)
{
    FL_LIST* clip = nullptr;
    char place[PATH_SIZE];
    char folder[PATH_SIZE];
    char head[PATH_SIZE + 32];
    char clip_name[PATH_SIZE];
    strncpy_secu(place, rest, sizeof place, size_t(slash));
    strncpy_secu(folder, path, sizeof folder, strlen(path) - strlen(rest) + size_t(slash));
    const char* const name = strrchr(place, '/') + 1;
    FMCtrl3_CopyPath(clip_name, name, sizeof clip_name);
    get_clip_frame_file_name(head, sizeof head, clip_name, 0);
    char file_path[2 * PATH_SIZE + 32];
    PrintText(file_path, "%s/%s", folder, head);

    FL_FILE key;
    key.clip_stil = 1;
    if (!read_row(place, "0,0,0,0,,0,0", ELEMENT_TYPE_FILE, id, &key))
        return;
    clip = clip_of(id, key.element);
    if ((!clip || number == 0) && !read_file(place, file_path, 0, time, id, &key))
        return;
    if (!clip) {
        clip = fl_list_insert(id, key);
    } else if (number == 0) {
        key.element.duration = clip->file.element.duration;
        clip->file.element = key.element;
    }
    fl.now[id].clip = clip;
    if (clip)
        fl_frame_added(id, clip);
}

static void take_still(int id, const char* path, const char* rest, const char* time)
{
    FL_FILE file;
    // By its path first: a head is read of what will be shown.
    if (!read_row(rest, "1,0,0,0,,0,0", ELEMENT_TYPE_FILE, id, &file) ||
        fl_list_equal(id, file.element))
        return;
    if (read_file(rest, path, 1, time, id, &file))
        (void)fl_list_insert(id, file); // a full list shows what came first
}

void file_find_tly(const char* path, const char* time, int id)
{
    if (!fl_is_side(id) || strlen(path) >= PATH_SIZE || !check_clip_still_file(path))
        return;
    const char* const rest = on_drive(path, fl.side[id].device);
    const char* const name = rest ? in_current(rest, fl.side[id].current_path) : nullptr;
    if (!name)
        return;
    const char* const slash = strchr(name, '/');
    if (!slash) {
        take_still(id, path, rest, time);
        return;
    }
    char clip[PATH_SIZE];
    if (strchr(slash + 1, '/') || !ends_with_ext(name, size_t(slash - name)))
        return; // of a folder below
    strncpy_secu(clip, name, sizeof clip, size_t(slash - name) - EXT_LENGTH);
    const int number = frame_number(slash + 1, clip);
    if (number >= 0)
        take_frame(id, path, rest, int(slash - rest), number, time);
}

void dirGet_tly(const char* path, const char*, int id)
{
    if (!fl_is_side(id) || strlen(path) >= PATH_SIZE || check_clip_still_file(path))
        return;
    const char* const rest = on_drive(path, fl.side[id].device);
    const char* const name = rest ? in_current(rest, fl.side[id].current_path) : nullptr;
    if (!name || strchr(name, '/') || strlen(name) >= ELEMENT_FOLDER_SIZE)
        return;
    FL_FILE file;
    if (strcmp(name, ".") != 0 && strcmp(name, "..") != 0 &&
        read_row(rest, "1", ELEMENT_TYPE_FOLDER, id, &file) && !fl_list_equal(id, file.element))
        (void)fl_list_insert(id, file);
}

// --- Reading a folder ---

static bool is_there(int id)
{
    char prefix[PATH_SIZE];
    char path[PATH_SIZE + FL_PATH_SIZE];
    struct stat st;
    if (!drive_prefix(fl.side[id].device, prefix))
        return false;
    PrintText(path, "%s%s", prefix, fl.side[id].current_path);
    return stat(path, &st) == 0 && S_ISDIR(st.st_mode);
}

// The engine tells a folder that is not there from an empty one by nothing.
static void check_empty(int id)
{
    auto& now = fl.now[id];
    if (now.dir_label || now.file_label || fl.list[id].count > 0 || is_there(id))
        return;
    now.is_gone = true;
    SendMessage(LMSG_FLCURDIRCHANGE, id, 0, 4, 0);
}

static void get_dirlist_result(uint32_t label, int id, const char* path, const char* const* pair)
{
    if (!fl_is_side(id) || label != fl.now[id].dir_label)
        return;
    if (path) {
        dirGet_tly(path, pair[1], id);
        return;
    }
    fl.now[id].dir_label = 0;
    fl.now[id].is_dirty = true;
    SendMessage(LMSG_FLLISTCHANGE, id, fl.now[id].folders, 1, 0);
    check_empty(id);
}

static void get_filelist_result(uint32_t label, int id, const char* path, const char* const* pair)
{
    if (!fl_is_side(id) || label != fl.now[id].file_label)
        return;
    if (path) {
        file_find_tly(path, pair[1], id);
        return;
    }
    fl.now[id].file_label = 0;
    fl.now[id].is_dirty = true;
    SendMessage(LMSG_FLLISTCHANGE, id, fl.now[id].files, 2, 0);
    check_empty(id);
}

void fl_drive_stop(int id)
{
    auto& now = fl.now[id];
    for (uint32_t* label : {&now.dir_label, &now.file_label}) {
        if (*label != 0)
            (void)File_ExecUSBReload_cancel(*label); // unknown when it has ended
        *label = 0;
    }
}

// Folders of a path; -1 when one has no name that a folder can have.
static int layers_of(const char* path)
{
    int layers = 0;
    if (strcmp(path, "/") == 0)
        return 0;
    while (*path == '/') {
        const size_t length = strcspn(++path, "/");
        const bool is_dots = strncmp(path, "..", length) == 0 && length <= 2;
        if (length == 0 || length >= ELEMENT_FOLDER_SIZE || is_dots || ++layers > ELEMENT_DEPTH)
            return -1;
        path += length;
    }
    return *path ? -1 : layers;
}

// The stick's root ends with a "/" of its own, the local drive's does not.
static bool root_path(int id, char (&path)[FILE_PATH_SIZE])
{
    const FL_CURRENT_INFO& side = fl.side[id];
    char prefix[PATH_SIZE];
    if (!drive_prefix(side.device, prefix))
        return false;
    const bool is_top = strcmp(side.current_path, "/") == 0;
    const bool is_local = side.device == FL_DIRDATA_LOCAL_DRIVE;
    return PrintText(path, "%s%s%s", HOST, prefix,
                     !is_top    ? side.current_path
                     : is_local ? ""
                                : "/") < int(sizeof path);
}

int putCurrentDirectory(int id, const char* path)
{
    if (!fl_is_side(id) || !fl_is_drive(fl.side[id].device))
        return -1;
    const int layers = path && *path && strlen(path) < FL_PATH_SIZE ? layers_of(path) : -1;
    if (layers < 0) {
        Log_Output(LOG_DETAIL, MOD_PAGE, "putCurrentDirctory No Path Name [%s] ", path ? path : "");
        SendMessage(LMSG_FLCURDIRCHANGE, id, 0, 4, 0);
        return -1;
    }
    FL_CURRENT_INFO& side = fl.side[id];
    fl_drive_stop(id);
    fl_list_free(id);
    char copy[FL_PATH_SIZE]; // the caller may have it from here
    CopyText(copy, path);
    CopyText(side.current_path, copy);
    CopyText(side.current_info_drv.current, copy);
    side.current_layer = layers;
    auto& now = fl.now[id];
    now.is_gone = false;
    now.is_entered = now.is_dirty = true;
    now.selected[0] = '\0';
    char root[FILE_PATH_SIZE];
    if (!root_path(id, root))
        return -1;
    const int dirs = File_ExecListDir(root, get_dirlist_result, id);
    const int files = File_ExecFind2(root, 1, "*.SFH", get_filelist_result, id);
    now.dir_label = dirs == -1 ? 0 : uint32_t(dirs);
    now.file_label = files == -1 ? 0 : uint32_t(files);
    SendMessage(LMSG_FLCURDIRCHANGE, id, 0, 0, 0);
    return 0;
}
