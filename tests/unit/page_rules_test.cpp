#include "device.h"
#include "global.h"
#include "harness.h"
#include "page.h"

static void Switcher(DEVTYPE type)
{
    DEV_Swr[0].type = type;
    DeviceStructure();
}

static void Dme(int model)
{
    std::fill_n(GL_DmeModel, 4, 3);
    GL_DmeModel[0] = model; // the first one's is asked for
    DeviceStructure();
}

static void Panel(DEVTYPE type)
{
    DEV_Pnl[0].type = type;
    DeviceStructure();
}

static void Run1080p()
{
    DEV_Swr[0].activeline = DEV_Dme[0].activeline = 6;
    DeviceStructure();
}

static void Dual()
{
    SYS_DualProc = 1;
    Run1080p();
}

static void In3D()
{
    SYS_3DMode = 1;
}

static void Install(const char* unit)
{
    snprintf(Page_InstallUnit, sizeof Page_InstallUnit, "%s", unit);
}

// One switcher of the middle generation, one effects unit, one panel, nothing special on.
static void Standard()
{
    Harness_Reset();
    Dme(3); // FXU50
    Switcher(DEVTYPE_KTR40A);
}

struct PageRules : testing::Test {
    void TearDown() override { Harness_Reset(); }
};

struct To {
    uint32_t request, opens; // 0: hidden
};

template <typename... Rows> static void Check(void (*when)(), Rows... rows)
{
    for (const auto& [request, opens] : {rows...}) {
        Standard();
        when();
        EXPECT_EQ(ResolvePageId(request), opens) << std::hex << request << " expected " << opens;
    }
}

TEST_F(PageRules, GlobalEffectFollowsProcessorsAndModels)
{
    Check(Standard, To{0x42000000, 0x42000000}, To{0x42220000, 0x42220200});
    Check([] { Dual(), In3D(); }, To{0x42000000, 0x42000400}); // 3D before all else
    Check([] { Dual(), Dme(8); }, To{0x42000000, 0x42000500}, To{0x42120000, 0x42120200},
          To{0x42130000, 0x42130000});
    Check(Dual, To{0x42000000, 0x42000200}, To{0x42110000, 0x42110900}, To{0x42210000, 0x42210800},
          To{0x42120000, 0x42120300}, To{0x42220000, 0x42220300}, To{0x42130000, 0x42130200},
          To{0x42170000, 0x42170100});
    Check([] { Dme(5); }, To{0x42000000, 0x42000100}, To{0x42130000, 0x42130100},
          To{0x42110000, 0x42110800});
    Check(In3D, To{0x42110000, 0x42111000}, To{0x42210000, 0x42211000}, To{0x42220000, 0x42220400},
          To{0x42130000, 0x42130300}, To{0x42120000, 0x42120400});
    Check([] { SYS_CombineCh[1] = SYS_CombineCh[2] = 1; }, To{0x42120000, 0x42120100});
    Check([] { SYS_CombineCh[2] = SYS_CombineCh[3] = 1; }, To{0x42120000, 0x42120100});
    Check([] { SYS_CombineCh[1] = SYS_CombineCh[3] = 1; }, To{0x42120000, 0x42120200});
    Check([] { SYS_CombineCh[5] = SYS_CombineCh[6] = 1; }, To{0x42220000, 0x42220100});
    Check([] { Run1080p(), Dme(8); }, To{0x42270000, 0x42270100});
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
            EXPECT_EQ(ResolvePageId(page), page + c.variant) << testing::PrintToString(c.c);
            EXPECT_EQ(ResolvePageId(group ? 0x42110000 : 0x42210000),
                      (group ? 0x42110100u : 0x42210100u));
        }
    }
}

TEST_F(PageRules, VariantsOfOperationPages)
{
    Check([] { Switcher(DEVTYPE_KTR40XSF); }, To{0x24270000, 0x24270000});
    Check([] { Switcher(DEVTYPE_KTR40X); }, To{0x24270000, 0x24270100});
    Check(Standard, To{0x21000000, 0x25110000}, // without a clip store
          To{0x21110000, 0x25110000}, To{0x41110000, 0x41110200}, To{0x71510001, 0x71510201},
          To{0x33110000, 0x33110100}, To{0x41640000, 0x41640200});
    Check([] { Switcher(DEVTYPE_KTR40E); }, To{0x33110000, 0x33110200});
    Check([] { Switcher(DEVTYPE_LTR50); }, To{0x71510001, 0x71510101}, To{0x71610000, 0x71610100},
          To{0x71520000, 0});
    Check(Dual, To{0x42160000, 0x42160100}, To{0x32110000, 0x32110100}, To{0x42260000, 0x42260100},
          To{0x42230000, 0x42230100});
    Check(In3D, To{0x42260000, 0x42260200}, To{0x42170000, 0x42170200}, To{0x42270000, 0x42270300},
          To{0x42230000, 0x42230300});
    Check([] { SYS_DMEReference = 0x10; },
          To{0x41110000, 0x41110100}); // the second group has no unit
    Check([] { Dme(6), GL_DmeSdiIF[0] = 1; }, To{0x41210000, 0x41210200});
    Check([] { Dme(4), GL_DmeSdiIF[0] = 1, Switcher(DEVTYPE_KTR40X), Run1080p(); },
          To{0x41210000, 0x41210100});
    Check(Run1080p, To{0x31210000, 0x31210100});
    Check([] { Switcher(DEVTYPE_NTR40); }, To{0x24170000, 0x24170100});
    Check([] { Dual(), In3D(); }, To{0x42160000, 0x42160200});
    Check([] { Dme(2); }, To{0x41610000, 0x41610200});
    Check([] { Dme(5); }, To{0x41610000, 0x41610100});
}

TEST_F(PageRules, TransitionPagesFollowTheFlagOfTheirBank)
{
    for (const auto& [bank, flag] : {std::pair<uint32_t, int*>{0x11000000u, &SYS_KeyTransitionME1},
                                     {0x14000000u, &SYS_KeyTransitionPP},
                                     {0x82000000u, &SYS_KeyTransitionME5}}) {
        for (uint32_t page :
             {bank + 0x00170000, bank + 0x00470000, bank + 0x04270000, bank + 0x04370000}) {
            Standard();
            EXPECT_EQ(ResolvePageId(page), page + 0x0100) << std::hex << page;
            *flag = 1;
            EXPECT_EQ(ResolvePageId(page), page + 0x0200) << std::hex << page;
            EXPECT_EQ(ResolvePageId(page + 2), page + 2) << "a sub page stays";
        }
    }
}

TEST_F(PageRules, TimelinePagesFollowLinkAndConfig)
{
    static const auto on_3g = [] { Switcher(DEVTYPE_KTR40G), Run1080p(); };
    static const auto mp2 = [] { std::fill_n(me_config_type, ME_COUNT, 3); };
    Check(Standard, To{0x61130000, 0x61131000}, To{0x61130021, 0x61131021},
          To{0x61130001, 0x61131001}, To{0x61130012, 0x61130012});
    Check(on_3g, To{0x61130004, 0x61134004}, To{0x61130017, 0x61133017}, To{0x61130019, 0x61133019},
          To{0x61130020, 0x61133020}, To{0x61130022, 0x61133022}, To{0x61130024, 0x61133024},
          To{0x61130023, 0x61134023});
    Check([] { Switcher(DEVTYPE_KTR40X); }, To{0x61130005, 0x61133005}, To{0x61130012, 0x61133012});
    Check([] { mp2(), me_config_type[2] = 2; }, To{0x61131502, 0x61130502});
    Check([] { mp2(), me_config_type[0] = 2; }, To{0x61131504, 0x61130504}); // P/P
    Check([] { GL_BoardMESplit[4] = 4; }, To{0x61130016, 0});
}

TEST_F(PageRules, VariantsOfEngineeringPages)
{
    Check([] { Install("SWR2"); }, To{0x73160108, 0x73160308});
    Check([] { Install("Menu"), Switcher(DEVTYPE_KTR40SF); }, To{0x73160308, 0x73160208});
    Check([] { Install("Menu"), Switcher(DEVTYPE_LTR50); }, To{0x73160008, 0x73160908});
    Check([] { Switcher(DEVTYPE_KTR40E); }, To{0x73310006, 0x73310106});
    Check([] { Dual(), Dme(8); }, To{0x73410001, 0x73410201}, To{0x73440001, 0x73440201},
          To{0x73440006, 0x73440006});
    Check(Standard, To{0x73310002, 0x73310102}, To{0x73330000, 0x73330200},
          To{0x73330001, 0x73330201}, To{0x73320002, 0x73320602}, To{0x73430001, 0x73430001});
    Check(Dual, To{0x73430000, 0x73430100}, To{0x73440000, 0x73440100}, To{0x73440001, 0x73440101},
          To{0x73440003, 0x73440103}, To{0x73440004, 0x73440104}, To{0x73440006, 0x73440106});
    Check([] { Switcher(DEVTYPE_KTR40), Dme(1); }, To{0x99910000, 0x99911000});
    Check([] { Switcher(DEVTYPE_KTR40SF), Dme(1), Panel(DEVTYPE_QRD11B); },
          To{0x99910004, 0x99910004});
}

TEST_F(PageRules, PagesThatTheModelsLackAreHidden)
{
    static const auto fc = [] {
        Switcher(DEVTYPE_KTR40GSF), DEV_Swr[0].function[FUNCTION_FRAME_CONVERTER] = 1;
    };
    Check(fc, To{0x73330007, 0x73330007});
    Check([] { fc(), Run1080p(); }, To{0x73330007, 0});
    Check([] { fc(), DEV_Swr[0].function[FUNCTION_FRAME_CONVERTER] = 0; }, To{0x73330007, 0});
    Check([] { DEV_Pnl[0].function[FUNCTION_OPTION_WORD] = 2; }, To{0x32120000, 0x32120000});
    Check([] { Dme(5); }, To{0x625F1234, 0}, To{0x71240001, 0}, To{0x71240002, 0x71240002});
    Check([] { Dme(4); }, To{0x41130000, 0});
    Check(Dual, To{0x73440007, 0x73440007});
    Check([] { Panel(DEVTYPE_QRD21); }, To{0x73240002, 0});
    Check([] { Panel(DEVTYPE_QRD11B); }, To{0x73260007, 0}, To{0x73260008, 0x73260008});
    Check(Standard, To{0x73260008, 0}, To{0x73160011, 0}, To{0x73310007, 0x73310007},
          To{0x73310015, 0}, To{0x73330008, 0}, To{0x32120000, 0}, To{0x82600007, 0x82600007},
          To{0, 0});
    Check([] { GL_KeyRowMode = 1; }, To{0x73260013, 0});
    Check([] { Switcher(DEVTYPE_NTR40); }, To{0x73160011, 0x73160011});
    Check([] { Switcher(DEVTYPE_LTR50); }, To{0x73220010, 0});
    Check([] { Switcher(DEVTYPE_KTR40SF); }, To{0x73310007, 0});
    Check([] { Dme(8); }, To{0x73310015, 0x73310015});
    Check([] { Switcher(DEVTYPE_KTR40E); }, To{0x73330008, 0x73330008}, To{0x81420004, 0x81420004});
    Check([] { Switcher(DEVTYPE_KTR40); }, To{0x73370008, 0}, To{0x12600007, 0});
    Check([] { Switcher(DEVTYPE_LTR50SF); }, To{0x32130000, 0});
}

TEST_F(PageRules, BanksThatAreNotInUseAreHidden)
{
    static const auto mp2_me4 = [] { multiprogram2_me[4] = 1; };
    Check([] { SYS_Simul = 1; }, To{0x11110000, 0}, To{0x16110000, 0}, To{0x17110000, 0x17110000});
    Check([] { SYS_MEOperation[0] = 1; }, To{0x11110000, 0}, To{0x15210000, 0}); // Key6
    Check([] { SYS_MEOperation[5] = 1; }, To{0x14110000, 0});
    Check([] { mp2_me4(), SYS_MEOperation[3] = 2; }, To{0x85510000, 0});
    Check(mp2_me4, To{0x85510000, 0x85510000}, To{0x86510000, 0});
    Check([] { SYS_4KMode = 1; }, To{0x11760000, 0});
    Check([] { Switcher(DEVTYPE_KTR40), multiprogram2_me[4] = 1; }, To{0x85600007, 0x85600007});
}

TEST_F(PageRules, TheWalkThroughAllPagesSkipsTheRulesAndATransferFoldsATabIntoItsFirstPage)
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
    static const struct {
        uint32_t page, first;
    } cases[] = {
        {0x21670203, 0x21600000}, {0x71510200, 0x71500000}, {0x71810000, 0x71810000},
        {0x73110099, 0x73100000}, {0x86760000, 0x86700000}, {0x11770000, 0x11770000},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Page_FirstOfTab(c.page), c.first) << std::hex << c.page;
}
