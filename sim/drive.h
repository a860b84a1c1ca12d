// drive: where the files of the installation are. A path of a panel is "HOST:PATH"; MYHOST is the
// machine of the control server with its local drive, stick and network drive, all others are units
// behind it. Every path is checked here, and nothing outside the folders named in drive.cpp is ever
// read or written, whatever a panel asks for. It also counts the room that is left.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

enum HostKind { HOST_NONE, HOST_SERVER, HOST_SWR, HOST_PNL, HOST_DME };

// A path of a panel, looked at.
struct Place {
    HostKind host = HOST_NONE;
    int unit = 0;      // of a switcher, panel or effects unit, from 1
    std::string path;  // behind the colon: absolute, or the bare name of a register
    std::string local; // in this machine's file system; empty: a bare name
};

struct Entry {
    std::string path; // as a panel would name it, without the host
    std::string local;
    bool is_folder = false;
    int64_t bytes = 0;
    int64_t time = 0; // of the last change, seconds
};

constexpr size_t DRIVE_PATH_BYTES = 280; // what a panel can keep
constexpr int DRIVE_ENTRIES = 20000;     // a search ends there

// All folders stand below this one; empty: they are those of the machine itself.
void Drive_SetRoot(const std::string& root);

// --- Names. False, with a log line: no such host, or the path leads out of the folders ---
bool Drive_Place(const std::string& text, Place* place);
std::string Drive_UnitFolder(HostKind host, int unit); // local, where its files are kept
std::string Drive_FileName(const std::string& path);   // behind the last slash or colon

// --- Files by their local path. The text is empty, or what to tell the panel ---
std::string Drive_MakeFolder(const std::string& local); // with those above it
std::string Drive_MakeParents(const std::string& local);
std::string Drive_Remove(const std::string& local);       // one file
std::string Drive_RemoveFolder(const std::string& local); // and all in it
std::string Drive_Move(const std::string& from, const std::string& to);
std::string Drive_Write(const std::string& local, const std::string& bytes); // whole or not at all
bool Drive_Read(const std::string& local, std::string* bytes);
bool Drive_IsFile(const std::string& local);
bool Drive_IsFolder(const std::string& local);
int64_t Drive_Bytes(const std::string& local); // 0 when it is no file
// What is in a folder and down to so many folders below it, sorted; a stick that is out is empty.
std::vector<Entry> Drive_List(const Place& folder, int depth);

// --- The room and the stick ---
void Drive_SetRoom(int64_t bytes);  // negative: without limit
bool Drive_TakeRoom(int64_t bytes); // false: full; negative gives back
int64_t Drive_Room();
bool Drive_PutStick(bool is_in); // the files stay on it; false when the folders can't be made
bool Drive_HasStick();
