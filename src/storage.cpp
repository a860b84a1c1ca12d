#include "storage.h"
#include "global.h"
#include "log.h"
#include "netio.h"
#include "process.h"
#include "text.h"
#include <cctype>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "safeguards.h"

namespace
{
constexpr int USB_STICKS = 9; // /mnt/usb/usb0 to usb8
} // namespace

static int storage_kb(unsigned long long kb)
{
    return kb > INT_MAX ? INT_MAX : int(kb);
}

// Asked of the kernel, as df does: a directory that was named on a PC would not survive a shell.
int GetDiskFree(const char* dir)
{
    struct statvfs fs;
    if (dir && statvfs(dir, &fs) == 0)
        return storage_kb(1ull * fs.f_bavail * fs.f_frsize / 1024);
    Log_Output(LOG_LINK, MOD_GLOBAL, "GetDiskSize(%s) --> ret = %d [KB]", dir ? dir : "", -1);
    return -1;
}

// --- NFS ---

static int nfs_step(const char* cmd, int (*run)(const char*))
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "NFS Mount: %s", cmd);
    const int status = run(cmd);
    Log_Output(LOG_LIFE, MOD_GLOBAL, "NFS Mount: --> %d", status);
    return status;
}

// A setting that stands in a command as one word: it must not begin another option or another word.
static bool nfs_is_word(const char* text)
{
    if (text[0] == '\0' || text[0] == '-')
        return false;
    for (const char* p = text; *p; p++) {
        if (!isgraph(uint8_t(*p)) || *p == '"')
            return false;
    }
    return true;
}

static int nfs_try_mount(const char* mpoint)
{
    char cmd[CMD_SIZE];
    (void)nfs_step("/bin/mkdir -p /var/nfs", ktr_system); // it may be there,
    (void)nfs_step("/bin/umount /var/nfs", ktr_system);   // and need not be in use

    PrintText(cmd, IsMPU302() ? "/bin/ping -c 1 -w 3 %s" : "/bin/ping -c 1 %s", GL_NFS_Server);
    if (nfs_step(cmd, ktr_system) != 0)
        return -1;
    PrintText(cmd, "rpcinfo2 -p %s | grep udp | grep nfs", GL_NFS_Server);
    if (nfs_step(cmd, ktr_shell) != 0)
        return -1;
    PrintText(cmd, "/bin/mount -t nfs %s:%s /var/nfs -o %s", GL_NFS_Server, mpoint,
              GL_NFS_MountOption);
    return nfs_step(cmd, ktr_system) == 0 ? 0 : -1;
}

int NFS_MountEx(const char* mpoint)
{
    GL_NFS_Mounted = 0;
    // The server's name also goes through a shell.
    if (!mpoint || !nfs_is_word(mpoint) || !nfs_is_word(GL_NFS_Server) ||
        !nfs_is_word(GL_NFS_MountOption) || !IsShellSafe(GL_NFS_Server)) {
        Log_Output(LOG_LIFE, MOD_GLOBAL, "NFS Mount: refused [%s] [%s] [%s]", GL_NFS_Server,
                   mpoint ? mpoint : "", GL_NFS_MountOption);
        return -1;
    }
    if (nfs_try_mount(mpoint) != 0)
        return -1;
    GL_NFS_Mounted = 1;
    return 0;
}

int NFS_Mount()
{
    return NFS_MountEx(GL_NFS_MountPoint);
}

int NFS_UnMount()
{
    GL_NFS_Mounted = 0;
    return nfs_step("/bin/umount /var/nfs", ktr_system) == 0 ? 0 : -1;
}

int NFS_UnMountEx()
{
    return NFS_UnMount();
}

// --- Memory sticks. Their directories are made when a stick is mounted and removed with it. ---

void Usb_Auto_Scan()
{
    Log_Output(LOG_LINK, MOD_GLOBAL, "Usb_Auto_Scan() start GL_ImportDataPath=%s",
               GL_ImportDataPath);
    if (!GL_USB_AutoScan)
        return;
    for (int n = 0; n < USB_STICKS; n++) {
        char cmd[CMD_SIZE];
        PrintText(cmd, "/bin/df /mnt/usb/usb%d >/dev/null 2>&1", n);
        if (ktr_shell(cmd) != 0)
            continue;
        PrintText(GL_ImportDataPath, "/mnt/usb/usb%d/", n);
        Net_SendCommandFormat("put Info@Operation Setup Data@Import Path#%s", GL_ImportDataPath);
        break;
    }
    Log_Output(LOG_LINK, MOD_GLOBAL, "Usb_Auto_Scan() end GL_ImportDataPath=%s", GL_ImportDataPath);
}

void UsbSync()
{
    char dir[PATH_SIZE];
    for (int n = 0; n < USB_STICKS; n++) {
        if (GetUSBMountPointInfo(n, dir, sizeof dir) != 0)
            continue;
        const int fd = open(dir, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0)
            continue;
        if (syncfs(fd) != 0)
            Log_Output(LOG_LINK, MOD_GLOBAL, "UsbSync: %s failed", dir);
        close(fd);
    }
}

int GetUSBMountPointInfo(int n, char* text, int size)
{
    if (n < 0 || n >= USB_STICKS || !text || size < 1)
        return -1;
    char dir[PATH_SIZE];
    PrintText(dir, "/mnt/usb/usb%d", n);
    if (!FileExist(dir))
        return -1;
    ktr_strncpy(text, dir, size_t(size));
    return 0;
}

int GetUSBStorageInfo(int n, int* total_kb, int* free_kb)
{
    char dir[PATH_SIZE];
    struct statvfs fs;
    if (GetUSBMountPointInfo(n, dir, sizeof dir) != 0 || statvfs(dir, &fs) != 0)
        return -1;
    *total_kb = storage_kb(1ull * fs.f_blocks * fs.f_frsize / 1024);
    *free_kb = storage_kb(1ull * fs.f_bavail * fs.f_frsize / 1024);
    return 0;
}

// The board's kernel tells its name in the hardware line of cpuinfo. TM3BOARD in the environment
// overrides it.
int IsMPU302()
{
    if (const char* board = getenv("TM3BOARD"))
        return strcmp(board, "MPU302") == 0;
    return Storage_NamesMPU302("/proc/cpuinfo");
}

int Storage_NamesMPU302(const char* cpuinfo)
{
    FILE* fp = fopen(cpuinfo, "re");
    if (!fp)
        return 0;
    char line[256];
    int found = 0;
    while (!found && fgets(line, sizeof line, fp))
        found = StrIStr(line, "MPU302") != nullptr || StrIStr(line, "MPU-302") != nullptr;
    fclose(fp);
    return found;
}

bool Storage_ReadDf(FILE* fp, DfSizes* sizes)
{
    char line[256] = "";
    DfSizes read;
    while (fgets(line, sizeof line, fp)) {
    }
    if (sscanf(line, "%*s %ld %ld %ld", &read.total_mb, &read.used_mb, &read.free_mb) != 3)
        return false;
    *sizes = read;
    return true;
}
