// tab_list: the tabs of a page as a list: what the left and the bottom tabs do alike. A tab has an
// id, "redraw", "display", which is page code's, and "is_missing": this installation lacks its
// page. What else it has, and how it looks, is its family's.
#pragma once
#include "page.h"
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

// Fill the list from the rows of a table up to its end; fill(tab, row) sets all but those three.
// False when there are more rows than the list holds: those are left out.
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
        t.is_missing = false;
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

// Whether the tab is seen and takes a press; else its place is blank.
template <typename TAB> bool TabList_IsShown(const TAB& t)
{
    return t.display && !t.is_missing;
}

// Look again which tabs lead nowhere; target(tab) is the page that a press asks for. The selected
// one stands for the page that is shown, also where that is shown out of its installation.
template <typename TAB, size_t MAX, typename TARGET>
void TabList_LookForPages(TabList<TAB, MAX>& list, int selected, TARGET target)
{
    for (TAB& t : TabList_All(list)) {
        const bool is_missing = t.id != selected && Page_IsMissing(target(t));
        if (t.is_missing == is_missing)
            continue;
        t.is_missing = is_missing;
        t.redraw = 1;
    }
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
