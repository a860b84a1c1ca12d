// The outputs of the frame memory and the clip store's pages: what touches ask of the server and of
// the hub, what is refused, and what a queue of file operations does one after another.
#include "a_ff_private.h"
#include "a_fm.h"
#include "a_fm_private.h"
#include "clip_store.h"
#include "display.h"
#include "page_table/fmem_clip.h"
#include "pc_fmem.h"
#include "server_page.h"

const std::string TREE = FM_TREE, PUT = "put " + TREE;

struct ClipPages : ClipStoreTest<ServerPage> {
    void SetUp() override
    {
        ClipStoreTest::SetUp();
        for (const char* folder :
             {"NEWS", "NEWS/A", "NEWS/A/B", "NEWS/A/B/C", "SPORT", "TALL", "TALL/ER"})
            Folder(folder);
        Clip("OPENING", 100);
        Clip("STILL", 1);
        Clip("NEWS/A/ONE", 10);
        Clip("NEWS/A/B/TWO", 1);
        (void)Open(0x21110000);
        for (int n = 0; n < FM_OUTPUTS; n++) { // as after a start
            Show(n, "0,");
            (void)Tell(TREE + "Play@FM" + std::to_string(n + 1) + "#0,0,0,0");
        }
    }
    static void Show(int output, const std::string& status)
    {
        (void)Tell(TREE + "Output Status@FM" + std::to_string(output + 1) + "#" + status);
    }
    // What the hub is asked for: "File:Move root/A.SFH root/B.SFH".
    static Strings Asked()
    {
        Strings asked;
        for (const std::string& line : TakeQueuedHubLines())
            asked.push_back(line.substr(line.find("ClipStore") + 9));
        return asked;
    }
    // Every request is granted until there is none any more; all of them.
    static Strings Grant(const char* status = "7F")
    {
        Strings all;
        for (Strings some = Asked(); !some.empty(); some = Asked())
            for (const std::string& line : some) {
                all.push_back(line);
                const size_t colon = line.find(':');
                Hub("Result", "ClipStore" + line.substr(0, colon),
                    line.substr(colon + 1) + ":" + status);
            }
        return all;
    }
    static void Enter(const std::string& text) // in the keyboard window
    {
        for (const char c : text)
            SendMessage(MSG_KEY, tolower(c), isupper(c) ? KMOD_LSHIFT : 0, 0, 0);
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        for (int i = 0; i < 4; i++)
            Pass(100);
    }
    static void OpenPage(uint32_t id)
    {
        (void)Open(id);
        for (int i = 0; i < FF_AREAS; i++)
            (void)FF_ChangeDirectory(i, "/");
        FF_ClearCheckedObjectList(0);
        (void)Asked();
    }
    static void Choose(const char* name) // in the first area, where it is not the selection
    {
        FF_OBJECT object;
        if (FF_GetSelectedObject(0, &object) != 0 || strcmp(object.name, name) != 0)
            Cell(0, name);
    }
    // The cell of a name becomes the selection, or is checked while that is on.
    static void Cell(int area, const char* name)
    {
        const FM2_FILE_AREA& a = ff.area[area];
        const Rect g = ff_grid(a.parts);
        for (int n = 0; n < a.file_list.rec_num; n++)
            if (strcmp(a.file_list.cell[n]->element.name, name) == 0) {
                const int row = n / a.parts.h_num;
                (void)FF_SetScrollBarPosition(area, row);
                (void)Touch(g.x1 + n % a.parts.h_num * a.parts.h_gap + 60,
                            g.y1 + (row - a.top) * FF_CELL_H + 40);
                return;
            }
    }
};
constexpr int YES = 1, NO = 2;
constexpr uint32_t RECALL = 0x21110000, PLAY = 0x21130000, RECORD = 0x21140000, FREEZE = 0x21150000,
                   COPY_MOVE = 0x21210000, DELETE_RENAME = 0x21220000, PAIR = 0x21230000;

TEST_F(ClipPages, OutputsFollowTheirTalliesAndAPairWorksOnItsEvenOne)
{
    (void)Open(RECALL);
    EXPECT_THAT(Usable({BTN_FMEM_RECALL}), IsEmpty());
    FM_OBJECT o;
    static const std::tuple<const char*, int, const char*> steps[] = {
        {"2,/OPENING.SFH", FMOUT_STATUS_FREEZE_RECALL, "/root/OPENING"},
        {"3,/STILL.SFH", FMOUT_STATUS_FREEZE_RECALL, "/root/OPENING"},
        {"2,", FMOUT_STATUS_FREEZE_RECALL, "/root/OPENING"},
        {"1,x,y", FMOUT_STATUS_FREEZE_RECALL, "/root/OPENING"},
        {"1", FMOUT_STATUS_FREEZE_RECALL, "/root/OPENING"},
        {"1,", FMOUT_STATUS_THROUGH, ""},
        {"2,/NEWS/GONE.SFH", FMOUT_STATUS_FREEZE_RECALL, "/root/NEWS/GONE"},
        {"0,", FMOUT_STATUS_BLACK, ""},
    };
    for (const auto& [value, status, name] : steps) {
        Show(19, value);
        EXPECT_EQ(FM_GetRecalledObject(19, &o), 0);
        EXPECT_EQ(o.fmout_status, status) << value;
        EXPECT_STREQ(o.name, name) << value;
    }
    Show(20, "1,");
    EXPECT_EQ(FM_GetRecalledObject(20, &o), -1);
    Show(2, "2,/NEWS/A/ONE.SFH");
    (void)Tell(TREE + "Play@FM3#1,5,0,9");
    FM_GetRecalledObject(2, &o);
    EXPECT_EQ(o.frame, 10);
    EXPECT_EQ(o.fmout_status, FMOUT_STATUS_PLAY);
    EXPECT_EQ(FM_FindUser("/root/NEWS", true), 2);
    EXPECT_EQ(FM_FindUser("/root/NEWS/A/ON", false), -1);
    Hub("Delete", "ClipStoreFile", "root/NEWS/A/ONE.SFH");
    FM_GetRecalledObject(2, &o);
    EXPECT_EQ(o.frame, 0);

    OpenPage(RECALL);
    const Rect box = fm_box(0);
    const Rect beside = {box.x1 + (FM_BOX_W + 112) / 2, box.y1 + 116, box.x2, box.y1 + 129};
    const auto before = Seen(beside);
    const Display display;
    Show(0, "2,/WWWWWWWWWWWWWWWW.SFH");
    EXPECT_EQ(Seen(beside), before) << "its name is cut";
    (void)Touch(115 + 10, 226 + 10); // the second output
    EXPECT_EQ(FM_GetSelect(), 1);
    EXPECT_THAT(Touch(160, 446), ElementsAre(PUT + "Pair@FM1&2#true"));
    EXPECT_EQ(FM_GetSelect(), 1); // by the tally, not by the press
    (void)Tell(TREE + "Ancillary Enable@FM2#1,0");
    EXPECT_THAT(Touch(160, 496), ElementsAre(PUT + "Ancillary Enable@FM2#1,1"));
    (void)Tell(TREE + "Pair@FM1&2#true");
    EXPECT_EQ(FM_GetSelect(), 0);
    Pass(10);
    EXPECT_EQ(Display::Lacks(), "");
    TellAll(TREE, {"Ancillary Enable@FM1#1,1"});
    EXPECT_THAT(Touch(160, 496),
                ElementsAre(PUT + "Ancillary Enable@FM1#0,0", PUT + "Ancillary Enable@FM2#0,0"));
    for (const int pair : {1, 3}) { // the first is chosen already
        (void)Touch(160, 396);
        SendMessage(LMSG_PANEQUIT, Pane_GetActiveID(), pair, 0, 0);
        (void)Pane_Quit(Pane_GetActiveID());
    }
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(PUT + "Out Pair Select#FM5&6"));
    Cell(0, "NEWS");
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_RECALL), BT_DISABLED);
    Cell(0, "OPENING");
    EXPECT_THAT(Press(BTN_FMEM_RECALL), ElementsAre(PUT + "Recall@FM1#1,0,1,0,/OPENING.SFH",
                                                    "put Macro@Clip Recall@FM1#1,/OPENING.SFH"));
    // Once more, it stays at its frame; a still has none.
    Show(0, "2,/OPENING.SFH");
    (void)Tell(TREE + "Play@FM1#0,7,0,99");
    EXPECT_THAT(Puts(BTN_FMEM_RECALL), Contains(PUT + "Recall@FM1#1,0,1,7,/OPENING.SFH"));
    Cell(0, "STILL");
    EXPECT_THAT(Puts(BTN_FMEM_RECALL), Contains(PUT + "Recall@FM1#1,0,0,0,/STILL.SFH"));
    EXPECT_THAT(Press(BTN_FMEM_BLACK), ElementsAre(PUT + "Record@Through@FM1#1,0"));
    EXPECT_THAT(Press(BTN_FMEM_THROUGH), ElementsAre(PUT + "Record@Through@FM1#1,1"));
    TellAll(TREE, {"Pair@FM1&2#false", "Out Pair Select#FM5&6"});
    EXPECT_EQ(FM_GetSelect(), 4);
    (void)Tell(TREE + "Out Pair Select#FM1&2");
}

TEST_F(ClipPages, PlaysBetweenPointsThatAreInOrder)
{
    const auto put = [](const std::string& rest) { return ElementsAre(PUT + "Play@" + rest); };
    EXPECT_THAT(Open(PLAY), testing::IsSupersetOf({"read  " + TREE + "Output Status@FM1#",
                                                   "read  " + TREE + "Play@FM20#"}));
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_PLAY), BT_DISABLED);
    Show(0, "2,/OPENING.SFH");
    (void)Tell(TREE + "Play@FM1#0,7,20,80");
    static const std::pair<int, const char*> keys[] = {
        {BTN_FMEM_PLAY, "FM1#0,0,20,80"},         {BTN_FMEM_STOP, "FM1#0,1,20,80"},
        {BTN_FMEM_START_SET, "Start TC@FM1#0,0"}, {BTN_FMEM_STOP_RESET, "Stop TC@FM1#0,6"},
        {BTN_FMEM_LOOP, "Play Mode@FM1#0,1"},     {BTN_FMEM_REW, "Jump Frame@FM1#0,0"},
        {BTN_FMEM_FF, "Jump Frame@FM1#0,1"},      {BTN_FMEM_MIDDLE, "Jump Frame@FM1#0,2"},
        {BTN_FMEM_PINGPONG, "Play Mode@FM1#0,2"}, {BTN_FMEM_SPEED, "Variable Speed@FM1#0,50"}};
    for (const auto& [key, sent] : keys)
        EXPECT_THAT(Press(key), put(sent));
    (void)Tell(TREE + "Play@Play Mode@FM1#1");
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_LOOP), BT_ON);
    EXPECT_THAT(Press(BTN_FMEM_LOOP), put("Play Mode@FM1#0,0"));
    EXPECT_THAT(Touch(690, 130), put("Jump Frame@FM1#0,4,99"));
    for (const char* other : {"FM2#-75", "FM21#-75", "FM0#-75"})
        (void)Tell(TREE + "Play@Variable Speed@" + other);
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_SPEED), BT_OFF);
    (void)Tell(TREE + "Play@Variable Speed@FM1#0,-75");
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_SPEED), BT_ON);
    EXPECT_THAT(Puts(BTN_FMEM_SPEED), put("Variable Speed@FM1#0,0"));
    static const std::tuple<int, int, const char*> boxes[] = {
        {NB_FMEM_START, 12, "Start TC@FM1#0,4,12"},
        {NB_FMEM_STOP, 90, "Stop TC@FM1#0,4,90"},
        {NB_FMEM_FRAME, 33, "Jump Frame@FM1#0,4,33"},
        {NB_FMEM_SPEED, 50, "Variable Speed@FM1#0,50"}};
    for (const auto& [box, value, sent] : boxes) {
        SendMessage(LMSG_KNOBVAR, box, value, 0, 0);
        EXPECT_THAT(TakeQueuedCommands(), put(sent));
    }
    (void)Tell(TREE + "Play@Variable Speed@FM1#0");
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_SPEED), BT_OFF);
    TellAll(TREE, {"Play@Start TC@FM1#0,30", "Play@Stop TC@FM1#70"});
    EXPECT_THAT(Press(BTN_FMEM_STOP), put("FM1#0,1,30,70"));
    TellAll(TREE, {"Play@Start TC@FM1#x", "Play@Stop TC@FM1#0,-1"});
    EXPECT_THAT(Puts(BTN_FMEM_STOP), put("FM1#0,1,0,0"));
    (void)Tell(TREE + "Play@FM1#0,8,20,80");
    for (const int answer : {NO, YES}) {
        (void)Press(BTN_FMEM_TRIM);
        (void)Answer(answer);
        EXPECT_EQ(Asked(), answer == NO ? Strings{} : Strings{"File:Trim root/OPENING.SFH 20 80"});
    }
    fmem_drop();
    (void)Tell(TREE + "Play@FM1#0,7,80,20");
    EXPECT_THAT(Press(BTN_FMEM_PLAY), IsEmpty());
    EXPECT_NE(Pane_GetActiveID(), 0);
}

TEST_F(ClipPages, WhatIsPlayedIsOfAClipAndItsBoxesKeysAndLineFollowIt)
{
    const auto all_of = [](const char* verb) {
        return testing::IsSupersetOf({verb + ("  " + TREE) + "Play@Start TC@FM1#",
                                      verb + ("  " + TREE) + "Play@Jump Frame@FM20#"});
    };
    EXPECT_THAT(Open(PLAY), all_of("add"));
    (void)Tell(TREE + "Play@Play Mode@FM1#2");
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_PINGPONG), BT_ON);
    const std::vector<int> keys = {BTN_FMEM_REW, BTN_FMEM_PLAY, BTN_FMEM_STOP_SET, BTN_FMEM_SPEED};
    Show(0, "2,/STILL.SFH");
    (void)Tell(TREE + "Play@FM1#0,0,20,80");
    EXPECT_THAT(Usable(keys), testing::IsEmpty());
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_TRIM), BT_DISABLED);
    SendMessage(LMSG_KNOBVAR, NB_FMEM_START, 0, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), testing::IsEmpty());
    EXPECT_THAT(Touch(690, 130), testing::IsEmpty());
    Clip("SHORT", 2);
    Show(0, "2,/SHORT.SFH");
    EXPECT_EQ(Usable(keys), keys);

    Show(0, "2,/OPENING.SFH"); // 100 frames
    static const std::tuple<const char*, bool, const char*> cases[] = {
        // runs, frame, points; can be trimmed; what Play asks for
        {"0,7,20,80", true, "0,20,80"}, {"1,7,20,80", false, "0,20,80"},
        {"0,7,80,20", false, ""},       {"0,7,20,20", true, "0,20,20"},
        {"0,7,20,80", true, "0,20,80"}, {"0,7,0,99", false, "0,0,99"},
        {"0,7,0,80", true, "0,0,80"},   {"0,7,0,99", false, "0,0,99"},
        {"0,7,20,99", true, "0,20,99"},
    };
    for (const auto& [told, can, asked] : cases) {
        (void)Tell(TREE + "Play@FM1#" + told);
        EXPECT_EQ(BT_GetVisible(BTN_FMEM_TRIM) == BT_ENABLED, can) << told;
        EXPECT_EQ(BT_GetStatus(BTN_FMEM_PLAY), *told == '1' ? BT_ON : BT_OFF) << told;
        const Lines sent = Puts(BTN_FMEM_PLAY);
        EXPECT_EQ(sent, *asked ? Lines{PUT + "Play@FM1#0," + asked} : Lines{}) << told;
        if (!*asked)
            (void)Answer(0);
    }
    constexpr Rect MIDDLE = {440, 130, 445, 135}; // of the line, without a mark
    (void)Tell(TREE + "Play@FM1#0,33,80,20");
    const auto without = Seen(MIDDLE);
    (void)Tell(TREE + "Play@FM1#0,33,20,80");
    EXPECT_NE(Seen(MIDDLE), without) << "what plays stands out";
    EXPECT_THAT(Drag(1, 794), Contains(PUT + "Play@Start TC@FM1#0,4,99")); // the last one
    EXPECT_EQ(Shown("Start TC") + Shown("Stop TC") + Shown("Jump\nFrame"), "208033");
    SendMessage(LMSG_KNOBVAR, NB_FMEM_START, 0, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(PUT + "Play@Start TC@FM1#0,4,0"));
    for (const int speed : {30, 0}) { // it is not variable now: nothing is told
        SendMessage(LMSG_KNOBVAR, NB_FMEM_SPEED, speed, 0, 0);
        EXPECT_THAT(TakeQueuedCommands(), testing::IsEmpty());
        EXPECT_THAT(Puts(BTN_FMEM_SPEED), ElementsAre(PUT + "Play@Variable Speed@FM1#0,30"));
    }
    (void)Tell(TREE + "Play@Variable Speed@FM1#0,70");
    EXPECT_EQ(Shown("Speed"), "70");

    const Display display;
    const std::vector<Rect> parts = {{250, 88, 690, 109},
                                     {248, 116, 692, 151},
                                     {250, 166, 379, 205},
                                     {405, 166, 534, 205},
                                     {561, 166, 690, 205}}; // name, line, start, now, stop
    const auto seen = [&] {
        std::vector<std::vector<uint32_t>> pictures;
        for (const Rect& part : parts)
            pictures.push_back(Seen(part));
        EXPECT_EQ(Display::Lacks(), "");
        return pictures;
    };
    auto before = seen();
    static const std::pair<const char*, std::vector<bool>> lines[] = {
        {"Play@FM1#0,50,20,80", {false, true, false, true, false}},
        {"Play@FM1#1,50,20,80", {false, false, false, true, false}},
        {"Play@Start TC@FM1#0,40", {false, true, true, false, false}},
        {"Play@Stop TC@FM1#0,70", {false, true, false, false, true}},
        {"Output Status@FM1#2,/STILL.SFH", {true, true, true, true, true}},
        {"Play@Start TC@FM2#0,10", {false, false, false, false, false}},
    };
    for (const auto& [line, changed] : lines) {
        (void)Tell(TREE + line);
        const auto now = seen();
        for (size_t i = 0; i < parts.size(); i++)
            EXPECT_EQ(now[i] != before[i], changed[i]) << line << " " << i;
        Display::handed = 0;
        Pass(10);
        EXPECT_EQ(Display::handed, 0) << line;
        before = now;
    }
    Show(0, "2,/OPENING.SFH");
    (void)Tell(TREE + "Play@FM1#0,7,20,80");
    (void)Press(BTN_FMEM_TRIM);
    Show(0, "2,/STILL.SFH"); // while the operator thinks
    (void)Answer(YES);
    EXPECT_THAT(Asked(), testing::IsEmpty());
    TellAll(TREE + "Play@", {"Variable Speed@FM1#0,50", "Variable Speed@FM1#0", "Play Mode@FM1#0"});
    EXPECT_THAT(Leave(), all_of("remove"));
}

TEST_F(ClipPages, RecordsUnderAFreeNameAsLongAsItsProcessorSays)
{
    OpenPage(RECORD);
    Clip("img0000", 5);
    TellAll(TREE + "Record@", {"Rec Len@PROC1#0,300", "Freeze/Rec Name@PROC1#0,/img0000.SFH"});
    EXPECT_THAT(Press(BTN_FMEM_REC), ElementsAre(PUT + "Record@Freeze/Rec Name@FM1#0,/img0001.SFH",
                                                 "put  " + TREE + "Record@FM1#1,0,300,1"));
    (void)Tell(TREE + "Record@PROC1#1,10,300,1");
    EXPECT_THAT(Press(BTN_FMEM_REC), IsEmpty());
    EXPECT_THAT(Press(BTN_FMEM_REC_STOP), ElementsAre("put  " + TREE + "Record@FM1#1,0,300,0"));
    Clip("img0001", 10);
    (void)Tell(TREE + "Record@PROC1#0,10,300,0");
    (void)Tell(TREE + "Record@Freeze/Rec Name@PROC2#/OTHER7.SFH"); // of other outputs
    (void)Open(FREEZE);
    (void)Press(BTN_FMEM_FIELD);
    EXPECT_THAT(Press(BTN_FMEM_FREEZE),
                ElementsAre(PUT + "Record@Freeze/Rec Name@FM1#0,/img0002.SFH",
                            PUT + "Record@Freeze@FM1#0,1"));
    static const std::pair<const char*, std::string> names[] = {
        // told by another panel, and the next one
        {"/NEWS/take09.SFH", "take09"},
        {"1,/OPENING.SFH", "OPENING0000"},
        {"/img0001.SFH", "img0002"},
        {",", "img0002"},
        {"0,20261125183322_1", "img0002"},
        {"0,20261125183322", "20261125183322"}, // no time's name
        {"/a012345678901234567890123456789.SFH", "a012345678901234567890123456789"},
        {"/b0123456789012345678901234567890123.SFH", "a012345678901234567890123456789"}};
    for (const auto& [told, next] : names) {
        (void)Tell(TREE + "Record@Freeze/Rec Name@PROC1#" + told);
        EXPECT_THAT(Puts(BTN_FMEM_FREEZE).front(), HasSubstr("#0,/" + next + ".SFH"));
    }
    EXPECT_THAT(Press(BTN_FMEM_FREEZE_TIME),
                ElementsAre(testing::MatchesRegex("put " + TREE +
                                                  "Record@Freeze/Rec Name@PROC1#0,20[0-9]{12}_1"),
                            PUT + "Record@Freeze@PROC1#0,1"));
    (void)Press(BTN_FMEM_FRAME);
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_FRAME), BT_ON);
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_FIELD), BT_OFF);
    EXPECT_THAT(Puts(BTN_FMEM_FREEZE), Contains(PUT + "Record@Freeze@FM1#0,0"));

    EXPECT_THAT(Open(RECORD), testing::IsSupersetOf({"read " + TREE + "Record@PROC1",
                                                     "read " + TREE + "Record@PROC2",
                                                     "read  " + TREE + "Output Status@FM1#"}));
    const auto record = [] { // name and command
        Lines sent = Puts(BTN_FMEM_REC);
        sent.resize(2);
        return sent;
    };
    for (const char* told : {"PROC1#0,125", "PROC2#0,7", "PROC1#0", "PROC1#1000000"}) {
        (void)Tell(TREE + "Record@Rec Len@" + told);
        EXPECT_EQ(record()[1], "put  " + TREE + "Record@FM1#1,0,125,1") << told;
    }
    (void)Tell(TREE + "Out Pair Select#FM11&12"); // of the other half
    EXPECT_EQ(record()[1], "put  " + TREE + "Record@FM11#2,0,125,1");
    (void)Tell(TREE + "Out Pair Select#FM1&2");
    (void)Open(RECORD);
    EXPECT_EQ(record()[1], "put  " + TREE + "Record@FM1#1,0,125,1") << "kept from the last visit";
    EXPECT_EQ(Shown("Rec Len"), "125");
    (void)Tell(TREE + "Record@Rec Len@PROC1#1");
    EXPECT_EQ(record()[1], "put  " + TREE + "Record@FM1#1,0,1,1");
    SendMessage(LMSG_KNOBVAR, NB_FMEM_LENGTH, 300, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put  " + TREE + "Record@Rec Len@FM1#0,300"));
    EXPECT_EQ(record()[1], "put  " + TREE + "Record@FM1#1,0,300,1");
    constexpr Rect LINE = {244, 430, 690, 451};
    const auto waiting = Seen(LINE);
    (void)Tell(TREE + "Record@PROC1#1,10,300"); // of no output: that is this one
    EXPECT_EQ(Usable({BTN_FMEM_REC, BTN_FMEM_REC_STOP}),
              std::vector<int>({BTN_FMEM_REC, BTN_FMEM_REC_STOP}));
    EXPECT_EQ(BT_GetStatus(BTN_FMEM_REC), BT_ON);
    const auto recorded = Seen(LINE);
    EXPECT_NE(recorded, waiting);
    (void)Tell(TREE + "Record@PROC1#1,20,300");
    const auto further = Seen(LINE);
    EXPECT_NE(further, recorded);
    (void)Tell(TREE + "Record@Freeze/Rec Name@PROC1#/other7.SFH");
    EXPECT_EQ(Seen(LINE), further) << "a name stays while it is recorded";
    (void)Tell(TREE + "Record@PROC1#0,20,300");
    EXPECT_THAT(record()[0], HasSubstr("#0,/other7.SFH"));
    auto before_that = Seen(LINE);
    for (const char* told : {"Rec Len@PROC1#40", "Freeze/Rec Name@PROC1#/third.SFH"}) {
        (void)Tell(TREE + "Record@" + told);
        EXPECT_NE(Seen(LINE), before_that) << told;
        before_that = Seen(LINE);
    }
    SendMessage(LMSG_KNOBVAR, NB_FMEM_LENGTH, 50, 0, 0);
    EXPECT_NE(Seen(LINE), before_that);
    (void)TakeQueuedCommands();
    // Another output of the same processor records: neither of them is touched here.
    (void)Tell(TREE + "Record@PROC1#1,10,300,2");
    EXPECT_EQ(Usable({BTN_FMEM_REC, BTN_FMEM_REC_STOP}), std::vector<int>{});
    (void)Open(FREEZE);
    EXPECT_EQ(Usable({BTN_FMEM_FREEZE, BTN_FMEM_FREEZE_TIME}), std::vector<int>{});
    (void)Open(RECORD);
    (void)Tell(TREE + "Record@PROC1#0,10,300,0");
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_REC), BT_ENABLED);
    // A name that is entered is the next one.
    const std::string before = record()[0];
    std::string longer = before;
    longer.insert(longer.rfind('.'), "z");
    for (const char* text : {"z", "\b"}) {
        (void)Puts(BTN_FMEM_REC_NAME);
        Enter(text);
        EXPECT_EQ(record()[0], *text == 'z' ? longer : before);
    }
    (void)Tell(TREE + "Record@Freeze/Rec Name@PROC1#/rush.SFH");
    (void)Puts(BTN_FMEM_REC_NAME);
    Enter("a");
    (void)Open(FREEZE); // nothing was recorded under it
    EXPECT_THAT(Puts(BTN_FMEM_FREEZE).front(), HasSubstr("#0,/rush0000a0000.SFH"));
    (void)Open(RECORD);
    Clip("rush0000a0000b", 5);
    (void)Puts(BTN_FMEM_REC_NAME);
    Enter("b"); // there is one
    EXPECT_THAT(record()[0], HasSubstr("#0,/rush0000a0000b0000.SFH"));
    (void)Open(RECORD);
    EXPECT_THAT(Leave(),
                testing::IsSupersetOf({"remove " + TREE + "Record@Rec Len@PROC1",
                                       "remove " + TREE + "Record@Freeze/Rec Name@PROC2"}));
}

TEST_F(ClipPages, CopiesATreeAndMovesOneWithItsFolders)
{
    OpenPage(COPY_MOVE);
    Folder("NEWS/Z"); // behind the deep one
    (void)FF_ChangeDirectory(1, "/SPORT");
    Cell(0, "NEWS");
    (void)Press(BTN_FMEM_COPY); // NEWS/A/B/C is as deep as can be
    EXPECT_THAT(Asked(), IsEmpty());
    EXPECT_THAT(Message(), HasSubstr("upper limit"));
    (void)Answer(0);
    Hub("Delete", "ClipStoreFolder", "root/NEWS/Z");
    (void)FF_ChangeDirectory(0, "/NEWS");
    Cell(0, "A");
    (void)Press(BTN_FMEM_COPY);
    EXPECT_THAT(Grant(),
                ElementsAre("Folder:MakeFolder root/SPORT/A", "Folder:MakeFolder root/SPORT/A/B",
                            "Folder:MakeFolder root/SPORT/A/B/C",
                            "File:Copy root/NEWS/A/B/TWO.SFH root/SPORT/A/B/TWO.SFH",
                            "File:Copy root/NEWS/A/ONE.SFH root/SPORT/A/ONE.SFH"));
    Pass(10);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Folder("SPORT/A"); // and now it is there
    Cell(0, "A");
    Cell(0, "A");
    (void)FF_ChangeDirectory(0, "/NEWS/A");
    (void)FF_ChangeDirectory(1, "/");
    Folder("B");
    Cell(0, "B");
    (void)Press(BTN_FMEM_MOVE);
    EXPECT_THAT(Asked(), IsEmpty());
    (void)Answer(YES); // over the one that is there; a refusal does not stop the rest
    EXPECT_THAT(Grant("80"), ElementsAre("Folder:MakeFolder root/B/C",
                                         "File:Move root/NEWS/A/B/TWO.SFH root/B/TWO.SFH",
                                         "Folder:DeleteFolder root/NEWS/A/B/C",
                                         "Folder:DeleteFolder root/NEWS/A/B"));
    EXPECT_FALSE(fmfileope_is_busy());
}

TEST_F(ClipPages, KeysAreThereForWhatIsChosenAndWorkOnAllThatIsChecked)
{
    const auto keys = [] {
        return Usable({BTN_FMEM_COPY, BTN_FMEM_MOVE, BTN_FMEM_DUPLICATE, BTN_FMEM_NEW_FOLDER,
                       BTN_FMEM_DELETE, BTN_FMEM_STORE, BTN_FMEM_RENAME});
    };
    const std::vector<int> usable = {BTN_FMEM_COPY, BTN_FMEM_MOVE, BTN_FMEM_DUPLICATE,
                                     BTN_FMEM_NEW_FOLDER};
    OpenPage(COPY_MOVE);
    Choose("STILL");
    EXPECT_THAT(keys(), ElementsAre(BTN_FMEM_DUPLICATE, BTN_FMEM_NEW_FOLDER)) << "the same folder";
    for (const char* right : {"/SPORT", "/NEWS/A/B"}) {
        (void)FF_ChangeDirectory(1, right);
        EXPECT_EQ(keys(), usable) << right;
    }
    (void)FF_ChangeDirectory(1, "/NEWS/A/B/C"); // no folder below it
    EXPECT_THAT(keys(), ElementsAre(BTN_FMEM_COPY, BTN_FMEM_MOVE, BTN_FMEM_DUPLICATE));
    (void)Press(BTN_FMEM_COPY); // but a clip
    EXPECT_THAT(Grant(), ElementsAre("File:Copy root/STILL.SFH root/NEWS/A/B/C/STILL.SFH"));
    (void)FF_ChangeDirectory(0, "/TALL/ER"); // nothing is in it
    EXPECT_THAT(keys(), IsEmpty());
    (void)FF_ChangeDirectory(1, "/SPORT");
    Pass(1000);
    (void)Press(BTN_FMEM_NEW_FOLDER);
    Enter("DAY");
    EXPECT_THAT(Asked(), ElementsAre("Folder:MakeFolder root/SPORT/DAY"));

    OpenPage(DELETE_RENAME);
    (void)FF_ChangeDirectory(0, "/TALL/ER");
    EXPECT_THAT(keys(), IsEmpty());
    (void)FF_ChangeDirectory(0, "/");
    (void)FF_SetSelectMode(0, SELECT_MODE_SELECT);
    Cell(0, "OPENING");
    EXPECT_THAT(keys(), ElementsAre(BTN_FMEM_DELETE, BTN_FMEM_STORE, BTN_FMEM_RENAME));
    Cell(0, "STILL");
    EXPECT_THAT(keys(), ElementsAre(BTN_FMEM_DELETE, BTN_FMEM_STORE));
    (void)Press(BTN_FMEM_STORE);
    EXPECT_NE(Pane_GetActiveID(), 0) << "its progress";
    EXPECT_THAT(Grant(), ElementsAre("File:Store root/OPENING.SFH", "File:Store root/STILL.SFH"));
    EXPECT_EQ(FF_GetCheckedObjectNum(0), 0);
    Pass(1000);
    Cell(0, "STILL");
    (void)Press(BTN_FMEM_DELETE);
    (void)Answer(YES);
    EXPECT_THAT(Grant(), ElementsAre("File:Delete root/STILL.SFH"));
    EXPECT_EQ(FF_GetCheckedObjectNum(0), 0);
}

TEST_F(ClipPages, TheProgressCountsEveryStepAndWhatIsRefusedIsNoneOfThem)
{
    static const std::tuple<int, const char*, const char*> cases[] = {
        {FMFILEOPE_COPY, "/root/SPORT/A", "(0/5)\n"}, // the folder, what is in it
        {FMFILEOPE_MOVE, "/root/SPORT/A", "(0/8)\n"}, // and three folders that go
        {FMFILEOPE_DELETE, nullptr, "(3/8)\n"},       // with nothing to be asked for three
        {FMFILEOPE_RENAME, "/root/NEWS/D", "(0/1)\n"},
    };
    const auto text = [] {
        const PANE* const pane = pane_top();
        return std::string(pane && pane->each.progress.progmes ? pane->each.progress.progmes : "");
    };
    OpenPage(COPY_MOVE);
    for (const auto& [cmd, to, says] : cases) {
        EXPECT_EQ(fmfileope_start(cmd, OBJECT_TYPE_FOLDER, "/root/NEWS/A", to), 0);
        fmfileope_do(nullptr);
        EXPECT_EQ(text(), says) << cmd;
        (void)Grant();
        Pass(10);
        EXPECT_EQ(Pane_GetActiveID(), 0) << cmd;
    }
    for (const int cmd : {-1, int(FMFILEOPE_CMDS)})
        EXPECT_EQ(fmfileope_start(cmd, OBJECT_TYPE_FILE, "/root/STILL", nullptr), -1);
    EXPECT_EQ(fmfileope_start(FMFILEOPE_DELETE, OBJECT_TYPE_FILE, "/root/NONE", nullptr), -1);

    // Of three the first one plays, on the first output.
    Show(0, "2,/OPENING.SFH");
    (void)Tell(TREE + "Play@FM1#1,0,0,99");
    for (const char* name : {"/root/OPENING", "/root/STILL", "/root/NEWS/A/ONE"})
        EXPECT_EQ(fmfileope_start(FMFILEOPE_DELETE, OBJECT_TYPE_FILE, name, nullptr), 0);
    fmfileope_do(nullptr);
    EXPECT_THAT(Message(), HasSubstr("Cannot delete while playing back"));
    (void)Answer(YES); // it is no question
    EXPECT_EQ(text(), "(0/2)\n");
    EXPECT_THAT(Asked(), ElementsAre("File:Delete root/STILL.SFH"));
    Hub("Result", "ClipStoreFile", "Delete root/STILL.SFH:7F");
    EXPECT_EQ(text(), "(1/2)\n");
    EXPECT_EQ(pane_top()->each.progress.prog, 50);
    (void)Grant();

    // What is copied may be shown; what it would replace, not unasked.
    (void)Tell(TREE + "Play@FM1#0,0,0,99");
    const auto copy = [](int type, const char* from, const char* to) {
        EXPECT_EQ(fmfileope_start(FMFILEOPE_COPY, type, from, to), 0);
        fmfileope_do(nullptr);
    };
    copy(OBJECT_TYPE_FILE, "/root/OPENING", "/root/SPORT/OPENING");
    EXPECT_THAT(Grant(), ElementsAre("File:Copy root/OPENING.SFH root/SPORT/OPENING.SFH"));
    Pass(10);
    copy(OBJECT_TYPE_FILE, "/root/STILL", "/root/OPENING");
    EXPECT_THAT(Message(), HasSubstr("already existing"));
    SendMessage(LMSG_PANEQUIT, Pane_GetActiveID() + 100, YES, 0, 0); // another pane
    EXPECT_THAT(Message(), HasSubstr("already existing"));
    (void)Answer(YES);
    EXPECT_THAT(Message(), HasSubstr("which is being used"));
    (void)Answer(NO);
    EXPECT_THAT(Asked(), IsEmpty());
    EXPECT_FALSE(fmfileope_is_busy());
    Folder("SPORTS");
    copy(OBJECT_TYPE_FOLDER, "/root/SPORT", "/root/SPORT/SPORT");
    EXPECT_THAT(Message(), HasSubstr("into itself"));
    (void)Answer(0);
    copy(OBJECT_TYPE_FOLDER, "/root/SPORT", "/root/SPORTS/SPORT"); // its name is only alike
    EXPECT_THAT(Grant(), ElementsAre("Folder:MakeFolder root/SPORTS/SPORT"));
}

TEST_F(ClipPages, WhatIsInUseIsAskedAboutOrRefused)
{
    OpenPage(DELETE_RENAME);
    Show(5, "2,/NEWS/A/ONE.SFH");
    (void)Tell(TREE + "Play@FM6#1,0,0,9");
    Cell(0, "NEWS");
    (void)Press(BTN_FMEM_DELETE);
    (void)Answer(NO);
    EXPECT_FALSE(fmfileope_is_busy());
    (void)Press(BTN_FMEM_DELETE);
    (void)Answer(YES);
    (void)Answer(0); // it plays
    EXPECT_FALSE(fmfileope_is_busy());
    (void)Tell(TREE + "Play@FM6#0,0,0,9");
    for (const bool goes_black : {true, false}) {
        OpenPage(DELETE_RENAME);
        Choose("NEWS");
        Show(5, "2,/NEWS/A/ONE.SFH");
        (void)Press(BTN_FMEM_DELETE);
        (void)Answer(YES);
        EXPECT_THAT(Answer(YES), ElementsAre(PUT + "Record@Through@FM6#0,0")); // all the same
        for (const char* other : {"1,", "0,", "1,"})
            Show(8, other); // takes no time
        Pass(goes_black ? 10 : 990);
        EXPECT_THAT(Asked(), IsEmpty()); // not before it is black
        if (goes_black)
            Show(5, "0,");
        else
            Pass(10);
        const Strings asked = Grant();
        ASSERT_EQ(asked.size(), 6u); // two clips, four folders
        EXPECT_EQ(asked.back(), "Folder:DeleteFolder root/NEWS");
    }
}

TEST_F(ClipPages, NamesAreCheckedBeforeAnythingIsAsked)
{
    static const std::tuple<uint32_t, const char*, int, const char*, bool, const char*> cases[] = {
        {DELETE_RENAME, "STILL", BTN_FMEM_RENAME, "", false, ""}, // the same name
        {DELETE_RENAME, "STILL", BTN_FMEM_RENAME, "2", false,
         "File:Move root/STILL.SFH root/STILL2.SFH"},
        {DELETE_RENAME, "SPORT", BTN_FMEM_RENAME, "2", false, "File:Move root/SPORT root/SPORT2"},
        {DELETE_RENAME, "SPORT", BTN_FMEM_RENAME, " 2", false, "File:Move root/SPORT root/SPORT_2"},
        {DELETE_RENAME, "STILL", BTN_FMEM_RENAME, "ED", true, ""}, // it is there
        {DELETE_RENAME, "STILL", BTN_FMEM_RENAME, "6789012345678901", false,
         "File:Move root/STILL.SFH root/STILL6789012345678901.SFH"},
        {DELETE_RENAME, "SPORT", BTN_FMEM_RENAME, "6789012345678901", false,
         "File:Move root/SPORT root/SPORT67890123456"},
        {COPY_MOVE, "STILL", BTN_FMEM_DUPLICATE, "", true, ""},
        {COPY_MOVE, "STILL", BTN_FMEM_DUPLICATE, "_b", false,
         "File:Copy root/STILL.SFH root/STILL_b.SFH"},
        {COPY_MOVE, nullptr, BTN_FMEM_NEW_FOLDER, "", true, ""},
        {COPY_MOVE, nullptr, BTN_FMEM_NEW_FOLDER, "TALL", true, ""},
        {COPY_MOVE, nullptr, BTN_FMEM_NEW_FOLDER, "DAY", false, "Folder:MakeFolder root/DAY"},
    };
    Clip("STILLED", 1);
    for (const auto& [page, cell, key, typed, is_refused, ask] : cases) {
        SCOPED_TRACE(typed);
        OpenPage(page);
        if (cell)
            Choose(cell);
        (void)Press(key);
        Enter(typed);
        const Strings asked = Asked();
        EXPECT_EQ(asked.empty() ? "" : asked.front(), ask);
        EXPECT_EQ(Pane_GetActiveID() != 0, is_refused || fmfileope_is_busy());
        if (is_refused) {
            (void)Answer(0); // and the name is asked for again
            EXPECT_EQ(GetWindow(), WINDOW_KEYBOARD);
            (void)CloseWindow();
        }
        fmem_drop();
    }
}

TEST_F(ClipPages, WaitsForItsOwnResultUntilCancelOrTheHubsEnd)
{
    const std::string move = "Move root/STILL.SFH root/NEW.SFH";
    const auto rename = [] {
        EXPECT_EQ(fmfileope_start(FMFILEOPE_RENAME, OBJECT_TYPE_FILE, "/root/STILL", "/root/NEW"),
                  0);
        fmfileope_do(nullptr);
    };
    OpenPage(DELETE_RENAME);
    const std::string too_long(ELEMENT_PATH_SIZE, 'x');
    EXPECT_EQ(fmfileope_start(FMFILEOPE_RENAME, OBJECT_TYPE_FILE, "/root/STILL", too_long.c_str()),
              -1);
    rename();
    Hub("Result", "ClipStoreFile", "Move root/OTHER.SFH root/NEW.SFH:7F");
    for (const char* end : {":40", "", ":", ":x"})
        Hub("Result", "ClipStoreFile", move + end);
    for (const char* table : {"ClipStoreFile", "CS1.ClipStoreFolder"})
        SendMessage(MSG_SHPTALLY, Arg("Result"), Arg(table), 0, Arg((move + ":7F").c_str()));
    Folder("LATE");
    Pass(10);
    EXPECT_TRUE(fmfileope_is_busy());
    (void)Answer(1); // "Cancel"
    EXPECT_FALSE(fmfileope_is_busy());
    Hub("Result", "ClipStoreFile", move + ":7F");
    rename();
    FMCtrl3_HubLost();
    EXPECT_FALSE(fmfileope_is_busy());
    EXPECT_THAT(Message(), HasSubstr("STILL: NG([ERROR] Server Not Ready.)"));
    (void)Answer(0);
    FMCtrl3_HubLost();
    EXPECT_EQ(Pane_GetActiveID(), 0) << "nothing was under way";
}

TEST_F(ClipPages, LoadsUnloadsAndCouplesWhatFits)
{
    for (const auto& [key, verb] :
         {std::pair{BTN_FMEM_LOAD, "Register"}, {BTN_FMEM_UNLOAD, "UnRegister"}}) {
        const std::string asked = std::string("File:") + verb;
        OpenPage(0x21120000);
        (void)Open(0x21120000);
        EXPECT_EQ(BT_GetVisible(key), BT_DISABLED);
        (void)FF_SetSelectMode(0, SELECT_MODE_SELECT);
        Cell(0, "NEWS"); // a folder
        EXPECT_EQ(BT_GetVisible(key), BT_DISABLED);
        Cell(0, "OPENING");
        Cell(0, "STILL");
        (void)Press(key);
        SendMessage(LMSG_PANEQUIT, Pane_GetActiveID() + 1, 0, 0, 0); // not its progress
        EXPECT_THAT(Grant("85"),
                    ElementsAre(asked + " root/OPENING.SFH", asked + " root/STILL.SFH"));
        if (key == BTN_FMEM_LOAD)
            (void)Answer(0); // to the pane that says that memory is full
        EXPECT_EQ(FF_GetCheckedObjectNum(0), 0);
        (void)FF_ChangeDirectory(0, "/NEWS/A");
        (void)FF_SetSelectMode(0, SELECT_MODE_SELECT);
        Pass(1000); // the keys can be pressed again
        Cell(0, "ONE");
        (void)Press(key);
        EXPECT_THAT(Asked(), ElementsAre(asked + " root/NEWS/A/ONE.SFH"));
        (void)Leave();
        EXPECT_FALSE(fmem_progress_is_busy()) << "it ends with its page";
    }

    Clip("KEY", 100);
    Clip("BOTH", 100, 0, TIME, 1);
    OpenPage(PAIR);
    Cell(0, "OPENING");
    static const std::pair<const char*, bool> cases[] = {
        {"STILL", false}, {"OPENING", false}, {"BOTH", false}, {"KEY", true}};
    for (const auto& [key, can] : cases) {
        Cell(1, key);
        EXPECT_EQ(BT_GetVisible(BTN_FMEM_COUPLE) == BT_ENABLED, can) << key;
    }
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_SEPARATE), BT_DISABLED) << "it is no pair";
    (void)Press(BTN_FMEM_COUPLE);
    EXPECT_THAT(Grant(), ElementsAre("File:Couple root/OPENING.SFH root/KEY.SFH"));
    Cell(0, "BOTH");
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_COUPLE), BT_DISABLED) << "it has its key";
    EXPECT_EQ(BT_GetVisible(BTN_FMEM_SEPARATE), BT_ENABLED);
    (void)Press(BTN_FMEM_SEPARATE);
    EXPECT_THAT(Grant(), ElementsAre("File:Separate root/BOTH.SFH"));
}

TEST_F(ClipPages, TheRoomInMemoryIsShownOnceTheHubHasToldIt)
{
    OpenPage(0x21120000);
    Pass(10);
    const Display display;
    const auto room = [](int total) {
        SYS_MemoryFree = SYS_MemoryTotal = total;
        EXPECT_EQ(SendMessage(LMSG_FMLOAD, 0, 0, 0, 0), 0) << "the title shows it, too";
        Pass(10);
        EXPECT_EQ(Display::Lacks(), "");
        return PixelsIn({332, FMEM_KEYS_Y + 33, 434, FMEM_KEYS_Y + 52});
    };
    const auto none = room(0);
    EXPECT_THAT(none, Each(none[0]));
    const auto some = room(3000);
    EXPECT_NE(some, none);
    EXPECT_EQ(room(0), none);
    // A page that opens shows what was told before; nothing more is painted without news.
    constexpr Rect WHOLE = {332, FMEM_KEYS_Y + 14, 434, FMEM_KEYS_Y + 52};
    SYS_MemoryFree = SYS_MemoryTotal = 3000;
    (void)Open(0x21120000);
    Pass(10);
    const auto label = PixelsIn({WHOLE.x1, WHOLE.y1, WHOLE.x2, WHOLE.y1 + 18});
    EXPECT_THAT(label, Contains(Not(label[0])));
    EXPECT_EQ(PixelsIn({WHOLE.x1, WHOLE.y1 + 19, WHOLE.x2, WHOLE.y2}), some);
    TDL_FillRect(WHOLE.x1, WHOLE.y1, WHOLE.x2, WHOLE.y2, 0x123456);
    Pass(10);
    EXPECT_THAT(PixelsIn(WHOLE), Each(0x123456u));
    SYS_MemoryFree = SYS_MemoryTotal = 0;
}
