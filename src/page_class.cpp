// What kind of page an id names.
#include "device.h"
#include "global.h"
#include "page_private.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "safeguards.h"

namespace
{
struct PageRange {
    uint32_t first;
    uint32_t last;
};
// Errors, engineering pages, editors: they cover the page that they were called from and are left
// by a step back.
constexpr PageRange not_user_pages[] = {
    {0x54310099, 0x54310099}, {0x55550000, 0x55550000}, {0x71420002, 0x71420003},
    {0x71440002, 0x71440002}, {0x73160010, 0x73160010}, {0x77770000, 0x77770000},
    {0x88880000, 0x88880000}, {0x99000000, 0x99000000}, {0x99910000, 0x99910004},
    {0x99910009, 0x99910009}, {0x99940000, 0x99940000}, {0x99950000, 0x99950000},
    {0x99960000, 0x99960005}, {0x99970000, 0x99970001}, {0x99980000, 0x99980000},
    {0x99990000, 0x99990000}, {0x99995555, 0x99995555},
};
// Their knobs always open as the row says.
constexpr PageRange fixed_knob_pages[] = {
    {0x73310007, 0x73310007}, {0x73320000, 0x73320000}, {0x73330003, 0x73340004},
    {0x73350000, 0x73350001}, {0x73610001, 0x73610001},
};
} // namespace

template <size_t N> static bool is_in(const PageRange (&ranges)[N], uint32_t id)
{
    return std::any_of(ranges, ranges + N,
                       [id](const PageRange& r) { return id >= r.first && id <= r.last; });
}

static uint32_t this_or_now(uint32_t id)
{
    return id ? id : GL_NowPage;
}

bool page_is_sub_bank(uint32_t id)
{
    const MeBank* bank = MeBank_OfPage(id);
    return bank && MeBank_IsSub(*bank, id);
}

const MeBank* Page_Bank()
{
    return GL_NowTree ? MeBank_OfCaption(GL_NowTree[0]) : nullptr;
}

int isNowPageMeKey(uint32_t id)
{
    id = this_or_now(id);
    const uint32_t key = (id & PAGE_KEY_BITS) >> 20;
    if (key < 1 || key > 4)
        return 0;
    const uint32_t bank = id >> 24;
    if ((bank >= 0x11 && bank <= 0x14) || (bank >= 0x81 && bank <= 0x84))
        return 1;
    if ((bank >= 0x15 && bank <= 0x18) || (bank >= 0x85 && bank <= 0x88))
        return 2;
    return 0;
}

int isNowPageME(uint32_t id)
{
    id = this_or_now(id);
    if (isNowPageMeKey(id) || !MeBank_OfPage(id))
        return 0;
    return page_is_sub_bank(id) ? 2 : 1;
}

int isNowPageFM(uint32_t id)
{
    return GL_NowPage == 0x71620000 || this_or_now(id) >> 24 == 0x21;
}

int isMainSubCheck(uint32_t id)
{
    id = this_or_now(id);
    return isNowPageME(id) != 0 && isMP2SettingME(id);
}

// -1 on no panel row, 0 on rows of the main side only, 1 of the sub side only, 2 of both.
static int assigned_sides(int me)
{
    int found = 0;
    for (int row = 0; row < PANEL_ROWS; row++) {
        const int side = GL_MainSubAssign[row];
        if (GL_MEAssign[row] == me && side >= 0 && side <= 2)
            found |= 1 << side;
    }
    switch (found) {
    case 0: return -1;
    case 1: return 0;
    case 2: return 1;
    default: return 2;
    }
}

int MainSubAssign_StatusCheck_for_id(uint32_t id)
{
    id = this_or_now(id);
    const MeBank* bank = MeBank_OfPage(id);
    return bank && multiprogram2_me[bank->me] ? assigned_sides(bank->me) : -1;
}

static bool is_on_panel(int assign)
{
    return std::find(GL_MEAssign, GL_MEAssign + PANEL_ROWS, assign) != GL_MEAssign + PANEL_ROWS;
}

int MainSubAssign_StatusCheck()
{
    const char* word = GL_NowTree && GL_NowTree[0] ? GL_NowTree[0] : "";
    if (strcmp(word, "1st AUX") == 0)
        return is_on_panel(ASSIGN_1ST_AUX) ? 0 : -1;
    if (strcmp(word, "2nd AUX") == 0)
        return is_on_panel(ASSIGN_2ND_AUX) ? 0 : -1;
    const MeBank* bank = Page_Bank();
    return bank && multiprogram2_me[bank->me] ? assigned_sides(bank->me) : -1;
}

int IsUserPages(uint32_t id)
{
    return !is_in(not_user_pages, id);
}

int IsObjetype(int type)
{
    if (!Page)
        return 0;
    for (const _pageobject& obj : Page->obj) {
        if (obj.type <= OBJ_END)
            return 0;
        if (obj.type == type)
            return 1;
    }
    return 0;
}

int Page_GetKnobAssign()
{
    return Page ? Page->knobassign : -1;
}

void Page_SetKnobAssign(int id)
{
    if (Page && !is_in(fixed_knob_pages, GL_NowPage))
        Page->knobassign = id;
}

void Page_Number(char* text, int size, uint32_t id)
{
    if (!text || size <= 0)
        return;
    if (id & 0xFFFF)
        snprintf(text, size_t(size), "%04X.%X", id >> 16, id & 0xFFFF);
    else
        snprintf(text, size_t(size), "%04X", id >> 16);
}

const char* Page_LastWord(const PAGE& page)
{
    const char* last = "";
    for (const char* word : page.tree) {
        if (!word)
            break;
        last = word;
    }
    return last;
}

void Page_ColumnTitle(char (&dst)[64], const PAGE& page)
{
    const char* before = "";
    const char* last = "";
    for (const char* word : page.tree) {
        if (!word)
            break;
        before = std::exchange(last, word);
    }
    const bool is_number = *last && strspn(last, "0123456789") == strlen(last);
    if (is_number && *before)
        PrintText(dst, "%s %s", before, last);
    else
        CopyText(dst, last);
}
