// Writing the drives at the end of a job. It can take seconds with a stick, and for ever with a
// network drive that has gone: a child does it, the screen goes on, and the job's pane stays until
// the child has ended, so that "gone" means that a stick may be pulled.
#include "file_private.h"
#include "log.h"
#include "process.h"
#include <cerrno>
#include <sys/wait.h>
#include <unistd.h>

#include "safeguards.h"

// Spawned: behind a fork each page of memory that is written costs a fault, and the next change of
// the screen writes hundreds.
static int start_child()
{
    const int pid = ktr_start("/bin/sh -c \"/bin/sync; /bin/sync\"");
    if (pid < 0)
        Log_Output(LOG_ALWAYS, MOD_FILE, "no process for sync, errno=%d", errno);
    return pid;
}

static int (*sync_start)() = start_child;

int file_sync_start()
{
    Log_Output(LOG_TRACE, MOD_FILE, "Sync...");
    return sync_start();
}

// Where there is no process or no program for it, the screen waits: "gone" must be true.
bool file_sync_is_done(int pid)
{
    int status = 0;
    if (pid > 0 && !ktr_has_ended(pid, &status))
        return false;
    if (pid < 0 || (WIFEXITED(status) && WEXITSTATUS(status) != 0)) {
        sync();
        sync();
    }
    Log_Output(LOG_TRACE, MOD_FILE, "...done");
    return true;
}

static int released[8]; // children to be taken off the kernel's hands, 0 free

void file_sync_release(int pid)
{
    if (pid <= 0)
        return;
    for (int& place : released) {
        if (place != 0)
            continue;
        place = pid;
        return;
    }
    Log_Output(LOG_LINK, MOD_FILE, "sync %d is left alone", pid);
}

void file_sync_tick()
{
    for (int& place : released)
        if (place != 0 && waitpid(place, nullptr, WNOHANG) != 0)
            place = 0;
}

void File_ReplaceSync(int (*start)())
{
    sync_start = start ? start : start_child;
}
