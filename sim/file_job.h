// file_job: the file work that panels ask for with "put File@...#L<label>,...". Each request is
// acknowledged with a work number, takes its time, and ends with a status. Many are under way at
// once: a request is a job of small steps in the simulator's own loop. What a command does stands
// in file_command and frame_command.
#pragma once
#include "drive.h"
#include <cstdint>
#include <span>
#include <string>
#include <vector>

struct FileCommand;

struct Job {
    const FileCommand* command = nullptr;
    int client = 0;       // 0: the console or the simulator itself
    unsigned ack = 0;     // its work number
    bool is_told = false; // it has ended
    bool is_mute = false; // asked for without a label: nobody waits for an answer
    std::vector<std::string> args;
    std::vector<Place> places; // of the first arguments, as many as the command has paths
    int64_t due_ms = 0;
    // What a command keeps from step to step.
    int64_t done_bytes = 0;
    std::vector<Entry> entries;    // of a folder, to be copied from the back
    std::vector<std::string> rows; // told before the end
    std::string part;              // local path of a file that is being written; empty: none
    std::string result;            // at the end: "OK", "NG(...)" or "Cancel"
};

struct FileCommand {
    const char* path = "";
    size_t paths = 0; // of its arguments, the first
    size_t args = 0;  // at least, the paths among them
    int base_ms = 0;  // beside the time that the bytes of the first path take
    // One step; true when the job has ended and its result stands. Called again otherwise.
    bool (*step)(Job& job) = nullptr;
};

// A panel's put. False: it is no request for file work.
bool FileJob_Put(int client, const std::string& path, const std::string& value);
int64_t FileJob_Tick(int64_t now); // returns the time of the next step
void FileJob_Forget();             // the server restarts: what is under way ends without a word

// --- For commands: end the job ---
bool FileJob_End(Job& job, const std::string& error); // an empty error is "OK"

int64_t FileJob_Duration(int ms); // as slow as all is now

// --- The console ---
void FileJob_SetSlow(double factor);                        // 1: as usual
void FileJob_FailNext(int count, const std::string& words); // the next jobs end with "NG(words)"
void FileJob_Print();

extern const std::span<const FileCommand> file_commands;  // drives and units
extern const std::span<const FileCommand> frame_commands; // frame memory
