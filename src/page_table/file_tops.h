// file_tops: the empty top pages of the tabs. While a transfer runs in the background, the pages that it does not
// permit open the top page of their tab instead, which says so.
#pragma once
#include "file_dual.h"
#include "file_tabs.h"
#include "pc_file_bkgd.h"
#include "rows.h"
#include <array>

// Tabs of one menu without rows of their own here, as bits 31..20.
struct EmptyTops {
    uint32_t first;
    uint32_t last;
    const char* word;
    uint32_t page; // that they make way for; 0: the first one of each tab
};
inline constexpr EmptyTops empty_tops[] = {
    {0x211, 0x216, "Frame Memory", 0x21110000},
    {0x251, 0x256, "Frame Memory", 0x21110000},
    {0x311, 0x311, "Copy/Swap", 0x31110000},
    {0x541, 0x541, "Macro", 0x54120000},
    {0x542, 0x542, "Macro", 0x54210000},
    {0x543, 0x543, "Macro", 0x54310000},
    {0x544, 0x544, "Macro", 0x54410000},
    {0x621, 0x626, "Effect", 0},
    {0x631, 0x635, "Snapshot", 0},
    {0x641, 0x641, "Shotbox", 0},
    {0x731, 0x731, "Engineering Setup", 0x73110000},
    {0x741, 0x743, "Diag", 0x74110000},
};

struct FileTop {
    uint32_t left; // id in vf_file
    const HF_TBL* bottom;
    const char* word;
};
inline constexpr FileTop file_tops[] = {
    {1, hf_file_setup, "Setup"},   {2, hf_file_effect, "Effect"},         {3, hf_file_snapshot, "Snapshot"},
    {4, hf_file_macro, "Macro"},   {5, hf_file_frame, "Frame Memory"},    {6, hf_file_xport, "Import/Export"},
    {7, hf_file_names, "Directory"},
};

constexpr uint32_t FileTab(uint32_t left)
{
    for (const VF_TBL& tab : vf_file)
        if (uint32_t(tab.id) == left) return tab.page;
    return 0;
}

constexpr size_t EmptyTopCount()
{
    size_t count = std::size(file_tops);
    for (const EmptyTops& t : empty_tops) count += t.last - t.first + 1;
    return count;
}

constexpr auto EmptyTopRows()
{
    std::array<PAGE, EmptyTopCount()> rows{};
    size_t n = 0;
    for (const EmptyTops& t : empty_tops)
        for (uint32_t tab = t.first; tab <= t.last; tab++)
            rows[n++] = {.id = tab << 20, .tree = {t.word}, .obj = {Base(base_main), Code(pc_file_bkgdfiletransfer, t.page)}};
    for (const FileTop& t : file_tops)
        rows[n++] = {.id = 0x71000000 | t.left << 20, .tree = {"File", t.word},
                     .obj = {Base(base_main), LeftTabs(vf_file, t.left), BottomTabs(t.bottom, 0),
                             Code(pc_file_bkgdfiletransfer, FileTab(t.left))}};
    return rows;
}
inline constexpr auto file_top_pages = EmptyTopRows();
