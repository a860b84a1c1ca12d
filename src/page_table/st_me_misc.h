// st_me_misc: the status cells over the pages of a bank's own settings. A sub side has a transition and priorities, no
// clip transition.
#pragma once
#include "rows.h"

#define ST_TRANSITION(misc) {misc "@Transition@Mix", misc "@Transition@NAM", misc "@Transition@Super Mix", \
                             misc "@Transition@Preset Color Mix", misc "@Transition@Wipe", misc "@Transition@DME Wipe", \
                             misc "@Transition@Clip", "~1@Wipe@Main Pattern@Pattern", \
                             "~1@DME Wipe@Pattern Select@Pattern", misc "@Transition@Transition Mode"}
#define ST_PRIORITY(list) {list "@1", list "@2", list "@3", list "@4", list "@Enable"}
#define ST_ASSIGN(misc, k1, k2, k3, k4) {misc "@Key Assign@" k1, misc "@Key Assign@" k2, misc "@Key Assign@" k3, \
                                         misc "@Key Assign@" k4, \
                                         "Engineering Setup@Switcher@Config@PGM Config@List"}
#define ST_VIDEO(misc) {misc "@Video Process@Video Process", misc "@Video Process@Luminance", \
                        misc "@Video Process@Chroma", misc "@Video Process@Hue"}

inline constexpr ST_TBL st_me_misc[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_me_misc_transition,        .cmd = ST_TRANSITION("~1@Misc")}),
    CellAt(1, 0, {.id = 3,  .draw_func = st_drw_me_misc_key_priority,      .cmd = ST_PRIORITY("~1@Misc@Key Priority"), .jamp_id_base = 0x11730000}),
    CellAt(2, 0, {.id = 4,  .draw_func = st_drw_me_misc_next_key_priority, .cmd = ST_PRIORITY("~1@Misc@Next Key Priority"), .jamp_id_base = 0x11730000}),
    CellAt(3, 0, {.id = 5,  .draw_func = st_drw_me_misc_key_assign1,       .cmd = ST_ASSIGN("~1@Misc", "Key1", "Key2", "Key3", "Key4"), .jamp_id_base = 0x11740000}),
    CellAt(4, 0, {.id = 6,  .draw_func = st_drw_me_misc_key_assign2,       .cmd = ST_ASSIGN("~1@Misc", "Key5", "Key6", "Key7", "Key8"), .jamp_id_base = 0x11740000}),
    CellAt(5, 0, {.id = 7,  .draw_func = st_drw_me_misc_video_proc,        .cmd = ST_VIDEO("~1@Misc"), .jamp_id_base = 0x11720000}),
    CellAt(0, 1, {.id = 8,  .draw_func = st_drw_me_misc_cliptrans_bkgd,
                  .cmd = {"~1@Misc@Clip Transition@Bkgd", "~1@Misc@Clip Transition@Bkgd Name"}, .jamp_id_base = 0x11760000}),
    CellAt(1, 1, {.id = 9,  .draw_func = st_drw_me_misc_cliptrans_clip,
                  .cmd = {"~1@Misc@Clip Transition@Output", "~1@Misc@Clip Transition@Clip Name"}}),
    CellAt(2, 1, {.id = 10, .draw_func = st_drw_me_misc_cliptrans_indicator,
                  .cmd = {"~1@Misc@Clip Transition@Player", "~1@Misc@Clip Transition@Time Code"}, .jamp_id_base = 0x11760000}),
    CellAt(3, 1, {.id = 11, .draw_func = st_drw_me_misc_cliptrans_bar,
                  .cmd = {"~1@Misc@Clip Transition@Position", "~1@Misc@Clip Transition@Start", "~1@Misc@Clip Transition@End"},
                  .jamp_id_base = 0x11760000}, 3),
    ST_END,
};
inline constexpr ST_TBL st_me_misc_sub[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_me_misc_transition,        .cmd = ST_TRANSITION("~1@Misc")}),
    CellAt(1, 0, {.id = 3, .draw_func = st_drw_me_misc_key_priority_gray, .cmd = ST_PRIORITY("~1@Misc@Key Priority"), .jamp_id_base = 0x15730000}),
    CellAt(2, 0, {.id = 4, .draw_func = st_drw_me_misc_video_proc,        .cmd = ST_VIDEO("~1@Misc"), .jamp_id_base = 0x15720000}),
    ST_END,
};
static_assert(CellsAreSound(st_me_misc) && CellsAreSound(st_me_misc_sub));
#undef ST_VIDEO
#undef ST_ASSIGN
#undef ST_PRIORITY
#undef ST_TRANSITION
