// What the pages of the banks share: their words and numbers, and how a split board limits them.
#include "a_ba.h"
#include "a_nb_private.h"
#include "command.h"
#include "pc_me.h"
#include "table_page.h"
#include <cstring>
#include <map>

using BankOfPage = TablePage;

TEST_F(BankOfPage, TheBankOfAPageHasOneWordAndOneRegion)
{
    // The word is that of its paths.
    static const std::tuple<uint32_t, int, const char*, int, unsigned> cases[] = {
        {0x11510000, 0, "M/E-1", 0, 0x2},   {0x16510000, 1, "M/E-2 SUB", 7, 0x2000000},
        {0x81670000, 3, "M/E-4", 3, 0x10},  {0x86510000, 4, "M/E-5 SUB", 10, 0x10000000},
        {0x14710000, 5, "PGM/PST", 5, 0x1}, {0x18510000, 5, "PGM/PST SUB", 11, 0x800000},
        {0x16110000, 1, "M/E-2", 1, 0x4}, // keys 5 to 8 are keys of the bank, not of its sub side
    };
    for (const auto& [page, index, word, region, bits] : cases) {
        ASSERT_EQ(CreatePage(page), 0) << std::hex << page;
        char told[16];
        ME_BankWord(told);
        EXPECT_STREQ(told, word);
        EXPECT_EQ(Now_disp_draw(), index) << word;
        EXPECT_EQ(ME_SnapshotRegion(), region) << word;
        EXPECT_EQ(DMEWipeSSRegion[size_t(ME_SnapshotRegion())].bitmap, bits) << word;
    }
    CreatePage(PAGE_TOP); // no bank: the first one
    EXPECT_EQ(Now_disp_draw(), 0);
}

// Beside what its buttons and boxes follow.
TEST_F(BankOfPage, APageFollowsWhatItsCodeShowsOfItsOwnBank)
{
    for (const auto& [page, paths] :
         {std::pair{0x85320001u, Lines{"M/E-4@Key7@Edge@Matte Adjust@Mix Pattern@Pattern",
                                       "M/E-4@Key7@Edge@Edge"}},
          {0x11310002, {"M/E-1@Key3@Type@Matte Adjust@Mix Pattern@Pattern"}},
          {0x82760000,
           {"M/E-5@Misc@Clip Transition@Clip Name", "M/E-5@Misc@Clip Transition@Clip Duration"}},
          {0x12740000, {"M/E-2@Misc@Key Assign@Key1", "M/E-2@Misc@Key Assign@Key8"}},
          {0x12540000, {"M/E-2@Wipe@Direction@Normal", "M/E-2@Wipe@Direction@Reverse"}}}) {
        const Lines opened = Open(page);
        ASSERT_EQ(GL_NowPage, page);
        const Lines left = Leave();
        for (const std::string& path : paths) {
            EXPECT_GE(Held(opened, path), 1) << path;
            EXPECT_EQ(Held(left, path), -Held(opened, path)) << path;
        }
    }
}

TEST_F(BankOfPage, ABoardInFourBanksLeavesEachWithFourKeys)
{
    Tell("Engineering Setup@System@Install@Unit Config@M/E Split#1,4,2,1,1");
    for (const auto& [asked, opened] :
         {std::pair{0x15130000u, 0x15130000u}, // M/E-1 has eight
          {0x16330000, 0x12330000},            // M/E-2: the same page of its first four
          {0x17110000, 0x17110000},            // two banks: eight each
          // the limit is one of keys
          {0x16510000, 0x16510000}}) {
        EXPECT_EQ(CreatePage(asked), 0);
        EXPECT_EQ(GL_NowPage, opened) << std::hex << asked;
    }
}

TEST_F(BankOfPage, DefaultRecallFromATabStaysOnItsSide)
{
    // The slot of the tab; whether the bank has a sub side.
    static const std::tuple<uint32_t, int, int, const char*> cases[] = {
        {0x15510000, 5, 1, "default M/E-1 SUB@Wipe"},     {0x15110000, 1, 1, "default M/E-1@Key5"},
        {0x86710000, 6, 1, "default M/E-5 SUB@DME Wipe"}, {0x15110000, 5, 0, "default M/E-1@Wipe"},
        {0x81110000, 7, 0, "default M/E-4@Misc"},
    };
    for (const auto& [page, slot, multi, sent] : cases) {
        std::fill_n(multiprogram2_me, ME_COUNT, multi);
        Open(page);
        BA_SetDefaultButton(1);
        EXPECT_THAT(Touch(40, 73 + 65 * (slot - 1) + 20), Contains(sent));
        EXPECT_EQ(BA_IsDefaultButton(), 0) << sent;
    }
}

// Two pages that let the same value be set must not disagree about how far it goes: the number that
// one allows would jump under the hand on the other. Of a bank with a wide
// picture.
TEST_F(BankOfPage, ABanksValueHasTheSameLimitsOnAllItsPages)
{
    struct Limits {
        double min, max;
        uint32_t page;
    };
    SYS_RefSwrScreenAspect[0] = 1;
    std::map<std::string, Limits> of_path;
    for (PAGE* page = PageTable; page->id != PAGE_END; page++) {
        if (page->id >> 24 != 0x11)
            continue;
        ASSERT_EQ(CreatePage(page->id), 0) << std::hex << page->id;
        GL_CreatePage = 0;
        Tell("M/E-1@Wipe@Edge@Border#true"); // without one its softness goes further
        const auto compare = [&](int id) {
            for (const NB_MEM* box = nb.Knob; box->id >= 1; box++) {
                if (!strchr(box->cmd, '@') || IsLocal(box->cmd))
                    continue; // the page's own
                const auto [at, is_new] =
                    of_path.insert({box->cmd, {box->min, box->max, page->id}});
                EXPECT_TRUE(is_new || (at->second.min == box->min && at->second.max == box->max))
                    << box->cmd << " on " << std::hex << page->id << " button " << std::dec << id
                    << " and on " << std::hex << at->second.page;
            }
        };
        compare(0);
        for (BT_MEM* b = bt_first(); b && b->id >= 1; b++)
            if (b->nb && b->nb != NoKnobs()) {
                bt_take_knobs(b);
                compare(b->id);
            }
    }
    EXPECT_GT(of_path.size(), 200u);
}
