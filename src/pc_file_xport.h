// pc_file_xport: the Import/Export pages: pictures on a drive at the right, the frame memory or the
// clip store at the left, whose list is a_fl's. The row of a page names which of them as the
// argument of the page code: one body serves all.
#pragma once
#include "a_pc.h"

enum XPORTPAGE : int { // the argument of the page code
    XPORTPAGE_FMEM,    // the older frame memory: into the registers from the selected one on
    XPORTPAGE_FMEM_V6, // the newer one: into empty registers, and a folder
    XPORTPAGE_CLIP,    // the clip store
    XPORTPAGES,
};

extern const PC_TBL pc_file_xport;

// Buttons that the code names.
enum : int {
    BTN_XPORT_FOLDER_A = 1,
    BTN_XPORT_DEVICE_B = 2,
    BTN_XPORT_DIR_B = 3,
    BTN_XPORT_TYPE = 4,
    BTN_XPORT_FIND = 5,
    BTN_XPORT_EXPORT = 51,
    BTN_XPORT_IMPORT = 52,
};

void FileXport_Reset(); // as at process start; for tests
