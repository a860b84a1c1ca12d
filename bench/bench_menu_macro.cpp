// The tap of the menu macros: what every outgoing command pays for it, while nothing is recorded
// and while something is.
#include "global.h"
#include "menu_macro.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>

constexpr double LIMIT_US = 0.5; // a command, while nothing is recorded
constexpr char COMMAND[] = "put M/E-1@Key1@Type@Key Type#Luminance\n";

static void TapNotRecording(benchmark::State& state)
{
    for (auto _ : state)
        mm_protcol_get(COMMAND);
}
BENCHMARK(TapNotRecording);

static void TapRecording(benchmark::State& state)
{
    GL_MenuMacro_Edit = 1;
    for (auto _ : state) {
        MenuMacro_TouchCount++;
        mm_protcol_get(COMMAND);
    }
    GL_MenuMacro_Edit = 0;
}
BENCHMARK(TapRecording);

// Processor time; the best of a few runs, for a machine has other work.
static int Check()
{
    constexpr int COMMANDS = 1000000;
    double best = 1e9;
    for (int run = 0; run < 5; run++) {
        const clock_t start = clock();
        for (int i = 0; i < COMMANDS; i++)
            mm_protcol_get(COMMAND);
        best = std::min(best, double(clock() - start) * 1e6 / CLOCKS_PER_SEC / COMMANDS);
    }
    if (best <= LIMIT_US)
        return 0;
    printf("the tap takes %.3f us, limit %.1f\n", best, LIMIT_US);
    return 1;
}

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
