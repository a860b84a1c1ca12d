#include "transfer.h"
#include "frame_memory.h"
#include "hub.h"
#include "text.h"
#include "unit_file.h"

static constexpr const char* NO_FILE = "NG(File Not Exist)";

// A register that a unit's path names, in a work folder or bare.
static bool is_register(const Place& place, UnitFile* file)
{
    std::string category, target;
    const bool is_here = place.local.empty() || UnitFile_IsWork(place.path, &category, &target);
    return place.host != HOST_SERVER && is_here &&
           UnitFile_Parse(Drive_FileName(place.path), file) && UnitFile_Category(*file);
}

static bool is_frame(const Place& place, FrameRef* ref)
{
    return place.host == HOST_SWR && place.local.empty() && FrameMemory_Parse(place.path, ref);
}

// The second switcher has no frame memory of its own: it keeps the files.
static std::string kept_frame(const Place& place)
{
    return Drive_UnitFolder(place.host, place.unit) + "/vorn/frames/" + place.path;
}

bool Transfer_IsPlainFile(const Place& place)
{
    UnitFile file;
    return !place.local.empty() && !is_register(place, &file);
}

std::string Transfer_Fetch(const Place& from, std::string* bytes)
{
    FrameRef ref;
    if (is_frame(from, &ref)) {
        const bool is_read =
            from.unit == 1 ? FrameMemory_Read(ref, bytes) : Drive_Read(kept_frame(from), bytes);
        return is_read ? "" : NO_FILE;
    }
    if (!from.local.empty() && Drive_Read(from.local, bytes))
        return "";
    // Not made ready by the hub: as it is now.
    UnitFile file;
    return is_register(from, &file) && UnitFile_Make(from.host, from.unit, file, bytes) ? ""
                                                                                        : NO_FILE;
}

static std::string register_name_of(const std::string& file_name)
{
    UnitFile file;
    return UnitFile_Parse(file_name, &file) ? file.name : "";
}

std::string Transfer_Deliver(const Place& to, const std::string& source, const std::string& bytes)
{
    FrameRef ref, from;
    if (is_frame(to, &ref)) {
        if (ref.name.empty() && FrameMemory_Parse(source, &from))
            ref.name = from.name;
        return to.unit == 1 ? FrameMemory_Store(ref, bytes) : Drive_Write(kept_frame(to), bytes);
    }
    UnitFile file;
    std::string category, target;
    if (!is_register(to, &file))
        return to.local.empty() ? "NG(Invalid Path)" : Drive_Write(to.local, bytes);
    if (file.name.empty())
        file.name = register_name_of(source);
    const bool is_reserved =
        UnitFile_IsWork(to.path, &category, &target) && Hub_IsReserved(target, category);
    if (!is_reserved)
        return UnitFile_Load(to.host, to.unit, file, bytes);
    UnitFile_NoteName(to.local, file.name);
    return Drive_Write(to.local, bytes);
}
