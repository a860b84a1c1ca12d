#include "transition.h"
#include "setup_switcher.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <vector>

namespace
{
struct Change {
    std::string path;
    std::string value;
};

// One that is under way. Its trigger is true as long.
struct Run {
    std::string trigger;
    std::string position;
    std::string clip; // group of the clip that plays along; empty: none
    int frames = 0;
    int64_t start_ms = 0;
    int cut_frame = -1; // when the cut is shown; before: not yet
    Change cut;
    std::vector<Change> landing; // shown with the last frame
};

// A put of the trigger starts it; base is the path of the key or bank.
struct Starter {
    const char* trigger = ""; // a pattern
    int base_words = 0;
    void (*start)(const std::string& trigger, const std::string& base, const std::string& value);
};
} // namespace

static constexpr int KEYS = 8;
static constexpr int MAIN_KEYS = 4; // the sub side has the others
static constexpr const char* KEY_ON = "@Status@Key ON";
static constexpr const char* KEY_ON_PATTERN = "*@*@Status@Key ON";
static constexpr const char* POSITION = "@Status@Transition Position";

static struct {
    std::vector<Run> runs;
} tn;

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node ? node->value : "";
}

static bool is_on(const std::string& path)
{
    return value_of(path) == "true";
}

// --- Runs ---

static void show_clip(const Run& run, int frame, const char* player)
{
    if (run.clip.empty())
        return;
    const int rate = System_FrameRate(), seconds = frame / rate;
    Tree_Show(run.clip + "Player", player);
    Tree_Show(run.clip + "Position", Text_Format("%.2f", 100.0 * frame / std::max(run.frames, 1)));
    Tree_Show(run.clip + "Time Code", Text_Format("%02d:%02d:%02d:%02d", seconds / 3600,
                                                  seconds / 60 % 60, seconds % 60, frame % rate));
}

static void show_cut(Run& run)
{
    if (run.cut_frame < 0)
        return;
    run.cut_frame = -1;
    Tree_Show(run.cut.path, run.cut.value);
}

static void land(Run run)
{
    show_cut(run); // beyond the end of the clip
    for (const Change& change : run.landing) {
        Tree_Show(change.path, change.value);
        SetupSwitcher_Follow(change.path);
    }
    show_clip(run, run.frames, "Stop");
    Tree_Show(run.position, "0.00");
    Tree_Show(run.trigger, "false");
}

void Transition_Drop(const std::string& path)
{
    std::erase_if(tn.runs, [&path](const Run& run) {
        const bool lands_there =
            run.cut.path == path ||
            std::any_of(run.landing.begin(), run.landing.end(),
                        [&path](const Change& change) { return change.path == path; });
        if (!lands_there)
            return false;
        show_clip(run, 0, "Stop");
        Tree_Show(run.position, "0.00");
        Tree_Show(run.trigger, "false");
        return true;
    });
}

static bool is_running(const std::string& trigger)
{
    return std::any_of(tn.runs.begin(), tn.runs.end(),
                       [&trigger](const Run& run) { return run.trigger == trigger; });
}

static void start(Run run)
{
    if (run.frames < 1)
        return land(run);
    run.start_ms = Now_Ms();
    Tree_Show(run.trigger, "true");
    tn.runs.push_back(run);
}

static int frames_of(const std::string& rate_path)
{
    double frames = 0;
    (void)Text_ToNumber(value_of(rate_path), &frames); // none: at once
    return int(frames);
}

// What is switched on is seen from the first frame on, what is switched off until the last.
static void turn_over(Run* run, const std::string& state, bool on)
{
    if (on)
        Tree_Show(state, "true");
    run->landing.push_back({state, on ? "true" : "false"});
}

// --- Keys ---

static bool has_common_setting(const std::string& bank)
{
    const std::string word = bank == "PGM/PST" ? "P/P" : bank;
    return value_of("Engineering Setup@Switcher@Transition@Key Transition@" + word) == "Common";
}

static void start_key(const std::string& trigger, const std::string& key, const std::string&)
{
    const bool on = !is_on(key + KEY_ON);
    const bool uses_on = on || has_common_setting(Text_Head(key, 1));
    const std::string way = key + "@Transition@" + (uses_on ? "ON" : "OFF") + " Transition ";
    Run run;
    run.trigger = trigger;
    run.position = key + POSITION;
    run.frames = value_of(way + "Type") == "Cut" ? 0 : frames_of(way + "Rate");
    if (value_of(way + "Type") == "Stinger") {
        run.cut_frame = frames_of(key + "@Transition@Stinger@Cut Point"); // hidden by the clip
        run.cut = {key + KEY_ON, on ? "true" : "false"};
    } else {
        turn_over(&run, key + KEY_ON, on);
    }
    start(run);
}

// --- Banks ---

// The keys of "M/E-1 SUB" are Key5 to Key8 of M/E-1; those of PGM/PST are called DSK.
static std::string key_path(std::string bank, int key)
{
    const size_t sub = bank.find(" SUB");
    if (sub != std::string::npos)
        bank.erase(sub);
    return bank + (bank == "PGM/PST" ? "@DSK" : "@Key") + std::to_string(key);
}

// A wipe that runs normally and in reverse by turns has the other direction next.
static void turn_direction(Run* run, const std::string& bank)
{
    const std::string direction = bank + "@Wipe@Direction@";
    if (!is_on(direction + "Norm/Rev") || !is_on(bank + "@Misc@Transition@Wipe"))
        return;
    const bool was_normal = is_on(direction + "Normal");
    run->landing.push_back({direction + "Normal", was_normal ? "false" : "true"});
    run->landing.push_back({direction + "Reverse", was_normal ? "true" : "false"});
}

// What was on the preset bus is on the program bus; with flip-flop they change places.
static void change_background(Run* run, const std::string& bank)
{
    const std::string a = bank + "@Status@Xpt Assign@A", b = bank + "@Status@Xpt Assign@B";
    run->landing.push_back({a, value_of(b)});
    if (is_on(bank + "@Misc@Transition@Flip-Flop"))
        run->landing.push_back({b, value_of(a)});
    turn_direction(run, bank);
}

// Each key that takes part comes or goes.
static void take_next(Run* run, const std::string& bank)
{
    const std::string next = bank + "@Misc@Transition@Next Transition@";
    const std::string priority = bank + "@Misc@Key Priority@";
    if (is_on(next + "Bkgd"))
        change_background(run, bank);
    const bool is_sub = bank.find(" SUB") != std::string::npos;
    for (int key = is_sub ? MAIN_KEYS + 1 : 1; key <= KEYS; ++key)
        if (is_on(next + "Key" + std::to_string(key))) {
            const std::string state = key_path(bank, key) + KEY_ON;
            turn_over(run, state, !is_on(state));
        }
    if (is_on(next + "Key Priority"))
        run->landing.push_back(
            {priority + "Key Priority", value_of(priority + "Next Key Priority")});
}

void Transition_Start(const std::string& bank, int frames)
{
    Run run;
    run.trigger = bank + "@Misc@Transition@Auto Trans";
    if (is_running(run.trigger))
        return;
    run.position = bank + POSITION;
    run.frames = frames;
    take_next(&run, bank);
    start(run);
}

static void start_bank(const std::string& trigger, const std::string& bank, bool is_cut)
{
    Run run;
    run.trigger = trigger;
    run.position = bank + POSITION;
    run.frames = is_cut ? 0 : frames_of(bank + "@Misc@Transition@Transition Rate");
    if (!is_cut && is_on(bank + "@Misc@Transition@Clip")) {
        run.clip = bank + "@Misc@Clip Transition@";
        run.frames = frames_of(run.clip + "Clip Duration");
    }
    take_next(&run, bank);
    start(run);
}

static void start_bank_auto(const std::string& trigger, const std::string& bank, const std::string&)
{
    start_bank(trigger, bank, false);
}

static void start_bank_cut(const std::string& trigger, const std::string& bank, const std::string&)
{
    start_bank(trigger, bank, true);
}

// --- Fade to black: its trigger is its state ---

static void start_ftb(const std::string& trigger, const std::string&, const std::string& value)
{
    const std::string ftb = trigger.substr(0, trigger.rfind('@'));
    if (value == value_of(trigger) || is_on(ftb + "@Inhibit"))
        return;
    const bool on = value == "true";
    Run run;
    run.trigger = ftb + "@Busy";
    run.position = ftb + "@Position";
    run.frames = frames_of(ftb + (on ? "@ON Rate" : "@OFF Rate"));
    Transition_Drop(trigger);
    turn_over(&run, trigger, on);
    start(run);
}

// --- Puts and time ---

// The first that matches: a bank's own group has the form of a key.
static constexpr Starter starters[] = {
    {"*@Misc@Transition@Auto Trans", 1, start_bank_auto},
    {"*@Misc@Transition@Cut", 1, start_bank_cut},
    {"*@Misc@Transition@FTB@FTB", 1, start_ftb},
    {"*@*@Transition@Auto Trans", 2, start_key},
};

void Transition_Install()
{
    tn = {};
}

bool Transition_Put(const std::string& path, const std::string& value)
{
    if (Text_MatchesPath(path, KEY_ON_PATTERN))
        Transition_Drop(path); // cut on or off in the middle
    for (const Starter& s : starters) {
        if (!Text_MatchesPath(path, s.trigger))
            continue;
        const bool is_press = value == "true" || s.start == start_ftb;
        if (is_press && !is_running(path))
            s.start(path, Text_Head(path, s.base_words), value);
        return true;
    }
    return false;
}

int64_t Transition_Tick(int64_t now)
{
    const int rate = System_FrameRate();
    int64_t next = INT64_MAX;
    std::vector<Run> landed;
    for (Run& run : tn.runs) {
        const int64_t frame = (now - run.start_ms) * rate / 1000;
        if (frame >= run.frames) {
            landed.push_back(run);
        } else {
            Tree_Show(run.position,
                      Text_Format("%.2f", SetupSwitcher_Curve(Text_Head(run.position, 1),
                                                              100.0 * double(frame) / run.frames)));
            show_clip(run, int(frame), "Play");
            if (frame >= run.cut_frame)
                show_cut(run);
        }
        next = std::min(next, run.start_ms + (frame + 1) * 1000 / rate + 1);
    }
    std::erase_if(tn.runs,
                  [&](const Run& run) { return (now - run.start_ms) * rate / 1000 >= run.frames; });
    for (const Run& run : landed)
        land(run);
    return next;
}

bool Transition_IsState(const std::string& path)
{
    return path.find("@Status@") != std::string::npos;
}
