// page_walk: the rows of the page table with what leads on from them, for tests of the whole table.
#pragma once
#include "a_bt.h"
#include "a_hf.h"
#include "a_nb.h"
#include "a_vf.h"
#include "command.h"
#include "page.h"
#include <cstdlib>

namespace page_walk
{
// The table of a family on a page, null when it has none.
inline const void* TableOf(const PAGE& page, int type, uint32_t* selected = nullptr)
{
    for (const auto& object : page.obj)
        if (object.type == type) {
            if (selected)
                *selected = object.var;
            return object.addr;
        }
    return nullptr;
}

inline const BT_TBL* ButtonsOf(const PAGE& page)
{
    return static_cast<const BT_TBL*>(TableOf(page, OBJ_BT));
}

template <typename Visit> void ForEachPage(Visit visit)
{
    for (PAGE* page = PageTable; page->id != PAGE_END; page++)
        visit(*page);
}

template <typename Visit> void ForEachButton(Visit visit)
{
    ForEachPage([&](PAGE& page) {
        for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++)
            visit(page, *b);
    });
}

inline bool IsJump(const BT_TBL& b)
{
    return b.cmd[0] && (b.cmd[0][0] == '#') &&
           (b.type == BT_JUMP || b.type == BT_JUMP_10KEY || b.type == BT_JUMP_KEYBOARD ||
            b.type == BT_JUMP_POPUP);
}

// As if it were open.
inline void Show(PAGE& page)
{
    Page = &page;
    GL_NowTree = page.tree;
    GL_NowPage = page.id;
}

// The page that a jump of this page requests, as the button works it out.
inline uint32_t TargetOf(PAGE& page, const BT_TBL& b)
{
    Show(page);
    const char* number = b.cmd[0] + 1;
    uint32_t id = uint32_t(strtoul(*number == '+' ? number + 1 : number, nullptr, 16));
    if (*number == '+')
        AddPageOffset(&id);
    return id;
}

// Both kinds of tabs of a page, as (id, caption, page, is chosen).
template <typename Visit> void ForEachTab(PAGE& page, Visit visit)
{
    uint32_t selected = 0;
    if (const auto* t = static_cast<const VF_TBL*>(TableOf(page, OBJ_VF, &selected)))
        for (; t->id >= 1; t++)
            visit(OBJ_VF, t->id, t->caption, t->page, uint32_t(t->id) == selected);
    if (const auto* t = static_cast<const HF_TBL*>(TableOf(page, OBJ_HF, &selected)))
        for (; t->id >= 1; t++)
            visit(OBJ_HF, t->id, t->caption, t->page, uint32_t(t->id) == (selected & ~HF_LOW));
}

// Every number box that a button of the page may show.
template <typename Visit> void ForEachBox(Visit visit)
{
    ForEachButton([&](PAGE& page, const BT_TBL& b) {
        const NB_TBL* tables[16] = {b.nb};
        const int number = SpecialKnobNumber(b.nb);
        const int n = number ? special_knob_tables(number, tables, 16) : b.nb != NoKnobs();
        for (int i = 0; i < n; i++)
            for (const NB_TBL* nb = tables[i]; nb && nb->id >= 1; nb++)
                visit(page, b, *nb);
    });
}
} // namespace page_walk
