// Progress that outlives its pane: a transfer goes on while the operator is on another page, and
// the pane comes back with what has happened meanwhile.
#include "pane_private.h"
#include "text.h"

#include "safeguards.h"

namespace
{
struct SavedProgress {
    int pane_id = 0; // opened from here last, 0 none
    int prog = 0;    // percent
    int lamp = ROUTE_LAMP_NONE;
    char progmes[PATH_SIZE] = "";
    GROWTEXT mes = {}; // what was appended
};
} // namespace

static SavedProgress pane_restore;
static SavedProgress pane_restore_hdd;

static int restore_init(SavedProgress* saved)
{
    free_text(&saved->mes);
    const int pane_id = saved->pane_id;
    *saved = {};
    saved->pane_id = pane_id;
    return 0;
}

static int restore_create(SavedProgress* saved, const char* caption, const char* mes, int cancel)
{
    const int id = PaneProgress_Create(caption, mes, cancel);
    if (id == 0)
        return 0;
    saved->pane_id = id;
    (void)PaneProgress_SetProg(id, saved->prog, saved->progmes);
    (void)PaneProgress_SetRouteLamp(id, saved->lamp);
    (void)Pane_AppendMessage(id, saved->mes.mes); // null while nothing was
    return id;
}

static int restore_set_prog(SavedProgress* saved, int percent, const char* text)
{
    saved->prog = percent;
    if (text)
        CopyText(saved->progmes, text);
    return 0;
}

static int restore_set_lamp(SavedProgress* saved, int lamp)
{
    saved->lamp = lamp;
    return 0;
}

static int restore_append(SavedProgress* saved, const char* text)
{
    if (!text)
        return 0;
    return grow_text(&saved->mes, text) ? 0 : -1;
}

static int restore_quit(SavedProgress* saved)
{
    const int id = saved->pane_id;
    saved->pane_id = 0;
    restore_init(saved);
    return id == 0 ? -1 : Pane_Quit(id);
}

int PaneProgress_RestoreCreate(const char* caption, const char* mes, int cancel)
{
    return restore_create(&pane_restore, caption, mes, cancel);
}

int PaneProgress_RestoreInit()
{
    return restore_init(&pane_restore);
}

int PaneProgress_RestoreSetProg(int percent, const char* text)
{
    return restore_set_prog(&pane_restore, percent, text);
}

int PaneProgress_RestoreSetRouteLamp(int lamp)
{
    return restore_set_lamp(&pane_restore, lamp);
}

int PaneProgress_RestoreAppendMessage(const char* text)
{
    return restore_append(&pane_restore, text);
}

int PaneProgress_RestoreQuit()
{
    return restore_quit(&pane_restore);
}

int PaneProgress_HDD_RestoreCreate(const char* caption, const char* mes, int cancel)
{
    return restore_create(&pane_restore_hdd, caption, mes, cancel);
}

int PaneProgress_HDD_RestoreInit()
{
    return restore_init(&pane_restore_hdd);
}

int PaneProgress_HDD_RestoreSetProg(int percent, const char* text)
{
    return restore_set_prog(&pane_restore_hdd, percent, text);
}

int PaneProgress_HDD_RestoreSetRouteLamp(int lamp)
{
    return restore_set_lamp(&pane_restore_hdd, lamp);
}

int PaneProgress_HDD_RestoreAppendMessage(const char* text)
{
    return restore_append(&pane_restore_hdd, text);
}

int PaneProgress_HDD_RestoreQuit()
{
    return restore_quit(&pane_restore_hdd);
}
