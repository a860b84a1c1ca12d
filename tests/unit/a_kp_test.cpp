#include "a_kp.h"
#include "graphics.h"
#include "tab_page.h"
#include "tdl.h"
#include "window.h"

const KP_TBL rows[] = {
    {"M/E-1 All", 1, 1, 1, 0, "~@All@", 0x61130000},
    {"Bkgd/Util", 1, 0, 1, 3, "~@Bkgd/Util@All@", 0x61130501},
    {"Heading"},
    KP_END,
};
constexpr int XPT_X = 300, HUE_X = 390, CURVE_X = 480, CAPTION_X = 150;
static constexpr int Y(int row)
{
    return 104 + 40 * row + 20;
}

struct PathLists : TabPage {
    void SetUp() override
    {
        TabPage::SetUp();
        SetTree({"Key Frame", "Path"}, 0x61130000, OBJ_KP);
        KP_Create(rows, 0);
    }
    // What the press on a cell comes to, when the key in that place of its window is pressed.
    static std::vector<std::string> Choose(int x, int y, int window_x, int place)
    {
        const auto sent = Sent(x, y);
        if (GetWindow() == WINDOW_NONE)
            return sent;
        EXPECT_THAT(sent, IsEmpty());
        return Sent(window_x + 20 + 68 * place, (y - 104) / 40 * 40 + 104 + 20);
    }
    static SDL_Surface* Shown(int x, int row)
    {
        Pass();
        for (SDL_Surface* s : {G_PATH_none, G_PATH_mixed, G_PATH_xpt_hold, G_PATH_xpt_change,
                               G_PATH_hue_ccw, G_PATH_curve_off, G_PATH_curve_step,
                               G_PATH_curve_linear, G_PATH_curve_s, G_PATH_curve_spline})
            if (s->pixels && Looks(s, x, Y(row) - 18)) // else it was never drawn
                return s;
        return nullptr;
    }
    static bool Looks(const SDL_Surface* s, int x, int y)
    {
        for (int dy = 0; dy < s->h; dy++)
            for (int dx = 0; dx < s->w; dx++) {
                uint32_t pixel;
                memcpy(&pixel, static_cast<char*>(s->pixels) + dy * s->pitch + dx * 4, 4);
                if ((pixel & 0xFFFFFF) != PixelAt(x + dx, y + dy))
                    return false;
            }
        return true;
    }
};

TEST_F(PathLists, ACellShowsItsTallyAndIsNotPaintedAgainForWhatIsNoNumber)
{
    EXPECT_THAT(TakeQueuedCommands(), testing::Contains("add Key Frame@Path@All@Xpt"));
    for (const auto& [path, is_followed] : {std::pair{"Key Frame@Path@All@Xpt", 1},
                                            {"Key Frame@Path@All@Curve@Spline@Tens", 1},
                                            {"Key Frame@Path@All@", 0},
                                            {"Key Frame@Path@M/E-1@Xpt", 0}})
        EXPECT_EQ(KP_Follows(path), is_followed) << path;
    EXPECT_EQ(KP_Proc(MSG_RELEASE, 0, 0, 0, 0), 0) << "others may have a part in it";
    for (const auto& [path, value, x, row, shown] :
         {std::tuple{"Key Frame@Path@All@Xpt", "Mixed", 270, 0, &G_PATH_mixed},
          {"Key Frame@Path@All@Xpt", "Step", 270, 0, &G_PATH_none}, // no word of this column
          {"Key Frame@Path@All@Hue", "CCW", 360, 0, &G_PATH_hue_ccw},
          {"Key Frame@Path@Bkgd/Util@All@Curve", "Step", 450, 1, &G_PATH_curve_step},
          {"Key Frame@Path@Bkgd/Util@All@Curve", "Spline", 450, 1, &G_PATH_none}, // not of type 3
          {"Key Frame@Path@All@Xpt", "Hold", 270, 0, &G_PATH_xpt_hold}}) {
        Tally(path, value);
        EXPECT_EQ(Shown(x, row), *shown) << path << "#" << value;
    }
    EXPECT_EQ(Shown(360, 1), nullptr); // the second row has no hue
    constexpr char TENS[] = "Key Frame@Path@All@Curve@Spline@Tens";
    constexpr uint32_t MARK = 0xFF00FF; // stays as long as nobody paints the row
    const int x = 520, y = Y(0) - 10;
    for (const auto& [value, is_painted] : {std::pair{"nan", false}, {"1.5", true}}) {
        Tally(TENS, "nan");
        Pass();
        TDL_FillRectS(x, y, x, y, MARK);
        Tally(TENS, value);
        Pass();
        EXPECT_EQ(PixelAt(x, y) != MARK, is_painted) << value;
    }
}

TEST_F(PathLists, ACaptionOpensThePageOfItsRowAndACellTheWindowWhoseAnswerGoesOut)
{
    for (const auto& [row, asked] : {std::pair{0, 0x61130000u}, {1, 0x61130501u}, {2, 0u}, {3, 0u}})
        EXPECT_EQ(Asked(CAPTION_X, Y(row)), asked) << row;
    Pass(0);
    EXPECT_EQ(PixelAt(106, Y(0)), 0x003241u); // felt,
    Pass(150);
    EXPECT_EQ(PixelAt(106, Y(0)), 0x000000u); // and let go
    // null: no window
    for (const auto& [x, row, window_x, place, put] :
         {std::tuple{XPT_X, 0, 160, 1, "put Key Frame@Path@All@Xpt#Change"},
          {HUE_X, 0, 250, 2, "put Key Frame@Path@All@Hue#CW"},
          {CURVE_X, 1, 340, 1, "put Key Frame@Path@Bkgd/Util@All@Curve#Step"},
          {HUE_X, 1, 250, 0, nullptr},
          {CURVE_X, 2, 340, 0, nullptr}}) {
        EXPECT_EQ(Choose(x, Y(row), window_x, place), put ? Strings{put} : Strings{})
            << x << " row " << row;
        EXPECT_EQ(GetWindow(), WINDOW_NONE);
    }
    BA_SetDefaultButton(1);
    EXPECT_THAT(Sent(XPT_X, Y(0)), IsEmpty());
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
}

TEST_F(PathLists, TheListScrollsAndTheWheelIsItsArrow)
{
    static KP_TBL many[KP_MAX + 2];
    static Strings prefix(KP_MAX + 1);
    for (size_t i = 0; i <= KP_MAX; i++) {
        prefix[i] = "Row" + std::to_string(i) + "@";
        many[i] = {"Row", 1, 0, 0, 0, prefix[i].c_str(), 0};
    }
    KP_Create(many, 0);
    SB_INFO bar;
    SB_GetInfo(&bar, 0);
    EXPECT_EQ(bar.total, KP_MAX); // one more has no place
    for (const auto& [kind, value, first] : {std::tuple{SB_DOWN, 1, "Row1@"},
                                             {SB_THUMB, 60, "Row54@"},
                                             {SB_UP, -1, "Row53@"},
                                             {SB_THUMB, 0, "Row0@"},
                                             {SB_UP, -1, "Row0@"}}) {
        SendMessage(LMSG_SBSEL, kind, 0, value, 0);
        EXPECT_THAT(Choose(XPT_X, Y(0), 160, 0),
                    ElementsAre(std::string("put ") + first + "Xpt#Hold"));
    }
    int x = CAPTION_X, y = Y(5);
    ASSERT_EQ(KP_ConvPosForWheel(&x, &y, 5), 1);
    EXPECT_TRUE(Inside(bar.down, x, y));
    KP_Create(rows, 0);
    (void)TakeQueuedCommands();
    EXPECT_THAT(Sent(XPT_X, Y(3)), IsEmpty()); // nothing is left of the longer list
}
