// bench_keyframe: what the timeline costs: a row's bar, the strip, and a pass full of frames.
#include "../tests/support/a_kf_frames.h"
#include "a_kf.h"
#include "a_kf_private.h"
#include "bench_support.h"
#include "global.h"
#include "graphics.h"
#include <cstdio>

namespace
{
constexpr int KEYFRAMES = 99;
constexpr int FRAMES_A_PASS = 257;

kf::Bytes status;
kf::Bytes data;

void bar()
{
    (void)tl_drawtl(&Region[0], 0);
}

void strip()
{
    KF_DrawTopArea(KF_DRAW_ANEW);
}

void send(uint32_t id, const kf::Bytes& frame)
{
    KF_Proc(MSG_BINTALLY, MsgArg(id), Arg(frame.data()), MsgArg(frame.size()), 0);
}

void pass_of_status()
{
    for (int i = 0; i < FRAMES_A_PASS; i++)
        send(kf::STATUS, status);
}

void region_frame()
{
    send(kf::DATA, data);
}

void load()
{
    kf::Data d = {.code = 1, .regname = "OPENING ", .start = {1, 0, 0, 0}, .end = {1, 1, 0x39, 0}};
    d.loopstart = 20;
    d.loopend = 60;
    for (int k = 0; k < KEYFRAMES; k++)
        d.keyframes.push_back(k % 4 == 0 ? kf::PAUSE | 30 : 30);
    data = kf::DataFrame(d);
    status = kf::StatusFrame(
        {.code = 1, .time = {1, 0, 0x30, 0x12}, .keyframe = 31, .run = 1, .loop = 0x83});
    send(kf::DATA, data);
    send(kf::STATUS, status);
    tlSTime = Region[0].stime;
    tlETime = Region[0].etime;
}
} // namespace

int main(int argc, char** argv)
{
    // A pass of frames may take 0.5 ms where a copy of the screen takes a quarter of one.
    static constexpr BenchCase cases[] = {
        {.name = "bar of 99 keyframes, looping", .once = bar, .limit_copies = 1},
        {.name = "strip at top right", .once = strip, .limit_copies = 0.5},
        {.name = "257 status frames", .once = pass_of_status, .limit_copies = 2},
        {.name = "region frame of 99 keyframes", .once = region_frame},
    };
    Bench_Screen();
    if (!G_KF_off) {
        fprintf(stderr, "no bitmaps in the run folder\n");
        return 1;
    }
    SYS_FrameRate = 30;
    KF_Init();
    load();
    return Bench_Main(argc, argv, cases);
}
