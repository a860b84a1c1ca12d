// The pages of the menu macros: the editor with its display in the base area, and a run.
#include "menu_macro_private.h"
#include "table_page.h"
#include "text.h"

struct MenuMacroPictures : TablePage {
    static void Fill(int number, const char* name, int seconds)
    {
        MacroReader reader;
        mm_read_line(reader, (std::string("Header:") + name + ",0,0").c_str());
        for (const char* line : {"Event:put M/E-1@Key1@Type@Key Type#Chroma",
                                 "Contnue:put M/E-1@Key1@Edge@Edge#Border", "Pause:1.5",
                                 "Event:default M/E-1@Key1@Edge@Edge Type@Border@Density",
                                 "Event:put M/E-2@Misc@Transition@Next Transition@Key2#true"})
            mm_read_line(reader, line);
        reg_data[number - 1] = reader.reg;
        RegDataWaitList[number - 1].time = seconds * 1000;
    }
};

TEST_F(MenuMacroPictures, Edit)
{
    Fill(1, "OPENING", 1);
    (void)Open(0x71440102);
    MenuMacro_TouchCount++;
    mm_protcol_get("put M/E-1@Wipe@Main Pattern@Pattern#7\n");
    mm_protcol_get("put M/E-1@Wipe@Edge@Border#true\n");
    mm_event_insert();
    LS_SetNowLine(1, 3);
    Paint();
    EXPECT_TRUE(MatchesGolden("menu_macro_edit"));
}

TEST_F(MenuMacroPictures, Exec)
{
    Fill(1, "OPENING", 2);
    Fill(3, "CLOSING", 1);
    mm_lock_exec(4, 4, true);
    (void)Open(0x54310000);
    mm_macro_run(1);
    Pass(10);
    (void)TakeQueuedCommands();
    Pass(300);
    EXPECT_TRUE(MatchesGolden("menu_macro_exec"));
}
