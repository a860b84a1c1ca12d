#include "global.h"
#include "harness.h"
#include "log.h"
#include "xsyslog.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

namespace
{
using testing::EndsWith;
using testing::MatchesRegex;

constexpr char LOG[] = "/var/log2/unit.log";
constexpr char MAINTENANCE[] = "/mnt/sys/log/maintenance.log";

// The minute in UTC, as a line begins with it.
std::string Minute()
{
    const time_t now = time(nullptr);
    char text[32];
    strftime(text, sizeof text, "[%b %d %H:%M", gmtime(&now));
    return text;
}

void Fill(const std::string& path, const std::string& text)
{
    std::ofstream(path) << text;
}

struct Log : testing::Test {
    void SetUp() override
    {
        std::filesystem::remove_all("/mnt/sys/log");
        GL_DebugMode = 0;
        GL_IsRamDisk = 0;
        Log_SetLevel(0);
        Log_Init(LOG, 100);
        std::filesystem::remove_all("/var/log2"); // the start lines
        std::filesystem::create_directory("/var/log2");
    }
    void TearDown() override
    {
        GL_DebugMode = 0;
        Log_SetLevel(0);
        Log_Init(nullptr, LOG_FILE_SIZE);
    }
};
} // namespace

TEST_F(Log, AFullFileRotatesBeforeTheNextLineAndTheOldestOfTenGoes)
{
    Fill(LOG, std::string(99, 'a'));
    Log_Output(1, 1, "same file");
    EXPECT_FALSE(std::filesystem::exists(LOG + std::string(".0")));
    Fill(LOG, std::string(100, 'b'));
    const std::string before = Minute();
    Log_Output(1, 7, "new file");
    EXPECT_EQ(FileText(LOG + std::string(".0")), std::string(100, 'b'));
    EXPECT_THAT(FileText(LOG), MatchesRegex("\\[[^]]*:[0-9][0-9]\\]\\[  7\\] new file\n"));
    EXPECT_THAT(FileText(LOG),
                testing::AnyOf(testing::StartsWith(before), testing::StartsWith(Minute())));

    for (int i = 0; i < 10; i++)
        Fill(LOG + std::string(".") + std::to_string(i), "old " + std::to_string(i));
    Fill(LOG, std::string(150, 'c'));
    EXPECT_EQ(Log_Output2(0, "line"), 0);
    EXPECT_EQ(FileText(LOG), "line\n");
    EXPECT_EQ(FileText(LOG + std::string(".0")), std::string(150, 'c'));
    for (int i = 1; i < 10; i++)
        EXPECT_EQ(FileText(LOG + std::string(".") + std::to_string(i)),
                  "old " + std::to_string(i - 1));
    EXPECT_FALSE(std::filesystem::exists(LOG + std::string(".10")));
}

TEST_F(Log, ADroppedLineTouchesNoFile)
{
    Fill(LOG, std::string(200, 'd')); // would rotate
    Log_SetLevel(3);
    EXPECT_EQ(Log_GetLevel(), 3);
    EXPECT_EQ(Log_Output(2, 1, "x"), 1);
    EXPECT_EQ(Log_Output2(2, "x"), 1);
    for (const int module : {0, 9, 1024}) {
        EXPECT_EQ(Log_SetModule(module, 0), 0);
        EXPECT_EQ(Log_GetModule(module), 0);
        EXPECT_EQ(Log_Output(3, module, "x"), 2);
    }
    for (const int none : {-1, 1025})
        EXPECT_EQ(Log_SetModule(none, 0) + Log_GetModule(none), -2);
    EXPECT_EQ(FileText(LOG), std::string(200, 'd'));
    EXPECT_EQ(Log_Output(3, 2, "x"), 0) << "the switch is the module's own";
    EXPECT_EQ(Log_Output(3, 1025, "x"), 0) << "and these have none";
    EXPECT_EQ(Log_SetModule(9, 1), 0);
    EXPECT_EQ(Log_Output(3, 9, "x"), 0);
    EXPECT_EQ(Log_Output(LOG_FORCED, 2, "x"), 0);
    Log_SetAllModule(0);
    for (const int module : {0, 8, 9, 1024})
        EXPECT_EQ(Log_GetModule(module), 0) << module;
}

TEST_F(Log, LongTextsAreReplacedByFormatAndCutByArgument)
{
    const std::string fits(4031, 'f'), too_long(4032, 't'), argument(9000, 'a');
    const char* volatile format = fits.c_str(); // known only at run time
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
    Log_Output(1, 1, format);
    EXPECT_THAT(FileText(LOG), EndsWith(fits + "\n"));
    format = too_long.c_str();
    Log_Output(1, 1, format);
    EXPECT_THAT(FileText(LOG), EndsWith("] <<< TOO LONG OUTPUT!!! >>>\n"));
#pragma GCC diagnostic pop
    Log_Output(1, 1, "%s", argument.c_str());
    EXPECT_THAT(FileText(LOG), EndsWith("] " + std::string(4095, 'a') + "\n"));
}

// Ahead of everything that the program says, and whatever level is asked for.
TEST_F(Log, AStartIsMarkedAndTakesItsLevelFromTheEnvironment)
{
    setenv("TM3LOGLEVEL", "4", 1);
    Log_Init(LOG, LOG_FILE_SIZE);
    unsetenv("TM3LOGLEVEL");
    EXPECT_THAT(FileText(LOG), MatchesRegex("\\[.*\\[ -1\\] === <<< START LOG >>> =+\n.*"));
    EXPECT_EQ(Log_Output(3, 1, "x"), 1);
    EXPECT_EQ(Log_Output(4, 1, "x"), 0);
    Log_Init(LOG, LOG_FILE_SIZE);
    EXPECT_EQ(Log_Output(3, 1, "x"), 1) << "without the variable the level stays";
}

TEST_F(Log, WhatIsOfLevelFiveGoesToTheSystemLogToo)
{
    EXPECT_EQ(xsys_openlog("unit", 0, -1), 1); // lines to standard error
    testing::internal::CaptureStderr();
    Log_Output(LOG_LIFE - 1, 11, "not this");
    Log_Output(LOG_LIFE, 11, "fan %d", 2);
    const std::string lines = testing::internal::GetCapturedStderr();
    xsys_closelog();
    EXPECT_THAT(lines, MatchesRegex("unit\\[[0-9]+\\]: 11 \\[info\\] fan 2\n"));
}

// Who says it, how bad it is, and with the process id where the one that opens asks for it.
TEST_F(Log, TheCollectorHearsEachLineWithItsSender)
{
    const int collector = socket(AF_UNIX, SOCK_DGRAM, 0);
    const sockaddr_un at{AF_UNIX, "/dev/log"};
    ASSERT_EQ(bind(collector, reinterpret_cast<const sockaddr*>(&at), sizeof at), 0);
    const auto heard = [collector] {
        char line[256];
        const ssize_t n = recv(collector, line, sizeof line, MSG_DONTWAIT);
        return std::string(line, size_t(std::max<ssize_t>(n, 0)));
    };
    EXPECT_EQ(xsys_openlog("menu", LOG_PID, LOG_USER), 0);
    xsys_tagsyslog(LOG_INFO, "11", "info", "fan %d", 2);
    EXPECT_THAT(heard(), MatchesRegex("<14>.*:[0-9][0-9] menu\\[[0-9]+\\]: 11 \\[info\\] fan 2"));
    xsys_tagsyslog(LOG_INFO, "11", "info", "%s", "");
    EXPECT_THAT(heard(), EndsWith(": 11 [info] "));
    xsys_closelog();
    xsys_tagsyslog(LOG_ERR, "SWR1", "diag", "fan");
    EXPECT_THAT(heard(), MatchesRegex("<131>.*:[0-9][0-9] tm3_unit: SWR1 \\[diag\\] fan"));
    xsys_closelog();
    close(collector);
    unlink(at.sun_path);
}

TEST_F(Log, MaintenanceLogNeedsARealDisk)
{
    GL_IsRamDisk = 1;
    EXPECT_EQ(SelfDiag_AddLog("SWR1", "fan %d", 1), 1);
    EXPECT_FALSE(std::filesystem::exists(MAINTENANCE));
    GL_IsRamDisk = 0;
    EXPECT_EQ(SelfDiag_AddLog("SWR1", "fan %d", 1), 0);
    EXPECT_THAT(FileText(MAINTENANCE),
                MatchesRegex("\\[[A-Z][a-z][a-z] .. ..:..:..\\] \\[SWR1\\]fan 1\n"));
    std::filesystem::remove_all("/mnt/sys/log");
    EXPECT_EQ(SelfDiag_AddLog("SWR1", "x"), -1);
    EXPECT_EQ(get_filelength(MAINTENANCE), -1);
}
