// bmp_check: whether a bitmap that came from outside may be given to the library that reads it.
#pragma once

// The file is all that its header says: 1, 4, 8, 16, 24 or 32 bits, not compressed, the rows in
// either order, at most max_w by max_h pixels. False also when it cannot be read.
bool Bmp_IsSound(const char* path, int max_w, int max_h);
