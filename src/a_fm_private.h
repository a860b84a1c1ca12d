// a_fm_private: between the files of the outputs of the frame memory.
#pragma once
#include "a_fm.h"
#include "fmctrl3.h"
#include <SDL.h>

// One output. The surface is that of the frame which stands on the screen, and of no other: all
// frames of twenty clips would fill the memory of a small computer.
struct OutputStatus {
    int status = FMOUT_STATUS_NONE;    // NONE to FREEZE_RECALL
    char path[ELEMENT_PATH_SIZE] = ""; // full_name; of what is recalled
    bool is_known = false;             // the catalogue has it: the fields below are its
    char create_time[32] = "";
    int duration = 0;
    int thumbnail = 0;
    int is_pair = 0;
    int format = 0;
    SDL_Surface* surface = nullptr;
    int surface_frame = -1; // that was looked for; -1 none
    int ancillary[2] = {};
};
enum FM_KEY : int { FM_KEY_OUTSELECT, FM_KEY_PAIR, FM_KEY_ANCILLARY, FM_KEYS };
struct FM_MEM {
    FM_TBL tbl; // not enabled: the page has none
    OutputStatus output[FM_OUTPUTS];
    FM_PLAY play[FM_OUTPUTS];
    FM_RECORD record[FM_PROCESSORS];
    int pair_mode[FM_PAIRS] = {};
    int pair = 0;   // that is shown
    int second = 0; // 1: its second output is selected
    int popup = 0;  // the pane that asks for a pair, 0 none
    bool redraw_all = false;
    bool redraw[2] = {}; // a box
    bool redraw_keys = false;
    int pushed[FM_KEYS] = {}; // ms for which a key still looks pushed
};
extern FM_MEM fm;

int fm_status(int n);      // FMOUT_STATUS_, with what plays or records
int fm_shown_frame(int n); // the frame whose thumbnail stands
void fm_drop_surface(OutputStatus& o);
SDL_Surface* fm_surface(int n); // of the frame that is shown; null: none on the drive

Rect fm_box(int second); // of an output of the pair
bool fm_key_rect(int key, Rect* r);
void fm_redraw(int elapsed_ms);
