#include "pc_file_all.h"

#include "safeguards.h"

// Nothing can be chosen yet: the automation's marker waits.
int AllSave()
{
    return -1;
}

int AllLoad()
{
    return -1;
}
