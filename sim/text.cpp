#include "text.h"
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

static int clock_speed = 1; // from Clock_SetSpeed to the end

void Clock_SetSpeed(int n)
{
    clock_speed = n;
}

int64_t Now_Ms()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch() * clock_speed)
        .count();
}

int64_t Clock_RealMs(int64_t ms)
{
    return (ms + clock_speed - 1) / clock_speed;
}

std::string Text_Format(const char* format, ...)
{
    char text[1024];
    va_list args;
    va_start(args, format);
    vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return text;
}

std::vector<std::string> Text_Split(std::string_view text, char mark)
{
    std::vector<std::string> parts;
    for (;;) {
        const size_t at = text.find(mark);
        parts.emplace_back(text.substr(0, at));
        if (at == std::string_view::npos)
            return parts;
        text.remove_prefix(at + 1);
    }
}

std::string Text_Trim(std::string_view text)
{
    const char* const blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return "";
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

bool Text_Begins(std::string_view text, std::string_view head)
{
    return text.substr(0, head.size()) == head;
}

bool Text_ToNumber(const std::string& text, double* out)
{
    // strtod would also take leading blanks, hexadecimal and "nan".
    if (text.empty() || text.find_first_not_of("+-.0123456789eE") != std::string::npos)
        return false;
    char* end = nullptr;
    const double number = strtod(text.c_str(), &end);
    if (*end != '\0' || !std::isfinite(number))
        return false;
    *out = number;
    return true;
}

bool Text_ToInt(const std::string& text, long* out)
{
    if (text.empty() || isspace((unsigned char)text[0]))
        return false;
    char* end = nullptr;
    errno = 0;
    const long number = strtol(text.c_str(), &end, 10);
    if (*end != '\0' || errno != 0)
        return false;
    *out = number;
    return true;
}

// Greedy with one point of return: when a later piece fails, the last star takes one byte more.
bool Text_Matches(std::string_view text, std::string_view pattern)
{
    size_t t = 0, p = 0, star = std::string_view::npos, star_text = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            star_text = t;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++star_text;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

// The last word of a path, which loses it and the mark before it.
static std::string_view text_take_last(std::string_view* path)
{
    const size_t at = path->rfind('@');
    const std::string_view word = at == std::string_view::npos ? *path : path->substr(at + 1);
    *path = at == std::string_view::npos ? std::string_view() : path->substr(0, at);
    return word;
}

// From the end: paths of one switcher differ there.
bool Text_MatchesPath(std::string_view path, std::string_view pattern)
{
    const bool is_tail = Text_Begins(pattern, "**@");
    if (is_tail)
        pattern.remove_prefix(3);
    while (!path.empty() && !pattern.empty())
        if (!Text_Matches(text_take_last(&path), text_take_last(&pattern)))
            return false;
    return pattern.empty() && path.empty() != is_tail;
}

std::string Text_Head(std::string_view path, int count)
{
    size_t end = 0;
    for (int i = 0; i < count && end != path.npos; ++i)
        end = path.find('@', end + (i > 0));
    return std::string(path.substr(0, end));
}

static std::string text_escape_byte(unsigned char byte)
{
    switch (byte) {
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    case '\\': return "\\\\";
    default: break;
    }
    if (byte < 0x20 || byte == 0x7F)
        return Text_Format("\\x%02X", byte);
    return std::string(1, char(byte));
}

std::string Text_Escape(std::string_view bytes, size_t limit)
{
    std::string text;
    for (const char byte : bytes.substr(0, limit))
        text += text_escape_byte((unsigned char)byte);
    if (bytes.size() > limit)
        text += "...";
    return text;
}

// The byte behind "\x", at most two digits from at on; at moves past them.
static char text_hex_byte(std::string_view text, size_t* at)
{
    int byte = 0;
    for (int i = 0; i < 2 && *at < text.size() && isxdigit((unsigned char)text[*at]); ++i, ++*at) {
        const int digit = tolower((unsigned char)text[*at]);
        byte = byte * 16 + (isdigit(digit) ? digit - '0' : digit - 'a' + 10);
    }
    return char(byte);
}

std::string Text_Unescape(std::string_view text)
{
    std::string bytes;
    for (size_t at = 0; at < text.size();) {
        const char c = text[at++];
        if (c != '\\' || at == text.size()) {
            bytes += c;
            continue;
        }
        const char kind = text[at++];
        switch (kind) {
        case 'n': bytes += '\n'; break;
        case 'r': bytes += '\r'; break;
        case 't': bytes += '\t'; break;
        case '0': bytes += '\0'; break;
        case 'x': bytes += text_hex_byte(text, &at); break;
        default: bytes += kind; break;
        }
    }
    return bytes;
}

std::string Text_Hex(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
        text += Text_Format(text.empty() ? "%02X" : " %02X", (unsigned char)byte);
    return text;
}
