// walk: a guest that opens every row of the page table and leaves it for the next one, round after
// round, and says what that takes: the change of the page itself, the longest pass while the server
// answers, memory and descriptors. Times are processor time, also in copies of the screen's memory
// measured in the same run, which mean the same on every machine.
//
// usage: walk [ROUNDS [BANK]...]   in a run folder; ROUNDS (6), of which the first loads what is
//        loaded once and is not timed; BANK: the digits that the ids of the wanted pages begin with
#include "guest.h"
#include "log.h"
#include "memory.h"
#include <SDL.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <vector>

namespace
{
constexpr double PASS_MS = 10;
constexpr double LIMIT_COPIES = 25; // of the change of the heaviest page
constexpr long RESIDENT_MORE_KB = 512;
constexpr size_t SLOWEST = 10;

struct Visits {
    const PAGE* row = nullptr;
    bool is_here = false;          // else it belongs to another installation, and stands by itself
    std::vector<double> open_ms;   // a round each
    std::vector<double> copy_ms;   // of the screen's memory, just before
    std::vector<double> settle_ms; // the longest pass
};
struct Holding {
    long kb = 0;
    int blocks = 0;
    int descriptors = 0;
};
} // namespace

static double Median(std::vector<double> times)
{
    if (times.empty())
        return 0;
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// Of the screen's memory, cold as everything is between two pages.
static double CopyMs()
{
    static std::vector<char> from(800 * 600 * 4, 1), to(from.size());
    const double start = Guest_ProcessorMs();
    memcpy(to.data(), from.data(), to.size());
    from[0] = to[1]; // it is wanted
    return Guest_ProcessorMs() - start;
}

// The first round is not timed.
static void Round(std::vector<Visits>* all, int round)
{
    Guest_BeginRound(round);
    for (Visits& visits : *all) {
        const PAGE* row = visits.row;
        visits.is_here = Guest_IsHere(*row);
        const double copy_ms = CopyMs();
        const double start = Guest_ProcessorMs();
        if (!Guest_Open(*row))
            fprintf(stderr, "walk: %08X cannot be opened\n", unsigned(row->id));
        const double open_ms = Guest_ProcessorMs() - start;
        const double settle_ms = Guest_Settle(1);
        Guest_CloseAll();
        if (round == 1)
            continue;
        visits.copy_ms.push_back(copy_ms);
        visits.open_ms.push_back(open_ms);
        visits.settle_ms.push_back(settle_ms);
    }
}

// One kind of time over all pages, and the pages that take longest: of a page counts the median,
// so that what else the machine does is not taken for the page's. Returns the longest in ms.
static double Report(const char* what, const std::vector<Visits>& all,
                     std::vector<double> Visits::*times, double copy_ms)
{
    struct Row {
        double ms;
        const Visits* page;
    };
    std::vector<Row> rows;
    for (const Visits& page : all)
        rows.push_back({Median(page.*times), &page});
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.ms > b.ms; });
    const auto sum = [](double ms, const Row& row) { return ms + row.ms; };
    const double mean = std::accumulate(rows.begin(), rows.end(), 0.0, sum) / double(rows.size());
    const double p99 = rows[rows.size() / 100].ms;
    printf("%s: mean %.2f ms (%.1f copies), 99 in 100 within %.2f ms (%.1f), slowest %08X %.2f ms "
           "(%.1f)\n ",
           what, mean, mean / copy_ms, p99, p99 / copy_ms, unsigned(rows[0].page->row->id),
           rows[0].ms, rows[0].ms / copy_ms);
    for (size_t i = 0; i < std::min(SLOWEST, rows.size()); i++)
        printf(" %08X%s %.2f", unsigned(rows[i].page->row->id), rows[i].page->is_here ? "" : "*",
               rows[i].ms);
    printf("\n");
    return rows[0].ms;
}

static bool IsFlat(const std::vector<Holding>& rounds)
{
    const Holding& first = rounds[std::min<size_t>(1, rounds.size() - 1)];
    const Holding& last = rounds.back();
    return last.kb <= first.kb + RESIDENT_MORE_KB && last.blocks <= first.blocks &&
           last.descriptors <= first.descriptors;
}

int main(int argc, char** argv)
{
    const int count = argc > 1 ? std::max(2, atoi(argv[1])) : 6;
    if (!Guest_Start())
        return 1;
    std::vector<Visits> all;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++)
        if (Guest_IsWanted(row->id, argv + std::min(argc, 2), std::max(0, argc - 2)))
            all.push_back({.row = row});
    if (all.empty())
        return 1;
    std::vector<Holding> rounds;
    for (int round = 1; round <= count; round++) {
        Round(&all, round);
        rounds.push_back({Guest_ResidentKb(), UsedMemPtr, Guest_Descriptors()});
        const Holding& now = rounds.back();
        printf("round %d: %ld KB, %d blocks, %d descriptors\n", round, now.kb, now.blocks,
               now.descriptors);
        fflush(stdout);
    }
    std::vector<double> copies;
    for (const Visits& page : all)
        copies.push_back(Median(page.copy_ms));
    const double copy_ms = Median(copies);
    const auto here =
        std::count_if(all.begin(), all.end(), [](const auto& v) { return v.is_here; });
    printf("%zu pages, %ld of them in this installation (the others are marked *); a copy of the "
           "screen takes %.3f ms\n",
           all.size(), long(here), copy_ms);
    const double open_ms = Report("page change", all, &Visits::open_ms, copy_ms);
    const double pass_ms = Report("longest pass of the answers", all, &Visits::settle_ms, copy_ms);
    int faults = 0;
    if (!IsFlat(rounds))
        faults += printf("it holds more than after the second round\n") > 0;
    if (open_ms > LIMIT_COPIES * copy_ms)
        faults += printf("a page change takes more than %.0f copies\n", LIMIT_COPIES) > 0;
    if (pass_ms > PASS_MS)
        faults += printf("a pass takes more than %.0f ms\n", PASS_MS) > 0;
    return faults != 0;
}
