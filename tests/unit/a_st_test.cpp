#include "a_st_page.h"
#include "graphics.h"
#include "page_table/color_bkgd.h"
#include "page_table/st_ccr.h"
#include "page_table/st_me_dmewipe.h"
#include "page_table/st_me_key.h"
#include "page_table/st_me_misc.h"
#include "page_table/st_me_wipe.h"
#include "page_table/st_status.h"
#include "page_walk.h"
#include <cstring>

constexpr uint32_t LIT = 0x0B3A46;
constexpr uint32_t WHITE = 0xFFFFFF;

// A painter that leaves a mark, so that a repaint can be seen.
static int painted = 0;
static int draw_mark(ST_MEM* cell)
{
    painted++;
    return TDL_FillRectS(cell->x1, cell->y1, cell->x2, cell->y2, 0x123456);
}

static ST_TBL Cell(int id, std::initializer_list<const char*> cmd, uint32_t jump = 0)
{
    ST_TBL row =
        CellAt(id % 6, id / 6 % 4, {.id = id, .draw_func = draw_mark, .jamp_id_base = jump});
    std::copy(cmd.begin(), cmd.end(), row.cmd);
    return row;
}
static uint32_t PageOfCell(const ST_TBL& row)
{
    return CellPage::Asked(row.x1 + 50, row.y1 + 45);
}

static int Painted() // in a pass
{
    painted = 0;
    CellPage::Pass();
    return painted;
}

using StatusCells = CellPage;

TEST_F(StatusCells, APathIsAddedOnceAndUpdatesEachCellWhichKeepsItsTextsInBounds)
{
    const ST_TBL rows[] = {Cell(1, {"~2@A", "~1@B"}), Cell(3, {"~2@A", "LOCAL@C", "~2@D"}), ST_END};
    Open(rows);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("add M/E-1@Key1@A", "add M/E-1@B", "add M/E-1@Key1@D"));
    Tally("M/E-1@Key1@A", "x");
    EXPECT_EQ(Painted(), 2);
    EXPECT_EQ(Painted(), 0) << "nothing new";
    GL_ST_area_update_draw();
    EXPECT_EQ(Painted(), 2);
    ST_TBL row = Cell(1, {});
    std::fill(std::begin(row.cmd), std::end(row.cmd), "~2@A");
    const std::string path(2 * CMD_SIZE, 'p');
    row.cmd[ST_COMMANDS - 1] = path.c_str();
    const ST_TBL full[] = {row, ST_END};
    Open(full);
    const std::string cut = path.substr(0, CMD_SIZE - 1);
    Tally(cut.c_str(), path.c_str());
    Tally("M/E-1@Key1@A", path.c_str());
    EXPECT_EQ(Painted(), 1);
}

TEST_F(StatusCells, CellsOfEffectsUnitsArePaintedAnewWhenAPairIsCombined)
{
    const ST_TBL rows[] = {Cell(1, {"~2@A"}), ST_END};
    for (const auto& [id, value, paints] : {std::tuple{0x41110000u, "true", 1},
                                            {0x42110000u, "false", 1},
                                            {0x33110000u, "true", 0}}) {
        SetTree({"M/E-1", "Key1"}, id);
        Open(rows);
        Pass();
        Tally("Global Effect@Ch1-Ch2@Combine@Ch2", value);
        EXPECT_EQ(Painted(), paints) << std::hex << id;
    }
}

TEST_F(StatusCells, RowsOfAnotherSystemAreSkippedAndTheSlotsCloseUp)
{
    const ST_TBL rows[] = {Cell(1, {"~2@1"}), Cell(2, {"~2@2"}), Cell(97, {"~2@97"}),
                           Cell(98, {"~2@98"}), ST_END};
    for (const auto& [dual, mode_4k, key, ids] : {std::tuple{0, 0, "Key3", "1 2 97 "},
                                                  {1, 0, "Key3", "1 2 98 "},
                                                  {0, 1, "Key3", "1 97 "},
                                                  {0, 1, "Key1", "1 2 97 "}}) {
        SYS_DualProc = dual;
        SYS_4KMode = mode_4k;
        SetTree({"M/E-1", key, "Type"}, 0x11310000);
        Open(rows);
        std::string added;
        for (const auto& line : TakeQueuedCommands())
            added += line.substr(strlen("add M/E-1@Key1@")) + " ";
        EXPECT_EQ(added, ids) << dual << mode_4k << key;
    }
}

TEST_F(StatusCells, ATargetTakesTheBankAndKeyOfThePageAndThePressIsInsideTheBorder)
{
    for (const auto& [id, template_id, target] :
         {std::tuple{0x12310000u, 0x11120000u, 0x12320000u}, // bank 2, key 3
          {0x15510000u, 0x11650000u, 0x15650000u},
          {0x12000000u, 0x11340000u, 0x12340000u},    // above the keys the cell names the key
          {0x15310000u, 0x11730000u, 0x11730000u},    // keys 5 to 8: the one page of the bank
          {0x15710000u, 0x11730000u, 0x15730000u}}) { // no key page
        SetTree({"M/E-1", "Key1"}, id);
        const ST_TBL rows[] = {Cell(1, {}, template_id), ST_END};
        Open(rows);
        EXPECT_EQ(PageOfCell(rows[0]), target) << std::hex << id << " " << template_id;
    }
    SetTree({"M/E-1", "Key1", "Type"}, 0x11110000);
    const ST_TBL rows[] = {Cell(1, {}, 0x11120000), Cell(3, {}, 0x11130000), ST_END};
    Open(rows);
    const ST_TBL& c = rows[0];
    EXPECT_EQ(Asked(c.x2, 100), 0u);
    EXPECT_EQ(Asked(c.x2 - 1, c.y2 - 1), 0x11120000u);
    GL_CreatePage = 0x00110000;
    EXPECT_EQ(ST_Proc(MSG_PRESS, c.x1 + 50, c.y1 + 45, 1, 0), 0) << "others may have a part in it";
    EXPECT_EQ(GL_CreatePage, 0x00110000u);
}

TEST_F(StatusCells, ATransitionOrClipCellLeadsWhereItsTallySays)
{
    SetTree({"PGM/PST", "Misc"}, 0x14710000);
    Open(st_me_misc);
    const ST_TBL& transition = st_me_misc[0];
    EXPECT_EQ(PageOfCell(transition), 0u);
    Tally("PGM/PST@Misc@Transition@DME Wipe", "true");
    EXPECT_EQ(PageOfCell(transition), 0u);
    Tally("PGM/PST@Misc@Transition@Transition Mode", "Full");
    EXPECT_EQ(PageOfCell(transition), 0x14610000u);
    Tally("PGM/PST@Misc@Transition@Wipe", "true");
    EXPECT_EQ(PageOfCell(transition), 0x14510000u);
    const ST_TBL& clip = *std::ranges::find(st_me_misc, 9, &ST_TBL::id);
    for (const auto& [output, target] : {std::pair{"DDR1", 0u}, {"FM1", 0x21110000u}}) {
        Tally("PGM/PST@Misc@Clip Transition@Output", output);
        EXPECT_EQ(PageOfCell(clip), target);
    }
}

constexpr const char* REFERENCE = "DME@Status@3D Param@Mode Status@Reference";

TEST_F(StatusCells, TheReferenceChoosesTheTableOfADmePage)
{
    SetTree({"DME"}, 0x41110000);
    (void)TakeQueuedCommands();
    for (const auto& [value, table] : {std::pair{"2,1,0", "Local Source"},
                                       {"52,1,0", "Global Source"},
                                       {"11,2,0", "Global Target"}}) {
        Tally(REFERENCE, value);
        EXPECT_THAT(TakeQueuedCommands(),
                    Contains("add DME@Status@3D Param@" + std::string(table) + "@Location@X"));
    }
    for (const char* value : {"11,2,9", "12,0,0", "2,1", "4", "zz", ""}) {
        Tally(REFERENCE, value);
        EXPECT_THAT(TakeQueuedCommands(), IsEmpty()) << value;
    }
}

constexpr Rect FIRST = {100, 75, 199, 164};
constexpr const char* TYPE = "M/E-1@Key1@Type@Key Type";

TEST_F(StatusCells, OnlyTheCellOfThePageInViewIsLit)
{
    for (const auto& [id, word, lit] : {std::tuple{0x11120000u, "Key1", "..x....."},
                                        {0x82310000u, "Key1", "xx......"},
                                        {0x11110001u, "Key1", "........"},
                                        {0x11510000u, "Wipe", "........"},
                                        {0x11110003u, "Key1", "......x."}}) {
        SetTree({"M/E-1", word}, id);
        GL_ProcStatus[1] = 1;
        Open(st_me_key);
        Pass();
        for (int i = 0; i < 8; i++)
            EXPECT_EQ(PixelAt(st_me_key[i].x1 + 4, st_me_key[i].y2 - 4), lit[i] == 'x' ? LIT : 0)
                << std::hex << id << " " << i;
    }
}

// A page that is built anew must not flash, and no key may show what another has.
TEST_F(StatusCells, ARebuiltCellShowsItsLastPictureAndNeverThatOfAnotherKey)
{
    GL_ProcStatus[1] = 1;
    Open(st_me_key);
    Tally(TYPE, "Luminance");
    Pass();
    const int white = Count(FIRST, WHITE);
    TDL_FillRectS(97, 73, 702, 256, 0);
    SetTree({"M/E-1", "Key1", "Edge"}, 0x11120000);
    Open(st_me_key);
    Pass();
    EXPECT_EQ(Count(FIRST, WHITE), white);
    EXPECT_EQ(PixelAt(104, 160), 0u) << "no longer lit";

    SetTree({"M/E-1", "Key2", "Type"}, 0x11210000);
    Open(st_me_key);
    Pass();
    EXPECT_EQ(Count(FIRST, WHITE), 0);
}

// Painters may ask for tallies that a cell does not have: none of them is another cell's.
TEST_F(StatusCells, ARebuiltCellShowsNothingOfTheCellThatStoodInItsPlace)
{
    static std::string second;
    const auto note = [](ST_MEM* cell) {
        const ST_MEM* shown = st_shown(cell);
        second += shown ? shown->tally[1] : "no picture";
        return 0;
    };
    const auto seen = [] { return std::exchange(second, ""); };
    ST_TBL two = Cell(1, {"~2@A", "~2@B"});
    ST_TBL one = Cell(1, {"~2@C"});
    ST_TBL others[] = {Cell(2, {"~2@D", "~2@E"}), Cell(3, {"~2@F", "~2@G"})};
    two.draw_func = one.draw_func = others[0].draw_func = others[1].draw_func = note;
    const ST_TBL first[] = {two, others[0], others[1], ST_END};
    const ST_TBL next[] = {one, ST_END};
    GL_ProcStatus[1] = 1;
    Open(first);
    Tally("M/E-1@Key1@B", "false");
    Tally("M/E-1@Key1@E", "+");
    Tally("M/E-1@Key1@G", "-");
    Pass();
    EXPECT_EQ(seen(), "false+-");
    Open(first);
    Pass();
    EXPECT_EQ(seen(), "false+-") << "each its own";
    Open(next);
    Tally("M/E-1@Key1@C", "5");
    Pass();
    (void)seen();
    Open(next); // before the server has answered
    Pass();
    EXPECT_EQ(seen(), "");
}

TEST_F(StatusCells, AnUnknownWordOrPatternLeavesTheFrameEmpty)
{
    constexpr Rect picture = {103, 96, 196, 140};
    Open(st_me_key);
    Tally(TYPE, "Magic");
    Tally("M/E-1@Key1@Type@Key Wipe Pattern@Pattern", "1");
    Tally("M/E-1@Key1@Type@Key Invert", "false");
    Pass();
    EXPECT_EQ(Count(picture, LIT), 94 * 45);
    for (const char* number : {"0", "-1", "4000", "99999999999999999999", "x", ""})
        EXPECT_EQ(st_pattern(number), nullptr) << number;
    EXPECT_EQ(st_pattern("3999"), WipePtn(3999));
    EXPECT_TRUE(st_pattern("1"));
}

TEST_F(StatusCells, TheCrossHairStandsWhereTheWipeDoes)
{
    SetTree({"M/E-1", "Wipe"}, 0x11520000);
    for (const auto& [h, v, px, py] :
         {// from the corner of the cell
          std::tuple{"200", "200", 74, 26},
          {"300", "0", 86, 44},                       // outside the frame
          {"99999999999", "-99999999999", -1, -1}}) { // nowhere, and no fault
        Open(st_me_wipe);
        Tally("M/E-1@Wipe@Main Pattern@Position@H", h);
        Tally("M/E-1@Wipe@Main Pattern@Position@V", v);
        Pass();
        if (px < 0)
            continue;
        EXPECT_EQ(Count({200 + px, 75 + 27, 200 + px, 75 + 61}, WHITE), 35) << h;
        EXPECT_EQ(Count({200 + 27, 75 + py, 200 + 73, 75 + py}, WHITE), 47) << v;
        EXPECT_EQ(PixelAt(200 + px + 1, 75 + py + 1), WHITE) << "the dot";
    }
}

TEST_F(StatusCells, WhatIsOffLiesUnderAVeil)
{
    for (const auto& [rows, place, path, off] :
         {std::tuple{&st_me_wipe[0], 1, "M/E-1@Wipe@Main Pattern@Position", "false"},
          {st_me_wipe, 10, "M/E-1@Wipe@Pattern Mix@Pattern Mix", "Off"},
          {st_me_wipe, 5, "M/E-1@Wipe@Edge@Border", "false"}, // as long as neither is on
          {st_me_wipe, 5, "M/E-1@Wipe@Edge@Soft", "false"},
          {st_me_misc, 5, "M/E-1@Misc@Video Process@Video Process", "false"},
          {st_me_misc_sub, 1, "M/E-1@Misc@Key Priority@Enable", "false"}})
        for (const char* value : {off, "true"}) {
            Open(rows);
            Tally(path, value);
            Pass();
            const ST_TBL& c = rows[place];
            const auto inside = PixelsIn({c.x1 + 3, c.y1 + 19, c.x2 - 3, c.y2 - 3});
            EXPECT_EQ(std::ranges::any_of(inside, [](uint32_t p) { return (p & 0xFF00) > 0x7000; }),
                      value != off)
                << path;
        }
}

// "2=27": the third path of the cell brings that value; "~" and it is seen to change nothing.
TEST_F(StatusCells, WhatIsNewInACellIsSeen)
{
    static const std::pair<const ST_TBL*, Strings> cases[] = {
        {&st_me_dmewipe[2], {"1=false", "0=false", "2=false"}},
        {&st_me_dmewipe[3], {"0=Normal", "1=false", "2=false", "0=Reverse"}},
        {&st_me_wipe[0], {"0=1", "0=4001", "0=4002"}}, // the last two have no picture
        {&st_me_wipe[2], {"0=1", "1=2", "2=3"}},
        {&st_me_wipe[10], {"0=Mix", "1=1"}},
        {&st_me_wipe[5], {"0=true", "1=true"}},
        {&st_me_wipe[4], {"0=true", "1=false", "2=false", "3=false", "1=true"}},
        {&st_me_key[0], {"0=Wipe Pattern", "4=27", "3=true", "0=Chroma", "2=Additive Mix"}},
        {std::ranges::find(st_me_key, 8, &ST_TBL::id),
         {"0=Matte", "1=Flat", "0=Key Bus", "2=CAM1"}},
        {&st_me_misc[0], {"0=true", "~0=false", "1=true", "~1=false", "4=true", "7=27"}},
        {&st_color_bkgd[0], {"0=Flat", "0=Mix", "1=27"}},
        {&st_color_bkgd[2], {"1=50", "2=60", "3=70", "0=Flat"}},
        {&st_ccr[0][0], {"1=Input", "2=7", "2=8", "0=false"}},
        {&st_ccr[0][1], {"1=50", "2=60", "3=70", "4=80", "0=false"}},
        {&st_ccr[0][9], {"0=true", "1=true", "2=true"}},
        {st_status_me, {"0=CAM1", "1=CAM2", "2=CAM3", "3=CAM4"}}};
    for (const auto& [cell, news] : cases) {
        const ST_TBL rows[] = {*cell, ST_END};
        const auto look = [&rows] {
            Pass();
            return PixelsIn({rows[0].x1, rows[0].y1, rows[0].x2, rows[0].y2});
        };
        Open(rows);
        const Strings added = TakeQueuedCommands();
        auto last = look();
        for (const std::string& line : news) {
            const bool is_same = line[0] == '~';
            const char* const text = line.c_str() + is_same;
            Tally(added[size_t(text[0] - '0')].c_str() + strlen("add "), text + 2);
            const auto now = look();
            EXPECT_EQ(now == last, is_same) << added[0] << " " << line;
            last = now;
        }
    }
}

// The rate is shown as it is told: the other lines must look like those texts.
TEST_F(StatusCells, ABankNamesItsTransitionWithThePatternAndTheKeysThatAreOn)
{
    const auto looks_like = [](int line, const char* text) {
        Tally("M/E-1@Misc@Transition@Transition Rate", text);
        Pass();
        const auto value = [](int n) { return PixelsIn({150, 97 + 15 * n, 290, 110 + 15 * n}); };
        return value(line) == value(5);
    };
    Open(st_status_me);
    EXPECT_TRUE(looks_like(6, "-"));
    for (const char* on : {"Key1@Status@Key ON", "Key8@Status@Key ON", "Misc@Transition@Wipe"})
        Tally((std::string("M/E-1@") + on).c_str(), "true");
    Tally("M/E-1@Wipe@Main Pattern@Pattern", "27");
    EXPECT_TRUE(looks_like(6, "1 8") && looks_like(4, "Wipe 27"));
}

TEST_F(StatusCells, ACellNamesItsSourceUnlessItIsThatOfThePage)
{
    std::vector<std::vector<uint32_t>> names;
    for (const char* source : {"CCR1", "CCR2"}) {
        SetTree({"CCR", source}, 0x24110000);
        Open(st_ccr_top);
        for (const int cell : {0, 5}) { // the first one of each source
            Tally(st_ccr_top[cell].cmd[0], "true");
            Pass();
            const int x = st_ccr_top[cell].x1, y = st_ccr_top[cell].y1;
            names.push_back(PixelsIn({x + 5, y + 5, x + 95, y + 18}));
        }
    }
    EXPECT_EQ(names[0], names[3]) << "without one";
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), 3u);
}

static bool Overlap(const ST_TBL& c, const BT_TBL& b)
{
    return c.x1 <= b.x2 && b.x1 <= c.x2 && c.y1 <= b.y2 && b.y1 <= c.y2;
}

TEST_F(StatusCells, EachCellOfEachPageLeadsToAPageAndCoversNoButton)
{
    int cells = 0;
    page_walk::ForEachPage([&](PAGE& p) {
        const auto* c = static_cast<const ST_TBL*>(page_walk::TableOf(p, OBJ_ST));
        if (!c)
            return;
        page_walk::Show(p);
        for (Open(c); c->id >= 1; c++, cells++) {
            EXPECT_TRUE(c->draw_func) << std::hex << p.id;
            const uint32_t id = PageOfCell(*c);
            const bool is_there = SearchPageTable_Free_ALL(PageTable, id) || SearchPageTable(id);
            EXPECT_TRUE(!c->jamp_id_base || is_there) // as a row or as a variant of one
                << std::hex << p.id << " " << id;
            for (const BT_TBL* b = page_walk::ButtonsOf(p); b && b->id >= 1; b++)
                EXPECT_FALSE(Overlap(*c, *b)) << std::hex << p.id << " " << b->caption;
        }
    });
    EXPECT_GT(cells, 4000);
}
