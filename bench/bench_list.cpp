// bench_list: what a list of 15 rows and 5 columns costs. The limits are the same with 15 rows in
// use and with 12,000: what is not shown must cost nothing.
#include "a_ls.h"
#include "bench_support.h"
#include "graphics.h"
#include "message.h"
#include "scrollbar.h"
#include <cstdio>

namespace
{
constexpr int SHORT = 1;
constexpr int LONG = 2;
constexpr int COLUMNS = 5;

constexpr LS_TBL List(int id)
{
    return {.id = id,
            .hn = COLUMNS,
            .vn = 15,
            .x = 100,
            .y = 78,
            .head = {"No", "Name", "Lock", "Date", "Size"},
            .width = {50, 200, 60, 150, 90},
            .group = {1, 2, 999},
            .sb_top = 78,
            .sb_bottom = 430};
}
constexpr LS_TBL lists[] = {List(SHORT), List(LONG), LS_END};

void fill(int id, int rows)
{
    static const char* const cells[COLUMNS] = {"11999", "MIDNIGHT NEWS", "L", "12/31 23:59",
                                               "1234 KB"};
    LS_SetNData(id, rows);
    for (int row = 0; row < rows; row++) {
        for (int col = 0; col < COLUMNS; col++)
            LS_SetData(id, row, col, cells[col]);
        LS_SetHStatus(id, row, row % 6);
    }
    LS_SetNowLine(id, rows / 2);
}

// Leaves the lists as the other cases find them.
void change_page()
{
    LS_Create(lists, 0);
    fill(SHORT, 15);
    fill(LONG, LS_ROWS);
}

void paint()
{
    LS_Proc(MSG_REDRAW, 10, 0, 0, 0);
    ScrollBarProc(MSG_REDRAW, 10, 0, 0, 0);
}

template <int ID> void paint_all()
{
    LS_RedrawData(ID);
    paint();
}

// A step of the arrow, down and up by turns, so that there is always somewhere to go.
template <int ID> void scroll_step()
{
    static int delta = 1;
    LS_Proc(LMSG_SBSEL, delta < 0 ? SB_UP : SB_DOWN, ID - 1, delta, 0);
    delta = -delta;
    paint();
}

// As page code goes through a selection of everything.
void walk_selection()
{
    LS_SetALL(LONG, 1);
    for (int n = 0; LS_GetSelected(LONG, n) >= 0; n++)
        ;
    LS_SetMS(LONG, 0);
}
} // namespace

int main(int argc, char** argv)
{
    static constexpr BenchCase cases[] = {
        {.name = "full list", .once = paint_all<SHORT>, .limit_copies = 3},
        {.name = "full list of 12,000 rows", .once = paint_all<LONG>, .limit_copies = 3},
        {.name = "scroll step", .once = scroll_step<SHORT>, .limit_copies = 3},
        {.name = "scroll step in 12,000 rows", .once = scroll_step<LONG>, .limit_copies = 3},
        {.name = "12,000 rows: select, walk, unselect", .once = walk_selection, .limit_copies = 8},
        {.name = "12,000 rows: open and fill", .once = change_page, .limit_copies = 20},
    };
    Bench_Screen();
    if (!G_SB_up_off) {
        fprintf(stderr, "no bitmaps in the run folder\n");
        return 1;
    }
    change_page();
    return Bench_Main(argc, argv, cases);
}
