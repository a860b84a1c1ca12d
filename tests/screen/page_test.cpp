// Whole pages as an operator meets them. Which pages, what the server has told and what was touched
// stands in pages.txt: "[name page]" begins a picture, "[common]" what all of them are told first;
// then come tallies and touches, "press X,Y".
#include "bus.h"
#include "device.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "test_dirs.h"
#include "text.h"
#include <sstream>

namespace
{
struct Shot {
    std::string name;
    uint32_t page = 0;
    std::vector<std::string> steps;
};

std::vector<Shot> ReadShots()
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

void Take(const std::string& step)
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
} // namespace

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
