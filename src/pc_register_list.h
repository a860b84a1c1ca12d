// pc_register_list: a list of registers on a page, one region of a kind: its lines come from the
// mirror and follow it while the page is open. It fills cells and greys empty registers; what is
// done with the selection belongs to the pages. Below a single list stands a strip that tells which
// regions hold the register at the cursor.
#pragma once
#include "pc_register_kind.h"

constexpr int REGISTER_LISTS = 2;

// Show a region (row of the kind's table) on list n + 1, in these columns; the cursor goes to row
// sel. Lines that the mirror does not have yet are asked for, once.
void RegisterList_Open(int n, const RegisterKind& kind, const RegisterColumn* columns, int region,
                       int sel);
void RegisterList_CloseAll();
void RegisterList_SetRegion(int n, int region);       // fill anew, the cursor stays
const RegisterLine& RegisterList_Line(int n, int no); // an empty one out of range
// LMSG_REGISTER: a register of the mirror has changed. 1 when a list showed it.
int RegisterList_Registered(int kind, int mirror_row, int no);
// Take the line of a register anew, where something else that it shows has changed.
void RegisterList_Refresh(int n, int no);

// --- The strip below the first list ---
bool RegisterDetail_Has(const RegisterKind& kind); // false where the columns tell all
void RegisterDetail_Open(const Rect& place);
void RegisterDetail_SetDirty(); // the cursor or the selection of regions has changed
void RegisterDetail_Redraw();   // at MSG_REDRAW

// --- What it consists of, for pages without a list; drawn without a flush ---
void RegisterStrip_DrawGround(const Rect& place);
// The regions that hold register no, 466 by 58 px from the top left of place; reference is the row
// that stands out.
void RegisterStrip_DrawRegions(const RegisterKind& kind, int reference, int no, const Rect& place);
