// pc_aux_mon: page code of the aux buses and the monitors: one of them at a time, with what the
// others show beside it (one_of).
#pragma once
#include "a_pc.h"

constexpr int AUX_BUSES = 48;
constexpr int MONITORS = 8;

// Which bus, which monitor the page is about when it opens next, from 0; one that is not there is
// ignored.
void AuxBus_OpenNext(int bus);
void Monitor_OpenNext(int monitor);

extern const PC_TBL pc_aux_bus;
extern const PC_TBL pc_monitor;
