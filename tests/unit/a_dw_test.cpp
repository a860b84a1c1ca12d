#include "a_dw.h"
#include "tab_page.h"

const DW_TBL table = {.cmd = "~4@Pattern Select@Pattern", .grpid = {17, 0, 36, 22, 99}};
constexpr const char* PATH = "M/E-1@Key1@Transition@Adjust@Pattern Select@Pattern";

// The middle of a cell of the window.
static constexpr int X(int column)
{
    return 160 + 76 * column + 34;
}
static constexpr int Y(int row)
{
    return 89 + 76 * row + 34;
}

// The lines of this list: slide 8 (two), user 10 (two), roll 16 (three).
struct WipeLists : TabPage {
    void SetUp() override
    {
        TabPage::SetUp();
        Open({"M/E-1", "Key1", "Transition", "Adjust"}, 0);
    }
    void Open(std::initializer_list<const char*> tree, uint32_t knob_row)
    {
        DW_Create(nullptr, 0);
        SetTree(tree, 0x11170003, OBJ_DW);
        (void)TakeQueuedCommands();
        DW_Create(&table, knob_row);
    }
    // What a touch sends, by its number; of the first cell when none is given.
    static std::string Number(int x = X(0), int y = Y(0))
    {
        const auto lines = Sent(x, y);
        return lines.empty() ? "" : lines[0].substr(lines[0].find('#') + 1);
    }
};

TEST_F(WipeLists, APressSendsTheNumberOfItsCellWhichForUserProgramsMovesWithBankAndKey)
{
    EXPECT_THAT(Sent(X(0), Y(0)), ElementsAre(std::string("put ") + PATH + "#1001"));
    static const struct {
        int x, y;
        const char* number; // empty: sends nothing
    } cases[] = {
        {X(1), Y(1), "1008"}, {X(2), Y(1), ""},    {X(0), Y(2), "1921"}, {228, Y(0), "1001"},
        {229, Y(0), ""},      {X(0), 89 + 69, ""}, {X(6), Y(0), ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Number(c.x, c.y), c.number) << c.x << "," << c.y;
    static const NB_TBL box[] = {{.id = 1, .caption = "", .cmd = "~2@Own"}, NB_END};
    NB_Create(box, "");
    EXPECT_THAT(Sent(X(0), Y(0)), Contains("remove M/E-1@Key1@Own")) << "it has no knobs";
    BA_SetDefaultButton(1);
    EXPECT_THAT(Sent(X(0), Y(0)), IsEmpty());
    BA_SetDefaultButton(0);
    for (const auto& [bank, key, user] : {std::tuple{"PGM/PST", "DSK2", "1911"},
                                          {"M/E-1", "Key1", "1921"},
                                          {"M/E-2", "Key2", "1951"},
                                          {"M/E-3", "Key3", "1901"}}) {
        Open({bank, key, "Transition", "Adjust"}, 0);
        EXPECT_EQ(Number(X(0), Y(2)), user) << bank << " " << key;
        EXPECT_EQ(Number(), "1001") << bank << " " << key;
    }
}

TEST_F(WipeLists, TheWindowStaysInsideTheList)
{
    for (const auto& [kind, bar, value, first] : {std::tuple{SB_UP, 0, -1, "1001"},
                                                  {SB_DOWN, 0, 1, "1007"},
                                                  {SB_DOWN, 1, 1, "1007"},
                                                  {SB_THUMB, 0, 6, "1927"},
                                                  {SB_DOWN, 0, 1, "1927"}, // 7 lines, 4 shown
                                                  {SB_THUMB, 0, -4, "1001"}}) {
        SendMessage(LMSG_SBSEL, kind, bar, value, 0);
        EXPECT_EQ(Number(), first) << kind << " " << value;
    }
    SB_INFO bar;
    SB_GetInfo(&bar, 0);
    EXPECT_EQ(bar.total, 7);
    // A wheel step becomes a press on an arrow.
    int x = 700, y = Y(0);
    EXPECT_EQ(DW_ConvPosForWheel(&x, &y, 4), 0) << "beside the list";
    x = X(0);
    ASSERT_EQ(DW_ConvPosForWheel(&x, &y, 5), 1);
    Pass();
    const auto top = PixelsIn({X(0) - 25, Y(0) - 25, X(0) + 25, Y(0) + 25});
    Touch(x, y);
    Pass();
    EXPECT_NE(PixelsIn({X(0) - 25, Y(0) - 25, X(0) + 25, Y(0) + 25}), top);
    EXPECT_EQ(Number(), "1007");
}

TEST_F(WipeLists, TheChosenCellComesIntoView)
{
    for (const auto& [number, first] : {std::pair{"1007", "1001"},
                                        {"1930", "1001"}, // in view already
                                        {"1331", "1927"}, // the last line
                                        {"7003", "7001"},
                                        {"1999", "1001"}}) { // not in the list
        Tally(PATH, number);
        EXPECT_EQ(Number(), first) << number;
    }
    SendMessage(LMSG_SBSEL, SB_DOWN, 0, 1, 0);
    Tally(PATH, "1999");
    EXPECT_EQ(Number(), "1007") << "told the same once more";
}

TEST_F(WipeLists, TheVeilFollowsTheTally)
{
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(std::string("add ") + PATH));
    const auto corner = [](int column) {
        Pass();
        return PixelAt(X(column) - 20, Y(0)); // a light place of a light picture, or its veil
    };
    const uint32_t plain = corner(0);
    Touch(X(0), Y(0));
    EXPECT_EQ(corner(0), plain);
    Tally(PATH, "1001");
    EXPECT_NE(corner(0), plain);
    for (const char* value : {"1002", "", "99999999999", "-5"}) {
        Tally(PATH, "1001");
        Tally(PATH, value);
        EXPECT_EQ(corner(0), plain) << value;
    }
}
