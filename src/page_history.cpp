// The pages of each side of the menu in the order of their visits.
#include "global.h"
#include "page_private.h"
#include <algorithm>

#include "safeguards.h"

void page_history_add(const MenuSide& side, uint32_t id)
{
    int& now = *side.now;
    if (now >= 0 && side.history[now] == id)
        return;
    if (++now >= HISTORY_DEPTH) {
        std::copy(side.history + 1, side.history + HISTORY_DEPTH, side.history);
        now = HISTORY_DEPTH - 1;
    }
    side.history[now] = id;
    *side.max = now;
}

// Place of the entry that a step back opens, -1 none. A page that does not count has no entry: the
// step returns to the page that it covers.
static int place_back(const MenuSide& side)
{
    if (*side.now < 1)
        return -1;
    int place = IsUserPages(GL_NowPage) ? *side.now - 1 : *side.now;
    while (place >= 0 && !Page_Exists(side.history[place]))
        place--;
    return place;
}

static int place_fwd(const MenuSide& side)
{
    for (int place = *side.now + 1; place <= *side.max; place++)
        if (Page_Exists(side.history[place]))
            return place;
    return -1;
}

static int history_go(const MenuSide& side, int place)
{
    if (place < 0)
        return -1;
    *side.now = place;
    GL_CreatePage = side.history[place];
    return 0;
}

int HistoryBack(int side)
{
    return history_go(page_side(side), place_back(page_side(side)));
}

int HistoryFwd(int side)
{
    return history_go(page_side(side), place_fwd(page_side(side)));
}

uint32_t GetHistoryBack(int side)
{
    const int place = place_back(page_side(side));
    return place < 0 ? 0 : page_side(side).history[place];
}

uint32_t GetHistoryFwd(int side)
{
    const int place = place_fwd(page_side(side));
    return place < 0 ? 0 : page_side(side).history[place];
}

int IsTopHistory(int side)
{
    return place_back(page_side(side)) < 0;
}

int IsLastHistory(int side)
{
    return place_fwd(page_side(side)) < 0;
}
