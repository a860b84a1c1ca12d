// The region selector and the lookups in its tables. In a group at most one region is the
// reference, the one that was touched last: what is done goes to all selected regions, with the
// settings of the reference.
#include "device.h"
#include "pane_private.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr int ENTRIES = 3; // cells of a switcher in the setup groups
constexpr int CAPTION_SIZE = sizeof(DEVICE::name) + 10;

// Texts of the cells that bear a unit's name. All groups show the same units, so they share them.
struct UnitCaptions {
    char plain[REGION_SWR_MAX][CAPTION_SIZE];
    char setup[REGION_SWR_MAX][ENTRIES][CAPTION_SIZE];
    char user[REGION_SWR_MAX][ENTRIES][CAPTION_SIZE];
    char dme[REGION_DME_MAX][CAPTION_SIZE];
};
} // namespace

static UnitCaptions unit_captions;

// Of the selector that is being worked on: a second one may lie on top of a first.
static int Region_Grp = 0;
static int Region_Single = 0;
static BTNSEL* Region_BtnSel = nullptr;
static int Region_BtnNum = 0;
static BUTTON* Button_Region = nullptr; // its first Region_BtnNum buttons are the cells

static const REGIONBTN* group_of(int grp)
{
    return grp >= 0 && grp < REGION_GROUPS ? &RegionBtn[grp] : nullptr;
}

static void region_bind(const PANE* pane)
{
    Region_Grp = pane->each.choice.grp;
    Region_Single = pane->each.choice.single;
    Region_BtnSel = RegionBtn[Region_Grp].btnsel;
    Region_BtnNum = RegionBtn[Region_Grp].cells;
    Button_Region = pane->button;
}

static bool has_switcher()
{
    return SYS_MySwrMax > 0;
}

// --- The units of this system ---

// A cell of a unit that is there, or an empty one. Its selection stays: units go and come back
// while the server sends its list of them.
static void set_cell(BTNSEL* cell, int id, const char* caption)
{
    cell->id = id;
    cell->caption = caption;
}

static const DEVICE* own_switcher(int n)
{
    return n < SYS_MySwrMax ? DEV_MySwr[n] : nullptr;
}

static const DEVICE* own_effects_unit(int n)
{
    return n < SYS_MyDmeMax ? DEV_MyDme[n] : nullptr;
}

static void set_switchers(BTNSEL* cells, REGIONGRP* grp)
{
    for (int n = 0; n < REGION_SWR_MAX; n++) {
        const DEVICE* unit = own_switcher(n);
        const int id = unit ? REGION_ID_SWR + n : 0;
        CopyText(unit_captions.plain[n], unit ? unit->name : "");
        set_cell(&cells[n], id, unit_captions.plain[n]);
        grp->id[n] = id;
    }
}

static void set_switcher_entries(BTNSEL* cells, REGIONGRP* grp,
                                 char (*captions)[ENTRIES][CAPTION_SIZE],
                                 const char* const (&suffix)[ENTRIES])
{
    for (int i = 0; i < REGION_SWR_MAX * ENTRIES; i++) {
        const DEVICE* unit = own_switcher(i / ENTRIES);
        const int id = unit ? REGION_ID_SWR + i : 0;
        char(&caption)[CAPTION_SIZE] = captions[i / ENTRIES][i % ENTRIES];
        CopyText(caption, unit ? unit->name : "");
        if (unit)
            AppendText(caption, suffix[i % ENTRIES]);
        set_cell(&cells[i], id, caption);
        grp->id[i] = id;
    }
}

static void set_effects_units(BTNSEL* cells, REGIONGRP* grp)
{
    for (int n = 0; n < REGION_DME_MAX; n++) {
        const DEVICE* unit = own_effects_unit(n);
        const int id = unit ? REGION_ID_DME + n : 0;
        CopyText(unit_captions.dme[n], unit ? unit->name : "");
        set_cell(&cells[n], id, unit_captions.dme[n]);
        grp->id[n] = id;
    }
}

static void region_setid(const REGIONBTN& g)
{
    static constexpr const char* setup_suffix[ENTRIES] = {"", "\n   FC", "\n CCR"};
    static constexpr const char* user_suffix[ENTRIES] = {"", "\nUsrSrc", "\nPatch"};
    constexpr int DME_CELLS_SETUP = 6; // the second row
    constexpr int DME_CELLS_INITSTAT = 4;
    switch (g.units) {
    case UNITS_SWR: set_switchers(g.btnsel, g.regiongrp); break;
    case UNITS_SETUP:
        set_switcher_entries(g.btnsel, g.regiongrp, unit_captions.setup, setup_suffix);
        set_effects_units(g.btnsel + DME_CELLS_SETUP, g.regiongrp + 1);
        break;
    case UNITS_INITSTAT:
        set_switchers(g.btnsel, g.regiongrp);
        set_effects_units(g.btnsel + DME_CELLS_INITSTAT, g.regiongrp + 1);
        break;
    case UNITS_USRSETUP:
        set_switcher_entries(g.btnsel, g.regiongrp, unit_captions.user, user_suffix);
        break;
    default: break;
    }
}

int PaneRegion_InitID(int grp)
{
    const REGIONBTN* g = group_of(grp);
    if (!g)
        return -1;
    region_setid(*g);
    return 0;
}

// --- Opening ---

bool region_has_margin(const PANE* pane)
{
    return (RegionBtn[pane->each.choice.grp].kind & REGION_UNIT_COPY) != 0;
}

static void add_key(PANE* pane, int id, const char* caption, int x)
{
    (void)pane_add(pane,
                   {.id = id, .caption = caption, .type = LOOK_ENTER, .x1 = x, .y1 = pane->h - 50});
}

static void add_keys(PANE* pane, const REGIONBTN& g)
{
    add_key(pane, BTN_ENTER, "Enter", pane->w / 2 - 30);
    if (g.hn <= 3)
        return;
    add_key(pane, BTN_ALL, "ALL", pane->w - 75);
    if (g.kind & REGION_UNIT_COPY) {
        add_key(pane, BTN_UNIT_SWR_ALL, "SWR\nALL", pane->w - 205);
        add_key(pane, BTN_UNIT_DME_ALL, "DME\nALL", pane->w - 140);
    }
    if (g.kind & REGION_SWR_ALL)
        add_key(pane, BTN_SWR_ALL, "SWR\nALL", pane->w - 140);
}

static Rect place_of(const REGIONBTN& g, int single)
{
    const int w = 64 * g.hn + 26 + (g.kind & REGION_UNIT_COPY ? 150 : 0);
    const int h = 44 * g.vn + (single ? 26 : 76);
    const int x = 400 - w / 2;
    const int y = (single ? 220 : 300) - h / 2;
    return {x, y, x + w - 1, y + h - 1};
}

int PaneRegion_Create(int grp, int single)
{
    constexpr int KEYS_MAX = 4;
    const REGIONBTN* g = group_of(grp);
    if (!g)
        return 0;
    PANE* pane = pane_create(TYPE_REGION, "Region", place_of(*g, single), g->cells + KEYS_MAX);
    if (!pane)
        return 0;
    region_setid(*g);
    pane->each.choice.grp = grp;
    pane->each.choice.single = single != 0;
    const PaneGrid grid = {.columns = g->hn,
                           .rows = g->vn,
                           .x = g->kind & REGION_UNIT_COPY ? 115 : 15,
                           .y = 15,
                           .dx = 64,
                           .dy = 44,
                           .look = LOOK_CELL,
                           .keep_empty = true};
    pane_add_grid(pane, grid, g->btnsel, g->cells);
    if (!single)
        add_keys(pane, *g);
    return pane->id;
}

// --- The cells ---

static bool IsInvalidBtn(const BUTTON& b)
{
    return b.id <= 0;
}

// By the start of the caption, so that a bank's Sub side counts, too.
static bool IsSwitcherBtn(const char* caption)
{
    static constexpr const char* names[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5",
                                            "P/P",   "User1", "User2", "User3", "User4",
                                            "User5", "User6", "User7", "User8"};
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char* n) { return BeginsWith(caption, n); });
}

static bool is_first_channel(const char* caption)
{
    return strcmp(caption, "DME\n1ch") == 0;
}

static void set_on(BUTTON* b, int onoff)
{
    if (b->onoff == onoff)
        return;
    b->onoff = onoff;
    b->redraw = 1;
}

static bool is_any_on(int from, int to)
{
    return std::any_of(Button_Region + from, Button_Region + to,
                       [](const BUTTON& b) { return b.onoff != 0; });
}

static void all_off()
{
    for (int i = 0; i < Region_BtnNum; i++)
        set_on(&Button_Region[i], 0);
}

static bool has_reference()
{
    return std::any_of(Button_Region, Button_Region + Region_BtnNum,
                       [](const BUTTON& b) { return b.onoff == 2; });
}

static void demote_reference()
{
    for (int i = 0; i < Region_BtnNum; i++)
        if (Button_Region[i].onoff == 2)
            set_on(&Button_Region[i], 1);
}

// The first selected cell takes over.
static void promote_first()
{
    for (int i = 0; i < Region_BtnNum; i++) {
        if (Button_Region[i].onoff == 0)
            continue;
        set_on(&Button_Region[i], 2);
        return;
    }
}

static void touch_cell(const REGIONBTN& g, BUTTON* b)
{
    if (g.kind & REGION_ONE) {
        all_off();
        set_on(b, 2);
    } else if (b->onoff == 2) {
        if (g.kind & REGION_KEEP_REF)
            return;
        set_on(b, 0);
        promote_first();
    } else if (g.kind & REGION_UNIT_COPY) {
        set_on(b, !b->onoff);
    } else {
        demote_reference();
        set_on(b, 2);
    }
}

// --- The ALL keys ---

static int first_channel()
{
    for (int i = 0; i < Region_BtnNum; i++)
        if (is_first_channel(Button_Region[i].caption))
            return i;
    return -1;
}

// All cells that this system has a use for; returns the reference among them, -1 none.
static int select_all(const REGIONBTN& g)
{
    const int channel = has_switcher() ? -1 : first_channel();
    int first = -1;
    for (int i = 0; i < Region_BtnNum; i++) {
        BUTTON* b = &Button_Region[i];
        if (IsInvalidBtn(*b) || (i < channel && IsSwitcherBtn(b->caption)))
            continue;
        set_on(b, 1);
        if (first < 0)
            first = i;
    }
    if (channel >= 0)
        return channel;
    return g.all_ref ? g.all_ref : first;
}

static void press_all(const REGIONBTN& g)
{
    if (is_any_on(0, Region_BtnNum)) {
        all_off();
        return;
    }
    const int reference = select_all(g);
    if (reference >= 0 && !(g.kind & REGION_UNIT_COPY))
        set_on(&Button_Region[reference], 2);
}

static void press_unit_all(bool is_dme)
{
    const auto is_member = [&](const BUTTON& b) {
        return !IsInvalidBtn(b) && (b.id > REGION_ID_LAST_SWR_UNIT) == is_dme;
    };
    bool is_on = false;
    for (int i = 0; i < Region_BtnNum; i++)
        is_on |= is_member(Button_Region[i]) && Button_Region[i].onoff;
    for (int i = 0; i < Region_BtnNum; i++)
        if (is_member(Button_Region[i]))
            set_on(&Button_Region[i], !is_on);
}

// The banks stand in the first row, the users in the one below it.
static void press_switcher_all(const REGIONBTN& g)
{
    constexpr int BANK_CELLS = 6;
    constexpr int USER_CELLS = 8;
    if (!has_switcher())
        return;
    const int users = g.hn;
    const bool is_on = is_any_on(0, BANK_CELLS) || is_any_on(users, users + USER_CELLS);
    if (!is_on)
        demote_reference();
    for (int i = 0; i < BANK_CELLS; i++)
        set_on(&Button_Region[i], !is_on);
    for (int i = users; i < users + USER_CELLS; i++)
        set_on(&Button_Region[i], !is_on);
    if (!has_reference())
        promote_first();
}

static void enter(PANE* pane)
{
    for (int i = 0; i < Region_BtnNum; i++)
        Region_BtnSel[i].select = Button_Region[i].onoff;
    pane->quitmem = 1;
}

static BUTTON* cell_of(int id)
{
    for (int i = 0; i < Region_BtnNum; i++)
        if (!IsInvalidBtn(Button_Region[i]) && Button_Region[i].id == id)
            return &Button_Region[i];
    return nullptr;
}

void region_select(PANE* pane, int id)
{
    region_bind(pane);
    const REGIONBTN& g = RegionBtn[Region_Grp];
    switch (id) {
    case BTN_ENTER: enter(pane); return;
    case BTN_ALL: press_all(g); return;
    case BTN_UNIT_SWR_ALL: press_unit_all(false); return;
    case BTN_UNIT_DME_ALL: press_unit_all(true); return;
    case BTN_SWR_ALL: press_switcher_all(g); return;
    default: break;
    }
    BUTTON* b = cell_of(id);
    if (!b)
        return;
    if (Region_Single)
        pane->quitmem = id;
    else
        touch_cell(g, b);
}

// --- Lookups ---

static const REGIONGRP* row_of(int grp, int main)
{
    const REGIONBTN* g = group_of(grp);
    if (!g || main < 0 || main >= REGION_GRP_ROWS || !g->regiongrp[main].name)
        return nullptr;
    return &g->regiongrp[main];
}

static bool is_entry(int sub)
{
    return sub >= 0 && sub < REGION_GRP_IDS;
}

static const char* or_empty(const char* text)
{
    return text ? text : "";
}

int PaneRegion_GetMainMax(int grp)
{
    int rows = 0;
    while (row_of(grp, rows))
        rows++;
    return rows;
}

int PaneRegion_GetGrpID(int grp, int main, int sub)
{
    const REGIONGRP* row = row_of(grp, main);
    return row && is_entry(sub) ? row->id[sub] : 0;
}

const char* PaneRegion_GetGrpName(int grp, int main)
{
    const REGIONGRP* row = row_of(grp, main);
    return row ? row->name : "";
}

int PaneRegion_GetGrpPos(int grp, int main)
{
    const REGIONGRP* row = row_of(grp, main);
    return row ? row->pos : 0;
}

const char* PaneRegion_GetGrpFIRegion(int grp, int main, int sub)
{
    const REGIONGRP* row = row_of(grp, main);
    return row && is_entry(sub) ? or_empty(row->fi_region[sub]) : "";
}

const char* PaneRegion_GetGrpFIRegion_DualProc(int grp, int main, int sub)
{
    const char* word = PaneRegion_GetGrpFIRegion(grp, main, sub);
    if (!BeginsWith(word, "CH") || strcmp(word, "CHF") == 0)
        return word;
    return sub % 2 == 0 ? "CH1" : "CH2"; // two channels a unit
}

const char* PaneRegion_GetGrpFIExt(int grp, int main, int sub)
{
    const REGIONGRP* row = row_of(grp, main);
    return row && is_entry(sub) ? or_empty(row->fi_ext[sub]) : "";
}

const char* PaneRegion_GetGrpCategoryStr(int grp)
{
    const REGIONBTN* g = group_of(grp);
    return g ? g->category : "";
}

int PaneRegion_GetGrpMainSub(int grp, int id, int* main, int* sub)
{
    for (int m = 0; id > 0 && m < PaneRegion_GetMainMax(grp); m++) {
        for (int s = 0; s < REGION_GRP_IDS; s++) {
            if (PaneRegion_GetGrpID(grp, m, s) != id)
                continue;
            *main = m;
            *sub = s;
            return 0;
        }
    }
    return -1;
}

const char* PaneRegion_GetCaption(int grp, int id)
{
    const REGIONBTN* g = group_of(grp);
    for (int i = 0; g && id > 0 && i < g->cells; i++)
        if (g->btnsel[i].id == id)
            return g->btnsel[i].caption;
    return "";
}

int PaneRegion_IsSelected(int grp, int id)
{
    const REGIONBTN* g = group_of(grp);
    for (int i = 0; g && id > 0 && i < g->cells; i++)
        if (g->btnsel[i].id == id)
            return g->btnsel[i].select;
    return 0;
}

int PaneRegion_GetRef(int grp)
{
    const REGIONBTN* g = group_of(grp);
    for (int i = 0; g && i < g->cells; i++)
        if (g->btnsel[i].select == 2)
            return g->btnsel[i].id;
    return 0;
}

int PaneRegion_SetDefaultSelected(int grp)
{
    const REGIONBTN* g = group_of(grp);
    if (!g)
        return -1;
    if (has_switcher())
        return 0;
    BTNSEL* const end = g->btnsel + g->cells;
    BTNSEL* channel =
        std::find_if(g->btnsel, end, [](const BTNSEL& b) { return is_first_channel(b.caption); });
    if (channel == end)
        return 0;
    for (BTNSEL* b = g->btnsel; b != end; b++) {
        if (b < channel && IsSwitcherBtn(b->caption))
            b->select = 0;
        else if (b->select == 2)
            b->select = 1;
    }
    channel->select = 2;
    return 0;
}
