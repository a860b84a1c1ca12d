// pc_engsetup_sys: the pages of the System group of engineering setup. Most are a table of
// setup_page and what only they do; each has a source file of its own or shares one with its kind.
#pragma once
#include "a_pc.h"

// --- pc_engsetup_sys_format ---
extern const PC_TBL pc_engsetup_system_format;
extern const PC_TBL pc_engsetup_system_format_auxsignal;
extern const PC_TBL pc_engsetup_system_format_level;
enum : int { // buttons that the code names
    BTN_FORMAT_SIGNAL = 33,
    BTN_FORMAT_TRI = 34,
    BTN_FORMAT_BB = 35,
    BTN_FORMAT_WIDE = 36,
    BTN_FORMAT_NARROW = 37,
    BTN_FORMAT_ASPECT_CLEAR = 49,
    BTN_FORMAT_ASPECT_EXECUTE = 50,
};
enum : int { BTN_SETUP_CLEAR = 53, BTN_SETUP_EXECUTE = 54 }; // of every page that has them

// --- pc_engsetup_sys_lock ---
extern const PC_TBL pc_engsetup_system_maintenance_setupopelock;
extern const PC_TBL pc_engsetup_system_maintenance_fileloadlock;
enum : int {
    BTN_LOCK_ITEM = 37,
    BTN_LOCK_ITEM_CLEAR = 53,
    BTN_LOCK = 38,
};

// --- pc_engsetup_sys_network ---
extern const PC_TBL pc_engsetup_system_networkconfig;
extern const PC_TBL pc_engsetup_system_nfsconfig;
extern const PC_TBL pc_engsetup_system_nmiconfig;

// --- pc_engsetup_sys_config ---
extern const PC_TBL pc_engsetup_system_systemconfig;
extern const PC_TBL pc_engsetup_system_switcherassign;
extern const PC_TBL pc_engsetup_system_startup;
extern const PC_TBL pc_engsetup_system_initialize;
#define SYSCONF_OPEMODE_SINGLE "Single Proc"
#define SYSCONF_OPEMODE_DUALSIMUL "Dual Simul"
enum : int { BTN_SYSCONF_SYSTEM1 = 37, BTN_SYSCONF_SYSTEM2 = 38 };

// --- pc_engsetup_sys_mainte ---
extern const PC_TBL pc_engsetup_system_maintenance;
enum : int {
    BTN_MAINTENANCE_TIME = 33,
    BTN_MAINTENANCE_FORMAT = 37,
    BTN_MAINTENANCE_PRIMARY = 36,
};

// As at process start; for tests.
void EngSetupNetwork_Reset();
void EngSetupConfig_Reset();
void EngSetupFormat_Reset();
void EngSetupLock_Reset();
