// Whole pages as an operator meets them. Which pages, what the server has told and what was touched
// stands in pages.txt: "[name page]" begins a picture, "[common]" what all of them are told first;
// then come tallies and touches, "press X,Y".
#include "bus.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "loop.h"
#include "message.h"
#include "page.h"
#include "tdl.h"
#include "test_dirs.h"
#include "text.h"
#include <algorithm>
#include <functional>
#include <iterator>
#include <random>
#include <sstream>
#include <string_view>

struct Shot {
    std::string name;
    uint32_t page = 0;
    std::vector<std::string> steps;
};

static std::vector<Shot> ReadShots()
{
    std::vector<Shot> shots;
    std::istringstream in(FileText(TEST_SOURCE_DIR "/screen/pages.txt"));
    for (std::string line; std::getline(in, line);) {
        char name[64];
        unsigned page = 0;
        if (line.empty() || line[0] == '#')
            continue;
        if (line == "[common]")
            shots.push_back({});
        else if (sscanf(line.c_str(), "[%63s %x]", name, &page) == 2)
            shots.push_back({name, page, shots.empty() ? decltype(Shot::steps){} : shots[0].steps});
        else if (!shots.empty())
            shots.back().steps.push_back(line);
    }
    return shots;
}

static void Take(const std::string& step)
{
    int x = 0, y = 0;
    if (sscanf(step.c_str(), "press %d,%d", &x, &y) == 2) {
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        SendMessage(MSG_PRESS, x, y, SDL_BUTTON_LEFT, 0);
        SendMessage(MSG_REDRAW, 200, 0, 0, 0); // it has come back up
    } else {
        SendDummyTally(step.c_str());
    }
}

TEST(PagePicture, EachLooksAsItWasJudged)
{
    const FullHouse all;
    const auto shots = ReadShots();
    ASSERT_GT(shots.size(), 10u);
    for (const Shot& shot : shots) {
        if (shot.name.empty())
            continue; // what is common to all
        Harness_Reset();
        GL_ProcStatus[1] = 1;
        ASSERT_EQ(CreatePage(shot.page), 0) << shot.name;
        for (const std::string& step : shot.steps)
            Take(step);
        SendMessage(MSG_REDRAW, 200, 0, 0, 0);
        EXPECT_TRUE(MatchesGolden("page_" + shot.name));
    }
    Harness_Reset();
}

// --- From one page to another ---

static std::vector<uint8_t> flushes; // of each pixel
static size_t flushed_pixels = 0;

static void Count(int x, int y, int w, int h)
{
    for (int row = y; row < y + h; row++)
        for (int column = x; column < x + w; column++)
            flushes[size_t(row) * SCREEN_W + size_t(column)]++;
    flushed_pixels += size_t(w) * size_t(h);
}

constexpr Rect ALL = {0, 0, SCREEN_W - 1, SCREEN_H - 1};

// The display is written while the operator looks at it: what belongs to neither of two pages must
// not be seen between them.
TEST(PageChange, HandsOverNoPixelTwiceAndHardlyOneThatStaysAsItWas)
{
    Harness_Reset();
    const FullHouse all;
    constexpr uint32_t pages[] = {
        0x00110000, 0x11110000, 0x11120000, 0x11210000, 0x11510000, 0x11610000, 0x11710000,
        0x11730000, 0x11000000, 0x12110000, 0x14110000, 0x15510000, 0x22100000, 0x23110000,
        0x24110000, 0x24140000, 0x41110000, 0x41710000, 0x42110000, 0x42160000, 0x54120000,
        0x61110000, 0x61131000, 0x62110000, 0x63210000, 0x64110000, 0x71210000, 0x71710000,
        0x73110000, 0x73130000, 0x74110000, 0x99910000};
    ASSERT_EQ(CreatePage(pages[std::size(pages) - 1]), 0);
    RefreshScreen();
    flushes.assign(size_t(SCREEN_W) * SCREEN_H, 0);
    TDL_WatchFlush(Count);
    for (const uint32_t id : pages) {
        const auto before = PixelsIn(ALL);
        std::fill(flushes.begin(), flushes.end(), 0);
        flushed_pixels = 0;
        ASSERT_EQ(CreatePage(id), 0) << std::hex << id;
        TDL_Hold(); // the pass that follows
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        TDL_Release();
        const auto now = PixelsIn(ALL);
        size_t differ = 0, unseen = 0;
        for (size_t i = 0; i < now.size(); i++) {
            differ += now[i] != before[i];
            unseen += now[i] != before[i] && !flushes[i];
        }
        EXPECT_LE(*std::max_element(flushes.begin(), flushes.end()), 1) << std::hex << id;
        EXPECT_LE(double(flushed_pixels), 1.3 * double(differ)) << std::hex << id;
        EXPECT_GT(flushed_pixels, 0u);
        EXPECT_EQ(unseen, 0u) << std::hex << id;
    }
    TDL_WatchFlush(nullptr);
}

// What is left out since it would change nothing must have changed nothing, whatever page was there
// before, told or not.
TEST(PageChange, LeavesOutNothingThatWouldBeSeen)
{
    const FullHouse all;
    const auto told = ReadShots()[0].steps; // what is common to all
    const auto walk = [&](bool at_once) {
        std::vector<std::pair<uint32_t, size_t>> seen; // page, sum of its pixels
        std::mt19937 random;
        Harness_Reset();
        TDL_PaintAtOnce(at_once);
        for (int n = 0; n < 150; n++) {
            const uint32_t id = PageTable[random() % unsigned(PageTable_Rows - 1)].id;
            TDL_Hold();
            (void)CreatePage(id);
            TDL_Show();
            if (n % 2)
                for (const std::string& tally : told)
                    SendDummyTally(tally.c_str());
            SendMessage(MSG_REDRAW, 200, 0, 0, 0);
            TDL_Release();
            const auto pixels = PixelsIn(ALL);
            seen.emplace_back(
                id, std::hash<std::string_view>{}({reinterpret_cast<const char*>(pixels.data()),
                                                   pixels.size() * sizeof pixels[0]}));
        }
        TDL_PaintAtOnce(false);
        return seen;
    };
    (void)walk(true); // some pages show what was done before
    const auto listed = walk(false), painted = walk(true);
    constexpr uint32_t PAGE_LINKS = 0x99990000; // counts what has been sent so far
    for (size_t n = 0; n < listed.size(); n++)
        EXPECT_TRUE(listed[n] == painted[n] || listed[n].first == PAGE_LINKS)
            << n << " " << std::hex << listed[n].first;
}
