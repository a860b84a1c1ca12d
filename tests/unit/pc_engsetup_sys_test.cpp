// The System pages of engineering setup: what they ask, show and send.
#include "file.h"
#include "setup_desk.h"

constexpr uint32_t FORMAT_PAGE = 0x73130000;
constexpr int YES = 1, NO = 2;
const std::string FORMAT = "Engineering Setup@System@Format@";

struct FormatPage : SetupTest {
    void SetUp() override
    {
        SetupTest::SetUp();
        (void)Open(FORMAT_PAGE);
        TellAll(FORMAT,
                {"Video Format@PNL1#29.97/59.94,1080i", "Video Format2@SWR1#3,6,0",
                 "Video Format2@SWR2#3,6,0", "Reference@PNL1#BB", "Reference@SWR1#BB",
                 "Reference@SWR2#BB", "Reference@DME1#BB", "Reference@DME2#BB", "Reference@DME3#BB",
                 "Switcher Aspect#SWR1,16:9,16:9,16:9,16:9,16:9,16:9,16:9",
                 "Switcher Aspect#SWR2,16:9,16:9,16:9,16:9,16:9,16:9,16:9",
                 "DME Aspect#DME1,16:9,16:9,16:9,16:9", "Video Format@DME1#29.97/59.94,1080i"});
    }
};

TEST_F(FormatPage, TheSignalFormatIsOneForAllAndSetsTheReferenceItNeeds)
{
    ASSERT_EQ(LS_GetNData(1), 6);
    EXPECT_THAT(Usable({BTN_SETUP_CLEAR, BTN_SETUP_EXECUTE, BTN_FORMAT_WIDE}), IsEmpty());
    SelectRow(1);
    (void)Choose(BTN_FORMAT_SIGNAL, 7); // 1080PsF/23.98, which no BB can lock
    EXPECT_EQ(Row(0, 4), "PNL1|1080PsF/23.98*||Tri Sync*");
    EXPECT_EQ(Row(2, 4), "SWR2|1080PsF/23.98*|16:9|Tri Sync*");
    EXPECT_EQ(Row(3, 4), "DME1|1080i/59.94|16:9|Tri Sync*");
    EXPECT_EQ(Usable({BTN_FORMAT_TRI, BTN_FORMAT_BB}), std::vector<int>{BTN_FORMAT_TRI});
    EXPECT_THAT(Push(BTN_SETUP_CLEAR), IsEmpty());
    EXPECT_EQ(Row(2, 4), "SWR2|1080i/59.94|16:9|BB");
    (void)Choose(BTN_FORMAT_SIGNAL, 7);
    EXPECT_THAT(Choose(BTN_SETUP_EXECUTE, NO), IsEmpty());
    const Lines sent = Choose(BTN_SETUP_EXECUTE, YES);
    ASSERT_EQ(sent.size(), 15u);
    EXPECT_EQ(sent[0], "put " + FORMAT + "Reference@PNL1#Tri Sync");
    EXPECT_EQ(sent[1], "read " + FORMAT + "Reference@PNL1");
    EXPECT_EQ(sent[12], "put " + FORMAT + "Video Format2@SWR1#3,0,1");
    EXPECT_EQ(sent[14], "put " + FORMAT + "Video Format@PNL1#23.976,1080PsF");
}

TEST_F(FormatPage, ReferencesThatShareAnInputChangeTogether)
{
    (void)PushIn(3, BTN_FORMAT_TRI);
    EXPECT_EQ(Row(0, 4), "PNL1|1080i/59.94||BB");
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|Tri Sync*");
    EXPECT_EQ(Row(2, 4), "SWR2|1080i/59.94|16:9|BB");
    EXPECT_EQ(Row(4, 4), "DME2|||Tri Sync*");
    EXPECT_EQ(Row(5, 4), "DME3|||BB");
    EXPECT_EQ(BT_GetStatus(BTN_FORMAT_TRI), BT_ON);
    SelectRow(0);
    EXPECT_EQ(BT_GetStatus(BTN_FORMAT_BB), BT_ON);
}

TEST_F(FormatPage, TheAspectCanGoAlone)
{
    (void)PushIn(1, BTN_FORMAT_NARROW);
    (void)PushIn(3, BTN_FORMAT_NARROW);
    SelectRow(1);
    (void)Choose(BTN_FORMAT_SIGNAL, 5);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/50*|4:3*|BB");
    EXPECT_THAT(Choose(BTN_FORMAT_ASPECT_EXECUTE, YES),
                ElementsAre("put " + FORMAT + "Switcher Aspect#SWR1,4:3,4:3,4:3,4:3,4:3,4:3,4:3",
                            "put " + FORMAT + "DME Aspect#DME1,4:3,4:3,4:3,4:3"));
    (void)Push(BTN_FORMAT_ASPECT_CLEAR);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/50*|16:9|BB");
    EXPECT_THAT(Usable({BTN_FORMAT_ASPECT_CLEAR, BTN_FORMAT_ASPECT_EXECUTE}), IsEmpty());
}

TEST_F(FormatPage, AWordThatTwoFormatsShareMeansTheOneInHandOrTheSwitchers)
{
    SelectRow(0);
    (void)Choose(BTN_FORMAT_SIGNAL, 14); // 1080P/29.97
    TellAll(FORMAT, {"Video Format2@SWR1#3,3,2", "Video Format@PNL1#---,1080p",
                     "Video Format@DME1#---,1080p"});
    EXPECT_EQ(Row(0, 4), "PNL1|1080P/29.97||BB");
    EXPECT_EQ(Row(3, 4), "DME1|1080P/29.97|16:9|BB");
    (void)Tell(FORMAT + "Video Format2@SWR1#9,9,9");
    EXPECT_EQ(Row(1, 4), "SWR1|9,9,9|16:9|BB") << "unknown to the table";
}

TEST_F(FormatPage, ALockedPageRefusesAllButTheWayOut)
{
    SetupMenu[SetupIndex_Find(FORMAT_PAGE)].lock = 1;
    SetupLock.lock = 1;
    (void)Open(FORMAT_PAGE);
    SelectRow(1);
    Pass(10);
    const uint32_t calm = PixelAt(20, 590);
    EXPECT_THAT(Press(BTN_FORMAT_TRI), IsEmpty());
    Pass(10);
    EXPECT_NE(PixelAt(20, 590), calm) << "the lock says why";
    Pass(200);
    Pass(10);
    EXPECT_EQ(PixelAt(20, 590), calm);
    (void)Push(BTN_FORMAT_SIGNAL);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|BB");
    (void)Push(51);
    EXPECT_EQ(GL_CreatePage, 0x73130005u);
    SetupLock.lock = 0;
    (void)Push(BTN_FORMAT_TRI);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|Tri Sync*");
}

TEST_F(FormatPage, AuxiliaryOutputsTakeTheirFormatsInOnePutAndUnitsTheirLevels)
{
    (void)Open(0x73130005);
    (void)Tell("Engineering Setup@Switcher@Output@Signal Format#0,1,0,0,");
    (void)Tell("Engineering Setup@Switcher@Output@Assign#2,AUX2,0");
    EXPECT_EQ(Row(1, 4), "2  (1080i)|AUX2||1080i");
    (void)PushIn(0, 35);
    EXPECT_EQ(Row(0, 4), "1  (59.94Hz(2x))|||59.94Hz(2x)*");
    std::string formats = "2,1,0,0,";
    for (int n = 5; n <= 48; n++)
        formats += "0,"; // those that were not told, too
    EXPECT_THAT(Choose(BTN_SETUP_EXECUTE, YES),
                ElementsAre("put Engineering Setup@Switcher@Output@Signal Format#" + formats));
    (void)Open(0x73130099);
    TellAll(FORMAT + "Level A/B@", {"SWR2#Level B", "DME3#Level A"});
    EXPECT_EQ(Row(1, 2) + " " + Row(4, 2), "SWR2|Level B DME3|Level A");
    (void)PushIn(4, 34);
    EXPECT_THAT(Choose(BTN_SETUP_EXECUTE, YES),
                ElementsAre("put " + FORMAT + "Level A/B@DME3#Level B"));
}

// --- The locks ---

constexpr uint32_t LOCK_PAGE = 0x73170001, LOAD_LOCK_PAGE = 0x73170002;

struct LockPage : SetupTest {
    void SetUp() override
    {
        SetupTest::SetUp();
        remove(SETUP_LOCK_FILE);
        SetupIndex_LoadLock();
        (void)Open(LOCK_PAGE);
    }
    static int RowOf(const char* menu)
    {
        for (int row = 0; row < LS_GetNData(1); row++)
            if (LS_GetData(1, row, 0) == std::string(menu))
                return row;
        return -1;
    }
    static SETUPLOCK InFile()
    {
        SETUPLOCK here = SetupLock;
        SetupIndex_LoadLock();
        std::swap(here, SetupLock);
        return here;
    }
    // Press Lock, enter a password, put away what is said about it.
    static int Lock(const char* password)
    {
        (void)PushType(BTN_LOCK, password);
        Dismiss();
        return SetupLock.lock;
    }
    static void Change(const char* old_password, const char* new_password, const char* again)
    {
        (void)Push(54);
        Enter(); // yes
        for (const char* text : {old_password, new_password, again})
            if (GetWindow() == WINDOW_KEYBOARD)
                Type(text);
        EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "it says what came of it";
        Dismiss();
    }
};

TEST_F(LockPage, ItemsAreOfOneGroupAndGoIntoTheFile)
{
    EXPECT_EQ(RowOf("7311"), 0);
    EXPECT_EQ(RowOf("7317.1"), -1) << "the lock's own page";
    (void)PushIn(RowOf("7313"), BTN_LOCK_ITEM);
    EXPECT_EQ(Row(RowOf("7313"), 4), "7313|System|Format|Lock");
    EXPECT_EQ(InFile().num, 1);
    EXPECT_EQ(InFile().page[0], FORMAT_PAGE);
    (void)Push(34);
    EXPECT_EQ(RowOf("7313"), -1);
    EXPECT_EQ(LS_GetSelected(1, 0), 0);
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    for (const char* group : {"7", "-1", "x", ""}) // there are seven
        SendMessage(LMSG_BTNSEL, Arg("LOCAL@SetupOpeLock@VF Group"), Arg(group), 0, 0);
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    (void)Push(33);
    (void)PushIn(RowOf("7313"), BTN_LOCK_ITEM);
    EXPECT_EQ(InFile().num, 0);
    (void)LS_SetMS(1, 1);
    (void)LS_SetSelected(1, 0, 0, 1);
    (void)Push(BTN_LOCK_ITEM);
    (void)Choose(BTN_LOCK_ITEM_CLEAR, NO);
    EXPECT_EQ(InFile().num, 2);
    (void)Push(34);
    (void)Choose(BTN_LOCK_ITEM_CLEAR, YES);
    EXPECT_EQ(InFile().num, 0) << "of all groups";
    (void)Push(33);
    EXPECT_EQ(Row(RowOf("7313"), 4), "7313|System|Format|");
}

TEST_F(LockPage, PasswordsOpenItOrDoNot)
{
    for (const auto& [stored, entered, is_right] :
         {std::tuple{"", "", true},
          {"", "x", false},
          {"secret", "secret", true},
          {"secret", "Secret", false},
          {"secret", "secret1", false},
          {"secret", "QPD7300WREN", true},
          {"secret", "QPD7300WRENX", false},
          {"secret", "", false},
          {"1234567890123456", "12345678901234567", true}, // cut at 16
          {"1234567890123456", "123456789012345", false}}) {
        SetupLock.lock = 0;
        snprintf(SetupLock.password, sizeof SetupLock.password, "%s", stored);
        EXPECT_EQ(Lock(entered), is_right) << stored << " " << entered;
    }
    SetupLock.lock = 0;
    EXPECT_EQ(Lock("QPD7300WREN"), 1);
    EXPECT_EQ(BT_GetStatus(BTN_LOCK), BT_ON);
    EXPECT_THAT(Usable({BTN_LOCK_ITEM, BTN_LOCK_ITEM_CLEAR}), IsEmpty());
    EXPECT_EQ(InFile().lock, 1);
    const int row = RowOf("7313");
    SelectRow(row);
    for (const char* command : {"Lock Item Select", "Lock Item All Clear"})
        SendMessage(LMSG_BTNSEL, Arg(("LOCAL@SetupOpeLock@" + std::string(command)).c_str()),
                    Arg(""), 0, 0);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(Row(row, 4), "7313|System|Format|") << "while the lock is on";
    EXPECT_EQ(Lock("QPD7300WREN"), 0);
}

TEST_F(LockPage, ANewPasswordCountsWhenItWasEnteredTwice)
{
    Change("", "first", "first");
    EXPECT_STREQ(InFile().password, "first");
    Change("wrong", "second", "second");
    EXPECT_STREQ(SetupLock.password, "first");
    Change("first", "second", "third");
    EXPECT_STREQ(SetupLock.password, "first");
    Change("QPD7300WREN", "12345678901234567", "12345678901234567");
    EXPECT_STREQ(InFile().password, "1234567890123456");
}

TEST_F(LockPage, CategoriesOfFilesAreLockedByPassword)
{
    const std::string LOCK = "Info@System Setup Data@File Load Lock#";
    (void)Open(LOAD_LOCK_PAGE);
    (void)Tell(LOCK + "20000000");
    ASSERT_EQ(LS_GetNData(1), 17);
    EXPECT_EQ(Row(1, 2), "Key Memory|Lock");
    for (const int row : {0, 13, 14, 15, 16})
        (void)PushIn(row, 33);
    EXPECT_EQ(Row(13, 2), "Setup SWR|Lock*");
    EXPECT_THAT(PushType(BTN_SETUP_EXECUTE, "wrong"), IsEmpty());
    Dismiss();
    EXPECT_THAT(PushType(BTN_SETUP_EXECUTE, "QPD7300WREN"),
                ElementsAre("put " + LOCK + "E003C000"));
    (void)Tell(LOCK + "E003C000");
    EXPECT_EQ(Row(16, 2), "Setup SYS|Lock");
    (void)PushIn(16, 33);
    EXPECT_THAT(PushType(BTN_SETUP_EXECUTE, "QPD7300WREN"),
                ElementsAre("put " + LOCK + "60038000"));
    (void)Push(BTN_SETUP_CLEAR);
    EXPECT_EQ(Row(16, 2), "Setup SYS|Lock");
}

// --- Network, System Config, Start Up, Initialize ---

using SystemPage = SetupTest;
static const std::string NETWORK = "Engineering Setup@System@Network Config@";
static const std::string CONFIG = "Engineering Setup@System@System Config@";

TEST_F(SystemPage, IdsSetTheAddressesThatDefineSends)
{
    (void)Open(0x73110000);
    const Lines list = {"KILL", "PNL001D001,PNL1,192.168.10.1,192.168.20.1,none",
                        "SWR001D001,SWR1,192.168.10.11,192.168.20.11,192.168.30.11"};
    TellAll(NETWORK + "List#", list);
    SelectRow(1);
    (void)PushType(33, ""); // the one it has
    EXPECT_EQ(Row(1, 3), "SWR001D001|SWR1|192.168.10.11");
    (void)PushType(33, "3");
    (void)PushType(34, "76");
    EXPECT_EQ(Row(1, 5), "SWR001D001|SWR1|192.168.13.76*|192.168.23.76*|192.168.33.76*");
    TellAll(NETWORK + "List#", list);
    (void)PushType(34, "77"); // still of the second row
    EXPECT_EQ(Row(1, 5), "SWR001D001|SWR1|192.168.13.77*|192.168.23.77*|192.168.33.77*");
    SelectRow(0);
    (void)PushType(34, "255");
    EXPECT_NE(Pane_GetActiveID(), 0) << "it says why not";
    Dismiss();
    EXPECT_EQ(Row(0, 5), "PNL001D001|PNL1|192.168.10.1|192.168.20.1|none");
    EXPECT_THAT(Choose(50, NO), IsEmpty());
    EXPECT_THAT(Choose(50, YES),
                ElementsAre("put " + NETWORK + "List#SWR001D001,SWR1,192.168.13.77,192.168.23.77," +
                                "192.168.33.77",
                            "put " + NETWORK + "Define#true", "add " + NETWORK + "Define"))
        << "what it followed earlier would be the outcome of the time before";
    const int busy = Pane_GetActiveID();
    (void)Tell(NETWORK + "Define#true");
    EXPECT_TRUE(Pane_Exist(busy));
    EXPECT_THAT(Tell(NETWORK + "Define#OK"), ElementsAre("remove " + NETWORK + "Define"));
    EXPECT_FALSE(Pane_Exist(busy));
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Pass(1000);
    (void)Choose(50, YES);
    (void)Tell(NETWORK + "Define#NG");
    EXPECT_NE(Pane_GetActiveID(), 0) << "it failed";
    (void)Answer(0);
}

TEST_F(SystemPage, AutoConfigThatFailsOrIsNotAnsweredSaysSo)
{
    (void)Open(0x73110000);
    for (const bool is_answered : {true, false}) {
        EXPECT_THAT(Choose(49, YES), ElementsAre("put " + NETWORK + "Network Auto Config#true",
                                                 "add " + NETWORK + "Network Auto Config",
                                                 "put Info@Self Diagnosis Notice@PNL#true"));
        const int busy = Pane_GetActiveID();
        if (is_answered)
            (void)Tell(NETWORK + "Network Auto Config#NG");
        else
            for (int s = 0; s < 62; s++)
                Pass(1000);
        EXPECT_FALSE(Pane_Exist(busy));
        EXPECT_NE(Pane_GetActiveID(), 0) << "it failed";
        (void)Answer(0);
    }
}

TEST_F(SystemPage, TextsForTheNetworkDriveAreExamined)
{
    (void)Open(0x73110098);
    EXPECT_EQ(Cell(1, 3, 1), "Not mounted");
    // Sent behind "put Info@System Setup Data@NFS "; empty: refused.
    for (const auto& [key, text, sent] : {std::tuple{33, "10.0.0.9", "Server#10.0.0.9"},
                                          {33, "a;b", ""},
                                          {33, "a b", ""},
                                          {33, "-h", ""},
                                          {34, "/files", "Mount Point#/files"},
                                          {34, "/a b", ""},
                                          {35, "soft,ro", "Mount Option#soft,ro"},
                                          {35, "soft;x", ""}}) {
        (void)Push(key);
        for (int i = 0; i < 40; i++)
            SendMessage(MSG_KEY, SDLK_BACKSPACE, 0, 0, 0);
        const std::string put = std::string("put Info@System Setup Data@NFS ") + sent;
        EXPECT_EQ(Type(text), *sent ? Lines{put} : Lines{}) << text;
        EXPECT_EQ(Pane_GetActiveID() != 0, !*sent) << text;
        Dismiss();
    }
    (void)Tell("Info@System Setup Data@NFS Server#10.9.9.9");
    EXPECT_EQ(Row(0, 2), "Server|10.9.9.9");
}

TEST_F(SystemPage, APanelsSwitchersGoAsOneLine)
{
    (void)Tell("Engineering Setup@System@Network Config@List#PNL002D002,PNL2,10.0.0.9,,");
    EXPECT_THAT(Open(0x73120000),
                testing::IsSupersetOf({"read " + CONFIG + "System Operation Mode@PNL1",
                                       "add " + CONFIG + "System Operation Mode@PNL2"}))
        << "the own one is followed anyway";
    TellAll(CONFIG, {"Panel Assign#1,1,2,0,5,0", "System Operation Mode@PNL1#Single Proc"});
    EXPECT_EQ(Row(0, 5), "PNL1|Single Proc|SWR1|SWR2|");
    (void)Push(34);
    (void)Choose(36, 1); // nobody
    EXPECT_EQ(Row(0, 5), "PNL1|Dual Simul*|SWR1|---*|");
    EXPECT_THAT(Choose(BTN_SETUP_EXECUTE, YES),
                ElementsAre("put " + CONFIG + "System Operation Mode@PNL1#Dual Simul",
                            "put " + CONFIG + "Panel Assign#1,1,0,0,5,0"));
    TellAll(CONFIG + "Tally Master@", {"PNL1#true", "PNL2#false"});
    (void)PushIn(1, 49);
    EXPECT_EQ(Row(0, 5), "PNL1|Dual Simul*|SWR1|---*|*") << "one panel has the tally";
    EXPECT_EQ(Row(1, 5), "PNL2||||Master*");
    EXPECT_THAT(Push(BTN_SYSCONF_SYSTEM1), ElementsAre("put " + CONFIG + "Setup Target#0"));
    EXPECT_THAT(Push(BTN_SYSCONF_SYSTEM2), ElementsAre("put " + CONFIG + "Setup Target#1"));
    (void)Tell(CONFIG + "Setup Target#1");
    EXPECT_EQ(BT_GetStatus(BTN_SYSCONF_SYSTEM2), BT_ON);
    EXPECT_EQ(BT_GetStatus(BTN_SYSCONF_SYSTEM1), BT_OFF);
    (void)Open(0x73120001);
    TellAll(CONFIG + "Switcher Assign#", {"1,1,2,0,0", "2,3,0,0,0"});
    EXPECT_EQ(Row(0, 3) + " " + Row(1, 2), "SWR1|DME1|DME2 SWR2|DME3");
}

TEST_F(SystemPage, InitializeTellsEachChosenUnitOnceAndForgets)
{
    (void)Open(0x73150000);
    (void)Tell("Engineering Setup@System@Start Up@Resume@SWR1#true");
    (void)PushIn(1, 33);
    (void)PushIn(3, 34);
    EXPECT_EQ(Row(1, 5), "SWR1|Resume|||All Clear*");
    EXPECT_THAT(Choose(BTN_SETUP_EXECUTE, YES),
                ElementsAre("put Engineering Setup@System@Initialize@Initialize#All Clear,SWR1",
                            "put Engineering Setup@System@Initialize@Initialize#Reset,DME1"));
    EXPECT_EQ(Row(1, 5), "SWR1|Resume|||");
    (void)Push(33);
    (void)Open(0x73150000);
    EXPECT_EQ(Row(3, 5), "DME1||||") << "nothing waits for the next visitor";
}

// --- Maintenance ---

TEST_F(SystemPage, TheClockRunsUntilAKnobTakesIt)
{
    (void)Open(0x73170000);
    Pass(10);
    const std::string now = Caption(BTN_MAINTENANCE_TIME);
    EXPECT_EQ(std::count(now.begin(), now.end(), '\n'), 2) << now;
    for (const auto& [box, value] : {std::pair{1, 2024}, {3, 31}, {4, 7}, {5, 8}, {2, 2}})
        SendMessage(LMSG_KNOBVAR, box, value, 0, 0);
    Pass(2000);
    EXPECT_EQ(Caption(BTN_MAINTENANCE_TIME), "Feb 29\n07:08:00\n2024") << "no 31st of February";
    (void)Push(BTN_MAINTENANCE_TIME);
    EXPECT_EQ(Shown("Year") + " " + Shown("Day") + " " + Shown("Hour"), "2024 29 7");
    SendMessage(LMSG_KNOBVAR, 1, 2023, 0, 0);
    EXPECT_EQ(Caption(BTN_MAINTENANCE_TIME), "Feb 28\n07:08:00\n2023");
    (void)Push(49);
    Pass(10);
    EXPECT_NE(Caption(BTN_MAINTENANCE_TIME), "Feb 28\n07:08:00\n2023");
}

TEST_F(SystemPage, DrivesAreListedAndOneBecomesPrimary)
{
    ASSERT_EQ(::system("mkdir -p /mnt/usb/usb1 /mnt/usb/usb3 /mnt/data /var/nfs"), 0);
    (void)Open(0x73170000);
    EXPECT_EQ(Cell(1, 0, 0), "For displaying device information,");
    EXPECT_THAT(Usable({BTN_MAINTENANCE_FORMAT, BTN_MAINTENANCE_PRIMARY}), IsEmpty());
    (void)Push(35);
    EXPECT_EQ(Cell(1, 0, 0), "Local Drive");
    EXPECT_GT(atoi(LS_GetData(1, 0, 2)), 0);
    EXPECT_EQ(Cell(1, 1, 0) + Cell(1, 1, 2), "Network") << "not mounted";
    GL_NFS_Mounted = 1;
    (void)Push(35);
    EXPECT_GT(atoi(LS_GetData(1, 1, 2)), 0);
    GL_NFS_Mounted = 0;
    ASSERT_EQ(LS_GetNData(2), 2);
    SelectRow(1, 2);
    EXPECT_THAT(Push(BTN_MAINTENANCE_PRIMARY),
                ElementsAre("put Info@Operation Setup Data@Import Path#/mnt/usb/usb3/"));
    (void)Tell("Info@Operation Setup Data@Import Path#/mnt/usb/usb3/");
    EXPECT_EQ(Cell(2, 1, 0), "Removable 2 (Primary)");
    EXPECT_TRUE(atoi(LS_GetData(2, 1, 2)) > 0 && atoi(LS_GetData(2, 1, 4)) > 0);
    EXPECT_THAT(Choose(BTN_MAINTENANCE_FORMAT, NO), IsEmpty());
    EXPECT_EQ(Pane_GetActiveID(), 0) << "nothing was done";
    ASSERT_EQ(::system("rm -rf /var/tmp/device*; mkdir -p /var/tmp/device;"
                       "echo 1 > /var/tmp/device/usb_format"), // it will fail
              0);
    for (const int stick : {1, 0}) {
        SelectRow(stick, 2);
        (void)Choose(BTN_MAINTENANCE_FORMAT, YES);
        EXPECT_NE(Pane_GetActiveID(), 0);
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << "it is no longer busy";
        Dismiss();
    }
    EXPECT_EQ(FileText("/var/tmp/device.log"), "usb_format [/dev/sdb]\nusb_format [/dev/sda]\n");
    ASSERT_EQ(::system("rm -rf /var/tmp/device*; rmdir /mnt/usb/usb1 /mnt/usb/usb3"), 0);
}

TEST_F(SystemPage, TheDriverOfTheSticksIsReloadedThenTheDrivesAreReadAnew)
{
    static uint32_t number = 2000;
    const std::string storage = "File@Access@USB Storage ";
    // What the server makes of the job that was just sent, to be followed by the next one.
    const auto end = [&](const Lines& sent, const std::string& verb, const char* outcome) {
        const std::string put = "put " + storage + verb + "#";
        EXPECT_EQ(sent.size(), 1u);
        EXPECT_TRUE(sent[0].starts_with(put)) << sent[0];
        const std::string ack = std::to_string(++number);
        (void)Tell(storage + verb + sent[0].substr(put.size() - 1) + ack);
        return Tell(storage + verb + "@Status#" + ack + "," + outcome);
    };
    (void)Open(0x73170000);
    const std::string unread = LS_GetData(1, 0, 0);
    Lines sent = Push(38);
    EXPECT_THAT(end(sent, "Reload", "NG"), IsEmpty());
    EXPECT_NE(Pane_GetActiveID(), 0) << "it says so";
    Dismiss();
    sent = end(Push(38), "Reload", "OK");
    EXPECT_EQ(LS_GetData(1, 0, 0), unread) << "not yet";
    (void)end(sent, "Refresh", "OK");
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(Cell(1, 0, 0), "Local Drive");
    Pass(1000);
    sent = Push(38);
    (void)Answer(0); // Cancel
    EXPECT_THAT(end(sent, "Reload", "OK"), IsEmpty());
    EXPECT_EQ(Push(38).size(), 1u) << "and can begin again";
    (void)Leave();
    EXPECT_EQ(QueueRoot, nullptr);
}
