#include "clip_files.h"
#include "clip_store.h"
#include "drive.h"
#include "frame_file.h"
#include "log.h"
#include "text.h"
#include <algorithm>
#include <map>
#include <set>

static constexpr int DEPTH = 8;
static constexpr char FRAMES_OF[] = ".SFH/"; // between a clip and one of its frames

// Frames that have come of clips that are not complete.
static std::map<std::string, std::set<std::string>> clips_coming;

static int number(const std::string& text)
{
    long n = 0;
    return Text_ToInt(text, &n) ? int(n) : -1;
}

static std::string store_path(int unit)
{
    return Text_Format("/vorn/FM/%d", unit);
}

static std::string work_path(int unit)
{
    return Text_Format("/vorn/tmp/file/FRAMEMEM/CS%d", unit);
}

static std::string local(int unit, const std::string& path)
{
    return Drive_UnitFolder(HOST_SWR, unit) + path;
}

static void write_results(int unit, const std::string& lines)
{
    const std::string error = Drive_Write(local(unit, work_path(unit) + "/result.lst"), lines);
    if (!error.empty())
        Log_Note("no result list: %s", error.c_str());
}

void ClipFiles_ClearWork(int unit)
{
    (void)Drive_RemoveFolder(local(unit, work_path(unit))); // there may be none
    clips_coming.clear();
}

static std::string as_kind(const std::string& bytes, const std::string& kind, std::string* out)
{
    FrameFile frame;
    *out = bytes;
    if (kind == "SFH")
        return "";
    return FrameFile_Read(bytes, &frame) && Picture_Write(kind, frame.picture, out)
               ? ""
               : "NG(File Type Error)";
}

// A clip is one file here, with the picture of its first frame: each of the others has a bar at
// another place.
static std::string read_frame(int unit, const std::string& path, std::string* bytes)
{
    const size_t folder = path.find(FRAMES_OF);
    const size_t mark = path.rfind('#');
    const std::string clip = path.substr(0, folder);
    const int frames = ClipStore_Frames(unit, clip);
    const int frame = folder == path.npos || mark == path.npos ? 0 : number(path.substr(mark + 1));
    const std::string slash = Text_Begins(clip, "/") ? "" : "/";
    Place from;
    FrameFile file;
    if (!Drive_Place(Text_Format("SWR000D%03d:", unit) + store_path(unit) + slash + clip + ".SFH",
                     &from) ||
        !Drive_Read(from.local, bytes) || (folder != path.npos && (frame < 0 || frame >= frames)))
        return "NG(File Not Exist)";
    if (frame == 0 || !FrameFile_Read(*bytes, &file))
        return "";
    const int at = frame * (file.picture.width - 4) / (frames - 1);
    for (int y = 0; y < file.picture.height; ++y)
        std::fill_n(file.picture.pixels.begin() + y * file.picture.width + at, 4, 0xFFFFFFFF);
    *bytes = FrameFile_Write(file);
    return "";
}

void ClipFiles_PrepareGet(int unit, const std::string& path, const std::string& kind)
{
    const std::string slash = Text_Begins(path, "/") ? "" : "/";
    Place to;
    std::string bytes, made;
    std::string error = read_frame(unit, path, &bytes);
    if (error.empty() &&
        !Drive_Place(
            Text_Format("SWR000D%03d:", unit) + work_path(unit) + slash + path + "." + kind, &to))
        error = "NG(File Not Exist)";
    if (error.empty())
        error = as_kind(bytes, kind, &made);
    if (error.empty())
        error = Drive_Write(to.local, made);
    write_results(unit, path + "." + kind + "," + (error.empty() ? "OK" : error) + "\n");
}

// A picture comes under a name of the store's, whatever kind it is of.
static std::string as_frame(std::string* bytes)
{
    FrameFile frame;
    if (FrameFile_ReadHead(*bytes, &frame) && FrameFile_Read(*bytes, &frame))
        return "";
    for (const char* kind : {"TIF", "BMP", "TGA", "PNG"})
        if (Picture_Read(kind, *bytes, &frame.picture)) {
            *bytes = FrameFile_Write(frame);
            return "";
        }
    return "NG(File Type Error)";
}

// What comes is turned into the store's own; a clip is there with its last frame.
static std::string take(int unit, const std::string& path, const std::string& file, int frames)
{
    std::string bytes;
    const size_t dot = path.rfind('.');
    const size_t folder = path.find(FRAMES_OF);
    if (dot == std::string::npos || !Drive_Read(file, &bytes))
        return "NG(File Type Error)";
    const std::string name = path.substr(0, folder == path.npos ? dot : folder);
    std::string error = as_frame(&bytes);
    auto& coming = clips_coming[name];
    if (error.empty() && coming.empty())
        error = Drive_Write(local(unit, store_path(unit)) + name + ".SFH", bytes);
    if (error.empty())
        coming.insert(path);
    if (int(coming.size()) < std::max(1, frames))
        return error;
    clips_coming.erase(name);
    if (frames <= 1)
        ClipStore_Taken(unit, name);
    else if (!ClipStore_Make(unit, name, frames))
        return "NG(File Name Error)";
    return error;
}

void ClipFiles_TakePut(int unit, int frames)
{
    Place work;
    work.path = work_path(unit);
    work.local = local(unit, work.path);
    std::string lines;
    for (const Entry& entry : Drive_List(work, DEPTH)) {
        const std::string path = entry.path.substr(work.path.size());
        if (entry.is_folder || path == "/result.lst")
            continue;
        const std::string error = take(unit, path, entry.local, frames);
        (void)Drive_Remove(entry.local); // it is not taken twice
        lines += path + "," + (error.empty() ? "OK" : error) + "\n";
    }
    write_results(unit, lines);
}
