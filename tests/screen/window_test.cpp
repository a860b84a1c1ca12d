#include "a_bt_page.h"
#include "tdl.h"
#include "window.h"
#include <filesystem>
#include <fstream>

struct WindowPictures : ButtonPage {
    void SetUp() override
    {
        ButtonPage::SetUp();
        for (int n = 0; n < 24; n++)
            rows[n] = Button(n / 6 * 16 + n % 6 + 1, BT_TOGGLE, {"Test#*"});
        rows[24] = {.id = -1};
        Open(rows);
        Redraw();
    }
    static void Redraw(int elapsed_ms = 0) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    static void Press(int x, int y)
    {
        SendMessage(MSG_PRESS, x, y, 1, 0);
        Redraw(200);
    }
    static void Type(std::initializer_list<int> keys)
    {
        for (int sym : keys)
            SendMessage(MSG_KEY, sym, 0, 0, 0);
        Redraw(200);
    }
};

// The value that stands, and one key held down.
TEST_F(WindowPictures, TenKeysOverAPage)
{
    CreateWindow(WINDOW_KNOB_TRIM, "Gain",
                 {.value = "-12.50", .min_text = "-100.00", .max_text = "100.00"});
    SendMessage(MSG_PRESS, 446 + 71 + 20, 140 + 192 + 20, 1, 0);
    SendMessage(MSG_PRESS, 446 + 125 + 20, 140 + 310 + 20, 1, 0);
    EXPECT_TRUE(MatchesGolden("window_ten_keys_typed", {446, 140, 691, 521}));
}

// A text with the cursor in it; then both modes, which the letters follow.
TEST_F(WindowPictures, Keyboard)
{
    CreateWindow(WINDOW_KEYBOARD, "New Password\n(Confirm)", {.value = "Opening_7"});
    Type({SDLK_LEFT, SDLK_LEFT});
    Press(34 + 12 + 20, 114 + 91 + 54 * 3 + 20);
    Press(34 + 12 + 20, 114 + 91 + 54 * 4 + 20);
    EXPECT_TRUE(MatchesGolden("window_keyboard_shift", {30, 100, 799, 499}));
}

// Two records in the file; what the number so far stands for; a key held down.
TEST_F(WindowPictures, PageJumpWithFavorites)
{
    std::filesystem::create_directories("/mnt/data/TopMenu");
    std::string file(29 * 24, '\0');
    file.replace(0, 15,
                 std::string("\x11\x11\0\0\x07\x01"
                             "1111\nType",
                             15));
    file.replace(24 * 6, 17,
                 std::string("\x33\x11\0\0\x01\x02"
                             "3311\nStatus",
                             17));
    std::ofstream("/mnt/data/TopMenu/user_date1.usr", std::ios::binary) << file;
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    Type({'1', '2', '2', '1'});
    SendMessage(MSG_PRESS, 98 + 17 + 86 + 20, 78 + 55 + 43 + 20, 1, 0);
    EXPECT_TRUE(MatchesGolden("window_page_jump"));
    std::filesystem::remove_all("/mnt/data/TopMenu");
}

TEST_F(WindowPictures, PullDownAndSelect)
{
    static const char* const cells[] = {"M/E-1", "M/E-4", "M/E-2", "M/E-5", "M/E-3", nullptr};
    const WindowArgs args{
        .x = 150, .y = 200, .columns = 2, .rows = 3, .captions = cells, .selected = 3};
    CreateWindow(WINDOW_PULLDOWN, "Copy From", args);
    EXPECT_TRUE(MatchesGolden("window_pulldown", {140, 190, 390, 330}));
    CreateWindow(WINDOW_SELECT, "Copy From", args);
    EXPECT_TRUE(MatchesGolden("window_select", {140, 190, 360, 410}));
}

TEST_F(WindowPictures, Boxes)
{
    const char* text = "This operation will cause the system to\nreboot.\n\nContinue?";
    CreateWindow(WINDOW_MESSAGE, "Execute", {.message = text, .is_yes_no = true});
    EXPECT_TRUE(MatchesGolden("window_yes_no", {190, 140, 620, 470}));
    CreateWindow(WINDOW_MESSAGE, "Install", {.message = "All processes have succeeded."});
    SendMessage(MSG_PRESS, 400, 415, 1, 0); // the key is seen pressed, then the box goes
    CreateWindow(WINDOW_PROGRESS, "Install", {.message = "Old", .ok = [](int) { return 0; }});
    ProgBox_RedrawProgress(42);
    MBox_RedrawMessage("Configuring now...");
    EXPECT_TRUE(MatchesGolden("window_progress", {190, 140, 620, 470}));
}

// A job that holds the loop up within a pass: the question before it has gone from the display, and
// each step is seen when it begins.
TEST_F(WindowPictures, ProgressIsShownWithinAPass)
{
    static int shown;
    TDL_Hold();
    CreateWindow(WINDOW_PROGRESS, "Install", {.message = "Target: SWR1"});
    TDL_WatchFlush([](int, int, int, int) { shown++; });
    const auto shows = [](auto&& step) {
        shown = 0;
        step();
        return shown > 0;
    };
    EXPECT_TRUE(shows([] { ProgBox_RedrawProgress(0); })); // the window itself
    EXPECT_TRUE(shows([] { MBox_RedrawMessage("Program file:"); }));
    EXPECT_TRUE(shows([] { ProgBox_RedrawProgress(60); }));
    EXPECT_FALSE(shows([] { TDL_UpdateScreen(); })); // what does not block waits for the end
    TDL_WatchFlush(nullptr);
    TDL_Release();
}
