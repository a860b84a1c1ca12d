// The timeline as it looks: every state of a row, the strip at top right.
#include "a_ba.h"
#include "pc_kf_page.h"

struct TimelinePictures : testing::Test {
    PAGE page;

    void SetUp() override
    {
        Harness_Reset();
        SYS_FrameRate = 30;
        page = {.id = 0x61110000,
                .tree = {"Key Frame", "Time Line"},
                .obj = {{OBJ_BA, &base_kf_tl, 0}, {OBJ_KF, &kf_tl, 0}}};
        Page = &page;
        GL_NowPage = page.id;
        GL_NowTree = page.tree;
        KF_RegionAssignTally(1, "M/E-1,M/E-1 Sub,M/E-2,P/P");
        KF_RegionAssignTally(2, "User1,DME1,Dev1,MACRO");
        KF_DefaultRegionPriority();
    }
    void TearDown() override { Harness_Reset(); }
};

// A time in frames from 1:00:00:00 on.
static kf::Code At(int frames)
{
    return kf::At(3600 * 30 + frames);
}

// A running loop under the cursor, a delay, a pause ahead of the cursor, one keyframe, a keyframe
// at the end of the axis, an endless loop in reverse, a cursor behind the end, one that starts
// first, stacked keyframes behind a pause.
static void SendRegions()
{
    constexpr int P = kf::PAUSE;
    static const struct {
        int code, regnum, start, delay, length;
        std::vector<int> keyframes;
        int cursor, keyframe, run = 0, loop = 0, loopstart = 0, loopend = 0, loopnum = 0, flags = 0;
    } rows[] = {
        {1, 12, 0, 0, 300, {45, 60, 30, 90, P, 0, 45, 30}, 100, 3, 1, 0x82, 2, 5, 3, 2},
        {5, 12, 15, 15, 180, {60, 60, 60}, 75, 2},
        {2, 7, 30, 30, 240, {30, 30, P | 30, 30, 60, 60}, 60, 3, 1},
        {0, 1, 0, 0, 150, {150}, 0, 1},
        {8, 101, 0, 0, 300, {90, 210, 0}, 300, 3},
        {16, 210, 45, 45, 200, {20, 20, 20, 20, 120}, 140, 5, 0x11, 0x80, 1, 4, 0, 2},
        {32, 210, 45, 0, 200, {200}, 270, 1},
        {48, 3, -60, 0, 240, {30, 90, 120}, 0, 1, 0x11},
        {69, 44, 60, 60, 180, {P | 60, 0, 0, 60, 60}, 90, 1},
    };
    for (const auto& r : rows) {
        kf::Send(kf::Data{.code = r.code,
                          .regnum = r.regnum,
                          .regname = "OPENING ",
                          .flags = r.flags,
                          .freekf = 986,
                          .start = At(r.start),
                          .delay = kf::At(r.delay),
                          .end = At(r.start + r.length),
                          .duration = kf::At(r.length),
                          .loopstart = r.loopstart,
                          .loopend = r.loopend,
                          .loopnum = r.loopnum,
                          .keyframes = r.keyframes});
        kf::Send(kf::Status{r.code, At(r.cursor), r.keyframe, r.run, r.loop});
    }
}

TEST_F(TimelinePictures, Page)
{
    SendRegions();
    kf::Select({1, 0x26, 0x01, 0x01, 0, 0, 0x80, 0});
    BA_Create(&base_kf_tl, 0);
    KF_Create(&kf_tl, 0);
    for (int i = 0; i < 2; i++) // the first finds the axis
        KF_Proc(MSG_REDRAW, 1000, 0, 0, 0);
    EXPECT_TRUE(MatchesGolden("timeline"));
}

struct KeyframePictures : KeyframePage {
    void SetUp() override
    {
        KeyframePage::SetUp();
        kf::AssignAll();
        KF_DefaultRegionPriority();
        kf::Select({1, 0x07, 0x01, 0x04, 0, 0, 0, 0});
    }
    static void Paint()
    {
        Pass(10);
        Pass(10);
    }
};

TEST_F(KeyframePictures, TimelineAssign)
{
    KF_SetRegionDisplay(1, 1);
    CreatePage(0x61150000);
    Paint();
    EXPECT_TRUE(MatchesGolden("timeline_assign"));
    for (const auto& [name, reference] : {std::pair{"sub", 5}, {"macro", 69}}) {
        kf::Select({static_cast<unsigned char>(reference), 0x07, 0x01, 0x04, 0, 0, 0, 0});
        Paint();
        EXPECT_TRUE(MatchesGolden(std::string("timeline_of_") + name, {508, 6, 797, 65}));
    }
}

// A reference, a selected region, one of two, none, a grey one that is half selected.
TEST_F(KeyframePictures, RegionSelect)
{
    SYS_3DMode = 1;
    CreatePage(0x61170000);
    TenKey(1, "M/E-1,M/E-2,DME4,");
    TenKey(2, "P/P,,,");
    TenKey(3, "User1,User2,Dev12,MACRO");
    TenKey(4, "M/E-5 Sub,,,");
    TenKey(5, "M/E-3,M/E-1,,");
    TenKey(23, "P-Bus,GPI,,");
    Paint();
    EXPECT_TRUE(MatchesGolden("region_select"));
}
