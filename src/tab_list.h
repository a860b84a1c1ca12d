// tab_list: the tabs of a page as a list: what the left and the bottom tabs do alike. A tab has an
// id, "redraw" and "display"; what else it has, and how it looks, is its family's.
#pragma once
#include <cstddef>
#include <span>

template <typename TAB, size_t MAX> struct TabList {
    TAB tab[MAX];
    size_t count = 0; // in use
};

template <typename TAB, size_t MAX> std::span<TAB> TabList_All(TabList<TAB, MAX>& list)
{
    return {list.tab, list.count};
}

// Null for an id that no tab has.
template <typename TAB, size_t MAX> TAB* TabList_Find(TabList<TAB, MAX>& list, int id)
{
    for (TAB& t : TabList_All(list))
        if (t.id == id)
            return &t;
    return nullptr;
}

// Fill the list from the rows of a table up to its end; fill(tab, row) sets all but "redraw" and
// "display". False when there are more rows than the list holds: those are left out.
template <typename TAB, size_t MAX, typename ROW, typename FILL>
bool TabList_Fill(TabList<TAB, MAX>& list, const ROW* table, FILL fill)
{
    list.count = 0;
    for (const ROW* row = table; row->id >= 1; row++) {
        if (list.count == MAX)
            return false;
        TAB& t = list.tab[list.count++];
        fill(t, *row);
        t.redraw = t.display = 1;
    }
    return true;
}

// Show or blank a tab; -1 for an id that no tab has.
template <typename TAB, size_t MAX> int TabList_SetDisplay(TabList<TAB, MAX>& list, int id, int on)
{
    TAB* t = TabList_Find(list, id);
    if (!t)
        return -1;
    t->display = on != 0;
    t->redraw = 1;
    return 0;
}

// Draw what has changed; draw(tab) ends with the flush.
template <typename TAB, size_t MAX, typename DRAW>
int TabList_Redraw(TabList<TAB, MAX>& list, DRAW draw)
{
    for (TAB& t : TabList_All(list)) {
        if (!t.redraw)
            continue;
        t.redraw = 0;
        draw(t);
    }
    return 0;
}
