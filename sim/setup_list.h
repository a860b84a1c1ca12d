// setup_list: lists that panels edit row by row, as tables say them: a row for each key, of fields
// that have types. A row that does not fit is answered with the old one.
#pragma once
#include <span>
#include <string>

struct SetupList {
    const char* path = "";
    const char* each = "";  // the keys: "1..48", or words
    const char* types = ""; // of the fields behind the key, separated by "|", as of a SetupKind;
                            // also "key" and "bus" of a bank, or "None"
    const char* start = ""; // "$" is the key, wherever it stands
};

void SetupList_Install(const std::string& tree, std::span<const SetupList> lists);
// A put of a row that does not fit its list: noted, and true.
bool SetupList_Refuse(const std::string& tree, std::span<const SetupList> lists,
                      const std::string& path, const std::string& row);
