// me_misc: what else a bank has: its transition, video process, priority and assignment of its keys, clip transition,
// snapshots. Written for M/E-1. On PGM/PST the page code calls the keys DSK; their paths keep the words "Key1" to "Key8".
#pragma once
#include "me_banks.h"
#include "nb_rows.h"
#include "pc_file_bkgd.h"
#include "pc_me_misc.h"
#include "st_me_misc.h"

// --- Transition ---

// Rates count in frames.
inline constexpr NB_TBL nb_me_misc_rate[] = {
    {.id = 1, .caption = "Trans Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_supermix[] = {
    {.id = 1, .caption = "Trans Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@Transition Rate"},
    {.id = 2, .caption = "A Video",    .type = NB_2,   .min = 0, .max = 100, .cmd = "~3@Super Mix@A Video"},
    {.id = 3, .caption = "B Video",    .type = NB_2,   .min = 0, .max = 100, .cmd = "~3@Super Mix@B Video"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_preset_sub[] = {
    {.id = 1, .caption = "Trans Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@Transition Rate"},
    NB_COLOR_FROM(2, "~3@Color Matte@Color 1"),
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_limit[] = {
    {.id = 1, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Transition Mode@Limit"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_misc_rate) && BoxesAreSound(nb_me_misc_supermix) && BoxesAreSound(nb_me_misc_limit));
static_assert(BoxesAreSound(nb_me_misc_preset_sub));

// The rate of the bank, and those with which its keys come independently of it.
#define NB_KEY_RATE(slot, key) {.id = slot, .caption = key " Rate\nframes", .type = NB_INT, .min = 0, .max = 999, \
                                .cmd = "~1@" key "@Transition@ON Transition Rate"}
#define NB_RATES(key) nb_me_misc_rate[0], NB_KEY_RATE(2, key "1"), NB_KEY_RATE(3, key "2"), NB_KEY_RATE(4, key "3"), NB_KEY_RATE(5, key "4")
#define NB_FURTHER_RATES(key) NB_KEY_RATE(17, key "5"), NB_KEY_RATE(18, key "6"), NB_KEY_RATE(19, key "7"), NB_KEY_RATE(20, key "8")
inline constexpr NB_TBL nb_me_misc_rates[]      = {NB_RATES("Key"), NB_FURTHER_RATES("Key"), NB_END};
inline constexpr NB_TBL nb_me_misc_rates_4key[] = {NB_RATES("Key"), NB_END};
inline constexpr NB_TBL nb_pp_misc_rates[]      = {NB_RATES("DSK"), NB_FURTHER_RATES("DSK"), NB_END};
inline constexpr NB_TBL nb_pp_misc_rates_4key[] = {NB_RATES("DSK"), NB_END};
static_assert(BoxesAreSound(nb_me_misc_rates) && BoxesAreSound(nb_me_misc_rates_4key));
static_assert(BoxesAreSound(nb_pp_misc_rates) && BoxesAreSound(nb_pp_misc_rates_4key));
#undef NB_FURTHER_RATES
#undef NB_RATES
#undef NB_KEY_RATE

// A type is a switch of its own on the server; the page code makes one choice of them.
constexpr BT_TBL TransitionType(int id, const char* caption, const char* cmd, const NB_TBL* nb = nb_me_misc_rate)
{
    return Radio({.id = id, .caption = caption, .group = "Transition Type", .cmd = {cmd}, .nb = nb});
}
constexpr BT_TBL NextTransition(int id, const char* caption, const char* cmd)
{
    return Toggle({.id = id, .caption = caption, .group = "Next Transition", .cmd = {cmd}});
}
#define LOCAL_TRANSITION "LOCAL@M/E@Misc@Transition@Type#"
// The server has a word for full or limited; the page code makes one switch of it.
#define TRANSITION_MODES \
    Toggle({.id = 5,  .caption = "Limit",     .group = "Trans Mode", .cmd = {"LOCAL@M/E@Misc@Transition@Limit#*"}, .nb = nb_me_misc_limit}), \
    Toggle({.id = 6,  .caption = "Transition\nPreview", .group = "Preview", .cmd = {"~3@Transition Preview#*"}}), \
    Toggle({.id = 21, .caption = "Flip-Flop", .group = "Bkgd", .cmd = {"~3@Flip-Flop#*"}})
// One above the other, as the keys of a panel lie.
#define TRANSITION_RUN \
    Action({.id = 38, .caption = "Cut",       .group = "Transition", .cmd = {"~3@Cut#*"}}), \
    Action({.id = 54, .caption = "Auto\nTrans", .group = "Transition", .cmd = {"~3@Auto Trans#*"}})
#define BT_MISC_TRANSITION(rates) \
    TransitionType(1,  "Mix",       LOCAL_TRANSITION "Mix"), \
    TransitionType(2,  "NAM",       LOCAL_TRANSITION "NAM"), \
    TransitionType(3,  "Super Mix", LOCAL_TRANSITION "Super Mix", nb_me_misc_supermix), \
    TransitionType(4,  "Preset\nColor Mix", LOCAL_TRANSITION "Preset Color Mix"), \
    TransitionType(17, "Wipe",      LOCAL_TRANSITION "Wipe"), \
    TransitionType(18, "DME Wipe",  LOCAL_TRANSITION "DME Wipe"), \
    TransitionType(19, "Clip",      LOCAL_TRANSITION "Clip", nullptr), \
    Jump  ({.id = 20, .caption = "Color\nMatte",    .group = "Transition Type", .cmd = {"#+11710001", "~3@Preset Color Mix#!true"}}), \
    TRANSITION_MODES, \
    NextTransition(33, "Bkgd", "~3@Next Transition@Bkgd#*"), \
    NextTransition(34, "Key1", "~3@Next Transition@Key1#*"), \
    NextTransition(35, "Key2", "~3@Next Transition@Key2#*"), \
    NextTransition(36, "Key3", "~3@Next Transition@Key3#*"), \
    NextTransition(37, "Key4", "~3@Next Transition@Key4#*"), \
    NextTransition(49, "Key\nPriority", "~3@Next Transition@Key Priority#*"), \
    NextTransition(50, "Key5", "~3@Next Transition@Key5#*"), \
    NextTransition(51, "Key6", "~3@Next Transition@Key6#*"), \
    NextTransition(52, "Key7", "~3@Next Transition@Key7#*"), \
    NextTransition(53, "Key8", "~3@Next Transition@Key8#*"), \
    Knobs ({.id = 22, .caption = "Rate",            .group = "Rate", .nb = rates}), \
    TRANSITION_RUN

inline constexpr BT_TBL bt_me_misc_trans[] = {
    BT_MISC_TRANSITION(nb_me_misc_rates),
    BT_END,
};
inline constexpr BT_TBL bt_pp_misc_trans[] = {
    BT_MISC_TRANSITION(nb_pp_misc_rates),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_trans) && ButtonsAreSound(bt_pp_misc_trans));

// The sub side mixes and wipes; clips and mattes of two colours are the main side's. A preset colour of its own is flat.
inline constexpr BT_TBL bt_me_misc_trans_sub[] = {
    TransitionType(1,  "Mix",       LOCAL_TRANSITION "Mix"),
    TransitionType(2,  "NAM",       LOCAL_TRANSITION "NAM"),
    TransitionType(3,  "Super Mix", LOCAL_TRANSITION "Super Mix", nb_me_misc_supermix),
    TransitionType(4,  "Preset\nColor Mix", LOCAL_TRANSITION "Preset Color Mix", nb_me_misc_preset_sub),
    TransitionType(17, "Wipe",      LOCAL_TRANSITION "Wipe"),
    TransitionType(18, "DME Wipe",  LOCAL_TRANSITION "DME Wipe"),
    TRANSITION_MODES,
    NextTransition(33, "Bkgd", "~3@Next Transition@Bkgd#*"),
    NextTransition(34, "Key5", "~3@Next Transition@Key5#*"),
    NextTransition(35, "Key6", "~3@Next Transition@Key6#*"),
    NextTransition(36, "Key7", "~3@Next Transition@Key7#*"),
    NextTransition(37, "Key8", "~3@Next Transition@Key8#*"),
    Knobs ({.id = 22, .caption = "Rate",      .group = "Rate", .nb = nb_me_misc_rate}),
    TRANSITION_RUN,
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_trans_sub));
#undef BT_MISC_TRANSITION
#undef TRANSITION_RUN
#undef TRANSITION_MODES
#undef LOCAL_TRANSITION

// --- The colour of a preset color mix ---

inline constexpr NB_TBL nb_me_misc_color1[] = {NB_COLOR("~@Color 1"), NB_END};
inline constexpr NB_TBL nb_me_misc_color2[] = {NB_COLOR("~@Color 2"), NB_END};
inline constexpr NB_TBL nb_me_misc_mix[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Mix@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Mix@Soft"},
    {.id = 3, .caption = "H",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Mix@Position@H"},
    {.id = 4, .caption = "V",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Mix@Position@V"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_misc_color1) && BoxesAreSound(nb_me_misc_color2) && BoxesAreSound(nb_me_misc_mix));

#define IF_MIX "~@Mode#Flat"
inline constexpr BT_TBL bt_me_misc_color_matte[] = {
    Radio ({.id = 1,  .caption = "Flat",         .group = "Matte", .cmd = {"~@Mode#Flat"}}),
    Radio ({.id = 2,  .caption = "Mix",          .group = "Matte", .cmd = {"~@Mode#Mix"}, .nb = nb_me_misc_mix}),
    Knobs ({.id = 3,  .caption = "Color 1",      .group = "Color", .nb = nb_me_misc_color1}),
    Knobs ({.id = 4,  .caption = "Color 2",      .group = "Color", .cmd = {nullptr, IF_MIX}, .nb = nb_me_misc_color2}),
    Action({.id = 5,  .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*", IF_MIX}}),
    Action({.id = 6,  .caption = "Swap",         .group = "Color", .cmd = {"~@Swap#*", IF_MIX}}),
    Radio ({.id = 17, .caption = "Horizontal",   .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Horizontal", IF_MIX}}),
    Radio ({.id = 18, .caption = "Vertical",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Vertical", IF_MIX}}),
    Radio ({.id = 19, .caption = "Diagonal",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Diagonal", IF_MIX}}),
    Radio ({.id = 20, .caption = "Box",          .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Box", IF_MIX}}),
    Radio ({.id = 21, .caption = "Diamond",      .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Diamond", IF_MIX}}),
    Radio ({.id = 22, .caption = "Circle",       .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Circle", IF_MIX}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_color_matte));
#undef IF_MIX

// --- Fade to black ---

inline constexpr NB_TBL nb_pp_misc_ftb_rate[] = { // frames
    {.id = 1, .caption = "ON Rate\nframes",  .type = NB_INT, .min = 0, .max = 999, .cmd = "~@ON Rate"},
    {.id = 2, .caption = "OFF Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@OFF Rate"},
    NB_END,
};
static_assert(BoxesAreSound(nb_pp_misc_ftb_rate));

inline constexpr BT_TBL bt_pp_misc_ftb[] = {
    ActionState({.id = 1,  .caption = "FTB",          .group = "Fade to Black", .cmd = {"~@FTB#*", "~@Inhibit#true"}}),
    Knobs      ({.id = 2,  .caption = "Rate",         .group = "Fade to Black", .nb = nb_pp_misc_ftb_rate}),
    Toggle     ({.id = 4,  .caption = "FTB\nInhibit", .group = "Inhibit", .cmd = {"~@Inhibit#*"}}),
    Radio      ({.id = 17, .caption = "Linear",       .group = "Curve", .cmd = {"~@Curve#Linear"}}),
    Radio      ({.id = 18, .caption = "S-Curve",      .group = "Curve", .cmd = {"~@Curve#S-Curve"}}),
    Radio      ({.id = 20, .caption = "Bkgd\nand DSK", .group = "Fade", .cmd = {"~@Fade#All"}}),
    Radio      ({.id = 21, .caption = "Bkgd\nOnly",   .group = "Fade", .cmd = {"~@Fade#Bkgd"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_pp_misc_ftb));

// --- Video process of the background buses ---

inline constexpr NB_TBL nb_me_misc_videoproc[] = { // gain in percent, hue in degrees
    {.id = 1, .caption = "Lum Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~3@Luminance"},
    {.id = 2, .caption = "Chr Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~3@Chroma"},
    {.id = 3, .caption = "Hue",      .type = NB_2, .min = -180, .max = 180, .cmd = "~3@Hue"},
    {.id = 4, .caption = "Black",    .type = NB_2, .min = -20,  .max = 20,  .cmd = "~3@Black Level"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_clip[] = {
    {.id = 1, .caption = "White", .type = NB_2, .min = 50, .max = 109, .cmd = "~3@Level Clip@White"},
    {.id = 2, .caption = "Dark",  .type = NB_2, .min = -7, .max = 50,  .cmd = "~3@Level Clip@Dark"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_misc_videoproc) && BoxesAreSound(nb_me_misc_clip));

#define IF_VIDEOPROC "~3@Video Process#false"
inline constexpr BT_TBL bt_me_misc_videoproc[] = {
    Toggle({.id = 1,  .caption = "Video\nProcess", .group = "Video Process", .cmd = {"~3@Video Process#*"}, .nb = nb_me_misc_videoproc}),
    Action({.id = 2,  .caption = "Unity",          .group = "Video Process", .cmd = {"LOCAL@M/E@Misc@Video Process@Unity", IF_VIDEOPROC}}),
    Toggle({.id = 4,  .caption = "Bkgd A",         .group = "Bus", .cmd = {"~3@Bus@Bkgd A#*", IF_VIDEOPROC}}),
    Toggle({.id = 5,  .caption = "Bkgd B",         .group = "Bus", .cmd = {"~3@Bus@Bkgd B#*", IF_VIDEOPROC}}),
    Toggle({.id = 17, .caption = "Mono",           .group = "Effect", .cmd = {"~3@Mono#*", IF_VIDEOPROC}}),
    Toggle({.id = 18, .caption = "Lum\nInvert",    .group = "Effect", .cmd = {"~3@Lum Invert#*", IF_VIDEOPROC}}),
    Toggle({.id = 19, .caption = "Chroma\nInvert", .group = "Effect", .cmd = {"~3@Chroma Invert#*", IF_VIDEOPROC, "~3@Mono#true"}}),
    Toggle({.id = 20, .caption = "Level\nClip",    .group = "Level Clip", .cmd = {"~3@Level Clip#*", IF_VIDEOPROC}, .nb = nb_me_misc_clip}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_videoproc));
#undef IF_VIDEOPROC

// --- Key priority ---

// A row a priority, a column a key. The ids of the matrix fall one row below the places that one line of cells leaves
// free.
constexpr BT_TBL PriorityAt(int priority, int key, BT_TBL row)
{
    constexpr const char* groups[] = {"1st (Top)", "2nd", "3rd", "4th"};
    const Rect r = GridRect((priority - 1) * 16 + key);
    row.id = priority * 16 + key;
    row.group = groups[priority - 1];
    row.x1 = r.x1;
    row.y1 = r.y1;
    row.x2 = r.x2;
    row.y2 = r.y2;
    row.draw_func = bt_drw_keypriority;
    return Radio(row);
}
#define BT_PRIORITY_ROW(priority, first, row) \
    PriorityAt(priority, 1, row(first[0])), PriorityAt(priority, 2, row(first[1])), \
    PriorityAt(priority, 3, row(first[2])), PriorityAt(priority, 4, row(first[3]))
#define BT_PRIORITY_MATRIX(keys, row) \
    BT_PRIORITY_ROW(1, keys, row), BT_PRIORITY_ROW(2, keys, row), BT_PRIORITY_ROW(3, keys, row), BT_PRIORITY_ROW(4, keys, row)

inline constexpr const char* priority_keys[] = {"Key1", "Key2", "Key3", "Key4", "Key5", "Key6", "Key7", "Key8"};
constexpr BT_TBL FirstHalf(const char* key)
{
    return {.caption = key, .select_func = bt_sel_keypriority, .tally_func = bt_tly_keypriority, .cmd = {"~3@Key Priority#*"}};
}
constexpr BT_TBL SecondHalf(const char* key)
{
    return {.caption = key, .select_func = bt_sel_keypriority1, .tally_func = bt_tly_keypriority1, .cmd = {"~3@Key Priority#*"}};
}
// On a sub side, which follows the main side until it has an order of its own.
constexpr BT_TBL SubHalf(const char* key)
{
    BT_TBL row = SecondHalf(key);
    row.cmd[1] = "~3@Enable#false";
    return row;
}
#define BT_PRIORITY_CHOICE \
    Radio ({.id = 5,  .caption = "Current",        .group = "Priority", .cmd = {"LOCAL@M/E@Misc@Key Priority@List#Current"}}), \
    Radio ({.id = 6,  .caption = "Next",           .group = "Priority", .cmd = {"LOCAL@M/E@Misc@Key Priority@List#Next"}}), \
    Action({.id = 21, .caption = "Copy to\nNext",  .group = "Order", .cmd = {"LOCAL@M/E@Misc@Key Priority@Copy"}}), \
    Action({.id = 22, .caption = "Normal\nOrder",  .group = "Order", .cmd = {"LOCAL@M/E@Misc@Key Priority@Normal"}}), \
    Toggle({.id = 37, .caption = "Key\nPriority",  .group = "Next Trans", .cmd = {"~2@Transition@Next Transition@Key Priority#*"}})

inline constexpr BT_TBL bt_me_misc_keypriority[] = {
    BT_PRIORITY_MATRIX((&priority_keys[0]), FirstHalf),
    BT_PRIORITY_CHOICE,
    Jump({.id = 53, .caption = "Key 5-8", .group = "Keys", .cmd = {"#+11730001"}}),
    BT_END,
};
inline constexpr BT_TBL bt_me_misc_keypriority1[] = {
    BT_PRIORITY_MATRIX((&priority_keys[4]), SecondHalf),
    BT_PRIORITY_CHOICE,
    BT_END,
};
inline constexpr BT_TBL bt_me_misc_keypriority_sub[] = {
    BT_PRIORITY_MATRIX((&priority_keys[4]), SubHalf),
    Toggle({.id = 5,  .caption = "Sub\nPriority",  .group = "Sub Side", .cmd = {"~3@Enable#*"}}),
    Action({.id = 6,  .caption = "Normal\nOrder",  .group = "Sub Side", .cmd = {"LOCAL@M/E@Misc@Key Priority@Normal", "~3@Enable#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_keypriority) && ButtonsAreSound(bt_me_misc_keypriority1));
static_assert(ButtonsAreSound(bt_me_misc_keypriority_sub));
static_assert(bt_me_misc_keypriority[15].id == 68 && bt_me_misc_keypriority[15].y1 == 448);
#undef BT_PRIORITY_CHOICE
#undef BT_PRIORITY_MATRIX
#undef BT_PRIORITY_ROW

// --- Key assign ---

// The server has one word for a key; the page code makes two switches of it.
#define BT_ASSIGN(id_, key, side) Toggle({.id = id_, .caption = key, .group = side " Side", .cmd = {"LOCAL@M/E@Misc@Key Assign@" side "@" key "#*"}})
inline constexpr BT_TBL bt_me_misc_keyassign[] = {
    BT_ASSIGN(1,  "Key1", "Main"), BT_ASSIGN(2,  "Key2", "Main"), BT_ASSIGN(3,  "Key3", "Main"), BT_ASSIGN(4,  "Key4", "Main"),
    BT_ASSIGN(17, "Key5", "Main"), BT_ASSIGN(18, "Key6", "Main"), BT_ASSIGN(19, "Key7", "Main"), BT_ASSIGN(20, "Key8", "Main"),
    BT_ASSIGN(33, "Key1", "Sub"),  BT_ASSIGN(34, "Key2", "Sub"),  BT_ASSIGN(35, "Key3", "Sub"),  BT_ASSIGN(36, "Key4", "Sub"),
    BT_ASSIGN(49, "Key5", "Sub"),  BT_ASSIGN(50, "Key6", "Sub"),  BT_ASSIGN(51, "Key7", "Sub"),  BT_ASSIGN(52, "Key8", "Sub"),
    Action({.id = 5, .caption = "As\nSetup", .group = "All Keys", .cmd = {"LOCAL@M/E@Misc@Key Assign@Setup"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_keyassign));
#undef BT_ASSIGN

// --- Clip transition ---

inline constexpr NB_TBL nb_me_misc_clip_speed[] = { // percent of the clip's own speed
    {.id = 1, .caption = "Speed", .type = NB_2, .min = 1, .max = 400, .cmd = "~3@Speed"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_clip_duration[] = { // frames
    {.id = 1, .caption = "Duration\nframes", .type = NB_INT, .min = 1, .max = 999, .cmd = "~3@Duration"},
    NB_END,
};
// Until the length of the clip is known, an hour at 60 frames a second.
inline constexpr NB_TBL nb_me_misc_clip_tc[] = {
    {.id = 1, .caption = "Start TC", .type = NB_TC, .min = 0, .max = 215999, .cmd = "~3@Start TC"},
    {.id = 2, .caption = "Stop TC",  .type = NB_TC, .min = 0, .max = 215999, .cmd = "~3@Stop TC"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_clip_points[] = { // percent of the clip between which the background changes
    {.id = 1, .caption = "Start", .type = NB_INT, .min = 0, .max = 100, .cmd = "~3@Start"},
    {.id = 2, .caption = "End",   .type = NB_INT, .min = 0, .max = 100, .cmd = "~3@End"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_misc_clip_speed) && BoxesAreSound(nb_me_misc_clip_duration));
static_assert(BoxesAreSound(nb_me_misc_clip_tc) && BoxesAreSound(nb_me_misc_clip_points));

inline constexpr BT_TBL bt_me_misc_cliptrans[] = {
    Radio ({.id = 17, .caption = "FM1",      .group = "Output", .cmd = {"~3@Output#FM1"}}),
    Radio ({.id = 18, .caption = "FM2",      .group = "Output", .cmd = {"~3@Output#FM2"}}),
    Radio ({.id = 19, .caption = "FM3",      .group = "Output", .cmd = {"~3@Output#FM3"}}),
    Radio ({.id = 20, .caption = "FM4",      .group = "Output", .cmd = {"~3@Output#FM4"}}),
    Radio ({.id = 33, .caption = "FM5",      .group = "Output", .cmd = {"~3@Output#FM5"}}),
    Radio ({.id = 34, .caption = "FM6",      .group = "Output", .cmd = {"~3@Output#FM6"}}),
    Radio ({.id = 35, .caption = "FM7",      .group = "Output", .cmd = {"~3@Output#FM7"}}),
    Radio ({.id = 36, .caption = "FM8",      .group = "Output", .cmd = {"~3@Output#FM8"}}),
    Radio ({.id = 21, .caption = "Speed",    .group = "Clip", .cmd = {"~3@Time Base#Speed"}, .nb = nb_me_misc_clip_speed}),
    Radio ({.id = 22, .caption = "Duration", .group = "Clip", .cmd = {"~3@Time Base#Duration"}, .nb = nb_me_misc_clip_duration}),
    Knobs ({.id = 37, .caption = "Start/\nStop TC", .group = "Clip", .nb = nb_me_misc_clip_tc}),
    Knobs ({.id = 38, .caption = "Bkgd\nChange", .group = "Clip", .nb = nb_me_misc_clip_points}),
    Radio ({.id = 49, .caption = "Bkgd A",   .group = "Bkgd", .cmd = {"~3@Bkgd#A"}}),
    Radio ({.id = 50, .caption = "Bkgd B",   .group = "Bkgd", .cmd = {"~3@Bkgd#B"}}),
    Radio ({.id = 51, .caption = "Both",     .group = "Bkgd", .cmd = {"~3@Bkgd#Both"}}),
    Toggle({.id = 52, .caption = "Key\nLink", .group = "Key", .cmd = {"~3@Key Link#*"}}),
    Action({.id = 53, .caption = "Cue Up",   .group = "Player", .cmd = {"~3@Cue Up#*"}}),
    Jump  ({.id = 54, .caption = "Frame\nMemory", .group = "Player", .cmd = {"#21110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_cliptrans));

// --- Snapshot: what the bank's snapshots hold back, how they come, and what is in them ---

inline constexpr NB_TBL nb_me_misc_ss_dissolve[] = { // frames
    {.id = 1, .caption = "Duration\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@Effect Dissolve@Duration"},
    NB_END,
};
inline constexpr NB_TBL nb_me_misc_ss_autotrans[] = {
    {.id = 1, .caption = "Trans Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@Auto Transition@Rate"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_misc_ss_dissolve) && BoxesAreSound(nb_me_misc_ss_autotrans));

#define BT_HOLD(id_, word, bus) Toggle({.id = id_, .caption = word, .group = "Xpt Hold", .cmd = {"~3@Xpt Hold@" bus "#*"}})
#define BT_CONTENT(id_, word, part) Toggle({.id = id_, .caption = word, .group = "Contents", .cmd = {"~3@Contents@" part "#*"}})
inline constexpr BT_TBL bt_me_misc_snapshot[] = {
    BT_HOLD(1,  "Bkgd A", "Bkgd A"), BT_HOLD(2, "Bkgd B", "Bkgd B"), BT_HOLD(3, "Utility 1", "Utility 1"), BT_HOLD(4, "Utility 2", "Utility 2"),
    BT_HOLD(17, "Key1", "Key1"), BT_HOLD(18, "Key2", "Key2"), BT_HOLD(19, "Key3", "Key3"), BT_HOLD(20, "Key4", "Key4"),
    BT_HOLD(33, "Key5", "Key5"), BT_HOLD(34, "Key6", "Key6"), BT_HOLD(35, "Key7", "Key7"), BT_HOLD(36, "Key8", "Key8"),
    Toggle({.id = 5,  .caption = "All\nHold",     .group = "All", .cmd = {"LOCAL@M/E@Misc@Snapshot@Xpt Hold@All#*"}}),
    Jump  ({.id = 6,  .caption = "Snapshot\nMenu", .group = "Register", .cmd = {"#63000000"}}),
    Toggle({.id = 21, .caption = "Key\nDisable",  .group = "Attribute", .cmd = {"~3@Key Disable#*"}}),
    Toggle({.id = 22, .caption = "GPI\nOutput",   .group = "Attribute", .cmd = {"~3@GPI Output#*"}}),
    Toggle({.id = 37, .caption = "Effect\nDissolve", .group = "Attribute", .cmd = {"~3@Effect Dissolve#*"}, .nb = nb_me_misc_ss_dissolve}),
    Toggle({.id = 38, .caption = "Auto\nTransition", .group = "Attribute", .cmd = {"~3@Auto Transition#*"}, .nb = nb_me_misc_ss_autotrans}),
    BT_CONTENT(49, "Cross-\npoint", "Crosspoint"), BT_CONTENT(50, "Keys", "Keys"), BT_CONTENT(51, "Wipe", "Wipe"),
    BT_CONTENT(52, "DME Wipe", "DME Wipe"), BT_CONTENT(53, "Transition", "Transition"), BT_CONTENT(54, "Video\nProcess", "Video Process"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_misc_snapshot));
#undef BT_CONTENT
#undef BT_HOLD

// --- The pages ---

inline constexpr MePage me_misc_pages[] = {
    {.page = {.id = 0x11710000, .tree = {"M/E-1", "Misc", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Buttons(bt_me_misc_trans), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_trans)}}, .where = MAIN, .kind = ONLY_ME},
    {.page = {.id = 0x11710000, .tree = {"M/E-1", "Misc", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Buttons(bt_pp_misc_trans), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_trans)}}, .where = MAIN, .kind = ONLY_PGM},
    {.page = {.id = 0x11710000, .tree = {"M/E-1", "Misc", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Buttons(bt_me_misc_trans_sub), Boxes(NB_Non),
                      Cells(st_me_misc_sub), Code(pc_me_misc_trans_sub)}}, .where = SUB},
    {.page = {.id = 0x11710001, .tree = {"M/E-1", "Misc", "Transition", "Color Matte"},
              .obj = {Base(base_sub, 0x11710000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Buttons(bt_me_misc_color_matte),
                      Boxes(NB_Non), Cells(st_me_misc_line), Code(pc_me_misc_tabs)}}, .where = MAIN},
    {.page = {.id = 0x11710002, .tree = {"M/E-1", "Misc", "Transition", "FTB"},
              .obj = {Base(base_sub, 0x11710000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 7), Buttons(bt_pp_misc_ftb),
                      Boxes(NB_Non), Cells(st_me_misc_line), Code(pc_me_misc_tabs)}}, .where = MAIN, .kind = ONLY_PGM},
    {.page = {.id = 0x11720000, .tree = {"M/E-1", "Misc", "Video Process"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 2), Buttons(bt_me_misc_videoproc), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_videoproc)}}, .where = MAIN},
    {.page = {.id = 0x11720000, .tree = {"M/E-1", "Misc", "Video Process"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 2), Buttons(bt_me_misc_videoproc), Boxes(NB_Non),
                      Cells(st_me_misc_sub), Code(pc_me_misc_videoproc)}}, .where = SUB},
    {.page = {.id = 0x11730000, .tree = {"M/E-1", "Misc", "Key Priority"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Buttons(bt_me_misc_keypriority), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_keypriority)}}, .where = MAIN},
    {.page = {.id = 0x11730000, .tree = {"M/E-1", "Misc", "Key Priority"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Buttons(bt_me_misc_keypriority_sub), Boxes(NB_Non),
                      Cells(st_me_misc_sub), Code(pc_me_misc_keypriority)}}, .where = SUB},
    {.page = {.id = 0x11730001, .tree = {"M/E-1", "Misc", "Key Priority", "Key 5-8"},
              .obj = {Base(base_sub, 0x11730000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Buttons(bt_me_misc_keypriority1),
                      Boxes(NB_Non), Cells(st_me_misc_line), Code(pc_me_misc_keypriority)}}, .where = MAIN, .kind = ONLY_ME},
    {.page = {.id = 0x11730001, .tree = {"M/E-1", "Misc", "Key Priority", "DSK 5-8"},
              .obj = {Base(base_sub, 0x11730000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Buttons(bt_me_misc_keypriority1),
                      Boxes(NB_Non), Cells(st_me_misc_line), Code(pc_me_misc_keypriority)}}, .where = MAIN, .kind = ONLY_PGM},
    {.page = {.id = 0x11740000, .tree = {"M/E-1", "Misc", "Key Assign"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 4), Buttons(bt_me_misc_keyassign), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_keyassign)}}, .where = MAIN},
    // Where the next one leads while a transfer runs in the background.
    {.page = {.id = 0x11700000, .tree = {"M/E-1", "Misc"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 0), Code(pc_file_bkgdfiletransfer)}}, .where = MAIN},
    {.page = {.id = 0x11760000, .tree = {"M/E-1", "Misc", "Clip Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 5), Buttons(bt_me_misc_cliptrans), Boxes(NB_Non),
                      Cells(st_me_misc), Code(pc_me_misc_cliptrans)}}, .where = MAIN},
    {.page = {.id = 0x11770000, .tree = {"M/E-1", "Misc", "Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 6), Buttons(bt_me_misc_snapshot), Boxes(NB_Non),
                      Cells(st_me_misc_line), Code(pc_me_misc_snapshot)}}, .where = MAIN},
};
