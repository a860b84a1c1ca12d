// What each request for file work does with pictures of the frame memory.
#include "file_job.h"
#include "frame_file.h"
#include "frame_memory.h"
#include "text.h"
#include "transfer.h"
#include <algorithm>

static constexpr const char* WRONG_TYPE = "NG(File Type Error)";

// "TIF2SFM" and "SFM2TIF": the kind that is not the frame memory's.
static std::string kind_of(const Job& job)
{
    const std::string command = job.command->path;
    const std::string word = command.substr(command.rfind('@') + 1);
    return Text_Begins(word, "SFM2") ? word.substr(4, 3) : word.substr(0, 3);
}

static std::string extension(const std::string& path)
{
    const size_t dot = path.rfind('.');
    return dot == std::string::npos ? "" : path.substr(dot + 1);
}

static bool is_packed_name(const std::string& path)
{
    return extension(path) == "SF2" || extension(path) == "SF4";
}

// The name that the file says: it stands before the first dot.
static std::string name_in(const Place& place)
{
    FrameRef ref;
    const std::string file = Drive_FileName(place.path);
    return FrameMemory_Parse(file, &ref) ? ref.name : "";
}

// Out of the frame memory or into it: the file as the name wants it.
static bool step_transfer(Job& job)
{
    std::string bytes;
    std::string error = Transfer_Fetch(job.places[0], &bytes);
    if (error.empty())
        error = Transfer_Deliver(job.places[1], Drive_FileName(job.places[0].path), bytes);
    return FileJob_End(job, error);
}

static bool fetch_frame(Job& job, FrameFile* frame)
{
    std::string bytes;
    const std::string error = Transfer_Fetch(job.places[0], &bytes);
    if (!error.empty())
        return FileJob_End(job, error);
    if (!FrameFile_Read(bytes, frame))
        return FileJob_End(job, WRONG_TYPE);
    return false;
}

// From one form of the file to another; the name of the target tells which.
static bool step_repack(Job& job)
{
    FrameFile frame;
    if (fetch_frame(job, &frame))
        return true;
    frame.is_packed = is_packed_name(job.places[1].path);
    if (!name_in(job.places[1]).empty())
        frame.name = name_in(job.places[1]);
    return FileJob_End(job, Transfer_Deliver(job.places[1], Drive_FileName(job.places[0].path),
                                             FrameFile_Write(frame)));
}

static bool step_thumbnail(Job& job)
{
    FrameFile frame;
    if (fetch_frame(job, &frame))
        return true;
    frame.is_packed = false;
    frame.picture = Picture_Scale(frame.picture, THUMBNAIL_WIDTH, THUMBNAIL_HEIGHT);
    return FileJob_End(job, Transfer_Deliver(job.places[1], Drive_FileName(job.places[0].path),
                                             FrameFile_Write(frame)));
}

static bool step_invert(Job& job)
{
    FrameFile frame;
    if (fetch_frame(job, &frame))
        return true;
    Picture_SwapFields(&frame.picture);
    frame.is_inverted = !frame.is_inverted;
    return FileJob_End(job, Transfer_Deliver(job.places[0], Drive_FileName(job.places[0].path),
                                             FrameFile_Write(frame)));
}

static std::string write_import(const Place& to, const Picture& picture, int format, bool is_pair)
{
    FrameFile frame;
    frame.name = name_in(to);
    frame.format = format;
    frame.is_pair = is_pair;
    frame.is_packed = is_packed_name(to.path);
    frame.picture = picture;
    return Drive_Write(to.local, FrameFile_Write(frame));
}

// What is larger than a picture of the system is made smaller in both directions alike.
static void fit(Picture* picture)
{
    constexpr int WIDTH = 1920, HEIGHT = 1080;
    const double factor =
        std::max(double(picture->width) / WIDTH, double(picture->height) / HEIGHT);
    if (factor > 1)
        *picture = Picture_Scale(*picture, std::max(1, int(picture->width / factor)),
                                 std::max(1, int(picture->height / factor)));
}

// SOURCE, FIRST, SECOND, FORMAT, 0, 0. The second file is the key, when the picture has one.
static bool step_import(Job& job)
{
    std::string bytes;
    Picture picture;
    long format = 0;
    const std::string error = Transfer_Fetch(job.places[0], &bytes);
    if (!error.empty())
        return FileJob_End(job, error);
    if (!Picture_Read(kind_of(job), bytes, &picture))
        return FileJob_End(job, WRONG_TYPE);
    fit(&picture);
    (void)(job.args.size() > 3 && Text_ToInt(job.args[3], &format)); // none: 0
    Place second; // the plain form of the command has none
    const bool has_key =
        picture.has_alpha && job.args.size() > 2 && Drive_Place(job.args[2], &second);
    const Picture key = has_key ? Picture_Key(picture) : Picture();
    picture.has_alpha = false;
    std::string written = write_import(job.places[1], picture, int(format), has_key);
    if (written.empty() && has_key)
        written = write_import(second, key, int(format), true);
    return FileJob_End(job, written);
}

static bool step_export(Job& job)
{
    FrameFile frame;
    if (fetch_frame(job, &frame))
        return true;
    std::string bytes;
    if (!Picture_Write(kind_of(job), frame.picture, &bytes))
        return FileJob_End(job, WRONG_TYPE);
    return FileJob_End(job, Transfer_Deliver(job.places[1], "", bytes));
}

// The names of the registers, as a text.
static bool step_get_control(Job& job)
{
    std::string text;
    for (const FrameName& frame : FrameMemory_Names())
        text += Text_Format("%d,%s\n", frame.number, frame.name.c_str());
    return FileJob_End(job, Transfer_Deliver(job.places[1], "", text));
}

static constexpr FileCommand commands[] = {
    {"File@Frame Memory@PutV3", 2, 2, 60, step_transfer},
    {"File@Frame Memory@Get", 2, 2, 60, step_transfer},
    {"File@Frame Memory@GetCtrl", 2, 2, 40, step_get_control},
    {"File@Frame Memory@Compress", 2, 2, 80, step_repack},
    {"File@Frame Memory@Uncompress", 2, 2, 60, step_repack},
    {"File@Frame Memory@Make Thumbnail", 2, 2, 40, step_thumbnail},
    {"File@Frame Memory@FieldInvert", 1, 1, 60, step_invert},
    {"File@Frame Memory@TIF2SFM", 2, 2, 120, step_import},
    {"File@Frame Memory@BMP2SFM", 2, 2, 120, step_import},
    {"File@Frame Memory@TGA2SFM", 2, 2, 120, step_import},
    {"File@Frame Memory@PNG2SFM", 2, 2, 120, step_import},
    {"File@Frame Memory@TIF2SFM with Compress", 2, 2, 150, step_import},
    {"File@Frame Memory@BMP2SFM with Compress", 2, 2, 150, step_import},
    {"File@Frame Memory@TGA2SFM with Compress", 2, 2, 150, step_import},
    {"File@Frame Memory@PNG2SFM with Compress", 2, 2, 150, step_import},
    {"File@Frame Memory@SFM2TIF", 2, 2, 100, step_export},
    {"File@Frame Memory@SFM2BMP", 2, 2, 100, step_export},
    {"File@Frame Memory@SFM2TGA", 2, 2, 100, step_export},
    {"File@Frame Memory@SFM2PNG", 2, 2, 100, step_export},
};
constinit const std::span<const FileCommand> frame_commands = commands;
