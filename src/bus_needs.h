// bus_needs: what the bus, info and the initial read call in modules whose own headers do not offer
// it yet. Each line belongs into the header named above it.
#pragma once
#include "types.h"

// pane: the id of the unit that is the reference of a region group, 0 none.
int PaneRegion_GetRef(int grp);
// a_st: repaint every cell; a setting that they all show has changed.
void GL_ST_area_update_draw();
// a_kf
void KF_InitCommand();
// register
void Register_InitCommand();
void Register_DeathCommand();
// file: begin the transfer list of a target ("PNL1", "SWR2", "CS1").
void Filescp_trnasferlist_init(const char* target);
