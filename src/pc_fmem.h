// pc_fmem: what the pages of the clip store share: the requests to the hub and their results, the
// progress of many alike, the queue of file operations, and how a page forwards what comes in.
// Elements are named by their full_name, "/root/NEWS/OPENING"; the hub wants
// "root/NEWS/OPENING.SFH".
#pragma once
#include "a_fm.h"
#include "types.h"
#include <cstring>

enum : int { // rows of protocol_list
    PROTOCOL_TYPE_SHP_REGISTER = 0,
    PROTOCOL_TYPE_SHP_UNREGISTER = 1,
    PROTOCOL_TYPE_SHP_COUPLE = 2,
    PROTOCOL_TYPE_SHP_SEPARATE = 3,
    PROTOCOL_TYPE_SHP_TRIM = 4,
    PROTOCOL_TYPE_SHP_COPY = 5,
    PROTOCOL_TYPE_SHP_MOVE = 6,
    PROTOCOL_TYPE_SHP_DELETE = 7,
    PROTOCOL_TYPE_SHP_STORE = 8,
    PROTOCOL_TYPE_SHP_DELETE_FOLDER = 9,
    PROTOCOL_TYPE_SHP_MAKE_FOLDER = 10,
    PROTOCOL_TYPE_SHP_RENAME = 11,
    PROTOCOL_TYPES = 12,
};
struct PROTOCOL_TYPE {
    int type;
    const char* table;
    const char* verb;
    const char* message; // title of its progress
};
extern const PROTOCOL_TYPE protocol_list[PROTOCOL_TYPES];
constexpr char FM2_Ext_Str[] = ".SFH";
constexpr int PROTOCOL_DONE = 127; // a status from here on has ended, well or not
constexpr int PROTOCOL_MEMORY_FULL = 133;

// --- Requests (pc_fmem.cpp) ---

// Ask the hub for something to be done with a clip, or with a folder when is_file is false. name2:
// the second path of those that have two. Cut at the length of a command.
void fmem_request(int protocol, bool is_file, const char* name, const char* name2 = nullptr);
void fmem_request_trim(const char* name, int first, int last); // frames that are kept
// Whether a line of the hub is a result of that kind, and its status. The row begins with the verb
// and, where name is given, goes on with the path of that element. A row without a status, or with
// one that is no number, is noted in the log and is none.
bool fmem_result(int protocol, const char* verb, const char* table, const char* row,
                 const char* name, bool is_file, int* status);

// --- One progress for many requests of one kind (pc_fmem.cpp) ---

// func is called when the last one has ended, not when they are cancelled. False while another one
// is on its way.
bool fmem_progress_begin(int protocol, void (*func)());
void fmem_progress_file(const char* name, const char* name2 = nullptr); // one request
void fmem_progress_trim(const char* name, int first, int last);
void fmem_progress_show(); // what was asked for; without any it is over at once
bool fmem_progress_is_busy();

// --- File operations, one after another in the order of their queue (pc_fmem_ope.cpp) ---

enum : int { // FMFILEOPE.cmd
    FMFILEOPE_DUPLICATE = 0,
    FMFILEOPE_COPY = 1,
    FMFILEOPE_MOVE = 2,
    FMFILEOPE_DELETE = 3,
    FMFILEOPE_RENAME = 4,
    FMFILEOPE_STORE = 5,
    FMFILEOPE_CMDS = 6,
};
// Queue one. type is an OBJECT_TYPE_; name what it is done to, name2 what it becomes, with its
// folder; null for those that have none. A folder stands for all that is in it. -1 when it is not
// in the catalogue, when memory is out or when a name is too long.
int fmfileope_start(int cmd, int type, const char* name, const char* name2);
// Work at what is queued: questions come first, then the progress. func is called when all is done
// or dropped.
void fmfileope_do(void (*func)());
bool fmfileope_is_busy();
// Titles of its panes.
const char* fmfileope_title(int cmd);

// --- For the page codes ---

// Hand every message of a page to what is under way; what the page itself wants of it comes after.
void fmem_proc(int msg, MsgArg ax, MsgArg bx, MsgArg dx);
void fmem_drop(); // the page is left: nothing is waited for any more
// The element that a name in an area's folder has; cut when it is too long.
void fmem_name_in(char (&name)[ELEMENT_PATH_SIZE], const char* folder, const char* child);
// "/NEWS/OPENING", as the server names it.
const char* fmem_server_path(const char* full_name);

// A key of a page: what is done when its path comes.
struct FMEM_KEY {
    const char* path; // with "LOCAL@"
    void (*press)();
};
template <size_t N> void fmem_button(const FMEM_KEY (&keys)[N], const char* path)
{
    for (const FMEM_KEY& key : keys)
        if (path && strcmp(key.path, path) == 0) {
            key.press();
            return;
        }
}
// The selected output, or both of a pair: a value whose first number says so.
void fmem_put(const char* path, const char* rest);
void fmem_put_number(const char* path, int number);
void fmem_read_outputs(const char* path); // ask for the value of every output
void fmem_through(); // what two pages have: the selected output shows its input, or black
void fmem_black();
void fmem_line(const char* text); // one line below the folder beside the outputs, at once

// --- Between the files of pc_fmem ---
// The hub's end has cut off what a pane with this title was about. name: of the element, "" for
// several; only what is behind its last "/" is shown.
void fmem_tell_cut_off(const char* title, const char* name);
void fmfileope_proc(int msg, MsgArg ax, MsgArg bx, MsgArg dx);
void fmfileope_drop();
