#include "macro.h"
#include "log.h"
#include "macro_private.h"
#include "region.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <cstdio>

namespace
{
struct Run {
    int number = 0;
    std::vector<MacroLine> lines; // as they were at the start
    size_t at = 0;
    int64_t due_ms = 0;
};

struct Recording {
    int number = 0; // 0: none
    std::string name;
    std::vector<MacroLine> lines;
    int64_t last_ms = 0;
};
} // namespace

static struct {
    Run run;
    Recording recording;
} mc;

static constexpr int PAUSE_FRAMES = 999; // of one event

// --- Registers ---

static bool is_number(int number)
{
    return Store_IsNumber(Store_Kind(STORE_MACRO), 0, number);
}

static Register& register_of(int number)
{
    return Store_Register(Store_Kind(STORE_MACRO), 0, number);
}

bool Macro_IsLocked(int number)
{
    return register_of(number).is_locked;
}

std::vector<MacroLine> Macro_Lines(int number)
{
    return MacroEvent_Read(register_of(number).macro);
}

void Macro_SetLines(int number, const std::vector<MacroLine>& lines)
{
    Register& r = register_of(number);
    r.macro = MacroEvent_Write(lines, r.macro);
    if (!r.exists)
        r.name = Store_Kind(STORE_MACRO).new_name + std::to_string(number);
    r.exists = true;
    Store_Show(Store_Kind(STORE_MACRO), 0, number);
}

int Macro_EventCount(const std::vector<MacroLine>& lines)
{
    return int(std::count_if(lines.begin(), lines.end(), [&lines](const MacroLine& line) {
        return line.contents != MacroLine::CONTINUE || &line == &lines.front();
    }));
}

size_t Macro_LineOfEvent(const std::vector<MacroLine>& lines, int event)
{
    int n = 0;
    for (size_t i = 0; i < lines.size(); ++i)
        if ((lines[i].contents != MacroLine::CONTINUE || i == 0) && ++n == event)
            return i;
    return lines.size();
}

bool Macro_Print(int number)
{
    if (!is_number(number))
        return false;
    for (const MacroLine& line : Macro_Lines(number))
        printf("%s %s\n", MacroEvent_Word(line), MacroEvent_Text(line).c_str());
    return true;
}

// --- Running ---

bool Macro_IsRunning()
{
    return mc.run.number > 0;
}

void Macro_Run(int number, int from_event)
{
    if (!is_number(number) || !register_of(number).exists)
        return;
    Log_Note("macro %d runs", number);
    mc.run = {number, Macro_Lines(number), 0, Now_Ms()};
    mc.run.at = Macro_LineOfEvent(mc.run.lines, from_event);
    MacroOnline_ShowRun();
}

void Macro_Stop()
{
    if (!Macro_IsRunning())
        return;
    Log_Note("macro %d has ended", mc.run.number);
    mc.run = {};
    MacroOnline_ShowRun();
}

// An event and what continues it; how many frames the next one comes later. An event may run
// another macro, which then goes on instead.
static int perform_event()
{
    const std::vector<MacroLine> lines = mc.run.lines;
    size_t at = mc.run.at;
    int frames = 0;
    do {
        const MacroLine& line = lines[at++];
        if (line.contents == MacroLine::COMMENT)
            continue;
        Log_Note("macro %d: %s", mc.run.number, MacroEvent_Text(line).c_str());
        frames = std::max(frames, 1);
        if (line.symbol == "Pause")
            frames += MacroEvent_Number(line, "Time", 1, PAUSE_FRAMES, 0);
        else
            Macro_Perform(line);
    } while (at < lines.size() && lines[at].contents == MacroLine::CONTINUE);
    mc.run.at = at;
    return frames;
}

static int64_t tick_run(int64_t now)
{
    while (Macro_IsRunning() && mc.run.due_ms <= now) {
        if (mc.run.at >= mc.run.lines.size())
            Macro_Stop();
        else
            mc.run.due_ms += perform_event() * 1000 / System_FrameRate();
    }
    return Macro_IsRunning() ? mc.run.due_ms : INT64_MAX;
}

int64_t Macro_Tick(int64_t now)
{
    return tick_run(now);
}

// --- Recording ---

bool Macro_Record(int number, const std::string& name)
{
    if (!is_number(number) || Macro_IsLocked(number))
        return false;
    mc.recording = {number, name, {}, 0};
    return true;
}

bool Macro_EndRecord()
{
    const Recording done = mc.recording;
    mc.recording = {};
    if (done.number == 0)
        return false;
    if (Macro_IsLocked(done.number))
        return false; // meanwhile
    Register& r = register_of(done.number);
    const bool has_name = r.exists;
    Macro_SetLines(done.number, done.lines);
    if (!done.name.empty() || !has_name)
        r.name = done.name.empty() ? r.name : Store_FittingName(done.name);
    Store_Show(Store_Kind(STORE_MACRO), 0, done.number);
    return true;
}

static void record(const MacroLine& line)
{
    Recording& rec = mc.recording;
    const int64_t now = Now_Ms();
    int64_t frames = rec.lines.empty() ? 0 : (now - rec.last_ms) * System_FrameRate() / 1000;
    while (frames > 1 && rec.lines.size() + 1 < MACRO_CELLS) {
        const int64_t part = std::min<int64_t>(frames, PAUSE_FRAMES);
        rec.lines.push_back({MacroLine::EVENT, "Pause", {{"Time", std::to_string(part)}}});
        frames -= part;
    }
    if (rec.lines.size() < MACRO_CELLS)
        rec.lines.push_back(line);
    rec.last_ms = now;
}

static void take(const MacroLine& line)
{
    if (mc.recording.number > 0)
        record(line);
    else
        MacroOnline_Take(line);
}

bool Macro_Operate(const std::string& event)
{
    MacroLine line;
    if (!MacroEvent_Parse(event, &line))
        return false;
    if (line.symbol != "Pause")
        Macro_Perform(line);
    take(line);
    return true;
}

namespace
{
// What a panel's put is as an event. "~" in the event is the bank, "^" the number of the key.
struct Watched {
    const char* path = "";
    const char* value = ""; // "*": any, which is "$" in the event
    const char* event = "";
};
} // namespace

static constexpr Watched watched[] = {
    {"*@Misc@Transition@Cut", "true", "MECut,ME,~"},
    {"*@Misc@Transition@Auto Trans", "true", "MEAutoTransition,ME,~"},
    {"*@Misc@Transition@FTB@FTB", "*", "FadeToBlack"},
    {"*@Misc@Transition@Mix", "true", "TransitionType,ME,~,TransitionType,Mix"},
    {"*@Misc@Transition@Wipe", "true", "TransitionType,ME,~,TransitionType,Wipe"},
    {"*@Misc@Transition@DME Wipe", "true", "TransitionType,ME,~,TransitionType,DME Wipe"},
    {"*@*@Status@Key ON", "true", "KeyCut,ME,~,Key,Key^,Status,ToOn"},
    {"*@*@Status@Key ON", "false", "KeyCut,ME,~,Key,Key^,Status,ToOff"},
    {"*@*@Transition@Auto Trans", "true", "KeyAutoTransition,ME,~,Key,Key^"},
    {"*@*@Transition@ON Transition Type", "*",
     "KeyTransitionType,ME,~,Key,Key^,KeyTransitionType,$"},
};

static std::string bank_name(const std::string& tree)
{
    for (int i = 0; i < REGION_USER1; ++i)
        if (Regions()[size_t(i)].tree == tree)
            return Regions()[size_t(i)].name;
    return "";
}

static void fill(std::string& text, char mark, const std::string& with)
{
    for (size_t at = text.find(mark); at != text.npos; at = text.find(mark, at + with.size()))
        text.replace(at, 1, with);
}

void Macro_WatchPut(const std::string& path, const std::string& value)
{
    if (mc.recording.number == 0 && !MacroOnline_IsOpen())
        return;
    const std::string name = bank_name(Text_Head(path, 1));
    const size_t word_end = Text_Head(path, 2).size();
    for (const Watched& w : watched) {
        const bool is_any = w.value == std::string("*");
        if (name.empty() || !Text_MatchesPath(path, w.path) || (!is_any && value != w.value) ||
            value.find(',') != value.npos)
            continue;
        std::string event = w.event;
        fill(event, '$', value);
        fill(event, '^', path.substr(word_end - 1, 1));
        fill(event, '~', name);
        MacroLine line;
        if (MacroEvent_Parse(event, &line))
            take(line);
        return;
    }
}

void Macro_WatchRecall(const Kind& kind, int row, int number)
{
    static constexpr struct {
        StoreKind kind;
        const char* symbol;
        const char* place; // the parameter that names the row
    } symbols[] = {{STORE_EFFECT, "TimelineRecall", "Region"},
                   {STORE_MASTER_EFFECT, "MasterTimelineRecall", ""},
                   {STORE_SNAPSHOT, "Snapshot", "Region"},
                   {STORE_MASTER_SNAPSHOT, "MasterSnapshot", ""},
                   {STORE_WIPE, "WipeSnapshot", "ME"},
                   {STORE_DME, "DMEWipeSnapshot", "ME"},
                   {STORE_SHOTBOX, "ShotBox", ""}};
    for (const auto& s : symbols) {
        if (s.kind != kind.kind)
            continue;
        MacroLine line{MacroLine::EVENT, s.symbol, {}};
        if (*s.place)
            line.values.emplace_back(s.place, Store_RowName(kind, row));
        line.values.emplace_back("Register", std::to_string(number));
        take(line);
    }
}

// --- The whole ---

void Macro_Install()
{
    mc = {};
    MacroOnline_Install();
}

bool Macro_Put(const std::string& path, const std::string& value)
{
    const std::string online = ONLINE_EDIT;
    return Text_Begins(path, online) && MacroOnline_Put(path.substr(online.size()), value);
}
