#include "safe_file.h"
#include "log.h"
#include "text.h"
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

#include "safeguards.h"

constexpr char BESIDE[] = ".new";

// The path stays, so that a later Commit of the same struct fails like this one.
static int give_up(SafeFile& file, const char* step)
{
    Log_Output(LOG_ALWAYS, MOD_GLOBAL, "Can't write %s: %s, %s", file.path, step, strerror(errno));
    SafeFile_Abandon(file);
    return -1;
}

int SafeFile_Open(SafeFile& file, const char* path)
{
    file = {};
    CopyText(file.path, path);
    if (strlen(path) + sizeof BESIDE > sizeof file.beside) {
        errno = ENAMETOOLONG;
        return give_up(file, "name");
    }
    PrintText(file.beside, "%s%s", path, BESIDE);
    file.fp = fopen(file.beside, "we");
    return file.fp ? 0 : give_up(file, "open");
}

// The new name is on the disk only when its directory is. A file system that cannot sync one keeps
// the order all the same or has no disk.
static void sync_directory(const char* path)
{
    char dir[PATH_SIZE];
    CopyText(dir, path);
    char* slash = strrchr(dir, '/');
    if (slash)
        slash[slash == dir ? 1 : 0] = '\0';
    const int fd = open(slash ? dir : ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    (void)fsync(fd);
    close(fd);
}

static int commit(SafeFile& file, bool to_disk)
{
    if (!file.fp)
        return -1; // told when it was opened
    if (fflush(file.fp) != 0 || ferror(file.fp))
        return give_up(file, "write");
    if (to_disk && fsync(fileno(file.fp)) != 0)
        return give_up(file, "sync");
    FILE* fp = file.fp;
    file.fp = nullptr;
    if (fclose(fp) != 0)
        return give_up(file, "close");
    if (rename(file.beside, file.path) != 0)
        return give_up(file, "rename");
    if (to_disk)
        sync_directory(file.path);
    return 0;
}

int SafeFile_Commit(SafeFile& file)
{
    return commit(file, true);
}

int SafeFile_CommitUnsynced(SafeFile& file)
{
    return commit(file, false);
}

void SafeFile_Abandon(SafeFile& file)
{
    if (file.fp)
        fclose(file.fp);
    file.fp = nullptr;
    if (file.beside[0])
        (void)unlink(file.beside); // it may not even have been made
}

int SafeFile_Write(const char* path, const void* bytes, size_t size)
{
    SafeFile file;
    if (SafeFile_Open(file, path) != 0)
        return -1;
    if (size > 0)
        (void)fwrite(bytes, size, 1, file.fp); // the stream remembers a failure
    return SafeFile_Commit(file);
}
