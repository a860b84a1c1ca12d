#include "install_stick.h"
#include "pc_install.h"

struct NewInstall : InstallPage {
    static constexpr int REFRESH = 49, INSTALL = 50, UNITS = 1, PACKAGES = 2, OFFER = 3, RESULT = 4;

    void SetUp() override
    {
        InstallPage::SetUp();
        DEV_Swr[0].type = DEVTYPE_KTR40GSF;
        DeviceStructure();
        Unit("SWR010100", "SWR: Version 5.9#3 (Mar.01.2013)\n");
        Log_Init("/var/log2/install.log", LOG_FILE_SIZE);
    }
    static void Show()
    {
        (void)Open(0x73160010);
        Paint();
    }
    static Strings Rows(int list, int columns)
    {
        Strings rows;
        for (int row = 0; row < LS_GetNData(list); row++)
            rows.push_back(Cells(list, row, 0, columns));
        return rows;
    }
    static std::string Of(const std::string& unit, int column)
    {
        return Cell(UNITS, RowOf(unit), column);
    }
    static int RowOf(const std::string& unit)
    {
        const Strings names = Rows(UNITS, 1);
        return int(std::ranges::find(names, unit) - names.begin());
    }
    static void TouchRow(int y, int row)
    {
        (void)Touch(150, y + 22 * (1 + row) + 5);
        SendMessage(MSG_RELEASE, 150, 100, 0, 0);
        Clock_ms += 500;
    }
    static void Choose(const std::string& unit)
    {
        const int row = RowOf(unit);
        LS_SetTopLine(UNITS, row);
        TouchRow(78, row - LS_GetTopLine(UNITS));
    }
    static void ChoosePackage(int row) { TouchRow(284, row); }
    // Install, and "Yes".
    static Lines Install()
    {
        (void)Press(INSTALL);
        Paint();
        (void)TakeQueuedCommands();
        EXPECT_NE(Pane_GetActiveID(), 0);
        (void)Touch(200 + 97 + 5, 140 + 247 + 5);
        Paint();
        EXPECT_EQ(Pane_GetActiveID(), 0);
        return TakeQueuedCommands();
    }
};

TEST_F(NewInstall, EachUnitIsOfferedTheNewestPackageThatFits)
{
    Package("KTR40G Full", "5.10", "SWR");
    Package("KTR40G Upgrade", "5.10", "swr");
    Package("KTR40X UPGRADE", "6.0", "SWR");
    Package("KTR40G full", "5.9", "SWR");
    Package("PNL software", "2.0", "");
    Package("Menu", "V5.11 #2", "MENU CPU");
    Package("Camera", "1", "CAM");
    Unit("SIU010200", "DCU: Version 1.2\n");
    Show();
    EXPECT_THAT(Rows(UNITS, 4), ElementsAre("SCS|--|--|", "Menu/UI|--|V5.10|V5.11 #2",
                                            "PNL1|--|--|2.0", "DCU1|--|--|", "DCU2|--|1.2|",
                                            "SWR1|KTR40GSF|5.9 (Mar.01.2013)|5.10", "DME1|--|--|"));
    Choose("SWR1");
    EXPECT_THAT(Rows(PACKAGES, 4),
                ElementsAre("KTR40X UPGRADE|Upgrade|6.0|SWR", "KTR40G Upgrade|Upgrade|5.10|SWR",
                            "KTR40G Full|Full|5.10|SWR", "KTR40G full|Full|5.9|SWR"));
    EXPECT_EQ(LS_IsSelected(PACKAGES, 1, 0), 1);
    ChoosePackage(3);
    EXPECT_EQ(Of("SWR1", OFFER), "5.9");
    EXPECT_THAT(Disabled(), IsEmpty());
    Choose("DME1");
    EXPECT_EQ(LS_GetNData(PACKAGES), 0);
    EXPECT_THAT(Disabled(), ElementsAre(INSTALL));
}

TEST_F(NewInstall, VersionFilesAreReadUpToTheirOddities)
{
    static const struct {
        const char *line, *shown, *full;
    } cases[] = {
        {"SWR:   Version 5.9#3 (Mar.01)\nmore", "5.9 (Mar.01)", "5.9#3 (Mar.01)"},
        {"no colon\n", "no colon", "no colon"},
        {":\n", "", ""},
        {"", "--", "--"},
    };
    for (const auto& c : cases) {
        char text[64];
        Unit("X", c.line);
        for (const int full : {0, 1}) {
            GL_DetailInfoFull = full;
            newinstall_versioninfo("/var/tmp/version1/X", text, sizeof text);
            EXPECT_STREQ(text, full ? c.full : c.shown) << c.line;
        }
    }
    GL_DetailInfoFull = 0;
}

TEST_F(NewInstall, ASearchEndsAt256Packages)
{
    for (int i = 0; i < 257; i++)
        Package("Software " + std::to_string(i), std::to_string(i), "SCS");
    Show();
    Choose("SCS");
    EXPECT_EQ(LS_GetNData(PACKAGES), 256);
}

TEST_F(NewInstall, AnEmptyStickIsTold)
{
    Show();
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_THAT(Disabled(), ElementsAre(INSTALL));
    (void)CloseWindow();
    for (const char* path : {"", STICK "/usb;reboot/", STICK "/none/"}) {
        CopyText(GL_ImportDataPath, path);
        Pass(200); // the key has come back up
        (void)Press(REFRESH);
        Paint();
        EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << path;
        (void)CloseWindow();
    }
}

TEST_F(NewInstall, AllIsReadAgainAroundAnInstall)
{
    Package("KTR40G Upgrade", "5.10", "SWR");
    Show();
    Choose("SWR1");
    GL_InitialReadPopupDisable = 0;
    const Lines sent = Install();
    EXPECT_THAT(InstallStick::Calls(), ElementsAre("step [SWR5.10]"));
    EXPECT_EQ(Of("SWR1", RESULT), "OK");
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_EQ(GL_InitialReadPopupDisable, 0);
    const std::string list = "Engineering Setup@System@Network Config@List";
    auto at = sent.begin(); // in this order
    for (const std::string& line :
         {"remove " + list, std::string("put Info@Initial Read Status#false"),
          std::string("put Info@Status Report#true"), "add " + list}) {
        at = std::find(at, sent.end(), line);
        EXPECT_NE(at, sent.end()) << line;
    }
}

TEST_F(NewInstall, AFailureDoesNotKeepTheNextUnitFromItsInstall)
{
    Package("KTR40X Upgrade", "6.0", "SWR");
    Package("Panel", "2.0", "PNL", "EXECS");
    Package("Server", "3.0", "SCS");
    InstallStick::Ends("scs_exec", "7");
    Show();
    LS_SetMS(UNITS, 1);
    for (const char* unit : {"SCS", "PNL1", "SWR1"})
        Choose(unit);
    EXPECT_EQ(Of("SWR1", OFFER), "") << "of another model";
    ChoosePackage(0);
    EXPECT_EQ(Of("SWR1", OFFER), "6.0");
    (void)Install();
    EXPECT_EQ(Of("SCS", RESULT), "OK");
    EXPECT_EQ(Of("PNL1", RESULT), "7");
    EXPECT_EQ(Of("SWR1", RESULT), "Cancel");
    EXPECT_THAT(InstallStick::Calls(), ElementsAre("step [SCS3.0]", "scs_exec [PNL2.0]"));
    EXPECT_THAT(InstallStick::Errors(),
                ElementsAre("Install failed.", "[Error] The selected device is  KTR40GSF,",
                            "    Please select the correct package."));
    EXPECT_EQ(GL_CreatePage, 0x99000000u);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "of the step that failed";
    (void)CloseWindow();
    Show();
    EXPECT_EQ(Of("PNL1", RESULT), "7") << "still there after a look at the error list";
}
