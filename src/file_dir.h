// file_dir: the user directories of the drives, and how an operator chooses a drive and one of
// them. A directory is a folder right below the root of a drive; each holds a folder a category.
// The lists here are what the drives said last: whoever shows one asks for it anew. Making and
// deleting a directory belongs to the Directory page.
#pragma once
#include "file_name.h"
#include "types.h"

// Also the content of a directory's ".dirprotect", as 40 raw bytes; the program reads only whether
// that file is there.
struct DIRINFO {
    char name[FILE_DIR_SIZE] = "";
    char time[20] = "";
    int32_t protect = 0;
};
static_assert(sizeof(DIRINFO) == 40);

constexpr int DIRLIST_HDD_MAX = 200;
constexpr int DIRLIST_MC_MAX = 120;
constexpr int DIRLIST_NET_MAX = 200;
extern DIRINFO DirListHDD[DIRLIST_HDD_MAX];
extern DIRINFO DirListMC[DIRLIST_MC_MAX];
extern DIRINFO DirListNet[DIRLIST_NET_MAX];

// The list of a drive and its rows in use, row 0 the default directory, the others by name; null
// and 0 for a drive without directories.
DIRINFO* File_DirList(int drive, int* count);
// The row of a name (any case on the removable drive), -1 none.
int File_DirFind(int drive, const char* name);
// The directory that the autoload loads from, in any case of letters: on the local drive no
// operator sees, makes or deletes it. On the others it is a name like any.
constexpr char FILE_DIR_AUTOLOAD[] = "PWON_LD";
int File_DirIsAutoload(int drive, const char* name);
// "<directory>/.dirprotect" is there. Asks the file system at once.
int File_DirIsProtected(int drive, const char* name);
// The path of that file on this machine; false for a directory that is not on it.
bool File_DirMarker(char (&path)[PATH_SIZE], int drive, const char* name);
int File_DirWriteMarker(const char* path, const DIRINFO& d); // as SafeFile_Write
// For the end of a search of a folder that lies in a directory: 0 when it failed, so that there may
// be more than came. A search of a folder that is not there fails, too; a directory need not have
// all.
int File_FindIsWhole(int drive, const char* dir, const char* folder);
// Ask the server for the directories of a drive. done comes once at the end, when the list is
// whole; a search that runs for the drive already begins anew and serves both. -1 when nothing was
// asked.
int File_DirRead(int drive, void (*done)(int tag), int tag);

// A side of a page: what it shows.
struct FILESIDE {
    int device = FILE_REGISTER;         // FILEDRIVE
    char dir[FILE_DIR_SIZE] = "SYSTEM"; // without meaning for the registers
};

// Drives that are offered: a bit (1 << FILEDRIVE) each.
constexpr int FILE_DRIVES_ALL = 0x0F;
constexpr int FILE_DRIVES_DISK = 0x0E;

// The pane of the drives. None is marked: a touch of a marked key goes for nothing. Its result is
// the FILEDRIVE + 1, 0 "Cancel". 0 when none is offered.
int File_DrivePane(int drives);

// Let the operator choose a drive and then a directory of it, or with FileSelect_Dir a directory of
// the drive that the side has. side is written and chosen called when the choice is whole; until
// then, and after "Cancel", it is as it was. The side must live until the page is left. 0, or -1
// when there is nothing to choose.
int FileSelect_Device(FILESIDE* side, int drives, void (*chosen)(int tag), int tag);
int FileSelect_Dir(FILESIDE* side, void (*chosen)(int tag), int tag);
// Every page that opens a choice forwards its messages here. 1 when the message was one of ours.
int FileSelect_Proc(int msg, MsgArg ax, MsgArg bx);
void FileSelect_Close(); // the page is left: no choice comes any more

void File_DirReset(); // as at process start; for tests
