// frame_memory: the registers of the first switcher's frame memory in two stores, their folders and
// what panels hear of them. A picture is drawn when somebody fetches it, unless one was stored.
// Transfers belong to frame_command.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

enum FrameStore { FRAME_MAIN, FRAME_EXTENDED, FRAME_STORES };

// A register by the name that a file of it has on the unit: "FMEM_001.SF2", "FMEX1000.SFT", or with
// the register's name and a dot before it.
struct FrameRef {
    FrameStore store = FRAME_MAIN;
    int number = 0;   // from 1
    std::string name; // of the register, empty when the file name doesn't say it
    std::string ext;  // upper case
};

struct FrameName {
    int number = 0; // from 1, main store
    std::string name;
};

constexpr int FRAME_REGISTERS = 5662; // in a store, at most

void FrameMemory_Install();
// A panel's put below "Frame Mem@" that is a command. False: a value like others.
bool FrameMemory_Put(int client, const std::string& path, const std::string& value);
int64_t FrameMemory_Tick(int64_t now); // returns the time of the next step of the external drive

bool FrameMemory_Parse(const std::string& file_name, FrameRef* ref);
// The file of a register as it was stored or drawn now; false: the register is empty.
bool FrameMemory_Read(const FrameRef& ref, std::string* bytes);
// Store a picture. Empty, or why not.
std::string FrameMemory_Store(const FrameRef& ref, const std::string& bytes);
std::vector<FrameName> FrameMemory_Names();
void FrameMemory_Rename(int number, const std::string& name); // main store; none stored: nothing

// --- The console ---
void FrameMemory_SetCapacity(int registers, bool has_extended); // empties the stores
void FrameMemory_Fill(int registers, bool is_extended); // so many more, stills and clips by turns
bool FrameMemory_Draw(int number, const std::string& name); // a picture that the switcher stored
bool FrameMemory_Delete(int number);
