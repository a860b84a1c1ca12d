#include "pc_texture_select.h"
#include "a_ba.h"
#include "a_ls.h"
#include "command.h"
#include "layout.h"
#include "message.h"
#include "netio.h"
#include "overview.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>
#include "safeguards.h"

static constexpr int LIST = 1;
static constexpr int NAME = 1;                       // column
static constexpr int LOOK_USUAL = 0, LOOK_EMPTY = 1; // colour classes of a list

static struct {
    char path[CMD_SIZE] = ""; // of the number that is used, below the page's own
    int row = 0;              // of the one that is used
} tx;                         // valid from create(1) to create(0)

static int texture_items(OVERVIEWITEM* item, int max)
{
    static_assert(TEXTURE_MAX <= OVERVIEW_ROWS);
    OVERVIEWITEMS items{item, max};
    for (int n = 1; n <= TEXTURE_MAX; n++)
        (void)Overview_Add(items, NumStr(n), "%d", n);
    return items.count;
}
static constexpr OVERVIEWCOLUMN texture_columns[] = {{"DME@Status@Texture Name@$"}};
static constexpr OVERVIEW textures = {
    .items = texture_items, .columns = texture_columns, .column_count = std::size(texture_columns)};

static bool is_empty(int row)
{
    const char* const name = LS_GetData(LIST, row, NAME);
    return !name || !name[0];
}

static void show_empty()
{
    for (int row = 0; row < Overview_Count(); row++)
        LS_SetHStatus(LIST, row, is_empty(row) ? LOOK_EMPTY : LOOK_USUAL);
    LS_RedrawData(LIST);
}

static int texture_create(int on, uint32_t)
{
    if (!on) {
        Overview_Close(textures);
        Net_SendCommandFormat("remove %s", tx.path);
        return 1;
    }
    tx = {};
    DecodeCommand(tx.path, "~@Number", sizeof tx.path);
    Overview_Open(textures);
    show_empty();
    Net_SendCommandFormat("add %s", tx.path);
    return 0;
}

static void show_used(int row)
{
    if (row < 0)
        return; // no place of the memory
    tx.row = row;
    LS_SetNowLine(LIST, row);
}

static int texture_tally(const char* path, const char* value, uint32_t hash)
{
    if (Overview_Tally(textures, path, value, hash))
        show_empty();
    else if (Same(path, tx.path))
        show_used(IndexFrom1(value, Overview_Count()));
    return 0;
}

// An empty place is no choice: the one that is used stays.
static int texture_touch(int list, int row)
{
    const OVERVIEWITEM* const item = Overview_Item(row);
    if (list != LIST || !item)
        return 0;
    if (is_empty(row) || BA_IsDefaultButton())
        show_used(tx.row);
    else
        Net_SendCommandFormat("put %s#%s", tx.path, item->path);
    return 0;
}

static int texture_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return texture_tally(Text(ax), Text(bx), uint32_t(cx));
    case LMSG_LISTSEL: return texture_touch(int(ax), int(bx));
    default: return 0;
    }
}

const PC_TBL pc_texture_select = {.proc_func = texture_proc, .create_func = texture_create};
