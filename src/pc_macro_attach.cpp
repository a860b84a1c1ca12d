#include "pc_macro_attach.h"
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "macro_attach.h"
#include "message.h"
#include "netio.h"
#include "register.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr char LIST_PATH[] = "Macro@Attachment@List";
constexpr char MODE_PATH[] = "Macro@Attachment@Xpt Attachment Mode";
constexpr Rect DETAIL = {100, 284, 566, 326};
constexpr int FONT_DETAIL = 2;
enum : int { MODE_UNKNOWN = -1, MODE_BUTTON = 0, MODE_PAIR = 1 };
constexpr const char* mode_words[] = {"Button Mode", "Pair Mode"};
} // namespace

static struct {
    bool is_open = false;
    bool is_list_dirty = false;
    int detail_row = -1; // that the strip below the list shows
    int mode = MODE_UNKNOWN;
    char number[ATTACH_MAX][4]; // of the registers; the cells show them from here
} at;                           // valid from create(1) to create(0)

static int block_button(int group)
{
    return group < ATTACHGROUP_AUX ? BTN_ATTACH_BLOCK + group
                                   : BTN_ATTACH_BLOCK_7 + group - ATTACHGROUP_AUX;
}

// --- Showing ---

static void show_row(int row, const ATTACH_TBL& entry)
{
    CopyText(at.number[row], NumStr(entry.regno));
    const char* const cells[] = {entry.blk_name, entry.btn_name, entry.mode, at.number[row],
                                 entry.reg_name};
    for (int col = 0; col < int(std::size(cells)); col++)
        (void)LS_SetData(LIST_MACRO_ATTACH, row, col, cells[col]);
}

static void show_list()
{
    for (int row = 0; row < AttachListN; row++)
        show_row(row, *AttachPtr[row]);
    (void)LS_SetNData(LIST_MACRO_ATTACH, AttachListN);
    (void)LS_RedrawData(LIST_MACRO_ATTACH);
    for (int group = 0; group < ATTACHGROUPS; group++)
        BT_SetDisable(block_button(group), Attach_Count(ATTACHGROUP(group)) == 0);
    BT_SetDisable(BTN_ATTACH_DELETE, AttachListN == 0);
    BT_SetDisable(BTN_ATTACH_ALL_CLEAR, AttachListN == 0);
    at.detail_row = -1;
}

static void show_mode()
{
    (void)BT_SetStatus(BTN_ATTACH_BUTTON_MODE, at.mode == MODE_BUTTON ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_ATTACH_PAIR_MODE, at.mode == MODE_PAIR ? BT_ON : BT_OFF);
}

static void draw_detail()
{
    char block[40] = "", button[64] = "";
    const int row = std::max(LS_GetNowLine(LIST_MACRO_ATTACH), 0);
    if (row == at.detail_row)
        return;
    at.detail_row = row;
    if (row < AttachListN) {
        PrintText(block, "Block : %s", AttachPtr[row]->blk_name);
        PrintText(button, "Button : %s", AttachPtr[row]->btn_name);
    }
    const int width = DETAIL.x2 - DETAIL.x1 - 8;
    TDL_FillRectS(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2, BLACK);
    TDL_SymbolWS(DETAIL.x1 + 4, DETAIL.y1 + 4, width, block, FONT_DETAIL, TEAL);
    TDL_SymbolWS(DETAIL.x1 + 4, DETAIL.y1 + 24, width, button, FONT_DETAIL, TEAL);
    TDL_UpdateRect(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2);
}

static int page_redraw()
{
    if (at.is_list_dirty)
        show_list();
    at.is_list_dirty = false;
    draw_detail();
    return 0;
}

// --- Touches ---

static int block_sel(int group)
{
    if (group < 0 || group >= ATTACHGROUPS || Attach_Count(ATTACHGROUP(group)) == 0)
        return 0;
    const int row = Attach_Top(ATTACHGROUP(group));
    (void)LS_SetNowLine(LIST_MACRO_ATTACH, row);
    (void)LS_SetTopLine(LIST_MACRO_ATTACH, row);
    if (!LS_GetMS(LIST_MACRO_ATTACH))
        (void)LS_SetSelected(LIST_MACRO_ATTACH, row, 0, 1);
    return 0;
}

static int ask(const char* title, const char* message, int (*ok)(int), int var = 0)
{
    return CreateWindow(WINDOW_MESSAGE, title,
                        {.message = message, .is_yes_no = true, .ok = ok, .ok_var = var});
}

static void send_delete(const ATTACH_TBL& entry)
{
    char text[CMD_SIZE] = "";
    for (const int field : entry.field) {
        AppendText(text, *text ? "," : "");
        AppendText(text, NumStr(field));
    }
    Net_SendCommandFormat("put Macro@Attachment@Delete#%s", text);
}

static int delete_confirmed(int)
{
    for (int i = 0, row; at.is_open && (row = LS_GetSelected(LIST_MACRO_ATTACH, i)) >= 0; i++)
        if (row < AttachListN)
            send_delete(*AttachPtr[row]);
    return 0;
}

static int all_clear_confirmed(int)
{
    return at.is_open ? Net_SendCommand("put Macro@Attachment@All Clear#true") : 0;
}

static int mode_confirmed(int mode)
{
    return at.is_open ? Net_SendCommandFormat("put %s#%s", MODE_PATH, mode_words[mode]) : 0;
}

static int mode_sel(int mode)
{
    if (mode == at.mode)
        return 0;
    return ask("Xpt Attachment Mode",
               "This operation will cause the Macro \nAttachment data on the XPT buttons to be "
               "\ncleared.\n\nContinue?",
               mode_confirmed, mode);
}

static int delete_sel()
{
    return AttachListN == 0
               ? 0
               : ask("Macro Attachment Delete",
                     "This operation will cause the data to be \ndeleted.\n\nContinue?",
                     delete_confirmed);
}

static int all_clear_sel()
{
    return ask("All Clear",
               "This operation will cause all macro attach-\nment data to be cleared.\n\nContinue?",
               all_clear_confirmed);
}

static int button_pressed(const char* command, const char* value)
{
    if (Same(command, "LOCAL@Macro@Attach@Attach@Block"))
        return block_sel(Decimal(value) - 1);
    if (Same(command, "LOCAL@Macro@Attach@Attach@Mode"))
        return mode_sel(Same(value, mode_words[MODE_PAIR]) ? MODE_PAIR : MODE_BUTTON);
    if (Same(command, "LOCAL@Macro@Attach@Attach@Delete"))
        return delete_sel();
    if (Same(command, "LOCAL@Macro@Attach@Attach@All Clear"))
        return all_clear_sel();
    return 0;
}

// --- What the server tells ---

static int take_tally(const char* path, const char* value)
{
    if (Same(path, LIST_PATH) && attach_list_tly(value) == 0) {
        at.is_list_dirty = true;
    } else if (Same(path, MODE_PATH)) {
        at.mode = Same(value, mode_words[MODE_PAIR])     ? MODE_PAIR
                  : Same(value, mode_words[MODE_BUTTON]) ? MODE_BUTTON
                                                         : MODE_UNKNOWN;
        show_mode();
    }
    return 0;
}

static int register_changed(int kind)
{
    if (kind != REGISTER_MACRO)
        return 0;
    Attach_NameRegisters();
    at.is_list_dirty = true;
    return 0;
}

static int pc_macro_attach_attach_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!at.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button_pressed(Text(ax), Text(bx));
    case LMSG_REGISTER: return register_changed(int(ax));
    default: return 0;
    }
}

static int pc_macro_attach_attach_create(int on, uint32_t)
{
    const bool was_open = at.is_open;
    at.is_open = false;
    Attach_Clear(); // the server tells all of it when it is asked
    if (on || was_open)
        for (const char* path : {LIST_PATH, MODE_PATH})
            Net_SendCommandFormat("%s %s", on ? "add" : "remove", path);
    Register_StatusReport(on);
    if (!on)
        return 0;
    at.is_open = at.is_list_dirty = true;
    at.detail_row = -1;
    at.mode = MODE_UNKNOWN;
    show_mode();
    return 0;
}

const PC_TBL pc_macro_attach = {pc_macro_attach_attach_proc, pc_macro_attach_attach_create};
