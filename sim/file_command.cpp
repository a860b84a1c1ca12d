// What each request for file work does on drives and units.
#include "file_job.h"
#include "frame_file.h"
#include "text.h"
#include "transfer.h"
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <ctime>
#include <memory>
#include <unistd.h>

static constexpr int DEPTH_ALL = 16;
static constexpr size_t PIECE_BYTES = 1 << 20; // a step's share of a large file
static constexpr const char* NO_FILE = "NG(File Not Exist)";
static constexpr const char* NO_ROOM = "NG(No Space Left)";
static constexpr const char* NO_DEVICE = "NG(No Device)";

// --- Lists ---

static std::string date_of(int64_t seconds)
{
    const time_t time = time_t(seconds);
    tm local = {};
    char text[32] = "";
    if (!localtime_r(&time, &local) || !strftime(text, sizeof text, "%a %b %e %H:%M:%S %Y", &local))
        return "Thu Jan  1 00:00:00 1970";
    return text;
}

static std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return char(tolower(c)); });
    return text;
}

static bool is_row_fitting(const std::string& row)
{
    constexpr size_t ROW_BYTES = 360; // with the path of the status before it, a panel can read it
    return row.size() < ROW_BYTES;
}

static bool list_files(Job& job, int depth, const std::string& pattern)
{
    if (!Drive_IsFolder(job.places[0].local))
        return FileJob_End(job, "NG(Directory Not Exist)");
    for (const Entry& entry : Drive_List(job.places[0], depth)) {
        const std::string row = entry.path + "," + date_of(entry.time);
        if (!entry.is_folder && is_row_fitting(row) &&
            Text_Matches(lower(Drive_FileName(entry.path)), lower(pattern)))
            job.rows.push_back(row);
    }
    return FileJob_End(job, "");
}

static bool step_find(Job& job)
{
    return list_files(job, DEPTH_ALL, job.args[1]);
}

static bool step_find2(Job& job)
{
    long depth = 0;
    if (!Text_ToInt(job.args[1], &depth) || depth < 0)
        return FileJob_End(job, "NG(Invalid Parameter)");
    return list_files(job, int(std::min<long>(depth, DEPTH_ALL)), job.args[2]);
}

static bool step_list_dir(Job& job)
{
    if (!Drive_IsFolder(job.places[0].local))
        return FileJob_End(job, "NG(Directory Not Exist)");
    for (const Entry& entry : Drive_List(job.places[0], 0)) {
        const std::string row = entry.path + "," + date_of(entry.time);
        if (entry.is_folder && is_row_fitting(row))
            job.rows.push_back(row);
    }
    return FileJob_End(job, "");
}

// Path, date, version, format, mode, modified, invert.
static bool step_find_frames(Job& job)
{
    if (!Drive_IsFolder(job.places[0].local))
        return FileJob_End(job, "NG(Directory Not Exist)");
    std::string bytes;
    FrameFile frame;
    for (const Entry& entry : Drive_List(job.places[0], DEPTH_ALL)) {
        const bool is_one = !entry.is_folder &&
                            Text_Matches(lower(Drive_FileName(entry.path)), lower(job.args[1])) &&
                            Drive_Read(entry.local, &bytes) && FrameFile_ReadHead(bytes, &frame);
        const std::string row =
            entry.path + "," + date_of(entry.time) +
            Text_Format(",%d,%d,%d,%d,%d", frame.is_packed ? 2 : 1, frame.format, int(frame.is_4k),
                        int(frame.is_inverted), int(frame.is_inverted));
        if (is_one && is_row_fitting(row))
            job.rows.push_back(row);
    }
    return FileJob_End(job, "");
}

// --- Copies ---

namespace
{
struct CloseFile {
    void operator()(FILE* file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;
} // namespace

static bool copy_fails(Job& job, const std::string& error)
{
    unlink(job.part.c_str());
    job.part.clear();
    return FileJob_End(job, error);
}

// Both files are opened anew for each piece: a stick that is pulled fails the copy.
static bool step_piece(Job& job)
{
    const std::string &from = job.places[0].local, &to = job.places[1].local;
    if (job.part.empty()) {
        if (!Drive_IsFile(from))
            return FileJob_End(job, NO_FILE);
        if (const std::string error = Drive_MakeParents(to); !error.empty())
            return FileJob_End(job, error);
        job.part = to + Text_Format(".%u.part", job.ack);
        unlink(job.part.c_str());
    }
    const bool is_first = job.done_bytes == 0;
    const File in(fopen(from.c_str(), "rb"));
    const File out(fopen(job.part.c_str(), is_first ? "wb" : "r+b"));
    if (!in || !out)
        return copy_fails(job, NO_DEVICE);
    std::string piece(PIECE_BYTES, '\0');
    const bool is_placed = fseeko(in.get(), job.done_bytes, SEEK_SET) == 0 &&
                           fseeko(out.get(), job.done_bytes, SEEK_SET) == 0;
    const size_t count = is_placed ? fread(piece.data(), 1, piece.size(), in.get()) : 0;
    if (!is_placed || ferror(in.get()))
        return copy_fails(job, "NG(Read Error)");
    if (!Drive_TakeRoom(int64_t(count)))
        return copy_fails(job, NO_ROOM);
    if (fwrite(piece.data(), 1, count, out.get()) != count || fflush(out.get()) != 0)
        return copy_fails(job, NO_ROOM);
    job.done_bytes += int64_t(count);
    if (count == piece.size())
        return false;
    const std::string error = Drive_Move(job.part, to);
    if (!error.empty())
        return copy_fails(job, error);
    job.part.clear();
    return FileJob_End(job, "");
}

static bool step_copy(Job& job)
{
    if (Transfer_IsPlainFile(job.places[0]) && Transfer_IsPlainFile(job.places[1]))
        return job.places[0].local == job.places[1].local ? FileJob_End(job, "") : step_piece(job);
    std::string bytes;
    std::string error = Transfer_Fetch(job.places[0], &bytes);
    if (error.empty())
        error = Transfer_Deliver(job.places[1], Drive_FileName(job.places[0].path), bytes);
    return FileJob_End(job, error);
}

// A file a step: a folder of thousands holds nobody up.
static bool step_copy_folder(Job& job)
{
    const Place &from = job.places[0], &to = job.places[1];
    if (job.done_bytes++ == 0) {
        if (!Drive_IsFolder(from.local) || to.local.empty())
            return FileJob_End(job, "NG(Directory Not Exist)");
        if (Text_Begins(to.local + "/", from.local + "/"))
            return FileJob_End(job, "NG(Invalid Path)"); // it would never end
        job.entries = Drive_List(from, DEPTH_ALL);
        std::reverse(job.entries.begin(), job.entries.end()); // folders before what is in them
        const std::string error = Drive_MakeFolder(to.local);
        return error.empty() ? false : FileJob_End(job, error);
    }
    if (job.entries.empty())
        return FileJob_End(job, "");
    const Entry entry = job.entries.back();
    job.entries.pop_back();
    const std::string target = to.local + entry.path.substr(from.path.size());
    std::string bytes, error;
    if (entry.is_folder)
        error = Drive_MakeFolder(target);
    else
        error = Drive_Read(entry.local, &bytes) ? Drive_Write(target, bytes) : NO_FILE;
    return error.empty() ? false : FileJob_End(job, error);
}

// --- Changes ---

static bool step_make_folder(Job& job)
{
    const std::string& folder = job.places[0].local;
    if (folder.empty() || Drive_IsFile(folder))
        return FileJob_End(job, "NG(Invalid Path)");
    return FileJob_End(job, Drive_MakeFolder(folder));
}

static bool step_remove_folder(Job& job)
{
    return FileJob_End(job, job.places[0].local.empty() ? "NG(Invalid Path)"
                                                        : Drive_RemoveFolder(job.places[0].local));
}

static bool step_move(Job& job)
{
    const Place &from = job.places[0], &to = job.places[1];
    const bool is_on_drives = !from.local.empty() && !to.local.empty();
    return FileJob_End(job, is_on_drives ? Drive_Move(from.local, to.local) : "NG(Invalid Path)");
}

static bool step_remove(Job& job)
{
    return FileJob_End(job, job.places[0].local.empty() ? "NG(Invalid Path)"
                                                        : Drive_Remove(job.places[0].local));
}

// "TOOL VERSION SOURCE TARGET": the converters of the device for units of an old version. The
// simulator's files are the same in all versions; an unreadable one is refused.
static bool step_raw(Job& job)
{
    static const std::string TOOLS = "MYHOST:/usr/local/sbin/dg_";
    const auto word = Text_Split(job.args[0], ' ');
    const size_t begin = job.args[0].find(" /");
    const size_t middle = begin == std::string::npos ? begin : job.args[0].find(" /", begin + 2);
    Place from, to;
    if (!Text_Begins(word[0], TOOLS) || middle == std::string::npos ||
        !Drive_Place("MYHOST:" + job.args[0].substr(begin + 1, middle - begin - 1), &from) ||
        !Drive_Place("MYHOST:" + job.args[0].substr(middle + 1), &to))
        return FileJob_End(job, "NG(Invalid Parameter)");
    std::string bytes;
    if (!Drive_Read(from.local, &bytes))
        return FileJob_End(job, NO_FILE);
    return FileJob_End(job, bytes.empty() ? "NG(Convert Error)" : Drive_Write(to.local, bytes));
}

// --- The stick ---

// Number, device, folder, file system, MB in all and free.
static bool step_stick(Job& job)
{
    if (!Drive_HasStick())
        return FileJob_End(job, NO_DEVICE);
    const int64_t free_mb = Drive_Room() < 0 ? 8000 : Drive_Room() >> 20;
    job.rows.push_back("1,/dev/sda1,/mnt/usb/usb1,vfat,8192," + std::to_string(free_mb));
    return FileJob_End(job, "");
}

static constexpr FileCommand commands[] = {
    {"File@Transfer@Transfer", 2, 2, 30, step_copy},
    {"File@Access@Find", 1, 2, 30, step_find},
    {"File@Access@Find2", 1, 3, 30, step_find2},
    {"File@Access@ListDir", 1, 1, 20, step_list_dir},
    {"File@Access@FindSFM", 1, 2, 30, step_find_frames},
    {"File@Access@Mkdir", 1, 1, 20, step_make_folder},
    {"File@Access@Copy", 2, 2, 20, step_copy},
    {"File@Access@Copydir", 2, 2, 50, step_copy_folder},
    {"File@Access@Rmdir", 1, 1, 50, step_remove_folder},
    {"File@Access@Move", 2, 2, 20, step_move},
    {"File@Access@Remove", 1, 1, 10, step_remove},
    {"File@Access@MakeVector", 2, 2, 100, step_copy},
    {"File@Access@Raw", 0, 1, 100, step_raw},
    {"File@Access@USB Storage Reload", 0, 0, 200, step_stick},
    {"File@Access@USB Storage Refresh", 0, 0, 200, step_stick},
    {"File@Remote Access@SCP Get", 2, 2, 40, step_copy},
    {"File@Remote Access@SCP Put", 2, 2, 40, step_copy},
    {"File@Remote Access@SCP Dir Get", 2, 2, 40, step_copy},
    {"File@Remote Access@SCP Dir Put", 2, 2, 40, step_copy},
    {"File@Remote Access@Make Dir", 1, 1, 30, step_make_folder},
};
constinit const std::span<const FileCommand> file_commands = commands;
