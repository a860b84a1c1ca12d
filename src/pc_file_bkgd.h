// pc_file_bkgd: the empty top pages of the tabs, where the pages lead that a transfer in the
// background does not permit.
#pragma once
#include "a_pc.h"

// When no transfer runs any more it makes way for the page that was asked for. The argument of the
// page code says for which when that was the top page itself; 0: the first one of its tab.
extern const PC_TBL pc_file_bkgdfiletransfer;
