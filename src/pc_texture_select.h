// pc_texture_select: page code of the textures of an effects unit: which of the patterns in its
// memory fills what the page is about. The unit tells their names; a place without one is empty.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_texture_select;
