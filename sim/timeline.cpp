#include "timeline.h"
#include "device_bus.h"
#include "device_vtr.h"
#include "region.h"
#include "stream.h"
#include "system.h"
#include "text.h"
#include "timeline_edit.h"
#include "tree.h"
#include <algorithm>
#include <climits>

static const std::string RUN_CONTROL = "Key Frame@Timeline@";
static const std::string ENABLE = "Key Frame@Region Select@Region Enable@";
static const std::string REFERENCE = "Key Frame@Region Select@Ref Region Set";

static constexpr int FRAMES_BEHIND = 30; // after a stall the cursors skip what is older

static struct {
    Timeline lines[REGION_COUNT];
    int reference = REGION_ME1;
    // The frame clock. It stands while nothing runs.
    bool is_counting = false;
    int64_t start_ms = 0;
    int64_t frames = 0; // since start_ms
} tl;

// --- Effects and cursors ---

int Effect::duration() const
{
    return position(int(keys.size()) + 1);
}

int Effect::position(int key) const
{
    int frames = 0;
    for (int i = 0; i + 1 < key && i < int(keys.size()); ++i)
        frames += keys[size_t(i)].duration;
    return frames;
}

int Timeline::delay() const
{
    return is_delay_on ? effect.delay : 0;
}

int Timeline::key() const
{
    int found = 0;
    int at = delay();
    for (const Keyframe& keyframe : effect.keys) {
        if (at > time)
            break;
        ++found;
        at += keyframe.duration;
    }
    return effect.keys.empty() ? 0 : std::max(found, 1);
}

int Timeline::end() const
{
    return delay() + effect.duration();
}

static bool line_has_loop(const Timeline& line)
{
    const Effect& e = line.effect;
    return line.is_loop_on && e.loop_first >= 1 && e.loop_first < e.loop_last &&
           e.position(e.loop_first) < e.position(e.loop_last);
}

static void line_go_to(Timeline& line, int time)
{
    line.time = time;
    line.loops_left = line.effect.loop_count;
}

// --- What panels see of it ---

static void show_flag(const std::string& path, bool on)
{
    Tree_Show(path, on ? "true" : "false");
}

static bool any_selected_runs(int direction)
{
    return std::any_of(tl.lines, tl.lines + REGION_COUNT, [direction](const Timeline& line) {
        return line.is_selected && line.run == direction;
    });
}

static void show_run_control()
{
    const Timeline& reference = tl.lines[tl.reference];
    show_flag(RUN_CONTROL + "Run", any_selected_runs(1));
    show_flag(RUN_CONTROL + "Reverse", any_selected_runs(-1));
    show_flag(RUN_CONTROL + "Loop", reference.is_loop_on);
    show_flag(RUN_CONTROL + "Ping-Pong", reference.is_ping_pong);
    show_flag(RUN_CONTROL + "Delay", reference.is_delay_on);
}

static void show_selection()
{
    for (int i = 0; i < REGION_COUNT; ++i)
        show_flag(ENABLE + Regions()[size_t(i)].name, tl.lines[i].is_selected);
    Tree_Show(REFERENCE, Regions()[size_t(tl.reference)].name);
    show_run_control();
}

void Timeline_Install()
{
    tl = {};
    Edit_Forget();
    for (const char* word : {"Run", "Reverse", "Loop", "Ping-Pong", "Delay", "Const Dur"})
        Tree_SetKind(RUN_CONTROL + word, KIND_BOOL);
    for (const char* word :
         {"Stop", "Rewind", "Fast Forward", "Insert", "Modify", "Delete", "Copy", "Paste", "Undo"})
        Tree_SetKind(RUN_CONTROL + word, KIND_ACTION);
    tl.lines[REGION_ME1].is_selected = true;
    tl.lines[REGION_PP].is_selected = true;
    for (Timeline& line : tl.lines)
        line.effect.name = "--------";
    show_selection();
    for (Node* node : Tree_Under("Key Frame"))
        node->initial = node->value;
}

const Timeline& Timeline_Of(int region)
{
    return tl.lines[region];
}

// --- Selection ---

bool Timeline_IsSelected(int region)
{
    return tl.lines[region].is_selected;
}

int Timeline_Reference()
{
    return tl.reference;
}

std::vector<int> Timeline_Selected()
{
    std::vector<int> found;
    for (int i = 0; i < REGION_COUNT; ++i)
        if (tl.lines[i].is_selected)
            found.push_back(i);
    return found;
}

// A DME channel and its common part have one bit between them.
static void line_select(int region, bool on)
{
    const Region& picked = Regions()[size_t(region)];
    for (int i = 0; i < REGION_COUNT; ++i) {
        const Region& other = Regions()[size_t(i)];
        if (other.select_byte == picked.select_byte && other.select_bit == picked.select_bit)
            tl.lines[i].is_selected = on;
    }
}

void Timeline_Select(int region, bool on)
{
    line_select(region, on);
    const auto selected = Timeline_Selected();
    if (!tl.lines[tl.reference].is_selected && !selected.empty())
        tl.reference = selected.front();
    show_selection();
    Stream_Selection();
}

void Timeline_SetReference(int region)
{
    line_select(region, true);
    tl.reference = region;
    show_selection();
    Stream_Selection();
}

// --- Effects ---

void Timeline_Load(int region, int number, const Effect& effect, bool is_locked)
{
    Timeline& line = tl.lines[region];
    line.number = number;
    line.is_locked = is_locked;
    line.effect = effect;
    line.undo = effect;
    line.run = 0;
    line.is_loop_on = effect.loop_first > 0;
    line.is_delay_on = effect.delay > 0;
    line_go_to(line, 0);
    Stream_Effect(region);
    show_run_control();
}

void Timeline_SetHead(int region, int number, const std::string& name, bool is_locked)
{
    Timeline& line = tl.lines[region];
    line.number = number;
    line.effect.name = name;
    line.is_locked = is_locked;
    Stream_Effect(region);
}

// --- Devices follow the effects of their regions ---

static int device_of(const Timeline& line)
{
    const int n = int(&line - tl.lines) - REGION_DEV1;
    return n >= 0 && n < REGION_PBUS - REGION_DEV1 ? n : -1;
}

static void line_starts_devices(const Timeline& line)
{
    if (line.run <= 0 || line.time != line.delay())
        return;
    if (const int n = device_of(line); n >= 0)
        DeviceVtr_RunTimeline(n);
    else if (&line == &tl.lines[REGION_PBUS])
        DeviceBus_RunPbus();
    else if (&line == &tl.lines[REGION_GPI])
        DeviceBus_RunGpi();
}

// --- Run control ---

static void line_run(Timeline& line, int direction)
{
    if (line.end() == 0)
        return;
    if (direction > 0 && line.time >= line.end())
        line_go_to(line, 0);
    else if (direction < 0 && line.time <= 0)
        line_go_to(line, line.end());
    line.run = direction;
    line_starts_devices(line);
}

static void line_run_as_set(Timeline& line, int)
{
    line_run(line, line.is_reversed ? -1 : 1);
    line.is_reversed ^= line.is_normal_reverse;
}

static void line_stop(Timeline& line, int)
{
    line.run = 0;
}

static void line_rewind(Timeline& line, int)
{
    line.run = 0;
    line_go_to(line, 0);
    if (const int n = device_of(line); n >= 0)
        DeviceVtr_RewindTimeline(n);
}

static void line_fast_forward(Timeline& line, int)
{
    line.run = 0;
    line_go_to(line, line.end());
}

static void for_lines(const std::vector<int>& regions, void (*func)(Timeline&, int), int argument)
{
    for (const int region : regions) {
        func(tl.lines[region], argument);
        Stream_Position(region);
    }
    show_run_control();
}

void Timeline_Run(const std::vector<int>& regions, int direction)
{
    for_lines(regions, line_run, direction);
}

void Timeline_RunAsSet(const std::vector<int>& regions)
{
    for_lines(regions, line_run_as_set, 0);
}

void Timeline_SetReversed(const std::vector<int>& regions, bool on)
{
    for (const int region : regions)
        tl.lines[region].is_reversed = on;
}

void Timeline_SetNormalReverse(const std::vector<int>& regions, bool on)
{
    for (const int region : regions)
        tl.lines[region].is_normal_reverse = on;
}

void Timeline_Stop(const std::vector<int>& regions)
{
    for_lines(regions, line_stop, 0);
}

void Timeline_Rewind(const std::vector<int>& regions)
{
    for_lines(regions, line_rewind, 0);
}

void Timeline_FastForward(const std::vector<int>& regions)
{
    for_lines(regions, line_fast_forward, 0);
}

// --- Modes of the selected regions ---

// Without a loop of its own the whole effect is one.
static void line_loop(Timeline& line, int on)
{
    Effect& effect = line.effect;
    line.is_loop_on = on != 0;
    line.loops_left = effect.loop_count;
    if (!on || effect.loop_first > 0 || effect.keys.size() < 2)
        return;
    effect.loop_first = 1;
    effect.loop_last = int(effect.keys.size());
}

static void line_ping_pong(Timeline& line, int on)
{
    line.is_ping_pong = on != 0;
}

static void line_delay(Timeline& line, int on)
{
    line.is_delay_on = on != 0;
    line.time = std::min(line.time, line.end());
}

// --- Puts ---

namespace
{
struct RunKey {
    const char* word;
    void (*func)(Timeline&, int);
    int argument;
};
struct ModeKey {
    const char* word;
    void (*func)(Timeline&, int);
};
} // namespace

static constexpr RunKey run_keys[] = {
    {"Run", line_run, 1},
    {"Reverse", line_run, -1},
    {"Stop", line_stop, 0},
    {"Rewind", line_rewind, 0},
    {"Fast Forward", line_fast_forward, 0},
};
static constexpr ModeKey mode_keys[] = {
    {"Loop", line_loop}, {"Ping-Pong", line_ping_pong}, {"Delay", line_delay}};

// The run keys only ever start something: what they show falls back by itself. Stop and Rewind are
// actions, whose pulse the tree gives.
static bool put_run_control(const std::string& word, bool on)
{
    for (const RunKey& key : run_keys) {
        if (word != key.word)
            continue;
        if (on)
            for_lines(Timeline_Selected(), key.func, key.argument);
        return word == "Run" || word == "Reverse";
    }
    for (const ModeKey& key : mode_keys) {
        if (word != key.word)
            continue;
        for (const int region : Timeline_Selected()) {
            key.func(tl.lines[region], on);
            Stream_Effect(region);
        }
        show_run_control();
        return true;
    }
    const Node* constant = Tree_Find(RUN_CONTROL + "Const Dur");
    for (const int region : Timeline_Selected())
        if (on && Edit_Do(tl.lines[region], word, constant && constant->value == "true"))
            Stream_Effect(region);
    return false;
}

static bool put_enable(const std::string& name, const std::string& value)
{
    const int region = Region_ByName(name);
    if (region >= 0 && (value == "true" || value == "false"))
        Timeline_Select(region, value == "true");
    if (region >= 0) // also under the name that the panel used
        show_flag(ENABLE + name, tl.lines[region].is_selected);
    return true;
}

static bool put_reference(const std::string& value)
{
    const int region = Region_ByName(value);
    if (region >= 0)
        Timeline_SetReference(region);
    return true;
}

bool Timeline_Put(const std::string& path, const std::string& value)
{
    if (Text_Begins(path, RUN_CONTROL))
        return put_run_control(path.substr(RUN_CONTROL.size()), value == "true");
    if (Text_Begins(path, ENABLE))
        return put_enable(path.substr(ENABLE.size()), value);
    if (path == REFERENCE)
        return put_reference(value);
    return false;
}

// --- Time ---

static bool has_pause_at(const Timeline& line, int time)
{
    int at = line.delay();
    for (const Keyframe& key : line.effect.keys) {
        if (at == time && key.has_pause)
            return true;
        at += key.duration;
    }
    return false;
}

// At the end of a pass. An endless loop has no count to lower.
static bool line_loops_back(Timeline& line)
{
    const Effect& effect = line.effect;
    if (!line_has_loop(line) || line.time != line.delay() + effect.position(effect.loop_last))
        return false;
    const bool is_last_pass = effect.loop_count > 0 && line.loops_left <= 1;
    if (line.loops_left > 0)
        --line.loops_left;
    if (is_last_pass)
        return false;
    line.time = line.delay() + effect.position(effect.loop_first);
    return true;
}

static void line_turn_or_stop(Timeline& line)
{
    const bool is_at_end = line.run > 0 ? line.time >= line.end() : line.time <= 0;
    if (has_pause_at(line, line.time) || (is_at_end && !line.is_ping_pong))
        line.run = 0;
    else if (is_at_end)
        line.run = -line.run;
}

static void line_step(Timeline& line)
{
    line.time += line.run;
    if (line.run < 0 || !line_loops_back(line))
        line_turn_or_stop(line);
    line_starts_devices(line);
}

static bool step_all()
{
    bool is_running = false;
    bool is_changed = false;
    for (int i = 0; i < REGION_COUNT; ++i) {
        Timeline& line = tl.lines[i];
        if (line.run == 0)
            continue;
        const int before = line.run;
        line_step(line);
        is_changed = is_changed || line.run != before;
        is_running = is_running || line.run != 0;
        Stream_Position(i);
    }
    if (is_changed)
        show_run_control();
    return is_running;
}

static int64_t frame_due_ms(int64_t frame)
{
    return tl.start_ms + frame * 1000 / System_FrameRate();
}

int64_t Timeline_Tick(int64_t now)
{
    const bool is_running = std::any_of(tl.lines, tl.lines + REGION_COUNT,
                                        [](const Timeline& line) { return line.run != 0; });
    if (!is_running) {
        tl.is_counting = false;
        return INT64_MAX;
    }
    if (!tl.is_counting || frame_due_ms(tl.frames + FRAMES_BEHIND) < now) {
        tl.is_counting = true;
        tl.start_ms = now;
        tl.frames = 0;
    }
    while (frame_due_ms(tl.frames + 1) <= now) {
        ++tl.frames;
        if (!step_all())
            break;
    }
    return frame_due_ms(tl.frames + 1);
}
