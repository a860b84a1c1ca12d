#include "process.h"
#include "log.h"
#include "memory.h"
#include "text.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "safeguards.h"

volatile int cpid = 0;

namespace
{
constexpr int WORDS_MAX = 64;
constexpr size_t COMMAND_MAX = 4096;
constexpr long OPEN_MAX_GUESS = 256; // where the system sets no limit
constexpr long POPEN_MAX = 1024;     // where it allows a million

// What ktr_system takes away from the process while its child runs.
struct Signals {
    struct sigaction interrupt;
    struct sigaction quit;
    sigset_t mask;
};
struct Words {
    char text[COMMAND_MAX];
    char* word[WORDS_MAX + 1];
};
} // namespace

static pid_t* popen_child =
    nullptr; // by file descriptor, 0: not a stream of ours; null before the first
static long popen_size = 0;

static void process_hold_signals(Signals& saved)
{
    struct sigaction ignore {
    };
    ignore.sa_handler = SIG_IGN;
    sigemptyset(&ignore.sa_mask);
    sigaction(SIGINT, &ignore, &saved.interrupt);
    sigaction(SIGQUIT, &ignore, &saved.quit);
    sigset_t child;
    sigemptyset(&child);
    sigaddset(&child, SIGCHLD);
    sigprocmask(SIG_BLOCK, &child, &saved.mask);
}

static void process_restore_signals(const Signals& saved)
{
    sigaction(SIGINT, &saved.interrupt, nullptr);
    sigaction(SIGQUIT, &saved.quit, nullptr);
    sigprocmask(SIG_SETMASK, &saved.mask, nullptr);
}

// The wait status of one child, -1 when somebody else has taken it.
static int process_wait(pid_t pid)
{
    int status = -1;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return status;
}

// Cut a command into words, in place. The number of words, -1 for too many or an open quotation.
static int process_split(char* text, char* (&words)[WORDS_MAX + 1])
{
    int n = 0;
    for (char* in = text; *in;) {
        if (isspace(uint8_t(*in))) {
            in++;
            continue;
        }
        if (n == WORDS_MAX)
            return -1;
        char* out = in;
        words[n++] = out;
        bool is_quoted = false;
        for (; *in && (is_quoted || !isspace(uint8_t(*in))); in++) {
            if (*in == '"')
                is_quoted = !is_quoted;
            else
                *out++ = *in;
        }
        if (is_quoted)
            return -1;
        if (*in)
            in++;
        *out = '\0';
    }
    words[n] = nullptr;
    return n;
}

static bool process_words(Words& w, const char* cmd)
{
    if (!cmd || strlen(cmd) >= sizeof w.text)
        return false;
    CopyText(w.text, cmd);
    return process_split(w.text, w.word) > 0;
}

// A program, started with the signals as they were before they were held. Spawned and not forked,
// as all here: nothing of this process is copied for one that replaces it at once. 0 or an error.
static int process_spawn(pid_t* pid, Words& w, const Signals& saved)
{
    sigset_t back;
    sigemptyset(&back);
    if (saved.interrupt.sa_handler != SIG_IGN)
        sigaddset(&back, SIGINT);
    if (saved.quit.sa_handler != SIG_IGN)
        sigaddset(&back, SIGQUIT);
    posix_spawnattr_t attr;
    posix_spawnattr_init(&attr);
    posix_spawnattr_setsigdefault(&attr, &back);
    posix_spawnattr_setsigmask(&attr, &saved.mask);
    posix_spawnattr_setflags(&attr, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    const int error = posix_spawn(pid, w.word[0], nullptr, &attr, w.word, environ);
    posix_spawnattr_destroy(&attr);
    return error;
}

// There is no such program: the drives are written all the same. The wait status of a failure.
static int process_no_program()
{
    constexpr int EXIT_STATUS = 0xFF;
    sync();
    return EXIT_STATUS << 8;
}

// SIGCHLD stays blocked until the child is reaped here, and cpid is clear by then: the handler must
// not take the status away.
int ktr_system(const char* cmd)
{
    if (!cmd)
        return -1;
    Words w;
    Signals saved;
    process_hold_signals(saved);
    pid_t pid = -1;
    const int error = process_words(w, cmd) ? process_spawn(&pid, w, saved) : ENOENT;
    int status = -1;
    if (error == 0) {
        cpid = pid;
        status = process_wait(pid);
        cpid = 0;
    } else if (error != EAGAIN && error != ENOMEM) {
        status = process_no_program();
    }
    fflush(nullptr);
    process_restore_signals(saved);
    return status;
}

int ktr_exec(const char* cmd)
{
    Words w;
    if (process_words(w, cmd))
        execv(w.word[0], w.word);
    return -1;
}

int ktr_start(const char* cmd)
{
    Words w;
    pid_t pid = -1;
    if (!process_words(w, cmd) ||
        posix_spawn(&pid, w.word[0], nullptr, nullptr, w.word, environ) != 0)
        return -1;
    return pid;
}

int ktr_has_ended(int child, int* status)
{
    const pid_t pid = waitpid(child, status, WNOHANG);
    if (pid < 0 && errno != EINTR) {
        *status = -1;
        return 1;
    }
    return pid > 0;
}

static long open_max()
{
    const long n = sysconf(_SC_OPEN_MAX);
    return n > 0 ? std::min(n, POPEN_MAX) : OPEN_MAX_GUESS;
}

static bool popen_table()
{
    if (popen_child)
        return true;
    popen_size = open_max();
    popen_child = static_cast<pid_t*>(GDL_Calloc(size_t(popen_size), sizeof *popen_child));
    return popen_child != nullptr;
}

// The child's end of the pipe becomes its standard input or output. Other streams close by
// themselves: pipes, sockets and the panel are close-on-exec. The child, -1 when there is none.
static pid_t popen_run(const char* cmd, int end, int standard)
{
    char shell[] = "sh", option[] = "-c";
    char* const words[] = {shell, option, const_cast<char*>(cmd), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, end, standard);
    pid_t pid = -1;
    const int error = posix_spawn(&pid, "/bin/sh", &actions, nullptr, words, environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? pid : -1;
}

FILE* ktr_popen(const char* cmd, const char* type)
{
    if (!cmd || !type || (strcmp(type, "r") != 0 && strcmp(type, "w") != 0))
        return nullptr;
    const bool is_read = type[0] == 'r';
    int pipe_fd[2];
    if (!popen_table() || pipe2(pipe_fd, O_CLOEXEC) != 0)
        return nullptr;
    const int mine = pipe_fd[is_read ? 0 : 1];
    const int theirs = pipe_fd[is_read ? 1 : 0];

    FILE* fp = mine < popen_size ? fdopen(mine, type) : nullptr;
    const pid_t pid = fp ? popen_run(cmd, theirs, is_read ? STDOUT_FILENO : STDIN_FILENO) : -1;
    close(theirs);
    if (pid < 0) {
        if (fp)
            fclose(fp);
        else
            close(mine);
        return nullptr;
    }
    popen_child[mine] = pid;
    return fp;
}

int ktr_pclose(FILE* fp)
{
    if (!fp || !popen_child)
        return -1;
    const int fd = fileno(fp);
    if (fd < 0 || fd >= popen_size || popen_child[fd] == 0)
        return -1;
    const pid_t pid = popen_child[fd];
    popen_child[fd] = 0;
    // A writer whose reader has gone away fails here; its status tells the rest.
    fclose(fp);
    return process_wait(pid);
}

int ktr_system_and_redirect(const char* cmd, const char* file)
{
    if (!cmd || !file)
        return -1;
    FILE* out = fopen(file, "we");
    if (!out)
        return -1;
    FILE* in = ktr_popen(cmd, "r");
    if (!in) {
        fclose(out);
        return -1;
    }
    char line[256];
    while (fgets(line, sizeof line, in))
        fputs(line, out);
    fclose(out);
    return ktr_pclose(in);
}

int ktr_shell(const char* cmd)
{
    return cmd ? system(cmd) : -1;
}

static bool process_is_safe(char c)
{
    return isalnum(uint8_t(c)) || (c && strchr("/._-:@+ ", c));
}

int IsShellSafe(const char* text)
{
    if (!text)
        return 0;
    for (const char* p = text; *p; p++) {
        if (process_is_safe(*p))
            continue;
        Log_Output(LOG_LINK, MOD_GLOBAL, "Refused for the shell: [%s]", text);
        return 0;
    }
    return 1;
}

int ShellWord(char* dst, size_t size, const char* text)
{
    const char* quote = text && strchr(text, ' ') ? "\"" : "";
    if (size > 0)
        dst[0] = '\0';
    if (!IsShellSafe(text) || strlen(text) + 2 * strlen(quote) >= size)
        return 0;
    snprintf(dst, size, "%s%s%s", quote, text, quote);
    return 1;
}

void WaitSec(int sec)
{
    if (sec > 0)
        SDL_Delay(uint32_t(sec) * 1000);
}

int FileExist(const char* fn)
{
    struct stat st;
    return fn && stat(fn, &st) == 0;
}

static int process_make_one(const char* dir)
{
    struct stat st;
    if (mkdir(dir, 0777) == 0)
        return 0;
    return errno == EEXIST && stat(dir, &st) == 0 && S_ISDIR(st.st_mode) ? 0 : -1;
}

int MakeDir(const char* dir)
{
    char path[PATH_SIZE];
    if (!dir || !dir[0] || strlen(dir) >= sizeof path)
        return -1;
    CopyText(path, dir);
    for (char* p = path + 1; *p; p++) {
        if (*p != '/')
            continue;
        *p = '\0';
        if (process_make_one(path) != 0)
            return -1;
        *p = '/';
    }
    return process_make_one(path);
}
