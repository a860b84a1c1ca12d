// pc_file_side: what one side of a file page shows: a row a register number, in it a cell a region
// that has the register. The cells of the running system come from the mirror of the registers,
// those of a drive from a search. The side knows which cells the region selection leaves in view
// and keeps the page's list in step; what is done with the rows that are selected belongs to the
// pages. Of the newer frame memory it shows the folders and, below them, what the open one holds: a
// row a register there, by number.
#pragma once
#include "file_dir.h"
#include "pc_file.h"
#include "pc_file_kind.h"
#include "types.h"

constexpr int FILE_ROWS = 250;  // the most registers of a kind
constexpr int FILE_PLACES = 96; // regions of a group

// What of a side outlives the page.
struct FileMemory {
    FILESIDE side;
    bool is_known = false; // the page has been shown before
    int top = 0;
    int now = 0;
    bool is_plural = false;
    bool selected[FILE_ROWS] = {};
    char folder[FRAME_FOLDER_SIZE] = ""; // frame memory: the open one; "": the default folder
};

// The lists of the two sides in their columns: the detail page goes on with regions.
enum : int { COL_NO, COL_NAME, COL_TIME, COL_REGIONS };

constexpr int FILE_SIDES = 2; // at most two are shown at a time; the detail page has one

// --- Opening and closing ---
// Show the kind on side n in list n + 1; with regions the columns from COL_REGIONS on get a mark
// for each row of the region table that has the register. memory is read now and kept up to date.
// Without folder rows the page chooses the folder itself.
void FileSide_Open(int n, const FileKind& kind, FileMemory* memory, bool has_regions,
                   bool has_folder_rows = true);
void FileSide_CloseAll();

// --- Content ---
void FileSide_Refresh(int n);          // begin anew: registers at once, a drive as its rows come
void FileSide_SetRegions(int n);       // the region selection has changed
void FileSide_Selected(int n);         // so has the list's: note it
void FileSide_Touched(int n, int row); // the same by a touch of that row, which may open a folder
void FileSide_FramesChanged();         // the frame memory's catalogue: shown at the next pass
void FileSide_Pass(int elapsed_ms);    // MSG_REDRAW
int FileSide_Registered(int kind, int no); // LMSG_REGISTER; 1 when a side shows it

// --- For what is done with the rows ---
const FILESIDE& FileSide_Where(int n);
int FileSide_Rows(int n);
const FILELIST* FileSide_Row(int n, int no); // null out of range
// A cell that is in view takes part in what is done with its row.
inline bool FileSide_InView(const FILECELL& cell)
{
    return !cell.disable && !cell.hidden;
}
// The cell as a file of the side; no in place of its own number when it is not negative.
FILEINFO FileSide_Info(int n, const FILECELL& cell, int no);
// Where the side's drive has the cell's file. 0, or -1 as info2name.
int FileSide_Path(int n, const FILECELL& cell, char* path, int size);
int FileSide_FolderId(int n); // of the frame memory's open folder, 0 the default one
