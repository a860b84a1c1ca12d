#include "file_xport.h"
#include "text.h"
#include <cctype>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

constexpr XportType xport_types[XPORT_TYPES] = {
    {"FrameMem\n(.TIF)", "TIF", {"*.TIF", "*.Tif", "*.tif", "*.TIF.SUB"}},
    {"FrameMem\n(.BMP)", "BMP", {"*.BMP", "*.Bmp", "*.bmp", "*.BMP.SUB"}},
    {"FrameMem\n(.TGA)", "TGA", {"*.TGA", "*.Tga", "*.tga", "*.TGA.SUB"}},
    {"FrameMem\n(.PNG)", "PNG", {"*.PNG", "*.Png", "*.png", "*.PNG.SUB"}},
};

static constexpr int FRAME_DIGITS = 6;

static const char* name_of(const char* path)
{
    const char* const slash = strrchr(path, '/');
    return slash ? slash + 1 : path;
}

// The "#" before a frame's number, null when the file is no frame.
static const char* frame_mark(const char* name)
{
    const char* const mark = strrchr(name, '#');
    if (!mark || mark == name)
        return nullptr;
    int digits = 0;
    while (isdigit(uint8_t(mark[1 + digits])))
        digits++;
    return digits == FRAME_DIGITS && mark[1 + digits] == '.' ? mark : nullptr;
}

bool Xport_Read(XPORTFILE* file, const char* path, const char* time)
{
    static constexpr char HOST[] = "MYHOST:";
    const char* const local = BeginsWith(path, HOST) ? path + strlen(HOST) : path;
    const char* const name = name_of(local);
    *file = {};
    if (*local != '/' || strstr(local, "/../") || strchr(local, ',') || !*name ||
        strlen(name) >= sizeof file->name ||
        PrintText(file->path, "%s%s", HOST, local) >= int(sizeof file->path))
        return false;
    CopyText(file->name, name);
    CopyText(file->time, time);
    if (const char* const mark = frame_mark(name))
        strncpy_secu(file->clip, name, sizeof file->clip, size_t(mark - name));
    return true;
}

bool Xport_IsSub(const char* path)
{
    return strstr(name_of(path), ".SUB") != nullptr;
}

int Xport_Frame(const char* name)
{
    const char* const mark = frame_mark(name);
    return mark ? int(strtol(mark + 1, nullptr, 10)) : -1;
}

void Xport_RegisterName(char (&name)[FMEM_NAME_SIZE], const char* path)
{
    constexpr size_t CHARACTERS = 8;
    char bare[CHARACTERS + 1];
    strncpy_close(bare, name_of(path), CHARACTERS);
    bare[strcspn(bare, ".")] = '\0';
    name[0] = '\0';
    if (StrRegName(bare))
        PrintText(name, "%c%s", Xport_IsSub(path) ? 'S' : 'M', bare);
}

// False when it was cut.
__attribute__((format(printf, 3, 4))) static bool print(char* buffer, int size, const char* format,
                                                        ...)
{
    va_list ap;
    va_start(ap, format);
    const int n = size > 0 ? vsnprintf(buffer, size_t(size), format, ap) : -1;
    va_end(ap);
    return n >= 0 && n < size;
}

bool Xport_DrivePath(char* buffer, int size, const char* folder, const char* name, XPORTTYPE type,
                     int frame, bool is_sub)
{
    const char* const ext = xport_types[type].ext;
    const char* const sub = is_sub ? ".SUB" : "";
    return frame < 0 ? print(buffer, size, "%s%s.%s%s", folder, name, ext, sub)
                     : print(buffer, size, "%s%s#%06d.%s%s", folder, name, frame, ext, sub);
}

bool Xport_ClipPath(char* buffer, int size, int unit, const char* path, const char* clip, int frame)
{
    if (!clip)
        return print(buffer, size, "SWR000D%03d:%s.SFH", unit, path);
    return frame < 0
               ? print(buffer, size, "SWR000D%03d:%s.SFH/%s.SFH", unit, path, clip)
               : print(buffer, size, "SWR000D%03d:%s.SFH/%s#%06d.SFH", unit, path, clip, frame);
}
