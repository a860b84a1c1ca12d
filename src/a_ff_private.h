// a_ff_private: between the files of the file folder.
#pragma once
#include "a_ff.h"
#include <SDL.h>

// One cell of the grid.
struct FM2_FILE {
    int file_type = OBJECT_TYPE_FOLDER;
    bool select = false; // checked
    bool redraw = false;
    bool is_looked_for = false; // a thumbnail was asked for while it is in view
    SDL_Surface* surface = nullptr;
    ELEMENT element;
};
// The elements of the folder shown, in the order of the catalogue.
struct FM2_FILE_LIST {
    FM2_FILE** cell = nullptr;
    int rec_num = 0;
    int room = 0;
    int selected_idx = -1;
    int found_idx = -1;
    bool redrawall = false;
};
struct FM2_FILE_AREA {
    PARTS_FILE_AREA parts;
    FM2_FILE_LIST file_list;
    CURRENT_INFO current;
    int top = 0; // first row of the grid that is shown
    int select_mode = SELECT_MODE_OFF;
    int find_pushed = 0; // ms for which "Find" still looks pushed
    char find_text[ELEMENT_NAME_SIZE] = "";
    char found[ELEMENT_PATH_SIZE] = ""; // full_name of the last one found
    int found_type = ELEMENT_TYPE_NONE;
};
struct FF_STATE {
    FM2_FILE_AREA area[FF_AREAS];
    int finding = -1; // the area that was searched last, -1 none on this page
};
extern FF_STATE ff; // what the page that is shown has

// --- Lists (a_ff_list.cpp) ---
bool ff_fits(const PARTS_FILE_AREA& parts, const ELEMENT& e);
bool ff_list_is_current_child(const FM2_FILE_AREA& a, const ELEMENT& e);
// Where an element of that order stands or would stand.
int ff_list_find_joint_point(const FM2_FILE_LIST& list, const ELEMENT& e);
int ff_list_place(const FM2_FILE_LIST& list, const ELEMENT& e); // -1: not in it
bool ff_list_insert(FM2_FILE_LIST& list, const ELEMENT& e);     // false: no memory
void ff_list_remove(FM2_FILE_LIST& list, int n);
void ff_list_free_all(FM2_FILE_LIST& list);
void ff_list_update(int index); // from the catalogue; nothing is selected
bool is_all_element_selected(const FM2_FILE_LIST& list);
void ff_drop_surface(FM2_FILE& cell);

// --- Layout and picture (a_ff_draw.cpp) ---
enum FF_KEY : int { FF_KEY_FIND, FF_KEY_SELECT, FF_KEY_ALL, FF_KEYS };
bool ff_key_rect(const PARTS_FILE_AREA& parts, int key, Rect* r); // false: the area has it not
int ff_rows(const FM2_FILE_AREA& a);                              // of the whole list
Rect ff_grid(const PARTS_FILE_AREA& parts);
Rect ff_folder_button(const PARTS_FILE_AREA& parts, int depth); // depth 0 the root
int ff_depth(const FM2_FILE_AREA& a);                           // folders above what is shown
void ff_redraw(int index, int elapsed_ms);
