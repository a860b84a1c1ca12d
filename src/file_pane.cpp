// The progress pane of a job, its copy while the job runs in the background, and the end that the
// operator makes with its "Cancel".
#include "device.h"
#include "file_private.h"
#include "global.h"
#include "log.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

// --- Which pages a background transfer belongs to ---

static constexpr uint32_t bkgd_pages[] = {
    // by bit
    0x71210000, 0x71220000, 0x71230000, 0x71240000, 0x71310000, 0x71320000, 0x71330000,
    0x71340000, 0x71410000, 0x71420000, 0x71430000, 0x71510000, 0x71620000,
};
static constexpr uint32_t SUB_PAGE = 0x0000FF00; // of no importance here
static constexpr uint32_t BKGD_ALL = 4095; // without the last, which has a transfer of its own
static constexpr uint32_t HDD_PAGE = 0x25620000;
static constexpr int HDD_ANSWER_MS = 5000;
static_assert(std::size(bkgd_pages) == 13);

static struct {
    uint32_t mask = 0;
    uint32_t home = 0;  // of a transfer of everything, 0: it was begun on no page
    int pane = 0;       // closed or open; the jobs that hold it are known by it
    int restore_in = 0; // redraws until it comes back, 0: it doesn't
    bool is_hdd = false;
    bool is_hdd_busy = false; // the drive has begun
    int hdd_switcher = 0;
    int hdd_wait_ms = 0; // left for it to begin
    int hdd_pane = 0;
} bkgd;

static uint32_t bkgd_bit(uint32_t page)
{
    for (size_t i = 0; i < std::size(bkgd_pages); i++)
        if (bkgd_pages[i] == (page & ~SUB_PAGE))
            return 1u << i;
    return 0;
}

int BkgdFileTransfer_Check(uint32_t page)
{
    return (page == 0 ? bkgd.mask : bkgd.mask & bkgd_bit(page)) != 0;
}

int BkgdFileTransfer_Set(uint32_t page, int v)
{
    const uint32_t bit = bkgd_bit(page);
    if (v < 0 || v > 1 || (page != 0 && bit == 0))
        return -1;
    if (page == 0) {
        bkgd.mask = v ? BKGD_ALL : 0;
        bkgd.home = 0;
    } else
        bkgd.mask = v ? bkgd.mask | bit : bkgd.mask & ~bit;
    return 0;
}

void BkgdFileTransfer_SetAll(uint32_t home)
{
    (void)BkgdFileTransfer_Set(0, 1);
    bkgd.home = home;
}

bool BkgdFileTransfer_IsHome(uint32_t page)
{
    return BkgdFileTransfer_Check(page) || (bkgd.home != 0 && bkgd.home == (page & ~SUB_PAGE));
}

void BkgdFileTransfer_SetPaneID(int pane)
{
    bkgd.pane = pane;
}

void BkgdFileTransfer_ReplacePaneID(int pane)
{
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (bkgd.pane != 0 && job->paneid == bkgd.pane)
            job->paneid = pane;
    bkgd.pane = pane;
}

void BkgdFileTransfer_PaneQuit()
{
    if (bkgd.pane != 0)
        (void)Pane_Quit(bkgd.pane);
}

static QUEUE* bkgd_job()
{
    QUEUE* job = QueueRoot;
    while (job && (bkgd.pane == 0 || job->paneid != bkgd.pane))
        job = job->next;
    return job;
}

int BkgdFileTransfer_PaneRestore()
{
    if (!bkgd_job())
        return 0;
    constexpr int PAINTED = 2; // the page paints at the first redraw, behind this module
    bkgd.restore_in = Pane_Exist(bkgd.pane) ? 0 : PAINTED;
    return bkgd.restore_in ? 0 : bkgd.pane;
}

void file_pane_tick()
{
    if (bkgd.restore_in == 0 || --bkgd.restore_in > 0)
        return;
    const QUEUE* job = bkgd_job();
    if (!job || !BkgdFileTransfer_IsHome(GL_NowPage))
        return;
    constexpr int cancel = 1;
    const int pane = PaneProgress_RestoreCreate(job->title ? job->title : "Transfer", "", cancel);
    if (pane != 0)
        BkgdFileTransfer_ReplacePaneID(pane);
}

int BkgdFileTransfer_PagePermitted(uint32_t page)
{
    return BkgdFileTransfer_IsHome(page);
}

int BkgdHDDTransfer_Check(uint32_t page)
{
    return bkgd.is_hdd && (page == 0 || page == HDD_PAGE);
}

int BkgdHDDTransfer_Set(uint32_t page, int v)
{
    if (v < 0 || v > 1 || (page != 0 && page != HDD_PAGE))
        return -1;
    bkgd.is_hdd = v != 0;
    bkgd.is_hdd_busy = false;
    return 0;
}

void BkgdHDDTransfer_SetPaneID(int pane)
{
    bkgd.hdd_pane = pane;
}

void BkgdHDDTransfer_PaneQuit()
{
    if (bkgd.hdd_pane != 0)
        (void)Pane_Quit(bkgd.hdd_pane);
}

void BkgdHDDTransfer_Begin(int switcher)
{
    (void)BkgdHDDTransfer_Set(HDD_PAGE, 1);
    bkgd.hdd_switcher = switcher;
    bkgd.hdd_wait_ms = HDD_ANSWER_MS;
}

int BkgdHDDTransfer_Switcher()
{
    return bkgd.hdd_switcher;
}

void BkgdHDDTransfer_Busy(int switcher, bool is_busy)
{
    if (!bkgd.is_hdd || switcher != bkgd.hdd_switcher)
        return;
    const bool has_ended = bkgd.is_hdd_busy && !is_busy;
    bkgd.is_hdd_busy = is_busy;
    if (!has_ended)
        return;
    (void)BkgdHDDTransfer_Set(HDD_PAGE, 0);
    bkgd.hdd_pane = 0;
    (void)PaneProgress_HDD_RestoreQuit(); // -1: the operator is elsewhere
}

bool BkgdHDDTransfer_IsUnanswered(int elapsed_ms)
{
    if (!bkgd.is_hdd || bkgd.is_hdd_busy)
        return false;
    bkgd.hdd_wait_ms -= elapsed_ms;
    return bkgd.hdd_wait_ms <= 0;
}

void file_pane_reset()
{
    bkgd = {};
}

// --- A job's pane and its copy ---

static bool has_copy()
{
    return bkgd.mask != 0;
}

// The page now shown is the transfer's own, or nothing runs in the background.
bool file_pane_is_in_view(const QUEUE* job)
{
    return job->paneid != 0 && (!has_copy() || BkgdFileTransfer_IsHome(GL_NowPage));
}

void file_pane_open(QUEUE* job, const char* title, bool has_cancel)
{
    if (!title || job->paneid != 0)
        return;
    job->title = title;
    job->paneid = PaneProgress_Create(title, "", has_cancel);
    if (!has_copy())
        return;
    (void)PaneProgress_RestoreInit();
    BkgdFileTransfer_SetPaneID(job->paneid);
}

// A job without a pane has none to mirror.
static bool is_mirrored(const QUEUE* job)
{
    return has_copy() && job->paneid != 0;
}

void file_pane_progress(QUEUE* job, int percent, const char* text)
{
    if (is_mirrored(job))
        (void)PaneProgress_RestoreSetProg(percent, text);
    if (file_pane_is_in_view(job))
        (void)PaneProgress_SetProg(job->paneid, percent, text);
}

void file_pane_append(QUEUE* job, const char* text)
{
    if (is_mirrored(job))
        (void)PaneProgress_RestoreAppendMessage(text);
    if (file_pane_is_in_view(job))
        (void)Pane_AppendMessage(job->paneid, text);
}

void file_pane_append_line(QUEUE* job, const char* text)
{
    char line[CMD_SIZE];
    PrintText(line, "%s\n", text);
    file_pane_append(job, line);
}

bool file_pane_failures(const QUEUE* job, char* text, size_t size)
{
    constexpr size_t LAST_LINE = 40;
    int left_out = 0;
    text[0] = '\0';
    for (const FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next) {
        // What the operator cancels has lost its pane before: this was somebody else, or the unit.
        if ((item->status != FILESTATUS_NG && item->status != FILESTATUS_CANCEL) || !item->mesg[0])
            continue;
        char line[sizeof item->mesg + 1];
        PrintText(line, "%s\n", item->mesg);
        if (left_out == 0 && strlen(text) + strlen(line) + LAST_LINE < size)
            ktr_strncat(text, line, size);
        else
            left_out++;
    }
    if (left_out > 0) {
        char line[LAST_LINE];
        PrintText(line, "and %d more.\n", left_out);
        ktr_strncat(text, line, size);
    }
    return text[0] != '\0';
}

void file_pane_lamp(QUEUE* job, int lamp)
{
    if (is_mirrored(job))
        (void)PaneProgress_RestoreSetRouteLamp(lamp);
    if (file_pane_is_in_view(job))
        (void)PaneProgress_SetRouteLamp(job->paneid, lamp);
}

void File_SetDefaultRouteLamp(const char* path, int pane)
{
    const int lamp = file_is_on_data_port(path, nullptr) ? ROUTE_LAMP_DATA : ROUTE_LAMP_CONTROL;
    if (has_copy() && pane == bkgd.pane)
        (void)PaneProgress_RestoreSetRouteLamp(lamp);
    (void)PaneProgress_SetRouteLamp(pane, lamp);
}

// --- Cancel ---

static constexpr int FIRST_LIST = 128;   // below: single jobs, which have no pane
static constexpr int FIRST_ACCESS = 192; // from here on they are cancelled as access work
static constexpr int FIRST_REMOTE = 208;

static void cancel_items(QUEUE* job)
{
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next) {
        if (item->status == FILESTATUS_EXEC && job->worktype >= FIRST_LIST)
            Net_SendCommandFormat(job->worktype < FIRST_ACCESS ? "put File@Transfer@Cancel#Lx,%d"
                                                               : "put File@Access@Cancel#Lx,%d",
                                  int(item->ack));
        if (file_is_finished(item) && job->worktype < FIRST_REMOTE)
            continue;
        if (item->status == FILESTATUS_REQ || item->status == FILESTATUS_EXEC)
            file_drop_staged(item);
        file_set_text(item, "Canceled");
        file_set_status(item, FILESTATUS_CANCEL);
    }
}

static void cancel_job(QUEUE* job)
{
    Log_Output(LOG_LINK, MOD_FILE, "[Cancel] is selected. (L%d)", int(job->label));
    job->paneid = 0; // the operator has closed it
    cancel_items(job);
    file_sync_release(file_sync_start()); // nobody waits for it
    if (!file_scp_cancel(job))
        file_finish(job);
}

void file_pane_cancelled(int pane)
{
    if (pane == 0)
        return;
    QUEUE* job = QueueRoot;
    while (job) {
        if (job->paneid != pane) {
            job = job->next;
            continue;
        }
        cancel_job(job);
        job = QueueRoot; // a callback may have changed the queue; this job holds the pane no more
    }
}
