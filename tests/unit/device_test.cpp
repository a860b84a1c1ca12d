#include "device.h"
#include "global.h"
#include "harness.h"
#include <cstring>

namespace
{
void Unit(DEVICE* table, int& max, const char* prefix, int number, DEVTYPE type)
{
    DEVICE& dev = table[max++];
    dev = {};
    snprintf(dev.name, sizeof dev.name, "%s%d", prefix, number);
    snprintf(dev.id, sizeof dev.id, "%s%03dD%03d", prefix, number, number);
    dev.type = type;
}

// Two panels, switchers and six effects units; panel 1 is on switchers 1 and 2, these on units 1 to
// 4 and 5.
struct Devices : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        SYS_PnlMax = SYS_SwrMax = SYS_DmeMax = 0;
        Unit(DEV_Pnl, SYS_PnlMax, "PNL", 2, DEVTYPE_QRD31);
        Unit(DEV_Pnl, SYS_PnlMax, "PNL", 1, DEVTYPE_QRD33);
        Unit(DEV_Swr, SYS_SwrMax, "SWR", 1, DEVTYPE_KTR40X);
        Unit(DEV_Swr, SYS_SwrMax, "SWR", 2, DEVTYPE_NTR40);
        for (int n = 1; n <= 6; n++)
            Unit(DEV_Dme, SYS_DmeMax, "DME", n, 1 << n);
        SYS_PnlAssign[1][1] = 2;
        SYS_SwrAssign[1][2] = 3;
        SYS_SwrAssign[1][3] = 4;
        SYS_SwrAssign[2][0] = 5;
        SYS_SwrAssign[2][1] = 1;
        GL_MainCounter = 1000;
    }
    void TearDown() override { Harness_Reset(); }
    static void Run1080p(DEVICE& dev)
    {
        dev.activeline = 6;
        dev.framerate = 29.97;
    }
};

std::vector<const DEVICE*> Listed(DEVICE* const* mine)
{
    std::vector<const DEVICE*> devices;
    while (*mine)
        devices.push_back(*mine++);
    return devices;
}
} // namespace

TEST_F(Devices, TheAssignmentRowsDecideWhatBelongsToThePanel)
{
    SYS_SetupTarget = 1;
    DeviceStructure();
    EXPECT_EQ(Listed(DEV_MyPnl), (std::vector<const DEVICE*>{&DEV_Pnl[1]}));
    EXPECT_EQ(Listed(DEV_MySwr), (std::vector<const DEVICE*>{&DEV_Swr[0], &DEV_Swr[1]}));
    EXPECT_EQ(Listed(DEV_MyDme), (std::vector<const DEVICE*>{&DEV_Dme[0], &DEV_Dme[1], &DEV_Dme[2],
                                                             &DEV_Dme[3], &DEV_Dme[4]}));
    EXPECT_EQ(SYS_MyAllMax, 8);
    EXPECT_EQ(SYS_RefPnlType, DEVTYPE_QRD33);
    EXPECT_EQ(SYS_RefSwrType, DEVTYPE_KTR40X);
    EXPECT_EQ(SYS_TargetSwrType, DEVTYPE_NTR40);
    EXPECT_THAT((std::vector{SYS_MyDme1, SYS_MyDme2, SYS_MyDme1S, SYS_MyDme2S}),
                ElementsAre(0, 1, 2, 3));
}

TEST_F(Devices, KnobTablesGoByTheReferenceUnitsThatTheirChannelsPick)
{
    // 0: not told, as it was
    for (const auto& [line, hd] : {std::pair{1, 0}, {2, 0}, {0, 0}, {3, 1}, {6, 1}, {0, 1}}) {
        DEV_Swr[0].activeline = line;
        DeviceStructure();
        EXPECT_EQ(SYS_SignalFormat, hd) << line;
    }
    DEV_Swr[0].aspect[2] = DEV_Swr[1].aspect[3] = 0; // the second switcher's has no part
    DEV_Dme[0].aspect[1] = DEV_Dme[1].aspect[0] = DEV_Dme[1].aspect[3] = 0; // channels 2, 5, 8
    for (const auto& [reference, wide] :
         {std::pair{0, 1}, {1, 1}, {2, 0}, {0x82, 0}, {0x80, 0}, {0x90, 0}, {0x10, 0}, {0x40, 1}}) {
        SYS_DMEReference = reference;
        DeviceStructure();
        EXPECT_EQ(SYS_ScreenAspect, wide) << std::hex << reference;
    }
    EXPECT_EQ(SYS_RefSwrScreenAspect[2], 0);
    EXPECT_EQ(SYS_RefSwrScreenAspect[3], 1);

    for (const auto& [channels, unit] :
         {std::pair{0x00, 1}, {0x08, 1}, {0x80, 2}, {0x90, 2}, {0x18, 1}}) {
        SYS_DMEReference = channels;
        EXPECT_EQ(getDmeReferenceUnit(), unit) << std::hex << channels;
        EXPECT_EQ(getDmeReferenceModel(), 1 << unit) << std::hex << channels;
    }
}

TEST_F(Devices, RubbishInTheTablesIsPassedOver)
{
    SYS_MyPnl = 999;
    SYS_SetupTarget = 77;
    SYS_PnlMax = 500;
    SYS_DmeMax = -1;
    DeviceStructure();
    EXPECT_EQ(SYS_MyAllMax, 0);
    EXPECT_EQ(DEV_MySwr[0], nullptr);
    EXPECT_EQ(SYS_RefSwrType, DEVTYPE_UNKNOWN);
    EXPECT_EQ(getDmeReferenceUnit() + isZRD52onSWR(nullptr), 0);

    SYS_MyPnl = 1;
    SYS_PnlAssign[1][0] = 255;
    SYS_PnlAssign[1][1] = -3;
    DeviceStructure();
    EXPECT_EQ(SYS_MySwrMax, 0);
    SYS_PnlAssign[1][0] = 1;
    memcpy(DEV_Swr[0].id, "SWR9", 5); // too short for a number
    DeviceStructure();
    EXPECT_EQ(SYS_MySwrMax, 0);
}

// Which questions hold for 1080p, by switcher model, processors and effects model.
TEST_F(Devices, LinksOf1080p)
{
    // The links of the switcher and of the effects unit, in two or as 3G; the adapter.
    static const std::tuple<DEVTYPE, int, DEVTYPE, double, std::vector<int>> cases[] = {
        {DEVTYPE_KTR40A, 0, DEVTYPE_FXU50, 29.97, {0, 0, 0, 0, 0}}, // too old for 3G
        {DEVTYPE_KTR40G, 0, DEVTYPE_FXU50, 29.97, {0, 0, 1, 1, 0}},
        {DEVTYPE_KTR40G, 1, DEVTYPE_FXU50, 29.97, {1, 1, 0, 0, 0}},
        {DEVTYPE_KTR40G, 1, DEVTYPE_ZRD52, 29.97, {1, 0, 0, 0, 1}},
        {DEVTYPE_KTR40G, 1, DEVTYPE_ZRD52, 24.0, {0, 0, 0, 0, 0}}, // one link is enough
    };
    for (const auto& [swr, dual, dme, rate, links] : cases) {
        Run1080p(DEV_Swr[0]);
        Run1080p(DEV_Dme[0]);
        DEV_Swr[0].type = swr;
        DEV_Dme[0].type = dme;
        DEV_Swr[0].framerate = DEV_Dme[0].framerate = rate;
        SYS_DualProc = dual;
        DeviceStructure();
        EXPECT_THAT((std::vector{isDualProc_DualLink(), isDualProc_DualLink_DME(), is1080P_3G(),
                                 is1080P_3G_DME(), is1080P_ZRD52_DME()}),
                    ElementsAreArray(links))
            << swr << " dual " << dual << " dme " << dme << " " << rate;
    }
}

TEST_F(Devices, AnswersOfTheServerCompleteTheTables)
{
    // The type is that of SWR1 afterwards.
    static const std::tuple<const char*, const char*, int, DEVTYPE> cases[] = {
        {"Info@Board Config@Unit Model@SWR1", "12", 1, DEVTYPE_NTR40},
        {"Info@Board Config@Unit Model@SWR1", "99999999999", 1, DEVTYPE_NTR40},
        {"Info@Board Config@Unit Model@SWR10", "1", 1, DEVTYPE_NTR40}, // no such unit
        {"Info@Board Config@Unit Model@", "1", 1, DEVTYPE_NTR40},
        {"Info@Board Config@Unit Model@SWR1", "1", 1, DEVTYPE_KTR40},
    };
    DeviceStructure();
    for (const auto& [path, value, taken, type] : cases) {
        EXPECT_EQ(Device_Tally(path, value), taken) << path << "#" << value;
        EXPECT_EQ(SYS_RefSwrType, type) << path << "#" << value;
    }
    EXPECT_EQ(Device_Tally("Info@Board Config@Board Exist Set@SWR1@EEPROM", "4,1"), 1);
    EXPECT_TRUE(hasFrameConverter());
    EXPECT_EQ(Device_Tally("Info@Board Config@Board Exist Set@SWR1@Auto Scan", "0,0"), 1);
    EXPECT_TRUE(hasFrameConverter()); // a board that is down is still fitted
    EXPECT_EQ(Device_Tally("Info@Board Config@Board Exist Set@A name that is far too long", ",,,"),
              1);
}
