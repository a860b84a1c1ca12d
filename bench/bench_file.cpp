// File work: what a line of the server costs in a job of thousands of items, and what its start
// does.
#include "file.h"
#include "message.h"
#include "netio.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

constexpr int ITEMS = 2000;
constexpr double LIMIT_STATUS_US = 20.0; // a status line
constexpr double LIMIT_START_MS = 10.0;  // the launch of the whole job: one pass

static FILEXFERLIST* list;

static void Begin()
{
    File_ReplaceSync([] { return 0; });
    for (int i = 0; i < ITEMS; i++) {
        const std::string name = "Mpicture." + std::to_string(i) + ".SSS";
        File_XferList_Add(&list, ("MYHOST:/mnt/data/user/root/SHOW/SNAPSHOT/" + name).c_str(),
                          ("MYHOST:/mnt/data/user/root/COPY/SNAPSHOT/" + name).c_str());
    }
}

static void Launch()
{
    File_ExecTransferList_BG(&list, nullptr, 0);
}

static void DropQueue()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text)) {
    }
}

static std::vector<std::string> Lines(const char* format)
{
    std::vector<std::string> lines;
    char text[64];
    for (uint32_t i = 0; i < ITEMS; i++) {
        snprintf(text, sizeof text, format, int(list->label + i), int(7000 + i));
        lines.emplace_back(text);
    }
    return lines;
}

static void Take(const char* path, const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
        FileProc(MSG_TALLY, Arg(path), Arg(line.c_str()), 0, 0);
}

static double SecondsSince(clock_t start)
{
    return double(clock() - start) / CLOCKS_PER_SEC;
}

struct Times {
    double start_ms = 1e9;
    double ack_us = 1e9;
    double status_us = 1e9; // with the end of the job, whose items are freed
};

// The best of a few runs, for a machine has other work.
static Times Measure(int runs)
{
    Times best;
    for (int run = 0; run < runs; run++) {
        Begin();
        clock_t start = clock();
        Launch();
        best.start_ms = std::min(best.start_ms, SecondsSince(start) * 1e3);
        DropQueue();
        const std::vector<std::string> acks = Lines("L%d,%d");
        std::vector<std::string> statuses;
        for (uint32_t i = 0; i < ITEMS; i++)
            statuses.push_back(std::to_string(7000 + i) + ",OK");
        start = clock();
        Take("File@Transfer@Transfer", acks);
        best.ack_us = std::min(best.ack_us, SecondsSince(start) * 1e6 / ITEMS);
        start = clock();
        Take("File@Transfer@Transfer@Status", statuses);
        best.status_us = std::min(best.status_us, SecondsSince(start) * 1e6 / ITEMS);
    }
    return best;
}

static void FileJobOfThousands(benchmark::State& state)
{
    Times best;
    for (auto _ : state)
        best = Measure(1);
    state.counters["start_ms"] = best.start_ms;
    state.counters["ack_us"] = best.ack_us;
    state.counters["status_us"] = best.status_us;
}
BENCHMARK(FileJobOfThousands)->Unit(benchmark::kMillisecond);

static void FileForeignStatus(benchmark::State& state)
{
    Begin();
    Launch();
    for (auto _ : state)
        FileProc(MSG_TALLY, Arg("File@Access@Copy@Status"), Arg("4000000000,OK"), 0, 0);
    File_XferList_RemoveAll(&list);
    DropQueue();
}
BENCHMARK(FileForeignStatus);

static int Check()
{
    const Times best = Measure(5);
    int result = 0;
    if (best.status_us > LIMIT_STATUS_US) {
        printf("a status line takes %.2f us, limit %.1f\n", best.status_us, LIMIT_STATUS_US);
        result = 1;
    }
    if (best.start_ms > LIMIT_START_MS) {
        printf("a job of %d items starts in %.2f ms, limit %.1f\n", ITEMS, best.start_ms,
               LIMIT_START_MS);
        result = 1;
    }
    return result;
}

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
