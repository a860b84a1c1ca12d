#include "fetches.h"
#include "file.h"
#include "fmctrl_page.h"

namespace fs = std::filesystem;
constexpr const char* THUMBNAILS = "/mnt/sys/FrameMemory/";

// A bitmap as the server draws them; fields for the rubbish.
struct ThumbnailBmp {
    int width = 16, height = 8, bits = 24, colours = 0, compression = 0, pixels_at = 54, info = 40,
        bytes_missing = 0;
    std::string Bytes() const
    {
        const auto le = [](long long v, int n) {
            std::string s;
            for (; n > 0; n--, v >>= 8)
                s += char(v & 0xFF);
            return s;
        };
        const int row = (16 * 24 / 8 + 3) / 4 * 4;
        std::string s = "BM" + le(54 + row * 8, 4) + le(0, 4) + le(pixels_at, 4) + le(info, 4) +
                        le(width, 4) + le(height, 4) + le(1, 2) + le(bits, 2) + le(compression, 4) +
                        le(0, 12) + le(colours, 4) + le(0, 4) +
                        std::string(size_t(row * 8), '\x40');
        s.resize(s.size() - size_t(bytes_missing));
        return s;
    }
};

struct FrameMemoryThumbnails : FrameMemory {
    void SetUp() override
    {
        fs::remove_all(THUMBNAILS);
        FrameMemory::SetUp();
        Max(2000);
        (void)Tell("Frame Mem@Status@Extended Capacity", "1");
        (void)Changes();
    }

    static std::vector<Get> Gets(const Strings& lines)
    {
        return ::Gets(lines, "File@Frame Memory@Get");
    }
    // The registers of the fetches, by number.
    static Strings Numbers(const std::vector<Get>& gets)
    {
        Strings numbers;
        for (const Get& get : gets)
            numbers.push_back(get.remote.substr(get.remote.find(":FME") + 4));
        return numbers;
    }
    // The server carries a fetch out; what the application sends then.
    static Strings Answer(const Get& get, const std::string& reply = "OK",
                          const std::string& picture = ThumbnailBmp{}.Bytes())
    {
        if (!picture.empty())
            std::ofstream(get.local.substr(get.local.find(':') + 1), std::ios::binary)
                << std::string(64, 'h') << picture;
        (void)TakeQueuedCommands();
        Serve(get.line, {reply});
        return TakeQueuedCommands();
    }
    static Strings Files() { return FilesIn(THUMBNAILS); }
    static int Width(int number, int size) // 0: there is none
    {
        const SDL_Surface* const thumbnail = FMCtrl_GetThumbnail(number - 1, size);
        return thumbnail ? thumbnail->w : 0;
    }
};

TEST_F(FrameMemoryThumbnails, AFetchBecomesASmallPictureAndABitmapFileByItsStoreAndNumber)
{
    const auto open_files = [] { return FilesIn("/proc/self/fd").size(); };
    const size_t open_before = open_files();
    auto gets = Gets(Sense(1, "1", "Mlogo"));
    ASSERT_EQ(gets.size(), 1u);
    EXPECT_EQ(gets[0].remote, "SWR000D001:FMEM_001.SFT");
    EXPECT_EQ(gets[0].local, "MYHOST:/mnt/sys/FrameMemory/FM_0001.SFT");
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);
    (void)Changes();
    (void)Answer(gets[0]);
    EXPECT_THAT(Changes(), ElementsAre("0, 1"));
    EXPECT_THAT(Files(), ElementsAre("FM_0001.BMP"));
    EXPECT_EQ(open_files(), open_before);
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 8);
    EXPECT_EQ(Width(1, THUMBSIZE_FULL), 16);

    (void)Sense(1, "0", "");
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);

    SYS_FmemV6 = 0;
    gets = Gets(Sense(1200, "1", "Mlogo"));
    ASSERT_THAT(Numbers(gets), ElementsAre("M_1200.SFT"));
    (void)Answer(gets[0]);
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_EQ(Width(1200, THUMBSIZE_FULL), 16);
    EXPECT_EQ(Width(1200, THUMBSIZE_SMALL), 8);

    SYS_FmemV6 = 1;
    Max(2000);
    gets = Gets(Sense(1000, "1", "Ma"));
    ASSERT_THAT(Numbers(gets), ElementsAre("M1000.SFT"));
    for (int n : {999, 1000})
        EXPECT_THAT(Sense(16384 + n, "1", "Mb" + std::to_string(n)), IsEmpty()) << "waits";
    gets = Gets(Answer(gets[0]));
    EXPECT_THAT(Numbers(gets), ElementsAre("X_999.SFT", "X1000.SFT"));
    (void)Answer(gets[1]);
    EXPECT_THAT(Files(), ElementsAre("FM_1000.BMP", "FX_1000.BMP"));
    EXPECT_TRUE(FMCtrl2_GetThumbnail(999, THUMBSIZE_SMALL));
    EXPECT_EQ(FMCtrl2_GetThumbnail(999, THUMBSIZE_SMALL),
              FMCtrl2_GetThumbnailMulti(FMEM_EXTENDED + 999, THUMBSIZE_SMALL));
}

// A pass takes one class in both stores, at most 30; the next comes when all of them are there.
TEST_F(FrameMemoryThumbnails, ComeByTheirUse)
{
    auto gets = Gets(Sense(2000, "1", "Mfirst"));
    int n = 1;
    for (const char* name :
         {"Sstill", "Sclip0001", "Sclip0002", "Mclip0001", "Mclip0002", "Mclip0003", "Mstill"})
        EXPECT_THAT(Gets(Sense(n++, "1", name)), IsEmpty());
    (void)Sense(16384 + 1, "1", "Moth0001");
    (void)Sense(16384 + 2, "1", "Moth0002");
    const auto finish = [&] {
        std::vector<Get> next;
        for (const Get& get : gets)
            for (const Get& more : Gets(Answer(get)))
                next.push_back(more);
        gets = next;
        return Numbers(gets);
    };
    EXPECT_THAT(finish(), ElementsAre("M_005.SFT", "X_002.SFT")) << "middles of main sides";
    EXPECT_THAT(finish(), ElementsAre("M_007.SFT")) << "main sides of stills";
    EXPECT_THAT(finish(), ElementsAre("M_003.SFT")) << "middles of sub sides";
    EXPECT_THAT(finish(), ElementsAre("M_001.SFT")) << "sub sides of stills";
    EXPECT_THAT(finish(), ElementsAre("M_002.SFT", "M_004.SFT", "M_006.SFT", "X_001.SFT"));
    EXPECT_THAT(finish(), IsEmpty());
    EXPECT_EQ(Files().size(), 10u);
}

TEST_F(FrameMemoryThumbnails, AtMostThirtyAreFetchedAtOnce)
{
    auto gets = Gets(Sense(1, "1", "Ma"));
    for (int n = 2; n <= 40; n++)
        (void)Sense(n, "1", "Mb" + std::to_string(n));
    for (int n = 1; n <= 10; n++)
        (void)Sense(16384 + n, "1", "Mc" + std::to_string(n));
    gets = Gets(Answer(gets[0]));
    EXPECT_EQ(gets.size(), 30u);
    EXPECT_THAT(Numbers(gets), Not(Contains("X_001.SFT")));
    EXPECT_THAT(Gets(Answer(gets[0])), IsEmpty()) << "29 are in flight";
    for (int i = 1; i < 29; i++)
        (void)Answer(gets[size_t(i)]);
    gets = Gets(Answer(gets[29]));
    EXPECT_EQ(gets.size(), 19u);
}

TEST_F(FrameMemoryThumbnails, SixTriesAndNoMoreOfAnImageThatHasNotChanged)
{
    auto gets = Gets(Sense(1, "1", "Mlogo"));
    for (int tries = 1; tries < 6; tries++) {
        ASSERT_EQ(gets.size(), 1u) << tries;
        gets = Gets(Answer(gets[0], tries % 2 ? "NG(no)" : "OK", tries % 2 ? "" : "no bitmap"));
    }
    ASSERT_EQ(gets.size(), 1u);
    EXPECT_THAT(Answer(gets[0], "NG(no)", ""), IsEmpty());
    EXPECT_THAT(Gets(After(1000)), IsEmpty());
    EXPECT_EQ(Gets(Sense(1, "1", "Mlogo")).size(), 1u) << "a change tries again";
    EXPECT_THAT(Files(), IsEmpty());

    Max(2000);
    const auto old = Gets(Sense(1, "1", "Mlogo"));
    (void)Tell("File@Frame Memory@Get", old[0].label + ",7");
    EXPECT_THAT(Sense(1, "1", "Mlogo"), ElementsAre("put File@Transfer@Cancel#Lx,7"));
    std::ofstream(std::string(THUMBNAILS) + "FM_0001.SFT")
        << std::string(64, 'h') << ThumbnailBmp{}.Bytes();
    (void)Changes();
    gets = Gets(Tell("File@Frame Memory@Get@Status", "7,OK"));
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);
    EXPECT_THAT(Files(), IsEmpty()) << "the old image's file";
    EXPECT_THAT(Changes(), IsEmpty());
    ASSERT_EQ(gets.size(), 1u);
    (void)Answer(gets[0], "CACHED", ""); // the bitmap is to be there, and is not
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);
}

TEST_F(FrameMemoryThumbnails, WaitForWhatMayNotBeDisturbedAndComeByThemselves)
{
    (void)Tell("Frame Mem@Clip@Rec@PROC2", "true");
    EXPECT_THAT(Sense(1, "1", "Mlogo"), IsEmpty());
    EXPECT_THAT(Gets(After(10)), IsEmpty());
    (void)Tell("Frame Mem@Clip@Rec@PROC2", "false");
    EXPECT_EQ(Gets(After(10)).size(), 1u);
    GL_FMThumbnailGetAfter = 1;
    (void)Sense(2, "1", "Mother");
    FMCtrl_GetWaitThumbnailAll();
    EXPECT_THAT(Gets(TakeQueuedCommands()), IsEmpty());
    GL_FMThumbnailGetAfter = 0;
    FMCtrl_GetWaitThumbnailAll();
    EXPECT_EQ(Gets(TakeQueuedCommands()).size(), 1u);
}

TEST_F(FrameMemoryThumbnails, AServerThatForgotThemIsAskedAgain)
{
    auto gets = Gets(Sense(1, "1", "Ma"));
    const auto lost = gets;
    Max(2000);
    EXPECT_EQ(QueueRoot, nullptr) << "nothing waits for an answer";
    gets = Gets(After(10));
    ASSERT_EQ(gets.size(), 1u);
    EXPECT_NE(gets[0].label, lost[0].label);
    (void)Answer(lost[0]); // after all
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);
    (void)Answer(gets[0]);
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 8);
}

TEST_F(FrameMemoryThumbnails, AllAnewTakesEveryRegisterInSlices)
{
    auto gets = Gets(Sense(1, "1", "Ma"));
    (void)Answer(gets[0]);
    for (int n = 0; n < 35; n++)
        (void)Sense(16384 + 1900 + n, "81", "Mz" + std::to_string(n));
    (void)Changes();
    (void)TakeQueuedCommands();
    FMCtrl_RefreshThumbnailAll();
    int passes = 0;
    for (size_t told = 0; told < 4000; passes++) {
        ASSERT_LT(passes, 100);
        Pass(0);
        told += Changes().size();
    }
    EXPECT_GT(passes, 10);
    gets = Gets(TakeQueuedCommands());
    EXPECT_EQ(gets.size(), 30u);
    EXPECT_EQ(gets[1].remote, "SWR000D001:FMEX1900.SFT");
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0);
}

TEST_F(FrameMemoryThumbnails, APictureThatIsNotWhatItSaysIsRefused)
{
    auto gets = Gets(Sense(1, "1", "Mlogo"));
    const ThumbnailBmp rubbish[] = {
        {.width = 0},         {.width = -16},
        {.width = 801},       {.height = 601},
        {.height = INT_MIN},  {.height = INT_MAX},
        {.bits = 4},          {.bits = 64},
        {.height = -601},     {.bits = 8, .colours = 257},
        {.bits = 8},          {.compression = 1},
        {.pixels_at = 40},    {.pixels_at = 1000},
        {.pixels_at = -1},    {.info = 12},
        {.info = 41},         {.pixels_at = 300, .info = 128},
        {.bytes_missing = 1}, {.bytes_missing = 384 + 1},
        {.bits = 32},
    };
    for (const ThumbnailBmp& bmp : rubbish) {
        ASSERT_EQ(gets.size(), 1u);
        gets = Gets(Answer(gets[0], "OK", bmp.Bytes()));
        EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 0)
            << bmp.width << "x" << bmp.height << " " << bmp.bits;
        EXPECT_THAT(Files(), IsEmpty());
        if (gets.empty())
            gets = Gets(Sense(1, "1", "Mlogo")); // given up
    }
    (void)Answer(gets[0]);
    EXPECT_EQ(Width(1, THUMBSIZE_SMALL), 8);
}
