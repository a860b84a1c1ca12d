// unit_file: what the running system holds, as files: registers and setups by category. A file of a
// unit is named "REGION_NUMBER.EXT", with the register's name and a dot before it on drives. The
// bodies are texts in a format of the simulator's own, but for macros. Regions that the simulator
// doesn't play are kept as they come, in the unit's folder.
#pragma once
#include "drive.h"
#include <string>

// A file name, looked at.
struct UnitFile {
    std::string name; // of the register; empty on a unit
    std::string region;
    std::string ext;
    int number = 0;
};

bool UnitFile_Parse(const std::string& file_name, UnitFile* file);
const char* UnitFile_Category(const UnitFile& file); // null: of none

// The body of a file that a unit holds now; false: there is none.
bool UnitFile_Make(HostKind host, int unit, const UnitFile& file, std::string* bytes);
// Change what the unit holds. Empty, or why it did not.
std::string UnitFile_Load(HostKind host, int unit, const UnitFile& file, const std::string& bytes);

// --- The work folder of a category on a switcher or panel, which the hub hands out ---
// "/vorn/tmp/file/EFFECT/SWR1/"; the effects units of a switcher have a folder of that name, too.
bool UnitFile_IsCategory(const std::string& category, HostKind host);
void UnitFile_ClearWork(const std::string& category, HostKind host, int unit);
void UnitFile_PrepareGet(const std::string& category, HostKind host, int unit);
void UnitFile_TakePut(const std::string& category, HostKind host, int unit);
// True when the path lies in a work folder; the category and whose it is.
bool UnitFile_IsWork(const std::string& path, std::string* category, std::string* target);

// What is put there comes from a register of this name; the file's own name doesn't say it.
void UnitFile_NoteName(const std::string& local, const std::string& name);

// --- Wrong result lists, on request ---
enum ResultFault {
    RESULT_RIGHT,
    RESULT_CRLF,     // ends of lines
    RESULT_NO_COMMA, // a line without one between the others
    RESULT_LONG,     // a line of 1025 characters
    RESULT_LOWER,    // "ok"
    RESULT_TRAILING, // "OK "
    RESULT_NG,       // every line
    RESULT_MISSING,  // no file
    RESULT_FAULTS
};
void UnitFile_SetResultFault(ResultFault fault);
