// pc_file_kind: what the pages of two lists in the File menu differ in, a row a page: which group
// of regions and what the running system holds of it. How stored registers are mirrored, and how
// one is renamed and deleted there, belongs to pc_register_kind.
#pragma once
#include "pc_file.h"
#include "pc_register_kind.h"
#include "types.h"

enum FILEPAGE : int { // rows of file_kinds, the argument of the page code
    FILEPAGE_SETUP,
    FILEPAGE_INITSTAT,
    FILEPAGE_KEYMEM,
    FILEPAGE_VPROCMEM,
    FILEPAGE_USERSETUP,
    FILEPAGE_EFFECT,
    FILEPAGE_EFF100,
    FILEPAGE_EFF200,
    FILEPAGE_EFF300,
    FILEPAGE_EFFECT_EX,
    FILEPAGE_SNAPSHOT,
    FILEPAGE_WIPESS,
    FILEPAGE_DMESS,
    FILEPAGE_KEYSS,
    FILEPAGE_SHOTBOX,
    FILEPAGE_MACRO,
    FILEPAGE_MACROATC,
    FILEPAGE_MENU_MACRO,
    FILEPAGE_FNAMEDATA,
    FILEPAGE_XPTSRCNAME,
    FILEPAGE_IMPORTSRCNAME,
    FILEPAGE_FMEM,    // the older frame memory: a row a register
    FILEPAGE_FMEM_V6, // the newer one: folders, and of the chosen one what is in it
    FILEPAGES,
};

// Registers that no list of the server's tells: where a file page has them from.
struct FileRegisters {
    int (*exist)(int no);
    const char* (*name)(int no); // valid until the next call
    int region_id;               // the one region that has them; 0: any
};

enum FILEWAY : int {
    FILEWAY_RESERVED, // to and from the running system under the hub's reservation
    FILEWAY_PLAIN,    // by transfer: the hub knows no such category
    FILEWAY_MACRO,    // a file of this unit that the recorder writes and reads
    FILEWAY_FRAME,    // by transfer, under names of the frame memory's own
};

struct FileKind {
    FILEPAGE page = FILEPAGES;
    uint32_t id = 0; // of the dual page; its detail page is the next
    int grp = -1;    // -1: by the units, as kind says
    FILEKIND kind = KIND_EFFECT;
    const RegisterKind* stored = nullptr;     // mirror, masks and commands of stored registers
    const FileRegisters* registers = nullptr; // others; both null: one setting, always there
    FILEWAY way = FILEWAY_RESERVED;
    int left = FILE_REGISTER; // FILEDRIVE of the sides until the operator has chosen
    int right = FILE_LOCAL;
    bool has_folders = false; // lists what a folder holds instead of a row a register number
};
extern const FileKind file_kinds[FILEPAGES];

int FileKind_Group(const FileKind& kind);
int FileKind_Mirror(const FileKind& kind);       // of LMSG_REGISTER; -1: no message tells of it
bool FileKind_HasCommands(const FileKind& kind); // else renamed and deleted on drives only
// The bits of a region in the commands; 0: it has none of these registers.
uint64_t FileKind_Mask(const FileKind& kind, int region_id);
// Rename or delete register no (from 0) of the regions in the mask of the running system. Nothing
// is sent for a mask of 0.
void FileKind_Rename(const FileKind& kind, uint64_t mask, int no, const char* name);
void FileKind_Delete(const FileKind& kind, uint64_t mask, int no);
// Frame memory: the name that a register gets when an operator enters one for it and for others:
// its own prefix stays. entered is what stood in the keyboard, first the name that it began with.
// Returns 0, or -1 for a name that is empty or one that the system gives itself.
int FileKind_FrameName(char (&name)[FILE_NAME_SIZE], const char* own, const char* first,
                       const char* entered);
// What register no of the running system has in a region: 0, or -1 when it is empty.
int FileKind_Register(const FileKind& kind, int region_id, int no, char* name, int size, int* lock);
