// ready: which descriptors have something to read. A pass asks once, for all of them; whoever owns
// one then reads it or leaves it alone. Nothing is opened, read or closed here.
#pragma once
#include <poll.h>

enum Ready : int { READY_TEXT, READY_BIN, READY_HUB, READY_TOUCH, READY_DISPLAY, READY_OWNERS };

// The owner's descriptor from now on, and what it waits for: POLLIN, POLLOUT for a connection that
// is being made. 0 or less: it has none, which is also to be told of one that has been closed.
// Until the next question it counts as one that has not been asked for.
void Ready_Watch(Ready owner, int fd, short events = POLLIN);
// The question, without waiting: once a pass, before anything is read.
void Ready_Ask();
// The last question found nothing: there is no use in reading. False for what has not been asked
// for: it is tried.
bool Ready_IsQuiet(Ready owner);
