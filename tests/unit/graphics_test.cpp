#include "bmp_check.h"
#include "graphics.h"
#include "harness.h"
#include "log.h"
#include "tdl.h"
#include "tdl_fixture.h"
#include "test_dirs.h"
#include <filesystem>

// A working directory with its own graphics folder; the bitmaps that were loaded before are back at
// its end.
struct GraphicsFolder {
    const bool had_graphics = G_EXE_p0o0 != nullptr;

    GraphicsFolder()
    {
        FreeGraphics();
        std::filesystem::create_directories("graphics/ptn");
        Log_Init("graphics.log", LOG_FILE_SIZE);
        Log_SetLevel(LOG_TRACE);
    }
    ~GraphicsFolder()
    {
        FreeGraphics();
        Log_Init(nullptr, LOG_FILE_SIZE);
        std::filesystem::current_path(TEST_RUN_DIR);
        if (had_graphics)
            LoadGraphics();
    }
};

// A bitmap that is known again by its width.
static void SaveBitmap(const std::string& name, int width)
{
    SDL_Surface* s = SDL_CreateRGBSurface(SDL_SWSURFACE, width, 1, 24, 0xFF0000, 0xFF00, 0xFF, 0);
    ASSERT_EQ(SDL_SaveBMP(s, ("graphics/" + name + ".bmp").c_str()), 0);
    SDL_FreeSurface(s);
}

static int WidthOf(const SDL_Surface* s)
{
    return s ? s->w : 0;
}

static int LogLinesWith(const std::string& part)
{
    const std::string log = FileText("graphics.log");
    int count = 0;
    for (size_t at = 0; (at = log.find(part, at)) != std::string::npos; at++)
        count++;
    return count;
}

TEST(Graphics, AMissingFileIsANullBitmapAndALogLine)
{
    const TestDisplay display;
    const GraphicsFolder folder;
    SaveBitmap("EXE_p0o0", 85);
    SaveBitmap("KF_off2", 40); // another name than its global's
    SaveBitmap("KF_off", 41);
    LoadGraphics();
    EXPECT_EQ(WidthOf(G_EXE_p0o0), 85);
    EXPECT_EQ(G_EXE_p0o0->format->BitsPerPixel, 32);
    EXPECT_EQ(WidthOf(G_KF_off), 40);
    EXPECT_EQ(WidthOf(G_KFs_off), 41);
    EXPECT_EQ(G_EXE_p0o1, nullptr);
    EXPECT_EQ(LogLinesWith("Can't load graphics file: [graphics/EXE_p0o1.bmp]"), 1);
    FreeGraphics();
    EXPECT_EQ(G_EXE_p0o0, nullptr);
    FreeGraphics(); // nothing left is no harm
}

TEST(Graphics, OnlyNumbersInRangeBecomePatterns)
{
    const TestDisplay display;
    const GraphicsFolder folder;
    std::filesystem::create_directories("graphics/ptn/dir");
    int width = 10;
    for (const char* file :
         {"0", "49e", "3999", "4000", "99999999999999999999", "9.old", "-5", "dir/12", "31 "})
        SaveBitmap(std::string("ptn/") + file, width++);
    SaveBitmap("ptn/9", 99); // what the cut name 9.old leads to
    LoadGraphics();
    std::vector<int> loaded;
    for (int n = -1; n <= WIPE_PTN_MAX; n++)
        if (WipePtn(n))
            loaded.push_back(n);
    EXPECT_THAT(loaded, ElementsAre(0, 9, 3999));
    EXPECT_EQ(WidthOf(WipePtn(9)), 99);
    EXPECT_EQ(LogLinesWith("graphics/ptn/"), 0);
}

// The smaller model has pictures of its own for some wipes; one whose file is missing is no wipe of
// the larger one.
TEST(Graphics, TheSmallerModelReplacesItsOwnPictures)
{
    const TestDisplay display;
    const GraphicsFolder folder;
    int width = 20;
    for (const char* name : {"1001", "2001", "2001e", "2002"})
        SaveBitmap(std::string("ptn/") + name, width++);
    LoadGraphics();
    EXPECT_EQ(WidthOf(WipePtn(2001)), 21);
    LoadDmeWipePtn_KTR20();
    EXPECT_EQ(WidthOf(WipePtn(1001)), 20) << "not one of them";
    EXPECT_EQ(WidthOf(WipePtn(2001)), 22);
    EXPECT_EQ(WipePtn(2002), nullptr);
    LoadDmeWipePtn_Standard();
    EXPECT_EQ(WidthOf(WipePtn(2001)), 21);
    EXPECT_EQ(WidthOf(WipePtn(2002)), 23);
}

TEST(Graphics, PixelsComeWithTheFirstUseAndAChangedFileIsBlack)
{
    const TestDisplay display;
    const GraphicsFolder folder;
    for (const char* name : {"EXE_p0o0", "EXE_p0o1"}) {
        SDL_Surface* s = SDL_CreateRGBSurface(SDL_SWSURFACE, 3, 2, 24, 0xFF0000, 0xFF00, 0xFF, 0);
        SDL_FillRect(s, nullptr, 0x102030);
        SDL_Rect corner = {2, 0, 1, 1}; // the first row is the last of the file
        SDL_FillRect(s, &corner, 0xC0FFEE);
        ASSERT_EQ(SDL_SaveBMP(s, ("graphics/" + std::string(name) + ".bmp").c_str()), 0);
        SDL_FreeSurface(s);
    }
    EXPECT_TRUE(Bmp_IsSound("graphics/EXE_p0o0.bmp", 3, 2));
    EXPECT_FALSE(Bmp_IsSound("graphics/EXE_p0o0.bmp", 3, 1));
    LoadGraphics();
    ASSERT_TRUE(G_EXE_p0o0 && G_EXE_p0o1);
    EXPECT_EQ(G_EXE_p0o0->pixels, nullptr);
    ClearScreen();
    EXPECT_EQ(TDL_PutS(10, 20, G_EXE_p0o0), 0);
    EXPECT_EQ(PixelAt(12, 20), 0xC0FFEEu);
    EXPECT_EQ(PixelAt(10, 21), 0x102030u);
    EXPECT_EQ(Painted(), 6);

    SaveBitmap("EXE_p0o1", 50); // another size than at the start
    ClearScreen();
    EXPECT_EQ(TDL_PutS(10, 20, G_EXE_p0o1), 0);
    EXPECT_EQ(Painted(), 0);
    EXPECT_EQ(LogLinesWith("Can't load graphics file"), 1 + LogLinesWith("graphics/"));
}
