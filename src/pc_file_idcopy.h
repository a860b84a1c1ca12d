// pc_file_idcopy: the pages that copy the files of one unit or one group from a directory to
// another, under the ids of other units or groups.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_file_unitcp;
extern const PC_TBL pc_file_groupcp;

// Buttons that the code names.
enum : int {
    BTN_IDCOPY_DEVICE_A = 1,
    BTN_IDCOPY_DIR_A = 2,
    BTN_IDCOPY_DEVICE_B = 4,
    BTN_IDCOPY_DIR_B = 5,
    BTN_IDCOPY_FROM = 49,
    BTN_IDCOPY_COPY = 51,
    BTN_IDCOPY_TO = 54,
};

void FileIdCopy_Reset(); // as at process start; for tests
