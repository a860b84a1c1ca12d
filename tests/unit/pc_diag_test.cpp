// The Diag pages: what they show of the reports, and what is deleted from the history.
#include "display.h"
#include "page_table/diag.h"
#include "pane.h"
#include "selfdiag.h"
#include "table_page.h"
#include "text.h"

struct DiagPage : TablePage {
    static constexpr const char* PNL = "INFORMATION@PNL Self Diagnosis Notice@";
    static constexpr const char* SWR = "INFORMATION@SWR Self Diagnosis Notice@";

    static Lines Rows()
    {
        Paint();
        Lines rows;
        for (int r = 0; r < LS_GetNData(1); r++)
            rows.push_back(Cells(1, r, 0, 4));
        return rows;
    }
    static void Fan(const std::string& words)
    {
        (void)Tell(std::string(PNL) + "Fan Speed#PNL1," + words);
    }
    // Messages of the log, newest first.
    static Lines Log()
    {
        Lines log;
        for (int i = 0; i < SelfDiag_GetLogMax(); i++)
            log.push_back(SelfDiag_GetLog(i)->message);
        return log;
    }
    static void TouchRow(int row) { (void)Touch(200, 78 + 22 * (row + 1) + 5); }
    static void Answer(bool yes) // the question of a key
    {
        ASSERT_NE(Pane_GetActiveID(), 0);
        (void)Touch(yes ? 317 : 450, 402);
        Pass(200);
        Pass(10);
        ASSERT_EQ(Pane_GetActiveID(), 0);
    }
};

TEST_F(DiagPage, TheFirstPageShowsTheErrorsOfAllAndRefreshWaitsForTheUnits)
{
    Fan("OK,NG");
    (void)Tell(std::string(SWR) + "Reference Status#SWR1,OK,None");
    (void)Tell(std::string(PNL) + "FAN Operation Hours#PNL1,10,20,30");
    GL_ErrorPopup_On = 1;
    Open(PAGE_DIAG_STATUS);
    EXPECT_EQ(GL_ErrorPopup_On, 0) << "looking answers the popup";
    const Display display;
    EXPECT_THAT(Rows(), ElementsAre("PNL1|Error|FAN-2 Control Function Error|20 h",
                                    "SWR1|Error|No Reference|"));
    constexpr Rect STRIP = {100, 372, 697, 414};
    const auto strip = PixelsIn(STRIP);
    TouchRow(1);
    Paint();
    EXPECT_NE(PixelsIn(STRIP), strip);
    EXPECT_EQ(Display::Lacks(), "");
    Fan("NG,NG"); // above the current row
    EXPECT_EQ(Rows().size(), 3u);
    EXPECT_EQ(LS_GetNowLine(1), 2) << "stays on its item";
    Fan("OK,OK");
    (void)Tell(std::string(SWR) + "Reference Status#SWR1,OK,Exist");
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_THAT(Seen(STRIP), Contains(0xFFFFFFu)) << "it says that there is none";

    Fan("NG");
    EXPECT_EQ(Rows().size(), 1u);
    EXPECT_THAT(Press(49), Contains("put Info@Self Diagnosis Notice@PNL#true"));
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 1);
    Fan("NG,NG");
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 1);
    EXPECT_EQ(Rows().size(), 2u);
}

TEST_F(DiagPage, AClassShowsWhatItsUnitsHaveReported)
{
    Fan("OK,NG(Max),OK");
    Open(DiagClassPage(DIAG_PANEL));
    EXPECT_THAT(Rows(), ElementsAre("PNL1|OK|FAN-1 Speed OK|",
                                    "PNL1|Error|FAN-2 Control Function Error (Max)|",
                                    "PNL1|OK|FAN-3 Speed OK|"));
    EXPECT_EQ(LS_GetNowLine(1), 1) << "the first error";
    (void)Tell(std::string(PNL) + "FAN Operation Hours#PNL1,8760");
    EXPECT_EQ(Rows()[0], "PNL1|OK|FAN-1 Speed OK|8760 h") << "a value alone";
    Open(DiagClassPage(DIAG_DCU));
    EXPECT_THAT(Rows(), ElementsAre("DCU1|--|No report|", "DCU2|--|No report|"));
    GL_ErrorPopup_On = 1;
    Open(DiagClassPage(DIAG_SWITCHER));
    EXPECT_EQ(GL_ErrorPopup_On, 1) << "these are not all";
    ASSERT_THAT(Rows(), ElementsAre("SWR1|--|No report|"));
    DEVICE* const switcher = std::exchange(DEV_MySwr[0], nullptr);
    const int switchers = std::exchange(SYS_MySwrMax, 0);
    EXPECT_THAT(Rows(), IsEmpty()) << "it has left while the page is open";
    DEV_MySwr[0] = switcher;
    SYS_MySwrMax = switchers;
    EXPECT_EQ(Rows().size(), 1u);
}

TEST_F(DiagPage, WhatWasTouchedIsDeletedWhateverComesMeanwhile)
{
    Fan("NG");
    Fan("OK");
    Fan("OK,NG");
    const Lines log = {"FAN-2 Control Function Error", "FAN-1 Speed OK",
                       "FAN-1 Control Function Error"};
    GL_ErrorPopup_On = 1;
    Open(PAGE_DIAG_HISTORY);
    EXPECT_EQ(GL_ErrorPopup_On, 0);
    EXPECT_EQ(Rows().size(), 3u);
    ASSERT_EQ(Log(), log);
    TouchRow(1);
    Fan("OK,NG,NG"); // moves it to row 2
    Paint();
    EXPECT_EQ(LS_GetSelected(1, 0), 2);
    (void)Press(BTN_DIAG_DELETE);
    Fan("OK,NG,NG,NG"); // and once more, under the question
    Answer(false);
    EXPECT_EQ(Log().size(), 5u);
    Paint();
    (void)Press(BTN_DIAG_DELETE);
    Fan("NG,NG,NG,NG");
    Answer(true);
    EXPECT_THAT(Log(), ElementsAre("FAN-1 Control Function Error", "FAN-4 Control Function Error",
                                   "FAN-3 Control Function Error", log[0], log[2]));
    Paint();
    EXPECT_EQ(LS_GetNData(1), 5);

    LS_SetMS(1, 1);
    LS_SetSelected(1, 0, 0, 1);
    LS_SetSelected(1, 4, 0, 1);
    const bool has_third = LS_IsSelected(1, 3, 0) == 1; // the current one, from before
    Fan("OK,NG,NG,NG");
    Paint();
    EXPECT_EQ(LS_IsSelected(1, 1, 0), 1);
    EXPECT_EQ(LS_IsSelected(1, 5, 0), 1);
    EXPECT_EQ(LS_IsSelected(1, 0, 0), 0);
    (void)Press(BTN_DIAG_DELETE);
    Answer(true);
    EXPECT_EQ(Log().size(), has_third ? 3u : 4u);
    EXPECT_EQ(Log()[0], "FAN-1 Speed OK");
    (void)Press(BTN_DIAG_DELETE_ALL);
    Answer(true);
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_THAT(Disabled(),
                testing::IsSupersetOf({int(BTN_DIAG_DELETE), int(BTN_DIAG_DELETE_ALL)}));
}
