// st_me_key: the status cells of a key: two lines of them over its pages, and one line a key on the first page of a
// bank. The order of the paths is the order of the tallies that a painter reads.
#pragma once
#include "rows.h"
#include "st_me_misc.h"

// The cells that exist for one key and for an overview of all. "key" is the path of the key.
#define ST_KEY_TYPE(key) {key "@Type@Key Type", key "@Type@Clean Mode@Luminance", key "@Type@Chroma@Mix Mode", \
                          key "@Type@Key Invert", "~1@Wipe@Main Pattern@Pattern", \
                          key "@Type@Key Wipe Pattern@Pattern", key "@Type@Clean Mode@Linear", \
                          key "@Type@Clean Mode@Color Vector"}
#define ST_KEY_EDGE(key) {key "@Edge@Edge", key "@Edge@Soft Edge", key "@Edge@Fine Key", key "@Edge@Separate Edge", \
                          key "@Edge@Matte Adjust@Mode"}
#define ST_KEY_MASK(key, mask, pattern) {key "@" mask "@" mask, key "@" mask "@Mask Source", key "@" mask "@Mask Invert", pattern}
// The main mask has a pattern of its own, the sub mask that of its bank.
#define ST_KEY_MAIN_MASK(key) ST_KEY_MASK(key, "Main Mask", key "@Main Mask@Ptn Select@Pattern")
#define ST_KEY_SUB_MASK(key)  ST_KEY_MASK(key, "Sub Mask", "~1@Wipe@Sub Pattern@Pattern")
#define ST_KEY_TRANS(way) "~2@Transition@" way " Transition Type", "~2@Transition@" way " Wipe Pattern"
// One monitor serves the whole system.
#define ST_KEY_PROCKEY {"~2@Processed Key@Processed Key", \
                        "~2@Processed Key@DME Select@DME1", "~2@Processed Key@DME Select@DME2", \
                        "~2@Processed Key@DME Select@DME3", "~2@Processed Key@DME Select@DME4", \
                        "~2@Processed Key@DME Select@DME5", "~2@Processed Key@DME Select@DME6", \
                        "~2@Processed Key@DME Select@DME7", "~2@Processed Key@DME Select@DME8", \
                        "M/E-1@Key1@Processed Key@Monitor"}

inline constexpr ST_TBL st_me_key[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_me_key_type1,    .cmd = ST_KEY_TYPE("~2"), .jamp_id_base = 0x11110000}),
    CellAt(1, 0, {.id = ST_KEY_TYPE_2, .draw_func = st_drw_me_key_type2,
                  .cmd = {"~2@Type@Key Invert", "~2@Type@Key Type", "~2@Type@Key Position@Luminance",
                          "~2@Type@Key Position@Linear", "~2@Type@Key Position@Chroma", "~2@Type@Key Position@Color Vector"},
                  .jamp_id_base = 0x11110000}),
    CellAt(2, 0, {.id = 3,  .draw_func = st_drw_me_key_edge,     .cmd = ST_KEY_EDGE("~2"), .jamp_id_base = 0x11120000}),
    CellAt(3, 0, {.id = 4,  .draw_func = st_drw_me_key_mainmask, .cmd = ST_KEY_MAIN_MASK("~2"), .jamp_id_base = 0x11130000}),
    CellAt(4, 0, {.id = 5,  .draw_func = st_drw_me_key_submask,  .cmd = ST_KEY_SUB_MASK("~2"), .jamp_id_base = 0x11140000}),
    CellAt(5, 0, {.id = 7,  .draw_func = st_drw_me_key_videoproc,
                  .cmd = {"~2@Video Process@Video Process", "~2@Video Process@Luminance", "~2@Video Process@Chroma",
                          "~2@Video Process@Hue"}, .jamp_id_base = 0x11170000}),
    CellAt(1, 1, {.id = 8,  .draw_func = st_drw_me_key_type_keyfill,
                  .cmd = {"~2@Type@Key Fill", "~2@Type@Matte Adjust@Mode", "~2@Type@Signal Select@Fill"},
                  .jamp_id_base = 0x11110003}),
    CellAt(0, 1, {.id = 9,  .draw_func = st_drw_me_key_type_source,
                  .cmd = {"~2@Type@Key Source", "~2@Type@Signal Select@Source", "~2@Status@Source Name"},
                  .jamp_id_base = 0x11110003}),
    CellAt(2, 1, {.id = 10, .draw_func = st_drw_me_key_ontrans,
                  .cmd = {"~2@Transition@DME Wipe@Pattern Select@Pattern", ST_KEY_TRANS("ON")},
                  .jamp_id_base = 0x11170000}),
    CellAt(3, 1, {.id = 11, .draw_func = st_drw_me_key_offtrans,
                  .cmd = {"~2@Transition@DME Wipe@Pattern Select@Pattern", ST_KEY_TRANS("OFF"), ST_KEY_TRANS("ON")},
                  .jamp_id_base = 0x11170000}),
    CellAt(4, 1, {.id = ST_SINGLE_BOARD, .draw_func = st_drw_me_key_prockey,      .cmd = ST_KEY_PROCKEY, .jamp_id_base = 0x11160000}),
    CellAt(4, 1, {.id = ST_DUAL_BOARD,   .draw_func = st_drw_me_key_prockey_dpdl, .cmd = ST_KEY_PROCKEY, .jamp_id_base = 0x11160000}),
    CellAt(5, 1, {.id = 12, .draw_func = st_drw_me_key_priority, .cmd = ST_PRIORITY("Key Priority"),
                  .jamp_id_base = 0x11730000}),
    ST_END,
};
static_assert(CellsAreSound(st_me_key));

// One line a key, one column a page. A page of the bank has no key of its own, so each target names its key.
#define ST_KEY_LINE(line, key, page) \
    CellAt(0, line, {.id = 11 + 10 * (line), .draw_func = st_drw_me_key_type1, .cmd = ST_KEY_TYPE("~1@" key), .jamp_id_base = (page) + 0x10000}), \
    CellAt(1, line, {.id = 12 + 10 * (line), .draw_func = st_drw_me_key_edge,  .cmd = ST_KEY_EDGE("~1@" key), .jamp_id_base = (page) + 0x20000}), \
    CellAt(2, line, {.id = 13 + 10 * (line), .draw_func = st_drw_me_key_mainmask, .cmd = ST_KEY_MAIN_MASK("~1@" key), .jamp_id_base = (page) + 0x30000}), \
    CellAt(3, line, {.id = 14 + 10 * (line), .draw_func = st_drw_me_key_submask,  .cmd = ST_KEY_SUB_MASK("~1@" key), .jamp_id_base = (page) + 0x40000})
#define ST_KEY_LINES(key1, key2, key3, key4) \
    ST_KEY_LINE(0, key1, 0x11100000), ST_KEY_LINE(1, key2, 0x11200000), \
    ST_KEY_LINE(2, key3, 0x11300000), ST_KEY_LINE(3, key4, 0x11400000)

#define ST_TOP(cells, ...) {ST_KEY_LINES(__VA_ARGS__), cells[0], cells[1], ST_END}
inline constexpr ST_TBL st_me_top[]      = ST_TOP(st_bank_top, "Key1", "Key2", "Key3", "Key4");
inline constexpr ST_TBL st_me_top_sub[]  = ST_TOP(st_bank_top_sub, "Key5", "Key6", "Key7", "Key8");
inline constexpr ST_TBL st_pgm_top[]     = ST_TOP(st_bank_top, "DSK1", "DSK2", "DSK3", "DSK4");
inline constexpr ST_TBL st_pgm_top_sub[] = ST_TOP(st_bank_top_sub, "DSK5", "DSK6", "DSK7", "DSK8");
static_assert(CellsAreSound(st_me_top) && CellsAreSound(st_me_top_sub));
static_assert(CellsAreSound(st_pgm_top) && CellsAreSound(st_pgm_top_sub));
#undef ST_TOP
#undef ST_KEY_LINES
#undef ST_KEY_LINE

// The second and third page of a bank, in the same lines: what comes in and goes out, and what is done to it.
#define ST_SIGNAL_LINE(line, key, page) \
    CellAt(0, line, {.id = 11 + 10 * (line), .draw_func = st_drw_me_key_type_source, \
                     .cmd = {"~1@" key "@Type@Key Source", "~1@" key "@Type@Signal Select@Source", "~1@" key "@Status@Source Name"}, \
                     .jamp_id_base = (page) + 0x10003}), \
    CellAt(1, line, {.id = 12 + 10 * (line), .draw_func = st_drw_me_key_type_keyfill, \
                     .cmd = {"~1@" key "@Type@Key Fill", "~1@" key "@Type@Matte Adjust@Mode", "~1@" key "@Type@Signal Select@Fill"}, \
                     .jamp_id_base = (page) + 0x10003}), \
    CellAt(2, line, {.id = 13 + 10 * (line), .draw_func = st_drw_me_key_ontrans, \
                     .cmd = {ST_LINE_WIPE(key), ST_LINE_TRANS(key, "ON")}, .jamp_id_base = (page) + 0x70000}), \
    CellAt(3, line, {.id = 14 + 10 * (line), .draw_func = st_drw_me_key_offtrans, \
                     .cmd = {ST_LINE_WIPE(key), ST_LINE_TRANS(key, "OFF"), ST_LINE_TRANS(key, "ON")}, .jamp_id_base = (page) + 0x70000})
#define ST_LINE_WIPE(key) "~1@" key "@Transition@DME Wipe@Pattern Select@Pattern"
#define ST_LINE_TRANS(key, way) "~1@" key "@Transition@" way " Transition Type", "~1@" key "@Transition@" way " Wipe Pattern"
#define ST_PROCESS_LINE(line, key, page) \
    CellAt(0, line, {.id = 11 + 10 * (line), .draw_func = st_drw_me_key_type2, \
                     .cmd = {"~1@" key "@Type@Key Invert", "~1@" key "@Type@Key Type", "~1@" key "@Type@Key Position@Luminance", \
                             "~1@" key "@Type@Key Position@Linear", "~1@" key "@Type@Key Position@Chroma", \
                             "~1@" key "@Type@Key Position@Color Vector"}, .jamp_id_base = (page) + 0x10000}), \
    CellAt(1, line, {.id = 12 + 10 * (line), .draw_func = st_drw_me_key_videoproc, \
                     .cmd = {"~1@" key "@Video Process@Video Process", "~1@" key "@Video Process@Luminance", \
                             "~1@" key "@Video Process@Chroma", "~1@" key "@Video Process@Hue"}, .jamp_id_base = (page) + 0x70000}), \
    CellAt(2, line, {.id = 13 + 10 * (line), .draw_func = st_drw_me_key_prockey, \
                     .cmd = {"~1@" key "@Processed Key@Processed Key", \
                             "~1@" key "@Processed Key@DME Select@DME1", "~1@" key "@Processed Key@DME Select@DME2", \
                             "~1@" key "@Processed Key@DME Select@DME3", "~1@" key "@Processed Key@DME Select@DME4", \
                             "~1@" key "@Processed Key@DME Select@DME5", "~1@" key "@Processed Key@DME Select@DME6", \
                             "~1@" key "@Processed Key@DME Select@DME7", "~1@" key "@Processed Key@DME Select@DME8", \
                             "M/E-1@Key1@Processed Key@Monitor"}, .jamp_id_base = (page) + 0x60000})
#define ST_LINES(ST_LINE, cells, key1, key2, key3, key4) \
    {ST_LINE(0, key1, 0x11100000), ST_LINE(1, key2, 0x11200000), ST_LINE(2, key3, 0x11300000), ST_LINE(3, key4, 0x11400000), \
     cells[0], cells[1], ST_END}
#define ST_OVERVIEWS(name, cells, ...) \
    inline constexpr ST_TBL name##_signals[] = ST_LINES(ST_SIGNAL_LINE, cells, __VA_ARGS__); \
    inline constexpr ST_TBL name##_process[] = ST_LINES(ST_PROCESS_LINE, cells, __VA_ARGS__); \
    static_assert(CellsAreSound(name##_signals) && CellsAreSound(name##_process))
ST_OVERVIEWS(st_me_top,      st_bank_top,     "Key1", "Key2", "Key3", "Key4");
ST_OVERVIEWS(st_me_top_sub,  st_bank_top_sub, "Key5", "Key6", "Key7", "Key8");
ST_OVERVIEWS(st_pgm_top,     st_bank_top,     "DSK1", "DSK2", "DSK3", "DSK4");
ST_OVERVIEWS(st_pgm_top_sub, st_bank_top_sub, "DSK5", "DSK6", "DSK7", "DSK8");
#undef ST_OVERVIEWS
#undef ST_LINES
#undef ST_PROCESS_LINE
#undef ST_LINE_TRANS
#undef ST_LINE_WIPE
#undef ST_SIGNAL_LINE
#undef ST_KEY_PROCKEY
#undef ST_PRIORITY
#undef ST_KEY_TRANS
#undef ST_KEY_SUB_MASK
#undef ST_KEY_MAIN_MASK
#undef ST_KEY_MASK
#undef ST_KEY_EDGE
#undef ST_KEY_TYPE
