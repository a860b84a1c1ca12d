// The catalogue of the frame memory: what one register's status costs when two stores of 5,662 fill
// in any order, what the pass costs that picks the next thumbnails, and what it costs to take a
// thumbnail over.
#include "bench_support.h"
#include "device.h"
#include "file.h"
#include "fmctrl.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "text.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <numeric>
#include <random>
#include <string>
#include <vector>

constexpr int REGISTERS = 5662;
constexpr double LINE_LIMIT_US = 5.0;
constexpr double PASS_LIMIT_US = 10000.0; // a pass of the main loop has no more
constexpr double THUMBNAIL_LIMIT_US = 1000.0;

static void Tell(const std::string& path, const std::string& value)
{
    FMCtrlProc(MSG_TALLY, Arg(path.c_str()), Arg(value.c_str()), 0, 0);
}

static void DropQueue()
{
    char line[CMD_SIZE];
    while (Net_TakeQueued(line, sizeof line)) {
    }
}

// The names of both stores: clips of 50 frames with both sides, and stills; told in random order.
static std::vector<std::string> MakeLines(const char* status)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 2 * REGISTERS; i++) {
        char name[16];
        if (i % 4)
            snprintf(name, sizeof name, "%c%03d%04d", i & 1 ? 'M' : 'S', i / 100, i % 100);
        else
            snprintf(name, sizeof name, "%cst%05d", i & 4 ? 'M' : 'S', i / 8);
        const int number = i < REGISTERS ? i + 1 : FMEM_EXTENDED + 1 + i - REGISTERS;
        lines.push_back(std::to_string(number) + "," + status + "," + name);
    }
    std::mt19937 random(1);
    std::shuffle(lines.begin(), lines.end(), random);
    return lines;
}

static void Empty()
{
    FMCtrl_Quit();
    FMCtrl_InitClipStillList();
    Tell("Frame Mem@Status@Extended Capacity", "1");
    Tell("16@Frame Mem@Status@Max Register", std::to_string(REGISTERS));
    DropQueue();
}

static double Elapsed_us(clock_t start)
{
    return double(clock() - start) * 1e6 / CLOCKS_PER_SEC;
}

static double Fill_us(const std::vector<std::string>& lines)
{
    const std::string path = "16@Frame Mem@Status@File Name Sense";
    const clock_t start = clock();
    for (const std::string& line : lines)
        Tell(path, line);
    const double us = Elapsed_us(start);
    DropQueue();
    return us;
}

// Full of pictures that wait, with none in flight: the pass looks at all of them.
static double PriorityPass_us()
{
    Empty();
    GL_UnnecessaryThumb = 1;
    (void)Fill_us(MakeLines("1"));
    GL_UnnecessaryThumb = 0;
    const clock_t start = clock();
    FMCtrl_GetWaitThumbnailAll();
    const double us = Elapsed_us(start);
    DropQueue();
    return us;
}

// What one pass may be given: a line for each bank of both stores, every register with the digits.
static double Banks_us(const char* path, const char* digits)
{
    std::string value;
    for (int i = 0; i < 128; i++)
        value += digits;
    value.resize(strcmp(path, "Register") == 0 ? 32 : value.size());
    const clock_t start = clock();
    for (int bank = 0; bank < 128 + 45; bank++)
        if (bank < 45 || bank >= 128)
            Tell(std::string("16@Frame Mem@Status@") + path + " Status@" + std::to_string(bank),
                 value);
    const double us = Elapsed_us(start);
    DropQueue();
    return us;
}

static double LongestPass_us()
{
    Empty();
    double us = Banks_us("Register", "F");
    (void)Fill_us(MakeLines("81"));
    FMCtrlProc(MSG_REDRAW, 10, 0, 0, 0);
    us = std::max(us, Banks_us("Folder", "03"));
    us = std::max(us, Banks_us("Register", "0"));
    while (FMCtrl_GetStillNum() > 0) {
        const clock_t pass = clock();
        FMCtrlProc(MSG_REDRAW, 10, 0, 0, 0);
        us = std::max(us, Elapsed_us(pass));
    }
    (void)Fill_us(MakeLines("81"));
    const clock_t start = clock();
    Tell("16@Frame Mem@Status@Max Register", std::to_string(REGISTERS));
    return std::max(us, Elapsed_us(start));
}

static void WriteThumbnail()
{
    constexpr int W = 160, H = 120;
    std::string bmp = "BM";
    const auto put = [&](uint32_t v, int n) {
        for (; n > 0; n--, v >>= 8)
            bmp += char(v & 0xFF);
    };
    put(54 + W * H * 3, 4);
    put(0, 4);
    put(54, 4);
    put(40, 4);
    put(W, 4);
    put(H, 4);
    put(1, 2);
    put(24, 2);
    for (int i = 0; i < 6; i++)
        put(0, 4);
    bmp += std::string(W * H * 3, 'x');
    std::ofstream("/mnt/sys/FrameMemory/FM_0001.SFT", std::ios::binary)
        << std::string(64, 'h') << bmp;
}

static double Thumbnail_us()
{
    char line[CMD_SIZE];
    WriteThumbnail();
    Tell("16@Frame Mem@Status@File Name Sense", "1,1,Mlogo");
    std::string label;
    while (Net_TakeQueued(line, sizeof line))
        if (BeginsWith(line, "put File@Frame Memory@Get#L"))
            label = std::string(line + 26, strcspn(line + 26, ","));
    const std::string ack = label + ",7";
    FileProc(MSG_TALLY, Arg("File@Frame Memory@Get"), Arg(ack.c_str()), 0, 0);
    const clock_t start = clock();
    FileProc(MSG_TALLY, Arg("File@Frame Memory@Get@Status"), Arg("7,OK"), 0, 0);
    const double us = Elapsed_us(start);
    return FMCtrl_GetThumbnail(0, THUMBSIZE_SMALL) ? us : -1;
}

static void FmctrlFill(benchmark::State& state)
{
    const std::vector<std::string> lines = MakeLines("81");
    for (auto _ : state) {
        state.PauseTiming();
        Empty();
        state.ResumeTiming();
        benchmark::DoNotOptimize(Fill_us(lines));
    }
    state.SetItemsProcessed(state.iterations() * int64_t(lines.size()));
}
BENCHMARK(FmctrlFill)->Unit(benchmark::kMicrosecond);

static void FmctrlOtherTally(benchmark::State& state)
{
    for (auto _ : state)
        FMCtrlProc(MSG_TALLY, Arg("Engineering Setup@System@Format@4K Mode"), Arg("Off"), 0, 0);
}
BENCHMARK(FmctrlOtherTally);

static void Prepare()
{
    Bench_Screen();
    DEV_MySwr[0] = &DEV_Swr[0];
    CopyText(DEV_Swr[0].id, "SWR000D001");
}

static int Report(const char* what, double us, double limit_us)
{
    if (us >= 0 && us <= limit_us)
        return 0;
    printf("%s takes %.2f us, limit %.2f\n", what, us, limit_us);
    return 1;
}

// The best of a few runs, for a machine has other work.
template <typename Run> static double Best(Run run)
{
    double best = -1;
    for (int i = 0; i < 5; i++) {
        const double us = run();
        best = best < 0 ? us : std::min(best, us);
    }
    return best;
}

static int Check()
{
    const std::vector<std::string> lines = MakeLines("81");
    const double line_us = Best([&] {
        Empty();
        return Fill_us(lines) / double(lines.size());
    });
    const double pass_us = Best(PriorityPass_us);
    Empty();
    const double thumbnail_us = Best(Thumbnail_us);
    return Report("a register's status", line_us, LINE_LIMIT_US) |
           Report("the choice of the next thumbnails", pass_us, PASS_LIMIT_US) |
           Report("the longest pass of a change of all registers", Best(LongestPass_us),
                  PASS_LIMIT_US) |
           Report("a thumbnail taken over", thumbnail_us, THUMBNAIL_LIMIT_US);
}

int main(int argc, char** argv)
{
    Prepare();
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
