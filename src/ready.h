// ready: which descriptors have something to read. A pass asks once, for all of them; whoever owns
// one then reads it or leaves it alone. Nothing is opened, read or closed here.
#pragma once
#include <poll.h>

enum Ready : int { READY_TEXT, READY_BIN, READY_HUB, READY_TOUCH, READY_DISPLAY, READY_OWNERS };

// The owner's descriptor from now on, and what it waits for: POLLIN, POLLOUT for a connection that
// is being made. 0 or less: it has none, which is also to be told of one that has been closed.
// Until the next question it counts as one that has not been asked for.
void Ready_Watch(Ready owner, int fd, short events = POLLIN);
// The question, without waiting: before anything is read.
void Ready_Ask();
// The rest of a pass, ms long (1 or more), and the question at its end. At rest, which most passes
// are, both are one call of the kernel. What comes in meanwhile does not make the wait shorter.
void Ready_Rest(int ms);
// The last question found nothing: there is no use in reading. False for what has not been asked
// for: it is tried.
bool Ready_IsQuiet(Ready owner);
