// What the setup pages share: two copies of a configuration, by a page that has every kind of
// field.
#include "setup_desk.h"
#include "setup_page.h"
#include "text.h"

namespace
{
struct unit {
    char key[8];
    char mode[16];
    char low[8];
    char high[8];
    char order[8];
};
unit Work[4], Told[4];
int Units = 0;
SETUPSTATE state;

bool not_two(const char* key)
{
    return strcmp(key, "U2") != 0;
}
constexpr SETUPWORD words[] = {{"true", "On"}, {"false", "Off"}, {}};
constexpr SETUPFIELD fields[] = {
    {SETUP_CELL(unit, mode), .path = "Setup@Mode@$@Now", .column = 1, .has = not_two,
     .words = words},
    {SETUP_CELL(unit, low), .path = "Setup@Limits", .part = 1, .column = 2},
    {SETUP_CELL(unit, high), .path = "Setup@Limits", .part = 2, .parts = 2, .column = 3},
    {SETUP_CELL(unit, order), .path = "Setup@Order", .part = SETUP_EACH_ROW, .column = 4},
    {SETUP_CELL(unit, key), .column = 0},
};
int three(const char** keys, int)
{
    keys[0] = "U1", keys[1] = "U2", keys[2] = "U3";
    return 3;
}
constexpr SETUPCHOICE choices[] = {{"LOCAL@Setup@Mode", 0}};
constexpr SETUPTABLE page = {.work = Work,
                             .tally = Told,
                             .rows = &Units,
                             .state = &state,
                             .row_size = sizeof(unit),
                             .max = 4,
                             .fields = fields,
                             .field_count = std::size(fields),
                             .keys = three,
                             .execute = "LOCAL@Setup@Execute",
                             .choices = choices,
                             .choice_count = std::size(choices)};
constexpr SETUPFIELD told_fields[] = {
    {SETUP_CELL(unit, low), .path = "Setup@Limits", .part = 1},
    {SETUP_CELL(unit, key)},
};
constexpr SETUPTABLE told_page = {.work = Work,
                                  .tally = Told,
                                  .rows = &Units,
                                  .state = &state,
                                  .row_size = sizeof(unit),
                                  .max = 4,
                                  .fields = told_fields,
                                  .field_count = std::size(told_fields)};

struct SetupPage : SetupTest {
    static inline const SETUPTABLE* open = nullptr;
    static void Start(const SETUPTABLE& t)
    {
        SetupPage_Forget(t);
        open = &t;
        (void)TakeQueuedCommands();
        SetupPage_Open(t);
    }
    static void Hear(const std::string& path, const std::string& value)
    {
        (void)SetupPage_Proc(*open, MSG_TALLY, Arg(path.c_str()), Arg(value.c_str()));
    }
    // In hand and told, of each row.
    static std::string LowLimits()
    {
        std::string text;
        for (int row = 0; row < Units; row++)
            text += Work[row].key + std::string("=") + Work[row].low + "(" + Told[row].low + ") ";
        return text;
    }
    static Lines Execute()
    {
        (void)TakeQueuedCommands();
        SetupPage_Put(*open);
        return TakeQueuedCommands();
    }
};
} // namespace

TEST_F(SetupPage, AsksForEachPathOnceAndKeepsWhatIsInHandBeyondThePage)
{
    Start(page);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add Setup@Mode@U1@Now", "add Setup@Mode@U3@Now",
                                                  "add Setup@Limits", "add Setup@Order"));
    SetupPage_Close(page);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("remove Setup@Mode@U1@Now", "remove Setup@Mode@U3@Now",
                            "remove Setup@Limits", "remove Setup@Order"));

    Start(page);
    SetupPage_Set(page, 2, 1, "much too long for it");
    SetupPage_Close(page);
    SetupPage_Open(page);
    EXPECT_STREQ(SetupPage_Text(page, 2, 1), "much to");
    EXPECT_TRUE(SetupPage_Differs(page));
    EXPECT_STREQ(SetupPage_Text(page, 3, 1), "");
    EXPECT_EQ(SetupPage_Row(page, "U3"), 2);
}

TEST_F(SetupPage, AnotherPanelsChangeLeavesWhatIsInHand)
{
    Start(page);
    Hear("Setup@Mode@U1@Now", "true");
    Hear("Setup@Mode@U3@Now", "true");
    Hear("Setup@Mode@U2@Now", "true"); // has none
    Hear("Setup@Mode@U1", "false");    // not the path
    EXPECT_STREQ(Work[1].mode, "");
    SetupPage_Set(page, 0, 0, "Off");
    Hear("Setup@Mode@U1@Now", "third");
    Hear("Setup@Mode@U3@Now", "false");
    EXPECT_STREQ(Work[0].mode, "Off");
    EXPECT_STREQ(Told[0].mode, "third");
    EXPECT_STREQ(Work[2].mode, "Off");
    EXPECT_THAT(Execute(), ElementsAre("put Setup@Mode@U1@Now#false"));
    Hear("Setup@Mode@U1@Now", "false"); // it has it
    EXPECT_FALSE(SetupPage_Differs(page));
    EXPECT_THAT(Execute(), IsEmpty());
}

TEST_F(SetupPage, ALineGoesAsAWholeAndOnceForTwoChanges)
{
    Start(page);
    for (const char* line : {"U1,1,9,9", "U2,2,8,8", "U9,0,0,0", "U3", ""})
        Hear("Setup@Limits", line);
    Hear("Setup@Order", "a,b,c,d,e");
    SetupPage_Set(page, 1, 1, "3");
    SetupPage_Set(page, 1, 2, "7");
    SetupPage_Set(page, 2, 3, "z");
    EXPECT_THAT(Execute(), ElementsAre("put Setup@Limits#U2,3,7,7", "put Setup@Order#a,b,z,"));
    SetupPage_Clear(page, 1u << 3);
    EXPECT_STREQ(Work[2].order, "c");
    EXPECT_STREQ(Work[1].high, "7") << "of the other fields";
}

TEST_F(SetupPage, RowsThatLinesMakeComeBackAfterKillWithTheirEdits)
{
    Start(told_page);
    for (const char* line : {"A,1", "B,2", "C,3"})
        Hear("Setup@Limits", line);
    SetupPage_Set(told_page, 2, 0, "33");
    for (const char* line : {"KILL", "C,3", "D,4", "A,11", "E,5", "F,6"})
        Hear("Setup@Limits", line);
    EXPECT_EQ(LowLimits(), "C=33(3) D=4(4) A=11(11) E=5(5) ") << "no room for more";
    for (const char* line :
         {"KILL", "a key that is cut as too long,1", "a key that is cut as too long,2"})
        Hear("Setup@Limits", line);
    EXPECT_EQ(LowLimits(), "a key that is cut as to=2(2) ");
}
