// register_page: pages of the stored registers.
#pragma once
#include "pane_private.h"
#include "pc_register.h"
#include "table_page.h"

struct RegisterDesk : TablePage {
    // Regions by id; the first is the reference.
    static void Choose(REGKIND kind, const std::vector<int>& ids)
    {
        const REGIONBTN& g = RegionBtn[register_kinds[kind].group()];
        for (int i = 0; i < g.cells; i++) {
            const auto at = std::ranges::find(ids, g.btnsel[i].id);
            g.btnsel[i].select = at == ids.end() ? 0 : at == ids.begin() ? 2 : 1;
        }
    }
};
