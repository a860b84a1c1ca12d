// Numbered knob links of the effects unit's pages. The list for authors of pages; a quoted end of a
// path stands for a dependency that the button must have, without a condition behind the "#":
//
//   60 Location           "@Space" (Target, Source); aspect
//   61 Rotation           "@Spin" (turns)
//   62 Axis               aspect
//   63 Size               "@Separate" (X and Y)
//   64 Aspect             aspect
//   65 Perspective        aspect
//   66 Skew               aspect
//   67 Crop               "@Crop@Separate" (a box a side); aspect
//   68 Border Soft        "@Border Soft@Separate" (inside and outside)
//   69 Border Matte       "@Matte@Mode" (Flat, Gradation)
//   70 Soft Edge          "@Soft Edge@Separate" (H and V)
//   71 Beveled Edge       format
//   72 Key Border         "@Drop"; aspect
//   73 Art Edge           "@Type" (Brush, Wave)
//   74 Shadow             "@Projection"; aspect
//   75 Shadow Fill        "@Fill" (Matte, Video)
//   76 Trail              "@Trail@Strobe"
//   77 Motion Decay       "@Key Decay"
//   78 Light              "@Source" (Distant, Near); aspect
//   79 Light Color        "@White" (colour temperature)
//   80 to 85 Corner Pinning Top Left, Top Right, Bottom Left, Bottom Right, All, Sides:
//                         "@Mode" (Linear, Perspective); format, aspect
//   86 Spotlight          "@Pattern" (null: plain); aspect
//   87 Ambient Light      "@Ambient@Color"
//   88 Strobe             "@Mode" (Frame, Field)
//   89 Film               "@Mode" (Frame, Field)
//   90 Time Freeze        "@Random"
//   91 Roll               "@Split" (H, V, H&V, none)
//   92 Page Turn          "@Split" (H, V, H&V, none)
//   93 Cylinder, 94 Sphere: aspect
//   95 Wave               "@Wave@Both" (H and V)
//   96 Ripple, 97 Twist, 98 Swirl, 99 Lens: aspect
//  100 Melt               format
//  101 Explosion          aspect
//  102 Split Slide        "@Split Slide@Both" (H and V); aspect
//  103 Mirror, 104 Kaleidoscope, 105 Blast: aspect
//  106 Defocus            "@Separate" (H and V)
//  107 Blur               "@Blur@Radial"; aspect
//  108 Color Modify       "@RGB"
//  109 Mosaic             format
//  110 Posterize          "@Separate" (Y, Pb, Pr)
//  111 Multi Move         "@Multi Move@Shift"; aspect
//  112 Mask               aspect
//  113 Sepia              "@Sepia@Color"
//  114 Key Defocus        "@Separate" (H and V)
//  115 Wipe Crop          aspect
//  116 Color Mix          "@Color" (Color 1, Color 2)
//  117 Input Phase        format
//  118 Graphic            aspect
#include "a_bt_knob_private.h"
#include "page_table/nb_dme.h"
#include "page_table/nb_nonlinear.h"
#include "safeguards.h"

constexpr KnobQuestion SEPARATE = On("@Separate");
constexpr KnobQuestion FIELD = Words("@Mode", "Field");
constexpr KnobQuestion PERSPECTIVE = Words("@Mode", "Perspective");
constexpr KnobQuestion SPLIT = Words("@Split", "H", "V", "H&V");

constexpr KnobCase knob_cases_dme[] = {
    {60,
     {Words("@Space", "Source"), SCREEN_WIDE},
     Of(nb_dme_trans_location, nb_dme_trans_location_src)},
    {61, {On("@Spin")}, Of(nb_dme_trans_rotation, nb_dme_trans_spin)},
    {62, {SCREEN_WIDE}, Of(nb_dme_trans_axis)},
    {63, {SEPARATE}, Of(nb_dme_trans_size, nb_dme_trans_size_sep)},
    {64, {SCREEN_WIDE}, Of(nb_dme_trans_aspect)},
    {65, {SCREEN_WIDE}, Of(nb_dme_trans_perspective)},
    {66, {SCREEN_WIDE}, Of(nb_dme_trans_skew)},
    {67,
     {On("@Crop@Separate"), SCREEN_WIDE},
     Of(nb_dme_edge_bordercrop_crop, nb_dme_edge_bordercrop_crop_sep)},
    {68,
     {On("@Border Soft@Separate")},
     Of(nb_dme_edge_bordercrop_soft, nb_dme_edge_bordercrop_soft_sep)},
    {69, {Words("@Matte@Mode", "Gradation")}, Of(nb_dme_edge_matte, nb_dme_edge_matte_grad)},
    {70, {On("@Soft Edge@Separate")}, Of(nb_dme_edge_soft, nb_dme_edge_soft_sep)},
    {71, {HD}, Of(nb_dme_edge_bevel)},
    {72, {On("@Drop"), SCREEN_WIDE}, Of(nb_dme_edge_key_border, nb_dme_edge_key_border_drop)},
    {73, {Words("@Type", "Wave")}, Of(nb_dme_edge_art, nb_dme_edge_art_wave)},
    {74, {On("@Projection"), SCREEN_WIDE}, Of(nb_dme_shadow_plain, nb_dme_shadow_floor)},
    {75, {Words("@Fill", "Video")}, Of(nb_dme_shadow_color, nb_dme_shadow_video)},
    {76, {On("@Trail@Strobe")}, Of(nb_dme_trail, nb_dme_trail_strobe)},
    {77, {On("@Key Decay")}, Of(nb_dme_motion_decay, nb_dme_motion_decay_key)},
    {78,
     {Words("@Source", "Near"), SCREEN_WIDE},
     Of(nb_dme_light_distant, nb_dme_light_distant, nb_dme_light_near)},
    {79, {On("@White")}, Of(nb_dme_light_color, nb_dme_light_white)},
    {80, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_tl, nb_dme_pin_tl_p)},
    {81, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_tr, nb_dme_pin_tr_p)},
    {82, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_bl, nb_dme_pin_bl_p)},
    {83, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_br, nb_dme_pin_br_p)},
    {84, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_all, nb_dme_pin_all_p)},
    {85, {PERSPECTIVE, HD, SCREEN_WIDE}, Of(nb_dme_pin_sides, nb_dme_pin_sides_p)},
    {86, {Words("@Pattern", "null"), SCREEN_WIDE}, Of(nb_dme_spot_pattern, nb_dme_spot)},
    {87, {On("@Ambient@Color")}, Of(nb_dme_ambient, nb_dme_ambient_color)},
    {88, {FIELD}, Of(nb_dme_strobe)},
    {89, {FIELD}, Of(nb_dme_film)},
    {90, {On("@Random")}, Of(nb_dme_time_freeze, nb_dme_time_freeze_random)},
    {91,
     {SPLIT},
     Of(nb_dme_nonlinear_type_roll_roll4, nb_dme_nonlinear_type_roll_roll1,
        nb_dme_nonlinear_type_roll_roll2, nb_dme_nonlinear_type_roll_roll3)},
    {92,
     {SPLIT},
     Of(nb_dme_nonlinear_type_pageturn_pageturn4, nb_dme_nonlinear_type_pageturn_pageturn1,
        nb_dme_nonlinear_type_pageturn_pageturn2, nb_dme_nonlinear_type_pageturn_pageturn3)},
    {93, {SCREEN_WIDE}, Of(nb_dme_nonlinear_cylinder)},
    {94, {SCREEN_WIDE}, Of(nb_dme_nonlinear_sphere)},
    {95, {On("@Wave@Both")}, Of(nb_dme_nonlinear_wave, nb_dme_nonlinear_wave_both)},
    {96, {SCREEN_WIDE}, Of(nb_dme_nonlinear_ripple)},
    {97, {SCREEN_WIDE}, Of(nb_dme_nonlinear_twist)},
    {98, {SCREEN_WIDE}, Of(nb_dme_nonlinear_swirl)},
    {99, {SCREEN_WIDE}, Of(nb_dme_nonlinear_lens)},
    {100, {HD}, Of(nb_dme_nonlinear_melt)},
    {101, {SCREEN_WIDE}, Of(nb_dme_nonlinear_explosion)},
    {102,
     {On("@Split Slide@Both"), SCREEN_WIDE},
     Of(nb_dme_nonlinear_split_h, nb_dme_nonlinear_split_hv)},
    {103, {SCREEN_WIDE}, Of(nb_dme_nonlinear_mirror)},
    {104, {SCREEN_WIDE}, Of(nb_dme_nonlinear_kaleidoscope)},
    {105, {SCREEN_WIDE}, Of(nb_dme_nonlinear_blast)},
    {106, {SEPARATE}, Of(nb_dme_defocus, nb_dme_defocus_sep)},
    {107, {On("@Blur@Radial"), SCREEN_WIDE}, Of(nb_dme_blur, nb_dme_blur, nb_dme_blur_radial)},
    {108, {On("@RGB")}, Of(nb_dme_color_modify, nb_dme_color_modify_rgb)},
    {109, {HD}, Of(nb_dme_mosaic)},
    {110, {SEPARATE}, Of(nb_dme_posterize, nb_dme_posterize_color)},
    {111, {On("@Multi Move@Shift"), SCREEN_WIDE}, Of(nb_dme_multi_move, nb_dme_multi_move_shift)},
    {112, {SCREEN_WIDE}, Of(nb_dme_mask)},
    {113, {On("@Sepia@Color")}, Of(nb_dme_sepia, nb_dme_sepia_color)},
    {114, {SEPARATE}, Of(nb_dme_key_defocus, nb_dme_key_defocus_sep)},
    {115, {SCREEN_WIDE}, Of(nb_dme_edge_wipe_crop)},
    {116, {Words("@Color", "Color 2")}, Of(nb_dme_edge_color_mix, nb_dme_edge_color_mix2)},
    {117, {HD}, Of(nb_dme_input_phase)},
    {118, {SCREEN_WIDE}, Of(nb_dme_graphic)},
    KNOB_CASES_END,
};
static_assert(CasesAreSound(knob_cases_dme, 60, 118));
