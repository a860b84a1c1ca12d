// Directories: entries on pages that the pane turns itself.
#include "pane_private.h"
#include <algorithm>

#include "safeguards.h"

static void mark_ends(PANE* pane)
{
    const auto& directory = pane->each.directory;
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
        if (b->id == BTN_PREV_PAGE)
            b->disable = directory.now_page == 0;
        if (b->id == BTN_NEXT_PAGE)
            b->disable = directory.now_page >= directory.all_page - 1;
    }
}

void pane_turn_page(PANE* pane, int step)
{
    auto& directory = pane->each.directory;
    const int page = std::clamp(directory.now_page + step, 0, directory.all_page - 1);
    if (page == directory.now_page)
        return;
    directory.now_page = page;
    mark_ends(pane);
    pane->inside_redraw = 1;
}

// All entries have their button, those of one page lie over those of another. Empty rows keep
// theirs, so that a button's index tells its page.
static int directory_create(TYPE type, PaneGrid grid, int n, const BTNSEL* entries)
{
    if (n < 0 || (n > 0 && !entries))
        return 0;
    grid.keep_empty = true;
    const int w = grid.dx * grid.columns + 26;
    const int h = grid.dy * grid.rows + 76;
    PANE* pane = pane_create(type, "Directory", pane_centred(w, h), n + 3);
    if (!pane)
        return 0;
    const int page_size = pane_kind(pane).page_size;
    pane->each.directory.all_page = std::max(1, (n + page_size - 1) / page_size);
    pane_add_grid(pane, grid, entries, n);
    pane_add_bottom_key(pane, BTN_CANCEL, "Cancel", LOOK_ENTER, w / 2 - 30);
    if (pane->each.directory.all_page > 1) {
        pane_add_bottom_key(pane, BTN_PREV_PAGE, "", LOOK_PREV_PAGE, w - 101);
        pane_add_bottom_key(pane, BTN_NEXT_PAGE, "", LOOK_NEXT_PAGE, w - 53);
        mark_ends(pane);
    }
    return pane->id;
}

int PaneDirectory_Create(int n, const BTNSEL* entries)
{
    constexpr PaneGrid grid = {5, 8, 15, 15, 103, 46, LOOK_DIRECTORY};
    static_assert(grid.columns * grid.rows == DIRECTORY_PAGE);
    return directory_create(TYPE_DIRECTORY, grid, n, entries);
}

int PaneDirectory_Create_FolderPopup(int n, const BTNSEL* entries)
{
    constexpr PaneGrid grid = {5, 6, 15, 15, 105, 50, LOOK_FOLDER};
    static_assert(grid.columns * grid.rows == FOLDER_PAGE);
    return directory_create(TYPE_FMFOLDER, grid, n, entries);
}
