// pc_me_key: the page code of a key's type and edge pages; a page names its code in its row.
#pragma once
#include "a_pc.h"

// The list of signals, as a page of its own and as a page of the key type.
extern const PC_TBL pc_me_key_fillsource;
extern const PC_TBL pc_me_key_fillsource_new;

extern const PC_TBL pc_me_key_type_crkadj;
extern const PC_TBL pc_me_key_type_matteadj;
extern const PC_TBL pc_me_key_edge;
extern const PC_TBL pc_me_key_edge_matteadj;
extern const PC_TBL pc_me_key_edge_zabtonadj;

// The caption of a button that selects a pattern, with the number in value on its last line;
// without one when value is no number of a pattern.
void PatternCaption(char (&caption)[32], const char* value);
