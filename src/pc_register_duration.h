// pc_register_duration: the temporary duration of the region that a first page shows. The server
// keeps one for each region; a recall takes it before the duration of its register, until it is 0
// again. The page has it on a knob.
#pragma once

// As RegisterExtra::open, and so on. The page brings the box nb_register_duration.
void RegisterDuration_Open(int on);
void RegisterDuration_Follow(); // the page may show another region
void RegisterDuration_Tally(const char* path, const char* value);
void RegisterDuration_Knob(int id, int value);
int RegisterDuration_Frames(); // last told; 0 before
