// The editors of macros with something in hand.
#include "macro_file.h"
#include "pc_macro.h"
#include "pc_macro_offline.h"
#include "pc_macro_online_edit.h"
#include "process.h"
#include "table_page.h"
#include "text.h"
#include <fstream>
#include <unistd.h>

struct MacroPictures : TablePage {
    void TearDown() override
    {
        TablePage::TearDown();
        unlink(MACRO_EDIT_FILE);
    }
};

TEST_F(MacroPictures, OfflineInTheMiddleOfAnEvent)
{
    (void)MakeDir(MACRO_EDIT_DIR);
    std::ofstream(MACRO_EDIT_FILE)
        << "PNL 0001PNL_0012.PMROPENING\n#?,To the studio\n"
           "Event?,AuxXpt,AuxBus?,Aux3,Xpt?,12,VideoKey?,Video\n"
           "Event?,KeyAutoTransition,ME?,P/P,Key?,Key2,Time?,30,Direction?,Normal\n"
           "Continue?,TimelineRun,Region?,DME1\nEvent?,Pause,Time?,45\n"
           "Event?,NextTransition,ME?,M/E-1,All?,Off,KeyPriority?,On,BKGD?,On,Key1?,On\n"
           "Event?,MECut,ME?,M/E-1\n";
    GL_MacroEditNo = 12;
    CopyText(GL_MacroEditNoName, "12  Name: OPENING");
    Open(PAGE_MACRO_OFFLINE);
    SendMessage(LMSG_LISTSEL, LIST_MACRO_EVENTS, 2, MACRO_COL_SLOT + 1, 0);
    Paint();
    EXPECT_TRUE(MatchesGolden("macro_offline"));
    SendMessage(LMSG_LISTSEL, LIST_MACRO_EVENTS, 5, MACRO_COL_CONTENTS, 0);
    (void)Press(BTN_MACRO_GROUP_7);
    Paint();
    EXPECT_TRUE(MatchesGolden("macro_offline_next"));
}

TEST_F(MacroPictures, OnlineWithAnEventToInsert)
{
    const std::string head = "Macro@Reg@On Line Edit@";
    GL_Macro_Online_TrueOrFalse = 1;
    GL_MacroEditNo = 12;
    Open(PAGE_MACRO_ONLINE);
    TellAll(head + "Current Work Register Event Data#",
            {"KILL", "1,0,#,To the studio", "2,0,Event,AuxXpt,AuxBus,Aux3,Xpt,12,VideoKey,Video",
             "3,0,Event,TimelineRun,Region,M/E-1", "3,1,Continue,TimelineRun,Region,DME1",
             "4,0,Event,NextTransition,ME,M/E-1,All,Off,KeyPriority,On,BKGD,On,Key1,On,Key2,Off,"
             "Key3,Off,Key4,Off,Key5,Off,Key6,Off,Key7,Off,Key8,Off",
             "5,0,Event,PatternLimit,ME,P/P,Status,On,Limit,40"});
    TellAll(head, {"Macro Edit Mode#true", "Remain Macro Event Cell#1017",
                   "Current Macro Register Info#12,OPENING,U,5,4", "Macro Event Edit Range#1,5",
                   "Macro Insert Mode#Edit Insert", "Insert Enable Flag#true",
                   "Current Work Register Modify Flag#0100"});
    Paint();
    EXPECT_TRUE(MatchesGolden("macro_online"));
}

TEST_F(MacroPictures, Attachment)
{
    Open(0x54210000);
    TellAll("Macro@Register@List#", {"3,S,OPENING,U,0,0", "12,S,NEWS,U,0,0", "40,S,CLOSE,L,0,0"});
    TellAll("Macro@Attachment@List#",
            {"1,5,3,0,3,0,0,0,0,0,0,0,0", "1,12,1,1,12,2,1,0,0,0,0,0,0",
             "2,4,1,2,12,0,0,0,0,0,0,0,0", "8,262,0,0,40,0,0,0,0,0,0,0,0",
             "11,30,1,0,40,0,0,0,0,0,0,0,0", "43,12,3,0,3,0,0,0,0,0,0,0,0"});
    Tell("Macro@Attachment@Xpt Attachment Mode#Pair Mode");
    Pass(10);
    Touch(200, 133); // the second row
    Paint();
    EXPECT_TRUE(MatchesGolden("macro_attach"));
}
