#include "file.h"
#include "safeguards.h"

// No file job runs yet, so no transfer holds a page back.

int FileProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

int BkgdFileTransfer_Check(uint32_t)
{
    return 0;
}

int BkgdHDDTransfer_Check(uint32_t)
{
    return 0;
}

void BkgdFileTransfer_PaneQuit() {}

void BkgdHDDTransfer_PaneQuit() {}

int BkgdFileTransfer_PagePermitted(uint32_t)
{
    return 1;
}

void Filescp_trnasferlist_init(const char*) {}

void fileprocessprogress_update() {}
