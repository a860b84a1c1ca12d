// tally_value: reading what stands behind the "#" of a tally. A value comes from outside: whatever
// it holds, the result is in range or says that there is none.
#pragma once
#include "command.h"
#include "text.h"
#include "types.h"
#include <climits>
#include <cstdlib>
#include <cstring>

constexpr int VALUE_PARTS = 8;

// The comma-separated parts of a value, in a copy that may be cut up.
struct Parts {
    char text[CMD_SIZE];
    char* v[VALUE_PARTS]; // null where there is no part
};

// At most max (up to VALUE_PARTS) parts, the last with all further commas. Returns how many there
// are.
inline int SplitValue(Parts& p, const char* value, int max)
{
    CopyText(p.text, value);
    for (char*& part : p.v)
        part = nullptr;
    return SplitVars(p.text, p.v, max);
}

inline bool Same(const char* a, const char* b)
{
    return strcmp(a, b) == 0;
}

inline bool IsKill(const char* value)
{
    return Same(value, "KILL");
}

inline int IsTrue(const char* value)
{
    return Same(value, "true");
}

// The number at the start of a text, cut to the range; 0, cut to the range, when there is none.
inline long long NumberIn(const char* text, long long low, long long high, int base = 10)
{
    const long long n = strtoll(text, nullptr, base);
    return n < low ? low : n > high ? high : n;
}

inline int Decimal(const char* text)
{
    return int(NumberIn(text, INT_MIN, INT_MAX));
}

inline uint32_t Hex(const char* text)
{
    return uint32_t(NumberIn(text, 0, UINT32_MAX, 16));
}

// "true", or a number other than 0: some switches travel as words, some as numbers.
inline int SwitchOrNumber(const char* value)
{
    return IsTrue(value) ? 1 : Decimal(value);
}

// A number of 0..count - 1 that is to pick a row of a table; -1 for everything else.
inline int Index(const char* text, int count)
{
    if (!text)
        return -1;
    char* end = nullptr;
    const long long n = strtoll(text, &end, 10);
    return end == text || n < 0 || n >= count ? -1 : int(n);
}

// The same for rows that are counted from 1: "1" picks the first.
inline int IndexFrom1(const char* text, int count)
{
    const int n = Index(text, count + 1);
    return n < 1 ? -1 : n - 1;
}
