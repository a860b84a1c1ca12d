// path_set: the distinct paths that one walk over the rows of a page meets. The server keeps one
// subscription a path, so whoever subscribes rows that share paths sends each path once.
#pragma once
#include <cstdint>

constexpr int PATH_SET_MAX = 2304; // 18 cells of 128 paths, the most that one kind of object has

// Holds no texts: the paths must live as long as the walk. About 28 KB, for the stack.
struct PathSet {
    static constexpr unsigned SLOTS = 4096; // a power of two, never full
    uint16_t slot[SLOTS] = {};              // 0 free, otherwise the number of a path from 1
    const char* path[PATH_SET_MAX];
    uint32_t hash[PATH_SET_MAX];
    int count = 0;
};

// True when the walk meets the path for the first time; hash is its Hash. A path more than
// PATH_SET_MAX counts as met before, with a log line.
bool PathSet_Add(PathSet& set, const char* path, uint32_t hash);
