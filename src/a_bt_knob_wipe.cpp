// Numbered knob links of a bank's wipe and DME wipe pages and of the background colours. The list
// for authors of pages; a quoted end of a path stands for a dependency that the button must have,
// without a condition behind the "#":
//
//   31 Pattern Position   aspect of the bank; page "~" is a pattern
//   32 Pattern Limit      "@Pattern Limit@Both" (start and end)
//   33 Pattern Mix        "@Pattern Mix" (Add: a share of each; else a balance)
//   34 Modify Aspect      aspect of the bank
//   35 Modify Angle       "@Speed" (the pattern turns by itself)
//   36 Modify Multi       "@Multi@Shift"
//   37 Modify Modulation  "@Modulation@Both" (H and V)
//   38 Modify Spring      "@Spring@Random"
//   39 Modify Pairing     "@Pairing@Both" (lines and columns); format
//   40 Edge Border        "@Separate" (soft inside and outside)
//   41 Edge Soft          "@Edge@Border" (a border keeps half of the range)
//   42 Edge Matte         "@Mode" (Flat, Mix), "@Color" (Color 1, Color 2)
//   43 Pattern Rotation   "@Rotation" (Speed: it turns by itself; else start and end)
//   44 Edge Pattern       aspect of the bank: where the gradation of the edge begins
//
//   45 DME Wipe Position  format; see below
//   46 Modify Rotation    "@Rotation@Axis"; aspect of the bank
//   47 Modifier Position  aspect of the bank
//   48 Modifier Perspect. aspect of the bank
//   49 Modifier Trail     "@Trail@Step"
//   50 DME Wipe Border    "@Edge@Soft"; aspect of the bank
//   51 DME Wipe Soft      "@Separate"
//   52 DME Wipe Edge Crop aspect of the bank
//   53 Modifier Shadow    aspect of the bank
//   54 Modifier Transp.   "@Transparency@Fade"
//   55 DME Wipe Crop      format; see below
//   56 DME Wipe Matte     "@Mode" (Flat, Mix), "@Color" (Color 1, Color 2)
//   57 Color Bkgd         "@Color" (Color 1, Color 2)
//   58 Color Bkgd Pattern "@Mix" (blank for one plain colour); aspect of the screen
//   59 DME Wipe Size      format; see below
//
// 45, 55 and 59 are not chosen again at a tally: the page code has the channels.
#include "a_bt_knob_private.h"
#include "page_table/nb_key.h"
#include "page_table/nb_wipe.h"
#include "safeguards.h"

constexpr KnobQuestion MATTE_MIX = Words("@Mode", "Mix");
constexpr KnobQuestion COLOR_2 = Words("@Color", "Color 2");
constexpr KnobTables matte_tables = Of(nb_matte_flat, nb_matte_flat, nb_matte_mix1, nb_matte_mix2);

constexpr KnobCase knob_cases_wipe[] = {
    {31, {BANK_WIDE}, Of(nb_me_wipe_position)},
    {32, {On("@Pattern Limit@Both")}, Of(nb_me_wipe_limit, nb_me_wipe_limit_both)},
    {33, {Words("@Pattern Mix", "Add")}, Of(nb_me_wipe_mix_morph, nb_me_wipe_mix_add)},
    {34, {BANK_WIDE}, Of(nb_me_wipe_aspect)},
    {35, {On("@Speed")}, Of(nb_me_wipe_angle, nb_me_wipe_speed)},
    {36, {On("@Multi@Shift")}, Of(nb_me_wipe_multi, nb_me_wipe_multi_shift)},
    {37, {On("@Modulation@Both")}, Of(nb_me_wipe_modulation, nb_me_wipe_modulation_both)},
    {38, {On("@Spring@Random")}, Of(nb_me_wipe_spring, nb_me_wipe_spring_random)},
    {39, {On("@Pairing@Both"), HD}, Of(nb_me_wipe_pairing, nb_me_wipe_pairing_both)},
    {40, {On("@Separate")}, Of(nb_me_wipe_edge_border, nb_me_wipe_edge_border_sep)},
    {41, {On("@Edge@Border")}, Of(nb_me_wipe_edge_soft_full, nb_me_wipe_edge_soft)},
    {42, {MATTE_MIX, COLOR_2}, matte_tables},
    {43, {Words("@Rotation", "Speed")}, Of(nb_me_wipe_rotation, nb_me_wipe_rotation_free)},
    {44, {BANK_WIDE}, Of(nb_bkgd_pattern)},
    {45, {HD}, Of(nb_me_dmewipe_position)},
    {46,
     {On("@Rotation@Axis"), BANK_WIDE},
     Of(nb_me_dmewipe_rotation, nb_me_dmewipe_rotation, nb_me_dmewipe_rotation_axis)},
    {47, {BANK_WIDE}, Of(nb_me_wipe_position)},
    {48, {BANK_WIDE}, Of(nb_me_dmewipe_perspective)},
    {49, {On("@Trail@Step")}, Of(nb_me_dmewipe_trail, nb_me_dmewipe_trail_steps)},
    {50,
     {On("@Edge@Soft"), BANK_WIDE},
     Of(nb_me_dmewipe_edge_border, nb_me_dmewipe_edge_border_soft)},
    {51, {On("@Separate")}, Of(nb_me_dmewipe_edge_soft, nb_me_dmewipe_edge_soft_sep)},
    {52, {BANK_WIDE}, Of(nb_me_dmewipe_edge_crop)},
    {53, {BANK_WIDE}, Of(nb_me_dmewipe_shadow)},
    {54,
     {On("@Transparency@Fade")},
     Of(nb_me_dmewipe_transparency, nb_me_dmewipe_transparency_fade)},
    {55, {HD}, Of(nb_me_dmewipe_crop)},
    {56, {MATTE_MIX, COLOR_2}, matte_tables},
    {57, {COLOR_2}, Of(nb_matte_flat, nb_bkgd_color2)},
    {58, {On("@Mix"), SCREEN_WIDE}, Of(BLANK, BLANK, nb_bkgd_pattern)},
    {59, {HD}, Of(nb_me_dmewipe_size)},
    KNOB_CASES_END,
};
static_assert(CasesAreSound(knob_cases_wipe, 31, 59));
