// pulldowns: the lists behind tab buttons. A tab's cmd[0] is the name; the choice is put to cmd as it stands.
#pragma once
#include "rows.h"
#include "window.h"
#include <iterator>
#include <string_view>

// A tab is lower than a key of the grid and a little wider: 89 x 40, in the middle of its place.
constexpr BT_TBL Tab(BT_TBL row)
{
    if (row.x2 == 0) {
        const Rect r = GridRect(row.id);
        row.x1 = r.x1 - 2;
        row.y1 = r.y1 + 13;
        row.x2 = row.x1 + 88;
        row.y2 = row.y1 + 39;
    }
    row.select_func = bt_sel_tab;
    row.draw_func = bt_drw_tab;
    row.tally_func = bt_tly_tab;
    return Typed(row, BT_TAB);
}

inline constexpr PULLDOWN PullDown[] = {
    {.name = "LOCAL@Mask Source", .cmd = "~@Mask Source", .columns = 1, .rows = 4,
     .captions = {"Box", "Pattern", "Utility 1", "Utility 2"}},
    {.name = "LOCAL@Side Flags", .cmd = "~@Side Flags", .columns = 1, .rows = 3,
     .captions = {"4:3", "16:9", "Auto"}},
};

// Unique names, every choice there.
constexpr bool PullDownsAreSound()
{
    for (size_t i = 0; i < std::size(PullDown); i++) {
        const PULLDOWN& p = PullDown[i];
        if (!p.name || p.columns < 1 || p.rows < 1 || p.columns * p.rows > int(std::size(p.captions))) return false;
        for (int n = 0; n < p.columns * p.rows; n++)
            if (!p.captions[n]) return false;
        for (size_t k = 0; k < i; k++)
            if (std::string_view(p.name) == PullDown[k].name) return false;
    }
    return true;
}
static_assert(PullDownsAreSound());
