#include "pc_file_bkgd.h"
#include "file.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "pc_file.h"

#include "safeguards.h"

static uint32_t way = 0; // the page that this one makes way for; 0: no such page is open

static bool is_transfer()
{
    return BkgdFileTransfer_Check(0) || BkgdHDDTransfer_Check(0);
}

static int pc_file_bkgdfiletransfer_create(int on, uint32_t page)
{
    constexpr uint32_t FIRST_OF_TAB = 0x00010000;
    way = 0;
    if (!on)
        return 1;
    const bool is_asked_for = (GL_NowPage & (FIRST_OF_TAB * 0x10 - 1)) == 0;
    way = !is_asked_for ? GL_NowPage // what leads here for now
          : page != 0   ? page
                        : GL_NowPage + FIRST_OF_TAB;
    if (is_transfer())
        (void)PaneMessage_Create("File", PANE_ALERT, FILE_INHIBITED);
    else
        GL_CreatePage = way;
    return 0;
}

static int pc_file_bkgdfiletransfer_proc(int msg, MsgArg, MsgArg, MsgArg, MsgArg)
{
    if (msg == LMSG_FILESTATUS && way != 0 && GL_CreatePage == 0 && !is_transfer())
        GL_CreatePage = way;
    return 0;
}

const PC_TBL pc_file_bkgdfiletransfer = {.proc_func = pc_file_bkgdfiletransfer_proc,
                                         .create_func = pc_file_bkgdfiletransfer_create};
