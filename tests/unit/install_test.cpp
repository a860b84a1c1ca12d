#include "display.h"
#include "install_stick.h"

struct Install : testing::Test {
    std::unique_ptr<InstallStick> stick;

    void SetUp() override
    {
        Harness_Reset();
        stick = std::make_unique<InstallStick>();
        InstallStick::Put("pkg/a.bin", "a");
        CopyText(GL_MenuDetailInfoFull[1], "Version 2.10#3 (Mar.01.2013)");
        Log_Init("/var/log2/install.log", LOG_FILE_SIZE);
        (void)unlink("/var/log2/install.log");
    }
    void TearDown() override
    {
        stick.reset();
        Harness_Reset();
    }
    static int Run(const std::string& cfg, int type = TARGET_SWR, int uid = 1,
                   const std::string& folder = "pkg")
    {
        InstallStick::Put(folder + "/install.cfg", cfg);
        (void)unlink(STICK "/calls");
        Err_Clear();
        return SystemInstall((STICK "/" + folder + "/install.cfg").c_str(), type, uid);
    }
    static std::string Logged() { return FileText("/var/log2/install.log"); }
};
constexpr const char* ADVICE = "    Please check the file on your memory card, and try again.";

TEST_F(Install, EachKeywordCallsItsProgram)
{
    static const std::pair<const char*, Strings> cases[] = {
        {"INSTALL a.bin APP 5.10\n", {"ui_install [" STICK "/pkg/a.bin] [APP]"}},
        {"install\ta.bin  APP\r\n", {"ui_install [" STICK "/pkg/a.bin] [APP]"}},
        {"INSTALL a.bin LINUX Version 2.10#3 (Mar.01.2013)\n", {}},
        {"INSTALL a.bin LINUX 2.10#3 (Mar.01.2013)\n", {}},
        {"INSTALL a.bin LINUX 2.11\n", {"ui_install [" STICK "/pkg/a.bin] [LINUX]"}},
        {"INSTALL a.bin APP 2.10#3 (Mar.01.2013)\n", {"ui_install [" STICK "/pkg/a.bin] [APP]"}},
        {"FPGA a.bin 3\n",
         {"killall [-9] [start_app_ksc.sh]", "killall [-9] [ksc]",
          "fpga_updater [" STICK "/pkg/a.bin] [3]"}},
        {"EXEC step one | cat; step 'two three'\n", {"step [one]", "step [two three]"}},
        {"SPUT a.bin /tmp/\n", {"scs_transfer [put] [" STICK "/pkg/a.bin] [/tmp/]"}},
        {"EXECS update -u %UID now\n", {"scs_exec [update -u UID1 now]"}},
        {"TITLE x\nWAIT 5\nRPM\nEXECA\nRCVDA\nUGA\nREBOOT\nPUT a.bin\nCPUT a.bin\nEXE step\n# x\n",
         {}},
        {"", {}},
        {"EXECS one\nSPUT a.bin /x\nEXECS two\n",
         {"scs_exec [one]", "scs_transfer [put] [" STICK "/pkg/a.bin] [/x]", "scs_exec [two]"}},
    };
    for (const auto& [cfg, calls] : cases) {
        EXPECT_EQ(Run(cfg), 0) << cfg;
        EXPECT_EQ(InstallStick::Calls(), calls) << cfg;
        EXPECT_THAT(InstallStick::Errors(), IsEmpty()) << cfg;
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << cfg;
    }
    // One digit of the unit's number goes into a command, once.
    EXPECT_EQ(Run("EXECS up %UID %UID\n", TARGET_SWR, 0x2B), 0);
    EXPECT_THAT(InstallStick::Calls(), ElementsAre("scs_exec [up UID2 %UID]"));
    EXPECT_THAT(Logged(), AllOf(HasSubstr("install_scs:: %UID detected"),
                                HasSubstr("install_scs:: -> up UID2 %UID")));
}

TEST_F(Install, AStepThatFailsEndsItAndIsTold)
{
    std::vector<std::vector<uint32_t>> looks;
    for (const auto& [step, script, status, is_told_by_server] :
         {std::tuple<std::string, const char*, int, bool>{"INSTALL a.bin APP", "ui_install", 7,
                                                          false},
          {"FPGA a.bin 3", "fpga_updater", 255, false},
          {"SPUT a.bin /tmp/", "scs_transfer", 1, false},
          {"EXECS update", "scs_exec", 9, true},
          {"INSTALL a.bin APP;reboot", "", 126, false}, // not run at all
          {"SPUT a.bin $(reboot)", "", 126, false}}) {
        InstallStick::Ends(script, std::to_string(status));
        InstallStick::Put("result", "disk is full\nOK\n");
        const std::string value = step.substr(step.find(' ') + 1);
        EXPECT_EQ(Run(step + "\nEXEC step never\n"), -1) << step;
        EXPECT_EQ(Install_FailedCode(), status) << step;
        EXPECT_THAT(InstallStick::Calls(), Not(Contains("step [never]"))) << step;
        const std::string code = "[Error] Install failure : code = [" + std::to_string(status);
        const Strings errors = is_told_by_server ? Strings{"Install failed.", "disk is full", "OK"}
                                                 : Strings{code + "]", value, ADVICE};
        EXPECT_EQ(InstallStick::Errors(), errors) << step;
        EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << step;
        const auto look = PixelsIn({200, 150, 599, 449});
        EXPECT_FALSE(std::ranges::count(looks, look)) << "it names the step";
        looks.push_back(look);
        InstallStick::Ends(script, "0");
    }
    EXPECT_EQ(Run("EXEC step; exit 3\n"), 0) << "nobody asks what came of an EXEC";
    TDL_Hold(); // within a pass, the first thing is seen before the rest is done
    const Display display;
    Display::handed = 0;
    display_progress("Install", 30, "Searching");
    EXPECT_GT(Display::handed, 0);
    TDL_Release();
}

TEST_F(Install, ACommandInTheBackgroundIsWaitedForWhateverWasEstimated)
{
    static const std::pair<const char*, int> cases[] = {
        {"2", 30},
        {"1", 90}, // longer than estimated
        {"0", 3},
        {"101", 3},
    };
    for (const auto& [status, polls] : cases) {
        InstallStick::Ends("scs_exec", std::string(status) + "\n0");
        InstallStick::Put("result", "OK done\n");
        InstallStick::Put("after", std::to_string(polls - 1));
        const uint32_t begin = Clock_ms;
        EXPECT_EQ(Run("EXECS size time\nEXECS_BG copy\n"), 0) << status;
        EXPECT_EQ(Clock_ms - begin, uint32_t(polls) * 1000) << "one look a second";
        EXPECT_THAT(InstallStick::Errors(), IsEmpty());
        EXPECT_THAT(Logged(), HasSubstr("install_scs:: remain = " + std::string(status)));
    }
}

TEST_F(Install, AStepInTheBackgroundEndsAsItsResultSays)
{
    static const std::string failed = "[Error] Install failure : code = [-1]";
    for (const auto& [result, expected, errors] :
         {std::tuple{"OK\n", 0, Strings{}},
          {"note\nOKAY\nnever read\n", 0, {"note"}},
          {"bad block\nno OK", -1, {"bad block", "no OK", failed, "copy", ADVICE}},
          {"", -1, {failed, "copy", ADVICE}}}) {
        InstallStick::Put("result", result);
        EXPECT_EQ(Run("EXECS_BG copy\n"), expected) << result;
        EXPECT_EQ(InstallStick::Errors(), errors) << result;
        EXPECT_EQ(GetWindow(), expected ? WINDOW_MESSAGE : WINDOW_NONE) << result;
        (void)CloseWindow();
    }
}

TEST_F(Install, AStepThatCanBeAskedIsPolled)
{
    // States, one a look; what comes of it; how long it takes.
    static const std::tuple<const char*, int, uint32_t> cases[] = {
        {"100", 0, 1},
        {"0\n37\n99\n100", 0, 4},
        {"50\n101", -1, 2},
        {"255", -1, 1},
    };
    for (const auto& [states, expected, seconds] : cases) {
        InstallStick::Ends("scs_exec", states);
        const uint32_t begin = Clock_ms;
        EXPECT_EQ(Run("EXECS_BG ktrPwsUpdate a.bin\n"), expected) << states;
        EXPECT_EQ(Clock_ms - begin, seconds * 1000) << states;
        EXPECT_EQ(std::ranges::count(InstallStick::Calls(), "scs_exec [ktrPwsUpdate a.binStatus]"),
                  seconds);
        EXPECT_EQ(InstallStick::Errors(), expected ? Strings{"Install failed."} : Strings{});
    }
}

TEST_F(Install, NothingRunsFromAPackageThatIsNotWhole)
{
    const std::string missing =
        "    Please check your memory card. (Or, install.cfg has a mistake)";
    EXPECT_EQ(Run("EXEC step\nINSTALL b.bin APP\nFPGA a.bin\nCPUT c.bin\nSPUT no.bin /tmp\n"), -1);
    EXPECT_THAT(InstallStick::Errors(),
                ElementsAre("[Error] INSTALL: The following package file is not found.",
                            STICK "/pkg/b.bin", missing,
                            "[Error] CPUT: The following package file is not found.",
                            STICK "/pkg/c.bin", missing));
    EXPECT_EQ(Run("EXEC step\nPUT\n"), -1) << "the folder is no file";
    EXPECT_EQ(Run("EXEC step\nEXECS " + std::string(INSTALL_LINE, 'x') + "\n"), -1);
    EXPECT_EQ(InstallStick::Errors()[0], "[Error] Can't open \"install.cfg\".");
    for (const int type : {int(TARGET_MENU), int(TARGETS), -1}) {
        EXPECT_EQ(Run("EXEC step\n", type), -1);
        EXPECT_EQ(InstallStick::Errors()[0],
                  "[Error] The install device [" + std::to_string(type) + "] is invalid.");
    }
    Err_Clear();
    EXPECT_EQ(SystemInstall(STICK "/pkg", TARGET_SWR, 1), -1);
    EXPECT_EQ(InstallStick::Errors()[0], "[Error] \"install.cfg\" is not found.");
    EXPECT_THAT(InstallStick::Calls(), IsEmpty());
    EXPECT_EQ(Install_FailedCode(), 0);
}

TEST_F(Install, AFolderWithABlankIsOneWordAndOneForTheShellIsNone)
{
    for (const std::string folder : {"My Pkg", "a`reboot`"}) {
        const bool is_good = folder == "My Pkg";
        InstallStick::Put(folder + "/a.bin", "a");
        EXPECT_EQ(Run("INSTALL a.bin APP\n", TARGET_UI, 1, folder), is_good ? 0 : -1);
        EXPECT_EQ(InstallStick::Calls(),
                  is_good ? Strings{"ui_install [" STICK "/My Pkg/a.bin] [APP]"} : Strings{});
    }
}

TEST_F(Install, PackageFileIsReadAsItStands)
{
    InstallStick::Put("pkg/install.cfg",
                      "title\tSWR  Upgrade \r\nVersion 1.2\nExecs_bg  a  b \nX y\n");
    cfg_info* info = parse_cfgfile(STICK "/pkg/install.cfg", TARGET_DME);
    ASSERT_TRUE(info);
    EXPECT_STREQ(info->title->str, "SWR  Upgrade");
    EXPECT_STREQ(info->version->str, "1.2");
    EXPECT_EQ(info->target, TARGET_DME);
    EXPECT_STREQ(info->dirname, STICK "/pkg");
    ASSERT_EQ(g_list_length(info->command), 1u);
    EXPECT_STREQ(static_cast<const char*>(info->command->data), "Execs_bg");
    EXPECT_STREQ(static_cast<const char*>(info->rest->data), "a  b");
    clear_cfg_info(info);
    EXPECT_FALSE(parse_cfgfile(STICK "/none.cfg", TARGET_DME));
}
