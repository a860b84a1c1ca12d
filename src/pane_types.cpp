// What each type of pane is made of, a row a type.
#include "indexed.h"
#include "pane_private.h"

#include "safeguards.h"

static void press_closes(PANE* pane, bool)
{
    pane->quitmem = QUIT_SILENT;
}

// One of many is chosen with the first press, and whoever misses it wants none. Several are marked
// one by one, close together: a touch between two of them must not throw away the others.
static void press_closes_selector(PANE* pane, bool is_outside)
{
    if (pane->each.choice.single || is_outside)
        pane->quitmem = QUIT_SILENT;
}

static constexpr PaneKind kinds[] = {
    {.type = TYPE_MESSAGE,
     .draw = pane_draw_message,
     .select = message_select,
     .result = message_result,
     .release = message_release,
     .lines = TEXT_LINES},
    {.type = TYPE_YESNO,
     .draw = pane_draw_message,
     .select = message_select,
     .release = message_release,
     .lines = TEXT_LINES},
    {.type = TYPE_PROGRESS,
     .draw = pane_draw_progress_box,
     .select = message_select,
     .release = progress_release,
     .lines = PROGRESS_LINES},
    {.type = TYPE_PULLDOWN,
     .draw = pane_draw_grid,
     .select = choice_select,
     .press_beside = press_closes},
    {.type = TYPE_SELECT, .draw = pane_draw_grid, .select = choice_select},
    {.type = TYPE_REGION,
     .draw = pane_draw_region,
     .select = region_select,
     .press_beside = press_closes_selector},
    {.type = TYPE_RTRLVL,
     .draw = pane_draw_grid,
     .select = level_select,
     .press_beside = press_closes_selector},
    {.type = TYPE_POPUP, .draw = pane_draw_grid, .select = choice_select},
    {.type = TYPE_FIND, .draw = pane_draw_find, .select = find_select},
    {.type = TYPE_COLOR, .draw = pane_draw_grid, .select = choice_select},
    {.type = TYPE_FRAME, .draw = pane_draw_run_control, .select = frame_select},
    {.type = TYPE_DIRECTORY,
     .draw = pane_draw_directory,
     .select = choice_select,
     .page_size = DIRECTORY_PAGE},
    {.type = TYPE_FMOUT, .draw = pane_draw_grid, .select = choice_select},
    {.type = TYPE_FMFOLDER,
     .draw = pane_draw_directory,
     .select = choice_select,
     .page_size = FOLDER_PAGE},
};
static_assert(IndexedBy(kinds, &PaneKind::type, TYPE_COUNT));

const PaneKind& pane_kind(const PANE* pane)
{
    return kinds[pane->type];
}

void pane_select(PANE* pane, int id)
{
    pane_kind(pane).select(pane, id);
}

void pane_press_beside(PANE* pane, bool is_outside)
{
    if (const auto press = pane_kind(pane).press_beside)
        press(pane, is_outside);
}

int pane_result(const PANE* pane)
{
    if (const auto result = pane_kind(pane).result)
        return result(pane);
    return pane->quitmem == QUIT_SILENT ? 0 : pane->quitmem;
}

void pane_release(PANE* pane)
{
    if (const auto release = pane_kind(pane).release)
        release(pane);
}
