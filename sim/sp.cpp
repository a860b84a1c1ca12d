#include "sp.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <cmath>

static constexpr int CHANNELS = 8, DEAD = 7; // a channel without a signal
static constexpr int64_t TICK_MS = 100;

static struct {
    int64_t next_ms = 0;
    unsigned count = 0;
} sp;

static std::string path_of(int n, const char* what)
{
    return Text_Format("SP@SP%d@%s", n + 1, what);
}

static bool is_on(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node && node->value == "true";
}

// A picture that moves, brighter with the gain.
static int level(int n, int bar)
{
    double gain = 100;
    const Node* const node = Tree_Get(path_of(n, "Video Process@Luminance"));
    if (node && is_on(path_of(n, "Video Process@Video Process")))
        (void)Text_ToNumber(node->value, &gain);
    const double at = 70 + 20 * std::sin(0.1 * sp.count + n) - 8 * bar;
    return std::clamp(int(at * gain / 100), 0, 109);
}

static void show_levels(int n)
{
    Node* const node = Tree_Get(path_of(n, "Meter"));
    if (!node || node->followers.empty())
        return;
    const bool is_dark = n == DEAD || is_on(path_of(n, "Mute"));
    Tree_Show(node->path, is_dark
                              ? "0,0,0,0"
                              : Text_Format("%d,%d,%d,0", level(n, 0), level(n, 1), level(n, 2)));
}

int64_t Sp_Tick(int64_t now)
{
    if (now < sp.next_ms)
        return sp.next_ms;
    sp.next_ms = now + TICK_MS;
    ++sp.count;
    for (int n = 0; n < CHANNELS; ++n)
        show_levels(n);
    return sp.next_ms;
}

void Sp_Install()
{
    sp = {};
    Tree_Preset("SP@Meter Mode", "YPbPr");
    for (int n = 0; n < CHANNELS; ++n) {
        Tree_Preset(path_of(n, "Source"), Text_Format("CAM%d", n + 1));
        Tree_Preset(path_of(n, "Signal"), n == DEAD ? "false" : "true");
        Tree_Preset(path_of(n, "Freeze"), "Off");
        Tree_Preset(path_of(n, "Video Process@Luminance"), "100.00");
        Tree_Preset(path_of(n, "Video Process@Chroma"), "100.00");
        Tree_Preset(path_of(n, "Video Process@Gamma@Gamma"), "1.00");
        Tree_Preset(path_of(n, "Video Process@White Clip@Level"), "109.00");
        Tree_Preset(path_of(n, "Video Process@Dark Clip@Level"), "-7.00");
        Tree_Preset(path_of(n, "Video Process@Chroma Clip@Level"), "100.00");
        for (const char* colour : {"R", "G", "B"}) {
            Tree_Preset(path_of(n, "Color Correct@Gain@") + colour, "100.00");
            Tree_Preset(path_of(n, "Color Correct@Gamma@") + colour, "1.00");
        }
        Tree_Preset(path_of(n, "Timing@Frames"), "0");
        Tree_Preset(path_of(n, "Timing@Synchronizer"), "Frame");
        Tree_Preset(path_of(n, "Timing@Signal Loss"), "Freeze");
        Tree_Preset(path_of(n, "Output@Convert"), "Through");
        Tree_Preset(path_of(n, "Output@Aspect"), "Edge Crop");
    }
}
