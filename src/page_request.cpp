// Which page a request means: wildcards, editors with nothing to edit, sides and keys that a bank
// lacks, and the template ids of buttons. Which variant of a page exists is asked of page_rules.
#include "a_vf.h"
#include "device.h"
#include "global.h"
#include "page_private.h"
#include "process.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr struct {
    const char* word;
    uint32_t offset; // from Key1
} key_offsets[] = {
    {"Key2", 0x00100000}, {"DSK2", 0x00100000}, {"Key3", 0x00200000}, {"DSK3", 0x00200000},
    {"Key4", 0x00300000}, {"DSK4", 0x00300000}, {"Key5", 0x04000000}, {"DSK5", 0x04000000},
    {"Key6", 0x04100000}, {"DSK6", 0x04100000}, {"Key7", 0x04200000}, {"DSK7", 0x04200000},
    {"Key8", 0x04300000}, {"DSK8", 0x04300000}, {"CCR2", 0x00100000},
};
} // namespace

// The tab last chosen: any page of the tab group knows its left tabs and which of them is selected.
static uint32_t resolve_tab(uint32_t id)
{
    if ((id & PAGE_TAB_BITS) != PAGE_TAB_BITS)
        return id;
    const PAGE* row = PageTable;
    while (row->id != PAGE_END && (row->id | PAGE_TAB_BITS) != id)
        row++;
    if (row->id == PAGE_END)
        return id;
    const auto* tabs = std::find_if(row->obj, row->obj + PAGE_OBJECTS,
                                    [](const _pageobject& obj) { return obj.type == OBJ_VF; });
    if (tabs == row->obj + PAGE_OBJECTS || !tabs->addr)
        return id;
    const VF_TBL* tab = static_cast<const VF_TBL*>(tabs->addr);
    for (int i = 0; i < VF_MAX && tab[i].id >= 1; i++)
        if (uint32_t(tab[i].id) == tabs->var)
            return (id & ~PAGE_TAB_BITS) | (tab[i].page & PAGE_TAB_BITS);
    return id;
}

// The editors of macros open only while there is something to edit.
static uint32_t guard_macro_editors(uint32_t id)
{
    if (id == 0x71420002 && GL_Macro_Online_TrueOrFalse != 1)
        return 0x71420001;
    if (id == 0x71420003 && !FileExist("/tmp/MacroEdit/MacroEdit.PMR"))
        return 0x71420001;
    if (id == 0x71440002 && GL_MenuMacro_Edit != 1)
        return 0x71440001;
    if (id == 0x71440102)
        return 0x71440002;
    return id;
}

static uint32_t correct_single_dme(uint32_t id)
{
    const bool is_second_group = (id & (PAGE_BANK_BITS | PAGE_KEY_BITS)) == 0x42200000;
    return is_second_group && GL_DmeModel[0] == 5 && SYS_MyDmeMax <= 1 ? 0x42110000 : id;
}

// Menus that exist once for an M/E open on the side that the panel has; a page that stands for both
// sides opens where it is.
static uint32_t correct_main_sub(uint32_t id)
{
    if ((id & ~PAGE_BANK_BITS) < 0x00500000)
        return id;
    const int kind = isNowPageME(id);
    if (kind == 1 && MainSubAssign_StatusCheck_for_id(id) == 1)
        return SearchPageTable(id + TO_SUB_BANK) ? id + TO_SUB_BANK : id;
    if (kind == 2 && MainSubAssign_StatusCheck_for_id(id) == 0)
        return id - TO_SUB_BANK;
    return id;
}

static uint32_t correct_single_program(uint32_t id)
{
    return isNowPageME(id) == 2 && !isMP2SettingME(id) ? id - TO_SUB_BANK : id;
}

// Keys 5 to 8 of an M/E with four keys are keys 1 to 4.
static uint32_t correct_key_limit(uint32_t id)
{
    const MeBank* bank = MeBank_OfPage(id);
    if (!bank || isNowPageMeKey(id) != 2)
        return id;
    return GL_KeyMax[bank->place] <= 4 ? id - TO_SUB_BANK : id;
}

uint32_t page_correct_request(uint32_t id)
{
    if (id == 0)
        return id; // to the questions 0 is the current page, here it is a page that does not exist
    id = resolve_tab(id);
    id = guard_macro_editors(id);
    id = correct_single_dme(id);
    id = correct_main_sub(id);
    id = correct_single_program(id);
    return correct_key_limit(id);
}

bool Page_Exists(uint32_t id)
{
    return SearchPageTable(page_correct_request(id)) != nullptr;
}

bool Page_IsMissing(uint32_t id)
{
    return id != 0 && !Page_Exists(id);
}

bool PageLook_IsDue(PageLook& look, int elapsed_ms)
{
    constexpr int LOOK_MS = 500;
    look.left_ms -= elapsed_ms;
    if (look.left_ms > 0)
        return false;
    look.left_ms = LOOK_MS;
    return true;
}

uint32_t Page_Nearest(uint32_t id)
{
    const uint32_t candidates[] = {id, id & 0xFFFF0000, (id & PAGE_BANK_BITS) | 0x00110000};
    for (const uint32_t candidate : candidates)
        if (Page_Exists(candidate))
            return candidate;
    return PAGE_TOP;
}

// --- From a template to the page's own bank and key ---

// What the second word of the path adds to an id whose bank is already right.
static uint32_t word_offset(const char* word, uint32_t id)
{
    if (strcmp(word, "DME Wipe") == 0)
        return page_is_sub_bank(GL_NowPage) ? TO_SUB_BANK : 0;
    if (strcmp(word, "Misc") == 0) {
        const bool is_main = id < 0x15000000 || (id >= 0x81000000 && id <= 0x84FFFFFF);
        return is_main && page_is_sub_bank(GL_NowPage) ? TO_SUB_BANK : 0;
    }
    for (const auto& key : key_offsets)
        if (strcmp(word, key.word) == 0)
            return key.offset;
    return 0;
}

void AddPageOffset(uint32_t* id)
{
    if (!id || !Page || !Page->tree[0])
        return;
    if (const MeBank* bank = MeBank_OfCaption(Page->tree[0]))
        *id += MeBank_Offset(*bank);
    if (Page->tree[1])
        *id += word_offset(Page->tree[1], *id);
}
