#include "file_page.h"
#include "process.h"
#include <filesystem>

using testing::EndsWith, testing::StartsWith;

struct FileSteps : FileListTest {
    using Entry = int (*)(FILEXFERLIST**, FILE_LIST_FUNC, int);

    void SetUp() override
    {
        FileListTest::SetUp();
        CopyText(DEV_Swr[0].id, "SWR000D001");
        CopyText(DEV_Swr[0].name, "SWR1");
        DeviceStructure();
        ASSERT_TRUE(DEV_MySwr[0]);
    }
    // What an item sends from its start to its end when every command ends well, without "put
    // File@" and labels. Short for roots: "stick/", "tmp/", "SWR:"; what has none is on this
    // machine.
    std::string Run(Entry entry, const std::string& src, const std::string& dst,
                    int is_extended = 0)
    {
        static const std::pair<const char*, std::string> roots[] = {
            {"stick/", "MYHOST:/mnt/usb/usb1/"},
            {"tmp/", "MYHOST:/var/tmp/"},
            {"SWR:", "SWR000D001:"},
            {"", "MYHOST:"}};
        const auto whole = [](const std::string& path) {
            for (const auto& [name, root] : roots)
                if (path.starts_with(name) && !path.starts_with("SWR000D"))
                    return root + path.substr(strlen(name));
            return path;
        };
        std::string steps;
        File_XferList_Add(&list, whole(src).c_str(), whole(dst).c_str());
        list->fmext = is_extended;
        const uint32_t label = uint32_t(entry(&list, List, 0)) - 1;
        for (int i = 0; i < 10 && list; i++) {
            std::string one = SentOne();
            const size_t at = one.find("#L");
            steps += (i ? " | " : "") + one.replace(at, one.find(',', at) - at, "#");
            Answer(label, "OK");
        }
        EXPECT_EQ(told.size(), 1u);
        told.clear();
        for (const auto& [name, root] : roots)
            for (size_t at; (at = steps.find(root)) != steps.npos;)
                steps.replace(at, root.size(), name);
        return steps;
    }
    void Add(const Strings& names, const std::string& from, const std::string& to)
    {
        for (const std::string& name : names)
            File_XferList_Add(&list, (from + name).c_str(), (to + name).c_str());
    }
};

TEST_F(FileSteps, AFileTakesTheWayOfItsEnds)
{
    static const struct {
        int is_v6;
        Entry entry;
        const char *src, *dst, *steps;
    } cases[] = {
        {0, File_ExecTransferList, "/a/x.SSS", "SWR:/b/x.SSS",
         "Transfer@Transfer#,/a/x.SSS,SWR:/b/x.SSS"},
        {0, File_ExecTransferList, "SWR:/b/x.SSS", "stick/d/x.SSS",
         "Transfer@Transfer#,SWR:/b/x.SSS,tmp/usb1/d/x.SSS | "
         "Access@Copy#,tmp/usb1/d/x.SSS,stick/d/x.SSS | Access@Remove#,tmp/usb1/d/x.SSS"},
        {0, File_ExecTransferList, "stick/x.SSS", "SWR:/b/x.SSS",
         "Access@Copy#,stick/x.SSS,tmp/usb1/x.SSS | "
         "Transfer@Transfer#,tmp/usb1/x.SSS,SWR:/b/x.SSS | Access@Remove#,tmp/usb1/x.SSS"},
        {0, File_ExecTransferList, "/a/Mx.FMEM_001.SFM", "SWR:FMEM_001.SFM",
         "Frame Memory@PutV3#,/a/Mx.FMEM_001.SFM,SWR:FMEM_001.SFM"},
        {0, File_ExecTransferList, "SWR:FMEM_001.SFM", "/a/Mx.FMEM_001.SFM",
         "Frame Memory@Get#,SWR:FMEM_001.SFM,/a/Mx.FMEM_001.SFM"},
        {0, File_ExecTransferList, "stick/M.SFM", "SWR:FMEM_001.SFM",
         "Access@Copy#,stick/M.SFM,tmp/usb1/M.SFM | "
         "Frame Memory@PutV3#,tmp/usb1/M.SFM,SWR:FMEM_001.SFM | Access@Remove#,tmp/usb1/M.SFM"},
        {0, File_ExecTransferList, "/a/x.MMR", "tmp/MenuMacro/mm_reg07.tmp",
         "Access@Copy#,/a/x.MMR,tmp/MenuMacro/mm_reg07.tmp"},
        {0, File_ExecTransferList, "/a/x.MMR", "SWR:/b/x.MMR",
         "Transfer@Transfer#,/a/x.MMR,SWR:/b/x.MMR"}, // no register's
        {0, File_ExecFmExportList, "SWR:FMEM_002.SFM", "/x/a.TGA.SUB",
         "Frame Memory@Get#,SWR:FMEM_002.SFM,tmp/Sa.FMEM_000.SFM | "
         "Frame Memory@SFM2TGA#,tmp/Sa.FMEM_000.SFM,/x/a.TGA.SUB | "
         "Access@Remove#,tmp/Sa.FMEM_000.SFM"},
        // The pictures of the newer frame memory are packed.
        {1, File_ExecTransferList, "/a/M.FMEM_001.SFM", "SWR:FMEM_001.SFM",
         "Frame Memory@Compress#,/a/M.FMEM_001.SFM,tmp/FMXfer/SWR000D001FMEM_001.SF2 | "
         "Frame Memory@PutV3#,tmp/FMXfer/SWR000D001FMEM_001.SF2,SWR:FMEM_001.SF2 | "
         "Access@Remove#,tmp/FMXfer/SWR000D001FMEM_001.SF2"},
        {1, File_ExecTransferList, "SWR:FMEX_002.SFA", "stick/M.SFA",
         "Frame Memory@Get#,SWR:FMEX_002.SF4,tmp/FMXfer/SWR000D001FMEX_002.SF4 | "
         "Frame Memory@Uncompress#,tmp/FMXfer/SWR000D001FMEX_002.SF4,stick/M.SFA | "
         "Access@Remove#,tmp/FMXfer/SWR000D001FMEX_002.SF4"},
        {1, File_ExecTransferList_AutoLoad, "/mnt/sys/FMLoad/FM1/M.SFM", "SWR:FMEM_001.SFM",
         "Frame Memory@Compress#,/mnt/sys/FMLoad/FM1/M.SFM,tmp/FMXfer/SWR000D001FMEM_001.SF2 | "
         "Frame Memory@PutV3#,tmp/FMXfer/SWR000D001FMEM_001.SF2,SWR:FMEM_001.SF2 | "
         "Access@Remove#,tmp/FMXfer/SWR000D001FMEM_001.SF2"},
        {1, File_ExecFmExportList, "SWR:FMEM_001.SFM", "stick/picture12.PNG",
         "Frame Memory@Get#,SWR:FMEM_001.SF2,tmp/Mpicture1.FMEM_000.SF2 | "
         "Frame Memory@Uncompress#,tmp/Mpicture1.FMEM_000.SF2,tmp/Mpicture1.FMEM_000.SFM | "
         "Access@Remove#,tmp/Mpicture1.FMEM_000.SF2 | "
         "Frame Memory@SFM2PNG#,tmp/Mpicture1.FMEM_000.SFM,stick/picture12.PNG | "
         "Access@Remove#,tmp/Mpicture1.FMEM_000.SFM"},
    };
    std::filesystem::remove_all("/var/tmp/MenuMacro");
    for (const auto& c : cases) {
        SYS_FmemV6 = c.is_v6;
        EXPECT_EQ(Run(c.entry, c.src, c.dst), c.steps);
    }
    EXPECT_TRUE(FileExist("/var/tmp/MenuMacro")) << "the copy has a place to go to";
    const std::string copy = "/var/tmp/MenuMacro/mm_reg07.tmp";
    WriteFile(copy, "no macro\n");
    (void)Run(File_ExecTransferList, "/a/x.MMR", copy);
    EXPECT_FALSE(FileExist(copy.c_str())) << "it has done its duty";
}

TEST_F(FileSteps, AnOldSwitcherGetsConvertedFiles)
{
    GL_DataGokan = 1;
    DEV_Swr[0].type = DEVTYPE_KTR40;
    CopyText(DEV_Swr[0].version, "5.42");
    EXPECT_EQ(Run(File_ExecTransferList, "/mnt/d/x.SSS", "SWR:/b/x.SSS"),
              "Access@Raw#,/usr/local/sbin/dg_snapshot 5.42 /mnt/d/x.SSS /var/tmp/mnt/d/x.SSS | "
              "Transfer@Transfer#,tmp/mnt/d/x.SSS,SWR:/b/x.SSS | Access@Remove#,tmp/mnt/d/x.SSS");
    // What the server's shell could take apart is not said to it.
    for (const std::string name : {"/d/$(x).SSS", "/d/a b.SSS", "/d/a;b.SSS"})
        EXPECT_EQ(Run(File_ExecTransferList, name, "SWR:/b/x.SSS"),
                  "Transfer@Transfer#," + name + ",SWR:/b/x.SSS");
    File_XferList_Add(&list, "MYHOST:/d/x.SKF", "SWR000D001:/b/x.SKF");
    File_ExecTransferList(&list, List, 0);
    EXPECT_THAT(SentOne(), HasSubstr("dg_keyframe"));
    Answer(list->label, "NG(version.)");
    EXPECT_THAT(SentOne(), HasSubstr("Transfer@Transfer#L"));
    EXPECT_STREQ(list->mesg, "x.SKF: Can't convert file. It is not supported version.");
    EXPECT_EQ(list->usb, 0);
    File_XferList_RemoveAll(&list);
    for (const char* version : {"5.41", "6.00", "5.4"}) {
        CopyText(DEV_Swr[0].version, version);
        EXPECT_EQ(Run(File_ExecTransferList, "/d/x.SSS", "SWR:/b/x.SSS"),
                  "Transfer@Transfer#,/d/x.SSS,SWR:/b/x.SSS");
    }
}

TEST_F(FileSteps, AFailedStepLeavesNoTemporary)
{
    Add({"x.SSS", "y.SSS", "z.SSS"}, "SWR000D001:/b/", "MYHOST:/mnt/usb/usb1/");
    File_ExecTransferList(&list, List, 0);
    (void)Sent();
    Answer(1, "OK");
    Answer(2, "OK");
    (void)Sent();
    Answer(1, "NG(full)");
    EXPECT_EQ(SentOne(), "Access@Remove#Lx,MYHOST:/var/tmp/usb1/x.SSS");
    Answer(2, "Canceled");
    EXPECT_EQ(SentOne(), "Access@Remove#Lx,MYHOST:/var/tmp/usb1/y.SSS");
    Answer(3, "NG(full)");
    EXPECT_THAT(Sent(), IsEmpty()) << "nothing was copied yet";
    EXPECT_EQ(list, nullptr);
}

TEST_F(FileSteps, ACancelLeavesNothingOnTheStagingPaths)
{
    Add({"w.SSS", "x.SSS", "y.SSS", "z.SSS"}, "SWR000D001:/b/", "MYHOST:/mnt/usb/usb1/");
    File_ExecTransferList(&list, List, 0);
    Ack(1, 21);
    Answer(2, "OK"); // to be copied to the stick
    Answer(3, "OK");
    Answer(3, "OK"); // it is there, and what was staged is being removed
    Answer(4, "NG(x)");
    (void)Sent();
    Cancel();
    EXPECT_THAT(Sent(), ElementsAre("put File@Transfer@Cancel#Lx,21",
                                    "put File@Access@Remove#Lx,MYHOST:/var/tmp/usb1/w.SSS",
                                    "put File@Access@Remove#Lx,MYHOST:/var/tmp/usb1/x.SSS",
                                    "put File@Access@Remove#Lx,MYHOST:/var/tmp/usb1/y.SSS"));
    EXPECT_EQ(list, nullptr);
}

TEST_F(FileSteps, EightPicturesAreUnderWayAndOneOnARamDisk)
{
    SYS_FmemV6 = 1;
    for (const Entry entry : {File_ExecTransferList_AutoLoad, File_ExecTransferList}) {
        File_XferList_RemoveAll(&list);
        for (int i = 1; i <= 10; i++)
            File_XferList_Add(&list, ("MYHOST:/a/M" + std::to_string(i) + ".SFM").c_str(),
                              ("SWR000D001:FMEM_" + std::to_string(100 + i) + ".SFM").c_str());
        entry(&list, List, 0);
        EXPECT_EQ(Sent().size(), 8u);
    }
    const uint32_t first = list->label;
    for (uint32_t l = first; l < first + 8; l++)
        for (int step = 0; step < 3; step++) {
            EXPECT_EQ(At(8)->status, FILESTATUS_NON);
            Answer(l, "OK");
        }
    EXPECT_EQ(Sent().size(), 16u + 2u) << "two steps of eight, and the last two";
    File_XferList_RemoveAll(&list);
    GL_IsRamDisk = 1;
    for (int i = 1; i <= 3; i++)
        File_XferList_Add(&list, ("SWR000D001:FMEM_00" + std::to_string(i) + ".SFM").c_str(),
                          ("MYHOST:/x/a" + std::to_string(i) + ".TIF").c_str());
    File_ExecFmExportList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 1u);
    Answer(list->label, "NG(x)");
    EXPECT_EQ(Sent().size(), 1u);
    File_XferList_RemoveAll(&list);
    Add({"a.SFM", "b.SFM"}, "MYHOST:/a/", "SWR000D001:FMEM_00");
    File_ExecTransferList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 1u);
}

TEST_F(FileSteps, TwoFilesNeverShareAStagingPath)
{
    SYS_FmemV6 = 1;
    for (const char* dst : {"MYHOST:/x/longname1.TIF", "MYHOST:/x/longname2.TIF"})
        File_XferList_Add(&list, "SWR000D001:FMEM_001.SFM", dst);
    File_ExecFmExportList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 1u);
    Answer(1, "NG(x)");
    EXPECT_EQ(Sent().size(), 1u);
    File_XferList_RemoveAll(&list);
    SYS_FmemV6 = 0;
    for (const char* dst : {"SWR000D001:FMEM_001.SFM", "SWR000D001:FMEM_002.SFM"})
        File_XferList_Add(&list, "MYHOST:/mnt/usb/usb1/M.SFM", dst);
    File_ExecTransferList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 1u);
}

// --- Import ---

struct FileImport : FileSteps {
    const std::string first = "/var/tmp/XPORT/SWR000D001/Mabcdefgh.FMEM_001.SF2";
    const std::string second = "/var/tmp/XPORT/SWR000D001/Sabcdefgh.FMEM_002.SF2";
    void SetUp() override
    {
        FileSteps::SetUp();
        SYS_FmemV6 = 1;
        DEV_Swr[0].activeline = 4;
        File_ExecFmImportStartRegNoSet(1);
        File_ExecFmImportRegNoSet(11, 0);
        File_ExecFmImportRegNoSet(999, 1);
    }
    void TearDown() override
    {
        Converted(false, false);
        FileSteps::TearDown();
    }
    // The sides of the picture that the converter leaves.
    void Converted(bool has_first, bool has_second)
    {
        std::remove(first.c_str());
        std::remove(second.c_str());
        if (has_first)
            WriteFile(first, "x");
        if (has_second)
            WriteFile(second, "x");
    }
    // The picture of that kind begins.
    void Begin(const char* kind, int info = 0)
    {
        File_XferList_Add(&list, (std::string("MYHOST:/mnt/usb/usb1/abcdefgh.") + kind).c_str(),
                          "SWR000D001");
        list->info = info;
        File_ExecFmImportList(&list, List, 0);
        (void)Sent();
    }
};

TEST_F(FileImport, BothSidesAreStoredUnderTheirRegistersAndRemoved)
{
    static const struct {
        int is_v6, is_extended;
        const char *ext, *first, *second;
    } cases[] = {{1, 0, "SF2", "FMEM_012", "FMEM1000"},
                 {1, 1, "SF2", "FMEX_012", "FMEX1000"},
                 {0, 1, "SFM", "FMEM_012", "FMEM_1000"}};
    for (const auto& c : cases) {
        const std::string ext = c.ext, name = "tmp/XPORT/SWR000D001/", put = "Frame Memory@PutV3#,",
                          a = name + "Mabcdefgh.FMEM_001." + ext,
                          b = name + "Sabcdefgh.FMEM_002." + ext;
        SYS_FmemV6 = c.is_v6;
        File_ExecFmImportStartRegNoSet(1);
        for (const std::string& path : {a, b})
            WriteFile("/var/" + path, "x");
        EXPECT_EQ(Run(File_ExecFmImportList, "stick/abcdefghij.tif", "SWR000D001", c.is_extended),
                  std::string("Frame Memory@TIF2SFM") + (c.is_v6 ? " with Compress" : "") +
                      "#,stick/abcdefghij.tif," + a + "," + b + ",3,0,0 | " + put + a +
                      ",SWR:" + c.first + "." + ext + " | " + put + b + ",SWR:" + c.second + "." +
                      ext + " | Access@Remove#," + a + " | Access@Remove#," + b);
    }
    CopyText(DEV_Swr[1].id, "SWR000D002");
    DEV_MySwr[1] = &DEV_Swr[1];
    File_ExecFmImportStartRegNoSet(1);
    WriteFile("/var/tmp/XPORT/SWR000D002/Mabcdefgh.FMEM_001.SFM", "x");
    EXPECT_THAT(Run(File_ExecFmImportList, "stick/abcdefghij.tif", "SWR000D002"),
                HasSubstr(",SWR000D002:FMEM_012.SFM"));
}

TEST_F(FileImport, TheConverterHearsTheKindTheSideAndTheFormat)
{
    static const struct {
        const char *file, *verb, *sides;
        int activeline;
        double framerate;
        int format;
    } cases[] = {
        {"a.Tif", "TIF", "MS", 1, 0, 1},      {"a.bmp", "BMP", "MS", 2, 0, 2},
        {"a.Bmp.SUB", "BMP", "SM", 3, 0, 4},  {"a.TGA", "TGA", "MS", 6, 25, 5},
        {"a.tga.SUB", "TGA", "SM", 6, 50, 6}, {"a.png", "PNG", "MS", 5, 0, 3},
    };
    for (const auto& c : cases) {
        DEV_Swr[0].activeline = c.activeline;
        DEV_Swr[0].framerate = c.framerate;
        File_XferList_Add(&list, (std::string("MYHOST:/mnt/usb/usb1/") + c.file).c_str(),
                          "SWR000D001");
        File_ExecFmImportList(&list, List, 0);
        const std::string place = ",MYHOST:/var/tmp/XPORT/SWR000D001/";
        EXPECT_THAT(SentOne(),
                    AllOf(HasSubstr(c.verb + std::string("2SFM")),
                          EndsWith(place + c.sides[0] + "a.FMEM_001.SF2" + place + c.sides[1] +
                                   "a.FMEM_002.SF2," + std::to_string(c.format) + ",0,0")));
        File_XferList_RemoveAll(&list);
    }
}

TEST_F(FileImport, ASideThatIsMissingIsPassedOver)
{
    for (const bool is_first : {false, true}) {
        const std::string side = "tmp" + (is_first ? first : second).substr(8);
        Converted(is_first, !is_first);
        EXPECT_THAT(
            Run(File_ExecFmImportList, "stick/abcdefgh.PNG", "SWR000D001"),
            AllOf(StartsWith("Frame Memory@PNG2SFM"),
                  EndsWith(",3,0,0 | Frame Memory@PutV3#," + side + ",SWR:FMEM" +
                           (is_first ? "1000" : "_012") + ".SF2 | Access@Remove#," + side)));
    }
    Converted(false, false);
    ended.clear();
    Begin("PNG");
    Answer(list->label, "OK");
    EXPECT_EQ(ended, "129 abcdefgh.PNG: NG([ERROR] File Not Exist.);");
    EXPECT_EQ(list, nullptr);
}

TEST_F(FileImport, AKeyThatIsNotWantedTakesNoRegister)
{
    Converted(true, true);
    int key = 0;
    probe::answer = [&](const probe::Seen& s) {
        if (s.msg == LMSG_FILESTATUS)
            key = (*reinterpret_cast<FILEXFERLIST**>(s.cx))->import_no[1];
        return 0;
    };
    Begin("PNG", 1);
    Strings sent;
    for (int i = 0; i < 4; i++) {
        Answer(1, "OK");
        for (const std::string& line : Sent())
            sent.push_back(line.substr(line.find(',') + 1));
    }
    EXPECT_THAT(sent, Contains(HasSubstr("SWR000D001:FMEM_012.SF2")).Times(1));
    EXPECT_THAT(sent, Not(Contains(HasSubstr("SWR000D001:FMEM1000"))));
    EXPECT_THAT(sent, testing::IsSupersetOf({"MYHOST:" + first, "MYHOST:" + second})) << "removed";
    EXPECT_EQ(key, IMPORT_KEY_LEFT_OUT);
}

TEST_F(FileImport, AStoreThatFailsTakesBothTemporariesAway)
{
    Converted(true, true);
    Begin("BMP");
    Answer(1, "OK");
    EXPECT_STREQ(list->mesg, "abcdefgh.BMP [1/3]");
    (void)Sent();
    Answer(1, "NG(full)");
    EXPECT_THAT(Sent(), ElementsAre("put File@Access@Remove#Lx,MYHOST:" + first,
                                    "put File@Access@Remove#Lx,MYHOST:" + second));
}

TEST_F(FileImport, WhatHasNoRegisterIsTakenAway)
{
    for (int i = 0; i < 2; i++)
        File_ExecFmImportRegNoSet(-1, i);
    File_ExecFmImportStartRegNoSet(1);
    WriteFile(first, "x");
    Begin("BMP");
    Answer(1, "OK");
    EXPECT_THAT(Sent(), ElementsAre("put File@Access@Remove#Lx,MYHOST:" + first));
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileImport, OnlyKnownImagesFromKnownDrivesAreTaken)
{
    static const std::pair<const char*, const char*> refused[] = {
        {"MYHOST:/mnt/data/a.TIF", "SWR000D001"},
        {"MYHOST:/mnt/usb/../data/a.TIF", "SWR000D001"},
        {"MYHOST:/mnt/usb/usb1/a.TIF", "SWR000D009"},
        {"MYHOST:/mnt/usb/usb1/a.JPG", "SWR000D001"},
        {"MYHOST:/mnt/usb/usb1/a.tIF", "SWR000D001"},
        {"MYHOST:/mnt/sys/FMLoad/FM1/a.TIF", "SWR000D001"},
    };
    for (const auto& [src, dst] : refused)
        File_XferList_ImportAdd(&list, src, dst, 0);
    File_ExecFmImportList(&list, List, 0);
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_EQ(list, nullptr) << "nothing is left to wait for";
    EXPECT_THAT(ended, StartsWith("130 a.TIF: Canceled;130 a.TIF: Canceled;"));
    EXPECT_EQ(told.size(), 1u);
    File_XferList_ImportAdd(&list, "MYHOST:/mnt/sys/FMLoad/FM1/a.TIF", "SWR000D001", 0);
    File_ExecFmImportList_AutoLoad(&list, List, 0);
    EXPECT_THAT(SentOne(), HasSubstr("TIF2SFM"));
}

TEST_F(FileImport, FourAreUnderWayAndOneFollowsEachThatEnds)
{
    for (int i = 0; i < 6; i++)
        File_XferList_Add(&list, ("MYHOST:/var/nfs/user/i" + std::to_string(i) + ".TIF").c_str(),
                          "SWR000D001");
    File_ExecFmImportList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 4u);
    Answer(1, "NG(x)");
    EXPECT_THAT(Sent(), IsEmpty()) << "a failure alone makes no room";
    list->next->usb = 0; // as in its last step
    Answer(2, "OK");
    EXPECT_EQ(Sent().size(), 2u);
    File_XferList_RemoveAll(&list);
    GL_IsRamDisk = 1;
    Add({"i1.TIF", "i2.TIF"}, "MYHOST:/mnt/usb/usb1/", "");
    for (FILEXFERLIST* i = list; i; i = i->next)
        CopyText(i->dst, "SWR000D001");
    File_ExecFmImportList(&list, List, 0);
    EXPECT_EQ(Sent().size(), 1u);
}

// --- Lamps and thumbnails ---

TEST_F(FileImport, ThumbnailsWaitForWhatGoesOverTheDataPort)
{
    static constexpr char PLACE[] = "SWR000D001:FMEM_001.SFM";
    static const struct {
        Entry entry;
        const char *src, *dst;
        bool goes_over_it = true;
    } cases[] = {
        {File_ExecTransferList, "MYHOST:/a/x.SSS", "SWR000D001:/b/x.SSS", false},
        {File_ExecTransferList, "MYHOST:/a/x.SFM", "SWR1:FMEM_001.SFM", false}, // no device's id
        {File_ExecTransferList, "MYHOST:/a/x.SFM", PLACE},
        {File_ExecTransferList, PLACE, "MYHOST:/a/x.SFM"},
        {File_ExecTransferList_AutoLoad, "MYHOST:/mnt/sys/FMLoad/FM1/x.SFM", PLACE},
        {File_ExecFmGetList, PLACE, "MYHOST:/a/x.SFM"},
        {File_ExecFmPutList, "MYHOST:/a/x.SFM", PLACE},
        {File_ExecFmImportList, "MYHOST:/mnt/usb/usb1/abcdefgh.tif", "SWR000D001"},
        {File_ExecFmExportList, PLACE, "MYHOST:/mnt/usb/usb1/a.TIF"},
    };
    WriteFile(first, "x");
    GL_FMDataPortDisable[0] = 1;
    for (const int connected : {0, 1}) {
        GL_FMDataPortStatus[0] = connected;
        for (const auto& c : cases) {
            File_XferList_Add(&list, c.src, c.dst);
            const uint32_t label = uint32_t(c.entry(&list, List, 0)) - 1;
            int held = 0;
            for (int i = 0; i < 10 && list; i++) {
                held |= GL_FMThumbnailGetAfter;
                Answer(label, "OK");
            }
            EXPECT_EQ(held, connected && c.goes_over_it) << c.src;
            EXPECT_EQ(GL_FMThumbnailGetAfter, 0) << c.src;
        }
    }
    File_XferList_Add(&list, "MYHOST:/a/x.SFM", PLACE);
    (void)File_ExecUSBReload_cancel(uint32_t(File_ExecFmPutList(&list, List, 0)));
    EXPECT_EQ(GL_FMThumbnailGetAfter, 0) << "a job that is forgotten holds nothing";
}

TEST_F(FileSteps, TheDataPortIsAskedForWhereItMayBeUsed)
{
    Deliver("Info@System Setup Data@FM Data Port Disable@SWR1", "0,1");
    EXPECT_THAT(Sent(), IsEmpty());
    Deliver("Info@System Setup Data@FM Data Port Disable@SWR1", "2,0");
    EXPECT_THAT(SentOne(), HasSubstr("Status@FM Data Port Status@SWR1#L"));
    Deliver("File@Status@FM Data Port Status@SWR1", "L1,1");
    EXPECT_EQ(GL_FMDataPortStatus[0], 1);
    File_XferList_Add(&list, "MYHOST:/a/x.SFM", "SWR000D001:FMEM_001.SFM");
    File_ExecFmPutList(&list, List, 0);
    EXPECT_THAT(Sent(), Contains(HasSubstr("Status@FM Data Port Status@SWR1#L")));
}
