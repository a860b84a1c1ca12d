// scrollbar: the scroll bars of lists, above the page's objects.
#pragma once
#include "types.h"

int ScrollBarProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void CloseScrollBarAll();
void SB_IgnoreRedraw(int on); // the next arrow press is a wheel step: the arrow does not show it
