// scrollbar: the scroll bars of lists, four at most, above the page's objects. Positions are rows.
#pragma once
#include "types.h"

constexpr int SB_MAX = 4;
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

int CreateScrollBar(int n, int x, int y, int h); // -1 for n above 3
int CloseScrollBar(int n);
void CloseScrollBarAll();
int SB_SetPosition(int n, int top, int shown, int total);
int SB_SetPositionRedraw(int n, int top, int shown, int total);
int SB_GetInfo(SB_INFO* out, int n); // -1 for n above 3
void SB_IgnoreRedraw(int on);        // the next arrow press is a wheel step: the arrow does not show it
int ScrollBarProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
