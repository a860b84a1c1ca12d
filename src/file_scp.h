// file_scp: copies to and from remote devices. The device makes or takes a file only for the unit
// that holds the file's category at the status hub, so a job asks for each category that it needs,
// tells the hub what it will do there ("Get", "Put"), reads the device's list of results and gives
// the category back ("Standby"). The tables say which target is used in which direction, and by
// which job each category is held. The job itself is the queue's.
#pragma once
#include "file.h"

constexpr int SCP_TARGETS = 8;
constexpr int SCP_CATEGORIES = 13;
constexpr int SCP_LAYERS = 4; // folders of a path that are remembered

enum : int { FILE_DISCONNECT = 0, FILE_CONNECT = 1 };
enum : int { FILE_SCP_STATUS_NO = 0, FILE_SCP_STATUS_PUT = 1, FILE_SCP_STATUS_GET = 2 };

enum : int { // FILETRANS_SCPCATEGORY.status
    FILE_CATEGORY_STATUS_NO = 0,
    FILE_CATEGORY_STATUS_WAIT_USER = 1, // asked for, the hub has not answered
    FILE_CATEGORY_STATUS_WAIT_NON = 2,  // somebody else holds it
    FILE_CATEGORY_STATUS_WAIT_STANDBY = 3,
    FILE_CATEGORY_STATUS_WAIT_GET = 4, // the device makes the files
    FILE_CATEGORY_STATUS_WAIT_PUT = 5, // the device takes them over
    FILE_CATEGORY_STATUS_PUT = 6,
    FILE_CATEGORY_STATUS_GET = 7,
    FILE_CATEGORY_STATUS_SCPGET = 8,
    FILE_CATEGORY_STATUS_SCPPUT = 9,
    FILE_CATEGORY_STATUS_SCPPUT_SUB = 10, // the ".SUB" companion of the item in turn
    FILE_CATEGORY_STATUS_SCP_FINISH = 11,
    FILE_CATEGORY_STATUS_WAIT_RESULT = 12, // the list of results is fetched
    FILE_CATEGORY_STATUS_RESULT = 13,
    FILE_CATEGORY_STATUS_SSH_MKDIR = 14,
    FILE_CATEGORY_STATUS_WAIT_USER_CANCEL = 15, // cancelled before the hub's answer
    FILE_CATEGORY_STATUS_FINISH = 16,           // given back, the hub has not answered
};

struct FILETRANS_SCPCATEGORY {
    char name[32] = "";
    char userid[32] = "";           // the holder last told by the hub, "" not known
    char path[FILE_PATH_SIZE] = ""; // the device's work folder
    int fm_layercnt = 0;
    char fm_layer[SCP_LAYERS][17] = {}; // folder path last made on the clip store
    int status = FILE_CATEGORY_STATUS_NO;
    int scpcount = 0;         // copies under way
    uint32_t resultlabel = 0; // of a fetch or of a folder being made; 0 none
    uint32_t resultack = 0;
    int resultstatus = 0; // index into shp_status_value: what the fetched list answers
    int resultretry = 0;
    char resultsrc[128] = "";
    char resultdst[128] = "";
    char resultcmd[512] = "";
    QUEUE* queue = nullptr;
    uint32_t current = 0; // FRAMEMEM: label of the item in turn
};

struct FILETRANS_SCPLIST {
    char target[32] = "";
    char host[32] = ""; // with its colon
    int connect = FILE_DISCONNECT;
    int status = FILE_SCP_STATUS_NO;
    FILETRANS_SCPCATEGORY category[SCP_CATEGORIES];
};
extern FILETRANS_SCPLIST Scp_TrnasferList[SCP_TARGETS];

struct TRANS_SCP_CATEGORY {
    const char* name;
    int pnl, swr, cs, dme; // kinds of device that it lives on
};
extern const TRANS_SCP_CATEGORY Transfer_Scp_Category[SCP_CATEGORIES];

// "SFH", "TIF", "BMP", "TGA", "PNG" by FILEXFERLIST.fmext; "SFH" for any other number.
const char* file_trans_filetype(int id);
constexpr int TRANS_FILETYPE_SFH = 0;

// FILE_SYSFORMAT_ of the device with this host ("SWR000D001", with or without a colon), null: of
// the system. -1 for a format that the clip store does not know.
int file_scp_get_systemformat(const char* host);

// A notification of the hub: table "SWR1.File", param "SETUP.USER_ID:MENU1".
void file_shp_notify(const char* table, const char* param);
void file_shp_disconnect(const char* table);
