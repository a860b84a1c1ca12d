// pc_macro_timeline: which macro the timeline of the region MACRO runs at its keyframe, and which
// one when it is rewound. Two pages, one body: a list of the macros, the one that is assigned below
// it. The server tells what is assigned while a page asks for it.
#pragma once
#include "a_pc.h"

enum MACROACTION : int {
    MACROACTION_KEYFRAME,
    MACROACTION_REWIND,
    MACROACTIONS,
};
extern const PC_TBL pc_macro_timeline; // argument: MACROACTION
