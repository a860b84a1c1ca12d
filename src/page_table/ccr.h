// ccr: the menu of the two colour correctors. A corrector is a chain: levels, gamma and knee, clip, single colours,
// luminance process, video process. Written for the first one; what only a larger switcher has is a variant of a page.
#pragma once
#include "nb_rows.h"
#include "rows.h"
#include "st_ccr.h"
#include <array>

// --- Tabs ---

inline constexpr VF_TBL vf_ccr[] = {
    {.id = 1, .caption = "Status", .page = 0x24000000},
    {.id = 2, .caption = "CCR1",   .page = 0x24110000},
    {.id = 3, .caption = "CCR2",   .page = 0x24210000},
    VF_END,
};
#define CCR_LIT(ccr, rest) ccr "@" rest "#true"
#define CCR_TABS(ccr, base) \
    {.id = 1, .caption = "White/\nBlack",  .page = (base) + 0x10000, .statcmd = {CCR_LIT(ccr, "White/Black@White"), CCR_LIT(ccr, "White/Black@Black")}}, \
    {.id = 2, .caption = "Gamma/\nKnee",   .page = (base) + 0x20000, .statcmd = {CCR_LIT(ccr, "Gamma/Knee@Gamma"), CCR_LIT(ccr, "Gamma/Knee@Knee")}}, \
    {.id = 3, .caption = "RGB\nClip",      .page = (base) + 0x30000, .statcmd = {CCR_LIT(ccr, "RGB Clip@White Clip"), CCR_LIT(ccr, "RGB Clip@Dark Clip")}}, \
    {.id = 4, .caption = "Spot\nColor",    .page = (base) + 0x40000, .statcmd = {CCR_LIT(ccr, "Spot Color@Spot 1"), CCR_LIT(ccr, "Spot Color@Spot 2"), CCR_LIT(ccr, "Spot Color@Spot 3")}}, \
    {.id = 5, .caption = "Lum\nProcess", .page = (base) + 0x50000, .statcmd = {CCR_LIT(ccr, "Lum Process@Lum Process")}}, \
    {.id = 6, .caption = "Video\nProcess", .page = (base) + 0x60000, .statcmd = {CCR_LIT(ccr, "Video Process@Video Process")}}, \
    {.id = 7, .caption = "Insert",         .page = (base) + 0x70000, .statcmd = {CCR_LIT(ccr, "Insert@Correction")}}, \
    HF_END
inline constexpr HF_TBL hf_ccr[][8] = {{CCR_TABS("CCR@CCR1", 0x24100000)}, {CCR_TABS("CCR@CCR2", 0x24200000)}};
#undef CCR_TABS
#undef CCR_LIT

// --- Boxes: the parts of a picture, together and each for itself ---

#define CCR_RGB(path, limit) Column( \
    Span(1, "All", path "@All", limit), Span(2, "Red", path "@Red", limit), Span(3, "Green", path "@Green", limit), \
    Span(4, "Blue", path "@Blue", limit))
inline constexpr auto nb_ccr_white = CCR_RGB("~@White", 100);
inline constexpr auto nb_ccr_black = CCR_RGB("~@Black", 50);
inline constexpr auto nb_ccr_gamma = CCR_RGB("~@Gamma", 100);
inline constexpr auto nb_ccr_flare = CCR_RGB("~@Flare", 20);
#undef CCR_RGB
inline constexpr auto nb_ccr_knee = Column(
    Box(1, "Point", "~@Knee@Point", 50, 109), Percent(2, "Slope", "~@Knee@Slope"));
inline constexpr auto nb_ccr_black_stretch = Column(
    Percent(1, "Point", "~@Black Stretch@Point", 50), Span(2, "Gain", "~@Black Stretch@Gain", 100));
#define CCR_CLIP(path, min, max) Column( \
    Box(1, "Red", path "@Red", min, max), Box(2, "Green", path "@Green", min, max), Box(3, "Blue", path "@Blue", min, max))
inline constexpr auto nb_ccr_white_clip = CCR_CLIP("~@White Clip", 50, 109);
inline constexpr auto nb_ccr_dark_clip = CCR_CLIP("~@Dark Clip", -7, 50);
#undef CCR_CLIP
#define CCR_SPOT(n) Column( \
    Box(1, "Hue", "~@Spot " n "@Hue", 0, 359.99), Box(2, "Width\ndeg", "~@Spot " n "@Width", 1, 180), \
    Percent(3, "Saturation", "~@Spot " n "@Saturation"), Percent(4, "Soft", "~@Spot " n "@Soft"))
#define CCR_TURNED(n) Column( \
    Span(1, "Hue", "~@Spot " n "@Shift@Hue", 180), Span(2, "Saturation", "~@Spot " n "@Shift@Saturation", 100), \
    Span(3, "Luminance", "~@Spot " n "@Shift@Luminance", 100))
inline constexpr auto nb_ccr_spot1 = CCR_SPOT("1");
inline constexpr auto nb_ccr_spot2 = CCR_SPOT("2");
inline constexpr auto nb_ccr_spot3 = CCR_SPOT("3");
inline constexpr auto nb_ccr_turned1 = CCR_TURNED("1");
inline constexpr auto nb_ccr_turned2 = CCR_TURNED("2");
inline constexpr auto nb_ccr_turned3 = CCR_TURNED("3");
#undef CCR_TURNED
#undef CCR_SPOT
inline constexpr auto nb_ccr_luminance = Column(
    Span(1, "Low", "~@Gain@Low", 100), Span(2, "Middle", "~@Gain@Middle", 100), Span(3, "High", "~@Gain@High", 100));
inline constexpr auto nb_ccr_ranges = Column(
    Percent(1, "Low to\nMiddle", "~@Range@Low"), Percent(2, "Middle\nto High", "~@Range@High"));
inline constexpr auto nb_ccr_video = Column(
    Percent(1, "Lum Gain", "~@Luminance", 200), Percent(2, "Chr Gain", "~@Chroma", 200), Span(3, "Hue", "~@Hue", 180),
    Span(4, "Black", "~@Black Level", 20));

// --- Buttons ---

// On each page of a corrector: what is set there shows only while it corrects.
#define CCR_ON Toggle({.id = 38, .caption = "Correction", .group = "CCR", .cmd = {"~2@Insert@Correction#*"}})

inline constexpr BT_TBL bt_ccr_white[] = {
    Toggle({.id = 17, .caption = "White",  .group = "Level", .cmd = {"~@White#*"}, .nb = nb_ccr_white.row}),
    Toggle({.id = 18, .caption = "Black",  .group = "Level", .cmd = {"~@Black#*"}, .nb = nb_ccr_black.row}),
    Toggle({.id = 19, .caption = "Flare",  .group = "Level", .cmd = {"~@Flare#*"}, .nb = nb_ccr_flare.row}),
    Action({.id = 33, .caption = "Auto\nWhite", .group = "Balance", .cmd = {"~@Auto White#*", "~@White#false"}}),
    Action({.id = 34, .caption = "Auto\nBlack", .group = "Balance", .cmd = {"~@Auto Black#*", "~@Black#false"}}),
    Action({.id = 22, .caption = "Unity",  .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
inline constexpr BT_TBL bt_ccr_gamma[] = {
    Toggle({.id = 17, .caption = "Gamma",  .group = "Gamma", .cmd = {"~@Gamma#*"}, .nb = nb_ccr_gamma.row}),
    Toggle({.id = 19, .caption = "Black\nStretch", .group = "Stretch", .cmd = {"~@Black Stretch#*"}, .nb = nb_ccr_black_stretch.row}),
    Toggle({.id = 33, .caption = "Knee",   .group = "Knee", .cmd = {"~@Knee#*"}, .nb = nb_ccr_knee.row}),
    Toggle({.id = 34, .caption = "Auto\nKnee", .group = "Knee", .cmd = {"~@Auto Knee#*", "~@Knee#false"}}),
    Action({.id = 22, .caption = "Unity",  .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
inline constexpr BT_TBL bt_ccr_clip[] = {
    Toggle({.id = 17, .caption = "White\nClip", .group = "Clip", .cmd = {"~@White Clip#*"}, .nb = nb_ccr_white_clip.row}),
    Toggle({.id = 18, .caption = "Dark\nClip",  .group = "Clip", .cmd = {"~@Dark Clip#*"}, .nb = nb_ccr_dark_clip.row}),
    Radio ({.id = 33, .caption = "RGB", .group = "Color Space", .cmd = {"~@Color Space#RGB"}}),
    Radio ({.id = 34, .caption = "YUV", .group = "Color Space", .cmd = {"~@Color Space#YUV"}}),
    Action({.id = 22, .caption = "Unity", .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
// A colour is picked out of the picture, and turned into another.
#define CCR_SPOT_KEYS(line, n) \
    Toggle({.id = 16 * (line) + 1, .caption = "Spot " n, .group = "Spot " n, .cmd = {"~@Spot " n "#*"}, .nb = nb_ccr_spot##line.row}), \
    Knobs ({.id = 16 * (line) + 2, .caption = "Shift",   .group = "Spot " n, .cmd = {"", "~@Spot " n "#false"}, .nb = nb_ccr_turned##line.row}), \
    Toggle({.id = 16 * (line) + 3, .caption = "Show\nMask", .group = "Spot " n, .cmd = {"~@Spot " n "@Mask#*", "~@Spot " n "#false"}}), \
    Toggle({.id = 16 * (line) + 4, .caption = "Rest\nMono", .group = "Spot " n, .cmd = {"~@Spot " n "@Rest Mono#*", "~@Spot " n "#false"}})
inline constexpr BT_TBL bt_ccr_spot[] = {
    CCR_SPOT_KEYS(1, "1"), CCR_SPOT_KEYS(2, "2"), CCR_SPOT_KEYS(3, "3"),
    Action({.id = 22, .caption = "Unity", .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
#undef CCR_SPOT_KEYS
inline constexpr BT_TBL bt_ccr_luminance[] = {
    Toggle({.id = 17, .caption = "Lum\nProcess", .group = "Lum Process", .cmd = {"~@Lum Process#*"}, .nb = nb_ccr_luminance.row}),
    Knobs ({.id = 18, .caption = "Range", .group = "Lum Process", .cmd = {"", "~@Lum Process#false"}, .nb = nb_ccr_ranges.row}),
    Action({.id = 22, .caption = "Unity", .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
inline constexpr BT_TBL bt_ccr_video[] = {
    Toggle({.id = 17, .caption = "Video\nProcess", .group = "Video Process", .cmd = {"~@Video Process#*"}, .nb = nb_ccr_video.row}),
    Toggle({.id = 18, .caption = "Mono",       .group = "Video Process", .cmd = {"~@Mono#*", "~@Video Process#false"}}),
    Toggle({.id = 33, .caption = "Lum\nInvert", .group = "Invert", .cmd = {"~@Lum Invert#*", "~@Video Process#false"}}),
    Toggle({.id = 34, .caption = "Chroma\nInvert", .group = "Invert", .cmd = {"~@Chroma Invert#*", "~@Video Process#false", "~@Mono#true"}}),
    Action({.id = 22, .caption = "Unity", .group = "Reset", .cmd = {"~@Unity#*"}}),
    CCR_ON,
    BT_END,
};
#undef CCR_ON
// Where the corrector sits. A small switcher has it at an input, a larger one also behind its buses.
#define CCR_INSERT(other) \
    Jump  ({.id = 49, .caption = "Input\nSetup", .group = "Setup", .cmd = {"#73320006", "~@Insert#!Input"}}), \
    Toggle({.id = 17, .caption = "Correction", .group = "Correction", .cmd = {"~@Correction#*"}}), \
    Toggle({.id = 18, .caption = "Split\nScreen", .group = "Correction", .cmd = {"~@Split Screen#*", "~@Correction#false"}}), \
    Action({.id = 20, .caption = "Copy\nto CCR" other, .group = "Memory", .cmd = {"~@Copy#*"}}), \
    Action({.id = 21, .caption = "Swap",       .group = "Memory", .cmd = {"~@Swap#*"}}), \
    Action({.id = 22, .caption = "Unity\nAll", .group = "Memory", .cmd = {"~@Unity All#*"}}), \
    Radio ({.id = 33, .caption = "Input",      .group = "Insert", .cmd = {"~@Insert#Input"}}), \
    Radio ({.id = 34, .caption = "Utility 1",  .group = "Insert", .cmd = {"~@Insert#Utility 1"}}), \
    Radio ({.id = 35, .caption = "Utility 2",  .group = "Insert", .cmd = {"~@Insert#Utility 2"}})
#define CCR_FURTHER \
    Radio ({.id = 36, .caption = "Aux 1",      .group = "Insert", .cmd = {"~@Insert#Aux 1"}}), \
    Radio ({.id = 37, .caption = "Aux 2",      .group = "Insert", .cmd = {"~@Insert#Aux 2"}}), \
    Radio ({.id = 38, .caption = "Program",    .group = "Insert", .cmd = {"~@Insert#Program"}})
inline constexpr BT_TBL bt_ccr_insert[][10] = {{CCR_INSERT("2"), BT_END}, {CCR_INSERT("1"), BT_END}};
inline constexpr BT_TBL bt_ccr_insert_large[][13] = {{CCR_INSERT("2"), CCR_FURTHER, BT_END}, {CCR_INSERT("1"), CCR_FURTHER, BT_END}};
#undef CCR_FURTHER
#undef CCR_INSERT
static_assert(ButtonsAreSound(bt_ccr_white) && ButtonsAreSound(bt_ccr_gamma) && ButtonsAreSound(bt_ccr_clip));
static_assert(ButtonsAreSound(bt_ccr_spot) && ButtonsAreSound(bt_ccr_luminance) && ButtonsAreSound(bt_ccr_video));
static_assert(ButtonsAreSound(bt_ccr_insert[0]) && ButtonsAreSound(bt_ccr_insert_large[0]));

// --- Pages ---

struct CcrPage {
    uint32_t id = 0; // of the first corrector
    const char* name = "";
    const BT_TBL* buttons[2] = {};
};
inline constexpr CcrPage ccr_templates[] = {
    {0x24110000, "White/Black",       {bt_ccr_white, bt_ccr_white}},
    {0x24120000, "Gamma/Knee",        {bt_ccr_gamma, bt_ccr_gamma}},
    {0x24130000, "RGB Clip",          {bt_ccr_clip, bt_ccr_clip}},
    {0x24140000, "Spot Color",        {bt_ccr_spot, bt_ccr_spot}},
    {0x24150000, "Lum Process", {bt_ccr_luminance, bt_ccr_luminance}},
    {0x24160000, "Video Process",     {bt_ccr_video, bt_ccr_video}},
    {0x24170000, "Insert",            {bt_ccr_insert[0], bt_ccr_insert[1]}},
    {0x24170100, "Insert",            {bt_ccr_insert_large[0], bt_ccr_insert_large[1]}},
};
constexpr auto CcrRows()
{
    std::array<PAGE, 2 * std::size(ccr_templates)> rows{};
    size_t n = 0;
    for (uint32_t ccr = 0; ccr < 2; ccr++)
        for (const CcrPage& p : ccr_templates)
            rows[n++] = {.id = p.id + 0x100000 * ccr, .tree = {"CCR", ccr ? "CCR2" : "CCR1", p.name},
                         .obj = {Base(base_main), LeftTabs(vf_ccr, ccr + 2), BottomTabs(hf_ccr[ccr], p.id >> 16 & 0x0F), Buttons(p.buttons[ccr]), Boxes(NB_Non), Cells(st_ccr[ccr])}};
    return rows;
}
inline constexpr auto ccr_pages = CcrRows();

// What each of them does at the moment, and the ways to set it.
#define CCR_STATE(line, n) \
    Toggle({.id = 16 * (line) + 1, .caption = "Correction", .group = "CCR" n, .cmd = {"CCR@CCR" n "@Insert@Correction#*"}}), \
    Jump  ({.id = 16 * (line) + 2, .caption = "White/\nBlack", .group = "CCR" n, .cmd = {"#24" n "10000"}}), \
    Jump  ({.id = 16 * (line) + 3, .caption = "Spot\nColor", .group = "CCR" n, .cmd = {"#24" n "40000"}}), \
    Jump  ({.id = 16 * (line) + 4, .caption = "Insert", .group = "CCR" n, .cmd = {"#24" n "70000"}})
inline constexpr BT_TBL bt_ccr_top[] = {
    CCR_STATE(1, "1"), CCR_STATE(2, "2"),
    Jump({.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ccr_top));
#undef CCR_STATE
inline constexpr PAGE ccr_top_pages[] = {
    {.id = 0x24000000, .tree = {"CCR"}, .obj = {Base(base_main), LeftTabs(vf_ccr, 1), Buttons(bt_ccr_top), Cells(st_ccr_top)}},
};
