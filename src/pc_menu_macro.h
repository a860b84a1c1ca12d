// pc_menu_macro: what the register pages of the menu macros have beyond the family of pc_register:
// the run keys and the state of the run on the first page, and the page of the interval. The
// registers themselves are menu_macro.
#pragma once
#include "a_pc.h"
#include "pc_register.h"
#include "types.h"

extern const RegisterExtra menu_macro_extra;      // page 0x54310000
extern const PC_TBL pc_menu_macro_register_setup; // the interval of the register at its cursor

// Open the editor with register number (from 1); while one is being edited, with that one. 0.
int MenuMacro_Edit(int number);

// --- For the editor's page, too ---
struct MenuMacroField {
    const char* label = "";
    char value[96] = "";
};
// One line a field, three at most, on the ground of a status strip; with a flush.
void MenuMacroFields_Draw(const Rect& place, const MenuMacroField* fields, int n);
// "Menu Macro#:7 ( OPENING )"; a number of 0 has none yet.
void MenuMacro_RegisterText(int number, char* text, int size);
