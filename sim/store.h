// store: the stored registers: effects, snapshots of several kinds, shotbox, macros, clip events;
// their lists, which every subscriber gets line by line, and the commands that store, recall and
// manage them. A snapshot keeps values of the tree, an effect keyframes, too. What is running
// belongs to timeline.
#pragma once
#include <string>

void Store_Install(); // some registers of each kind, and their lists in the tree
// A panel's put to a command or list path. True: the value isn't the put's to change.
bool Store_Put(const std::string& path, const std::string& value);

// --- The console: a kind by its word, a region by its name (empty where a kind has none) ---
struct StoreOrder {
    std::string verb; // "store", "copy"
    std::string kind;
    std::string region;
    int first = 0;
    int last = 0;
    std::string name;
    std::string to_region; // of copy, move and swap
    int to = 0;            // 0: none
    bool keeps_names = false;
};
bool Store_HasRegions(const std::string& kind);
bool Store_Do(const StoreOrder& order); // false: no such verb, kind, region or number
// Print what holds data; an empty region means all.
bool Store_Print(const std::string& kind, const std::string& region);
