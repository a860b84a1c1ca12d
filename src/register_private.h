// register_private: what the files of the register module share. register holds the mirror,
// register_lists turns paths and lines into its places, register_clip has the clip events, whose
// lines are of another kind.
#pragma once
#include "register.h"

constexpr int LINE_FIELDS = 48;
constexpr int LINE_SIZE = 1024;

// A line in a copy that has been cut up.
struct RegisterLine {
    char text[LINE_SIZE];
    char* v[LINE_FIELDS];
};

// A name of a region in a path, with what finds it quickly.
struct RegisterWord {
    const char* text = "";
    uint32_t length = 0;
    uint32_t hash = 0;
};

// One list of the server. Its path is head, region, tail; a list without regions has one empty
// word. Fields count from 0, and field 0 is the number (of a clip event field 1).
struct RegisterList {
    int kind = 0;
    const char* head = "";
    const char* tail = "";
    const RegisterWord* words = nullptr;
    int known = 0;      // words that a line may name
    int subscribed = 0; // words that are subscribed
    int first_row = 0;  // of the mirror: the row of the first word
    int fields = 0;     // a line has at least these
    int status = 0;     // begins with "E" when the register is empty
    int lock = 0;       // begins with "L" when it is locked
    int name = 0;
    int first_data = 0; // not 0: no status field; data is where one from here on is not empty
    int bound = 128;    // characters of a line that are looked at, with a terminator
    int max_number = REGISTERS;
    // Region -1 is one that the list does not know. Returns -1 when the line is dropped.
    int (*digest)(const RegisterList& list, int region, const char* value) = nullptr;
    uint32_t head_length = 0;
};

struct RegisterPlace {
    int kind = 0;
    int row = 0;
    int index = 0;
};

struct RegisterHeadline {
    int exist = 0;
    int lock = 0;
    const char* name = "";
};

// --- register ---
// Keep a headline and the whole line that it came from, and tell.
void register_keep(const RegisterPlace& place, const RegisterHeadline& headline, const char* line);
void register_tell(int kind, int row, int index, int extra);

// --- register_lists ---
int register_take(const char* path, const char* value); // -1 when it is no list line or a bad one
bool register_cut(RegisterLine& line, const RegisterList& list, const char* value);
// Send "read" for one list of a kind with regions.
void register_ask(int kind, int region);

// --- register_clip ---
int clipevnt_tly(const RegisterList& list, int user, const char* value);
void clipevnt_free();
