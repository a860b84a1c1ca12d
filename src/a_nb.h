// a_nb: the number boxes along the right edge, one for each physical knob of the menu panel.
#pragma once
#include "types.h"

struct NB_TBL {
    int id = 0; // low nibble: slot 1..5 from the top; high nibble: layer from 0. Below 1 ends the table
    const char* caption = nullptr;
    int type = 0; // 1, 2, 4 decimals; 16 integer; 32 time code
    double min = 0;
    double max = 0;
    const char* cmd = nullptr;
    double scale = 0; // knob counts for one unit of value; 0 where the server does the knob work
};
enum : int { NB_1 = 1, NB_2 = 2, NB_4 = 4, NB_INT = 16, NB_TC = 32 };
constexpr NB_TBL NB_END = {.id = -1};
constexpr int NB_MAX = 10; // boxes of one table

extern const NB_TBL NB_Non[]; // the empty table

// Show a table under a title. Null or NoKnobs() empties the object and returns 1.
int NB_Create(const NB_TBL* nt, const char* tit);
int NB_CreateBlank();
int NB_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
