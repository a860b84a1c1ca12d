// a_kf: the keyframe mirror of the effect regions, the timeline and the strip at top right.
#pragma once
#include "types.h"

struct KF_TBL;

void KF_Init();
int KF_Create(const KF_TBL* table, uint32_t var);
// MSG_BINTALLY: id, data, length; it comes straight from the drain of the binary link, not over the bus.
int KF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// The strip at top right of a normal page. pushed: ms left of its pushed look; 777 paints the ground anew.
void KF_DrawTopArea(int pushed);
constexpr int KF_DRAW_ANEW = 777;
constexpr int KF_REGIONS = 64;
int KF_SetRegionDisplay(int region, int v);  // -1 out of bounds
int KF_SetRegionPriority(int region, int v); // -1 out of bounds
int KF_SetRegionAssigned(int region, int v); // -1 out of bounds
// Row row (from 1) of the ten-key region assignment: four regions as "P/P,M/E-1,..." parts of value.
void KF_RegionAssignTally(int row, const char* value);
// Subscribe what the timeline needs in text.
void KF_InitCommand();
void KF_InitCommand_MP2();
