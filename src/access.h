// access: counts of open user files and running transfers; they light the lamps in the page button.
#pragma once
#include <cstdio>

extern int FileCounter;
extern int XferCounter;

// fopen with the USB lamp. Null on failure; the lamp is right either way.
FILE* FileOpen(const char* path, const char* mode);
void FileClose(FILE* fp); // a null fp only logs
void FileCounterUp();
void FileCounterDown(); // never below 0
void XferCounterUp();
void XferCounterDown();
