// file_name: how the files of registers and setups are called, and where they lie.
// A file is "<folder of its category>/<unit>/[<region>/]<name>.<region>_<number>.<ext>". The group
// of regions (RegionBtn) says which category, regions and numbers there are; this module turns such
// a path into a place of the group's region table and back. It never looks at a drive.
#pragma once
#include "types.h"

// --- Where a side of a page reads or writes ---

enum FILEDRIVE : int {
    FILE_REGISTER = 0, // the running system
    FILE_LOCAL = 1,
    FILE_REMOVABLE = 2, // FAT: names are more restricted
    FILE_NETWORK = 3,
    FILE_REMOTE_PNL = 4, // of path building only: the local drive of the first own panel
    FILE_FTP = 5,
};
constexpr int FILE_DRIVES = 4; // that an operator can choose

constexpr char FILE_DIR_DEFAULT[] = "SYSTEM";
constexpr int FILE_DIR_SIZE = 16;  // name of a user directory with its terminator
constexpr int FILE_NAME_SIZE = 33; // name of a register on a drive with its terminator

const char* File_DriveCaption(int drive); // "Removable\nDrive"; "" for an unknown one
// "MYHOST:.../root/" of a drive; false for the registers, an unknown drive, or when it does not
// fit.
bool File_Root(char* buffer, int size, int drive);
bool File_DirPath(char* buffer, int size, int drive, const char* dir); // ends without "/"
bool File_CategoryPath(char* buffer, int size, int drive, const char* dir, const char* category);

// --- Groups ---

constexpr int FILE_GROUPS = 46;               // with registers: all but the last of RegionBtn
extern const int RegisterNum[FILE_GROUPS];    // of a group; 0: none
extern const int RegionDirExist[FILE_GROUPS]; // 1: a folder for each region

int File_FirstNumber(int grp); // 0, 1, 101, 201 or 301
int File_NumberWidth(const char* ext);
const char* File_RegionWord(int grp, int main, int sub); // as the unit that has the region counts

int File_HasRegion(int grp, int main, int sub); // 1: a unit here has it

// --- A path and what it names ---

constexpr int FILE_WHOLE_ID = 256; // of FILEINFO.device

// The folders of the frame memory have a place of their own in a user directory. The default one
// bears this name there.
constexpr char FRAME_FOLDER_DEFAULT[] = "DEFAULT";
constexpr int FRAME_FOLDER_SIZE = 9;

struct FILEINFO {
    int grp = 0;  // to be set before name2info
    int main = 0; // place in the group's region table
    int sub = 0;
    int no = 0;     // of the register, from 0; of the extended frame memory from FMEM_EXTENDED
    int device = 0; // own unit from 0; plus FILE_WHOLE_ID when its folder bears the whole id
    char name[FILE_NAME_SIZE] = "";
    char folder[FRAME_FOLDER_SIZE] = ""; // frame memory: on a drive it stands in there; "": none
    int is_ancillary = 0;                // frame memory: with an ancillary channel, "SFA"
};

enum : int { // of name2info
    NAME_NO_EXT = -1,
    NAME_NO_NUMBER = -2,
    NAME_NO_REGION = -3,
    NAME_NO_FOLDER = -4, // the "/" before the file
    NAME_NO_UNIT = -5,   // ... before the region's folder or the unit's
    NAME_UNKNOWN_UNIT = -6,
    NAME_UNKNOWN_REGION = -7,
    NAME_BAD_NUMBER = -8,
    NAME_NOT_OF_UNIT = -9,   // another unit has the region
    NAME_NO_UNIT_HERE = -10, // no unit has it
    NAME_NOT_100 = -100,     // of the groups that count from 101, 201, 301
    NAME_NOT_200 = -200,
    NAME_NOT_300 = -300,
};
// Read a path; info->grp says in which group. 0, or the step that failed, info as it was. A name
// that is too long is cut.
int name2info(const char* path, FILEINFO* info);
// The path of a register: on a drive in a user directory, or with FILE_REGISTER on the unit. 0; -1
// when there is no such unit or place, or it does not fit.
int info2name(const FILEINFO& info, char* buffer, int device, const char* dir, int size);
// How a register of the frame memory is called where it is put to or got from:
// "SWR001D001:Mlogo.FMEM_001.SFM", without a name "SWR001D001:FMEM_001.SFM". 0; -1 when the
// switcher is not there or it does not fit.
int File_FrameName(const FILEINFO& info, char* buffer, int size);
// Where a drive has the folders of the frame memory, ending with "/"; with a folder's name that
// one. False as for File_Root.
bool File_FrameFolderPath(char* buffer, int size, int drive, const char* dir, const char* folder);
// The hub's target of a path that info2name made for FILE_REGISTER: "SWR1", "PNL2". -1 when it has
// none: a menu macro is a file of this unit.
int File_Target(const char* path, char* target, int size);
