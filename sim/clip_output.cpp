#include "clip_output.h"
#include "clip_store.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <vector>

namespace
{
struct Output {
    std::string path; // of the clip; empty: none
    int frames = 0;
    int start = 0, stop = 0; // first and last frame that play
    int mode = 0;            // 1 loop, 2 there and back
    double speed = 1;        // negative: backwards
    double frame = 0;
    bool is_playing = false;
    std::string record_name;
};
struct Processor {
    int output = -1; // that it records; -1: none
    int frame = 0;
    int length = 0;
};
} // namespace

static constexpr int OUTPUTS = 20, PROCESSORS = 2;
static constexpr int RECORD_MAX = 5000; // frames
static const std::string HEAD = "Frame Mem 2@Clip/Still@";

static struct {
    Output output[OUTPUTS];
    Processor processor[PROCESSORS];
    int64_t next_ms = 0;
} co;

// --- Telling ---

static void show_status(int n, const std::string& status)
{
    Tree_Show(HEAD + Text_Format("Output Status@FM%d", n + 1), status);
}

static void show_play(int n)
{
    const Output& o = co.output[n];
    Tree_Show(HEAD + Text_Format("Play@FM%d", n + 1),
              Text_Format("%d,%d,%d,%d", int(o.is_playing), int(o.frame), o.start, o.stop));
}

static void show_record(int n)
{
    const Processor& p = co.processor[n];
    Tree_Show(HEAD + Text_Format("Record@PROC%d", n + 1),
              Text_Format("%d,%d,%d,%d", int(p.output >= 0), p.frame, p.length, p.output + 1));
}

static void show_setting(int n, const char* what, long value)
{
    Tree_Show(HEAD + Text_Format("Play@%s@FM%d", what, n + 1), Text_Format("%ld", value));
}

static void show_points(int n)
{
    show_setting(n, "Start TC", co.output[n].start);
    show_setting(n, "Stop TC", co.output[n].stop);
}

// --- What a panel asks for ---

using Numbers = std::vector<long>;

static long number(const Numbers& v, size_t at)
{
    return at < v.size() ? v[at] : 0;
}

static void recall(int n, const std::string& path)
{
    Output& o = co.output[n];
    const int frames = ClipStore_Frames(1, path);
    if (!path.empty() && frames == 0)
        return; // there is none: what is shown stays
    const Output before = o;
    o = {};
    o.record_name = before.record_name;
    o.mode = before.mode;
    o.speed = before.speed;
    o.path = path;
    o.frames = frames;
    o.stop = std::max(frames - 1, 0);
    show_status(n, path.empty() ? "0," : "2,/" + path + ".SFH");
    show_points(n);
    show_play(n);
}

// 1 the input, 0 black.
static void through(int n, const Numbers& v)
{
    const std::string name = co.output[n].record_name;
    co.output[n] = {};
    co.output[n].record_name = name;
    show_status(n, number(v, 1) ? "1," : "0,");
    show_play(n);
}

static void play(int n, const Numbers& v)
{
    Output& o = co.output[n];
    o.is_playing = number(v, 1) == 0 && o.frames > 1;
    const bool is_at_end = int(o.frame) >= o.stop;
    if (o.is_playing && is_at_end && o.speed > 0)
        o.frame = o.start;
    show_play(n);
}

static void set_mode(int n, const Numbers& v)
{
    co.output[n].mode = int(number(v, 1));
    show_setting(n, "Play Mode", co.output[n].mode);
}

static void set_speed(int n, const Numbers& v)
{
    const long percent = std::clamp(number(v, 1), -1000L, 1000L);
    co.output[n].speed = percent == 0 ? 1 : double(percent) / 100;
    show_setting(n, "Variable Speed", percent);
}

static void jump(int n, const Numbers& v)
{
    Output& o = co.output[n];
    const long middle = (long(o.start) + long(o.stop)) / 2;
    const long to[] = {o.start, o.stop, middle, long(o.frame), number(v, 2)};
    const long kind = number(v, 1);
    if (kind < 0 || kind > 4)
        return;
    o.frame = double(std::clamp(to[kind], 0L, long(std::max(o.frames - 1, 0))));
    show_play(n);
}

// 0 the frame that is shown, 6 the end of the clip, 4 a frame by its number.
static int point(const Output& o, const Numbers& v, int end)
{
    const long kind = number(v, 1);
    const long frame = kind == 4 ? number(v, 2) : kind == 6 ? end : long(o.frame);
    return int(std::clamp(frame, 0L, long(std::max(o.frames - 1, 0))));
}

static void set_start(int n, const Numbers& v)
{
    Output& o = co.output[n];
    o.start = point(o, v, 0);
    show_points(n);
    show_play(n);
}

static void set_stop(int n, const Numbers& v)
{
    Output& o = co.output[n];
    o.stop = point(o, v, o.frames - 1);
    show_points(n);
    show_play(n);
}

// --- Recording ---

static std::string record_name(int n)
{
    const std::string& name = co.output[n].record_name;
    return name.empty() ? Text_Format("REC%d", n + 1) : name;
}

static void stored(int n, int frames)
{
    const std::string name = record_name(n);
    if (frames > 0 && ClipStore_Make(1, name, frames))
        recall(n, name);
}

static void freeze(int n, const Numbers&)
{
    stored(n, 1);
}

static void end_record(Processor& p)
{
    const int output = p.output;
    p.output = -1;
    show_record(int(&p - co.processor));
    stored(output, p.frame);
}

// "PROCESSOR,PAIR,FRAMES,ON"
static void record(int n, const Numbers& v)
{
    Processor& p = co.processor[number(v, 0) == 2 ? 1 : 0];
    const bool is_on = number(v, 3) != 0;
    if (!is_on && p.output == n)
        end_record(p);
    if (!is_on || p.output >= 0)
        return;
    p = {n, 0, int(std::clamp(number(v, 2), 1L, long(RECORD_MAX)))};
    co.output[n].is_playing = false;
    show_record(int(&p - co.processor));
}

namespace
{
struct OutputCommand {
    const char* head = "";
    void (*run)(int n, const Numbers& v) = nullptr;
};
} // namespace

// Each half of the outputs has a processor; panels ask by output and hear it by processor.
static std::string of_processor(const std::string& what, int output)
{
    return HEAD + what + Text_Format("PROC%d", output * PROCESSORS / OUTPUTS + 1);
}

static void set_record_length(int n, const Numbers& v)
{
    Tree_Show(of_processor("Record@Rec Len@", n), Text_Format("%ld", number(v, 1)));
}

static constexpr OutputCommand commands[] = {
    {"Play@FM", play},
    {"Play@Play Mode@FM", set_mode},
    {"Play@Variable Speed@FM", set_speed},
    {"Play@Jump Frame@FM", jump},
    {"Play@Start TC@FM", set_start},
    {"Play@Stop TC@FM", set_stop},
    {"Record@FM", record},
    {"Record@Rec Len@FM", set_record_length},
    {"Record@Through@FM", through},
    {"Record@Freeze@FM", freeze},
};

// The output behind the head; -1: another path.
static int output_of(const std::string& path, const std::string& head)
{
    long n = 0;
    const bool is_output = Text_Begins(path, head) && Text_ToInt(path.substr(head.size()), &n);
    return is_output && n >= 1 && n <= OUTPUTS ? int(n) - 1 : -1;
}

// The first number says that the output and the next one are a pair.
template <typename Run> static void for_output_or_pair(int n, bool is_pair, Run run)
{
    run(n);
    if (is_pair && n + 1 < OUTPUTS)
        run(n + 1);
}

static bool put_name(const std::string& path, const std::string& value)
{
    const size_t comma = value.rfind(',');
    const bool is_processor = path == "Record@Freeze/Rec Name@PROC1";
    const int n = is_processor ? 0 : output_of(path, "Record@Freeze/Rec Name@FM");
    if (n < 0 || comma == value.npos)
        return false;
    co.output[n].record_name = ClipStore_Path(value.substr(comma + 1));
    Tree_Show(of_processor("Record@Freeze/Rec Name@", n), value.substr(comma + 1));
    return true;
}

static bool put_recall(const std::string& path, const std::string& value)
{
    constexpr size_t VALUES = 5; // pair, mode, kind, frame, name
    const int n = output_of(path, "Recall@FM");
    const auto part = Text_Split(value, ',');
    if (n < 0 || part.size() < VALUES)
        return false;
    const std::string name = ClipStore_Path(part[4]);
    for_output_or_pair(n, part[0] == "1", [&](int i) { recall(i, name); });
    return true;
}

bool ClipOutput_Put(const std::string& full_path, const std::string& value)
{
    if (!Text_Begins(full_path, HEAD))
        return false;
    const std::string path = full_path.substr(HEAD.size());
    if (put_recall(path, value) || put_name(path, value))
        return true;
    Numbers numbers;
    for (const std::string& part : Text_Split(value, ',')) {
        long n = 0;
        (void)Text_ToInt(part, &n); // otherwise 0
        numbers.push_back(n);
    }
    for (const OutputCommand& command : commands) {
        const int n = output_of(path, command.head);
        if (n < 0)
            continue;
        const bool is_pair = command.run != record && number(numbers, 0) == 1;
        for_output_or_pair(n, is_pair, [&](int i) { command.run(i, numbers); });
        return true;
    }
    if (path == "Record@Freeze@PROC1")
        freeze(0, numbers);
    return path == "Record@Freeze@PROC1";
}

void ClipOutput_Start(int n, const std::string& path, int start, int stop, bool is_loop)
{
    if (n < 0 || n >= OUTPUTS || ClipStore_Frames(1, path) == 0)
        return;
    recall(n, path);
    Output& o = co.output[n];
    const int last = std::max(o.frames - 1, 0);
    o.start = std::clamp(start, 0, last);
    o.stop = std::clamp(stop, o.start, last);
    o.frame = o.start;
    o.mode = is_loop ? 1 : 0;
    o.is_playing = o.frames > 1;
    show_play(n);
}

// --- Time ---

static void advance(int n)
{
    Output& o = co.output[n];
    o.frame += o.speed;
    const bool is_past_end = o.speed > 0 ? o.frame > o.stop : o.frame < o.start;
    if (is_past_end && o.mode == 0) {
        o.is_playing = false;
        o.frame = o.speed > 0 ? o.stop : o.start;
    } else if (is_past_end && o.mode == 1) {
        o.frame = o.speed > 0 ? o.start : o.stop;
    } else if (is_past_end) {
        o.frame = o.speed > 0 ? std::max(o.stop - 1, o.start) : std::min(o.start + 1, o.stop);
        o.speed = -o.speed;
    }
    show_play(n);
}

int64_t ClipOutput_Tick(int64_t now)
{
    const auto is_playing = [](const Output& o) { return o.is_playing; };
    const auto is_recording = [](const Processor& p) { return p.output >= 0; };
    const bool is_busy =
        std::any_of(std::begin(co.output), std::end(co.output), is_playing) ||
        std::any_of(std::begin(co.processor), std::end(co.processor), is_recording);
    const int frame_ms = 1000 / std::max(System_FrameRate(), 1);
    if (!is_busy) {
        co.next_ms = 0;
        return INT64_MAX;
    }
    if (co.next_ms == 0)
        co.next_ms = now + frame_ms;
    for (; co.next_ms <= now; co.next_ms += frame_ms) {
        for (int n = 0; n < OUTPUTS; ++n)
            if (co.output[n].is_playing)
                advance(n);
        for (Processor& p : co.processor) {
            if (p.output < 0)
                continue;
            ++p.frame;
            show_record(int(&p - co.processor));
            if (p.frame >= p.length)
                end_record(p);
        }
    }
    return co.next_ms;
}

void ClipOutput_Install()
{
    co = {};
    for (int n = 0; n < OUTPUTS; ++n) {
        show_status(n, "0,");
        show_play(n);
        show_setting(n, "Play Mode", 0);
        show_setting(n, "Variable Speed", 0);
        show_points(n);
        Tree_Show(HEAD + Text_Format("Ancillary Enable@FM%d", n + 1), "0,0");
        if (n % 2 == 0)
            Tree_Show(HEAD + Text_Format("Pair@FM%d&%d", n + 1, n + 2), "false");
    }
    Tree_Show(HEAD + "Out Pair Select", "FM1&2");
    for (int n = 0; n < PROCESSORS; ++n)
        show_record(n);
}

void ClipOutput_Renewed(const std::string& path)
{
    for (int n = 0; n < OUTPUTS; ++n)
        if (co.output[n].path == path)
            recall(n, path);
}
