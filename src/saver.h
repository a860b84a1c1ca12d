// saver: the screen saver. After GL_ScreenSaverInterval seconds without a touch it blanks the
// display and shows something slow and dark, so that no picture burns in. It hides the page by
// withholding the repaints and gives it back by opening it anew. On switchers of the type
// DEVTYPE_KTR40E it shows one of 17 patterns, on others a line of text that fades.
// It does not own the touch: the main loop swallows the one that wakes the screen.
#pragma once
#include "types.h"

constexpr int SAVER_NAMES = 10;
constexpr int SAVER_TEXT = 64; // a name or a folder, with its terminator
constexpr int SAVER_SPEEDS = 10;
constexpr int SAVER_PATTERNS = 17; // the default one is the last; 0 is the plain form
constexpr int SAVER_HOLD_MAX_S = 600;

// --- Settings; the interval is in global, for the server keeps it ---
extern int GL_ScreenSaverPTN_Mode;       // 0 to SAVER_PATTERNS; any other number is the default
extern int GL_ScreenSaverVariable_speed; // 0 to SAVER_SPEEDS - 1: how fast pictures fade
extern int GL_ScreenSaverPath_Time;      // s that a picture is held
extern int GL_SSver_PVW;                 // start at the next pass, with the patterns
extern int GL_SSver_Shown;               // so it did: the patterns are shown on any switcher
extern char GL_Scr_disp_name[SAVER_NAMES][SAVER_TEXT];
extern char GL_Scr_disp_ImagePath[SAVER_TEXT]; // the folder of SSrc_0.bmp to SSrc_99.bmp

// --- For the main loop ---
// Count, start when due, and draw one step; once a pass. 1: this page, the interval or a running
// menu macro bars it, 2: a window or pane is open, 3: continuous load; the count then stands still.
int ScreenSaver(int elapsed_ms);
// Called for every touch and by whatever must be seen. Wakes the screen and starts the count anew.
// 1 when the saver was up, otherwise 0.
int EndScreenSaver();
int IsSaver(); // 1 while it is up

// --- The settings file ---
// The server keeps the interval only; the rest is in a file of this unit. A missing file or line
// leaves its setting as it is, and so does a value that is out of range.
void Saver_LoadSettings();
int Saver_SaveSettings(); // 0, or -1 with a log line; then the old file is still whole
