#include "file_newest.h"
#include "file_private.h"
#include "month.h"
#include "text.h"
#include <cstdio>
#include <cstring>

#include "safeguards.h"

uint32_t FileNewest_Minute(const char* date)
{
    char month[4] = "";
    unsigned day = 0, year = 0, hour = 0, minute = 0;
    if (sscanf(date, "%3[A-Za-z].%2u.%4u %2u:%2u", month, &day, &year, &hour, &minute) < 5)
        return 0;
    const auto number = uint32_t(Month_Number(month));
    return (((year * 13 + number) * 32 + day) * 24 + hour) * 60 + minute;
}

// What follows the last folder, or the unit.
static const char* file_of(const char* path)
{
    const char* const end = path + strlen(path);
    const char* p = end;
    while (p > path && p[-1] != '/' && p[-1] != ':')
        p--;
    return p;
}

// ".ME1_007.SSS", or the whole file where it has no name of its own.
static const char* register_of(const char* file)
{
    const char* const ext = strrchr(file, '.');
    const char* p = ext;
    while (p && p > file && p[-1] != '.')
        p--;
    return p && p > file ? p - 1 : file;
}

static FILEXFERLIST*& chain_of(FILENEWEST& newest, const char* dst)
{
    uint32_t sum = 0;
    for (const char* p = register_of(file_of(dst)); *p; p++)
        sum = sum * 31 + static_cast<unsigned char>(*p);
    return newest.chain[sum % NEWEST_CHAINS];
}

static bool is_same_register(const char* a, const char* b)
{
    const char* const file_a = file_of(a);
    const char* const file_b = file_of(b);
    return file_a - a == file_b - b && memcmp(a, b, size_t(file_a - a)) == 0 &&
           strcmp(register_of(file_a), register_of(file_b)) == 0;
}

int FileNewest_Add(FILENEWEST& newest, FILEXFERLIST** list, const char* src, const char* dst,
                   const char* date, const char* category, const char* target)
{
    const uint32_t minute = FileNewest_Minute(date);
    FILEXFERLIST*& chain = chain_of(newest, dst);
    for (FILEXFERLIST* item = chain; item; item = item->newest_next) {
        if (!is_same_register(item->dst, dst))
            continue;
        if (minute < item->minute)
            return 0;
        CopyText(item->src, src);
        CopyText(item->dst, dst);
        item->minute = minute;
        return 0;
    }
    if ((*category ? File_XferList_SCPAdd(list, src, dst, category, target)
                   : File_XferList_Add(list, src, dst)) != 0)
        return -1;
    FILEXFERLIST* const item = file_list_tail(list);
    item->minute = minute;
    item->newest_next = chain;
    chain = item;
    return 0;
}
