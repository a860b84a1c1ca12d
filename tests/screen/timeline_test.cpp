// The timeline as it looks: every state of a row, the strip at top right.
#include "a_ba.h"
#include "a_kf.h"
#include "a_kf_frames.h"
#include "global.h"
#include "graphics.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pc_kf_page.h"
#include "tdl.h"

struct TimelinePictures : testing::Test {
    PAGE page;

    void SetUp() override
    {
        Harness_Reset();
        SYS_FrameRate = 30;
        GL_TimelineDisplayPriority = 0;
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
    void TearDown() override
    {
        KF_Create(nullptr, 0);
        BA_Create(nullptr, 0);
        KF_Init();
        SYS_FrameRate = 60;
        Page_Reset();
    }
    static void Open()
    {
        BA_Create(&base_kf_tl, 0);
        KF_Create(&kf_tl, 0);
        Pass();
        Pass(); // the first has found the axis
    }
    static void Pass() { KF_Proc(MSG_REDRAW, 1000, 0, 0, 0); }
};

// The rows: a running loop under the cursor, a delay, a pause under the cursor, one keyframe, the
// end of the axis, an endless loop in reverse, a global twin, stacked keyframes behind a pause.
static void SendRegions()
{
    const auto send = [](kf::Data d, const kf::Status& s) {
        d.code = s.code;
        kf::Send(kf::DATA, kf::DataFrame(d));
        kf::Send(kf::STATUS, kf::StatusFrame(s));
    };
    constexpr kf::Code zero = {1, 0, 0, 0};
    constexpr kf::Code half = {0, 0, 0, 0x15};
    constexpr int P = kf::PAUSE;
    send({.regnum = 12,
          .regname = "OPENING ",
          .flags = 2,
          .freekf = 986,
          .start = zero,
          .end = {0, 0, 0x10, 0},
          .duration = {0, 0, 0x10, 0},
          .loopstart = 2,
          .loopend = 5,
          .loopnum = 3,
          .keyframes = {45, 60, 30, 90, P, 0, 45, 30}},
         {.code = 1, .time = {1, 0, 3, 0x10}, .keyframe = 3, .run = 1, .loop = 0x82});
    send({.regnum = 12,
          .start = {1, 0, 0, 0x15},
          .delay = half,
          .end = {1, 0, 6, 0x15},
          .duration = {0, 0, 6, 0},
          .keyframes = {60, 60, 60}},
         {.code = 5, .time = {1, 0, 2, 0x15}, .keyframe = 2});
    send({.regnum = 7,
          .start = {1, 0, 1, 0},
          .delay = {0, 0, 1, 0},
          .end = {1, 0, 9, 0},
          .duration = {0, 0, 8, 0},
          .keyframes = {30, 30, P | 30, 30, 60, 60}},
         {.code = 2, .time = {1, 0, 2, 0}, .keyframe = 3, .run = 1});
    send({.regnum = 1,
          .start = zero,
          .end = {1, 0, 5, 0},
          .duration = {0, 0, 5, 0},
          .keyframes = {150}},
         {.code = 0, .time = zero, .keyframe = 1});
    send({.regnum = 101,
          .start = zero,
          .end = {1, 0, 0x10, 0},
          .duration = {0, 0, 0x10, 0},
          .keyframes = {90, 210, 0}},
         {.code = 8, .time = {1, 0, 0x10, 0}, .keyframe = 3});
    send({.regnum = 210,
          .flags = 2,
          .start = {1, 0, 1, 0x15},
          .delay = {0, 0, 1, 0x15},
          .end = {1, 0, 8, 5},
          .duration = {0, 0, 6, 0x20},
          .loopstart = 1,
          .loopend = 8,
          .keyframes = {20, 20, 20, 20, 20, 20, 20, 20, 40}},
         {.code = 16, .time = {1, 0, 4, 0x20}, .keyframe = 5, .run = 0x11, .loop = 0x80});
    send({.regnum = 210,
          .start = {1, 0, 1, 0x15},
          .end = {1, 0, 8, 5},
          .duration = {0, 0, 6, 0x20},
          .keyframes = {200}},
         {.code = 32, .time = {1, 0, 9, 0}, .keyframe = 1});
    send({.regnum = 3,
          .start = {0, 0x59, 0x58, 0},
          .end = {1, 0, 8, 0},
          .duration = {0, 0, 8, 0},
          .keyframes = {30, 90, 120}},
         {.code = 48, .time = zero, .keyframe = 1, .run = 0x11});
    send({.regnum = 44,
          .start = {1, 0, 2, 0},
          .delay = {0, 0, 2, 0},
          .end = {1, 0, 8, 0},
          .duration = {0, 0, 6, 0},
          .keyframes = {P | 60, 0, 0, 60, 60}},
         {.code = 69, .time = {1, 0, 3, 0}, .keyframe = 1});
}

TEST_F(TimelinePictures, Page)
{
    SendRegions();
    kf::Select({1, 0x26, 0x01, 0x01, 0, 0, 0x80, 0});
    Open();
    EXPECT_TRUE(MatchesGolden("timeline"));
}

TEST_F(TimelinePictures, AnEmptyAxis)
{
    kf::Data d = {.code = 1, .regnum = 5, .regname = "STILL   ", .keyframes = {30, 30}};
    kf::Send(kf::DATA, kf::DataFrame(d));
    Open();
    EXPECT_TRUE(MatchesGolden("timeline_empty", {0, 73, 702, 552}));
}

TEST_F(TimelinePictures, Strip)
{
    static const struct {
        int reference;
        kf::Status status;
        int pushed;
        const char* picture;
    } cases[] = {
        {5, {.code = 5, .time = {0, 0, 4, 0x12}, .keyframe = 3}, 0, "strip_sub"},
        {32, {.code = 32, .time = {0x80, 0, 4, 0x12}}, 150, "strip_global_pushed"},
        {69, {.code = 69, .time = {0x12, 0x34, 0x56, 0}, .keyframe = 999}, 0, "strip_macro"},
    };
    for (const auto& c : cases) {
        kf::Send(kf::DATA, kf::DataFrame({.code = c.status.code,
                                          .regnum = 399,
                                          .regname = "ABCDEFGH",
                                          .freekf = 999,
                                          .kfnum = 999}));
        kf::Send(kf::STATUS, kf::StatusFrame(c.status));
        kf::Select({c.reference, 0, 0, 0, 0, 0, 0, 0});
        TDL_FillRectS(508, 6, 797, 65, 0x1F1F1F);
        KF_DrawTopArea(c.pushed);
        EXPECT_TRUE(MatchesGolden(c.picture, {500, 0, 799, 72}));
    }
}

// --- The pages around it ---

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
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    }
};

TEST_F(KeyframePictures, TimelineAssign)
{
    KF_SetRegionDisplay(1, 1);
    Open(0x61150000);
    Paint();
    EXPECT_TRUE(MatchesGolden("timeline_assign"));
}

// A reference, a selected region, one of two, none, a grey one that is half selected.
TEST_F(KeyframePictures, RegionSelect)
{
    SYS_3DMode = 1;
    Open(0x61170000);
    TenKey(1, "M/E-1,M/E-2,DME4,");
    TenKey(2, "P/P,,,");
    TenKey(3, "User1,User2,Dev12,MACRO");
    TenKey(4, "M/E-5 Sub,,,");
    TenKey(5, "M/E-3,M/E-1,,");
    TenKey(23, "P-Bus,GPI,,");
    Paint();
    EXPECT_TRUE(MatchesGolden("region_select"));
}
