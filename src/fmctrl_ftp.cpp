#include "fmctrl_private.h"
#include "log.h"
#include "menu_macro.h"
#include "netio.h"
#include "pc_file_all.h"
#include "process.h"
#include "safe_file.h"
#include "storage.h"
#include "text.h"
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

// A folder where automation leaves commands: an empty file by its name, once a second. The answer
// is a file beside it. A marker goes before its command is carried out, so that nothing is done
// twice; one that cannot be taken stays, is told once and tried again.

constexpr const char* COMMAND_FOLDER = "/tmp/FTPIF/Command/";
constexpr int POLL_MS = 1000;
constexpr int CLEAR_FIRST_MS = 5000; // until the deletion must have begun to show
constexpr int CLEAR_AFTER_MS = 3000; // of quiet behind it

static bool begin_all_save(const char* path);
static bool begin_all_load(const char* path);
static bool clear_all(const char* path);
static bool make_log(const char* path);
static bool nfs_mount(const char* path);
static bool nfs_unmount(const char* path);

namespace
{
struct Marker {
    const char* name;
    const char* log;
    bool (*take)(const char* path); // false: the marker stays
};
} // namespace

static constexpr Marker markers[] = {
    {"allsave.cmd", "FTPIF: All Save detected.", begin_all_save},
    {"allload.cmd", "FTPIF: All Load detected.", begin_all_load},
    {"allclear.cmd", "FTPIF: All Clear detected.", clear_all},
    {"makelog.cmd", "FTPIF: Make Log detected.", make_log},
    {"nfsmount.cmd", "FTPIF: NFS Mount detected.", nfs_mount},
    {"nfsunmount.cmd", "FTPIF: NFS UnMount detected.", nfs_unmount},
};
constexpr int MARKERS = int(std::size(markers));

static struct {
    int poll_ms = 0;
    bool is_told[MARKERS] = {}; // a marker that is still there has its log line
    bool is_clearing = false;
} ftp;

static int AllClear_DelTimeout = 0; // ms
static int AllClear_Deleting = 0;   // the deletion shows as file processing

// --- Replies ---

void FMCtrl_FtpAnswer(const char* name, int is_good)
{
    char path[PATH_SIZE];
    char beside[PATH_SIZE];
    PrintText(path, "%s%s", COMMAND_FOLDER, name);
    // Everybody can write into this folder: whatever stands in the way is removed, not followed.
    PrintText(beside, "%s.new", path);
    (void)unlink(beside);
    const char* text = is_good ? "OK\n" : "Error\n";
    (void)SafeFile_Write(path, text, strlen(text)); // logs a failure
}

// --- Commands ---

static bool remove_marker(const char* path)
{
    return unlink(path) == 0;
}

static bool begin_all_save(const char* path)
{
    return AllSave() == 0 && remove_marker(path);
}

static bool begin_all_load(const char* path)
{
    return AllLoad() == 0 && remove_marker(path);
}

static constexpr const char* clear_commands[] = {
    "put Register@All Delete@Effect@MP2#true",
    "put Register@All Delete@Snapshot@MP2#true",
    "put Register@All Delete@Wipe Snapshot@MP2#true",
    "put Register@All Delete@DME Wipe Snapshot@MP2#true",
    "put Register@All Delete@Key Snapshot#true",
    "put Register@All Delete@Shotbox#true",
    "put Register@All Delete@Macro#true",
};

static bool clear_all(const char* path)
{
    if (ftp.is_clearing || !remove_marker(path))
        return false;
    for (const char* command : clear_commands)
        Net_SendCommand(command);
    MM_Register_Data_All_Delete();
    ftp.is_clearing = true;
    AllClear_DelTimeout = CLEAR_FIRST_MS;
    AllClear_Deleting = 0;
    return true;
}

static bool make_log(const char* path)
{
    if (!remove_marker(path))
        return false;
    FMCtrl_FtpAnswer("makelog.res",
                     ktr_system("./script/logbackup.sh /tmp/FTPIF/Export/log/") == 0);
    return true;
}

// The first line, as far as it can be printed. False when the file cannot be read.
static bool first_line(const char* path, char (&line)[PATH_SIZE])
{
    line[0] = '\0';
    FILE* fp = fopen(path, "re");
    if (!fp)
        return false;
    const bool is_read = fgets(line, sizeof line, fp) != nullptr;
    fclose(fp);
    char* end = line;
    while (*end >= ' ' && *end <= '~')
        end++;
    *end = '\0';
    return is_read;
}

static bool nfs_mount(const char* path)
{
    char line[PATH_SIZE];
    const bool is_read = first_line(path, line);
    if (!remove_marker(path))
        return false;
    FMCtrl_FtpAnswer("nfsmount.res",
                     is_read && NFS_MountEx(line) == 0); // which looks at the text itself
    return true;
}

static bool nfs_unmount(const char* path)
{
    if (!remove_marker(path))
        return false;
    FMCtrl_FtpAnswer("nfsunmount.res", NFS_UnMountEx() == 0);
    return true;
}

// --- Passes ---

// The registers are gone when the processors have shown that they work and have stopped. Without
// any sign of work the first time is enough.
static void clear_pass(int elapsed_ms)
{
    if (!ftp.is_clearing)
        return;
    if (GL_FileProcessing) {
        if (!AllClear_Deleting)
            AllClear_DelTimeout = CLEAR_AFTER_MS;
        AllClear_Deleting = 1;
        return;
    }
    if (AllClear_Deleting) {
        AllClear_DelTimeout = CLEAR_AFTER_MS;
        AllClear_Deleting = 0;
    }
    AllClear_DelTimeout -= elapsed_ms;
    if (AllClear_DelTimeout > 0)
        return;
    ftp.is_clearing = false;
    FMCtrl_FtpAnswer("allclear.res", true);
}

static void look_at_marker(int i)
{
    char path[PATH_SIZE];
    struct stat st;
    PrintText(path, "%s%s", COMMAND_FOLDER, markers[i].name);
    if (lstat(path, &st) != 0) {
        ftp.is_told[i] = false;
        return;
    }
    if (!ftp.is_told[i])
        Log_Output(LOG_LIFE, MOD_FM, "%s", markers[i].log);
    ftp.is_told[i] = true;
    if (S_ISREG(st.st_mode) && markers[i].take(path)) // no folder, and no link to somewhere else
        ftp.is_told[i] = false;
}

void fm_ftp_pass(int elapsed_ms)
{
    if (!fm_drop_is_set_up())
        return;
    clear_pass(elapsed_ms);
    ftp.poll_ms += elapsed_ms;
    if (ftp.poll_ms < POLL_MS)
        return;
    ftp.poll_ms = 0;
    for (int i = 0; i < MARKERS; i++)
        look_at_marker(i);
}
