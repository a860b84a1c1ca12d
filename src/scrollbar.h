// scrollbar: the scroll bars of lists and of other objects that scroll, four at most, above the
// page's objects. A bar turns touches into LMSG_SBSEL and shows the position that its owner sets:
// a press moves nothing by itself. Positions are rows.
#pragma once
#include "types.h"

constexpr int SB_MAX = 4;
constexpr int SB_W = 46;
enum : int { SB_THUMB = 0, SB_UP = 1, SB_DOWN = 2 }; // ax of LMSG_SBSEL

struct SB_INFO {
    int active = 0;
    int x = 0;
    int y = 0;
    int height = 0;
    int top = 0; // first row shown
    int shown = 0;
    int total = 0;
    Rect up;
    Rect down;
    Rect track;
};

// --- For the owner of a bar; -1 for a number that is not 0 to 3 ---
int CreateScrollBar(int n, int x, int y, int h); // h at least 82: two arrows and a track
int CloseScrollBar(int n);                       // what it covers is the owner's to repaint
void CloseScrollBarAll();
int SB_SetPosition(int n, int top, int shown, int total);
int SB_SetPositionRedraw(int n, int top, int shown, int total); // painted at the next MSG_REDRAW
int SB_GetInfo(SB_INFO* out, int n);
// Turn a wheel step over the bar, or over the area beside it that it scrolls, into a press on one
// of its arrows; dir is 4 up, 5 down. 1 when x and y were rewritten.
int SB_ConvPosForWheel(int n, const Rect& area, int* x, int* y, int dir);

// --- For the main loop and the bus ---
void SB_IgnoreRedraw(int on); // the next arrow press is a wheel step: the arrow does not show it
int ScrollBarProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
