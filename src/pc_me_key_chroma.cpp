// The chroma adjust page: what is behind the foreground is chosen from a pull-down. The mark of the
// automatic chroma key lies in the picture, so it goes when the page does: nobody would look for it
// afterwards.
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include "safeguards.h"

#define LOCAL_BACKING "LOCAL@M/E@Key@Chroma Adjust@Backing"

static constexpr ME_PULLDOWN backing = {
    54, "Backing", {{"Green", "Green"}, {"Blue", "Blue"}, {"Red", "Red"}}, 3};

static struct {
    char MarkCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Chroma Adjust@Sample Mark"
    bool is_marked = false;
    ME_PULLDOWN_STATE Backing = {};
} CrkAdj; // valid from create(1) to create(0)

static int crkadj_tally(const char* path, const char* value)
{
    if (Same(path, CrkAdj.MarkCmd))
        CrkAdj.is_marked = IsTrue(value);
    ME_PullDownTally(backing, CrkAdj.Backing, path, value);
    return 0;
}

static int crkadj_press(const char* path)
{
    if (Same(path, LOCAL_BACKING))
        ME_PullDownOpen(backing, CrkAdj.Backing);
    return 0;
}

static int crkadj_chosen(int pane, int id)
{
    ME_PullDownClosed(backing, CrkAdj.Backing, pane, id);
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
    PrintText(CrkAdj.Backing.Cmd, "%s@%s@Type@Chroma Adjust@Backing", GL_NowTree[0], GL_NowTree[1]);
    return 0;
}

const PC_TBL pc_me_key_type_crkadj = {pc_me_key_type_crkadj_proc, pc_me_key_type_crkadj_create};
