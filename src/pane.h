// pane: the boxes above a page that tell or ask something and are answered before the page goes on.
// Panes stack; only the top one takes input. The region selection model lives in pane_region.
#pragma once
#include "types.h"

enum : int { PANE_INFO = 0, PANE_ALERT = 1, PANE_FATAL = 2 };

struct BTNSEL {
    int id = 0; // 0 or below: an empty cell
    const char* caption = "";
    int select = 0; // 1 selected, 2 selected and reference
};

// What of a transfer's route a progress pane shows.
enum : int {
    ROUTE_LAMP_NONE = 0,
    ROUTE_LAMP_CONTROL = 2, // the lamp is there, dark: over the control network
    ROUTE_LAMP_DATA = 3,    // lit: over the data port
};

// --- Opening: each closes any window, wakes the screen and returns the pane's id, above 0; 0 when
// memory is out --- Captions of buttons are not copied and must live as long as the pane; titles
// and messages are. When the pane closes, the bus gets LMSG_PANEQUIT with its id and a result. Rows
// of BTNSEL come row by row.
int PaneMessage_Create(const char* caption, int icon, const char* mes);    // result 0 for OK
int PaneYesNo_Create(const char* caption, int icon, const char* mes);      // result 1 yes, 2 no
int PaneProgress_Create(const char* caption, const char* mes, int cancel); // result 1: cancelled
// Show a progress; a null text leaves the line as it is. -1 unknown id, -2 wrong type.
int PaneProgress_SetProg(int id, int percent, const char* text);
int PaneProgress_SetRouteLamp(int id, int lamp); // ROUTE_LAMP_; -1, -2 the same
// Append to a message, yes/no or progress pane and show the end of its text. -1 unknown, -2 wrong
// type.
int Pane_AppendMessage(int id, const char* text);
// The id of the item, 0 when closed by a press beside it. The column ends at x 691, under tabs at
// the right edge of the work area, whatever x the caller has; a long one is moved up.
int PanePullDown_Create(int x, int y, int n, const BTNSEL* items);
// The id of the choice, 0 for "Cancel".
int PaneSelect_Create(int hn, int vn, const BTNSEL* btnsel);
int PaneSelect_Color_Button_Create(int hn, int vn, const BTNSEL* btnsel); // ids are colours 1 to 9
int PanePopup_Create(int vn, int hn, const BTNSEL* btnsel);
int FMOutPopup_Create(int vn, int hn, const BTNSEL* btnsel);
// On the topmost popup, by the id of one of its buttons. -1 when there is none.
int PanePopup_BtnDisable(int id, int on); // seen, not pressed
int PanePopup_BtnCutOff(int id, int on);  // not even seen
int PaneDirectory_Create(
    int n, const BTNSEL* entries); // pages of up to 40 entries; the id, 0 for "Cancel"
int PaneDirectory_Create_FolderPopup(int n, const BTNSEL* entries); // of up to 30

// Router levels 0 to 7, bit n for level n. Single: the first press closes it, and its result is the
// level + 1. Otherwise "Enter" takes the selection over, result 1; closed by a press outside, 0, or
// in any other way it stays as it was.
int PaneRTRLvl_Create(int single);
void PaneRTRLvl_SetSelect(int bits);
void PaneRTRLvl_LvlSetSelect(int level, int on);
int PaneRTRLvl_IsSelected(int level);
int PaneRTRLvl_Selected(); // the bits

// Buttons of the find pane, as LMSG_PANEBTNSEL reports them; the arrows repeat while they are held.
enum : int { PANEFIND_TEXT = 1, PANEFIND_PREV = 2, PANEFIND_NEXT = 3, PANEFIND_CLOSE = 4 };
int PaneFind_Create(int x, int y, int indicator); // with the indicator on it takes no press
int PaneFind_Indicator(int on);                   // at once; -1 when no find pane is open

// Run control of the timelines: a press sends a command, the tallies light the keys.
int KeyFrameRunCtrl_Create();
int keyframerunctrl_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx,
                         MsgArg dx); // called by PaneProc while it is open

// --- The progress of a job whose pane is not always there ---
// A job notes its progress here from Init on, whatever page is shown; Create opens an ordinary pane
// that shows what was noted, below the message; Quit closes that pane and forgets. One for
// transfers of files, one for the external disk.
int PaneProgress_RestoreCreate(const char* caption, const char* mes, int cancel);
int PaneProgress_RestoreInit();
int PaneProgress_RestoreSetProg(int percent, const char* text);
int PaneProgress_RestoreSetRouteLamp(int lamp);
int PaneProgress_RestoreAppendMessage(const char* text);
int PaneProgress_RestoreQuit(); // -1 when its pane is not open
int PaneProgress_HDD_RestoreCreate(const char* caption, const char* mes, int cancel);
int PaneProgress_HDD_RestoreInit();
int PaneProgress_HDD_RestoreSetProg(int percent, const char* text);
int PaneProgress_HDD_RestoreSetRouteLamp(int lamp);
int PaneProgress_HDD_RestoreAppendMessage(const char* text);
int PaneProgress_HDD_RestoreQuit();

// --- For everybody ---
int Pane_Quit(int id);        // close now, without a result message; -1 unknown
int Pane_SetQuitFlag(int id); // the same at the next repaint
int Pane_GetActiveID();       // the pane on top, 0 none
int Pane_Exist(int id);       // 1 or 0
void Pane_RedrawAll();        // with the window above them, if there is one
// For a window that opens above panes: box is what it will cover, its shadow included. There is one
// screen save, so theirs holds the ground of both, and they are painted anew when it has gone.
void Pane_WindowOpens(const Rect& box);
void Pane_WindowCloses();
// Offered every message first; non-zero consumes it.
int PaneProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- Regions: grp is a group number 0..46, main a row of its region area, sub one of the row's
// regions --- Everything answers for an unknown group or place, too: 0, -1 where said, or "".
constexpr int REGION_GROUPS = 47;
constexpr int REGION_ID_SWITCHER = 896; // of this panel's first switcher, the next ones follow
int PaneRegion_InitID(int grp);         // the cells of the units that exist; -1 unknown group
int PaneRegion_Create(
    int grp,
    int single); // result: single: the region's id; otherwise 1 for "Enter". 0: left
int PaneRegion_GetMainMax(int grp);
int PaneRegion_GetGrpID(int grp, int main, int sub); // 0 behind the last
const char* PaneRegion_GetGrpName(int grp, int main);
int PaneRegion_GetGrpPos(int grp, int main);
const char* PaneRegion_GetGrpFIRegion(int grp, int main,
                                      int sub); // the region's word in file names
// The same where two processors share an effects unit's channels: each unit counts "CH1", "CH2".
const char* PaneRegion_GetGrpFIRegion_DualProc(int grp, int main, int sub);
const char* PaneRegion_GetGrpFIExt(int grp, int main, int sub);
const char* PaneRegion_GetGrpCategoryStr(int grp);
int PaneRegion_GetGrpMainSub(int grp, int id, int* main,
                             int* sub);             // 0, or -1 when the id is not there
const char* PaneRegion_GetCaption(int grp, int id); // of its cell; "" when it has none
int PaneRegion_IsSelected(int grp, int id);         // 0, 1, 2 the reference
int PaneRegion_GetRef(int grp);                     // id of the reference, 0 none
// Without a switcher the first effects channel is the reference. -1 unknown group.
int PaneRegion_SetDefaultSelected(int grp);
