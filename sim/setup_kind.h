// setup_kind: settings of one kind that many rows of a unit have, as tables say them: their types
// and first values, values of several parts, and the GPI ports that all units have alike.
#pragma once
#include "tree.h"
#include <string>
#include <vector>

// A value of each row of a page. "$" of the path is the row, also in what it starts with; a value
// of several parts has a type a part, separated by ";".
struct SetupKind {
    const char* path = "";
    const char* each = ""; // "1..48", or words
    const char* type = ""; // as in the value file: "num 0 5 0", "word A B,C", "bool"; "byte", "any"
    const char* start = "";
};
struct SetupKinds {
    std::string tree; // before all their paths
    const SetupKind* kind = nullptr;
    size_t count = 0;
};

constexpr const char* GPI_INPUT_TRIGGER = "word None,Rising Edge,Falling Edge,Any Edge,Level";
constexpr const char* GPI_OUTPUT_TRIGGER =
    "word None,Rising Edge,Falling Edge,Any Edge,Level;byte;byte";
constexpr const char* GPI_ACTION = "num 0 13 0;num 0 5 0;num 0 99 0;num 0 8 0";
constexpr const char* GPI_REGION_ACTION = "num 0 13 0;any;num 0 99 0;num 0 8 0";
constexpr const char* GPI_NO_ACTION = "0,0,0,0";
constexpr const char* GPI_NO_REGION_ACTION = "0,,0,0";
// The settings of the ports of a page.
#define GPI_INPUT_KINDS(page, ports)                                                               \
    {page "@Trigger Type@$", ports, GPI_INPUT_TRIGGER, "None"},                                    \
        {page "@Action Type@$@1", ports, GPI_ACTION, GPI_NO_ACTION},                               \
    {                                                                                              \
        page "@Action Type Region@$@1", ports, GPI_REGION_ACTION, GPI_NO_REGION_ACTION             \
    }
#define GPI_OUTPUT_KINDS(page, ports)                                                              \
    {page "@Trigger Type@$", ports, GPI_OUTPUT_TRIGGER, "None,0x00,0x01"},                         \
        {page "@Action Type@$@1", ports, GPI_ACTION, GPI_NO_ACTION},                               \
    {                                                                                              \
        page "@Action Type Region@$@1", ports, GPI_REGION_ACTION, GPI_NO_REGION_ACTION             \
    }

std::vector<std::string> SetupKind_Rows(const std::string& each);
std::string SetupKind_With(std::string text, const std::string& row); // its first "$" is the row
ValueType SetupKind_Type(const std::string& text); // of a kind's type without parts
void SetupKind_Install(const SetupKinds& kinds);
// A put to a value of several parts: taken or refused, and then true.
bool SetupKind_Put(const SetupKinds& kinds, const std::string& path, const std::string& value);
// "UNIT PAGE@Test Fire@PORT": a pulse on the port, as the action would make it; a line of the log,
// which begins with the unit. False: another path.
bool SetupKind_Fire(const std::string& unit, const std::string& page, const std::string& path);
bool SetupKind_Refuse(const std::string& path, const std::string& value); // logs it; true
