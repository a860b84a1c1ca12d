#include "drop_folders.h"
#include "fetches.h"
#include "file.h"
#include "fmctrl_page.h"
#include "fmctrl_private.h"
#include <unistd.h>

namespace fs = std::filesystem;
using testing::SizeIs;

struct DropFolders : FrameMemory {
    void SetUp() override
    {
        FrameMemory::SetUp();
        AwaitDropFolders();
        for (const char* folder : {"/mnt/sys/FMLoad", "/mnt/sys/FTPIF/Command"})
            for (const auto& entry : fs::recursive_directory_iterator(folder))
                if (!entry.is_directory())
                    fs::remove(entry.path());
        Max(5662);
        Settle();
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        Settle();
        FrameMemory::TearDown();
    }
    // All folders are as they were last seen, and the registers are known.
    static void Settle()
    {
        usleep(30000); // file times move in steps
        (void)TakeQueuedCommands();
        Strings lines = After(2000);
        for (int i = 0; i < 20; i++) {
            if (lines.empty())
                return;
            (void)Found(lines, {});
            lines = Look();
        }
        FAIL() << "the search does not end";
    }
    static Strings Look()
    {
        (void)TakeQueuedCommands();
        return After(1000);
    }
    static void Drop(const std::string& path, const std::string& text = "image")
    {
        usleep(30000); // file times move in steps
        std::ofstream("/mnt/sys/FMLoad/" + path) << text;
        usleep(30000);
    }
    // What the application sends when the server takes a command and reports on it.
    static Strings Served(const std::string& line, const Strings& reports)
    {
        (void)TakeQueuedCommands();
        Serve(line, reports);
        return TakeQueuedCommands();
    }
    static Strings Found(const Strings& search, const Strings& paths)
    {
        Strings rows;
        for (const std::string& path : paths)
            rows.push_back("/mnt/sys/FMLoad/" + path + ",Sat Apr  4 12:34:56 2020");
        rows.push_back("OK");
        return search.empty() ? Strings{} : Served(search[0], rows);
    }
    // A file that is dropped and found; what the application sends then.
    static Strings Bring(const std::string& path, const std::string& text = "image")
    {
        Drop(path, text);
        return Found(Look(), {path});
    }
    // The two files of a conversion lie where its command says.
    static void Convert(const std::string& line)
    {
        constexpr char STAGING[] = "/var/tmp/XPORT/";
        for (size_t at = line.find(STAGING); at != std::string::npos;
             at = line.find(STAGING, at + 1)) {
            const fs::path path = line.substr(at, line.find(',', at) - at);
            fs::create_directories(path.parent_path());
            std::ofstream{path} << "converted";
        }
    }
    // Every file command is carried out, to the end of all.
    static Strings Finish(Strings lines, const std::string& reply = "OK")
    {
        Strings all;
        for (size_t i = 0; i < lines.size() && i < 20000; i++) {
            all.push_back(lines[i]);
            if (reply == "OK" && lines[i].find("2SFM") != std::string::npos)
                Convert(lines[i]);
            if (lines[i].starts_with("put File@"))
                for (const std::string& more : Served(lines[i], {reply}))
                    lines.push_back(more);
            if (i + 1 == lines.size()) { // the end of a job waits for the drives
                for (int pass = 0; pass < 20; pass++)
                    Pass(10);
                for (const std::string& more : TakeQueuedCommands())
                    lines.push_back(more);
            }
        }
        return all;
    }
    static Strings Others(Strings lines)
    {
        std::erase_if(lines, [](const std::string& l) { return l.starts_with("put File@"); });
        return lines;
    }
    static bool Exists(const std::string& path) { return fs::exists(path); }
};

struct CommandFolder : DropFolders {
    static inline const std::string folder = "/tmp/FTPIF/Command/";
    static void Mark(const std::string& name, const std::string& text = "")
    {
        std::ofstream(folder + name) << text;
    }
};

TEST_F(DropFolders, AnImageIsImportedShownAndRemoved)
{
    (void)Sense(1, "81", "Mlogo");
    (void)Sense(3, "81", "Mused");
    Pass(2000);
    Drop("FM4/logo.2.png");
    EXPECT_THAT(After(999), IsEmpty()) << "once a second";
    const Strings search = After(1);
    EXPECT_THAT(search, ElementsAre(HasSubstr(",MYHOST:/mnt/sys/FMLoad/FM4,*.*")));
    EXPECT_THAT(Found(search, {"FM4/logo.2.png"}),
                ElementsAre("put Frame Mem@File@Delete Thumbnail@Single#Mlogo"));
    EXPECT_THAT(After(499), IsEmpty());
    const Strings sent = Finish(After(1));
    ASSERT_FALSE(sent.empty());
    EXPECT_THAT(sent[0], AllOf(HasSubstr("PNG2SFM with Compress#"),
                               HasSubstr(",MYHOST:/mnt/sys/FMLoad/FM4/logo.2.png,")));
    EXPECT_THAT(Others(sent), ElementsAre("put Frame Mem@Recall@Recall Thumbnail@Select#FM3&4",
                                          "put Frame Mem@Recall@Recall Thumbnail@FM4#Mlogo"));
    EXPECT_FALSE(Exists("/mnt/sys/FMLoad/FM4/logo.2.png"));
}

TEST_F(DropFolders, GraphicsWithoutRecallGoIntoTheirFolder)
{
    (void)Tell("16@Frame Mem@Status@Folder Name Sense", "1,news");
    Pass(2000);
    Drop("NoRecall/b.TGA");
    Drop("NoRecall/Mclip.FMEM_001.SFM");
    const Strings search = Look();
    EXPECT_THAT(search, ElementsAre(HasSubstr("FMLoad/NoRecall,")));
    EXPECT_THAT(Found(search, {"NoRecall/b.TGA", "NoRecall/Mclip.FMEM_001.SFM",
                               "NoRecall/readme.txt", "NoRecall/.png"}),
                ElementsAre("put Frame Mem@Folder@Rename#2,Graphics"));
    const Strings sent = Finish(After(500));
    EXPECT_THAT(sent, Contains(HasSubstr("SWR000D001:FMEM_003.SF2")));
    EXPECT_THAT(sent, Not(Contains(HasSubstr("/.png")))) << "no name is left";
    EXPECT_THAT(Others(sent),
                testing::UnorderedElementsAre("put Frame Mem@Folder@Move Still#0,Mb,2",
                                              "put Frame Mem@Folder@Move Still#0,Mclip,2",
                                              "put Frame Mem@Folder@Move Still#0,Sb,2"));
    // The folder is known by now.
    (void)Tell("16@Frame Mem@Status@Folder Name Sense", "2,Graphics");
    Settle();
    EXPECT_THAT(Bring("NoRecall/c.bmp"), IsEmpty());
    EXPECT_THAT(Finish(After(500)), Contains("put Frame Mem@Folder@Move Still#0,Mc,2"));
}

TEST_F(DropFolders, AnImageThatIsStillArrivingIsWaitedForAndABadOneIsNotKept)
{
    (void)Bring("FM1/big.bmp", "a");
    Drop("FM2/next.bmp"); // its turn comes when this one has ended
    for (const char* text : {"ab", "abc"}) {
        Drop("FM1/big.bmp", text);
        EXPECT_THAT(After(500), IsEmpty()) << text;
    }
    EXPECT_THAT(After(499), IsEmpty());
    EXPECT_THAT(Finish(After(1)), Not(IsEmpty()));
    Settle();
    (void)Bring("FM1/bad.bmp");
    EXPECT_THAT(Others(Finish(After(500), "NG([ERROR] no image.)")), IsEmpty());
    EXPECT_FALSE(Exists("/mnt/sys/FMLoad/FM1/bad.bmp"));
}

TEST_F(DropFolders, NamesThatCouldLeaveTheFolderOrTheCommandAreRefused)
{
    const std::string kept = "/mnt/sys/kept.png";
    std::ofstream(kept) << "image";
    Drop("FM1/a.png");
    const Strings search = Look();
    Strings paths = {"FM1/../../kept.png", "FM2/other.png", "FM1/sub/x.png",
                     "../kept.png",        "FM1/$(id).png", "FM1/`id`.png",
                     "FM1/-rf.png",        "FM1/",          "FM1a.png"};
    for (const char* const part : {"\\", "&", "|", "<", ">", "*", "?", "#", ";", "'", "\"", "\t"})
        paths.push_back(std::string("FM1/a") + part + "b.png");
    paths.push_back("FM1/" + std::string(300, 'a') + ".png");
    EXPECT_THAT(Found(search, paths), IsEmpty());
    EXPECT_THAT(After(500), IsEmpty());
    EXPECT_TRUE(Exists(kept));
    EXPECT_TRUE(Exists("/mnt/sys/FMLoad/FM1/a.png")) << "nobody told of it";
}

TEST_F(DropFolders, ThreeHundredImagesTakeTheEmptyRegistersAndNoneMore)
{
    Max(602);
    (void)Sense(2, "81", "Mused");
    Pass(2000);
    Strings paths;
    for (int i = 0; i < 301; i++) {
        char name[32];
        snprintf(name, sizeof name, "FM8/i%03d.png", 300 - i);
        std::ofstream(std::string("/mnt/sys/FMLoad/") + name) << "image";
        paths.push_back(name);
    }
    usleep(30000);
    (void)Found(Look(), paths);
    const Strings sent = Finish(After(500));
    const auto count = [&](const char* part) {
        return std::ranges::count_if(
            sent, [=](const std::string& l) { return l.find(part) != std::string::npos; });
    };
    EXPECT_EQ(count("PNG2SFM"), 300) << "601 registers are free: one has no second";
    ASSERT_FALSE(sent.empty());
    EXPECT_THAT(sent[0], HasSubstr("i001.png")) << "by name";
    EXPECT_EQ(count("Recall Thumbnail@FM8#Mi"), 300);
    EXPECT_FALSE(Exists("/mnt/sys/FMLoad/FM8/i300.png"));
    EXPECT_TRUE(Exists("/mnt/sys/FMLoad/FM8/i000.png")) << "found when the store was full";
}

TEST_F(DropFolders, ARegisterFileTakesTheFirstEmptyPlaceAndThatOfItsName)
{
    for (int n = 1; n <= 999; n++)
        (void)Sense(n, "81", "Mused" + std::to_string(n));
    (void)Sense(1001, "81", "Mshot");
    Pass(2000);
    EXPECT_THAT(Bring("FM1/Mshot.sfa"),
                ElementsAre("put Frame Mem@File@Delete Thumbnail@Single#Mshot"));
    EXPECT_THAT(Finish(After(500)), Contains(HasSubstr("SWR000D001:FMEM1000.SF2")));
    Settle();
    EXPECT_THAT(Bring("FM1/Mnext.sfm"), IsEmpty());
    EXPECT_THAT(Finish(After(500)), Contains(HasSubstr("SWR000D001:FMEM1000.SF2")))
        << "nobody has told that it is taken";
}

struct OlderDropFolders : DropFolders {
    static void Fill(int registers)
    {
        SYS_FmemV6 = 0;
        Max(256);
        for (int n = 1; n <= registers; n++)
            (void)Sense(n, "81", "Mused" + std::to_string(n));
        Pass(2000);
    }
};

TEST_F(OlderDropFolders, LeaveTheWorkAreaAlone)
{
    Fill(222);
    Drop("FM8/a.png");
    Drop("FM8/b.png");
    (void)Found(Look(), {"FM8/a.png", "FM8/b.png"});
    EXPECT_THAT(Others(Finish(After(500))), SizeIs(2)) << "a picture of two is shown";
    EXPECT_TRUE(Exists("/mnt/sys/FMLoad/FM8/b.png"));
}

TEST_F(OlderDropFolders, ThatHaveOneRegisterLeftTakeARegisterFileAndNoPicture)
{
    Fill(223);
    Drop("FM7/c.png");
    const Strings search = Look();
    ASSERT_THAT(search, SizeIs(1));
    (void)Found(search, {"FM7/c.png"});
    EXPECT_THAT(After(500), IsEmpty());
    Settle();
    (void)Bring("FM7/Md.sfa");
    EXPECT_THAT(Finish(After(500)), Contains(HasSubstr("SWR000D001:FMEM_224.SFA")));
}

TEST_F(DropFolders, NothingIsTakenBeforeTheRegistersAreKnown)
{
    fm_drop_quit();
    Drop("FM1/a.png");
    EXPECT_THAT(After(3000), IsEmpty()) << "not even how many there are";
    Max(5662);
    EXPECT_THAT(Look(), Not(Contains(HasSubstr("FMLoad"))));
    (void)Sense(1, "81", "Mused");
    EXPECT_THAT(After(1000), IsEmpty()) << "one was told meanwhile";
    EXPECT_THAT(After(1000), SizeIs(1));
    // The server that was to answer has gone: it is asked again.
    Max(5662);
    Strings again = After(2000);
    std::erase_if(again, [](const std::string& l) { return !l.starts_with("put File@"); });
    EXPECT_EQ(again.size(), 1u);
    // And once more while it was to import what has been found.
    (void)Found(again, {"FM1/a.png"});
    EXPECT_THAT(After(500), SizeIs(1));
    Max(5662);
    EXPECT_EQ(QueueRoot, nullptr) << "nothing waits for an answer";
    again = After(2000);
    std::erase_if(again, [](const std::string& l) { return !l.starts_with("put File@"); });
    (void)Found(again, {"FM1/a.png"});
    EXPECT_THAT(Others(Finish(After(500))),
                ElementsAre("put Frame Mem@Recall@Recall Thumbnail@Select#FM1&2",
                            "put Frame Mem@Recall@Recall Thumbnail@FM1#Ma"));
    EXPECT_FALSE(Exists("/mnt/sys/FMLoad/FM1/a.png"));
}

TEST_F(CommandFolder, AllClearAnswersWhenTheDeletionHasEnded)
{
    Mark("allclear.cmd");
    const Strings sent = Look();
    EXPECT_EQ(sent.size(), 7u);
    EXPECT_THAT(sent, Contains("put Register@All Delete@Wipe Snapshot@MP2#true"));
    EXPECT_FALSE(Exists(folder + "allclear.cmd"));
    Mark("allclear.cmd"); // again, while the first one is under way
    for (int i = 0; i < 20; i++) {
        Deliver("INFORMATION@SWR File Process Progress", i < 10 ? "SWR1,1,100" : "SWR1,63,100");
        EXPECT_THAT(Look(), IsEmpty());
    }
    Deliver("INFORMATION@SWR File Process Progress", "SWR1,0,0");
    Pass(10);
    Pass(2980);
    EXPECT_FALSE(Exists(folder + "allclear.res"));
    Pass(10);
    EXPECT_EQ(FileText(folder + "allclear.res"), "OK\n");
    EXPECT_EQ(Look().size(), 7u) << "now the second one";
    Pass(4990);
    fs::remove(folder + "allclear.res");
    Pass(10);
    EXPECT_EQ(FileText(folder + "allclear.res"), "OK\n") << "5 seconds without any sign of it";
}

TEST_F(CommandFolder, EveryMarkerThatIsAPlainFileIsAnsweredOnce)
{
    static const std::pair<std::string, const char*> cases[] = {
        {"makelog", ""},
        {"nfsmount", ""},
        {"nfsmount", "/export;touch /tmp/owned\n"},
        {"nfsunmount", ""},
    };
    for (const auto& [name, text] : cases) {
        Mark(name + ".cmd", text);
        (void)Look();
        EXPECT_EQ(FileText(folder + name + ".res"), "Error\n") << name;
        EXPECT_FALSE(Exists(folder + name + ".cmd")) << name;
        fs::remove(folder + name + ".res");
        (void)Look();
        EXPECT_FALSE(Exists(folder + name + ".res")) << name;
    }
    EXPECT_FALSE(Exists("/tmp/owned"));

    fs::create_directory(folder + "allclear.cmd");
    fs::create_symlink("/etc/hostname", folder + "makelog.cmd");
    EXPECT_THAT(Look(), IsEmpty());
    EXPECT_TRUE(Exists(folder + "allclear.cmd"));
    EXPECT_FALSE(Exists(folder + "makelog.res"));
    fs::remove(folder + "allclear.cmd");
    fs::remove(folder + "makelog.cmd");

    // A reply does not go where a link in its place leads.
    std::ofstream("/tmp/precious") << "precious";
    for (const char* name : {"nfsunmount.res", "nfsunmount.res.new"})
        fs::create_symlink("/tmp/precious", folder + name);
    Mark("nfsunmount.cmd");
    (void)Look();
    EXPECT_EQ(FileText("/tmp/precious"), "precious");
    EXPECT_EQ(FileText(folder + "nfsunmount.res"), "Error\n");
}

TEST_F(CommandFolder, ALoadAndASaveOfAllFollowEachOther)
{
    for (const char* name : {"allload.res", "allsave.res"})
        fs::remove(folder + name);
    Mark("allload.cmd");
    Strings sent = Look();
    EXPECT_FALSE(Exists(folder + "allload.cmd"));
    Mark("allsave.cmd");
    std::ranges::copy(Look(), std::back_inserter(sent));
    EXPECT_TRUE(Exists(folder + "allsave.cmd")) << "it waits for its turn";
    EXPECT_THAT(Finish(sent), Each(HasSubstr(",MYHOST:/tmp/FTPIF/Import/")));
    EXPECT_EQ(FileText(folder + "allload.res"), "Error\n") << "there is nothing to be loaded";
    Strings saved = Look();
    EXPECT_FALSE(Exists(folder + "allsave.cmd"));
    for (int i = 0; i < 100 && !Exists(folder + "allsave.res"); i++) {
        Pass(10);
        std::ranges::copy(Finish(TakeQueuedCommands()), std::back_inserter(saved));
    }
    EXPECT_THAT(saved, Contains(HasSubstr("MYHOST:/tmp/FTPIF/Export/")));
    EXPECT_EQ(FileText(folder + "allsave.res"), "Error\n") << "the hub is not there";
}
