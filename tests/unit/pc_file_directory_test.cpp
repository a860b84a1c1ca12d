#include "server_page.h"
#include <unistd.h>

using testing::EndsWith;

struct DirectoryPage : ServerPage {
    static constexpr int DEVICE = 49, NEW = 51, DELETE = 52, PROTECT = 53;
    static inline const std::string ROOT = "/tmp/directory_test/user/root/",
                                    STICK = "/mnt/usb/usb1/";
    Lines opened;

    void SetUp() override
    {
        ServerPage::SetUp();
        CopyText(GL_RegistDataPath, "/tmp/directory_test/");
        CopyText(GL_ImportDataPath, STICK.c_str());
        (void)!::system("rm -rf /tmp/directory_test; mkdir -p /tmp/directory_test/user/root/NEWS "
                        "/tmp/directory_test/user/root/SPORT "
                        "/tmp/directory_test/user/root/SYSTEM");
        opened = Open(0x71710000);
    }
    void TearDown() override
    {
        ServerPage::TearDown();
        (void)!::system("rm -rf /tmp/directory_test");
        CopyText(GL_RegistDataPath, "/mnt/data/");
    }
    static void List(const Lines& sent, const Lines& names, const std::string& root = ROOT)
    {
        (void)Reply(sent, "Access@ListDir", Below(root, names));
    }
    void ListLocal() { List(opened, {"SPORT", "NEWS"}); }
    static Lines Rows()
    {
        Lines rows;
        for (int i = 0; i < LS_GetNData(1); i++)
            rows.push_back(LS_GetData(1, i, 0));
        return rows;
    }
    static Lines Make(const std::string& name)
    {
        (void)Press(NEW);
        (void)Settle();
        EXPECT_EQ(GetWindow(), WINDOW_KEYBOARD);
        for (char c : name) {
            const bool is_shifted = c == '_' || (c >= 'A' && c <= 'Z');
            const int sym = c == '_' ? '-' : ::tolower(c);
            SendMessage(MSG_KEY, sym, is_shifted ? KMOD_LSHIFT : 0, 0, 0);
        }
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        return Settle();
    }
    // What is sent until a touch has had its effect.
    static Lines Settle(Lines sent = {})
    {
        for (int i = 0; i < 40; i++) {
            Pass(10);
            for (const std::string& line : TakeQueuedCommands())
                sent.push_back(line);
        }
        return sent;
    }
    static Lines Choose(int id) { return Settle(Press(id)); }
    // From the left: the local one, the stick, the network.
    static Lines Drive(int place)
    {
        (void)Choose(DEVICE);
        (void)Touch(400 - (78 * 3 + 26) / 2 + 15 + 78 * place + 20, 300 - (43 + 76) / 2 + 35);
        return Settle();
    }
};

TEST_F(DirectoryPage, ShowsTheDirectoriesByNameBehindTheFixedOne)
{
    EXPECT_EQ(Disabled(), (std::set<int>{NEW, DELETE, PROTECT})) << "nothing is known yet";
    List(opened,
         {ROOT + "SPORT", "MYHOST:" + ROOT + "NEWS/", "BARE", ROOT + "PWON_LD", "pwon_ld",
          ROOT + "NEWS/SETUP", "/etc/LOST", "../UP", ROOT, ROOT + ".hidden", ROOT + "/DOUBLE"},
         "");
    EXPECT_EQ(Rows(), (Lines{"SYSTEM", "BARE", "NEWS", "SPORT"})) << "right below the root alone";
    EXPECT_STREQ(LS_GetData(1, 2, 1), "Nov.25.2026 10:30");
    EXPECT_EQ(Disabled(), std::set<int>{DELETE}) << "the fixed one stays";
}

TEST_F(DirectoryPage, WhoeverWaitsForADriveIsToldOnce)
{
    static std::vector<int> told;
    told.clear();
    const auto one = [](int tag) { told.push_back(tag); };
    const auto other = [](int tag) { told.push_back(-tag); };
    ListLocal();
    for (const auto& [done, tag] :
         {std::pair<void (*)(int), int>{one, 7}, {other, 7}, {one, 7}, {one, 8}})
        EXPECT_EQ(File_DirRead(FILE_LOCAL, done, tag), 0);
    List(TakeQueuedCommands(), {"NEWS"});
    EXPECT_THAT(told, testing::UnorderedElementsAre(7, -7, 8));
}

TEST_F(DirectoryPage, TakesNoMoreThanADriveMayHold)
{
    Lines names;
    for (int i = 0; i < 210; i++)
        names.push_back("DIR" + std::to_string(i));
    List(opened, names);
    EXPECT_EQ(Rows().size(), 200u);

    const Lines sent = Drive(1);
    EXPECT_THAT(sent, ElementsAre(EndsWith(",MYHOST:" + STICK)));
    EXPECT_EQ(Caption(DEVICE), "Removable\nDrive");
    EXPECT_THAT(Rows(), IsEmpty());
    List(sent, names, STICK);
    EXPECT_EQ(Rows().size(), 120u);
    List(Reply(Make("PWON_LD"), "Access@Mkdir", {}), {"PWON_LD"}, STICK);
    EXPECT_EQ(Pane_GetActiveID(), 0) << "a stick may have one";
    EXPECT_EQ(Rows(), (Lines{"SYSTEM", "PWON_LD"}));
    (void)Choose(DEVICE);
    EXPECT_THAT(Answer(0), IsEmpty()) << "no drive was chosen";
    const Lines late = Drive(2);
    List(Drive(0), {"NEWS"}); // which the page remembers
    List(late, {"FAR"}, "/var/nfs/user/root/");
    EXPECT_EQ(Rows(), (Lines{"SYSTEM", "NEWS"})) << "of the drive that is shown";
}

TEST_F(DirectoryPage, RefusesNamesThatCannotBe)
{
    ListLocal();
    static const std::pair<const char*, bool> cases[] = {
        {"aux", false},   {"COM0", false}, {"lpt9", false}, {"pwon_ld", false}, {"NEWS", false},
        {"system", true}, {"con.", true},  {"", false},     {"WEATHER", true},
    };
    for (const auto& [name, is_made] : cases) {
        File_Reset();
        EXPECT_EQ(Make(name).size(), is_made ? 1u : 0u) << name;
        if (!is_made)
            (void)Answer(0);
    }
}

TEST_F(DirectoryPage, MakesADirectoryAndStandsOnIt)
{
    ListLocal();
    const Lines made = Make("a.b/c;$(d");
    EXPECT_THAT(made, ElementsAre(EndsWith(",MYHOST:" + ROOT + "a_b_c___d")));
    const Lines again = Reply(made, "Access@Mkdir", {});
    EXPECT_EQ(again.size(), 1u);
    List(again, {"NEWS", "a_b_c___d", "SPORT"});
    EXPECT_EQ(LS_GetNowLine(1), 3) << "small letters stand last";
}

TEST_F(DirectoryPage, DeletesOnYesAndTellsWhyItCouldNot)
{
    List(opened, {"SPORT", "NEWS", "A#B", "Q?", "LATE"});
    static const std::pair<int, bool> rows[] = {
        {1, false}, {2, true}, {4, false}, {3, true}}; // A#B, LATE, Q?, NEWS
    for (const auto& [row, is_deletable] : rows) {
        (void)Touch(120, 78 + 22 * (row + 1) + 5);
        EXPECT_EQ(Disabled().count(DELETE), !is_deletable) << LS_GetData(1, row, 0);
    }
    EXPECT_TRUE(Choose(DELETE).empty());
    EXPECT_THAT(Answer(2), IsEmpty()) << "No";
    (void)Choose(DELETE);
    const Lines sent = Answer(1);
    EXPECT_THAT(sent, ElementsAre(EndsWith(",MYHOST:" + ROOT + "NEWS")));
    const int waiting = Pane_GetActiveID();
    EXPECT_GT(waiting, 0);
    EXPECT_THAT(Reply(sent, "Access@Rmdir", {}, "NG(Busy)"), testing::SizeIs(1)) << "listed anew";
    EXPECT_FALSE(Pane_Exist(waiting));
    EXPECT_EQ(Message(), "NG(Busy)") << "the server's reason";
}

TEST_F(DirectoryPage, WhatIsProtectedMeanwhileStaysAndLeavingEndsTheWait)
{
    ListLocal();
    (void)Touch(120, 78 + 22 * 2 + 5);
    (void)Choose(DELETE);
    (void)!::system("touch /tmp/directory_test/user/root/NEWS/.dirprotect");
    const Lines again = Answer(1);
    EXPECT_THAT(again, ElementsAre(HasSubstr("ListDir#")));
    List(again, {"SPORT", "NEWS"});
    EXPECT_STREQ(LS_GetData(1, 1, 2), "_CL_Lock");
    (void)Touch(120, 78 + 22 * 3 + 5);
    (void)Choose(DELETE);
    const Lines sent = Answer(1);
    const int waiting = Pane_GetActiveID();
    EXPECT_GT(waiting, 0);
    (void)Leave();
    EXPECT_FALSE(Pane_Exist(waiting));
    EXPECT_THAT(Reply(sent, "Access@Rmdir", {}), IsEmpty()) << "nobody looks";
}

TEST_F(DirectoryPage, ProtectionIsAFileOfFortyBytes)
{
    const std::string marker = ROOT + "NEWS/.dirprotect";
    ListLocal();
    (void)Touch(120, 78 + 22 * 2 + 5);
    (void)Choose(PROTECT);
    std::string raw(40, '\0');
    raw.replace(0, 4, "NEWS");
    raw.replace(16, 17, "Nov.25.2026 10:30");
    raw[39] = 1;
    EXPECT_EQ(FileText(marker), raw);
    EXPECT_STREQ(LS_GetData(1, 1, 2), "_CL_Lock");
    EXPECT_EQ(Disabled(), std::set<int>{DELETE});
    EXPECT_EQ(BT_GetStatus(PROTECT), BT_ON);

    (void)Choose(PROTECT);
    EXPECT_NE(::access(marker.c_str(), F_OK), 0);
    EXPECT_EQ(Disabled(), std::set<int>{});
    EXPECT_EQ(BT_GetStatus(PROTECT), BT_OFF);

    (void)!::system("rm -rf /tmp/directory_test/user/root/NEWS");
    (void)Choose(PROTECT);
    EXPECT_EQ(Err_GetMax(), 1);
    EXPECT_EQ(Message(), "The protection could not be changed.");
    EXPECT_STREQ(LS_GetData(1, 1, 2), "");
}
