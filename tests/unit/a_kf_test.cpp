#include "a_kf.h"
#include "a_kf_frames.h"
#include "a_kf_private.h"
#include "hand_page.h"
#include "tdl.h"

constexpr int ME1 = 0, ME2 = 1, PP = 5, DME1 = 14, DME1_GLB = 22, MACRO = 51;
constexpr int RATE = 30;
constexpr int HOUR = 3600 * RATE;

static const KF_REGION& R(int region)
{
    return *KF_GetRegionStatus(region);
}

// The first n places of the order.
static std::vector<int> Order(int n)
{
    std::vector<int> order;
    for (int i = 0; i < n; i++)
        order.push_back(KF_GetRegionPriority(i));
    return order;
}

struct Keyframes : HandPage {
    static inline std::vector<std::string> told; // "STATUS 14", "SELECTION"

    static int WriteDown(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
    {
        if (msg == LMSG_REGIONSTATUS)
            told.push_back("STATUS " + std::to_string(reinterpret_cast<const KF_REGION*>(ax) -
                                                      KF_GetRegionStatus(0)));
        if (msg == LMSG_REGSELCHANGE)
            told.push_back("SELECTION");
        return 0;
    }

    Keyframes()
    {
        object_kind = OBJ_KF;
        base.proc_func = WriteDown;
    }
    void SetUp() override
    {
        HandPage::SetUp();
        SYS_FrameRate = RATE;
        told.clear();
    }
};

static const kf::Data opening = {
    .code = 1,
    .regnum = 312,
    .regname = "OPENING ",
    .flags = 0x02,
    .freekf = 986,
    .start = {0x01, 0, 0, 0x15},
    .delay = {0, 0, 0, 0x15},
    .end = {0x01, 0, 0x10, 0},
    .duration = {0, 0, 0x09, 0x15},
    .loopstart = 2,
    .loopend = 0x8000 | 3,
    .loopnum = 7,
    .keyframes = {45, 0x7FF, kf::PAUSE | 0x7800 | 30}, // four bits mean nothing
};

TEST_F(Keyframes, ARegionFrameIsStoredFieldByField)
{
    EXPECT_EQ(kf::Send(opening), 0);
    const KF_REGION& r = R(ME1);
    EXPECT_STREQ(r.regname, "OPENING ");
    EXPECT_THAT((std::array{r.regnum, r.lock, r.freekf, r.kfnum, r.dtime, r.duration, r.loopstart,
                            r.loopend, r.loopnum}),
                ElementsAre(312, 1, 986, 3, 15, 9 * RATE + 15, 2, 3, 7));
    EXPECT_EQ(r.stime, HOUR) << "the delay comes before the first keyframe";
    EXPECT_EQ(r.etime, HOUR + 10 * RATE);
    EXPECT_THAT((std::array{r.kf[1].duration, r.kf[2].duration, r.kf[3].duration}),
                ElementsAre(45, 0x7FF, 30));
    EXPECT_EQ(r.kf[2].pause, 0);
    EXPECT_EQ(r.kf[3].pause, 1);
    EXPECT_THAT(told, ElementsAre("STATUS 0"));
    tlSETime_redraw = 0;
    kf::Send(opening);
    EXPECT_EQ(tlSETime_redraw, 1) << "the axis may be another";
    EXPECT_THAT(told, ElementsAre("STATUS 0")) << "neither register nor count has changed";
    kf::Data strange = opening;
    strange.regname = "A\nB\x80\x7F\x1B C";
    strange.keyframes.clear();
    kf::Send(strange);
    EXPECT_STREQ(r.regname, "A B    C") << "a name cannot break its line";
    EXPECT_EQ(r.kfnum, 0);
    EXPECT_EQ(r.kf[2].duration, 0x7FF) << "a frame without keyframes leaves the old list";
}

TEST_F(Keyframes, ARegionFrameIsBelievedAsFarAsItReaches)
{
    const kf::Bytes whole = kf::DataFrame(opening);
    constexpr size_t HEAD = 39;
    for (size_t n = 0; n < whole.size(); n++) {
        KF_Init();
        kf::Send(kf::DATA, kf::Bytes(whole.begin(), whole.begin() + long(n)));
        const KF_REGION& r = R(ME1);
        EXPECT_EQ(r.regnum, n < HEAD ? 0 : 312) << n;
        EXPECT_EQ(r.kf[1].duration, n < HEAD + 2 ? 0 : 45) << n;
        EXPECT_EQ(r.kf[2].duration, n < HEAD + 4 ? 0 : 0x7FF) << n;
        EXPECT_EQ(r.kf[3].duration, 0) << n;
    }
    kf::Data d = opening;
    d.kfnum = 0xFFFF;
    kf::Send(d);
    EXPECT_EQ(R(ME1).kf[4].duration, 0) << "what did not come is not stored";
    d.keyframes.assign(1200, 9);
    kf::Send(d);
    EXPECT_EQ(R(ME1).kf[KF_KEYFRAMES - 1].duration, 9);
    EXPECT_STREQ(R(ME2).regname, "--------");
    EXPECT_EQ(R(ME1).redraw, 1) << "what lies behind the list is untouched";
}

TEST_F(Keyframes, AStatusFrameMovesTheCursorOfARegionThatIsKnownAndTellsOfNewKeyframesOnly)
{
    for (const int code : {24, 67, 68, 84, 240, 254, 255}) {
        kf::Data d = opening;
        d.code = code;
        EXPECT_EQ(kf::Send(d), 0);
        EXPECT_EQ(kf::Send(kf::Status{.code = code, .keyframe = 3}), 0);
    }
    EXPECT_EQ(kf::Send(0x1200AA, kf::DataFrame(opening)), 1);
    for (int i = 0; i < KF_REGIONS; i++)
        EXPECT_EQ(R(i).regnum + R(i).ckfnum, 0) << i;
    EXPECT_THAT(told, IsEmpty());

    for (const int run : {0x01, 0x11})
        kf::Send(kf::Status{
            .code = 16, .time = {0x80, 0, 0x04, 0x12}, .keyframe = 258, .run = run, .loop = 0x83});
    const KF_REGION& r = R(DME1);
    EXPECT_THAT((std::array{r.runstat, r.loopon, r.loopremain, r.ctime, r.ckfnum}),
                ElementsAre(-1, 1, 3, -(4 * RATE + 12), 258));
    EXPECT_THAT(told, ElementsAre("STATUS 14"));
}

TEST_F(Keyframes, EachSelectionBitMeansItsRegionsAndAChangeIsToldOnce)
{
    static const char* const bytes[] = {
        // from bit 0 on
        "P/P|M/E-1|M/E-2|M/E-3|P/P Sub|M/E-1 Sub|M/E-2 Sub|M/E-3 Sub|",
        "USER1|USER2|USER3|USER4|USER5|USER6|USER7|USER8|",
        ("DME1 DME1 GLB|DME2 DME2 GLB|DME3 DME3 GLB|DME4 DME4 GLB|"
         "DME5 DME5 GLB|DME6 DME6 GLB|DME7 DME7 GLB|DME8 DME8 GLB|"),
        "||||||||",
        "DEV1|DEV2|DEV3|DEV4|DEV5|DEV6|DEV7|DEV8|",
        "DEV9|DEV10|DEV11|DEV12|P-BUS|GPI|RTR|MACRO|",
        "M/E-4|M/E-4 Sub|M/E-5|M/E-5 Sub|||||",
    };
    for (size_t byte = 0; byte < std::size(bytes); byte++) {
        std::string selected;
        for (int bit = 0; bit < 8; bit++) {
            kf::Bytes frame(8, 0);
            frame[byte + 1] = static_cast<unsigned char>(1 << bit);
            kf::Send(kf::SELECTION, frame);
            std::string names;
            for (int i = 0; i < KF_REGIONS; i++)
                if (KF_IsRegionSelected(i))
                    names += (names.empty() ? "" : " ") + std::string(KF_GetRegionName(i));
            selected += names + "|";
        }
        EXPECT_EQ(selected, bytes[byte]);
    }

    kf::Select({0, 0, 0, 0, 0, 0, 0, 0});
    told.clear();
    Region[ME2].redraw = 0;
    kf::Select({1, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0});
    EXPECT_EQ(R(ME2).redraw, 1);
    EXPECT_THAT(told, ElementsAre("SELECTION"));
    kf::Select({0, 0xFF, 0xFF, 0xFF, 0xAA, 0, 0, 0});
    EXPECT_THAT(told, ElementsAre("SELECTION")) << "only the reference is another";
    EXPECT_EQ(KF_RefRegionCode(), 0);
    kf::Select({16, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(KF_RefRegionCode(), 0) << "a frame without its last byte";
    EXPECT_TRUE(KF_IsRegionSelected(PP));
}

TEST_F(Keyframes, RegionsOfTheTenKeysAreThoseOfTheSystemAndNothingBeyond)
{
    KF_RegionAssignTally(1, "M/E-1,User1,No Assign,");
    KF_RegionAssignTally(23, "DME1,,,rubbish");
    KF_RegionAssignTally(0, "M/E-2,,,");
    KF_RegionAssignTally(24, "M/E-2,,,");
    for (int i = 0; i < KF_REGIONS; i++)
        EXPECT_EQ(KF_IsRegionAssigned(i), i == ME1 || i == 6 || i == DME1 || i == DME1_GLB) << i;
    for (const int region : {-1, 64, 9999}) {
        EXPECT_THAT((std::array{KF_IsRegionAssigned(region), KF_GetRegionDisplay(region),
                                KF_GetRegionPriority(region)}),
                    ElementsAre(0, 2, 255));
        EXPECT_THAT(
            (std::array{KF_SetRegionAssigned(region, 1), KF_SetRegionDisplay(region, 1),
                        KF_SetRegionPriority(region, 1), KF_InsertRegionPriority(0, region)}),
            Each(-1));
        EXPECT_EQ(KF_GetRegionName(region), nullptr);
        EXPECT_EQ(KF_GetRegionStatus(region), nullptr);
    }
}

TEST_F(Keyframes, NewRegionsComeToTheFrontAndAnInsertedOneLeavesItsOldPlace)
{
    KF_RegionAssignTally(1, "M/E-1,P/P,MACRO");
    KF_InitPriority();
    EXPECT_THAT(Order(4), ElementsAre(ME1, PP, MACRO, 255));
    KF_RegionAssignTally(2, "M/E-2");
    KF_InitPriority();
    EXPECT_THAT(Order(5), ElementsAre(ME2, ME1, PP, MACRO, 255));
    KF_SetRegionDisplay(ME1, 2);
    KF_SetRegionDisplay(PP, 1);
    KF_InitPriority();
    EXPECT_THAT(Order(4), ElementsAre(ME2, PP, MACRO, 255)) << "one that is hidden keeps its place";

    KF_RegionAssignTally(2, "");
    KF_RegionAssignTally(1, "M/E-1,M/E-2,M/E-3,P/P");
    static const std::tuple<int, int, std::vector<int>> cases[] = {
        {0, PP, {PP, 0, 1, 2, 255}},
        {3, 0, {1, 2, 0, PP, 255}}, // its old place, before the new one, closes up
        {4, 0, {1, 2, PP, 0, 255}},
    };
    for (const auto& [place, region, order] : cases) {
        KF_DefaultRegionPriority();
        for (int i = 0; i < 4; i++)
            KF_SetRegionPriority(i, std::array{0, 1, 2, PP}[size_t(i)]);
        KF_SetRegionDisplay(region, 1);
        EXPECT_EQ(KF_InsertRegionPriority(place, region), 0);
        EXPECT_THAT(Order(5), ElementsAreArray(order)) << place << " " << region;
        EXPECT_EQ(KF_GetRegionDisplay(region), 0);
    }
}

// As at every start: the order comes, then a selection, and only then which regions there are.
TEST_F(Keyframes, AnOrderThatComesBeforeTheAssignmentsIsKept)
{
    int place = 0;
    for (const int region : {1, 14, 0, 6, 30})
        KF_SetRegionPriority(place++, region);
    kf::Select({1, 0x02, 0, 0, 0, 0, 0, 0});
    EXPECT_THAT(Order(2), ElementsAre(255, 255)) << "nothing to list yet";
    EXPECT_FALSE(KF_IsAnyAssigned());
    KF_RegionAssignTally(1, "M/E-1,M/E-2,DME1");
    KF_InitPriority(); // a page may be up
    KF_RegionAssignTally(2, "User1,Dev1");
    EXPECT_TRUE(KF_IsOrderStale());
    KF_InitPriority();
    KF_SetRegionAssigned(1, 1);
    EXPECT_FALSE(KF_IsOrderStale()) << "as before";
    EXPECT_THAT(Order(7), ElementsAre(DME1_GLB, 1, 14, 0, 6, 30, 255)) << "its twin is new";

    KF_RegionAssignTally(1, ""); // a server that restarts
    KF_InitPriority();
    EXPECT_THAT(Order(3), ElementsAre(6, 30, 255));
    KF_RegionAssignTally(1, "M/E-1,M/E-2,DME1");
    KF_InitPriority();
    EXPECT_THAT(Order(7), ElementsAre(DME1_GLB, 1, 14, 0, 6, 30, 255));

    // What the operator chooses counts from then on.
    EXPECT_EQ(KF_InsertRegionPriority(0, 30), 0);
    KF_SetRegionPriority(5, 1); // named twice: its first place stands
    EXPECT_TRUE(KF_IsOrderStale());
    KF_InitPriority();
    EXPECT_FALSE(KF_IsOrderStale());
    EXPECT_THAT(Order(7), ElementsAre(6, 30, DME1_GLB, 1, 14, 0, 255)) << "6 has lost its place";
}

static bool StripPaints(int pushed)
{
    constexpr uint32_t MARK = 0x123456;
    TDL_FillRectS(508, 6, 797, 65, MARK);
    KF_DrawTopArea(pushed);
    const auto pixels = PixelsIn({508, 6, 797, 65});
    return std::any_of(pixels.begin(), pixels.end(), [](uint32_t p) { return p != MARK; });
}

TEST_F(Keyframes, TheStripIsPaintedOnlyWhenThereIsNewsAndKnowsWhatHasNoPlaceInIt)
{
    kf::Select({1, 0x02, 0, 0, 0, 0, 0, 0});
    EXPECT_TRUE(StripPaints(0));
    EXPECT_FALSE(StripPaints(0));
    EXPECT_TRUE(StripPaints(150)) << "pushed";
    EXPECT_FALSE(StripPaints(90)) << "still pushed";
    EXPECT_TRUE(StripPaints(KF_DRAW_ANEW));
    kf::Send(kf::Status{.code = 1});
    EXPECT_TRUE(StripPaints(0));
    GL_NowPage = 0x61110000;
    kf::Send(kf::Status{.code = 1, .keyframe = 7});
    EXPECT_TRUE(StripPaints(0));
    EXPECT_EQ(R(ME1).redraw_tl, 1) << "the rows of the timeline need it";
    EXPECT_FALSE(StripPaints(0)) << "they have not been painted yet, the strip has";

    // The router has no timeline to show, and a menu macro that is recorded has keys here.
    const auto of_reference = [](unsigned char code) {
        kf::Select({code, 0x02, 0, 0, 0, 0, 0, 0});
        KF_DrawTopArea(KF_DRAW_ANEW);
        return PixelsIn({508, 6, 797, 65});
    };
    EXPECT_EQ(of_reference(66), of_reference(1));
    EXPECT_NE(of_reference(66), of_reference(2));
    for (const auto& [id, has_strip] : {std::pair{0x61110000u, true},
                                        {0x61130000u, false},
                                        {0x71110000u, true},
                                        {0x71440002u, false},
                                        {0x11110000u, false}}) {
        GL_NowPage = id;
        GL_MenuMacro_Edit = 1;
        EXPECT_EQ(KF_HasTopArea(), has_strip) << std::hex << id;
        GL_MenuMacro_Edit = 0;
        EXPECT_TRUE(KF_HasTopArea());
    }
}
