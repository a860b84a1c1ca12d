// The frame-memory pages of a system without a clip store: stills and clips of the frame memory's
// registers are recalled to its eight outputs, renamed, deleted, moved between folders, made into
// pairs and taken apart; what is frozen is stored. One body for all: a page has the keys of its
// table. Nothing changes here by a touch: names, folders and outputs follow their tallies.
#include "a_bt.h"
#include "a_ls.h"
#include "a_pc.h"
#include "colours.h"
#include "device.h"
#include "fmctrl.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "page_table/fmem_store.h"
#include "pane.h"
#include "pc_fmem1_browse.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

#define LOCAL_FM "LOCAL@Frame Mem@"
#define RECALL "Frame Mem@Recall@Recall Thumbnail@"
#define FREEZE "Frame Mem@Edit@Freeze@Freeze@"

namespace
{
constexpr int OUTPUTS = 8;
constexpr int PAIRS = OUTPUTS / 2;
constexpr int PROCESSORS = 2;
constexpr int FONT = 3;
constexpr Rect PICTURES = {405, 124, 702, 343};
constexpr Rect OUTPUT_AREA = {405, 351, 702, 434};
constexpr int LINE_PX = 21;
constexpr int ROOM_PX = 150; // beside a key
constexpr int NAME_CHARACTERS = 8;
constexpr int CLIP_CHARACTERS = 4; // the frame takes the others
constexpr const char* EXISTS = "This name is already existing.\nPlease enter other name.";
constexpr const char* DELETES = "This operation will cause the data to be\ndeleted.\n\nContinue?";
constexpr const char* IS_USED = "The file which is being used is included in\nan operational "
                                "target.\nContinue?";
} // namespace

// What the server has told; outlives the page, which asks anew when it opens.
static struct {
    int pair = 0; // of outputs: the selected one
    char name[OUTPUTS][FMEM_NAME_SIZE] = {};
} out;

static bool is_pair_on = false; // what a recall takes: a choice of this panel's operator

static struct {
    bool is_open = false;
    FMEM1KIND kind = FMEM1_STILL;
    bool has_outputs = false; // shows them, or else how many registers are empty
    bool is_dirty = false;
    int folder_pane = 0;
    int move_pane = 0;
    int output_pane = 0;
    int delete_pane = 0;
    int* doomed = nullptr; // registers that the question is about
    int doomed_count = 0;
    char renamed[FMEM_NAME_SIZE] = "";    // register that stands for what gets a name
    char folder_name[FOLDER_MAX][9] = {}; // panes and keys show these
    char folder_caption[9] = "";
    char out_caption[16] = "";
    char recall_caption[2][16] = {};
} fm1; // valid from create(1) to create(0)

// --- Keys ---

static bool is_clip()
{
    return fm1.kind == FMEM1_CLIP;
}

static bool is_paired(const FMEM1ROW& row)
{
    return row.reg[0] >= 0 && row.reg[1] >= 0;
}

static int selected_rows()
{
    int n = 0;
    while (Fmem1_Selected(n))
        n++;
    return n;
}

// Two stills of one side each: they can become a pair.
static bool can_couple()
{
    const FMEM1ROW* const a = Fmem1_Selected(0);
    const FMEM1ROW* const b = Fmem1_Selected(1);
    return a && b && !Fmem1_Selected(2) && !is_paired(*a) && !is_paired(*b);
}

static void enable_keys()
{
    const FMEM1ROW* const row = Fmem1_Chosen();
    const int count = selected_rows();
    const bool is_one = row && count == 1;
    const bool is_unit = DEV_MySwr[0] != nullptr;
    BT_SetDisable(BTN_FMEM1_RECALL_A, !row || !is_unit);
    BT_SetDisable(BTN_FMEM1_RECALL_B, !row || !is_unit || is_pair_on);
    BT_SetDisable(BTN_FMEM1_BACK, !row);
    BT_SetDisable(BTN_FMEM1_FORWARD, !row);
    BT_SetDisable(BTN_FMEM1_RENAME, !is_one);
    BT_SetDisable(BTN_FMEM1_DELETE, count == 0);
    BT_SetDisable(BTN_FMEM1_MOVE, count == 0 || !is_unit || FMCtrl_GetFolderNum() < 2);
    BT_SetDisable(BTN_FMEM1_COUPLE, !can_couple());
    BT_SetDisable(BTN_FMEM1_SEPARATE, !is_one || !is_paired(*row));
    BT_SetDisable(BTN_FMEM1_ANCILLARY, !is_one);
    (void)BT_SetStatus(BTN_FMEM1_ANCILLARY, is_one && row->is_ancillary ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_FMEM1_PAIR, is_pair_on ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_FMEM1_AUTO_STORE, GL_FreezeStore ? BT_ON : BT_OFF);
}

static void show_captions()
{
    const FOLDER* const folder = FMCtrl_GetFolder(FMCtrl_GetIsFolderIdx(Fmem1_FolderId()));
    CopyText(fm1.folder_caption, folder && *folder->name ? folder->name : "Default.");
    PrintText(fm1.out_caption, "FM%d-FM%d", 2 * out.pair + 1, 2 * out.pair + 2);
    (void)BT_SetCaption(BTN_FMEM1_FOLDER, fm1.folder_caption);
    (void)BT_SetCaption(BTN_FMEM1_OUT, fm1.out_caption);
    BT_SetDisable(BTN_FMEM1_FOLDER, FMCtrl_GetFolderNum() < 2);
    for (int i = 0; i < 2; i++)
        PrintText(fm1.recall_caption[i], "Recall\nFM%d", 2 * out.pair + 1 + i);
    (void)BT_SetCaption(BTN_FMEM1_RECALL_A, fm1.recall_caption[0]);
    (void)BT_SetCaption(BTN_FMEM1_RECALL_B, fm1.recall_caption[1]);
}

static void show_keys()
{
    fm1.is_dirty = true;
    enable_keys();
    show_captions();
}

static int refuse(const char* title, const char* text)
{
    (void)PaneMessage_Create(title, PANE_ALERT, text);
    return -1;
}

// --- Outputs ---

static void output_sel()
{
    static constexpr const char* captions[PAIRS] = {"FM1-FM2", "FM3-FM4", "FM5-FM6", "FM7-FM8"};
    BTNSEL cells[PAIRS];
    for (int i = 0; i < PAIRS; i++)
        cells[i] = {i + 1, captions[i], i == out.pair};
    fm1.output_pane = FMOutPopup_Create(1, PAIRS, cells);
}

static void output_chosen(int id)
{
    if (id >= 1 && id <= PAIRS)
        Net_SendCommandFormat("put " RECALL "Select#FM%d&%d", 2 * id - 1, 2 * id);
}

static void recall(int output, int reg)
{
    if (reg >= 0)
        Net_SendCommandFormat("put " RECALL "FM%d#%s", output, FMCtrl2_GetRegNameMulti(reg));
}

// Of a pair the main side goes to the first output and the sub side to the second; else the one
// output takes the side that there is.
static void recall_to(int second)
{
    const FMEM1ROW* const row = Fmem1_Chosen();
    if (!row || (second && is_pair_on))
        return;
    const int first_output = 2 * out.pair + 1;
    if (is_pair_on && is_paired(*row)) {
        recall(first_output, row->reg[0]);
        recall(first_output + 1, row->reg[1]);
        return;
    }
    const bool takes_sub = row->reg[0] < 0 || (second && row->reg[1] >= 0);
    recall(first_output + second, row->reg[takes_sub]);
}

static void recall_a_sel()
{
    recall_to(0);
}
static void recall_b_sel()
{
    recall_to(1);
}

static void pair_sel()
{
    is_pair_on = !is_pair_on;
    enable_keys();
}

static void move_frame(int d)
{
    Fmem1_MoveFrame(d);
    fm1.is_dirty = true;
}
static void back_sel()
{
    move_frame(-1);
}
static void forward_sel()
{
    move_frame(1);
}

static bool is_recalled(const char* name)
{
    return std::any_of(std::begin(out.name), std::end(out.name),
                       [name](const char* shown) { return Same(shown, name); });
}

// --- Folders ---

static int folder_popup()
{
    BTNSEL cells[FOLDER_MAX];
    const int rows = FMCtrl_GetFolderNum();
    const int open = FMCtrl_GetIsFolderIdx(Fmem1_FolderId());
    for (int row = 0; row < rows; row++) {
        CopyText(fm1.folder_name[row], FMCtrl_GetFolder(row)->name);
        cells[row] = {row + 1, fm1.folder_name[row], row == open};
    }
    return PaneDirectory_Create_FolderPopup(rows, cells);
}

// The folder of a cell by its name: rows may have changed their places. -1: it has gone.
static int folder_of_cell(int id)
{
    if (id < 1 || id > FOLDER_MAX)
        return -1; // "Cancel"
    if (id == 1)
        return 0;
    for (int row = 1; row < FMCtrl_GetFolderNum(); row++)
        if (Same(FMCtrl_GetFolder(row)->name, fm1.folder_name[id - 1]))
            return FMCtrl_GetFolderId(row);
    return -1;
}

static void folder_sel()
{
    fm1.folder_pane = folder_popup();
}
static void move_sel()
{
    if (Fmem1_Selected(0) && DEV_MySwr[0])
        fm1.move_pane = folder_popup();
}

static void folder_chosen(int id)
{
    const int folder = folder_of_cell(id);
    if (folder < 0)
        return;
    Fmem1_SetFolder(folder);
    show_keys();
}

// --- The registers of what is selected ---

static void for_registers(const FMEM1ROW& row, void (*func)(const char* name, int value), int value)
{
    for (int sub = 0; sub < 2; sub++) {
        const int count = Fmem1_Registers(row, sub);
        for (int i = 0; i < count; i++)
            if (const int reg = Fmem1_Register(row, sub, i); reg >= 0)
                func(FMCtrl2_GetRegNameMulti(reg), value);
    }
}

static void for_selected(void (*func)(const char* name, int value), int value)
{
    for (int i = 0; const FMEM1ROW* const row = Fmem1_Selected(i); i++)
        for_registers(*row, func, value);
}

static void move_to(const char* name, int folder)
{
    FMCtrl_MoveStill(DEV_MySwr[0], name, folder);
}

static void move_chosen(int id)
{
    const int folder = folder_of_cell(id);
    if (folder >= 0)
        for_selected(move_to, folder);
}

// --- Delete ---

static void forget_doomed()
{
    GDL_Free(fm1.doomed);
    fm1.doomed = nullptr;
    fm1.doomed_count = fm1.delete_pane = 0;
}

static int registers_selected()
{
    int n = 0;
    for (int i = 0; const FMEM1ROW* const row = Fmem1_Selected(i); i++)
        n += Fmem1_Registers(*row, 0) + Fmem1_Registers(*row, 1);
    return n;
}

// True when an output shows one of them.
static bool note_doomed()
{
    bool is_used = false;
    for (int i = 0; const FMEM1ROW* const row = Fmem1_Selected(i); i++)
        for (int sub = 0; sub < 2; sub++)
            for (int n = 0; n < Fmem1_Registers(*row, sub); n++) {
                const int reg = Fmem1_Register(*row, sub, n);
                if (reg < 0)
                    continue;
                fm1.doomed[fm1.doomed_count++] = reg;
                is_used |= is_recalled(FMCtrl2_GetRegNameMulti(reg));
            }
    return is_used;
}

static void delete_sel()
{
    const int count = registers_selected();
    forget_doomed();
    if (count == 0)
        return;
    fm1.doomed = static_cast<int*>(GDL_Calloc(size_t(count), sizeof(int)));
    if (!fm1.doomed)
        return;
    const bool is_used = note_doomed();
    fm1.delete_pane = PaneYesNo_Create(is_used ? "Frame Memory Delete" : "Delete", PANE_ALERT,
                                       is_used ? IS_USED : DELETES);
}

// What the operator was asked about, as far as it is still there.
static void delete_answer(int result)
{
    constexpr int YES = 1;
    for (int i = 0; result == YES && i < fm1.doomed_count; i++)
        if (FMCtrl2_IsRegStoreMulti(fm1.doomed[i]))
            Net_SendCommandFormat("put Frame Mem@File@Delete Thumbnail@Single#%s",
                                  FMCtrl2_GetRegNameMulti(fm1.doomed[i]));
    forget_doomed();
}

// --- Names ---

static void rename_register(const char* old_name, const char* name)
{
    char prefix_old[FMEM_NAME_SIZE];
    CopyText(prefix_old, old_name); // the text goes with the next message
    Net_SendCommandFormat("put Frame Mem@File@Rename#%s,%s", prefix_old, name);
}

static bool is_name_taken(const char* name)
{
    char reg_name[FMEM_NAME_SIZE];
    for (const char prefix : {'M', 'S'}) {
        PrintText(reg_name, "%c%s", prefix, name);
        if (FMCtrl2_ExistRegName(reg_name))
            return true;
    }
    return false;
}

// The row of what the window is about; null: it has gone meanwhile.
static const FMEM1ROW* row_renamed()
{
    for (int i = 0; const FMEM1ROW* const row = Fmem1_Selected(i); i++)
        for (const int reg : row->reg)
            if (reg >= 0 && Same(FMCtrl2_GetRegNameMulti(reg), fm1.renamed))
                return row;
    return nullptr;
}

static void rename_row(const FMEM1ROW& row, const char* name)
{
    char frame[8], clip[FMEM_NAME_SIZE], new_name[FMEM_NAME_SIZE];
    for (int sub = 0; sub < 2; sub++) {
        const int count = Fmem1_Registers(row, sub);
        for (int i = 0; i < count; i++) {
            const int reg = Fmem1_Register(row, sub, i);
            if (reg < 0)
                continue;
            const char* const old_name = FMCtrl2_GetRegNameMulti(reg);
            const bool is_frame = is_clip() && FMCtrl_DivClipName(old_name, clip, frame,
                                                                  sizeof clip, sizeof frame) == 0;
            PrintText(new_name, "%c%s%s", sub ? 'S' : 'M', name, is_frame ? frame : "");
            rename_register(old_name, new_name);
        }
    }
}

static int name_entered(const char* text)
{
    char name[NAME_CHARACTERS + 1];
    strncpy_close(name, text, size_t(is_clip() ? CLIP_CHARACTERS : NAME_CHARACTERS));
    const FMEM1ROW* const row = fm1.is_open ? row_renamed() : nullptr;
    if (!row)
        return -1;
    if (!StrRegName(name))
        return refuse("Invalid Name", "Empty...");
    if (Same(name, row->name))
        return 0;
    if (is_clip() ? FMCtrl_IsExistClip(name) : is_name_taken(name))
        return refuse("Rename", EXISTS);
    rename_row(*row, name);
    return 0;
}

static void ask_name(const char* title, int (*entered)(const char* text))
{
    const FMEM1ROW* const row = Fmem1_Chosen();
    if (!row)
        return;
    CopyText(fm1.renamed, FMCtrl2_GetRegNameMulti(row->reg[row->reg[0] < 0]));
    CreateWindow(WINDOW_KEYBOARD, title,
                 {.value = row->name,
                  .input_max = is_clip() ? CLIP_CHARACTERS : NAME_CHARACTERS,
                  .ok_text = entered});
}

static void rename_sel()
{
    ask_name("Rename", name_entered);
}

// --- Pairs ---

// The second becomes the other side of the first.
static void couple_sel()
{
    if (!can_couple())
        return;
    const FMEM1ROW& a = *Fmem1_Selected(0);
    const FMEM1ROW& b = *Fmem1_Selected(1);
    char name[FMEM_NAME_SIZE];
    PrintText(name, "%c%s", a.reg[0] >= 0 ? 'S' : 'M', a.name);
    rename_register(FMCtrl2_GetRegNameMulti(b.reg[b.reg[0] < 0]), name);
}

// The sub side of a pair gets a name of its own.
static int separate_entered(const char* text)
{
    char name[NAME_CHARACTERS + 1];
    char reg_name[FMEM_NAME_SIZE];
    CopyText(name, text);
    const FMEM1ROW* const row = fm1.is_open ? row_renamed() : nullptr;
    if (!row || !is_paired(*row))
        return -1;
    if (!StrRegName(name))
        return refuse("Invalid Name", "Empty...");
    if (is_name_taken(name))
        return refuse("Separate", EXISTS);
    PrintText(reg_name, "S%s", name);
    rename_register(FMCtrl2_GetRegNameMulti(row->reg[1]), reg_name);
    return 0;
}

static void separate_sel()
{
    if (const FMEM1ROW* const row = Fmem1_Chosen(); row && is_paired(*row))
        ask_name("Separate", separate_entered);
}

static void ancillary_sel()
{
    const FMEM1ROW* const row = Fmem1_Chosen();
    if (row && is_clip())
        Net_SendCommandFormat("put Frame Mem@Clip@Ancillary Playback Enable#0,%c%s,%d",
                              row->reg[0] >= 0 ? 'M' : 'S', row->name, !row->is_ancillary);
}

// --- Freeze and store ---

// The next empty register, of the main store first; -1 none.
static int empty_register(int from)
{
    const int reg = FMCtrl2_EmptyRegNo(from);
    return reg < 0 && from < FMEM_EXTENDED && FMCtrl2_IsExtendedCapacity()
               ? FMCtrl2_EmptyRegNo(FMEM_EXTENDED)
               : reg;
}

// What a processor has frozen goes into an empty register under a name that is free.
static void store_freeze(int processor)
{
    const int number = FMCtrl_GetDefaultImageNum();
    const int reg = empty_register(0);
    if (number == 0 || reg < 0) {
        (void)refuse("Frame Memory Store", "There is no empty register left.");
        return;
    }
    Net_SendCommandFormat("put Frame Mem@Edit@Store@PROC%d#%d,Mimage%03d", processor, reg + 1,
                          number);
}

static void store1_sel()
{
    store_freeze(1);
}
static void store2_sel()
{
    store_freeze(2);
}

static void auto_store_sel()
{
    GL_FreezeStore = !GL_FreezeStore;
    GL_FreezeStore_Exec = 0;
    enable_keys();
}

// The picture stands that this panel has asked for.
static void frozen(const char* path, const char* value)
{
    if (!GL_FreezeStore_Exec || !BeginsWith(path, FREEZE))
        return;
    GL_FreezeStore_Exec = 0; // to be live again was not meant to be stored
    if (!Same(value, "true"))
        return;
    const size_t length = strlen(path);
    const int processor = path[length - 1] - '0';
    if (processor >= 1 && processor <= PROCESSORS)
        store_freeze(processor);
}

// --- Tallies ---

static void output_tally(const char* tail, const char* value)
{
    if (Same(tail, "Select")) {
        if (BeginsWith(value, "FM") && value[2] >= '1' && value[2] <= '0' + OUTPUTS)
            out.pair = (value[2] - '1') / 2;
    } else if (BeginsWith(tail, "FM") && tail[2] >= '1' && tail[2] <= '0' + OUTPUTS && !tail[3]) {
        CopyText(out.name[tail[2] - '1'], value);
    }
    show_keys();
}

static int tally(const char* path, const char* value)
{
    if (BeginsWith(path, RECALL))
        output_tally(path + sizeof RECALL - 1, value);
    else
        frozen(path, value);
    fm1.is_dirty |= BeginsWith(path, "Frame Mem@Status@Store Number");
    return 0;
}

// --- Picture ---

static void draw_outputs()
{
    constexpr int COLUMN_PX = 150;
    const Rect& a = OUTPUT_AREA;
    (void)TDL_FillRectS(a.x1, a.y1, a.x2, a.y2, BLACK);
    for (int i = 0; i < OUTPUTS; i++) {
        const int x = a.x1 + i % 2 * COLUMN_PX;
        const int y = a.y1 + i / 2 * LINE_PX;
        char label[8];
        PrintText(label, "FM%d", i + 1);
        (void)TDL_SymbolS(x, y, label, FONT, i / 2 == out.pair ? CYAN : LABEL);
        (void)TDL_SymbolS(x + 40, y, out.name[i], FONT, WHITE);
    }
}

static void draw_room()
{
    char text[32];
    const Rect& a = OUTPUT_AREA;
    PrintText(text, "%d", SYS_StoreFree);
    (void)TDL_FillRectS(a.x1, a.y1, a.x1 + ROOM_PX, a.y2, BLACK);
    (void)TDL_SymbolS(a.x1, a.y1, "Empty Registers", FONT, LABEL);
    (void)TDL_SymbolS(a.x1, a.y1 + LINE_PX, text, FONT, WHITE);
}

static int redraw(int elapsed_ms)
{
    if (Fmem1_Pass(elapsed_ms))
        show_keys();
    if (!fm1.is_dirty)
        return 0;
    fm1.is_dirty = false;
    Fmem1_DrawPictures(PICTURES);
    (fm1.has_outputs ? draw_outputs : draw_room)();
    TDL_UpdateRect(PICTURES.x1, PICTURES.y1, PICTURES.x2, OUTPUT_AREA.y2);
    return 0;
}

// --- Messages ---

static int button(const char* path)
{
    static constexpr struct {
        const char* path;
        void (*run)();
    } commands[] = {
        {LOCAL_FM "Folder", folder_sel},
        {LOCAL_FM "Output", output_sel},
        {LOCAL_FM "Recall A", recall_a_sel},
        {LOCAL_FM "Recall B", recall_b_sel},
        {LOCAL_FM "Pair", pair_sel},
        {LOCAL_FM "Frame Back", back_sel},
        {LOCAL_FM "Frame Forward", forward_sel},
        {LOCAL_FM "Rename", rename_sel},
        {LOCAL_FM "Delete", delete_sel},
        {LOCAL_FM "Move", move_sel},
        {LOCAL_FM "Couple", couple_sel},
        {LOCAL_FM "Separate", separate_sel},
        {LOCAL_FM "Ancillary", ancillary_sel},
        {LOCAL_FM "Store 1", store1_sel},
        {LOCAL_FM "Store 2", store2_sel},
        {LOCAL_FM "Auto Store", auto_store_sel},
    };
    for (const auto& command : commands)
        if (Same(path, command.path))
            command.run();
    return 0;
}

static int pane_closed(int pane, int result)
{
    const struct {
        int* pane;
        void (*take)(int result);
    } panes[] = {
        {&fm1.folder_pane, folder_chosen},
        {&fm1.move_pane, move_chosen},
        {&fm1.output_pane, output_chosen},
        {&fm1.delete_pane, delete_answer},
    };
    for (const auto& p : panes)
        if (pane != 0 && pane == *p.pane) {
            *p.pane = 0;
            p.take(result);
            return 0;
        }
    return 0;
}

static int catalogue_changed(int what)
{
    constexpr int THUMBNAIL = 1;
    if (what == THUMBNAIL)
        fm1.is_dirty = true; // perhaps of what is shown
    else
        Fmem1_Changed();
    return 0;
}

static int folders_changed()
{
    Fmem1_Changed();
    show_captions();
    return 0;
}

static int fmem1_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!fm1.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_TALLY: return tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case LMSG_LISTSEL:
    case LMSG_LISTFLASH: show_keys(); return 0;
    case LMSG_FMCTRLCHANGE: return catalogue_changed(int(bx));
    case LMSG_FOLDERNAMESENSE: return folders_changed();
    default: return 0;
    }
}

static void follow_outputs(const char* verb)
{
    Net_SendCommandFormat("%s " RECALL "Select", verb);
    for (int i = 1; i <= OUTPUTS; i++)
        Net_SendCommandFormat("%s " RECALL "FM%d", verb, i);
}

static int fmem1_create(int on, uint32_t kind)
{
    if (fm1.is_open) {
        forget_doomed();
        Fmem1_Close();
        follow_outputs("remove");
    }
    fm1 = {};
    if (!on)
        return 1;
    fm1.is_open = true;
    fm1.kind = kind < FMEM1_KINDS ? FMEM1KIND(kind) : FMEM1_STILL;
    fm1.has_outputs = BT_GetVisible(BTN_FMEM1_AUTO_STORE) < 0;
    GL_FreezeStore_Exec = 0; // of a freeze that was left long ago
    Fmem1_Open(fm1.kind);
    follow_outputs("add");
    show_keys();
    return 0;
}

const PC_TBL pc_fmem1 = {.proc_func = fmem1_proc, .create_func = fmem1_create};
