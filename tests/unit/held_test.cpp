// What the page holds - a slider, rows of a list, a scroll arrow, a thumb - when its release goes
// elsewhere.
#include "a_ls_page.h"
#include "a_nb.h"
#include "held.h"
#include "pane.h"
#include "window.h"
#include <map>

constexpr LS_TBL rows = {
    .id = 1, .hn = 1, .vn = 5, .x = 100, .y = 100, .width = {100}, .sb_top = 100, .sb_bottom = 232};
const LS_TBL list[] = {rows, LS_END};
const NB_TBL boxes[] = {
    {.id = 1, .caption = "Gain", .type = NB_2, .min = -100, .max = 100, .cmd = "Gain"}, NB_END};

static int pane = 0;
static PAGE other_page;

// Ways to lose a release. What has come over the page goes again without one.
struct Thief {
    const char* name;
    void (*comes)();
    void (*goes)();
};
constexpr Thief thieves[] = {
    {"pane", [] { pane = PaneMessage_Create("Pane", PANE_INFO, "Text"); }, [] { Pane_Quit(pane); }},
    {"window", [] { (void)CreateWindow(WINDOW_KEYBOARD, "Name"); }, [] { (void)CloseWindow(); }},
    {"ten keys", [] { (void)CreateWindow(WINDOW_KNOB, "Box"); }, [] { (void)CloseWindow(); }},
    {"find dialog", [] { GL_FM_Find_Window = 1; }, [] { GL_FM_Find_Window = 0; }},
    {"page", [] { Page = &other_page; }, [] {}},
    {"nobody: the next press comes without one", [] {},
     [] { SendMessage(MSG_PRESS, 400, 560, 1, 0); }},
};

struct Hold {
    const char* name;
    int x, y; // of the press
    int to_x, to_y;
};
constexpr Hold holds[] = {
    {"slider", 750, 167, 714, 167},
    {"rows", 150, 133, 150, 221},
    {"arrow", 220, 225, 220, 225},
    {"thumb", 220, 150, 220, 190},
};

struct Held : ListPage {
    void SetUp() override
    {
        ListPage::SetUp();
        other_page = page;
        GL_MouseSliderControl = 1;
        NB_Create(boxes, "");
        Tally("Gain", "50");
        Open(list, 100);
        LS_SetMS(1, 1);
        Pass();
        (void)Effects();
    }
    // All that a touch has brought about.
    static size_t Effects() { return TakeQueuedCommands().size() + Told().size(); }
};

TEST_F(Held, WhatIsHeldFollowsTheFingerUntilSomethingTakesTheRelease)
{
    for (const Hold& h : holds) {
        Clock_ms += 1000;
        Press(h.x, h.y);
        (void)Effects();
        Pass(300);
        Drag(h.to_x, h.to_y);
        EXPECT_GT(Effects(), 0u) << h.name;
        Release();
        Pass(1000);
        Drag(h.x, h.y);
        EXPECT_EQ(Effects(), 0u) << h.name << " goes on behind its release";
    }
    for (const Thief& t : thieves) {
        for (const Hold& h : holds) {
            SetUp();
            Press(h.x, h.y);
            (void)Effects();
            t.comes();
            Pass();
            Release(); // goes to what has come, if anything
            if (t.goes == thieves[5].goes)
                Press(h.x, h.y); // and once more, with nothing between
            t.goes();
            Pass(1000);
            (void)Effects();
            Pass(1000);
            Drag(h.to_x, h.to_y);
            EXPECT_EQ(Effects(), 0u) << h.name << " goes on behind a " << t.name;
        }
    }
}

// Each message of a sequence, and those at which the page is told to let go. x: a pane comes, n:
// the ten keys, beside which the page is alive, t: a keyboard.
TEST_F(Held, ALossIsToldOnceAndToNobodyWhoHoldsNothing)
{
    static const std::map<char, int> messages = {
        {'p', MSG_PRESS}, {'r', MSG_RELEASE}, {'d', MSG_DRAG}, {'w', MSG_REDRAW}, {'k', MSG_KEY}};
    static const struct {
        const char *sequence, *lost;
    } cases[] = {
        {"p", ""},     {"xdwr", ""},  {"pdwr", ""},  {"prxd", ""}, {"pxwd", "w"},
        {"pxdd", "d"}, {"pxrd", "r"}, {"pxkd", "d"}, {"ppd", "p"}, {"pprpd", "p"},
        {"xpdr", ""},  {"pxpw", "p"}, {"npxd", "d"}, {"tpxd", ""},
    };
    for (const auto& c : cases) {
        Held_Reset();
        std::string lost;
        for (const char* step = c.sequence; *step; step++)
            if (*step == 'x')
                pane = PaneMessage_Create("Pane", PANE_INFO, "Text");
            else if (*step == 'n' || *step == 't')
                (void)CreateWindow(*step == 'n' ? WINDOW_KNOB : WINDOW_KEYBOARD, "Window");
            else if (Held_IsLost(messages.at(*step)))
                lost += *step;
        Pane_Quit(pane);
        EXPECT_EQ(lost, c.lost) << c.sequence;
    }
}
