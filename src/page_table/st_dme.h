// st_dme: the status cells of the effects pages: a wide table of the transform that the operator turns. Which of the
// four it is follows from the reference that the server tells.
#pragma once
#include "rows.h"

#define ST_AXES(path) path "@X", path "@Y", path "@Z"
#define ST_TRANSFORM(path) {ST_AXES(path "@Location"), ST_AXES(path "@Rotation"), ST_AXES(path "@Axis"), \
                            ST_AXES(path "@Aspect"), ST_AXES(path "@Size"), ST_AXES(path "@Crop")}

inline constexpr ST_TBL st_dme_comstatus_glbsrc[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_dme_glbsrc_status, .cmd = ST_TRANSFORM("DME@Status@3D Param@Global Source")}, 4, 2),
    ST_END,
};
inline constexpr ST_TBL st_dme_comstatus_glbtrgt[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_dme_glbtrgt_status, .cmd = ST_TRANSFORM("DME@Status@3D Param@Global Target")}, 4, 2),
    ST_END,
};
inline constexpr ST_TBL st_dme_comstatus_localsrc[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_dme_localsrc_status, .cmd = ST_TRANSFORM("DME@Status@3D Param@Local Source")}, 4, 2),
    ST_END,
};
inline constexpr ST_TBL st_dme_comstatus_localtrgt[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_dme_localtrgt_status, .cmd = ST_TRANSFORM("DME@Status@3D Param@Local Target")}, 4, 2),
    ST_END,
};
static_assert(CellsAreSound(st_dme_comstatus_glbsrc) && CellsAreSound(st_dme_comstatus_glbtrgt));
static_assert(CellsAreSound(st_dme_comstatus_localsrc) && CellsAreSound(st_dme_comstatus_localtrgt));

// Both transforms of the target, and who uses the channels.
#define ST_USERS {"DME@Status@Channel@1", "DME@Status@Channel@2", "DME@Status@Channel@3", "DME@Status@Channel@4"}
inline constexpr ST_TBL st_dme_status[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_dme_status_global, .cmd = ST_TRANSFORM("DME@Status@3D Param@Global Target")}, 3, 2),
    CellAt(3, 0, {.id = 3, .draw_func = st_drw_dme_status_local, .cmd = ST_TRANSFORM("DME@Status@3D Param@Local Target")}, 3, 2),
    CellAt(0, 2, {.id = 4, .draw_func = st_drw_status_dme_status, .cmd = ST_USERS}),
    CellAt(1, 2, {.id = 5, .draw_func = st_drw_status_dme_status_mp2, .cmd = ST_USERS}),
    CellAt(2, 2, {.id = 6, .draw_func = st_drw_status_dme_status_list, .cmd = ST_USERS}),
    ST_END,
};
static_assert(CellsAreSound(st_dme_status));
#undef ST_USERS
#undef ST_TRANSFORM
#undef ST_AXES
