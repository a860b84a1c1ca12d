// The cells of a bank's effects-unit wipe: pattern, modifiers, direction, edge.
#include "a_dw.h"
#include "a_st_draw.h"
#include "graphics.h"
#include "tally_value.h"
#include "safeguards.h"

// 0 number. A wipe of the second set of channels has the picture of the first.
int st_drw_me_dmewipe_pattern(ST_MEM* cell)
{
    const ST_MEM* c = st_begin(cell, st_in_view(cell), "Pattern");
    if (!c)
        return -1;
    const int base = DW_BaseNumber(Decimal(c->tally[0]));
    st_drw_bmpimage_strings(c, base > 0 && base < WIPE_PTN_MAX ? G_WipePtn[base] : nullptr, "");
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
    ST_VAL val{.st_num = 3, .st_str = {c->tally[0], "Norm/Rev", "Ptn Limit"}, .selected = lit};
    val.invert[0] = c->tally[0][0] != '\0';
    val.grayout[1] = st_is_off(c, 1);
    val.grayout[2] = st_is_off(c, 2);
    return st_drw_status_strings(c, &val);
}
