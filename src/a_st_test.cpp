// The cells of the developer's page: each shared part with texts of its own, so that the look can
// be tuned on the device, and the cell that paints nothing. The switches of the engineering menu
// light, invert and veil them.
#include "a_st_draw.h"
#include "graphics.h"
#include "text.h"
#include "safeguards.h"

int st_drw_status_dummy(ST_MEM*)
{
    return 0;
}

// These need no tally: what they show is themselves.
static int draw_frame(const ST_MEM* cell, const char* name)
{
    return st_drw_background_areaname(cell, bgcen, name);
}

static int draw_veil(const ST_MEM* cell)
{
    return gryen ? st_drw_recoats_grayout(cell, bgcen) : 0;
}

int st_drw_status_string_type(ST_MEM* cell)
{
    draw_frame(cell, "Strings");
    ST_VAL val{
        .st_num = 4, .st_str = {"Line 1", "Line 2", "Line 3", "A longer line"}, .selected = bgcen};
    val.invert[0] = inven;
    val.grayout[2] = gryen;
    return st_drw_status_strings(cell, &val);
}

int st_drw_status_value_type(ST_MEM* cell)
{
    draw_frame(cell, "Values");
    ST_VAL val{.st_num = 4,
               .st_str = {"H", "V", "Size", "Name"},
               .val_str = {"-12.50", "100.00", "0.75", "Text"},
               .selected = bgcen};
    val.invert[0] = inven;
    val.grayout[2] = gryen;
    return st_drw_status_values(cell, &val);
}

int st_drw_status_bmp(ST_MEM* cell)
{
    draw_frame(cell, "Bitmap");
    st_drw_bmpimage_strings(cell, G_Edge_Border, "");
    st_drw_under_strings(cell, "Border", inven);
    return draw_veil(cell);
}

int st_drw_status_image(ST_MEM* cell)
{
    draw_frame(cell, "Image");
    st_drw_center_image_square(cell, "LUM", inven);
    st_drw_under_strings(cell, "Clean", inven);
    return draw_veil(cell);
}

static int draw_pattern(const ST_MEM* cell, const char* number, const char* text)
{
    draw_frame(cell, "Pattern");
    st_drw_bmpimage_strings(cell, st_pattern(number), text);
    st_drw_under_strings(cell, number, inven);
    return draw_veil(cell);
}

int st_drw_put_bmp_ptn1(ST_MEM* cell)
{
    return draw_pattern(cell, "1", "");
}

int st_drw_put_bmp_ptn2(ST_MEM* cell)
{
    return draw_pattern(cell, "65", "Text");
}

int st_drw_put_bmp_ptn3(ST_MEM* cell)
{
    return draw_pattern(cell, "1001", "Two lines of text");
}

int st_drw_test_1(ST_MEM* cell)
{
    draw_frame(cell, "Text");
    st_drw_center_image_square(cell, "Key Wipe Pattern", inven);
    return draw_veil(cell);
}

int st_drw_test_2(ST_MEM* cell)
{
    draw_frame(cell, "Text");
    st_drw_center_image_square(cell, "Abcdefghijklmnop", inven);
    return draw_veil(cell);
}

int st_drw_test_3(ST_MEM* cell)
{
    draw_frame(cell, "Position");
    st_drw_center_image_wipe_position(cell, 0, 0);
    st_drw_under_strings(cell, "Auto Center", inven);
    return draw_veil(cell);
}

int st_drw_test_4(ST_MEM* cell)
{
    draw_frame(cell, "Position");
    st_drw_center_image_wipe_position(cell, 200, -200);
    st_drw_under_strings(cell, "Corner", inven);
    return draw_veil(cell);
}
