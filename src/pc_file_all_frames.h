// pc_file_all_frames: the frame memory's part of the All page: a file a register, in
// "FMEMFOL/<folder>/<unit>/" of a directory, or "FRAMEMEM/<unit>/" where the store has no folders.
// It lists files and puts the stills into their folders; the transfer is the page's.
#pragma once
#include "file.h"
#include "file_dir.h"

// Add the registers of one step to the list, those of the first own switcher. 1 when there are more
// steps.
int AllFrames_Save(const FILESIDE& to, int step, FILEXFERLIST** list);
// Search the side and add what is found to the list; to is the running system or a drive. done is
// called at the end, with false when there may be more than was found. 0; -1 when nothing was
// asked, and done is not called.
int AllFrames_Search(const FILESIDE& from, const FILESIDE& to, FILEXFERLIST** list,
                     void (*done)(bool is_whole));
void AllFrames_Forget(); // the search is of no interest any more
// Before the transfer of what a search for the running system has found: make the folders that are
// missing and delete registers that hold one of the names at another place.
void AllFrames_Prepare(const FILEXFERLIST* list);
// After it: the stills that have come go to their folders.
void AllFrames_Place(const FILEXFERLIST* list);
