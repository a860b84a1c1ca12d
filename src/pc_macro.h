// pc_macro: the ways from the pages of the macro registers into the editors. The offline editor
// works on a copy of the register's file, which is fetched here; the online editor on the register
// itself.
#pragma once
#include "macro_file.h"
#include "pc_register.h"

constexpr uint32_t PAGE_MACRO_REGISTERS = 0x54120000;
constexpr uint32_t PAGE_MACRO_ONLINE = 0x71420002;
constexpr uint32_t PAGE_MACRO_OFFLINE = 0x71420003;

enum : int { // buttons of the register pages
    BTN_MACRO_OFFLINE = 51,
    BTN_MACRO_ONLINE = 52,
};

// What is to be edited; from the touch that opens an editor on.
extern int GL_MacroEditNo;                     // its register, from 1; 0 none yet
extern char GL_MacroEditNoName[32];            // "12  Name: OPENING"
extern char GL_Macro_Offline_OriginalName[12]; // of the register when it was fetched
extern int GL_Macro_Offline_RegStore;          // 1: the register was empty

// Where the panel keeps the file of a register (from 1): "HOST:/.../PNL_0012.PMR", and the word by
// which file jobs know the panel. 0, or -1 without a panel.
int Macro_PanelFile(int number, char* path, int path_size, char* target, int target_size);
// Fetch the file of a register (from 1), or make a new one where it is empty, and open the offline
// editor. 0, or -1 with a window that says that there is none; nothing while another is under way.
int Macro_OfflineEdit(int number);
void Macro_ShowFileError(); // a window: there is no file

extern const RegisterExtra macro_extra;
