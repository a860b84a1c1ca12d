#include "me_config.h"
#include "safeguards.h"

// The output assignment is not kept yet; every key turns on its own axis.

void swcnf_set(const char*) {}

void swcnfpgm_set(const char*) {}

void mp2_keyassign_check() {}

void GL_ProcKey_Rotation(const char*, const char*) {}

int GL_ProcKeyRotationInfo(int, int)
{
    return 0;
}
