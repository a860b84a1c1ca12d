// fuzz_lines: an input that is a text of lines, as the links bring them.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

// Call take(path, value) for each line "path#value" of the input; a line without "#" is left out.
template <typename Take> void ForEachTally(const uint8_t* data, size_t size, Take take)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, end - at);
        at = end + 1;
        if (const size_t mark = line.find('#'); mark != std::string::npos)
            take(line.substr(0, mark), line.substr(mark + 1));
    }
}
