// nb_rows: the words in which knob tables are written that a numbered link chooses among. A family is the same column
// in several variants: a picture's width, a count of lines or a share of the range differs, the boxes don't.
#pragma once
#include "a_nb.h"
#include <cstddef>

template <size_t ROWS> struct KnobColumn {
    NB_TBL row[ROWS];
};
template <typename... ROW> constexpr KnobColumn<sizeof...(ROW) + 1> Column(ROW... row)
{
    return {{row..., NB_END}};
}

template <size_t VARIANTS, size_t ROWS> struct KnobFamily {
    NB_TBL variant[VARIANTS][ROWS];
};
// make(n) gives the column of variant n.
template <size_t VARIANTS, typename MAKE> constexpr auto FamilyOf(MAKE make)
{
    constexpr size_t ROWS = sizeof(make(0).row) / sizeof(NB_TBL);
    KnobFamily<VARIANTS, ROWS> family{};
    for (size_t v = 0; v < VARIANTS; v++) {
        const KnobColumn<ROWS> column = make(int(v));
        for (size_t i = 0; i < ROWS; i++) family.variant[v][i] = column.row[i];
    }
    return family;
}

// --- Boxes: a caption names its unit on a second line; without one the value is a share in percent, a hue in degrees ---

constexpr NB_TBL Box(int id, const char* caption, const char* cmd, double min, double max, int type = NB_2)
{
    return {.id = id, .caption = caption, .type = type, .min = min, .max = max, .cmd = cmd};
}
constexpr NB_TBL Percent(int id, const char* caption, const char* cmd, double max = 100)
{
    return Box(id, caption, cmd, 0, max);
}
// The same to both sides of the middle.
constexpr NB_TBL Span(int id, const char* caption, const char* cmd, double limit)
{
    return Box(id, caption, cmd, -limit, limit);
}
constexpr NB_TBL Count(int id, const char* caption, const char* cmd, double min, double max)
{
    return Box(id, caption, cmd, min, max, NB_INT);
}
// The caption ends in "\ndeg", that of Turns in "\nturns".
constexpr NB_TBL Degrees(int id, const char* caption, const char* cmd) { return Span(id, caption, cmd, 360); }
constexpr NB_TBL Hue(int id, const char* cmd) { return Box(id, "Hue", cmd, 0, 359.99); }
constexpr NB_TBL Frames(int id, const char* caption, const char* cmd) { return Count(id, caption, cmd, 0, 999); }
// Turns, of which a spin counts many.
constexpr NB_TBL Turns(int id, const char* caption, const char* cmd) { return Span(id, caption, cmd, 999.99); }

// The boxes of a colour, wherever there is one. path: a literal; "first" counts where other boxes lie before them.
#define NB_COLOR_FROM(first, path) \
    Percent(first, "Luminance", path "@Luminance"), Percent((first) + 1, "Saturation", path "@Saturation"), \
    Box((first) + 2, "Hue", path "@Hue", 0, 359.99)
#define NB_COLOR(path) NB_COLOR_FROM(1, path)

// --- Limits ---

// Sideways: both aspects count in the same steps, of which a 16:9 picture has a third more.
constexpr double Wide(double limit, bool is_wide)
{
    return is_wide ? double(int(limit * 400 / 3 + 0.5)) / 100 : limit;
}
static_assert(Wide(4, true) == 5.33 && Wide(75, true) == 100 && Wide(4, false) == 4);

// In lines: an interlaced SD picture moves by half lines, an HD picture has more than twice of them.
constexpr NB_TBL Lines(int id, const char* caption, const char* cmd, double limit_sd, bool is_hd)
{
    return is_hd ? Box(id, caption, cmd, -2 * limit_sd, 2 * limit_sd, NB_INT)
                 : Box(id, caption, cmd, -limit_sd, limit_sd, NB_1);
}
