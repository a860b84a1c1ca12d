// The region streams: any sequence of frames leaves the mirror in range, and nothing is read behind
// a frame. A frame of the input is a byte for the stream, two for the length, and the payload.
#include "a_kf.h"
#include "global.h"
#include "message.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

static void check_region(const KF_REGION& r)
{
    if (memchr(r.regname, '\0', sizeof r.regname) == nullptr)
        abort();
    if (r.runstat < -1 || r.runstat > 1 || r.loopremain > 127 || r.loopend > 0x7FFF)
        abort();
    for (const _keyframe& k : r.kf)
        if (k.duration < 0 || k.duration > 0x7FF || k.pause < 0 || k.pause > 1)
            abort();
    if (r.kf[0].duration != 0 || r.kf[0].pause != 0)
        abort();
}

static void check_order()
{
    bool seen[KF_REGIONS] = {};
    bool is_over = false;
    for (int place = 0; place < KF_REGIONS; place++) {
        const int region = KF_GetRegionPriority(place);
        if (region == KF_NO_REGION) {
            is_over = true;
            continue;
        }
        if (is_over || region < 0 || region >= KF_REGIONS || seen[region])
            abort();
        seen[region] = true;
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static constexpr uint32_t streams[] = {0x200AA, 0x1100AA, 0x1000AA, 0};
    SYS_FrameRate = 30;
    KF_Init();
    for (int row = 1; row <= 2; row++)
        KF_RegionAssignTally(row, row == 1 ? "M/E-1,P/P,DME1,User1" : "MACRO,GPI,Dev12,M/E-5 Sub");
    KF_DefaultRegionPriority();
    while (size >= 3) {
        const uint32_t id = streams[data[0] % 4];
        const size_t length = std::min(size_t(data[1] << 8 | data[2]), size - 3);
        const std::vector<uint8_t> frame(data + 3, data + 3 + length); // ends where its memory ends
        const int result =
            KF_Proc(MSG_BINTALLY, MsgArg(id), Arg(frame.data()), MsgArg(frame.size()), 0);
        if (result != (id == 0))
            abort();
        data += 3 + length;
        size -= 3 + length;
    }
    for (int i = 0; i < KF_REGIONS; i++)
        check_region(*KF_GetRegionStatus(i));
    check_order();
    return 0;
}
