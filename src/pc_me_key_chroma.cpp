// The chroma adjust page: what is behind the foreground is chosen from a pull-down. The mark of the
// automatic chroma key lies in the picture, so it goes when the page does: nobody would look for it
// afterwards.
#include "a_bt.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

#define LOCAL_BACKING "LOCAL@M/E@Key@Chroma Adjust@Backing"

namespace
{
constexpr int BTN_BACKING = 54;
constexpr BTNSEL backings[] = {{1, "Green"}, {2, "Blue"}, {3, "Red"}};
constexpr int BACKINGS = int(std::size(backings));
} // namespace

static struct {
    char MarkCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Chroma Adjust@Sample Mark"
    bool is_marked = false;
    char BackingCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Chroma Adjust@Backing"
    int Backing = 0;                // id in backings, 0 until the server has told one of them
    int pane = 0;                   // the open pull-down, 0 none
} CrkAdj;                           // valid from create(1) to create(0)

static void backing_tally(const char* value)
{
    CrkAdj.Backing = 0;
    for (const BTNSEL& b : backings)
        if (Same(value, b.caption))
            CrkAdj.Backing = b.id;
    BT_SetCaption(BTN_BACKING, CrkAdj.Backing ? backings[CrkAdj.Backing - 1].caption : "Backing");
}

static int crkadj_tally(const char* path, const char* value)
{
    if (Same(path, CrkAdj.MarkCmd))
        CrkAdj.is_marked = IsTrue(value);
    else if (Same(path, CrkAdj.BackingCmd))
        backing_tally(value);
    return 0;
}

static int crkadj_press(const char* path)
{
    if (!Same(path, LOCAL_BACKING))
        return 0;
    BTNSEL items[BACKINGS];
    std::copy(std::begin(backings), std::end(backings), items);
    for (BTNSEL& item : items)
        item.select = item.id == CrkAdj.Backing;
    const BT_MEM* key = bt_find(BTN_BACKING);
    CrkAdj.pane = PanePullDown_Create(key->x1, key->y2 + 1, BACKINGS, items);
    return 0;
}

static int crkadj_chosen(int pane, int id)
{
    if (pane != CrkAdj.pane || !pane)
        return 0;
    CrkAdj.pane = 0;
    if (id >= 1 && id <= BACKINGS)
        Net_SendCommandFormat("put %s#%s", CrkAdj.BackingCmd, backings[id - 1].caption);
    return 0;
}

static int pc_me_key_type_crkadj_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return crkadj_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return crkadj_press(Text(ax));
    case LMSG_PANEQUIT: return crkadj_chosen(int(ax), int(bx));
    default: return 0;
    }
}

// Both are subscribed by their buttons.
static int pc_me_key_type_crkadj_create(int on, uint32_t)
{
    if (!on) {
        if (CrkAdj.is_marked)
            Net_SendCommandFormat("put %s#false", CrkAdj.MarkCmd);
        return 1;
    }
    CrkAdj = {};
    PrintText(CrkAdj.MarkCmd, "%s@%s@Type@Chroma Adjust@Sample Mark", GL_NowTree[0], GL_NowTree[1]);
    PrintText(CrkAdj.BackingCmd, "%s@%s@Type@Chroma Adjust@Backing", GL_NowTree[0], GL_NowTree[1]);
    return 0;
}

const PC_TBL pc_me_key_type_crkadj = {pc_me_key_type_crkadj_proc, pc_me_key_type_crkadj_create};
