// file: the work queue of file jobs.
#pragma once
#include "types.h"

int FileProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
// A background transfer runs that this page (0: any page) belongs to.
int BkgdFileTransfer_Check(uint32_t page);
int BkgdHDDTransfer_Check(uint32_t page);
void BkgdFileTransfer_PaneQuit();
void BkgdHDDTransfer_PaneQuit();
// The transfer permits this page to stay as it is.
int BkgdFileTransfer_PagePermitted(uint32_t page);
// The transfer list of a hub table ("PNL1", "CS2", "SWR1") begins anew.
void Filescp_trnasferlist_init(const char* target);
void fileprocessprogress_update(); // the bars of FileProc_Prog have changed
