// The pages of one of many, on the aux buses: which one the keys are about, and what the list keeps
// showing of the others.
#include "pc_aux_mon.h"
#include "table_page.h"

namespace
{
constexpr uint32_t AUX = 0x23110000, MON = 0x23210000;
constexpr int KEY_MIX = 33, KEY_LINK = 36;
const std::string BUS = "Aux/Mon@Aux Bus@";

struct AuxPage : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        TellAll("Engineering Setup@Panel@Xpt Assign@Source@List#", {"3,CAM 3", "7,CG 1", "9,X"});
    }
    void TearDown() override
    {
        TellAll("Engineering Setup@Panel@Xpt Assign@Source@List#", {"3,", "7,", "9,"});
        TablePage::TearDown();
    }
};

// What is subscribed after these lines, when it was before.
std::set<std::string> After(std::set<std::string> held, const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
        if (line.starts_with("add "))
            held.insert(line.substr(4));
        else if (line.starts_with("remove "))
            held.erase(line.substr(7));
    return held;
}
} // namespace

TEST_F(AuxPage, TheKeysAreAboutTheChosenBusAndTheListGoesOnShowingTheOthers)
{
    std::set<std::string> held = After({}, Open(AUX));
    EXPECT_THAT(Press(KEY_LINK), Contains("put " + BUS + "Aux 1@Key Link#true"));
    held = After(held, ChooseRow(1, 2));
    Pass(1000);
    EXPECT_THAT(Press(KEY_LINK), Contains("put " + BUS + "Aux 3@Key Link#true"));
    EXPECT_STREQ(GL_NowTree[2], "Aux 3");
    for (const char* bus : {"Aux 1", "Aux 3", "Aux 48"})
        for (const char* what : {"@Source", "@Mix", "@Key Link"})
            EXPECT_TRUE(held.contains(BUS + bus + what)) << bus << what;
    EXPECT_FALSE(held.contains(BUS + "Aux 1@Aspect")) << "only the keys show it";
    EXPECT_TRUE(held.contains(BUS + "Aux 3@Aspect"));

    TellAll(BUS, {"Aux 1@Source#CG 1", "Aux 3@Mix#true", "Aux 48@Key Link#true", "Aux 49@Mix#true",
                  "Aux 4x@Mix#true", "@Mix#true"});
    EXPECT_EQ(Cell(1, 0, 1), "CG 1");
    EXPECT_EQ(Cell(1, 2, 2) + Cell(1, 47, 3), "OO");
    EXPECT_EQ(Cell(1, 3, 2), "");
    EXPECT_EQ(BT_GetStatus(KEY_MIX), BT_ON);

    EXPECT_EQ(After(held, Leave()), std::set<std::string>{"TopMenu"});
    EXPECT_THAT(Open(AUX), Contains("add " + BUS + "Aux 3@Aspect")) << "where it was left";
    EXPECT_EQ(ChooseRow(1, 2).size() + ChooseRow(1, 48).size() + ChooseRow(1, -1).size(), 0u);
}

TEST_F(AuxPage, ATouchPutsASignalOnTheChosenBus)
{
    for (const auto& [page, source] :
         {std::pair{MON, std::string("Aux/Mon@Monitor@Mon 8@Source#CG 1")},
          {AUX, BUS + "Aux 8@Source#CG 1"}}) {
        (void)Open(page);
        (void)ChooseRow(1, 7);
        EXPECT_THAT(ChooseRow(2, 1), ElementsAre("put " + source));
        EXPECT_EQ(LS_GetData(2, 1, 2), nullptr) << "only the answer changes what is shown";
        (void)Tell(source);
        EXPECT_EQ(Cell(2, 1, 2), "O");
        EXPECT_EQ(LS_IsSelected(2, 1, 0), 1) << "and in view";
        EXPECT_EQ(LS_IsSelected(2, 0, 0) + LS_IsSelected(2, 2, 0), 0);
        EXPECT_EQ(Cell(2, 2, 1), "X");
        (void)ChooseRow(1, 6);
        EXPECT_EQ(LS_GetData(2, 1, 2), nullptr) << "nothing is known of this one's";
        EXPECT_EQ(ChooseRow(2, 9).size(), 0u) << "no such signal";
    }
}

TEST_F(AuxPage, WhatAnotherPageAskedForIsTheOneThatOpens)
{
    for (const auto& [page, ask, number, beyond, word] :
         {std::tuple{AUX, &AuxBus_OpenNext, 4, AUX_BUSES, "Aux 5"},
          {AUX, AuxBus_OpenNext, 0, AUX_BUSES, "Aux 1"},
          {MON, Monitor_OpenNext, 7, MONITORS, "Mon 8"},
          {MON, Monitor_OpenNext, 0, MONITORS, "Mon 1"}}) {
        for (const int n : {number, -1, beyond}) // there are none such
            ask(n);
        (void)Open(page);
        EXPECT_STREQ(GL_NowTree[2], word);
    }
}
