// What must hold for every row of the page table, also for pages that nobody thought of when a rule
// was written.
#include "bus.h"
#include "file.h"
#include "harness.h"
#include "message.h"
#include "page_table/me_tabs.h"
#include "page_walk.h"
#include "pane.h"
#include "tdl.h"
#include <algorithm>
#include <cstring>
#include <set>

using namespace page_walk;

TEST(PageTable, EveryIdStandsOnceHasItsBaseFirstAndASectionToGoBackTo)
{
    std::set<uint32_t> ids;
    ForEachPage([&](PAGE& p) { EXPECT_TRUE(ids.insert(p.id).second) << std::hex << p.id; });
    EXPECT_EQ(int(ids.size()) + 1, PageTable_Rows);
    EXPECT_EQ(PageTable_Rows, 2528) << "a page came or went: which one, and who leads to it?";
    EXPECT_EQ(PageTable[PageTable_Rows - 1].id, PAGE_END);
    for (const uint32_t id : {0x55550000u, 0x77770000u, 0x88880000u, 0x99995555u})
        EXPECT_TRUE(ids.count(id)) << std::hex << id << ", which has a bank or number of its own";
    Harness_Reset();
    for (const TOPMENU* top = TopMenu; top->caption; top++)
        EXPECT_TRUE(SearchPageTable(top->page)) << top->caption << " " << std::hex << top->page;
    ForEachPage([](PAGE& page) {
        constexpr uint32_t CALIBRATION = 0x73270001; // has the whole screen
        EXPECT_EQ(page.obj[0].type == OBJ_BA, page.id != CALIBRATION) << std::hex << page.id;
        ASSERT_TRUE(page.tree[0]) << std::hex << page.id;
        EXPECT_LE(strlen(page.tree[0]), 24u) << page.tree[0];
    });
}

// The row, also of a page whose buttons and tabs are out without a board, an option or a unit, and
// in another type of switcher.
static const PAGE* RowOfSome(uint32_t id)
{
    static const std::set<uint32_t> of_some = {0x32120000, 0x73160011, 0x73260008, 0x73310015,
                                               0x73330007, 0x73330008, 0x73440007, 0x73440008,
                                               0x73440009, 0x73440010};
    return of_some.contains(id) ? SearchPageTable_Free_ALL(PageTable, id) : SearchPageTable(id);
}

TEST(PageTable, EveryJumpLeadsToAPage)
{
    Harness_Reset();
    const FullHouse all;
    int jumps = 0;
    ForEachButton([&](PAGE& page, const BT_TBL& b) {
        if (!IsJump(b))
            return;
        jumps++;
        constexpr uint32_t EDITOR_ENTRY = 0x71440102; // asked for, it becomes the page
        const uint32_t to = TargetOf(page, b), id = to == EDITOR_ENTRY ? to - 0x100 : to;
        const PAGE* target = RowOfSome(id);
        EXPECT_TRUE(target) << std::hex << page.id << " button " << b.id << " to " << id;
        // A relative jump stays in its bank, its key and its side.
        if (target && b.cmd[0][1] == '+') {
            EXPECT_EQ(target->id & 0xFF000000, page.id & 0xFF000000) << std::hex << page.id;
            const bool is_over_all = (page.id & 0x00F00000) == 0; // of the keys of a bank
            if (page.tree[1] && !is_over_all) {
                EXPECT_STREQ(target->tree[1], page.tree[1]);
            }
        }
    });
    EXPECT_GT(jumps, 250);
}

TEST(PageTable, EveryTabLeadsToAPageAndTheChosenOneToItsOwn)
{
    Harness_Reset();
    const FullHouse all;
    ForEachPage([&](PAGE& page) {
        int chosen[OBJ_VF + 1] = {}, tabs[OBJ_VF + 1] = {};
        ForEachTab(page, [&](int kind, int id, const char* caption, uint32_t target, bool is_own) {
            tabs[kind]++;
            EXPECT_TRUE(RowOfSome(target)) << std::hex << page.id << " to " << target;
            EXPECT_EQ(target & 0xFF000000, page.id & 0xFF000000) << caption; // in the same bank
            if (!is_own)
                return;
            chosen[kind]++;
            const uint32_t group = kind == OBJ_VF ? 0xFFF00000 : 0xFFFF0000;
            // A page beside those of its group lights the tab that leads back to it.
            const bool is_beside = kind == OBJ_HF && (page.id & 0x000F0000) == 0;
            EXPECT_EQ(target & group, (is_beside ? target : page.id) & group)
                << std::hex << page.id << " tab " << id;
            if (kind == OBJ_VF && isNowPageMeKey(page.id)) {
                EXPECT_STREQ(caption, page.tree[1]);
            }
        });
        EXPECT_EQ(chosen[OBJ_VF], tabs[OBJ_VF] ? 1 : 0) << std::hex << page.id;
        // The top page of a tab may be none of those that its tabs lead to.
        const bool is_top = (page.id & 0x000FFFFF) == 0 && (page.id & 0x00F00000) != 0;
        EXPECT_TRUE(is_top || chosen[OBJ_HF] == (tabs[OBJ_HF] ? 1 : 0)) << std::hex << page.id;
        EXPECT_TRUE(!isNowPageMeKey(page.id) || (tabs[OBJ_VF] && tabs[OBJ_HF]))
            << std::hex << page.id << " is a page of a key and has no tabs";
    });
}

// Who adds the pages of a group gives them their tab in me_tabs.h, too.
TEST(PageTable, ATabIsLeftOutOnlyWhileItsPageDoesNotExist)
{
    Harness_Reset();
    const auto agrees = [](uint32_t page, Side where) {
        return (SearchPageTable(page) != nullptr) == (where != NOWHERE);
    };
    for (const auto& group : me_groups)
        EXPECT_TRUE(agrees(group.row.page, group.where)) << group.row.caption;
    for (const auto& tab : me_key_tabs)
        EXPECT_TRUE(agrees(tab.row.page, tab.where)) << tab.row.caption;
}

TEST(PageTable, NoCaptionIsCutByItsTabBoxOrButtonAndTheLimitsOfABoxDiffer)
{
    Harness_Video();
    ForEachPage([](PAGE& page) {
        ForEachTab(page, [&](int kind, int, const char* caption, uint32_t, bool) {
            const auto [font, room] = kind == OBJ_VF ? std::pair{3, 78u} : std::pair{4, 76u};
            EXPECT_LE(TDL_GetSymbolWidth(caption, font), room) << caption;
        });
    });
    ForEachBox([](PAGE& page, const BT_TBL&, const NB_TBL& nb) {
        EXPECT_NE(nb.min, nb.max) << std::hex << page.id << " " << nb.caption;
        EXPECT_LE(TDL_GetSymbolWidth(nb.caption, 3), 74u) << nb.caption;
    });
    ForEachButton([](PAGE& page, const BT_TBL& b) {
        const int width = b.x2 - b.x1 + 1 - 10; // the caption begins 10 pixels in
        const int lines = TDL_GetSymbolLine(width, b.caption, 3);
        const auto written = 1 + std::ranges::count(std::string_view(b.caption), '\n');
        EXPECT_EQ(lines, written) << std::hex << page.id << " breaks " << b.caption;
        EXPECT_LE(lines, 3) << b.caption;
    });
}

TEST(PageTable, GroupFramesDoNotReachIntoOneAnother)
{
    Harness_Video();
    ForEachPage([](PAGE& page) {
        struct Frame {
            std::string title;
            Rect r;
        };
        std::vector<Frame> frames;
        for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++) {
            if (!b->group || !*b->group)
                continue;
            auto f = std::find_if(frames.begin(), frames.end(),
                                  [&](const Frame& x) { return x.title == b->group; });
            if (f == frames.end())
                f = frames.insert(f, {b->group, {b->x1, b->y1, b->x2, b->y2}});
            f->r = {std::min(f->r.x1, b->x1), std::min(f->r.y1, b->y1), std::max(f->r.x2, b->x2),
                    std::max(f->r.y2, b->y2)};
        }
        EXPECT_LE(frames.size(), 12u) << std::hex << page.id;
        for (const Frame& a : frames) { // a title stands in the upper line, from 10 pixels in
            const char* title = a.title.c_str() + (strchr("@#$%&", a.title[0]) != nullptr);
            EXPECT_LE(a.r.x1 + 10 + int(TDL_GetSymbolWidth(title, 3)), a.r.x2 + 3)
                << std::hex << page.id << ": \"" << title << "\" is wider than its frame";
            for (const Frame& b : frames)
                EXPECT_TRUE(&a == &b || a.r.x1 > b.r.x2 || b.r.x1 > a.r.x2 || a.r.y1 > b.r.y2 ||
                            b.r.y1 > a.r.y2)
                    << std::hex << page.id << ": \"" << a.title << "\" and \"" << b.title << "\"";
        }
    });
}

TEST(PageTable, WhileATransferRunsEveryPageLeadsToOneThatSaysSo)
{
    Harness_Reset();
    const FullHouse all;
    std::vector<uint32_t> pages;
    ForEachPage([&](PAGE& page) {
        if (SearchPageTable(page.id))
            pages.push_back(page.id);
    });
    BkgdFileTransfer_Set(0x71310000, 1);
    int tops = 0;
    for (const uint32_t id : pages) {
        const PAGE* page = SearchPageTable(id);
        ASSERT_TRUE(page) << std::hex << id;
        tops += page->id == Page_FirstOfTab(id) && page->id != id;
    }
    EXPECT_GT(tops, 40);
    EXPECT_EQ(SearchPageTable(0x71310000)->id, 0x71310000u) << "its own page";
    EXPECT_EQ(SearchPageTable(0x71310001)->id, 0x71300000u);
    for (const uint32_t tab : {0x21600000u, 0x25300000u, 0x54400000u, 0x71600000u, 0x74300000u})
        EXPECT_TRUE(SearchPageTable(tab | 0x12345)) << std::hex << tab;

    // It says so, and makes way when the transfer is over.
    const auto asked_when_over = [] {
        (void)Pane_Quit(Pane_GetActiveID());
        BkgdFileTransfer_Set(0x71310000, 0);
        SendMessage(LMSG_FILESTATUS, 0, 0, 0, 0);
        BkgdFileTransfer_Set(0x71310000, 1);
        return std::exchange(GL_CreatePage, 0);
    };
    CreatePage(0x71320000);
    EXPECT_EQ(Page->id, 0x71300000u);
    for (int i = 0; i < 3; i++)
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    EXPECT_NE(Pane_GetActiveID(), 0);
    EXPECT_EQ(GL_CreatePage, 0u) << "the transfer goes on";
    EXPECT_EQ(asked_when_over(), 0x71320000u);
    CreatePage(0x71398765);
    EXPECT_EQ(asked_when_over(), 0x71310000u) << "what was asked for is nowhere";
    BkgdFileTransfer_Set(0x71310000, 0);
    CreatePage(0x12700000);
    EXPECT_EQ(std::exchange(GL_CreatePage, 0), 0x12710000u) << "in its own bank";
}
