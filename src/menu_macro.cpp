#include "menu_macro.h"
#include "safeguards.h"

// Nothing is recorded yet, and no register holds a macro.

void mm_protcol_get(const char*) {}

void mm_macro_run(int) {}

int mm_macro_file_load(int)
{
    return -1;
}

void mm_event_insert() {}

int menu_macro_run_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
