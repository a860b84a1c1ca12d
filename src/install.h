// install: new software from a memory stick. A folder with an "install.cfg" is a package for one
// kind of unit; its steps run one after the other, on this machine or on the control server. An
// install holds the screen with its own progress and blocks the process until it ends: nothing else
// is painted, and the links are not served. Which package goes to which unit, and what is read
// again afterwards, is the page's (pc_install).
#pragma once
#include <glib.h>

constexpr int MOD_INSTALL = 19;
constexpr int INSTALL_LINE = 1024; // characters of a line in install.cfg

enum : int {
    TARGET_MENU = 0, // never installed alone: it is part of TARGET_UI
    TARGET_SWR = 1,
    TARGET_DME = 2,
    TARGET_CTRL = 3,
    TARGET_DCU = 4,
    TARGET_SCS = 5,
    TARGET_UI = 6,
    TARGETS = 7,
};
extern const char* const target_str[TARGETS]; // "MENU CPU"

// What an install.cfg says.
struct cfg_info {
    GString* title = nullptr;
    GString* version = nullptr;
    int target = 0;           // what the caller says, TARGET_
    GList* command = nullptr; // keywords of the steps in file order, and
    GList* rest = nullptr;    // the value of each, without blanks at its ends; texts of their own
    char* dirname = nullptr;  // folder of the file
};

// Read the file. Null when it cannot be opened, or has a line longer than INSTALL_LINE: a cut
// command must not run. The caller ends it with clear_cfg_info.
cfg_info* parse_cfgfile(const char* cfgfn, int type);
void clear_cfg_info(cfg_info* info); // null does nothing
void free_stringlist(GList* list);   // with its texts

// One line of an install.cfg, cut up in place: keyword and value. The value has no blanks at its
// ends; a line without a blank has an empty one.
void Install_SplitLine(char* line, const char** keyword, const char** value);

// Run all steps of a package for one unit. type is its TARGET_, uid the number that stands for
// "%UID". 0; -1 at the first step that fails, or before any when the package is not whole: the
// error list says why, and the window of a failed step is left for the operator.
int SystemInstall(const char* cfgfn, int type, int uid);
// Of the last SystemInstall: the exit status of the step that failed, -1 for one without a status;
// 0 when none has run or none has failed.
int Install_FailedCode();

// --- Its windows, painted at once. Texts are printf's ---
int display_message(const char* title, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
int display_progress(const char* title, int percent, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
int redraw_progress(int percent, const char* format, ...) __attribute__((format(printf, 2, 3)));
