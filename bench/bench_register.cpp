// The mirror of the registers: what a list line costs in the burst of an initial read, when it is
// new, when it is already kept, and what a tally costs that is no list line.
#include "message.h"
#include "register.h"
#include "snapshot_region.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

constexpr int LINES = 10000;
constexpr double LIMIT_US = 2.0; // a line

struct Line {
    std::string path;
    std::string value;
};

// As the server sends them: list by list, register by register. The longest lines, those of the
// shotbox, are a fifth of them.
static std::vector<Line> MakeLines(const char* name)
{
    std::vector<Line> lines;
    for (int i = 0; int(lines.size()) < LINES; i++) {
        const std::string no = std::to_string(i % REGISTERS + 1);
        const size_t region = size_t(i / REGISTERS) % SS_REGION_RTR;
        const std::string word = EffectCmd[region];
        lines.push_back(
            {"Effect@Effect@Attribute@List@" + word, no + ", D, " + name + ", U, N, 0"});
        lines.push_back({"Snapshot@Snapshot@Attribute@" + word + "@List",
                         no + ", " + name + ", L, AB12345678U1U2, D15, , "});
        lines.push_back({"Snapshot@Key Snapshot@Attribute@P/P@Key8@List",
                         std::to_string(i % REGISTERS_KEYSS + 1) + ", " + name + ", D"});
        lines.push_back({"Shotbox@Register@Store/Recall@List",
                         no + ", " + name + ", L" + std::string(45, ',')});
        lines.push_back({"Snapshot@Snapshot@Clip Event@User8@List",
                         "FM20, " + no + ", ON, OFF, ON, " + name + ", 100, 200"});
    }
    return lines;
}

static void Digest(const std::vector<Line>& lines)
{
    for (const Line& line : lines)
        RegisterProc(MSG_TALLY, Arg(line.path.c_str()), Arg(line.value.c_str()), 0, 0);
}

static void RegisterNewLines(benchmark::State& state)
{
    const std::vector<Line> lines[2] = {MakeLines("Opening"), MakeLines("Closing")};
    int turn = 0;
    for (auto _ : state)
        Digest(lines[turn ^= 1]);
    state.SetItemsProcessed(state.iterations() * LINES);
}
BENCHMARK(RegisterNewLines)->Unit(benchmark::kMicrosecond);

static void RegisterKeptLines(benchmark::State& state)
{
    const std::vector<Line> lines = MakeLines("Opening");
    for (auto _ : state)
        Digest(lines);
    state.SetItemsProcessed(state.iterations() * LINES);
}
BENCHMARK(RegisterKeptLines)->Unit(benchmark::kMicrosecond);

static void RegisterOtherTally(benchmark::State& state)
{
    for (auto _ : state)
        RegisterProc(MSG_TALLY, Arg("Engineering Setup@System@Format@4K Mode"), Arg("Off"), 0, 0);
}
BENCHMARK(RegisterOtherTally);

// Processor time of a line that changes its register; the best of a few runs, for a machine has
// other work.
static int Check()
{
    const std::vector<Line> lines[2] = {MakeLines("Opening"), MakeLines("Closing")};
    double best = 1e9;
    for (int run = 0; run < 10; run++) {
        const clock_t start = clock();
        Digest(lines[run & 1]);
        best = std::min(best, double(clock() - start) * 1e6 / CLOCKS_PER_SEC / LINES);
    }
    if (best <= LIMIT_US)
        return 0;
    printf("a register list line takes %.2f us, limit %.2f\n", best, LIMIT_US);
    return 1;
}

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
