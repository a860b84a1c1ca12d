// The snapshot pages with registers of every state: the attributes, the overview, the hold of a
// bank, two lists, a master that is edited.
#include "clip_store.h"
#include "pc_snapshot.h"
#include "register_page.h"

struct SnapshotPictures : RegisterDesk {
    void SetUp() override
    {
        RegisterDesk::SetUp();
        TellAll("Snapshot@Snapshot@Attribute@",
                {"M/E-1@List#1,OPENING,S,AB12U1,30,n,n",
                 "M/E-1@List#2,HEADLINE,L,AB12345678U1U2U3,n,15,1",
                 "M/E-1@List#3,OTS LEFT,S,,n,n,n", "M/E-1@List#5,OTS RIGHT,S,12,25,25,n",
                 "M/E-1@List#7,WEATHER,S,,n,n,n", "M/E-1@List#35,,S,,n,n,n",
                 "P/P@List#1,OPENING,S,,n,n,n", "P/P@List#12,CREDITS,L,,n,n,n",
                 "User1@List#1,OPENING,S,00000001,n,n,n", "DME2@List#7,FLY IN,S,,n,n,n",
                 "RTR@List#1,OPENING,S,,n,n,n"});
        Tell(
            "Snapshot@Master Snapshot@Store/Recall@List#12,SHOW ONE,S,L,1,2,,4,,99,,,,,,,12,,,,,,,,"
            "3,3,,,,,,,5,");
    }
};

TEST_F(SnapshotPictures, AttributesOverviewHoldListsAndMaster)
{
    Open(PAGE_SNAPSHOT_XPTHOLD);
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_xpthold"));

    Open(PAGE_SNAPSHOT_ATTRIBUTE);
    Touch(200, 130); // the second row
    Tell("Snapshot@Snapshot@Attribute@M/E-1@Temporary Duration#45");
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_attribute"));

    Open(0x63000000);
    Touch(119 + 58 + 10, 164 + 2 * 26 + 10); // 12
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_status"));

    Open(0x63230000);
    LS_SetMS(1, 1);
    for (const int row : {0, 1, 2, 4})
        LS_SetSelected(1, row, 0, 1);
    LS_SetNowLine(2, 7);
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_copy"));

    Open(0x63110000);
    Cursor(1, 11);
    Open(0x63110001);
    Touch(138 + 2 * 70 + 10, 112);
    Touch(138 + 3 * 70 + 10, 112);
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_master_edit"));
}

TEST_F(SnapshotPictures, ClipsOfAUser)
{
    using Store = ClipStoreTest<RegisterDesk>;
    Store::Folder("NEWS");
    Store::Clip("OPENING", 100, 1);
    Store::Clip("NEWS/LOGO KEY", 1, 1, Store::TIME, 1);
    Choose(REGKIND_SNAPSHOT, {272});
    TellAll("Snapshot@Snapshot@Clip Event@User1@List#",
            {"FM1,1,ON,OFF,ON,/OPENING.SFH,10,85", "FM2,1,ON,ON,OFF,LOGO KEY,0,0"});
    Open(PAGE_SNAPSHOT_ATTRIBUTE);
    Open(PAGE_SNAPSHOT_CLIP);
    TellAll("Frame Mem 2@Clip/Still@Output Status@FM", {"1#2,/NEWS/LOGO KEY.SFH", "2#1,"});
    Paint();
    EXPECT_TRUE(MatchesGolden("snapshot_clip"));
}
