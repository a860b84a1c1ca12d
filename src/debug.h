// debug: the engineering menu: its switches for debugging, and the walk through all pages of the
// table. What the other engineering pages show is in pc_eng_*.
#pragma once
#include "types.h"

// --- The object of the engineering menu ---
void Debug_Create(); // a page with it has been opened: its keys show how the switches stand
int Debug_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0

// --- The walk: each row of the table is shown for GL_AllPageDisplayMsec passes ---
// While GL_AllPageDisplayMode is set the keys of the walk stand at top right on every page.
constexpr uint32_t PAGE_WALK = 0x99970000; // starts it
void GL_AllPageSet();                      // once a pass in that mode
void allpagedisp_draw();                   // the keys of the walk, with a page that opens
void allpagedisp_redraw(int elapsed_ms);   // at MSG_REDRAW
void allpagedisp_select(int x, int y);     // a press there
