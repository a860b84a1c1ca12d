// The pages of the switcher's inputs, outputs and device interfaces: what each asks for; of all
// pages of units, the panel's too, that every key does something.
#include "a_bt.h"
#include "pc_setup_fcadjust.h"
#include "pc_setup_output.h"
#include "setup_desk.h"

namespace
{
const std::string SWITCHER = "Engineering Setup@Switcher@";

struct SwitcherIo : SetupTest {
    void TearDown() override
    {
        GL_CreatePage = 0;
        (void)Leave();
        SetupFcAdjust_Reset();
        SetupOutput_Reset();
        SetupTest::TearDown();
    }
};
} // namespace

TEST_F(SwitcherIo, EachPageAsksForItsSettings)
{
    static const struct {
        uint32_t page;
        std::vector<const char*> paths;
    } cases[] = {
        {0x73320000, {"Input@Source Name@136", "Input@H Phase@1"}},
        {0x73320003, {"Input@Internal FC@Convert Mode@8", "Input@Internal FC@Format@1"}},
        {0x73320005, {"Input@Video Process@Y Gain@1", "Input@Video Process@Black Level@136"}},
        {0x73320002, {"Input@FC Adjust@Enhancer Mode@5", "Input@FC Adjust@FC Signal Format"}},
        {0x73320009, {"Input@4K Adjust@Division@3", "Input@4K Adjust@IP@0"}},
        {0x73330001,
         {"Output@Assign", "Output@Source", "Output@Inhibit",
          "Device Interface@GPI Input@H/L Set@FC Input/Output@8"}},
        {0x73330002, {"Output@Crop@Bottom@48"}},
        {0x73330006, {"Output@Re-Entry Assign@P/P Out6"}},
        {0x73330009, {"Output@FC Output Assign@8"}},
        {0x73330015, {"Output@Multi Viewer@Output Assign@MV2-16"}},
        {0x73370002, {"Device Interface@AUX Control@Control@48"}},
        {0x73370004, {"Device Interface@GPI Input@Action Type Region@8@1", "Config@Key Config"}},
    };
    for (const auto& c : cases) {
        const Lines lines = Open(c.page);
        for (const char* path : c.paths)
            EXPECT_THAT(lines, testing::Contains("add " + SWITCHER + path)) << std::hex << c.page;
        (void)Leave();
    }
}

TEST_F(SwitcherIo, EveryKeyDoesSomething)
{
    int keys = 0;
    static char router_source[] = "SRC1";
    BUS_SBusSrc[1] = router_source;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        const uint32_t id = page->id & 0xFFFF00FF;
        if (page->id >> 20 < 0x732 || page->id >> 20 > 0x737 || SearchPageTable(id) != page)
            continue;
        (void)Open(id);
        TellAll("Engineering Setup@Panel@Xpt Assign@",
                {"Source@List#1,CAM1", "Source@Color#1,1", "Side Flags Button Assign#1,false"});
        TellAll(SWITCHER, {"Config@PGM Config@List#M/E-1,1,0F", // rows that the server makes
                           "Link@Internal Bus Link@Master Bus List#1,M/E-1 A"});
        SelectRow(LS_GetNData(1) - 1); // has nothing in hand
        std::vector<int> ids;
        for (const BT_MEM* b = bt_first(); b->id > 0; b++)
            ids.push_back(b->id);
        for (const int key : ids) {
            if (Usable({key}).empty() || BT_GetVisible(key) != BT_ENABLED)
                continue;
            if (id >> 20 == 0x732 && BT_GetStatus(key) == BT_ON)
                continue; // chosen already
            EXPECT_TRUE(HasEffect(key)) << std::hex << id << " key " << std::dec << key;
            keys++;
        }
        (void)Leave();
    }
    BUS_SBusSrc[1] = nullptr;
    EXPECT_GT(keys, 450);
}
