#include "clip_store.h"
#include "clip_output.h"
#include "drive.h"
#include "frame_file.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <set>

namespace
{
enum Table { TABLE_INFO, TABLE_FOLDER, TABLE_FILE, TABLES };

struct Clip {
    int frames = 1;
    bool is_pair = false;
    int format = 3;
    std::string time;
    int status = CLIP_ON_STORAGE;
};
struct Store {
    std::set<std::string> folders = {};
    std::map<std::string, Clip> clips = {};
    std::set<int> listeners[TABLES] = {};
};
// A request and its words: paths or numbers, as they came and cleaned.
struct Request {
    int client = 0;
    int unit = 1;
    Table table = TABLE_FILE;
    std::string verb;
    std::string text; // behind the verb
    std::string path, path2;
    int percent = 0; // of 127
    int fault = -1;  // how it ends against its will; 0 without a word
    int64_t due_ms = 0;
};
} // namespace

static constexpr const char* table_names[TABLES] = {"ClipStoreInfo", "ClipStoreFolder",
                                                    "ClipStoreFile"};
static constexpr int STORAGE_FRAMES = 200000;
static constexpr int STEP_MS = 80; // of a request
static constexpr int STEP_PERCENT = 32;
static constexpr size_t NAME_BYTES = 32, FOLDER_BYTES = 16;
static constexpr int DEPTH = 4;
static constexpr int FRAMES_MAX = 5000; // files of one clip

static struct {
    Store store[CLIP_STORES];
    std::vector<Request> requests;
    bool is_away = false;
    int memory = 3000; // frames
    double slow = 1;
    int faults = 0; // requests that are still to fail
    int fault = CLIP_REFUSED;
} cs;

static Store& store_of(int unit)
{
    return cs.store[unit - 1];
}

// --- Paths ---

std::string ClipStore_Path(const std::string& path)
{
    std::string clean = path;
    if (Text_Begins(clean, "/"))
        clean.erase(0, 1);
    if (Text_Begins(clean, "root/"))
        clean.erase(0, 5);
    if (clean.size() > 4 && clean.compare(clean.size() - 4, 4, ".SFH") == 0)
        clean.resize(clean.size() - 4);
    return clean;
}

static std::string parent_of(const std::string& path)
{
    const size_t slash = path.rfind('/');
    return slash == path.npos ? "" : path.substr(0, slash);
}

static bool is_sound(const std::string& path, bool is_folder)
{
    const auto words = Text_Split(path, '/');
    const size_t above = words.size() - 1;
    if (above > size_t(is_folder ? DEPTH - 1 : DEPTH))
        return false;
    for (size_t i = 0; i < words.size(); ++i) {
        const size_t most = i < above || is_folder ? FOLDER_BYTES : NAME_BYTES;
        if (words[i].empty() || words[i].size() > most || words[i] == "." || words[i] == ".." ||
            words[i].find_first_of(":,#*?\"<>|") != std::string::npos)
            return false;
    }
    return true;
}

static bool has_place(const Store& store, const std::string& path, bool is_folder)
{
    const std::string parent = parent_of(path);
    return is_sound(path, is_folder) && (parent.empty() || store.folders.count(parent));
}

static bool lies_in(const std::string& path, const std::string& folder)
{
    return Text_Begins(path, folder + "/");
}

// --- Files ---

static std::string local(int unit, const std::string& path)
{
    return Drive_UnitFolder(HOST_SWR, unit) + Text_Format("/vorn/FM/%d/", unit) + path;
}

static std::string file_of(int unit, const std::string& path)
{
    return local(unit, path + ".SFH");
}

static std::string thumbnail_of(int unit, const std::string& path, int frames, int frame)
{
    return file_of(unit, path) + (frames > 1 ? Text_Format("#%06d", frame) : "") + ".THM";
}

static void note(const std::string& error)
{
    if (!error.empty())
        Log_Note("clip store: %s", error.c_str());
}

// A bar moves over the picture, from frame to frame.
static std::string draw_thumbnail(const Picture& still, int frame, int frames)
{
    Picture picture = still;
    const int at = frames > 1 ? frame * (picture.width - 4) / (frames - 1) : -4;
    for (int y = 0; y < picture.height && at >= 0; ++y)
        std::fill_n(picture.pixels.begin() + y * picture.width + at, 4, 0xFFFFFFFF);
    std::string bytes;
    if (!Picture_Write("BMP", picture, &bytes))
        Log_Note("clip store: no thumbnail");
    return bytes;
}

static void draw(int unit, const std::string& path, int frames)
{
    const std::string name = Drive_FileName(path);
    if (!Drive_IsFile(file_of(unit, path))) {
        FrameFile frame;
        frame.picture = Picture_Draw(name, FRAME_WIDTH, FRAME_HEIGHT);
        note(Drive_Write(file_of(unit, path), FrameFile_Write(frame)));
    }
    const bool is_still = frames == 1;
    const Picture small = Picture_Draw(name, is_still ? 112 : 64, is_still ? 63 : 36);
    for (int i = 0; i < frames; ++i)
        note(Drive_Write(thumbnail_of(unit, path, frames, i), draw_thumbnail(small, i, frames)));
}

// Each file of a clip, its picture first.
template <typename Each>
static void for_each_file(int unit, const std::string& path, int frames, Each each)
{
    each(file_of(unit, path));
    for (int i = 0; i < frames; ++i)
        each(thumbnail_of(unit, path, frames, i));
}

static void remove_files(int unit, const std::string& path, int frames)
{
    for_each_file(unit, path, frames, [](const std::string& file) { note(Drive_Remove(file)); });
}

static void copy_files(int unit, const std::string& from, const std::string& to, int frames)
{
    std::string bytes;
    const std::string head = file_of(unit, from);
    for_each_file(unit, from, frames, [&](const std::string& file) {
        if (Drive_Read(file, &bytes))
            note(Drive_Write(file_of(unit, to) + file.substr(head.size()), bytes));
    });
}

// --- Rows ---

static void tell(int unit, Table table, const std::string& verb, const std::string& row,
                 int also_client = 0)
{
    if (cs.is_away)
        return;
    std::set<int> clients = store_of(unit).listeners[table];
    if (also_client)
        clients.insert(also_client);
    const std::string line =
        verb + "#" + Text_Format("CS%d.%s", unit, table_names[table]) + (row.empty() ? "" : ":");
    for (const int client : clients)
        Link_SendLine(client, line + row);
}

static std::string file_row(const std::string& path, const Clip& clip)
{
    return "root/" + path + ".SFH:" +
           Text_Format("%d, %d, 0, %d, %s, %d, 1", clip.frames, int(clip.is_pair), clip.format,
                       clip.time.c_str(), clip.status);
}

static std::string capacity_row(const Store& store)
{
    int stored = 0, loaded = 0;
    for (const auto& [path, clip] : store.clips) {
        stored += clip.status & CLIP_ON_STORAGE ? clip.frames : 0;
        loaded += clip.status & CLIP_IN_MEMORY ? clip.frames : 0;
    }
    return Text_Format("CAPACITY::%d,%d,%d,%d,7f", STORAGE_FRAMES,
                       std::max(STORAGE_FRAMES - stored, 0), cs.memory,
                       std::max(cs.memory - loaded, 0));
}

static int memory_left(const Store& store)
{
    int left = cs.memory;
    for (const auto& [path, clip] : store.clips)
        left -= clip.status & CLIP_IN_MEMORY ? clip.frames : 0;
    return left;
}

static void tell_capacity(int unit, int client = 0)
{
    tell(unit, TABLE_INFO, "Notify", capacity_row(store_of(unit)), client);
}

static std::string now_text()
{
    const time_t now = time(nullptr);
    tm parts = {};
    char text[32] = "";
    if (localtime_r(&now, &parts))
        (void)strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
    return text;
}

// --- Changing ---

static void add_folder(int unit, const std::string& path)
{
    note(Drive_MakeFolder(local(unit, path)));
    if (store_of(unit).folders.insert(path).second)
        tell(unit, TABLE_FOLDER, "Insert", "root/" + path + ":1");
}

static void drop_clip(int unit, const std::string& path)
{
    const auto found = store_of(unit).clips.find(path);
    if (found == store_of(unit).clips.end())
        return;
    remove_files(unit, path, found->second.frames);
    store_of(unit).clips.erase(found);
    tell(unit, TABLE_FILE, "Delete", "root/" + path + ".SFH");
}

// Its files are there.
static void add_clip(int unit, const std::string& path, const Clip& clip)
{
    store_of(unit).clips[path] = clip;
    tell(unit, TABLE_FILE, "Insert", file_row(path, clip));
}

static void set_status(int unit, const std::string& path, int status)
{
    Clip& clip = store_of(unit).clips.at(path);
    clip.status = status;
    if (status == 0)
        drop_clip(unit, path);
    else
        tell(unit, TABLE_FILE, "Notify", "root/" + path + Text_Format(".SFH:status:%d", status));
}

static void set_pair(int unit, const std::string& path, bool is_pair)
{
    store_of(unit).clips.at(path).is_pair = is_pair;
    tell(unit, TABLE_FILE, "Notify",
         "root/" + path + Text_Format(".SFH:pairfile:%d", int(is_pair)));
}

bool ClipStore_Make(int unit, const std::string& name, int frames)
{
    const std::string path = ClipStore_Path(name);
    if (unit < 1 || unit > CLIP_STORES || frames < 1 || frames > FRAMES_MAX ||
        !is_sound(path, false))
        return false;
    for (size_t slash = path.find('/'); slash != path.npos; slash = path.find('/', slash + 1))
        add_folder(unit, path.substr(0, slash));
    drop_clip(unit, path);
    draw(unit, path, frames);
    add_clip(unit, path, {frames, false, 3, now_text(), CLIP_ON_STORAGE});
    tell_capacity(unit);
    return true;
}

void ClipStore_Taken(int unit, const std::string& path)
{
    if (!ClipStore_Make(unit, path, 1))
        Log_Note("clip store: no such clip can be: %s", Text_Escape(path, 100).c_str());
}

int ClipStore_Frames(int unit, const std::string& path)
{
    const auto& clips = store_of(unit).clips;
    const auto found = clips.find(ClipStore_Path(path));
    return found == clips.end() ? 0 : found->second.frames;
}

void ClipStore_Lay()
{
    static const struct {
        int unit;
        const char* path;
        int frames;
    } clips[] = {
        {1, "STATION", 1},
        {1, "BREAK", 75},
        {1, "LOGOS/BUG", 1},
        {1, "LOGOS/SPONSOR", 50},
        {1, "NEWS/OPENING", 100},
        {1, "NEWS/SPORT/TITLE", 60},
        {1, "NEWS/SPORT/GOALS/GOAL1", 40},
        {1, "NEWS/SPORT/GOALS/FIRST/SLOW", 30},
        {2, "CLOSING", 50},
        {2, "MAPS/EUROPE", 1},
    };
    for (const auto& c : clips)
        (void)ClipStore_Make(c.unit, c.path, c.frames);
}

// --- What is asked for; each returns how it ended ---

static int do_register(const Request& r)
{
    const Clip& clip = store_of(r.unit).clips.at(r.path);
    if (!(clip.status & CLIP_IN_MEMORY) && clip.frames > memory_left(store_of(r.unit)))
        return CLIP_MEMORY_FULL;
    set_status(r.unit, r.path, clip.status | CLIP_IN_MEMORY);
    return CLIP_DONE;
}

static int do_unregister(const Request& r)
{
    set_status(r.unit, r.path, store_of(r.unit).clips.at(r.path).status & ~CLIP_IN_MEMORY);
    return CLIP_DONE;
}

static int do_store(const Request& r)
{
    set_status(r.unit, r.path, store_of(r.unit).clips.at(r.path).status | CLIP_ON_STORAGE);
    return CLIP_DONE;
}

static int do_delete(const Request& r)
{
    drop_clip(r.unit, r.path);
    return CLIP_DONE;
}

// The second becomes the key of the first.
static int do_couple(const Request& r)
{
    if (r.path == r.path2 || !store_of(r.unit).clips.count(r.path2))
        return CLIP_NOT_THERE;
    set_pair(r.unit, r.path, true);
    drop_clip(r.unit, r.path2);
    return CLIP_DONE;
}

// The key becomes a clip of its own.
static int do_separate(const Request& r)
{
    const std::string key = r.path + "_K";
    Clip clip = store_of(r.unit).clips.at(r.path);
    if (!clip.is_pair || !is_sound(key, false))
        return CLIP_REFUSED;
    if (store_of(r.unit).clips.count(key))
        return CLIP_EXISTS;
    copy_files(r.unit, r.path, key, clip.frames);
    set_pair(r.unit, r.path, false);
    clip.is_pair = false;
    add_clip(r.unit, key, clip);
    return CLIP_DONE;
}

static int do_copy(const Request& r)
{
    const Clip clip = store_of(r.unit).clips.at(r.path);
    if (r.path == r.path2 || !has_place(store_of(r.unit), r.path2, false))
        return CLIP_REFUSED;
    drop_clip(r.unit, r.path2);
    copy_files(r.unit, r.path, r.path2, clip.frames);
    add_clip(r.unit, r.path2, clip);
    return CLIP_DONE;
}

static int move_folder(const Request& r)
{
    const Store before = store_of(r.unit);
    const bool is_inside = r.path == r.path2 || lies_in(r.path2, r.path);
    if (is_inside || !has_place(before, r.path2, true))
        return CLIP_REFUSED;
    if (before.folders.count(r.path2))
        return CLIP_EXISTS;
    const auto moved = [&](const std::string& path) {
        return r.path2 + path.substr(r.path.size());
    };
    for (const std::string& folder : before.folders)
        if (lies_in(folder, r.path) && !is_sound(moved(folder), true))
            return CLIP_REFUSED;
    for (const std::string& folder : before.folders)
        if (folder == r.path || lies_in(folder, r.path))
            add_folder(r.unit, moved(folder));
    for (const auto& [path, clip] : before.clips)
        if (lies_in(path, r.path)) {
            copy_files(r.unit, path, moved(path), clip.frames);
            add_clip(r.unit, moved(path), clip);
            drop_clip(r.unit, path);
        }
    for (auto f = before.folders.rbegin(); f != before.folders.rend(); ++f)
        if (*f == r.path || lies_in(*f, r.path)) {
            store_of(r.unit).folders.erase(*f);
            tell(r.unit, TABLE_FOLDER, "Delete", "root/" + *f);
        }
    note(Drive_RemoveFolder(local(r.unit, r.path)));
    return CLIP_DONE;
}

static int do_move(const Request& r)
{
    if (!store_of(r.unit).clips.count(r.path))
        return store_of(r.unit).folders.count(r.path) ? move_folder(r) : CLIP_NOT_THERE;
    const int result = do_copy(r);
    if (result == CLIP_DONE)
        drop_clip(r.unit, r.path);
    return result;
}

static int do_make_folder(const Request& r)
{
    if (store_of(r.unit).folders.count(r.path))
        return CLIP_EXISTS;
    if (!has_place(store_of(r.unit), r.path, true))
        return CLIP_REFUSED;
    add_folder(r.unit, r.path);
    return CLIP_DONE;
}

static int do_delete_folder(const Request& r)
{
    Store& store = store_of(r.unit);
    if (!store.folders.count(r.path))
        return CLIP_NOT_THERE;
    for (const auto& [path, clip] : store.clips)
        if (lies_in(path, r.path))
            return CLIP_REFUSED;
    for (const std::string& folder : store.folders)
        if (lies_in(folder, r.path))
            return CLIP_REFUSED;
    store.folders.erase(r.path);
    note(Drive_RemoveFolder(local(r.unit, r.path)));
    tell(r.unit, TABLE_FOLDER, "Delete", "root/" + r.path);
    return CLIP_DONE;
}

// "PATH FIRST LAST" keeps these frames. The panels learn the new length from the result.
static int do_trim(const Request& r)
{
    Clip& clip = store_of(r.unit).clips.at(r.path);
    long first = 0, last = 0;
    const auto words = Text_Split(r.path2, ' ');
    if (words.size() != 2 || !Text_ToInt(words[0], &first) || !Text_ToInt(words[1], &last) ||
        first < 0 || first > last || last >= clip.frames)
        return CLIP_REFUSED;
    const int total = int(last - first + 1);
    for (int i = 0; i < clip.frames; ++i) {
        const std::string from = thumbnail_of(r.unit, r.path, clip.frames, i);
        note(i < first || i > last
                 ? Drive_Remove(from)
                 : Drive_Move(from, thumbnail_of(r.unit, r.path, total, int(i - first)) + "~"));
    }
    for (int i = 0; i < total; ++i) {
        const std::string to = thumbnail_of(r.unit, r.path, total, i);
        note(Drive_Move(to + "~", to));
    }
    clip.frames = total;
    ClipOutput_Renewed(r.path);
    return CLIP_DONE;
}

namespace
{
struct Verb {
    const char* word = "";
    Table table = TABLE_FILE;
    bool needs_clip = true;
    bool has_two = false; // paths
    int (*run)(const Request& r) = nullptr;
};
} // namespace

static constexpr Verb verbs[] = {
    {"Register", TABLE_FILE, true, false, do_register},
    {"UnRegister", TABLE_FILE, true, false, do_unregister},
    {"Couple", TABLE_FILE, true, true, do_couple},
    {"Separate", TABLE_FILE, true, false, do_separate},
    {"Trim", TABLE_FILE, true, true, do_trim},
    {"Copy", TABLE_FILE, true, true, do_copy},
    {"Move", TABLE_FILE, false, true, do_move},
    {"Delete", TABLE_FILE, true, false, do_delete},
    {"Store", TABLE_FILE, true, false, do_store},
    {"MakeFolder", TABLE_FOLDER, false, false, do_make_folder},
    {"DeleteFolder", TABLE_FOLDER, false, false, do_delete_folder},
};

static const Verb* verb_of(const std::string& word, Table table)
{
    for (const Verb& verb : verbs)
        if (word == verb.word && (table == verb.table || word == "Move"))
            return &verb;
    return nullptr;
}

// --- Requests on their way ---

static int64_t step_due(int64_t now)
{
    return now + int64_t(STEP_MS * cs.slow);
}

// Blanks may stand in a path: the first one ends at its ending, where it has one.
static void split_paths(Request* r, bool has_two)
{
    const std::string mark = ".SFH ";
    const size_t end = r->text.find(mark);
    const size_t at = end != r->text.npos ? end + mark.size() - 1 : r->text.find(' ');
    if (!has_two || at == r->text.npos) {
        r->path = ClipStore_Path(r->text);
        return;
    }
    r->path = ClipStore_Path(r->text.substr(0, at));
    const std::string rest = r->text.substr(at + 1);
    r->path2 = r->verb == "Trim" ? rest : ClipStore_Path(rest);
}

static void take_request(int client, int unit, Table table, const std::string& rest)
{
    const size_t blank = rest.find(' ');
    Request r = {};
    r.client = client;
    r.unit = unit;
    r.table = table;
    r.verb = rest.substr(0, blank);
    const Verb* const verb = verb_of(r.verb, table);
    if (!verb || blank == rest.npos)
        return Log_Note("clip store: not a request: %s", Text_Escape(rest, 100).c_str());
    r.text = rest.substr(blank + 1);
    split_paths(&r, verb->has_two);
    if (cs.faults > 0) {
        --cs.faults;
        r.fault = cs.fault;
    }
    r.due_ms = step_due(Now_Ms());
    cs.requests.push_back(r);
}

static void answer(const Request& r, int result)
{
    const bool is_trimmed = r.verb == "Trim" && result == CLIP_DONE;
    const std::string total =
        is_trimmed ? Text_Format(" %d", ClipStore_Frames(r.unit, r.path)) : "";
    tell(r.unit, r.table, "Result",
         r.verb + " " + (is_trimmed ? "root/" + r.path + ".SFH " + r.path2 : r.text) + total +
             Text_Format(":%02X", unsigned(result)),
         r.client);
}

static int run(const Request& r)
{
    const Verb& verb = *verb_of(r.verb, r.table);
    if (r.fault > 0)
        return r.fault;
    if (verb.needs_clip && !store_of(r.unit).clips.count(r.path))
        return CLIP_NOT_THERE;
    const int result = verb.run(r);
    tell_capacity(r.unit);
    return result;
}

// True when it has ended.
static bool advance(Request& r, int64_t now)
{
    r.percent += STEP_PERCENT;
    r.due_ms = step_due(now);
    if (r.fault == 0 && r.percent > STEP_PERCENT * 2)
        return true; // lost
    if (r.percent < CLIP_DONE) {
        answer(r, r.percent);
        return false;
    }
    answer(r, run(r));
    return true;
}

// The store works at one thing at a time.
int64_t ClipStore_Tick(int64_t now)
{
    while (!cs.requests.empty() && cs.requests.front().due_ms <= now) {
        if (!advance(cs.requests.front(), now))
            continue;
        cs.requests.erase(cs.requests.begin());
        if (!cs.requests.empty())
            cs.requests.front().due_ms = step_due(now);
    }
    return cs.requests.empty() ? INT64_MAX : cs.requests.front().due_ms;
}

// --- Lines ---

static std::string ready_line(const char* verb, int unit, int table)
{
    return Text_Format("%s#CS%d.%s", verb, unit, table_names[table]);
}

static void read_all(int client, int unit, Table table)
{
    const std::string head = ready_line("Insert", unit, table) + ":";
    if (table == TABLE_FOLDER)
        for (const std::string& folder : store_of(unit).folders)
            Link_SendLine(client, head + "root/" + folder + ":1");
    if (table == TABLE_FILE)
        for (const auto& [path, clip] : store_of(unit).clips)
            Link_SendLine(client, head + file_row(path, clip));
}

bool ClipStore_Line(int client, int unit, const std::string& verb, const std::string& table,
                    const std::string& rest)
{
    const auto* const found = std::find(table_names, table_names + TABLES, table);
    if (unit < 1 || unit > CLIP_STORES || found == table_names + TABLES)
        return false;
    const auto t = Table(found - table_names);
    std::set<int>& listeners = store_of(unit).listeners[t];
    if (verb == "Listen") {
        listeners.insert(client);
        if (!cs.is_away)
            Link_SendLine(client, ready_line("Ready", unit, t));
    } else if (verb == "Unlisten") {
        listeners.erase(client);
    } else if (cs.is_away) {
        Log_Note("clip store: away: %s", verb.c_str());
    } else if (verb == "InitRead") {
        read_all(client, unit, t);
    } else if (verb == "Read" && t == TABLE_INFO && Text_Begins(rest, "CAPACITY:")) {
        Link_SendLine(client, ready_line("Notify", unit, t) + ":" + capacity_row(store_of(unit)));
    } else if (verb == "Execute") {
        take_request(client, unit, t, rest);
    } else {
        Log_Note("clip store: not understood: %s %s", verb.c_str(), Text_Escape(rest, 80).c_str());
    }
    return true;
}

void ClipStore_ForgetClient(int client)
{
    for (Store& store : cs.store)
        for (std::set<int>& listeners : store.listeners)
            listeners.erase(client);
    for (Request& r : cs.requests)
        if (r.client == client)
            r.client = 0;
}

// --- The console ---

void ClipStore_SetReady(bool is_ready)
{
    cs.is_away = false;
    for (int unit = 1; unit <= CLIP_STORES; ++unit)
        for (int table = 0; table < TABLES; ++table)
            tell(unit, Table(table), is_ready ? "Ready" : "Disconnect", "");
    cs.is_away = !is_ready;
    if (cs.is_away)
        cs.requests.clear();
}

void ClipStore_SetMemory(int frames)
{
    cs.memory = frames;
    for (int unit = 1; unit <= CLIP_STORES; ++unit)
        tell_capacity(unit);
}

void ClipStore_SetSlow(double factor)
{
    cs.slow = factor;
}

void ClipStore_FailNext(int requests, int result)
{
    cs.faults = requests;
    cs.fault = result;
}
