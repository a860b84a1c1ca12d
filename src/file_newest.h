// file_newest: a register that was saved under several names has several files on a drive. Of these
// a transfer takes the newest, as the pages of one kind do; in the order found an old one could go
// last and win.
#pragma once
#include "file.h"

constexpr uint32_t NEWEST_CHAINS = 1024;
// The items of one list, found by register. To be emptied when the list is, and when its job
// begins.
struct FILENEWEST {
    FILEXFERLIST* chain[NEWEST_CHAINS] = {};
};

// "Nov.25.2026 10:30", the date of a search, as a number that rises; 0 for another text.
uint32_t FileNewest_Minute(const char* date);
// Append src for the register of dst: its folder, and what stands behind the name. Where the list
// has a file for it, the newer one stays; of two from one minute the one that was told last. With
// a category it is an item of a remote copy to target. 0, or -1 as File_XferList_Add.
int FileNewest_Add(FILENEWEST& newest, FILEXFERLIST** list, const char* src, const char* dst,
                   const char* date, const char* category = "", const char* target = "");
