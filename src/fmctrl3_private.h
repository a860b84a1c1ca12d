// fmctrl3_private: what the files of the clip-store catalogue share. Nobody else includes it.
// fmctrl3.cpp takes the hub's lines, fmctrl3_row.cpp reads rows, fmctrl3_tree.cpp keeps the
// elements, fmctrl3_thumb.cpp fetches their thumbnails, fmctrl3_file.cpp has them on the drive.
#pragma once
#include "fmctrl3.h"

constexpr int MOD_CLIP = 22; // area of the log

constexpr int NODE_LEVELS = 8; // each skips four times as many elements as the one below

// An element in the list, in the hash of paths, and in the queues of thumbnails.
struct CLIP_NODE {
    ELEMENT_LIST list; // first: an ELEMENT_LIST of the tree is a node
    CLIP_NODE* same_hash = nullptr;
    int levels = 0;
    CLIP_NODE* ahead[NODE_LEVELS] = {}; // the next one that has this level
    CLIP_NODE* next_wanted[2] = {};     // in the queues of fmctrl3_thumb.cpp
    CLIP_NODE* prev_wanted[2] = {};
    bool is_wanted[2] = {};
    int next_frame = 0;    // to be looked at by the second queue
    bool has_note = false; // on the drive stands of which clip its thumbnails are
};

inline CLIP_NODE* clip_node(ELEMENT_LIST* list)
{
    return reinterpret_cast<CLIP_NODE*>(list);
}

// --- fmctrl3_tree.cpp ---
void clip_tree_init(); // the root, and nothing else
void clip_tree_free();
// Take a copy at its place in the order. Null when memory is out; its path and type are not there
// yet.
CLIP_NODE* clip_tree_insert(const ELEMENT& e);
void clip_tree_unlink(CLIP_NODE* node); // out of the list and the hash; the caller frees it
void clip_node_free(CLIP_NODE* node);
void clip_tree_clear(int type);
// Of a whole path, "/root/NEWS/OPENING"; null: none.
CLIP_NODE* clip_tree_find(const char* full_name, int type);

// --- fmctrl3_row.cpp ---
// "root/NEWS/OPENING.SFH" into the names of an element; false when it is no path of the tree.
bool clip_read_path(const char* row_path, ELEMENT* element);
int clip_frames(const char* text); // a number of frames, within its limits

// --- fmctrl3_file.cpp ---
constexpr int CLIP_FILE_SIZE = ELEMENT_PATH_SIZE + 20;
constexpr char CLIP_NOTE_END[] = ".of"; // "NEWS.OPENING.SFH.THM.of"
// On the switcher "NEWS/OPENING.SFH#000012.THM", here "NEWS.OPENING.SFH#000012.THM".
void clip_remote_name(char (&text)[CLIP_FILE_SIZE], const ELEMENT& e, int frame);
void clip_local_name(char (&text)[CLIP_FILE_SIZE], const ELEMENT& e, int frame);
void clip_folder(char (&text)[PATH_SIZE]); // without a "/" at its end
void clip_local_path(char (&text)[PATH_SIZE], const char* name);
bool clip_is_thumbnail_file(const char* path); // by its size
bool clip_has_frame(const ELEMENT& e, int frame);
void clip_remove_frame(const ELEMENT& e, int frame);
bool clip_write_note(const ELEMENT& e); // that the files here are of this clip; false: it can't
// True when the note says so. Files of another clip begin to go.
bool clip_files_are_of(const ELEMENT& e);
// Files of a clip of this name are going or getting other numbers: until then nothing of them is
// shown, and nothing is fetched. At the end it is wanted anew.
bool clip_files_change(const ELEMENT& e);
bool clip_files_wait(); // those of any clip
void clip_files_pass();
void clip_files_end();
void clip_thumbnails_remove(const ELEMENT& e); // in the passes to come
void clip_thumbnails_same(const ELEMENT& e);   // another time, the same pictures
// Frames first to last are what is left of a clip, and its first gets 0, in the passes to come.
// False when its first picture is missing, or its files are going: then none is left.
bool clip_thumbnails_renumber(const ELEMENT& e, int first, int last);

// --- fmctrl3_thumb.cpp ---
// What is not on the drive is fetched: its middle first. Files of a clip that was another one, by
// its length or its time, are removed before.
void clip_thumbnails_want(CLIP_NODE* node);
void clip_thumbnails_forget(CLIP_NODE* node); // nothing more is fetched of it
void clip_thumbnails_forget_all();
void clip_thumbnails_init(); // as after a start
void clip_thumbnails_end();  // and nothing more is removed
void clip_thumbnails_pass(int elapsed_ms);
void clip_thumbnails_inserted(); // the tree is being told
// Whether a file of this name belongs to an element; any other is removed once after a start.
bool clip_thumbnail_is_known(const char* file_name);
