// pc_file_dual: the pages of two lists in the File menu and their detail pages. The row of a page
// names its kind as the argument of the page code: one body serves all.
#pragma once
#include "a_pc.h"
#include "pc_file_kind.h"

extern const PC_TBL pc_file_dual;
extern const PC_TBL pc_file_detail;

// Buttons that the code names.
enum : int {
    BTN_FILE_DEVICE_A = 1,
    BTN_FILE_DIR_A = 2,
    BTN_FILE_DEVICE_B = 4,
    BTN_FILE_DIR_B = 5,
    BTN_FILE_DETAIL_A = 49,
    BTN_FILE_L_TO_R = 51,
    BTN_FILE_R_TO_L = 52,
    BTN_FILE_PATCH_LINK = 53,
    BTN_FILE_DETAIL_B = 54,
    BTN_FILE_DEVICE_C = 1,
    BTN_FILE_DIR_C = 2,
    BTN_FILE_RENAME = 49,
    BTN_FILE_DELETE = 50,
    BTN_FILE_EDIT = 54, // of the macros and menu macros
};

void FileDual_Reset(); // as at process start; for tests
