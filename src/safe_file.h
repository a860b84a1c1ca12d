// safe_file: how a file of the program is replaced. The new bytes go into a file beside it, reach
// the disk, and take its name: whenever the power fails, the old file or the new one is there,
// whole. What stands in a file belongs to its module.
#pragma once
#include "types.h"
#include <cstddef>
#include <cstdio>

// A file that is being written. Valid from Open to Commit or Abandon; not copied.
struct SafeFile {
    FILE* fp = nullptr; // for fprintf and fwrite
    char path[PATH_SIZE] = "";
    char beside[PATH_SIZE] = "";
};

// Begin to write the file that is to be at path. 0, or -1 with fp null when it cannot be made.
int SafeFile_Open(SafeFile& file, const char* path);
// Give it its name. 0, or -1 when a byte of it could not be written: then the old file stays. Takes
// a file that was not opened and returns -1. Waits for the disk.
int SafeFile_Commit(SafeFile& file);
// The same for a file that is of no use after the power has failed: whoever reads it finds it
// whole, but nobody waits for the disk.
int SafeFile_CommitUnsynced(SafeFile& file);
// Leave the old file as it is.
void SafeFile_Abandon(SafeFile& file);

// All of these at once, for a file whose bytes are ready. 0 or -1. A failure of any step is logged.
int SafeFile_Write(const char* path, const void* bytes, size_t size);
