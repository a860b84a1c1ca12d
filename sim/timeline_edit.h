// timeline_edit: what the edit keys of a timeline page do to the keyframes at the cursor.
#pragma once
#include "timeline.h"

// "Insert", "Delete", "Copy", "Paste" or "Undo"; any other word does nothing. True when the
// keyframes have changed. With constant duration the whole keeps its length.
bool Edit_Do(Timeline& line, const std::string& word, bool is_constant);
void Edit_Forget(); // nothing is copied
