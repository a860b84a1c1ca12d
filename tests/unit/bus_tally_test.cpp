#include "bus_probe.h"
#include "file.h"
#include "memory.h"
#include "saver.h"
#include "window.h"
#include <algorithm>
#include <cstring>

#define FORMAT "Engineering Setup@System@Format@"
#define SYSTEM_CONFIG "Engineering Setup@System@System Config@"
#define PANEL "Engineering Setup@Panel@"
#define SWITCHER "Engineering Setup@Switcher@"
#define OPERATION_MODE SYSTEM_CONFIG "System Operation Mode@"

static const char* const network_list = "Engineering Setup@System@Network Config@List";

struct BusTally : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        Global_InitBusNames();
    }
    // The page that a value asks for while this one is shown.
    static uint32_t Asked(uint32_t page, const std::string& path, const char* value)
    {
        GL_NowPage = page;
        GL_CreatePage = 0;
        Deliver(path, value);
        return GL_CreatePage;
    }
};

TEST_F(BusTally, AValueLandsInItsPlace)
{
    static const struct {
        const char *path, *value;
        const int* state;
        int expected;
    } cases[] = {
        {"Info@DME@SelCH", "ffffffffffff", &SYS_DMEChannel, INT_MAX},
        {"Info@DME@SelCH", "1F", &SYS_DMEChannel, 0x1F},
        {FORMAT "Reference@SWR1", "BB", &DEV_Swr[0].refinputformat, 1},
        {FORMAT "Switcher Aspect", "SWR1,16:9,4:3,16:9", &DEV_Swr[0].aspect[0], 1},
        {FORMAT "Switcher Aspect", "SWR1,4:3", &DEV_Swr[0].aspect[2], 1}, // no part, no change
        {FORMAT "Switcher Aspect", "SWR1,4:3", &DEV_Swr[0].aspect[1], 0},
        {FORMAT "Switcher Aspect", "DME1,16:9,4:3", &DEV_Dme[0].aspect[1], 1}, // not a switcher
        {FORMAT "Video Format2@SWR1", "3,6,2", &SYS_Format_Size, 3},
        {FORMAT "3D Mode@SWR1", "On", &SYS_3DMode, 1},
        {FORMAT "3D Mode@SWR2", "Off", &SYS_3DMode, 1}, // not this panel's switcher
        {"Engineering Setup@DME@Model@DME1", "2", &DEV_Dme[0].type, DEVTYPE_HLDB7},
        {"Engineering Setup@DME@Model@DME1", "9", &GL_DmeModel[0], 9}, // none of today's
        {"Engineering Setup@DME@Model@DME1", "16", &GL_DmeModel[0], 16},
        {"Engineering Setup@DME@Model@DME1", "17", &GL_DmeModel[0], 16},
        {"Engineering Setup@DME@Model@DME1", "0", &GL_DmeModel[0], 0},
        {"16@Engineering Setup@System@Install@Unit Config@CCR Config", "8", &SYS_FmemAncillary, 0},
        {"Info@System Setup Data@FM Data Port Disable@SWR2", "129,3", &GL_FMDataPortDisable[1],
         1 | 3 << 7},
        {"Info@System Setup Data@FM Data Port Disable@SWR2", "0,-1", &GL_FMDataPortDisable[1], 0},
        {"Info@System Setup Data@FM Data Port Disable@SWR1", "1,2", &GL_FMDataPortDisable[0],
         1 | 2 << 7},
        {PANEL "Config@M/E Operation@P/P", "Disable", &SYS_MEOperation[5], 1},
        {PANEL "Config@M/E Operation@P/P", "Inhibit", &SYS_MEOperation[5], 2},
        {PANEL "Xpt Assign@Assign", "253,7,-1", &SYS_XptAssignK[253], -1},
        {PANEL "Xpt Assign@Assign", "252,7,-1", &SYS_XptAssignV[252], 7},
        {"Info@DME@RefCH", "1F", &SYS_DMEReference, 0x1F},
        {"MPE@Fx@Channel@Reference", "11", &SYS_MPEReference, 3}, // binary digits
        {"MPE@Fx@Channel@Selected", "1a", &SYS_MPEChannel, 0x1A},
        {FORMAT "Video Format2@SWR1", "3,15,2", &DEV_Swr[0].format_freq, 15},
        {FORMAT "Video Format2@SWR1", "3,16,2", &DEV_Swr[0].format_freq, 15},
        {FORMAT "Video Format2@SWR1", "3,15,2", &DEV_Swr[0].format_scan, 2},
        {FORMAT "Video Format2@SWR1", "0,0,0", &DEV_Swr[0].format_freq, 0},
        {FORMAT "DME Aspect", "DME1,4:3,16:9", &DEV_Dme[0].aspect[1], 1},
        {FORMAT "DME Aspect", "DME1,4:3,16:9", &DEV_Dme[0].aspect[0], 0},
        {FORMAT "DME Aspect", "DME1,16:9,16:9,16:9,16:9", &DEV_Dme[0].aspect[3], 1},
        {FORMAT "DME Aspect", "DME1,16:9,16:9,16:9,4:3", &DEV_Dme[0].aspect[3], 0},
        {FORMAT "DME Aspect", "DME1,4:9,16:9", &DEV_Dme[0].aspect[0], 1},
        {FORMAT "Reference@SWR1", "Tri", &DEV_Swr[0].refinputformat, 0},
        {FORMAT "4K Mode", "On", &SYS_4KMode, 1},
        {SYSTEM_CONFIG "Panel Assign", "0,7,8,9,9,9", &SYS_PnlAssign[0][1], 8},
        {SYSTEM_CONFIG "Panel Assign", "0,7,8,9,9,9", &SYS_PnlAssign[1][0], 1}, // of another row
        {SYSTEM_CONFIG "Switcher Assign", "2,3,4,5,262", &SYS_SwrAssign[2][3], 6},
        {SYSTEM_CONFIG "Switcher Assign", "2,9,9,9", &SYS_SwrAssign[2][0], 3}, // a part is missing
        {SYSTEM_CONFIG "Switcher Assign", "KILL", &SYS_SwrAssign[2][3], 0},
        {SWITCHER "SDI I/F@DME4", "Dedicated", &GL_DmeSdiIF[3], 1},
        {SWITCHER "Key/Wipe@FM Auto Store", "true", &SYS_AutoStore, 1},
        {"Frame Mem@Status@Store Number Sense", "12", &SYS_StoreFree, 12},
        {"Frame Mem@Status@Store Number2 Sense", "13", &SYS_StoreFree2, 13},
        {SWITCHER "Config@DME Wipe Sub Enable", "true", &SYS_DWSubEnable, 1},
        {SWITCHER "Config@MP2 Re-Entry", "true", &SYS_MP2ReEntry, 1},
        {SWITCHER "Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl", "true", &SYS_CCRReEntry, 1},
        {"Info@System Setup Data@File Auto Convert", "true", &GL_DataGokan, 1},
        {"16@Engineering Setup@System@Install@Unit Config@CCR Config", "8", &GL_DmeIFType, 1},
        {"16@Engineering Setup@System@Install@Unit Config@CCR Config", "8", &SYS_3DPair, 2},
        {"16@Engineering Setup@System@Install@Unit Config@CCR Config", "4", &SYS_3DPair, 21},
        {"File@Status@FM Data Port Status@SWR2", "L7,5", &GL_FMDataPortStatus[1], 5},
        {"File@Status@FM Data Port Status@SWR1", "1", &GL_FMDataPortStatus[0], 1},
        {"Info@Board Config@Unit Model@SWR1", "12", &DEV_Swr[0].type, DEVTYPE_NTR40},
        {"Engineering Setup@System@Install@Unit Config@M/E Split", "1,3", &GL_BoardMESplit[1], 3},
        {"Engineering Setup@System@Install@Unit Config@M/E Split", "1,3", &GL_KeyMax[1], 4},
        {"Engineering Setup@System@Install@Unit Config@M/E Split", "2", &GL_KeyMax[1], 8},
        {SWITCHER "Transition@Key Transition@P/P", "Independent", &SYS_KeyTransitionPP, 1},
    };
    for (const auto& c : cases) {
        Deliver(c.path, c.value);
        EXPECT_EQ(*c.state, c.expected) << c.path << "#" << c.value;
    }
}

// --- Units ---

TEST_F(BusTally, AnotherReferenceIsToldToThePageAndADataPortOutOfUseAskedFor)
{
    DEV_Dme[0].aspect[0] = !SYS_ScreenAspect;
    Deliver("Info@DME@RefCH", "1");
    EXPECT_EQ(SYS_ScreenAspect, DEV_Dme[0].aspect[0]);
    probe::seen.clear();
    for (const char* value : {"3", "3", "0"})
        EXPECT_EQ(Deliver("Info@DME@RefCH", value), 1);
    EXPECT_EQ(probe::Count(LMSG_DMEREFCHANGE), 2);
    EXPECT_EQ(Deliver("Info@DME@SelCH", "1"), 1);
    EXPECT_EQ(probe::Count(MSG_TALLY), 0);
    std::fill(std::begin(GL_FMDataPortDisable), std::end(GL_FMDataPortDisable), 0);
    (void)TakeQueuedCommands();
    Deliver("Info@System Setup Data@FM Data Port Disable@SWR1", "1,0");
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(HasSubstr("SWR1")));
    Deliver("Info@System Setup Data@FM Data Port Disable@SWR1", "0,0");
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

TEST_F(BusTally, AVideoFormatSetsTheUnitsRateAndLines)
{
    Deliver(network_list, "MPE001D001,MPE1,a,b,c");
    for (const auto& [name, value, framerate, activeline, frame_rate] :
         {std::tuple{"PNL1", "30/60,1080i", 30.0, 4, 30},
          {"PNL1", "23.976,1080p", 23.976, 6, 24},
          {"PNL1", "---,720p", 30.0, 3, 60},
          {"PNL1", "25/50,3840x2160p", 25.0, 3, 30}, // unknown size
          {"PNL1", "30/60,1080i", 30.0, 4, 30},
          {"PNL1", "25/50", 25.0, 4, 30}, // no size
          {"PNL1", "", 25.0, 4, 30},
          {"PNL1", "25/50,720p", 25.0, 3, 25},
          {"PNL1", "29.97/59.94,480i", 29.97, 1, 30},
          {"PNL1", "24,576i", 24.0, 2, 24},
          {"PNL1", "24,1080PsF", 24.0, 5, 24},
          {"PNL1", "---,720p", 30.0, 3, 60},
          {"PNL1", "25/50", 25.0, 3, 30},
          {"SWR1", "24,480i", 24.0, 1, 30}, // only a panel sets the rate of the time codes
          {"SWR1", "---,720p", 30.0, 3, 30},
          {"DME1", "24,480i", 24.0, 1, 30},
          {"DME1", "---,720p", 24.0, 3, 30}, // these keep a rate that nobody knows
          {"MPE1", "25/50,480i", 25.0, 1, 30},
          {"MPE1", "---,720p", 25.0, 3, 30}}) {
        const DEVICE* const unit = Device_ByName(name);
        ASSERT_TRUE(unit) << name;
        Deliver(std::string(FORMAT "Video Format@") + name, value);
        EXPECT_EQ(unit->framerate, framerate) << value;
        EXPECT_EQ(unit->activeline, activeline) << value;
        EXPECT_EQ(SYS_FrameRate, frame_rate) << value;
    }
    EXPECT_EQ(SYS_RefPnlActiveLine, 3);
    // Only a unit that is there is set at all.
    Deliver(FORMAT "Video Format@SWR1", "25/50,1080i");
    Deliver(FORMAT "Video Format@PNL4", "25/50,1080i");
    EXPECT_EQ(SYS_FrameRate, 30);
    EXPECT_EQ(SYS_RefSwrActiveLine, 4);
}

TEST_F(BusTally, TheListOfUnitsIsClearedFilledAndUpdated)
{
    Deliver(network_list, "MPE001D001,MPE1,a,b,c");
    for (const int known : {4, 4, 0}) { // what was told of a unit is not told again
        Deliver(network_list, "KILL");
        EXPECT_EQ(SYS_PnlMax + SYS_SwrMax + SYS_DmeMax + SYS_MpeMax, 0);
        EXPECT_EQ(Device_ByName("SWR1"), nullptr);
        Deliver(network_list, known ? "SWR001D001,SWR1,a,b,c" : "SWR009D001,SWR9,a,b,c");
        if (known)
            Deliver(FORMAT "Video Format@SWR1", "30/60,1080i");
        EXPECT_EQ(DEV_Swr[0].activeline, known);
        Deliver(network_list, "KILL");
        Deliver(network_list, known ? "SWR001D001,SWR1,a,b,c" : "SWR009D001,SWR9,a,b,c");
        EXPECT_EQ(DEV_Swr[0].activeline, known);
    }
    Deliver(network_list, "KILL");
    Deliver(network_list, "SWR001D001,SWR1,10.1.2.1,10.129.2.1,10.2.2.1");
    Deliver(network_list, "SWR002D001,SWR2,10.1.2.2,10.129.2.2,10.2.2.2");
    Deliver(network_list, "SWR001D001,SWR7,1,2,3,4"); // the last part keeps its comma
    ASSERT_EQ(SYS_SwrMax, 2);
    EXPECT_STREQ(DEV_Swr[0].name, "SWR7");
    EXPECT_STREQ(DEV_Swr[0].periip, "3,4");
    EXPECT_STREQ(DEV_Swr[1].id, "SWR002D001");
    EXPECT_STREQ(DEV_Swr[1].dataip, "10.129.2.2");

    const std::string longest(100, 'x');
    const std::string unit = "MPE" + longest + "," + longest + "," + longest + ",d,p";
    Deliver(network_list, unit);
    Deliver(network_list, unit); // finds its row again although the id was cut
    ASSERT_EQ(SYS_MpeMax, 1);
    EXPECT_EQ(strlen(DEV_Mpe[0].id), 15u);
    EXPECT_EQ(strlen(DEV_Mpe[0].ctrlip), 23u);

    for (int i = 1; i <= 9; i++)
        Deliver(network_list, "DME00" + std::to_string(i) + "D001,DME,c,d,p");
    EXPECT_EQ(SYS_DmeMax, DEVICE_MAX);
    for (const char* rubbish :
         {"", "SWR", "SWR003D001,SWR3,c,d", "RTR001,R,c,d,p", ",,,,", "SW,a,b,c,d"})
        Deliver(network_list, rubbish);
    EXPECT_EQ(SYS_SwrMax, 2);
    EXPECT_EQ(SYS_PnlMax, 0);
}

TEST_F(BusTally, TheOwnAddressEndsInThePanelNumber)
{
    static const std::string mode = SYSTEM_CONFIG "System Operation Mode@";
    Deliver("Info@IP Address@Menu CPU", "10.129.1.2");
    EXPECT_EQ(SYS_MyPnl, 2);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("remove " + mode + "PNL1", "add " + mode + "PNL2"));
    for (const char* rubbish : {"", "10.129.1.x", "2 "})
        Deliver("Info@IP Address@Menu CPU", rubbish);
    EXPECT_EQ(SYS_MyPnl, 2);
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
    Deliver("Info@IP Address@Menu CPU", "10.129.1.0");
    EXPECT_EQ(SYS_MyPnl, 0) << "of no panel";
}

TEST_F(BusTally, AnotherSwitcherOfTheOwnPanelRenewsTheHubTables)
{
    for (const auto& [value, first, second, renewed] :
         {std::tuple{"1,1,0,0,0,0", 1, 0, 0}, // as before
          {"2,7,8,9,9,9", 1, 0, 0},           // another panel
          {"1,3,4,0,0", 1, 0, 0},             // a part is missing
          {"1,258,513,0,0,0", 2, 1, 1},       // 8 bits each
          {"256,9,9,9,9,9", 2, 1, 0},
          {"KILL", 0, 0, 0},
          {"1,2,1,0,0,0", 2, 1, 1}}) { // the hub has not been asked before
        GL_InitReadSHP = 0;
        (void)TakeQueuedHubLines();
        Deliver(SYSTEM_CONFIG "Panel Assign", value);
        const Strings hub = TakeQueuedHubLines();
        EXPECT_EQ(hub.empty(), !renewed) << value;
        if (renewed) { // what the old ones had goes first
            EXPECT_EQ(hub.front().substr(0, 9), "Unlisten#") << value;
            EXPECT_EQ(hub.back().substr(0, 7), "Listen#") << value;
        }
        EXPECT_EQ(SYS_PnlAssign[1][0], first) << value;
        EXPECT_EQ(SYS_PnlAssign[1][1], second) << value;
        EXPECT_EQ(GL_InitReadSHP, renewed) << value;
    }
    EXPECT_EQ(SYS_PnlAssign[2][0] + SYS_PnlAssign[255][0], 0); // the list has been told anew
    const int blocks = UsedMemPtr;                             // what is queued for the hub counts
    for (const char* value : {"KILL", "1,2,1,0,0,0"})          // and once more, as a page reads it
        Deliver(SYSTEM_CONFIG "Panel Assign", value);
    EXPECT_EQ(UsedMemPtr, blocks);
}

// --- Modes ---

TEST_F(BusTally, TheOperationModeIsThatOfTheOwnPanel)
{
    static const struct {
        const char *panel, *value;
        int dual_proc, simul, dual_simul;
        bool second_pair;
    } cases[] = {
        {"PNL1", "Dual Proc", 1, 0, 0, true},      {"PNL2", "Single Proc", 1, 0, 0, false},
        {"PNL1", "Single Proc 3G", 0, 0, 0, true}, {"PNL1", "Single Simul", 0, 1, 0, false},
        {"PNL1", "Dual Simul", 1, 0, 1, false},    {"PNL1", "", 0, 0, 0, false},
    };
    for (const auto& c : cases) {
        (void)TakeQueuedCommands();
        Deliver(std::string(OPERATION_MODE) + c.panel, c.value);
        EXPECT_THAT((std::vector{SYS_DualProc, SYS_Simul, SYS_DualSimul}),
                    ElementsAre(c.dual_proc, c.simul, c.dual_simul));
        const Strings sent = TakeQueuedCommands();
        EXPECT_EQ(std::ranges::count(sent, "add Engineering Setup@DME@Model@DME4"), c.second_pair);
    }
}

TEST_F(BusTally, CombinedChannelsAreThoseThatHangTogether)
{
    static const struct {
        const char* on; // channels of the first quad that say they are combined with the one before
        int combined[4];
    } cases[] = {
        {"1", {0, 0, 0, 0}},  {"2", {1, 1, 0, 0}},  {"3", {0, 1, 1, 0}},
        {"34", {0, 1, 1, 1}}, {"24", {1, 1, 1, 1}}, // two pairs
    };
    for (const int first : {0, 4}) {
        for (const auto& c : cases) {
            for (int ch = 1; ch <= 4; ch++)
                Deliver(std::string("Global Effect@") + (first ? "Ch5-Ch8" : "Ch1-Ch4") +
                            "@Combine@Ch" + std::to_string(first + ch),
                        strchr(c.on, '0' + ch) && *c.on ? "true" : "false");
            for (int i = 0; i < 4; i++)
                EXPECT_EQ(SYS_Combine[first + i], c.combined[i]) << c.on << first + i;
        }
    }
    for (const char* rubbish : {"Ch0", "Ch5", "Ch", "Ch99999999999"})
        Deliver(std::string("Global Effect@Ch1-Ch4@Combine@") + rubbish, "false");
    EXPECT_EQ(SYS_CombineCh[1], 1);
    EXPECT_EQ(SYS_CombineCh[4], 0);
}

TEST_F(BusTally, APageIsReloadedOrLeftByTheSettingsItDependsOn)
{
    std::fill(std::begin(SYS_CombineDP), std::end(SYS_CombineDP), 0);
    SYS_KeyTransitionME1 = 0;
    for (const auto& [path, value, id, request] :
         {std::tuple<const char*, const char*, uint32_t, uint32_t>{
              OPERATION_MODE "PNL1", "Single Proc", 0x13110000u, 0u},     // no change
          {OPERATION_MODE "PNL1", "Single Simul", 0x11110000u, PAGE_TOP}, // M/E-1 is hidden in it
          {OPERATION_MODE "PNL1", "Single Proc", 0x13110000u,
           0x13110000u}, // still there: built anew
          {OPERATION_MODE "PNL1", "Dual Simul", 0x13110001u, 0x13110001u},
          {OPERATION_MODE "PNL1", "Single Proc", 0x131100AAu, 0x13110000u}, // gone: its tab
          {"Global Effect@Ch1-Ch4@Combine@Ch2", "true", 0x42170000u, 0x42170000u},
          {"Global Effect@Ch3-Ch4@Combine@Ch2", "true", 0x42170000u, 0x42170000u},
          {"Global Effect@Ch5-Ch6@Combine@Ch2", "true", 0x42260000u, 0u},
          {"Global Effect@Ch7-Ch8@Combine@Ch2", "true", 0x42270000u, 0x42270000u},
          {SWITCHER "Transition@Key Transition@M/E-1", "true", 0x11170000u, 0x11170000u},
          {SWITCHER "Transition@Key Transition@M/E-1", "true", 0x11170000u, 0u},
          {FORMAT "FC Format", "3,6,1,2,3,4", 0x73130000u, 0x73130000u},
          {FORMAT "FC Format", "3,6,1,2,3,4", 0x73130000u, 0u},
          {FORMAT "FC Format", "3,6,9,9,9", 0x73130000u, 0u}})
        EXPECT_EQ(Asked(id, path, value), request) << path << "#" << value;
    EXPECT_EQ(SYS_FrameDelayMode2[0], 1);
    EXPECT_EQ(SYS_FrameDelayMode2[3], 4);
}

TEST_F(BusTally, ABankThatIsDisabledIsLeftForTheNext)
{
    for (const auto& [bank, id, now, request] :
         {std::tuple{"M/E-2", 0x11110000u, 0x11110000u, 0u}, // another bank's page
          {"M/E-1", 0x15230000u, 0x13110000u, 0x13110000u},  // M/E-2 is off already; sub side
          {"M/E-5", 0x82110000u, 0x14110000u, 0x14110000u},
          {"P/P", 0x18110000u, PAGE_TOP, PAGE_TOP},
          {"M/E-4", 0x81110000u, PAGE_TOP, PAGE_TOP}}) { // none is left
        const std::string path = std::string(PANEL "Config@M/E Operation@") + bank;
        EXPECT_EQ(Asked(id, path, "Disable"), request) << bank;
        EXPECT_EQ(GL_NowPage, now) << bank;
    }
}

// In single simulcast M/E-2 is no place to go to, and a bank that was left has no way back.
TEST_F(BusTally, ADisabledBankIsNotReachedAgain)
{
    ASSERT_EQ(CreatePage(0x13110000), 0);
    ASSERT_EQ(CreatePage(0x15110000), 0); // Key5 of M/E-1
    SYS_Simul = 1;
    Deliver(PANEL "Config@M/E Operation@M/E-1", "Disable");
    EXPECT_EQ(GL_CreatePage, 0x13110000u);
    ASSERT_EQ(CreatePage(GL_CreatePage), 0);
    EXPECT_EQ(GetHistoryBack(1), 0x13110000u) << "the step passes over Key5";
    GL_CreatePage = 0;
    Deliver("TopMenu", "M/E-1");
    EXPECT_EQ(CreatePage(GL_CreatePage), -1);
    EXPECT_EQ(CreatePage(0x15210000), -1);
    EXPECT_EQ(GL_NowPage, 0x13110000u);
    SYS_Simul = 0;
    Deliver(PANEL "Config@M/E Operation@M/E-1", "Enable");
    EXPECT_EQ(CreatePage(0x15210000), 0);
}

TEST_F(BusTally, ANameReplacesTheEntryOfItsBus)
{
    for (const auto& [path, names, count] :
         {std::tuple{PANEL "Xpt Assign@Source@List", BUS_XptSrc, BUS_XPT_SRC},
          {PANEL "Config@External Bus Link@Master Bus List", BUS_ExtMaster, BUS_EXT_MASTER},
          {SWITCHER "Link@Internal Bus Link@Master Bus List", BUS_IntMaster, BUS_INT_MASTER},
          {PANEL "Config@External Bus Link@S-BUS Src Name List", BUS_SBusSrc, BUS_SBUS},
          {PANEL "Config@External Bus Link@S-BUS Dst Name List", BUS_SBusDst, BUS_SBUS}}) {
        const int blocks = UsedMemPtr;
        Deliver(path, "0,Cam 1");
        for (const std::string& value :
             {std::to_string(count - 1) + ",a,b", std::to_string(count) + ",x", std::string("-1,x"),
              std::string("x,y"), std::string("0")})
            Deliver(path, value);
        EXPECT_STREQ(names[0], "Cam 1") << path;
        EXPECT_STREQ(names[count - 1], "a,b") << path;
        EXPECT_STREQ(names[1], "") << path;
        EXPECT_EQ(UsedMemPtr, blocks) << "the old name is freed";
    }
}

TEST_F(BusTally, ACrosspointTellsThePageWhenItChanges)
{
    SYS_XptAssignV[4] = SYS_XptAssignK[4] = 0;
    std::string name;
    probe::answer = [&](const probe::Seen& s) {
        if (s.msg == LMSG_XPTSRCCHANGE)
            name = Text(s.cx);
        return 0;
    };
    for (int i = 0; i < 2; i++) {
        Deliver(PANEL "Xpt Assign@Source@List", "0,VTR");
        Deliver(PANEL "Xpt Assign@Assign", "4,5,6");
        Deliver(PANEL "Xpt Assign@Assign", "254,5,6");
        Deliver(PANEL "Xpt Assign@Assign", "4,5");
    }
    EXPECT_EQ(probe::Count(LMSG_XPTSRCCHANGE), 1);
    EXPECT_EQ(name, "VTR");
    EXPECT_EQ(probe::Count(LMSG_XPTASSIGNCHANGE), 1);
}

// --- Page requests ---

TEST_F(BusTally, AMenuKeyReopensItsPageUnlessSomethingIsToBeAnswered)
{
    EXPECT_EQ(Asked(PAGE_TOP, "TopMenu", "M/E-2"), 0x12110000u);
    EXPECT_EQ(Asked(0x12110000, "TopMenu", "M/E-2"), 0u) << "shown already";
    for (const char* none : {"No such menu", ""}) {
        EXPECT_EQ(Asked(PAGE_TOP, "TopMenu", none), 0u);
        EXPECT_EQ(Deliver("TopMenu", none), 1);
    }
    for (const int mode_4k : {0, 1}) {
        SYS_4KMode = mode_4k;
        for (const char* menu : {"Frame Memory", "Status", "DME", "Global Effect"})
            EXPECT_EQ(Deliver("TopMenu", menu), mode_4k ? -1 : 1) << menu;
    }
    EXPECT_EQ(Deliver("TopMenu", "M/E-2"), 1);
    GL_CreatePage = 0;
    const int pane = PaneMessage_Create("Title", 2, "text");
    EXPECT_EQ(Deliver("TopMenu", "M/E-2"), -1);
    EXPECT_EQ(Deliver("TopMenu", "SubMenuSite"), -1);
    Pane_Quit(pane);
    CreateWindow(WINDOW_PAGE_JUMP, "");
    EXPECT_EQ(Deliver("TopMenu", "M/E-2"), -1);
    EXPECT_EQ(Deliver("Page", "1211"), -1);
    CloseWindow();
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_EQ(OmoteFlag, 1);
    EXPECT_EQ(probe::Count(MSG_TALLY), 0);
}

// A transfer's own pane makes way, but not for what would disturb it.
TEST_F(BusTally, AMenuKeyLeavesATransferBehind)
{
    (void)PaneMessage_Create("Title", 2, "text");
    (void)BkgdFileTransfer_Set(0x71220000, 1);
    GL_NowPage = 0x71220000;
    for (const char* menu : {"SP", "File", "User setup"})
        EXPECT_EQ(Deliver("TopMenu", menu), -1) << menu;
    EXPECT_EQ(Deliver("TopMenu", "M/E-2"), 1);
    EXPECT_EQ(GL_CreatePage, 0x12110000u);
    EXPECT_EQ(Deliver("Page", "1311"), 1);
    EXPECT_EQ(GL_CreatePage, 0x13110000u);
    (void)BkgdFileTransfer_Set(0, 0);
    EXPECT_EQ(Deliver("Page", "1411"), -1) << "a pane is to be answered";
    (void)BkgdHDDTransfer_Set(0x25620000, 1);
    GL_NowPage = 0x25620000;
    for (const char* menu : {"SP", "User setup"})
        EXPECT_EQ(Deliver("TopMenu", menu), -1) << menu;
    EXPECT_EQ(Deliver("TopMenu", "File"), 1);
    EXPECT_EQ(Deliver("Page", "1411"), 1);
    EXPECT_EQ(GL_CreatePage, 0x14110000u);
    (void)BkgdHDDTransfer_Set(0, 0);
}

TEST_F(BusTally, WhatATransferShowsMakesWayForAJump)
{
    for (int n = 0; n < 4; n++) {
        const bool is_hdd = n >= 2;
        const auto jump = [&] {
            return n % 2 ? Deliver("Page", "1311") : Deliver("TopMenu", "M/E-2");
        };
        const int pane = PaneMessage_Create("Title", 2, "text");
        GL_NowPage = is_hdd ? 0x25620000 : 0x71220000;
        if (is_hdd) {
            (void)BkgdHDDTransfer_Set(GL_NowPage, 1);
            BkgdHDDTransfer_SetPaneID(pane);
        } else {
            (void)BkgdFileTransfer_Set(GL_NowPage, 1);
            BkgdFileTransfer_SetPaneID(pane);
        }
        if (is_hdd && n % 2 == 0) {
            EXPECT_EQ(Deliver("TopMenu", "Frame Memory"), 1);
            EXPECT_TRUE(Pane_Exist(pane)) << "its pages are those of the transfer";
        }
        EXPECT_EQ(jump(), 1);
        EXPECT_FALSE(Pane_Exist(pane)) << n;
        (void)BkgdHDDTransfer_Set(0, 0);
        (void)BkgdFileTransfer_Set(0, 0);
        GL_ScreenSaverInterval = 1;
        GL_NowPage = PAGE_TOP;
        (void)EndScreenSaver(); // counts from here
        for (const int ms : {10, 1001, 1001})
            (void)ScreenSaver(ms);
        ASSERT_EQ(IsSaver(), 1);
        EXPECT_EQ(jump(), 1);
        EXPECT_EQ(IsSaver(), 0) << "nor does the saver stay over the page";
    }
}

TEST_F(BusTally, TheMenuTurnsOverToAPageThatExists)
{
    ASSERT_EQ(CreatePage(0x12110000), 0);
    EXPECT_EQ(Deliver("TopMenu", "SubMenuSite"), 1);
    EXPECT_EQ(OmoteFlag, 0);
    EXPECT_EQ(GL_CreatePage, PAGE_TOP);
    ASSERT_EQ(CreatePage(GL_CreatePage), 0);
    ASSERT_EQ(CreatePage(0x13110000), 0);
    EXPECT_EQ(Deliver("TopMenu", "SubMenuSite"), 1);
    ASSERT_EQ(CreatePage(GL_CreatePage), 0);
    EXPECT_EQ(GL_NowPage, 0x12110000u);
    // The page of the other side goes with its bank.
    Deliver(PANEL "Config@M/E Operation@M/E-3", "Disable");
    EXPECT_EQ(Deliver("TopMenu", "SubMenuSite"), 1);
    EXPECT_EQ(GL_CreatePage, PAGE_TOP);
    // Something else is asked for before the turn, and has no page.
    EXPECT_EQ(CreatePage(0x13110000), -1);
    EXPECT_EQ(OmoteFlag, 1) << "what is shown is the front";
    EXPECT_EQ(OmoteChange, 0);
    (void)TakeQueuedCommands();
    ASSERT_EQ(CreatePage(0x12210000), 0);
    EXPECT_EQ(GL_OmoteNowPage, 0x12210000u);
    EXPECT_EQ(TakeQueuedCommands().at(0), "put TopMenu@SubMenuSite#false");
}

TEST_F(BusTally, ThePanelsAssignButtonsOpenTheirPage)
{
    const auto asked = [](const char* value) {
        return Asked(0x12110000, PANEL "Prefs/Utility@Panel Select", value);
    };
    EXPECT_EQ(asked("7,1"), 0x73240001u);
    EXPECT_EQ(GL_UtlAsgnShortCutMenu, 0x12110000u);
    EXPECT_EQ(GL_UtlAsgnSelectButtonID, 7);
    EXPECT_EQ(asked("9,0"), 0x73240000u);
    EXPECT_EQ(GL_SelectButtonID, 9);
    EXPECT_EQ(GL_ShortCutMenu, 0x12110000u);
    EXPECT_EQ(asked("1023,2"), 0x73240002u);
    EXPECT_EQ(GL_XptAsgnSelectButtonID, 1023);
    EXPECT_EQ(GL_XptAsgnShortCutMenu, 0x12110000u);
    EXPECT_EQ(asked("0,1"), 0x73240001u);
    EXPECT_EQ(GL_UtlAsgnSelectButtonID, 0);
    for (const char* none : {"1024,0", "-1,0", "7,3", "7,-1", "7"})
        EXPECT_EQ(asked(none), 0u) << none;
}

TEST_F(BusTally, APageNumberIsReadAsItIsPrinted)
{
    GL_DeviceNo = 5;
    for (const auto& [value, request, device] : {std::tuple{"1111", 0x11110000u, 5},
                                                 {"7316.8", 0x73160008u, 5},
                                                 {"7316.1f,F8", 0x7316001Fu, 7},
                                                 {"7316.1f,D1", 0x7316001Fu, 0},
                                                 {"7316.1f,D2", 0x7316001Fu, 1},
                                                 {"1111,D0", 0x11110000u, 1},
                                                 {"1111,E3", 0x11110000u, 1},
                                                 {"aBcF", 0xABCF0000u, 1},
                                                 {"12", 0x00120000u, 1},
                                                 {"1.2", 0x00010002u, 1},
                                                 {" 1111", 0x11110000u, 1},
                                                 {"1111.", 0x11110000u, 1},
                                                 {"11112", 0x11110000u, 1}, // four digits are taken
                                                 {"1111,D9", 0x11110000u, 1},
                                                 {"1111,Dffffffffffffffffff", 0x11110000u, 1},
                                                 {"", 0u, 1},
                                                 {"-1", 0u, 1}}) {
        EXPECT_EQ(Asked(PAGE_TOP, "Page", value), request) << value;
        EXPECT_EQ(GL_DeviceNo, device) << value;
    }
}

TEST_F(BusTally, NoValueOnAnyPathDoesHarm)
{
    static const std::pair<std::string, Strings> paths[] = {
        {"",
         {"TopMenu", "Page", "16@Engineering Setup@System@Install@Unit Config@CCR Config",
          "Global Effect@Ch1-Ch4@Combine@Ch", "INFORMATION@DME File Process Progress", network_list,
          OPERATION_MODE}},
        {"Info@",
         {"DME@RefCH", "IP Address@Menu CPU", "Processor Status@1", "Initial Read Status",
          "System Setup Data@FM Data Port Disable@SWR1"}},
        {"Info@Operation Setup Data@",
         {"Timeline Region Display", "Timeline Region Priority", "Group Name@",
          "Shortcut Name@-1"}},
        {FORMAT, {"Video Format@PNL1", "Switcher Aspect", "FC Format"}},
        {SYSTEM_CONFIG, {"Panel Assign"}},
        {SWITCHER, {"Config@M/E Config@", "SDI I/F@DME1"}},
        {PANEL,
         {"Config@M/E Assign@", "Config@M/E Operation@", "Xpt Assign@Source@List",
          "Xpt Assign@Assign", "Prefs/Utility@Panel Select"}},
        {PANEL "Config@",
         {"MP2 Main/Sub Assign@Main/Sub Assign@1st Row",
          "Compact Key Module Assign@KY Unit Config@14",
          "10 Key Region Assign@Common@Region@Common@"}},
    };
    const std::string n(20, '9');
    Strings values = {"", ",", "#", "KILL", "-1", std::string(1023, ','), std::string(3000, '9')};
    values.push_back(n + "," + n + "," + n + ",9,9,9,9,9,9");
    values.push_back("-" + n + ",-" + n + ",0,0,0,0");
    for (const auto& [prefix, names] : paths)
        for (const std::string& name : names) {
            for (const std::string& value : values)
                Deliver(prefix + name, value);
            EXPECT_LE(SYS_PnlMax, DEVICE_MAX);
            EXPECT_TRUE(SYS_MyPnl >= 0 && SYS_MyPnl < UNIT_MAX) << name;
            EXPECT_TRUE(GL_DeviceNo >= 0 && GL_DeviceNo < DEVICE_MAX) << name;
        }
}
