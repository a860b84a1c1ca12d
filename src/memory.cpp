#include "memory.h"
#include <cstdlib>
#include <cstring>

int UsedMemPtr = 0;

static void* memory_counted(void* ptr)
{
    if (ptr)
        UsedMemPtr++;
    return ptr;
}

void* GDL_Malloc(size_t size)
{
    return memory_counted(malloc(size));
}

void* GDL_Calloc(size_t memb, size_t size)
{
    return memory_counted(calloc(memb, size));
}

void* GDL_Realloc(void* mem, size_t size)
{
    if (!mem)
        return GDL_Malloc(size);
    if (size == 0) { // libraries differ on this one; here it always frees
        GDL_Free(mem);
        return nullptr;
    }
    return realloc(mem, size);
}

void GDL_Free(void* ptr)
{
    if (!ptr)
        return;
    UsedMemPtr--;
    free(ptr);
}

char* GDL_StrDup(const char* text)
{
    if (!text)
        return nullptr;
    const size_t size = strlen(text) + 1;
    char* copy = static_cast<char*>(GDL_Malloc(size));
    if (copy)
        memcpy(copy, text, size);
    return copy;
}
