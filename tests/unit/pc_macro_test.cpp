// The pages of the macro registers and the offline editor: what goes over the wire, what the lists
// show, what stands in the file.
#include "a_ls.h"
#include "pc_macro.h"
#include "register.h"
#include "table_page.h"
#include "window.h"
#include <unistd.h>

namespace
{
struct MacroPages : TablePage {
    void TearDown() override
    {
        TablePage::TearDown();
        unlink(MACRO_EDIT_FILE);
    }
    static Lines Puts(int id) { return TablePage::Puts(Press(id)); }
    static void Cursor(int list, int row)
    {
        LS_SetNowLine(list, row);
        LS_SetSelected(list, row, 0, 1);
        Pass(200);
    }
    static std::string Cell(int list, int row, int column)
    {
        const char* const text = LS_GetData(list, row, column);
        return text ? text : "";
    }
    static Lines Answer()
    {
        (void)TakeQueuedCommands();
        Window_ReserveQuit(0);
        Pass(10);
        return TakeQueuedCommands();
    }
};
} // namespace

// Register 3 holds data and is at the cursor; the second list is at row 4 or 5.
TEST_F(MacroPages, EveryKeySendsItsCommand)
{
    TellAll("Macro@Register@List#", {"3,S,OPENING,U,0,0", "5,S,NEWS,U,0,0"});
    static const struct {
        uint32_t page;
        int target;
        const char* window; // null: none
        const char* command;
    } cases[] = {
        {0x54120000, 3, nullptr, "put Macro@Register@Lock@Lock#0000100000000000,3,3,true"},
        {0x54130000, 3, nullptr,
         "put Macro@Register@Copy@Copy#0000100000000000,3,3,0000100000000000,4,false"},
        {0x54130000, 4, "Macro Copy",
         "put Macro@Register@Copy@Copy#0000100000000000,3,3,0000100000000000,5,false"},
        {0x54160000, 3, "Macro Delete", "put Macro@Register@Delete@Delete#0000100000000000,3,3"},
        {0x54170000, 3, "Name", "put Macro@Register@Rename@Rename#0000100000000000,3,OPENING"},
    };
    for (const auto& c : cases) {
        Open(c.page);
        Cursor(1, 2);
        Cursor(2, c.target);
        Lines sent = Puts(49);
        EXPECT_EQ(GetWindow() != WINDOW_NONE, c.window != nullptr) << c.command;
        if (c.window) {
            EXPECT_THAT(sent, IsEmpty()) << c.window;
            sent = Answer();
        }
        EXPECT_THAT(sent, ElementsAre(c.command));
    }
}

TEST_F(MacroPages, AListShowsWhatTheServerTold)
{
    Open(PAGE_MACRO_REGISTERS);
    static const struct {
        const char* line;
        const char *name, *le;
    } cases[] = {
        {"7,S,OPENING,U,0,0", "OPENING", ""},
        {"7,S,OPENING,L,0,0", "OPENING", "L"},
        {"7,E,,U,0,0", "", "E"},
        {"7,e,,U,0,0", "", "E"},
        {"7,S,TWELVE_CHARS,U", "TWELVE_CHAR", ""},
    };
    for (const auto& c : cases) {
        (void)Tell(std::string("Macro@Register@List#") + c.line);
        EXPECT_EQ(Cell(1, 6, 0), "7");
        EXPECT_EQ(Cell(1, 6, 1), c.name) << c.line;
        EXPECT_EQ(Cell(1, 6, 2), c.le) << c.line;
    }
    for (const char* line : {"251,S,A,U,0,0", "0,S,A,U,0,0", "7,S,A", ""})
        (void)Tell(std::string("Macro@Register@List#") + line);
    EXPECT_EQ(Cell(1, 6, 1), "TWELVE_CHAR");
    EXPECT_EQ(LS_GetNData(1), 250);
}
