// Numbered knob links of a key's pages; what other keys of these pages turn stands in the tables of
// the pages. The list for authors of pages; a quoted end of a path stands for a dependency that the
// button must have, without a condition behind the "#". Where the rotation of the key decides,
// "~2@Processed Key@Rotation#" among them lets a shown column follow it:
//
//    1 Border             1st to 4th dependency: key type, separate edge, two that halve the range
//    2 Drop Border        "@Separate Edge", "@Fine Key"
//    3 Shadow             "@Separate Edge"; aspect of the bank
//    4 Outline            "@Separate Edge", "@Fine Key"
//    5 effects unit's border: format, aspect
//    6 Emboss             "@Fine Key"
//    7 Soft Edge          "@Separate Edge"
//    8 Key Drop           format
//   11 Main Mask Box      aspect of the bank
//   12 Mask Pattern       aspect of the bank
//   14 Resizer place      rotation of the key, aspect of the bank
//   16 Resizer Border     "@Border@Separate"; aspect of the bank
//   17 Resizer Aspect     "@Aspect" (separate H and V)
//   19 Resizer Mosaic     format
//   20 Resizer Defocus    "@Defocus@Separate"
//   21 Resizer Mask Box   rotation of the key, aspect of the bank
//   23 Proc Key Rotation  rotation of the key
//   24 Proc Key Location  rotation of the key, aspect of the bank
//   25 Proc Key Size      "@Aspect" (separate H and V)
//   26 Key Position       format; the page code names the paths
//   30 Color Cancel       "@Y Balance"
#include "a_bt_knob_private.h"
#include "page_table/nb_edge.h"
#include "page_table/nb_key.h"
#include "tally_value.h"
#include "safeguards.h"

// Border of a key. Tallies: 1 key type, 2 separate edge, 3 and 4 that together halve the range.
// A pattern key has one plain border; a separate edge has a width a side. Without a tally the edge
// counts as separate.
static int ask_border(const BT_MEM* b)
{
    if (Same(b->tally[1], "Wipe Pattern") || Same(b->tally[1], "Key Wipe Pattern"))
        return 4;
    const bool separate = !Same(b->tally[2], "false");
    const bool half = Same(b->tally[3], "true") && Same(b->tally[4], "false");
    return 2 * separate + half;
}

constexpr KnobQuestion KEY_BORDER = {.answers = 5, .ask = ask_border};
constexpr KnobQuestion SEPARATE = On("@Separate Edge");
constexpr KnobQuestion FINE = On("@Fine Key");

constexpr KnobCase knob_cases_key[] = {
    {1,
     {KEY_BORDER},
     Of(nb_me_key_edge_edge_border1, nb_me_key_edge_edge_border1h, nb_me_key_edge_edge_border2,
        nb_me_key_edge_edge_border2h, nb_me_key_edge_edge_border3)},
    {2, {SEPARATE, FINE}, Of(nb_me_key_edge_edge_drop, nb_me_key_edge_edge_drop_sep)},
    {3,
     {SEPARATE, BANK_WIDE},
     Of(nb_me_key_edge_edge_shadow, nb_me_key_edge_edge_shadow, nb_me_key_edge_edge_shadow_sep)},
    {4, {SEPARATE, FINE}, Of(nb_me_key_edge_edge_outline, nb_me_key_edge_edge_outline_sep)},
    {5,
     {HD, SCREEN_WIDE},
     Of(nb_dme_edge_bordercrop_border1, nb_dme_edge_bordercrop_border2,
        nb_dme_edge_bordercrop_border3, nb_dme_edge_bordercrop_border4)},
    {6, {FINE}, Of(nb_me_key_edge_edge_emboss)},
    {7, {SEPARATE}, Of(nb_me_key_edge_soft_edge, nb_me_key_edge_soft_edge_sep)},
    {8, {HD}, Of(nb_me_key_edge_key_drop)},
    {11, {BANK_WIDE}, Of(nb_me_key_mask_box_aspect)},
    {12, {BANK_WIDE}, Of(nb_me_key_mask_pattern_aspect)},
    {14, {KEY_TURNS, BANK_WIDE}, Of(nb_me_key_resizer_place, nb_me_key_resizer_place_turned)},
    {16,
     {On("@Border@Separate"), BANK_WIDE},
     Of(nb_me_key_resizer_border_joined, nb_me_key_resizer_border_joined,
        nb_me_key_resizer_border_sep)},
    {17, {On("@Aspect")}, Of(nb_me_key_resizer_aspect_joined, nb_me_key_resizer_aspect_sep)},
    {19, {HD}, Of(nb_me_key_resizer_mosaic_tiles)},
    {20,
     {On("@Defocus@Separate")},
     Of(nb_me_key_resizer_defocus_joined, nb_me_key_resizer_defocus_sep)},
    {21, {KEY_TURNS, BANK_WIDE}, Of(nb_me_key_mask_box_aspect, nb_me_key_resizer_mask_box)},
    {23, {KEY_TURNS}, Of(nb_me_key_prockey_rotation_flat, nb_me_key_prockey_rotation)},
    {24, {KEY_TURNS, BANK_WIDE}, Of(nb_me_key_prockey_location_flat, nb_me_key_prockey_location)},
    {25, {On("@Aspect")}, Of(nb_me_key_prockey_size, nb_me_key_prockey_size_sep)},
    {26, {HD}, Of(nb_me_key_type_phase)},
    {30, {On("@Y Balance")}, Of(nb_me_key_chroma_cancel, nb_me_key_chroma_cancel_y)},
    KNOB_CASES_END,
};
static_assert(CasesAreSound(knob_cases_key, 1, 30));
