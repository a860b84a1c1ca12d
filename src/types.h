// types: the few words that every module shares.
#pragma once
#include <cstddef>
#include <cstdint>

// A message argument carries an integer or a pointer; the build is 64-bit on a desk, 32-bit on the
// controller.
using MsgArg = intptr_t;

// An inclusive rectangle in screen pixels.
struct Rect {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
};

constexpr bool Inside(const Rect& r, int x, int y)
{
    return x >= r.x1 && x <= r.x2 && y >= r.y1 && y <= r.y2;
}

// A pointer as a message argument.
inline MsgArg Arg(const void* p)
{
    return reinterpret_cast<MsgArg>(p);
}

// A message argument as the text that it points to; null when it is 0.
inline const char* Text(MsgArg a)
{
    return reinterpret_cast<const char*>(a);
}

constexpr int SCREEN_W = 800;
constexpr int SCREEN_H = 600;
constexpr int CMD_SIZE = 1024; // a command with its terminator
constexpr int PATH_SIZE = 256; // a file name or path with its terminator
