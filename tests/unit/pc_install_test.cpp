// The page New Install with a stick and three units that say what they run.
#include "install_stick.h"
#include "pane.h"
#include "pc_install.h"
#include "table_page.h"

struct NewInstall : TablePage {
    static constexpr int REFRESH = 49, INSTALL = 50, UNITS = 1, PACKAGES = 2;
    std::unique_ptr<InstallStick> stick;

    void SetUp() override
    {
        TablePage::SetUp();
        stick = std::make_unique<InstallStick>();
        (void)!::system("rm -rf /var/tmp/version1; mkdir -p /var/tmp/version1");
        CopyText(GL_ImportDataPath, STICK "/usb/");
        CopyText(GL_Version, "5.10");
        DEV_Swr[0].type = DEVTYPE_KTR40GSF;
        DeviceStructure();
        Unit("SWR010100", "SWR: Version 5.9#3 (Mar.01.2013)\n");
        Log_Init("/var/log2/install.log", LOG_FILE_SIZE);
    }
    void TearDown() override
    {
        Log_Init(nullptr, LOG_FILE_SIZE);
        CopyText(GL_ImportDataPath, "");
        CopyText(GL_Version, "--");
        Device_Init();
        stick.reset();
        TablePage::TearDown();
    }
    static void Unit(const std::string& file, const std::string& line)
    {
        std::ofstream("/var/tmp/version1/" + file) << line;
    }
    static void Package(const std::string& folder, const std::string& cfg)
    {
        InstallStick::Put("usb/" + folder + "/install.cfg", cfg);
    }
    // A title and a version for a kind of unit, and one step.
    static void Package(const std::string& title, const std::string& version,
                        const std::string& target, const std::string& step = "EXEC step")
    {
        static int n = 0;
        Package("p" + std::to_string(++n), "TITLE\t" + title + "\nVERSION " + version +
                                               "\nTARGET " + target + "\n" + step + " " + target +
                                               version + "\n");
    }
    static void Show()
    {
        (void)Open(0x73160010);
        Pass(10);
        Pass(10);
    }
    static Strings Rows(int list, const std::vector<int>& columns)
    {
        Strings rows;
        for (int row = 0; row < LS_GetNData(list); row++) {
            std::string text;
            for (int column : columns) {
                const char* cell = LS_GetData(list, row, column);
                text += std::string(text.empty() ? "" : " | ") + (cell ? cell : "");
            }
            rows.push_back(text);
        }
        return rows;
    }
    static int RowOf(const std::string& unit)
    {
        const Strings names = Rows(UNITS, {0});
        return int(std::ranges::find(names, unit) - names.begin());
    }
    static void Choose(const std::string& unit)
    {
        const int row = RowOf(unit);
        LS_SetTopLine(UNITS, row);
        (void)Touch(150, 78 + 22 * (1 + row - LS_GetTopLine(UNITS)) + 5);
        SendMessage(MSG_RELEASE, 150, 100, 0, 0);
        Clock_ms += 500;
    }
    static void ChoosePackage(int row)
    {
        (void)Touch(150, 284 + 22 * (1 + row) + 5);
        SendMessage(MSG_RELEASE, 150, 100, 0, 0);
        Clock_ms += 500;
    }
    // Install, and "Yes".
    static Lines Install()
    {
        (void)Press(INSTALL);
        for (int i = 0; i < 3; i++)
            Pass(100);
        (void)TakeQueuedCommands();
        EXPECT_NE(Pane_GetActiveID(), 0);
        (void)Touch(200 + 97 + 5, 140 + 247 + 5);
        for (int i = 0; i < 5; i++)
            Pass(100);
        EXPECT_EQ(Pane_GetActiveID(), 0);
        return TakeQueuedCommands();
    }
    static std::string Result(const std::string& unit)
    {
        return Rows(UNITS, {4})[size_t(RowOf(unit))];
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
    Show();
    EXPECT_THAT(Rows(UNITS, {0, 1, 2, 3}),
                ElementsAre("SCS | -- | -- | ", "Menu/UI | -- | V5.10 | V5.11 #2",
                            "PNL1 | -- | -- | 2.0", "DCU1 | -- | -- | ", "DCU2 | -- | -- | ",
                            "SWR1 | KTR40GSF | 5.9 (Mar.01.2013) | 5.10", "DME1 | -- | -- | "));
    Choose("SWR1");
    EXPECT_THAT(Rows(PACKAGES, {0, 1, 2, 3}),
                ElementsAre("KTR40X UPGRADE | Upgrade | 6.0 | SWR",
                            "KTR40G Upgrade | Upgrade | 5.10 | SWR",
                            "KTR40G Full | Full | 5.10 | SWR", "KTR40G full | Full | 5.9 | SWR"));
    EXPECT_EQ(LS_IsSelected(PACKAGES, 1, 0), 1);
    ChoosePackage(3);
    EXPECT_EQ(Rows(UNITS, {3})[5], "5.9");
    EXPECT_THAT(Disabled(), IsEmpty());
    Choose("DME1");
    EXPECT_THAT(Rows(PACKAGES, {0}), IsEmpty());
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
        Pass(10);
        Pass(10);
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
    EXPECT_EQ(Result("SWR1"), "OK");
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_EQ(GL_InitialReadPopupDisable, 0);
    const auto at = [&](const char* line) { return std::ranges::find(sent, line) - sent.begin(); };
    const char* const list = "Engineering Setup@System@Network Config@List";
    EXPECT_LT(at((std::string("remove ") + list).c_str()),
              at("put Info@Initial Read Status#false"));
    EXPECT_LT(at("put Info@Initial Read Status#false"), at("put Info@Status Report#true"));
    EXPECT_LT(at("put Info@Status Report#true"), at((std::string("add ") + list).c_str()));
    EXPECT_LT(at((std::string("add ") + list).c_str()), std::ssize(sent));
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
    EXPECT_EQ(Rows(UNITS, {3})[size_t(RowOf("SWR1"))], "") << "of another model";
    ChoosePackage(0);
    EXPECT_EQ(Rows(UNITS, {3})[size_t(RowOf("SWR1"))], "6.0");
    (void)Install();
    EXPECT_EQ(Result("SCS"), "OK");
    EXPECT_EQ(Result("PNL1"), "7");
    EXPECT_EQ(Result("SWR1"), "Cancel");
    EXPECT_THAT(InstallStick::Calls(), ElementsAre("step [SCS3.0]", "scs_exec [PNL2.0]"));
    EXPECT_THAT(InstallStick::Errors(),
                ElementsAre("Install failed.", "[Error] The selected device is  KTR40GSF,",
                            "    Please select the correct package."));
    EXPECT_EQ(GL_CreatePage, 0x99000000u);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "of the step that failed";
    (void)CloseWindow();
    Show();
    EXPECT_EQ(Result("PNL1"), "7") << "still there after a look at the error list";
}
