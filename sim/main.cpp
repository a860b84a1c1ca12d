// scs_sim: stands in for the control server, the status hub and the units behind them, on a desk
// without hardware.
#include "autoload.h"
#include "clip_output.h"
#include "console.h"
#include "device_bus.h"
#include "device_vtr.h"
#include "dissolve.h"
#include "drive.h"
#include "fault.h"
#include "file_job.h"
#include "frame_memory.h"
#include "hub.h"
#include "lay.h"
#include "link.h"
#include "log.h"
#include "macro.h"
#include "setup.h"
#include "sp.h"
#include "system.h"
#include "text.h"
#include "timeline.h"
#include "transition.h"
#include "values.h"
#include "verbs.h"
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <unistd.h>

namespace
{
struct Options {
    const char* values = nullptr;
    const char* script = nullptr;
    const char* log = nullptr;
    const char* listen = "127.0.0.1";
    const char* root = "";
    bool has_files = false;
    bool has_show = false;
    bool is_quiet = false;
    long seed = 1;
    long speed = 1;
};
} // namespace

static constexpr long SPEED_MAX = 100;
static volatile sig_atomic_t main_signal = 0;

static const char* const usage =
    "usage: scs_sim [--values FILE] [--script FILE] [--log FILE] [--quiet] [--seed N]\n"
    "               [--listen ADDRESS] [--root DIR] [--lay] [--show] [--speed N]\n"
    "Commands come from standard input; \"help\" lists them.\n";

static bool main_options(int argc, char** argv, Options* options)
{
    static const option names[] = {
        {"values", required_argument, nullptr, 'v'},
        {"script", required_argument, nullptr, 's'},
        {"log", required_argument, nullptr, 'l'},
        {"listen", required_argument, nullptr, 'a'},
        {"quiet", no_argument, nullptr, 'q'},
        {"root", required_argument, nullptr, 'f'},
        {"lay", no_argument, nullptr, 'd'},
        {"show", no_argument, nullptr, 'o'},
        {"seed", required_argument, nullptr, 'r'},
        {"speed", required_argument, nullptr, 't'},
        {nullptr, 0, nullptr, 0},
    };
    for (int key; (key = getopt_long(argc, argv, "", names, nullptr)) != -1;) {
        switch (key) {
        case 'v': options->values = optarg; break;
        case 's': options->script = optarg; break;
        case 'l': options->log = optarg; break;
        case 'a': options->listen = optarg; break;
        case 'f': options->root = optarg; break;
        case 'd': options->has_files = true; break;
        case 'o': options->has_show = true; break;
        case 'q': options->is_quiet = true; break;
        case 'r':
            if (!Text_ToInt(optarg, &options->seed))
                return false;
            break;
        case 't':
            if (!Text_ToInt(optarg, &options->speed) || options->speed < 1 ||
                options->speed > SPEED_MAX)
                return false;
            break;
        default: return false;
        }
    }
    return optind == argc;
}

static bool main_open(const char* file, bool (*open)(const char*))
{
    if (!file || open(file))
        return true;
    fprintf(stderr, "scs_sim: cannot open %s\n", file);
    return false;
}

static void main_catch(int number)
{
    main_signal = number;
}

// One turn: wait for an event or the next thing that is due, then let everybody do what is to be
// done.
static void main_turn(int64_t* next)
{
    std::vector<pollfd> set;
    const int64_t now = Now_Ms();
    *next = std::min(*next, Link_Wait(&set, now));
    if (Console_IsReading())
        set.insert(set.begin(), {STDIN_FILENO, POLLIN, 0});
    const int timeout_ms = int(std::clamp<int64_t>(Clock_RealMs(*next - now), 0, 1000));
    if (poll(set.data(), set.size(), timeout_ms) < 0)
        return; // a signal
    if (Console_IsReading() && set.front().revents)
        Console_ReadInput();
    Link_Serve(Now_Ms());
    const int64_t then = Now_Ms();
    // The console first: what it starts is due at once.
    *next = Console_Tick(then);
    *next = std::min({*next, Verb_Tick(then), System_Tick(then), Timeline_Tick(then),
                      Transition_Tick(then), Dissolve_Tick(then), Fault_Tick(then),
                      FileJob_Tick(then), Hub_Tick(then), ClipOutput_Tick(then),
                      Autoload_Tick(then), Setup_Tick(then), FrameMemory_Tick(then),
                      Macro_Tick(then), DeviceVtr_Tick(then), DeviceBus_Tick(then), Sp_Tick(then)});
}

int main(int argc, char** argv)
{
    Options options;
    if (!main_options(argc, argv, &options)) {
        fputs(usage, stderr);
        return 2;
    }
    Log_SetEcho(!options.is_quiet);
    Clock_SetSpeed(int(options.speed));
    Fault_Seed(unsigned(options.seed));
    if (!main_open(options.log, Log_Open))
        return 1;
    // Before all that takes time: who connects meanwhile waits, and need not try again.
    if (!Link_Start(options.listen)) {
        fprintf(stderr, "scs_sim: cannot listen on %s, see the log\n", options.listen);
        return 1;
    }
    if (!main_open(options.values, Values_Load) || !main_open(options.script, Console_OpenScript))
        return 1;
    Drive_SetRoot(options.root);
    if (options.has_files)
        Lay_Desk();
    System_Install();
    if (options.has_show)
        Lay_Setups();
    signal(SIGPIPE, SIG_IGN);
    signal(SIGINT, main_catch);
    signal(SIGTERM, main_catch);
    int status = 0;
    int64_t next = 0;
    while (!Console_HasQuit(&status) && !main_signal)
        main_turn(&next);
    Link_Stop();
    return status;
}
