// The commands for regions and their effects. A region's name may hold blanks, so numbers stand
// behind it.
#include "console_command.h"
#include "region.h"
#include "system.h"
#include "text.h"
#include "timeline.h"
#include <cstdio>

static constexpr long FRAMES_MAX = 24 * 3600 * 60;

// "M/E-1 Sub 3 50": the region and as many numbers as there are places for.
static bool region_and_numbers(const std::string& rest, int* region, std::span<long> numbers)
{
    auto words = Text_Split(rest, ' ');
    if (words.size() < numbers.size() + 1)
        return false;
    const size_t first = words.size() - numbers.size();
    for (size_t i = 0; i < numbers.size(); ++i)
        if (!Console_Number(words[first + i], 0, FRAMES_MAX, &numbers[i]))
            return false;
    std::string name;
    for (size_t i = 0; i < first; ++i)
        name += words[i];
    *region = Region_ByName(name);
    return *region >= 0;
}

// --- Run control ---

// The named region, or those that are selected.
static bool regions_of(const std::string& rest, std::vector<int>* regions)
{
    int region = -1;
    *regions = Timeline_Selected();
    if (rest.empty())
        return true;
    if (!region_and_numbers(rest, &region, {}))
        return false;
    *regions = {region};
    return true;
}

static bool con_run(Runner&, const std::string& rest)
{
    std::vector<int> regions;
    if (!regions_of(rest, &regions))
        return false;
    Timeline_Run(regions, 1);
    return true;
}

static bool con_reverse(Runner&, const std::string& rest)
{
    std::vector<int> regions;
    if (!regions_of(rest, &regions))
        return false;
    Timeline_Run(regions, -1);
    return true;
}

static bool con_stop(Runner&, const std::string& rest)
{
    std::vector<int> regions;
    if (!regions_of(rest, &regions))
        return false;
    Timeline_Stop(regions);
    return true;
}

static bool con_rewind(Runner&, const std::string& rest)
{
    std::vector<int> regions;
    if (!regions_of(rest, &regions))
        return false;
    Timeline_Rewind(regions);
    return true;
}

static bool con_fast_forward(Runner&, const std::string& rest)
{
    std::vector<int> regions;
    if (!regions_of(rest, &regions))
        return false;
    Timeline_FastForward(regions);
    return true;
}

// --- Selection ---

static bool con_select(Runner&, const std::string& rest)
{
    const size_t blank = rest.rfind(' ');
    int region = -1;
    bool on = false;
    if (blank == std::string::npos || !Console_OnOff(rest.substr(blank + 1), &on) ||
        !region_and_numbers(rest.substr(0, blank), &region, {}))
        return false;
    Timeline_Select(region, on);
    return true;
}

static bool con_ref(Runner&, const std::string& rest)
{
    int region = -1;
    if (!region_and_numbers(rest, &region, {}))
        return false;
    Timeline_SetReference(region);
    return true;
}

// --- What a region has loaded ---

static void reload(int region, const Effect& effect)
{
    const Timeline& line = Timeline_Of(region);
    Timeline_Load(region, line.number, effect, line.is_locked);
}

// The last keyframe has nothing behind it.
static bool con_kf(Runner&, const std::string& rest)
{
    int region = -1;
    long number[2] = {};
    if (!region_and_numbers(rest, &region, number) || size_t(number[0]) > TIMELINE_KEYFRAMES ||
        number[1] > KEYFRAME_FRAMES)
        return false;
    Effect effect;
    effect.name = Timeline_Of(region).effect.name;
    effect.keys.assign(size_t(number[0]), Keyframe{int(number[1]), false});
    if (!effect.keys.empty())
        effect.keys.back().duration = 0;
    reload(region, effect);
    return true;
}

static bool con_pause(Runner&, const std::string& rest)
{
    int region = -1;
    long key[1] = {};
    if (!region_and_numbers(rest, &region, key))
        return false;
    Effect effect = Timeline_Of(region).effect;
    if (key[0] < 1 || size_t(key[0]) > effect.keys.size())
        return false;
    bool& has_pause = effect.keys[size_t(key[0] - 1)].has_pause;
    has_pause = !has_pause;
    reload(region, effect);
    return true;
}

static bool con_loop(Runner&, const std::string& rest)
{
    int region = -1;
    long number[3] = {};
    if (!region_and_numbers(rest, &region, number))
        return false;
    Effect effect = Timeline_Of(region).effect;
    const bool is_none = number[0] == 0 && number[1] == 0;
    const bool is_sound = number[0] >= 1 && number[0] < number[1] &&
                          size_t(number[1]) <= effect.keys.size() && number[2] <= LOOPS_MAX;
    if (!is_none && !is_sound)
        return false;
    effect.loop_first = int(number[0]);
    effect.loop_last = int(number[1]);
    effect.loop_count = int(number[2]);
    reload(region, effect);
    return true;
}

static bool con_delay(Runner&, const std::string& rest)
{
    int region = -1;
    long frames[1] = {};
    if (!region_and_numbers(rest, &region, frames))
        return false;
    Effect effect = Timeline_Of(region).effect;
    effect.delay = int(frames[0]);
    reload(region, effect);
    return true;
}

static bool con_timelines(Runner&, const std::string&)
{
    static const char* const runs[] = {"reverse", "stopped", "running"};
    for (int i = 0; i < REGION_COUNT; ++i) {
        const Timeline& line = Timeline_Of(i);
        if (!line.effect.keys.empty())
            printf("%s %s#%d %s KF %d/%zu frame %d/%d %s\n", Regions()[size_t(i)].name.c_str(),
                   line.is_selected ? "selected " : "", line.number, line.effect.name.c_str(),
                   line.key(), line.effect.keys.size(), line.time,
                   line.delay() + line.effect.duration(), runs[line.run + 1]);
    }
    return true;
}

// --- Units ---

static bool con_dme(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long unit = 0;
    if (word.size() != 2 || (word[0] != "down" && word[0] != "up") ||
        !Console_Number(word[1], 1, 4, &unit))
        return false;
    System_SetDme(int(unit), word[0] == "up");
    return true;
}

static constexpr Command commands[] = {
    {"run", "[REGION]", "run the effect of a region or of those that are selected", con_run},
    {"reverse", "[REGION]", "run it in reverse", con_reverse},
    {"stop", "[REGION]", "stop it where it is", con_stop},
    {"rewind", "[REGION]", "stop it at its start", con_rewind},
    {"ff", "[REGION]", "stop it at its end", con_fast_forward},
    {"select", "REGION on|off", "select a region for keyframe operation", con_select},
    {"ref", "REGION", "make it the reference", con_ref},
    {"kf", "REGION COUNT FRAMES", "load so many keyframes, so far apart", con_kf},
    {"pause", "REGION KEY", "set a pause on a keyframe, or take it away", con_pause},
    {"loop", "REGION FIRST LAST N", "loop between two keyframes, N 0: endless; 0 0 0: none",
     con_loop},
    {"delay", "REGION FRAMES", "wait so long before the first keyframe", con_delay},
    {"timelines", "", "print what is loaded and where it stands", con_timelines},
    {"dme", "down|up N", "an effects unit fails, or comes back", con_dme},
};
constinit const std::span<const Command> console_effect_commands = commands;
