// pc_device: page code of the device pages: recorders and players, the files of a disk recorder,
// P-Bus devices, GPI outputs, what each does on its timeline.
// All are pages about one of many (one_of); what is chosen stays from one page to the next.
#pragma once
#include "a_pc.h"
#include "one_of.h"

constexpr int DEVICES = 12;
constexpr int PBUS_DEVICES = 24;
constexpr int PBUS_REGISTERS = 99;
constexpr int GPI_OUTPUTS = 8;

#define DEVICE_FILE_LOAD "LOCAL@Device@File@Load"
#define DEVICE_FILE_CUE "LOCAL@Device@File@Load and Cue"
#define DEVICE_FILE_READ "LOCAL@Device@File@Read"
#define DEVICE_GPI_FIRE "LOCAL@Device@GPI@Test Fire"

// Which device the pages of recorders are about when one opens next, from 0; one that is not there
// is ignored.
void Device_OpenNext(int device);

extern const ONEOFWORD device_type_words[]; // as lists show them

extern const PC_TBL pc_device_control; // shows the chosen device large above its keys
extern const PC_TBL pc_device_timeline;
extern const PC_TBL pc_device_files;
extern const PC_TBL pc_device_setting;
extern const PC_TBL pc_device_pbus;
extern const PC_TBL pc_device_pbus_timeline;
extern const PC_TBL pc_device_gpi;
extern const PC_TBL pc_device_gpi_timeline;
