// a_ps: pattern select: the pictures of wipe patterns of which one is chosen, in layers of up
// to 36. Which layers there are is a matter of the page and the bank; which pattern is chosen, of
// the tally.
#pragma once
#include "a_nb.h"
#include "types.h"

struct PS_TBL {
    int type = 0; // 0, the only kind of grid that there is
    const char* cmd = "";
    const NB_TBL* init_nb = nullptr; // shown until a cell is pressed
    const char* init_nb_caption = "";
};
constexpr int PS_COLUMNS = 6;
constexpr int PS_CELLS = 36;
constexpr int PS_LAYERS = 12; // two rows of keys

// Shows the first layer, until the tally says where the chosen pattern is. A null table empties the
// object and returns 1.
int PS_Create(const PS_TBL* table, uint32_t var);
int PS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
int PS_Follows(const char* path); // 1 while the grid is subscribed to it
