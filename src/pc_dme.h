// pc_dme: page code of the effects unit's pages. The tables say all of them; the code only listens
// to which transform the operator turns, by which the cells over a page choose what they show
// (a_st).
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_dme;
