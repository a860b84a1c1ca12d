#include "pc_me.h"
#include "bus.h"
#include "global.h"
#include "page.h"
#include "snapshot_region.h"
#include "text.h"
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <iterator>
#include "safeguards.h"

const ME_SSREGION DMEWipeSSRegion[2 * ME_BANKS_SHOWN] = {
    {0x00000002, "M/E-1"},     {0x00000004, "M/E-2"},     {0x00000008, "M/E-3"},
    {0x00000010, "M/E-4"},     {0x00000020, "M/E-5"},     {0x00000001, "P/P"},
    {0x01000000, "M/E-1 Sub"}, {0x02000000, "M/E-2 Sub"}, {0x04000000, "M/E-3 Sub"},
    {0x08000000, "M/E-4 Sub"}, {0x10000000, "M/E-5 Sub"}, {0x00800000, "P/P Sub"},
};
static_assert(std::size(DMEWipeSSRegion) == WipeSSCmd.size());

static const char* first_word()
{
    return GL_NowTree && GL_NowTree[0] ? GL_NowTree[0] : "";
}

int Now_disp_draw()
{
    const MeBank* bank = Page_Bank();
    return bank ? bank->place : 0;
}

int ME_ServerBank()
{
    return me_bank[Now_disp_draw()].me;
}

int ME_IsSubPage()
{
    return isNowPageME(0) == 2;
}

void ME_BankWord(char* dst, int size)
{
    snprintf(dst, size_t(size), "%s%s", first_word(), ME_IsSubPage() ? " SUB" : "");
}

bool ME_IsKey3Or4()
{
    const char* key = *first_word() ? GL_NowTree[1] : nullptr;
    for (const char* word : {"Key3", "DSK3", "Key4", "DSK4"})
        if (key && strcmp(key, word) == 0)
            return true;
    return false;
}

void ME_OpenPageOfKey(uint32_t id)
{
    AddPageOffset(&id);
    GL_CreatePage = id;
}

void ME_Mirror(const char* format, ...)
{
    char line[CMD_SIZE];
    va_list ap;
    va_start(ap, format);
    vsnprintf(line, sizeof line, format, ap);
    va_end(ap);
    SendDummyTally(line);
}

int ME_SnapshotRegion()
{
    return Now_disp_draw() + (ME_IsSubPage() ? ME_BANKS_SHOWN : 0);
}
