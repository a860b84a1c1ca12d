// a_nb_private: the state of the column, and what the files of a_nb ask of each other.
#pragma once
#include "a_nb.h"
#include <algorithm>
#include <span>

constexpr int NB_SLOTS = 5;
constexpr int NB_SLOT_H = 82;
constexpr int NB_FIRST_TOP = 127;
constexpr int NB_BAR_X = 714;
constexpr int NB_BAR_W = 80;     // px from min to max
constexpr int NB_FRESH_MS = 500; // how long a change of the operator's holds the display
constexpr Rect NB_COLUMN = {706, 73, 799, 545};

constexpr char NB_KNOB_PATH[] = "Panel@Common@Knob"; // and the digit of a knob

// What the command of a box says about where its value lives.
enum class NbPath {
    None,   // no command: nothing follows and nothing is sent
    Local,  // in the page code
    Diff,   // in the page code, which wants to know by how much the knob turned
    Knob,   // in the box: it counts the turns of the knob and tells the page code
    Server, // in the server, which applies the turns itself
};

// How a bar was taken hold of.
struct NbGrab {
    int press_x = 0;
    int mark_x = 0;         // where the mouse was put
    double var = 0;         // the value then
    bool by_finger = false; // which does not follow the mouse
    bool is_moving = false; // it has left the place of the press
    int from_x = 0;         // where var lies for a finger; set when it moves
};

struct NumberBoxes {
    const NB_TBL* table = nullptr; // that filled the boxes; null when it was emptied
    bool is_open = false;          // a table shows, be it an empty one
    NB_MEM Knob[NB_MAX + 1];       // the one behind the last has an id of -1
    int count = 0;                 // of boxes in Knob
    unsigned generation = 0;       // changes whenever Knob is filled anew
    int Select = 0;                // the box that the ten keys are open for; 0 or an id in Knob
    double NowVar = 0;             // its value when it was selected
    int Layer = 0;                 // shown
    int LayerN = 0;                // the highest one
    char Title[256] = "";
    int Title_redraw = 0;
    int Title_pushed = 0; // ms
    int RedrawAll = 0;
    int AreaUpdate = 0;       // flush all slots at the next repaint
    unsigned blank_slots = 0; // bit k: slot k is to be emptied at the next repaint
    int DragSelect = 0;       // the slot whose bar is held, 0 none
    NbGrab Grab;              // valid while DragSelect is set
    int NoAdd = 0;            // the next table is subscribed by its page code
    char min_text[16] = "";   // limits of the selected box; an open window may point here
    char max_text[16] = "";
};
extern NumberBoxes nb;

inline std::span<NB_MEM> nb_boxes()
{
    return {nb.Knob, size_t(nb.count)};
}
inline int nb_slot(const NB_MEM& b)
{
    return b.id & 0x0F;
}
inline bool nb_is_shown(const NB_MEM& b)
{
    return b.id >> 4 == nb.Layer;
}
inline int nb_slot_top(int slot)
{
    return NB_FIRST_TOP + NB_SLOT_H * (slot - 1);
}
inline double nb_shown_var(const NB_MEM& b)
{
    return b.dispvar_enable ? b.dispvar : b.var;
}
// Into the range, whichever limit is the greater.
inline double nb_clamp(const NB_MEM& b, double v)
{
    return std::clamp(v, std::min(b.min, b.max), std::max(b.min, b.max));
}

NbPath nb_path(const NB_MEM& b);
const char* nb_wire_path(const NB_MEM& b); // what the server knows it by; null when it does not
NB_MEM* nb_find(int id);
NB_MEM* nb_box_in(int slot); // of the shown layer
void nb_mark(int id);        // the box, if there is one, is to be repainted
int nb_round(double v);      // half away from zero, held to the range of an int
bool nb_refuses();           // a locked setup page takes no change; its lock says so
double nb_value_of_text(const NB_MEM& b, const char* text); // of a text that NB_Text has made

// --- Tables (a_nb_table.cpp) ---
void nb_unsubscribe();
void nb_assign_knobs();
void nb_release_knobs();
void nb_retarget(NB_MEM& b, const char* cmd, bool add);
void nb_close_ten_keys(); // the box that they are open for has gone: nothing is sent
void nb_next_layer();

// --- Painting (a_nb_draw.cpp) ---
void nb_blank_all_slots();
int nb_redraw(int elapsed_ms);

// --- Tallies and input ---
int nb_tally(const char* path, const char* value, uint32_t hash);
int nb_press(int x, int y, int button);
int nb_release();
int nb_drag(int x, bool left_held, bool right_held);
int nb_wheel_up(int x, int y);
int nb_wheel_down(int x, int y);
