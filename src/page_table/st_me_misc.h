// st_me_misc: the status cells over the pages of a bank's own settings. A sub side has a transition and priorities, no
// clip transition.
#pragma once
#include "rows.h"

#define ST_TRANSITION(misc) {misc "@Transition@Mix", misc "@Transition@NAM", misc "@Transition@Super Mix", \
                             misc "@Transition@Preset Color Mix", misc "@Transition@Wipe", misc "@Transition@DME Wipe", \
                             misc "@Transition@Clip", "~1@Wipe@Main Pattern@Pattern", \
                             "~1@DME Wipe@Pattern Select@Pattern", misc "@Transition@Transition Mode"}
#define ST_ASSIGN(misc, k1, k2, k3, k4) {misc "@Key Assign@" k1, misc "@Key Assign@" k2, misc "@Key Assign@" k3, \
                                         misc "@Key Assign@" k4, \
                                         "Engineering Setup@Switcher@Config@PGM Config@List"}
#define ST_VIDEO(misc) {misc "@Video Process@Video Process", misc "@Video Process@Luminance", \
                        misc "@Video Process@Chroma", misc "@Video Process@Hue"}

// An order of priority, and the one of the sub side's own, which counts for keys 5 to 8 while it is enabled.
#define ST_PRIORITY(list) {"~1@Misc@Key Priority@" list, "~1 SUB@Misc@Key Priority@Key Priority", "~1 SUB@Misc@Key Priority@Enable"}

// The first line of them is all that a page with four rows of buttons has room for.
#define ST_MISC_LINE \
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_me_misc_transition,        .cmd = ST_TRANSITION("~1@Misc")}), \
    CellAt(1, 0, {.id = 3,  .draw_func = st_drw_me_misc_key_priority,      .cmd = ST_PRIORITY("Key Priority"), .jamp_id_base = 0x11730000}), \
    CellAt(2, 0, {.id = 4,  .draw_func = st_drw_me_misc_next_key_priority, .cmd = ST_PRIORITY("Next Key Priority"), .jamp_id_base = 0x11730000}), \
    CellAt(3, 0, {.id = 5,  .draw_func = st_drw_me_misc_key_assign1,       .cmd = ST_ASSIGN("~1@Misc", "Key1", "Key2", "Key3", "Key4"), .jamp_id_base = 0x11740000}), \
    CellAt(4, 0, {.id = 6,  .draw_func = st_drw_me_misc_key_assign2,       .cmd = ST_ASSIGN("~1@Misc", "Key5", "Key6", "Key7", "Key8"), .jamp_id_base = 0x11740000}), \
    CellAt(5, 0, {.id = 7,  .draw_func = st_drw_me_misc_video_proc,        .cmd = ST_VIDEO("~1@Misc"), .jamp_id_base = 0x11720000})

inline constexpr ST_TBL st_me_misc_line[] = {ST_MISC_LINE, ST_END};
inline constexpr ST_TBL st_me_misc[] = {
    ST_MISC_LINE,
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
    CellAt(1, 0, {.id = 3, .draw_func = st_drw_me_misc_key_priority_gray,
                  .cmd = {"~1@Misc@Key Priority@Key Priority", "~1@Misc@Key Priority@Enable"}, .jamp_id_base = 0x15730000}),
    CellAt(2, 0, {.id = 4, .draw_func = st_drw_me_misc_video_proc,        .cmd = ST_VIDEO("~1@Misc"), .jamp_id_base = 0x15720000}),
    ST_END,
};
// The two of them that an overview of the keys has room for. There a press on the transition opens its page.
#define ST_BANK_CELLS(bank, priority, ...) \
    CellAt(4, 0, {.id = 51, .draw_func = st_drw_me_misc_transition, .cmd = ST_TRANSITION("~1@Misc"), .jamp_id_base = (bank) + 0x710000}), \
    CellAt(5, 0, {.id = 52, .draw_func = priority, .cmd = __VA_ARGS__, .jamp_id_base = (bank) + 0x730000})
inline constexpr ST_TBL st_bank_top[] = {
    ST_BANK_CELLS(0x11000000, st_drw_me_misc_key_priority, ST_PRIORITY("Key Priority")), ST_END};
inline constexpr ST_TBL st_bank_top_sub[] = {
    ST_BANK_CELLS(0x15000000, st_drw_me_misc_key_priority_gray,
                  {"~1@Misc@Key Priority@Key Priority", "~1@Misc@Key Priority@Enable"}), ST_END};
static_assert(CellsAreSound(st_me_misc) && CellsAreSound(st_me_misc_line) && CellsAreSound(st_me_misc_sub));
#undef ST_BANK_CELLS
#undef ST_MISC_LINE
#undef ST_VIDEO
#undef ST_ASSIGN
#undef ST_TRANSITION
