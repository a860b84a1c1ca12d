#include "ready.h"
#include <algorithm>
#include <iterator>
#include <sys/epoll.h>
#include <unistd.h>

#include "safeguards.h"

static_assert(POLLIN == EPOLLIN && POLLOUT == EPOLLOUT);

// The kernel keeps the list of what has something, and a pass at rest asks one question about an
// empty list, not one about each descriptor.
static struct {
    int list = -1; // of the kernel; -1 before the first descriptor
    int fd[READY_OWNERS] = {};
    bool is_watched[READY_OWNERS] = {}; // the kernel has taken it into its list
    bool is_quiet[READY_OWNERS] = {};
} ready; // by owner

// One that has been closed has left the list by itself, and its number may be another owner's.
static void ready_forget(Ready owner)
{
    const int fd = ready.fd[owner];
    ready.fd[owner] = 0;
    ready.is_watched[owner] = ready.is_quiet[owner] = false;
    if (fd > 0 && std::find(std::begin(ready.fd), std::end(ready.fd), fd) == std::end(ready.fd))
        (void)epoll_ctl(ready.list, EPOLL_CTL_DEL, fd, nullptr);
}

void Ready_Watch(Ready owner, int fd, short events)
{
    ready_forget(owner);
    if (fd <= 0)
        return;
    if (ready.list < 0)
        ready.list = epoll_create1(EPOLL_CLOEXEC);
    ready.fd[owner] = fd;
    epoll_event event = {};
    event.events = uint32_t(events);
    event.data.u32 = uint32_t(owner);
    ready.is_watched[owner] = epoll_ctl(ready.list, EPOLL_CTL_ADD, fd, &event) == 0;
}

// An owner without a descriptor is never quiet, nor is one whose descriptor the kernel does not
// watch, and a question that fails finds nobody quiet: a read too many costs nothing, a link that
// is never read would be deaf.
void Ready_Ask()
{
    epoll_event told[READY_OWNERS];
    const int n = epoll_wait(ready.list, told, READY_OWNERS, 0);
    for (int i = 0; i < READY_OWNERS; i++)
        ready.is_quiet[i] = n >= 0 && ready.is_watched[i];
    for (int i = 0; i < n; i++)
        ready.is_quiet[told[i].data.u32] = false;
}

bool Ready_IsQuiet(Ready owner)
{
    return ready.is_quiet[owner];
}
