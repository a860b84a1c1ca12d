#include "clip_files.h"
#include "clip_store.h"
#include "drive.h"
#include "frame_file.h"
#include "log.h"
#include "text.h"
#include <algorithm>

static constexpr int DEPTH = 8;

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

void ClipFiles_PrepareGet(int unit, const std::string& path, const std::string& kind)
{
    const std::string slash = Text_Begins(path, "/") ? "" : "/";
    Place from, to;
    const std::string host = Text_Format("SWR000D%03d:", unit);
    std::string bytes, made, error = "NG(File Not Exist)";
    if (Drive_Place(host + store_path(unit) + slash + path + ".SFH", &from) &&
        Drive_Place(host + work_path(unit) + slash + path + "." + kind, &to) &&
        Drive_Read(from.local, &bytes))
        error = as_kind(bytes, kind, &made);
    if (error.empty())
        error = Drive_Write(to.local, made);
    write_results(unit, path + "." + kind + "," + (error.empty() ? "OK" : error) + "\n");
}

// What comes in another form is turned into the store's own.
static std::string take(int unit, const std::string& path, const std::string& file)
{
    std::string bytes;
    const size_t dot = path.rfind('.');
    if (dot == std::string::npos || !Drive_Read(file, &bytes))
        return "NG(File Type Error)";
    FrameFile frame;
    const std::string kind = path.substr(dot + 1);
    if (kind != "SFH") {
        if (!Picture_Read(kind, bytes, &frame.picture))
            return "NG(File Type Error)";
        bytes = FrameFile_Write(frame);
    }
    const std::string error =
        Drive_Write(local(unit, store_path(unit)) + path.substr(0, dot) + ".SFH", bytes);
    if (error.empty())
        ClipStore_Taken(unit, path.substr(0, dot));
    return error;
}

void ClipFiles_TakePut(int unit)
{
    Place work;
    work.path = work_path(unit);
    work.local = local(unit, work.path);
    std::string lines;
    for (const Entry& entry : Drive_List(work, DEPTH)) {
        const std::string path = entry.path.substr(work.path.size());
        if (entry.is_folder || path == "/result.lst")
            continue;
        const std::string error = take(unit, path, entry.local);
        lines += path + "," + (error.empty() ? "OK" : error) + "\n";
    }
    write_results(unit, lines);
}
