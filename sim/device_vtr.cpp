#include "device_vtr.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <vector>

namespace
{
struct Machine {
    double frame = 0;
    double speed = 0;     // of play
    int target = 0;       // that it cues to
    int64_t cued_ms = -1; // when it is there; -1: it isn't on its way
};
struct File {
    const char* name;
    int seconds;
};
// A word of the transport, and how fast it moves; 0: by a value of the machine.
struct Transport {
    const char* word;
    double speed;
};
} // namespace

static constexpr int MACHINES = 12, DISKS = 4, VTRS = 8; // the rest: extended VTRs
static constexpr int64_t TICK_MS = 100;
static constexpr int64_t CUE_TAPE_MS = 1500, CUE_DISK_MS = 300;
static constexpr int TAPE_SECONDS = 2 * 60 * 60;
static const std::string HEAD = "Device@DDR/VTR@";

static constexpr File files[] = {
    {"OPENING", 20},      {"BREAK BUMPER", 4}, {"HIGHLIGHTS 1", 95}, {"HIGHLIGHTS 2", 128},
    {"WEATHER LOOP", 30}, {"SPONSOR A", 15},   {"SPONSOR B", 15},    {"INTERVIEW", 240},
    {"STADIUM", 60},      {"CREDITS", 45},
};
static constexpr Transport transports[] = {
    {"Stop", 0},     {"Play", 1},    {"Record", 1}, {"Rewind", -20}, {"F Fwd", 20},
    {"Variable", 0}, {"Shuttle", 0}, {"Jog", 0},    {"Cue Up", 0},   {"Recue", 0},
};
// Values that are put as time code texts and told as frames.
static constexpr const char* points[] = {"Start TC", "Stop TC",           "Recue TC",
                                         "Position", "Timeline@Start TC", "Timeline@Stop TC"};

static struct {
    Machine machine[MACHINES];
    int64_t last_ms = 0; // of the tick before; 0: nothing moves
} dv;

// --- Values ---

static std::string path_of(int n, const std::string& what)
{
    return HEAD + Text_Format("Dev%d@", n + 1) + what;
}

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node ? node->value : "";
}

static double number_of(int n, const char* what)
{
    double number = 0;
    (void)Text_ToNumber(value_of(path_of(n, what)), &number);
    return number;
}

static std::string timecode(int frames)
{
    const int rate = System_FrameRate(), seconds = frames / rate;
    return Text_Format("%02d:%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60,
                       frames % rate);
}

// A text of one to four fields; -1 when it is none.
static int frames_of(const std::string& text)
{
    int parts[4] = {};
    const auto fields = Text_Split(text, ':');
    if (fields.size() > 4)
        return -1;
    for (size_t i = 0; i < fields.size(); ++i) {
        long number = 0;
        if (!Text_ToInt(fields[i], &number) || number < 0 || number > 9999999)
            return -1;
        parts[4 - fields.size() + i] = int(number);
    }
    const int64_t rate = System_FrameRate();
    const int64_t frames = ((int64_t(parts[0]) * 60 + parts[1]) * 60 + parts[2]) * rate + parts[3];
    return int(std::min<int64_t>(frames, 24 * 60 * 60 * rate - 1));
}

static int point_of(int n, const char* what)
{
    return std::max(frames_of(value_of(path_of(n, what))), 0);
}

static int length_of(int n)
{
    const std::string file = value_of(path_of(n, "File"));
    for (const File& f : files)
        if (file == f.name)
            return f.seconds * System_FrameRate();
    return TAPE_SECONDS * System_FrameRate();
}

static int machine_of(const std::string& name)
{
    long number = 0;
    const bool is_one = Text_Begins(name, "Dev") && Text_ToInt(name.substr(3), &number);
    return is_one && number >= 1 && number <= MACHINES ? int(number) - 1 : -1;
}

static void show_place(int n)
{
    const std::string text = timecode(int(dv.machine[n].frame));
    if (value_of(HEAD + "Cueup&Play@Tally Back") == "true")
        Tree_Show(path_of(n, "Time Code"), text);
    else if (Node* node = Tree_Get(path_of(n, "Time Code")))
        node->value = text;
    Tree_Show(path_of(n, "Position"), std::to_string(int(dv.machine[n].frame)));
}

static void show_state(int n, const std::string& word)
{
    Tree_Show(path_of(n, "Transport"), word);
}

// --- Transport ---

static bool is_ours(int n)
{
    return value_of(path_of(n, "Control")) == "Remote";
}

static void cue(int n, int frame)
{
    Machine& m = dv.machine[n];
    const bool is_disk = value_of(path_of(n, "Type")) == "DDR";
    m.speed = 0;
    m.target = std::clamp(frame, 0, length_of(n) - 1);
    m.cued_ms = Now_Ms() + (is_disk ? CUE_DISK_MS : CUE_TAPE_MS);
    show_state(n, "Cueing");
}

static double speed_of(int n, const Transport& t)
{
    const std::string word = t.word;
    return word == "Variable"  ? number_of(n, "Speed") / 100
           : word == "Shuttle" ? number_of(n, "Shuttle")
                               : t.speed;
}

static void move(int n, const std::string& word)
{
    for (const Transport& t : transports) {
        if (word != t.word)
            continue;
        if (word == "Cue Up" || word == "Recue")
            return cue(n, point_of(n, word == "Recue" ? "Recue TC" : "Start TC"));
        if (word == "Play")
            Tree_Show(path_of(n, "Recue TC"), std::to_string(int(dv.machine[n].frame)));
        dv.machine[n].cued_ms = -1;
        dv.machine[n].speed = speed_of(n, t);
        return show_state(n, word);
    }
}

static void stop(int n, int frame)
{
    dv.machine[n].frame = frame;
    dv.machine[n].speed = 0;
    show_place(n);
    show_state(n, "Stop");
}

static void advance(int n, int64_t now, int64_t elapsed_ms)
{
    Machine& m = dv.machine[n];
    if (m.cued_ms >= 0 && now >= m.cued_ms) {
        m.cued_ms = -1;
        m.frame = m.target;
        show_place(n);
        show_state(n, "Cue Up");
    }
    if (m.speed == 0)
        return;
    const int before = int(m.frame), start = point_of(n, "Start TC"),
              point = point_of(n, "Stop TC"), last = length_of(n) - 1;
    m.frame += m.speed * double(elapsed_ms) * System_FrameRate() / 1000;
    const bool is_playing = value_of(path_of(n, "Transport")) == "Play";
    const bool ends_at_point = is_playing && point > start && before < point && m.frame >= point;
    if (ends_at_point && value_of(path_of(n, "Loop")) == "true")
        m.frame = start;
    else if (ends_at_point)
        return stop(n, point);
    if (m.frame < 0 || m.frame > last)
        return stop(n, m.frame < 0 ? 0 : last);
    show_place(n);
}

int64_t DeviceVtr_Tick(int64_t now)
{
    const bool is_busy =
        std::any_of(std::begin(dv.machine), std::end(dv.machine),
                    [](const Machine& m) { return m.speed != 0 || m.cued_ms >= 0; });
    if (!is_busy) {
        dv.last_ms = 0;
        return INT64_MAX;
    }
    if (dv.last_ms == 0)
        dv.last_ms = now;
    if (now - dv.last_ms >= TICK_MS) {
        for (int n = 0; n < MACHINES; ++n)
            advance(n, now, now - dv.last_ms);
        dv.last_ms = now;
    }
    return dv.last_ms + TICK_MS;
}

// --- Files ---

static void list_files(const std::string& device)
{
    const int n = machine_of(device);
    const Node* const node = Tree_Get(HEAD + "File List");
    if (!node || n < 0)
        return;
    Tree_Tell(*node, "KILL", 0);
    if (value_of(path_of(n, "Type")) != "DDR")
        return;
    int row = 0;
    for (const File& f : files)
        Tree_Tell(*node,
                  Text_Format("%s,%d,%s,%s", device.c_str(), ++row, f.name,
                              timecode(f.seconds * System_FrameRate()).c_str()),
                  0);
}

static void load(int n, const std::string& file)
{
    const bool is_there = std::any_of(std::begin(files), std::end(files),
                                      [&](const File& f) { return file == f.name; });
    if (value_of(path_of(n, "Type")) != "DDR" || (!file.empty() && !is_there))
        return;
    Tree_Show(path_of(n, "File"), file);
    Tree_Show(path_of(n, "Start TC"), "0");
    Tree_Show(path_of(n, "Stop TC"), std::to_string(file.empty() ? 0 : length_of(n) - 1));
    stop(n, 0);
}

// --- Puts ---

// True when the put is done with; an action goes on to fall back by itself.
static bool put_machine(int n, const std::string& what, const std::string& value)
{
    const bool may_record = value_of(path_of(n, "Rec Enable")) == "true";
    const std::string point = Text_Begins(what, "Timeline@") ? "Timeline@Start TC" : "";
    if (what == "Transport") {
        if (is_ours(n) && (value != "Record" || may_record))
            move(n, value);
    } else if (what == "File")
        load(n, value);
    else if (what == "Eject")
        load(n, "");
    else if (what == "Recue" && is_ours(n))
        move(n, what);
    else if (Text_Matches(what, "*Set ?*") && !point.empty())
        Tree_Show(path_of(n, point), std::to_string(int(dv.machine[n].frame)));
    else if (Text_Begins(what, "Set "))
        Tree_Show(path_of(n, what.substr(4) + " TC"), std::to_string(int(dv.machine[n].frame)));
    else
        return what == "Time Code";
    return what == "Transport" || what == "File";
}

// Where the machine stands can be put while it jogs only.
static bool put_point(int n, const std::string& what, const std::string& value)
{
    const int frames = frames_of(value);
    Machine& m = dv.machine[n];
    if (what == "Position" && frames >= 0 && value_of(path_of(n, "Transport")) == "Jog") {
        m.frame = std::clamp(frames, 0, length_of(n) - 1);
        show_place(n);
    } else if (what != "Position" && frames >= 0) {
        Tree_Show(path_of(n, what), std::to_string(frames));
    }
    return true;
}

static int machine_of_path(const std::string& path)
{
    const auto words = Text_Split(path, '@');
    return words.size() >= 4 && Text_Begins(path, HEAD) ? machine_of(words[2]) : -1;
}

bool DeviceVtr_Put(const std::string& path, const std::string& value)
{
    if (path == HEAD + "File List") {
        list_files(value);
        return true;
    }
    const int n = machine_of_path(path);
    if (n < 0)
        return false;
    const std::string what = path.substr(path_of(n, "").size());
    for (const char* p : points)
        if (what == p)
            return put_point(n, what, value);
    return put_machine(n, what, value);
}

bool DeviceVtr_Turn(const std::string& path, int detents)
{
    const int n = machine_of_path(path);
    if (n < 0)
        return false;
    const std::string what = path.substr(path_of(n, "").size());
    for (const char* p : points)
        if (what == p)
            return put_point(n, what, std::to_string(std::max(point_of(n, p) + detents, 0)));
    return false;
}

void DeviceVtr_Follow(const std::string& path)
{
    const int n = machine_of_path(path);
    if (n < 0)
        return;
    const std::string state = value_of(path_of(n, "Transport"));
    if ((path == path_of(n, "Speed") && state == "Variable") ||
        (path == path_of(n, "Shuttle") && state == "Shuttle"))
        move(n, state);
}

bool DeviceVtr_Do(const std::string& device, const std::string& transport)
{
    const int n = machine_of(device);
    return n >= 0 && put_machine(n, "Transport", transport);
}

void DeviceVtr_Load(const std::string& device, const std::string& file)
{
    if (const int n = machine_of(device); n >= 0)
        load(n, file);
}

void DeviceVtr_CueTo(const std::string& device, const std::string& text)
{
    const int n = machine_of(device), frame = frames_of(text);
    if (n >= 0)
        cue(n, !text.empty() && frame >= 0 ? frame : point_of(n, "Start TC"));
}

// --- Timelines ---

// The points of the timeline become those of the device.
void DeviceVtr_RunTimeline(int n)
{
    const std::string action = value_of(path_of(n, "Timeline@Action"));
    if (!is_ours(n) || action == "None")
        return;
    for (const char* point : {"Start TC", "Stop TC"})
        Tree_Show(path_of(n, point), value_of(path_of(n, std::string("Timeline@") + point)));
    if (action == "Play" || action == "Variable") {
        dv.machine[n].frame = std::clamp(point_of(n, "Start TC"), 0, length_of(n) - 1);
        show_place(n);
    }
    if (action == "Variable")
        Tree_Show(path_of(n, "Speed"), value_of(path_of(n, "Timeline@Speed")));
    (void)put_machine(n, "Transport", action);
}

void DeviceVtr_RewindTimeline(int n)
{
    const std::string action = value_of(path_of(n, "Timeline@Rewind Action"));
    if (is_ours(n) && action == "Cue Up")
        cue(n, point_of(n, "Timeline@Start TC"));
    else if (action == "Stop")
        (void)put_machine(n, "Transport", action);
}

void DeviceVtr_Install()
{
    dv = {};
    for (int n = 0; n < MACHINES; ++n) {
        const bool is_disk = n < DISKS;
        Tree_Preset(path_of(n, "Type"), is_disk ? "DDR" : n < VTRS ? "VTR" : "Extended VTR");
        Tree_Preset(path_of(n, "Control"), "Remote");
        Tree_SetKind(path_of(n, "Transport"), KIND_ANY);
        Tree_Preset(path_of(n, "Transport"), "Stop");
        Tree_Preset(path_of(n, "File"), "");
        Tree_Preset(path_of(n, "Preroll"), "150");
        Tree_Preset(path_of(n, "Speed"), "100.00");
        Tree_Preset(path_of(n, "Timeline@Speed"), "100.00");
        Tree_Preset(path_of(n, "Rec Enable"), "false");
        Tree_Preset(path_of(n, "Loop"), "false");
        Tree_Preset(path_of(n, "Edit@Mode"), "Assemble");
        Tree_Preset(path_of(n, "Timeline@Action"), "None");
        Tree_Preset(path_of(n, "Timeline@Rewind Action"), "None");
        Tree_Preset(path_of(n, "Time Code"), timecode(0));
        for (const char* p : points) {
            Tree_SetKind(path_of(n, p), KIND_ANY);
            Tree_Preset(path_of(n, p), "0");
        }
    }
}
