// pc_file_all: the All page of the File menu: every category at once, between the running system
// and a directory of a drive or between two drives, and the same for the automation's folder. A
// transfer has three stages: the files are gathered, one category after the other, in steps that
// leave every pass short; a save then clears the directory that it goes to; the jobs follow, the
// frame memory's behind that of the registers. What a file is called belongs to file_name, the
// pictures' own names to pc_file_all_frames.
#pragma once
#include "a_pc.h"
#include "pc_file_kind.h"

// A category of the page. The functions gather its files for one of the three ways, a step a call;
// 1 when there are more steps.
struct ALLTBL {
    const char* cmd = "";  // the category's word, also of its button's command
    const char* name = ""; // for the operator
    int onoff = 1;         // selected
    int (*savefunc)(int row, int step) = nullptr;
    int (*loadfunc)(int row, int step) = nullptr;
    int (*copyfunc)(int row, int step) = nullptr;
    FILEPAGE first = FILEPAGES; // the kinds of registers that it has, first to last
    FILEPAGE last = FILEPAGES;
};

constexpr int ALL_CATEGORIES = 13;
constexpr int ALL_FRAMEMEM = ALL_CATEGORIES; // the frame memory has a button of its own behind them
constexpr int ALL_ROWS = ALL_CATEGORIES + 1;
extern ALLTBL AllTbl[ALL_ROWS];

// Searches of the drives that have not ended.
extern int AllLoadCount;

// --- The page ---

extern const PC_TBL pc_file_all;

// Buttons that the code names; the categories stand in the order of AllTbl.
enum : int {
    BTN_ALL_DEVICE_A = 65,
    BTN_ALL_DIR_A = 66,
    BTN_ALL_DEVICE_B = 68,
    BTN_ALL_DIR_B = 69,
    BTN_ALL_SELECT = 38,
    BTN_ALL_L_TO_R = 51,
    BTN_ALL_R_TO_L = 52,
    BTN_ALL_CLEAR = 54,
};
constexpr int BtnOfAllCategory(int row)
{
    constexpr int COLUMNS = 6;
    return (row / COLUMNS) << 4 | (row % COLUMNS + 1);
}

// --- For the automation's command folder ---
// All registers and setups, whatever the page has selected, to "/tmp/FTPIF/Export" and from
// "/tmp/FTPIF/Import"; the pictures have folders of their own there. 0 when the transfer has begun,
// -1 when it cannot begin now. At its end FMCtrl_FtpAnswer leaves "allsave.res" or "allload.res".
int AllSave();
int AllLoad();

// --- For the bus ---
int FileAllProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0

// The server answers no search any more, and takes no further job: to be called before the work
// engine ends the jobs that it has.
void FileAll_LinkLost();
void FileAll_Reset(); // as at process start; for tests
