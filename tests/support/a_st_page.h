// a_st_page: a page of status cells: opened by hand, told tallies, pressed by place.
#pragma once
#include "a_st.h"
#include "a_st_draw.h"
#include "hand_page.h"
#include "page_table/rows.h"
#include "tdl.h"

struct CellPage : HandPage {
    CellPage() { object_kind = OBJ_ST; }

    void TearDown() override
    {
        HandPage::TearDown();
        s_font = 0;
        st_drw_me_misc_key_assign_tally_set("");
    }
    static void Open(const ST_TBL* rows)
    {
        ST_Create(nullptr, 0);
        (void)TakeQueuedCommands();
        ST_Create(rows, 0);
    }
    // How many pixels of a colour a rectangle has.
    static int Count(Rect r, uint32_t colour)
    {
        return int(std::ranges::count(PixelsIn(r), colour));
    }
};
