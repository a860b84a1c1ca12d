// file_scp_private: what the files of the remote copy share. file_scp has the tables and the
// machine of a category; file_scp_result fetches and reads the lists of results; file_scp_fmem is
// the way of frame memory, one file at a time.
#pragma once
#include "file_private.h"
#include "file_scp.h"

enum FILE_SCP_MSG : int {
    FILE_SCP_MSG_SERVER_NOT_READY = 0,
    FILE_SCP_MSG_FILE_NOT_EXIST = 1,
    FILE_SCP_MSG_RESULTFILE_ERROR = 2,
    FILE_SCP_MSG_INTERNAL_ERROR = 3,
    FILE_SCP_MSG_FILE_LOAD_FAILED = 4,
    FILE_SCP_MSG_MAKE_CLIP_FAILED = 5,
    FILE_SCP_MSG_MAKE_FOLDER_FAILED = 6,
};
void file_set_msg(FILEXFERLIST* item, FILE_SCP_MSG id);

enum : int { SHP_STANDBY = 0, SHP_GET = 1, SHP_PUT = 2 };
extern const char* const shp_status_value[3];

// One category of one target.
struct Scp {
    FILETRANS_SCPLIST& target;
    FILETRANS_SCPCATEGORY& cat;
};
inline Scp scp_at(int target, int category)
{
    return {Scp_TrnasferList[target], Scp_TrnasferList[target].category[category]};
}
bool scp_is_cs(const Scp& s);
bool scp_is_fmem(const Scp& s);
bool scp_is_get(const QUEUE* job);
bool scp_is_mine(const Scp& s); // this unit holds it
bool scp_has(const Scp& s, const FILEXFERLIST* item);
// The items of the category in its job: the first from this one on with the status, null: none.
FILEXFERLIST* scp_next(const Scp& s, FILEXFERLIST* from, int status);
FILEXFERLIST* scp_first(const Scp& s, int status);

// --- The conversation with the hub; the state is set before anything is sent ---
void scp_request_status(const Scp& s, int value, const char* rest); // rest: behind the word, or ""
void scp_release(const Scp& s);                                     // "Standby", FINISH

// --- Items ---
void scp_send(const Scp& s, FILEXFERLIST* item);
void scp_fail(FILEXFERLIST* item, FILE_SCP_MSG id);
// What the category does next, now that an item of it has changed: ask for "Put", give it back.
void scp_go_on(const Scp& s);
void scp_show_progress(QUEUE* job, const char* text);

// --- file_scp_result ---
// The list that answers SHP_GET or SHP_PUT. Its reply comes by resultlabel, not through the queue.
void file_send_scpget_resultlist(const Scp& s, int value);

// --- file_scp_fmem ---
void fmem_start(const Scp& s); // the category is held
void fmem_next(const Scp& s);  // the item in turn is finished
void fmem_reply(const Scp& s, FILEXFERLIST* item, const char* text);
void fmem_folder_made(const Scp& s, const char* reply);
bool fmem_is_current(const Scp& s, const char* path); // a path that the hub or a list names
FILEXFERLIST* fmem_current(const Scp& s);
// The remote end of an item, from the folder of its category on.
void fmem_relative(char (&dst)[FILE_PATH_SIZE], const Scp& s, const FILEXFERLIST* item);
void fmem_cut_ext(char* path);
