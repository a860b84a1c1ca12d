// memory: the library's allocation with a count of what is alive, printed at the end of the
// process.
#pragma once
#include <cstddef>

extern int UsedMemPtr; // live allocations

void* GDL_Malloc(size_t size);
void* GDL_Calloc(size_t memb, size_t size);
// A null mem counts as a new allocation. Size 0 frees mem and returns null; otherwise null means
// failure, and the old block stays.
void* GDL_Realloc(void* mem, size_t size);
// A null ptr does nothing and does not count.
void GDL_Free(void* ptr);
// A counted copy of a text; null for a null text or when memory is out.
char* GDL_StrDup(const char* text);
