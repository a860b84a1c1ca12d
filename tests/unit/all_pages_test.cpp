// The walk over all pages: every row is opened, drawn and left again, in the order of the table.
#include "a_bt.h"
#include "a_pc.h"
#include "a_st.h"
#include "bus_tally.h"
#include "command.h"
#include "global.h"
#include "harness.h"
#include "initread.h"
#include "log.h"
#include "me_bank.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "page_walk.h"
#include "pane.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <map>
#include <set>

constexpr char LOG[] = "/var/log2/all_pages.log";

// What is still subscribed after the commands of a walk. The server keeps one subscription of a
// path, however often it was asked for.
struct Books {
    std::map<std::string, int> open; // how often more it was added than removed
    std::set<std::string> held;      // the paths that are subscribed now
    std::set<std::string> stray;     // removed, but not added before
    std::set<std::string> removed;   // at any time

    void Take()
    {
        Net_DropBinQueue(); // no link is up to take them
        for (const std::string& line : TakeQueuedCommands()) {
            const size_t space = std::min(line.find(' '), line.size() - 1);
            const std::string verb = line.substr(0, space), path = line.substr(space + 1);
            if (verb == "add") {
                open[path]++;
                held.insert(path);
            } else if (verb == "remove") {
                held.erase(path);
                removed.insert(path);
                if (--open[path] < 0) {
                    open[path] = 0;
                    stray.insert(path);
                }
            }
        }
    }
};

static void Pass(int elapsed_ms)
{
    SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0);
}

// Messages that bring numbers.
constexpr int numbers[] = {
    MSG_REDRAW,         MSG_KEY,           LMSG_LISTSEL,     LMSG_SBSEL,
    LMSG_LISTAREASEL,   LMSG_REGSELCHANGE, LMSG_PATHSELSEL,  LMSG_LISTFLASH,
    LMSG_KNOBUPPER,     LMSG_KNOBLOWER,    LMSG_KNOBCREATE,  LMSG_KNOBDEFAULT,
    LMSG_FMPAIRCHANGE,  LMSG_FMSELCHANGE,  LMSG_FMOUTCHANGE, LMSG_FMREGSEL,
    LMSG_FMCTRLCHANGE,  LMSG_PANEQUIT,     LMSG_PANEREGION,  LMSG_REGISTER,
    LMSG_DMEREFCHANGE,  LMSG_KNOBRELEASE,  LMSG_FFSELCHANGE, LMSG_FLCURDIRCHANGE,
    LMSG_FMFRAMECHANGE, LMSG_FFCRNTCHANGE, LMSG_FFLISTCHANGE};

// They come from objects that are empty or have more rows than a page thinks. A title is not a
// number, and rows and boxes may be asked for that nobody has.
static void OddNumbersDoNoHarm(uint32_t page)
{
    for (const int msg : numbers)
        for (const int id : {0, -1, 1, 2, 5000}) // two lists are the most that a page has
            for (const int number : {0, -1, 5000})
                SendMessage(msg, id, msg == LMSG_KNOBCREATE ? Arg("") : number, number, 0);
    EXPECT_EQ(GL_NowPage, page);
}

static void CloseAll()
{
    (void)CloseWindow(); // none may be open
    while (int id = Pane_GetActiveID())
        Pane_Quit(id);
}

// Whoever takes a message or a tally lets those behind him hear it, too, and says of nothing that
// it has failed.
static void NothingIsKeptFromOthers(const PAGE& row)
{
    const auto heard = [&](int msg, MsgArg ax, MsgArg bx, MsgArg cx) {
        EXPECT_EQ(PC_Proc(msg, ax, bx, cx, 0), 0) << std::hex << row.id << ", message " << msg;
    };
    const auto named = [&](int msg, const char* name, const char* value) {
        heard(msg, Arg(name), Arg(value), Hash(name));
    };
    for (const int msg : numbers)
        for (const int id : {-1, 1, 2})
            heard(msg, id, msg == LMSG_KNOBCREATE ? Arg("") : 0, 0);
    if (row.id != 0x73270001) // it has the whole screen for itself
        for (const int msg : {MSG_PRESS, MSG_RELEASE, MSG_DRAG})
            heard(msg, -1, -1, 0);
    for (const int msg : {int(MSG_TALLY), int(LMSG_BTNSEL)})
        named(msg, "Nobody@Has@This", "");
    for (const std::string& line : TakeQueuedCommands())
        if (BeginsWith(line.c_str(), "add "))
            for (const char* value : {"", "1", "true"})
                named(MSG_TALLY, line.c_str() + strlen("add "), value);
    for (BT_MEM* b = bt_first(); b->id >= 1; b++) {
        EXPECT_EQ(b->draw_func ? b->draw_func(b) : 0, 0)
            << std::hex << row.id << " draws " << b->id;
        EXPECT_LE(b->tally_func ? b->tally_func(b, 0, b->cmd[0], "1") : 0, 0)
            << std::hex << row.id << " tells " << b->id;
    }
    uint32_t var = 0;
    const auto* code = static_cast<const PC_TBL*>(page_walk::TableOf(row, OBJ_PC, &var));
    EXPECT_EQ(code && code->create_func ? code->create_func(1, var) : 0, 0)
        << std::hex << row.id << " is opened once more";
    for (BT_MEM* b = bt_first(); b->id >= 1; b++)
        if (IsLocal(b->cmd[0])) {
            named(LMSG_BTNSEL, b->cmd[0], b->cmd_var[0]);
            CloseAll();
        }
    const auto* cells = static_cast<const ST_TBL*>(page_walk::TableOf(row, OBJ_ST));
    static ST_MEM cell;
    for (; cells && cells->id >= 1; cells++)
        for (const char* value : {"0", "1", "true"}) {
            cell = {.x1 = cells->x1, .y1 = cells->y1, .x2 = cells->x2, .y2 = cells->y2};
            cell.used = ST_COMMANDS;
            for (auto& tally : cell.tally)
                CopyText(tally, value);
            EXPECT_LE(cells->draw_func(&cell), 0) << std::hex << row.id << ", cell " << cells->id;
        }
}

struct AllPages : testing::Test {
    const FullHouse all;

    void SetUp() override
    {
        Harness_Reset();
        GL_AllPageDisplayMode = 1; // the variants of a page, too
    }
    // Two pages are not opened in this mode.
    static bool Open(uint32_t id)
    {
        GL_AllPageDisplayMode = SearchPageTable_Free_ALL(PageTable, id) != nullptr;
        const int result = CreatePage(id);
        GL_AllPageDisplayMode = 1;
        return result == 0;
    }
    void TearDown() override { Harness_Reset(); }
    static inline std::set<std::string> titles; // over the columns of the pages that were walked

    // Opens every page, each from the top menu and back to it, and
    // tells the visitor what the visit left subscribed.
    template <typename Visit> static int Walk(Visit visit)
    {
        int opened = 0;
        Books books;
        EXPECT_EQ(CreatePage(PAGE_TOP), 0);
        Pass(10);
        books.Take();
        for (const PAGE* row = PageTable; row->id != PAGE_END; row++) {
            if (!Open(row->id))
                continue;
            opened++;
            if (page_walk::TableOf(*row, OBJ_NB))
                titles.insert(NB_GetTitle());
            Pass(10);
            Pass(10);
            OddNumbersDoNoHarm(GL_NowPage);
            CloseAll();
            (void)CreatePage(PAGE_TOP); // it was there before
            Pass(10);
            books.Take();
            (void)Net_SendBinCommandQueue(); // what waits for a link would count as kept
            visit(*row, books);
            books.stray.clear();
            std::erase_if(books.open, [&](const auto& b) { return !books.held.contains(b.first); });
        }
        return opened;
    }
};

TEST_F(AllPages, EachGivesBackWhatItSubscribed)
{
    std::set<std::string> before;
    int faults = 0;
    int banks = 0; // pages of them
    std::set<std::string> removed;
    Tally_FollowCombine(); // as the mode of the panel does
    for (const std::string& line : TakeQueuedCommands())
        before.insert(line.substr(strlen("add ")));
    Tally_FollowCombine();
    const int opened = Walk([&](const PAGE& row, Books& books) {
        removed = books.removed;
        banks += MeBank_OfPage(row.id) != nullptr;
        for (const std::string& path : books.held)
            if (path != "TopMenu" && !before.contains(path) && faults++ < 40)
                ADD_FAILURE() << std::hex << row.id << " leaves " << path;
        for (const std::string& path : books.stray)
            if (faults++ < 40)
                ADD_FAILURE() << std::hex << row.id << " removes " << path << " unasked";
        before = books.held;
    });
    EXPECT_EQ(faults, 0);
    const auto combines = [](const std::string& path) {
        return path.starts_with("Global Effect@Ch") && path.find("@Combine@Ch") != path.npos;
    };
    EXPECT_EQ(std::ranges::count_if(before, combines), 12) << "a page has ended one of them";
    InitialCommand0();
    InitialCommand1();
    InitialCommand2();
    removed.erase("Frame Mem 2@Clip/Still@Out Pair Select"); // nobody but its own object hears it
    for (const std::string& line : TakeQueuedCommands())
        EXPECT_FALSE(BeginsWith(line.c_str(), "add ") && removed.contains(line.substr(4)))
            << line << ": a page ends what is followed all the time";
    for (const std::string& title : titles)
        EXPECT_TRUE(title.find('\n') != title.npos || TDL_GetSymbolWidth(title.c_str(), 1) <= 84)
            << title << " is cut";
    EXPECT_EQ(opened, PageTable_Rows - 1);
    EXPECT_EQ(banks, 1789);
}

TEST_F(AllPages, EachLetsTheOthersHearWhatItHears)
{
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++) {
        ASSERT_TRUE(Open(row->id)) << std::hex << row->id;
        NothingIsKeptFromOthers(*row);
        CloseAll();
        GL_CreatePage = 0;
    }
}

TEST_F(AllPages, NoneKeepsMemoryOrLacksABitmap)
{
    CopyText(GL_ServerAddress, "127.0.0.1");
    Peer server(NET_BIN_PORT);
    Net_Init();
    ASSERT_TRUE(server.Accept());
    (void)Walk([](const PAGE&, Books&) {}); // what is loaded once and kept is there from here on
    remove(LOG);
    Log_Init(LOG, 100 * LOG_FILE_SIZE);
    const int before = UsedMemPtr;
    int last = before;
    (void)Walk([&](const PAGE& row, Books&) {
        EXPECT_LE(UsedMemPtr, last) << std::hex << row.id << " keeps memory";
        last = UsedMemPtr;
    });
    EXPECT_EQ(UsedMemPtr, before);
    server.Drop();
    server.StopListening();
    Net_Init(); // nobody is there: the link is down again
    const std::string log = FileText(LOG);
    EXPECT_NE(log, "") << "no log was written";
    EXPECT_EQ(log.find("Can't load graphics file"), std::string::npos);
}
