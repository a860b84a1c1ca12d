#include "pc_file_bkgd.h"
#include "file.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "pc_file.h"

#include "safeguards.h"

static struct {
    uint32_t first = 0; // of the tab; 0: no such page is open
    uint32_t asked = 0; // what was asked for, this page or one that leads here for now
    int tell_in = 0;    // redraws until it says why it is empty; 0: it doesn't
} bk;                   // valid from create(1) to create(0)

static bool is_transfer()
{
    return BkgdFileTransfer_Check(0) || BkgdHDDTransfer_Check(0);
}

static int bkgd_make_way()
{
    if (bk.first != 0 && GL_CreatePage == 0 && !is_transfer())
        GL_CreatePage = bk.asked != Page->id && Page_Exists(bk.asked) ? bk.asked : bk.first;
    return 0;
}

static int pc_file_bkgdfiletransfer_create(int on, uint32_t page)
{
    constexpr uint32_t FIRST_OF_TAB = 0x00010000;
    constexpr int PAINTED = 2; // the message lies over the painted page
    bk = {};
    if (!on)
        return 1;
    bk = {.first = page != 0 ? page : Page->id + FIRST_OF_TAB,
          .asked = GL_NowPage,
          .tell_in = is_transfer() ? PAINTED : 0};
    GL_CreatePage = 0; // this request is being met
    return bkgd_make_way();
}

static int bkgd_redraw()
{
    if (bk.tell_in > 0 && --bk.tell_in == 0 && is_transfer())
        (void)PaneMessage_Create("File", PANE_ALERT, FILE_INHIBITED);
    return bkgd_make_way(); // nobody tells when the external drive has ended
}

static int pc_file_bkgdfiletransfer_proc(int msg, MsgArg, MsgArg, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return bkgd_redraw();
    case LMSG_FILESTATUS: return bkgd_make_way();
    default: return 0;
    }
}

const PC_TBL pc_file_bkgdfiletransfer = {.proc_func = pc_file_bkgdfiletransfer_proc,
                                         .create_func = pc_file_bkgdfiletransfer_create};
