// Which boxes there are: tables and single rows come and go, with their subscriptions, the knobs
// that the server turns for them, and the layers.
#include "a_bt.h"
#include "a_nb.h"
#include "a_nb_private.h"
#include "bus.h"
#include "command.h"
#include "followed.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "setup_index.h"
#include "text.h"
#include "window.h"
#include <cstring>
#include <utility>
#include "safeguards.h"

constexpr int LAYER_MEMORY = 256;
constexpr int TITLE_PUSHED_MS = 150;
constexpr uint32_t NO_HASH = 0xFFFFFFFF; // no path sums up to this

namespace
{
struct LeftOn {
    const NB_TBL* addr = nullptr;
    int layer = 0;
};
} // namespace

// The layer on which each table was left. Survives the tables; the oldest records give way.
static struct {
    LeftOn LayerMem[LAYER_MEMORY];
    int LayerMemMax = 0;     // the record to be written next
    int LayerMemSelect = -1; // that of the shown table, -1 when it has one layer
} memory;

// --- Layers ---

static int highest_layer()
{
    int highest = 0;
    for (const NB_MEM& b : nb_boxes())
        highest = std::max(highest, b.id >> 4);
    return highest;
}

static int memory_of(const NB_TBL* table)
{
    for (int i = 0; i < LAYER_MEMORY; i++)
        if (memory.LayerMem[i].addr == table)
            return i;
    return -1;
}

static void open_layer(const NB_TBL* table)
{
    nb.Layer = 0;
    memory.LayerMemSelect = -1;
    if (nb.LayerN == 0)
        return;
    int at = memory_of(table);
    if (at < 0) {
        at = memory.LayerMemMax;
        memory.LayerMem[at] = {.addr = table};
        memory.LayerMemMax = (at + 1) % LAYER_MEMORY;
    }
    memory.LayerMemSelect = at;
    // Rows that were appended last time may have had a layer of their own.
    if (memory.LayerMem[at].layer <= nb.LayerN)
        nb.Layer = memory.LayerMem[at].layer;
}

static void show_layer(int layer)
{
    nb_release_knobs();
    nb.Layer = layer;
    nb.DragSelect = 0;
    nb.Title_redraw = 1;
    nb_assign_knobs();
    nb_blank_all_slots();
    if (memory.LayerMemSelect >= 0)
        memory.LayerMem[memory.LayerMemSelect].layer = layer;
}

void nb_next_layer()
{
    if (nb.LayerN == 0)
        return;
    show_layer(nb.Layer < nb.LayerN ? nb.Layer + 1 : 0);
    nb.Title_pushed = TITLE_PUSHED_MS;
    SendMessage(LMSG_KNOBRELEASE, nb.Layer, 0, 0, 0);
}

// The highest layer has changed with the rows.
static void fit_layers()
{
    const int highest = highest_layer();
    if (nb.LayerN == highest)
        return;
    nb.LayerN = highest;
    nb.Title_redraw = 1;
    if (nb.Layer > highest)
        show_layer(highest);
}

// --- Subscriptions and knobs ---

static void subscribe(NB_MEM& b)
{
    const char* path = nb_wire_path(b);
    if (!path)
        return;
    Net_SendCommandFormat("add %s", path);
    b.added = 1;
}

// While another object of the page follows the path, the boxes must not end its subscription when
// others take their place; whoever goes last does.
static void unsubscribe(NB_MEM& b)
{
    if (!b.added)
        return;
    b.added = 0;
    if (!IsFollowed(nb_wire_path(b)))
        Net_SendCommandFormat("remove %s", nb_wire_path(b));
}

void nb_unsubscribe()
{
    for (NB_MEM& b : nb_boxes())
        unsubscribe(b);
}

// For a box that goes by itself: the server keeps one subscription a path, which another box may
// still need.
static void unsubscribe_alone(NB_MEM& b)
{
    for (NB_MEM& other : nb_boxes()) {
        if (!b.added || &other == &b || other.cmd_hash != b.cmd_hash || !nb_wire_path(other))
            continue;
        if (strcmp(nb_wire_path(other), nb_wire_path(b)) == 0) {
            other.added = 1;
            b.added = 0;
        }
    }
    unsubscribe(b);
}

// The server would apply the turns that a locked page refuses.
static void assign_knob(const NB_MEM& b)
{
    const char* path = nb_wire_path(b);
    if (path && nb_is_shown(b) && !SetupIndex_IsLocked(GL_NowPage))
        Net_SendCommandFormat("assign Knob%X#%s", unsigned(nb_slot(b) - 1), path);
}

static void release_knob(const NB_MEM& b)
{
    if (nb_wire_path(b) && nb_is_shown(b))
        Net_SendCommandFormat("assign Knob%X#null", unsigned(nb_slot(b) - 1));
}

void nb_assign_knobs()
{
    for (const NB_MEM& b : nb_boxes())
        assign_knob(b);
}

void nb_release_knobs()
{
    for (const NB_MEM& b : nb_boxes())
        release_knob(b);
}

// --- Boxes ---

// The title stands in for the variable part of a path. A caption of two lines is one word there.
static void decode_command(NB_MEM& b, const char* cmd)
{
    char variable[sizeof nb.Title];
    CopyText(variable, nb.Title);
    std::replace(variable, variable + strlen(variable), '\n', ' ');
    DecodeCommandWithVar(b.cmd, cmd, variable, CMD_SIZE);
    const char* path = nb_wire_path(b);
    b.cmd_hash = path ? Hash(path) : NO_HASH;
}

static void forget_value(NB_MEM& b)
{
    b.var = 0;
    b.var_valid = 0;
    b.dispvar = 0;
    b.dispvar_enable = 0;
    b.dispvar_time = 0;
    b.redraw = 1;
}

static void fill_box(NB_MEM& b, const NB_TBL& row)
{
    b.id = row.id;
    b.caption = row.caption ? row.caption : "";
    b.type = row.type;
    b.min = row.min;
    b.max = row.max;
    b.scale = row.scale;
    b.zero = row.zero;
    b.visible = 0;
    b.str_val = nullptr;
    b.added = 0;
    forget_value(b);
    decode_command(b, row.cmd);
}

// Null when the row finds no room, or has no place on the screen.
static NB_MEM* append_box(const NB_TBL& row)
{
    const int slot = row.id & 0x0F;
    if (slot < 1 || slot > NB_SLOTS) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "No slot for NB Object: id=%d\n", row.id);
        return nullptr;
    }
    if (nb.count == NB_MAX) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for NB Objects!! id=%d\n", row.id);
        return nullptr;
    }
    NB_MEM& b = nb.Knob[nb.count++];
    fill_box(b, row);
    nb.Knob[nb.count].id = -1;
    return &b;
}

static void forget_boxes()
{
    nb.Knob[0].id = -1;
    nb.count = 0;
    nb.generation++;
    nb.table = nullptr;
    nb.is_open = false;
    nb.Layer = nb.LayerN = 0;
    nb.DragSelect = 0; // what the mouse holds is gone
    nb.Title_pushed = 0;
    nb.AreaUpdate = 0;
    nb.blank_slots = 0;
    memory.LayerMemSelect = -1;
    NB_SetSelect(0);
}

void nb_close_ten_keys()
{
    const int window = GetWindow();
    if (window == WINDOW_KNOB || window == WINDOW_KNOB_TRIM || window == WINDOW_HEX)
        (void)CloseWindow(); // it is open
    NB_SetSelect(0);
}

static void open_column()
{
    nb.is_open = true;
    nb.RedrawAll = 1;
    nb.Title_redraw = 1;
}

// --- The same table anew ---

// What the operator sees and does, kept while a table is made anew.
static struct {
    NB_MEM box[NB_MAX];
    int count = 0;
    int Select = 0;
    char knob_text[sizeof GL_KnobSetVar] = "";
    int DragSelect = 0;
} kept;

static void keep_column(bool is_same_table)
{
    kept.count = is_same_table ? nb.count : 0;
    std::copy_n(nb.Knob, kept.count, kept.box);
    kept.Select = nb.Select;
    CopyText(kept.knob_text, GL_KnobSetVar);
    kept.DragSelect = nb.DragSelect;
}

// Null when there was none, or it meant something else.
static const NB_MEM* kept_box(const NB_MEM& b)
{
    for (const NB_MEM& k : std::span(kept.box, size_t(kept.count)))
        if (k.id == b.id && k.type == b.type && strcmp(k.cmd, b.cmd) == 0)
            return &k;
    return nullptr;
}

static void take_value(NB_MEM& b, const NB_MEM& from)
{
    b.var = from.var;
    b.var_valid = from.var_valid;
    b.dispvar = from.dispvar;
    b.dispvar_enable = from.dispvar_enable;
    b.dispvar_time = from.dispvar_time;
    b.str_val = from.str_val;
}

static void restore_column()
{
    bool has_selected = false;
    for (NB_MEM& b : nb_boxes()) {
        const NB_MEM* k = kept_box(b);
        if (!k)
            continue;
        take_value(b, *k);
        has_selected |= b.id == kept.Select;
        if (nb_is_shown(b) && nb_slot(b) == kept.DragSelect)
            nb.DragSelect = kept.DragSelect;
    }
    if (has_selected) {
        nb.Select = kept.Select;
        CopyText(GL_KnobSetVar, kept.knob_text);
    } else if (kept.Select) {
        nb_close_ten_keys();
    }
}

// --- Tables ---

int NB_Create(const NB_TBL* nt, const char* tit)
{
    const bool no_add = std::exchange(nb.NoAdd, 0);
    keep_column(nt && nt == nb.table && strcmp(nb.Title, tit ? tit : "") == 0);
    nb_release_knobs();
    nb_unsubscribe();
    forget_boxes();
    if (!nt || nt == NoKnobs()) {
        restore_column();
        return 1;
    }

    if (tit != nb.Title)
        CopyText(nb.Title, tit ? tit : "");
    for (const NB_TBL* row = nt; row->id >= 1; row++)
        (void)append_box(*row); // a row too many is logged and left out
    nb.table = nt;
    nb.LayerN = highest_layer();
    open_layer(nt);
    restore_column();
    open_column();
    if (!no_add)
        for (NB_MEM& b : nb_boxes())
            subscribe(b);
    nb_assign_knobs();
    SendMessage(LMSG_KNOBCREATE, BT_GetKnobAssign(), Arg(nb.Title), 0, 0);
    return 0;
}

const NB_TBL* NB_ShownTable()
{
    return nb.table;
}

int NB_CreateBlank()
{
    return NB_Create(NB_Non, "");
}

int NB_Create_NoAdd(const NB_TBL* nt, const char* tit)
{
    nb.NoAdd = 1;
    return NB_Create(nt, tit);
}

int NB_PushTable(const NB_TBL* nt)
{
    NB_MEM* b = nt && nt->id >= 1 ? append_box(*nt) : nullptr;
    if (!b)
        return -1;
    if (!nb.is_open)
        open_column();
    fit_layers();
    subscribe(*b);
    assign_knob(*b);
    nb.AreaUpdate = 1;
    return 0;
}

int NB_AddTable(const NB_TBL* nt)
{
    if (!nt)
        return -1;
    for (const NB_TBL* row = nt; row->id >= 1; row++)
        if (NB_PushTable(row) != 0)
            return -1;
    return 0;
}

static int delete_box(NB_MEM* b)
{
    if (!b)
        return -1;
    const int id = b->id;
    release_knob(*b);
    unsubscribe_alone(*b);
    if (nb.Select == id)
        nb_close_ten_keys();
    if (nb_is_shown(*b)) {
        nb.blank_slots |= 1u << nb_slot(*b);
        nb.AreaUpdate = 1;
        if (nb.DragSelect == nb_slot(*b))
            nb.DragSelect = 0;
    }
    std::move(b + 1, nb.Knob + nb.count, b);
    nb.count--;
    nb.Knob[nb.count].id = -1;
    nb.generation++;
    nb_mark(id); // a box that shared the slot shows again
    fit_layers();
    return 0;
}

int NB_PushTable2(const NB_TBL* nt)
{
    if (!nt || nt->id < 1)
        return -1;
    (void)NB_DeleteTable(nt->id); // there need not be one
    return NB_PushTable(nt);
}

int NB_PopTable()
{
    return delete_box(nb.count ? &nb.Knob[nb.count - 1] : nullptr);
}

int NB_PopTable2(const NB_TBL* nt)
{
    return nt ? NB_DeleteTable(nt->id) : -1;
}

int NB_DeleteTable(int id)
{
    return delete_box(nb_find(id));
}

void nb_retarget(NB_MEM& b, const char* cmd, bool add)
{
    release_knob(b);
    unsubscribe_alone(b);
    decode_command(b, cmd);
    forget_value(b);
    if (add)
        subscribe(b);
    assign_knob(b);
}
