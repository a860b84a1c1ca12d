// The chroma adjust page. The mark of the automatic chroma key lies in the picture, so it goes when
// the page does: nobody would look for it afterwards.
#include "command.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me_key.h"
#include "text.h"
#include <cstring>
#include "safeguards.h"

static struct {
    char MarkCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Chroma Adjust@Sample Mark"
    bool is_marked = false;
} CrkAdj; // valid from create(1) to create(0)

static int crkadj_tally(const char* path, const char* value)
{
    if (strcmp(path, CrkAdj.MarkCmd) == 0)
        CrkAdj.is_marked = strcmp(value, "true") == 0;
    return 0;
}

static int pc_me_key_type_crkadj_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? crkadj_tally(Text(ax), Text(bx)) : 0;
}

// The mark is subscribed by its button.
static int pc_me_key_type_crkadj_create(int on, uint32_t)
{
    if (!on) {
        if (CrkAdj.is_marked)
            Net_SendCommandFormat("put %s#false", CrkAdj.MarkCmd);
        return 1;
    }
    CrkAdj = {};
    PrintText(CrkAdj.MarkCmd, "%s@%s@Type@Chroma Adjust@Sample Mark", GL_NowTree[0], GL_NowTree[1]);
    return 0;
}

const PC_TBL pc_me_key_type_crkadj = {pc_me_key_type_crkadj_proc, pc_me_key_type_crkadj_create};
