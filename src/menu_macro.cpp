#include "menu_macro.h"
#include "text.h"
#include <cstdio>

#include "safeguards.h"

// Nothing is recorded yet, and no register holds a macro.

void mm_protcol_get(const char*) {}

void mm_macro_run(int) {}

int mm_macro_file_load(int)
{
    return -1;
}

int mm_macro_tmpfile_save(const char*)
{
    return -1;
}

int mm_macro_tmpfile_load(const char*, const char*)
{
    return -1;
}

void mm_macro_tmpfile_del(int n)
{
    char path[64];
    PrintText(path, "/var/tmp/MenuMacro/mm_reg%02d.tmp", n + 1);
    (void)remove(path); // most often there is none
}

void MM_Register_Data_All_Delete() {}

void mm_event_insert() {}

int menu_macro_run_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
