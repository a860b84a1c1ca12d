// family: how the bitmaps are listed. A family is one kind of picture in all its states; each file
// of drawings offers a table of families, and the program draws every state of every one.
#pragma once
#include "canvas.h"
#include <span>

// Colours round a bitmap, outside its rounded corners: what it lies on.
enum Ground : Colour {
    ON_BLACK = 0x000000,  // work area
    ON_FRAME = 0x1F1F1F,  // surround of the page
    ON_PANE = 0x2A2F32,   // region, select and pull-down panes
    ON_WINDOW = 0x1A1A1A, // ten keys, keyboard
    ON_LIGHT = 0xE6E6E6,  // message pane
    ON_TRACK = 0xC3C3C3,  // scroll column of a message pane
};

struct State {
    const char* suffix; // the file is named by the family's stem and this
    int pushed = 0;     // 1: held down; marks move by as much
    int on = 0;         // 0 off, 1 on, 2 the third state
    bool has_knobs = false;
    bool is_disabled = false;
};

struct Family {
    const char* stem;
    int width, height;
    Colour ground;
    void (*draw)(const Canvas& cv, const State& st, int variant);
    std::span<const State> states;
    int variant = 0; // which picture, for a draw function that knows several
};

inline constexpr State STATE_SINGLE[] = {{.suffix = ""}};
inline constexpr State STATES_ON_OFF[] = {{.suffix = "_off"}, {.suffix = "_on", .on = 1}};
inline constexpr State STATES_ON_OFF_DIS[] = {
    {.suffix = "_off"}, {.suffix = "_on", .on = 1}, {.suffix = "_dis", .is_disabled = true}};
// Momentary keys: on is how they look while they are held.
inline constexpr State STATES_HELD[] = {{.suffix = "_off"},
                                        {.suffix = "_on", .pushed = 1, .on = 1}};
inline constexpr State STATES_HELD_DIS[] = {{.suffix = "_off"},
                                            {.suffix = "_on", .pushed = 1, .on = 1},
                                            {.suffix = "_dis", .is_disabled = true}};
inline constexpr State STATES_PUSHED_DIS[] = {
    {.suffix = "_p0"}, {.suffix = "_p1", .pushed = 1}, {.suffix = "_dis", .is_disabled = true}};
inline constexpr State STATES_PUSHED_ON[] = {{.suffix = "_p0o0"},
                                             {.suffix = "_p0o1", .on = 1},
                                             {.suffix = "_p1o0", .pushed = 1},
                                             {.suffix = "_p1o1", .pushed = 1, .on = 1}};
inline constexpr State STATES_PUSHED_ON_DIS[] = {{.suffix = "_p0o0"},
                                                 {.suffix = "_p0o1", .on = 1},
                                                 {.suffix = "_p1o0", .pushed = 1},
                                                 {.suffix = "_p1o1", .pushed = 1, .on = 1},
                                                 {.suffix = "_dis", .is_disabled = true}};

std::span<const Family> KEYS_Families();   // buttons of pages
std::span<const Family> TABS_Families();   // page tabs and knob column
std::span<const Family> BASE_Families();   // base area
std::span<const Family> PANES_Families();  // cells of panes, keys of windows, lists
std::span<const Family> PANEL_Families();  // panel and layer keys
std::span<const Family> PATHS_Families();  // keyframe paths
std::span<const Family> MEMORY_Families(); // frame memory
std::span<const Family> ICONS_Families();  // small marks laid on keys, colour chips
std::span<const Family> EDGES_Families();  // edge and wipe pictures of status cells
std::span<const Family> DEVICE_Families(); // combiner, device pictures
