// The jobs in progress, and how a label or a work number finds its item: a burst of replies to a
// job of thousands must not walk its list for each.
#include "access.h"
#include "bus.h"
#include "file_private.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <cstdarg>
#include <cstdio>
#include <new>

#include "safeguards.h"

QUEUE* QueueRoot = nullptr;
uint32_t LabelID = 1;
FILEXFERLIST* NullXfer = nullptr;
char FileCmd[CMD_SIZE];

static constexpr size_t FAILURES_SIZE = 4096; // of the text about a job that went wrong
static bool failures_are_told = false;        // the callback of the job that ends has done so

// Labels follow each other, and so do a server's work numbers: the low bits spread them evenly.
static constexpr uint32_t BUCKETS = 4096;
static FILEXFERLIST* by_label[BUCKETS];
static FILEXFERLIST* by_ack[BUCKETS]; // of unfinished items, the latest first

static_assert((BUCKETS & (BUCKETS - 1)) == 0);

// --- The two indexes ---

static void chain_add(FILEXFERLIST** table, uint32_t key, FILEXFERLIST* item,
                      FILEXFERLIST* FILEXFERLIST::*next)
{
    FILEXFERLIST*& head = table[key % BUCKETS];
    item->*next = head;
    head = item;
}

static void chain_remove(FILEXFERLIST** table, uint32_t key, FILEXFERLIST* item,
                         FILEXFERLIST* FILEXFERLIST::*next)
{
    for (FILEXFERLIST** link = &table[key % BUCKETS]; *link; link = &((*link)->*next)) {
        if (*link != item)
            continue;
        *link = item->*next;
        item->*next = nullptr;
        return;
    }
}

FILEXFERLIST* queue_item_by_label(uint32_t label)
{
    if (label == 0)
        return nullptr;
    for (FILEXFERLIST* item = by_label[label % BUCKETS]; item; item = item->label_next)
        if (item->label == label)
            return item;
    return nullptr;
}

FILEXFERLIST* queue_item_by_ack(uint32_t ack)
{
    if (ack == 0)
        return nullptr;
    for (FILEXFERLIST* item = by_ack[ack % BUCKETS]; item; item = item->ack_next)
        if (item->ack == ack)
            return item;
    return nullptr;
}

void queue_ack(FILEXFERLIST* item, uint32_t ack)
{
    if (item->ack != 0)
        chain_remove(by_ack, item->ack, item, &FILEXFERLIST::ack_next);
    item->ack = ack;
    if (ack != 0)
        chain_add(by_ack, ack, item, &FILEXFERLIST::ack_next);
}

// --- Counts ---

static void count(FILEXFERLIST* item, int n)
{
    QUEUE* job = item->job;
    if (!job)
        return;
    job->finished += item->status >= FILESTATUS_OK ? n : 0;
    job->checking += item->status == FILESTATUS_CHKRESULT ? n : 0;
    job->in_flight += item->status == FILESTATUS_REQ || item->status == FILESTATUS_EXEC ? n : 0;
    file_scp_count(item, n);
}

void file_set_status(FILEXFERLIST* item, int status)
{
    count(item, -1);
    item->status = status;
    count(item, 1);
    // A finished item expects no more: what comes late finds nobody.
    if (status >= FILESTATUS_OK)
        queue_ack(item, 0);
}

// --- Jobs ---

uint32_t file_next_label()
{
    if (LabelID == 0)
        LabelID = 1;
    return LabelID++;
}

static void join(QUEUE* job, FILEXFERLIST* item)
{
    item->job = job;
    job->last = item;
    job->items++;
    count(item, 1);
}

static QUEUE* new_job(FILEWORKTYPE worktype)
{
    void* place = GDL_Malloc(sizeof(QUEUE));
    if (!place)
        return nullptr;
    auto* job = new (place) QUEUE;
    job->worktype = worktype;
    if (file_scp_prepare(job))
        return job;
    GDL_Free(job);
    return nullptr;
}

static void append_job(QUEUE* job)
{
    QUEUE** link = &QueueRoot;
    while (*link)
        link = &(*link)->next;
    *link = job;
    FileCounterUp();
    Log_Output(LOG_TRACE, MOD_FILE, "file queue is added. (L%d)", int(job->label));
}

QUEUE* queue_add(FILEWORKTYPE worktype, FILEXFERLIST** list, FILERETFUNC retfunc, int tag)
{
    QUEUE* job = *list ? (*list)->job : nullptr;
    const bool is_new = !job;
    if (is_new)
        job = new_job(worktype);
    if (!job)
        return nullptr;
    job->xferlist = list;
    for (FILEXFERLIST* item = job->last ? job->last->next : *list; item; item = item->next) {
        item->label = file_next_label();
        chain_add(by_label, item->label, item, &FILEXFERLIST::label_next);
        join(job, item);
    }
    if (!is_new)
        return job;
    job->label = file_next_label();
    job->retfunc = retfunc;
    job->tag = tag;
    append_job(job);
    return job;
}

QUEUE* queue_find(uint32_t label)
{
    if (FILEXFERLIST* item = queue_item_by_label(label))
        return item->job;
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (job->label == label)
            return job;
    return nullptr;
}

QUEUE* queue_by_ack(uint32_t ack)
{
    if (ack == 0)
        return nullptr;
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (job->ack == ack)
            return job;
    return nullptr;
}

// The item before the one that leaves, as far as the launcher's marks need it.
static void step_back(QUEUE* job, FILEXFERLIST*& mark, const FILEXFERLIST* item)
{
    if (mark != item)
        return;
    mark = nullptr;
    for (FILEXFERLIST* i = *job->xferlist; i && i != item && i->job == job; i = i->next)
        if (i->next == item || i->next == item->next)
            mark = i;
}

void queue_forget_item(FILEXFERLIST* item)
{
    QUEUE* job = item->job;
    if (!job)
        return;
    queue_ack(item, 0);
    chain_remove(by_label, item->label, item, &FILEXFERLIST::label_next);
    count(item, -1);
    job->items--;
    step_back(job, job->last, item);
    step_back(job, job->started, item);
    item->job = nullptr;
}

void queue_drop(QUEUE* job)
{
    Log_Output(LOG_TRACE, MOD_FILE, "file queue is removed. (L%d)", int(job->label));
    file_scp_forget(job);
    for (QUEUE** link = &QueueRoot; *link; link = &(*link)->next) {
        if (*link != job)
            continue;
        *link = job->next;
        break;
    }
    file_sync_release(job->sync_pid);
    GDL_Free(job->scp);
    GDL_Free(job);
    FileCounterDown();
}

void queue_remove(uint32_t label)
{
    QUEUE* job = queue_find(label);
    if (!job)
        return;
    job->last = job->started = nullptr; // all go: no mark is kept
    file_free_items(job->xferlist);
    queue_drop(job);
}

void file_tell(const QUEUE* job, const void* cx, const void* dx)
{
    SendMessage(LMSG_FILESTATUS, job->worktype, int(job->label), Arg(cx), Arg(dx));
}

void File_FailuresTold()
{
    failures_are_told = true;
}

// A callback may end the job, empty its list or give it another pane: nothing of it is trusted
// across a call. The pane goes with its lines: what went wrong stays in one that the operator
// closes. Over a page of other work nothing opens.
void file_finish(QUEUE* job)
{
    const uint32_t label = job->label;
    const FILEWORKTYPE type = job->worktype;
    const char* title = job->title ? job->title : "Transfer";
    FILEXFERLIST** list = job->xferlist;
    int pane = job->paneid;
    char failures[FAILURES_SIZE];
    const bool has_failed =
        file_pane_is_in_view(job) && file_pane_failures(job, failures, sizeof failures);
    failures_are_told = false;
    if (job->retfunc.list)
        job->retfunc.list(label, job->tag);
    const bool is_told = failures_are_told;
    SendMessage(LMSG_FILESTATUS, type, int(label), Arg(list), 0);
    job = queue_find(label);
    if (job)
        pane = job->paneid;
    if (pane != 0)
        (void)Pane_Quit(pane); // gone when the operator cancelled
    queue_remove(label);
    file_wake_thumbnails(type);
    if (has_failed && !is_told)
        (void)PaneMessage_Create(title, PANE_ALERT, failures);
}

// --- Commands ---

static bool compose(char (&dst)[CMD_SIZE], const char* format, va_list ap)
{
    const int length = vsnprintf(dst, sizeof dst, format, ap);
    if (length < 0 || size_t(length) >= sizeof dst) {
        Log_Output(LOG_LINK, MOD_FILE, "file command is too long (%d): %.80s", length, dst);
        return false;
    }
    for (char* c = dst; *c; c++)
        if (static_cast<unsigned char>(*c) < ' ' || *c == 127)
            *c = '_';
    return true;
}

bool file_compose(const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    const bool is_whole = compose(FileCmd, format, ap);
    va_end(ap);
    return is_whole;
}

bool file_compose_item(FILEXFERLIST* item, const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    const bool is_whole = compose(item->cmd, format, ap);
    va_end(ap);
    if (is_whole)
        return true;
    item->cmd[0] = '\0';
    file_set_text(item, "NG([ERROR] Internal Error.)");
    file_set_status(item, FILESTATUS_NG);
    return false;
}

void file_send_item(FILEXFERLIST* item)
{
    queue_ack(item, 0);
    file_set_status(item, FILESTATUS_REQ);
    Net_SendCommand(item->cmd);
}
