// setup_index: the list of engineering pages, and which of them are locked against changes. What a
// lock does to a press belongs to the base area; the password dialogs belong to their page.
#pragma once
#include "page.h"

struct SETUPMENU {
    uint32_t page = 0; // with the variant byte cleared
    char menu[8] = ""; // "7311.12"
    char name[48] = "";
    int lock = 0;   // in the lock set
    int active = 0; // exists in this system
};
struct SETUPTBL {
    int off = 0; // first row of the group
    int num = 0;
};
constexpr int SETUP_ROWS = 256;
constexpr int SETUP_GROUPS = 7; // 0x731.. to 0x737..
extern SETUPMENU SetupMenu[SETUP_ROWS];
extern int SetupMenu_Max;
extern SETUPTBL SetupMenuTbl[SETUP_GROUPS];

constexpr uint32_t PAGE_SETUP_LOCK = 0x73170001; // where the lock is worked; it can't be locked

constexpr int SETUP_LOCK_PAGES = 192;
// What the lock file holds.
struct SETUPLOCK {
    char password[20] = "";
    int32_t lock = 0; // the lock is on: pages of the set take no change
    int32_t num = 0;  // pages in use, 0..SETUP_LOCK_PAGES
    uint32_t page[SETUP_LOCK_PAGES] = {};
};
extern SETUPLOCK SetupLock;
extern int SetupLock_New; // no usable lock file was there
#define SETUP_LOCK_FILE "/mnt/data/.setuplock"

// --- At start-up, in this order ---
void SetupIndex_Build(); // from PageTable; rows past SETUP_ROWS are left out with a log line
void SetupIndex_BuildFrom(const PAGE* table); // the same from another table, ended by PAGE_END
// Read the lock file and mark the rows. A missing file, or one of the wrong length, locks nothing.
void SetupIndex_LoadLock();

// --- For pages ---
// Rebuild the page list from the marked rows (the first SETUP_LOCK_PAGES) and write the file. 0, or
// -1 when it cannot be written.
int SetupIndex_SaveLock();
// The same; a failure is told on the error page.
int SetupIndex_KeepLock();
int SetupIndex_Find(uint32_t page); // row of a page (variant byte ignored), -1 none
// The page is of the lock set and the lock is on: it takes no change. Never the page of the lock.
bool SetupIndex_IsLocked(uint32_t page);
// Whether the page of the extension panel's buttons exists; asked for by DeviceStructure.
void SetupIndex_SetExtensionPanel(int available);
