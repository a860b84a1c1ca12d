// The file folder on the page where clips are loaded: what it shows, what touches do, what is asked
// of the hub.
#include "a_ff_private.h"
#include "fmctrl3.h"
#include "netio.h"
#include "page_table/fmem_clip.h"
#include "pane.h"
#include "table_page.h"
#include "tdl.h"
#include "text.h"

struct FileFolder : TablePage {
    static constexpr uint32_t PAGE_LOAD = 0x21120000;
    void SetUp() override
    {
        TablePage::SetUp();
        DEV_MySwr[0] = &DEV_Swr[0];
        SYS_MySwrMax = 1;
        CopyText(DEV_Swr[0].id, "SWR000D001");
        FMCtrl3_Init();
        for (const char* folder : {"NEWS", "NEWS/A", "NEWS/A/B", "NEWS/A/B/C", "SPORT"})
            Hub("Insert", "ClipStoreFolder", std::string("root/") + folder + ":1");
        Clip("OPENING", 100, 1);
        Clip("STILL", 1, 3);
        Clip("NEWS/A/B/C/DEEP", 10, 2);
        (void)Open(PAGE_LOAD);
        (void)FF_ChangeDirectory(0, "/");
        FF_ClearCheckedObjectList(0);
        (void)TakeQueuedHubLines();
    }
    void TearDown() override
    {
        FMCtrl3_Finalize();
        TablePage::TearDown();
    }
    static void Hub(const std::string& verb, const std::string& table, const std::string& row)
    {
        std::string v = verb, t = "CS1." + table, r = row;
        SendMessage(MSG_SHPTALLY, Arg(v.c_str()), Arg(t.c_str()), 0, Arg(r.c_str()));
    }
    static void Clip(const std::string& path, int frames, int exist)
    {
        Hub("Insert", "ClipStoreFile",
            "root/" + path + ".SFH:" + std::to_string(frames) + ", 0, 0, 3, 2026-01-31 23:59:00, " +
                std::to_string(exist) + ", 0");
    }
    static void Result(const std::string& row) { Hub("Result", "ClipStoreFile", row); }
    static void Cell(int n)
    {
        const Rect g = ff_grid(ff.area[0].parts);
        (void)Touch(g.x1 + n % 4 * ff.area[0].parts.h_gap + 60, g.y1 + n / 4 * FF_CELL_H + 40);
    }
    static void Key(int key)
    {
        Rect r;
        ASSERT_TRUE(ff_key_rect(ff.area[0].parts, key, &r));
        (void)Touch(r.x1 + 5, r.y1 + 5);
    }
    static void Ancestor(int depth)
    {
        const Rect r = ff_folder_button(ff.area[0].parts, depth);
        (void)Touch(r.x1 + 5, r.y1 + 5);
    }
    static Strings Names()
    {
        Strings names;
        for (int n = 0; n < ff.area[0].file_list.rec_num; n++)
            names.push_back(ff.area[0].file_list.cell[n]->element.name);
        return names;
    }
    static std::string Selected()
    {
        FF_OBJECT object;
        return FF_GetSelectedObject(0, &object) == 0 ? object.name : "";
    }
};

TEST_F(FileFolder, FollowsTheCatalogueAndKeepsTheSelection)
{
    EXPECT_THAT(Names(), ElementsAre("NEWS", "SPORT", "OPENING", "STILL"));
    static bool is_shown = false;
    TDL_WatchFlush([](int x, int y, int w, int h) {
        const POSITION line = ff.area[0].parts.name_status.pos;
        is_shown |= Inside({x, y, x + w - 1, y + h - 1}, line.x + 20, line.y + 10);
    });
    Cell(2);
    Pass(10);
    TDL_WatchFlush(nullptr);
    EXPECT_TRUE(is_shown) << "the line with its name";
    EXPECT_EQ(Selected(), "OPENING");
    Clip("OPENING", 50, 1);
    FF_OBJECT object;
    EXPECT_EQ(FF_GetSelectedObject(0, &object), 0);
    EXPECT_EQ(object.frame, 50);
    Clip("AAA", 5, 1);
    Hub("Insert", "ClipStoreFolder", "root/ART:1");
    EXPECT_THAT(Names(), ElementsAre("ART", "NEWS", "SPORT", "AAA", "OPENING", "STILL"));
    EXPECT_EQ(Selected(), "OPENING");
    Hub("Delete", "ClipStoreFolder", "root/ART");
    EXPECT_EQ(Selected(), "OPENING");
    Hub("Delete", "ClipStoreFile", "root/OPENING.SFH");
    EXPECT_EQ(Selected(), "");
    Clip("NEWS/OTHER", 5, 1);
    EXPECT_THAT(Names(), ElementsAre("NEWS", "SPORT", "AAA", "STILL"));
    FMCtrl3_HubLost();
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Seen(ff_grid(ff.area[0].parts)), Each(0u)) << "nor is anything left to see";
    Clip("BACK", 5, 1);
    EXPECT_THAT(Names(), ElementsAre("BACK"));
}

TEST_F(FileFolder, OpensFoldersGoesBackAndLeavesALostOne)
{
    Cell(0);
    const POSITION line = ff.area[0].parts.name_status.pos;
    EXPECT_THAT(Seen({line.x, line.y, line.x + 140, line.y + 21}), Contains(0xFFFFFFu));
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/");
    Cell(0);
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS");
    EXPECT_EQ(FF_ChangeDirectory(0, "/NEWS/A/B/C"), 0);
    EXPECT_THAT(Names(), ElementsAre("DEEP"));
    Ancestor(4); // where it stands
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS/A/B/C");
    Ancestor(2);
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS/A");
    (void)FF_ChangeDirectory(0, "/NEWS/A/B/C");
    Ancestor(0);
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/");
    (void)FF_ChangeDirectory(0, "/NEWS/A/B/C");
    Cell(0);
    (void)Open(PAGE_LOAD);
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS/A/B/C");
    EXPECT_EQ(Selected(), "DEEP");
    Hub("Delete", "ClipStoreFile", "root/NEWS/A/B/C/DEEP.SFH");
    Hub("Delete", "ClipStoreFolder", "root/NEWS/A/B/C");
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS/A/B");
}

TEST_F(FileFolder, FindsFromThereRoundTheEnds)
{
    EXPECT_EQ(FF_Find(0, "", SEARCH_DIR_NEXT), -1);
    EXPECT_EQ(FF_Find(0, "nowhere", SEARCH_DIR_NEXT), -1);
    EXPECT_EQ(FF_Find(0, "dee", SEARCH_DIR_NEXT), 0);
    EXPECT_STREQ(FF_GetCurrentPath(0), "/root/NEWS/A/B/C");
    EXPECT_EQ(Selected(), "DEEP");
    Strings found;
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(FF_Find(0, "p", SEARCH_DIR_NEXT), 0);
        found.push_back(Selected());
    }
    EXPECT_THAT(found, ElementsAre("SPORT", "OPENING", "DEEP"));
    EXPECT_EQ(FF_Find(0, "opening", SEARCH_DIR_NEXT), 0);
    Clip("AAA", 5, 1);
    const FM2_FILE_LIST& list = ff.area[0].file_list;
    ASSERT_GE(list.found_idx, 0);
    EXPECT_STREQ(list.cell[list.found_idx]->element.name, "OPENING") << "its mark goes with it";
    Key(FF_KEY_FIND);
    SendMessage(LMSG_PANEBTNSEL, PANEFIND_TEXT, 0, 0, 0);
    for (const char key : {'s', 'p', char(SDLK_RETURN)})
        SendMessage(MSG_KEY, key, 0, 0, 0);
    Pass(1000);
    EXPECT_EQ(Selected(), "SPORT");
    SendMessage(LMSG_PANEBTNSEL, PANEFIND_CLOSE, 0, 0, 0);
    Pass(10);
    EXPECT_EQ(Pane_GetActiveID(), 0);
}

TEST_F(FileFolder, ChecksAndLoadsWhatIsChecked)
{
    Key(FF_KEY_SELECT);
    Cell(2);
    Hub("Delete", "ClipStoreFile", "root/OPENING.SFH");
    EXPECT_TRUE(BT_GetVisible(BTN_FMEM_LOAD) == BT_DISABLED) << "it was the only one";
    Clip("OPENING", 100, 1);
    Cell(2);
    EXPECT_EQ(ff.area[0].select_mode, SELECT_MODE_SELECT);
    for (int n : {0, 1, 3})
        Cell(n);
    EXPECT_EQ(ff.area[0].select_mode, SELECT_MODE_ALL);
    (void)Press(BTN_FMEM_LOAD); // folders are not loaded
    EXPECT_THAT(TakeQueuedHubLines(),
                ElementsAre(HasSubstr("ClipStoreFile:Register root/OPENING.SFH"),
                            HasSubstr("ClipStoreFile:Register root/STILL.SFH")));
    const int pane = Pane_GetActiveID();
    EXPECT_NE(pane, 0);
    Result("Register root/OPENING.SFH:40");
    Result("Register root/OPENING.SFH:85"); // no room
    Result("Register root/OPENING.SFH");
    Result("UnRegister root/OPENING.SFH:7F");
    EXPECT_EQ(Pane_GetActiveID(), pane);
    Result("Register root/STILL.SFH:7F");
    EXPECT_FALSE(Pane_Exist(pane));
    EXPECT_NE(Pane_GetActiveID(), 0); // what did not fit
    EXPECT_EQ(FF_GetCheckedObjectNum(0), 0);
}

TEST_F(FileFolder, ForgetsARequestThatWasCancelledAndAllWhenTheHubHasGone)
{
    Key(FF_KEY_ALL);
    (void)Press(BTN_FMEM_UNLOAD);
    int pane = Pane_GetActiveID();
    SendMessage(LMSG_PANEQUIT, pane, 1, 0, 0);
    (void)Pane_Quit(pane);
    Result("UnRegister root/OPENING.SFH:7F");
    (void)TakeQueuedHubLines();
    (void)Press(BTN_FMEM_LOAD);
    EXPECT_EQ(TakeQueuedHubLines().size(), 2u);
    pane = Pane_GetActiveID();
    EXPECT_NE(pane, 0);
    FMCtrl3_HubLost();
    EXPECT_FALSE(Pane_Exist(pane));
}

TEST_F(FileFolder, HoldsPicturesOfWhatIsInViewOnly)
{
    for (int i = 0; i < 400; i++)
        Clip("SPORT/CLIP" + std::to_string(1000 + i), 2, 1);
    (void)FF_ChangeDirectory(0, "/SPORT");
    for (int row : {0, 50, 1000}) {
        (void)FF_SetScrollBarPosition(0, row);
        Pass(10);
        int pictures = 0;
        for (int n = 0; n < ff.area[0].file_list.rec_num; n++)
            pictures += ff.area[0].file_list.cell[n]->is_looked_for;
        EXPECT_EQ(pictures, 12);
    }
    EXPECT_EQ(FF_GetNBVar(0), 97);
    SendMessage(LMSG_SBSEL, SB_UP, 0, -1, 0);
    EXPECT_EQ(FF_GetNBVar(0), 96);
    for (int i = 0; i < 8; i++)
        Hub("Delete", "ClipStoreFile", "root/SPORT/CLIP" + std::to_string(1000 + i) + ".SFH");
    EXPECT_EQ(FF_GetNBVar(0), 95);
    EXPECT_EQ(FF_GetChildObjectNum("/", OBJECT_TYPE_FILE, ELEMENT_PLACE_STORAGE, 0, true), 394);
}
