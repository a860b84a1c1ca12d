// texture_package: the user patterns of an effects unit's texture memory, composed on this machine:
// bitmaps of the stick, each with its place, and the package in which they go to the unit and come
// back to be changed. One package is in hand at a time; it lives as long as the process. The places
// are those of layout; lists and keys are the page's (pc_texture).
#pragma once
#include "layout.h"
#include "types.h"
#include <cstddef>
#include <cstdint>

constexpr int TEXTURE_UNIT_PX = 64;   // a unit of the memory, both ways
constexpr int TEXTURE_NAME_SIZE = 32; // of a pattern, with its terminator

// The package's files, in a folder of the removable drive.
#define TEXTURE_FOLDER "UserTexture"
#define TEXTURE_FILE "UserTexture.zsp"

// A bitmap as a pattern. Its bytes stay where they are until the package is written.
struct TEXTURE {
    char name[TEXTURE_NAME_SIZE] = ""; // letters, digits and what else a file name may have
    char path[PATH_SIZE] = "";
    uint32_t offset = 0; // in that file
    uint32_t bytes = 0;
    int width_px = 0;
    int height_px = 0;
    int sizeX = 0; // units; 0 for a bitmap that is no pattern for its size
    int sizeY = 0;
    int x = 0; // its place, units from the top left
    int y = 0;
};

// --- The package in hand ---
extern TEXTURE Texture[TEXTURE_MAX];
extern int TextureMax; // in use

void TexturePackage_Clear();
// Both place all patterns anew. 0; -1 when they don't find room: then nothing changes. An index or
// a size that no pattern has is refused as well.
int TexturePackage_Add(const TEXTURE& texture);
int TexturePackage_Remove(int index);
int TexturePackage_Find(const char* name); // -1 when there is none
int TexturePackage_Units();                // that are taken

// --- Files ---
// Look at a bitmap. 0, also for one of a size that no pattern has (sizeX is 0 then); -1 when it is
// none, or not uncompressed with 8, 24 or 32 bits.
int Texture_ReadBitmap(TEXTURE* texture, const char* path);
// Write the package with its install configuration into drive ("/mnt/usb/usb1/"), and take the
// bitmaps from there from then on. 0; -1 when a bitmap has changed or cannot be read, or the files
// cannot be written: what was there before stays.
int TexturePackage_Write(const char* drive);
// Take over a package in place of the one in hand. 0; -1 when it is not there or not whole: then
// nothing changes.
int TexturePackage_Read(const char* drive);
