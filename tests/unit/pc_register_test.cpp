// The pages of the stored registers: what goes over the wire for every kind and every key, and what
// the lists show of the mirror.
#include "a_ls.h"
#include "pane.h"
#include "pc_register.h"
#include "pc_snapshot_hold.h"
#include "table_page.h"
#include "window.h"
#include <cstring>

namespace
{
struct RegisterPages : TablePage {
    // The lines of a press but for what the page merely follows.
    static Lines Puts(int id) { return TablePage::Puts(Press(id)); }
};
} // namespace

TEST_F(RegisterPages, EveryKeyOfEveryKindSendsItsCommand)
{
    static const struct {
        uint32_t page;
        int button;
        const char* command; // "" none
    } cases[] = {
        {0x63110000, 49, "put Snapshot@Master Snapshot@Store/Recall@Recall#3"},
        {0x63110000, 50, "put Snapshot@Master Snapshot@Store/Recall@Store#3"},
        {0x63120000, 50, "put Snapshot@Master Snapshot@Lock#3,3"},
        {0x63130000, 49, "put Snapshot@Master Snapshot@Copy#3,3,5,false"},
        {0x63210000, 50, "put Snapshot@Snapshot@Recall#2, 3"},
        {0x63210000, 51, "put Snapshot@Snapshot@Store#2,3"},
        {0x63210000, 33, "put Snapshot@Snapshot@Attribute@Effect Dissolve#2,3,3,true"},
        {0x63210000, 34, "put Snapshot@Snapshot@Attribute@Auto Transition#2,3,3,true"},
        {0x63210000, 35, "put Snapshot@Snapshot@Attribute@GPI#2,3,3,1"},
        {0x63210000, 36, "put Snapshot@Snapshot@Attribute@Duration#2,3,3,0"},
        {0x63220000, 51, "put Snapshot@Snapshot@Lock#2,3,3"},
        {0x63230000, 49, "put Snapshot@Snapshot@Copy#2,3,3,2,5,false"},
        {0x63240000, 49, "put Snapshot@Snapshot@Move#2,3,3,2,5,false"},
        {0x63250000, 49, "put Snapshot@Snapshot@Swap#2,3,3,2,5,false"},
        {0x63310000, 49, "pane"},
        {0x63310000, 50, "put Snapshot@Wipe Snapshot@Recall#2, 3"},
        {0x63320000, 51, "put Snapshot@Wipe Snapshot@Lock#2,3,3"},
        {0x63410000, 50, "put Snapshot@DME Snapshot@Recall#2, 3"},
        {0x63450000, 49, "put Snapshot@DME Snapshot@Swap#2,3,3,2,5,false"},
        {0x63510000, 50, "put Snapshot@Key Snapshot@Recall#0000000000000001, 3"},
        {0x63520000, 51, "put Snapshot@Key Snapshot@Lock#0000000000000001,3,3"},
    };
    for (const auto& c : cases) {
        Open(c.page);
        LS_SetNowLine(1, 2);
        LS_SetSelected(1, 2, 0, 1);
        LS_SetNowLine(2, 4); // where there is a second list
        Pass(10);
        const Lines sent = Puts(c.button);
        if (strcmp(c.command, "pane") == 0) {
            EXPECT_NE(Pane_GetActiveID(), 0);
            Pane_Quit(Pane_GetActiveID());
        } else {
            EXPECT_THAT(sent, ElementsAre(c.command)) << std::hex << c.page << " " << c.button;
        }
    }
}
