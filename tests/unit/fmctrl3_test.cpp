#include "clip_store.h"
#include "fetches.h"
#include "file.h"
#include "memory.h"
#include <fstream>

namespace fs = std::filesystem;
constexpr const char* FM_FOLDER = "/mnt/sys/FM/1/";

struct ClipStore : ClipStoreTest<BusTest> {
    void SetUp() override
    {
        fs::remove_all(FM_FOLDER);
        ClipStoreTest::SetUp();
        // Taken down at once: the element may be gone when somebody asks.
        probe::answer = [this](const probe::Seen& s) {
            const auto* e = reinterpret_cast<const ELEMENT*>(s.bx);
            if (s.msg == LMSG_FMCTRL3CHANGE)
                changes.push_back(std::to_string(s.ax) + " " + (e ? e->name : "-") + " " +
                                  std::to_string(s.cx) + " " + std::to_string(s.dx));
            return 0;
        };
        GL_NowPage = 0x21110000;
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        ClipStoreTest::TearDown();
        fs::remove_all(FM_FOLDER);
    }
    static Strings Tree()
    {
        Strings names;
        for (const ELEMENT_LIST* e = ElementListTop.next; e; e = e->next)
            names.push_back(e->element.full_name + 5);
        return names;
    }
    Strings changes;
    // "kind name column frame" of each change that was told since the last call.
    Strings Changes() { return std::exchange(changes, {}); }
    static const ELEMENT& At(const char* path)
    {
        static const ELEMENT none;
        const ELEMENT_LIST* e = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_ALL, path);
        EXPECT_TRUE(e) << path;
        return e ? e->element : none;
    }

    static std::vector<Get> Gets()
    {
        return ::Gets(TakeQueuedCommands(), "File@Remote Access@SCP Dir Get");
    }
    static Strings Remotes(const std::vector<Get>& gets)
    {
        Strings names;
        for (const Get& get : gets)
            names.push_back(get.remote.substr(get.remote.find("FM/1/") + 5));
        return names;
    }
    static void PutText(const std::string& name, const std::string& text)
    {
        fs::create_directories(FM_FOLDER);
        std::ofstream(FM_FOLDER + name, std::ios::binary) << text;
    }
    static void Put(const std::string& name, size_t bytes, int seconds_ago = 10)
    {
        PutText(name, std::string(bytes, 't'));
        fs::last_write_time(FM_FOLDER + name,
                            fs::file_time_type::clock::now() - std::chrono::seconds(seconds_ago));
    }
    // The server carries a fetch out.
    static void Answer(const Get& get, const std::string& reply)
    {
        if (reply == "OK")
            Put(get.local.substr(get.local.rfind('/') + 1), 6966);
        Serve(get.line, {reply});
    }
    static constexpr char NOTE[] = "a.b.SFH.THM.of";
    static std::string Note() { return FileText(std::string(FM_FOLDER) + NOTE); }
    // Without the notes of which clip they are.
    static Strings Files()
    {
        Strings names = FilesIn(FM_FOLDER);
        std::erase_if(names, [](const std::string& name) { return name.ends_with(".of"); });
        return names;
    }
    static void Passes(int ms)
    {
        for (; ms > 0; ms -= 500)
            SendMessage(MSG_REDRAW, 500, 0, 0, 0);
    }
    // What goes through the files does so in passes.
    static void Work(int passes = 12)
    {
        for (; passes > 0; passes--)
            SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    }
    static void HubWorks(const char* verb, const char* row)
    {
        Hub(verb, "ClipStoreFile", row);
        Work();
    }
};

TEST_F(ClipStore, ElementsStandInTheOrderOfTheTreeHoweverManyComeAtOnce)
{
    const int blocks = UsedMemPtr;
    for (const char* path : {"B/two", "zoo", "B/A/deep", "A/x", "B/one", "alpha", "A.B/y"})
        Clip(path);
    for (const char* path : {"B", "B/A", "A", "A.B", "C", "alpha"})
        Folder(path);
    EXPECT_THAT(Tree(), ElementsAre("/", "/A", "/A/x", "/A.B", "/A.B/y", "/B", "/B/A", "/B/A/deep",
                                    "/B/one", "/B/two", "/C", "/alpha", "/alpha", "/zoo"));
    Strings back;
    for (const ELEMENT_LIST* e = ElementListBottom; e != &ElementListTop; e = e->prev)
        back.insert(back.begin(), e->element.full_name + 5);
    EXPECT_EQ(back, Tree());
    const auto children = [](const char* path) {
        Strings names;
        const ELEMENT_LIST* folder = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FOLDER, path);
        for (const ELEMENT_LIST* e = nullptr; (e = FMCtrl3_GetChild(folder, e));)
            names.push_back(e->element.name);
        return names;
    };
    EXPECT_THAT(children("/"), ElementsAre("A", "A.B", "B", "C", "alpha", "alpha", "zoo"));
    EXPECT_THAT(children("/B"), ElementsAre("A", "one", "two"));
    EXPECT_THAT(children("/C"), IsEmpty());
    Hub("Delete", "ClipStoreFolder", "root/B"); // what is in it waits for its own row
    EXPECT_THAT(children("/"), ElementsAre("A", "A.B", "C", "alpha", "alpha", "zoo"));
    FMCtrl3_Clear(ELEMENT_TYPE_FOLDER);
    EXPECT_THAT(children("/"), ElementsAre("alpha", "zoo"));
    FMCtrl3_Clear(0);
    EXPECT_THAT(Tree(), ElementsAre("/"));
    EXPECT_EQ(ElementListBottom, ElementListTop.next);
    EXPECT_EQ(UsedMemPtr, blocks);

    for (int i = 0; i < 10000; i++)
        Clip("F" + std::to_string(i * 7919 % 97) + "/c" + std::to_string(i), 1 + i % 3, 1);
    EXPECT_EQ(Tree().size(), 10001u);
    EXPECT_LE(Gets().size(), 1u);
    for (int i = 0; i < 10000; i += 2)
        Hub("Delete", "ClipStoreFile",
            "root/F" + std::to_string(i * 7919 % 97) + "/c" + std::to_string(i) + ".SFH");
    EXPECT_EQ(Tree().size(), 5001u);
    EXPECT_TRUE(FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, "/F62/c1"));
}

TEST_F(ClipStore, RowsThatAreNotWholeChangeNothing)
{
    const std::string n32(32, 'n'), values = ":1,0,0,3,,1,0";
    Folder("A");
    Clip("A/x", 7);
    (void)Changes();
    const std::tuple<const char*, const char*, Strings> cases[] = {
        {"Insert",
         "ClipStoreFile",
         {"root/y:1,0,0,3,,1", "root/1/2/3/4/5/y" + values, "root/" + n32 + "n" + values,
          "root/" + n32 + "nn" + values, "root/" + n32.substr(15) + "/y" + values, "root/y.SFH",
          "1,0,0,3,,1,0", "root/.SFH" + values, "root/...SFH" + values, "root/../y" + values}},
        {"Insert",
         "ClipStoreFolder",
         {"root/B", "root/B:,", "root:1", "root/.:1", "root/..:1", "root/ :1", "root/A/. .:1"}},
        {"Insert", "ClipStoreInfo", {"root/B:1"}},
        {"Delete", "ClipStoreFolder", {"root", "root/", ""}},
        {"Delete", "ClipStoreFile", {"root/A"}},
        {"Notify", "ClipStoreFile", {"root/A/x.SFH:frames:9", "root/A/x.SFH:status"}},
        {"Notify", "ClipStoreFolder", {"root/A/x.SFH:status:3"}},
        {"Result",
         "ClipStoreFile",
         {"Trim root/A/x.SFH 0 2 3:80", "Trim root/A/x.SFH 0 2 3:7E", "Trim root/A/x.SFH 2 3:7F",
          "Copy root/A/x.SFH 0 2 3:7F", "Trim:7F"}},
    };
    for (const auto& [verb, table, rows] : cases)
        for (const std::string& row : rows) {
            Hub(verb, table, row);
            EXPECT_THAT(Changes(), IsEmpty()) << verb << " " << row;
        }
    EXPECT_THAT(Tree(), ElementsAre("/", "/A", "/A/x"));
    EXPECT_EQ(At("/A/x").duration, 7);
    Clip(n32);
    EXPECT_EQ(At(("/" + n32).c_str()).name, n32);
}

TEST_F(ClipStore, ChangesAreToldToFrameMemoryPagesAlone)
{
    Folder("A");
    Clip("A/x", 3);
    EXPECT_THAT(Changes(), ElementsAre("1 A 0 0", "1 x 0 0"));
    for (const auto& [word, column] : {std::pair{"pairfile:1", 2},
                                       {"format4k:1", 3},
                                       {"format:5", 4},
                                       {"timestamp:2027-02-01 10:11:12", 5},
                                       {"status:3", 6}}) {
        Hub("Notify", "ClipStoreFile", std::string("root/A/x.SFH:") + word);
        EXPECT_THAT(Changes(), ElementsAre("2 x " + std::to_string(column) + " 0")) << word;
    }
    const ELEMENT& x = At("/A/x");
    EXPECT_TRUE(x.is_pair == 1 && x.format4k == 1 && x.format == 5 && x.exist == 3);
    EXPECT_STREQ(x.create_time, "2027 Feb.01 10:11");
    for (const auto& [time, shown] : {std::pair{"2027-12-31 00:00:00", "2027 Dec.31 00:00"},
                                      {"2027-13-31 00:00:00", ""},
                                      {"2027-00-31 00:00:00", ""},
                                      {"2027-12-31", ""}}) {
        Hub("Notify", "ClipStoreFile", std::string("root/A/x.SFH:timestamp:") + time);
        EXPECT_STREQ(x.create_time, shown) << time;
    }
    (void)Changes();
    Clip("A/x", 4);
    EXPECT_THAT(Changes(), ElementsAre("2 x 0 0")) << "told anew";
    GL_NowPage = 0x11110000;
    Hub("Delete", "ClipStoreFile", "root/A/x.SFH");
    EXPECT_THAT(Changes(), IsEmpty());
    GL_NowPage = 0x71620000;
    Hub("Deleted", "ClipStoreFolder", "root/A");
    EXPECT_THAT(Changes(), ElementsAre("3 A 0 0"));
    FMCtrl3_HubLost();
    EXPECT_THAT(Changes(), ElementsAre("6 - 0 0"));
}

TEST_F(ClipStore, AViewMovesThroughTheTree)
{
    for (const char* path : {"A", "A/B", "A/B/C", "A/B/C/D", "root"})
        Folder(path);
    Clip("A/x");
    CURRENT_INFO info;
    FMCtrl3_InitCurrentInfo(&info);
    static const std::tuple<const char*, int, const char*> steps[] = {
        {"..", -1, "/root/"},       {"A", 0, "/root/A"},
        {"x", -1, "/root/A"},       {"../..", -1, "/root/A"},
        {"B", 0, "/root/A/B"},      {"/A/B/C/D", 0, "/root/A/B/C/D"},
        {"../../..", 0, "/root/A"}, {"/root/A/B/C", 0, "/root/A/B/C"},
        {"../..", 0, "/root/A"},    {"B/C", -1, "/root/A"},
        {"/A/x", -1, "/root/A"},    {"12345678901234567", -1, "/root/A"},
        {"..", 0, "/root/"},        {"root", 0, "/root/root"},
        {"..", 0, "/root/"},        {"/root", 0, "/root/"},
        {"/", 0, "/root/"},         {"", -1, "/root/"},
    };
    for (const auto& [directory, result, path] : steps) {
        EXPECT_EQ(FMCtrl3_ChangeDirectory(&info, directory), result) << directory;
        EXPECT_STREQ(info.path, path) << directory;
    }
    (void)FMCtrl3_ChangeDirectory(&info, "/A/B");
    Hub("Delete", "ClipStoreFolder", "root/A/B");
    EXPECT_EQ(FMCtrl3_GetCurrent(&info), nullptr);
    EXPECT_EQ(FMCtrl3_ChangeDirectory(&info, ".."), 0) << "a folder that has gone can be left";
    EXPECT_STREQ(info.path, "/root/A");
}

TEST_F(ClipStore, ASearchGoesRoundBothWays)
{
    Folder("Goals");
    Clip("Goals/goal1");
    Clip("Goals/save");
    Clip("goal2", 1, 0, TIME, 1);
    Clip("Lost/goal3"); // its folder is not known
    SEARCH_CONFIG config;
    CopyText(config.text, "GOAL");
    const auto walk = [&](SEARCH_DIR dir) {
        Strings names;
        config.start = nullptr;
        for (int i = 0; i < 4; i++) {
            config.start = FMCtrl3_FindName(dir, &config);
            names.push_back(config.start ? config.start->element.name : "-");
        }
        return names;
    };
    EXPECT_THAT(walk(SEARCH_DIR_NEXT), ElementsAre("Goals", "goal1", "goal2", "Goals"));
    EXPECT_THAT(walk(SEARCH_DIR_PREV), ElementsAre("goal2", "goal1", "Goals", "goal2"));
    config.type = ELEMENT_TYPE_FILE;
    config.is_pair = true;
    EXPECT_THAT(walk(SEARCH_DIR_NEXT), ElementsAre("goal2", "goal2", "goal2", "goal2"));
    config.place = 2;
    EXPECT_THAT(walk(SEARCH_DIR_NEXT), ElementsAre("-", "-", "-", "-"));
}

TEST_F(ClipStore, MiddlesOfClipsAreFetchedFirstThirtyAtOnce)
{
    Folder("A");
    Clip("still", 1, 1);
    auto gets = Gets();
    ASSERT_THAT(Remotes(gets), ElementsAre("still.SFH.THM"));
    EXPECT_TRUE(fs::exists(FM_FOLDER));
    Clip("A/clip", 40, 1);
    Clip("last", 5, 1);
    EXPECT_THAT(Gets(), IsEmpty()) << "one is in flight";
    (void)Changes();
    Answer(gets[0], "OK");
    EXPECT_THAT(Changes(), ElementsAre("4 still 0 0"));
    gets = Gets();
    ASSERT_EQ(gets.size(), 30u);
    EXPECT_EQ(gets[0].remote, "SWR000D001:/vorn/FM/1/A/clip.SFH#000019.THM");
    EXPECT_EQ(gets[0].local, "MYHOST:/mnt/sys/FM/1/A.clip.SFH#000019.THM");
    EXPECT_EQ(Remotes(gets)[1], "last.SFH#000001.THM");
    EXPECT_EQ(Remotes(gets)[2], "A/clip.SFH#000000.THM");
    for (const Get& get : gets)
        Answer(get, "OK");
    gets = Gets();
    EXPECT_EQ(gets.size(), 15u);
    EXPECT_EQ(Remotes(gets).back(), "last.SFH#000004.THM");
    (void)Changes();
    GL_NowPage = 0x11110000;
    for (const Get& get : gets)
        Answer(get, "OK");
    EXPECT_THAT(Changes(), IsEmpty()) << "no page of the frame memory is open";
    Passes(1000);
    EXPECT_THAT(Gets(), IsEmpty());
    EXPECT_EQ(Files().size(), 46u);
    Clip("more", 1, 1);
    EXPECT_EQ(Gets().size(), 1u);
    FMCtrl3_HubLost();
    EXPECT_EQ(QueueRoot, nullptr) << "nothing waits for an answer";
}

TEST_F(ClipStore, OnlyFilesOfAnotherSizeAreFetchedAgainFiveTimesAtMost)
{
    Put("c.SFH#000000.THM", 6966);
    Put("c.SFH#000001.THM", 6965);
    Put("c.SFH#000002.THM", 21222);
    Put("c.SFH#000003.THM", 6967);
    Clip("c", 4, 1);
    Strings asked;
    for (int i = 0; i < 4; i++) {
        Passes(500);
        for (const Get& get : Gets()) {
            asked.push_back(Remotes({get})[0]);
            EXPECT_THAT(Files(), Not(Contains(asked.back()))) << "one that is wrong is no use";
            Answer(get, "OK");
        }
    }
    EXPECT_THAT(asked, ElementsAre("c.SFH#000001.THM", "c.SFH#000003.THM"));
    HubWorks("Notify", "root/c.SFH:thumbnail:0");
    EXPECT_THAT(Files(), IsEmpty()) << "it has none any more";
    HubWorks("Notify", "root/c.SFH:thumbnail:1");
    for (const size_t some : {1u, 3u}) { // all anew, the middle first
        const auto anew = Gets();
        EXPECT_EQ(anew.size(), some);
        for (const Get& get : anew)
            Answer(get, "OK");
    }
    HubWorks("Notify", "root/c.SFH:thumbnail:0");

    Clip("a", 1, 0);
    Hub("Delete", "ClipStoreFile", "root/a.SFH");
    EXPECT_FALSE(fs::exists(FM_FOLDER + std::string("a.SFH.THM.of"))) << "nothing of it is here";
    Clip("a", 1, 0);
    EXPECT_THAT(Gets(), IsEmpty());
    Hub("Notify", "ClipStoreFile", "root/a.SFH:thumbnail:1");
    int fetches = 0;
    for (auto gets = Gets(); !gets.empty() && fetches < 20; gets = Gets(), fetches++)
        Answer(gets[0], "NG(no)");
    EXPECT_EQ(fetches, 6);
    Hub("Notify", "ClipStoreFile", "root/a.SFH:thumbnail:1");
    auto gets = Gets();
    ASSERT_EQ(gets.size(), 1u) << "a change tries again";
    Hub("Delete", "ClipStoreFile", "root/a.SFH");
    (void)Changes();
    Answer(gets[0], "OK");
    EXPECT_THAT(Files(), IsEmpty()) << "it came for nobody";
    EXPECT_THAT(Changes(), IsEmpty());
}

TEST_F(ClipStore, ATrimRenumbersTheThumbnailsThatAreThere)
{
    const auto clip = [](const char* name) {
        for (int i = 0; i < 6; i++)
            Put(name + (".SFH#00000" + std::to_string(i)) + ".THM", i % 2 ? 6966 : 21222);
        Clip(name, 6, 1);
    };
    const size_t open_before = FilesIn("/proc/self/fd").size();
    clip("a b");
    Passes(1000);
    HubWorks("Result", "Trim root/a b.SFH 3 5 3:7F");
    EXPECT_EQ(At("/a b").duration, 3);
    EXPECT_THAT(Files(),
                ElementsAre("a b.SFH#000000.THM", "a b.SFH#000001.THM", "a b.SFH#000002.THM"));
    EXPECT_EQ(fs::file_size(FM_FOLDER + std::string("a b.SFH#000001.THM")), 21222u);
    EXPECT_THAT(Changes(), testing::IsSupersetOf({"2 a b 1 0", "5 a b 0 0"}));
    HubWorks("Result", "Trim root/a b.SFH 1 1 1:7F");
    EXPECT_THAT(Files(), ElementsAre("a b.SFH.THM"));
    EXPECT_THAT(Gets(), IsEmpty());

    HubWorks("Delete", "root/a b.SFH");
    clip("c");
    Passes(1000);
    fs::remove(FM_FOLDER + std::string("c.SFH#000002.THM"));
    HubWorks("Result", "Trim root/c.SFH 2 4 3:7F");
    EXPECT_THAT(Files(), IsEmpty()) << "without its first, none is kept";
    const auto gets = Gets();
    ASSERT_THAT(Remotes(gets), ElementsAre("c.SFH#000000.THM"));
    HubWorks("Result", "Trim root/c.SFH 1 2 2:7F");
    (void)Changes();
    Answer(gets[0], "OK");
    EXPECT_THAT(Changes(), IsEmpty()) << "it is the first of what was";

    HubWorks("Delete", "root/c.SFH");
    for (const char* name : {"a.SFH#000010.THM", "a.SFH#000300.THM", "a.SFH#089000.THM",
                             "a.SFH#000301.THM", "a.SFH#000299.THM", "a2.SFH#000300.THM",
                             "a.SFH#000301.BMP", "a.SFH#+00301.THM"}) // no frames of it
        Put(name, 6966);
    Put("a.SFH#000302.THM", 21222);
    Put("a.SFH#000303.THM", 6966, 2); // it may have come after the store's trim
    Clip("a", 90000, 1);              // half an hour
    Clip("a2", 400, 1);
    const clock_t begun = clock();
    HubWorks("Result", "Trim root/a.SFH 300 80299 80000:7F");
    EXPECT_THAT(Files(), ElementsAre("a.SFH#+00301.THM", "a.SFH#000000.THM", "a.SFH#000001.THM",
                                     "a.SFH#000002.THM", "a.SFH#000301.BMP", "a2.SFH#000300.THM"));
    EXPECT_EQ(fs::file_size(FM_FOLDER + std::string("a.SFH#000002.THM")), 21222u);
    EXPECT_LT(clock() - begun, CLOCKS_PER_SEC / 20) << "not every name there may be is tried";
    EXPECT_EQ(FilesIn("/proc/self/fd").size(), open_before);
}

TEST_F(ClipStore, ThumbnailsOfALongClipGoByAndByAndANewOneOfItsNameWaits)
{
    for (int i = 0; i < 150; i++)
        Put("a.b.SFH#" + std::to_string(100000 + i) + ".THM", 6966);
    Put("a.b2.SFH#000300.THM", 6966);
    PutText(NOTE, "200002 2026 Jan.31 23:59");
    Folder("a");
    Clip("a/b", 200002, 1);
    HubWorks("Result", "Trim root/a/b.SFH 100000 100149 150:7F");
    EXPECT_EQ(Files().front(), "a.b.SFH#000000.THM");
    EXPECT_EQ(Files().size(), 151u);
    Hub("Notify", "ClipStoreFile", "root/a/b.SFH:timestamp:2026-02-01 01:02:03");
    Hub("Result", "ClipStoreFile", "Trim root/a/b.SFH 0 9 10:7F");
    Work(1);
    EXPECT_EQ(Files().size(), 151u - 2u) << "ten are looked at, and some are gone";
    EXPECT_EQ(Note(), "150 2026 Feb.01 01:02");
    Hub("Delete", "ClipStoreFile", "root/a/b.SFH");
    Work(2);
    EXPECT_EQ(Files().size(), 151u - 2u - 12u) << "all go now";
    Clip("a/b", 200, 1); // another one
    EXPECT_THAT(Gets(), IsEmpty());
    Work(16);
    EXPECT_EQ(Files().size(), 9u);
    EXPECT_EQ(Note(), "") << "they are of no clip already";
    Work(1);
    EXPECT_THAT(Files(), ElementsAre("a.b2.SFH#000300.THM"));
    EXPECT_EQ(Remotes(Gets()).front(), "a/b.SFH#000099.THM");
    EXPECT_EQ(Note(), "200 2026 Jan.31 23:59");
    EXPECT_EQ(Changes().back(), "5 b 0 99");

    (void)TakeQueuedCommands();
    for (const char* frame : {"100", "101", "103"})
        Put("take#5.SFH#000" + std::string(frame) + ".THM", 6966);
    Put("take#6.SFH#000100.THM", 6966);
    Clip("take#5", 200, 1);
    Put("take#5.SFH#000141.THM", 6966);
    Hub("Result", "ClipStoreFile", "Trim root/take#5.SFH 100 149 50:7F");
    HubWorks("Result", "Trim root/take#5.SFH 1 40 40:7F"); // of what is left
    EXPECT_THAT(Files(), ElementsAre("a.b2.SFH#000300.THM", "take#5.SFH#000000.THM",
                                     "take#5.SFH#000002.THM", "take#6.SFH#000100.THM"));
    Hub("Delete", "ClipStoreFile", "root/take#5.SFH");
    CopyText(DEV_MySwr[0]->id, "SWR000D002"); // what is left to do stays in the folder of the first
    Work();
    CopyText(DEV_MySwr[0]->id, "SWR000D001");
    EXPECT_THAT(Files(), ElementsAre("a.b2.SFH#000300.THM", "take#6.SFH#000100.THM"));
}

TEST_F(ClipStore, ThumbnailsOfAnotherClipOfThisNameAreFetchedAnewByTheirNote)
{
    static const std::tuple<const char*, int, bool> cases[] = {
        // what the files are of (null: from before there were notes), the clip that is told now
        {"3 2026 Jan.31 23:59", 3, true},
        {nullptr, 3, true},
        {"6 2026 Jan.31 23:59", 3, false}, // trimmed meanwhile
        {"3 2026 Jan.31 23:59", 1, false},
        {"3 2026 Jan.31 23:58", 3, false}, // recorded meanwhile
        {"3 2026 Jan.", 3, false},         // broken off
        {"", 3, false},
        {"-1", 3, false},
    };
    Folder("a");
    for (const auto& [note, frames, are_kept] : cases) {
        for (int i = 0; i < 3; i++)
            Put("a.b.SFH#00000" + std::to_string(i) + ".THM", 6966);
        if (note)
            PutText(NOTE, note);
        if (!are_kept) // a trim to one frame was broken off
            Put("a.b.SFH.THM", 6966);
        Clip("a/b", frames, 1);
        Work(2);
        EXPECT_EQ(Gets().empty(), are_kept) << note;
        EXPECT_EQ(Files().size(), are_kept ? 3u : 0u) << note;
        EXPECT_EQ(Note(), std::to_string(frames) + " 2026 Jan.31 23:59") << note;
        FMCtrl3_Init(); // as after a start
        (void)TakeQueuedCommands();
        fs::remove_all(FM_FOLDER);
        Folder("a");
    }

    for (int i = 0; i < 6; i++)
        Put("a.b.SFH#00000" + std::to_string(i) + ".THM", 6966);
    Clip("a/b", 6, 1);
    EXPECT_EQ(Note(), "6 2026 Jan.31 23:59");
    Hub("Result", "ClipStoreFile", "Trim root/a/b.SFH 1 4 4:7F");
    Hub("Notify", "ClipStoreFile", "root/a/b.SFH:timestamp:2026-02-01 01:01:03");
    EXPECT_EQ(Note(), "6 2026 Jan.31 23:59") << "until all have their new numbers";
    Work();
    EXPECT_EQ(Note(), "4 2026 Feb.01 01:01");
    Folder("a/b"); // beside the clip of this name
    Hub("Notify", "ClipStoreFolder", "root/a/b:timestamp:2026-03-01 01:02:03");
    EXPECT_EQ(Note(), "4 2026 Feb.01 01:01");
    Hub("Notify", "ClipStoreFile", "root/a/b.SFH:timestamp:2026-02-01 01:02:03");
    EXPECT_EQ(Note(), "4 2026 Feb.01 01:02");
    FMCtrl3_HubLost();
    Folder("a");
    Clip("a/b", 4, 1, "2026-02-01 01:02:03");
    Passes(1000);
    EXPECT_THAT(Gets(), IsEmpty());
    EXPECT_EQ(Note(), "4 2026 Feb.01 01:02");
    HubWorks("Delete", "root/a/b.SFH");
    EXPECT_TRUE(fs::is_empty(FM_FOLDER));
}

TEST_F(ClipStore, ATrimIsNotKeptWaitingAndASecondOneMeanwhileLeavesNoWrongNumbers)
{
    const auto clip = [](const std::string& name, int frames) {
        for (int i = 0; i < frames; i++)
            Put(name + ".SFH#" + std::to_string(1000000 + i).substr(1) + ".THM", 6966);
        Clip(name, frames, 1);
    };
    const auto count = [](const std::string& name) {
        return std::ranges::count_if(
            Files(), [&](const std::string& file) { return file.starts_with(name + ".SFH"); });
    };
    for (const char* name : {"first", "next"})
        clip(name, 10);
    clip("cut", 4);
    clip("again", 100);
    clip("hole", 9);
    Passes(2000);
    ASSERT_THAT(Gets(), IsEmpty());
    for (const char* name : {"first", "next"})
        Hub("Delete", "ClipStoreFile", std::string("root/") + name + ".SFH");
    Hub("Result", "ClipStoreFile", "Trim root/cut.SFH 1 2 2:7F");
    Work(2);
    EXPECT_GT(count("next"), 0);
    EXPECT_THAT(Files(), Contains("cut.SFH#000001.THM"));
    EXPECT_EQ(count("cut"), 2);
    Work();
    EXPECT_EQ(count("next"), 0);
    // Another switcher's store has a clip of that name.
    Hub("Delete", "ClipStoreFile", "root/cut.SFH");
    CopyText(DEV_MySwr[0]->id, "SWR000D002");
    Clip("cut", 1, 1);
    const auto gets = Gets();
    ASSERT_EQ(gets.size(), 1u) << "nothing goes of it there";
    (void)Changes();
    Work();
    EXPECT_THAT(Changes(), IsEmpty());
    Answer(gets[0], "OK");
    Hub("Delete", "ClipStoreFile", "root/cut.SFH");
    CopyText(DEV_MySwr[0]->id, "SWR000D001");
    fs::remove_all("/mnt/sys/FM/2");

    // What can't be removed is not taken for that of another clip, over and over.
    fs::create_directories(FM_FOLDER + std::string("stuck.SFH.THM.of"));
    (void)Changes();
    Clip("stuck", 1, 1);
    Work();
    EXPECT_THAT(Changes(), ElementsAre("1 stuck 0 0"));
    EXPECT_THAT(Gets(), IsEmpty());

    fs::remove(FM_FOLDER + std::string("again.SFH#000051.THM"));
    Hub("Result", "ClipStoreFile", "Trim root/again.SFH 50 99 50:7F");
    Work(1);
    Put("again.SFH#000001.THM", 6966); // of what was frame 1, and comes late
    Work();
    EXPECT_EQ(count("again"), 49);
    EXPECT_THAT(Files(), Not(Contains("again.SFH#000001.THM"))) << "51 was not there";
    Hub("Result", "ClipStoreFile", "Trim root/again.SFH 10 49 40:7F");
    Work(2);
    Hub("Result", "ClipStoreFile", "Trim root/again.SFH 0 29 30:7F");
    Work();
    EXPECT_EQ(count("again"), 0) << "some had their new numbers, and some the old ones";
    // A trim of what is left, whose first picture is not there.
    fs::remove(FM_FOLDER + std::string("hole.SFH#000003.THM"));
    Hub("Result", "ClipStoreFile", "Trim root/hole.SFH 1 8 8:7F");
    Hub("Result", "ClipStoreFile", "Trim root/hole.SFH 2 7 6:7F");
    Work();
    EXPECT_EQ(count("hole"), 0);
}

TEST_F(ClipStore, FilesOfNoElementAreRemovedOnce)
{
    Folder("A");
    Clip("A/b", 3);
    Clip("A.b", 1);
    for (const char* name :
         {"A.b.SFH#000002.THM", "A.b.SFH.THM", "A.b.SFH#000003.THM", "A.b.SFH#00002.THM",
          "b.SFH#000000.THM", "A.b.SFH#000001.BMP", "A.b.THM"})
        Put(name, 6966);
    Put("A.b.SFH#000000.THM", 6965);
    const std::string longest(ELEMENT_FOLDER_SIZE - 1, 'f');
    for (const std::string& path : Strings{"A/B", "A/B/C", "A/B/C/D", longest})
        Folder(path);
    Clip("A/d", 3);
    for (const std::string& path : Strings{"A/B/C/D/e", longest + "/e", "x#5"})
        Clip(path);
    // Four folders deep, the longest name, a name with a "#"; and files of none.
    for (const std::string& name :
         Strings{"A.B.C.D.e.SFH", longest + ".e.SFH", "x#5.SFH", longest + "f.e.SFH", "A.d.SFH",
                 "x#5.SFH#000000", "A.d.SFH#00000x", "A.d.SFH#000001x"})
        Put(name + ".THM", 6966);
    for (const char* name : {"A.b.SFH.THM.of", "A.c.SFH.THM.of", "A.b.of"})
        PutText(name, "");
    Passes(4000);
    EXPECT_EQ(Files().size(), 16u) << "the tree may not be whole yet";
    Passes(3000);
    EXPECT_THAT(Files(), ElementsAre("A.B.C.D.e.SFH.THM", "A.b.SFH#000002.THM", "A.b.SFH.THM",
                                     longest + ".e.SFH.THM", "x#5.SFH.THM"));
    fs::remove(FM_FOLDER + std::string("A.b.SFH.THM.of"));
    for (const auto& entry : fs::directory_iterator(FM_FOLDER))
        EXPECT_NE(entry.path().extension(), ".of") << entry;
    Put("later.SFH.THM", 6966);
    Clip("one more");
    Passes(7000);
    EXPECT_THAT(Files(), Contains("later.SFH.THM")) << "not before the next start";
}

TEST_F(ClipStore, TablesComeAndGo)
{
    (void)TakeQueuedHubLines();
    for (const char* table : {"ClipStoreInfo", "ClipStoreFolder", "ClipStoreFile"})
        Hub("Ready", table, "");
    EXPECT_THAT(TakeQueuedHubLines(),
                ElementsAre("Read#CS1.ClipStoreInfo:CAPACITY:", "InitRead#CS1.ClipStoreFolder",
                            "InitRead#CS1.ClipStoreFile"));
    Folder("A");
    Clip("A/x");
    Hub("Notify", "ClipStoreInfo", "CAPACITY::900,800,70,60,7f");
    EXPECT_EQ(std::make_pair(SYS_StoreTotal, SYS_StoreFree), std::make_pair(900, 800));
    EXPECT_EQ(std::make_pair(SYS_MemoryTotal, SYS_MemoryFree), std::make_pair(70, 60));
    for (const char* row : {"CAPACITY::1,1,1,1,7e", "CAPACITY::1,1,1,1,80", "CAPACITY::1,1,1,1",
                            "CAPACITY:1,1,1,1,7f", "TIME::1,1,1,1,7f"}) {
        Hub("Notify", "ClipStoreInfo", row);
        EXPECT_EQ(SYS_StoreTotal, 900) << row;
    }
    Hub("Disconnect", "ClipStoreFile", "");
    EXPECT_THAT(Tree(), ElementsAre("/", "/A"));
    for (void (*lose)() : {+[] { Hub("Disconnect", "ClipStoreInfo", ""); }, FMCtrl3_HubLost}) {
        probe::seen.clear();
        lose();
        EXPECT_EQ(probe::Count(LMSG_FMLOAD), 1);
        EXPECT_EQ(SYS_StoreTotal + SYS_StoreFree + SYS_MemoryTotal + SYS_MemoryFree, 0);
        Hub("Notify", "ClipStoreInfo", "CAPACITY::9,8,7,6,7f");
    }
}
