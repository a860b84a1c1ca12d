// me_config: which outputs and keys the banks of the switcher have; what the tabs and transition pages ask.
#pragma once

void swcnf_set(const char* value);    // "...@M/E Output Assign@List"
void swcnfpgm_set(const char* value); // "...@PGM Config@List"
void mp2_keyassign_check();
// A processed key's rotation was changed: which channel turns, for the corner-pin and rotation knobs.
void GL_ProcKey_Rotation(const char* path, const char* value);
int GL_ProcKeyRotationInfo(int me, int key); // me 0 P/P, 1..5; key 1..8
