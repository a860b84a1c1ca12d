// global_effect: the menu of what moves several channels of the effects units as one: which are combined, their order,
// the block and the shadow that they make together. Once for each group of four channels, with a variant of a page for
// each form in which a unit counts its channels.
#pragma once
#include "dme.h"
#include "nb_dme.h"
#include "nb_global.h"
#include "rows.h"
#include "st_globaleffect.h"
#include <array>

// --- Tabs ---

inline constexpr VF_TBL vf_global_effect[] = {
    {.id = 1, .caption = "Status",  .page = 0x42000000},
    {.id = 2, .caption = "Ch1-Ch4", .page = 0x42110000},
    {.id = 3, .caption = "Ch5-Ch8", .page = 0x42210000},
    VF_END,
};
#define GE_LIT(g, rest) "Global Effect@" g "@" rest "#true"
#define GE_TABS(g, base, c1, c2, c3, c4) \
    {.id = 1, .caption = "Combine",   .page = (base) + 0x70000, .statcmd = {GE_LIT(g, "Combine@Ch" c2), GE_LIT(g, "Combine@Ch" c3), GE_LIT(g, "Combine@Ch" c4)}}, \
    {.id = 2, .caption = "Priority",  .page = (base) + 0x10000}, \
    {.id = 3, .caption = "Brick",     .page = (base) + 0x20000, .statcmd = {GE_LIT(g, "Brick@Brick")}}, \
    {.id = 4, .caption = "Shadow",    .page = (base) + 0x30000, .statcmd = {GE_LIT(g, "Shadow@Shadow"), GE_LIT(g, "Shadow@Combined Shadow")}}, \
    {.id = 5, .caption = "3D Trans",  .page = (base) + 0x40000, .statcmd = {GE_LIT(g, "3D Trans@3D Trans")}}, \
    {.id = 6, .caption = "Light/\nBkgd", .page = (base) + 0x50000, .statcmd = {GE_LIT(g, "Light/Bkgd@Light"), GE_LIT(g, "Light/Bkgd@Bkgd")}}, \
    {.id = 7, .caption = "Trail",     .page = (base) + 0x60000}, \
    HF_END
inline constexpr HF_TBL hf_global_effect[][8] = {
    {GE_TABS("Ch1-Ch4", 0x42100000, "1", "2", "3", "4")},
    {GE_TABS("Ch5-Ch8", 0x42200000, "5", "6", "7", "8")},
};
#undef GE_TABS
#undef GE_LIT

// --- The channels of a form: each with its caption and the path of a word of its own ---
// The second channel of a pair speaks for both, in the pair's own subtree.

#define GE_SINGLE(page, ch) "~@Ch" ch
#define GE_PAIR(page, pair, ch) "Global Effect@" pair "@" page "@Ch" ch

// --- Combine: a channel joins the one before it ---

#define GE_JOIN(n, words, at) Toggle({.id = 16 + (n), .caption = words, .group = "Combine", .cmd = {at "#*"}})
#define GE_INTERSECT \
    Toggle({.id = 33, .caption = "Intersect", .group = "Intersection", .cmd = {"~@Intersect#*"}, .nb = SpecialKnob(122)}), \
    Radio ({.id = 35, .caption = "Plain",     .group = "Join", .cmd = {"~@Join#Plain", "~@Intersect#true"}}), \
    Radio ({.id = 36, .caption = "Soft",      .group = "Join", .cmd = {"~@Join#Soft", "~@Intersect#true"}})

inline constexpr BT_TBL bt_ge_combine_1[] = {
    GE_JOIN(1, "Ch1 + Ch2", GE_SINGLE("Combine", "2")), GE_JOIN(2, "Ch2 + Ch3", GE_SINGLE("Combine", "3")),
    GE_JOIN(3, "Ch3 + Ch4", GE_SINGLE("Combine", "4")), GE_INTERSECT, BT_END,
};
inline constexpr BT_TBL bt_ge_combine_2[] = {
    GE_JOIN(1, "Ch5 + Ch6", GE_SINGLE("Combine", "6")), GE_JOIN(2, "Ch6 + Ch7", GE_SINGLE("Combine", "7")),
    GE_JOIN(3, "Ch7 + Ch8", GE_SINGLE("Combine", "8")), GE_INTERSECT, BT_END,
};
inline constexpr BT_TBL bt_ge_combine_pairs_1[] = {
    GE_JOIN(1, "Ch1-2", GE_PAIR("Combine", "Ch1-Ch2", "2")), GE_JOIN(2, "Ch3-4", GE_PAIR("Combine", "Ch3-Ch4", "2")),
    GE_INTERSECT, BT_END,
};
inline constexpr BT_TBL bt_ge_combine_pairs_2[] = {
    GE_JOIN(1, "Ch5-6", GE_PAIR("Combine", "Ch5-Ch6", "2")), GE_JOIN(2, "Ch7-8", GE_PAIR("Combine", "Ch7-Ch8", "2")),
    GE_INTERSECT, BT_END,
};
inline constexpr BT_TBL bt_ge_combine_eyes_1[] = {
    GE_JOIN(1, "Ch1 + Ch2", GE_SINGLE("Combine", "2")), GE_INTERSECT, BT_END,
};
inline constexpr BT_TBL bt_ge_combine_eyes_2[] = {
    GE_JOIN(1, "Ch5 + Ch6", GE_SINGLE("Combine", "6")), GE_INTERSECT, BT_END,
};
static_assert(ButtonsAreSound(bt_ge_combine_1) && ButtonsAreSound(bt_ge_combine_2));
static_assert(ButtonsAreSound(bt_ge_combine_pairs_1) && ButtonsAreSound(bt_ge_combine_pairs_2));
static_assert(ButtonsAreSound(bt_ge_combine_eyes_1) && ButtonsAreSound(bt_ge_combine_eyes_2));
#undef GE_INTERSECT
#undef GE_JOIN

// --- Priority: which of the combined channels lies in front ---

// A key of the matrix: the channel of the column lies in that place, 1 the front. join: the path whose "false" says that
// the channel is not combined.
#define GE_PLACE(row, column, place, frame, words, at, join) \
    Radio({.id = 16 * (row) + (column), .caption = words, .group = frame, .cmd = {at "#" place, "~@Mode#Auto", join "#false"}})
#define GE_MODE(row) \
    Radio({.id = 16 * (row) + 5, .caption = "Auto", .group = "Mode", .cmd = {"~@Mode#Auto"}}), \
    Radio({.id = 16 * (row) + 6, .caption = "Manual", .group = "Mode", .cmd = {"~@Mode#Manual"}})
#define GE_TWO(column, c1, p1, c2, p2, join, front, back) \
    GE_PLACE(1, column, "1", front, c1, p1, join), GE_PLACE(1, (column) + 1, "1", front, c2, p2, join), \
    GE_PLACE(2, column, "2", back, c1, p1, join), GE_PLACE(2, (column) + 1, "2", back, c2, p2, join)
#define GE_THREE(row, place, frame, c1, p1, c2, p2, c3, p3, join) \
    GE_PLACE(row, 1, place, frame, c1, p1, join), GE_PLACE(row, 2, place, frame, c2, p2, join), GE_PLACE(row, 3, place, frame, c3, p3, join)
#define GE_JOINED(g, n) "Global Effect@" g "@Combine@Ch" n

#define GE_ORDER_TWO(a, b, g) {GE_TWO(1, "Ch" a, GE_SINGLE("Priority", a), "Ch" b, GE_SINGLE("Priority", b), GE_JOINED(g, b), "Front", "Back"), GE_MODE(1), BT_END}
#define GE_ORDER_THREE(a, b, c, g) { \
    GE_THREE(1, "1", "Front", "Ch" a, GE_SINGLE("Priority", a), "Ch" b, GE_SINGLE("Priority", b), "Ch" c, GE_SINGLE("Priority", c), GE_JOINED(g, b)), \
    GE_THREE(2, "2", "Middle", "Ch" a, GE_SINGLE("Priority", a), "Ch" b, GE_SINGLE("Priority", b), "Ch" c, GE_SINGLE("Priority", c), GE_JOINED(g, b)), \
    GE_THREE(3, "3", "Back", "Ch" a, GE_SINGLE("Priority", a), "Ch" b, GE_SINGLE("Priority", b), "Ch" c, GE_SINGLE("Priority", c), GE_JOINED(g, b)), \
    GE_MODE(1), BT_END}
#define GE_ORDER_TWICE(a, b, c, d, g) { \
    GE_TWO(1, "Ch" a, GE_SINGLE("Priority", a), "Ch" b, GE_SINGLE("Priority", b), GE_JOINED(g, b), "Front", "Back"), \
    GE_TWO(3, "Ch" c, GE_SINGLE("Priority", c), "Ch" d, GE_SINGLE("Priority", d), GE_JOINED(g, d), "Front ", "Back "), GE_MODE(1), BT_END}
#define GE_FOUR(row, place, frame, a, b, c, d, g) \
    GE_PLACE(row, 1, place, frame, "Ch" a, GE_SINGLE("Priority", a), GE_JOINED(g, b)), GE_PLACE(row, 2, place, frame, "Ch" b, GE_SINGLE("Priority", b), GE_JOINED(g, b)), \
    GE_PLACE(row, 3, place, frame, "Ch" c, GE_SINGLE("Priority", c), GE_JOINED(g, b)), GE_PLACE(row, 4, place, frame, "Ch" d, GE_SINGLE("Priority", d), GE_JOINED(g, b))
#define GE_ORDER_FOUR(a, b, c, d, g) { \
    GE_FOUR(0, "1", "Front", a, b, c, d, g), GE_FOUR(1, "2", "2nd", a, b, c, d, g), \
    GE_FOUR(2, "3", "3rd", a, b, c, d, g), GE_FOUR(3, "4", "Back", a, b, c, d, g), GE_MODE(0), BT_END}
#define GE_ORDER_PAIRS(c1, pair1, c2, pair2) { \
    GE_TWO(1, c1, GE_PAIR("Priority", pair1, "2"), c2, GE_PAIR("Priority", pair2, "2"), "Global Effect@" pair2 "@Combine@Ch2", "Front", "Back"), GE_MODE(1), BT_END}

#define GE_G1 "Ch1-Ch4"
#define GE_G2 "Ch5-Ch8"
// By group, in the order of the variants 0100 to 0700.
inline constexpr BT_TBL bt_ge_order_12[][7] = {GE_ORDER_TWO("1", "2", GE_G1), GE_ORDER_TWO("5", "6", GE_G2)};
inline constexpr BT_TBL bt_ge_order_123[][12] = {GE_ORDER_THREE("1", "2", "3", GE_G1), GE_ORDER_THREE("5", "6", "7", GE_G2)};
inline constexpr BT_TBL bt_ge_order_23[][7] = {GE_ORDER_TWO("2", "3", GE_G1), GE_ORDER_TWO("6", "7", GE_G2)};
inline constexpr BT_TBL bt_ge_order_234[][12] = {GE_ORDER_THREE("2", "3", "4", GE_G1), GE_ORDER_THREE("6", "7", "8", GE_G2)};
inline constexpr BT_TBL bt_ge_order_34[][7] = {GE_ORDER_TWO("3", "4", GE_G1), GE_ORDER_TWO("7", "8", GE_G2)};
inline constexpr BT_TBL bt_ge_order_12_34[][11] = {GE_ORDER_TWICE("1", "2", "3", "4", GE_G1), GE_ORDER_TWICE("5", "6", "7", "8", GE_G2)};
inline constexpr BT_TBL bt_ge_order_1234[][19] = {GE_ORDER_FOUR("1", "2", "3", "4", GE_G1), GE_ORDER_FOUR("5", "6", "7", "8", GE_G2)};
inline constexpr BT_TBL bt_ge_order_pairs[][7] = {GE_ORDER_PAIRS("Ch1-2", "Ch1-Ch2", "Ch3-4", "Ch3-Ch4"), GE_ORDER_PAIRS("Ch5-6", "Ch5-Ch6", "Ch7-8", "Ch7-Ch8")};
static_assert(ButtonsAreSound(bt_ge_order_12[0]) && ButtonsAreSound(bt_ge_order_123[0]) && ButtonsAreSound(bt_ge_order_12_34[0]));
static_assert(ButtonsAreSound(bt_ge_order_1234[1]) && ButtonsAreSound(bt_ge_order_pairs[1]));
#undef GE_ORDER_PAIRS
#undef GE_ORDER_FOUR
#undef GE_FOUR
#undef GE_ORDER_TWICE
#undef GE_ORDER_THREE
#undef GE_ORDER_TWO
#undef GE_JOINED
#undef GE_THREE
#undef GE_TWO
#undef GE_MODE
#undef GE_PLACE

// --- Brick: the pictures as faces of a block ---

#define GE_FACE(n, words, at) Toggle({.id = 32 + (n), .caption = words, .group = "Pictures", .cmd = {at "#*", "~@Brick#false"}})
#define GE_BRICK \
    Toggle({.id = 17, .caption = "Brick",  .group = "Brick", .cmd = {"~@Brick#*"}, .nb = SpecialKnob(121)}), \
    Toggle({.id = 18, .caption = "Inside", .group = "Brick", .cmd = {"~@Inside#*", "~@Brick#false"}})
#define GE_FACES_TWO(row) \
    Radio({.id = 16 * (row) + 1, .caption = "Front",        .group = "Faces", .cmd = {"~@Faces#1", "~@Brick#false"}}), \
    Radio({.id = 16 * (row) + 2, .caption = "Front\n+ Side", .group = "Faces", .cmd = {"~@Faces#2", "~@Brick#false"}})
#define GE_FACES_ALL(row) GE_FACES_TWO(row), \
    Radio({.id = 16 * (row) + 3, .caption = "+ Top",        .group = "Faces", .cmd = {"~@Faces#3", "~@Brick#false"}}), \
    Radio({.id = 16 * (row) + 4, .caption = "All",          .group = "Faces", .cmd = {"~@Faces#4", "~@Brick#false"}})
#define GE_PICTURES(a, b, c, d) \
    GE_FACE(1, "Ch" a, GE_SINGLE("Brick", a)), GE_FACE(2, "Ch" b, GE_SINGLE("Brick", b)), \
    GE_FACE(3, "Ch" c, GE_SINGLE("Brick", c)), GE_FACE(4, "Ch" d, GE_SINGLE("Brick", d))
// Three pictures side by side make three faces.
inline constexpr BT_TBL bt_ge_brick_three[][11] = {
    {GE_BRICK, GE_PICTURES("1", "2", "3", "4"), GE_FACES_ALL(3), BT_END},
    {GE_BRICK, GE_PICTURES("5", "6", "7", "8"), GE_FACES_ALL(3), BT_END},
};
inline constexpr BT_TBL bt_ge_brick[][9] = {
    {GE_BRICK, GE_PICTURES("1", "2", "3", "4"), GE_FACES_TWO(3), BT_END},
    {GE_BRICK, GE_PICTURES("5", "6", "7", "8"), GE_FACES_TWO(3), BT_END},
};
inline constexpr BT_TBL bt_ge_brick_pairs[][7] = {
    {GE_BRICK, GE_FACE(1, "Ch1-2", GE_PAIR("Brick", "Ch1-Ch2", "2")), GE_FACE(2, "Ch3-4", GE_PAIR("Brick", "Ch3-Ch4", "2")), GE_FACES_TWO(3), BT_END},
    {GE_BRICK, GE_FACE(1, "Ch5-6", GE_PAIR("Brick", "Ch5-Ch6", "2")), GE_FACE(2, "Ch7-8", GE_PAIR("Brick", "Ch7-Ch8", "2")), GE_FACES_TWO(3), BT_END},
};
inline constexpr BT_TBL bt_ge_brick_eyes[][7] = {
    {GE_BRICK, GE_FACE(1, "Ch1", GE_SINGLE("Brick", "1")), GE_FACE(2, "Ch2", GE_SINGLE("Brick", "2")), GE_FACES_TWO(3), BT_END},
    {GE_BRICK, GE_FACE(1, "Ch5", GE_SINGLE("Brick", "5")), GE_FACE(2, "Ch6", GE_SINGLE("Brick", "6")), GE_FACES_TWO(3), BT_END},
};
static_assert(ButtonsAreSound(bt_ge_brick_three[0]) && ButtonsAreSound(bt_ge_brick[0]));
static_assert(ButtonsAreSound(bt_ge_brick_pairs[0]) && ButtonsAreSound(bt_ge_brick_eyes[0]));
#undef GE_PICTURES
#undef GE_FACES_ALL
#undef GE_FACES_TWO
#undef GE_BRICK
#undef GE_FACE

// --- Shadow: of each picture, or of the combined one ---

#define GE_CASTS(n, words, value) \
    Radio({.id = 32 + (n), .caption = words, .group = "Source", .tally_func = bt_tly_globaleffect_shadow_source, \
           .cmd = {"~@Source#" value, "~@Shadow#false", "~@Combined Shadow#false"}})
#define GE_SHADOW \
    Toggle({.id = 17, .caption = "Shadow", .group = "Shadow", .cmd = {"~@Shadow#*"}, .nb = SpecialKnob(119)}), \
    Toggle({.id = 18, .caption = "Combined\nShadow", .group = "Shadow", .cmd = {"~@Combined Shadow#*"}}), \
    Radio ({.id = 49, .caption = "Matte", .group = "Fill", .cmd = {"~@Fill#Matte"}, .nb = nb_ge_shadow_matte.row}), \
    Radio ({.id = 50, .caption = "Video", .group = "Fill", .cmd = {"~@Fill#Video"}})
inline constexpr BT_TBL bt_ge_shadow[][9] = {
    {GE_SHADOW, GE_CASTS(1, "Ch1", "Ch1"), GE_CASTS(2, "Ch2", "Ch2"), GE_CASTS(3, "Ch3", "Ch3"), GE_CASTS(4, "Ch4", "Ch4"), BT_END},
    {GE_SHADOW, GE_CASTS(1, "Ch5", "Ch5"), GE_CASTS(2, "Ch6", "Ch6"), GE_CASTS(3, "Ch7", "Ch7"), GE_CASTS(4, "Ch8", "Ch8"), BT_END},
};
inline constexpr BT_TBL bt_ge_shadow_pairs[][7] = {
    {GE_SHADOW, GE_CASTS(1, "Ch1-2", "Ch1-Ch2"), GE_CASTS(2, "Ch3-4", "Ch3-Ch4"), BT_END},
    {GE_SHADOW, GE_CASTS(1, "Ch5-6", "Ch5-Ch6"), GE_CASTS(2, "Ch7-8", "Ch7-Ch8"), BT_END},
};
inline constexpr BT_TBL bt_ge_shadow_two[][7] = {
    {GE_SHADOW, GE_CASTS(1, "Ch1", "Ch1"), GE_CASTS(2, "Ch2", "Ch2"), BT_END},
    {GE_SHADOW, GE_CASTS(1, "Ch5", "Ch5"), GE_CASTS(2, "Ch6", "Ch6"), BT_END},
};
static_assert(ButtonsAreSound(bt_ge_shadow[0]) && ButtonsAreSound(bt_ge_shadow_pairs[0]) && ButtonsAreSound(bt_ge_shadow_two[0]));
#undef GE_SHADOW
#undef GE_CASTS

// --- 3D: where the combined picture is ---

inline constexpr BT_TBL bt_ge_3dtrans[] = {
    Toggle({.id = 17, .caption = "3D Trans", .group = "Transform", .cmd = {"~@3D Trans#*"}}),
    Action({.id = 21, .caption = "Center",   .group = "Reset", .cmd = {"~@Center#*"}}),
    Action({.id = 22, .caption = "Full\nReset", .group = "Reset", .cmd = {"~@Reset#*"}}),
    Knobs ({.id = 33, .caption = "Location", .group = "Parameter", .nb = SpecialKnob(125)}),
    Knobs ({.id = 34, .caption = "Rotation", .group = "Parameter", .cmd = {"", "~@Spin#"}, .nb = SpecialKnob(126)}),
    Knobs ({.id = 35, .caption = "Size",     .group = "Parameter", .cmd = {"", "~@Size@Separate#"}, .nb = SpecialKnob(127)}),
    Toggle({.id = 50, .caption = "Spin",     .group = "Modify", .cmd = {"~@Spin#*"}}),
    Toggle({.id = 51, .caption = "Separate\nSize", .group = "Modify", .cmd = {"~@Size@Separate#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ge_3dtrans));

// --- Light and background ---

inline constexpr BT_TBL bt_ge_light[] = {
    Toggle({.id = 17, .caption = "Light",   .group = "Light", .cmd = {"~@Light#*", "~@Source#"}, .nb = SpecialKnob(120)}),
    Radio ({.id = 18, .caption = "Distant", .group = "Light", .cmd = {"~@Source#Distant", "~@Light#false"}}),
    Radio ({.id = 19, .caption = "Near",    .group = "Light", .cmd = {"~@Source#Near", "~@Light#false"}}),
    Knobs ({.id = 20, .caption = "Color",   .group = "Light", .nb = nb_ge_light_color.row}),
    Toggle({.id = 33, .caption = "Bkgd",    .group = "Bkgd", .cmd = {"~@Bkgd#*", "~@Bkgd@Fill#"}, .nb = SpecialKnob(124)}),
    Radio ({.id = 34, .caption = "Matte",   .group = "Bkgd", .cmd = {"~@Bkgd@Fill#Matte", "~@Bkgd#false"}}),
    Radio ({.id = 35, .caption = "Video",   .group = "Bkgd", .cmd = {"~@Bkgd@Fill#Video", "~@Bkgd#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ge_light));

// --- Trail: of each picture, before or behind the combiner ---

#define GE_TRAIL(column, words, at) \
    Radio({.id = 16 + (column), .caption = "Off",  .group = words, .cmd = {at "#Off"}}), \
    Radio({.id = 32 + (column), .caption = "Pre",  .group = words, .cmd = {at "#Pre"}}), \
    Radio({.id = 48 + (column), .caption = "Post", .group = words, .cmd = {at "#Post"}})
#define GE_TRAIL_KEYS \
    Knobs ({.id = 22, .caption = "Trail",  .group = "Adjust", .cmd = {"", "~@Strobe#"}, .nb = SpecialKnob(123)}), \
    Toggle({.id = 38, .caption = "Strobe", .group = "Adjust", .cmd = {"~@Strobe#*"}}), \
    Action({.id = 54, .caption = "Clear",  .group = "Adjust", .cmd = {"~@Clear#*"}})
inline constexpr BT_TBL bt_ge_trail[][16] = {
    {GE_TRAIL(1, "Ch1", GE_SINGLE("Trail", "1")), GE_TRAIL(2, "Ch2", GE_SINGLE("Trail", "2")),
     GE_TRAIL(3, "Ch3", GE_SINGLE("Trail", "3")), GE_TRAIL(4, "Ch4", GE_SINGLE("Trail", "4")), GE_TRAIL_KEYS, BT_END},
    {GE_TRAIL(1, "Ch5", GE_SINGLE("Trail", "5")), GE_TRAIL(2, "Ch6", GE_SINGLE("Trail", "6")),
     GE_TRAIL(3, "Ch7", GE_SINGLE("Trail", "7")), GE_TRAIL(4, "Ch8", GE_SINGLE("Trail", "8")), GE_TRAIL_KEYS, BT_END},
};
inline constexpr BT_TBL bt_ge_trail_pairs[][10] = {
    {GE_TRAIL(1, "Ch1-2", GE_PAIR("Trail", "Ch1-Ch2", "2")), GE_TRAIL(2, "Ch3-4", GE_PAIR("Trail", "Ch3-Ch4", "2")), GE_TRAIL_KEYS, BT_END},
    {GE_TRAIL(1, "Ch5-6", GE_PAIR("Trail", "Ch5-Ch6", "2")), GE_TRAIL(2, "Ch7-8", GE_PAIR("Trail", "Ch7-Ch8", "2")), GE_TRAIL_KEYS, BT_END},
};
inline constexpr BT_TBL bt_ge_trail_eyes[][10] = {
    {GE_TRAIL(1, "Ch1", GE_SINGLE("Trail", "1")), GE_TRAIL(2, "Ch2", GE_SINGLE("Trail", "2")), GE_TRAIL_KEYS, BT_END},
    {GE_TRAIL(1, "Ch5", GE_SINGLE("Trail", "5")), GE_TRAIL(2, "Ch6", GE_SINGLE("Trail", "6")), GE_TRAIL_KEYS, BT_END},
};
static_assert(ButtonsAreSound(bt_ge_trail[0]) && ButtonsAreSound(bt_ge_trail_pairs[0]) && ButtonsAreSound(bt_ge_trail_eyes[0]));
#undef GE_TRAIL_KEYS
#undef GE_TRAIL
#undef GE_G2
#undef GE_G1
#undef GE_PAIR
#undef GE_SINGLE

// --- Pages ---

// A page of both groups; the second one's id lies 0x100000 higher, and may take another variant.
struct GePage {
    uint32_t id = 0; // of the first group, 0 none
    uint32_t second = 0;
    const char* name = "";
    const BT_TBL* buttons[2] = {};
    const ST_TBL* cells[2] = {};
};
#define GE_BOTH(table) {table[0], table[1]}
#define GE_SAME(table) {table, table}
#define GE_QUAD   {st_ge_quad_1, st_ge_quad_2}
#define GE_PAIRS  {st_ge_pairs_1, st_ge_pairs_2}
#define GE_EYES   {st_ge_eyes_1, st_ge_eyes_2}
#define GE_LINE   {st_ge_line_1, st_ge_line_2}
inline constexpr GePage global_effect_templates[] = {
    {0x42110100, 0x42210100, "Priority", GE_BOTH(bt_ge_order_12), GE_QUAD},
    {0x42110200, 0x42210200, "Priority", GE_BOTH(bt_ge_order_123), GE_QUAD},
    {0x42110300, 0x42210300, "Priority", GE_BOTH(bt_ge_order_23), GE_QUAD},
    {0x42110400, 0x42210400, "Priority", GE_BOTH(bt_ge_order_234), GE_QUAD},
    {0x42110500, 0x42210500, "Priority", GE_BOTH(bt_ge_order_34), GE_QUAD},
    {0x42110600, 0x42210600, "Priority", GE_BOTH(bt_ge_order_12_34), GE_QUAD},
    {0x42110700, 0x42210700, "Priority", GE_BOTH(bt_ge_order_1234), GE_LINE},
    {0x42110800, 0,          "Priority", GE_BOTH(bt_ge_order_12), {st_globaleffect_status_e, nullptr}},
    {0x42110900, 0x42210800, "Priority", GE_BOTH(bt_ge_order_pairs), GE_PAIRS},
    {0x42111000, 0x42211000, "Priority", GE_BOTH(bt_ge_order_12), GE_EYES},
    {0x42120100, 0x42220100, "Brick", GE_BOTH(bt_ge_brick_three), GE_QUAD},
    {0x42120200, 0x42220200, "Brick", GE_BOTH(bt_ge_brick), GE_QUAD},
    {0x42120300, 0x42220300, "Brick", GE_BOTH(bt_ge_brick_pairs), GE_PAIRS},
    {0x42120400, 0x42220400, "Brick", GE_BOTH(bt_ge_brick_eyes), GE_EYES},
    {0x42130000, 0x42230000, "Shadow", GE_BOTH(bt_ge_shadow), GE_QUAD},
    {0x42130100, 0,          "Shadow", GE_BOTH(bt_ge_shadow_two), {st_globaleffect_status_e, nullptr}},
    {0x42130200, 0x42230100, "Shadow", GE_BOTH(bt_ge_shadow_pairs), GE_PAIRS},
    {0x42130300, 0x42230300, "Shadow", GE_BOTH(bt_ge_shadow_two), GE_EYES},
    {0x42140000, 0x42240000, "3D Trans", GE_SAME(bt_ge_3dtrans), GE_QUAD},
    {0x42150000, 0x42250000, "Light/Bkgd", GE_SAME(bt_ge_light), GE_QUAD},
    {0x42160000, 0x42260000, "Trail", GE_BOTH(bt_ge_trail), GE_QUAD},
    {0x42160100, 0x42260100, "Trail", GE_BOTH(bt_ge_trail_pairs), GE_PAIRS},
    {0x42160200, 0x42260200, "Trail", GE_BOTH(bt_ge_trail_eyes), GE_EYES},
    {0x42170000, 0x42270000, "Combine", {bt_ge_combine_1, bt_ge_combine_2}, GE_QUAD},
    {0x42170100, 0x42270100, "Combine", {bt_ge_combine_pairs_1, bt_ge_combine_pairs_2}, GE_PAIRS},
    {0x42170200, 0x42270300, "Combine", {bt_ge_combine_eyes_1, bt_ge_combine_eyes_2}, GE_EYES},
};
#undef GE_LINE
#undef GE_EYES
#undef GE_PAIRS
#undef GE_QUAD
#undef GE_SAME
#undef GE_BOTH

constexpr size_t GeRowCount()
{
    size_t n = 0;
    for (const GePage& p : global_effect_templates) n += p.second ? 2 : 1;
    return n;
}
constexpr PAGE GeRow(const GePage& p, int group)
{
    const uint32_t id = group ? p.second : p.id;
    return {.id = id, .tree = {"Global Effect", group ? "Ch5-Ch8" : "Ch1-Ch4", p.name},
            .obj = {Base(base_main), LeftTabs(vf_global_effect, uint32_t(group + 2)), BottomTabs(hf_global_effect[group], DmeBottomTab(id, hf_global_effect[group])),
                    Buttons(p.buttons[group]), Boxes(NB_Non), Cells(p.cells[group])}};
}
constexpr auto GeRows()
{
    std::array<PAGE, GeRowCount()> rows{};
    size_t n = 0;
    for (const GePage& p : global_effect_templates) {
        rows[n++] = GeRow(p, 0);
        if (p.second) rows[n++] = GeRow(p, 1);
    }
    return rows;
}
inline constexpr auto global_effect_rows = GeRows();

// The first pages: all channels that there are; each cell leads to the page that sets what it shows.
constexpr PAGE GeTop(uint32_t id, const ST_TBL* cells)
{
    return {.id = id, .tree = {"Global Effect"}, .obj = {Base(base_main), LeftTabs(vf_global_effect, 1), Cells(cells)}};
}
inline constexpr PAGE global_effect_pages[] = {
    GeTop(0x42000000, st_globaleffect_status),
    GeTop(0x42000100, st_globaleffect_status_e),
    GeTop(0x42000200, st_globaleffect_status_dp),
    GeTop(0x42000400, st_globaleffect_status_3D),
    GeTop(0x42000500, st_globaleffect_status_dp_single),
};
