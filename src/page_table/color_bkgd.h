// color_bkgd: the two colour backgrounds: one colour each, or two that a pattern mixes.
#pragma once
#include "nb_rows.h"
#include "patterns.h"
#include "rows.h"

inline constexpr VF_TBL vf_color_bkgd[] = {
    {.id = 1, .caption = "Color\nBkgd", .page = 0x22100000},
    {.id = 2, .caption = "Bkgd 1",      .page = 0x22110000},
    {.id = 3, .caption = "Bkgd 2",      .page = 0x22120000},
    VF_END,
};

// --- Both ---

#define BKGD_MODE(line, n) \
    Jump ({.id = 16 * (line) + 1, .caption = "Bkgd " n,     .group = "Bkgd " n, .cmd = {"#221" n "0000"}}), \
    Radio({.id = 16 * (line) + 2, .caption = "Flat",        .group = "Bkgd " n, .cmd = {"~@Bkgd " n "@Mode#Flat"}}), \
    Radio({.id = 16 * (line) + 3, .caption = "Mix",         .group = "Bkgd " n, .cmd = {"~@Bkgd " n "@Mode#Mix"}}), \
    Knobs({.id = 16 * (line) + 4, .caption = "Color 1",     .group = "Bkgd " n, .nb = nb_color_bkgd_##line##a.row}), \
    Knobs({.id = 16 * (line) + 5, .caption = "Color 2",     .group = "Bkgd " n, .cmd = {"", "~@Bkgd " n "@Mode#Flat"}, .nb = nb_color_bkgd_##line##b.row})
inline constexpr auto nb_color_bkgd_1a = Column(NB_COLOR("~@Bkgd 1@Color 1"));
inline constexpr auto nb_color_bkgd_1b = Column(NB_COLOR("~@Bkgd 1@Color 2"));
inline constexpr auto nb_color_bkgd_2a = Column(NB_COLOR("~@Bkgd 2@Color 1"));
inline constexpr auto nb_color_bkgd_2b = Column(NB_COLOR("~@Bkgd 2@Color 2"));
inline constexpr BT_TBL bt_color_bkgd[] = {
    BKGD_MODE(1, "1"),
    BKGD_MODE(2, "2"),
    Action({.id = 49, .caption = "Copy\n1 to 2", .group = "Bkgd", .cmd = {"~@Copy 1 to 2#*"}}),
    Action({.id = 50, .caption = "Copy\n2 to 1", .group = "Bkgd", .cmd = {"~@Copy 2 to 1#*"}}),
    Action({.id = 51, .caption = "Swap",         .group = "Bkgd", .cmd = {"~@Swap#*"}}),
    Jump  ({.id = 6,  .caption = "Top\nMenu",    .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_color_bkgd));
#undef BKGD_MODE

// --- One of them ---

inline constexpr auto nb_color_bkgd_color1 = Column(NB_COLOR("~@Color 1"));
inline constexpr auto nb_color_bkgd_color2 = Column(NB_COLOR("~@Color 2"));
inline constexpr auto nb_color_bkgd_mix = Column(
    Percent(1, "Size", "~@Mix Pattern@Size"),
    Percent(2, "Soft", "~@Mix Pattern@Soft"));
inline constexpr auto nb_color_bkgd_position = Column(
    Span(1, "H", "~@Mix Pattern@Position@H", 200),
    Span(2, "V", "~@Mix Pattern@Position@V", 200));
inline constexpr auto nb_color_bkgd_aspect = Column(Span(1, "Aspect", "~@Mix Pattern@Aspect@Aspect", 100));
inline constexpr auto nb_color_bkgd_angle = Column(Degrees(1, "Angle\ndeg", "~@Mix Pattern@Angle@Angle"));
inline constexpr auto nb_color_bkgd_multi = Column(
    Count(1, "H Multi", "~@Mix Pattern@Multi@H", 1, 63),
    Count(2, "V Multi", "~@Mix Pattern@Multi@V", 1, 63));

#define IF_MIX "~@Mode#Flat"
constexpr std::array<BT_TBL, 13> BkgdKeys(const char* pattern_page)
{
    return {{
        Radio ({.id = 17, .caption = "Flat",         .group = "Matte", .cmd = {"~@Mode#Flat"}}),
        Radio ({.id = 18, .caption = "Mix",          .group = "Matte", .cmd = {"~@Mode#Mix"}, .nb = nb_color_bkgd_mix.row}),
        Knobs ({.id = 19, .caption = "Color 1",      .group = "Color", .nb = nb_color_bkgd_color1.row}),
        Knobs ({.id = 20, .caption = "Color 2",      .group = "Color", .cmd = {"", IF_MIX}, .nb = nb_color_bkgd_color2.row}),
        Action({.id = 21, .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*", IF_MIX}}),
        Action({.id = 22, .caption = "Swap",         .group = "Color", .cmd = {"~@Swap#*", IF_MIX}}),
        Toggle({.id = 33, .caption = "Position",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Position#*", IF_MIX}, .nb = nb_color_bkgd_position.row}),
        Toggle({.id = 34, .caption = "Aspect",       .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Aspect#*", IF_MIX}, .nb = nb_color_bkgd_aspect.row}),
        Toggle({.id = 35, .caption = "Angle",        .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Angle#*", IF_MIX}, .nb = nb_color_bkgd_angle.row}),
        Toggle({.id = 36, .caption = "Multi",        .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Multi#*", IF_MIX}, .nb = nb_color_bkgd_multi.row}),
        Jump  ({.id = 37, .caption = "Pattern\nSelect", .group = "Mix Pattern", .cmd = {pattern_page, IF_MIX}}),
        Toggle({.id = 49, .caption = "Wash",         .group = "Modify", .cmd = {"~@Wash#*", IF_MIX}}),
        BT_END,
    }};
}
#undef IF_MIX
inline constexpr std::array<BT_TBL, 13> bt_color_bkgd_of[] = {BkgdKeys("#22110001"), BkgdKeys("#22120001")};
inline constexpr PS_TBL ps_color_bkgd = {.cmd = "~@Pattern", .init_nb = nb_color_bkgd_mix.row, .init_nb_caption = "Mix Pattern"};

// --- Cells: a line a background ---

#define BKGD_CELL(column, line, painter, path, ...) \
    CellAt(column, line, {.id = 1 + (column) + 6 * (line), .draw_func = painter, .cmd = {path "@Mode", __VA_ARGS__}, .page = 0x22110000 + 0x10000 * (line)})
#define BKGD_COLOR(column, line, path, color) \
    BKGD_CELL(column, line, st_drw_source_matte, path, path "@" color "@Luminance", path "@" color "@Saturation", path "@" color "@Hue")
#define BKGD_LINE(line, path) \
    BKGD_CELL(0, line, st_drw_source_mode, path, path "@Mix Pattern@Pattern"), \
    BKGD_COLOR(1, line, path, "Color 1"), \
    BKGD_COLOR(2, line, path, "Color 2"), \
    BKGD_CELL(3, line, st_drw_source_matte, path, path "@Mix Pattern@Size", path "@Mix Pattern@Soft")
inline constexpr ST_TBL st_color_bkgd[] = {BKGD_LINE(0, "Color Bkgd@Bkgd 1"), BKGD_LINE(1, "Color Bkgd@Bkgd 2"), ST_END};
static_assert(CellsAreSound(st_color_bkgd));
#undef BKGD_LINE
#undef BKGD_COLOR
#undef BKGD_CELL

// --- Pages ---

constexpr PAGE BkgdPage(int n)
{
    return {.id = uint32_t(0x22110000 + 0x10000 * n), .tree = {"Color Bkgd", n ? "Bkgd 2" : "Bkgd 1"},
            .obj = {Base(base_main), LeftTabs(vf_color_bkgd, uint32_t(n + 2)), Buttons(bt_color_bkgd_of[n].data()), Boxes(NB_Non), Cells(st_color_bkgd)}};
}
constexpr PAGE BkgdPattern(int n)
{
    return {.id = uint32_t(0x22110001 + 0x10000 * n), .tree = {"Color Bkgd", n ? "Bkgd 2" : "Bkgd 1", "Mix Pattern"},
            .obj = {Base(base_sub, uint32_t(0x22110000 + 0x10000 * n)), LeftTabs(vf_color_bkgd, uint32_t(n + 2)), Patterns(ps_color_bkgd), Boxes(NB_Non)}};
}
inline constexpr PAGE color_bkgd_pages[] = {
    {.id = 0x22000000, .tree = {"Color Bkgd"}, .obj = {Base(base_main), Buttons(bt_color_bkgd), Boxes(NB_Non), Cells(st_color_bkgd)}},
    {.id = 0x22100000, .tree = {"Color Bkgd"}, .obj = {Base(base_main), LeftTabs(vf_color_bkgd, 1), Buttons(bt_color_bkgd), Boxes(NB_Non), Cells(st_color_bkgd)}},
    BkgdPage(0), BkgdPattern(0),
    BkgdPage(1), BkgdPattern(1),
};
