// The effect and shotbox pages with registers of every state.
#include "table_page.h"

using EffectPictures = TablePage;

TEST_F(EffectPictures, EffectsAndShotboxes)
{
    TellAll("Effect@Effect@Attribute@List@",
            {"M/E-1#1,S,OPENING,U,N,0", "M/E-1#2,S,SLIDE IN,U,D,45", "M/E-1#3,S,LOGO LOOP,L,N,0",
             "P/P#1,S,OPENING,U,N,0", "P/P#5,S,CREDITS,U,N,0", "User1#1,S,AUX,U,N,0",
             "DME2#2,S,FLY IN,L,N,0", "Dev1#5,S,ROLL,U,N,0", "GPI#1,S,TALLY,U,N,0"});
    Open(0x62210000);
    Touch(200, 130); // the second row
    Tell("Effect@Effect@Attribute@Temporary Duration@M/E-1#30");
    Paint();
    EXPECT_TRUE(MatchesGolden("effect_attribute"));

    TellAll("Shotbox@Register@Store/Recall@List#",
            {"1,INTRO,U,A,1,S12,,,,99,,,,,,,5,5,,,,,,,2,3,,,,,,,250,,,,,,,,,,,,,,,S7",
             "2,BREAK,L,,,,,,,2,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,7,S1"});
    Open(0x64110000);
    Paint();
    EXPECT_TRUE(MatchesGolden("shotbox_store"));

    Open(0x64110001);
    Paint();
    EXPECT_TRUE(MatchesGolden("shotbox_edit"));
}
