#include "setup_index.h"
#include "log.h"
#include "page.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

SETUPMENU SetupMenu[SETUP_ROWS];
int SetupMenu_Max = 0;
SETUPTBL SetupMenuTbl[SETUP_GROUPS];
SETUPLOCK SetupLock;
int SetupLock_New = 0;

namespace
{
constexpr uint32_t FIRST_GROUP = 0x731;
constexpr uint32_t VARIANT_BITS = 0x0000FF00;
constexpr uint32_t LAST_SUBPAGE = 153; // above it the low half of an id holds a variant
constexpr const char* EXTENSION_PANEL = "Extension Panel"; // the last word of its page's path
} // namespace

// A page that exists in several variants has one row.
static bool is_other_variant(const PAGE& page)
{
    return (page.id & 0xFFFF) > LAST_SUBPAGE && SetupIndex_Find(page.id) >= 0;
}

static void add_row(const PAGE& page)
{
    if (SetupMenu_Max >= SETUP_ROWS) {
        Log_Output(LOG_LIFE, MOD_START, "Setup index is full: %Xh", page.id);
        return;
    }
    SETUPMENU& row = SetupMenu[SetupMenu_Max++];
    row = {.page = page.id & ~VARIANT_BITS, .active = 1};
    Page_Number(row.menu, sizeof row.menu, row.page);
    CopyText(row.name, Page_LastWord(page));
}

void SetupIndex_BuildFrom(const PAGE* table)
{
    SetupMenu_Max = 0;
    for (uint32_t group = 0; group < SETUP_GROUPS; group++) {
        SetupMenuTbl[group].off = SetupMenu_Max;
        for (const PAGE* page = table; page->id != PAGE_END; page++) {
            const bool belongs = page->id >> 20 == FIRST_GROUP + group && page->id > FIRST_GROUP
                                                                                         << 20;
            if (belongs && !is_other_variant(*page))
                add_row(*page);
        }
        SetupMenuTbl[group].num = SetupMenu_Max - SetupMenuTbl[group].off;
    }
    SetupIndex_SetExtensionPanel(0);
}

void SetupIndex_Build()
{
    SetupIndex_BuildFrom(PageTable);
}

static bool read_lock_file()
{
    FILE* fp = fopen(SETUP_LOCK_FILE, "rb");
    if (!fp)
        return false;
    const bool is_whole = fread(&SetupLock, sizeof SetupLock, 1, fp) == 1;
    fclose(fp);
    if (!is_whole)
        Log_Output(LOG_LIFE, MOD_START, "Lock file is too short: %s", SETUP_LOCK_FILE);
    return is_whole;
}

void SetupIndex_LoadLock()
{
    SetupLock_New = !read_lock_file();
    if (SetupLock_New)
        SetupLock = {};
    SetupLock.password[sizeof SetupLock.password - 1] = '\0';
    SetupLock.num = std::clamp(SetupLock.num, 0, SETUP_LOCK_PAGES);
    for (int i = 0; i < SetupMenu_Max; i++)
        SetupMenu[i].lock = 0;
    for (int i = 0; i < SetupLock.num; i++) {
        const int row = SetupIndex_Find(SetupLock.page[i]);
        if (row >= 0)
            SetupMenu[row].lock = 1;
    }
}

int SetupIndex_SaveLock()
{
    std::fill_n(SetupLock.page, SETUP_LOCK_PAGES, 0);
    SetupLock.num = 0;
    for (int i = 0; i < SetupMenu_Max && SetupLock.num < SETUP_LOCK_PAGES; i++)
        if (SetupMenu[i].lock)
            SetupLock.page[SetupLock.num++] = SetupMenu[i].page;

    FILE* fp = fopen(SETUP_LOCK_FILE, "wb");
    if (!fp)
        return -1;
    const bool is_written = fwrite(&SetupLock, sizeof SetupLock, 1, fp) == 1;
    const bool is_closed = fclose(fp) == 0; // a full disk may show only here
    return is_written && is_closed ? 0 : -1;
}

int SetupIndex_Find(uint32_t page)
{
    for (int i = 0; i < SetupMenu_Max; i++)
        if (SetupMenu[i].page == (page & ~VARIANT_BITS))
            return i;
    return -1;
}

void SetupIndex_SetExtensionPanel(int available)
{
    for (int i = 0; i < SetupMenu_Max; i++)
        if (strcmp(SetupMenu[i].name, EXTENSION_PANEL) == 0)
            SetupMenu[i].active = available;
}
