// setup_index: the list of engineering pages, and which of them are locked against changes.
#pragma once
#include "types.h"

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

constexpr int SETUP_LOCK_PAGES = 192;
struct SETUPLOCK {
    char password[20] = "";
    int32_t lock = 0;
    int32_t num = 0;
    uint32_t page[SETUP_LOCK_PAGES] = {};
};
static_assert(sizeof(SETUPLOCK) == 796);
extern SETUPLOCK SetupLock;
extern int SetupLock_New; // no lock file was there
#define SETUP_LOCK_FILE "/mnt/data/.setuplock"

void SetupIndex_Build(); // from PageTable
void SetupIndex_LoadLock();
int SetupIndex_SaveLock();            // rebuild the page list from the rows, write. 0 or -1
int SetupIndex_Find(uint32_t page);   // row of a page (variant byte ignored), -1 none
void SetupIndex_SetExtensionPanel(int available); // the row of the extension panel exists
