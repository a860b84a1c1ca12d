// st_ccr: the status cells over the pages of a colour corrector: whether it corrects, and its chain from the first link to
// the last; each leads to the page that sets it.
#pragma once
#include "rows.h"

#define ST_CCR(column, line, painter, target, ...) \
    CellAt(column, line, {.id = 1 + (column) + 6 * (line), .draw_func = painter, .cmd = __VA_ARGS__, .page = (target)})
#define ST_RGB(path) {path, path "@All", path "@Red", path "@Green", path "@Blue"}
#define ST_CLIP(path) {path, path "@Red", path "@Green", path "@Blue"}
// As long as a line may be beside a key in the last column.
#define ST_CCR_LINE(line, ccr, base) \
    ST_CCR(0, line, st_drw_source_insert, (base) + 0x70000, \
           {"CCR@" ccr "@Insert@Correction", "CCR@" ccr "@Insert@Insert", "Engineering Setup@Switcher@Input@CCR@Input@" ccr}), \
    ST_CCR(1, line, st_drw_source_levels, (base) + 0x10000, ST_RGB("CCR@" ccr "@White/Black@White")), \
    ST_CCR(2, line, st_drw_source_levels, (base) + 0x10000, ST_RGB("CCR@" ccr "@White/Black@Black")), \
    ST_CCR(3, line, st_drw_source_levels, (base) + 0x10000, ST_RGB("CCR@" ccr "@White/Black@Flare")), \
    ST_CCR(4, line, st_drw_source_levels, (base) + 0x20000, ST_RGB("CCR@" ccr "@Gamma/Knee@Gamma"))
#define ST_CCR_CHAIN(ccr, base) { \
    ST_CCR_LINE(0, ccr, base), \
    ST_CCR(5, 0, st_drw_source_levels, (base) + 0x20000, \
           {"CCR@" ccr "@Gamma/Knee@Black Stretch", "CCR@" ccr "@Gamma/Knee@Black Stretch@Point", "CCR@" ccr "@Gamma/Knee@Black Stretch@Gain"}), \
    ST_CCR(0, 1, st_drw_source_levels, (base) + 0x20000, \
           {"CCR@" ccr "@Gamma/Knee@Knee", "CCR@" ccr "@Gamma/Knee@Knee@Point", "CCR@" ccr "@Gamma/Knee@Knee@Slope"}), \
    ST_CCR(1, 1, st_drw_source_levels, (base) + 0x30000, ST_CLIP("CCR@" ccr "@RGB Clip@White Clip")), \
    ST_CCR(2, 1, st_drw_source_levels, (base) + 0x30000, ST_CLIP("CCR@" ccr "@RGB Clip@Dark Clip")), \
    ST_CCR(3, 1, st_drw_source_spots,  (base) + 0x40000, \
           {"CCR@" ccr "@Spot Color@Spot 1", "CCR@" ccr "@Spot Color@Spot 2", "CCR@" ccr "@Spot Color@Spot 3"}), \
    ST_CCR(4, 1, st_drw_source_levels, (base) + 0x50000, \
           {"CCR@" ccr "@Lum Process@Lum Process", "CCR@" ccr "@Lum Process@Gain@Low", "CCR@" ccr "@Lum Process@Gain@Middle", \
            "CCR@" ccr "@Lum Process@Gain@High"}), \
    ST_CCR(5, 1, st_drw_source_levels, (base) + 0x60000, \
           {"CCR@" ccr "@Video Process@Video Process", "CCR@" ccr "@Video Process@Luminance", "CCR@" ccr "@Video Process@Chroma", \
            "CCR@" ccr "@Video Process@Hue", "CCR@" ccr "@Video Process@Black Level"}), \
    ST_END}
inline constexpr ST_TBL st_ccr[][13] = {ST_CCR_CHAIN("CCR1", 0x24100000), ST_CCR_CHAIN("CCR2", 0x24200000)};
inline constexpr ST_TBL st_ccr_top[] = {ST_CCR_LINE(0, "CCR1", 0x24100000), ST_CCR_LINE(1, "CCR2", 0x24200000), ST_END};
static_assert(CellsAreSound(st_ccr[0]) && CellsAreSound(st_ccr[1]) && CellsAreSound(st_ccr_top));
#undef ST_CCR_CHAIN
#undef ST_CCR_LINE
#undef ST_CLIP
#undef ST_RGB
#undef ST_CCR
