#include "harness.h"
#include "log.h"
#include "process.h"
#include <csignal>
#include <fstream>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

static volatile int signals_seen = 0;
static void CountSignal(int)
{
    signals_seen = signals_seen + 1;
}

// The program's own handler takes the tracked child: it must not find one that ktr_system waits
// for.
static volatile int tracked_seen = 0;
static void ReapTracked(int)
{
    signals_seen = signals_seen + 1;
    if (cpid)
        tracked_seen = tracked_seen + 1;
}

TEST(Process, WordsRunWithoutAShell)
{
    static const std::pair<const char*, int> cases[] = {
        {"  /bin/sh   -c  \"exit 3\" ", 3}, {"/bin/test \"a b\" = a\" \"b", 0},
        {"/bin/test $HOME = /root", 1}, // nothing is expanded
        {"/nowhere/program", 255},          {"/bin/true \"open", 255},
    };
    for (const auto& [cmd, exit_status] : cases)
        EXPECT_EQ(ktr_system(cmd), exit_status << 8) << cmd;
    const int child = ktr_start("/bin/sh -c \"sleep 0.1; exit 3\"");
    int status = 0;
    ASSERT_GT(child, 0);
    EXPECT_FALSE(ktr_has_ended(child, &status)) << "nobody waits for it";
    while (!ktr_has_ended(child, &status))
        usleep(1000);
    EXPECT_EQ(WEXITSTATUS(status), 3);
    EXPECT_EQ(ktr_start("/nowhere/program"), -1);
    EXPECT_EQ(ktr_system(nullptr), -1);
    EXPECT_EQ(WEXITSTATUS(ktr_system(("/bin/true " + std::string(5000, 'x')).c_str())), 255);
}

TEST(Process, TheChildsSignalsDoNotReachTheParent)
{
    signal(SIGINT, CountSignal);
    signal(SIGCHLD, ReapTracked);
    signals_seen = 0;
    EXPECT_EQ(ktr_system("/bin/sh -c \"kill -INT $PPID; kill -QUIT $PPID; exit 4\""), 4 << 8);
    EXPECT_EQ(signals_seen, 1) << "only SIGCHLD, once the status was taken";
    EXPECT_EQ(tracked_seen, 0);
    EXPECT_EQ(cpid, 0);
    signals_seen = 0;
    raise(SIGINT);
    EXPECT_EQ(signals_seen, 1) << "the handler is back";
    signal(SIGCHLD, SIG_DFL);

    signal(SIGINT, SIG_DFL);
    const int status = ktr_system("/bin/sh -c \"kill -INT $$\"");
    EXPECT_TRUE(WIFSIGNALED(status)) << "the child has the signal as the parent had it";
    EXPECT_EQ(WTERMSIG(status), SIGINT);
}

TEST(Process, AnInterruptedWaitGoesOn)
{
    struct sigaction action {
    };
    action.sa_handler = CountSignal; // without SA_RESTART
    sigaction(SIGALRM, &action, nullptr);
    signals_seen = 0;
    const itimerval soon = {{0, 20000}, {0, 20000}};
    setitimer(ITIMER_REAL, &soon, nullptr);
    EXPECT_EQ(ktr_system("/bin/sleep 0.2"), 0);
    const itimerval never{};
    setitimer(ITIMER_REAL, &never, nullptr);
    EXPECT_GT(signals_seen, 0);
    signal(SIGALRM, SIG_DFL);
}

TEST(Process, OutputGoesToTheFileWhateverItsLineLength)
{
    const char* file = "/var/tmp/redirected";
    EXPECT_EQ(ktr_system_and_redirect("printf '%0700d\\nlast' 1; exit 2", file), 2 << 8);
    EXPECT_EQ(FileText(file), std::string(699, '0') + "1\nlast");
    EXPECT_EQ(ktr_system_and_redirect("true", "/nowhere/file"), -1);
    EXPECT_EQ(ktr_system_and_redirect(nullptr, file), -1);
    EXPECT_EQ(ktr_system_and_redirect("true", nullptr), -1);
}

TEST(Process, TheShellGetsNoTextThatItWouldActOn)
{
    Log_Init("/var/log2/process.log", LOG_FILE_SIZE);
    Log_SetLevel(0);
    EXPECT_EQ(IsShellSafe("/mnt/usb/usb1/A-b_1.x:@+ 2"), 1);
    EXPECT_EQ(IsShellSafe(""), 1);
    EXPECT_EQ(IsShellSafe(nullptr), 0);
    for (const char c : std::string("\"'`$;|&<>()*?[]{}~!#%^=,\\\n\t\x7F\xE9"))
        EXPECT_EQ(IsShellSafe((std::string("a") + c).c_str()), 0) << c;
    EXPECT_EQ(IsShellSafe("a;reboot"), 0);
    EXPECT_THAT(FileText("/var/log2/process.log"), HasSubstr("[a;reboot]"));
    EXPECT_EQ(ktr_shell("exit 7"), 7 << 8);
    EXPECT_EQ(ktr_shell(nullptr), -1);
    Log_Init(nullptr, LOG_FILE_SIZE);
}

TEST(Process, DirectoriesComeWithTheirParents)
{
    EXPECT_EQ(MakeDir("/mnt/data/dirs/b/c/"), 0);
    EXPECT_EQ(FileExist("/mnt/data/dirs/b/c"), 1);
    EXPECT_EQ(MakeDir("/mnt/data/dirs/b"), 0) << "there already";
    std::ofstream("/mnt/data/dirs/file") << "x";
    EXPECT_EQ(MakeDir("/mnt/data/dirs/file"), -1);
    EXPECT_EQ(MakeDir("/mnt/data/dirs/file/d"), -1);
    EXPECT_EQ(MakeDir(""), -1);
    EXPECT_EQ(FileExist("/mnt/data/none"), 0);
}
