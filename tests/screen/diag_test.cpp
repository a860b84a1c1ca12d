// The Diag pages as units with faults make them look.
#include "page_table/diag.h"
#include "selfdiag.h"
#include "table_page.h"
#include "text.h"

struct DiagPictures : TablePage {
    static void Report(const std::string& unit_class, const std::string& report)
    {
        (void)Tell("INFORMATION@" + unit_class + " Self Diagnosis Notice@" + report);
    }
    static void Faults()
    {
        Report("PNL", "FAN Operation Hours#PNL1,8760,12345,8760,8760");
        Report("PNL", "Fan Speed#PNL1,OK,NG(Min),OK,OK");
        Report("PNL", "PSU Status#PNL1,Exist,OK,OK,OK,Exist,NG,NG,OK");
        Report("PNL", "PSU Status#DCU1,Exist,OK,OK,OK,None");
        Report("SWR", "Circuit Board ID#SWR1,CPU-31,SYS-12,XPT-44");
        Report("SWR", "Board Temperature#SWR1,OK,OK,NG");
        Report("SWR", "Reference Status#SWR1,OK,None");
        Report("DME", "Circuit Board Function#DME1,OK,OK,OK,NG");
        // The same time in every run.
        DiagUnit unit;
        for (int c = 0; c < DIAG_CLASSES; c++)
            for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++)
                for (int i = 0; i < unit.items; i++)
                    if (unit.item[i].status)
                        PrintText(unit.item[i].time, "Nov.25.2026 20:%02d:%02d", 15 + c, i % 60);
    }
};

TEST_F(DiagPictures, Status)
{
    Faults();
    Open(PAGE_DIAG_STATUS);
    (void)Touch(200, 78 + 22 * 1 + 5);
    Paint();
    EXPECT_TRUE(MatchesGolden("diag_status"));
}

TEST_F(DiagPictures, HistoryUnderAPopup)
{
    Faults();
    while (SelfDiag_GetLogMax() > 0)
        (void)SelfDiag_LogDelete(0);
    DiagUnit unit;
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++)
            for (int i = 0; i < unit.items; i++)
                if (unit.item[i].status)
                    SelfDiag_LogAdd(unit, i, nullptr);
    Open(PAGE_DIAG_HISTORY);
    (void)Touch(660, 390); // "Plural"
    (void)Touch(200, 78 + 22 * 3 + 5);
    GL_ErrorPopup_On = 1;
    BA_RedrawTitle();
    Paint();
    EXPECT_TRUE(MatchesGolden("diag_history"));
}
