// st_ccr: the status cells over the pages of a colour corrector; each leads to the page that sets it.
#pragma once
#include "rows.h"

#define ST_RGB(path) {path, path "@All", path "@Red", path "@Green", path "@Blue"}
#define ST_CCR(ccr, base) { \
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_ccr_insert, \
                  .cmd = {"CCR@" ccr "@Insert@Correction", "CCR@" ccr "@Insert@Insert", "Engineering Setup@Switcher@Input@CCR@Input@" ccr}, \
                  .page = (base) + 0x70000}), \
    CellAt(1, 0, {.id = 2, .draw_func = st_drw_ccr_white, .cmd = ST_RGB("CCR@" ccr "@White/Black@White"), .page = (base) + 0x10000}), \
    CellAt(2, 0, {.id = 3, .draw_func = st_drw_ccr_black, .cmd = ST_RGB("CCR@" ccr "@White/Black@Black"), .page = (base) + 0x10000}), \
    CellAt(3, 0, {.id = 4, .draw_func = st_drw_ccr_gamma, .cmd = ST_RGB("CCR@" ccr "@Gamma/Knee@Gamma"), .page = (base) + 0x20000}), \
    CellAt(4, 0, {.id = 5, .draw_func = st_drw_ccr_luminance, \
                  .cmd = {"CCR@" ccr "@Lum Process@Lum Process", "CCR@" ccr "@Lum Process@Gain@Low", \
                          "CCR@" ccr "@Lum Process@Gain@Middle", "CCR@" ccr "@Lum Process@Gain@High"}, .page = (base) + 0x50000}), \
    CellAt(5, 0, {.id = 6, .draw_func = st_drw_ccr_video, \
                  .cmd = {"CCR@" ccr "@Video Process@Video Process", "CCR@" ccr "@Video Process@Luminance", \
                          "CCR@" ccr "@Video Process@Chroma", "CCR@" ccr "@Video Process@Hue", "CCR@" ccr "@Video Process@Black Level"}, \
                  .page = (base) + 0x60000}), \
    ST_END}
inline constexpr ST_TBL st_ccr[][7] = {ST_CCR("CCR1", 0x24100000), ST_CCR("CCR2", 0x24200000)};
static_assert(CellsAreSound(st_ccr[0]) && CellsAreSound(st_ccr[1]));
#undef ST_CCR
#undef ST_RGB
