// pane: the boxes above a page that tell or ask something and are answered before the page goes on. Panes stack; only
// the top one takes input. The region selection model lives in pane_region.
#pragma once
#include "types.h"

enum : int { PANE_INFO = 0, PANE_ALERT = 1, PANE_FATAL = 2 };

struct BTNSEL {
    int id = 0; // 0 or below: an empty cell
    const char* caption = "";
    int select = 0; // 1 selected, 2 selected and reference
};

// --- Opening: each closes any window, wakes the screen and returns the pane's id, above 0 ---
int PaneMessage_Create(const char* caption, int icon, const char* mes);
int PaneYesNo_Create(const char* caption, int icon, const char* mes);
int PaneProgress_Create(const char* caption, const char* mes, int cancel);
int PaneProgress_SetProg(int id, int percent, const char* text);
int PaneProgress_SetRouteLamp(int id, int on);
int Pane_AppendMessage(int id, const char* text); // -1 unknown, -2 wrong type
int PanePullDown_Create(int x, int y, int n, const BTNSEL* items);
int PaneSelect_Create(int hn, int vn, const BTNSEL* btnsel);
int PaneSelect_Color_Button_Create(int hn, int vn, const BTNSEL* btnsel);
int PanePopup_Create(int vn, int hn, const BTNSEL* btnsel);
int PanePopup_BtnDisable(int id, int on);
int PanePopup_BtnCutOff(int id, int on);
int FMOutPopup_Create(int vn, int hn, const BTNSEL* btnsel);
int PaneRTRLvl_Create(int levels); // 4 or 8
void PaneRTRLvl_SetSelect(int bits);
void PaneRTRLvl_LvlSetSelect(int level, int on);
int PaneRTRLvl_IsSelected(int level);
int PaneRTRLvl_Selected();
int PaneFind_Create(int x, int y, int indicator);
int PaneFind_Indicator(int on);
int PaneDirectory_Create(int n, const BTNSEL* entries);
int PaneDirectory_Create_FolderPopup(int n, const BTNSEL* entries);
int KeyFrameRunCtrl_Create();
int keyframerunctrl_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// A progress pane outside the stack, for the restore of a whole system and of the hard disk.
int PaneProgress_RestoreCreate(const char* caption, const char* mes, int cancel);
int PaneProgress_RestoreInit();
int PaneProgress_RestoreSetProg(int percent, const char* text);
int PaneProgress_RestoreSetRouteLamp(int on);
int PaneProgress_RestoreAppendMessage(const char* text);
int PaneProgress_RestoreQuit();
int PaneProgress_HDD_RestoreCreate(const char* caption, const char* mes, int cancel);
int PaneProgress_HDD_RestoreInit();
int PaneProgress_HDD_RestoreSetProg(int percent, const char* text);
int PaneProgress_HDD_RestoreSetRouteLamp(int on);
int PaneProgress_HDD_RestoreAppendMessage(const char* text);
int PaneProgress_HDD_RestoreQuit();

// --- For everybody ---
int Pane_Quit(int id);        // close now, without a result message; -1 unknown
int Pane_SetQuitFlag(int id); // the same at the next repaint
int Pane_GetActiveID();       // the pane on top, 0 none
int Pane_Exist(int id);       // 1 or 0
void Pane_RedrawAll();
// Offered every message first; non-zero consumes it.
int PaneProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- Regions: grp is a group number 0..46 ---
constexpr int REGION_GROUPS = 47;
int PaneRegion_InitID(int grp); // the cells of the units that exist
int PaneRegion_Create(int grp, int single);
int PaneRegion_GetMainMax(int grp);
int PaneRegion_GetGrpID(int grp, int main, int sub);
const char* PaneRegion_GetGrpName(int grp, int main);
int PaneRegion_GetGrpPos(int grp, int main);
const char* PaneRegion_GetGrpFIRegion(int grp, int main, int sub);
const char* PaneRegion_GetGrpFIRegion_DualProc(int grp, int main, int sub);
const char* PaneRegion_GetGrpFIExt(int grp, int main, int sub);
const char* PaneRegion_GetGrpCategoryStr(int grp);
int PaneRegion_GetGrpMainSub(int grp, int id, int* main, int* sub); // 0, or -1 when the id is not there
int PaneRegion_IsSelected(int grp, int id); // 0, 1, 2 the reference
int PaneRegion_GetRef(int grp);             // id of the reference, 0 none
int PaneRegion_SetDefaultSelected(int grp);
