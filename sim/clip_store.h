// clip_store: the clip stores of the two switchers, "CS1" and "CS2": folders and clips as files
// with drawn thumbnails in "/vorn/FM/1/" of the switcher, the hub's three tables of them, and what
// a client may ask for: load and unload, couple, trim, copy, move, store, delete, folders. A
// request is answered with "Result" rows: how far it is in hexadecimal, 7F when it is done, above
// that why not. Rows name "root/NEWS/OPENING.SFH"; a client may leave "root/" and a slash in front
// out.
#pragma once
#include <cstdint>
#include <string>

constexpr int CLIP_STORES = 2;

enum ClipStatus { // of a clip, bits
    CLIP_ON_STORAGE = 1,
    CLIP_IN_MEMORY = 2,
};
enum ClipResult { // of a request; below CLIP_DONE: how far
    CLIP_DONE = 0x7F,
    CLIP_REFUSED = 0x80,
    CLIP_NOT_THERE = 0x81,
    CLIP_EXISTS = 0x82,
    CLIP_STORE_FULL = 0x84,
    CLIP_MEMORY_FULL = 0x85,
};

void ClipStore_Lay(); // what a desk starts with
// A line of the hub; table and rest as in "VERB#CS1.TABLE:REST". False: no table of a clip store.
bool ClipStore_Line(int client, int unit, const std::string& verb, const std::string& table,
                    const std::string& rest);
void ClipStore_ForgetClient(int client);
int64_t ClipStore_Tick(int64_t now); // returns the time of the next result
// A file has come into the store by another way: the tables follow.
void ClipStore_Taken(int unit, const std::string& path);
// Frames of a clip by its path; 0: there is none.
int ClipStore_Frames(int unit, const std::string& path);
std::string ClipStore_Path(const std::string& path); // without "root/", slash in front and ".SFH"

// --- The console ---
bool ClipStore_Make(int unit, const std::string& path, int frames); // false: no such path can be
void ClipStore_SetReady(bool is_ready); // the tables leave the hub, or come back
void ClipStore_SetMemory(int frames);   // that memory holds
void ClipStore_SetSlow(double factor);
void ClipStore_FailNext(int requests, int result); // 0: they are lost on the way
