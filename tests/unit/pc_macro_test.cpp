// The pages of the macro registers and the offline editor: what goes over the wire, what the lists
// show, what stands in the file.
#include "a_ls_private.h"
#include "colours.h"
#include "command.h"
#include "lost_server.h"
#include "netio.h"
#include "pc_file_dual.h"
#include "pc_macro.h"
#include "pc_macro_attach.h"
#include "pc_macro_offline.h"
#include "pc_macro_online_edit.h"
#include "process.h"
#include "setup_desk.h"
#include "text.h"
#include <fstream>
#include <unistd.h>

using MacroPages = SetupTest;

const std::string HEAD = "PNL 0001PNL_0003.PMROPENING\n";
const std::string STOP = "Event?,Stop,Device?,Dev1\n", CUT = "Event?,MECut,ME?,P/P\n",
                  CUT_ME1 = "Event?,MECut,ME?,M/E-1\n";

struct MacroOfflinePage : MacroPages {
    void SetUp() override
    {
        MacroPages::SetUp();
        DeviceStructure();
        CopyText(SYS_SHP_MyUserID, "MENU1");
        GL_MacroEditNo = 3;
        GL_Macro_Offline_RegStore = 0;
        CopyText(GL_Macro_Offline_OriginalName, "OPENING");
        CopyText(GL_MacroEditNoName, "3  Name: OPENING");
    }
    void TearDown() override
    {
        MacroPages::TearDown();
        unlink(MACRO_EDIT_FILE);
    }
    static void OpenWith(const std::string& events)
    {
        MacroOffline_Reset(); // the job of the case before, and its pane
        (void)Pane_Quit(Pane_GetActiveID());
        File_Reset();
        (void)MakeDir(MACRO_EDIT_DIR);
        GL_Macro_Offline_Store = 0; // what another case has changed
        Filescp_trnasferlist_init("PNL1");
        Hub("Ready");
        EXPECT_EQ(CreatePage(PAGE_TOP), 0);
        std::ofstream(MACRO_EDIT_FILE, std::ios::binary) << HEAD << events;
        Open(PAGE_MACRO_OFFLINE);
        Pass(10);
        EXPECT_EQ(GL_NowPage, PAGE_MACRO_OFFLINE);
    }
    static void Hub(const char* verb)
    {
        SendMessage(MSG_SHPTALLY, Arg(verb), Arg("PNL1.File"), Hash(verb), 0);
    }
    static Lines Key(int id)
    {
        Pass(200); // the key is up again
        const Lines lines = Press(id);
        Pass(10);
        return lines;
    }
    // Words in list 2, as by a touch; each choice goes on to the next column.
    static void Choose(const Lines& words)
    {
        for (const std::string& word : words) {
            int row = LS_GetNData(LIST_MACRO_VALUES) - 1;
            while (row >= 0 && Cell(LIST_MACRO_VALUES, row, 0) != word)
                row--;
            EXPECT_GE(row, 0) << word << " cannot be chosen";
            SendMessage(LMSG_LISTSEL, LIST_MACRO_VALUES, row, 0, 0);
            Pass(10);
        }
    }
    static void At(int row, int column, const Lines& words = {})
    {
        SendMessage(LMSG_LISTSEL, LIST_MACRO_EVENTS, row, column, 0);
        Pass(10);
        Choose(words);
    }
    static void Enter(int value) { SendMessage(LMSG_KNOBVAR, NB_MACRO_VALUE, value, 1, 0); }
    static void Turn(int value) { SendMessage(LMSG_KNOBVAR, NB_MACRO_VALUE, value, 0, 0); }
    // Row by row, columns with a blank between.
    static std::string Events()
    {
        std::string all;
        for (int row = 0; row < LS_GetNData(LIST_MACRO_EVENTS); row++) {
            all += row ? "|" : "";
            for (int col = 0; col < MACRO_COL_SLOT + MACRO_SHOWN_SLOTS; col++)
                if (!Cell(LIST_MACRO_EVENTS, row, col).empty())
                    all += (col ? " " : "") + Cell(LIST_MACRO_EVENTS, row, col);
        }
        return all;
    }
    static std::string Stored()
    {
        (void)Key(BTN_MACRO_STORE);
        return FileText(MACRO_EDIT_FILE);
    }
};

const std::string ATTACHMENT = "Macro@Attachment@List#";
const std::string PLACE = ",1,2,3,4,5,6"; // where on the panel

struct MacroAttachPage : MacroPages {
    static void OpenWith(const Lines& lines)
    {
        Open(0x54210000);
        (void)Tell("Macro@Register@List#12,S,OPENING,U,0,0");
        for (const std::string& line : lines)
            (void)Tell(ATTACHMENT + line + PLACE);
        Pass(200);
    }
};

const std::string ONLINE = "Macro@Reg@On Line Edit@", PUT_ONLINE = "put " + ONLINE;

struct MacroOnlinePage : MacroPages {
    void SetUp() override
    {
        MacroPages::SetUp();
        GL_MacroEditNo = 3;
        GL_Macro_Online_TrueOrFalse = 1;
        Open(PAGE_MACRO_ONLINE);
        TellAll(ONLINE, {"Macro Edit Mode#true", "Remain Macro Event Cell#1000",
                         "Current Macro Register Info#3,OPENING,U,4,1",
                         "Macro Event Edit Range#1,4", "Insert Enable Flag#true"});
    }
    static void Records(const Lines& lines)
    {
        TellAll(ONLINE + "Current Work Register Event Data#", lines);
        Pass(10);
    }
    static std::vector<uint32_t> Look(const Rect& part)
    {
        Pass(10);
        return PixelsIn(part);
    }
};

// Register 3 holds data and is at the cursor; the second list is at row 4 or 5.
TEST_F(MacroPages, AListShowsWhatTheServerToldAndEveryKeySendsItsCommand)
{
    TellAll("Macro@Register@List#", {"3,S,OPENING,U,0,0", "5,S,NEWS,U,0,0"});
    static const std::tuple<uint32_t, int, bool, const char*> cases[] = {
        {0x54120000, 3, false, "put Macro@Register@Lock@Lock#0000100000000000,3,3,true"},
        {0x54130000, 4, true,
         "put Macro@Register@Copy@Copy#0000100000000000,3,3,0000100000000000,5,false"},
        {0x54170000, 3, true, "put Macro@Register@Rename@Rename#0000100000000000,3,OPENING"},
    };
    for (const auto& [page, target, has_window, command] : cases) {
        Open(page);
        Cursor(1, 2);
        Cursor(2, target);
        Lines sent = Puts(49);
        EXPECT_EQ(GetWindow() != WINDOW_NONE, has_window) << command;
        if (has_window) {
            EXPECT_THAT(sent, IsEmpty()) << command;
            sent = Confirm();
        }
        EXPECT_THAT(sent, ElementsAre(command));
    }

    Open(PAGE_MACRO_REGISTERS);
    static const std::pair<const char*, const char*> lines[] = {
        {"7,S,OPENING,U,0,0", "7|OPENING|"},
        {"7,S,OPENING,L,0,0", "7|OPENING|L"},
        {"7,E,,U,0,0", "7||E"},
        {"7,e,,U,0,0", "7||E"},
        {"7,S,TWELVE_CHARS,U", "7|TWELVE_CHAR|"},
    };
    for (const auto& [line, row] : lines) {
        (void)Tell(std::string("Macro@Register@List#") + line);
        EXPECT_EQ(Row(6, 3), row) << line;
    }
    TellAll("Macro@Register@List#",
            {"1,S,FIRST,L,0,0", "251,S,A,U,0,0", "0,S,A,U,0,0", "7,S,A", ""});
    EXPECT_EQ(Row(6, 3), "7|TWELVE_CHAR|");
    EXPECT_EQ(Row(0, 3), "1|FIRST|L");
    EXPECT_EQ(LS_GetNData(1), 250);
}

TEST_F(MacroOfflinePage, EveryEventIsMadeStepByStepAndReadsBack)
{
    OpenWith("");
    EXPECT_EQ(Events(), "Event 1");
    for (int column = 0; column <= MACRO_COL_SYMBOL; column++) {
        At(0, column);
        EXPECT_STREQ(ls_find(LIST_MACRO_VALUES)->head[0], ls_find(LIST_MACRO_EVENTS)->head[column]);
        EXPECT_EQ(BT_GetStatus(BTN_MACRO_GROUP_1 + column), BT_ON);
    }
    At(0, MACRO_COL_SYMBOL, {"KeyAutoTransition", "P/P", "Key2"});
    EXPECT_EQ(Events(), "Event 1 KeyAutoTransition P/P Key2 - -");
    Enter(30);
    Choose({"Reverse"});
    (void)Key(BTN_MACRO_INSERT_AFTER);
    Choose({"Cue", "Dev2"});
    Turn(1); // a knob stays with its value
    Turn(0);
    (void)Key(BTN_MACRO_GROUP_3 + 2);
    Enter(5);
    (void)Key(BTN_MACRO_INSERT_AFTER);
    At(2, MACRO_COL_CONTENTS, {"#"});
    (void)Key(BTN_MACRO_GROUP_3);
    ASSERT_EQ(GetWindow(), WINDOW_KEYBOARD);
    CloseWindow();
    EXPECT_EQ(Events(), "Event 1 KeyAutoTransition P/P Key2 30 Reverse|Event 2 Cue Dev2 "
                        "00:00:00:00 5|# -");
    (void)Key(BTN_MACRO_DELETE);
    EXPECT_EQ(Stored(),
              HEAD + "Event?,KeyAutoTransition,ME?,P/P,Key?,Key2,Time?,30,Direction?,Reverse\n"
                     "Event?,Cue,Device?,Dev2,Timecode?,00:00:00:00,Preroll?,5\n");

    // A knob goes frame by frame through one day.
    SYS_FrameRate = 25;
    OpenWith("Event?,Cue,Device?,Dev2,Timecode?,00:00:00:02,Preroll?,5\n");
    At(0, MACRO_COL_SLOT + 1);
    for (const std::string turn : {"-9 00:00:00:00", "3 00:00:00:03", "9999999 23:59:59:24"}) {
        (void)Tell("Panel@Common@Knob1#" + turn.substr(0, turn.find(' ')));
        Pass(10);
        EXPECT_EQ(Events(), "Event 1 Cue Dev2" + turn.substr(turn.find(' ')) + " 5");
    }
    SYS_FrameRate = 60;

    // Through the page: every event, the first word, lowest number or a text for each parameter.
    OpenWith("");
    for (int i = 1; i <= MACRO_SYMBOLS; i++) {
        const char* const symbol = EVNT[i].paramvalue;
        if (i > 1)
            (void)Key(BTN_MACRO_INSERT_AFTER);
        At(i - 1, MACRO_COL_SYMBOL, {symbol});
        const MACROPARAM* const slots = MacroSymbol_Find(symbol);
        for (int slot = 0; slot < get_param_count(symbol); slot++) {
            switch (const MACROPARAM& p = slots[slot]; p.entry) {
            case MACROENTRY_LIST: Choose({p.paramvaluetbl[0].paramvalue}); break;
            case MACROENTRY_NUMBER: Enter(p.min); break;
            case MACROENTRY_TIMECODE: Enter(1); break;
            case MACROENTRY_TEXT:
                (void)Key(slot < 4 ? BTN_MACRO_GROUP_3 + slot : BTN_MACRO_GROUP_7 + slot - 4);
                ASSERT_EQ(GetWindow(), WINDOW_KEYBOARD) << symbol;
                (void)Type("a,b");
            }
        }
    }
    const std::string stored = Stored();
    EXPECT_THAT(stored, testing::HasSubstr("Event?,DiskFileLoad,Device?,Dev1,FileName?,a_b,"
                                           "Timecode?,00:00:00:01\n"));
    MacroEventList list;
    ASSERT_EQ(MacroFile_Read(MACRO_EDIT_FILE, list), 0);
    EXPECT_EQ(list.count, MACRO_SYMBOLS);
    for (const MacroEvent* e = list.pHead; e; e = e->pNext)
        for (int slot = 0; slot < get_param_count(e->Symbol); slot++)
            EXPECT_TRUE(MacroValue_IsLegal(MacroSymbol_Find(e->Symbol)[slot], e->Data[slot]))
                << e->Symbol << " " << slot << " " << e->Data[slot];
    MacroList_Clear(list);
}

TEST_F(MacroOfflinePage, AContinueNeedsAnEventThatItMayFollowAndIsOneWhenThatGoes)
{
    static const std::tuple<std::string, int, bool> cases[] = {
        {STOP + STOP, 1, true}, {STOP + "#?,x\n" + STOP, 2, true}, {STOP + STOP, 0, false},
        {CUT + STOP, 1, false}, {"#?,x\n" + STOP, 1, false},
    };
    for (const auto& [events, row, may] : cases) {
        OpenWith(events);
        At(row, MACRO_COL_CONTENTS);
        EXPECT_EQ(LS_GetStatus(LIST_MACRO_VALUES, 1, 0) == 0, may) << events;
        Choose({"Continue"});
        EXPECT_EQ(Cell(LIST_MACRO_EVENTS, row, 0) == "Continue", may) << events;
    }
    // A symbol that may not follow stays as it is. A line that has none yet is offered those that
    // may.
    OpenWith(STOP + CUT);
    At(1, MACRO_COL_CONTENTS, {"Continue"});
    EXPECT_EQ(Events(), "Event 1 Stop Dev1|Event 2 MECut P/P");
    At(0, 0);
    (void)Key(BTN_MACRO_INSERT_AFTER);
    At(1, MACRO_COL_CONTENTS, {"Continue"});
    EXPECT_EQ(Events(), "Event 1 Stop Dev1|Continue|Event 2 MECut P/P");
    EXPECT_EQ(LS_GetNData(LIST_MACRO_VALUES), CONTINUE_ROWS - 1);

    const std::string next = "Continue?,Stop,Device?,Dev2\n";
    OpenWith(STOP + next);
    (void)Key(BTN_MACRO_DELETE);
    EXPECT_EQ(Events(), "Event 1 Stop Dev2");
    (void)Key(BTN_MACRO_DELETE);
    EXPECT_EQ(Events(), "Event 1") << "a blank line stays";

    OpenWith(STOP + next + next);
    At(1, 0);
    (void)Key(BTN_MACRO_DELETE);
    EXPECT_EQ(Events(), "Event 1 Stop Dev1|Continue Stop Dev2");

    // What was read may stand behind what it may not follow, and stays, also when a value changes.
    const std::string aux = "Continue?,AuxXpt,AuxBus?,Aux1,Xpt?,2,VideoKey?,Video\n";
    OpenWith(CUT + aux);
    At(0, MACRO_COL_SLOT, {"M/E-1"});
    EXPECT_EQ(Stored(), HEAD + CUT_ME1 + aux);
}

TEST_F(MacroOfflinePage, TheParametersMoveBelowTheFocus)
{
    OpenWith("Event?,NextTransition,ME?,P/P,All?,On,Key1?,On,Key2?,Off,Key8?,On\n");
    EXPECT_EQ(Events(), "Event 1 NextTransition P/P On - -");
    (void)Key(BTN_MACRO_GROUP_7); // "Key 1/2"
    EXPECT_EQ(Events(), "Event 1 NextTransition On Off - -");
    EXPECT_EQ(LS_GetSplitSel(LIST_MACRO_EVENTS), MACRO_COL_SLOT);
    (void)Key(BTN_MACRO_GROUP_7); // the second of the two
    EXPECT_EQ(LS_GetSplitSel(LIST_MACRO_EVENTS), MACRO_COL_SLOT + 1);
    Choose({"On"});
    EXPECT_EQ(BT_GetStatus(BTN_MACRO_GROUP_7 + 1), BT_ON) << "on to key 3, which has no value";
    (void)Key(BTN_MACRO_GROUP_7 + 3);
    (void)Key(BTN_MACRO_GROUP_7 + 3);
    EXPECT_EQ(Events(), "Event 1 NextTransition - - - On");
    EXPECT_EQ(LS_GetSplitSel(LIST_MACRO_EVENTS), MACRO_COL_SLOT + 3);
}

TEST_F(MacroOfflinePage, AStoreGoesToItsRegisterUnlessALineIsNotComplete)
{
    TellAll("Macro@Register@List#", {"5,S,NEWS,U,0,0", "6,S,NEWS,L,0,0"});
    const std::tuple<int, bool, std::string> cases[] = {
        {3, false, HEAD},
        {4, false, "PNL 0001PNL_0004.PMRMCRO4\n"},
        {5, true, "PNL 0001PNL_0005.PMRMCRO5\n"},
        {6, false, HEAD}, // locked
    };
    for (const auto& [target, asks, head] : cases) {
        OpenWith(CUT);
        SendMessage(LMSG_KNOBVAR, NB_MACRO_REGISTER, target, 1, 0);
        (void)Key(BTN_MACRO_STORE);
        EXPECT_EQ(GetWindow() == WINDOW_MESSAGE, asks) << target;
        if (asks)
            (void)Confirm();
        EXPECT_EQ(FileText(MACRO_EDIT_FILE), head + CUT) << target;
        EXPECT_EQ(MacroOffLine_StoreModel == STOREMODEL_LOCKED, target == 6);
        EXPECT_EQ(Pane_GetActiveID() != 0, target != 6) << "a job is under way";
    }

    const std::string next = "Event?,NextTransition,ME?,", bkgd = next + "M/E-1,BKGD?,On\n";
    GL_MacroEditNo = 3;
    const std::tuple<std::string, Lines, bool, int> lines[] = {
        // what is chosen in it, by leaving, the column that gets the cursor; 0: it is stored
        {bkgd, {}, false, 0}, // as a panel has recorded it
        {bkgd, {}, true, MACRO_COL_SLOT + 1},
        {bkgd, {"P/P"}, false, MACRO_COL_SLOT + 1},
        {"#?\n", {}, true, MACRO_COL_SLOT},
    };
    for (const auto& [line, choice, is_leaving, column] : lines) {
        OpenWith(CUT + line);
        At(1, MACRO_COL_SLOT, choice);
        At(0, MACRO_COL_SLOT, {"M/E-1"});
        const std::string before = FileText(MACRO_EDIT_FILE);
        if (is_leaving) {
            (void)CreatePage(PAGE_TOP);
            (void)Answer(1); // store
        } else {
            (void)Key(BTN_MACRO_STORE);
        }
        EXPECT_EQ(FileText(MACRO_EDIT_FILE), column ? before : HEAD + CUT_ME1 + line) << line;
        EXPECT_EQ(GL_NowPage, PAGE_MACRO_OFFLINE);
        if (column == 0)
            continue;
        EXPECT_EQ(LS_GetNowLine(LIST_MACRO_EVENTS), 1) << line;
        EXPECT_EQ(LS_GetSplitSel(LIST_MACRO_EVENTS), column) << line;
    }
    // Blank lines are left out.
    OpenWith(CUT);
    (void)Key(BTN_MACRO_INSERT_BEFORE);
    EXPECT_EQ(Stored(), HEAD + CUT);
}

TEST_F(MacroOfflinePage, AChangeIsNotLostByLeavingOrBuildingThePageAnew)
{
    OpenWith(CUT);
    EXPECT_EQ(CreatePage(PAGE_TOP), 0);
    EXPECT_EQ(GL_NowPage, PAGE_TOP) << "nothing has changed";
    EXPECT_NE(access(MACRO_EDIT_FILE, F_OK), 0);

    OpenWith(CUT);
    At(0, MACRO_COL_SLOT, {"M/E-1"});
    EXPECT_EQ(CreatePage(PAGE_TOP), 0);
    EXPECT_EQ(GL_NowPage, PAGE_MACRO_OFFLINE);
    const int pane = Pane_GetActiveID();
    ASSERT_GT(pane, 0);
    EXPECT_EQ(CreatePage(PAGE_MACRO_REGISTERS), 0) << "asked once, the last page counts";
    EXPECT_EQ(Pane_GetActiveID(), pane);
    (void)Answer(0); // cancel
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_EQ(CreatePage(PAGE_MACRO_REGISTERS), 0);
    (void)Answer(2); // discard
    EXPECT_EQ(GL_CreatePage, PAGE_MACRO_REGISTERS);

    // Nobody leaves a page that is built anew.
    OpenWith(CUT);
    for (const char* value : {"P/P", "M/E-1"}) { // unchanged, then changed
        At(0, MACRO_COL_SLOT, {value});
        EXPECT_EQ(CreatePage(PAGE_MACRO_OFFLINE), 0);
        Pass(10);
        EXPECT_EQ(Pane_GetActiveID(), 0);
        EXPECT_EQ(Events(), std::string("Event 1 MECut ") + value);
    }
    EXPECT_EQ(Stored(), HEAD + CUT_ME1);
}

TEST_F(MacroOfflinePage, AStoreGoesOnWithoutItsPageAndKeepsTheListWhenItFails)
{
    OpenWith(CUT);
    At(0, MACRO_COL_SLOT, {"M/E-1"});
    (void)Key(BTN_MACRO_STORE);
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    Hub("Disconnect");
    Pass(10);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_EQ(Events(), "Event 1 MECut M/E-1");
    EXPECT_EQ(GL_Macro_Offline_Store, 1);
    // A header that failed for another register does not stay.
    for (const int target : {4, 3}) {
        CloseWindow();
        (void)Pane_Quit(Pane_GetActiveID());
        Hub("Ready");
        SendMessage(LMSG_KNOBVAR, NB_MACRO_REGISTER, target, 1, 0);
        (void)Key(BTN_MACRO_STORE);
        EXPECT_EQ(FileText(MACRO_EDIT_FILE).substr(0, 16),
                  "PNL 0001PNL_000" + std::to_string(target));
        Hub("Disconnect");
        Pass(10);
    }
    EXPECT_EQ(access(MACRO_EDIT_FILE, F_OK), 0);

    // The page may be left meanwhile.
    OpenWith(CUT);
    (void)Key(BTN_MACRO_STORE);
    EXPECT_EQ(CreatePage(PAGE_MACRO_REGISTERS), 0);
    EXPECT_EQ(GL_NowPage, PAGE_MACRO_REGISTERS);
    EXPECT_EQ(access(MACRO_EDIT_FILE, F_OK), 0) << "the job still reads it";
    (void)Pane_Quit(Pane_GetActiveID());
    (void)Key(BTN_MACRO_OFFLINE);
    EXPECT_EQ(FileText(MACRO_EDIT_FILE), HEAD + CUT) << "nothing else is begun meanwhile";
    Hub("Disconnect");
    EXPECT_NE(access(MACRO_EDIT_FILE, F_OK), 0);
}

TEST_F(MacroAttachPage, EntriesAreShownInTheOrderOfThePanelsAndAreNotClearedUnasked)
{
    static const std::pair<const char*, const char*> cases[] = {
        // block, buttons, mode, register, pair
        {"1,5,3,0,12,0,0", "P/P XPT|KEY 1 XPT 5|Only|12|OPENING"},
        {"1,5,3,0,12,2,1", "P/P XPT|KEY 1 XPT 5 Pair 2|Only|12|OPENING"},
        {"1,262,0,1,250,0,0", "P/P XPT|RTR Dest 6 |Pre|250|"},
        {"1,328,0,1,12,0,0", "P/P XPT|Bank 1-8|Pre|12|OPENING"},
        {"1,338,0,1,12,0,0", "P/P XPT|Bank 2-9|Pre|12|OPENING"},
        {"9,1,1,2,12,0,0", "M/E-1 Trans|BKGD CUT|Post|12|OPENING"},
        {"2,4,0,2,12,0,0", "P/P Trans|(TAKE)|Post|12|OPENING"},
        {"3,10,0,0,12,0,0", "P/P Key Trans|KEY 2 AUTO|Only|12|OPENING"},
        {"4,1,1,0,12,0,0", "P/P FlexiPad|RCL BANK 0|Only|12|OPENING"},
        {"43,133,24,0,12,0,0", "Aux XPT 1|AUX 24 MCRO|Only|12|OPENING"},
        {"66,160,0,0,12,0,0", "Multi XPT 4|XPT 160|Only|12|OPENING"},
        {"66,999,0,0,12,0,0", "Multi XPT 4||Only|12|OPENING"}, // a button that nobody knows
    };
    for (const auto& [fields, row] : cases) {
        OpenWith({fields});
        EXPECT_EQ(Row(0, 5), row) << fields;
    }
    for (const char* fields :
         {"0,1,1,0,12,0,0", "67,1,1,0,12,0,0", "1,1,1,3,12,0,0", "1,1,1,0,0,0,0", "1,1,1,0,251,0,0",
          "1,1,-1,0,12,0,0", "1,1,65536,0,12,0,0", "1,1,,0,12,0,0", "1,1,1,0,12", "", "x"}) {
        OpenWith({fields});
        EXPECT_EQ(LS_GetNData(1), 0) << fields;
    }

    OpenWith({"66,1,0,0,12,0,0", "8,9,2,0,12,0,0", "1,7,2,0,12,0,0", "8,9,1,0,12,0,0",
              "1,7,1,0,12,0,1", "8,2,9,0,12,0,0"});
    EXPECT_EQ(Row(0, 5) + Row(1, 5), "P/P XPT|BKGD A XPT 7|Only|12|OPENING"
                                     "P/P XPT|BKGD B XPT 7|Only|12|OPENING");
    EXPECT_EQ(Row(2, 5), "M/E-1 XPT|KEY 7 XPT 2|Only|12|OPENING");
    const auto detail = [](int row) {
        LS_SetNowLine(1, row);
        return TablePage::Seen({100, 284, 566, 326});
    };
    EXPECT_NE(detail(0), detail(2));
    EXPECT_EQ(LS_GetNData(1), 6);
    (void)Tell(ATTACHMENT + "1,7,1,2,13,0,1" + PLACE); // the button has another macro
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 6);
    EXPECT_EQ(Row(0, 5), "P/P XPT|BKGD A XPT 7|Post|13|");
    (void)Tell("Macro@Register@List#13,S,NEWS,U,0,0");
    Pass(10);
    EXPECT_EQ(Row(0, 5), "P/P XPT|BKGD A XPT 7|Post|13|NEWS");
    (void)Press(BTN_ATTACH_BLOCK + 1);
    EXPECT_EQ(LS_GetNowLine(1), 2);
    (void)Press(BTN_ATTACH_BLOCK_7 + 1);
    EXPECT_EQ(LS_GetNowLine(1), 5);
    EXPECT_EQ(BT_GetVisible(BTN_ATTACH_BLOCK + 2), BT_DISABLED) << "M/E-2 has none";
    (void)Tell(ATTACHMENT + "KILL");
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 0);
    EXPECT_EQ(Usable({BTN_ATTACH_BLOCK, BTN_ATTACH_DELETE, BTN_ATTACH_ALL_CLEAR}),
              std::vector<int>{});

    OpenWith({"1,7,2,0,12,0,0", "8,9,1,0,12,3,4"});
    (void)Tell("Macro@Attachment@Xpt Attachment Mode#Button Mode");
    EXPECT_EQ(BT_GetStatus(BTN_ATTACH_BUTTON_MODE), BT_ON);
    static const std::pair<int, const char*> keys[] = {
        {BTN_ATTACH_DELETE, "put Macro@Attachment@Delete#8,9,1,0,12,3,4,1,2,3,4,5,6"},
        {BTN_ATTACH_ALL_CLEAR, "put Macro@Attachment@All Clear#true"},
        {BTN_ATTACH_PAIR_MODE, "put Macro@Attachment@Xpt Attachment Mode#Pair Mode"},
        {BTN_ATTACH_BUTTON_MODE, nullptr}, // nothing is asked
    };
    for (const auto& [key, command] : keys) {
        Cursor(1, 1);
        EXPECT_THAT(Puts(key), IsEmpty());
        EXPECT_EQ(GetWindow() != WINDOW_NONE, command != nullptr) << key;
        if (command) {
            EXPECT_THAT(Confirm(), ElementsAre(command));
        }
    }
    EXPECT_EQ(BT_GetStatus(BTN_ATTACH_BUTTON_MODE), BT_ON) << "until the server says otherwise";
    (void)Tell("Macro@Attachment@Xpt Attachment Mode#Pair Mode");
    EXPECT_EQ(BT_GetStatus(BTN_ATTACH_PAIR_MODE), BT_ON);
    EXPECT_EQ(BT_GetStatus(BTN_ATTACH_BUTTON_MODE), BT_OFF);
}

TEST_F(MacroPages, ATimelineActionIsAssignedAndFollowed)
{
    constexpr Rect STRIP = {100, 371, 566, 395};
    const std::string head = "Device@MACRO Timeline@";
    for (const auto& [page, name] :
         {std::pair{0x54410000u, "Action Assign"}, {0x54410001u, "Rewind Action"}}) {
        const std::string path = head + name;
        EXPECT_THAT(Open(page),
                    testing::IsSupersetOf({"add " + path, "put " + head + "Tally Back#true"}));
        Cursor(1, 11);
        EXPECT_THAT(Puts(49), ElementsAre("put " + path + "#12"));
        EXPECT_THAT(Puts(50), ElementsAre("put " + path + "#0"));
        const auto strip = [&](const char* number) {
            (void)Tell(path + "#" + number);
            return TablePage::Seen(STRIP);
        };
        const auto none = strip("0");
        EXPECT_NE(strip("1"), none);
        EXPECT_EQ(strip("251"), none) << "no register";
        auto seen = strip("250");
        EXPECT_NE(seen, none);
        for (const char* number : {"249", "250"}) {
            (void)Tell("Macro@Register@List#" + std::string(number) + ",S," + name + ",U,0,0");
            const auto now = TablePage::Seen(STRIP);
            EXPECT_EQ(now != seen, number[2] == '0') << number;
            seen = now;
        }
        EXPECT_THAT(Leave(),
                    testing::IsSupersetOf({"put " + head + "Tally Back#false", "remove " + path}));
    }
}

// From the list of the registers in the File menu, too.
TEST_F(MacroOfflinePage, TheFileMenuLeadsToTheEditorAndARegisterThatHoldsDataIsFetchedBefore)
{
    Open(0x71420001);
    SendMessage(LMSG_LISTSEL, 1, 6, 0, 0);
    Cursor(1, 6);
    (void)Key(BTN_FILE_EDIT);
    EXPECT_EQ(GL_CreatePage, PAGE_MACRO_OFFLINE);
    EXPECT_EQ(FileText(MACRO_EDIT_FILE), "PNL 0001PNL_0007.PMRM7\n");
    EXPECT_STREQ(GL_MacroEditNoName, "7  Name: MCRO7");
    // Where no file can be made it is said.
    ASSERT_EQ(unlink(MACRO_EDIT_FILE) + rmdir(MACRO_EDIT_DIR), 0);
    std::ofstream(MACRO_EDIT_DIR) << "in the way";
    GL_CreatePage = 0;
    (void)Key(BTN_FILE_EDIT);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    unlink(MACRO_EDIT_DIR);

    CloseWindow();
    (void)Tell("Macro@Register@List#7,S,ELEVEN_CHRS,U,0,0");
    static const std::tuple<int, int, uint32_t, uint32_t> cases[] = {
        {FILESTATUS_OK, 7, PAGE_MACRO_REGISTERS, PAGE_MACRO_OFFLINE},
        {FILESTATUS_NG, 7, PAGE_MACRO_REGISTERS, 0},
        {FILESTATUS_OK, 7, PAGE_TOP, 0},             // the operator has left
        {FILESTATUS_OK, 8, PAGE_MACRO_REGISTERS, 0}, // and begun another
    };
    const auto begin = [](int key) {
        Open(PAGE_MACRO_REGISTERS);
        Cursor(1, 6);
        EXPECT_EQ(BT_GetVisible(key), BT_ENABLED);
        GL_MacroEditNo = 0;
        GL_MacroEditNoName[0] = '\0';
        (void)Key(key);
        EXPECT_EQ(GL_MacroEditNo, 7);
        EXPECT_STREQ(GL_MacroEditNoName, "7  Name: ELEVEN_CHRS");
    };
    for (const auto& [status, number, page, opens] : cases) {
        Filescp_trnasferlist_init("PNL1");
        Hub("Ready");
        begin(BTN_MACRO_OFFLINE);
        EXPECT_EQ(GL_Macro_Offline_RegStore, 0);
        ASSERT_TRUE(QueueRoot);
        FILEXFERLIST* const item = *QueueRoot->xferlist;
        EXPECT_THAT(item->src, HasSubstr(":/vorn/tmp/file/MACRO/PNL1/PNL_0007.PMR"));
        EXPECT_EQ(item->dst, std::string("MYHOST:") + MACRO_EDIT_FILE);
        const int told = std::exchange(item->status, status);
        GL_NowPage = page;
        GL_MacroEditNo = number;
        QueueRoot->retfunc.list(QueueRoot->label, QueueRoot->tag);
        EXPECT_EQ(GL_CreatePage, opens);
        item->status = told;
        Hub("Disconnect"); // the job ends
        (void)Pane_Quit(Pane_GetActiveID());
    }
    GL_Macro_Online_TrueOrFalse = 0;
    begin(BTN_MACRO_ONLINE);
    EXPECT_EQ(GL_CreatePage, PAGE_MACRO_ONLINE);
    EXPECT_EQ(GL_Macro_Online_TrueOrFalse, 1);
    DEV_MyPnl[0] = nullptr;
    begin(BTN_MACRO_OFFLINE);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_EQ(QueueRoot, nullptr);
}

TEST_F(MacroOnlinePage, RecordsThatAreNoneAreLeftOut)
{
    Records({"KILL", "1,0,Event,PatternLimit,ME,P/P,Status,Off", "1,1,Continue,Stop,Device,Dev1",
             "2,0,#,A comment", "", "x", "2", "3,0,Event", "5,0,Perhaps,MECut", "-1,0,Event,MECut",
             "9999,0,Event,MECut", "3,0,Event,MECut,ME",
             "3,0,Event,Stop,Device," + std::string(600, 'x'), "4,0,Event,PatternLimit,Status,On"});
    ASSERT_EQ(LS_GetNData(LIST_MACRO_ONLINE), 5);
    EXPECT_EQ(Cell(LIST_MACRO_ONLINE, 4, ONLINE_COL_DATA), "ToOff ") << "its bank has no value";
    EXPECT_EQ(Row(0, 3), "Event 1|PatternLimit|P/P ToOn ");
    EXPECT_EQ(Row(1, 3), "Continue|Stop|Dev1 ");
    EXPECT_EQ(Row(2, 3), "#|A comment|");
    Records({"2,0,#,Another"});
    EXPECT_EQ(LS_GetNData(LIST_MACRO_ONLINE), 5) << "a line that comes again";
    EXPECT_EQ(Cell(LIST_MACRO_ONLINE, 2, ONLINE_COL_SYMBOL), "Another");
    Records({"1,0,Event,MECut,ME,P/P", "0,0,Event,Stop,Device,Dev1"});
    EXPECT_EQ(Row(0, 3), "Event 1|MECut|P/P ");
    EXPECT_EQ(Row(1, 3), "Continue|Stop|Dev1 ");
    EXPECT_EQ(Row(5, 3), "Event|Stop|Dev1 ") << "it has no number yet";
    (void)TakeQueuedCommands();
    SendMessage(LMSG_LISTSEL, LIST_MACRO_ONLINE, 2, 0, 0);
    SendMessage(LMSG_LISTSEL, LIST_MACRO_ONLINE, 6, 0, 0); // there is none
    SendMessage(LMSG_LISTSEL, LIST_MACRO_ONLINE, 0, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(PUT_ONLINE + "Macro Event Edit Range#2,0",
                                                  PUT_ONLINE + "Macro Event Edit Range#1,0"));
    constexpr Rect DETAIL = {100, 302, 540, 322}; // the line at the cursor
    (void)LS_SetNowLine(LIST_MACRO_ONLINE, 1);
    (void)ChooseRow(LIST_MACRO_ONLINE, 1);
    EXPECT_THAT(Look(DETAIL), Contains(TEAL));
    (void)LS_SetNowLine(LIST_MACRO_ONLINE, 2); // a comment has no values
    (void)ChooseRow(LIST_MACRO_ONLINE, 2);
    EXPECT_THAT(Look(DETAIL), Not(Contains(TEAL)));
    (void)LS_SetNowLine(LIST_MACRO_ONLINE, 1);
    Records({"KILL"});
    EXPECT_EQ(LS_GetNData(LIST_MACRO_ONLINE), 0);
    EXPECT_THAT(PixelsIn(DETAIL), Not(Contains(TEAL)));
    EXPECT_EQ(Usable({BTN_ONLINE_BEFORE, BTN_ONLINE_AFTER, BTN_ONLINE_MODIFY, BTN_ONLINE_DELETE}),
              (std::vector<int>{BTN_ONLINE_BEFORE, BTN_ONLINE_AFTER}));
    EXPECT_THAT(Puts(BTN_ONLINE_BEFORE), ElementsAre(PUT_ONLINE + "Insert#0,0"));
}

TEST_F(MacroOnlinePage, KeysSendWhatIsSelected)
{
    Records({"KILL", "1,0,Event,MECut,ME,P/P", "1,1,Continue,Stop,Device,Dev1",
             "2,0,Event,MECut,ME,P/P", "3,0,Event,MECut,ME,P/P", "4,0,Event,MECut,ME,P/P"});
    EXPECT_EQ(LS_GetSelected(LIST_MACRO_ONLINE, 0), 0) << "what Delete takes can be seen";
    EXPECT_THAT(Puts(BTN_ONLINE_AFTER), ElementsAre(PUT_ONLINE + "Insert#1,1"));
    EXPECT_THAT(Puts(BTN_ONLINE_NEXT), ElementsAre(PUT_ONLINE + "Macro Event Edit Range#2,0"));
    EXPECT_EQ(LS_GetNowLine(LIST_MACRO_ONLINE), 2) << "its line";
    (void)LS_SetNowLine(LIST_MACRO_ONLINE, 1);
    (void)LS_SetSelected(LIST_MACRO_ONLINE, 1, 0, 1);
    (void)ChooseRow(LIST_MACRO_ONLINE, 1);
    (void)Tell(ONLINE + "Current Work Register Modify Flag#1");
    Pass(10);
    EXPECT_EQ(LS_GetNowLine(LIST_MACRO_ONLINE), 1) << "another line of the same event";
    (void)LS_SetMS(LIST_MACRO_ONLINE, 1);
    for (int row : {0, 2, 4})
        (void)LS_SetSelected(LIST_MACRO_ONLINE, row, 0, 1);
    (void)LS_SetSelected(LIST_MACRO_ONLINE, 1, 0, 0);
    for (const char* const at : {"3", "2"}) { // the cursor alone moves
        (void)Tell(ONLINE + "Current Macro Register Info#3,OPENING,U,4," + at);
        Pass(10);
    }
    EXPECT_EQ(LS_IsSelected(LIST_MACRO_ONLINE, 3, 0), 0);
    EXPECT_THAT(Puts(BTN_ONLINE_MODIFY), ElementsAre(PUT_ONLINE + "Modify#4,0,1"));
    EXPECT_THAT(Puts(BTN_ONLINE_DELETE),
                ElementsAre(PUT_ONLINE + "Delete#4,0,1", PUT_ONLINE + "Delete#2,0,1",
                            PUT_ONLINE + "Delete#1,0,1"));
    (void)LS_SetSelected(LIST_MACRO_ONLINE, 1, 0, 1);
    EXPECT_THAT(Puts(BTN_ONLINE_DELETE),
                ElementsAre(PUT_ONLINE + "Delete#4,0,1", PUT_ONLINE + "Delete#1,0,3"));
    // Nothing is taken twice while the link is down.
    constexpr Rect TOP_LINE = {100, 75, 700, 95};
    const auto plain = Look(TOP_LINE);
    Net_SendCommand("put X#1");
    const auto touch = [](const char* key) {
        const std::string command = "LOCAL@" + ONLINE + key;
        SendMessage(LMSG_BTNSEL, Arg(command.c_str()), Arg(""), 0, 0);
        return TakeQueuedCommands();
    };
    EXPECT_THAT(touch("Delete"), ElementsAre("put X#1"));
    EXPECT_NE(Look(TOP_LINE), plain) << "it is said";
    (void)Tell(ONLINE + "Macro Edit Mode#true");
    EXPECT_EQ(Look(TOP_LINE), plain);
    for (const char* line : {"Remain Macro Event Cell#999", "Current Macro Register Info#3,A,U,4,1",
                             "Current Macro Register Info#3,A,L,4,1"}) {
        const auto before = PixelsIn(TOP_LINE);
        (void)Tell(ONLINE + line);
        EXPECT_NE(Look(TOP_LINE), before) << line;
    }
    for (const auto& [at, key] : {std::pair{"1", "Previous"}, {"4", "Next"}}) { // touched quickly
        (void)Tell(std::string(ONLINE + "Current Macro Register Info#3,A,U,4,") + at);
        EXPECT_THAT(touch(key), IsEmpty());
    }
    (void)Tell(ONLINE + "Current Macro Register Info#3,OPENING,L,4,1");
    EXPECT_THAT(Puts(BTN_ONLINE_DELETE), IsEmpty());
}

TEST_F(MacroOnlinePage, MarksAndKeysFollowWhatTheServerSays)
{
    Records({"KILL", "1,0,Event,MECut,ME,P/P", "1,1,Continue,Stop,Device,Dev1",
             "2,0,Event,MECut,ME,P/P", "3,0,Event,MECut,ME,P/P"});
    static const std::tuple<const char*, const char*, const char*> cases[] = {
        // of the four lines
        {"1,4", "010", "  * "},
        {"1,4", "101", "** *"},
        {"2,4", "11", "  **"},
        {"1,4", "", "    "}};
    for (const auto& [range, flags, marks] : cases) {
        (void)Tell(ONLINE + "Macro Event Edit Range#" + range);
        (void)Tell(ONLINE + "Current Work Register Modify Flag#" + flags);
        Pass(10);
        std::string seen;
        for (int row = 0; row < 4; row++)
            seen += Cell(LIST_MACRO_ONLINE, row, ONLINE_COL_MODIFIED) == "*" ? '*' : ' ';
        EXPECT_EQ(seen, marks) << range << " " << flags;
    }
    enum : int { MODIFY = BTN_ONLINE_MODIFY, DELETE = BTN_ONLINE_DELETE };
    const std::vector<int> editing = {BTN_ONLINE_BEFORE, BTN_ONLINE_AFTER, MODIFY, DELETE};
    static const std::tuple<const char*, const char*, std::vector<int>> keys[] = {
        {"Macro Insert Mode#Auto Insert", "Macro Insert Mode#Edit Insert", {DELETE}},
        {"Insert Enable Flag#false", "Insert Enable Flag#true", {DELETE}},
        {"Remain Macro Event Cell#0", "Remain Macro Event Cell#1", {MODIFY, DELETE}},
        {"Macro Edit Mode#false", "Macro Edit Mode#true", {}},
        {"Current Macro Register Info#3,A,L,4,1", "Current Macro Register Info#3,A,U,4,1", {}},
        {"Current Macro Register Info#4,OTHER,L,0,1", "Macro Edit Mode#true", editing},
    };
    for (const auto& [told, back, usable] : keys) {
        (void)Tell(ONLINE + told);
        Pass(10);
        EXPECT_EQ(Usable(editing), usable) << told;
        (void)Tell(ONLINE + back); // as before
        Pass(10);
        EXPECT_EQ(Usable(editing), editing) << back;
    }
    static const std::pair<const char*, std::vector<int>> places[] = {
        {"1", {BTN_ONLINE_NEXT}},
        {"2", {BTN_ONLINE_PREVIOUS, BTN_ONLINE_NEXT}},
        {"4", {BTN_ONLINE_PREVIOUS}}};
    for (const auto& [at, usable] : places) {
        (void)Tell(ONLINE + "Current Macro Register Info#3,OPENING,U,4," + at);
        Pass(10);
        EXPECT_EQ(Usable({BTN_ONLINE_PREVIOUS, BTN_ONLINE_NEXT}), usable) << at;
    }
    for (const auto& [count, runs] : {std::pair{"4", 1}, {"0", 0}, {"x", 0}}) {
        (void)Tell(std::string(ONLINE + "Current Macro Register Info#3,OPENING,U,") + count + ",x");
        Pass(10);
        EXPECT_EQ(Usable({BTN_ONLINE_RUN}).size(), size_t(runs)) << count;
        EXPECT_THAT(Usable({BTN_ONLINE_PREVIOUS}), IsEmpty());
    }
    EXPECT_THAT(Puts(BTN_ONLINE_AFTER), ElementsAre(PUT_ONLINE + "Insert#1,1"));
    const Lines left = Leave();
    LoseServer();
    EXPECT_EQ(GL_CreatePage, 0u) << "the page is closed";
    const Lines opened = Open(PAGE_MACRO_ONLINE);
    for (const char* path : {"Macro Edit Mode", "Current Work Register Event Data"}) {
        EXPECT_THAT(left, Contains("remove " + ONLINE + path));
        EXPECT_THAT(opened, Contains("add " + ONLINE + path));
    }
    EXPECT_THAT(left, Contains(PUT_ONLINE + "Macro Edit Mode#false"));
    for (const char* put :
         {"Recall#3", "Macro Edit Mode#true", "Current Work Register Event Data#1"})
        EXPECT_THAT(opened, Contains(PUT_ONLINE + put));
    EXPECT_THAT(opened, Contains("read " + ONLINE + "Macro Edit Mode"));
    LoseServer();
    EXPECT_EQ(GL_CreatePage, PAGE_MACRO_ONLINE) << "empty, until the server answers again";
    GL_CreatePage = PAGE_TOP;
    LoseServer();
    EXPECT_EQ(GL_CreatePage, PAGE_TOP) << "the operator's wish";
    CopyText(GL_MacroEditNoName, "3  Name: OPENING");
    (void)Open(PAGE_MACRO_ONLINE);
    EXPECT_THAT(Look({104, 75, 300, 95}), Contains(TEAL)) << "its name is known already";
    constexpr Rect NOTE = {310, 75, 560, 95};
    EXPECT_THAT(Look(NOTE), Contains(ORANGE)) << "the server does not answer";
    (void)Tell(ONLINE + "Macro Edit Mode#true");
    EXPECT_THAT(Look(NOTE), Not(Contains(ORANGE)));
}
