// window: the modal windows: keyboard, ten keys, page jump, pull-downs and selections.
#pragma once
#include "types.h"

enum : int { WINDOW_PAGE = 1, WINDOW_PULLDOWN = 6 };

int GetWindow(); // the open window's type, 0 none
int CreateWindow(int type, const char* title, MsgArg a, MsgArg b, MsgArg c);
int CloseWindow();
int WindowProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // non-zero consumes

// The named pull-downs of tab buttons; null behind the last.
struct PULLDOWN {
    const char* name = nullptr; // the button's cmd[0] path
    int columns = 1;
    int rows = 1;
    const char* captions[32] = {};
};
const PULLDOWN* PullDown_Find(const char* name);
