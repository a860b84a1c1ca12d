// a_fl_private: what the files of the file list share. Nobody else includes it. a_fl.cpp has the
// sides and the questions, a_fl_drive.cpp reads drives, a_fl_list.cpp keeps the elements in order
// and shows them.
#pragma once
#include "a_fl.h"

constexpr int FL_ROWS = 12000; // what a list on a page can show; what comes behind is left out

struct _fm3_file {
    int idx = 0;
    int file_type = OBJECT_TYPE_FOLDER;
    int clip_stil = 0; // 1: a folder of frames
    int root_flag = 0; // 1: at the top of its device
    int yobi = 0;
    int dev = FL_DIRDATA_DEV_NON;
    void* surface = nullptr; // of a thumbnail; a drive has none
    ELEMENT element;
};
using FL_FILE = _fm3_file;

struct FL_LIST {
    FL_FILE file;
    FL_LIST* next = nullptr;
    FL_LIST* prev = nullptr;
    char frames[12] = "";     // as the page's list shows them
    int row = -1;             // of the page's list; -1: not shown yet
    bool is_selected = false; // there, when it was last looked
};

struct CURRENT_INFO_DRV {
    char current[FL_PATH_SIZE] = "/";
};
struct FL_CURRENT_INFO {
    int device = FL_DIRDATA_DEV_NON;
    int current_list_num = 0;
    int current_layer = 0; // folders above what is shown
    char current_path[FL_PATH_SIZE] = "/";
    int yobi = 0;
    CURRENT_INFO current_info_reg;
    CURRENT_INFO_DRV current_info_drv;
};

struct FL_CHAIN {
    FL_LIST* head = nullptr;
    FL_LIST* tail = nullptr;
    FL_LIST** at = nullptr; // all of them in their order: a store may have thousands
    int room = 0;
    int count = 0;
};

struct FL_STATE {
    FL_CURRENT_INFO side[FL_SIDES]; // kept while no page shows it
    FL_CHAIN list[FL_LISTS];
    bool is_open = false;
    struct {
        uint32_t dir_label = 0; // of the searches under way, 0 none
        uint32_t file_label = 0;
        bool is_gone = false;    // the folder is not on its drive
        bool is_entered = false; // another folder: its list begins at the top
        bool is_dirty = false;
        int pause_ms = 0;       // until a long list is shown anew
        bool is_hidden = false; // its rows are not those of the page's list
        char head[FL_PATH_SIZE + 16] = "";
        char selected[ELEMENT_NAME_SIZE] = ""; // to be selected again
        FL_LIST* clip = nullptr;               // whose frame came last
        FL_LIST* found = nullptr;              // by the last search
        int folders = 0;
        int files = 0;
    } now[FL_SIDES];
};
extern FL_STATE fl;

inline bool fl_is_side(int id)
{
    return id == FL_L_LIST || id == FL_R_LIST;
}
inline bool fl_is_drive(int dev)
{
    return dev == FL_DIRDATA_LOCAL_DRIVE || dev == FL_DIRDATA_REMOVABLE_DRIVE;
}

// --- a_fl_list.cpp ---
// The element behind which another one has its place: folders first, then by name. Null: none.
FL_LIST* fl_list_find_joint_point(const FL_CHAIN& list, const ELEMENT& e);
// Insert a copy. Null when the list is full or memory is out.
FL_LIST* fl_list_insert(int id, const FL_FILE& file);
FL_LIST* fl_list_equal(int id, const ELEMENT& e); // of that name and type; null: none
FL_LIST* fl_list_of_name(int id, const char* full_name, int type); // null: none
FL_LIST* fl_list_at(int id, int index);
int fl_list_place(int id, const FL_LIST* node);
void fl_list_change(int id, FL_LIST* node, const ELEMENT& e); // of the same name and type
void fl_list_remove(int id, FL_LIST* node);
void fl_list_free(int id);
void fl_frame_added(int id, FL_LIST* clip);
void fl_redraw(int elapsed_ms);
void fl_show_selected(int id, int row);

// --- a_fl_drive.cpp ---

constexpr int SFH_BYTES = 64;
// The head of a clip-store file.
struct _sfs_header_ {
    uint8_t xvs[4] = {}; // magic, not checked
    int sys_format = 0;
    int info_pair = 0;
    int info_4k = 0;
    uint32_t crc32 = 0; // not checked
};
using SFH_HEADER = _sfs_header_;
// False, and the header as it was, for fewer than 64 bytes.
bool fl_take_sfh(const uint8_t* bytes, size_t size, SFH_HEADER* header);
// The name is a clip's folder.
int check_clip_still_file(const char* fname);
void get_clip_frame_file_name(char* dst, size_t size, const char* clip, int frame);

// Show a folder of the side's drive: "/", "/NEWS". 0; -1 when the path is none.
int putCurrentDirectory(int id, const char* path);
void fl_drive_stop(int id); // no answer of what was asked is taken any more
// Rows of the two searches, and their time ("Nov.25.2026 09:20").
void dirGet_tly(const char* path, const char* time, int id);
void file_find_tly(const char* path, const char* time, int id);
