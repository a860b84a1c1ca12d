// file_xport: the picture files that frame memory and clip store exchange with drives: which kinds
// there are, how they are found and called, and which register a file becomes. It never looks at a
// drive itself.
#pragma once
#include "file.h"
#include "fmctrl.h"
#include "types.h"

enum XPORTTYPE : int { XPORT_TIF, XPORT_BMP, XPORT_TGA, XPORT_PNG, XPORT_TYPES };

constexpr int XPORT_PATTERNS = 4;
struct XportType {
    const char* caption;
    const char* ext;
    const char* patterns[XPORT_PATTERNS]; // of a search for it, its sub sides last
};
extern const XportType xport_types[XPORT_TYPES];

// A picture file as a search told it.
struct XPORTFILE {
    char name[128] = "";
    char time[20] = "";
    char path[256] = ""; // "MYHOST:/..."
    char clip[128] = ""; // of a frame of a clip, else empty
    XPORTFILE* next = nullptr;
};

// Fill in a file from a search's row, with or without a host. False when it is too long or stands
// outside the folders that a search may tell.
bool Xport_Read(XPORTFILE* file, const char* path, const char* time);
bool Xport_IsSub(const char* path); // "logo.TIF.SUB"
// Number of the frame that a file is of its clip, "intro#000012.TIF"; -1 for another.
int Xport_Frame(const char* name);
// The register that a file becomes when it is imported, with its prefix; "" when it has no name.
void Xport_RegisterName(char (&name)[FMEM_NAME_SIZE], const char* path);

// --- Where a picture goes; false when it does not fit ---

// On a drive: folder is "MYHOST:/.../". frame: of a clip, -1 for a still.
bool Xport_DrivePath(char* buffer, int size, const char* folder, const char* name, XPORTTYPE type,
                     int frame, bool is_sub);
// On the clip store of switcher unit: path is the still's or the clip's, without extension. clip:
// name of the clip that a frame belongs to, null for a still; frame: -1 for a clip of one frame.
bool Xport_ClipPath(char* buffer, int size, int unit, const char* path, const char* clip,
                    int frame);
