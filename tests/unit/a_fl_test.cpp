#include "a_fl.h"
#include "a_fl_private.h"
#include "a_ls.h"
#include "file_page.h"
#include <cstdlib>
#include <utility>

static const std::string ROOT = "/tmp/file_list_test/user/root";

static constexpr FL_TBL sides = {
    {{.device = FL_DIRDATA_LOCAL_DRIVE}, {.device = FL_DIRDATA_STORAGE_ROOT}}};
constexpr LS_TBL List(int id)
{
    return {.id = id,
            .hn = 5,
            .vn = 8,
            .x = 400 * (id - 1),
            .head = {"", "Name", "", "", ""},
            .width = {20, 90, 30, 30, 90},
            .sb_bottom = 198,
            .block = 1};
}
static constexpr LS_TBL lists[] = {List(1), List(2), LS_END};

struct FileList : FileTest {
    uint32_t dirs = 0, files = 0; // labels of the left side's searches

    void SetUp() override
    {
        FileTest::SetUp();
        CopyText(path_before, GL_RegistDataPath);
        CopyText(GL_RegistDataPath, "/tmp/file_list_test/");
        (void)!::system("rm -rf /tmp/file_list_test");
        LS_Create(lists, 0);
        FL_Create(&sides, 0);
        TakeLabels();
    }
    void TearDown() override
    {
        CopyText(GL_RegistDataPath, path_before);
        FileTest::TearDown();
    }
    Strings TakeLabels()
    {
        dirs = fl.now[0].dir_label;
        files = fl.now[0].file_label;
        return Sent();
    }
    static void Rows(uint32_t label, const Strings& paths)
    {
        static uint32_t ack = 7000;
        Ack(label, ++ack, "File@Access@ListDir");
        for (const std::string& path : paths)
            Status(ack, ROOT + path + ",Wed Nov  5 09:20:31 2026", "File@Access@ListDir@Status");
        Status(ack, "OK", "File@Access@ListDir@Status");
    }
    static std::string Head(int format, int pair, int is_4k)
    {
        std::string head(SFH_BYTES, '\xEE');
        return head.replace(4, 3, {char(format), char(pair), char(is_4k)});
    }
    // The page's list, a line a row: name, frames, pair, time.
    static Strings Shown(int list)
    {
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        FL_Proc(MSG_REDRAW, 10, 0, 0, 0);
        Strings rows;
        for (int row = 0; row < LS_GetNData(list); row++) {
            rows.push_back(LS_GetData(list, row, 0));
            for (int col = 1; col < 5; col++)
                rows.back() += std::string("|") + LS_GetData(list, row, col);
        }
        return rows;
    }
    // (list, value, kind) of a message, as the page saw them.
    static Strings Told(int msg)
    {
        Strings told;
        for (const probe::Seen& s : probe::seen)
            if (s.msg == msg)
                told.push_back(std::to_string(int(s.ax)) + "," + std::to_string(int(s.bx)) + "," +
                               std::to_string(int(s.cx)));
        probe::seen.clear();
        return told;
    }

  private:
    char path_before[PATH_SIZE];
};

TEST_F(FileList, AFolderIsAskedForAndShownWithItsClips)
{
    FL_Init_File();
    EXPECT_EQ(FL_GetDevice(FL_L_LIST), FL_DIRDATA_DEV_NON);
    (void)Sent();
    FL_Create(&sides, 0);
    FL_list_all_init();
    FL_Proc(MSG_TALLY, Arg("CONNECT@Status"), Arg("OK"), 0, 0); // what was cut is read anew
    const auto dir = HasSubstr("Access@ListDir#L"), find = HasSubstr("Access@Find2#L");
    EXPECT_THAT(TakeLabels(), ElementsAre(dir, find, dir, find, dir, find));
    EXPECT_THAT(Shown(1), ElementsAre("|Reading...|||"));
    WriteFile(ROOT + "/logo.SFH", Head(4, 1, 1) + "picture");
    WriteFile(ROOT + "/short.SFH", Head(4, 1, 1).substr(0, 63));
    WriteFile(ROOT + "/run.SFH/run#000000.SFH", Head(3, 1, 0));
    (void)Told(0);
    Rows(dirs, {"/NEWS", "/A", "/run.SFH", "/A NAME OF 17 CHRS", "/NEWS/BELOW", "/NEWS"});
    Rows(files, {"/logo.SFH", "/run.SFH/run#000002.SFH", "/run.SFH/run#000000.SFH", "/short.SFH",
                 "/bare.SFH/bare#000007.SFH", "/NEWS/other.SFH"});
    EXPECT_THAT(Shown(1), ElementsAre("_Folder|A|||", "_Folder|NEWS|||",
                                      "|bare|1||2026 Nov.05 09:20", "|logo|1|P|2026 Nov.05 09:20",
                                      "|run|2|P|2026 Nov.05 09:20", "|short|1||2026 Nov.05 09:20"));
    EXPECT_THAT(Told(LMSG_FLLISTCHANGE), ElementsAre("0,2,1", "0,4,2"));
    FF_OBJECT object;
    EXPECT_EQ(FL_GetFoundObject(FL_L_LIST, "/logo", OBJECT_TYPE_FILE, &object), 0);
    EXPECT_EQ(object.format, 4);
    EXPECT_EQ(FL_GetFoundObject(FL_L_LIST, "/logo", OBJECT_TYPE_FOLDER, &object), -1);
    EXPECT_EQ(FL_GutClipFrameCount(FL_L_LIST, FL_DIRDATA_LOCAL_DRIVE, "/run"), 2);
    EXPECT_EQ(FL_GutClipFrameCount(FL_L_LIST, FL_DIRDATA_REMOVABLE_DRIVE, "/run"), -1);
    EXPECT_EQ(fl_list_of_name(0, "/root/logo", ELEMENT_TYPE_FILE)->file.element.format4k, 1);
    ELEMENT clip;
    (void)FMCtrl3_ReadRow("root/take:1,0,0,0,,1,1", ELEMENT_TYPE_FILE, &clip);
    for (const auto& [change, frames, row] :
         {std::tuple<int, int, std::string>{FMCTRL_MSG_ELEMENT_INSERT, 1, "|take|1||"},
          {FMCTRL_MSG_ELEMENT_NOTIFY, 7, "|take|7||"},
          {FMCTRL_MSG_ELEMENT_DELETE, 7,
           GL_ClipStoreSupportMode ? "|No clips|||" : "|No clip store|||"}}) {
        clip.duration = frames;
        FL_Proc(LMSG_FMCTRL3CHANGE, change, Arg(&clip), 0, 0);
        EXPECT_THAT(Shown(2), ElementsAre(row));
    }
    EXPECT_THAT(Told(LMSG_FLLISTCHANGE), ElementsAre("1,1,3", "1,0,3"));
}

TEST_F(FileList, RowsThatAreNoClipsLeaveNothing)
{
    (void)Told(0);
    const auto leaves_nothing = [](const std::string& row) {
        file_find_tly(row.c_str(), "Nov.25.2026 09:20", FL_L_LIST);
        EXPECT_EQ(fl.list[0].count, 0) << row;
    };
    for (const char* name :
         {"", "/", "/.SFH", "/a.TIF", "/a.SFH.bak", "x/a.SFH", "/../a.SFH", "/a:b.SFH",
          "/clip.SFH/clip#00000a.SFH", "/clip.SFH/clip#0000000.SFH", "/clip.SFH/clip#00000.SFH",
          "/clip.SFH/clip000000.SFH", "/clip.SFH/other#000000.SFH", "/clip.SFH/x/clip#000000.SFH",
          "/NEWS/a.SFH", "/1/2/3/4/5/a.SFH"})
        leaves_nothing(ROOT + name);
    for (const size_t length : {33, 300})
        leaves_nothing(ROOT + "/" + std::string(length, 'n') + ".SFH");
    leaves_nothing("");
    leaves_nothing("/" + std::string(ROOT.size() - 1, 'x') + "/a.SFH");
    file_find_tly((ROOT + "/a.SFH").c_str(), "", FL_R_LIST); // the store's side
    EXPECT_EQ(fl.list[1].count, 0);
    // What only looks like a file is not read, and its row stays with zeros.
    (void)!::system(("mkdir -p " + ROOT + "/dir.SFH; mkfifo " + ROOT + "/pipe.SFH").c_str());
    for (const char* name : {"/pipe.SFH", "/dir.SFH", "/none.SFH", "/dir.SFH"})
        file_find_tly((ROOT + name).c_str(), "no time", FL_L_LIST);
    EXPECT_THAT(Shown(1), ElementsAre("|dir|1||", "|none|1||", "|pipe|1||"));
}

TEST_F(FileList, FoldersAreEnteredAndLeftAndAnOldAnswerIsNotTaken)
{
    (void)!::system(("mkdir -p " + ROOT + "/NEWSREEL").c_str());
    const uint32_t old_files = files;
    Rows(dirs, {"/NEWSREEL"});
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, "SPORT"), -1);
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, ".."), -1);
    (void)Told(0);
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, "NEWSREEL"), 0);
    EXPECT_THAT(TakeLabels(),
                ElementsAre(testing::EndsWith(",MYHOST:" + ROOT + "/NEWSREEL"),
                            testing::EndsWith(",MYHOST:" + ROOT + "/NEWSREEL,1,*.SFH")));
    EXPECT_THAT(Told(LMSG_FLCURDIRCHANGE), ElementsAre("0,0,0"));
    (void)Shown(1);
    LS_Proc(MSG_REDRAW, 10, 0, 0, 0);
    const auto title = PixelsIn({20, 0, 109, 20});
    EXPECT_NE(std::ranges::count(title, title[0]), int(title.size())) << "the end of a long path";
    Rows(old_files, {"/NEWSREEL/late.SFH"});
    EXPECT_EQ(fl.list[0].count, 0);
    Rows(dirs, {});
    Rows(files, {"/NEWSREEL/a.SFH", "/b.SFH"});
    EXPECT_THAT(Shown(1), ElementsAre("|a|1||2026 Nov.05 09:20"));
    FM_FILEPATH where = {
        .storage = FL_L_LIST, .devType = FL_DIRDATA_LOCAL_DRIVE, .dirPath = "/NEWSREEL"};
    FL_DIRFILE_NAMES names;
    EXPECT_EQ(FL_GetDirectoryName(&where, 0, &names), 0);
    EXPECT_STREQ(names.FileName, "a");
    EXPECT_EQ(FL_GetDirectoryName(&where, 1, &names), -1);
    int folders = -1, clips = -1;
    EXPECT_EQ(FL_GetDirectoryAndFileCount(&where, &folders, &clips), 0);
    EXPECT_EQ(folders * 10 + clips, 1);
    CopyText(where.dirPath, "/");
    EXPECT_EQ(FL_GetDirectoryName(&where, 0, &names), -1);
    // The page closes and opens: the side is where it was left. Then its folder goes.
    FL_Create(nullptr, 0);
    EXPECT_EQ(fl.list[0].count, 0);
    FL_Create(&sides, 0);
    EXPECT_STREQ(FL_GetCurrentPath(FL_L_LIST), "/NEWSREEL");
    TakeLabels();
    (void)!::system(("rmdir " + ROOT + "/NEWSREEL").c_str());
    (void)Told(0);
    Rows(dirs, {});
    Rows(files, {});
    EXPECT_THAT(Told(LMSG_FLCURDIRCHANGE), ElementsAre("0,0,4"));
    EXPECT_THAT(Shown(1), ElementsAre("|Folder not found|||"));
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, ".."), 0);
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, "/"), 0);
    EXPECT_STREQ(FL_GetCurrentPath(FL_L_LIST), "/");
    for (const char* bad : {"", "NEWSREEL", "/a//b", "/..", "/1/2/3/4/5", "/A NAME OF 17 CHRS"})
        EXPECT_EQ(putCurrentDirectory(FL_L_LIST, bad), -1) << bad;
    EXPECT_STREQ(FL_GetCurrentPath(FL_L_LIST), "/");
}

TEST_F(FileList, ASearchWrapsOnceAndTheSelectionFollowsItsName)
{
    (void)!::system(("mkdir -p " + ROOT).c_str());
    Rows(dirs, {});
    Rows(files, {});
    EXPECT_THAT(Shown(1), ElementsAre("|No clips|||"));
    for (const char* name : {"/c.SFH", "/b1.SFH", "/b3.SFH"})
        file_find_tly((ROOT + name).c_str(), "", FL_L_LIST);
    (void)Shown(1);
    EXPECT_EQ(FL_Find(FL_L_LIST, "", 1), -1);
    EXPECT_EQ(FL_Find(FL_L_LIST, "x", 1), -1);
    for (const int place : {0, 1, 0})
        EXPECT_EQ(FL_Find(FL_L_LIST, "B", 1), place);
    EXPECT_EQ(FL_Find(FL_L_LIST, "b", -1), 1);
    EXPECT_EQ(LS_GetSelected(1, 0), 1);
    FF_OBJECT object;
    EXPECT_EQ(FL_GetFoundObject(FL_L_FIND_LIST, "/b3", OBJECT_TYPE_ALL, &object), 0);
    EXPECT_EQ(FL_GetFoundObject(FL_L_FIND_LIST, "/b1", OBJECT_TYPE_ALL, &object), -1);
    file_find_tly((ROOT + "/b2.SFH").c_str(), "", FL_L_LIST); // before it
    EXPECT_EQ(Shown(1).size(), 4u);
    EXPECT_EQ(LS_GetSelected(1, 0), 2);
    LS_SetMS(1, 1);
    LS_SetSelected(1, 3, 0, 1);
    file_find_tly((ROOT + "/a.SFH").c_str(), "", FL_L_LIST);
    EXPECT_EQ(Shown(1).size(), 5u);
    for (const int row : {0, 1, 2, 3, 4})
        EXPECT_EQ(LS_IsSelected(1, row, 0), row >= 3) << row;
}

TEST_F(FileList, AListOfMoreThan500IsShownEveryTenthPass)
{
    int count = 0;
    const auto add = [&] {
        const std::string name = std::to_string(++count);
        file_find_tly((ROOT + "/" + name + ".SFH").c_str(), "", FL_L_LIST);
    };
    while (count < 499)
        add();
    FL_Proc(MSG_REDRAW, 10, 0, 0, 0);
    LS_SetSelected(1, 0, 0, 1);
    FL_Proc(LMSG_LISTSEL, 1, 0, 0, 0);
    LS_SetTopLine(1, 50);
    for (const int expected : {1, 1, 10}) {
        add();
        int passes = 0;
        for (; LS_GetNData(1) < count && passes < 99; passes++)
            FL_Proc(MSG_REDRAW, 10, 0, 0, 0);
        EXPECT_EQ(passes, expected) << count;
        EXPECT_EQ(LS_GetTopLine(1), 50) << "somebody may be scrolling";
    }
}
