// pc_kf: page code of the pages around the timeline: Timeline Assign, which decides what is listed
// and in what order; Region Select, the ten keys of the panel on the screen; DME User PGM, the
// transition mode of an effects-unit program. The mirror of the regions that they show is a_kf's.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_keyframe_tlassign;
extern const PC_TBL pc_keyframe_region_select;
extern const PC_TBL pc_keyframe_dmeuserpgm;

// What panel the ten keys are on: 2 is the newest, whose region keys lie on two modules. Set when
// the page opens.
extern int GL_PCX_Mode;
enum : int { PCX_ONE_PAD = 1, PCX_TWO_PADS = 2 };
