// The cells of a colour corrector: where it sits, and its stages. One that is switched off is
// veiled: the operator sees that what he turns doesn't show.
#include "a_st_draw.h"
#include "text.h"
#include <cstring>
#include "safeguards.h"

// 0 whether it corrects, 1 where it sits, 2 the input that it has there.
int st_drw_ccr_insert(ST_MEM* cell)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, "Correction");
    if (!c)
        return -1;
    char input[24] = "";
    if (strcmp(c->tally[1], "Input") == 0 && c->tally[2][0])
        PrintText(input, "No %s", c->tally[2]);
    st_drw_center_image_square(c, c->tally[1], 0);
    st_drw_under_strings(c, input, 0);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

// A stage: 0 on, then its values in the order of the labels.
static int draw_stage(ST_MEM* cell, const char* name, std::span<const ST_LABEL> labels)
{
    const int lit = st_in_view(cell);
    const ST_MEM* c = st_begin(cell, lit, name);
    if (!c)
        return -1;
    st_put_values(c, lit, labels);
    if (st_is_off(c, 0))
        st_drw_recoats_grayout(c, lit);
    return 0;
}

static constexpr ST_LABEL colours[] = {{"All", 1}, {"Red", 2}, {"Grn", 3}, {"Blue", 4}};

int st_drw_ccr_white(ST_MEM* cell)
{
    return draw_stage(cell, "White", colours);
}

int st_drw_ccr_black(ST_MEM* cell)
{
    return draw_stage(cell, "Black", colours);
}

int st_drw_ccr_gamma(ST_MEM* cell)
{
    return draw_stage(cell, "Gamma", colours);
}

int st_drw_ccr_luminance(ST_MEM* cell)
{
    static constexpr ST_LABEL labels[] = {{"Low", 1}, {"Mid", 2}, {"High", 3}};
    return draw_stage(cell, "Lum Process", labels);
}

int st_drw_ccr_video(ST_MEM* cell)
{
    static constexpr ST_LABEL labels[] = {{"Lum", 1}, {"Chr", 2}, {"Hue", 3}, {"Blk", 4}};
    return draw_stage(cell, "Video Process", labels);
}
