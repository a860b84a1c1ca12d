// pc_fmem1_browse: what the frame-memory pages of a system without a clip store choose from: the
// stills or the clips of one folder in the page's list 1, and the pictures of the chosen one beside
// it. It follows the catalogue (fmctrl) and keeps what is selected selected. What is done with the
// rows belongs to the pages.
#pragma once
#include "types.h"

enum FMEM1KIND : int { FMEM1_STILL, FMEM1_CLIP, FMEM1_KINDS };
constexpr int FMEM1_LIST = 1;

// A still, or a clip by one of its frames.
struct FMEM1ROW {
    int reg[2] = {-1, -1}; // register of the main and of the sub side that is shown; -1: no side
    char name[10] = "";    // without prefix, of a clip without a frame
    char no[8] = "";       // texts of the list
    char side[2][8] = {};
    bool is_ancillary = false;
};

// --- Opening and closing a page ---
void Fmem1_Open(FMEM1KIND kind);
void Fmem1_Close();
void Fmem1_Reset(); // as at process start; for tests

// --- For page code while it is open ---
void Fmem1_Changed();                  // the catalogue: shown at a next pass
bool Fmem1_Pass(int elapsed_ms);       // true when the rows have been filled anew
int Fmem1_FolderId();                  // of the folder that is shown
void Fmem1_SetFolder(int id);          // one that is not there is the default folder
const FMEM1ROW* Fmem1_Chosen();        // the current row when it is selected; null: none
const FMEM1ROW* Fmem1_Selected(int n); // the n-th selected row from 0; null: no more
// Registers of one side of a row, all frames of a clip: how many, and the n-th; -1 for none.
int Fmem1_Registers(const FMEM1ROW& row, int is_sub);
int Fmem1_Register(const FMEM1ROW& row, int is_sub, int n);
void Fmem1_MoveFrame(int d); // of the chosen clip, both sides

// Paint the pictures of the chosen row; without a flush.
void Fmem1_DrawPictures(const Rect& area);
