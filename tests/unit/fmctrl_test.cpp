#include "fmctrl_page.h"
#include <array>
#include <map>
#include <random>
#include <set>

const std::string STATUS = "16@Frame Mem@Status@", SENSE = "put " + STATUS + "File Name Sense#",
                  ANCILLARY = "Frame Mem@Clip@Ancillary Playback Enable";

struct FrameMemoryLists : FrameMemory {
    void SetUp() override
    {
        FrameMemory::SetUp();
        Max(300);
        (void)Tell("Frame Mem@Status@Extended Capacity", "1");
        (void)Changes();
    }
};

TEST_F(FrameMemoryLists, NamesAtTheEdgeOfTheGrammarAndDefaultOnesThatPassThoseInUse)
{
    static const std::tuple<const char*, const char*, const char*> cases[] = {
        // "": no frame
        {"M12345", "1", "2345"}, {"M1234", "", ""},   {"Sabcd0001", "abcd", "0001"},
        {"mabc0001", "", ""},    {"Mabc001", "", ""}, {"Mabc0001x", "", ""},
        {"Mabc00 1", "", ""},    {"", "", ""}};
    for (const auto& [name, of_clip, of_frame] : cases) {
        char clip[8] = "?", frame[8] = "?";
        EXPECT_EQ(FMCtrl_DivClipName(name, clip, frame, sizeof clip, sizeof frame),
                  *of_clip ? 0 : -1)
            << name;
        EXPECT_STREQ(clip, of_clip) << name;
        EXPECT_STREQ(frame, of_frame) << name;
    }
    char narrow[3];
    EXPECT_EQ(FMCtrl_DivClipName("Mabcd0001", narrow, nullptr, sizeof narrow, 0), 0);
    EXPECT_STREQ(narrow, "ab");

    Store({"M1234", "M12345", "mabc0001", "Mabc0001", "Mabcdefgh", ""});
    EXPECT_THAT(Clips(), IsEmpty());
    EXPECT_THAT(Stills(),
                ElementsAre(": - 5", "1234: 0 -", "12345: 1 -", "abc0001: 3 2", "abcdefgh: 4 -"));

    Max(300);
    EXPECT_EQ(FMCtrl_GetDefaultImageNum(), 1);
    Store({"Mimage002", "Simage003", "Mimage004"});
    Store({"Ximage004", "Simage003"}, 16384 + 1);
    EXPECT_EQ(FMCtrl_GetDefaultImageNum(), 2) << "free in the extended store";
    EXPECT_EQ(FMCtrl_GetDefaultImageNum(), 4) << "3 is taken in both";
    (void)Tell("Frame Mem@Status@Extended Capacity", "0");
    for (int n = 5; n <= 999; n++)
        EXPECT_EQ(FMCtrl_GetDefaultImageNum(), n);
    EXPECT_EQ(FMCtrl_GetDefaultImageNum(), 1) << "and without an extended store";
    EXPECT_EQ(FMCtrl_GetDefaultImageNum(), 5);
}

TEST_F(FrameMemoryLists, StillsArePairsOfTheLastSidesAndTwoFramesMakeAClip)
{
    Store({"Mabc0002"});
    EXPECT_THAT(Clips(), IsEmpty());
    EXPECT_THAT(Sense(2, "81", "Mabc0001"), ElementsAre("put " + ANCILLARY + "#0,Mabc"));
    EXPECT_THAT(Clips(), ElementsAre("abc: 1 0 /"));
    EXPECT_EQ(FMCtrl_GetClipAncillary(0), ANCILLARY_UNKNOWN);
    EXPECT_EQ(FMCtrl_GetClipMidRegId(0, 0), 0);
    EXPECT_THAT(Sense(3, "81", "Sabc0002"), IsEmpty());
    EXPECT_THAT(Clips(), ElementsAre("abc: 1 0 / 2"));

    EXPECT_THAT(Sense(1, "81", "Mabc0002"), IsEmpty()) << "told again, it stays what it is";
    (void)Sense(2, "0", "");
    EXPECT_THAT(Clips(), IsEmpty());
    EXPECT_THAT(Stills(), ElementsAre("abc0002: 0 2"));
    // The other side makes the clip, and asks by its own prefix.
    EXPECT_THAT(Sense(4, "81", "Sabc0007"), ElementsAre("put " + ANCILLARY + "#0,Sabc"));
    EXPECT_THAT(Clips(), ElementsAre("abc: 0 / 2 3"));

    Max(300);
    Store({"Mabc0001", "Mabc0002", "Mabc0003", "Mabc0004", "Mabc0005"});
    EXPECT_EQ(FMCtrl_GetClipFrameIdx(0, 0), 2);
    EXPECT_EQ(FMCtrl_MoveClipFrame(0, 0, 100), 0);
    for (const auto& [offset, index] : {std::pair{0, 4}, {1, -1}, {-4, 0}, {-5, -1}})
        EXPECT_EQ(FMCtrl_GetClipRegId(0, 0, offset), index) << offset;
    EXPECT_EQ(FMCtrl_GetClipMidRegId(0, 0), 2) << "the middle is not moved";
    EXPECT_EQ(FMCtrl_MoveClipFrame(0, 0, INT_MIN), 0);
    EXPECT_EQ(FMCtrl_GetClipFrameIdx(0, 0), 0);
    EXPECT_EQ(FMCtrl_MoveClipFrame(1, 0, 1), -1);

    Max(300);
    Store({"Mabc0001", "Mabc0002", "Mxyz0001", "Mxyz0002", "Mlogo"});
    (void)Changes();
    for (const char* value : {"0,Mxyz,1", "0,Mnone,1", "0,M"})
        (void)Tell(ANCILLARY, value);
    EXPECT_THAT(Changes(), ElementsAre("1, 2"));
    EXPECT_EQ(FMCtrl_GetClipAncillary(1), 1);
    EXPECT_EQ(FMCtrl_GetStillAncillary(FMCtrl_GetStillIdx("Mxyz0001")), 1);
    EXPECT_EQ(FMCtrl_GetClipAncillary(0), ANCILLARY_UNKNOWN);
    EXPECT_EQ(FMCtrl_GetStillAncillary(FMCtrl_GetStillIdx("Mlogo")), 0);
    (void)Sense(4, "0", "");
    SYS_FmemV6 = 0;
    EXPECT_THAT(Sense(4, "81", "Mxyz0002"), IsEmpty()) << "the older one can't say";
    SYS_FmemV6 = 1;
    EXPECT_EQ(FMCtrl_GetClipAncillary(1), ANCILLARY_UNKNOWN) << "it is a clip anew";
    EXPECT_EQ(FMCtrl_GetClipIdx("Mxyz0002"), 1);
    EXPECT_EQ(FMCtrl_GetClipIdx("Mxyzlogo"), -1) << "no frame";

    Max(300);
    (void)Changes();
    Store({"Slogo"});
    EXPECT_THAT(Stills(), ElementsAre("logo: - 0"));
    EXPECT_FALSE(FMCtrl_IsStillMain(0) || FMCtrl_IsStillPair(0));
    Store({"Mlogo"}, 16384 + 8);
    EXPECT_THAT(Stills(), ElementsAre("logo: x7 0"));
    EXPECT_TRUE(FMCtrl_IsStillPair(0) && FMCtrl_IsStillExtended(0));
    EXPECT_THAT(Changes(), ElementsAre("0, 0", "16391, 0, extended"));
    EXPECT_EQ(FMCtrl_GetStillIdx("Mlogo"), 0);
    EXPECT_EQ(FMCtrl_GetRegIndex("Mlogo"), -1);
    EXPECT_EQ(FMCtrl2_GetRegIndex("Mlogo"), 16391);

    (void)Sense(1, "0", "");
    EXPECT_THAT(Stills(), ElementsAre("logo: x7 -"));
    EXPECT_EQ(FMCtrl_GetStillIdx("Slogo"), -1);
    EXPECT_EQ(FMCtrl_GetStillRegId(-1, 0), -1);
    EXPECT_EQ(FMCtrl_GetClipFolderId(-1), -1);

    Max(300);
    Store({"Mlogo", "Mlogo"});
    Store({"Mlogo"}, 16384 + 1);
    EXPECT_THAT(Stills(), ElementsAre("logo: x0 -"));
    EXPECT_EQ(FMCtrl2_GetRegIndex("Mlogo"), 0) << "the lower number, main before extended";
    (void)Sense(16384 + 1, "0", "");
    EXPECT_THAT(Stills(), ElementsAre("logo: 0 -")) << "the lowest of those that are left";
    Store({"Mnew"});
    EXPECT_THAT(Stills(), ElementsAre("logo: 1 -", "new: 0 -"));
}

TEST_F(FrameMemoryLists, RegisterStatusAsksForTheSetAndEmptiesTheClearThatThereAre)
{
    Store({"Ma", "Mb"});
    Store({"Mc"}, 16384 + 129);
    (void)Changes();
    EXPECT_THAT(Tell(STATUS + "Register Status@0", "80000000000000000000000100000001"),
                ElementsAre(SENSE + "1", SENSE + "33", SENSE + "128"));
    EXPECT_THAT(Changes(), ElementsAre("1, 0"));
    EXPECT_THAT(Stills(), ElementsAre("a: 0 -", "c: x128 -"));
    EXPECT_STREQ(FMCtrl_GetRegName(1), "");

    const std::string none(32, '0');
    EXPECT_THAT(Tell(STATUS + "Register Status@129", none.substr(1) + "2"),
                ElementsAre(SENSE + "16514"));
    EXPECT_FALSE(FMCtrl2_IsRegStore(128));
    // 300 registers: the third bank ends with the 44th of it.
    EXPECT_EQ(Tell(STATUS + "Register Status@2", std::string(32, 'F')).size(), 44u);

    for (const char* value : {"", "0000000", "0000000G", "0x000000", "0000,000"})
        EXPECT_THAT(Tell(STATUS + "Register Status@0", value), IsEmpty());
    for (const char* bank : {"3", "127", "-1", "256", "99999999999", "x", ""})
        EXPECT_THAT(Tell(STATUS + "Register Status@" + bank, std::string(32, 'F')), IsEmpty());
    EXPECT_TRUE(FMCtrl_IsRegStore(0));
    (void)Tell("Frame Mem@Status@Extended Capacity", "0");
    EXPECT_THAT(Tell(STATUS + "Register Status@128", std::string(32, 'F')), IsEmpty());

    Max(16384);
    for (const auto& [bank, register_no] : {std::pair{127, "16384"}, {255, "32768"}}) {
        (void)Tell("Frame Mem@Status@Extended Capacity", "1");
        EXPECT_THAT(Tell(STATUS + "Register Status@" + std::to_string(bank), "8" + none.substr(1)),
                    ElementsAre(SENSE + register_no));
    }
    const Strings banks = Tell("Frame Mem@Status@Extended Capacity", "1");
    EXPECT_EQ(banks.size(), 45u);
    EXPECT_EQ(banks.back(), "read " + STATUS + "Register Status@172");
    Max(300);
    (void)Tell("Frame Mem@Status@Extended Capacity", "1");
    for (const char* value : {"0,81,Mx", "301,81,Mx", "16384,81,Mx", "16685,81,Mx", "-1,81,Mx",
                              "x,81,Mx", "", ",,", "1", "99999999999999999999,81,Mx"})
        (void)Tell(STATUS + "File Name Sense", value);
    for (const char* value : {"-1", "16385", "x", ""})
        (void)Tell(STATUS + "Max Register", value);
    EXPECT_THAT(Stills(), IsEmpty());
    EXPECT_EQ(SYS_FmemRegMax, 300);
    (void)Sense(1, "81", "Ma name that is too long,and a comma");
    EXPECT_STREQ(FMCtrl_GetRegName(0), "Ma name t");
}

TEST_F(FrameMemoryLists, MaxRegisterBeginsAnewAndTheExtendedStoreIsEmptiedInSlices)
{
    Store({"Mabc0001", "Mabc0002"});
    (void)Changes();
    const Strings sent = Tell(STATUS + "Max Register", "2");
    EXPECT_EQ(sent.size(), 46u);
    EXPECT_THAT(sent, Contains("read " + STATUS + "Folder Status@44"));
    EXPECT_THAT(sent, Contains("read " + STATUS + "Folder Name Sense"));
    EXPECT_THAT(Changes(), ElementsAre("0, 0"));
    EXPECT_THAT(Stills(), IsEmpty());
    (void)Sense(2, "81", "Mabc0002"); // the same names as before
    (void)Sense(1, "81", "Mabc0001");
    EXPECT_THAT(Clips(), ElementsAre("abc: 0 1 /"));

    Max(0);
    EXPECT_EQ(FMCtrl2_GetRegIndex("Mabc0001"), -1);
    EXPECT_EQ(FMCtrl2_EmptyRegNo(0), -1);
    EXPECT_STREQ(FMCtrl2_GetRegNameMulti(0), "");
    EXPECT_FALSE(FMCtrl_IsRegStore(0));
    EXPECT_EQ(FMCtrl_GetClipRegId(0, 0, 0), -1);
    EXPECT_STREQ(FMCtrl_GetStillFolderName(0), "");
    EXPECT_FALSE(FmemReg || FmemReg2);

    Max(300);
    for (int n = 1; n <= 300; n++)
        (void)Sense(16384 + n, "81", "Mx" + std::to_string(n));
    Store({"Mmain"});
    (void)Tell("Frame Mem@Status@Extended Capacity", "0");
    EXPECT_EQ(FMCtrl_GetStillNum(), 301 - 128);
    Pass(0);
    EXPECT_EQ(FMCtrl_GetStillNum(), 301 - 256);
    (void)Sense(16384 + 300, "81", "Mnew"); // meanwhile
    Pass(0);
    Pass(0);
    EXPECT_THAT(Stills(), ElementsAre("main: 0 -", "new: x299 -"));
}

// Registers are stored, renamed and emptied at random, with few names for many registers. What the
// lists hold is compared with a count over all registers.
TEST_F(FrameMemoryLists, FollowAStormAsAPlainRecountWould)
{
    constexpr int REGISTERS_EACH = 300;
    std::mt19937 random(20);
    const auto pick = [&](int n) { return int(random() % unsigned(n)); };
    std::map<int, std::string> model; // by index
    const auto recount = [&] {
        std::map<std::string, std::set<int>> sides[2]; // by the bare name
        std::set<std::string> names;
        for (const auto& [index, name] : model) {
            sides[name[0] != 'M'][name.substr(1)].insert(index);
            names.insert(name.substr(1));
        }
        ASSERT_EQ(FMCtrl_GetStillNum(), int(names.size()));
        std::map<std::string, std::array<std::map<std::string, int>, 2>>
            frames; // of a clip's sides
        int i = 0;
        for (const std::string& name : names) {
            ASSERT_EQ(FMCtrl_GetStillName(i), name);
            for (int is_sub : {0, 1}) {
                const auto& all = sides[is_sub][name];
                const int index = FMCtrl_GetStillRegId(i, is_sub);
                ASSERT_TRUE(index < 0 ? all.empty() : all.count(index) > 0) << name;
                char clip[12], frame[12];
                if (index >= 0 &&
                    FMCtrl_DivClipName(model[index].c_str(), clip, frame, 12, 12) == 0)
                    frames[clip][size_t(is_sub)][frame] = index;
            }
            const int main_id = FMCtrl_GetStillRegId(i, 0), sub_id = FMCtrl_GetStillRegId(i, 1);
            ASSERT_EQ(FMCtrl_IsStillMain(i), main_id >= 0) << name;
            ASSERT_EQ(FMCtrl_IsStillSub(i), sub_id >= 0) << name;
            ASSERT_EQ(FMCtrl_IsStillPair(i), main_id >= 0 && sub_id >= 0) << name;
            ASSERT_EQ(FMCtrl_IsStillExtended(i), std::max(main_id, sub_id) >= FMEM_EXTENDED);
            i++;
        }
        Strings clips;
        for (const auto& [clip, both] : frames) {
            const bool is_clip = both[0].size() > 1 || both[1].size() > 1;
            const int c = is_clip ? int(clips.size()) : -1;
            bool is_extended = false;
            for (int is_sub : {0, 1}) {
                const auto& side = both[size_t(is_sub)];
                for (const auto& [frame, index] : side) {
                    ASSERT_EQ(FMCtrl_GetClipIdx(model[index].c_str()), c);
                    ASSERT_EQ(FMCtrl_IsStillFrame(FMCtrl_GetStillIdx(model[index].c_str())),
                              is_clip);
                    ASSERT_EQ(FMCtrl_GetClipMidRegId2(index),
                              is_clip ? std::next(side.begin(), long(side.size() / 2))->second
                                      : -1);
                    is_extended |= index >= FMEM_EXTENDED;
                }
            }
            if (!is_clip)
                continue;
            ASSERT_EQ(FMCtrl_IsClipExtended(c), is_extended);
            clips.push_back(clip + ":");
            for (int is_sub : {0, 1}) {
                clips.back() += is_sub ? " /" : "";
                for (const auto& [frame, index] : both[size_t(is_sub)])
                    clips.back() += " " + Number(index);
                ASSERT_EQ(FMCtrl_GetClipFrameIdx(c, is_sub), int(both[size_t(is_sub)].size()) / 2);
            }
        }
        ASSERT_EQ(Clips(), clips);
    };
    const char* words[] = {"a", "ab", "abc0", "1", "A", "a000"};
    for (int step = 0; step < 30000; step++) {
        const int index = pick(2) * FMEM_EXTENDED + pick(REGISTERS_EACH);
        const int density = step / 5000 % 2 ? 8 : 2; // filling, then emptying
        if (pick(density + 1) == 0 || (density == 2 && pick(2))) {
            (void)Sense(index + 1, "0", "");
            model.erase(index);
        } else {
            char name[16];
            snprintf(name, sizeof name, "%c%s%04d", "MMMSSSmX"[pick(8)], words[pick(6)], pick(40));
            name[pick(30) ? 9 : 1 + pick(8)] = '\0'; // some are cut short
            (void)Sense(index + 1, "81", name);
            model[index] = name;
        }
        if (step % 300 == 0) {
            recount();
            if (HasFatalFailure())
                FAIL() << "at step " << step;
        }
    }
}

TEST_F(FrameMemoryLists, FoldersAreSortedTheUnusedLastAndTheirStatusMovesStillsAndClips)
{
    (void)Tell(STATUS + "Folder Name Sense", "0,Default.,1,news,2,,3,Zoo,11,art");
    Strings names;
    for (int row = 0; row < 6; row++)
        names.push_back(std::to_string(FMCtrl_GetFolderId(row)) + FMCtrl_GetFolder(row)->name);
    EXPECT_THAT(names, ElementsAre("0Default.", "3Zoo", "11art", "1news", "2", "4"));
    EXPECT_EQ(FMCtrl_GetFolderNum(), 4);
    EXPECT_EQ(probe::Count(LMSG_FOLDERNAMESENSE), 1);
    EXPECT_EQ(FMCtrl_GetIsFolderIdx(11), 2);
    EXPECT_EQ(FMCtrl_GetIsFolderIdx(12), -1);
    EXPECT_TRUE(FMCtrl_ExistFolderName("art"));
    EXPECT_FALSE(FMCtrl_ExistFolderName("")) << "the unused have no name";
    // An id that no folder has ends the line.
    (void)Tell(STATUS + "Folder Name Sense", "1,a name too long,99,x,3,Zebra");
    EXPECT_STREQ(FMCtrl_GetFolder(2)->name, "a name t");
    EXPECT_FALSE(FMCtrl_ExistFolderName("Zebra"));

    Max(300);
    Store({"Mlogo", "Mabc0001", "Mabc0002"});
    (void)Tell(STATUS + "Folder Name Sense", "11,art");
    (void)Changes();
    (void)Tell(STATUS + "Folder Status@0", "0B010b03Gx01");
    EXPECT_THAT(Changes(), ElementsAre("0, 0", "1, 0", "2, 0"));
    EXPECT_EQ(FMCtrl_GetRegFolderId(3), 3) << "kept for the image that comes";
    EXPECT_EQ(FMCtrl_GetRegFolderId(5), 0) << "nothing behind what is no number";
    EXPECT_STREQ(FMCtrl_GetStillFolderName(FMCtrl_GetStillIdx("Mlogo")), "art");
    EXPECT_EQ(FMCtrl_GetClipFolderId(0), 11) << "that of the frame moved last";
    EXPECT_THAT((std::array{FMCtrl_GetFolderAllStillNum(11), FMCtrl_GetFolderStillNum(11),
                            FMCtrl_GetFolderClipNum(11), FMCtrl_GetFolderExtClipNum(11)}),
                ElementsAre(2, 1, 1, 0));
    Store({"Mnew0001", "Mnew0002"}, 4);
    EXPECT_EQ(FMCtrl_GetClipFolderId(1), 3) << "that of its first frame";
    EXPECT_THAT((std::array{FMCtrl_GetFolderAllStillNum(3), FMCtrl_GetFolderStillNum(3),
                            FMCtrl_GetFolderClipNum(3), FMCtrl_GetFolderExtClipNum(3)}),
                ElementsAre(1, 0, 1, 0));
    (void)Changes();
    (void)Tell(STATUS + "Folder Status@0", "0B010B03");
    EXPECT_THAT(Changes(), IsEmpty()) << "nothing has changed";

    (void)Tell("Frame Mem@Folder@Move Still", "0,Mlogo,A");
    EXPECT_EQ(FMCtrl_GetRegFolderId(0), 10);
    (void)Tell("Frame Mem@Folder@Move Still", "0,Mlogo,11"); // as the application writes it
    EXPECT_EQ(FMCtrl_GetRegFolderId(0), 11);
    for (const char* value : {"0,Mlogo,12", "0,Mlogo,", "0,Mnone,1", "0,Mlogo", ""})
        (void)Tell("Frame Mem@Folder@Move Still", value);
    EXPECT_EQ(FMCtrl_GetRegFolderId(0), 11);
    Store({"Mext"}, 16384 + 2);
    (void)Tell(STATUS + "Folder Status@128", "0007");
    EXPECT_EQ(FMCtrl_GetRegFolderId(FMEM_EXTENDED + 1), 7);
    (void)Sense(9, "81", "Mlogo"); // takes the place of the first of its name
    (void)Tell(STATUS + "Folder Status@0", "05");
    EXPECT_EQ(FMCtrl_GetFolderAllStillNum(5), 0);
}
