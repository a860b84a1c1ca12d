// lost_server: a server that is given up, as a pass notices it.
#pragma once
#include "bus.h"
#include "harness.h"
#include "netio_private.h"

inline void LoseServer()
{
    (void)Net_FeedText(std::string(405, '-').c_str(), 405); // no end, and no room for one
    for (int pass = 0; pass < 2; pass++, Clock_ms += 60000)
        ReceiveCommand_Management();
}
