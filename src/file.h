// file: the work queue of file jobs and the engine that carries them out.
// This program never touches a file on another device: the control server does, asked with
// "put File@...#L<label>,...". A caller brings the paths (or a list of items), a callback and a
// tag, and gets a label. The server acknowledges each label with a work number and reports by it;
// the engine takes a job of many items through its steps, keeps its progress pane and, for copies
// to and from a remote device, holds the device's category at the status hub meanwhile. It has no
// timer: a job ends by a reply, by the operator's Cancel or by the hub's Disconnect. What the paths
// mean belongs to the pages; what arrived in frame memory, to fmctrl.
#pragma once
#include "types.h"

// --- One file of a job ---

constexpr int FILE_PATH_SIZE = 280; // "<host>:<absolute path>" with its terminator

enum : int { // FILEXFERLIST.status; from 128 on finished, but see CHKRESULT
    FILESTATUS_NON = 0,
    FILESTATUS_REQ = 1,       // command sent
    FILESTATUS_EXEC = 2,      // acknowledged
    FILESTATUS_WAIT = 3,      // waits for the hub
    FILESTATUS_WAIT_REQ = 4,  // ready to send, or its folder is being made
    FILESTATUS_GET_START = 5, // its get has been announced to the hub
    FILESTATUS_OK = 128,
    FILESTATUS_NG = 129,
    FILESTATUS_CANCEL = 130,
    FILESTATUS_CHKRESULT = 131, // copied; the remote device's own result is to come: half done
};

struct QUEUE;

// A list is built with the functions below and given to a list entry, which from then on owns its
// items: when the job ends, after the callback and the message, they are freed and the head is
// null. Fields that the engine keeps may be read at any time and are not to be written.
constexpr int IMPORT_KEY_LEFT_OUT = -1; // in import_no[1]: it had one, and info said without

struct FILEXFERLIST {
    char src[FILE_PATH_SIZE] = "";
    char dst[FILE_PATH_SIZE] = "";
    char tmp[FILE_PATH_SIZE] = "";  // staging path; for an import two, with a comma between
    char clip[FILE_PATH_SIZE] = ""; // clip of a frame, else empty
    uint32_t label = 0;             // 0 until its job took it
    uint32_t ack = 0;               // the server's work number of the command under way
    int status = FILESTATUS_NON;
    char mesg[128] = ""; // "<file>: <reply>"
    int usb = 0;         // step of a staged item (file_step)
    char cmd[CMD_SIZE] = "";
    int retry = 0;
    int import_no[2] = {}; // import: target registers; copy of a frame: its number, frames in all
    int fmext = 0;         // import: into the extended store; copy of a frame: id of trans_filetype
    int info =
        0; // a ".SUB" companion travels with it; import into the frame memory: without its key
    char category[32] = "";
    char target[32] = "";
    FILEXFERLIST* next = nullptr;

    // Those of file_newest, until the job begins.
    uint32_t minute = 0; // when the file was saved
    FILEXFERLIST* newest_next = nullptr;

    // The engine's own.
    QUEUE* job = nullptr;
    FILEXFERLIST* label_next = nullptr; // chains of the two indexes
    FILEXFERLIST* ack_next = nullptr;
    int8_t scp_target = -1; // rows of the remote-copy tables, -1: not yet looked up or none
    int8_t scp_category = -1;
};

// Append one item. Returns 0, or -1 when memory is out or a pointer is null. Paths that are too
// long are cut (256 characters for Add and ImportAdd, otherwise 279).
int File_XferList_Add(FILEXFERLIST** list, const char* src, const char* dst);
int File_XferList_ImportAdd(FILEXFERLIST** list, const char* src, const char* dst, int fmext);
int File_XferList_ImportAdd2(FILEXFERLIST** list, const char* src, const char* dst, int fmext,
                             const char* clip, int frame, int frames, int info,
                             const char* category, const char* target);
int File_XferList_SCPAdd(FILEXFERLIST** list, const char* src, const char* dst,
                         const char* category, const char* target);
int File_XferList_SCPAdd_FM(FILEXFERLIST** list, const char* src, const char* dst,
                            const char* category, const char* target, int filetype,
                            const char* clip, int frame, int frames);
// Free the first item whose texts match exactly. 0, or -1 when there is none.
int File_XferList_Remove(FILEXFERLIST** list, const char* src, const char* dst);
int File_XferList_SCPRemove(FILEXFERLIST** list, const char* src, const char* dst,
                            const char* category, const char* target);
// Move an item that no job has taken from one list to the end of another; lists are relinked in no
// other way. -1 when it is not in from, or a job has it.
int File_XferList_Move(FILEXFERLIST** from, FILEXFERLIST* item, FILEXFERLIST** to);
// Free all items; the head becomes null.
void File_XferList_RemoveAll(FILEXFERLIST** list);
void File_XferList_SCPRemoveAll(FILEXFERLIST** list);

// --- Jobs ---

enum FILEWORKTYPE : int {
    FILEWORK_TRANSFER = 0,
    FILEWORK_FMEM_PUT = 32,
    FILEWORK_FMEM_GET = 33,
    FILEWORK_FMEM_GETCTRL = 34,
    FILEWORK_ACCESS_FIND = 64,
    FILEWORK_ACCESS_LISTDIR = 65,
    FILEWORK_ACCESS_MKDIR = 66,
    FILEWORK_ACCESS_COPY = 67,
    FILEWORK_ACCESS_COPYDIR = 68,
    FILEWORK_ACCESS_RMDIR = 69,
    FILEWORK_ACCESS_MOVE = 70,
    FILEWORK_ACCESS_REMOVE = 71,
    FILEWORK_ACCESS_LISTDIRLIST = 72,
    FILEWORK_ACCESS_FINDSFM = 73,
    FILEWORK_TRANSFERLIST = 128,
    FILEWORK_TRANSFERLIST_AUTOLOAD = 129,
    FILEWORK_TRANSFERLIST_BG = 130,
    FILEWORK_FMEM_GETLIST = 160,
    FILEWORK_FMEM_GETLIST_BG = 161,
    FILEWORK_FMEM_PUTLIST = 162,
    FILEWORK_FMEM_MKTHUMBLIST_BG = 163,
    FILEWORK_FMEM_SFM2TIFLIST = 164,
    FILEWORK_FMEM_TIF2SFMLIST = 165,
    FILEWORK_FMEM_SFM2BMPLIST = 166,
    FILEWORK_FMEM_BMP2SFMLIST = 167,
    FILEWORK_FMEM_SFM2TGALIST = 168,
    FILEWORK_FMEM_TGA2SFMLIST = 169,
    FILEWORK_FMEM_FIELDINVERT = 170,
    FILEWORK_FMEM_IMPORTLIST = 171,
    FILEWORK_FMEM_IMPORTLIST_AUTOLOAD = 172,
    FILEWORK_FMEM_EXPORTLIST = 173,
    FILEWORK_ACCESS_COPYLIST = 192,
    FILEWORK_ACCESS_MOVELIST = 193,
    FILEWORK_ACCESS_REMOVELIST = 194,
    FILEWORK_ACCESS_COPYDIRLIST = 195,
    FILEWORK_ACCESS_MAKEVECTOR = 196,
    FILEWORK_ACCESS_USB_RELOAD = 197,
    FILEWORK_ACCESS_USB_REFRESH = 198,
    FILEWORK_STATUS_FMDATAPORT = 199,
    FILEWORK_RMTACCESS_SCPGET = 208,
    FILEWORK_RMTACCESS_SCPPUT = 209,
    FILEWORK_RMTACCESS_SCPDIRGET = 210,
    FILEWORK_RMTACCESS_SCPDIRPUT = 211,
    FILEWORK_RMTACCESS_SCPGETLIST = 212,
    FILEWORK_RMTACCESS_SCPPUTLIST = 213,
    FILEWORK_RMTACCESS_SCPDIRGETLIST = 214,
    FILEWORK_RMTACCESS_SCPDIRPUTLIST = 215,
    FILEWORK_RMTACCESS_SCPIMPORTLIST = 216,
    FILEWORK_RMTACCESS_SCPEXPORTLIST = 217,
};

// Every result goes out twice: to the job's callback (null: none), then to all as LMSG_FILESTATUS
// with ax the work type, bx the label, cx the reply text or, for a list job, the address of its
// list head, dx 0 or a date. A text lives as long as the call. A callback may start new jobs.

// Single jobs: once, with the server's reply ("OK", "NG(...)"). USB jobs: for each row of six
// fields and once more at the end with the last text.
using FILE_TEXT_FUNC = void (*)(uint32_t label, int tag, const char* reply);
// List jobs: once, when all items are finished; their list still stands.
using FILE_LIST_FUNC = void (*)(uint32_t label, int tag);
// Searches: for each row with its name and the pair of name and date ("Nov.25.2026 09:20", empty
// when the server's was none); at the end with two nulls. The end's message is LMSG_FINDSTATUS.
using FILE_FIND_FUNC = void (*)(uint32_t label, int tag, const char* name, const char* const* pair);
int File_FindFailed(); // in the call at the end: it was no "OK", there may be more than came
// FindSFM: for each row with its seven fields, commas between; at the end with null.
using FILE_ROW_FUNC = FILE_TEXT_FUNC;

constexpr int FILE_IN_FLIGHT = 8; // staged items of a job under way at once

union FILERETFUNC {
    FILE_TEXT_FUNC text;
    FILE_LIST_FUNC list;
    FILE_FIND_FUNC find;
};

struct QUEUE {
    uint32_t label = 0;
    uint32_t ack = 0;
    FILEWORKTYPE worktype = FILEWORK_TRANSFER;
    FILEXFERLIST** xferlist = nullptr; // the caller's head, or NullXfer
    FILERETFUNC retfunc = {};
    int tag = 0;
    int paneid = 0; // progress pane, 0 none
    QUEUE* next = nullptr;

    // The engine's own: what would otherwise be counted over the whole list at every reply.
    FILEXFERLIST* last = nullptr;    // all items up to this one have a label
    FILEXFERLIST* started = nullptr; // ... and have been looked at by the launcher
    int items = 0;
    int finished = 0;                     // status 128 and above, 131 too
    int checking = 0;                     // status 131
    int in_flight = 0;                    // REQ or EXEC
    uint32_t flight[FILE_IN_FLIGHT] = {}; // labels of staged items under way, 0 free
    const char* title = nullptr;          // of its pane, null: it opens none
    int sync_pid = 0;                     // all done, this child writes the drives; 0 none
    struct FILECOUNT* scp = nullptr;      // remote copies: the same by target and category
};

extern QUEUE* QueueRoot;
extern uint32_t LabelID;                 // the next label; 0 is read as 1
extern int GL_FMDataPortStatus[2];       // 1: the switcher's data port is connected
constexpr int FILE_DATA_PORT_BITS = 127; // of GL_FMDataPortDisable: not 0, its pictures go there

// --- Starting jobs: each returns the job's label, or -1 (an empty list, memory out) ---

int File_ExecTransfer(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecFmPut(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecFmGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecFmCtrlGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecFind(const char* path, const char* pattern, FILE_FIND_FUNC retfunc, int tag);
int File_ExecFind2(const char* path, int depth, const char* pattern, FILE_FIND_FUNC retfunc,
                   int tag);
int File_ExecListDir(const char* path, FILE_FIND_FUNC retfunc, int tag);
int File_ExecMkdir(const char* path, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecCopy(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecCopydir(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecRmdir(const char* path, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecMove(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecRemove(const char* path, FILE_TEXT_FUNC retfunc, int tag);
int File_ExecFindSFM(const char* path, const char* pattern, FILE_ROW_FUNC retfunc, int tag);
int File_ExecUSBReload(FILE_TEXT_FUNC retfunc, int tag);
int File_ExecUSBRefresh(FILE_TEXT_FUNC retfunc, int tag);
// Asks at once which way a switcher's ("SWR1") frame memory is reached; the answer is a tally of
// its own. No job stands for it.
int File_StatusFMDataPort(const char* device);
// The same of every switcher that may use its data port, by GL_FMDataPortDisable: when that has
// been told, and again with each list of files that could take this way.
void File_AskDataPorts();
int File_ExecSCPGet(const char* src, const char* dst, const char* category, FILE_TEXT_FUNC retfunc,
                    int tag);
int File_ExecSCPPut(const char* src, const char* dst, const char* category, FILE_TEXT_FUNC retfunc,
                    int tag);
int File_ExecSCPdirGet(const char* src, const char* dst, const char* category,
                       FILE_TEXT_FUNC retfunc, int tag);
int File_ExecSCPdirPut(const char* src, const char* dst, const char* category,
                       FILE_TEXT_FUNC retfunc, int tag);
// A thumbnail of the clip store by its bare names, from the first own switcher. -1 without one.
int File_ThumbnailGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag);

// List entries. Called again for a running job they add no job and start what is not yet started.
// All but the _BG and _AutoLoad ones open a progress pane.
int File_ExecListDirList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag); // retfunc unused
int File_ExecTransferList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecTransferList_AutoLoad(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecTransferList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmGetList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmMkThumbList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmSFM2TIFList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmTIF2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmSFM2BMPList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmBMP2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmSFM2TGAList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmTGA2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFieldInvert(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmImportList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmImportList_AutoLoad(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmExportList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecCopyList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
// The copy of menu macros; mode other than 0: the pane says "Transfer".
int MM_File_ExecCopyList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag, int mode);
int File_ExecMoveList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecRemoveList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecCopydirList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecMakeVector(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
// Remote copies under the hub's reservation. Items carry category and target.
int File_TransSCPGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_TransSCPPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_TransSCPdirGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_TransSCPdirGetList_FM(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_TransSCPdirPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_TransSCPdirPutList_FM(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmImportList2(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
int File_ExecFmExportList2(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);

// --- Of running jobs ---

// Ask the server to give a job up; it stays queued for its final reply. -1 for an unknown label.
int File_CancelTransfer(uint32_t label);
// Forget the job at once, without a word to the server or its callback. -1 for an unknown label.
int File_ExecUSBReload_cancel(uint32_t label);
// The register numbers of an import: each stored image takes the next place of a table of 5662.
constexpr int IMPORT_REGISTERS = 5662;
void File_ExecFmImportStartRegNoSet(int n);    // both switchers begin at place n, from 1
int File_ExecFmImportRegNoSet(int reg, int i); // place i + 1 is register reg + 1; -1: no such place
// 1 when this unit holds the category on the target and it is in the status
// (FILE_CATEGORY_STATUS_).
int check_category_target_status(const char* category, const char* target, int status);
// The tables of the own units are gone: end what runs over the hub as its Disconnect would.
void File_SHP_All_Clear();
// For a list job's callback, as its last word: the operator sees in another place what went wrong,
// and no pane has to say so.
void File_FailuresTold();
// The text link has fallen: the server answers none of the jobs that it has any more. All end as
// failed, with callback and message as ever; the operator is told when one of them had a pane.
void File_LinkLost();
// The status hub has fallen: all targets are away until it tells of them again, and what was under
// way there ends.
void File_HubLost();
// The hub's transfer table of a target ("PNL1", "CS2", "SWR1") begins anew; others are ignored.
void Filescp_trnasferlist_init(const char* target);
// How a file operation ends whose server has left the hub.
const char* File_ServerNotReady();
// A file "MYHOST:<src>" to "<addr>:<dst>". Blocks, with a pump of the links of its own, until the
// reply: 0 for "OK", else -1. For the install alone.
int File_InstallPut(const char* src, const char* dst, const char* addr);
// The lamp of a progress pane by the way that a path's file takes.
void File_SetDefaultRouteLamp(const char* path, int pane);

// --- A transfer in the background: its pane is left and comes back ---

// One bit for each page of the File menu that shows the transfer (bits 8 to 15 of the id do not
// count); page 0 means all. 1 when the bit (any bit) is set; an unknown page has none.
int BkgdFileTransfer_Check(uint32_t page);
// v 1 sets, 0 clears. Page 0 sets all but that of 0x71620000. -1 for another v or an unknown page.
int BkgdFileTransfer_Set(uint32_t page, int v);
// Sets all bits as page 0 does, for a transfer that was begun on a page without one: home shows it,
// too, until the bits are cleared.
void BkgdFileTransfer_SetAll(uint32_t home);
// The page shows the transfer: it has a bit that is set, or is the home of one of everything.
bool BkgdFileTransfer_IsHome(uint32_t page);
void BkgdFileTransfer_SetPaneID(int pane); // the entries do this for the pane that they open
// Jobs that hold the background pane take the new one: after PaneProgress_RestoreCreate.
void BkgdFileTransfer_ReplacePaneID(int pane);
void BkgdFileTransfer_PaneQuit(); // close the pane; the job goes on
// For a page that belongs to the transfer, when it opens: once the page has been painted, bring the
// pane back with the job's own title, unless it is there. Returns the id of a pane that is there, 0
// when none is yet or no job holds the background pane.
int BkgdFileTransfer_PaneRestore();
// The transfer permits this page to stay as it is.
int BkgdFileTransfer_PagePermitted(uint32_t page);
// The same with one bit, of page 0x25620000.
int BkgdHDDTransfer_Check(uint32_t page);
int BkgdHDDTransfer_Set(uint32_t page, int v);
void BkgdHDDTransfer_SetPaneID(int pane);
void BkgdHDDTransfer_PaneQuit();
// It begins on a switcher of this panel, from 0, and ends when the drive of that one, which has
// been busy, is so no more: its pane then closes.
void BkgdHDDTransfer_Begin(int switcher);
int BkgdHDDTransfer_Switcher();
void BkgdHDDTransfer_Busy(int switcher, bool is_busy); // for the bus
// The drive is still not busy some seconds after it began; for the page, each pass.
bool BkgdHDDTransfer_IsUnanswered(int elapsed_ms);

// --- For the bus ---
int FileProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
// The bars of FileProc_Prog have changed: GL_FileProcessing is 1 while one of them is up.
void fileprocessprogress_update();

// --- For tests: how the drives are written at a job's end ---
// start returns the child that writes, 0 when there is nothing to wait for. Null: the real thing.
void File_ReplaceSync(int (*start)());
void File_Reset(); // no job, no reservation, first label, as at process start
