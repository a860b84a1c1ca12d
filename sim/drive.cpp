#include "drive.h"
#include "log.h"
#include "text.h"
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

// Of the server's machine, the folders that panels may use; each is the topmost one that is safe
// from a panel's own removal.
static const std::string heads[] = {
    "/mnt/data", "/mnt/usb",   "/mnt/sys",    "/var/nfs",
    "/var/tmp",  "/tmp/FTPIF", "/tmp/FMLoad", "/tmp/MacroEdit",
};
static const std::string UNITS = "/var/units";
static const std::string STICKS = "/mnt/usb/";
static const std::string STICK = "/mnt/usb/usb1";
static const std::string STICK_OUT = "/mnt/usb/.out"; // a rename: other places may be other drives

static struct {
    std::string root;
    int64_t room = -1; // bytes; negative: without limit
} dr;

void Drive_SetRoot(const std::string& root)
{
    std::error_code error;
    dr.root = root.empty() ? "" : fs::weakly_canonical(root, error).string();
    if (dr.root == "/")
        dr.root.clear();
}

// --- Names ---

std::string Drive_FileName(const std::string& path)
{
    const size_t at = path.find_last_of("/:");
    return at == std::string::npos ? path : path.substr(at + 1);
}

static bool is_below(const std::string& path, const std::string& head)
{
    return Text_Begins(path, head) && (path.size() == head.size() || path[head.size()] == '/');
}

// A path as text: absolute, printable, and without a step upwards.
static bool is_sound_path(const std::string& path)
{
    for (const std::string& part : Text_Split(path, '/'))
        if (part == "..")
            return false;
    return path.size() < DRIVE_PATH_BYTES && std::none_of(path.begin(), path.end(), [](char c) {
               return (unsigned char)c < 0x20 || c == 0x7F;
           });
}

// A link in the folders may not lead out of them either: what counts is where the path really ends.
static bool is_inside(const std::string& local)
{
    std::error_code error;
    const std::string real = fs::weakly_canonical(local, error).string();
    if (error)
        return false;
    if (is_below(real, dr.root + UNITS))
        return true;
    return std::any_of(std::begin(heads), std::end(heads),
                       [&](const std::string& head) { return is_below(real, dr.root + head); });
}

// "SWR001D001" and "SWR000D001" are one unit: the number stands behind the "D".
static bool parse_host(const std::string& host, Place* place)
{
    static const struct {
        const char* word;
        HostKind kind;
        long units;
    } kinds[] = {{"SWR", HOST_SWR, 2}, {"PNL", HOST_PNL, 4}, {"DME", HOST_DME, 4}};
    if (host == "MYHOST") {
        place->host = HOST_SERVER;
        return true;
    }
    long number = 0;
    for (const auto& kind : kinds) {
        const bool is_unit = host.size() == 10 && Text_Begins(host, kind.word) && host[6] == 'D' &&
                             isdigit((unsigned char)host[7]) &&
                             Text_ToInt(host.substr(7), &number) && number >= 1 &&
                             number <= kind.units;
        if (!is_unit)
            continue;
        place->host = kind.kind;
        place->unit = int(number);
        return true;
    }
    return false;
}

std::string Drive_UnitFolder(HostKind host, int unit)
{
    const char* const word = host == HOST_SWR ? "SWR" : host == HOST_PNL ? "PNL" : "DME";
    return dr.root + UNITS + Text_Format("/%s%d", word, unit);
}

bool Drive_Place(const std::string& text, Place* place)
{
    *place = {};
    const size_t colon = text.find(':');
    const bool is_formed = colon != std::string::npos && parse_host(text.substr(0, colon), place) &&
                           is_sound_path(text.substr(colon + 1)) && colon + 1 < text.size();
    if (is_formed) {
        place->path = text.substr(colon + 1);
        while (place->path.size() > 1 && place->path.back() == '/')
            place->path.pop_back();
        const bool is_absolute = place->path[0] == '/';
        if (is_absolute)
            place->local = place->host == HOST_SERVER
                               ? dr.root + place->path
                               : Drive_UnitFolder(place->host, place->unit) + place->path;
        const bool is_bare = place->host != HOST_SERVER && !is_absolute &&
                             place->path.find('/') == std::string::npos;
        if (is_bare || (is_absolute && is_inside(place->local)))
            return true;
    }
    Log_Note("path refused: %s", Text_Escape(text, 300).c_str());
    *place = {};
    return false;
}

// --- Files ---

static std::string told(const std::error_code& error)
{
    return error ? "NG(" + error.message() + ")" : "";
}

// A stick that has been pulled must not come back as a folder of the local drive.
static bool is_on_missing_stick(const std::string& local)
{
    const std::string sticks = dr.root + STICKS;
    if (!Text_Begins(local, sticks))
        return false;
    std::error_code error;
    return !fs::is_directory(local.substr(0, local.find('/', sticks.size())), error);
}

static constexpr const char* NO_STICK = "NG(No Device)";
static constexpr const char* NO_ROOM = "NG(No Space Left)";
static constexpr const char* NO_FILE = "NG(File Not Exist)";

std::string Drive_MakeFolder(const std::string& local)
{
    if (is_on_missing_stick(local))
        return NO_STICK;
    std::error_code error;
    fs::create_directories(local, error);
    return told(error);
}

std::string Drive_MakeParents(const std::string& local)
{
    return Drive_MakeFolder(fs::path(local).parent_path().string());
}

bool Drive_IsFile(const std::string& local)
{
    std::error_code error;
    return fs::is_regular_file(local, error);
}

bool Drive_IsFolder(const std::string& local)
{
    std::error_code error;
    return fs::is_directory(local, error);
}

int64_t Drive_Bytes(const std::string& local)
{
    std::error_code error;
    const auto bytes = fs::file_size(local, error);
    return error ? 0 : int64_t(bytes);
}

std::string Drive_Remove(const std::string& local)
{
    if (!Drive_IsFile(local))
        return NO_FILE;
    const int64_t bytes = Drive_Bytes(local);
    std::error_code error;
    if (fs::remove(local, error))
        (void)Drive_TakeRoom(-bytes);
    return told(error);
}

static bool is_head(const std::string& local)
{
    std::error_code error;
    const std::string real = fs::weakly_canonical(local, error).string();
    return std::any_of(std::begin(heads), std::end(heads), [&](const std::string& head) {
        return real == dr.root + head || real == dr.root + head + "/";
    });
}

std::string Drive_RemoveFolder(const std::string& local)
{
    const std::string folder = local.back() == '/' ? local.substr(0, local.size() - 1) : local;
    if (!Drive_IsFolder(folder) || is_head(folder) || folder == dr.root + STICK)
        return "NG(Directory Not Exist)";
    std::error_code error;
    fs::remove_all(folder, error);
    return told(error);
}

std::string Drive_Move(const std::string& from, const std::string& to)
{
    if (!Drive_IsFile(from) && !Drive_IsFolder(from))
        return NO_FILE;
    const std::string parents = Drive_MakeParents(to);
    if (!parents.empty())
        return parents;
    std::error_code error;
    fs::rename(from, to, error);
    if (error.value() != EXDEV)
        return told(error);
    error.clear();
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing, error);
    if (!error)
        fs::remove_all(from, error);
    return told(error);
}

std::string Drive_Write(const std::string& local, const std::string& bytes)
{
    const std::string parents = Drive_MakeParents(local);
    if (!parents.empty())
        return parents;
    if (!Drive_TakeRoom(int64_t(bytes.size())))
        return NO_ROOM;
    const std::string beside = local + ".part";
    std::ofstream out(beside, std::ios::binary);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    out.close();
    std::error_code error;
    if (!out)
        error = std::make_error_code(std::errc::io_error);
    else
        fs::rename(beside, local, error);
    if (error)
        unlink(beside.c_str());
    return told(error);
}

bool Drive_Read(const std::string& local, std::string* bytes)
{
    std::ifstream in(local, std::ios::binary);
    if (!in || !Drive_IsFile(local))
        return false;
    bytes->assign(std::istreambuf_iterator<char>(in), {});
    return true;
}

// It would break the row; a "#" behind the first one of a line does not.
static bool has_comma(const std::string& name)
{
    return name.find(',') != std::string::npos;
}

// A panel's mark of a protected folder, and a stick that is out. Other names may begin with a dot:
// a register without a name.
static bool is_hidden(const std::string& name)
{
    return name == ".dirprotect" || name == ".out";
}

static void list_folder(const std::string& path, const std::string& local, int depth,
                        std::vector<Entry>* entries)
{
    std::error_code error;
    for (fs::directory_iterator at(local, error), end; !error && at != end; at.increment(error)) {
        const std::string name = at->path().filename().string();
        if (is_hidden(name) || has_comma(name) || entries->size() >= DRIVE_ENTRIES)
            continue;
        struct stat status = {};
        if (lstat(at->path().c_str(), &status) != 0 ||
            (!S_ISDIR(status.st_mode) && !S_ISREG(status.st_mode)))
            continue; // links lead anywhere
        const std::string below = path + (path.back() == '/' ? "" : "/") + name;
        const bool is_folder = S_ISDIR(status.st_mode);
        entries->push_back({below, at->path().string(), is_folder, int64_t(status.st_size),
                            int64_t(status.st_mtime)});
        if (is_folder && depth > 0)
            list_folder(below, at->path().string(), depth - 1, entries);
    }
}

std::vector<Entry> Drive_List(const Place& folder, int depth)
{
    std::vector<Entry> entries;
    if (!folder.local.empty())
        list_folder(folder.path, folder.local, depth, &entries);
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.path < b.path; });
    return entries;
}

// --- The room and the stick ---

void Drive_SetRoom(int64_t bytes)
{
    dr.room = bytes;
}

int64_t Drive_Room()
{
    return dr.room;
}

bool Drive_TakeRoom(int64_t bytes)
{
    if (dr.room < 0)
        return true;
    if (bytes > dr.room)
        return false;
    dr.room -= bytes;
    return true;
}

bool Drive_HasStick()
{
    return Drive_IsFolder(dr.root + STICK);
}

bool Drive_PutStick(bool is_in)
{
    if (is_in == Drive_HasStick())
        return true;
    std::error_code error;
    const std::string stick = dr.root + STICK, out = dr.root + STICK_OUT;
    if (!is_in)
        fs::rename(stick, out, error);
    else if (Drive_IsFolder(out))
        fs::rename(out, stick, error);
    else
        fs::create_directories(stick, error);
    return !error;
}
