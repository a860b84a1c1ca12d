#include "bench_support.h"
#include "graphics.h"
#include "tdl.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{
constexpr char YARDSTICK[] = "memory copy of the screen";
constexpr char BY_WORDS[] = "the same, word by word";
constexpr double WORDS_WEIGHT = 0.75; // of it, that a copy counts for at the least
constexpr size_t SCREEN_BYTES = size_t(SCREEN_W) * SCREEN_H * 4;
constexpr int RUNS = 9;
constexpr double RUN_SECONDS = 0.01;
constexpr int CHECK_ROUNDS = 30; // a processor that others use is slow for some seconds at a time
constexpr int CHECK_PAUSE_S = 2; // between two rounds

uint32_t copy_from[SCREEN_BYTES / 4];
uint32_t copy_to[SCREEN_BYTES / 4];

void copy_screen()
{
    uint32_t* to = copy_to;
    benchmark::DoNotOptimize(to); // or nobody reads it, and nothing is copied
    memcpy(to, copy_from, SCREEN_BYTES);
    benchmark::ClobberMemory();
}

void copy_words()
{
    const volatile uint32_t* from = copy_from;             // one at a time
    for (size_t i = 0; i < std::size(copy_from); i += 4) { // where the loop lies weighs less
        copy_to[i] = from[i];
        copy_to[i + 1] = from[i + 1];
        copy_to[i + 2] = from[i + 2];
        copy_to[i + 3] = from[i + 3];
    }
    benchmark::ClobberMemory();
}

// Keeps the medians and prints nothing.
struct Medians : benchmark::BenchmarkReporter {
    std::map<std::string, double> ns; // by the name of the case

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                ns[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
};

void run_again_and_again(benchmark::State& state, void (*once)())
{
    for (auto _ : state)
        once();
}

// How many calls fill a run. The library's own guess starts from a single call, which for work that
// is dear only every other time is off by orders of magnitude.
int64_t calls_of_a_run(void (*once)())
{
    constexpr int TRIAL = 20;
    once(); // what is only done the first time
    const clock_t start = clock();
    for (int i = 0; i < TRIAL; i++)
        once();
    const double call_s = double(clock() - start) / CLOCKS_PER_SEC / TRIAL;
    return std::clamp(int64_t(RUN_SECONDS / std::max(call_s, 1e-8)), int64_t(TRIAL),
                      int64_t(100000));
}

void add_benchmark(const char* name, void (*once)())
{
    benchmark::RegisterBenchmark(name, run_again_and_again, once)
        ->Iterations(calls_of_a_run(once))
        ->Repetitions(RUNS);
}

// Where the screen fits into the processor's own memory a copy takes a third of what it takes
// elsewhere, and the drawing does not: there the processor's pace counts.
double unit_ns(const Medians& medians)
{
    return std::max(medians.ns.at(YARDSTICK), medians.ns.at(BY_WORDS) * WORDS_WEIGHT);
}

double copies(const BenchCase& c, const Medians& medians)
{
    return medians.ns.at(c.name) / c.per / unit_ns(medians);
}

void print_table(const BenchCase* cases, int count, const Medians& medians)
{
    printf("%-44s %12s %14s %8s\n", "", "microseconds", "screen copies", "limit");
    for (const char* name : {YARDSTICK, BY_WORDS})
        printf("%-44s %12.2f %14.4f\n", name, medians.ns.at(name) / 1000,
               medians.ns.at(name) / unit_ns(medians));
    for (int i = 0; i < count; i++) {
        const BenchCase& c = cases[i];
        printf("%-44s %12.2f %14.4f", c.name, medians.ns.at(c.name) / c.per / 1000,
               copies(c, medians));
        if (c.limit_copies > 0)
            printf(" %8.3g", c.limit_copies);
        printf("\n");
    }
}

// 0 when every case has kept its limit in one of the rounds.
int check_limits(const BenchCase* cases, int count)
{
    std::vector<double> best(size_t(count), -1.0);
    for (int round = 0; round < CHECK_ROUNDS; round++) {
        Medians medians;
        benchmark::RunSpecifiedBenchmarks(&medians);
        bool kept = true;
        for (int i = 0; i < count; i++) {
            double& figure = best[size_t(i)];
            const double now = copies(cases[i], medians);
            if (figure < 0 || now < figure)
                figure = now;
            kept = kept && (cases[i].limit_copies == 0 || figure <= cases[i].limit_copies);
        }
        if (kept)
            return 0;
        sleep(CHECK_PAUSE_S);
    }
    for (int i = 0; i < count; i++)
        if (cases[i].limit_copies > 0 && best[size_t(i)] > cases[i].limit_copies)
            printf("%s: %.4f copies of the screen, the limit is %.4f\n", cases[i].name,
                   best[size_t(i)], cases[i].limit_copies);
    return 1;
}
} // namespace

void Bench_Screen()
{
    if (chdir(BENCH_RUN_DIR) != 0) {
        perror(BENCH_RUN_DIR);
        exit(1);
    }
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    SDL_Surface* surface = nullptr;
    if (SDL_Init(SDL_INIT_VIDEO) == 0)
        surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0);
    if (!surface || TDL_Init(surface) != 0) {
        fprintf(stderr, "no video or no fonts in %s: %s\n", BENCH_RUN_DIR, SDL_GetError());
        exit(1);
    }
    LoadGraphics();
}

int Bench_Main(int argc, char** argv, const BenchCase* cases, int count)
{
    bool check = false;
    std::vector<char*> rest;
    for (int i = 0; i < argc; i++) {
        if (strcmp(argv[i], "--check") == 0)
            check = true;
        else
            rest.push_back(argv[i]);
    }
    char mixed[] = "--benchmark_enable_random_interleaving=true";
    rest.push_back(mixed);
    int rest_count = int(rest.size());
    benchmark::Initialize(&rest_count, rest.data());
    if (benchmark::ReportUnrecognizedArguments(rest_count, rest.data()))
        return 2;

    memset(copy_from, 1, sizeof copy_from); // so that both have memory of their own
    add_benchmark(YARDSTICK, copy_screen);
    add_benchmark(BY_WORDS, copy_words);
    for (int i = 0; i < count; i++)
        add_benchmark(cases[i].name, cases[i].once);
    if (check)
        return check_limits(cases, count);
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    print_table(cases, count, medians);
    return 0;
}
