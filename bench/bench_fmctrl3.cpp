// The catalogue of the clip store: what a row costs while 12,000 elements come in, in any order,
// and whether it costs more at the end than at the begin; what it costs to find a path and to
// forget all.
#include "bench_support.h"
#include "bus.h"
#include "fmctrl3.h"
#include "message.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <random>
#include <string>
#include <vector>

constexpr int ELEMENTS = 12000;
constexpr double INSERT_LIMIT_US = 50.0;
constexpr double GROWTH_LIMIT = 4.0; // the last quarter against the first
constexpr double FIND_LIMIT_US = 5.0;
constexpr double CLEAR_LIMIT_US = 10000.0; // a pass of the main loop has no more

static std::vector<std::string> MakeRows()
{
    std::vector<std::string> rows;
    for (int i = 0; i < ELEMENTS; i++)
        rows.push_back("root/SHOW" + std::to_string(i % 40) + "/DAY" + std::to_string(i % 7) +
                       "/clip" + std::to_string(i) + ".SFH:25, 0, 0, 3, 2026-01-31 23:59:00, 1, 0");
    std::mt19937 random(1);
    std::shuffle(rows.begin(), rows.end(), random);
    return rows;
}

static double Elapsed_us(clock_t start)
{
    return double(clock() - start) * 1e6 / CLOCKS_PER_SEC;
}

// Of one row.
static double Insert_us(const std::vector<std::string>& rows, size_t from, size_t to)
{
    const clock_t start = clock();
    for (size_t i = from; i < to; i++)
        FMCtrl3_Proc(MSG_SHPTALLY, Arg("Insert"), Arg("CS1.ClipStoreFile"), 0,
                     Arg(rows[i].c_str()));
    return Elapsed_us(start) / double(to - from);
}

static void FillStore(benchmark::State& state)
{
    const std::vector<std::string> rows = MakeRows();
    for (auto _ : state) {
        FMCtrl3_Init();
        benchmark::DoNotOptimize(Insert_us(rows, 0, rows.size()));
    }
    state.SetItemsProcessed(state.iterations() * int64_t(rows.size()));
}
BENCHMARK(FillStore)->Unit(benchmark::kMicrosecond);

static int Report(const char* what, double value, double limit)
{
    if (value <= limit)
        return 0;
    printf("%s: %.2f, limit %.2f\n", what, value, limit);
    return 1;
}

static int Check()
{
    const std::vector<std::string> rows = MakeRows();
    double first = 1e9, last = 1e9, find = 1e9, clear = 1e9;
    for (int run = 0; run < 5; run++) { // the best: a machine has other work
        FMCtrl3_Init();
        first = std::min(first, Insert_us(rows, 0, ELEMENTS / 4));
        (void)Insert_us(rows, ELEMENTS / 4, 3 * ELEMENTS / 4);
        last = std::min(last, Insert_us(rows, 3 * ELEMENTS / 4, ELEMENTS));
        const clock_t start = clock();
        for (int i = 0; i < ELEMENTS; i++) {
            const std::string path = "/" + rows[size_t(i)].substr(0, rows[size_t(i)].find('.'));
            benchmark::DoNotOptimize(FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, path.c_str()));
        }
        find = std::min(find, Elapsed_us(start) / ELEMENTS);
        const clock_t begin = clock();
        FMCtrl3_Clear(0);
        clear = std::min(clear, Elapsed_us(begin));
    }
    return Report("us for an element among 12,000", last, INSERT_LIMIT_US) |
           Report("growth of that with their number", last / first, GROWTH_LIMIT) |
           Report("us to find a path", find, FIND_LIMIT_US) |
           Report("us to forget 12,000 elements", clear, CLEAR_LIMIT_US);
}

int main(int argc, char** argv)
{
    Bench_Screen();
    FMCtrl3_Init();
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    FMCtrl3_Finalize();
}
