#include "setup_index.h"
#include "err.h"
#include "global.h"
#include "log.h"
#include "page.h"
#include "safe_file.h"
#include "text.h"
#include <algorithm>
#include <cerrno>
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
constexpr uint32_t PAGE_ERROR_TEXT = 0x99000000;
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

// --- The lock file: 796 bytes, numbers with their highest byte first on every machine ---

constexpr size_t LOCK_FILE_SIZE = 20 + 4 + 4 + 4 * SETUP_LOCK_PAGES;
static_assert(LOCK_FILE_SIZE == 796);

static uint32_t read_u32(const unsigned char*& at)
{
    const uint32_t v = uint32_t(at[0]) << 24 | uint32_t(at[1]) << 16 | uint32_t(at[2]) << 8 | at[3];
    at += 4;
    return v;
}

static void write_u32(unsigned char*& at, uint32_t v)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        *at++ = (unsigned char)(v >> shift);
}

static SETUPLOCK lock_of_bytes(const unsigned char* at)
{
    SETUPLOCK lock;
    memcpy(lock.password, at, sizeof lock.password);
    lock.password[sizeof lock.password - 1] = '\0';
    at += sizeof lock.password;
    lock.lock = int32_t(read_u32(at));
    const uint32_t num = read_u32(at);
    lock.num = num > SETUP_LOCK_PAGES ? SETUP_LOCK_PAGES : int32_t(num);
    for (uint32_t& page : lock.page)
        page = read_u32(at);
    return lock;
}

static void bytes_of_lock(unsigned char* at, const SETUPLOCK& lock)
{
    memcpy(at, lock.password, sizeof lock.password);
    at += sizeof lock.password;
    write_u32(at, uint32_t(lock.lock));
    write_u32(at, uint32_t(lock.num));
    for (const uint32_t page : lock.page)
        write_u32(at, page);
}

// A missing file is the state of a new unit; one that cannot be used is a fault to be told.
static bool read_lock_file()
{
    FILE* fp = fopen(SETUP_LOCK_FILE, "rbe");
    if (!fp) {
        if (errno != ENOENT)
            Log_Output(LOG_ALWAYS, MOD_START, "Can't read lock file: %s, %s", SETUP_LOCK_FILE,
                       strerror(errno));
        return false;
    }
    unsigned char bytes[LOCK_FILE_SIZE];
    const bool is_whole = fread(bytes, sizeof bytes, 1, fp) == 1;
    fclose(fp);
    if (is_whole)
        SetupLock = lock_of_bytes(bytes);
    else
        Log_Output(LOG_ALWAYS, MOD_START, "Lock file is too short: %s", SETUP_LOCK_FILE);
    return is_whole;
}

void SetupIndex_LoadLock()
{
    SetupLock_New = !read_lock_file();
    if (SetupLock_New)
        SetupLock = {};
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

    unsigned char bytes[LOCK_FILE_SIZE];
    bytes_of_lock(bytes, SetupLock);
    return SafeFile_Write(SETUP_LOCK_FILE, bytes, sizeof bytes);
}

int SetupIndex_KeepLock()
{
    if (SetupIndex_SaveLock() == 0)
        return 0;
    Err_Clear();
    (void)Err_Add("ERROR: Setup lock information has not been stored in HDD.");
    GL_CreatePage = PAGE_ERROR_TEXT;
    return -1;
}

int SetupIndex_Find(uint32_t page)
{
    for (int i = 0; i < SetupMenu_Max; i++)
        if (SetupMenu[i].page == (page & ~VARIANT_BITS))
            return i;
    return -1;
}

bool SetupIndex_IsLocked(uint32_t page)
{
    const int row = SetupIndex_Find(page);
    return SetupLock.lock && row >= 0 && SetupMenu[row].lock && page != PAGE_SETUP_LOCK;
}

void SetupIndex_SetExtensionPanel(int available)
{
    for (int i = 0; i < SetupMenu_Max; i++)
        if (strcmp(SetupMenu[i].name, EXTENSION_PANEL) == 0)
            SetupMenu[i].active = available;
}
