// pc_install: the page New Install: which packages are on the stick, which units there are, and
// which of them gets which. Units are this panel's own, the control server and the menu itself. How
// a package is installed belongs to install.
#pragma once
#include "a_pc.h"
#include "install.h"
#include "types.h"

constexpr int INSTALL_PACKAGES = 256; // that a search keeps
constexpr int INSTALL_UNITS = 32;

// A folder with an install.cfg, as its first lines describe it.
struct InstallPackage {
    char path[PATH_SIZE] = ""; // of the install.cfg
    char title[64] = "";
    char version[64] = "";
    int target = -1;       // TARGET_, -1: none that is known
    const char* kind = ""; // "Upgrade", "Full", or nothing
};

struct InstallUnit {
    char name[16] = "";     // "SWR1", as the list shows it
    char model[16] = "";    // "KTR40G"; "--" when it has not been told, or there are none
    char version[256] = ""; // that runs, "--" when it has not been told
    char offer[64] = "";    // version of the package that it is to get
    char result[16] = "";   // of the last install
    int target = -1;
    int uid = 0;
    const InstallPackage* package = nullptr; // the offer, null none
};

// --- For the page and its tests ---
// Read the first lines of an install.cfg. 0, or -1 when it cannot be opened.
int Install_ReadPackage(InstallPackage* package, const char* path);
// The units there are, with model and version; at most INSTALL_UNITS. Returns how many.
int Install_Units(InstallUnit* units);
// What a version file says, without its heading; "--" for one that is missing.
void newinstall_versioninfo(const char* path, char* text, int size);
// The word of a unit's model by its DEVTYPE; "--" for one that is not known.
const char* newinstall_modelinfo(const char* unit, int type);
// 1 when the package is for that unit: for its kind, and for its model or for no model by name.
int newinstall_calc_model(const InstallUnit* tgt, const InstallPackage* p);
// For qsort: by target, the newest first, an upgrade before all of it, by title.
int newinstall_qsort_compare(const void* a, const void* b);

extern const PC_TBL pc_engsetup_system_install_newinstall;
