// The buttons of pages: toggles, actions, jumps, favourites, pull-downs, transfers.
#include "cap.h"
#include <algorithm>
#include <cmath>

namespace
{
constexpr Colour ICON = 0x8CC4CF;
constexpr Colour ICON_DISABLED = 0x4A5054;

const Material& lit_by_state(int on)
{
    return on == 0 ? GRAPHITE : on == 1 ? ICE : AMBER;
}

// --- Toggles ---

void draw_toggle(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled)
        CAP_Flat(cv, st.on);
    else
        CAP_Draw(cv, lit_by_state(st.on), st.pushed);
    CAP_Lamp(cv, st);
}

void draw_dial(const Canvas& cv, const State& st)
{
    const double x = cv.width - 15 + st.pushed, y = cv.height - 17 + st.pushed;
    if (st.is_disabled) {
        const Colour colour = st.on ? 0x000000 : ICON_DISABLED;
        const double alpha = st.on ? 0.45 : 1;
        CV_Circle(cv, x, y, 6);
        CV_Stroke(cv, 1.5, colour, alpha);
        CV_Lines(cv, {{x, y}, {x + 3.4, y - 3.4}});
        CV_Stroke(cv, 1.5, colour, alpha);
    } else if (st.has_knobs) {
        CV_Circle(cv, x, y, 8);
        CV_Paint(cv, 0x00222B);
        CV_Circle(cv, x, y, 6.5);
        CV_Paint(cv, 0x00FFFF);
        CV_Lines(cv, {{x, y}, {x + 4.2, y - 4.2}});
        CV_Stroke(cv, 2.4, 0x00222B);
    } else {
        const Colour colour = st.on ? 0x3A5E64 : 0xA9B4B9;
        CV_Circle(cv, x, y, 6);
        CV_Stroke(cv, 1.6, colour);
        CV_Lines(cv, {{x + 0.5, y - 0.5}, {x + 3.8, y - 3.8}});
        CV_Stroke(cv, 1.8, colour);
    }
}

void draw_toggle_with_knobs(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled)
        CAP_Flat(cv, st.on);
    else
        CAP_Draw(cv, lit_by_state(st.on), st.pushed);
    if (st.has_knobs)
        CAP_OwnFrame(cv, st.pushed);
    CAP_Lamp(cv, st);
    draw_dial(cv, st);
}

// --- Actions ---

void draw_action(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled)
        CAP_Flat(cv);
    else
        CAP_Draw(cv, st.on ? SILVER : STEEL, st.pushed);
    CAP_Grip(cv, st);
}

void draw_keyframe(const Canvas& cv, const State& st, int variant)
{
    draw_action(cv, st, variant);
    const double x = 67 + st.pushed, y = 48 + st.pushed;
    CV_Polygon(cv, {{x, y - 7}, {x + 7, y}, {x, y + 7}, {x - 7, y}});
    CV_Paint(cv, st.on ? 0x35405F : 0xFFFFFF);
}

// --- Jumps: the icon tells where the key leads; each fills a 16 x 16 grid from (x, y) ---

void icon_page(const Canvas& cv, double x, double y, Colour colour)
{
    CV_Lines(cv, {{x + 5, y + 2}, {x + 11, y + 8}, {x + 5, y + 14}});
    CV_Stroke(cv, 2.2, colour);
}

void icon_ten_keys(const Canvas& cv, double x, double y, Colour colour)
{
    for (int row = 0; row < 3; row++)
        for (int column = 0; column < 3; column++)
            CV_Fill(cv, x + 2 + column * 5, y + 1 + row * 5, 3, 3, colour);
}

void icon_keyboard(const Canvas& cv, double x, double y, Colour colour)
{
    CV_RoundRect(cv, x - 2.25, y + 3.75, 20.5, 10.5, 2);
    CV_Stroke(cv, 1.5, colour);
    for (int i = 0; i < 4; i++)
        CV_Fill(cv, x + i * 4, y + 6, 2, 2, colour);
    CV_Fill(cv, x + 2, y + 10, 10, 2, colour);
}

void icon_pop_up(const Canvas& cv, double x, double y, Colour colour)
{
    CV_RoundRect(cv, x - 0.25, y + 5.75, 10.5, 8.5, 1);
    CV_Stroke(cv, 1.5, colour);
    CV_RoundRect(cv, x + 4, y + 1, 13, 9, 1);
    CV_Paint(cv, colour);
    CV_Fill(cv, x + 6, y + 4, 9, 4,
            colour == ICON_DISABLED ? 0x1A1D1F : 0x1C343D); // the key shows through
}

void icon_find(const Canvas& cv, double x, double y, Colour colour)
{
    CV_Circle(cv, x + 6.5, y + 6.5, 4.8);
    CV_Stroke(cv, 2, colour);
    CV_Lines(cv, {{x + 10.3, y + 10.3}, {x + 14.2, y + 14.2}});
    CV_Stroke(cv, 2.6, colour);
}

void icon_new(const Canvas& cv, double x, double y, Colour colour)
{
    CV_Lines(cv, {{x + 8, y + 2}, {x + 8, y + 14}});
    CV_Stroke(cv, 2.4, colour, 1, CAIRO_LINE_CAP_BUTT);
    CV_Lines(cv, {{x + 2, y + 8}, {x + 14, y + 8}});
    CV_Stroke(cv, 2.4, colour, 1, CAIRO_LINE_CAP_BUTT);
}

enum JumpTarget { TO_PAGE, TO_TEN_KEYS, TO_KEYBOARD, TO_POP_UP, TO_FIND, TO_NEW };

void draw_jump(const Canvas& cv, const State& st, int variant)
{
    constexpr void (*icons[])(const Canvas&, double, double, Colour) = {
        icon_page, icon_ten_keys, icon_keyboard, icon_pop_up, icon_find, icon_new};
    if (st.is_disabled)
        CAP_Flat(cv);
    else
        CAP_Draw(cv, PETROL, st.pushed);
    icons[variant](cv, cv.width - 26 + st.pushed, cv.height - 25 + st.pushed,
                   st.is_disabled ? ICON_DISABLED : ICON);
}

// --- Favourites ---

Colour scaled(Colour colour, double factor)
{
    Colour out = 0;
    for (int shift : {16, 8, 0})
        out |= Colour(std::min(255, int(((colour >> shift) & 0xFF) * factor))) << shift;
    return out;
}

void draw_favourite(const Canvas& cv, const State& st, int number)
{
    constexpr Colour middles[] = {0x8E3B3B, 0x9A6524, 0x7E7A22, 0x3B7A3F, 0x1F7A78,
                                  0x33609C, 0x66489E, 0x8A3F7C, 0x5A6266};
    const Colour middle = middles[number - 1];
    const Material material = {.up = {.edge = scaled(middle, 1.6),
                                      .top = scaled(middle, 1.15),
                                      .middle = middle,
                                      .bottom = scaled(middle, 0.82),
                                      .lip = scaled(middle, 0.32)},
                               .pushed = {.edge = 0,
                                          .top = scaled(middle, 0.62),
                                          .middle = scaled(middle, 0.72),
                                          .bottom = scaled(middle, 0.86),
                                          .lip = scaled(middle, 0.3)}};
    CAP_Draw(cv, material, st.pushed);
    icon_page(cv, cv.width - 26 + st.pushed, cv.height - 25 + st.pushed, 0xFFFFFF);
}

// --- Keys that open a list ---

void draw_tab(const Canvas& cv, const State& st, int)
{
    const int p = st.pushed;
    if (st.is_disabled) {
        CAP_Flat(cv, 0, {.corners = TOP_CORNERS});
        CV_ChevronDown(cv, 78, 17, 4.5, ICON_DISABLED);
        return;
    }
    CAP_Draw(cv, GRAPHITE, p, {.corners = TOP_CORNERS, .lip = 2});
    CV_Fill(cv, 8 + p, 34 + p, 73, 2, p ? 0x00A8AE : 0x00797F);
    CV_ChevronDown(cv, 78 + p, 17 + p, 4.5, 0xA9B4B9);
}

enum PullDownLength { SHORT_LIST, LONG_LIST };

void draw_pull_down(const Canvas& cv, const State& st, int variant)
{
    const int p = st.pushed;
    if (st.is_disabled) { // its caption is dark
        CV_RoundRect(cv, 1, 1, cv.width - 2, cv.height - 2, 5);
        CV_Paint(cv, 0x6A747B);
        CV_RoundRect(cv, 2, 2, cv.width - 4, cv.height - 4, 4);
        CV_Paint(cv, 0x5C666D);
        return;
    }
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, p);
    CV_Fill(cv, 79 + p, 7 + p, 1, 30, st.on ? 0x6FA0A6 : 0x0A0C0D, 0.9);
    CV_Fill(cv, 80 + p, 7 + p, 1, 30, 0xFFFFFF, st.on ? 0.7 : 0.12);
    const Colour colour = st.on ? 0x1E4A50 : 0xC4CDD1;
    if (variant == SHORT_LIST) {
        CV_ChevronDown(cv, 90 + p, 22 + p, 5, colour);
    } else {
        CV_ChevronDown(cv, 90 + p, 17 + p, 5, colour);
        CV_ChevronDown(cv, 90 + p, 26 + p, 5, colour);
    }
}

// From a list into a list; direction 1 right, -1 left.
void draw_transfer(const Canvas& cv, const State& st, int direction)
{
    const int x = 50 + st.pushed, y = 17 + st.pushed;
    const Colour colour = st.on ? 0x0F3A40 : 0xC4CDD1;
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, st.pushed);
    for (int middle : {x - 26, x + 26})
        for (int line = 0; line < 4; line++)
            CV_Fill(cv, middle - 8, y - 8 + line * 5, 16, 2, colour, 0.55);
    CV_Fill(cv, std::min(x - 11 * direction, x + 2 * direction), y - 2, 13, 4, colour);
    CV_Arrow(cv, x + 6 * direction, y, direction, 0, 8, colour);
}

// --- States that only buttons of pages have ---

constexpr State STATES_TOGGLE[] = {
    {.suffix = "_p0o0"},
    {.suffix = "_p0o1", .on = 1},
    {.suffix = "_p0o2", .on = 2},
    {.suffix = "_p1o0", .pushed = 1},
    {.suffix = "_p1o1", .pushed = 1, .on = 1},
    {.suffix = "_p1o2", .pushed = 1, .on = 2},
    {.suffix = "_o0_dis", .is_disabled = true},
    {.suffix = "_o1_dis", .on = 1, .is_disabled = true},
    {.suffix = "_o2_dis", .on = 2, .is_disabled = true},
};
constexpr State STATES_TOGGLE_KNOBS[] = {
    {.suffix = "_p0o0a0"},
    {.suffix = "_p0o0a1", .has_knobs = true},
    {.suffix = "_p0o1a0", .on = 1},
    {.suffix = "_p0o1a1", .on = 1, .has_knobs = true},
    {.suffix = "_p1o0a0", .pushed = 1},
    {.suffix = "_p1o0a1", .pushed = 1, .has_knobs = true},
    {.suffix = "_p1o1a0", .pushed = 1, .on = 1},
    {.suffix = "_p1o1a1", .pushed = 1, .on = 1, .has_knobs = true},
    {.suffix = "_o0_dis", .is_disabled = true},
    {.suffix = "_o1_dis", .on = 1, .is_disabled = true},
};
constexpr State STATES_FAVOURITE[] = {{.suffix = "_p0"}, {.suffix = "_p1", .pushed = 1}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"TGL",      85, 66, ON_BLACK, draw_toggle, STATES_TOGGLE},
    {"TGA",      85, 66, ON_BLACK, draw_toggle_with_knobs, STATES_TOGGLE_KNOBS},
    {"EXE",      85, 66, ON_BLACK, draw_action, STATES_PUSHED_ON_DIS},
    {"KEYFRAME", 85, 66, ON_BLACK, draw_keyframe, STATES_HELD},
    {"JMP",      85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_PAGE},
    {"JMP_10",   85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_TEN_KEYS},
    {"JMP_Key",  85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_KEYBOARD},
    {"JMP_Pop",  85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_POP_UP},
    {"JMP_Find", 85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_FIND},
    {"JMP_New",  85, 66, ON_BLACK, draw_jump, STATES_PUSHED_DIS, TO_NEW},
    {"OKINI_1",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 1},
    {"OKINI_2",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 2},
    {"OKINI_3",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 3},
    {"OKINI_4",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 4},
    {"OKINI_5",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 5},
    {"OKINI_6",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 6},
    {"OKINI_7",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 7},
    {"OKINI_8",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 8},
    {"OKINI_9",  85, 66, ON_BLACK, draw_favourite, STATES_FAVOURITE, 9},
    {"TAB",      89, 40, ON_BLACK, draw_tab, STATES_PUSHED_DIS},
    {"PD",      101, 46, ON_BLACK, draw_pull_down, STATES_PUSHED_ON_DIS, SHORT_LIST},
    {"PDl",     101, 46, ON_BLACK, draw_pull_down, STATES_PUSHED_ON_DIS, LONG_LIST},
    {"TRR",     101, 46, ON_BLACK, draw_transfer, STATES_PUSHED_ON, 1},
    {"TRL",     101, 46, ON_BLACK, draw_transfer, STATES_PUSHED_ON, -1},
};
// clang-format on
} // namespace

std::span<const Family> KEYS_Families()
{
    return FAMILIES;
}
