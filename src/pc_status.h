// pc_status: page code of the overviews: what the keys, wipes, aux buses, effects channels,
// monitors, outputs of the frame memory, units and recorders are set to, a line each, with the way
// to the page that adjusts the chosen one.
#pragma once
#include "a_pc.h"

// A key below a list: "LOCAL@Status@Open#10000", the offset from the row's page in hexadecimal.
#define STATUS_OPEN "LOCAL@Status@Open#"

extern const PC_TBL pc_status_key;
extern const PC_TBL pc_status_wipe;
extern const PC_TBL pc_status_aux;
extern const PC_TBL pc_status_effect;
extern const PC_TBL pc_status_monitor;
extern const PC_TBL pc_status_output;
extern const PC_TBL pc_status_device;
extern const PC_TBL pc_status_recorder;
