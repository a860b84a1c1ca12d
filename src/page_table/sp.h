// sp: the menu of the signal processors: eight channels, each with a signal that it corrects on its way: levels, colour,
// timing, the form of its output.
#pragma once
#include "nb_rows.h"
#include "pc_sp.h"
#include "rows.h"

inline constexpr VF_TBL vf_sp[] = {
    {.id = 1, .caption = "Source",   .page = 0x52100000},
    {.id = 2, .caption = "Process",  .page = 0x52110000},
    {.id = 3, .caption = "Color",    .page = 0x52120000},
    {.id = 4, .caption = "Timing",   .page = 0x52130000},
    {.id = 5, .caption = "Output",   .page = 0x52140000},
    {.id = 6, .caption = "Meter",    .page = 0x52150000},
    VF_END,
};

// Eight rows; the levels of the chosen one lie below.
constexpr LS_TBL SpList(LS_TBL row)
{
    row.vn = 8;
    row.y = 76;
    row.block = 1; // one at a time
    row.mono = 1;
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}
inline constexpr LS_TBL ls_sp[] = {
    SpList({.id = 1, .hn = 6, .x = 100, .head = {"SP", "Source", "Signal", "Process", "Color", "Delay"}, .width = {70, 154, 80, 80, 80, 80}}),
    LS_END,
};
inline constexpr LS_TBL ls_sp_source[] = {
    SpList({.id = 1, .hn = 3, .x = 100, .head = {"SP", "Source", "Signal"}, .width = {66, 140, 64}}),
    SpList({.id = 2, .hn = 3, .x = 424, .head = {"No", "Source", ""}, .width = {44, 154, 30}}),
    LS_END,
};
static_assert(ListsAreSound(ls_sp) && ListsAreSound(ls_sp_source));

// --- Keys; a channel's own paths begin with its two words ---

inline constexpr BT_TBL bt_sp_source[] = {
    Toggle({.id = 33, .caption = "Bypass",     .group = "Signal", .cmd = {"~2@Bypass#*"}}),
    Toggle({.id = 34, .caption = "Mute",       .group = "Signal", .cmd = {"~2@Mute#*"}}),
    Radio ({.id = 36, .caption = "Off",        .group = "Freeze", .cmd = {"~2@Freeze#Off"}}),
    Radio ({.id = 37, .caption = "Field",      .group = "Freeze", .cmd = {"~2@Freeze#Field"}}),
    Radio ({.id = 38, .caption = "Frame",      .group = "Freeze", .cmd = {"~2@Freeze#Frame"}}),
    Action({.id = 49, .caption = "Unity\nAll", .group = "Unity", .cmd = {"~2@Unity All#*"}}),
    BT_END,
};

inline constexpr auto nb_sp_level = Column(Percent(1, "Gain", "~@Luminance", 200), Span(2, "Black", "~@Black Level", 100));
inline constexpr auto nb_sp_chroma = Column(Percent(1, "Chroma", "~@Chroma", 200), Span(2, "Hue\ndeg", "~@Hue", 180));
inline constexpr auto nb_sp_gamma = Column(Box(1, "Gamma", "~@Gamma@Gamma", 0.25, 4), Percent(2, "Knee\nPoint", "~@Gamma@Knee"));
inline constexpr auto nb_sp_white = Column(Box(1, "White\nClip", "~@White Clip@Level", 50, 109));
inline constexpr auto nb_sp_dark = Column(Box(1, "Dark\nClip", "~@Dark Clip@Level", -7, 50));
inline constexpr auto nb_sp_chroma_clip = Column(Percent(1, "Chroma\nClip", "~@Chroma Clip@Level"));
inline constexpr BT_TBL bt_sp_process[] = {
    Toggle({.id = 33, .caption = "Video\nProcess", .group = "Video Process", .cmd = {"~@Video Process#*"}}),
    Knobs ({.id = 34, .caption = "Level",       .group = "Video Process", .cmd = {}, .nb = nb_sp_level.row}),
    Knobs ({.id = 35, .caption = "Chroma",      .group = "Video Process", .cmd = {}, .nb = nb_sp_chroma.row}),
    Toggle({.id = 36, .caption = "Gamma",       .group = "Video Process", .cmd = {"~@Gamma#*"}, .nb = nb_sp_gamma.row}),
    Action({.id = 38, .caption = "Unity",       .group = "Unity", .cmd = {"~@Unity#*"}}),
    Toggle({.id = 49, .caption = "White\nClip", .group = "Clip", .cmd = {"~@White Clip#*"}, .nb = nb_sp_white.row}),
    Toggle({.id = 50, .caption = "Dark\nClip",  .group = "Clip", .cmd = {"~@Dark Clip#*"}, .nb = nb_sp_dark.row}),
    Toggle({.id = 51, .caption = "Chroma\nClip", .group = "Clip", .cmd = {"~@Chroma Clip#*"}, .nb = nb_sp_chroma_clip.row}),
    BT_END,
};

#define SP_RGB(what, low, high) Column(Box(1, "R", "~@" what "@R", low, high), Box(2, "G", "~@" what "@G", low, high), Box(3, "B", "~@" what "@B", low, high))
inline constexpr auto nb_sp_gain = SP_RGB("Gain", 0, 200);
inline constexpr auto nb_sp_black = SP_RGB("Black", -100, 100);
inline constexpr auto nb_sp_rgb_gamma = SP_RGB("Gamma", 0.25, 4);
inline constexpr auto nb_sp_matrix = SP_RGB("Matrix", -100, 100);
#undef SP_RGB
inline constexpr BT_TBL bt_sp_color[] = {
    Toggle({.id = 33, .caption = "Color\nCorrect", .group = "Color Correct", .cmd = {"~@Color Correct#*"}}),
    Knobs ({.id = 34, .caption = "Gain",   .group = "Color Correct", .cmd = {}, .nb = nb_sp_gain.row}),
    Knobs ({.id = 35, .caption = "Black",  .group = "Color Correct", .cmd = {}, .nb = nb_sp_black.row}),
    Knobs ({.id = 36, .caption = "Gamma",  .group = "Color Correct", .cmd = {}, .nb = nb_sp_rgb_gamma.row}),
    Action({.id = 38, .caption = "Unity",  .group = "Unity", .cmd = {"~@Unity#*"}}),
    Toggle({.id = 49, .caption = "Matrix", .group = "Matrix", .cmd = {"~@Matrix#*"}, .nb = nb_sp_matrix.row}),
    Toggle({.id = 51, .caption = "RGB\nLegal", .group = "Legalize", .cmd = {"~@RGB Legal#*"}}),
    BT_END,
};

inline constexpr auto nb_sp_phase = Column(Span(1, "H Phase", "~@H Phase", 1100), Span(2, "V Phase", "~@V Phase", 562));
inline constexpr auto nb_sp_delay = Column(Count(1, "Frames", "~@Frames", 0, 8), Count(2, "Lines", "~@Lines", 0, 1125));
inline constexpr BT_TBL bt_sp_timing[] = {
    Knobs({.id = 33, .caption = "Phase",  .group = "Timing", .cmd = {}, .nb = nb_sp_phase.row}),
    Knobs({.id = 34, .caption = "Delay",  .group = "Timing", .cmd = {}, .nb = nb_sp_delay.row}),
    Radio({.id = 36, .caption = "Off",    .group = "Synchronizer", .cmd = {"~@Synchronizer#Off"}}),
    Radio({.id = 37, .caption = "Line",   .group = "Synchronizer", .cmd = {"~@Synchronizer#Line"}}),
    Radio({.id = 38, .caption = "Frame",  .group = "Synchronizer", .cmd = {"~@Synchronizer#Frame"}}),
    Radio({.id = 49, .caption = "Freeze", .group = "Signal Loss", .cmd = {"~@Signal Loss#Freeze"}}),
    Radio({.id = 50, .caption = "Black",  .group = "Signal Loss", .cmd = {"~@Signal Loss#Black"}}),
    Radio({.id = 51, .caption = "Through", .group = "Signal Loss", .cmd = {"~@Signal Loss#Through"}}),
    BT_END,
};

// The aspect is converted where the format is.
#define SP_ASPECT(n, words, word) Radio({.id = (n), .caption = words, .group = "Aspect", .cmd = {"~@Aspect#" word, "~@Convert#Through"}})
inline constexpr BT_TBL bt_sp_output[] = {
    Radio ({.id = 33, .caption = "Through", .group = "Convert", .cmd = {"~@Convert#Through"}}),
    Radio ({.id = 34, .caption = "Up",      .group = "Convert", .cmd = {"~@Convert#Up"}}),
    Radio ({.id = 35, .caption = "Down",    .group = "Convert", .cmd = {"~@Convert#Down"}}),
    Radio ({.id = 36, .caption = "Cross",   .group = "Convert", .cmd = {"~@Convert#Cross"}}),
    Toggle({.id = 38, .caption = "Enhancer", .group = "Detail", .cmd = {"~@Enhancer#*", "~@Convert#Through"}}),
    SP_ASPECT(49, "Edge\nCrop", "Edge Crop"), SP_ASPECT(50, "Letter\nBox", "Letter Box"), SP_ASPECT(51, "Squeeze", "Squeeze"),
    Toggle({.id = 53, .caption = "Embedded\nAudio", .group = "Data", .cmd = {"~@Embedded Audio#*"}}),
    Toggle({.id = 54, .caption = "Ancillary", .group = "Data", .cmd = {"~@Ancillary#*"}}),
    BT_END,
};
#undef SP_ASPECT

inline constexpr BT_TBL bt_sp_meter[] = {
    Radio ({.id = 49, .caption = "Y Pb Pr",     .group = "Meter Mode", .cmd = {"SP@Meter Mode#YPbPr"}}),
    Radio ({.id = 50, .caption = "RGB",         .group = "Meter Mode", .cmd = {"SP@Meter Mode#RGB"}}),
    Toggle({.id = 52, .caption = "Hold",        .group = "Peak", .cmd = {SP_PEAK_HOLD}}),
    Action({.id = 53, .caption = "Reset",       .group = "Peak", .cmd = {SP_PEAK_RESET}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_sp_source) && ButtonsAreSound(bt_sp_process) && ButtonsAreSound(bt_sp_color));
static_assert(ButtonsAreSound(bt_sp_timing) && ButtonsAreSound(bt_sp_output) && ButtonsAreSound(bt_sp_meter));

inline constexpr BT_TBL bt_sp_top[] = {
    Jump({.id = 17, .caption = "Source",  .group = "SP", .cmd = {"#52100000"}}),
    Jump({.id = 18, .caption = "Process", .group = "SP", .cmd = {"#52110000"}}),
    Jump({.id = 19, .caption = "Color",   .group = "SP", .cmd = {"#52120000"}}),
    Jump({.id = 20, .caption = "Timing",  .group = "SP", .cmd = {"#52130000"}}),
    Jump({.id = 21, .caption = "Output",  .group = "SP", .cmd = {"#52140000"}}),
    Jump({.id = 22, .caption = "Meter",   .group = "SP", .cmd = {"#52150000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_sp_top));

// The chosen one stands in the tree: the code comes before the keys that name it.
constexpr PAGE SpPage(uint32_t id, uint32_t tab, const char* what, const LS_TBL* lists, const PC_TBL& code, const BT_TBL* keys)
{
    return {.id = id, .tree = {"SP", "SP1", what},
            .obj = {Base(base_main), LeftTabs(vf_sp, tab), Lists(lists), Code(code), Buttons(keys), Boxes(NB_Non)}};
}
inline constexpr PAGE sp_pages[] = {
    {.id = 0x52000000, .tree = {"SP"}, .obj = {Base(base_main), Buttons(bt_sp_top)}},
    SpPage(0x52100000, 1, nullptr, ls_sp_source, pc_sp_source, bt_sp_source),
    SpPage(0x52110000, 2, "Video Process", ls_sp, pc_sp, bt_sp_process),
    SpPage(0x52120000, 3, "Color Correct", ls_sp, pc_sp, bt_sp_color),
    SpPage(0x52130000, 4, "Timing", ls_sp, pc_sp, bt_sp_timing),
    SpPage(0x52140000, 5, "Output", ls_sp, pc_sp, bt_sp_output),
    {.id = 0x52150000, .tree = {"SP", "SP1", "Meter"},
     .obj = {Base(base_main), LeftTabs(vf_sp, 6), Code(pc_sp_meter), Buttons(bt_sp_meter), Boxes(NB_Non)}},
};
