#include "device.h"
#include "file.h"
#include "file_name.h"
#include "fmctrl_private.h"
#include "log.h"
#include "memory.h"
#include "netio.h"
#include "process.h"
#include "text.h"
#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

// Nine folders that others fill with images, over the network: what appears in them goes into the
// frame memory, then to the folder's output or, from "NoRecall", into the folder of graphics. One
// search and its transfers at a time. A file is gone when its transfer has ended.

constexpr int FOLDERS = 9; // NoRecall, FM1 to FM8
constexpr int POLL_MS = 1000;
constexpr int TRANSFER_WAIT_MS = 500;
// The registers are being told: which are empty is known when no line has come for this long.
constexpr int QUIET_MS = 2000;
constexpr int IMAGE_NAME = 8; // characters
constexpr int SFM_NAME = 9;   // with the prefix
constexpr const char* GRAPHICS = "Graphics";
constexpr int GRP_FRAMEMEM = 23;

enum : int {
    DROP_IDLE = 0,
    DROP_SEARCH = 1,
    DROP_WAIT = 2, // found, and given the time to arrive whole
    DROP_TRANSFER = 3,
};

namespace
{
struct FMAUTO {
    char path[32] = "";
    struct timespec before_tm = {}; // modification time of the folder last seen
};
struct Found {
    char src[PATH_SIZE]; // without host
    char dst[64];        // with it
    bool is_image;
};
} // namespace

static FMAUTO FMAuto[FOLDERS];
static int FMAuto_TransferWait = 0;              // ms
static FILEXFERLIST* FMAuto_ImageList = nullptr; // of the two jobs
static FILEXFERLIST* FMAuto_SfmList = nullptr;

static struct {
    int poll_ms = 0;
    int quiet_ms = 0;
    bool knows_registers = false; // the store's size has been told
    int state = DROP_IDLE;
    uint32_t label = 0;            // of the search
    int folder = 0;                // whose search and transfers these are
    struct timespec searched = {}; // its time before the search
    int empty_at = 0;              // no register below this is empty and free; -1 none is
    int reserved = 0;              // registers that images take
    Found* found = nullptr;
    int found_num = 0;
    int found_room = 0;
    uint64_t sizes = 0; // of all found files, when last looked at
    int graphics_id = 0;
    int jobs = 0;               // transfers that run
    uint32_t job_label[2] = {}; // of them; 0 none
} drop;

// --- Making the folders anew at start-up: one command after the other, beside the passes ---

namespace
{
struct SetupStep {
    const char* command = nullptr;
    const char* link = nullptr; // the command makes it, unless it is there
};
} // namespace

static constexpr SetupStep setup_steps[] = {
    {.command = "/bin/rm -rf /mnt/sys/FMLoad"},
    {.command = "/bin/rm -rf /mnt/sys/FTPIF"},
    {}, // the nine folders
    {.command = "/bin/chmod -R 777 /mnt/sys/FMLoad"},
    {.command = "/bin/ln -s /mnt/sys/FMLoad /tmp/FMLoad", .link = "/tmp/FMLoad"},
    {.command = "/bin/mkdir -p /mnt/sys/FTPIF/Command"},
    {.command = "/bin/mkdir -p /mnt/sys/FTPIF/Export"},
    {.command = "/bin/mkdir -p /mnt/sys/FTPIF/Import"},
    {.command = "/bin/chmod -R 777 /mnt/sys/FTPIF"},
    {.command = "/bin/ln -s /mnt/sys/FTPIF /tmp/FTPIF", .link = "/tmp/FTPIF"},
};
constexpr int SETUP_STEPS = int(std::size(setup_steps));

static struct {
    int steps = 0; // begun
    int child = 0; // of the last of them, while it runs
    bool is_done = false;
} setup; // once for the life of the process

static void make_folders()
{
    for (int k = 0; k < FOLDERS; k++) {
        if (k == 0)
            CopyText(FMAuto[k].path, "/mnt/sys/FMLoad/NoRecall");
        else
            PrintText(FMAuto[k].path, "/mnt/sys/FMLoad/FM%d", k);
        (void)MakeDir(FMAuto[k].path); // one that is missing has no time and is never searched
    }
}

static struct timespec folder_time(int k)
{
    struct stat st;
    return stat(FMAuto[k].path, &st) == 0 ? st.st_mtim : timespec{};
}

static void setup_failed(const SetupStep& step)
{
    Log_Output(LOG_LIFE, MOD_FM, "FM Auto Load: failed: %s", step.command);
}

// False while the command before is at work.
static bool setup_is_free()
{
    int status = 0;
    if (setup.child == 0)
        return true;
    if (!ktr_has_ended(setup.child, &status))
        return false;
    setup.child = 0;
    if (status != 0)
        setup_failed(setup_steps[setup.steps - 1]);
    return true;
}

static void setup_begin(const SetupStep& step)
{
    struct stat st;
    if (!step.command)
        return make_folders();
    // A second link would be made inside the folder that the first one leads to.
    if (step.link && lstat(step.link, &st) == 0)
        return;
    const int child = ktr_start(step.command);
    if (child > 0)
        setup.child = child;
    else
        setup_failed(step);
}

static void setup_pass()
{
    if (!setup_is_free())
        return;
    if (setup.steps < SETUP_STEPS)
        return setup_begin(setup_steps[setup.steps++]);
    for (int k = 0; k < FOLDERS; k++)
        FMAuto[k].before_tm = folder_time(k);
    setup.is_done = true;
}

bool fm_drop_is_set_up()
{
    return setup.is_done;
}

void fm_drop_registers_told()
{
    drop.quiet_ms = QUIET_MS;
}

void fm_drop_size_told()
{
    drop.knows_registers = true;
    fm_drop_registers_told();
}

// --- Names ---

// The text behind the last "/".
static const char* file_name(const char* path)
{
    const char* slash = strrchr(path, '/');
    return slash ? slash + 1 : path;
}

// The register's name without an image's prefix: the conversion takes it from the file in the same
// way. False when nothing is left.
static bool register_name(const char* path, int characters, char (&name)[FMEM_NAME_SIZE])
{
    strncpy_secu(name, file_name(path), sizeof name, size_t(characters));
    if (char* dot = strchr(name, '.'))
        *dot = '\0';
    return StrRegName(name) != 0;
}

// A file directly in the folder, with a name that can stand in a command: the server cuts commands
// at "#" and ",", and may itself hand a name to a shell.
bool fm_drop_is_file_of(const char* folder, const char* path)
{
    const size_t length = strlen(folder);
    if (strncmp(path, folder, length) != 0 || path[length] != '/')
        return false;
    const char* name = path + length + 1;
    if (!name[0] || name[0] == '-' || !strcmp(name, ".") || !strcmp(name, ".."))
        return false;
    for (const char* p = name; *p; p++)
        if (!isprint(uint8_t(*p)) || strchr("/\\,#\"'`$;&|<>*?", *p))
            return false;
    return strlen(path) < PATH_SIZE - sizeof "MYHOST:";
}

static bool has_extension(const char* path, std::initializer_list<const char*> extensions)
{
    const char* dot = strrchr(file_name(path), '.');
    return dot && std::ranges::any_of(extensions, [=](const char* e) { return !StrICmp(dot, e); });
}

// --- The search ---

// The next register that holds nothing and is not yet given away; -1, from then on, when there is
// none.
static int reserve_register()
{
    if (drop.empty_at < 0)
        return -1;
    int index = FMCtrl2_EmptyRegNo(drop.empty_at);
    if (!SYS_FmemV6 && index >= RegisterNum[GRP_FRAMEMEM])
        index = -1; // the older frame memory works in what lies behind
    drop.empty_at = index < 0 ? -1 : index + 1;
    return index;
}

static Found* add_found(const char* path, bool is_image)
{
    if (drop.found_num == drop.found_room) {
        const int room = drop.found_room ? drop.found_room * 2 : 16;
        void* moved = GDL_Realloc(drop.found, size_t(room) * sizeof(Found));
        if (!moved)
            return nullptr;
        drop.found = static_cast<Found*>(moved);
        drop.found_room = room;
    }
    Found* f = &drop.found[drop.found_num++];
    CopyText(f->src, path);
    f->dst[0] = '\0';
    f->is_image = is_image;
    return f;
}

static void delete_register(const char* name)
{
    if (FMCtrl2_ExistRegName(name))
        Net_SendCommandFormat("put Frame Mem@File@Delete Thumbnail@Single#%s", name);
}

static void found_image(const char* path)
{
    char name[FMEM_NAME_SIZE];
    char side[FMEM_NAME_SIZE + 1];
    if (!register_name(path, IMAGE_NAME, name))
        return;
    const int main_reg = reserve_register();
    const int sub_reg = reserve_register();
    Found* f = sub_reg < 0 ? nullptr : add_found(path, true);
    if (!f)
        return;
    (void)File_ExecFmImportRegNoSet(main_reg, drop.reserved++); // past the table: the conversion
    (void)File_ExecFmImportRegNoSet(sub_reg, drop.reserved++);  // refuses the place itself
    CopyText(f->dst, DEV_MySwr[0]->id);
    for (char prefix : {'M', 'S'}) {
        PrintText(side, "%c%s", prefix, name);
        delete_register(side);
    }
}

static void found_sfm(const char* path)
{
    char name[FMEM_NAME_SIZE];
    if (!register_name(path, SFM_NAME, name))
        return;
    const int index = reserve_register();
    Found* f = index < 0 ? nullptr : add_found(path, false);
    if (!f)
        return;
    PrintText(f->dst, index + 1 > 999 ? "%s:FMEM%04d.%s" : "%s:FMEM_%03d.%s", DEV_MySwr[0]->id,
              index + 1, has_extension(path, {".SFA"}) ? "SFA" : "SFM");
    delete_register(name);
}

static uint64_t found_sizes()
{
    uint64_t sum = 0;
    for (int i = 0; i < drop.found_num; i++) {
        struct stat st;
        if (stat(drop.found[i].src, &st) == 0)
            sum = sum * 31 + uint64_t(st.st_size);
    }
    return sum;
}

static void found_forget()
{
    GDL_Free(drop.found);
    drop.found = nullptr;
    drop.found_num = drop.found_room = 0;
}

static void found_end()
{
    if (drop.found_num == 0) {
        Log_Output(LOG_LIFE, MOD_FM, "--- End FM Auto Load!! (No Image file) --- (%d)",
                   drop.folder);
        found_forget();
        drop.state = DROP_IDLE;
        return;
    }
    std::sort(drop.found, drop.found + drop.found_num,
              [](const Found& a, const Found& b) { return strcmp(a.src, b.src) < 0; });
    if (drop.folder == 0)
        drop.graphics_id = fm_folder_named(GRAPHICS);
    drop.sizes = found_sizes();
    FMAuto_TransferWait = TRANSFER_WAIT_MS;
    drop.state = DROP_WAIT;
}

static void fmauto_find_result(uint32_t label, int, const char* path, const char* const*)
{
    if (drop.state != DROP_SEARCH || label != drop.label)
        return; // one that was given up
    if (!path) {
        found_end();
        return;
    }
    if (!DEV_MySwr[0])
        return;
    const bool is_image = has_extension(path, {".TIF", ".BMP", ".TGA", ".PNG"});
    if (!is_image && !has_extension(path, {".SFM", ".SFA"}))
        return;
    if (!fm_drop_is_file_of(FMAuto[drop.folder].path, path))
        Log_Output(LOG_LIFE, MOD_FM, "FM Auto Load: refused [%.200s]", path);
    else if (is_image)
        found_image(path);
    else
        found_sfm(path);
}

static bool same_time(const struct timespec& a, const struct timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

// The kernel's clock for files moves in steps: a second file within the same one would not change
// the folder's time.
static bool is_fresh(const struct timespec& t)
{
    constexpr double STEP_S = 0.02;
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    const double age_s = double(now.tv_sec - t.tv_sec) + 1e-9 * double(now.tv_nsec - t.tv_nsec);
    return age_s > -STEP_S && age_s < STEP_S;
}

static void search(int k, const struct timespec& now)
{
    char path[FILE_PATH_SIZE];
    Log_Output(LOG_LIFE, MOD_FM, "--- Start FM Auto Load!! --- (%d)", k);
    PrintText(path, "MYHOST:%s", FMAuto[k].path);
    drop.folder = k;
    drop.empty_at = drop.reserved = 0;
    found_forget();
    const int label = File_ExecFind(path, "*.*", fmauto_find_result, k);
    if (label == -1)
        return; // looked at again: its time still differs
    drop.label = uint32_t(label);
    drop.state = DROP_SEARCH;
    drop.searched = FMAuto[k].before_tm;
    FMAuto[k].before_tm = is_fresh(now) ? timespec{} : now; // no folder has that: once more
}

static void look_at_folders()
{
    for (int k = 0; k < FOLDERS; k++) {
        const struct timespec now = folder_time(k);
        if (same_time(now, timespec{}) || same_time(now, FMAuto[k].before_tm))
            continue;
        search(k, now);
        return;
    }
}

void fm_drop_link_lost()
{
    switch (drop.state) {
    case DROP_SEARCH:
        (void)File_ExecUSBReload_cancel(drop.label);
        FMAuto[drop.folder].before_tm = drop.searched;
        break;
    case DROP_TRANSFER:
        // The files are still there, also those that have arrived: their registers are replaced.
        for (uint32_t& label : drop.job_label) {
            (void)File_ExecUSBReload_cancel(label); // unknown when it has ended
            label = 0;
        }
        FMAuto[drop.folder].before_tm = {};
        break;
    default: return;
    }
    found_forget();
    drop.state = DROP_IDLE;
}

// --- The transfers ---

static void recall(int k, const char* register_text)
{
    const int odd = (k - 1) | 1;
    Net_SendCommandFormat("put Frame Mem@Recall@Recall Thumbnail@Select#FM%d&%d", odd, odd + 1);
    Net_SendCommandFormat("put Frame Mem@Recall@Recall Thumbnail@FM%d#%s", k, register_text);
}

static void move_to_graphics(const char* register_text)
{
    Net_SendCommandFormat("put Frame Mem@Folder@Move Still#0,%s,%d", register_text,
                          drop.graphics_id);
}

static void item_stored(int k, const char* path, bool is_image)
{
    char name[FMEM_NAME_SIZE];
    char text[FMEM_NAME_SIZE + 1];
    if (!register_name(path, is_image ? IMAGE_NAME : SFM_NAME, name))
        return;
    PrintText(text, is_image ? "M%s" : "%s", name);
    if (k > 0) {
        recall(k, text);
        return;
    }
    move_to_graphics(text);
    if (!is_image)
        return;
    PrintText(text, "S%s", name);
    move_to_graphics(text);
}

static void job_ended(FILEXFERLIST* list, int k, bool is_image)
{
    constexpr char HOST[] = "MYHOST:";
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        const char* path = item->src + (BeginsWith(item->src, HOST) ? sizeof HOST - 1 : 0);
        // What is not in the frame memory can be neither moved nor shown.
        if (item->status == FILESTATUS_OK)
            item_stored(k, path, is_image);
        else
            Log_Output(LOG_LIFE, MOD_FM, "FM Auto Load: %s", item->mesg);
        // One that was refused before any work on it is not lost for that.
        if (item->status != FILESTATUS_CANCEL && fm_drop_is_file_of(FMAuto[k].path, path))
            (void)unlink(path); // it may be gone already
    }
    Log_Output(LOG_LIFE, MOD_FM, "--- End FM Auto Load!! (%s) --- (%d)",
               is_image ? "TIF/PNG/TGA/BMP" : "SFM/SFA", k);
    if (--drop.jobs == 0)
        drop.state = DROP_IDLE;
}

static void fmauto_image_result(uint32_t, int k)
{
    job_ended(FMAuto_ImageList, k, true);
}

static void fmauto_sfm_result(uint32_t, int k)
{
    job_ended(FMAuto_SfmList, k, false);
}

// Returns the job's label, 0 when there is none.
static uint32_t start_job(int (*start)(FILEXFERLIST**, FILE_LIST_FUNC, int), FILEXFERLIST** list,
                          FILE_LIST_FUNC result)
{
    if (!*list)
        return 0;
    const int label = start(list, result, drop.folder);
    if (label != -1)
        return uint32_t(label);
    result(0, drop.folder);
    File_XferList_RemoveAll(list);
    return 0;
}

static void start_transfers()
{
    char src[FILE_PATH_SIZE];
    for (int i = 0; i < drop.found_num; i++) {
        const Found& f = drop.found[i];
        PrintText(src, "MYHOST:%s", f.src);
        if (f.is_image)
            (void)File_XferList_ImportAdd(&FMAuto_ImageList, src, f.dst, 0);
    }
    for (int i = 0; i < drop.found_num; i++) {
        const Found& f = drop.found[i];
        PrintText(src, "MYHOST:%s", f.src);
        if (!f.is_image)
            (void)File_XferList_Add(&FMAuto_SfmList, src, f.dst);
    }
    found_forget();
    // A job may end before its start returns.
    drop.jobs = (FMAuto_ImageList ? 1 : 0) + (FMAuto_SfmList ? 1 : 0);
    drop.state = drop.jobs ? DROP_TRANSFER : DROP_IDLE;
    File_ExecFmImportStartRegNoSet(1);
    drop.job_label[0] =
        start_job(File_ExecFmImportList_AutoLoad, &FMAuto_ImageList, fmauto_image_result);
    drop.job_label[1] =
        start_job(File_ExecTransferList_AutoLoad, &FMAuto_SfmList, fmauto_sfm_result);
}

// A file that is still being written is not taken yet.
static void wait_pass(int elapsed_ms)
{
    FMAuto_TransferWait -= elapsed_ms;
    if (FMAuto_TransferWait > 0)
        return;
    const uint64_t sizes = found_sizes();
    if (sizes != drop.sizes) {
        drop.sizes = sizes;
        FMAuto_TransferWait = TRANSFER_WAIT_MS;
        return;
    }
    start_transfers();
}

void fm_drop_pass(int elapsed_ms)
{
    if (!fm_drop_is_set_up()) {
        if (elapsed_ms > 0) // a mere repaint begins no command
            setup_pass();
        return;
    }
    if (drop.state == DROP_WAIT)
        wait_pass(elapsed_ms);
    drop.quiet_ms = std::max(0, drop.quiet_ms - elapsed_ms);
    drop.poll_ms += elapsed_ms;
    if (drop.poll_ms < POLL_MS)
        return;
    drop.poll_ms = 0;
    if (drop.state == DROP_IDLE && drop.knows_registers && drop.quiet_ms == 0 && DEV_MySwr[0])
        look_at_folders();
}

void fm_drop_quit()
{
    fm_drop_link_lost();
    found_forget();
    drop = {};
}
