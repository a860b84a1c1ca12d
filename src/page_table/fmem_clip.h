// fmem_clip: the frame-memory pages of systems with a clip store. Each has the outputs at the left or two folders side by
// side, and its keys in one row below; ids of keys that page code names.
#pragma once
#include "rows.h"

enum : int {
    BTN_FMEM_RECALL = 64,
    BTN_FMEM_THROUGH = 65,
    BTN_FMEM_LOAD = 66,
    BTN_FMEM_UNLOAD = 67,
    BTN_FMEM_BLACK = 68,
    BTN_FMEM_REC = 38, // the transport keys find their icons by these numbers
    BTN_FMEM_REC_STOP = 54,
    BTN_FMEM_REC_NAME = 69,
    BTN_FMEM_FREEZE = 70,
    BTN_FMEM_FREEZE_TIME = 71,
    BTN_FMEM_FRAME = 72,
    BTN_FMEM_FIELD = 73,
    BTN_FMEM_REW = 34,
    BTN_FMEM_PLAY = 35,
    BTN_FMEM_FF = 36,
    BTN_FMEM_STOP = 37,
    BTN_FMEM_LOOP = 74,
    BTN_FMEM_PINGPONG = 75,
    BTN_FMEM_SPEED = 76,
    BTN_FMEM_START_SET = 77,
    BTN_FMEM_START_RESET = 78,
    BTN_FMEM_STOP_SET = 79,
    BTN_FMEM_STOP_RESET = 80,
    BTN_FMEM_TRIM = 81,
    BTN_FMEM_COPY = 82,
    BTN_FMEM_MOVE = 83,
    BTN_FMEM_DUPLICATE = 84,
    BTN_FMEM_NEW_FOLDER = 85,
    BTN_FMEM_DELETE = 86,
    BTN_FMEM_RENAME = 87,
    BTN_FMEM_STORE = 88,
    BTN_FMEM_COUPLE = 89,
    BTN_FMEM_SEPARATE = 90,
    BTN_FMEM_MIDDLE = 91,
};
enum : int { NB_FMEM_START = 1, NB_FMEM_STOP = 2, NB_FMEM_FRAME = 3, NB_FMEM_SPEED = 4 };
enum : int { NB_FMEM_LENGTH = 1 };

constexpr int FMEM_KEYS_Y = 458;
constexpr BT_TBL FmemAt(int x, int y, BT_TBL row)
{
    row.x1 = x;
    row.y1 = y;
    row.x2 = x + 84;
    row.y2 = y + 65;
    return row;
}
constexpr BT_TBL FmemKey(int x, BT_TBL row)              { return Typed(FmemAt(x, FMEM_KEYS_Y, row), BT_ACTION); }
constexpr BT_TBL FmemLamp(int x, int y, BT_TBL row)      { return Typed(FmemAt(x, y, row), BT_ACTION_STATE); }
constexpr BT_TBL FmemAction(int x, int y, BT_TBL row)    { return Typed(FmemAt(x, y, row), BT_ACTION); }
constexpr BT_TBL FmemTransport(int x, int y, BT_TBL row, int (*draw)(BT_MEM*))
{
    row.draw_func = draw;
    return FmemLamp(x, y, row);
}

// --- The menu's pages of the clip store ---

inline constexpr VF_TBL vf_fmem[] = {
    {.id = 1, .caption = "Clip/Still", .page = 0x21110000},
    {.id = 2, .caption = "File",       .page = 0x21210000},
    VF_END,
};
inline constexpr HF_TBL hf_fmem_clip[] = {
    {.id = 1, .caption = "Recall", .page = 0x21110000},
    {.id = 2, .caption = "Load",   .page = 0x21120000},
    {.id = 3, .caption = "Play",   .page = 0x21130000},
    {.id = 4, .caption = "Record", .page = 0x21140000},
    {.id = 5, .caption = "Freeze", .page = 0x21150000},
    HF_END,
};
inline constexpr HF_TBL hf_fmem_file[] = {
    {.id = 1, .caption = "Copy/\nMove",          .page = 0x21210000},
    {.id = 2, .caption = "Delete/\nRename",      .page = 0x21220000},
    {.id = 3, .caption = "Pair\nRecombi-\nnation", .page = 0x21230000},
    HF_END,
};

// --- Outputs and folders ---

constexpr FM_TBL FmemOutputs(bool has_keys, bool has_pair = true)
{
    return {.enable = 1,
            .fmout_button = {.enable = 1, .pos = {100, 78}},
            .outselect_button = {.enable = has_keys, .pos = {115, 376}},
            .pair_button = {.enable = has_keys && has_pair, .pos = {115, 426}},
            .ancillary_button = {.enable = has_keys, .pos = {115, 476}},
            .name_status = {.enable = 1},
            .waku = {.enable = 1}};
}
inline constexpr FM_TBL fm_fmem = FmemOutputs(true);
inline constexpr FM_TBL fm_fmem_watch = {.enable = 1}; // shows nothing: the page must know which clips are in use

// Beside the outputs; below it the line of the page, or what is selected.
constexpr PARTS_FILE_AREA FmemBeside(int rows, bool has_name)
{
    return {.enable = 1, .loaded_mark = 1, .selected_mark = 1, .h_num = 3, .v_num = rows, .pos = {244, 112},
            .name_status = {.enable = has_name, .type = 1, .pos = {244, 430}},
            .find_button = {.enable = 1, .pos = {244, FMEM_KEYS_Y}}};
}
// The left or the right one of two.
constexpr PARTS_FILE_AREA FmemHalf(int x, bool has_find, bool has_select)
{
    return {.enable = 1, .loaded_mark = 1, .selected_mark = 1, .h_num = 2, .v_num = 3, .pos = {x, 112}, .h_gap = 120,
            .name_status = {.enable = 1, .pos = {x, 430}},
            .find_button = {.enable = has_find, .pos = {x, FMEM_KEYS_Y}},
            .select_button = {.enable = has_select, .pos_select = {x + 90, FMEM_KEYS_Y + 13}, .pos_all = {x + 156, FMEM_KEYS_Y + 13}}};
}
// All of the page.
constexpr PARTS_FILE_AREA FmemWide()
{
    return {.enable = 1, .loaded_mark = 1, .selected_mark = 1, .h_num = 4, .v_num = 3, .pos = {104, 112},
            .name_status = {.enable = 1, .type = 1, .pos = {104, 430}},
            .find_button = {.enable = 1, .pos = {104, FMEM_KEYS_Y}},
            .select_button = {.enable = 1, .pos_select = {196, FMEM_KEYS_Y + 13}, .pos_all = {262, FMEM_KEYS_Y + 13}}};
}
inline constexpr FF_TBL ff_fmem_beside = {{FmemBeside(3, true), {}}};
inline constexpr FF_TBL ff_fmem_record = {{FmemBeside(3, false), {}}};
inline constexpr FF_TBL ff_fmem_short = {{FmemBeside(2, false), {}}};
inline constexpr FF_TBL ff_fmem_wide = {{FmemWide(), {}}};
inline constexpr FF_TBL ff_fmem_two = {{FmemHalf(100, true, true), FmemHalf(402, false, false)}};
inline constexpr FF_TBL ff_fmem_pair = {{FmemHalf(100, true, false), FmemHalf(402, true, false)}};

// --- Keys ---

#define CS "LOCAL@Clip/Still@"
inline constexpr BT_TBL bt_fmem_recall[] = {
    FmemKey(424, {.id = BTN_FMEM_RECALL,  .caption = "Recall",  .cmd = {CS "Recall"}}),
    FmemKey(516, {.id = BTN_FMEM_THROUGH, .caption = "Through", .cmd = {CS "Through"}}),
    FmemKey(608, {.id = BTN_FMEM_BLACK,   .caption = "Black",   .cmd = {CS "Black"}}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem_load[] = {
    FmemKey(440, {.id = BTN_FMEM_LOAD,   .caption = "Load to\nMemory", .cmd = {"LOCAL@LoadToMemory"}}),
    FmemKey(538, {.id = BTN_FMEM_UNLOAD, .caption = "Unload",          .cmd = {"LOCAL@Unload"}}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem_record[] = {
    FmemKey(336, {.id = BTN_FMEM_REC_NAME, .caption = "Rec\nName", .cmd = {CS "Rec Name"}}),
    FmemTransport(424, FMEM_KEYS_Y, {.id = BTN_FMEM_REC, .caption = "Record", .cmd = {CS "Record"}}, bt_drw_clip_record),
    FmemTransport(516, FMEM_KEYS_Y, {.id = BTN_FMEM_REC_STOP, .caption = "Stop", .cmd = {CS "Record Stop"}}, bt_drw_clip_record),
    FmemKey(608, {.id = BTN_FMEM_THROUGH,  .caption = "Through",   .cmd = {CS "Through"}}),
    BT_END,
};
#define FREEZE "LOCAL@Frame Mem@Clip/Still@Record@Freeze@"
inline constexpr BT_TBL bt_fmem_freeze[] = {
    FmemKey(336, {.id = BTN_FMEM_REC_NAME, .caption = "Freeze\nName", .cmd = {CS "Rec Name"}}),
    FmemKey(424, {.id = BTN_FMEM_FREEZE,   .caption = "Freeze",       .cmd = {CS "Freeze"}}),
    FmemKey(516, {.id = BTN_FMEM_FREEZE_TIME, .caption = "Freeze\nTime Name", .cmd = {CS "Freeze Time Name"}}),
    FmemKey(608, {.id = BTN_FMEM_THROUGH,  .caption = "Through",      .cmd = {CS "Through"}}),
    FmemLamp(516, 342, {.id = BTN_FMEM_FRAME, .caption = "Frame", .cmd = {FREEZE "Frame"}}),
    FmemLamp(608, 342, {.id = BTN_FMEM_FIELD, .caption = "Field", .cmd = {FREEZE "Field"}}),
    BT_END,
};
#undef FREEZE
inline constexpr BT_TBL bt_fmem_play[] = {
    FmemAction(250, 232, {.id = BTN_FMEM_START_SET,   .caption = "Set",   .group = "Start TC", .cmd = {CS "Start TC Set"}}),
    FmemAction(342, 232, {.id = BTN_FMEM_START_RESET, .caption = "Reset", .group = "Start TC", .cmd = {CS "Start TC Reset"}}),
    FmemAction(516, 232, {.id = BTN_FMEM_STOP_SET,    .caption = "Set",   .group = "Stop TC",  .cmd = {CS "Stop TC Set"}}),
    FmemAction(608, 232, {.id = BTN_FMEM_STOP_RESET,  .caption = "Reset", .group = "Stop TC",  .cmd = {CS "Stop TC Reset"}}),
    FmemTransport(250, 336, {.id = BTN_FMEM_REW,  .caption = "Start", .group = "Playback", .cmd = {CS "Rewind"}}, bt_drw_clip_playrec),
    FmemTransport(340, 336, {.id = BTN_FMEM_PLAY, .caption = "Play",  .group = "Playback", .cmd = {CS "Play"}}, bt_drw_clip_playrec),
    FmemTransport(430, 336, {.id = BTN_FMEM_STOP, .caption = "Stop",  .group = "Playback", .cmd = {CS "Stop"}}, bt_drw_clip_playrec),
    FmemAction(519, 336, {.id = BTN_FMEM_MIDDLE, .caption = "Middle", .group = "Playback", .cmd = {CS "Middle"}}),
    FmemTransport(608, 336, {.id = BTN_FMEM_FF,   .caption = "End",   .group = "Playback", .cmd = {CS "Forward"}}, bt_drw_clip_playrec),
    Toggle(FmemAt(250, 440, {.id = BTN_FMEM_LOOP,     .caption = "Loop",            .group = "Play Mode", .cmd = {CS "Loop#*"}})),
    Toggle(FmemAt(342, 440, {.id = BTN_FMEM_PINGPONG, .caption = "Ping-\nPong",     .group = "Play Mode", .cmd = {CS "Ping-Pong#*"}})),
    Toggle(FmemAt(434, 440, {.id = BTN_FMEM_SPEED,    .caption = "Variable\nSpeed", .group = "Play Mode", .cmd = {CS "Variable Speed#*"}})),
    FmemAction(608, 440, {.id = BTN_FMEM_TRIM, .caption = "Trim", .cmd = {CS "Trim"}}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem_copymove[] = {
    FmemKey(340, {.id = BTN_FMEM_COPY,       .caption = "Copy",        .cmd = {CS "Copy"}}),
    FmemKey(430, {.id = BTN_FMEM_MOVE,       .caption = "Move",        .cmd = {CS "Move"}}),
    FmemKey(520, {.id = BTN_FMEM_DUPLICATE,  .caption = "Duplicate",   .cmd = {CS "Duplicate"}}),
    FmemKey(610, {.id = BTN_FMEM_NEW_FOLDER, .caption = "New\nFolder", .cmd = {CS "New Folder"}}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem_deleterename[] = {
    FmemKey(390, {.id = BTN_FMEM_STORE,  .caption = "Store",  .cmd = {CS "Store"}}),
    FmemKey(480, {.id = BTN_FMEM_RENAME, .caption = "Rename", .cmd = {CS "Rename"}}),
    FmemKey(570, {.id = BTN_FMEM_DELETE, .caption = "Delete", .cmd = {CS "Delete"}}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem_pair[] = {
    FmemKey(520, {.id = BTN_FMEM_COUPLE,   .caption = "Couple",   .cmd = {CS "Couple"}}),
    FmemKey(610, {.id = BTN_FMEM_SEPARATE, .caption = "Separate", .cmd = {CS "Separate"}}),
    BT_END,
};
#undef CS
static_assert(ButtonsAreSound(bt_fmem_recall) && ButtonsAreSound(bt_fmem_load) && ButtonsAreSound(bt_fmem_record) &&
              ButtonsAreSound(bt_fmem_freeze) && ButtonsAreSound(bt_fmem_play) && ButtonsAreSound(bt_fmem_copymove) &&
              ButtonsAreSound(bt_fmem_deleterename) && ButtonsAreSound(bt_fmem_pair));

// --- Number boxes; the page code fills them ---

inline constexpr NB_TBL nb_fmem_play[] = {
    {.id = NB_FMEM_START, .caption = "Start TC", .type = NB_TC,  .min = 0, .max = 999999, .cmd = "LOCAL"},
    {.id = NB_FMEM_STOP,  .caption = "Stop TC",  .type = NB_TC,  .min = 0, .max = 999999, .cmd = "LOCAL"},
    {.id = NB_FMEM_FRAME, .caption = "Jump\nFrame", .type = NB_TC, .min = 0, .max = 999999, .cmd = "LOCAL"},
    {.id = NB_FMEM_SPEED, .caption = "Speed",    .type = NB_INT, .min = -400, .max = 400, .cmd = "LOCAL"},
    NB_END,
};
inline constexpr NB_TBL nb_fmem_record[] = {
    {.id = NB_FMEM_LENGTH, .caption = "Rec Len", .type = NB_TC, .min = 1, .max = 999999, .cmd = "LOCAL"},
    NB_END,
};
static_assert(BoxesAreSound(nb_fmem_play) && BoxesAreSound(nb_fmem_record));

extern const PC_TBL pc_fmem_clipstill_load;          // pc_fmem_load.cpp
extern const PC_TBL pc_fmem_clipstill_recall;        // pc_fmem_recall.cpp
extern const PC_TBL pc_fmem_clipstill_record;        // pc_fmem_record.cpp
extern const PC_TBL pc_fmem_clipstill_record_freeze; // pc_fmem_record.cpp
extern const PC_TBL pc_fmem_clipstill_play;          // pc_fmem_play.cpp
extern const PC_TBL pc_fmem_file_copymove;           // pc_fmem_file.cpp
extern const PC_TBL pc_fmem_file_deleterename;       // pc_fmem_file.cpp
extern const PC_TBL pc_fmem_file_pairreecombination; // pc_fmem_file.cpp

inline constexpr PAGE fmem_clip_pages[] = {
    {.id = 0x21120000, .tree = {"Frame Memory", "Clip/Still", "Load"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 1), BottomTabs(hf_fmem_clip, 2), Buttons(bt_fmem_load), Folder(ff_fmem_wide),
             Code(pc_fmem_clipstill_load)}},
    {.id = 0x21110000, .tree = {"Frame Memory", "Clip/Still", "Recall"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 1), BottomTabs(hf_fmem_clip, 1), Buttons(bt_fmem_recall), Outputs(fm_fmem),
             Folder(ff_fmem_beside), Code(pc_fmem_clipstill_recall)}},
    {.id = 0x21130000, .tree = {"Frame Memory", "Clip/Still", "Play"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 1), BottomTabs(hf_fmem_clip, 3), Buttons(bt_fmem_play), Boxes(nb_fmem_play),
             Outputs(fm_fmem), Code(pc_fmem_clipstill_play)}},
    {.id = 0x21140000, .tree = {"Frame Memory", "Clip/Still", "Record"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 1), BottomTabs(hf_fmem_clip, 4), Buttons(bt_fmem_record), Boxes(nb_fmem_record),
             Outputs(fm_fmem), Folder(ff_fmem_record), Code(pc_fmem_clipstill_record)}},
    {.id = 0x21150000, .tree = {"Frame Memory", "Clip/Still", "Freeze"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 1), BottomTabs(hf_fmem_clip, 5), Buttons(bt_fmem_freeze), Outputs(fm_fmem),
             Folder(ff_fmem_short), Code(pc_fmem_clipstill_record_freeze)}},
    {.id = 0x21210000, .tree = {"Frame Memory", "File", "Copy/Move"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 2), BottomTabs(hf_fmem_file, 1), Buttons(bt_fmem_copymove), Outputs(fm_fmem_watch),
             Folder(ff_fmem_two), Code(pc_fmem_file_copymove)}},
    {.id = 0x21220000, .tree = {"Frame Memory", "File", "Delete/Rename"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 2), BottomTabs(hf_fmem_file, 2), Buttons(bt_fmem_deleterename),
             Outputs(fm_fmem_watch), Folder(ff_fmem_wide), Code(pc_fmem_file_deleterename)}},
    {.id = 0x21230000, .tree = {"Frame Memory", "File", "Pair Recombination"},
     .obj = {Base(base_main), LeftTabs(vf_fmem, 2), BottomTabs(hf_fmem_file, 3), Buttons(bt_fmem_pair), Folder(ff_fmem_pair),
             Code(pc_fmem_file_pairreecombination)}},
};
