// saver: the setup page of the screen saver.
#pragma once
#include "rows.h"
#include "../saver.h"

// One row of keys below the list.
inline constexpr BT_TBL bt_screen_saver_setup[] = {
    Action(     {.id = 49, .caption = "Rename", .group = "Name", .cmd = {"LOCAL@Screen Sever@Setup@Rename#*"}}),
    Action(     {.id = 50, .caption = "Default", .group = "Name", .cmd = {"LOCAL@Screen Sever@Setup@Default#*"}}),
    Action(     {.id = 51, .caption = "Image\nFile Path", .group = "Pictures", .cmd = {"LOCAL@Screen Sever@Setup@Path#*"}}),
    Action(     {.id = 52, .caption = "Push\nSTART", .group = "Preview", .cmd = {"LOCAL@Screen Sever@Setup@Push START#*"}}),
    Jump(       {.id = 54, .caption = "Engineer-\ning", .cmd = {"#99910000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_screen_saver_setup));

// A turn of the knob is 24 counts.
inline constexpr NB_TBL nb_screen_saver_setup[] = {
    {.id = 1, .caption = "Pattern",   .type = NB_INT, .min = 0, .max = SAVER_PATTERNS,   .cmd = "Panel@Common@Knob0", .scale = 0.25},
    {.id = 2, .caption = "Speed",     .type = NB_INT, .min = 1, .max = SAVER_SPEEDS,     .cmd = "Panel@Common@Knob1", .scale = 0.25},
    {.id = 3, .caption = "Hold sec", .type = NB_INT, .min = 1, .max = SAVER_HOLD_MAX_S, .cmd = "Panel@Common@Knob2", .scale = 1},
    NB_END,
};
static_assert(BoxesAreSound(nb_screen_saver_setup));

// The ten names, then what else is set. Whichever row is current: only a name is renamed.
inline constexpr LS_TBL ls_screen_saver_setup[] = {
    {.id = 1, .hn = 2, .vn = 12, .x = 100, .y = 78, .head = {"Setting", "Value"}, .width = {100, 450}, .group = {1, 999},
     .mono = 1, .sb_top = 78, .sb_bottom = 364, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_screen_saver_setup));

extern const PC_TBL pc_screen_saver_setup; // pc_saver.cpp

inline constexpr PAGE saver_pages[] = {
    {.id = 0x99930000, .tree = {"Maintenance", "Screen Saver"},
     .obj = {Base(base_main), Buttons(bt_screen_saver_setup), Boxes(nb_screen_saver_setup), Lists(ls_screen_saver_setup),
             Code(pc_screen_saver_setup)}},
};
