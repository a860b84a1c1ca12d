// a_ls_private: what the parts of a_ls share: a_ls.cpp has life and cells, a_ls_select.cpp touch,
// selection and scrolling, a_ls_draw.cpp the look. Nobody else includes it.
#pragma once
#include "a_ls.h"
#include "types.h"

// One list of the page, about 2 MB. There are no default values: it lives in static storage only,
// which starts as zeros and takes no memory until it is written. ls_fill sets every field.
struct LS_MEM {
    int id; // below 1 behind the last list
    int hn;
    int vn;
    int x;
    int y;
    const char* head[LS_COLUMNS];
    int width[LS_COLUMNS];
    int group[LS_COLUMNS];
    int row_disable[LS_COLUMNS]; // a grey title
    int split;
    int mono;
    int view;
    int sb_top;
    int sb_bottom;
    int block;

    const char* data[LS_ROWS][LS_COLUMNS];
    char folder[LS_ROWS]; // left mark: 0 none, 1 folder, 2 selected folder
    char folder2[LS_ROWS];
    int ndata;
    char selected[LS_ROWS][LS_COLUMNS]; // 0 or 1
    char status[LS_ROWS][LS_COLUMNS];   // colour class
    int topline;
    int nowline;
    int splitsel;
    int redraw;

    // "Plural" and "Block". Invariant: al_pushed implies ms_pushed.
    int ms_x1, ms_y1, ms_x2, ms_y2, ms_redraw, ms_pushed;
    int al_x1, al_y1, al_x2, al_y2, al_redraw, al_pushed;
    int area_x1, area_y1, area_x2, area_y2;

    // How far up the tables have ever been written: what lies beyond is still zero, so that a page
    // change clears what was used and no more.
    int text_rows; // data
    int mark_rows; // selected, status, folder, folder2

    // Where the last walk along the selected rows stands: row found_row is number found_n. -1
    // before the first, and after every change of the selection.
    int found_n;
    int found_row;
};

extern LS_MEM List[LS_MAX + 1]; // in table order

LS_MEM* ls_find(int id); // null when the page has no such list
bool ls_row_ok(int row);
bool ls_column_ok(int col);
bool ls_has_keys(const LS_MEM& l);
// A row is about to be marked: clearing has to reach it.
void ls_use_marks(LS_MEM& l, int row);
void ls_set_top(LS_MEM& l, int row); // the window, kept to the rows in use
int ls_last_top(const LS_MEM& l);    // the window at the end of the rows

// --- a_ls_select.cpp ---
void ls_forget_touch(); // no finger is down
int ls_press(int x, int y);
int ls_release(bool is_on_screen);
int ls_drag(int x, int y, bool held);
int ls_sbsel(int kind, int bar, int value);
void ls_unselect(LS_MEM& l, int from, int to); // rows from up to before to, in silence

// --- a_ls_draw.cpp ---
int ls_redraw();
void ls_show_selected(bool on);
