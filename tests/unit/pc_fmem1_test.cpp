// The frame-memory pages of a system without a clip store: what the list shows, what goes out.
#include "display.h"
#include "frame_page.h"
#include "page_table/fmem_store.h"

constexpr uint32_t STILLS = 0x25110000, STILL_FILES = 0x25120000, CLIPS = 0x25210000,
                   CLIP_FILES = 0x25220000, FREEZE_PAGE = 0x25310000, HDD = 0x25620000;
const std::string OUTPUTS = "Frame Mem@Recall@Recall Thumbnail@", RECALL = "put " + OUTPUTS;
const std::string RENAME = "put Frame Mem@File@Rename#";
const std::string DELETE = "put Frame Mem@File@Delete Thumbnail@Single#";
const std::string MOVE = "put 16@Frame Mem@Folder@Move Still#0,";

struct FrameMemoryPage : FramePage {
    void SetUp() override
    {
        FramePage::SetUp();
        GL_FreezeStore = GL_FreezeStore_Exec = 0;
        Fmem1_Reset();
        Folders("0,Default.,2,News");
        Store({"Mlogo", "Slogo", "Mpic", "Stitle", "Mrun0001", "Mrun0002", "Mrun0003", "Srun0002",
               "Srun0003"});
        Pass(10); // stills and clips are made of them
    }
    static Lines List()
    {
        Pass(200);
        Lines rows;
        for (int row = 0; row < LS_GetNData(1); row++)
            rows.push_back((LS_IsSelected(1, row, 0) == 1 ? "*" : "") + Cells(1, row, 0, 4));
        return rows;
    }
    static Lines Headed(const std::string& head, Lines lines)
    {
        for (std::string& line : lines)
            line.insert(0, head);
        return lines;
    }
};

TEST_F(FrameMemoryPage, TheListFollowsItsFolderAndKeepsWhatIsSelected)
{
    Open(STILLS);
    EXPECT_THAT(List(), ElementsAre("*1|logo|M|S", "3|pic|M|", "4|title||S"));
    Select(1, {1, 2});
    Store({"Mbeach"}, 20);
    Tell("16@Frame Mem@Status@File Name Sense#3,81,Mzebra"); // another name, the same picture
    EXPECT_THAT(List(), ElementsAre("20|beach|M|", "1|logo|M|S", "*4|title||S", "*3|zebra|M|"));
    Tell("Frame Mem@Folder@Move Still#0,Stitle,2");
    EXPECT_THAT(List(), ElementsAre("20|beach|M|", "1|logo|M|S", "*3|zebra|M|"));
    Puts(BTN_FMEM1_FOLDER);
    Quit(2);
    EXPECT_EQ(Caption(BTN_FMEM1_FOLDER), "News");
    EXPECT_THAT(List(), ElementsAre(HasSubstr("4|title||S")));
    Folders("0,Default.,2,"); // it goes, and what was in it
    EXPECT_EQ(Caption(BTN_FMEM1_FOLDER), "Default.");
    EXPECT_THAT(List(), testing::SizeIs(3));
    Lines names;
    for (const char letter : std::string("abcdefghijklmnopqrstuvwxyz"))
        names.push_back(std::string("M") + letter);
    Store(names, 30);
    (void)List();
    (void)LS_SetTopLine(1, 9);
    Store({"Mlast"}, 60);
    EXPECT_THAT(List(), testing::SizeIs(30));
    EXPECT_EQ(LS_GetTopLine(1), 9) << "the operator has gone there";
    Open(CLIPS);
    EXPECT_THAT(List(), ElementsAre("*6|run|3|2"));
    Folders("0,Default.,2,News");
    Puts(BTN_FMEM1_FOLDER);
    Quit(2);
    EXPECT_THAT(Usable({BTN_FMEM1_RECALL_A, BTN_FMEM1_RECALL_B, BTN_FMEM1_BACK, BTN_FMEM1_FORWARD}),
                testing::IsEmpty())
        << "nothing is in it";
}

TEST_F(FrameMemoryPage, KeysAndTabsAreThereForWhatIsSelectedAndInstalled)
{
    Store({"Mzap", "Mzoo", "Szoo"}, 20);
    Pass(10);
    static const std::tuple<uint32_t, std::vector<int>, std::vector<int>> cases[] = {
        {STILL_FILES, {}, {}},
        {STILL_FILES,
         {0},
         {BTN_FMEM1_RENAME, BTN_FMEM1_DELETE, BTN_FMEM1_MOVE, BTN_FMEM1_SEPARATE}},
        {STILL_FILES, {1}, {BTN_FMEM1_RENAME, BTN_FMEM1_DELETE, BTN_FMEM1_MOVE}},
        {STILL_FILES, {1, 2}, {BTN_FMEM1_DELETE, BTN_FMEM1_MOVE, BTN_FMEM1_COUPLE}},
        {STILL_FILES, {0, 1}, {BTN_FMEM1_DELETE, BTN_FMEM1_MOVE}},
        {STILL_FILES, {0, 1, 2}, {BTN_FMEM1_DELETE, BTN_FMEM1_MOVE}},
        {STILL_FILES, {1, 2, 3}, {BTN_FMEM1_DELETE, BTN_FMEM1_MOVE}},
        {STILL_FILES, {1, 4}, {BTN_FMEM1_DELETE, BTN_FMEM1_MOVE}},
        {CLIP_FILES, {}, {}},
        {CLIP_FILES,
         {0},
         {BTN_FMEM1_RENAME, BTN_FMEM1_DELETE, BTN_FMEM1_MOVE, BTN_FMEM1_ANCILLARY}},
    };
    const std::vector<int> keys = {BTN_FMEM1_RENAME, BTN_FMEM1_DELETE,   BTN_FMEM1_MOVE,
                                   BTN_FMEM1_COUPLE, BTN_FMEM1_SEPARATE, BTN_FMEM1_ANCILLARY};
    for (const auto& [page, rows, usable] : cases) {
        Open(page);
        Select(1, rows);
        SendMessage(LMSG_LISTSEL, 1, rows.empty() ? 0 : rows.back(), 0, 0);
        EXPECT_EQ(Usable(keys), usable) << testing::PrintToString(rows);
    }
    // Without a switcher, or with one folder only, nothing can be sent anywhere.
    const std::vector<int> places = {BTN_FMEM1_RECALL_A, BTN_FMEM1_RECALL_B, BTN_FMEM1_MOVE,
                                     BTN_FMEM1_FOLDER};
    DEVICE* const unit = std::exchange(DEV_MySwr[0], nullptr);
    for (const uint32_t page : {STILLS, CLIP_FILES}) {
        Open(page);
        EXPECT_EQ(Usable(places), std::vector<int>{BTN_FMEM1_FOLDER});
    }
    DEV_MySwr[0] = unit;
    Folders("0,Default.,2,");
    Open(CLIP_FILES);
    EXPECT_EQ(Usable(places), std::vector<int>{});
    Open(STILLS);
    EXPECT_EQ(Usable(places), std::vector<int>({BTN_FMEM1_RECALL_A, BTN_FMEM1_RECALL_B}));
    for (const int v6 : {0, 1}) {
        SYS_FmemV6 = v6;
        Open(STILL_FILES);
        GL_CreatePage = 0;
        Touch(97 + 2 * 86 + 40, 560);
        EXPECT_EQ(GL_CreatePage, v6 ? 0x25130000u : 0u);
    }
    GL_CreatePage = 0;
}

TEST_F(FrameMemoryPage, OutputsAreShownWithWhatTheyHold)
{
    EXPECT_THAT(Open(STILLS),
                testing::IsSupersetOf({"add " + OUTPUTS + "Select", "add " + OUTPUTS + "FM1",
                                       "add " + OUTPUTS + "FM8"}));
    Pass(10);
    {
        const Display display;
        const auto seen = [] {
            Pass(10);
            EXPECT_EQ(Display::Lacks(), "");
            return PixelsIn({405, 351, 702, 434});
        };
        auto before = seen();
        for (const char* line : {"FM1#Mlogo", "FM8#Slogo", "Select#FM7&8", "FM8#"}) {
            Tell(OUTPUTS + line);
            EXPECT_NE(seen(), before) << line;
            before = seen();
        }
        for (const char* line : {"FM9#Mlogo", "FM0#Mlogo", "FM12#Mpic", "Select#FM9&10",
                                 "Select#FM0&1", "Select#XY3&4", "FM1#Mlogo"}) {
            Tell(OUTPUTS + line);
            EXPECT_EQ(seen(), before) << line;
        }
        constexpr Rect PICTURES = {405, 124, 702, 343};
        const auto first = Seen(PICTURES);
        LS_SetNowLine(1, 1);
        SendMessage(LMSG_LISTSEL, 1, 1, 0, 0);
        EXPECT_NE(Seen(PICTURES), first);
        Open(FREEZE_PAGE); // has the number of empty registers in their place
        before = seen();
        Tell("Frame Mem@Status@Store Number Sense#" + std::to_string(SYS_StoreFree + 1));
        EXPECT_NE(seen(), before);
    }
    Tell(OUTPUTS + "FM1#");
    Tell(OUTPUTS + "Select#FM1&2");
    EXPECT_THAT(Leave(),
                testing::IsSupersetOf({"remove " + OUTPUTS + "Select", "remove " + OUTPUTS + "FM1",
                                       "remove " + OUTPUTS + "FM8"}));
}

TEST_F(FrameMemoryPage, RecallGivesEachOutputItsSide)
{
    static const std::tuple<int, bool, int, Lines> cases[] = {
        {0, false, BTN_FMEM1_RECALL_A, {"FM3#Mlogo"}},
        {0, false, BTN_FMEM1_RECALL_B, {"FM4#Slogo"}},
        {1, false, BTN_FMEM1_RECALL_B, {"FM4#Mpic"}},
        {2, false, BTN_FMEM1_RECALL_A, {"FM3#Stitle"}},
        {0, true, BTN_FMEM1_RECALL_A, {"FM3#Mlogo", "FM4#Slogo"}},
        {1, true, BTN_FMEM1_RECALL_A, {"FM3#Mpic"}},
    };
    bool is_pair_on = false;
    for (const auto& [row, is_pair, key, lines] : cases) {
        Open(STILLS);
        Tell(OUTPUTS + "Select#FM3&4");
        EXPECT_EQ(Caption(BTN_FMEM1_RECALL_A) + Caption(BTN_FMEM1_RECALL_B),
                  "Recall\nFM3Recall\nFM4");
        EXPECT_EQ(Caption(BTN_FMEM1_OUT), "FM3-FM4");
        LS_SetNowLine(1, row);
        if (is_pair != is_pair_on)
            Puts(BTN_FMEM1_PAIR);
        is_pair_on = is_pair;
        EXPECT_EQ(Puts(key), Headed(RECALL, lines)) << row << is_pair;
    }
    EXPECT_EQ(Usable({BTN_FMEM1_RECALL_B}), std::vector<int>{}); // the pair takes both outputs
    EXPECT_EQ(BT_GetStatus(BTN_FMEM1_PAIR), BT_ON);
    Puts(BTN_FMEM1_PAIR);
    EXPECT_EQ(BT_GetStatus(BTN_FMEM1_PAIR), BT_OFF);
    Puts(BTN_FMEM1_OUT);
    EXPECT_THAT(Quit(0), IsEmpty()); // "Cancel"
    Puts(BTN_FMEM1_OUT);
    EXPECT_THAT(Quit(4), ElementsAre(RECALL + "Select#FM7&8"));
    Puts(BTN_FMEM1_OUT);
    EXPECT_THAT(Quit(1), ElementsAre(RECALL + "Select#FM1&2"));
    // Of a clip the frame that is shown.
    Open(CLIPS);
    Puts(BTN_FMEM1_FORWARD);
    Puts(BTN_FMEM1_FORWARD); // the last one already
    EXPECT_THAT(Puts(BTN_FMEM1_RECALL_A), ElementsAre(RECALL + "FM3#Mrun0003"));
    Puts(BTN_FMEM1_BACK);
    EXPECT_THAT(Puts(BTN_FMEM1_RECALL_A), ElementsAre(RECALL + "FM3#Mrun0002"));
}

TEST_F(FrameMemoryPage, DeletionAsksAndTakesAllFramesThatAreStillThere)
{
    Open(STILL_FILES);
    Tell(OUTPUTS + "FM5#Slogo");
    Select(1, {0, 1});
    SendMessage(LMSG_LISTSEL, 1, 0, 0, 0);
    Puts(BTN_FMEM1_DELETE);
    EXPECT_THAT(Message(), HasSubstr("which is being used"));
    EXPECT_THAT(Quit(2), Not(Contains(HasSubstr("Delete"))));
    Puts(BTN_FMEM1_DELETE);
    Tell("16@Frame Mem@Status@File Name Sense#3,0,"); // gone while the operator thinks
    EXPECT_THAT(Quit(1), ElementsAre(DELETE + "Mlogo", DELETE + "Slogo"));
    Select(1, {1}); // has the other side only
    SendMessage(LMSG_LISTSEL, 1, 1, 0, 0);
    Puts(BTN_FMEM1_DELETE);
    EXPECT_THAT(Quit(1), ElementsAre(DELETE + "Stitle"));
    Open(CLIP_FILES);
    Puts(BTN_FMEM1_DELETE);
    EXPECT_THAT(Message(), HasSubstr("cause the data to be"));
    EXPECT_THAT(Quit(1), ElementsAre(DELETE + "Mrun0001", DELETE + "Mrun0002", DELETE + "Mrun0003",
                                     DELETE + "Srun0002", DELETE + "Srun0003"));
}

TEST_F(FrameMemoryPage, NamesKeepTheirSideAndFrame)
{
    Store({"Mgo0001", "Mgo0002"}, 30);
    Pass(10);
    static const Lines frames = {"Mrun0001,Mjump0001", "Mrun0002,Mjump0002", "Mrun0003,Mjump0003",
                                 "Srun0002,Sjump0002", "Srun0003,Sjump0003"};
    static const std::tuple<uint32_t, int, int, const char*, const char*, Lines> cases[] = {
        {STILL_FILES, 0, BTN_FMEM1_RENAME, "sky", "no pane", {"Mlogo,Msky", "Slogo,Ssky"}},
        {STILL_FILES, 2, BTN_FMEM1_RENAME, "sky", "no pane", {"Stitle,Ssky"}},
        {STILL_FILES, 0, BTN_FMEM1_RENAME, "logo", "no pane", {}},
        {STILL_FILES, 1, BTN_FMEM1_RENAME, "logo", "already existing", {}},
        {STILL_FILES, 0, BTN_FMEM1_SEPARATE, "key", "no pane", {"Slogo,Skey"}},
        {STILL_FILES, 0, BTN_FMEM1_SEPARATE, "pic", "already existing", {}},
        {STILL_FILES, 1, BTN_FMEM1_RENAME, "abcdefghi", "no pane", {"Mpic,Mabcdefgh"}},
        {STILL_FILES, 0, BTN_FMEM1_RENAME, "", "Empty", {}},
        {STILL_FILES, 0, BTN_FMEM1_SEPARATE, "", "Empty", {}},
        {CLIP_FILES, 1, BTN_FMEM1_RENAME, "go", "already existing", {}},
        {CLIP_FILES, 1, BTN_FMEM1_RENAME, "run", "no pane", {}},
        {CLIP_FILES, 1, BTN_FMEM1_RENAME, "jumped", "no pane", frames},
    };
    for (const auto& [page, row, key, text, says, lines] : cases) {
        Open(page);
        LS_SetNowLine(1, row);
        SendMessage(LMSG_LISTSEL, 1, row, 0, 0);
        Puts(key);
        EXPECT_EQ(Puts(Enter(text)), Headed(RENAME, lines)) << text;
        EXPECT_THAT(Message(), HasSubstr(says)) << text;
        while (Pane_GetActiveID())
            Pane_Quit(Pane_GetActiveID());
    }
}

TEST_F(FrameMemoryPage, TwoSidesBecomeAPairAndFoldersTakeEveryFrame)
{
    Open(STILL_FILES);
    Select(1, {1, 2});
    SendMessage(LMSG_LISTSEL, 1, 2, 0, 0);
    EXPECT_THAT(Puts(BTN_FMEM1_COUPLE), ElementsAre(RENAME + "Stitle,Spic"));
    Store({"Mzap"}, 20);
    Store({"Sgo0001", "Sgo0002"}, 30); // a clip of one side
    Open(STILL_FILES);
    Select(1, {2, 3});
    SendMessage(LMSG_LISTSEL, 1, 3, 0, 0);
    EXPECT_THAT(Puts(BTN_FMEM1_COUPLE), ElementsAre(RENAME + "Mzap,Mtitle"));
    Select(1, {0});
    SendMessage(LMSG_LISTSEL, 1, 0, 0, 0);
    Puts(BTN_FMEM1_MOVE);
    EXPECT_THAT(Quit(2), ElementsAre(MOVE + "Mlogo,2", MOVE + "Slogo,2"));
    Open(CLIP_FILES);
    EXPECT_THAT(Puts(BTN_FMEM1_ANCILLARY),
                ElementsAre("put Frame Mem@Clip@Ancillary Playback Enable#0,Sgo,1"));
    for (const char* number : {"30", "31"})
        Tell("16@Frame Mem@Status@File Name Sense#" + std::string(number) + ",0,");
    Pass(200);
    Open(CLIP_FILES);
    Puts(BTN_FMEM1_MOVE);
    EXPECT_THAT(Quit(2), ElementsAre(MOVE + "Mrun0001,2", MOVE + "Mrun0002,2", MOVE + "Mrun0003,2",
                                     MOVE + "Srun0002,2", MOVE + "Srun0003,2"));
    Puts(BTN_FMEM1_MOVE);
    EXPECT_THAT(Quit(0), IsEmpty()); // "Cancel"
    Puts(BTN_FMEM1_MOVE);
    EXPECT_THAT(Quit(1), Contains(MOVE + "Mrun0001,0"));
    EXPECT_THAT(Puts(BTN_FMEM1_ANCILLARY),
                ElementsAre("put Frame Mem@Clip@Ancillary Playback Enable#0,Mrun,1"));
    Tell("Frame Mem@Clip@Ancillary Playback Enable#0,Mrun,1");
    (void)List();
    EXPECT_EQ(BT_GetStatus(BTN_FMEM1_ANCILLARY), BT_ON);
    EXPECT_THAT(Puts(BTN_FMEM1_ANCILLARY),
                ElementsAre("put Frame Mem@Clip@Ancillary Playback Enable#0,Mrun,0"));
}

TEST_F(FrameMemoryPage, AFreezeIsStoredWhenItStands)
{
    const std::string freeze = "Frame Mem@Edit@Freeze@Freeze@Field@PROC2#";
    Open(FREEZE_PAGE);
    EXPECT_THAT(Puts(BTN_FMEM1_STORE1),
                ElementsAre(HasSubstr("put Frame Mem@Edit@Store@PROC1#10,Mimage")));
    EXPECT_THAT(Puts(BTN_FMEM1_STORE2), ElementsAre(HasSubstr("Store@PROC2#10,Mimage")));
    EXPECT_THAT(Tell(freeze + "true"), IsEmpty()); // somebody else's, and not asked for
    Tell(freeze + "false");
    Puts(BTN_FMEM1_AUTO_STORE);
    EXPECT_EQ(BT_GetStatus(BTN_FMEM1_AUTO_STORE), BT_ON);
    EXPECT_THAT(Puts(20), ElementsAre("put " + freeze + "true"));
    EXPECT_THAT(Tell(freeze + "true"), ElementsAre(HasSubstr("put Frame Mem@Edit@Store@PROC2#")));
    Puts(20);
    Open(FREEZE_PAGE); // it was left meanwhile
    EXPECT_THAT(Tell(freeze + "true"), IsEmpty());
    Puts(20);
    EXPECT_THAT(Tell(freeze + "false"), IsEmpty());
    EXPECT_THAT(Tell(freeze + "true"), IsEmpty());
    Tell("16@Frame Mem@Status@File Name Sense#1,0,");
    EXPECT_THAT(Puts(BTN_FMEM1_STORE1), ElementsAre(HasSubstr("PROC1#1,Mimage")));
    Store({"Mlogo"});
    Tell("16@Frame Mem@Status@Max Register#9"); // all of them hold something
    EXPECT_THAT(Puts(BTN_FMEM1_STORE1), IsEmpty());
    EXPECT_THAT(Message(), HasSubstr("no empty register"));
    Pane_Quit(Pane_GetActiveID());
    Tell("Frame Mem@Status@Extended Capacity#1");
    EXPECT_THAT(Puts(BTN_FMEM1_STORE1), ElementsAre(HasSubstr("PROC1#16385,Mimage")));
    Tell("Frame Mem@Status@Extended Capacity#0");
}

TEST_F(FrameMemoryPage, TheExternalDriveWorksOnWhileTheOperatorIsElsewhere)
{
    const std::string PATH = "16@Frame Mem@External HDD@";
    EXPECT_THAT(Open(HDD), AllOf(Contains("add 32@Frame Mem@External HDD@Progress"),
                                 Contains("read " + PATH + "Busy")));
    constexpr Rect state = {112, 124, 480, 186}, pane = {200, 140, 599, 459};
    const auto ready = Seen(state);
    Tell(PATH + "Busy#true");
    EXPECT_NE(Seen(state), ready);
    Tell(PATH + "Busy#false");
    EXPECT_EQ(Seen(state), ready);
    EXPECT_THAT(Puts(BTN_FMEM1_HDD_LOAD), IsEmpty());
    SendMessage(LMSG_PANEQUIT, Pane_GetActiveID() + 1, 1, 0, 0); // another one's "Yes"
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
    Quit(2); // "No"
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 0);
    (void)Puts(BTN_FMEM1_HDD_SAVE);
    EXPECT_THAT(Quit(1), ElementsAre("put " + PATH + "Save#true"));
    EXPECT_THAT(Usable({BTN_FMEM1_HDD_SAVE, BTN_FMEM1_HDD_LOAD}), IsEmpty()) << "at once";
    Tell(PATH + "Busy#true");
    const auto begun = Seen(pane);
    Tell("32@Frame Mem@External HDD@Progress#60");
    EXPECT_EQ(Seen(pane), begun) << "another one's";
    Tell(PATH + "Progress#60");
    EXPECT_NE(Seen(pane), begun);
    Tell("32@Frame Mem@External HDD@Busy#false"); // another one's
    BkgdHDDTransfer_PaneQuit();
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Open(STILLS); // the top of its tab, which says why
    EXPECT_TRUE(Page && Page->id == 0x25100000);
    Quit(0);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Open(HDD); // the pane is back
    EXPECT_NE(Pane_GetActiveID(), 0);
    Tell(PATH + "Busy#false");
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 0);

    (void)Puts(BTN_FMEM1_HDD_LOAD);
    Quit(1);
    Pass(3000);
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 1);
    Pass(2000); // nobody has begun
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 0);
    EXPECT_NE(Pane_GetActiveID(), 0); // says so
    Quit(0);
    EXPECT_THAT(Usable({BTN_FMEM1_HDD_SAVE, BTN_FMEM1_HDD_LOAD}), testing::SizeIs(2));

    BTNSEL* const unit = RegionBtn[32].btnsel; // the operator chooses the second switcher
    unit[1].id = REGION_ID_SWITCHER + 1;
    std::swap(unit[0].select, unit[1].select);
    SendMessage(LMSG_PANEREGION, 0, 0, 0, 0);
    EXPECT_NE(Seen(state), ready) << "its name";
    (void)Puts(BTN_FMEM1_HDD_LOAD);
    EXPECT_THAT(Quit(1), ElementsAre("put 32@Frame Mem@External HDD@Load#true"));
    EXPECT_THAT(Quit(1), ElementsAre("put 32@Frame Mem@External HDD@Cancel#true")); // "Cancel"
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 0);
    std::swap(unit[0].select, unit[1].select);
}
