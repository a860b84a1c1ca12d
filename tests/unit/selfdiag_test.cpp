#include "bus_probe.h"
#include "i2c.h"
#include "selfdiag.h"
#include "text.h"
#include "xsyslog.h"
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

constexpr char MAINTENANCE[] = "/mnt/sys/log/maintenance.log";
#define PNL "INFORMATION@PNL Self Diagnosis Notice@"
#define SWR "INFORMATION@SWR Self Diagnosis Notice@"
#define DME "INFORMATION@DME Self Diagnosis Notice@"
#define MPE "Info@Self Diagnosis Notice@MPE Status@"

struct SelfDiag : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        CopyText(DEV_Mpe[0].name, "MPE1");
        CopyText(DEV_Mpe[0].id, "MPE001D001");
        SYS_MpeMax = 1;
        DeviceStructure();
        std::filesystem::remove(MAINTENANCE);
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        DEV_Mpe[0] = {};
        std::filesystem::remove(MAINTENANCE);
        BusTest::TearDown();
    }
    static void Report(const std::string& path, const std::string& value) { Deliver(path, value); }
    // The item whose message begins so, of any unit.
    static const SELFDIAG* Item(const std::string& message)
    {
        DiagUnit unit;
        for (int c = 0; c < DIAG_CLASSES; c++)
            for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++)
                for (int i = 0; i < unit.items; i++)
                    if (message == unit.item[i].message)
                        return &unit.item[i];
        return nullptr;
    }
    static std::string Entry(int i)
    {
        const SELFDIAG_LOG* const e = SelfDiag_GetLog(i);
        return std::string(e->device) + " " + e->message;
    }
};

TEST_F(SelfDiag, EveryGroupHasItsTextCodeAndTag)
{
    DEV_Pnl[0].type = DEVTYPE_QRD11B;
    static const std::tuple<const char*, const char*, int, const char*, const char*> rows[] = {
        {PNL "Board Temperature", "PNL1,OK,NG", 128, "PNL1 I/F Board Temperature Error",
         "SIU010100 [diag] SIU-BOARDTEMP-I/FBoard:I/F Board Temperature Error"},
        {PNL "Circuit Board Function", "PNL1,--,--,--,--,--,--,NG", 128, "PNL1 Fuse Error",
         "SIU010100 [diag] SIU-FUSE:Fuse Error"},
        {PNL "PSU Status", "PNL1,Exist,OK,OK,OK,Exist,NG,OK,OK", 128, "PNL1 PowerB AC Error",
         "SIU010100 [diag] SIU-PSUAC-PowerB:PowerB AC Error"},
        {PNL "PSU Status", "DCU2,Exist,OK,OK,NG", 128, "DCU2 PowerA FAN Error",
         "SIU010100 [diag] SIU-PSUFAN-PowerA:PowerA FAN Error"},
        {SWR "Reference Status", "SWR1,OK,None", 128, "SWR1 No Reference",
         "SWR010100 [diag] SWR-REFEXIST:No Reference"},
        {SWR "Fan Speed", "SWR1,--,NG(Max)", 130, "SWR1 FAN-2 Control Function Error (Max)",
         "SWR010100 [diag] SWR-FANSPEED-FAN-2:FAN-2 Control Function Error (Max)"},
        {MPE "MPE1", "0,3", 133, "MPE1 Reference Error (Format Mismatch)",
         "SIU010100 [diag] MPE-REFSTATUS:Reference Error (Format Mismatch)"},
    };
    int errors = 0;
    for (const auto& [path, value, status, entry, syslog] : rows) {
        xsys_openlog("unit", 0, -1);
        testing::internal::CaptureStderr();
        Report(path, value);
        EXPECT_THAT(testing::internal::GetCapturedStderr(),
                    HasSubstr(std::string(": ") + syslog + "\n"));
        xsys_closelog();
        ASSERT_EQ(SelfDiag_GetLogMax(), ++errors) << entry;
        EXPECT_EQ(Entry(0), entry);
        EXPECT_EQ(SelfDiag_LogIsError(0), 1);
        const SELFDIAG* const it = Item(SelfDiag_GetLog(0)->message);
        ASSERT_TRUE(it) << entry;
        EXPECT_EQ(it->status, status) << entry;
        EXPECT_EQ(GL_ErrorExist, errors);
    }
    EXPECT_THAT(FileText(MAINTENANCE), HasSubstr("[DCU2]SIU-PSUFAN-PowerA:PowerA FAN Error"));
}

TEST_F(SelfDiag, WhatIsNoReportChangesNothing)
{
    for (const char* value :
         {"", "PNL1", "PNL7,NG", "PNL1,Ng", ",NG", "SWR1,NG", "DCU3,NG", "PNL1,--"})
        Report(PNL "Fan Speed", value);
    for (const char* group : {"Nothing", "", "FAN Operation Hours"})
        Report(std::string(PNL) + group, "PNL1,NG");
    for (const char* value : {"1", "1,x", "1,-2"})
        EXPECT_EQ(SelfDiag_MPE_Tally("MPE1", value), -1) << value;
    EXPECT_EQ(SelfDiag_MPE_Tally("MPE2", "1,1"), -2);
    EXPECT_EQ(SelfDiag_GetLogMax(), 0);
    EXPECT_EQ(probe::Count(LMSG_SELFDIAGCHANGE), 0);
    EXPECT_EQ(SelfDiag_MPE_Tally("MPE1", "6,999999"), 0);
    EXPECT_EQ(Item("Reference Error (Unknown)")->status, 136);
    std::string many = "PNL1";
    for (int i = 0; i < 90; i++)
        many += ",NG";
    Report(PNL "Fan Speed", many);
    EXPECT_EQ(SelfDiag_GetLogMax(), 2 + 4) << "a panel has four fans";
}

// The time of an item is that of its last change, so a second report must not move it.
TEST_F(SelfDiag, OnlyAChangeIsLogged)
{
    const std::string path = PNL "Fan Speed";
    Report(path, "PNL1,OK,OK");
    EXPECT_EQ(SelfDiag_GetLogMax(), 0) << "that it is well from the start is no event";
    EXPECT_EQ(probe::Count(LMSG_SELFDIAGCHANGE), 1);
    Report(path, "PNL1,OK,NG");
    SELFDIAG* const it = DEV_Pnl[0].selfdiag + 3;
    ASSERT_STREQ(it->message, "FAN-2 Control Function Error");
    CopyText(it->time, "then");
    Report(path, "PNL1,OK,NG");
    EXPECT_STREQ(it->time, "then");
    EXPECT_EQ(SelfDiag_GetLogMax(), 1);
    EXPECT_EQ(probe::Count(LMSG_SELFDIAGCHANGE), 2);
    Report(path, "PNL1,OK,OK");
    EXPECT_EQ(Entry(0), "PNL1 FAN-2 Speed OK");
    EXPECT_EQ(SelfDiag_LogIsError(0), 0);
    const time_t now = time(nullptr);
    char today[16];
    strftime(today, sizeof today, "%b.%%*d.%Y %%n", gmtime(&now));
    int date_end = 0;
    (void)sscanf(SelfDiag_GetLog(0)->time, today, &date_end);
    EXPECT_GT(date_end, 0) << SelfDiag_GetLog(0)->time;
    EXPECT_EQ(GL_ErrorExist, 0);

    // It fails and comes back while nobody listens: the units are asked anew.
    Report(path, "PNL1,NG");
    SelfDiag_Refresh_All();
    EXPECT_EQ(Item("FAN-1 Control Function Error"), nullptr);
    Report(path, "PNL1,OK,OK,OK");
    EXPECT_EQ(SelfDiag_GetLogMax(), 5) << "both that had failed are well, the third always was";
    EXPECT_EQ(Entry(1), "PNL1 FAN-1 Speed OK");
}

TEST_F(SelfDiag, ARefreshAsksTheUnitsOfThisPanel)
{
    CopyText(DEV_Swr[1].name, "SWR2");
    CopyText(DEV_Swr[1].id, "SWR002D002");
    SYS_SwrMax = 2; // of another panel
    DeviceStructure();
    (void)TakeQueuedCommands();
    CopyText(GL_Fan[0][0], "OK");
    SelfDiag_Init();
    EXPECT_STREQ(GL_Fan[0][0], "NG") << "what has not reported yet";
    Report(SWR "Fan Speed", "SWR1,OK");
    Report(DME "Fan Speed", "DME1,OK");
    Report(PNL "Fan Speed", "DCU2,OK");
    EXPECT_EQ(SelfDiag_MPE_Tally("MPE1", "0,3"), 0);
    const std::string mismatch = "Reference Error (Format Mismatch)";
    EXPECT_NE(Item(mismatch), nullptr);
    for (const int unit : {0, 4})
        EXPECT_STREQ(GL_Fan[unit][0], "OK");
    SelfDiag_Refresh_All();
    for (const int unit : {0, 4})
        EXPECT_STREQ(GL_Fan[unit][0], "NG");
    for (const std::string& text : {std::string("FAN-1 Speed OK"), mismatch})
        EXPECT_EQ(Item(text), nullptr) << "of none of them";
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("put Info@Self Diagnosis Notice@SWR1#true",
                            "put Info@Self Diagnosis Notice@DME1#true",
                            "put Info@Self Diagnosis Notice@PNL#true",
                            "read Info@Self Diagnosis Notice@MPE Status@MPE1"));
}

TEST_F(SelfDiag, ABoardIsCalledByItsId)
{
    Report(SWR "Circuit Board ID", "SWR1,CPU-31,,XPT-44");
    EXPECT_STREQ(GL_CircuitBoard[0][0], "CPU-31");
    EXPECT_STREQ(GL_CircuitBoard[0][1], "NG");
    Report(DME "Circuit Board ID", "DME1,FXC-12");
    EXPECT_STREQ(GL_CircuitBoard[4][0], "FXC-12");
    Report(SWR "Board Temperature", "SWR1,OK,NG,NG");
    EXPECT_EQ(Entry(0), "SWR1 XPT-44 Temperature Error");
    EXPECT_EQ(Entry(1), "SWR1 Slot 2 Temperature Error");
    Report(SWR "PSU Status", "SWR1,Exist,OK,OK,OK,Exist,OK,NG,OK,None");
    EXPECT_EQ(std::string(GL_PSU[0][0]) + GL_PSU[0][1] + GL_PSU[0][2], "OKNGNG");
    ASSERT_TRUE(Item("PowerC Not Exist"));
    EXPECT_EQ(GL_ErrorExist, 3) << "a power supply that is not there is no error";
}

TEST_F(SelfDiag, TheOldestOf1025EntriesIsDropped)
{
    const std::string path = PNL "Reference Status";
    Report(PNL "Fan Speed", "PNL1,NG");
    for (int i = 0; i < SELFDIAG_LOGS - 1; i++)
        Report(path, i % 2 ? "PNL1,OK" : "PNL1,NG");
    ASSERT_EQ(SelfDiag_GetLogMax(), SELFDIAG_LOGS);
    EXPECT_EQ(Entry(SELFDIAG_LOGS - 1), "PNL1 FAN-1 Control Function Error");
    Report(path, "PNL1,OK");
    EXPECT_EQ(SelfDiag_GetLogMax(), SELFDIAG_LOGS);
    EXPECT_EQ(Entry(0), "PNL1 Reference OK");
    EXPECT_EQ(Entry(SELFDIAG_LOGS - 1), "PNL1 Reference Error");
    EXPECT_EQ(SelfDiag_GetLog(SELFDIAG_LOGS), nullptr);
    EXPECT_EQ(SelfDiag_GetLog(-1), nullptr);

    EXPECT_EQ(SelfDiag_LogDelete(0), 0);
    EXPECT_EQ(Entry(0), "PNL1 Reference Error");
    EXPECT_EQ(SelfDiag_LogDelete(SELFDIAG_LOGS - 1), -1);
    EXPECT_EQ(SelfDiag_GetLogMax(), SELFDIAG_LOGS - 1);
}

TEST_F(SelfDiag, AnErrorTakesTheTitleWhereItIsNotShownAnyway)
{
    const std::string path = PNL "Reference Status";
    for (const auto& [wanted, page, popup] : {std::tuple{0, PAGE_TOP, 0},
                                              {1, 0x74110000, 0},
                                              {1, 0x74120000, 0},
                                              {1, 0x74110002, 1},
                                              {1, PAGE_TOP, 1}}) {
        GL_ErrorPopup = wanted;
        GL_NowPage = page;
        GL_ErrorPopup_On = 0;
        Report(path, "PNL1,NG");
        EXPECT_EQ(GL_ErrorPopup_On, popup) << std::hex << page;
        Report(path, "PNL1,OK");
        EXPECT_EQ(GL_ErrorExist, 0);
        EXPECT_EQ(GL_ErrorPopup_On, popup) << "its end takes nothing back";
    }
}

// --- The menu's own board ---

constexpr char IMAGE[] = "/dev/i2c-0";

// While it lives a write beyond so many bytes fails.
struct NoFileLongerThan {
    rlimit before{};
    explicit NoFileLongerThan(size_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~NoFileLongerThan() { setrlimit(RLIMIT_FSIZE, &before); }
    NoFileLongerThan(const NoFileLongerThan&) = delete;
    NoFileLongerThan& operator=(const NoFileLongerThan&) = delete;
};

struct MenuBoard : SelfDiag {
    void SetUp() override
    {
        SelfDiag::SetUp();
        Byte(82, 2, 0);
        Byte(77, 0, 40);
        Byte(104, 14, 0);
        Hours(29, 1000);
        Hours(30, 0x01020304);
        (void)I2cEepromService_UpdateCrc32(3);
    }
    void TearDown() override
    {
        std::filesystem::resize_file(IMAGE, 128 * 256);
        SelfDiag::TearDown();
    }
    static void Byte(int device, int address, int value)
    {
        std::fstream image(IMAGE, std::ios::binary | std::ios::in | std::ios::out);
        image.seekp(device * 256 + address);
        image.put(char(value));
    }
    static int Byte(int device, int address)
    {
        std::ifstream in(IMAGE, std::ios::binary);
        in.seekg(device * 256 + address);
        return in.get();
    }
    static void Hours(int elem, int hours)
    {
        for (int i = 0; i < 4; i++)
            Byte(83, 128 + 4 * (elem - 29) + i, hours >> (24 - 8 * i) & 255);
    }
    static int Hours(int elem)
    {
        int hours = 0;
        for (int i = 0; i < 4; i++)
            hours = hours << 8 | Byte(83, 128 + 4 * (elem - 29) + i);
        return hours;
    }
};

TEST_F(MenuBoard, HoursTickAtOnceAndThenEachHour)
{
    SelfDiag_I2C_Update(5000);
    EXPECT_EQ(Hours(29), 1001);
    EXPECT_EQ(Hours(30), 0x01020305);
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(3), 1);
    EXPECT_EQ(Byte(104, 14), 28);
    EXPECT_EQ(SelfDiag_GetUI(1)->value, 1001);
    EXPECT_EQ(SelfDiag_GetUI(1)->status, SELFDIAG_OK);
    EXPECT_EQ(Item(SelfDiag_GetUI(1)->message), SelfDiag_GetUI(1)) << "a unit as all others";
    for (int ms = 0; ms < 3600000; ms += 5000)
        SelfDiag_I2C_Update(5000);
    EXPECT_EQ(Hours(29), 1001) << "not before the hour is over";
    Byte(82, 2, 0xF1); // the power supply is off
    SelfDiag_I2C_Update(1);
    EXPECT_EQ(Hours(29), 1002);
    EXPECT_EQ(Hours(30), 0x01020305);
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(3), 1);
}

TEST_F(MenuBoard, ADeadMemoryKeepsItsHours)
{
    constexpr size_t CUT = 83 * 256 + 130; // the memory answers short, and nothing behind it at all
    std::filesystem::resize_file(IMAGE, CUT);
    const NoFileLongerThan limit(CUT);
    const uint32_t before = Clock_ms;
    SelfDiag_I2C_Update(5000);
    EXPECT_EQ(Clock_ms - before, 200u) << "each count is asked for once more";
    EXPECT_EQ(Byte(83, 128) << 8 | Byte(83, 129), 0);
    EXPECT_EQ(std::filesystem::file_size(IMAGE), CUT) << "nothing is written";
}

TEST_F(MenuBoard, AMemoryThatComesBackCountsOn)
{
    {
        std::filesystem::resize_file(IMAGE, 0);
        const NoFileLongerThan limit(0);
        SelfDiag_I2C_Update(5000);
    }
    std::filesystem::resize_file(IMAGE, 128 * 256);
    Hours(29, 1000);
    SelfDiag_I2C_Update(3600000);
    EXPECT_EQ(Hours(29), 1000) << "the hour has not passed";
    SelfDiag_I2C_Update(5000);
    EXPECT_EQ(Hours(29), 1001) << "counted from what is there";
}

TEST_F(MenuBoard, AWrongCrcIsMendedAndAUnitThatLeavesTakesItsErrorsAlong)
{
    Byte(83, 188, Byte(83, 188) ^ 1);
    Hours(30, -1); // never written
    Report(SWR "Fan Speed", "SWR1,NG,NG");
    EXPECT_EQ(GL_ErrorExist, 2);
    SYS_PnlAssign[1][0] = 0;
    DeviceStructure();
    SelfDiag_I2C_Update(5000);
    EXPECT_EQ(GL_ErrorExist, 0);
    EXPECT_EQ(Hours(29), 1001);
    EXPECT_EQ(Hours(30), 0);
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(3), 1);
}

TEST_F(MenuBoard, From76DegreesOnItIsTooHot)
{
    static const std::tuple<int, int, int, int> rows[] = {{75, 1, 1, 1},    {75, 1, 1, 0},
                                                          {74, 1, 1, 1},    {76, 128, 2, 1},
                                                          {200, 128, 2, 1}, {0, 1, 3, 1}};
    for (const auto& [raw, status, log, redraw] : rows) {
        Byte(77, 0, raw);
        GL_RedrawMenu9991 = 0;
        SelfDiag_I2C_Update(5000);
        EXPECT_EQ(SelfDiag_GetUI(0)->status, status) << raw;
        EXPECT_EQ(SelfDiag_GetUI(0)->value, raw);
        EXPECT_EQ(SelfDiag_GetLogMax(), log) << raw;
        EXPECT_EQ(GL_RedrawMenu9991, redraw) << raw;
    }
    EXPECT_EQ(Entry(1), "MENU CA-91 Board Temperature Error");
    EXPECT_THAT(FileText(MAINTENANCE), HasSubstr("GUI-BOARDTEMP:CA-91 Board Temperature OK"));
    EXPECT_EQ(SelfDiag_GetUI(6), nullptr);
    EXPECT_STREQ(SelfDiag_ValueUnit(DIAG_MENU, 0), "C");
    EXPECT_STREQ(SelfDiag_ValueUnit(DIAG_MENU, 1), "h");

    SelfDiag_Init();
    std::filesystem::resize_file(IMAGE, 0);
    SelfDiag_I2C_Update(5000);
    EXPECT_EQ(SelfDiag_GetUI(0)->status, 0) << "a sensor that has never answered reports nothing";
}
