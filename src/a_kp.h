// a_kp: the list of keyframe paths: how crosspoint, hue and curve of each part of a region move
// from one keyframe to the next. A cell shows what the tally said; a press on it opens the window
// that offers the words, and the answer goes out.
#pragma once
#include "types.h"

constexpr int KP_MAX = 64; // rows of one list

struct KP_TBL {
    const char* caption = nullptr; // null ends the table
    int isxpt = 0;                 // which cells the row has
    int ishue = 0;
    int iscurve = 0;
    int curvetype = 0;    // 0..3: how many of the curves there are
    const char* cmd = ""; // what stands before "Xpt", "Hue", "Curve"
    uint32_t jump = 0;    // page that the caption opens, 0 none
};
constexpr KP_TBL KP_END = {};

// Has the scroll bar 0 from here on. Rows past KP_MAX are left out with a log line. A null table
// empties the object and returns 1.
int KP_Create(const KP_TBL* table, uint32_t var);
int KP_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
int KP_Follows(const char* path); // 1 while a row is subscribed to it
// As DW_ConvPosForWheel.
int KP_ConvPosForWheel(int* x, int* y, int button);
