#include "ready.h"

#include "safeguards.h"

static struct {
    pollfd watched[READY_OWNERS] = {{.fd = -1}, {.fd = -1}, {.fd = -1}, {.fd = -1}, {.fd = -1}};
    bool is_quiet[READY_OWNERS] = {}; // by owner, like the other
} ready;

void Ready_Watch(Ready owner, int fd, short events)
{
    ready.watched[owner] = {.fd = fd > 0 ? fd : -1, .events = events, .revents = 0};
    ready.is_quiet[owner] = false;
}

// An owner without a descriptor is never quiet, and a question that fails finds nobody quiet: a
// read too many costs nothing, a link that is never read would be deaf.
void Ready_Ask()
{
    const bool is_told = poll(ready.watched, READY_OWNERS, 0) >= 0;
    for (int i = 0; i < READY_OWNERS; i++)
        ready.is_quiet[i] = is_told && ready.watched[i].fd > 0 && ready.watched[i].revents == 0;
}

bool Ready_IsQuiet(Ready owner)
{
    return ready.is_quiet[owner];
}
