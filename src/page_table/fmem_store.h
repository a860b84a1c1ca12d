// fmem_store: the frame-memory pages of systems without a clip store.
#pragma once
#include "file_dual.h"
#include "file_folder.h"
#include "pc_fmem1_browse.h"
#include "rows.h"

enum : int { // buttons that page code names
    BTN_FMEM1_FOLDER = 1,
    BTN_FMEM1_OUT = 2,
    BTN_FMEM1_RECALL_A = 3, // to the first output of the pair
    BTN_FMEM1_RECALL_B = 4,
    BTN_FMEM1_PAIR = 5,
    BTN_FMEM1_BACK = 6,
    BTN_FMEM1_FORWARD = 7,
    BTN_FMEM1_RENAME = 8,
    BTN_FMEM1_DELETE = 9,
    BTN_FMEM1_MOVE = 10,
    BTN_FMEM1_COUPLE = 11,
    BTN_FMEM1_SEPARATE = 12,
    BTN_FMEM1_ANCILLARY = 13,
    BTN_FMEM1_STORE1 = 14,
    BTN_FMEM1_STORE2 = 15,
    BTN_FMEM1_AUTO_STORE = 16,
    BTN_FMEM1_HDD_SAVE = 21, // 17 to 20 are the freezes
    BTN_FMEM1_HDD_LOAD = 22,
};

// Below the lists, column from 0.
constexpr BT_TBL Fmem1Key(int type, int column, BT_TBL row)
{
    row.x1 = 112 + 98 * column;
    row.y1 = 453;
    row.x2 = row.x1 + 84;
    row.y2 = row.y1 + 65;
    return Typed(row, type);
}

#define FMEM1(word) {"LOCAL@Frame Mem@" word}
#define FMEM1_FOLDER FileChoice(100, {.id = BTN_FMEM1_FOLDER, .caption = "", .cmd = FMEM1("Folder")})
#define FMEM1_RECALL                                                                                                   \
    FileChoice(405, {.id = BTN_FMEM1_OUT, .caption = "", .cmd = FMEM1("Output")}),                                      \
    Fmem1Key(BT_ACTION, 0, {.id = BTN_FMEM1_RECALL_A, .caption = "", .group = "Recall", .cmd = FMEM1("Recall A")}),      \
    Fmem1Key(BT_ACTION, 1, {.id = BTN_FMEM1_RECALL_B, .caption = "", .group = "Recall", .cmd = FMEM1("Recall B")}),      \
    Fmem1Key(BT_TOGGLE, 2, {.id = BTN_FMEM1_PAIR, .caption = "Pair", .group = "Recall", .cmd = FMEM1("Pair#*")})
#define FMEM1_FILE                                                                                                     \
    Fmem1Key(BT_ACTION, 0, {.id = BTN_FMEM1_RENAME, .caption = "Rename", .group = "File", .cmd = FMEM1("Rename")}),      \
    Fmem1Key(BT_ACTION, 1, {.id = BTN_FMEM1_DELETE, .caption = "Delete", .group = "File", .cmd = FMEM1("Delete")}),      \
    Fmem1Key(BT_JUMP_POPUP, 2, {.id = BTN_FMEM1_MOVE, .caption = "Move", .group = "File", .cmd = FMEM1("Move")})

inline constexpr BT_TBL bt_fmem1_still[] = {
    FMEM1_FOLDER,
    FMEM1_RECALL,
    BT_END,
};
inline constexpr BT_TBL bt_fmem1_clip[] = {
    FMEM1_FOLDER,
    FMEM1_RECALL,
    Fmem1Key(BT_ACTION, 3, {.id = BTN_FMEM1_BACK,    .caption = "<", .group = "Frame", .cmd = FMEM1("Frame Back")}),
    Fmem1Key(BT_ACTION, 4, {.id = BTN_FMEM1_FORWARD, .caption = ">", .group = "Frame", .cmd = FMEM1("Frame Forward")}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem1_still_file[] = {
    FMEM1_FOLDER,
    FMEM1_FILE,
    Fmem1Key(BT_ACTION, 3, {.id = BTN_FMEM1_COUPLE,   .caption = "Couple", .group = "Pair", .cmd = FMEM1("Couple")}),
    Fmem1Key(BT_ACTION, 4, {.id = BTN_FMEM1_SEPARATE, .caption = "Separate", .group = "Pair", .cmd = FMEM1("Separate")}),
    BT_END,
};
inline constexpr BT_TBL bt_fmem1_clip_file[] = {
    FMEM1_FOLDER,
    FMEM1_FILE,
    Fmem1Key(BT_TOGGLE, 3, {.id = BTN_FMEM1_ANCILLARY, .caption = "Ancillary", .group = "Clip", .cmd = FMEM1("Ancillary#*")}),
    BT_END,
};
#define FMEM1_FREEZE(unit) "Frame Mem@Edit@Freeze@Freeze@" unit "#*"
inline constexpr BT_TBL bt_fmem1_freeze[] = {
    FMEM1_FOLDER,
    // Followed all the time: the page must not end that.
    Fmem1Key(BT_TOGGLE, 0, {.id = 17, .caption = "Frame", .group = "Freeze 1", .cmd = {FMEM1_FREEZE("Frame@PROC1")}, .no_add = 1}),
    Fmem1Key(BT_TOGGLE, 1, {.id = 18, .caption = "Field", .group = "Freeze 1", .cmd = {FMEM1_FREEZE("Field@PROC1")}, .no_add = 1}),
    Fmem1Key(BT_TOGGLE, 2, {.id = 19, .caption = "Frame", .group = "Freeze 2", .cmd = {FMEM1_FREEZE("Frame@PROC2")}, .no_add = 1}),
    Fmem1Key(BT_TOGGLE, 3, {.id = 20, .caption = "Field", .group = "Freeze 2", .cmd = {FMEM1_FREEZE("Field@PROC2")}, .no_add = 1}),
    Fmem1Key(BT_ACTION, 4, {.id = BTN_FMEM1_STORE1, .caption = "Store\nFreeze 1", .group = "Store", .cmd = FMEM1("Store 1")}),
    Fmem1Key(BT_ACTION, 5, {.id = BTN_FMEM1_STORE2, .caption = "Store\nFreeze 2", .group = "Store", .cmd = FMEM1("Store 2")}),
    Toggle({.id = BTN_FMEM1_AUTO_STORE, .caption = "Auto\nStore", .x1 = 602, .y1 = 362, .x2 = 686, .y2 = 427, .cmd = FMEM1("Auto Store#*")}),
    BT_END,
};
#undef FMEM1_FREEZE
inline constexpr BT_TBL bt_fmem1_hdd[] = {
    Fmem1Key(BT_ACTION, 0, {.id = BTN_FMEM1_HDD_SAVE, .caption = "Save", .group = "External HDD", .cmd = FMEM1("External HDD@Save")}),
    Fmem1Key(BT_ACTION, 1, {.id = BTN_FMEM1_HDD_LOAD, .caption = "Load", .group = "External HDD", .cmd = FMEM1("External HDD@Load")}),
    BT_END,
};
#undef FMEM1_FILE
#undef FMEM1_RECALL
#undef FMEM1_FOLDER
#undef FMEM1
static_assert(ButtonsAreSound(bt_fmem1_still));
static_assert(ButtonsAreSound(bt_fmem1_clip));
static_assert(ButtonsAreSound(bt_fmem1_still_file));
static_assert(ButtonsAreSound(bt_fmem1_clip_file));
static_assert(ButtonsAreSound(bt_fmem1_freeze));
static_assert(ButtonsAreSound(bt_fmem1_hdd));

inline constexpr LS_TBL ls_fmem1[] = {
    {.id = FMEM1_LIST, .hn = 5, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name", "Main", "Sub", "Anc"},
     .width = {48, 86, 40, 40, 34}, .group = {1, 1, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_fmem1));

inline constexpr VF_TBL vf_fmem1[] = {
    {.id = 1, .caption = "Still", .page = 0x25110000},
    {.id = 2, .caption = "Clip", .page = 0x25210000},
    {.id = 3, .caption = "Freeze\nStore", .page = 0x25310000},
    {.id = 4, .caption = "External\nHDD", .page = 0x25620000},
    VF_END,
};
inline constexpr HF_TBL hf_fmem1_still[] = {
    {.id = 1, .caption = "Recall", .page = 0x25110000},
    {.id = 2, .caption = "File", .page = 0x25120000},
    {.id = 3, .caption = "Folder", .page = 0x25130000},
    HF_END,
};
inline constexpr HF_TBL hf_fmem1_clip[] = {
    {.id = 1, .caption = "Recall", .page = 0x25210000},
    {.id = 2, .caption = "File", .page = 0x25220000},
    HF_END,
};
inline constexpr HF_TBL hf_fmem1_freeze[] = {
    {.id = 1, .caption = "Freeze", .page = 0x25310000},
    HF_END,
};

inline constexpr HF_TBL hf_fmem1_hdd[] = {
    {.id = 1, .caption = "Save/\nLoad", .page = 0x25620000},
    HF_END,
};

extern const PC_TBL pc_fmem1; // pc_fmem1_page.cpp; its argument is a FMEM1KIND
extern const PC_TBL pc_fmem1_hdd; // pc_fmem1_hdd.cpp

constexpr PAGE Fmem1Page(uint32_t id, const char* group, const char* word, uint32_t left, const HF_TBL* bottom, uint32_t tab,
                         const BT_TBL* buttons, FMEM1KIND kind)
{
    return {.id = id, .tree = {"Frame Memory", group, word},
            .obj = {Base(base_main), LeftTabs(vf_fmem1, left), BottomTabs(bottom, tab), Buttons(buttons), Lists(ls_fmem1),
                    Code(pc_fmem1, kind)}};
}
inline constexpr PAGE fmem_store_pages[] = {
    Fmem1Page(0x25110000, "Still", "Recall", 1, hf_fmem1_still, 1, bt_fmem1_still, FMEM1_STILL),
    Fmem1Page(0x25120000, "Still", "File", 1, hf_fmem1_still, 2, bt_fmem1_still_file, FMEM1_STILL),
    {.id = 0x25130000, .tree = {"Frame Memory", "Still", "Folder"},
     .obj = {Base(base_main), LeftTabs(vf_fmem1, 1), BottomTabs(hf_fmem1_still, 3), Buttons(bt_file_folder), Lists(ls_file_folder),
             Code(pc_file2_folder)}},
    Fmem1Page(0x25210000, "Clip", "Recall", 2, hf_fmem1_clip, 1, bt_fmem1_clip, FMEM1_CLIP),
    Fmem1Page(0x25220000, "Clip", "File", 2, hf_fmem1_clip, 2, bt_fmem1_clip_file, FMEM1_CLIP),
    Fmem1Page(0x25310000, "Freeze/Store", nullptr, 3, hf_fmem1_freeze, 1, bt_fmem1_freeze, FMEM1_STILL),
    {.id = 0x25620000, .tree = {"Frame Memory", "External HDD"},
     .obj = {Base(base_file_main), LeftTabs(vf_fmem1, 4), BottomTabs(hf_fmem1_hdd, 1), Buttons(bt_fmem1_hdd), Code(pc_fmem1_hdd)}},
};
