// The recorder of menu macros: what a touch leaves behind, what a file holds, what a run sends.
#include "memory.h"
#include "menu_macro.h"
#include "menu_macro_private.h"
#include "netio.h"
#include "pane.h"
#include "pc_file_dual.h"
#include "pc_menu_macro_edit.h"
#include "table_page.h"
#include "text.h"
#include <filesystem>
#include <fstream>

constexpr char BACKUP[] = "/mnt/data/Menu_Macro_tmp/";
constexpr char TRANSFER[] = "/var/tmp/MenuMacro/";
constexpr uint32_t EXEC = 0x54310000, COPY = 0x54330000, DELETE = 0x54360000, EDIT = 0x71440102,
                   SETUP = 0x54310099;

struct MenuMacro : TablePage {
    void TearDown() override
    {
        for (const char* dir : {BACKUP, TRANSFER})
            std::filesystem::remove_all(dir);
        TablePage::TearDown();
    }
    // What one touch sends.
    static void Sends(const Lines& commands)
    {
        MenuMacro_TouchCount++;
        for (const std::string& command : commands)
            Net_SendCommand(command.c_str());
        (void)TakeQueuedCommands();
    }
    static void Record(bool auto_insert = true)
    {
        mm_edit_open(1);
        GL_MenuMacro_AT_Store = auto_insert;
    }
    static Lines Events(const CURRENT_REGISTER_DATA* node)
    {
        Lines events;
        for (; node; node = node->next) {
            std::string event;
            for (int n = 0; n < node->event_data.protcol_cnt; n++)
                event += mm_event_command(node->event_data, n);
            events.push_back(event);
        }
        return events;
    }
    static Lines Recorded() { return Events(mm_edit.list); }
    static std::string Path(const char* dir, int number)
    {
        char path[64];
        PrintText(path, "%smm_reg%02d.tmp", dir, number);
        return path;
    }
    static std::string File(int number) { return FileText(Path(BACKUP, number)); }
    static void Write(const char* dir, int number, const std::string& text)
    {
        std::filesystem::create_directories(dir);
        std::ofstream(Path(dir, number)) << text;
    }
    static void Load(int number, const std::string& events)
    {
        Write(BACKUP, number, events);
        ASSERT_EQ(mm_macro_file_load(number - 1), 0);
    }
    // Groups of commands with the ms before each, "500:a b"; at most ms of passes.
    static Lines Run(int ms)
    {
        Lines groups;
        for (int t = 0, since = 0; t < ms; t += 10, since += 10) {
            Pass(10);
            std::string group;
            for (const std::string& line : TakeQueuedCommands())
                group += (group.empty() ? "" : " ") + line;
            if (group.empty())
                continue;
            groups.push_back(std::to_string(since) + ":" + group);
            since = 0;
        }
        return groups;
    }
};

TEST_F(MenuMacro, TheTapTellsTheOperatorsCommandsFromTheProgramsOwn)
{
    static const std::tuple<uint32_t, int, int, Lines> cases[] = {
        {PAGE_TOP, 0, 0, {"put M/E-1@Key1@Type@Key Type#Chroma", "default M/E-1@Key1@Edge@Width"}},
        {PAGE_TOP, 1, 1, {"Event@Pause Set#1.5"}},
        {PAGE_TOP,
         -1,
         -1,
         {"read M/E-1@Key1@Type@Key Type", "add M/E-1@Key1@Type@Key Type",
          "remove M/E-1@Key1@Type@Key Type", "put TopMenu@SubMenuSite#1", "putM/E-1#1", ""}},
        {PAGE_TOP,
         -1,
         0,
         {"put Engineering Setup@System@Format#1", "put Frame Mem@Clip@Delete@All#1",
          "put Frame Mem@File@Delete Thumbnail@Single#X"}},
        {0x25120000, 0, 0, {"put Frame Mem@File@Delete Thumbnail@Single#X"}},
        {0x21210000, 0, 0, {"put Frame Mem@File@Delete Thumbnail@Single#X"}},
        {0x25120000, -1, -1, {"read Frame Mem@File@Delete Thumbnail@Single"}},
    };
    for (const auto& [page, result, unrestricted, lines] : cases)
        for (const std::string& line : lines) {
            GL_NowPage = page;
            GL_MenuMacroUnrestrict = 0;
            EXPECT_EQ(mm_protcol_invalid_check(line.c_str()), result) << line;
            GL_MenuMacroUnrestrict = 1;
            EXPECT_EQ(mm_protcol_invalid_check(line.c_str()), unrestricted) << line;
        }
    GL_MenuMacroUnrestrict = 0;
}

TEST_F(MenuMacro, ATouchIsAnEventALongOneSeveralPausesGoBetweenAndNothingIsRecordedUnasked)
{
    Sends({"put A#1"});
    Record();
    EXPECT_THAT(Recorded(), IsEmpty());
    Sends({"put A#1", "read A", "put B#2"});
    Sends({"put C#3"});
    MenuMacro_TouchCount++;
    for (const char* line : {"put P#1", "Event@Pause Set#1.0", "put Q#2"})
        mm_protcol_get((std::string(line) + "\n").c_str());
    GL_MM_Knob_Protcol = 1;
    Sends({"put D#4"}); // the page is told of a turn
    GL_MM_Knob_Protcol = 0;
    GL_MenuMacro_Run = 1;
    Sends({"put E#5"});
    SL_Reg_Recycle = 1;
    Sends({"put F#6"});
    GL_MenuMacro_Run = 0;
    EXPECT_THAT(Recorded(), ElementsAre("put A#1\nput B#2\n", "put C#3\n", "put P#1\n",
                                        "Event@Pause Set#1.0\n", "put Q#2\n", "put F#6\n"));
    mm_edit_close();
    Sends({"put G#7"});
    EXPECT_THAT(Recorded(), IsEmpty());
    Record();
    Sends(Lines(256, "put A#1"));
    ASSERT_EQ(Recorded().size(), 2u);
    EXPECT_EQ(mm_edit.list->event_data.protcol_cnt, 255);
    EXPECT_EQ(Recorded()[1], "put A#1\n");
    Sends(Lines(100, "put " + std::string(1000, 'x'))); // more bytes than an event has
    EXPECT_EQ(Recorded().size(), 4u);

    mm_edit_close();
    Load(1, "Event:put A#1\n");
    Record();
    GL_MM_Pause_AT_Insert = 1;
    Pass(700);
    Sends({"put B#2"});
    Pass(60000);
    Sends({"put C#3"});
    Sends({"put D#4"});
    EXPECT_THAT(Recorded(), ElementsAre("put A#1\n", "Event@Pause Set#0.5\n", "put B#2\n",
                                        "Event@Pause Set#60.0\n", "put C#3\n", "put D#4\n"));
}

TEST_F(MenuMacro, AFullListSaysSoOnce)
{
    Record();
    for (int i = 0; i < MENU_MACRO_EVENTS + 3; i++)
        Sends({"put A#1"});
    Sends({"put A#1", "put B#2"});
    EXPECT_EQ(int(Recorded().size()), MENU_MACRO_EVENTS);
    EXPECT_EQ(Recorded().back(), "put A#1\n") << "no part of a touch";
    const auto says = [] {
        Pass(10);
        return Pane_GetActiveID() != 0;
    };
    EXPECT_TRUE(says());
    Pane_Quit(Pane_GetActiveID());
    EXPECT_FALSE(says());
    mm_event_delete(0, true);
    Sends({"put B#2"});
    EXPECT_EQ(int(Recorded().size()), MENU_MACRO_EVENTS);
    EXPECT_FALSE(says()) << "there was room";
    Sends({"put C#3"});
    EXPECT_TRUE(says());
}

TEST_F(MenuMacro, WithoutAutoInsertTheKeyOfTheBaseAreaTakesTheLastTouch)
{
    Load(1, "Event:put Z#0\nEvent:put Y#0\n");
    (void)Open(0x11110000);
    const int blocks = UsedMemPtr;
    Record(false);
    const auto shown = [] { return std::pair(mm_display().event, mm_display().events); };
    EXPECT_EQ(shown(), std::pair(2, 2)) << "what comes goes behind the last";
    constexpr Rect STRIP = {508, 6, 797, 65};
    const auto before = Seen(STRIP);
    Sends({"put A#1"});
    EXPECT_NE(Seen(STRIP), before) << "what the key would take is shown";
    Sends({"put B#2", "put C#3"});
    EXPECT_STREQ(mm_display().command, "B#2");
    EXPECT_EQ(Recorded().size(), 2u);
    mm_event_insert();
    EXPECT_EQ(Recorded().back(), "put B#2\nput C#3\n");
    EXPECT_EQ(shown(), std::pair(3, 3));
    mm_event_delete(2, true);
    EXPECT_EQ(shown(), std::pair(2, 2)) << "the cursor is on what is left";
    mm_edit_close();
    Record(false);
    mm_event_insert();
    EXPECT_EQ(Recorded().size(), 2u) << "a touch of another recording";
    mm_edit_close();
    EXPECT_EQ(UsedMemPtr, blocks);
}

TEST_F(MenuMacro, AFileIsWrittenAsItIsReadAlsoBeforeTheStartHasReadIt)
{
    const std::string file = "#FName: mm_reg07.tmp.##################\n"
                             "Header:OPENING,1,4\nInterval:250\n"
                             "DME CH:00000011,0000000F\nEvent:put A@B#true\nContnue:default C\n"
                             "DME CH:00000000,00000000\nPause:1.5\n"
                             "DME CH:00000000,00000000\nLocal:LOCAL@X@Y\n";
    Load(7, file);
    EXPECT_EQ(mm_register_table(6).protcol_event_max, 3);
    EXPECT_STREQ(mm_register_table(6).name, "OPENING");
    EXPECT_EQ(reg_data[6].register_data->event_data.RefCH, 0x11u);
    ASSERT_EQ(mm_macro_file_save(6), 0);
    EXPECT_EQ(File(7), file);
    EXPECT_EQ(mm_macro_tmpfile_save("MYHOST:/var/tmp/MenuMacro/mm_reg07.tmp"), 0);
    EXPECT_EQ(FileText(Path(TRANSFER, 7)), file);

    const std::string opening = "Header:OPENING,1,1\nEvent:put A#1\n";
    Write(BACKUP, 8, opening);
    EXPECT_STREQ(mm_register_table(7).name, "OPENING");
    Write(BACKUP, 9, opening);
    mm_edit_open(9);
    EXPECT_EQ(mm_current_register_store(9), -1) << "locked";
    EXPECT_EQ(mm_current_register_store(11), 0);
    Write(BACKUP, 10, opening);
    mm_lock_exec(10, 10, false);
    EXPECT_THAT(File(10), HasSubstr("Header:OPENING,0,1\n"));
}

TEST_F(MenuMacro, AStrangeFileHarmsNothingAndATransferCopyBecomesTheRegisterOfItsName)
{
    static const std::tuple<const char*, const char*, int, int> cases[] = {
        {"", "MMCR3", 0, 0},
        {"#Event:put A#1\n", "MMCR3", 0, 0},
        {"Header:,0,9\nEvent:put A#1", "MMCR3", 1, 1},
        {"Header:A,B,1,9\nEvent:put A#1\r\nContnue:put B#2\r\n", "A_B", 1, 2},
        {"Header:NAME THAT IS LONG,0,1\nEvent:put A#1\n", "NAME_THA", 1, 1},
        {"Event:TM3WAIT#99999\nEvent:read A\nContnue:remove A\n", "MMCR3", 0, 0},
        {"Contnue:put A#1\nPause:1\nContnue:put B#2\n", "MMCR3", 3, 3},
        {"Wait Time:700\nPause:-3\nPause:nan\nPause:\n", "MMCR3", 3, 3},
    };
    for (const auto& [text, name, events, commands] : cases) {
        Load(3, text);
        EXPECT_EQ(mm_register_table(2).protcol_event_max, events) << text;
        EXPECT_EQ(reg_data[2].register_protcol_max, commands) << text;
        EXPECT_STREQ(mm_register_table(2).name, name) << text;
    }
    EXPECT_EQ(mm_register_interval(2), 700);
    std::string many;
    for (int i = 0; i < 2000; i++)
        many += "Contnue:put A#1\n";
    Load(3, many + "Event:put " + std::string(3000, 'x') + "\n");
    EXPECT_EQ(reg_data[2].register_protcol_max, MENU_MACRO_LINES);
    EXPECT_EQ(mm_macro_file_load(98), -1);
    EXPECT_EQ(mm_macro_file_load(99), -1);

    const char* const tmp = "MYHOST:/var/tmp/MenuMacro/mm_reg05.tmp";
    const char* const src = "MYHOST:/mnt/data/root/SYSTEM/MENUMACRO/CTRLCPU/SHOW.GUI_0004.MMR";
    Write(TRANSFER, 5, "Header:OLD,0,1\nEvent:put A#1\n");
    ASSERT_EQ(mm_macro_tmpfile_load(src, tmp), 0);
    EXPECT_STREQ(mm_register_table(4).name, "SHOW");
    EXPECT_THAT(File(5), HasSubstr("Header:SHOW,0,1\n")) << "it is there after a restart";
    const char* const first = "MYHOST:/var/tmp/MenuMacro/mm_reg01.tmp";
    Write(TRANSFER, 1, "Event:put A#1\n");
    EXPECT_EQ(mm_macro_tmpfile_load(src, first), 0);
    EXPECT_EQ(mm_macro_tmpfile_save(first), 0);
    EXPECT_THAT(FileText(Path(TRANSFER, 1)), HasSubstr("Header:SHOW,0,1\n"));
    mm_lock_exec(5, 5, true);
    EXPECT_EQ(mm_macro_tmpfile_load(src, tmp), -1) << "locked";
    mm_lock_exec(5, 5, false);
    Write(TRANSFER, 5, "rubbish\n");
    EXPECT_EQ(mm_macro_tmpfile_load(src, tmp), -1);
    EXPECT_THAT(Events(reg_data[4].register_data), ElementsAre("put A#1\n"));
    for (const char* path :
         {"", "mm_reg", "mm_reg0", "mm_reg00.tmp", "mm_regxx.tmp", "mm_reg06.tmp"})
        EXPECT_EQ(mm_macro_tmpfile_save(path), -1) << path;
}

TEST_F(MenuMacro, ARunSendsTheGroupsWithTheirWaitsAndMayBeStoppedInThem)
{
    Load(2, "Interval:300\nEvent:put Z#0\nPause:0\nEvent:put A#1\nContnue:put B#2\n"
            "Event:put C#3\nPause:1.0\nDME CH:00000001,00000003\nEvent:put D#4\n");
    SYS_DMEReference = 2;
    SYS_DMEChannel = 3;
    mm_macro_run(2);
    EXPECT_THAT(Run(3000), ElementsAre("0:put Z#0", "10:put A#1 put B#2", "300:put C#3",
                                       "1000:put Info@DME@RefCH#1 put D#4"));
    EXPECT_EQ(GL_MenuMacro_Run, 0);
    mm_macro_run(9); // empty
    EXPECT_EQ(GL_MenuMacro_Run, 0);
    Load(3, "Event:put A#1\n");
    mm_macro_run(3);
    EXPECT_EQ(mm_current_macro_status().remain, 100) << "by events where nothing is waited for";
    (void)Run(100);
    SYS_DMEReference = SYS_DMEChannel = 0;

    constexpr int LAST = MENU_MACRO_REGISTERS;
    Load(LAST, "Event:put A#1\nPause:2.0\nEvent:put B#2\n");
    (void)Tell("Info@Menu Macro@Run#" + std::to_string(LAST));
    EXPECT_THAT(Run(1000), ElementsAre("0:put A#1"));
    SendMessage(LMSG_BTNSEL, Arg("LOCAL@MenuMacro@Stop"), Arg(""), 0, 0);
    EXPECT_THAT(Run(5000), IsEmpty());
    mm_delete_delete_exec(LAST, LAST); // the run has a list of its own
    mm_current_macro_run();
    EXPECT_THAT(Run(5000), ElementsAre(HasSubstr(":put B#2")));
    EXPECT_EQ(mm_current_macro_status().event, 0) << "rewound";
}

TEST_F(MenuMacro, ARunHoldsForNothingButALinkThatIsDown)
{
    Load(2, "Interval:100\nEvent:put A#1\nEvent:put B#2\nEvent:put C#3\nEvent:put D#4\n");
    mm_macro_run(2);
    EXPECT_EQ(Run(50).size(), 1u);
    (void)Open(0x11110000);
    EXPECT_EQ(Run(100), Lines{"50:put B#2"});
    CreateWindow(WINDOW_MESSAGE, "x", {.message = "x"});
    EXPECT_EQ(Run(100), Lines{"50:put C#3"});
    CloseWindow();
    GL_ScreenSaver_Now = 1;
    EXPECT_EQ(Run(100), Lines{"50:put D#4"});
    GL_ScreenSaver_Now = 0;

    mm_macro_run(2);
    for (int i = 0; i < 100; i++)
        Pass(100); // nobody takes what is queued
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put A#1"));
    EXPECT_THAT(Run(1000), ElementsAre("90:put B#2", "100:put C#3", "100:put D#4")) << "no burst";
    Record();
    mm_macro_run(2);
    const auto runs = Seen({508, 6, 797, 65});
    MM_macro_ext_stop();
    EXPECT_NE(Seen({508, 6, 797, 65}), runs) << "of another state";
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put A#1"));
    EXPECT_THAT(Run(1000), IsEmpty());
}

TEST_F(MenuMacro, ARunIsRecordedAsItRanAndMayBeginAnother)
{
    Load(2, "Interval:100\nDME CH:00000001,00000000\nEvent:put A#1\nContnue:put B#2\n"
            "Event:put C#3\nPause:0.4\nEvent:put D#4\n");
    Record();
    SL_Reg_Recycle = 1;
    mm_macro_run(2);
    (void)Run(2000);
    EXPECT_EQ(Recorded(), Events(reg_data[1].register_data)) << "without the channels' commands";

    // A local action stands where the page may end the run that sends it.
    SL_Reg_Recycle = 0;
    mm_edit_close();
    Load(3, "Event:put C#3\n");
    Load(2, "Interval:100\nEvent:put A#1\nLocal:LOCAL@Menu Macro@Register@Exec@Recall_Run\n"
            "Contnue:put B#2\n");
    (void)Open(EXEC);
    Cursor(1, 2);
    mm_macro_run(2);
    EXPECT_THAT(Run(1000), ElementsAre("0:put A#1", HasSubstr(":put C#3")));
}

TEST_F(MenuMacro, TheEditorEditsAndStores)
{
    enum { PAUSE_SET = 21, BEFORE = 33, AFTER, MODIFY, DELETE_KEY, STORE = 20, EXIT = 54 };
    Load(1, "Event:put A#1\nContnue:put B#2\nEvent:put C#3\n");
    mm_lock_exec(2, 2, true);
    (void)Open(EDIT);
    EXPECT_EQ(GL_NowPage, 0x71440002u);
    EXPECT_STREQ(LS_GetData(1, 1, 2), "Continue");
    EXPECT_STREQ(LS_GetData(1, 2, 3), "C#3");
    (void)Press(BTN_MENU_MACRO_EVENT); // single commands
    LS_SetNowLine(1, 0);
    (void)Puts(DELETE_KEY);
    EXPECT_THAT(Recorded(), ElementsAre("put B#2\n", "put C#3\n"));
    (void)Puts(BTN_MENU_MACRO_EVENT);
    (void)Press(PAUSE_SET);
    EXPECT_THAT(Recorded(), ElementsAre("put B#2\n", "Event@Pause Set#0.5\n", "put C#3\n"));
    Sends({"put X#9"});
    LS_SetNowLine(1, 2);
    (void)Puts(MODIFY);
    EXPECT_THAT(Recorded(), ElementsAre("put B#2\n", "Event@Pause Set#0.5\n", "put X#9\n"));
    (void)Press(BEFORE);
    LS_SetNowLine(1, 0);
    (void)Puts(BEFORE);
    EXPECT_EQ(Recorded().front(), "put X#9\n");
    EXPECT_EQ(File(1).find("put X"), std::string::npos);
    (void)Press(STORE);
    EXPECT_EQ(Events(reg_data[0].register_data), Recorded());
    EXPECT_EQ(reg_data[0].register_protcol_max, int(Recorded().size()));
    EXPECT_THAT(File(1), HasSubstr("Event:put X#9\n"));
    (void)Tell("Panel@Common@Knob0#1"); // register 2
    (void)Puts(STORE);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "locked";
    CloseWindow();
    (void)Puts(BTN_MENU_MACRO_ALL);
    (void)Puts(DELETE_KEY);
    EXPECT_THAT(Recorded(), IsEmpty());
    (void)Puts(EXIT);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "not stored";
    EXPECT_EQ(GL_MenuMacro_Edit, 1);
    (void)Confirm();
    EXPECT_EQ(GL_MenuMacro_Edit, 0);
    EXPECT_EQ(GL_CreatePage, 0x54310000u);
}

TEST_F(MenuMacro, TheRegisterPagesWorkOnListAndFile)
{
    Load(1, "Header:ONE,0,1\nEvent:put A#1\n");
    Load(2, "Header:TWO,0,1\nEvent:put B#2\n");
    (void)Open(COPY);
    LS_SetNowLine(1, 0);
    LS_SetNowLine(2, 4);
    (void)Press(49);
    EXPECT_STREQ(mm_register_table(4).name, "ONE");
    EXPECT_STREQ(LS_GetData(2, 4, 1), "ONE");
    EXPECT_THAT(File(5), HasSubstr("Event:put A#1\n"));
    mm_lock_exec(2, 2, true);
    LS_SetNowLine(2, 1);
    (void)Puts(49);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "locked";
    EXPECT_STREQ(mm_register_table(1).name, "TWO");
    CloseWindow();
    (void)Open(DELETE);
    LS_SetNowLine(1, 0);
    (void)Press(49);
    (void)Confirm();
    EXPECT_EQ(mm_register_table(0).empty, 1);
    EXPECT_STREQ(mm_register_table(0).name, "MMCR1");
    EXPECT_EQ(File(1), "") << "it would be back after a restart";
    const FileKind& kind = file_kinds[FILEPAGE_MENU_MACRO]; // the file pages do it, too
    FileKind_Rename(kind, FileKind_Mask(kind, 0), 4, "NEW");
    EXPECT_THAT(File(5), HasSubstr("Header:NEW,"));
    mm_rename_exec(5, "ONE");
    mm_copy_exec(4, 5, 5, false); // the runs overlap
    EXPECT_STREQ(mm_register_table(5).name, "ONE");
    mm_copy_exec(6, 6, 1, false);
    MM_Register_Data_All_Delete();
    for (const int no : {0, 1})
        EXPECT_EQ(mm_register_table(no).empty, 1) << "locked or not";
    EXPECT_EQ(mm_macro_file_load(1), -1);
}

TEST_F(MenuMacro, TheFirstPageRecallsRunsAndStopsAndTheFileMenuLeadsToTheEditor)
{
    enum { REWIND = 49, RUN, STOP, RECALL, RECALL_RUN };
    Load(1, "Interval:1000\nEvent:put A#1\nEvent:put B#2\n");
    (void)Open(EXEC);
    EXPECT_STREQ(LS_GetData(1, 0, 3), "2");
    Cursor(1, 5);
    for (const int key : {RUN, RECALL, RECALL_RUN}) {
        (void)Puts(key);
        EXPECT_EQ(CloseWindow(), 0) << "there is nothing in it";
    }
    EXPECT_EQ(GL_MenuMacro_Run, 0);
    Cursor(1, 0);
    EXPECT_THAT(Puts(RECALL), IsEmpty());
    EXPECT_EQ(GL_MenuMacro_Run, 0);
    (void)Press(RUN);
    EXPECT_THAT(Run(500), ElementsAre(HasSubstr("put A#1")));
    (void)Press(STOP);
    (void)Puts(REWIND);
    (void)Press(RUN);
    EXPECT_THAT(Run(500), ElementsAre(HasSubstr("put A#1")));
    (void)Press(RECALL_RUN);
    const int pane = PaneMessage_Create("x", PANE_INFO, "x"); // a pane does not hold it up
    EXPECT_EQ(Run(1500).size(), 2u);
    (void)Pane_Quit(pane);

    Load(7, "Event:put A#1\n");
    (void)Open(0x71440001);
    EXPECT_STREQ(LS_GetData(1, 6, 0), "7"); // files count from 0, the operator does not
    Cursor(1, 6);
    (void)Press(BTN_FILE_EDIT);
    ASSERT_EQ(GL_CreatePage, EDIT);
    (void)Open(GL_CreatePage);
    EXPECT_EQ(mm_edit.reg, 7);
    EXPECT_THAT(Recorded(), ElementsAre("put A#1\n"));
}

// The knob turns the interval of the register at the cursor; the file follows when the cursor or
// the operator goes on.
TEST_F(MenuMacro, TheIntervalPageWritesWhatWasTurnedOnce)
{
    Load(1, "Header:ONE,0,1\nInterval:300\nEvent:put A#1\n");
    Load(2, "Header:TWO,0,1\nInterval:700\nEvent:put B#2\n");
    (void)Open(SETUP);
    const auto at = [](int row) {
        SendMessage(LMSG_LISTSEL, 1, row, 0, 0);
        Pass(10);
        return Shown("Interval\nseconds");
    };
    constexpr Rect STRIP = {100, 352, 590, 412};
    EXPECT_EQ(at(0), "0.3");
    const auto one = Seen(STRIP);
    EXPECT_EQ(at(1), "0.7");
    EXPECT_NE(Seen(STRIP), one);
    EXPECT_EQ(at(0), "0.3");
    const std::string before = File(1);
    for (const double seconds : {0.4, 0.5})
        SendMessage(LMSG_KNOBFVAR, 1, Arg(&seconds), 0, 0);
    EXPECT_NE(Seen(STRIP), one);
    EXPECT_EQ(File(1), before) << "not for every step";
    EXPECT_EQ(at(1), "0.7");
    EXPECT_THAT(File(1), HasSubstr("Interval:500\n"));
    std::filesystem::remove_all(BACKUP);
    EXPECT_EQ(at(0), "0.5");
    EXPECT_EQ(at(1), "0.7");
    EXPECT_EQ(File(1) + File(2), "") << "nothing was turned";
    mm_lock_exec(2, 2, true);
    const double seconds = 0.9;
    SendMessage(LMSG_KNOBFVAR, 1, Arg(&seconds), 0, 0);
    EXPECT_EQ(mm_register_interval(1), 700) << "locked";
    (void)at(0);
    SendMessage(LMSG_KNOBFVAR, 1, Arg(&seconds), 0, 0);
    (void)Leave();
    EXPECT_THAT(File(1), HasSubstr("Interval:900\n"));
}
