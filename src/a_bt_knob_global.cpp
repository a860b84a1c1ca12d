// Numbered knob links of the global effects and of settings that belong to no menu of their own.
// The list for authors of pages; a quoted end of a path stands for a dependency that the button
// must have, without a condition behind the "#":
//
//  119 Global Shadow      aspect
//  120 Global Light       "@Source" (Distant, Near); aspect
//  121 Brick              aspect
//  122 Combine            "@Intersect" (where pictures cut each other)
//  123 Global Trail       "@Strobe"
//  124 Combine Bkgd       "@Fill" (Matte, Video)
//  125 Global Location    aspect
//  126 Global Rotation    "@Spin" (turns)
//  127 Global Size        "@Separate" (X, Y and Z)
//  128 Safe Area          aspect
//  129 Output Phase       format
//  130 Frame Delay        "@Lines" (in lines, too); format
#include "a_bt_knob_private.h"
#include "page_table/nb_dme.h"
#include "page_table/nb_global.h"
#include "safeguards.h"

constexpr KnobCase knob_cases_global[] = {
    {119, {SCREEN_WIDE}, Of(nb_ge_shadow)},
    {120,
     {Words("@Source", "Near"), SCREEN_WIDE},
     Of(nb_dme_light_distant, nb_dme_light_distant, nb_dme_light_near)},
    {121, {SCREEN_WIDE}, Of(nb_ge_brick)},
    {122, {On("@Intersect")}, Of(nb_ge_combine_depth, nb_ge_combine_soft)},
    {123, {On("@Strobe")}, Of(nb_ge_trail, nb_ge_trail_strobe)},
    {124, {Words("@Fill", "Video")}, Of(nb_ge_bkgd, nb_ge_bkgd_video)},
    {125, {SCREEN_WIDE}, Of(nb_dme_trans_location)},
    {126, {On("@Spin")}, Of(nb_dme_trans_rotation, nb_dme_trans_spin)},
    {127, {On("@Separate")}, Of(nb_dme_trans_size, nb_ge_size_sep)},
    {128, {SCREEN_WIDE}, Of(nb_misc_safe_area)},
    {129, {HD}, Of(nb_misc_output_phase)},
    {130, {On("@Lines"), HD}, Of(nb_misc_frame_delay, nb_misc_frame_delay, nb_misc_line_delay)},
    KNOB_CASES_END,
};
static_assert(CasesAreSound(knob_cases_global, 119, 130));
