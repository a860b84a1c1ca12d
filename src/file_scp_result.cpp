// The device's list of results: fetched once the hub says that the device is done, one line a file,
// "<name>,<result>". It comes from outside: lines that are none are passed over.
#include "command.h"
#include "file_scp_private.h"
#include "log.h"
#include "memory.h"
#include "netio.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

static constexpr int RESULT_RETRIES = 3;
static constexpr int LINE_MAX_LENGTH = 1024;
static constexpr int LINES_MAX = 20000; // a list that is longer is none of a job's

// --- Fetching ---

void file_send_scpget_resultlist(const Scp& s, int value)
{
    FILETRANS_SCPCATEGORY& cat = s.cat;
    PrintText(cat.resultsrc, "%.100sresult.lst", cat.path);
    PrintText(cat.resultdst, "/var/tmp/FILE/%s.%s.%s.result.lst", cat.name, s.target.target,
              shp_status_value[value]);
    cat.resultlabel = file_next_label();
    cat.resultack = 0;
    cat.resultretry = 0;
    cat.resultstatus = value;
    PrintText(cat.resultcmd, "put File@Remote Access@SCP Dir Get#L%d,%s%s,MYHOST:%s,%s",
              int(cat.resultlabel), s.target.host, cat.resultsrc, cat.resultdst, cat.name);
    cat.status = FILE_CATEGORY_STATUS_WAIT_RESULT;
    Net_SendCommand(cat.resultcmd);
}

void file_scp_ack(uint32_t label, uint32_t ack)
{
    for (FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (FILETRANS_SCPCATEGORY& cat : target.category)
            if (cat.resultlabel == label)
                cat.resultack = ack;
}

// --- Reading ---

namespace
{
struct ResultLine {
    char text[LINE_MAX_LENGTH + 1];
    const char* name;    // both in text
    const char* failure; // null: it is well
};
} // namespace

// The characters up to the next end of line, as far as they fit. Returns how many there were, -1 at
// the end of the file.
static int read_text(FILE* fp, char (&text)[LINE_MAX_LENGTH + 1])
{
    int length = 0;
    int c = fgetc(fp);
    if (c == EOF)
        return -1;
    for (; c != EOF && c != '\r' && c != '\n'; c = fgetc(fp)) {
        if (length < LINE_MAX_LENGTH)
            text[length] = char(c);
        length++;
    }
    text[std::min(length, LINE_MAX_LENGTH)] = '\0';
    return length;
}

// The next line with a comma. False at the end. A line that is too long is passed over whole.
static bool read_line(FILE* fp, ResultLine& line, int* lines)
{
    for (;;) {
        const int length = read_text(fp, line.text);
        if (length < 0 || (length > 0 && ++*lines > LINES_MAX))
            return false;
        char* comma = length <= LINE_MAX_LENGTH ? strchr(line.text, ',') : nullptr;
        if (!comma)
            continue;
        *comma = '\0';
        line.name = line.text;
        line.failure = StrICmp(comma + 1, "OK") == 0 ? nullptr : comma + 1;
        return true;
    }
}

// --- Items by name ---

namespace
{
struct Waiting {
    FILEXFERLIST** item = nullptr; // sorted by key
    int count = 0;
    bool by_src = true;
};
} // namespace

static const char* key_of(const FILEXFERLIST* item, bool by_src)
{
    return file_name_of(by_src ? item->src : item->dst);
}

static bool collect(Waiting& waiting, const Scp& s, int status)
{
    int n = 0;
    for (FILEXFERLIST* item = scp_first(s, status); item; item = scp_next(s, item->next, status))
        n++;
    waiting.item = static_cast<FILEXFERLIST**>(GDL_Malloc((size_t(n) + 1) * sizeof(FILEXFERLIST*)));
    if (!waiting.item)
        return false;
    for (FILEXFERLIST* item = scp_first(s, status); item; item = scp_next(s, item->next, status))
        waiting.item[waiting.count++] = item;
    const bool by_src = waiting.by_src;
    std::sort(waiting.item, waiting.item + waiting.count,
              [by_src](const FILEXFERLIST* a, const FILEXFERLIST* b) {
                  return strcmp(key_of(a, by_src), key_of(b, by_src)) < 0;
              });
    return true;
}

static void take_failure(FILEXFERLIST* item, const char* text)
{
    file_set_text(item, text);
    file_set_status(item, FILESTATUS_NG);
}

static void match_line(const Waiting& waiting, const ResultLine& line, int status, int ok)
{
    const char* name = file_name_of(line.name);
    const bool by_src = waiting.by_src;
    FILEXFERLIST** end = waiting.item + waiting.count;
    FILEXFERLIST** at = std::lower_bound(waiting.item, end, name,
                                         [by_src](const FILEXFERLIST* item, const char* key) {
                                             return strcmp(key_of(item, by_src), key) < 0;
                                         });
    for (; at != end && strcmp(key_of(*at, by_src), name) == 0; at++) {
        if ((*at)->status != status)
            continue; // named before
        if (!line.failure)
            file_set_status(*at, ok);
        else
            take_failure(*at, line.failure);
    }
}

// The lines of all that failed, at once: the pane counts its lines anew with each text.
static void show_failures(const Waiting& waiting, QUEUE* job)
{
    size_t size = 1;
    for (int i = 0; i < waiting.count; i++)
        if (waiting.item[i]->status == FILESTATUS_NG)
            size += strlen(waiting.item[i]->mesg) + 1;
    if (size == 1)
        return;
    auto* text = static_cast<char*>(GDL_Malloc(size));
    if (!text)
        return;
    char* end = text;
    for (int i = 0; i < waiting.count; i++) {
        const FILEXFERLIST* item = waiting.item[i];
        if (item->status != FILESTATUS_NG)
            continue;
        const size_t length = strlen(item->mesg);
        memcpy(end, item->mesg, length);
        end[length] = '\n';
        end += length + 1;
    }
    *end = '\0';
    file_pane_append(job, text);
    GDL_Free(text);
}

static FILE* open_results(const Scp& s)
{
    FILE* fp = fopen(s.cat.resultdst, "r");
    if (!fp)
        Log_Output(LOG_LINK, MOD_FILE, "can not open result file. (%s)", s.cat.resultdst);
    return fp;
}

static void analyze_plain(const Scp& s, bool is_get)
{
    const int status = is_get ? FILESTATUS_WAIT : FILESTATUS_CHKRESULT;
    QUEUE* job = s.cat.queue;
    Waiting waiting;
    waiting.by_src = is_get;
    FILE* fp = open_results(s);
    if (collect(waiting, s, status) && fp) {
        ResultLine line;
        int lines = 0;
        while (read_line(fp, line, &lines))
            match_line(waiting, line, status, is_get ? FILESTATUS_WAIT_REQ : FILESTATUS_OK);
    }
    if (fp)
        fclose(fp);
    for (int i = 0; i < waiting.count; i++) {
        FILEXFERLIST* item = waiting.item[i];
        if (item->status != status)
            continue;
        if (is_get)
            Log_Output(LOG_LINK, MOD_FILE, "file not exist. (%s)", item->src);
        file_set_msg(item, is_get ? FILE_SCP_MSG_FILE_NOT_EXIST : FILE_SCP_MSG_FILE_LOAD_FAILED);
        file_set_status(item, FILESTATUS_NG);
    }
    show_failures(waiting, job);
    GDL_Free(waiting.item);
    scp_show_progress(job, nullptr);
}

static void get_listed(const Scp& s)
{
    s.cat.status = FILE_CATEGORY_STATUS_SCPGET;
    for (FILEXFERLIST* item = scp_first(s, FILESTATUS_WAIT_REQ); item;
         item = scp_next(s, item->next, FILESTATUS_WAIT_REQ))
        scp_send(s, item);
    scp_go_on(s);
}

// --- Frame memory: the item in turn ---

// 1 listed well, 0 listed with a failure (its text is the item's), -1 not listed.
static int listed_current(const Scp& s, FILEXFERLIST* item)
{
    FILE* fp = open_results(s);
    if (!fp)
        return -1;
    ResultLine line;
    int lines = 0;
    int result = -1;
    while (result < 0 && read_line(fp, line, &lines))
        if (fmem_is_current(s, line.name))
            result = line.failure ? 0 : 1;
    fclose(fp);
    if (result == 0)
        take_failure(item, line.failure);
    return result;
}

static void fail_current(FILEXFERLIST* item)
{
    file_pane_append_line(item->job, item->mesg);
    scp_show_progress(item->job, item->mesg);
}

static void analyze_scpget_resultfile_fmem(const Scp& s)
{
    s.cat.status = FILE_CATEGORY_STATUS_SCPGET;
    FILEXFERLIST* item = fmem_current(s);
    if (item && item->status == FILESTATUS_GET_START) {
        const int listed = listed_current(s, item);
        if (listed > 0) {
            file_set_status(item, FILESTATUS_WAIT_REQ);
            scp_send(s, item);
            return;
        }
        if (listed < 0) {
            Log_Output(LOG_LINK, MOD_FILE, "file not exist. (%s)", item->src);
            scp_fail(item, FILE_SCP_MSG_FILE_NOT_EXIST);
        } else {
            fail_current(item);
        }
    }
    fmem_next(s);
}

static void analyze_scpput_resultfile_fmem(const Scp& s)
{
    FILEXFERLIST* item = fmem_current(s);
    if (item && item->status == FILESTATUS_CHKRESULT) {
        const int listed = listed_current(s, item);
        if (listed > 0) {
            file_set_status(item, FILESTATUS_OK);
            scp_show_progress(item->job, item->mesg);
        } else if (listed < 0) {
            scp_fail(item, FILE_SCP_MSG_FILE_LOAD_FAILED);
        } else {
            fail_current(item);
        }
    }
    fmem_next(s);
}

// --- The reply to the fetch ---

static void fail_all(const Scp& s)
{
    QUEUE* job = s.cat.queue;
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next)
        if (scp_has(s, item) && !file_is_finished(item)) {
            file_set_msg(item, FILE_SCP_MSG_RESULTFILE_ERROR);
            file_set_status(item, FILESTATUS_NG);
        }
    Waiting failed;
    if (collect(failed, s, FILESTATUS_NG))
        show_failures(failed, job);
    GDL_Free(failed.item);
    scp_show_progress(job, nullptr);
    scp_go_on(s);
}

static void take_results(const Scp& s)
{
    const bool is_get = s.cat.resultstatus == SHP_GET;
    s.cat.status = FILE_CATEGORY_STATUS_RESULT;
    if (scp_is_fmem(s)) {
        if (is_get)
            analyze_scpget_resultfile_fmem(s);
        else
            analyze_scpput_resultfile_fmem(s);
        return;
    }
    analyze_plain(s, is_get);
    if (is_get)
        get_listed(s);
    else
        scp_go_on(s);
}

static void take_fetch_reply(const Scp& s, const char* text)
{
    s.cat.resultack = 0;
    if (text[0] == 'N' && s.cat.resultretry < RESULT_RETRIES) {
        s.cat.resultretry++;
        Log_Output(LOG_LINK, MOD_FILE, "Retry SCP result file");
        Net_SendCommand(s.cat.resultcmd);
        return;
    }
    s.cat.resultlabel = 0;
    if (text[0] == 'O')
        take_results(s);
    else
        fail_all(s);
}

void scplist_category_resultlist(uint32_t ack, const char* text)
{
    for (FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (FILETRANS_SCPCATEGORY& cat : target.category) {
            if (cat.resultack != ack || !cat.queue)
                continue;
            const Scp s = {target, cat};
            if (cat.status == FILE_CATEGORY_STATUS_WAIT_RESULT) {
                take_fetch_reply(s, text);
            } else if (cat.status == FILE_CATEGORY_STATUS_SSH_MKDIR) {
                cat.resultlabel = cat.resultack = 0;
                fmem_folder_made(s, text);
            }
            return;
        }
}
