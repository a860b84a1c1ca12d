#include "a_kf.h"
#include "safeguards.h"

// No region is mirrored yet: what arrives is let go, and nothing is painted.

void KF_Init() {}

int KF_Create(const KF_TBL*, uint32_t)
{
    return 1;
}

int KF_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void KF_DrawTopArea(int) {}

static int kf_bound(int region)
{
    return region >= 0 && region < KF_REGIONS ? 0 : -1;
}

int KF_SetRegionDisplay(int region, int)
{
    return kf_bound(region);
}

int KF_SetRegionPriority(int region, int)
{
    return kf_bound(region);
}

int KF_SetRegionAssigned(int region, int)
{
    return kf_bound(region);
}

void KF_RegionAssignTally(int, const char*) {}

void KF_InitCommand() {}

void KF_InitCommand_MP2() {}
