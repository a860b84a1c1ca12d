#include "device.h"
#include "global.h"
#include "harness.h"
#include "page.h"

namespace
{
void Switcher(DEVTYPE type)
{
    DEV_Swr[0].type = type;
    DeviceStructure();
}

void Dme(int model)
{
    std::fill_n(GL_DmeModel, 4, 3);
    GL_DmeModel[0] = model; // the first one's is asked for
    DeviceStructure();
}

void Panel(DEVTYPE type)
{
    DEV_Pnl[0].type = type;
    DeviceStructure();
}

void Run1080p()
{
    DEV_Swr[0].activeline = DEV_Dme[0].activeline = 6;
    DeviceStructure();
}

void Dual()
{
    SYS_DualProc = 1;
    Run1080p();
}

void In3D()
{
    SYS_3DMode = 1;
}

void Install(const char* unit)
{
    snprintf(Page_InstallUnit, sizeof Page_InstallUnit, "%s", unit);
}

// One switcher of the middle generation, one effects unit, one panel, nothing special on.
void Standard()
{
    Harness_Reset();
    Dme(3); // FXU50
    Switcher(DEVTYPE_KTR40A);
}

struct PageRules : testing::Test {
    void TearDown() override { Harness_Reset(); }
};

struct Case {
    uint32_t request;
    uint32_t opens; // 0: hidden
    void (*when)() = nullptr;
};

template <size_t N> void Check(const Case (&cases)[N])
{
    for (size_t i = 0; i < N; i++) {
        Standard();
        if (cases[i].when)
            cases[i].when();
        EXPECT_EQ(ResolvePageId(cases[i].request), cases[i].opens)
            << "case " << i << ": " << std::hex << cases[i].request << " expected "
            << cases[i].opens;
    }
}
} // namespace

TEST_F(PageRules, GlobalEffectFollowsProcessorsAndModels)
{
    static const Case cases[] = {
        {0x42000000, 0x42000000},
        {0x42000000, 0x42000400, [] { Dual(), In3D(); }}, // 3D before all else
        {0x42000000, 0x42000500, [] { Dual(), Dme(8); }},
        {0x42000000, 0x42000200, Dual},
        {0x42000000, 0x42000100, [] { Dme(5); }},
        {0x42110000, 0x42111000, In3D},
        {0x42110000, 0x42110900, Dual},
        {0x42210000, 0x42211000, In3D},
        {0x42210000, 0x42210800, Dual},
        {0x42120000, 0x42120300, Dual},
        {0x42220000, 0x42220400, In3D},
        {0x42220000, 0x42220300, Dual},
        {0x42220000, 0x42220200},
        {0x42130000, 0x42130300, In3D},
        {0x42130000, 0x42130200, Dual},
        {0x42130000, 0x42130100, [] { Dme(5); }},
        {0x42170000, 0x42170100, Dual},
        {0x42110000, 0x42110800, [] { Dme(5); }},
        {0x42120000, 0x42120400, In3D},
        {0x42120000, 0x42120200, [] { Dual(), Dme(8); }},
        {0x42120000, 0x42120100, [] { SYS_CombineCh[1] = SYS_CombineCh[2] = 1; }},
        {0x42120000, 0x42120100, [] { SYS_CombineCh[2] = SYS_CombineCh[3] = 1; }},
        {0x42120000, 0x42120200, [] { SYS_CombineCh[1] = SYS_CombineCh[3] = 1; }},
        {0x42220000, 0x42220100, [] { SYS_CombineCh[5] = SYS_CombineCh[6] = 1; }},
        {0x42130000, 0x42130000, [] { Dual(), Dme(8); }},
        {0x42270000, 0x42270100, [] { Run1080p(), Dme(8); }},
    };
    Check(cases);
}

TEST_F(PageRules, CombinedChannelsPickThePageOfTheirGroup)
{
    static const struct {
        int c[4];
        int third;
        uint32_t variant;
    } cases[] = {
        {{0, 0, 0, 0}, 0, 0x0100}, {{0, 1, 1, 0}, 0, 0x0300}, {{0, 1, 1, 1}, 0, 0x0400},
        {{0, 0, 1, 1}, 0, 0x0500}, {{1, 1, 1, 0}, 1, 0x0200}, {{1, 1, 1, 1}, 0, 0x0600},
        {{1, 1, 1, 1}, 1, 0x0700}, {{1, 0, 1, 1}, 1, 0x0100},
    };
    for (const auto& c : cases) {
        for (int group = 0; group < 2; group++) {
            Standard();
            std::copy_n(c.c, 4, SYS_Combine + 4 * group);
            SYS_CombineCh[2 + 4 * group] = c.third;
            const uint32_t page = group ? 0x42210000 : 0x42110000;
            EXPECT_EQ(ResolvePageId(page), page + c.variant)
                << c.c[0] << c.c[1] << c.c[2] << c.c[3] << c.third;
            EXPECT_EQ(ResolvePageId(group ? 0x42110000 : 0x42210000),
                      (group ? 0x42110100u : 0x42210100u));
        }
    }
}

TEST_F(PageRules, VariantsOfOperationPages)
{
    static const Case cases[] = {
        {0x24270000, 0x24270000, [] { Switcher(DEVTYPE_KTR40XSF); }},
        {0x24270000, 0x24270100, [] { Switcher(DEVTYPE_KTR40X); }},
        {0x21000000, 0x25110000}, // without a clip store
        {0x21110000, 0x25110000},
        {0x33110000, 0x33110200, [] { Switcher(DEVTYPE_KTR40E); }},
        {0x41110000, 0x41110200},
        {0x71510001, 0x71510201},
        {0x71510001, 0x71510101, [] { Switcher(DEVTYPE_LTR50); }},
        {0x71610000, 0x71610100, [] { Switcher(DEVTYPE_LTR50); }},
        {0x42160000, 0x42160100, Dual},
        {0x42260000, 0x42260200, In3D},
        {0x33110000, 0x33110100},
        {0x41110000, 0x41110100, [] { SYS_DMEReference = 0x10; }}, // the second group has no unit
        {0x41210000, 0x41210200, [] { Dme(6), GL_DmeSdiIF[0] = 1; }},
        {0x41210000, 0x41210100,
         [] { Dme(4), GL_DmeSdiIF[0] = 1, Switcher(DEVTYPE_KTR40X), Run1080p(); }},
        {0x31210000, 0x31210100, Run1080p},
        {0x32110000, 0x32110100, Dual},
        {0x71520000, 0, [] { Switcher(DEVTYPE_LTR50); }},
        {0x24170000, 0x24170100, [] { Switcher(DEVTYPE_NTR40); }},
        {0x42160000, 0x42160200, [] { Dual(), In3D(); }},
        {0x42260000, 0x42260100, Dual},
        {0x42170000, 0x42170200, In3D},
        {0x42270000, 0x42270300, In3D},
        {0x42230000, 0x42230300, In3D},
        {0x42230000, 0x42230100, Dual},
        {0x41610000, 0x41610200, [] { Dme(2); }},
        {0x41610000, 0x41610100, [] { Dme(5); }},
        {0x41640000, 0x41640200},
    };
    Check(cases);
}

TEST_F(PageRules, TransitionPagesFollowTheFlagOfTheirBank)
{
    static const struct {
        uint32_t bank;
        int* flag;
    } banks[] = {{0x11000000, &SYS_KeyTransitionME1},
                 {0x14000000, &SYS_KeyTransitionPP},
                 {0x82000000, &SYS_KeyTransitionME5}};
    for (const auto& b : banks) {
        for (uint32_t page :
             {b.bank + 0x00170000, b.bank + 0x00470000, b.bank + 0x04270000, b.bank + 0x04370000}) {
            Standard();
            EXPECT_EQ(ResolvePageId(page), page + 0x0100) << std::hex << page;
            *b.flag = 1;
            EXPECT_EQ(ResolvePageId(page), page + 0x0200) << std::hex << page;
            EXPECT_EQ(ResolvePageId(page + 2), page + 2) << "a sub page stays";
        }
    }
}

TEST_F(PageRules, TimelinePagesFollowLinkAndConfig)
{
    static const auto on_3g = [] { Switcher(DEVTYPE_KTR40G), Run1080p(); };
    static const auto mp2 = [] { std::fill_n(me_config_type, ME_COUNT, 3); };
    static const Case cases[] = {
        {0x61130000, 0x61131000},
        {0x61130004, 0x61134004, on_3g},
        {0x61130021, 0x61131021},
        {0x61130017, 0x61133017, on_3g},
        {0x61130019, 0x61133019, on_3g},
        {0x61130020, 0x61133020, on_3g},
        {0x61130022, 0x61133022, on_3g},
        {0x61130024, 0x61133024, on_3g},
        {0x61130023, 0x61134023, on_3g},
        {0x61130001, 0x61131001},
        {0x61130005, 0x61133005, [] { Switcher(DEVTYPE_KTR40X); }},
        {0x61130012, 0x61133012, [] { Switcher(DEVTYPE_KTR40X); }},
        {0x61130012, 0x61130012},
        {0x61131502, 0x61130502, [] { mp2(), me_config_type[2] = 2; }},
        {0x61131504, 0x61130504, [] { mp2(), me_config_type[0] = 2; }}, // P/P
        {0x61130016, 0, [] { GL_BoardMESplit[4] = 4; }},
    };
    Check(cases);
}

TEST_F(PageRules, VariantsOfEngineeringPages)
{
    static const Case cases[] = {
        {0x73160108, 0x73160308, [] { Install("SWR2"); }},
        {0x73160308, 0x73160208, [] { Install("Menu"), Switcher(DEVTYPE_KTR40SF); }},
        {0x73160008, 0x73160908, [] { Install("Menu"), Switcher(DEVTYPE_LTR50); }},
        {0x73310006, 0x73310106, [] { Switcher(DEVTYPE_KTR40E); }},
        {0x73410001, 0x73410201, [] { Dual(), Dme(8); }},
        {0x73310002, 0x73310102},
        {0x73330000, 0x73330200},
        {0x73330001, 0x73330201},
        {0x73320002, 0x73320602},
        {0x73430000, 0x73430100, Dual},
        {0x73430001, 0x73430001},
        {0x73440000, 0x73440100, Dual},
        {0x73440001, 0x73440101, Dual},
        {0x73440003, 0x73440103, Dual},
        {0x73440004, 0x73440104, Dual},
        {0x73440006, 0x73440106, Dual},
        {0x73440001, 0x73440201, [] { Dual(), Dme(8); }},
        {0x73440006, 0x73440006, [] { Dual(), Dme(8); }},
        {0x99910000, 0x99911000, [] { Switcher(DEVTYPE_KTR40), Dme(1); }},
        {0x99910004, 0x99910004, [] { Switcher(DEVTYPE_KTR40SF), Dme(1), Panel(DEVTYPE_QRD11B); }},
    };
    Check(cases);
}

TEST_F(PageRules, PagesThatTheModelsLackAreHidden)
{
    static const auto fc = [] {
        Switcher(DEVTYPE_KTR40GSF), DEV_Swr[0].function[FUNCTION_FRAME_CONVERTER] = 1;
    };
    static const Case cases[] = {
        {0x73330007, 0x73330007, fc},
        {0x73330007, 0, [] { fc(), Run1080p(); }},
        {0x73330007, 0, [] { fc(), DEV_Swr[0].function[FUNCTION_FRAME_CONVERTER] = 0; }},
        {0x32120000, 0x32120000, [] { DEV_Pnl[0].function[FUNCTION_OPTION_WORD] = 2; }},
        {0x625F1234, 0, [] { Dme(5); }},
        {0x41130000, 0, [] { Dme(4); }},
        {0x73440007, 0x73440007, Dual},
        {0x73240002, 0, [] { Panel(DEVTYPE_QRD21); }},
        {0x73260007, 0, [] { Panel(DEVTYPE_QRD11B); }},
        {0x73260008, 0},
        {0x73260008, 0x73260008, [] { Panel(DEVTYPE_QRD11B); }},
        {0x73260013, 0, [] { GL_KeyRowMode = 1; }},
        {0x73160011, 0},
        {0x73160011, 0x73160011, [] { Switcher(DEVTYPE_NTR40); }},
        {0x73220010, 0, [] { Switcher(DEVTYPE_LTR50); }},
        {0x73310007, 0, [] { Switcher(DEVTYPE_KTR40SF); }},
        {0x73310007, 0x73310007},
        {0x73310015, 0},
        {0x73310015, 0x73310015, [] { Dme(8); }},
        {0x73330008, 0},
        {0x73330008, 0x73330008, [] { Switcher(DEVTYPE_KTR40E); }},
        {0x73370008, 0, [] { Switcher(DEVTYPE_KTR40); }},
        {0x32120000, 0},
        {0x32130000, 0, [] { Switcher(DEVTYPE_LTR50SF); }},
        {0x71240001, 0, [] { Dme(5); }},
        {0x71240002, 0x71240002, [] { Dme(5); }},
        {0x12600007, 0, [] { Switcher(DEVTYPE_KTR40); }},
        {0x82600007, 0x82600007},
        {0x81420004, 0x81420004, [] { Switcher(DEVTYPE_KTR40E); }},
        {0, 0},
    };
    Check(cases);
}

TEST_F(PageRules, BanksThatAreNotInUseAreHidden)
{
    static const auto mp2_me4 = [] { multiprogram2_me[4] = 1; };
    static const Case cases[] = {
        {0x11110000, 0, [] { SYS_Simul = 1; }},
        {0x11110000, 0, [] { SYS_MEOperation[0] = 1; }},
        {0x14110000, 0, [] { SYS_MEOperation[5] = 1; }},
        {0x15210000, 0, [] { SYS_MEOperation[0] = 1; }}, // Key6
        {0x16110000, 0, [] { SYS_Simul = 1; }},
        {0x17110000, 0x17110000, [] { SYS_Simul = 1; }},
        {0x85510000, 0, [] { mp2_me4(), SYS_MEOperation[3] = 2; }},
        {0x85510000, 0x85510000, mp2_me4},
        {0x86510000, 0, mp2_me4},
        {0x11760000, 0, [] { SYS_4KMode = 1; }},
        {0x85600007, 0x85600007, [] { Switcher(DEVTYPE_KTR40), multiprogram2_me[4] = 1; }},
    };
    Check(cases);
}

TEST_F(PageRules, ATransferFoldsATabIntoItsFirstPage)
{
    static const struct {
        uint32_t page;
        uint32_t first;
    } cases[] = {
        {0x21670203, 0x21600000}, {0x71510200, 0x71500000}, {0x71810000, 0x71810000},
        {0x73110099, 0x73100000}, {0x86760000, 0x86700000}, {0x11750000, 0x11750000},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Page_FirstOfTab(c.page), c.first) << std::hex << c.page;
}

TEST_F(PageRules, TheWalkThroughAllPagesSkipsTheRules)
{
    Standard();
    SYS_Simul = 1;
    EXPECT_EQ(SearchPageTable(0x11110000), nullptr);
    GL_AllPageDisplayMode = 1;
    ASSERT_NE(SearchPageTable(0x11110000), nullptr);
    EXPECT_EQ(SearchPageTable(0x33110000), nullptr); // only its variants have rows
    GL_AllPageDisplayMode = 0;
    ASSERT_NE(SearchPageTable(0x33110000), nullptr);
    EXPECT_EQ(SearchPageTable(0x33110000)->id, 0x33110100u);
    EXPECT_EQ(SearchPageTable(PAGE_END), nullptr);
}
