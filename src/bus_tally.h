// bus_tally: what a tally does to the system state before anybody else sees it. One table of paths,
// in bus_tally.cpp; the effects stand in one file a subject. Nothing here paints or keeps a copy:
// the state is in global and device.
#pragma once
#include "bus.h"
#include "tally_value.h"

struct Tally {
    const char* path;
    const char* rest;  // of the path, behind the part that picked the row; empty for an exact row
    const char* value; // take a copy before cutting it up
    int arg;           // of the row
};

// --- bus_tally_jump: page requests from the panel ---
TallyRoute tally_top_menu(const Tally& t);
TallyRoute tally_page(const Tally& t);
TallyRoute tally_panel_select(const Tally& t);

// --- bus_tally_device: which units there are, how they are assigned, their formats ---
TallyRoute tally_unit(const Tally& t);
TallyRoute tally_dme_reference(const Tally& t);
TallyRoute tally_dme_channel(const Tally& t);
TallyRoute tally_mpe_reference(const Tally& t);
TallyRoute tally_mpe_channel(const Tally& t);
TallyRoute tally_video_format(const Tally& t);
TallyRoute tally_video_format2(const Tally& t);
TallyRoute tally_reference(const Tally& t);
TallyRoute tally_switcher_aspect(const Tally& t);
TallyRoute tally_dme_aspect(const Tally& t);
TallyRoute tally_hdd_busy(const Tally& t);
TallyRoute tally_network_config(const Tally& t);
TallyRoute tally_menu_cpu(const Tally& t);
TallyRoute tally_panel_assign(const Tally& t);
TallyRoute tally_switcher_assign(const Tally& t);
TallyRoute tally_dme_interface(const Tally& t);
TallyRoute tally_dme_model(const Tally& t);
TallyRoute tally_ccr_config(const Tally& t);
TallyRoute tally_fm_data_port(const Tally& t);
TallyRoute tally_fm_data_port_status(const Tally& t);

// --- bus_tally_mode: operation modes and what pages exist in them ---
TallyRoute tally_operation_mode(const Tally& t);
// Follow which channels are combined; what is followed already stays so.
void Tally_FollowCombine();
TallyRoute tally_combine(const Tally& t);
TallyRoute tally_combine_pair(const Tally& t);
TallyRoute tally_me_operation(const Tally& t);
TallyRoute tally_key_transition(const Tally& t);
TallyRoute tally_frame_delay(const Tally& t);
TallyRoute tally_3d_mode(const Tally& t);
TallyRoute tally_4k_mode(const Tally& t);
TallyRoute tally_me_split(const Tally& t);

// --- bus_tally_names: names and assignment of the buses ---
TallyRoute tally_external_bus(const Tally& t);
TallyRoute tally_internal_bus(const Tally& t);
TallyRoute tally_sbus_source(const Tally& t);
TallyRoute tally_sbus_destination(const Tally& t);
TallyRoute tally_xpt_source(const Tally& t);
TallyRoute tally_xpt_assign(const Tally& t);

// --- Shared ---
// Build the current page anew, unless another page is on its way already: that one sees the new
// state anyway.
void tally_reload_page();
