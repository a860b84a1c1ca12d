#include "dissolve.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <map>

namespace
{
struct Way {
    double from = 0;
    double to = 0;
    std::string end;   // the value itself
    std::string shown; // last; another one is somebody else's
    int frames = 0;
    int64_t start_ms = 0;
};
} // namespace

static struct {
    std::map<std::string, Way> ways; // by path
} ds;

void Dissolve_Install()
{
    ds = {};
}

void Dissolve_To(const std::string& path, const std::string& value, int frames)
{
    ds.ways.erase(path);
    const Node* const node = Tree_Find(path);
    Way way;
    const bool is_on_way = node && node->type.kind == KIND_NUM && frames > 0 &&
                           Text_ToNumber(node->value, &way.from) && Text_ToNumber(value, &way.to) &&
                           way.from != way.to;
    if (!is_on_way)
        return Tree_Show(path, value);
    way.end = value;
    way.shown = node->value;
    way.frames = frames;
    way.start_ms = Now_Ms();
    ds.ways[path] = way;
}

// False when it has ended.
static bool go(const std::string& path, Way* way, int64_t now)
{
    const Node* const node = Tree_Find(path);
    if (!node || node->value != way->shown)
        return false;
    const int64_t frame = (now - way->start_ms) * System_FrameRate() / 1000;
    if (frame >= way->frames) {
        Tree_Show(path, way->end);
        return false;
    }
    const double part = double(frame) / way->frames;
    way->shown = Tree_NumberText(node->type, way->from + (way->to - way->from) * part);
    Tree_Show(path, way->shown);
    return true;
}

int64_t Dissolve_Tick(int64_t now)
{
    const int rate = System_FrameRate();
    int64_t next = INT64_MAX;
    for (auto at = ds.ways.begin(); at != ds.ways.end();) {
        if (!go(at->first, &at->second, now)) {
            at = ds.ways.erase(at);
            continue;
        }
        const int64_t frame = (now - at->second.start_ms) * rate / 1000;
        next = std::min(next, at->second.start_ms + (frame + 1) * 1000 / rate + 1);
        ++at;
    }
    return next;
}
