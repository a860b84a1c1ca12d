// Connecting without waiting: an attempt is begun, then looked at once a call until the host has
// answered. A host that is switched off answers nothing at all, and the screen must not notice.
#include "global.h"
#include "log.h"
#include "netio_private.h"
#include "text.h"
#include <SDL.h>
#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "safeguards.h"

// An attempt without an answer is given up after this time and made anew: the kernel repeats its
// own at ever longer intervals, and a host that comes back would be found a minute late.
static constexpr uint32_t ANSWER_MS = 5000;
// A name that did not resolve is not looked up again before this time: each look-up is a process.
static constexpr uint32_t LOOKUP_PAUSE_MS = 1000;
static constexpr unsigned LOOKUP_LIMIT_S = 30;
// A host that refuses for so long may have moved: its name is looked up again.
static constexpr uint32_t ADDRESS_MS = 10000;

static uint32_t dial_age(const NetDial& dial)
{
    return SDL_GetTicks() - dial.begun;
}

// --- Names ---

// The child: look the name up, which may take the resolver many seconds, and write the address. It
// holds none of our links meanwhile: the server would not see them end.
[[noreturn]] static void lookup_run(const char* name, int out)
{
    dup2(out, STDOUT_FILENO);
    for (int fd = STDERR_FILENO + 1; fd < NET_FD_MAX; fd++)
        close(fd);
    signal(SIGALRM, SIG_DFL);
    alarm(LOOKUP_LIMIT_S);
    const hostent* host = gethostbyname(name);
    if (!host || host->h_addrtype != AF_INET || !host->h_addr_list[0])
        _exit(1);
    const ssize_t n = write(STDOUT_FILENO, host->h_addr_list[0], sizeof(in_addr_t));
    _exit(n == ssize_t(sizeof(in_addr_t)) ? 0 : 1);
}

static bool lookup_begin(NetDial* dial)
{
    int pipe_fd[2];
    if (pipe2(pipe_fd, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    const pid_t pid = fork();
    if (pid == 0)
        lookup_run(dial->name, pipe_fd[1]);
    close(pipe_fd[1]);
    if (pid < 0) {
        close(pipe_fd[0]);
        return false;
    }
    dial->lookup_pid = pid;
    dial->lookup_fd = pipe_fd[0];
    Ready_Watch(dial->owner, pipe_fd[0]);
    return true;
}

static void lookup_end(NetDial* dial)
{
    if (dial->lookup_pid == 0)
        return;
    close(dial->lookup_fd);
    Ready_Watch(dial->owner, 0);
    kill(dial->lookup_pid, SIGKILL); // it is through, or nobody waits for it any more
    while (waitpid(dial->lookup_pid, nullptr, 0) < 0 && errno == EINTR)
        ;
    dial->lookup_pid = 0;
    dial->lookup_fd = -1;
}

// NET_PENDING until the child has written, then 1, or NET_FAILED when the name has no address.
static int lookup_look(NetDial* dial)
{
    if (Ready_IsQuiet(dial->owner))
        return NET_PENDING;
    in_addr_t address = 0;
    const ssize_t n = read(dial->lookup_fd, &address, sizeof address);
    if (n < 0 && (errno == EAGAIN || errno == EINTR))
        return NET_PENDING;
    lookup_end(dial);
    if (n != ssize_t(sizeof address))
        return NET_FAILED;
    dial->address = address;
    dial->found = SDL_GetTicks();
    return 1;
}

// 1 when dial has the address of this host.
static int dial_resolve(NetDial* dial, const char* host)
{
    if (dial->lookup_pid != 0 && strcmp(dial->name, host) == 0)
        return lookup_look(dial);
    lookup_end(dial); // of another host
    if (dial->address != INADDR_NONE && strcmp(dial->name, host) == 0)
        return 1;
    dial->address = inet_addr(host);
    CopyText(dial->name, host);
    if (dial->address != INADDR_NONE)
        return 1;
    return *host && lookup_begin(dial) ? NET_PENDING : NET_FAILED;
}

// --- The connection ---

// 0 would read as "not connected".
static bool dial_open(NetDial* dial)
{
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const int on = 1;
    (void)setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on); // connects without it as well
    if (fd == 0)
        close(fd);
    if (fd <= 0)
        return false;
    dial->fd = fd;
    Ready_Watch(dial->owner, fd, POLLOUT);
    return true;
}

// 1 when the connection stands.
static int dial_connect(NetDial* dial, int port)
{
    sockaddr_in server{};
    server.sin_family = AF_INET;
    server.sin_port = htons(uint16_t(port));
    server.sin_addr.s_addr = dial->address;
    if (!dial_open(dial))
        return NET_FAILED;
    if (connect(dial->fd, reinterpret_cast<sockaddr*>(&server), sizeof server) == 0)
        return 1;
    return errno == EINPROGRESS ? NET_PENDING : NET_FAILED;
}

static bool dial_has_answer(const NetDial& dial)
{
    pollfd p = {.fd = dial.fd, .events = POLLOUT, .revents = 0};
    return !Ready_IsQuiet(dial.owner) && poll(&p, 1, 0) > 0;
}

static int dial_look(const NetDial& dial)
{
    if (!dial_has_answer(dial))
        return dial_age(dial) > ANSWER_MS ? NET_FAILED : NET_PENDING;
    int error = 0;
    socklen_t size = sizeof error;
    const bool is_up = getsockopt(dial.fd, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
    return is_up ? 1 : NET_FAILED;
}

static void dial_failed(NetDial* dial)
{
    Log_Output(LOG_LINK, MOD_LINK, "ERROR: Failed to connect server");
    net_close(&dial->fd);
    Ready_Watch(dial->owner, 0);
    if (SDL_GetTicks() - dial->found > ADDRESS_MS)
        dial->address = INADDR_NONE;
}

bool net_may_begin(const NetDial& dial)
{
    const bool is_under_way = dial.fd > 0 || dial.lookup_pid != 0;
    return !is_under_way && !(dial.is_paused && dial_age(dial) < LOOKUP_PAUSE_MS);
}

// 1 when the address is known and a connection can be begun or is.
static int dial_host(NetDial* dial, const char* host)
{
    if (dial->fd > 0)
        return 1;
    const int found = dial_resolve(dial, host);
    dial->is_paused = found == NET_FAILED;
    dial->begun = SDL_GetTicks();
    return found;
}

int net_dial(NetDial* dial, const char* host, int port, int* fd)
{
    if (dial->is_paused && !net_may_begin(*dial))
        return NET_PENDING;
    const int found = dial_host(dial, host);
    if (found < 1)
        return found;
    const int state = dial->fd > 0 ? dial_look(*dial) : dial_connect(dial, port);
    if (state == NET_FAILED)
        dial_failed(dial);
    if (state < 1)
        return state;
    *fd = dial->fd;
    dial->fd = 0;
    Ready_Watch(dial->owner, *fd);
    return 1;
}

void net_hang_up(NetDial* dial)
{
    lookup_end(dial);
    net_close(&dial->fd);
    Ready_Watch(dial->owner, 0);
    *dial = {.owner = dial->owner};
}

int net_connect_inet(NetDial* dial, int port, int* fd)
{
    if (net_may_begin(*dial))
        Log_Output(LOG_TRACE, MOD_LINK, "create_inet_connection(%s:%d)", GL_ServerAddress, port);
    const int state = net_dial(dial, GL_ServerAddress, port, fd);
    if (state == 1)
        GL_NetReConnect = 1;
    return state;
}
