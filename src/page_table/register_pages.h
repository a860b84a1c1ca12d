// register_pages: how the pages of a kind of stored registers are made. A menu has a group of seven pages for each kind,
// a page a shape; the kind says which columns its lists have. A row of RegisterGroup makes a group.
#pragma once
#include "pc_register.h"
#include "pc_register_columns.h"
#include "rows.h"
#include <array>
#include <iterator>

// --- Lists ---

// The rows of columns become a list of vn rows with its top left at (x, y).
constexpr LS_TBL RegisterList(int id, int x, int y, int vn, const RegisterColumn* columns, int view, int block)
{
    LS_TBL list{.id = id, .vn = vn, .x = x, .y = y, .view = view, .sb_top = y, .sb_bottom = y + LS_ROW_PX * (vn + 1), .block = block};
    for (; columns[list.hn].head; list.hn++) {
        list.head[list.hn] = columns[list.hn].head;
        list.width[list.hn] = columns[list.hn].width;
        list.group[list.hn] = 1;
    }
    return list;
}
struct RegisterLists {
    LS_TBL attribute[2]; // for display: the keys of the page act on one register
    LS_TBL single[2];
    LS_TBL dual[3]; // the second is where to: one row
};
constexpr RegisterLists ListsOf(const RegisterColumn* columns, const RegisterColumn* dual)
{
    return {{RegisterList(1, 100, 78, 11, columns, 1, 1), LS_END},
            {RegisterList(1, 100, 78, 12, columns, 0, 0), LS_END},
            {RegisterList(1, 100, 124, 11, dual, 0, 0), RegisterList(2, 405, 124, 11, dual, 0, 1), LS_END}};
}
constexpr bool RegisterListsAreSound(const RegisterLists& l)
{
    return ListsAreSound(l.attribute) && ListsAreSound(l.single) && ListsAreSound(l.dual);
}

// --- Keys. menu is the literal "LOCAL@Snapshot@" ---

// What a list of two shows, above it.
constexpr BT_TBL RegionChoice(int id, int x, const char* cmd)
{
    BT_TBL row{.id = id, .caption = "", .x1 = x, .y1 = 76, .x2 = x + 100, .y2 = 121, .cmd = {cmd}};
    return Typed(row, BT_PULLDOWN);
}

#define REG_REGION(menu, shape) JumpPopUp({.id = BTN_REGISTER_REGION, .caption = "Region", .cmd = {menu shape "@Region"}})
#define REG_RECALL_AT(place, menu, shape) Action({.id = place, .caption = "Recall", .cmd = {menu shape "@Recall"}})
#define REG_RECALL(menu, shape) REG_RECALL_AT(50, menu, shape)
#define REG_TWO_REGIONS(menu, shape) RegionChoice(BTN_REGISTER_REGION_1, 100, menu shape "@Region 1"), \
                                     RegionChoice(BTN_REGISTER_REGION_2, 405, menu shape "@Region 2")
#define REG_WO_NAME(menu, shape) Toggle({.id = BTN_REGISTER_WO_NAME, .caption = "W/o\nName", .cmd = {menu shape "@W/o Name#*"}})
#define REG_CORRECT(menu, shape) Toggle({.id = BTN_REGISTER_AUTO_CORRECT, .caption = "MP2 Auto\nCorrect", .cmd = {menu shape "@MP2 Auto Correct#*"}})

// The keys of a group. A shape without keys of its own takes those of the menu.
struct RegisterKeys {
    const BT_TBL* shape[REGSHAPES];
};

// The tables of a menu: those of kinds with regions, and those of kinds without ("plain"). Attribute pages have theirs
// written out where the kind is.
#define REG_KEY_TABLES(menu, name)                                                                                      \
    inline constexpr BT_TBL bt_##name##_lock[] = {                                                                      \
        REG_REGION(menu, "Lock"), REG_RECALL(menu, "Lock"),                                                             \
        Action({.id = 51, .caption = "Lock", .cmd = {menu "Lock@Lock"}}), BT_END};                                      \
    inline constexpr BT_TBL bt_##name##_delete[] = {                                                                    \
        REG_REGION(menu, "Delete"), REG_RECALL(menu, "Delete"),                                                         \
        Action({.id = 51, .caption = "Delete", .cmd = {menu "Delete@Delete"}}), BT_END};                                \
    inline constexpr BT_TBL bt_##name##_rename[] = {                                                                    \
        REG_REGION(menu, "Rename"), REG_RECALL(menu, "Rename"),                                                         \
        Action({.id = 51, .caption = "Rename", .cmd = {menu "Rename@Rename"}}), BT_END};                                \
    inline constexpr BT_TBL bt_##name##_copy[] = {                                                                      \
        REG_TWO_REGIONS(menu, "Copy"), Action({.id = 49, .caption = "Copy", .cmd = {menu "Copy@Copy"}}),                \
        REG_WO_NAME(menu, "Copy"), BT_END};                                                                             \
    inline constexpr BT_TBL bt_##name##_move[] = {                                                                      \
        REG_TWO_REGIONS(menu, "Move"), Action({.id = 49, .caption = "Move", .cmd = {menu "Move@Move"}}),                \
        REG_WO_NAME(menu, "Move"), BT_END};                                                                             \
    inline constexpr BT_TBL bt_##name##_swap[] = {                                                                      \
        REG_TWO_REGIONS(menu, "Swap"), Action({.id = 49, .caption = "Swap", .cmd = {menu "Swap@Swap"}}),                \
        REG_WO_NAME(menu, "Swap"), BT_END};                                                                             \
    static_assert(ButtonsAreSound(bt_##name##_lock) && ButtonsAreSound(bt_##name##_copy) &&                             \
                  ButtonsAreSound(bt_##name##_move) && ButtonsAreSound(bt_##name##_swap) &&                             \
                  ButtonsAreSound(bt_##name##_delete) && ButtonsAreSound(bt_##name##_rename));

// The same without regions.
#define REG_PLAIN_KEY_TABLES(menu, name)                                                                                \
    inline constexpr BT_TBL bt_##name##_lock[] = {                                                                      \
        REG_RECALL_AT(49, menu, "Lock"), Action({.id = 50, .caption = "Lock", .cmd = {menu "Lock@Lock"}}), BT_END};            \
    inline constexpr BT_TBL bt_##name##_delete[] = {                                                                    \
        REG_RECALL_AT(49, menu, "Delete"), Action({.id = 50, .caption = "Delete", .cmd = {menu "Delete@Delete"}}), BT_END};    \
    inline constexpr BT_TBL bt_##name##_rename[] = {                                                                    \
        REG_RECALL_AT(49, menu, "Rename"), Action({.id = 50, .caption = "Rename", .cmd = {menu "Rename@Rename"}}), BT_END};    \
    inline constexpr BT_TBL bt_##name##_copy[] = {                                                                      \
        Action({.id = 49, .caption = "Copy", .cmd = {menu "Copy@Copy"}}), REG_WO_NAME(menu, "Copy"), BT_END};           \
    inline constexpr BT_TBL bt_##name##_move[] = {                                                                      \
        Action({.id = 49, .caption = "Move", .cmd = {menu "Move@Move"}}), REG_WO_NAME(menu, "Move"), BT_END};           \
    inline constexpr BT_TBL bt_##name##_swap[] = {                                                                      \
        Action({.id = 49, .caption = "Swap", .cmd = {menu "Swap@Swap"}}), REG_WO_NAME(menu, "Swap"), BT_END};           \
    static_assert(ButtonsAreSound(bt_##name##_lock) && ButtonsAreSound(bt_##name##_copy) &&                             \
                  ButtonsAreSound(bt_##name##_move) && ButtonsAreSound(bt_##name##_swap) &&                             \
                  ButtonsAreSound(bt_##name##_delete) && ButtonsAreSound(bt_##name##_rename));

// In the order of REGSHAPE; first is the first page's table.
#define REG_KEYS(first, name)                                                                                           \
    {{first, bt_##name##_lock, bt_##name##_copy, bt_##name##_move, bt_##name##_swap, bt_##name##_delete, bt_##name##_rename}}

// The temporary duration of a first page.
inline constexpr NB_TBL nb_register_duration[] = {
    {.id = 1, .caption = "Temp\nDuration", .type = NB_INT, .min = 0, .max = 999, .cmd = "Panel@Common@Knob0", .scale = 1},
    NB_END,
};
static_assert(BoxesAreSound(nb_register_duration));

// --- Pages ---

struct RegisterGroup {
    uint32_t id;         // of the group: 0x63200000
    REGKIND kind;
    const char* menu;    // first word of the path
    const char* word;    // second word
    const char* first;   // third word of the first page
    const VF_TBL* left;
    uint32_t tab;        // of the left ones
    const HF_TBL* bottom;
    const RegisterLists* lists;
    RegisterKeys keys;
    const NB_TBL* knobs = NB_Non; // of the first page; its RegisterExtra answers them
};
inline constexpr const char* register_shape_words[REGSHAPES] = {nullptr, "Lock", "Copy", "Move", "Swap", "Delete", "Rename"};

// The tabs of a group at the bottom, in the order of REGSHAPE.
#define REG_BOTTOM_TABS(pages, first, copy) {                                                                              \
    {.id = 1, .caption = first,    .page = (pages) + 0x10000}, {.id = 2, .caption = "Lock",   .page = (pages) + 0x20000},     \
    {.id = 3, .caption = copy,     .page = (pages) + 0x30000}, {.id = 4, .caption = "Move",   .page = (pages) + 0x40000},     \
    {.id = 5, .caption = "Swap",   .page = (pages) + 0x50000}, {.id = 6, .caption = "Delete", .page = (pages) + 0x60000},     \
    {.id = 7, .caption = "Rename", .page = (pages) + 0x70000}, HF_END}

constexpr PAGE RegisterPage(const RegisterGroup& g, REGSHAPE shape)
{
    const LS_TBL* lists = shape == REGSHAPE_ATTRIBUTE                            ? g.lists->attribute
                          : shape >= REGSHAPE_COPY && shape <= REGSHAPE_SWAP ? g.lists->dual
                                                                               : g.lists->single;
    const char* word = shape == REGSHAPE_ATTRIBUTE ? g.first : register_shape_words[shape];
    return {.id = g.id + 0x10000 * (uint32_t(shape) + 1), .tree = {g.menu, g.word, word},
            .obj = {Base(base_main), LeftTabs(g.left, g.tab), BottomTabs(g.bottom, uint32_t(shape) + 1),
                    Buttons(g.keys.shape[shape]), Lists(lists),
                    Boxes(shape == REGSHAPE_ATTRIBUTE ? g.knobs : NB_Non), Code(pc_register, RegisterPageVar(g.kind, shape))}};
}

template <size_t N> constexpr auto RegisterRows(const RegisterGroup (&groups)[N])
{
    std::array<PAGE, N * REGSHAPES> rows{};
    size_t n = 0;
    for (const RegisterGroup& g : groups)
        for (int shape = 0; shape < REGSHAPES; shape++) rows[n++] = RegisterPage(g, REGSHAPE(shape));
    return rows;
}

// A group of which only some shapes have a page.
template <size_t N> constexpr auto RegisterRows(const RegisterGroup& group, const REGSHAPE (&shapes)[N])
{
    std::array<PAGE, N> rows{};
    for (size_t i = 0; i < N; i++) rows[i] = RegisterPage(group, shapes[i]);
    return rows;
}

// --- The overview of a menu ---
#define REG_STATUS_KEYS(menu) {                                                                                         \
    Action({.id = 49, .caption = "Recall", .cmd = {menu "Recall@Recall"}}),                                             \
    Action({.id = 50, .caption = "Lock",   .cmd = {menu "Lock@Lock"}}),                                                 \
    Action({.id = 51, .caption = "Rename", .cmd = {menu "Rename@Rename"}}),                                             \
    Toggle({.id = 52, .caption = "Copy\nFrom", .cmd = {menu "Copy@From"}}),                                             \
    Action({.id = 53, .caption = "Copy\nTo",   .cmd = {menu "Copy@To"}}),                                               \
    Action({.id = 54, .caption = "Delete", .cmd = {menu "Delete@Delete"}}), BT_END}

inline constexpr NB_TBL nb_register_status[] = {
    {.id = 1, .caption = "Register", .type = NB_INT, .min = 1, .max = REGISTERS, .cmd = "Panel@Common@Knob0", .scale = 1},
    NB_END,
};
static_assert(BoxesAreSound(nb_register_status));

constexpr PAGE RegisterStatusPage(uint32_t id, const char* menu, REGKIND kind, const VF_TBL* left, uint32_t tab, const BT_TBL* keys)
{
    return {.id = id, .tree = {menu, "Status"},
            .obj = {Base(base_main), LeftTabs(left, tab), Buttons(keys), Boxes(nb_register_status), Code(pc_register_status, kind)}};
}

// --- The edit page of a master or shotbox. menu is the literal up to "Edit@" ---
#define REG_EDIT_KEYS(menu) REG_EDIT_KEYS_WITH(Action({.id = 50, .caption = "SWR\nALL", .cmd = {menu "SWR All"}}), menu)
#define REG_EDIT_KEYS_WITH(second, menu) {                                                                              \
    Action({.id = 49, .caption = "ALL",       .cmd = {menu "All"}}), second,                                            \
    Action({.id = 51, .caption = "Assign",    .cmd = {menu "Assign"}}),                                                 \
    Action({.id = 52, .caption = "Recall",    .cmd = {menu "Recall"}}),                                                 \
    Action({.id = 53, .caption = "Store",     .cmd = {menu "Store@Store"}}),                                            \
    Action({.id = 54, .caption = "Undo",      .cmd = {menu "Store@Undo"}}), BT_END}

inline constexpr NB_TBL nb_register_edit_effect[] = { // devices have more registers
    {.id = 1, .caption = "Register", .type = NB_INT, .min = 0, .max = REGISTERS_EFFECT, .cmd = "Panel@Common@Knob0", .scale = 1},
    NB_END,
};
inline constexpr NB_TBL nb_register_edit[] = {
    {.id = 1, .caption = "Register", .type = NB_INT, .min = 0, .max = REGISTERS, .cmd = "Panel@Common@Knob0", .scale = 1},
    NB_END,
};
static_assert(BoxesAreSound(nb_register_edit) && BoxesAreSound(nb_register_edit_effect));

constexpr PAGE RegisterEditPage(const RegisterGroup& g, const BT_TBL* keys, const NB_TBL* knobs = nb_register_edit)
{
    return {.id = g.id + 0x10001, .tree = {g.menu, g.word, g.first, "Edit"},
            .obj = {Base(base_sub, g.id + 0x10000), LeftTabs(g.left, g.tab), BottomTabs(g.bottom, 1), Buttons(keys),
                    Boxes(knobs), Code(pc_register_edit, g.kind)}};
}
