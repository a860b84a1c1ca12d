// pane: the boxes above a page that ask or tell something and are answered before the page goes on.
#pragma once
#include "types.h"

// Every Create returns the pane's id, above 0, or 0 when it cannot be opened.
int PaneMessage_Create(const char* caption, int icon, const char* mes);
int PaneYesNo_Create(const char* caption, int icon, const char* mes);
int PaneProgress_Create(const char* caption, const char* mes, int cancel);
int PaneProgress_SetProg(int id, int percent, const char* text);
int PaneRegion_InitID(int grp);
int PaneRegion_Create(int grp, int single);
void Pane_SetButtonStyle(int id, int style); // of a message pane

int Pane_Quit(int id);    // close now, without a result message
int Pane_GetActiveID();   // the pane on top, 0 none
int Pane_Exist(int id);   // 1 or 0
// Offered every message first; non-zero consumes it.
int PaneProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
