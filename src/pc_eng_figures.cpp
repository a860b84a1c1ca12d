// The versions of all software, and what the process needs: the time of its passes and page
// changes, memory, descriptors.
#include "a_ls.h"
#include "global.h"
#include "loop.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_eng.h"
#include "pc_install.h"
#include "storage.h"
#include "tally_value.h"
#include "text.h"
#include "version.h"
#include <SDL.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <iterator>

#include "safeguards.h"

// --- Versions ---

static struct {
    InstallUnit unit[INSTALL_UNITS];
    char text[INSTALL_UNITS][ENG_CELL];
} ev; // valid from create(1) to create(0)

static int versions_create(int on, uint32_t)
{
    if (!on)
        return 1;
    int row = 0;
    for (; row < GL_DetailInfoMax && row < DETAIL_INFO_ROWS; row++) {
        LS_SetData(ENG_LIST, row, 0, GL_MenuDetailInfoTitle[row]);
        LS_SetData(ENG_LIST, row, 1, GL_MenuDetailInfoFull[row]);
    }
    const int units = Install_Units(ev.unit);
    for (int i = 0; i < units; i++, row++) {
        PrintText(ev.text[i], "%s   %.64s", ev.unit[i].model, ev.unit[i].version);
        LS_SetData(ENG_LIST, row, 0, ev.unit[i].name);
        LS_SetData(ENG_LIST, row, 1, ev.text[i]);
    }
    LS_SetNData(ENG_LIST, row);
    LS_SetNowLine(ENG_LIST, 0);
    return 0;
}

const PC_TBL pc_eng_versions = {nullptr, versions_create};

// --- Figures ---

namespace
{
constexpr int FIGURES_MS = 1000;
using Cell = char[ENG_CELL];
} // namespace

// A figure in KB that the kernel tells of this process under a name like "VmRSS:"; -1 without it.
static long kernel_kb(const char* file, const char* name)
{
    FILE* fp = fopen(file, "r");
    if (!fp)
        return -1;
    long kb = -1;
    char line[128];
    while (kb < 0 && fgets(line, sizeof line, fp))
        if (BeginsWith(line, name))
            kb = strtol(line + strlen(name), nullptr, 10);
    fclose(fp);
    return kb;
}

static int open_descriptors()
{
    DIR* dir = opendir("/proc/self/fd");
    if (!dir)
        return -1;
    int n = 0;
    while (const dirent* entry = readdir(dir))
        n += entry->d_name[0] != '.';
    closedir(dir);
    return n - 1; // without that of the directory itself
}

static void kb_text(Cell& cell, long kb)
{
    if (kb < 0)
        CopyText(cell, "--");
    else
        PrintText(cell, "%ld.%ld MB", kb / 1024, kb % 1024 * 10 / 1024);
}

static void page_text(Cell& cell, int ms, uint32_t page)
{
    char number[16];
    Page_Number(number, sizeof number, page);
    if (page)
        PrintText(cell, "%d ms, page %s", ms, number);
    else
        PrintText(cell, "%d ms", ms);
}

static void running(Cell& cell)
{
    const unsigned s = unsigned(TickNow - Loop_Figures().since) / 1000;
    PrintText(cell, "%u:%02u:%02u", s / 3600, s / 60 % 60, s % 60);
}
static void passes(Cell& cell)
{
    const LoopFigures& f = Loop_Figures();
    const uint32_t s = (TickNow - f.since) / 1000;
    PrintText(cell, "%u, %u a second", unsigned(f.passes), unsigned(s ? f.passes / s : f.passes));
}
static void busy(Cell& cell)
{
    const LoopFigures& f = Loop_Figures();
    const unsigned us = f.passes ? unsigned(uint64_t(f.busy_ms) * 1000 / f.passes) : 0;
    PrintText(cell, "%u.%02u ms", us / 1000, us % 1000 / 10);
}
static void longest_pass(Cell& cell)
{
    page_text(cell, Loop_Figures().longest_ms, Loop_Figures().longest_page);
}
static void changes(Cell& cell)
{
    PrintText(cell, "%u", unsigned(Loop_Figures().changes));
}
static void last_change(Cell& cell)
{
    page_text(cell, Loop_Figures().page_ms, Loop_Figures().page);
}
static void longest_change(Cell& cell)
{
    page_text(cell, Loop_Figures().page_longest_ms, Loop_Figures().page_longest);
}
static void resident(Cell& cell)
{
    kb_text(cell, kernel_kb("/proc/self/status", "VmRSS:"));
}
static void peak(Cell& cell)
{
    kb_text(cell, kernel_kb("/proc/self/status", "VmHWM:"));
}
static void available(Cell& cell)
{
    kb_text(cell, kernel_kb("/proc/meminfo", "MemAvailable:"));
}
static void allocations(Cell& cell)
{
    PrintText(cell, "%d", UsedMemPtr);
}
static void descriptors(Cell& cell)
{
    PrintText(cell, "%d", open_descriptors());
}
static void data_drive(Cell& cell)
{
    kb_text(cell, GetDiskFree("/mnt/data"));
}
static void log_drive(Cell& cell)
{
    kb_text(cell, GetDiskFree("/var/log2"));
}

namespace
{
struct Figure {
    const char* name;
    void (*text)(Cell& cell);
};
constexpr Figure figures[] = {
    {"Measured for", running},
    {"Passes", passes},
    {"Pass, average", busy},
    {"Pass, longest", longest_pass},
    {"Page changes", changes},
    {"Page change, last", last_change},
    {"Page change, longest", longest_change},
    {"Memory, resident", resident},
    {"Memory, most", peak},
    {"Memory, left in the computer", available},
    {"Allocations, live", allocations},
    {"Descriptors, open", descriptors},
    {"Data drive, free", data_drive},
    {"Log drive, free", log_drive},
};
} // namespace

static struct {
    int wait_ms = 0;
    Cell cell[std::size(figures)];
} ef; // valid from create(1) to create(0)

static void figures_show()
{
    for (int row = 0; row < int(std::size(figures)); row++) {
        figures[row].text(ef.cell[row]);
        LS_SetData(ENG_LIST, row, 0, figures[row].name);
        LS_SetData(ENG_LIST, row, 1, ef.cell[row]);
    }
    LS_SetNData(ENG_LIST, int(std::size(figures)));
    LS_RedrawData(ENG_LIST);
}

static int figures_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), ENG_FIGURES "Reset")) {
        Loop_ResetFigures();
        ef.wait_ms = 0;
    }
    if (msg != MSG_REDRAW || (ef.wait_ms -= int(ax)) > 0)
        return 0;
    ef.wait_ms = FIGURES_MS;
    figures_show();
    return 0;
}

static int figures_create(int on, uint32_t)
{
    ef = {};
    if (!on)
        return 1;
    figures_show();
    return 0;
}

const PC_TBL pc_eng_figures = {figures_proc, figures_create};
