// The screen saver, through the loop's door: when it starts, what it hides and gives back, what
// each pattern shows.
#include "a_ba.h"
#include "loop.h"
#include "pane.h"
#include "saver.h"
#include "table_page.h"
#include "tdl.h"
#include "text.h"
#include <chrono>
#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace
{
constexpr uint32_t KEY_PAGE = 0x11110000;
constexpr Rect SCREEN = {0, 0, SCREEN_W - 1, SCREEN_H - 1};
constexpr char FOLDER[] = "/tmp/saver_test";
constexpr char SETTINGS[] = "/mnt/data/.screensaver";

// The sum of all colours of the screen.
long Light()
{
    long sum = 0;
    for (int y = 0; y < SCREEN_H; y++) {
        const auto* byte = static_cast<uint8_t*>(Screen->pixels) + y * Screen->pitch;
        for (int i = 0; i < SCREEN_W * 4; i++)
            sum += i % 4 == 3 ? 0 : byte[i];
    }
    return sum;
}

} // namespace

struct Saver : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        ASSERT_EQ(CreatePage(KEY_PAGE), 0);
        GL_ScreenSaverInterval = 1;
        EndScreenSaver(); // counts from here
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        std::filesystem::remove_all(FOLDER);
        std::filesystem::remove(SETTINGS);
        TablePage::TearDown();
    }

    // The pointer that comes back with the page would stand in the pictures.
    static int Wake()
    {
        const int was_up = EndScreenSaver();
        SDL_ShowCursor(0);
        return was_up;
    }
    static void Passes(int n)
    {
        while (n-- > 0)
            ScreenSaver(10);
    }
    static void Start(int mode)
    {
        SYS_RefSwrType = DEVTYPE_KTR40E;
        GL_ScreenSaverPTN_Mode = mode;
        ScreenSaver(1001);
        ASSERT_TRUE(IsSaver());
    }
    static void Event(int type, int x, int y)
    {
        SDL_Event e{};
        e.type = Uint8(type);
        if (type != SDL_MOUSEMOTION)
            e.button.button = SDL_BUTTON_LEFT;
        (type == SDL_MOUSEMOTION ? e.motion.x : e.button.x) = Uint16(x);
        (type == SDL_MOUSEMOTION ? e.motion.y : e.button.y) = Uint16(y);
        Loop_Event(&e);
    }
};

// --- Counting and waking ---

TEST_F(Saver, APreviewShowsThePatternsAndLeavesTheSwitcherAsItIs)
{
    constexpr Rect LINES = {0, 60, 799, 290}; // the plain form leaves them dark
    const auto has_pattern = [&] {
        const auto pixels = PixelsIn(LINES);
        return std::any_of(pixels.begin(), pixels.end(), [](uint32_t p) { return p != 0; });
    };
    SYS_RefSwrType = DEVTYPE_KTR40X;
    GL_ScreenSaverPTN_Mode = 1;
    ScreenSaver(1001);
    Passes(500);
    EXPECT_FALSE(has_pattern());
    Wake();
    GL_SSver_PVW = 1;
    Passes(500);
    ASSERT_TRUE(IsSaver());
    EXPECT_TRUE(has_pattern());
    EXPECT_EQ(SYS_RefSwrType, DEVTYPE_KTR40X) << "which pages there are hangs on it";
    Wake();
    DeviceStructure(); // a change of menu brings a dozen
    ScreenSaver(1001);
    Passes(500);
    EXPECT_TRUE(has_pattern()) << "what was previewed is what comes";
}

TEST_F(Saver, WhatIsSwitchedOffGoesAndComesNotAsAPreviewLater)
{
    Start(17);
    GL_ScreenSaverInterval = 0;
    EXPECT_EQ(ScreenSaver(10), 1);
    EXPECT_FALSE(IsSaver()) << "a still picture is what it is to prevent";
    SDL_ShowCursor(0);
    GL_SSver_PVW = 1;
    EXPECT_EQ(ScreenSaver(10), 1);
    GL_ScreenSaverInterval = 600;
    Passes(3);
    EXPECT_FALSE(IsSaver()) << "in the middle of work";
}

TEST_F(Saver, IsBarredWithoutLosingItsCount)
{
    static int pane;
    static const struct {
        const char* what;
        int answer;
        void (*bar)(), (*lift)();
    } cases[] = {
        {"macro editor", 1, [] { GL_NowPage = 0x71420003; }, [] { GL_NowPage = KEY_PAGE; }},
        {"pane", 2, [] { pane = PaneMessage_Create("A", PANE_INFO, "B"); },
         [] { Pane_Quit(pane); }},
        {"continuous load", 3, [] { GL_ContinuousLoad = 1; }, [] { GL_ContinuousLoad = 0; }},
        {"menu macro", 1, [] { GL_MenuMacro_Run = 1; }, [] { GL_MenuMacro_Run = 0; }},
    };
    for (const auto& c : cases) {
        Wake();
        c.bar(); // a pane wakes the saver: the count begins here
        EXPECT_EQ(ScreenSaver(5000), c.answer) << c.what;
        c.lift();
        EXPECT_EQ(ScreenSaver(1000), 0) << c.what;
        EXPECT_FALSE(IsSaver()) << c.what;
        ScreenSaver(1);
        EXPECT_TRUE(IsSaver()) << c.what;
    }
}

TEST_F(Saver, HidesThePageAndGivesItBackWholeOrTheTopMenuWhenItIsGone)
{
    CreatePage(KEY_PAGE);
    SendMessage(MSG_REDRAW, 0, 0, 0, 0);
    const auto before = PixelsIn(SCREEN);
    const long page_light = Light();
    for (int mode = 0; mode <= SAVER_PATTERNS + 1; mode++) { // of the last none knows
        Start(mode);
        EXPECT_LT(Light(), page_light / 8) << "mode " << mode;
        Passes(100);
        SendDummyTally("M/E-1@Key1@Type@Key Type#Luminance");
        const auto pattern = PixelsIn(SCREEN);
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        EXPECT_TRUE(PixelsIn(SCREEN) == pattern) << "the page repaints under mode " << mode;
        EXPECT_EQ(Wake(), 1);
        EXPECT_TRUE(PixelsIn(SCREEN) == before) << "mode " << mode;
    }
    Start(1);
    SYS_MEOperation[0] = 1;
    EXPECT_EQ(Wake(), 1);
    SYS_MEOperation[0] = 0;
    EXPECT_EQ(GL_CreatePage, PAGE_TOP);
}

TEST_F(Saver, SwallowsTheTouchThatWakesItAndYieldsToAnError)
{
    Start(1);
    GL_ErrorPopup_On = 1;
    MainPass();
    GL_ErrorPopup_On = 0;
    EXPECT_FALSE(IsSaver());
    const Rect key = {112, 272, 196, 337}; // "Luminance": a press puts
    for (int type : {SDL_MOUSEBUTTONDOWN, SDL_MOUSEMOTION}) {
        Start(1);
        Clock_ms += 1000;
        MBDown = 0;
        Event(type, key.x1 + 5, key.y1 + 5);
        EXPECT_FALSE(IsSaver());
        Event(SDL_MOUSEBUTTONUP, key.x1 + 5, key.y1 + 5);
        for (const auto& command : TakeQueuedCommands())
            EXPECT_EQ(command.find("put M/E"), std::string::npos) << command;
    }
    Clock_ms += 1000;
    MBDown = 0;
    Event(SDL_MOUSEBUTTONDOWN, key.x1 + 5, key.y1 + 5);
    EXPECT_THAT(TakeQueuedCommands(), Contains("put M/E-1@Key1@Type@Key Type#Luminance"));
    MBDown = 0;
}

// --- Texts ---

// Light that jumps hurts the eyes of those who work beside the panel.
TEST_F(Saver, NoTextFlashesAndTheLampsStayAlive)
{
    CopyText(GL_Scr_disp_name[1],
             "A NAME OF SIXTY-THREE LETTERS, AS LONG AS ONE CAN BE: ABCDEFGHI");
    CopyText(GL_Scr_disp_name[9], "STUDIO 4");
    for (int mode : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17}) {
        BA_SetUsbAccess(1);
        Start(mode);
        Passes(1);
        long before = Light();
        long brightest = 0;
        for (int pass = 0; pass < 120; pass++) {
            Passes(7);
            const long now = Light();
            brightest = std::max(brightest, now);
            ASSERT_LE(std::abs(now - before), 250000) << "mode " << mode << " pass " << pass * 7;
            before = now;
        }
        EXPECT_GT(brightest, 100000) << "mode " << mode << " shows nothing";
        for (const int form : {mode, mode ? 0 : 1}) { // the other one is chosen meanwhile
            GL_ScreenSaverPTN_Mode = form;
            Passes(1);
            EXPECT_EQ(PixelAt(75, 18), 0xFF0000u) << mode << " " << form;
            EXPECT_EQ(PixelAt(60, 18), 0u) << mode << " " << form;
        }
        BA_SetUsbAccess(0);
        Wake();
    }
}

// --- Pictures ---

struct SaverPictures : Saver {
    void SetUp() override
    {
        Saver::SetUp();
        std::filesystem::create_directory(FOLDER);
        CopyText(GL_Scr_disp_ImagePath, FOLDER);
        GL_ScreenSaverPath_Time = 1;
    }
    static std::string Path(const std::string& name) { return std::string(FOLDER) + "/" + name; }
    // A picture of one colour.
    static void Put(const std::string& name, uint32_t colour, int w = SCREEN_W, int h = SCREEN_H)
    {
        SDL_Surface* s = SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, 24, 0xFF0000, 0xFF00, 0xFF, 0);
        SDL_FillRect(s, nullptr,
                     SDL_MapRGB(s->format, Uint8(colour >> 16), Uint8(colour >> 8), Uint8(colour)));
        ASSERT_EQ(SDL_SaveBMP(s, Path(name).c_str()), 0);
        SDL_FreeSurface(s);
    }
    static uint32_t Middle() { return PixelAt(400, 300); }
    // Until the pixel in the middle is that colour; the number of passes, -1 when it never is.
    static int PassesUntil(uint32_t colour)
    {
        for (int n = 0; n < 1000; n++) {
            if (Middle() == colour)
                return n;
            ScreenSaver(10);
        }
        return -1;
    }
};

TEST_F(SaverPictures, ShowsTheNumbersInTurnAndLeavesOutWhatIsNone)
{
    // The files, and which of them are shown in turn.
    static const std::pair<std::vector<const char*>, std::vector<int>> cases[] = {
        {{"SSrc_0.bmp", "SSrc_3.BMP", "SSrc_99.bmp"}, {0, 1, 2, 0, 1}},
        {{"SSrc_100.bmp", "SSrc_04.bmp", "SSrc_5.png", "ssrc_6.bmp", "SSrc_8.bmp"}, {4, 4}},
    };
    Start(12);
    Wake();
    for (const auto& [files, order] : cases) {
        std::filesystem::remove_all(FOLDER);
        std::filesystem::create_directory(FOLDER);
        for (size_t i = 0; i < files.size(); i++)
            Put(files[i], 0x100000 + uint32_t(i));
        std::ofstream(Path("SSrc_50.bmp")) << "no bitmap";
        std::ofstream(Path("SSrc_51.bmp"));
        std::filesystem::create_directory(Path("SSrc_52.bmp"));
        // Wherever the last case stopped: the first number of this one begins the count.
        Start(12);
        for (int n = 0; n < 200 && Middle() != 0x100000u + uint32_t(order[0]); n++)
            ScreenSaver(1000);
        std::vector<int> shown;
        while (shown.size() < order.size()) {
            shown.push_back(int(Middle() - 0x100000));
            Passes(99);
            EXPECT_EQ(int(Middle() - 0x100000), shown.back()) << "it is held";
            EXPECT_EQ(PixelAt(60, 18), 0u) << "the lamps are over the picture";
            Passes(1);
        }
        EXPECT_EQ(shown, order) << files[0];
        Wake();
    }
}

TEST_F(SaverPictures, AnEmptyFolderShowsTheTextUntilAPictureComes)
{
    for (int mode : {12, 13, 14, 15, 16}) {
        Start(mode);
        Passes(200);
        Put("SSrc_5.bmp", 0x204060);
        EXPECT_GE(PassesUntil(0x204060), 0) << mode;
        std::filesystem::remove(Path("SSrc_5.bmp"));
        Passes(350);
        EXPECT_NE(Middle() & 0xFF, 0x60u) << "the picture stays behind the text of mode " << mode;
        EXPECT_GT(Light(), 0) << mode;
        Wake();
    }
}

TEST_F(SaverPictures, OnePictureFadesIntoTheNextThroughTheDarkOrThroughBoth)
{
    constexpr uint32_t RED = 0xC00000, BLUE = 0x0000C0;
    Put("SSrc_0.bmp", RED);
    Put("SSrc_1.bmp", BLUE);
    for (const auto& [mode, is_dark, is_mixed] :
         {std::tuple{13, true, false}, {15, false, true}, {16, false, true}}) {
        Start(mode);
        ASSERT_GE(PassesUntil(RED), 0) << mode;
        bool was_dark = false, was_mixed = false, was_held = true;
        for (int pass = 0; pass < 2000 && Middle() != BLUE; pass++) {
            ScreenSaver(10);
            was_held &= pass > 90 || Middle() == RED;
            was_dark |= Middle() == 0;
            was_mixed |= (Middle() >> 16) > 8 && (Middle() & 0xFF) > 8;
        }
        EXPECT_EQ(Middle(), BLUE) << mode;
        EXPECT_TRUE(was_held) << mode;
        EXPECT_EQ(was_dark, is_dark) << mode;
        EXPECT_EQ(was_mixed, is_mixed) << mode;
        EXPECT_GE(PassesUntil(RED), 90) << mode << ": the second one is held as well";
        Wake();
    }
}

static std::string le(uint32_t v)
{
    return {char(v), char(v >> 8), char(v >> 16), char(v >> 24)};
}

// Both headers of a bitmap of one pixel a row, up to the palette.
static std::string BmpHeads(int info, int bits, int colours, int rows, int compression)
{
    std::string file = "BM" + le(0) + le(0) + le(uint32_t(14 + info + 4 * colours)) +
                       le(uint32_t(info)) + le(1) + le(uint32_t(rows)) +
                       le(uint32_t(1 | bits << 16)) + le(uint32_t(compression)) +
                       std::string(12, '\0') + le(uint32_t(colours)) + le(0) + le(0xFF0000) +
                       le(0xFF00) + le(0xFF);
    file.resize(size_t(14 + info));
    return file;
}

// The kinds that paint programs write, with a dark row above a light one.
TEST_F(SaverPictures, EveryKindOfBitmapIsShownButNoneThatSaysMoreThanItHolds)
{
    constexpr uint32_t DARK = 0x102030, LIGHT = 0x405060;
    static const struct {
        int info, bits, colours, rows, compression = 0;
    } cases[] = {{40, 1, 0, 2},   {40, 1, 2, -2},    {40, 4, 0, 2},    {40, 8, 2, 2},
                 {40, 8, 0, -2},  {108, 24, 0, 2},   {124, 24, 0, -2}, {40, 24, 7, 2},
                 {124, 32, 0, 2}, {124, 32, 0, 2, 3}};
    for (const auto& c : cases) {
        const int colours = c.bits > 8 ? 0 : c.colours ? c.colours : 1 << c.bits;
        std::string file = BmpHeads(c.info, c.bits, c.colours, c.rows, c.compression);
        file.replace(10, 4, le(uint32_t(14 + c.info + 4 * colours)));
        file += colours ? le(DARK) + le(LIGHT) : "";
        file.resize(size_t(14 + c.info + 4 * colours));
        const std::string dark = colours ? le(0) : le(DARK);
        const std::string light = !colours ? le(LIGHT) : le(1u << (8 - c.bits));
        file += c.rows < 0 ? dark + light : light + dark;
        std::ofstream(Path("SSrc_1.bmp"), std::ios::binary) << file;
        SDL_Surface* picture = TDL_ScreenSaverBMP(Path("SSrc_1.bmp").c_str());
        ASSERT_TRUE(picture) << c.info << " " << c.bits << " " << c.colours;
        TDL_Put(0, 0, picture);
        SDL_FreeSurface(picture);
        EXPECT_EQ(PixelAt(0, 0), DARK) << c.info << " " << c.bits << " " << c.rows;
        EXPECT_EQ(PixelAt(0, 1), LIGHT) << c.info << " " << c.bits << " " << c.rows;
    }
    Put("SSrc_1.bmp", LIGHT, SCREEN_W + 1, SCREEN_H - 1); // more than there is room for
    SDL_Surface* part = TDL_ScreenSaverBMP(Path("SSrc_1.bmp").c_str());
    ASSERT_TRUE(part);
    EXPECT_EQ(part->w, SCREEN_W);
    EXPECT_EQ(part->h, SCREEN_H - 1);
    SDL_FreeSurface(part);
    // Be it a bitmap of the user interface, or one that it reads at its first use.
    for (const int rows : {INT_MIN, -5000, 0, 3, INT_MAX}) {
        const std::string file = BmpHeads(40, 24, 0, rows, 0) + le(0) + le(0);
        std::ofstream(Path("SSrc_1.bmp"), std::ios::binary) << file;
        EXPECT_FALSE(TDL_LoadBmp(Path("SSrc_1.bmp").c_str())) << rows;
    }
}

// A folder of a hundred of them would be read in every pass.
TEST_F(SaverPictures, AFileThatIsNoPictureIsReadAgainOnlyWhenItChanges)
{
    Put("SSrc_5.bmp", 0x204060);
    const std::string picture = FileText(Path("SSrc_5.bmp"));
    std::ofstream(Path("SSrc_5.bmp")) << std::string(picture.size(), 'x');
    const auto written = std::filesystem::last_write_time(Path("SSrc_5.bmp"));
    Start(12);
    Passes(20);
    std::ofstream(Path("SSrc_5.bmp"), std::ios::binary) << picture;
    std::filesystem::last_write_time(Path("SSrc_5.bmp"), written);
    Passes(20);
    EXPECT_NE(Middle(), 0x204060u) << "it looks as it did, so it was not read";
    std::filesystem::last_write_time(Path("SSrc_5.bmp"), written + std::chrono::seconds(1));
    EXPECT_GE(PassesUntil(0x204060), 0);
    Wake();
}

// --- Settings ---

TEST_F(Saver, SettingsComeBackAndRubbishChangesNothing)
{
    GL_ScreenSaverPTN_Mode = 5;
    GL_ScreenSaverVariable_speed = 9;
    GL_ScreenSaverPath_Time = 30;
    CopyText(GL_Scr_disp_ImagePath, "/mnt/data/My Pictures");
    CopyText(GL_Scr_disp_name[0], "");
    CopyText(GL_Scr_disp_name[9], "a=b");
    ASSERT_EQ(Saver_SaveSettings(), 0);

    GL_ScreenSaverPTN_Mode = GL_ScreenSaverVariable_speed = GL_ScreenSaverPath_Time = 1;
    CopyText(GL_Scr_disp_name[0], "x");
    CopyText(GL_Scr_disp_name[9], "x");
    CopyText(GL_Scr_disp_ImagePath, "x");
    Saver_LoadSettings();
    const auto as_saved = [] {
        return GL_ScreenSaverPTN_Mode == 5 && GL_ScreenSaverVariable_speed == 9 &&
               GL_ScreenSaverPath_Time == 30 && !*GL_Scr_disp_name[0] &&
               !strcmp(GL_Scr_disp_name[9], "a=b") &&
               !strcmp(GL_Scr_disp_ImagePath, "/mnt/data/My Pictures");
    };
    EXPECT_TRUE(as_saved());

    for (const char* text :
         {"Pattern=18", "Pattern=-1", "Pattern=6x", "Pattern=", "Pattern", "Speed=10",
          "Hold=999999999999", "Name10=x", "Name-1=x", "Name=x", "=", "\n\n", "Folder="}) {
        std::ofstream(SETTINGS) << text << "\n";
        Saver_LoadSettings();
        EXPECT_TRUE(as_saved()) << text;
    }
    std::ofstream(SETTINGS) << "Name9=" << std::string(500, 'n') << "\nPattern=0";
    Saver_LoadSettings();
    EXPECT_EQ(strlen(GL_Scr_disp_name[9]), size_t(SAVER_TEXT - 1));
    EXPECT_EQ(GL_ScreenSaverPTN_Mode, 0);
}

// --- The setup page ---

struct SaverSetup : Saver {
    void SetUp() override
    {
        Saver::SetUp();
        ASSERT_EQ(CreatePage(0x99930000), 0);
    }
    void TearDown() override
    {
        CreatePage(KEY_PAGE); // writes the settings
        Saver::TearDown();
    }
};

TEST_F(SaverSetup, KnobsSetThePatternAndItsTimesWhichAreSavedWhenThePageIsLeft)
{
    CreatePage(KEY_PAGE);
    EXPECT_FALSE(std::filesystem::exists(SETTINGS)) << "nothing was changed";
    CreatePage(0x99930000);
    const std::string pattern = Cell(1, SAVER_NAMES, 1);
    SendMessage(LMSG_KNOBVAR, 1, 4, 1, 0);
    EXPECT_NE(Cell(1, SAVER_NAMES, 1), pattern);
    static const std::tuple<int, int, const int*, int> cases[] = {
        {1, 0, &GL_ScreenSaverPTN_Mode, 0},        {1, 99, &GL_ScreenSaverPTN_Mode, 17},
        {2, 10, &GL_ScreenSaverVariable_speed, 9}, {2, -5, &GL_ScreenSaverVariable_speed, 0},
        {3, 30, &GL_ScreenSaverPath_Time, 30},     {3, 0, &GL_ScreenSaverPath_Time, 1},
    };
    for (const auto& [knob, value, setting, expected] : cases) {
        SendMessage(LMSG_KNOBVAR, knob, value, 1, 0);
        EXPECT_EQ(*setting, expected) << knob << " " << value;
    }
    CreatePage(KEY_PAGE);
    GL_ScreenSaverPTN_Mode = GL_ScreenSaverVariable_speed = 5;
    Saver_LoadSettings();
    EXPECT_EQ(GL_ScreenSaverPTN_Mode, 17);
    EXPECT_EQ(GL_ScreenSaverVariable_speed, 0);
}

// Into the keyboard that is open, in place of what it holds.
static void TypeAndEnter(const std::string& text)
{
    ASSERT_NE(GetWindow(), 0);
    for (int i = 0; i < SAVER_TEXT; i++)
        SendMessage(MSG_KEY, SDLK_BACKSPACE, 0, 0, 0);
    for (const char c : text)
        SendMessage(MSG_KEY, tolower(c), isupper(c) ? KMOD_LSHIFT : 0, 0, 0);
    SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
    for (int i = 0; i < 100; i++)
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    ASSERT_EQ(GetWindow(), 0);
}

static void Button(const char* name)
{
    const std::string path = std::string("LOCAL@Screen Sever@Setup@") + name;
    SendMessage(LMSG_BTNSEL, MsgArg(path.c_str()), 0, 0, 0);
}

TEST_F(SaverSetup, ANameIsTheOneThatTheListStandsOn)
{
    CopyText(GL_Scr_disp_name[2], "third");
    LS_SetNowLine(1, 0);
    Button("Rename");
    TypeAndEnter("STUDIO 4");
    EXPECT_STREQ(GL_Scr_disp_name[0], "STUDIO 4");
    Button("Default");
    EXPECT_STREQ(GL_Scr_disp_name[0], "KTR-20");

    LS_SetNowLine(1, 11); // the folder has no name
    Button("Default");
    Button("Rename");
    EXPECT_EQ(GetWindow(), 0);
    EXPECT_STREQ(GL_Scr_disp_name[2], "third");

    Button("Path");
    TypeAndEnter("/mnt/x");
    EXPECT_STREQ(GL_Scr_disp_ImagePath, "/mnt/x");
}

TEST_F(SaverSetup, APreviewGivesTheListBackOnItsRow)
{
    const Rect third_row = {110, 130, 0, 0};
    SendMessage(MSG_PRESS, third_row.x1, third_row.y1, 0, 0);
    SendMessage(MSG_RELEASE, third_row.x1, third_row.y1, 0, 0);
    const int row = LS_GetNowLine(1);
    ASSERT_GT(row, 0);
    Button("Push START");
    Passes(2);
    ASSERT_TRUE(IsSaver());
    Wake();
    EXPECT_EQ(LS_GetNowLine(1), row);
    CreatePage(KEY_PAGE);
    CreatePage(0x99930000);
    EXPECT_EQ(LS_GetNowLine(1), 0) << "whoever opens it anew begins at the top";
}
