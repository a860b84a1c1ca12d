#include "a_nb_column.h"
#include "bus_probe.h"
#include "colours.h"
#include "display.h"
#include "table_page.h"
#include "timecode.h"
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <tuple>

// --- Hands: the same keys by touch and on a keyboard ---

using Keys = std::vector<const char*>;

struct Place {
    int x;
    int y;
};

// Of a 50 pixel key, from the window's corner.
static void TouchAt(Place window, Place key)
{
    SendMessage(MSG_PRESS, window.x + key.x + 25, window.y + key.y + 25, 1, 0);
}

constexpr Place KNOB_WINDOW = {446, 140};

// Where a key stands in rows of keys, the named ones by their first letters.
static Place KeyIn(const Strings& rows, char key, Place first, Place pitch)
{
    for (size_t row = 0; row < rows.size(); row++)
        if (const size_t at = rows[row].find(key); at != std::string::npos)
            return {first.x + pitch.x * int(at), first.y + pitch.y * int(row)};
    return {};
}
const Strings TEN_KEYS = {"789C", "456T", "123X", "0.+E"};

static int Stroke(int sym, int mod = 0) // the window that is open then
{
    SendMessage(MSG_KEY, sym, mod, 0, 0);
    return GetWindow();
}

constexpr Place KEYBOARD_WINDOW = {(800 - 722) / 2, (600 - 369) / 2 - 3};

static Place KeyboardPlace(const char* key)
{
    static const Strings rows = {"`1234567890-=", "qwertyuiop[]\\", "asdfghjkl;'E",
                                 "S\tzxcvbnm,./D", "C\t \t\t\t\tLRB"};
    return KeyIn(rows, *key, {12, 91}, {54, 54});
}

static void TouchKeyboard(const Keys& keys)
{
    for (const char* key : keys)
        TouchAt(KEYBOARD_WINDOW, KeyboardPlace(key));
}

constexpr uint32_t GROUND = 0x102030;
// Pixels of an area that are not the ground.
static long Painted(const Rect& r)
{
    const auto pixels = PixelsIn(r);
    return long(pixels.size()) - std::count(pixels.begin(), pixels.end(), GROUND);
}

static std::vector<std::string> heard; // what came back, in order

static int HearText(const char* text)
{
    heard.push_back(std::string("text ") + text + (GetWindow() ? " too early" : ""));
    return 0;
}
static int HearValue(int value)
{
    char line[32];
    snprintf(line, sizeof line, "value %X%s", unsigned(value), GetWindow() ? " too early" : "");
    heard.push_back(line);
    return 0;
}
static int HearMessage(const probe::Seen& s)
{
    const std::string numbers = std::to_string(s.bx) + (GetWindow() ? " too early" : "");
    if (s.msg == LMSG_PULLDOWNSEL)
        heard.push_back(std::string("pull-down ") + Text(s.ax) + " " + numbers);
    if (s.msg == LMSG_SELECTBOX)
        heard.push_back(std::string("select ") + Text(s.ax) + " " + numbers);
    if (s.msg == LMSG_PATHSELSEL)
        heard.push_back("path " + std::to_string(s.ax) + " " + numbers);
    return 0;
}
static std::vector<std::string> Heard()
{
    return std::exchange(heard, {});
}

struct Windows : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        probe::answer = HearMessage;
        heard.clear();
    }
    static void Pass(int elapsed_ms = 10) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
};

TEST_F(Windows, ThePageHearsTalliesAndNothingElseWhileAWindowIsOpen)
{
    EXPECT_EQ(CloseWindow(), -1);
    CreateWindow(WINDOW_KEYBOARD, "Name");
    EXPECT_EQ(GetWindow(), WINDOW_KEYBOARD);
    for (int msg : {MSG_REDRAW, MSG_PRESS, MSG_RELEASE, MSG_DRAG, MSG_WHEELUP, MSG_WHEELDOWN})
        SendMessage(msg, 0, 0, 0, 0);
    Stroke('a');
    EXPECT_THAT(probe::seen, IsEmpty());
    Deliver("M/E-1@Key1@Type@Key Type", "Linear");
    EXPECT_EQ(probe::Count(MSG_TALLY), 1);
    EXPECT_EQ(CloseWindow(), 0);
    EXPECT_EQ(GetWindow(), 0);
    Pass();
    SendMessage(MSG_PRESS, 0, 0, 1, 0);
    EXPECT_EQ(probe::Count(MSG_REDRAW), 1);
    EXPECT_EQ(probe::Count(MSG_PRESS), 1);
    probe::seen.clear();
    for (int type : {-1, 0, 14, 1000})
        EXPECT_EQ(CreateWindow(type, "No"), -1) << type;
    const int pane = PaneMessage_Create("Pane", PANE_INFO, "Text");
    EXPECT_EQ(CreateWindow(WINDOW_KNOB, "No"), -1) << "the boxes beside it would be the page's";
    EXPECT_EQ(CreateWindow(WINDOW_KNOB_TRIM, "No"), -1);
    Pane_Quit(pane);
    EXPECT_EQ(GetWindow(), 0);
    Pass();
    EXPECT_EQ(probe::Count(MSG_REDRAW), 1) << "the page has been silenced";
}

struct WindowOverPane : Windows {
    int pane = 0;
    std::vector<uint32_t> before; // the whole screen with the pane alone

    void SetUp() override
    {
        Windows::SetUp();
        TDL_FillRectS(0, 0, 799, 599, GROUND);
        pane = PaneProgress_Create("Load", "Text\nof it", 1);
        Pass();
        before = Picture();
        probe::seen.clear();
    }
    static std::vector<uint32_t> Picture() { return PixelsIn({0, 0, 799, 599}); }
    static void TouchOk() { SendMessage(MSG_PRESS, 200 + 180, 150 + 260, 1, 0); }
};

TEST_F(WindowOverPane, ItIsAnsweredFirstAndThePaneGoesOn)
{
    constexpr Rect ABOVE = {205, 141, 595, 148};         // of the pane, above the message
    for (int type : {WINDOW_MESSAGE, WINDOW_KEYBOARD}) { // inside the saved ground, and beyond it
        const auto alone = Picture(), strip = PixelsIn(ABOVE);
        ASSERT_EQ(CreateWindow(type, "Install", {.message = "All is well."}), 0);
        EXPECT_EQ(PixelsIn(ABOVE) == strip, type == WINDOW_MESSAGE);
        CloseWindow();
        EXPECT_EQ(Picture(), alone);
        CreateWindow(type, "Install", {.message = "All is well."});
        const auto with_window = Picture();
        PaneProgress_SetProg(pane, 50, "half");
        Pane_AppendMessage(pane, "more\n");
        Pass(1000);
        EXPECT_EQ(Picture(), with_window) << "the pane does not paint through";
        if (type == WINDOW_MESSAGE)
            TouchOk(); // the pane's "Cancel" lies beneath
        else
            CloseWindow();
        Pass(1000);
        EXPECT_EQ(GetWindow(), 0);
        EXPECT_EQ(Pane_Exist(pane), 1) << "the touch was the window's";
        EXPECT_EQ(probe::Count(MSG_REDRAW), 0);
        EXPECT_GE(probe::Count(MSG_PANETICK), 1) << "the page goes on ticking";
        EXPECT_NE(Picture(), before) << "the progress has caught up";
    }
    Pane_Quit(pane);
    EXPECT_EQ(Painted({0, 0, 799, 599}), 0);
    Pass();
    EXPECT_EQ(probe::Count(MSG_REDRAW), 1);
}

TEST_F(WindowOverPane, APaneThatClosesBeneathLeavesTheWindow)
{
    for (const bool at_once : {true, false}) {
        CreateWindow(WINDOW_MESSAGE, "Load", {.message = "Confirm the categories."});
        TDL_FillRectS(0, 0, 40, 40, GROUND + 1); // drawn by the base area meanwhile
        const auto window = PixelsIn({210, 160, 590, 440});
        if (at_once)
            Pane_Quit(pane);
        else
            Pane_SetQuitFlag(pane);
        Pass();
        EXPECT_EQ(Pane_GetActiveID(), 0);
        EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
        EXPECT_EQ(PixelsIn({210, 160, 590, 440}), window);
        EXPECT_EQ(PixelAt(20, 20), GROUND + 1);
        TouchOk();
        EXPECT_EQ(GetWindow(), 0);
        TDL_FillRectS(0, 0, 40, 40, GROUND);
        EXPECT_EQ(Painted({0, 0, 799, 599}), 0);
        pane = PaneProgress_Create("Load", "Text", 1);
        Pass();
    }
}

TEST_F(WindowOverPane, APaneThatOpensClosesIt)
{
    CreateWindow(WINDOW_KEYBOARD, "Name");
    const int upper = PaneMessage_Create("Pane", PANE_INFO, "Text");
    EXPECT_EQ(GetWindow(), 0);
    Pass();
    Pane_Quit(upper);
    EXPECT_EQ(Picture(), before);
    Pane_Quit(pane);
    EXPECT_EQ(Painted({0, 0, 799, 599}), 0);
}

TEST_F(Windows, EveryTypeGivesTheScreenBack)
{
    static const char* const cells[] = {"A", "B"};
    const WindowArgs args{.x = 180, .y = 60, .columns = 2, .captions = cells};
    TDL_FillRectS(0, 0, 799, 599, GROUND);
    for (int type = WINDOW_PAGE_JUMP; type <= WINDOW_KNOB_TRIM; type++) {
        ASSERT_EQ(CreateWindow(type, "Window", args), 0) << type;
        EXPECT_NE(PixelAt(190, 70), GROUND) << type;
        Stroke('1');
        Pass(200);
        if (type % 2)
            (void)PaneMessage_Create("Pane", PANE_INFO, "Text");
        else
            CloseWindow();
        EXPECT_EQ(GetWindow(), 0) << type;
        while (Pane_GetActiveID())
            Pane_Quit(Pane_GetActiveID());
        ASSERT_EQ(Painted({0, 0, 799, 599}), 0) << type;
    }
    EXPECT_THAT(Heard(), IsEmpty()) << "a cancel says nothing";
}

// Each way to close has its own numbers; a pass must go by before it happens.
TEST_F(Windows, AReservedQuitIsAnsweredAtTheNextPassAsItsKeyWould)
{
    static const char* const cells[] = {"A", "B", "C"};
    for (const auto& [type, var, answers] : {std::tuple{WINDOW_KEYBOARD, 0, Strings{"text abc"}},
                                             {WINDOW_MESSAGE, 0, {"value 7"}},
                                             {WINDOW_MESSAGE, 1, {}},
                                             {WINDOW_HEX, 2, {"value ABC"}},
                                             {WINDOW_PULLDOWN, 3, {"pull-down Any 2"}},
                                             {WINDOW_PULLDOWN, 0, {}},
                                             {WINDOW_SELECT, 1, {"select Any 0"}},
                                             {WINDOW_PATH, 4, {"path 2 3"}}}) {
        WindowArgs args{.value = "abc", .rows = 3, .captions = cells, .path_type = PATHSEL_CURVE0};
        args.ok = HearValue;
        args.ok_var = 7;
        args.ok_text = HearText;
        CreateWindow(type, "Any", args);
        Window_ReserveQuit(var);
        EXPECT_EQ(GetWindow(), type);
        Pass();
        EXPECT_EQ(GetWindow(), 0) << type;
        EXPECT_EQ(Heard(), answers) << type << " " << var;
    }
    Window_ReserveQuit(0); // nobody is there
    CreateWindow(WINDOW_MESSAGE, "Next");
    Pass();
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
}

TEST_F(Windows, ABoxAnswersWithTheKeysThatItHasAndMayOpenTheNextOne)
{
    const auto next = [](const char*) { return CreateWindow(WINDOW_MESSAGE, "Next"); };
    CreateWindow(WINDOW_KEYBOARD, "Password", {.ok_text = next});
    EXPECT_EQ(Stroke(SDLK_RETURN), WINDOW_MESSAGE);
    EXPECT_EQ(Stroke(SDLK_RETURN), 0);
    Pass();
    EXPECT_EQ(probe::Count(MSG_REDRAW), 1);
    // window: the one that is open afterwards
    for (auto [args, type, sym, window, answers] :
         {std::tuple<WindowArgs, int, int, int, size_t>{{}, WINDOW_MESSAGE, SDLK_ESCAPE, 0, 1},
          {{.is_yes_no = true}, WINDOW_MESSAGE, SDLK_RETURN, 0, 1},
          {{.is_yes_no = true}, WINDOW_MESSAGE, SDLK_ESCAPE, 0, 0},
          {{.no_button = true}, WINDOW_MESSAGE, SDLK_ESCAPE, WINDOW_MESSAGE, 0},
          {{}, WINDOW_PROGRESS, SDLK_RETURN, WINDOW_PROGRESS, 0},
          {{}, WINDOW_PROGRESS, SDLK_ESCAPE, 0, 1}}) {
        args.ok = HearValue;
        CreateWindow(type, "Box", args);
        Stroke('x');
        EXPECT_EQ(Stroke(sym), window);
        EXPECT_EQ(Heard().size(), answers);
    }
    CreateWindow(WINDOW_PROGRESS, "Nobody hears of a cancel");
    Stroke(SDLK_ESCAPE);
    SendMessage(MSG_PRESS, 400, 420, 1, 0);
    EXPECT_EQ(GetWindow(), WINDOW_PROGRESS);
    ProgBox_RedrawProgress(1000);
    MBox_RedrawMessage(std::string(3000, 'x').c_str());
}

// --- Keyboard ---

TEST_F(Windows, TheKeyboardWritesWhatIsTouched)
{
    for (const auto& [value, keys, text] :
         {std::tuple<const char*, Keys, const char*>{"", {"a", "Shift", "a", "a"}, "aAa"},
          {"", {"Caps", "a", "1", "Shift", "1", "a"}, "A1!A"},
          {"", {"Caps", "Shift", "a", "Caps", "a"}, "Aa"},
          {"ab", {"Left", "c"}, "acb"},
          {"ab", {"Left", "BS", "BS", "BS"}, "b"},
          {"ab", {"Left", "Left", "Left", "Del", "x"}, "xb"},
          {"ab", {"Right", "Right", "Del", "c"}, "abc"},
          {"", {"a", " ", "b"}, "a b"},
          {"as it was", {}, "as it was"}}) {
        CreateWindow(WINDOW_KEYBOARD, "Name", {.value = value, .ok_text = HearText});
        TouchKeyboard(keys);
        TouchKeyboard({"Enter"});
        EXPECT_THAT(Heard(), ElementsAre(std::string("text ") + text));
    }
    const std::string plain = "`1234567890-=qwertyuiop[]\\asdfghjkl;'zxcvbnm,./";
    const std::string shifted = "~!@#$%^&*()_+QWERTYUIOP{}|ASDFGHJKL:\"ZXCVBNM<>?";
    for (const std::string& text : {plain, shifted}) {
        CreateWindow(WINDOW_KEYBOARD, "Name", {.value = "", .input_max = 63, .ok_text = HearText});
        for (const char& key : plain) {
            if (text == shifted)
                TouchKeyboard({"Shift"});
            TouchKeyboard({&key});
        }
        TouchKeyboard({"Enter"});
        EXPECT_THAT(Heard(), ElementsAre("text " + text));
    }
}

TEST_F(Windows, ATouchedKeyLooksPushedForAMoment)
{
    CreateWindow(WINDOW_KEYBOARD, "Name", {.value = "", .ok_text = HearText});
    Pass();
    const auto look = [] {
        const Place key = KeyboardPlace("a");
        const int x = KEYBOARD_WINDOW.x + key.x, y = KEYBOARD_WINDOW.y + key.y;
        return PixelsIn({x, y, x + 49, y + 49});
    };
    const auto up = look();
    TouchKeyboard({"a"});
    EXPECT_NE(look(), up) << "at once";
    Pass(149);
    EXPECT_NE(look(), up);
    Pass(1);
    EXPECT_EQ(look(), up);
}

TEST_F(Windows, KeysOfAKeyboardWriteAsOnTheScreenAndStrayOnesNothing)
{
    CreateWindow(WINDOW_KEYBOARD, "Name", {.value = "ab", .ok_text = HearText});
    for (int sym : {int(SDLK_LEFT), int(SDLK_BACKSPACE), int(SDLK_RIGHT), int('c')})
        Stroke(sym);
    Stroke('1', KMOD_LSHIFT);
    Stroke('d', KMOD_CAPS);
    Stroke('e', KMOD_CAPS | KMOD_LSHIFT);
    for (int sym = 0; sym < ' '; sym++)
        if (sym != SDLK_RETURN && sym != SDLK_ESCAPE && sym != SDLK_BACKSPACE)
            Stroke(sym);
    for (int sym : {int(SDLK_LEFT), int(SDLK_DELETE), int(SDLK_F1), int(SDLK_UP),
                    int(SDLK_CAPSLOCK), int(SDLK_LSHIFT), 200, -1, 100000, int(SDLK_HOME), int('x'),
                    int(SDLK_END), int('y'), int('"'), int(SDLK_KP_ENTER)})
        Stroke(sym);
    EXPECT_THAT(Heard(), ElementsAre("text xbc!Dy\""));
    CreateWindow(WINDOW_KEYBOARD, "Name", {.value = "ab", .ok_text = HearText});
    EXPECT_EQ(Stroke(SDLK_ESCAPE), 0);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Windows, ATextStopsAtItsLimitAndTheCursorStaysInTheWell)
{
    std::string text;
    for (int i = 0; i < 80; i++)
        text += char('0' + i % 10);
    const int usual = WindowArgs().input_max;
    for (const auto& [max, length] :
         {std::pair{-5, 0}, {0, 0}, {16, 16}, {usual, 32}, {63, 63}, {64, 63}}) {
        CreateWindow(WINDOW_KEYBOARD, "Name",
                     {.value = text.c_str(), .input_max = max, .ok_text = HearText});
        for (int i = 0; i < 5; i++)
            TouchKeyboard({"x", "Left", "y"});
        TouchKeyboard({"Enter"});
        EXPECT_THAT(Heard(), ElementsAre("text " + text.substr(0, size_t(length))));
    }
    // The cursor is the only thing of its colour in the well.
    const std::string wide(63, 'W');
    CreateWindow(WINDOW_KEYBOARD, "Name", {.value = wide.c_str(), .input_max = 63});
    for (int left = 0; left <= 63; left++) {
        int cursor = 0;
        for (int x = KEYBOARD_WINDOW.x + 12; x <= KEYBOARD_WINDOW.x + 709; x++)
            cursor += PixelAt(x, KEYBOARD_WINDOW.y + 60) == 0x00FFFF;
        EXPECT_EQ(cursor, 3) << left;
        TouchKeyboard({"Left"});
    }
}

TEST_F(Windows, NumbersAndPagesAreWhatWasTyped)
{
    for (const auto& [type, keys, answers] :
         {std::tuple{WINDOW_BANK, "1.-2", Strings{"value C"}},
          {WINDOW_BANK, "99999999999", {"value 7FFFFFFF"}},
          {WINDOW_BANK, "12\033", {}},
          {WINDOW_HEX, "aF0.", {"value AF0"}},
          {WINDOW_HEX, "12\033", {}},
          {WINDOW_HEX, "fffffffffff", {"value FFFF"}}, // the limit
          {WINDOW_HEX, "1", {"value 10"}},             // the other one
          {WINDOW_PAGE_GET, "7316.10", {"value 73160010"}},
          {WINDOW_PAGE_GET, "22..3", {"value 220003"}},
          {WINDOW_PAGE_GET, "123456789.123456", {"value 12341234"}}, // the rest finds no room
          {WINDOW_PAGE_GET, "1234\1775", {"value 50000"}},           // there is room again
          {WINDOW_PAGE_GET, "7316\033", {}},
          {WINDOW_PAGE_GET, "", {}}}) {
        CreateWindow(type, "Number", {.min_text = "10", .max_text = "ffff", .ok = HearValue});
        EXPECT_EQ(PixelAt(400, 30), 0u) << "it stands in the middle";
        for (const char* key = keys; *key; key++)
            Stroke(*key);
        Stroke(SDLK_RETURN);
        EXPECT_EQ(Heard(), answers) << type << " " << keys;
    }
}

// --- Choices ---

TEST_F(Windows, AChoiceIsThePlaceInTheGridAndAPressBesideNone)
{
    static const char* const cells[] = {"A", "B", nullptr, "D", "", "F"};
    const WindowArgs grid{.x = 100,
                          .y = 100,
                          .columns = 2,
                          .rows = 3,
                          .captions = cells,
                          .path_type = PATHSEL_CURVE2};
    // y: in the window at (100, 100)
    for (const auto& [type, x, y, answers] :
         {std::tuple{WINDOW_PULLDOWN, 20, 20, Strings{"pull-down LOCAL@List 0"}},
          {WINDOW_PULLDOWN, 120, 80, {"pull-down LOCAL@List 5"}},
          {WINDOW_PULLDOWN, -10, 20, {}},
          {WINDOW_SELECT, 100, 60 + 2 * 43, {"select LOCAL@List 5"}},
          {WINDOW_SELECT, 400, 400, {}},
          {WINDOW_PATH, 20, 20, {"path 4 0"}},
          {WINDOW_PATH, 20 + 2 * 68, 20, {"path 4 4"}}, // no S, no spline
          {WINDOW_PATH, 20 + 4 * 68, 20, {}}}) {
        CreateWindow(type, "LOCAL@List", grid);
        SendMessage(MSG_PRESS, 100 + x, 100 + y, 1, 0);
        EXPECT_EQ(GetWindow(), 0) << type;
        EXPECT_EQ(Heard(), answers) << type;
    }
    CreateWindow(WINDOW_SELECT, "Corner", {.x = 790, .y = 590, .captions = cells});
    SendMessage(MSG_PRESS, 750, 560, 1, 0); // it has been moved onto the screen
    EXPECT_THAT(Heard(), ElementsAre("select Corner 0"));
    CreateWindow(WINDOW_SELECT, "LOCAL@List", grid);
    SendMessage(MSG_KEY, SDLK_ESCAPE, 0, 0, 0);
    EXPECT_EQ(GetWindow(), 0);
    CreateWindow(WINDOW_SELECT, "Huge", {.columns = 1000, .rows = 1000});
    CreateWindow(WINDOW_PATH, "Strange", {.path_type = 99});
    EXPECT_THAT(Heard(), IsEmpty());
}

struct PageJump : Windows {
    static constexpr char DIRECTORY[] = "/mnt/data/TopMenu";
    void SetUp() override
    {
        std::filesystem::remove_all(DIRECTORY);
        Windows::SetUp();
    }
    void TearDown() override
    {
        Windows::TearDown();
        std::filesystem::remove_all(DIRECTORY);
    }
    static constexpr Place CORNER = {(800 - 604) / 2, (600 - 443) / 2};
    static int PressFavorite(int n) // the window that is open then
    {
        TouchAt(CORNER, {17 + 86 * (n % 4), 55 + 43 * (n / 4) - 10});
        return GetWindow();
    }
    static std::string Path(int set)
    {
        return std::string(DIRECTORY) + "/user_date" + std::to_string(set) + ".usr";
    }
    static void WriteFile(int set, const std::string& bytes)
    {
        std::filesystem::create_directories(DIRECTORY);
        std::ofstream(Path(set), std::ios::binary) << bytes;
    }
};

TEST_F(PageJump, EnterOpensThePageThatWasTypedAndAFavouriteItsOwn)
{
    CreateWindow(WINDOW_PAGE_GET, "Page");
    for (const char key : std::string("1111"))
        Stroke(key);
    EXPECT_THAT(PixelsIn({172, 126, 381, 205}), AllOf(Contains(TEAL), Contains(ORANGE))) << "tree";
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    for (const char key : std::string("7316.19+0E")) // the "+" is "BS" here
        TouchAt(CORNER, KeyIn(TEN_KEYS, key, {375, 194}, {54, 59}));
    EXPECT_EQ(GL_CreatePage, 0x73160010u);
    EXPECT_EQ(GetWindow(), 0);
    std::string file(29 * 24, '\0');
    file.replace(24 * 5, 24,
                 std::string("\x11\x11\x00\x02\x03\x01", 6) + std::string(18, 'W')); // no end
    file.replace(24 * 28, 6, std::string("\x73\x16\x00\x10\xFF\xFF", 6)); // colours that are none
    WriteFile(1, file);
    for (const auto& [n, page] : {std::pair{5, 0x11110002u}, {28, 0x73160010u}}) {
        GL_CreatePage = 0;
        CreateWindow(WINDOW_PAGE_JUMP, "Page");
        EXPECT_EQ(PressFavorite(0), WINDOW_PAGE_JUMP) << "a free one";
        EXPECT_EQ(PressFavorite(n), 0);
        EXPECT_EQ(GL_CreatePage, page);
    }
    SYS_MEOperation[0] = 1; // M/E-1 has no pages then
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    EXPECT_EQ(PressFavorite(5), WINDOW_PAGE_JUMP);
    SYS_MEOperation[0] = 0;
    (void)CloseWindow();
    WriteFile(1, file.substr(0, 28 * 24 + 23)); // cut: none of it
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    EXPECT_EQ(PressFavorite(5), WINDOW_PAGE_JUMP);
}

// Place of the keys under the favourites: set, store, colour.
TEST_F(PageJump, StoredKeysAndColoursAreInTheFileAtOnce)
{
    GL_NowPage = 0x11110002;
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    TouchAt(CORNER, {17 + 86 * 2, 346});
    PressFavorite(1);
    const std::string stored = FileText(Path(1));
    ASSERT_EQ(stored.size(), 29u * 24);
    EXPECT_EQ(stored.substr(24, 6), std::string("\x11\x11\x00\x02\x00\x01", 6));
    TouchAt(CORNER, {17 + 86 * 3, 346});
    PressFavorite(1);
    EXPECT_EQ(FileText(Path(1)).substr(28, 2),
              std::string("\x01\x02", 2)); // white with black letters
    TouchAt(CORNER, {17 + 86 * 3, 346});   // no longer
    const auto look = [] {
        Pass(200);
        const int x = CORNER.x + 17 + 86, y = CORNER.y + 55;
        return PixelsIn({x + 2, y + 2, x + 70, y + 30});
    };
    const auto white = look();
    EXPECT_EQ(white[0], 0xFFFFFFu);
    // Read back, a key is what it was: one more colour is all that changes in the file.
    (void)CloseWindow();
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
    EXPECT_EQ(look(), white);
    std::string black = FileText(Path(1));
    black.replace(28, 2, std::string("\x02\x01", 2));
    TouchAt(CORNER, {17 + 86 * 3, 346});
    PressFavorite(1);
    EXPECT_EQ(FileText(Path(1)), black);
    EXPECT_EQ(look()[0], 0u);
    TouchAt(CORNER, {17 + 86 * 3, 346});
    for (int set = 1; set < 5; set++) {
        TouchAt(CORNER, {17 + 86, 346});
        EXPECT_NE(look()[0], 0u) << "a free key";
        EXPECT_EQ(PressFavorite(1), WINDOW_PAGE_JUMP) << "set " << set + 1 << " is empty";
    }
    TouchAt(CORNER, {17 + 86, 346}); // round again
    PressFavorite(1);
    EXPECT_EQ(GL_CreatePage, 0x11110002u);
}

TEST(WindowNames, ReservedNamesAreKnownInAnyCase)
{
    for (const char* name :
         {"CON", "con", "PRN", "Aux", "clock$", "NUL", "com0", "COM9", "lpt0", "LPT9"})
        EXPECT_EQ(InvalidFileNameCheck(name), 1) << name;
    for (const char* name : {"CON1", "COM", "COM10", "", "CO", "CLOCK", " CON", "LPTA"})
        EXPECT_EQ(InvalidFileNameCheck(name), 0) << name;
    EXPECT_EQ(InvalidFileNameCheck(nullptr), 0);
}

static const NB_TBL boxes[] = {
    {.id = 1, .caption = "Clip", .type = NB_2, .min = -100, .max = 100, .cmd = "Clip"},
    {.id = 2, .caption = "Level", .type = NB_1, .min = 109.5, .max = -7.5, .cmd = "Level"},
    {.id = 3, .caption = "Rate", .type = NB_TC, .min = -1800, .max = 1800, .cmd = "Rate"},
    NB_END,
};

struct KnobInput : KnobColumn {
    void SetUp() override
    {
        KnobColumn::SetUp();
        SYS_FrameRate = 30;
        SYS_Format_Size = 0;
        Open(boxes);
        Tally("Clip", "-12.5");
        Tally("Level", "20");
        Tally("Rate", "90");
        Forget();
    }
    static void Hit(const Keys& keys)
    {
        for (const std::string key : keys) {
            if (key == "BS") {
                Stroke(SDLK_BACKSPACE);
                continue;
            }
            const char c = key == "Cancel" ? 'X' : key == ":" ? '.' : key[0];
            TouchAt(KNOB_WINDOW, KeyIn(TEN_KEYS, c, {17, 133}, {54, 59}));
        }
    }
    // What an entry into a box sends.
    static std::vector<std::string> Sent(int slot, const Keys& keys)
    {
        PressSlot(slot);
        Forget();
        Hit(keys);
        return TakeQueuedCommands();
    }
};

TEST_F(KnobInput, WhatIsEnteredIsSentWithinTheLimits)
{
    // In a time code a colon opens a field of two digits; the next digit moves all on.
    for (const auto& [slot, keys, sent] :
         {std::tuple<int, Keys, std::vector<std::string>>{
              1, {"Enter"}, Strings{"put Clip#-12.50"}}, // as it was
          {1, {"Cancel"}, {}},
          {1, {"5", "+/-", "+/-", "Enter"}, {"put Clip#5.00"}},
          {1, {".", "5", ".", "2", "Enter"}, {"put Clip#0.52"}},
          {1, {"1", "2", "+/-", "Clear", "7", "Enter"}, {"put Clip#7.00"}},
          {1, {"1", "2", "3", "4", "Enter"}, {"put Clip#100.00"}},
          {1, {"1", "2", "BS", "Enter"}, {"put Clip#1.00"}},
          {1, {"+/-", "BS", "5", "Enter"}, {"put Clip#5.00"}},
          {3, {"2", "1", "2", "9", "BS", "Enter"}, {"put Rate#00:02:12"}},
          {3, {"1", ":", "1", "BS", "2", "Enter"}, {"put Rate#00:01:02"}},
          {1, {"Trim", "2", "Trim"}, {"put Clip#-10.50"}}, // the first has nothing to add
          {1, {"+/-", "9", "0", "Trim"}, {"put Clip#-100.00"}},
          {2, {"1", "0", "+/-", "Trim"}, {"put Level#10.0"}}, // a difference may be below the limit
          {2, {"2", "0", "0", "Enter"}, {"put Level#109.5"}}, // limits the other way round
          {3, {"Enter"}, {"put Rate#00:03:00"}},
          {3, {"2", "5", "1", "2", "Enter"}, {"put Rate#00:25:12"}},
          {3, {"5", "+/-", "Enter"}, {"put Rate#-00:00:05"}},
          {3, {"1", ":", "1", "2", "Enter"}, {"put Rate#00:01:12"}},
          {3, {"2", "3", ":", "0", ":", "0", ":", "0", "Enter"}, {"put Rate#01:00:00"}},
          {3, {"4", "5", "Enter", "Clear", "1", "5", "Enter"}, {"put Rate#00:00:15"}},
          {3, {"5", ":", "1", "2", "3", "Enter"}, {"put Rate#00:51:23"}}}) {
        EXPECT_EQ(Sent(slot, keys), sent) << keys[0];
        EXPECT_EQ(GetWindow(), 0);
        EXPECT_EQ(NB_SendValue(1), -1) << "a box is still selected";
    }
    // The ten keys of a keyboard.
    for (const auto& [slot, strokes, sent] :
         {std::tuple<int, std::vector<int>, const char*>{
              1,
              {SDLK_KP1, SDLK_DELETE, SDLK_KP_MINUS, SDLK_KP9, ':', '.', SDLK_KP0, SDLK_KP5},
              "put Clip#-9.05"},
          {1, {'x', SDLK_F1, SDLK_UP}, "put Clip#-12.50"}, // strange ones leave what is shown
          {3, {'1', '.', '2'}, "put Rate#00:00:12"},
          {3, {'1', ';', '2'}, "put Rate#00:01:02"}}) {
        PressSlot(slot);
        Forget();
        for (const int sym : strokes)
            Stroke(sym);
        Stroke(SDLK_KP_ENTER);
        EXPECT_THAT(TakeQueuedCommands(), ElementsAre(sent));
    }
}

// A press on another box moves the window there; the page under it is still saved.
TEST_F(KnobInput, AnotherBoxTakesTheWindowOverAndATimeCodeThatDoesNotExistIsSentNowhere)
{
    TDL_FillRectS(440, 130, 705, 535, GROUND);
    PressSlot(1);
    Hit({"9", "+/-"});
    // The point has become a colon, the sign is forgotten.
    EXPECT_THAT(Sent(3, {"1", ":", "Enter"}), ElementsAre("put Rate#00:01:00"));
    EXPECT_EQ(Painted({440, 130, 705, 535}), 0);
    EXPECT_EQ(ChangeWindow("Clip", {.value = "1", .min_text = "0", .max_text = "2"}), -1);
    // A time code has no Trim key, and the next box has one again.
    PressSlot(3);
    Hit({"5", "Trim"});
    EXPECT_EQ(GetWindow(), WINDOW_KNOB);
    EXPECT_THAT(Sent(1, {"1", "Trim"}), ElementsAre("put Clip#-11.50"));
    for (const Keys& keys : {Keys{"4", "5", "Enter"},
                             {"7", "5", "0", "0", "Enter"},
                             {"9", "9", "9", "9", "9", "9", "Enter"}}) {
        EXPECT_THAT(Sent(3, keys), IsEmpty());
        EXPECT_EQ(GetWindow(), WINDOW_KNOB) << "what was typed can be mended";
        EXPECT_THAT(PixelsIn({446, 140, 700, 270}), Contains(RED));
        Hit({"+/-"});
        EXPECT_THAT(PixelsIn({446, 140, 700, 270}), Not(Contains(RED)));
        Window_ReserveQuit(2); // code has its way
        Pass(10);
        EXPECT_EQ(GetWindow(), 0);
        EXPECT_THAT(TakeQueuedCommands(), IsEmpty()) << keys[0];
    }
}

TEST_F(KnobInput, AWindowThatHasMovedOnLooksAsOneThatWasOpened)
{
    const Display display;
    const auto look = [](int slot) {
        PressSlot(slot);
        Pass(200);
        EXPECT_EQ(Display::Lacks(), "") << slot;
        return PixelsIn({446, 140, 691, 521});
    };
    for (const auto& [from, to, keys] : {std::tuple{1, 3, Keys{"9", "+/-"}},
                                         {3, 1, {"4", "5", "Enter"}},
                                         {1, 2, {}},
                                         {2, 1, {"1"}}}) {
        const auto opened = look(to);
        EXPECT_THAT(opened, Contains(BOX_VALUE)) << "nobody has typed yet";
        CloseWindow();
        PressSlot(from);
        Hit(keys);
        EXPECT_EQ(look(to), opened) << from << " " << to;
        CloseWindow();
    }
    const auto point_key = [&](int slot) {
        (void)look(slot);
        return PixelsIn({517, 450, 566, 499});
    };
    EXPECT_NE(point_key(1), point_key(3)) << "a colon";
    EXPECT_EQ(point_key(1), point_key(2));
}

// The value of a box on the air: what nobody has typed does not change it.
TEST_F(KnobInput, EnterAsTheFirstKeyLeavesEveryValueAsItWas)
{
    static const char* const paths[] = {"", "Clip", "Level", "Rate"};
    for (const auto& [slot, tally, sent] :
         {std::tuple{1, "-12.34", Strings{"put Clip#-12.34"}},
          {1, "-12.345", {}},              // its text would be another value
          {1, "250", {"put Clip#250.00"}}, // beyond the limits of the box
          {3, "45", {"put Rate#00:01:15"}},
          {3, "126000", {"put Rate#01:10:00:00"}},
          {3, "-126000", {"put Rate#-01:10:00:00"}}}) { // longer than the entry
        Tally(paths[slot], tally);
        EXPECT_EQ(Sent(slot, {"Enter"}), sent) << tally;
        EXPECT_EQ(GetWindow(), 0);
    }
    Open(boxes, "No value"); // another title: told anew
    for (const Keys& keys : {Keys{"Enter"}, {"5", "Trim"}}) {
        EXPECT_THAT(Sent(1, keys), IsEmpty()) << keys[0];
        PressSlot(1);
        EXPECT_STREQ(GL_KnobSetVar, "");
        CloseWindow();
    }
    EXPECT_THAT(Sent(3, {"Enter"}), IsEmpty());
    EXPECT_EQ(GetWindow(), 0);
}

// Shown and entered by the same rate, whatever the two formats say.
TEST_F(KnobInput, ATimeCodeGoesBackByTheRateThatShowedIt)
{
    SYS_FrameRate = 60;
    for (const auto& [size, freq, sent] :
         {std::tuple{0, 0, "put Rate#00:01:29"}, {2, 5, "put Rate#00:01:24"}}) {
        SYS_Format_Size = size;
        SYS_Format_Freq = freq;
        const int rate = GetFrameNum_SWR(0);
        Tally("Rate", std::to_string(2 * rate - 1).c_str());
        PressSlot(3);
        EXPECT_STREQ(GL_KnobSetVar, sent + strlen("put Rate#"));
        Forget();
        Hit({"1", "2", "9", "Enter"}); // frames 29
        EXPECT_EQ(GetWindow() != 0, rate == 25);
        CloseWindow();
        EXPECT_THAT(Sent(3, {"Enter"}), Contains(sent));
    }
}

// The page may choose the boxes anew at any tally: an entry that is under way outlives that as long
// as its box does, and is never sent to another one.
TEST_F(KnobInput, TheTenKeysStayWithTheirBox)
{
    static const NB_TBL others[] = {
        {.id = 1, .caption = "Other", .type = NB_2, .min = 0, .max = 9, .cmd = "Other"}, NB_END};
    PressSlot(1);
    Hit({"4", "2"});
    NB_Create(boxes, "Chroma");
    EXPECT_EQ(Shown("Clip"), -12.5) << "the server has not taken it back";
    EXPECT_EQ(GetWindow(), WINDOW_KNOB_TRIM);
    Forget();
    Hit({"Enter"});
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put Clip#42.00"));
    for (const NB_TBL* table : {others, NB_Non}) {
        Open(boxes);
        PressSlot(1);
        Hit({"4", "2"});
        NB_Create(table, "Chroma");
        EXPECT_EQ(GetWindow(), 0);
        EXPECT_EQ(NB_SendValue(1), -1);
    }
    Open(boxes);
    PressSlot(2);
    NB_DeleteTable(2);
    EXPECT_EQ(GetWindow(), 0);
    for (const auto& line : TakeQueuedCommands())
        EXPECT_THAT(line, testing::Not(testing::StartsWith("put")));
}

using WindowPullDown = TablePage;

TEST_F(WindowPullDown, ATabOfTheMaskPagePutsTheChoice)
{
    Open(0x11130000);
    Tell("M/E-1@Key1@Main Mask@Main Mask#true");
    Touch(602 + 40, 360 + 30);
    ASSERT_EQ(GetWindow(), WINDOW_PULLDOWN);
    EXPECT_THAT(Touch(602 + 40, 413 + 6 + 32 + 31), // the lower edge of the second of four
                ElementsAre("put M/E-1@Key1@Main Mask@Mask Source#Pattern"));
}
