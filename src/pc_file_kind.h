// pc_file_kind: what the pages of two lists in the File menu differ in, a row a page: which group
// of regions, what the running system holds of it, and how a register is renamed and deleted there.
#pragma once
#include "pc_file.h"
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

// What the mirror of the registers keeps of a kind.
struct FileRegisters {
    int kind; // of LMSG_REGISTER
    int (*exist)(int row, int no);
    int (*lock)(int row, int no);
    const char* (*name)(int row, int no);
    int (*row)(int region_id); // of the mirror; -1: not kept
};

// How the running system is told. The values: the mask of the regions that are meant, where there
// is one, and number and name, or the number twice.
enum FILEMASK : int {
    FILEMASK_NONE,
    FILEMASK_SHORT,
    FILEMASK_WIDE
}; // "%X", or 64 bits as "%08X%08X"
struct FileCommands {
    const char* rename;
    const char* remove;
    uint64_t (*mask)(int region_id); // 0: the region has none of these registers
    FILEMASK form;
    const char* (*name)(int no) = nullptr; // not null: told by its name instead of mask and number
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
    const FileRegisters* registers = nullptr; // null: one setting, always there
    const FileCommands* commands = nullptr;   // null: renamed and deleted on drives only
    FILEWAY way = FILEWAY_RESERVED;
    int left = FILE_REGISTER; // FILEDRIVE of the sides until the operator has chosen
    int right = FILE_LOCAL;
    bool has_folders = false; // lists what a folder holds instead of a row a register number
};
extern const FileKind file_kinds[FILEPAGES];

int FileKind_Group(const FileKind& kind);
// Rename or delete register no (from 0) of the regions in the mask of the running system.
void FileKind_Rename(const FileKind& kind, uint64_t mask, int no, const char* name);
void FileKind_Delete(const FileKind& kind, uint64_t mask, int no);
// Frame memory: the name that a register gets when an operator enters one for it and for others:
// its own prefix stays. entered is what stood in the keyboard, first the name that it began with.
// Returns 0, or -1 for a name that is empty or one that the system gives itself.
int FileKind_FrameName(char (&name)[FILE_NAME_SIZE], const char* own, const char* first,
                       const char* entered);
// What register no of the running system has in a region: 0, or -1 when it is empty.
int FileKind_Register(const FileKind& kind, int region_id, int no, char* name, int size, int* lock);
