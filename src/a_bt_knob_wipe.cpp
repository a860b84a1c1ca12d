// Numbered knob links of a bank's wipe and DME wipe pages. The list for authors of pages; a
// quoted end of a path stands for a dependency that the button must have, without a condition
// behind the "#". What other keys of these pages turn stands in the tables of the pages:
//
//   34 Modify Aspect      aspect of the bank
//   35 Modify Angle       "@Speed" (the pattern turns by itself)
//   39 Modify Pairing     "@Pairing@Both" (lines and columns); format
//   40 Edge Border        "@Separate" (soft inside and outside)
//   41 Edge Soft          "@Edge@Border" (a border keeps half of the range)
//
//   45 DME Wipe Position  format; see below
//   46 Modify Rotation    "@Rotation@Axis"; aspect of the bank
//   48 Modifier Perspect. aspect of the bank
//   50 DME Wipe Border    "@Edge@Soft"; aspect of the bank
//   51 DME Wipe Soft      "@Separate"
//   53 Modifier Shadow    aspect of the bank
//   54 Modifier Transp.   "@Transparency@Fade"
//   55 DME Wipe Crop      format; see below
//   59 DME Wipe Size      format; see below
//
// 45, 55 and 59 are not chosen again at a tally: the page code has the channels.
#include "a_bt_knob_private.h"
#include "page_table/nb_wipe.h"
#include "safeguards.h"

constexpr KnobCase knob_cases_wipe[] = {
    {34, {BANK_WIDE}, Of(nb_me_wipe_aspect)},
    {35, {On("@Speed")}, Of(nb_me_wipe_angle, nb_me_wipe_speed)},
    {39, {On("@Pairing@Both"), HD}, Of(nb_me_wipe_pairing, nb_me_wipe_pairing_both)},
    {40, {On("@Separate")}, Of(nb_me_wipe_edge_border, nb_me_wipe_edge_border_sep)},
    {41, {On("@Edge@Border")}, Of(nb_me_wipe_edge_soft_full, nb_me_wipe_edge_soft)},
    {45, {HD}, Of(nb_me_dmewipe_position)},
    {46,
     {On("@Rotation@Axis"), BANK_WIDE},
     Of(nb_me_dmewipe_rotation, nb_me_dmewipe_rotation, nb_me_dmewipe_rotation_axis)},
    {48, {BANK_WIDE}, Of(nb_me_dmewipe_perspective)},
    {50,
     {On("@Edge@Soft"), BANK_WIDE},
     Of(nb_me_dmewipe_edge_border, nb_me_dmewipe_edge_border_soft)},
    {51, {On("@Separate")}, Of(nb_me_dmewipe_edge_soft, nb_me_dmewipe_edge_soft_sep)},
    {53, {BANK_WIDE}, Of(nb_me_dmewipe_shadow)},
    {54,
     {On("@Transparency@Fade")},
     Of(nb_me_dmewipe_transparency, nb_me_dmewipe_transparency_fade)},
    {55, {HD}, Of(nb_me_dmewipe_crop)},
    {59, {HD}, Of(nb_me_dmewipe_size)},
    KNOB_CASES_END,
};
static_assert(CasesAreSound(knob_cases_wipe, 31, 59));
