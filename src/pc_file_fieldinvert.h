// pc_file_fieldinvert: the page on which the fields of stored frames change places. What a frame is
// comes from its header, which the server reads.
#pragma once
#include "a_pc.h"
#include "types.h"

extern const PC_TBL pc_file_fieldinvert;

// Buttons that the code names.
enum : int {
    BTN_INVERT_DEVICE = 1,
    BTN_INVERT_DIR = 2,
    BTN_INVERT_EXEC = 49,
};

// One frame on a drive. What the header holds is kept as it was told.
struct FILECELL_FI {
    char path[PATH_SIZE] = ""; // without the host
    char name[33] = "";
    char time[20] = ""; // "MM.DD.YYYY hh:mm", empty when unknown
    char version[8] = "";
    char format[8] = ""; // of the system
    char mode[8] = "";
    char modified[8] = "";
    char invert[8] = "";
};

// A row of the list.
struct FILELIST_FI {
    char number[8] = ""; // of the register
    FILECELL_FI cell;
};

// Read "path,date,version,format,mode,modified,invert". 0; -1, and *row as it was, when it has not
// seven fields or the path is none of a frame right below one of the directory's folders.
int File_ReadFrameRow(const char* text, const char* dir, FILELIST_FI* row);

void FileFieldInvert_Reset(); // as at process start; for tests
