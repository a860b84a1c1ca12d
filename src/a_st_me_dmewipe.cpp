// The cells of a bank's effects-unit wipe: pattern, modifiers, direction, edge.
#include "a_st_draw.h"
#include "safeguards.h"

// 0 number.
int st_drw_me_dmewipe_pattern(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Pattern");
    if (!c)
        return -1;
    st_drw_bmpimage_strings(c, st_dme_pattern(c->tally[0]), "");
    st_drw_under_strings(c, c->tally[0], 0);
    return 0;
}

// Lines that are grey while their tally is "false".
static int draw_switches(ST_MEM* cell, const char* name, ST_VAL val)
{
    val.selected = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, val.selected, name);
    if (!c)
        return -1;
    for (int i = 0; i < val.st_num; i++)
        val.grayout[i] = st_is_off(c, i);
    return st_drw_status_strings(c, &val);
}

// 0 size, 1 transparency, 2 axis location, 3 perspective.
int st_drw_me_dmewipe_modifier(ST_MEM* cell)
{
    return draw_switches(cell, "Modifier",
                         {.st_num = 4, .st_str = {"Size", "Transp", "Axis Loc", "Perspective"}});
}

// 0 border, 1 soft, 2 drop shadow.
int st_drw_me_dmewipe_edge(ST_MEM* cell)
{
    return draw_switches(cell, "Edge", {.st_num = 3, .st_str = {"Border", "Soft", "Shadow"}});
}

// 0 direction, 1 normal and reverse in turn, 2 pattern limit.
int st_drw_me_dmewipe_direction(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Direction");
    if (!c)
        return -1;
    ST_VAL val{.st_num = 3, .st_str = {c->tally[0], "Norm/Rev", "Pattern Limit"}, .selected = lit};
    val.invert[0] = c->tally[0][0] != '\0';
    val.grayout[1] = st_is_off(c, 1);
    val.grayout[2] = st_is_off(c, 2);
    return st_drw_status_strings(c, &val);
}
