// The Directory page against a server that lists, makes and deletes folders.
#include "a_ls.h"
#include "err.h"
#include "file.h"
#include "file_dir.h"
#include "pane.h"
#include "table_page.h"
#include "text.h"
#include "window.h"
#include <unistd.h>

struct DirectoryPage : TablePage {
    static constexpr const char* DATE = ",Wed Nov 25 09:20:08 2026";
    static constexpr int DEVICE = 49, NEW = 51, DELETE = 52, PROTECT = 53;
    static inline int ack = 500;

    void SetUp() override
    {
        TablePage::SetUp();
        File_Reset();
        File_DirReset();
        CopyText(GL_RegistDataPath, "/tmp/directory_test/");
        CopyText(GL_ImportDataPath, "/mnt/usb/usb1/");
        (void)!::system("rm -rf /tmp/directory_test; mkdir -p /tmp/directory_test/user/root/NEWS "
                        "/tmp/directory_test/user/root/SPORT "
                        "/tmp/directory_test/user/root/SYSTEM");
        opened = Open(0x71710000);
    }
    void TearDown() override
    {
        TablePage::TearDown();
        (void)!::system("rm -rf /tmp/directory_test");
        CopyText(GL_RegistDataPath, "/mnt/data/");
        CopyText(GL_ImportDataPath, "");
        File_Reset();
        Err_Clear();
    }
    Lines opened;

    // The server takes a job of that kind ("ListDir") whose command is the only one of these.
    static void Take(const Lines& sent, const std::string& kind)
    {
        const std::string head = "put File@Access@" + kind + "#L";
        for (const std::string& line : sent)
            if (line.starts_with(head))
                (void)Tell("File@Access@" + kind + "#L" + std::to_string(Label(line)) + "," +
                           std::to_string(++ack));
    }
    static int Label(const std::string& line) { return ::atoi(line.c_str() + line.find("#L") + 2); }
    static Lines Reply(const std::string& kind, const std::string& text)
    {
        return Tell("File@Access@" + kind + "@Status#" + std::to_string(ack) + "," + text);
    }
    static void List(const Lines& sent, const Lines& names, const std::string& root)
    {
        Take(sent, "ListDir");
        for (const std::string& name : names)
            (void)Reply("ListDir", root + name + DATE);
        (void)Reply("ListDir", "OK");
    }
    void ListLocal() { List(opened, {"SPORT", "NEWS"}, "/tmp/directory_test/user/root/"); }
    static Lines Rows()
    {
        Lines rows;
        for (int i = 0; i < LS_GetNData(1); i++)
            rows.push_back(LS_GetData(1, i, 0));
        return rows;
    }
    // What entering a name for a new directory sends.
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
    static Lines Settle()
    {
        Lines sent;
        for (int i = 0; i < 40; i++) {
            Pass(10);
            for (const std::string& line : TakeQueuedCommands())
                sent.push_back(line);
        }
        return sent;
    }
    static Lines Choose(int id)
    {
        Lines sent = Press(id);
        for (const std::string& line : Settle())
            sent.push_back(line);
        return sent;
    }
    // From the left: the local one, the stick, the network.
    static Lines Drive(int place)
    {
        (void)Choose(DEVICE);
        (void)Touch(400 - (78 * 3 + 26) / 2 + 15 + 78 * place + 20, 300 - (43 + 76) / 2 + 35);
        return Settle();
    }
    static Lines Yes() // of the pane on top
    {
        (void)Touch(200 + 97 + 5, 140 + 247 + 5);
        return Settle();
    }
    static void CloseMessage()
    {
        const int pane = Pane_GetActiveID();
        EXPECT_GT(pane, 0);
        (void)Pane_Quit(pane);
        (void)Settle(); // until the key that led here looks released
    }
    static std::string Marker(const std::string& name)
    {
        return "/tmp/directory_test/user/root/" + name + "/.dirprotect";
    }
};

TEST_F(DirectoryPage, ShowsTheDirectoriesByNameBehindTheFixedOne)
{
    const std::string root = "/tmp/directory_test/user/root/";
    List(opened,
         {root + "SPORT", "MYHOST:" + root + "NEWS/", "BARE", root + "PWON_LD", "pwon_ld",
          root + "NEWS/SETUP", "/etc/LOST", "../UP", root, root + ".hidden", root + "/DOUBLE"},
         "");
    EXPECT_EQ(Rows(), (Lines{"SYSTEM", "BARE", "NEWS", "SPORT"})) << "right below the root alone";
    EXPECT_STREQ(LS_GetData(1, 2, 1), "Nov.25.2026 09:20");
}

TEST_F(DirectoryPage, TakesNoMoreThanADriveMayHold)
{
    Lines names;
    for (int i = 0; i < 210; i++)
        names.push_back("DIR" + std::to_string(i));
    List(opened, names, "/tmp/directory_test/user/root/");
    EXPECT_EQ(Rows().size(), 200u);

    const Lines sent = Drive(1);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_TRUE(sent[0].ends_with(",MYHOST:/mnt/usb/usb1/")) << sent[0];
    EXPECT_EQ(Caption(DEVICE), "Removable\nDrive");
    List(sent, names, "/mnt/usb/usb1/");
    EXPECT_EQ(Rows().size(), 120u);
    Take(Make("PWON_LD"), "Mkdir");
    EXPECT_EQ(Pane_GetActiveID(), 0) << "a stick may have one";
    List(Reply("Mkdir", "OK"), {"PWON_LD"}, "/mnt/usb/usb1/");
    EXPECT_EQ(Rows(), (Lines{"SYSTEM", "PWON_LD"}));
    EXPECT_EQ(Drive(0).size(), 1u); // which the page remembers
}

TEST_F(DirectoryPage, RefusesNamesThatCannotBe)
{
    ListLocal();
    static const struct {
        const char* name;
        bool is_made;
    } cases[] = {
        {"aux", false},   {"COM0", false}, {"lpt9", false}, {"pwon_ld", false}, {"NEWS", false},
        {"system", true}, {"con.", true},  {"", false},     {"WEATHER", true},
    };
    for (const auto& c : cases) {
        File_Reset();
        const Lines sent = Make(c.name);
        EXPECT_EQ(sent.size(), c.is_made ? 1u : 0u) << c.name;
        if (!c.is_made)
            CloseMessage();
    }
}

TEST_F(DirectoryPage, MakesADirectoryAndStandsOnIt)
{
    ListLocal();
    const Lines made = Make("a.b/c;$(d");
    ASSERT_EQ(made.size(), 1u);
    EXPECT_TRUE(made[0].ends_with(",MYHOST:/tmp/directory_test/user/root/a_b_c___d")) << made[0];
    Take(made, "Mkdir");
    const Lines again = Reply("Mkdir", "OK");
    ASSERT_EQ(again.size(), 1u);
    List(again, {"NEWS", "a_b_c___d", "SPORT"}, "/tmp/directory_test/user/root/");
    EXPECT_EQ(LS_GetNowLine(1), 3) << "small letters stand last";
}

TEST_F(DirectoryPage, DeletesOnYesAndTellsWhyItCouldNot)
{
    ListLocal();
    EXPECT_TRUE(Disabled().count(DELETE)) << "the fixed directory stays";
    (void)Touch(120, 78 + 22 * 2 + 5);
    EXPECT_TRUE(Choose(DELETE).empty());
    const Lines sent = Yes();
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_TRUE(sent[0].ends_with(",MYHOST:/tmp/directory_test/user/root/NEWS")) << sent[0];
    const int waiting = Pane_GetActiveID();
    EXPECT_GT(waiting, 0);
    Take(sent, "Rmdir");
    EXPECT_EQ(Reply("Rmdir", "NG(Busy)").size(), 1u) << "listed anew";
    EXPECT_FALSE(Pane_Exist(waiting));
    EXPECT_GT(Pane_GetActiveID(), 0) << "the server's reason";
}

TEST_F(DirectoryPage, ProtectionIsAFileOfFortyBytes)
{
    ListLocal();
    (void)Touch(120, 78 + 22 * 2 + 5);
    (void)Choose(PROTECT);
    std::string raw(40, '\0');
    raw.replace(0, 4, "NEWS");
    raw.replace(16, 17, "Nov.25.2026 09:20");
    raw[39] = 1;
    EXPECT_EQ(FileText(Marker("NEWS")), raw);
    EXPECT_STREQ(LS_GetData(1, 1, 2), "_CL_Lock");
    EXPECT_TRUE(Disabled().count(DELETE));

    (void)Choose(PROTECT);
    EXPECT_NE(::access(Marker("NEWS").c_str(), F_OK), 0);
    EXPECT_FALSE(Disabled().count(DELETE));

    (void)!::system("rm -rf /tmp/directory_test/user/root/NEWS");
    (void)Choose(PROTECT);
    EXPECT_EQ(Err_GetMax(), 1);
    EXPECT_STREQ(LS_GetData(1, 1, 2), "");
}
