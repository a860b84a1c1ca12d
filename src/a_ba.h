// a_ba: the base area, the frame of every page: page button with the access lamps, title band,
// history buttons, the area at top right, and the key at lower left (default recall or setup lock).
// The strip at top right is painted by a_kf; what stands in the work area belongs to the other
// objects.
#pragma once
#include "types.h"

struct BA_TBL {
    int id = 0; // 1 main, 2 sub, 3 timeline, 4 and 5 file pages
    int info[8] = {};
    int (*create_func)(uint32_t parent) = nullptr;
    int (*proc_func)(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx) = nullptr;
};
extern const BA_TBL base_main;
extern const BA_TBL base_sub;
extern const BA_TBL base_kf_tl;
extern const BA_TBL base_file_main;
extern const BA_TBL base_file_sub;

// --- Opening and closing a page ---
// parent: the page shown before a sub page. Null empties the object and returns 1.
int BA_Create(const BA_TBL* bt, uint32_t parent);
int BA_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- For other objects ---
// Default recall is armed: buttons take no press, a press on a number box recalls its default.
int BA_IsDefaultButton();
void BA_SetDefaultButton(int n);
void BA_SetPagebtn();      // repaint the page button
void BA_RedrawTitle();     // repaint the title at the next pass
void BA_RedrawMenuMacro(); // repaint the menu macro keys
void BA_FlashSetupLock();  // a press was refused: the lock mark says why
void BA_DrawError();       // an error has taken the title
void BA_SetFtpAccess(int on);
void BA_SetUsbAccess(int on);
void BA_SetHDDAccess(int on);
void BA_AccessDraw();          // lamps, flushed
void BA_AccessDraw_s();        // lamps, not flushed
void BA_SetRegionGrp(int grp); // which regions the top right of file pages offers
