// pc_file: what the pages of the File menu share: the rows and cells of their lists, the load lock,
// and what is read anew when a transfer has changed the running system.
#pragma once
#include "file.h"
#include "file_dir.h"
#include "file_name.h"
#include "global.h"
#include "types.h"

// Of a page that a transfer has for itself.
constexpr char FILE_INHIBITED[] = "Operation in this menu is inhibited\nduring file transfer.";

// --- Lists ---

// One file of a row: the register in one region.
struct FILECELL {
    int main = 0; // place in the group's region table
    int sub = 0;
    int no = 0;           // of the register, as FILEINFO.no
    int device = 0;       // as FILEINFO.device
    int id = 0;           // of the region
    int board = 0;        // its folder bears the unit's whole id
    int type = 0;         // of the row
    int pair = 0;         // frame memory: 1 the main side, 2 the sub side, 3 both
    int is_ancillary = 0; // frame memory
    char name[FILE_NAME_SIZE] = "";
    char time[20] = "";       // "MM.DD.YYYY hh:mm", empty when unknown
    int disable = 0;          // its region is not selected
    int lock = 0;             // the register is locked
    int hidden = 0;           // its unit is not there
    int odd = 0;              // its file is called as the side remembers it, 0: as info2name says
    FILECELL* next = nullptr; // of the row, by main and sub
};

// A row of a list: a register number over all regions. Without a cell there is nothing.
enum : int { FILEROW_REGISTER = 0, FILEROW_FOLDER = 1 };
struct FILELIST {
    int type = FILEROW_REGISTER; // a folder of the frame memory has no cells
    int pair = 0;
    int is_ancillary = 0;
    char name[16] = ""; // of the first cell in view
    char time[20] = "";
    FILECELL* cell = nullptr;
    int board = 0;
};

// A file as a search told it, before it has its place in a list.
struct FILEBASE {
    FILEINFO info;
    char path[PATH_SIZE] = "";
    char time[20] = "";
};

// --- The load lock ---

enum : int { // index into GL_FileLock
    FILELOCK_CATEGORY_SETUP = 0,
    FILELOCK_CATEGORY_INITIAL_STATUS = 1,
    FILELOCK_CATEGORY_KEY_MEMORY = 2,
    FILELOCK_CATEGORY_VIDEO_PROC_MEMORY = 3,
    FILELOCK_CATEGORY_EFFECT = 4,
    FILELOCK_CATEGORY_SNAPSHOT = 5,
    FILELOCK_CATEGORY_WIPE_SNAPSHOT = 6,
    FILELOCK_CATEGORY_DME_SNAPSHOT = 7,
    FILELOCK_CATEGORY_KEY_SNAPSHOT = 8,
    FILELOCK_CATEGORY_SHOTBOX = 9,
    FILELOCK_CATEGORY_MACRO = 10,
    FILELOCK_CATEGORY_MACRO_ATTACHMENT = 11,
    FILELOCK_CATEGORY_MENU_MACRO = 12,
    FILELOCK_CATEGORY_USERSETUP = 13,
    FILELOCK_CATEGORY_SWR_SETUP = 14,
    FILELOCK_CATEGORY_DME_SETUP = 15,
    FILELOCK_CATEGORY_PNLGUI_SETUP = 16,
    FILELOCK_CATEGORY_TLYRTR_SETUP = 17,
};
static_assert(FILELOCK_CATEGORY_TLYRTR_SETUP + 1 == FILE_LOCKS);

constexpr int SETUP_REGIONS = 4;
extern const char* const Lock_RegionName[SETUP_REGIONS]; // of the setup's region table

int File_LockOfCategory(const char* category); // FILELOCK_CATEGORY_, -1 none
// A row of the setup's region table may not be loaded.
int File_IsSetupRegionLocked(int main);
int File_IsSetupLocked(); // none of the four may

// --- The groups of this installation ---

enum FILEKIND : int {
    KIND_EFFECT, // 1 to 99
    KIND_EFFECT_EX,
    KIND_EFF100,
    KIND_EFF200,
    KIND_EFF300,
    KIND_SNAPSHOT,
    KIND_WIPESS,
    KIND_DMESS,
};
// The number in RegionBtn whose regions are those of the units here.
int File_GroupOf(FILEKIND kind);

// --- The tabs of the frame memory's pages ---

// For their page code when it opens: the older frame memory has no folders, and no tab that leads
// to them.
void File_ShowFrameTabs();

// --- After a transfer ---

// Ask for what a load of the category may have changed; nothing for one that tells itself.
void File_ReadCategory(const char* category);
// Ask for what the items that ended well may have changed, each category once. Before the job frees
// its list.
void xferlist_result_display(const FILEXFERLIST* list);
// What went wrong while the operator was elsewhere, into the list of errors: the first file that
// failed, and how many more. Before the job frees its list.
void xferlist_errors_add(const FILEXFERLIST* list);
