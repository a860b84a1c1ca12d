// a_kf_private: what the files of a_kf share. a_kf owns the mirror and the order of the regions;
// a_kf_tally takes the frames of the server; a_kf_timeline is the page, a_kf_draw paints its rows;
// a_kf_strip is the strip at top right.
#pragma once
#include "a_kf.h"

constexpr int TL_ROWS = 10;
constexpr int EMPTY_ROW = KF_REGIONS - 1; // the region that stands for an empty row

extern KF_REGION Region[KF_REGIONS];
extern int RegionPriority[KF_REGIONS]; // as listed: indices, KF_NO_REGION in an empty place
extern KF_REGION* tlPriority[KF_REGIONS];
extern KF_REGION* tlDisp[TL_ROWS]; // null only before KF_Init
extern int RegionScroll;           // the place in tlPriority of the first row
extern int tlSTime;                // the edges of the time axis
extern int tlETime;
extern int tlSETime_redraw; // the axis may have changed
extern int RefRegion;       // code of the reference region
extern int tlOrder_stale;   // what the order is made of has changed since

// Returns 1 for an id that is not of the regions, else 0.
int KF_TallyProc(uint32_t id, const unsigned char* data, int ndata);
void kf_fill_rows();      // tlDisp from tlPriority, with RegionScroll held to
int kf_furthest_scroll(); // the place from which the last region still is in the last row

// Paint a row of the timeline, or only its bar, flushed. -1 for a null region, -2 for a row that
// there is not.
int tl_draw(const KF_REGION* region, int row);
int tl_drawtl(const KF_REGION* region, int row);
