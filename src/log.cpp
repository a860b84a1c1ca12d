#include "log.h"
#include "global.h"
#include "month.h"
#include "process.h"
#include "text.h"
#include "xsyslog.h"
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include "safeguards.h"

namespace
{
constexpr int OLD_LOGS = 10;           // NAME.0, the newest, to NAME.9
constexpr size_t FORMAT_MAX = 4032;    // a format of this length or more is not printed
constexpr unsigned LAST_MODULE = 1024; // everything above passes the switch
constexpr char MAINTENANCE_LOG[] = "/mnt/sys/log/maintenance.log";
} // namespace

static char FileName[PATH_SIZE] = "";               // empty: no file output
static int FileSize = LOG_FILE_SIZE;                // bytes at which a file is rotated
static int Level = 0;                               // messages below it are dropped
static unsigned char ModuleSw[LAST_MODULE / 8 + 1]; // a bit per module, set: logged
static char Buf[4096];                              // the formatted message

static void log_old_name(char (&name)[PATH_SIZE + 4], const char* path, int n)
{
    PrintText(name, "%s.%d", path, n);
}

// NAME.8 becomes NAME.9 and so on down to NAME, which becomes NAME.0.
static void log_rotate(const char* path)
{
    char from[PATH_SIZE + 4], to[PATH_SIZE + 4];
    log_old_name(to, path, OLD_LOGS - 1);
    for (int n = OLD_LOGS - 2; n >= 0; n--) {
        log_old_name(from, path, n);
        remove(to);
        rename(from, to);
        CopyText(to, from);
    }
    remove(to);
    rename(path, to);
}

// One line costs four system calls: the length, open, write, close. So the length is asked by name,
// and the parts of a line go out in one piece.
static int log_append(const char* path, const char* stamp, const char* text)
{
    struct stat st;
    if (stat(path, &st) == 0 && st.st_size >= FileSize)
        log_rotate(path);
    const int fd = open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (fd < 0)
        return -1;
    const iovec parts[] = {{const_cast<char*>(stamp), strlen(stamp)},
                           {const_cast<char*>(text), strlen(text)},
                           {const_cast<char*>("\n"), 1}};
    if (writev(fd, parts, 3) < 0) {
        // A full disk loses lines, and there is nowhere left to say so.
    }
    close(fd);
    return 0;
}

// "Mar 05 07:08:09", UTC
static void log_stamp(char (&stamp)[32])
{
    const time_t now = time(nullptr);
    tm t{};
    gmtime_r(&now, &t);
    PrintText(stamp, "%3s %02d %02d:%02d:%02d", Month_Name(t.tm_mon + 1), t.tm_mday, t.tm_hour,
              t.tm_min, t.tm_sec);
}

static bool log_module_is_on(unsigned module)
{
    return module > LAST_MODULE || (ModuleSw[module / 8] & (1u << (module % 8)));
}

void Log_Init(const char* fname, int fsize)
{
    CopyText(FileName, fname);
    FileSize = fsize;
    Log_SetAllModule(1);
    if (const char* level = getenv("TM3LOGLEVEL"))
        Level = int(strtol(level, nullptr, 10));
    ktr_system("/bin/mkdir -p /mnt/sys/log");
    Log_Output(LOG_FORCED, -1, "%s", "");
    Log_Output(LOG_FORCED, -1, "=== <<< START LOG >>> ==================================");
    Log_Output(LOG_FORCED, -1, "%s", "");
}

void Log_SetLevel(int level)
{
    Level = level;
}

int Log_GetLevel()
{
    return Level;
}

int Log_SetModule(int module, int v)
{
    if (module < 0 || unsigned(module) > LAST_MODULE)
        return -1;
    const auto bit = uint8_t(1u << (module % 8));
    if (v)
        ModuleSw[module / 8] |= bit;
    else
        ModuleSw[module / 8] &= uint8_t(~bit);
    return 0;
}

int Log_GetModule(int module)
{
    if (module < 0 || unsigned(module) > LAST_MODULE)
        return -1;
    return log_module_is_on(unsigned(module)) ? 1 : 0;
}

void Log_SetAllModule(int v)
{
    memset(ModuleSw, v ? 0xFF : 0, sizeof ModuleSw);
}

const char* Log_Format(const char* format, va_list ap)
{
    if (strlen(format) >= FORMAT_MAX)
        CopyText(Buf, "<<< TOO LONG OUTPUT!!! >>>");
    else
        vsnprintf(Buf, sizeof Buf, format, ap);
    return Buf;
}

int Log_Output(int level, int module, const char* format, ...)
{
    if (Level > level)
        return 1;
    if (!log_module_is_on(unsigned(module)))
        return 2;

    va_list ap;
    va_start(ap, format);
    const char* message = Log_Format(format, ap);
    va_end(ap);
    if (GL_DebugMode)
        puts(message);
    if (FileName[0] == '\0')
        return 1;

    char stamp[32], head[64];
    log_stamp(stamp);
    PrintText(head, "[%s][%3d] ", stamp, module);
    if (log_append(FileName, head, message) != 0)
        return -1;
    if (level >= LOG_LIFE)
        xsys_tagsyslog(6, NumStr(module), "info", "%s", message);
    return 0;
}

int Log_Output2(int level, const char* text)
{
    if (Level > level || FileName[0] == '\0')
        return 1;
    return log_append(FileName, "", text);
}

int get_filelength(const char* path)
{
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return -1;
    const off_t length = lseek(fd, 0, SEEK_END);
    close(fd);
    return length > INT_MAX ? INT_MAX : int(length);
}

int SelfDiag_AddLog(const char* dev, const char* format, ...)
{
    if (GL_IsRamDisk == 1)
        return 1;

    va_list ap;
    va_start(ap, format);
    const char* message = Log_Format(format, ap);
    va_end(ap);

    char stamp[32], head[PATH_SIZE];
    log_stamp(stamp);
    PrintText(head, "[%s] [%s]", stamp, dev);
    return log_append(MAINTENANCE_LOG, head, message);
}
