// copyswap: copy and swap: what banks, keys, wipes, mattes, effects channels and colour backgrounds have is given to
// another of their kind. One shape of page: from on the left, to on the right, the parts, and what is done with them.
#pragma once
#include "pc_copyswap.h"
#include "rows.h"

inline constexpr VF_TBL vf_copyswap[] = {
    {.id = 1, .caption = "Copy/\nSwap",   .page = 0x31110000},
    {.id = 2, .caption = "DME\nEffect",   .page = 0x31210000},
    VF_END,
};
inline constexpr HF_TBL hf_copyswap[] = {
    {.id = 1, .caption = "M/E",           .page = 0x31110000},
    {.id = 2, .caption = "Key",           .page = 0x31120000},
    {.id = 3, .caption = "Wipe",          .page = 0x31130000},
    {.id = 4, .caption = "DME Wipe",      .page = 0x31140000},
    {.id = 5, .caption = "Matte/\nColor", .page = 0x31150000},
    {.id = 6, .caption = "DME\nChannel",  .page = 0x31160000},
    {.id = 7, .caption = "Color\nBkgd",   .page = 0x31170000},
    HF_END,
};

// --- Lists: name and two columns, or one wide column ---

struct CopyLists { LS_TBL row[3]; };
constexpr LS_TBL CopyList(int id, const char* title, const char* first, const char* second, int name_width)
{
    constexpr int WIDTH = 248, ROWS = 11;
    const int rest = WIDTH - name_width;
    LS_TBL list{.id = id, .hn = second ? 3 : 2, .vn = ROWS, .x = id == 1 ? 100 : 404, .y = 76};
    list.head[0] = title;
    list.head[1] = first;
    list.head[2] = second;
    list.width[0] = name_width;
    list.width[1] = second ? rest / 2 : rest;
    list.width[2] = second ? rest - rest / 2 : 0;
    list.block = 1; // one at a time
    list.sb_top = list.y;
    list.sb_bottom = list.y + LS_ROW_PX * (list.vn + 1);
    return list;
}
constexpr CopyLists FromAndTo(int name_width, const char* first, const char* second = nullptr)
{
    return {{CopyList(1, "From", first, second, name_width), CopyList(2, "To", first, second, name_width), LS_END}};
}
inline constexpr CopyLists ls_copy_me = FromAndTo(72, "A Bus", "B Bus");
inline constexpr CopyLists ls_copy_key = FromAndTo(96, "Type", "Source");
inline constexpr CopyLists ls_copy_wipe = FromAndTo(96, "Main", "Sub");
inline constexpr CopyLists ls_copy_dmewipe = FromAndTo(96, "Pattern");
inline constexpr CopyLists ls_copy_matte = FromAndTo(132, "Mode", "Hue");
inline constexpr CopyLists ls_copy_channel = FromAndTo(72, "Used By");
static_assert(ListsAreSound(ls_copy_me.row) && ListsAreSound(ls_copy_key.row) && ListsAreSound(ls_copy_wipe.row));
static_assert(ListsAreSound(ls_copy_dmewipe.row) && ListsAreSound(ls_copy_matte.row) && ListsAreSound(ls_copy_channel.row));

// --- Keys ---

constexpr BT_TBL CopyPartKey(int n, const char* caption, const char* cmd)
{
    constexpr int FIRST_LINE = 6, NEXT_LINE = 52; // behind "Undo"
    const int id = n < FIRST_LINE ? BTN_COPY_ALL + n : NEXT_LINE + n - FIRST_LINE;
    return Toggle({.id = id, .caption = caption, .group = n < FIRST_LINE ? "Parts" : "@Parts", .cmd = {cmd}});
}
inline constexpr BT_TBL copy_run_keys[] = {
    Action({.id = BTN_COPY,      .caption = "Copy", .group = "Execute", .cmd = {COPY_LOCAL "Copy#*"}}),
    Action({.id = BTN_SWAP,      .caption = "Swap", .group = "Execute", .cmd = {COPY_LOCAL "Swap#*"}}),
    Action({.id = BTN_COPY_UNDO, .caption = "Undo", .group = "Undo", .cmd = {"~@Undo#*", "~@Undo Enable#false"}}),
};
template <size_t N> struct CopyKeys { BT_TBL row[N]; };
template <size_t N> constexpr auto CopyKeysOf(const CopyPart (&parts)[N])
{
    static_assert(N <= COPY_PARTS_MAX);
    CopyKeys<N + std::size(copy_run_keys) + 2> keys{};
    size_t n = 0;
    keys.row[n++] = CopyPartKey(0, "All", COPY_LOCAL "Part@All#*");
    for (size_t i = 0; i < N; i++) keys.row[n++] = CopyPartKey(int(i) + 1, parts[i].caption, parts[i].cmd);
    for (const BT_TBL& key : copy_run_keys) keys.row[n++] = key;
    keys.row[n] = BT_END;
    return keys;
}
inline constexpr auto bt_copy_me = CopyKeysOf(copy_me_parts);
inline constexpr auto bt_copy_key = CopyKeysOf(copy_key_parts);
inline constexpr auto bt_copy_wipe = CopyKeysOf(copy_wipe_parts);
inline constexpr auto bt_copy_dmewipe = CopyKeysOf(copy_dmewipe_parts);
inline constexpr auto bt_copy_matte = CopyKeysOf(copy_matte_parts);
inline constexpr auto bt_copy_dme = CopyKeysOf(copy_dme_parts);
inline constexpr auto bt_copy_dme_1080p = CopyKeysOf(copy_dme_1080p_parts);
inline constexpr BT_TBL bt_copy_channel[] = {copy_run_keys[0], copy_run_keys[1], copy_run_keys[2], BT_END};
static_assert(ButtonsAreSound(bt_copy_me.row) && ButtonsAreSound(bt_copy_key.row) && ButtonsAreSound(bt_copy_wipe.row));
static_assert(ButtonsAreSound(bt_copy_dmewipe.row) && ButtonsAreSound(bt_copy_matte.row) && ButtonsAreSound(bt_copy_dme.row));
static_assert(ButtonsAreSound(bt_copy_dme_1080p.row) && ButtonsAreSound(bt_copy_channel));

// --- The way in ---

inline constexpr BT_TBL bt_copyswap_top[] = {
    Jump({.id = 17, .caption = "M/E",           .group = "Switcher", .cmd = {"#31110000"}}),
    Jump({.id = 18, .caption = "Key",           .group = "Switcher", .cmd = {"#31120000"}}),
    Jump({.id = 19, .caption = "Wipe",          .group = "Switcher", .cmd = {"#31130000"}}),
    Jump({.id = 20, .caption = "DME Wipe",      .group = "Switcher", .cmd = {"#31140000"}}),
    Jump({.id = 33, .caption = "Matte/\nColor", .group = "Color", .cmd = {"#31150000"}}),
    Jump({.id = 34, .caption = "Color\nBkgd",   .group = "Color", .cmd = {"#31170000"}}),
    Jump({.id = 36, .caption = "DME\nChannel",  .group = "Effects", .cmd = {"#31160000"}}),
    Jump({.id = 37, .caption = "DME\nEffect",   .group = "Effects", .cmd = {"#31210000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu",     .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_copyswap_top));

// The code comes last: it greys the keys that it finds.
constexpr PAGE CopyTab(uint32_t tab, const char* word, const CopyLists& lists, const BT_TBL* keys, const PC_TBL& code)
{
    return {.id = 0x31100000 + (tab << 16), .tree = {"Copy/Swap", word},
            .obj = {Base(base_main), LeftTabs(vf_copyswap, 1), BottomTabs(hf_copyswap, tab), Lists(lists.row), Buttons(keys), Code(code)}};
}
inline constexpr PAGE copyswap_pages[] = {
    {.id = 0x31000000, .tree = {"Copy/Swap"}, .obj = {Base(base_main), Buttons(bt_copyswap_top)}},
    CopyTab(1, "M/E", ls_copy_me, bt_copy_me.row, pc_copyswap_me),
    CopyTab(2, "Key", ls_copy_key, bt_copy_key.row, pc_copyswap_key),
    CopyTab(3, "Wipe", ls_copy_wipe, bt_copy_wipe.row, pc_copyswap_wipe),
    CopyTab(4, "DME Wipe", ls_copy_dmewipe, bt_copy_dmewipe.row, pc_copyswap_dmewipe),
    CopyTab(5, "Matte/Color", ls_copy_matte, bt_copy_matte.row, pc_copyswap_matte),
    CopyTab(6, "DME Channel", ls_copy_channel, bt_copy_channel, pc_copyswap_channel),
    CopyTab(7, "Color Bkgd", ls_copy_matte, bt_copy_matte.row, pc_copyswap_bkgd),
    {.id = 0x31210000, .tree = {"Copy/Swap", "DME Effect"},
     .obj = {Base(base_main), LeftTabs(vf_copyswap, 2), Lists(ls_copy_channel.row), Buttons(bt_copy_dme.row), Code(pc_copyswap_effect)}},
    {.id = 0x31210100, .tree = {"Copy/Swap", "DME Effect"},
     .obj = {Base(base_main), LeftTabs(vf_copyswap, 2), Lists(ls_copy_channel.row), Buttons(bt_copy_dme_1080p.row), Code(pc_copyswap_effect_1080p)}},
};
