// fetches: the copies of files that the application asks of the server, and what it answers.
#pragma once
#include "bus_probe.h"
#include <algorithm>
#include <filesystem>

struct Get {
    std::string line, label, remote, local;
};
// Those among the lines that are of this command.
inline std::vector<Get> Gets(const Strings& lines, const std::string& command)
{
    std::vector<Get> gets;
    for (const std::string& line : lines)
        if (line.starts_with("put " + command + "#")) {
            const size_t at = line.find('#') + 1, a = line.find(','), b = line.find(',', a + 1);
            gets.push_back({line, line.substr(at, a - at), line.substr(a + 1, b - a - 1),
                            line.substr(b + 1, line.find(',', b + 1) - b - 1)});
        }
    return gets;
}
// The server takes a command and reports on it.
inline void Serve(const std::string& line, const Strings& reports)
{
    static int work = 500;
    const std::string path = line.substr(4, line.find('#') - 4), ack = std::to_string(++work);
    Deliver(path, line.substr(line.find('#') + 1, line.find(',') - line.find('#')) + ack);
    for (const std::string& report : reports)
        Deliver(path + "@Status", ack + "," + report);
}
inline Strings FilesIn(const char* directory)
{
    Strings names;
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(directory, none))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}
