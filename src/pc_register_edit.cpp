// The edit page of a master or a shotbox: which register it recalls in each region. Cells are
// chosen by touch and take the number of the knob; nothing leaves the page before the store. The
// store sends the links behind the number, in the order of the regions, 0 where a region is left
// alone. A shotbox links an effect or, with "S" before its number, a snapshot of each region; here
// such a link is below 0, as in a RegisterLine.
#include "a_bt.h"
#include "a_nb.h"
#include "colours.h"
#include "message.h"
#include "netio.h"
#include "pc_register.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int SLOTS = 8;
constexpr int LAYERS_MAX = 6;
constexpr int LINKED_REGIONS = REGISTER_LINKS; // of a shotbox; the others have fewer
constexpr int NONE = -1;
constexpr int PUSHED_MS = 150;
constexpr int STORE_MS = 3000; // in which the server tells what it has stored

constexpr int FONT_CAPTION = 3;
constexpr int FONT_NUMBER = 7;
constexpr int FONT_HEAD = 8;
constexpr unsigned CELL_GROUND = 0x14323C;
constexpr unsigned CELL_LINKED = 0x005A6E;
constexpr unsigned CELL_SELECTED = 0x00C8F0;
constexpr Rect HEAD = {100, 76, 701, 98};

constexpr int LAYER_X = 100; // of the layers' captions

constexpr Rect CellRect(int layer, int slot)
{
    const int x = 138 + 70 * slot;
    const int y = 102 + 55 * layer;
    return {x, y, x + 66, y + 50};
}

struct LayerSlot {
    int region = NONE; // row of the region, place in the links; none: an empty slot
    const char* caption = "";
};
struct Layer {
    const char* caption = "";
    LayerSlot slot[SLOTS];
};
struct Layers {
    Layer layer[LAYERS_MAX];
};
} // namespace

static constexpr const char* side_captions[] = {"ME1", "ME2", "ME3", "ME4", "ME5", "P/P"};
static constexpr const char* sub_captions[] = {"ME1\nSub", "ME2\nSub", "ME3\nSub",
                                               "ME4\nSub", "ME5\nSub", "P/P\nSub"};
static constexpr const char* user_captions[] = {"USR1", "USR2", "USR3", "USR4",
                                                "USR5", "USR6", "USR7", "USR8"};
static constexpr const char* channel_captions[] = {"DME1", "DME2", "DME3", "DME4",
                                                   "DME5", "DME6", "DME7", "DME8"};
static constexpr const char* device_captions[] = {"DEV1", "DEV2", "DEV3", "DEV4",
                                                  "DEV5", "DEV6", "DEV7", "DEV8"};
static constexpr const char* further_captions[] = {"DEV9", "DEV10", "DEV11", "DEV12"};
static constexpr const char* rest_captions[] = {"PBUS", "GPI", "MCRO"};

// The captions from the slot on, for the regions from first on.
template <size_t N>
static constexpr void SetSlots(Layer& layer, int slot, int first, const char* const (&captions)[N])
{
    for (size_t i = 0; i < N; i++)
        layer.slot[size_t(slot) + i] = {first + int(i), captions[i]};
}

// Four layers of the snapshots, six of the effects, as the page shows them. The router stands in a
// layer of its own where one is free, else beside the banks.
static constexpr Layers MakeLayers(bool is_effect, bool has_sub, int router = NONE)
{
    constexpr const char* router_captions[] = {"RTR"};
    Layers all;
    int n = 0;
    all.layer[n].caption = "M/E";
    SetSlots(all.layer[n++], 0, SS_REGION_ME1, side_captions);
    if (has_sub) {
        all.layer[n].caption = "Sub";
        SetSlots(all.layer[n++], 0, SS_REGION_ME1_SUB, sub_captions);
    }
    all.layer[n].caption = "USR";
    SetSlots(all.layer[n++], 0, SS_REGION_USER1, user_captions);
    all.layer[n].caption = "DME";
    SetSlots(all.layer[n++], 0, SS_REGION_DME1, channel_captions);
    if (is_effect) {
        all.layer[n].caption = "VDCP"; // how the devices are controlled
        SetSlots(all.layer[n++], 0, EFF_REGION_DEV1, device_captions);
        SetSlots(all.layer[n], 0, EFF_REGION_DEV1 + SLOTS, further_captions);
        SetSlots(all.layer[has_sub ? n : n + 1], has_sub ? int(std::size(further_captions)) : 0,
                 EFF_REGION_PBUS, rest_captions);
    }
    const bool has_free_layer = !is_effect && !has_sub;
    if (router != NONE)
        SetSlots(all.layer[has_free_layer ? n : 0], has_free_layer ? 0 : int(SLOTS) - 2, router,
                 router_captions);
    return all;
}
static constexpr Layers LayerTblOrg = MakeLayers(false, false, SS_REGION_RTR);
static constexpr Layers MP2LayerTblOrg = MakeLayers(false, true, SS_REGION_RTR);
static constexpr Layers EffectLayerTblOrg = MakeLayers(true, false);
static constexpr Layers EffectMP2LayerTblOrg = MakeLayers(true, true);
static constexpr Layers ShotboxLayerTblOrg = MakeLayers(true, false, SHOTBOX_RTR);
static constexpr Layers ShotboxMP2LayerTblOrg = MakeLayers(true, true, SHOTBOX_RTR);

namespace
{
struct EditPage {
    const RegisterKind* kind = nullptr; // null: no page of ours is open
    int no = 0;                         // of the register, from 0
    Layers layers;                      // trimmed to the system
    int MasterEdit[LINKED_REGIONS] = {};
    int MasterUndo[LINKED_REGIONS] = {}; // what the last store has replaced
    bool EditData_Select[LAYERS_MAX][SLOTS] = {};
    int EditData_Pushed[LAYERS_MAX][SLOTS] = {}; // ms left of the pushed look
    int current = 0;                             // the master that was recalled last, 0 none
    int knob = 0;                                // that Assign writes
    bool is_snapshot = false;                    // and of which sort, in a shotbox
    bool is_edited = false;                      // MasterEdit is not what the register holds
    int stored_ms = 0; // left for the server's line of the last store; 0 none is awaited
    int stored[LINKED_REGIONS] = {}; // what that store sent
    bool redraw = false;
};
} // namespace

static_assert(SHOTBOX_RTR == int(EFF_REGION_MASTER));
static EditPage me; // valid from create(1) to create(0)

static bool is_shotbox()
{
    return me.kind->kind == REGKIND_SHOTBOX;
}

static int regions_of_kind()
{
    return me.kind->mirror == REGISTER_SNAPSHOT ? int(SS_REGION_MASTER)
           : is_shotbox()                       ? LINKED_REGIONS
                                                : int(EFF_REGION_MASTER);
}

// The regions that the links of the masters belong to.
static const RegisterKind& linked_kind()
{
    return register_kinds[me.kind->mirror == REGISTER_SNAPSHOT ? REGKIND_SNAPSHOT : REGKIND_EFFECT];
}

static int number()
{
    return me.no + me.kind->first_number;
}

// --- The register ---

static bool is_locked()
{
    return RegisterKind_Lock(*me.kind, 0, me.no) != 0;
}

static void links_of_mirror(int (&links)[LINKED_REGIONS])
{
    RegisterLine line;
    (void)RegisterKind_Line(*me.kind, 0, me.no, &line); // an empty one links nothing
    std::copy_n(line.data, LINKED_REGIONS, links);
}

static void take_register()
{
    links_of_mirror(me.MasterEdit);
    me.is_edited = false;
    me.redraw = true;
}

static void say(const char* title, const char* message)
{
    (void)CreateWindow(WINDOW_MESSAGE, title, {.message = message});
}

// --- Cells ---

static bool is_slot(int layer, int slot)
{
    return me.layers.layer[layer].slot[slot].region != NONE;
}

// What the system does not have is no slot; layers that have none close up.
static void trim_layers(const Layers& all)
{
    me.layers = Layers();
    int to = 0;
    for (const Layer& layer : all.layer) {
        int n = 0;
        for (const LayerSlot& slot : layer.slot)
            if (slot.region != NONE && RegisterKind_IsInUse(linked_kind(), slot.region))
                me.layers.layer[to].slot[n++] = slot;
        me.layers.layer[to].caption = n > 0 ? layer.caption : "";
        to += n > 0;
    }
}

template <typename Is> static void select_cells(Is is_one)
{
    bool are_all_on = true;
    for (int layer = 0; layer < LAYERS_MAX; layer++)
        for (int slot = 0; slot < SLOTS; slot++)
            if (is_slot(layer, slot) && is_one(me.layers.layer[layer].slot[slot].region))
                are_all_on &= me.EditData_Select[layer][slot];
    for (int layer = 0; layer < LAYERS_MAX; layer++)
        for (int slot = 0; slot < SLOTS; slot++)
            if (is_slot(layer, slot) && is_one(me.layers.layer[layer].slot[slot].region))
                me.EditData_Select[layer][slot] = !are_all_on;
    me.redraw = true;
}

static int all_sel()
{
    select_cells([](int) { return true; });
    return 0;
}

static int swr_all_sel()
{
    select_cells([](int region) { return region <= SS_REGION_USER8; });
    return 0;
}

// --- Keys ---

// What the knob says, or what stands there where the region has no such register.
static int assigned(int region, int link)
{
    const bool is_device = me.kind->mirror != REGISTER_SNAPSHOT && region >= EFF_REGION_DEV1 &&
                           region <= EFF_REGION_PBUS;
    const bool is_router = is_shotbox() && region == SHOTBOX_RTR;
    const bool has_snapshots = region <= SS_REGION_DME8 || is_router;
    if (me.knob == 0)
        return 0;
    if (me.is_snapshot)
        return has_snapshots && me.knob <= REGISTERS ? -me.knob : link;
    return !is_router && me.knob <= (is_device ? REGISTERS_EFFECT : REGISTERS) ? me.knob : link;
}

static int assign_sel()
{
    for (int layer = 0; layer < LAYERS_MAX; layer++)
        for (int slot = 0; slot < SLOTS; slot++)
            if (me.EditData_Select[layer][slot] && is_slot(layer, slot)) {
                const int region = me.layers.layer[layer].slot[slot].region;
                me.MasterEdit[region] = assigned(region, me.MasterEdit[region]);
                me.is_edited = me.redraw = true;
            }
    return 0;
}

static void show_sort()
{
    if (is_shotbox())
        (void)BT_SetStatus(BTN_REGISTER_EDIT_SNAPSHOT, me.is_snapshot ? BT_ON : BT_OFF);
}

static int snapshot_sel()
{
    me.is_snapshot = is_shotbox() && !me.is_snapshot;
    show_sort();
    return 0;
}

static int edit_recall_sel()
{
    Net_SendCommandFormat("put %s#%d", me.kind->commands->edit_recall, number());
    take_register();
    return 0;
}

static void send_store()
{
    char links[CMD_SIZE] = "";
    for (int region = 0; region < regions_of_kind(); region++) {
        AppendText(links, me.MasterEdit[region] < 0 ? ",S" : ",");
        AppendText(links, NumStr(std::abs(me.MasterEdit[region])));
    }
    Net_SendCommandFormat("put %s#%d%s", me.kind->commands->edit_store, number(), links);
    me.is_edited = false;
    me.stored_ms = STORE_MS;
    std::copy(std::begin(me.MasterEdit), std::end(me.MasterEdit), me.stored);
}

// The server's line of the register has come. The page shows what it says.
static void store_answered()
{
    int links[LINKED_REGIONS];
    if (me.stored_ms == 0)
        return;
    me.stored_ms = 0;
    links_of_mirror(links);
    if (!std::equal(std::begin(links), std::end(links), me.stored))
        say("Warning", "The register holds other data than\nwhat was to be stored.\n\nPlease "
                       "check it.");
}

static void store_waits(int elapsed_ms)
{
    if (me.stored_ms == 0)
        return;
    me.stored_ms = std::max(me.stored_ms - elapsed_ms, 0);
    if (me.stored_ms == 0)
        say("Error", "The register was not stored.");
}

static int store_sel()
{
    if (is_locked()) {
        say("Lock", "This operation will be cancelled, because the\nregister is locked.\n\nPlease "
                    "change the register status to be\nunlocked first.");
        return 0;
    }
    links_of_mirror(me.MasterUndo);
    send_store();
    return 0;
}

static int undo_sel()
{
    if (is_locked()) {
        say("Lock",
            "This operation is cancelled, because the\nregister is locked.\n\nPlease change the "
            "register status to be\nunlocked first.");
        return 0;
    }
    std::copy(std::begin(me.MasterUndo), std::end(me.MasterUndo), me.MasterEdit);
    me.redraw = true;
    int stored[LINKED_REGIONS];
    links_of_mirror(stored);
    if (!std::equal(std::begin(stored), std::end(stored), me.MasterEdit))
        send_store();
    return 0;
}

// --- Drawing ---

static void draw_head()
{
    char text[64];
    TDL_FillRectS(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2, BLACK);
    PrintText(text, "%d  %s%s", number(), RegisterKind_Name(*me.kind, 0, me.no),
              is_locked() ? "   Lock" : "");
    TDL_SymbolS(HEAD.x1 + 4, HEAD.y1 + 1, text, FONT_HEAD, WHITE);
    PrintText(text, me.current ? "Current %d" : "Current --", me.current);
    TDL_SymbolS(HEAD.x2 - 90, HEAD.y1 + 4, text, FONT_CAPTION, LABEL);
}

static void draw_caption(int layer)
{
    const Rect r = CellRect(layer, 0);
    TDL_FillRectS(LAYER_X, r.y1, r.x1 - 1, r.y2, BLACK);
    TDL_SymbolS(LAYER_X, r.y1 + 4, me.layers.layer[layer].caption, FONT_CAPTION, LABEL);
}

static void draw_slot(int layer, int slot)
{
    const Rect r = CellRect(layer, slot);
    const LayerSlot& s = me.layers.layer[layer].slot[slot];
    if (s.region == NONE) {
        TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, BLACK);
        return;
    }
    const int link = me.MasterEdit[s.region];
    const bool is_on = me.EditData_Select[layer][slot];
    const bool is_pushed = me.EditData_Pushed[layer][slot] > 0;
    const int shift = is_pushed;
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, is_on ? CELL_SELECTED : link ? CELL_LINKED : CELL_GROUND);
    TDL_RectS(r.x1, r.y1, r.x2, r.y2, is_pushed ? WHITE : CELL_FRAME);
    TDL_SymbolS(r.x1 + 5 + shift, r.y1 + 4 + shift, s.caption, FONT_CAPTION, is_on ? BLACK : LABEL);
    if (!link)
        return;
    char text[8];
    PrintText(text, "%s%d", link < 0 ? "S" : "", std::abs(link));
    TDL_SymbolS(r.x2 - 5 + shift - int(TDL_GetSymbolWidth(text, FONT_NUMBER)), r.y1 + 27 + shift,
                text, FONT_NUMBER, is_on ? BLACK : WHITE);
}

static void pushed_cells_wait(int elapsed_ms)
{
    for (auto& layer : me.EditData_Pushed)
        for (int& pushed : layer) {
            me.redraw |= pushed > 0 && pushed <= elapsed_ms;
            pushed = std::max(pushed - elapsed_ms, 0);
        }
}

static int edit_redraw(int elapsed_ms)
{
    store_waits(elapsed_ms);
    pushed_cells_wait(elapsed_ms);
    if (!me.redraw)
        return 0;
    me.redraw = false;
    draw_head();
    for (int layer = 0; layer < LAYERS_MAX; layer++) {
        draw_caption(layer);
        for (int slot = 0; slot < SLOTS; slot++)
            draw_slot(layer, slot);
    }
    TDL_UpdateRect(HEAD.x1, HEAD.y1, HEAD.x2, CellRect(LAYERS_MAX - 1, 0).y2);
    return 0;
}

// --- Messages ---

static int cell_pressed(int x, int y)
{
    for (int layer = 0; layer < LAYERS_MAX; layer++)
        for (int slot = 0; slot < SLOTS; slot++) {
            const Rect r = CellRect(layer, slot);
            if (!is_slot(layer, slot) || x < r.x1 || x > r.x2 || y < r.y1 || y > r.y2)
                continue;
            me.EditData_Select[layer][slot] = !me.EditData_Select[layer][slot];
            me.EditData_Pushed[layer][slot] = PUSHED_MS;
            me.redraw = true;
            return 1;
        }
    return 0;
}

// By the end of the command, behind "Edit@".
static constexpr RegisterTouch touches[] = {
    {"All", all_sel},         {"SWR All", swr_all_sel},    {"Snapshot", snapshot_sel},
    {"Assign", assign_sel},   {"Recall", edit_recall_sel}, {"Store@Store", store_sel},
    {"Store@Undo", undo_sel},
};

static int button_pressed(const char* command)
{
    constexpr char EDIT[] = "@Edit@";
    const char* const at = strstr(command, EDIT);
    for (const RegisterTouch& touch : touches)
        if (at && Same(at + sizeof EDIT - 1, touch.tail))
            return touch.act();
    return 0;
}

static int knob_turned(int value)
{
    me.knob = value;
    (void)NB_SetVar(1, value);
    return 0;
}

static int take_tally(const char* path, const char* value)
{
    if (Same(path, me.kind->commands->current)) {
        me.current = int(NumberIn(value, 0, REGISTERS));
        me.redraw = true;
    }
    return 0;
}

// Our own store has arrived, or another panel's. What has been assigned since stays.
static int register_changed(int kind, int row, int no)
{
    if (kind == me.kind->mirror && row == me.kind->mirror_row && no == me.no) {
        store_answered();
        if (!me.is_edited)
            take_register();
        me.redraw = true;
    }
    return 0;
}

static int edit_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!me.kind)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return edit_redraw(int(ax));
    case MSG_PRESS: return cell_pressed(int(ax), int(bx));
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_REGISTER: return register_changed(int(ax), int(bx), int(cx));
    case LMSG_KNOBVAR: return knob_turned(int(bx));
    default: return 0;
    }
}

static int leave()
{
    if (me.kind) {
        Net_SendCommandFormat("remove %s", me.kind->commands->current);
        Register_StatusReport(0);
    }
    me.kind = nullptr;
    return 0;
}

static int edit_create(int on, uint32_t kind)
{
    if (!on)
        return leave();
    if (kind >= REGKINDS || !register_kinds[kind].commands->edit_store)
        return -1;
    me = EditPage();
    me.kind = &register_kinds[kind];
    me.no = std::clamp(RegisterPage_Memory(me.kind->kind).sel1, 0, me.kind->registers - 1);
    const bool has_sub = RegisterKind_HasSubSides();
    if (me.kind->mirror == REGISTER_SNAPSHOT)
        trim_layers(has_sub ? MP2LayerTblOrg : LayerTblOrg);
    else if (is_shotbox())
        trim_layers(has_sub ? ShotboxMP2LayerTblOrg : ShotboxLayerTblOrg);
    else
        trim_layers(has_sub ? EffectMP2LayerTblOrg : EffectLayerTblOrg);
    Register_StatusReport(1);
    Net_SendCommandFormat("add %s", me.kind->commands->current);
    take_register();
    links_of_mirror(me.MasterUndo);
    (void)knob_turned(1);
    show_sort();
    return 0;
}

const PC_TBL pc_register_edit = {edit_proc, edit_create};
