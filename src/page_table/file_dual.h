// file_dual: the pages of two lists in the File menu and the detail page of each. They stand once, as a template; what
// a page is of is a row of file_dual_list.
#pragma once
#include "file_tabs.h"
#include "pc_file_dual.h"
#include "rows.h"
#include <array>
#include <iterator>

// What a side shows, above its list.
constexpr BT_TBL FileChoice(int x, BT_TBL row)
{
    row.x1 = x;
    row.y1 = 76;
    row.x2 = x + 100;
    row.y2 = 76 + 45;
    return Typed(row, BT_PULLDOWN);
}

// 101 x 46: wider than the grid's keys, so they have a pitch of their own.
constexpr BT_TBL FileMove(int type, int x, BT_TBL row)
{
    row.x1 = x;
    row.y1 = 456;
    row.x2 = x + 100;
    row.y2 = 456 + 45;
    return Typed(row, type);
}

#define FILE_SINGLE(word) {"LOCAL@File@Single@" word}
#define FILE_DUAL_BUTTONS(b)                                                                                           \
    FileChoice(100, {.id = BTN_FILE_DEVICE_A, .caption = "", .cmd = FILE_SINGLE("Device A")}),                           \
    FileChoice(204, {.id = BTN_FILE_DIR_A, .caption = "", .cmd = FILE_SINGLE("Dir A")}),                                 \
    FileChoice(b, {.id = BTN_FILE_DEVICE_B, .caption = "", .cmd = FILE_SINGLE("Device B")}),                           \
    FileChoice(b + 104, {.id = BTN_FILE_DIR_B, .caption = "", .cmd = FILE_SINGLE("Dir B")}),                                 \
    Jump({.id = BTN_FILE_DETAIL_A, .caption = "Detail", .cmd = FILE_SINGLE("Detail A")}),                              \
    FileMove(BT_TRANSFER_RIGHT, 240, {.id = BTN_FILE_L_TO_R, .caption = "L to R", .cmd = FILE_SINGLE("L to R")}),           \
    FileMove(BT_TRANSFER_LEFT, 355, {.id = BTN_FILE_R_TO_L, .caption = "R to L", .cmd = FILE_SINGLE("R to L")}),            \
    Jump({.id = BTN_FILE_DETAIL_B, .caption = "Detail", .cmd = FILE_SINGLE("Detail B")})

inline constexpr BT_TBL bt_file_dual[] = {
    FILE_DUAL_BUTTONS(405),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_dual));

// The effects: a third key between the two of the transfer and the details.
inline constexpr BT_TBL bt_file_dual3[] = {
    FILE_DUAL_BUTTONS(405),
    Toggle({.id = BTN_FILE_PATCH_LINK, .caption = "Src Patch\nLink", .cmd = {"LOCAL@File@All@Src Patch Link"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_dual3));

// The newer frame memory: the lists have marks of folders at places of their own.
inline constexpr BT_TBL bt_file_frame[] = {
    FILE_DUAL_BUTTONS(450),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_frame));

#define FILE_DETAIL_BUTTONS                                                                                             \
    FileChoice(100, {.id = BTN_FILE_DEVICE_C, .caption = "", .cmd = FILE_SINGLE("Device C")}),                           \
    FileChoice(204, {.id = BTN_FILE_DIR_C, .caption = "", .cmd = FILE_SINGLE("Dir C")}),                                 \
    Action({.id = BTN_FILE_RENAME, .caption = "Rename", .group = "File", .cmd = FILE_SINGLE("Rename")}),                 \
    Action({.id = BTN_FILE_DELETE, .caption = "Delete", .group = "File", .cmd = FILE_SINGLE("Delete")})
inline constexpr BT_TBL bt_file_detail[] = {FILE_DETAIL_BUTTONS, BT_END};
// The macros: into the editor of a register.
inline constexpr BT_TBL bt_file_macro_detail[] = {
    FILE_DETAIL_BUTTONS,
    Action({.id = BTN_FILE_EDIT, .caption = "Offline\nEdit", .cmd = FILE_SINGLE("OfflineEdit")}),
    BT_END,
};
inline constexpr BT_TBL bt_file_menu_macro_detail[] = {
    FILE_DETAIL_BUTTONS,
    Action({.id = BTN_FILE_EDIT, .caption = "Menu\nMacro\nEdit", .cmd = FILE_SINGLE("MenuMacroEdit")}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_detail));
static_assert(ButtonsAreSound(bt_file_macro_detail));
static_assert(ButtonsAreSound(bt_file_menu_macro_detail));
#undef FILE_DUAL_BUTTONS
#undef FILE_DETAIL_BUTTONS
#undef FILE_SINGLE

inline constexpr LS_TBL ls_file_dual[] = {
    {.id = 1, .hn = 3, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name", "Date"}, .width = {30, 96, 122},
     .group = {1, 1, 999}, .sb_top = 124, .sb_bottom = 388},
    {.id = 2, .hn = 3, .vn = 11, .x = 405, .y = 124, .head = {"No", "Name", "Date"}, .width = {30, 96, 122},
     .group = {1, 1, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_dual));

// The columns of the regions get their titles from the group.
inline constexpr LS_TBL ls_file_detail[] = {
    {.id = 1, .hn = 11, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name", "Date"},
     .width = {30, 96, 122, 37, 37, 37, 37, 38, 37, 37, 42}, .group = {3, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_detail));

// The marks of folders stand at x 150 and 500.
inline constexpr LS_TBL ls_file_frame[] = {
    {.id = 1, .hn = 3, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name", "Date"}, .width = {45, 80, 80},
     .group = {1, 1, 999}, .sb_top = 124, .sb_bottom = 388},
    {.id = 2, .hn = 3, .vn = 11, .x = 450, .y = 124, .head = {"No", "Name", "Date"}, .width = {45, 80, 80},
     .group = {1, 1, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_frame));

inline constexpr LS_TBL ls_file_frame_detail[] = {
    {.id = 1, .hn = 4, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name", "Date"}, .width = {45, 323, 122, 60},
     .group = {3, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_frame_detail));

inline constexpr HF_TBL hf_file_effect[] = {
    {.id = 1, .caption = "Effect\n1-99", .page = 0x71210000},
    {.id = 2, .caption = "User DME\nWipe Eff\n101-199", .page = 0x71220000},
    {.id = 3, .caption = "User DME\nWipe Eff\n201-299", .page = 0x71230000},
    {.id = 4, .caption = "User DME\nWipe Eff\n301-399", .page = 0x71240000},
    {.id = 5, .caption = "DEV/PBUS\nEffect\n1-250", .page = 0x71250000},
    HF_END,
};
inline constexpr HF_TBL hf_file_snapshot[] = {
    {.id = 1, .caption = "Snapshot", .page = 0x71310000},
    {.id = 2, .caption = "Wipe\nSnapshot", .page = 0x71320000},
    {.id = 3, .caption = "DME Wipe\nSnapshot", .page = 0x71330000},
    {.id = 4, .caption = "Key\nSnapshot", .page = 0x71340000},
    HF_END,
};
inline constexpr HF_TBL hf_file_macro[] = {
    {.id = 1, .caption = "Shotbox", .page = 0x71410000},
    {.id = 2, .caption = "Macro", .page = 0x71420000},
    {.id = 3, .caption = "Macro\nAttach-\nment", .page = 0x71430000},
    {.id = 4, .caption = "Menu\nMacro", .page = 0x71440000},
    HF_END,
};
inline constexpr HF_TBL hf_file_frame[] = {
    {.id = 1, .caption = "Frame\nMemory", .page = 0x71510000},
    {.id = 2, .caption = "Folder", .page = 0x71520000},
    {.id = 3, .caption = "Frame\nMemory\nData", .page = 0x71530000},
    {.id = 4, .caption = "Field\nInvert", .page = 0x71540000},
    HF_END,
};

// One group of the menu: its tab at the left, its tabs at the bottom.
struct FileGroup {
    uint32_t left;
    const HF_TBL* bottom;
};
inline constexpr FileGroup file_group_setup = {1, hf_file_setup};
inline constexpr FileGroup file_group_effect = {2, hf_file_effect};
inline constexpr FileGroup file_group_snapshot = {3, hf_file_snapshot};
inline constexpr FileGroup file_group_macro = {4, hf_file_macro};
inline constexpr FileGroup file_group_frame = {5, hf_file_frame};
inline constexpr FileGroup file_group_names = {7, hf_file_names};

struct FileDual {
    uint32_t id;
    FILEPAGE page;
    const char* word;
    const FileGroup* group;
    uint32_t tab;
    const BT_TBL* buttons = bt_file_dual;
    const LS_TBL* lists = ls_file_dual;
    const LS_TBL* detail_lists = ls_file_detail;
    const BT_TBL* detail_buttons = bt_file_detail;
};
inline constexpr FileDual file_dual_list[] = {
    {0x71120000, FILEPAGE_SETUP, "Setup", &file_group_setup, 2},
    {0x71130000, FILEPAGE_INITSTAT, "Initial Status", &file_group_setup, 3},
    {0x71140000, FILEPAGE_KEYMEM, "Key Memory", &file_group_setup, 4},
    {0x71150000, FILEPAGE_VPROCMEM, "Video Process Memory", &file_group_setup, 5},
    {0x71160000, FILEPAGE_USERSETUP, "User Setup", &file_group_setup, 6},
    {0x71210000, FILEPAGE_EFFECT, "Effect 1-99", &file_group_effect, 1, bt_file_dual3},
    {0x71220000, FILEPAGE_EFF100, "User DME Wipe Effect 101-199", &file_group_effect, 2},
    {0x71230000, FILEPAGE_EFF200, "User DME Wipe Effect 201-299", &file_group_effect, 3},
    {0x71240000, FILEPAGE_EFF300, "User DME Wipe Effect 301-399", &file_group_effect, 4},
    {0x71250000, FILEPAGE_EFFECT_EX, "DEV/PBUS Effect 1-250", &file_group_effect, 5, bt_file_dual3},
    {0x71310000, FILEPAGE_SNAPSHOT, "Snapshot", &file_group_snapshot, 1},
    {0x71320000, FILEPAGE_WIPESS, "Wipe Snapshot", &file_group_snapshot, 2},
    {0x71330000, FILEPAGE_DMESS, "DME Wipe Snapshot", &file_group_snapshot, 3},
    {0x71340000, FILEPAGE_KEYSS, "Key Snapshot", &file_group_snapshot, 4},
    {0x71410000, FILEPAGE_SHOTBOX, "Shotbox", &file_group_macro, 1},
    {0x71420000, FILEPAGE_MACRO, "Macro", &file_group_macro, 2, bt_file_dual, ls_file_dual, ls_file_detail, bt_file_macro_detail},
    {0x71430000, FILEPAGE_MACROATC, "Macro Attachment", &file_group_macro, 3},
    {0x71440000, FILEPAGE_MENU_MACRO, "Menu Macro", &file_group_macro, 4, bt_file_dual, ls_file_dual, ls_file_detail, bt_file_menu_macro_detail},
    {0x71530000, FILEPAGE_FNAMEDATA, "Frame Memory Data", &file_group_frame, 3},
    {0x71740000, FILEPAGE_XPTSRCNAME, "Xpt Source Name", &file_group_names, 4},
    {0x71750000, FILEPAGE_IMPORTSRCNAME, "Import Source Name", &file_group_names, 5},
    {0x71510100, FILEPAGE_FMEM, "Frame Memory", &file_group_frame, 1},
    {0x71510200, FILEPAGE_FMEM_V6, "Frame Memory", &file_group_frame, 1, bt_file_frame, ls_file_frame, ls_file_frame_detail},
};
static_assert(std::size(file_dual_list) == FILEPAGES);

constexpr PAGE FileDualPage(const FileDual& f)
{
    return {.id = f.id, .tree = {"File", f.word},
            .obj = {Base(base_file_main), LeftTabs(vf_file, f.group->left), BottomTabs(f.group->bottom, f.tab),
                    Buttons(f.buttons), Lists(f.lists), Code(pc_file_dual, f.page)}};
}

constexpr PAGE FileDetailPage(const FileDual& f)
{
    return {.id = f.id + 1, .tree = {"File", f.word, "Detail"},
            .obj = {Base(base_file_sub, f.id), LeftTabs(vf_file, f.group->left), BottomTabs(f.group->bottom, f.tab),
                    Buttons(f.detail_buttons), Lists(f.detail_lists), Code(pc_file_detail, f.page)}};
}

constexpr auto FileDualRows()
{
    std::array<PAGE, 2 * FILEPAGES> rows{};
    size_t n = 0;
    for (const FileDual& f : file_dual_list) {
        rows[n++] = FileDualPage(f);
        rows[n++] = FileDetailPage(f);
    }
    return rows;
}
inline constexpr auto file_dual_pages = FileDualRows();
