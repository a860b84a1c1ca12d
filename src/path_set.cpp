#include "path_set.h"
#include "log.h"
#include <cstring>
#include "safeguards.h"

bool PathSet_Add(PathSet& set, const char* path, uint32_t hash)
{
    // The low bits of a path's hash alone gather in few places.
    unsigned at = (hash * 2654435769u) >> 20;
    static_assert(PathSet::SLOTS == 1u << (32 - 20) && PATH_SET_MAX < int(PathSet::SLOTS));
    for (; set.slot[at] != 0; at = (at + 1) % PathSet::SLOTS) {
        const int i = set.slot[at] - 1;
        if (set.hash[i] == hash && strcmp(set.path[i], path) == 0)
            return false;
    }
    if (set.count == PATH_SET_MAX) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Too many paths on one page: %s", path);
        return false;
    }
    set.path[set.count] = path;
    set.hash[set.count] = hash;
    set.slot[at] = uint16_t(++set.count);
    return true;
}
