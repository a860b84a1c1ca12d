// menu_macro: recording and replay of what the operator does in this menu.
#pragma once
#include "types.h"

constexpr int MENU_MACRO_REGISTERS = 99; // a tally names one by its number, up to this one

void mm_protcol_get(const char* line); // every outgoing command passes here
void mm_macro_run(int reg);
int mm_macro_file_load(int n); // register n (0..98) from its file; 0, or -1 when there is none
// A register on its way to or from a drive, as /var/tmp/MenuMacro/mm_reg<nn>.tmp. The paths may
// begin with a host. 0, or -1 when there is nothing to write or the file is none.
int mm_macro_tmpfile_save(const char* tmp);
int mm_macro_tmpfile_load(const char* src, const char* tmp);
void mm_macro_tmpfile_del(int n);   // the temporary of register n (0..98)
void MM_Register_Data_All_Delete(); // every register of this menu becomes empty
void mm_event_insert();
int menu_macro_run_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
