// The binary link's frame splitter: every frame has the size that its first two bytes say, and no
// byte is taken twice.
#include "netio_private.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    unsigned char buf[8192];
    unsigned char frame[NET_FRAME_MAX];
    int fill = 0;
    while (size > 0) {
        const size_t piece = std::min({size, sizeof buf - size_t(fill), size_t(1) + data[0] * 32u});
        if (piece == 0)
            abort(); // a full buffer always holds a frame
        memcpy(buf + fill, data, piece);
        fill += int(piece);
        data += piece;
        size -= piece;
        for (;;) {
            const int before = fill;
            const int taken = net_take_frame(buf, &fill, frame);
            if (taken < 1) {
                if (fill != (taken < 0 ? 0 : before))
                    abort();
                break;
            }
            if (taken != (frame[0] << 8 | frame[1]) + 2 || fill != before - taken)
                abort();
        }
    }
    return 0;
}
