// The find pane: a text, steps to the hits, and a lamp while it searches.
#include "pane_private.h"
#include "tdl.h"
#include "window.h"

#include "safeguards.h"

static constexpr BUTTON Button_Find[] = {
    {.id = PANEFIND_TEXT, .caption = "Text", .type = LOOK_TEXT, .x1 = 12, .y1 = 36},
    {.id = PANEFIND_PREV, .type = LOOK_UP, .x1 = 124, .y1 = 33},
    {.id = PANEFIND_NEXT, .type = LOOK_DOWN, .x1 = 124, .y1 = 70},
    {.id = PANEFIND_CLOSE, .caption = "Close", .type = LOOK_ENTER, .x1 = 110, .y1 = 107},
    {.id = BUTTON_END},
};

int PaneFind_Create(int x, int y, int indicator)
{
    PANE* pane = pane_create(TYPE_FIND, "Find", pane_box(x, y, 175, 150), 4);
    if (!pane)
        return 0;
    for (const BUTTON* b = Button_Find; b->id != BUTTON_END; b++)
        (void)pane_add(pane, *b); // there is room
    pane->each.find.indicator = indicator != 0;
    return pane->id;
}

int PaneFind_Indicator(int on)
{
    PANE* pane = pane_find_type(TYPE_FIND);
    if (!pane)
        return -1;
    pane->each.find.indicator = on != 0;
    if (pane->redraw == 0 && pane == pane_top() && GetWindow() == WINDOW_NONE) {
        pane_draw_indicator(pane); // a search holds the loop up: it must be seen now
        TDL_Show();
    } else {
        pane->redraw = 1;
    }
    return 0;
}

void find_select(PANE* pane, int id)
{
    if (id == PANEFIND_CLOSE)
        pane->quitmem = QUIT_SILENT;
}
