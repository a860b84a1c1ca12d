// The lists of items that jobs are made of.
#include "file_private.h"
#include "memory.h"
#include "text.h"
#include <cstring>
#include <new>

#include "safeguards.h"

static constexpr size_t ADD_SIZE = 256 + 1; // plain items take shorter paths than remote ones

// The list that was appended to last and its end: a page appends thousands of items in one go.
static struct {
    FILEXFERLIST** list = nullptr;
    FILEXFERLIST* tail = nullptr; // the last item of *list, while list is not null
} appended;

FILEXFERLIST* file_list_tail(FILEXFERLIST** list)
{
    FILEXFERLIST* tail = appended.list == list && *list ? appended.tail : *list;
    while (tail && tail->next)
        tail = tail->next;
    return tail;
}

static void list_append(FILEXFERLIST** list, FILEXFERLIST* item)
{
    FILEXFERLIST* tail = file_list_tail(list);
    (tail ? tail->next : *list) = item;
    appended = {list, item};
}

static FILEXFERLIST* list_new(FILEXFERLIST** list, const char* src, const char* dst, size_t size)
{
    if (!list || !src || !dst)
        return nullptr;
    void* place = GDL_Malloc(sizeof(FILEXFERLIST));
    if (!place)
        return nullptr;
    auto* item = new (place) FILEXFERLIST;
    ktr_strncpy(item->src, src, size);
    ktr_strncpy(item->dst, dst, size);
    list_append(list, item);
    return item;
}

static void set_remote(FILEXFERLIST* item, const char* category, const char* target)
{
    CopyText(item->category, category ? category : "");
    CopyText(item->target, target ? target : "");
}

static void set_frame(FILEXFERLIST* item, const char* clip, int frame, int frames)
{
    CopyText(item->clip, clip ? clip : "");
    item->import_no[0] = frame;
    item->import_no[1] = frames;
}

int File_XferList_Add(FILEXFERLIST** list, const char* src, const char* dst)
{
    return list_new(list, src, dst, ADD_SIZE) ? 0 : -1;
}

int File_XferList_ImportAdd(FILEXFERLIST** list, const char* src, const char* dst, int fmext)
{
    FILEXFERLIST* item = list_new(list, src, dst, ADD_SIZE);
    if (!item)
        return -1;
    item->fmext = fmext;
    return 0;
}

int File_XferList_ImportAdd2(FILEXFERLIST** list, const char* src, const char* dst, int fmext,
                             const char* clip, int frame, int frames, int info,
                             const char* category, const char* target)
{
    FILEXFERLIST* item = list_new(list, src, dst, FILE_PATH_SIZE);
    if (!item)
        return -1;
    item->fmext = fmext;
    item->info = info;
    set_frame(item, clip, frame, frames);
    set_remote(item, category, target);
    return 0;
}

int File_XferList_SCPAdd(FILEXFERLIST** list, const char* src, const char* dst,
                         const char* category, const char* target)
{
    FILEXFERLIST* item = list_new(list, src, dst, FILE_PATH_SIZE);
    if (!item)
        return -1;
    set_remote(item, category, target);
    return 0;
}

int File_XferList_SCPAdd_FM(FILEXFERLIST** list, const char* src, const char* dst,
                            const char* category, const char* target, int filetype,
                            const char* clip, int frame, int frames)
{
    FILEXFERLIST* item = list_new(list, src, dst, FILE_PATH_SIZE);
    if (!item)
        return -1;
    item->fmext = filetype;
    set_frame(item, clip, frame, frames);
    set_remote(item, category, target);
    return 0;
}

static void unlink_item(FILEXFERLIST** link)
{
    if (appended.tail == *link)
        appended = {};
    *link = (*link)->next;
}

// Remove what link points at. A job whose last item this was is gone, too.
static void drop_item(FILEXFERLIST** link)
{
    FILEXFERLIST* item = *link;
    QUEUE* job = item->job;
    unlink_item(link);
    if (job) {
        queue_forget_item(item);
        if (job->items == 0)
            queue_drop(job);
    }
    GDL_Free(item);
}

static int remove_first(FILEXFERLIST** list,
                        bool (*is_meant)(const FILEXFERLIST*, const char* const*),
                        const char* const* texts)
{
    if (!list)
        return -1;
    for (FILEXFERLIST** link = list; *link; link = &(*link)->next) {
        if (!is_meant(*link, texts))
            continue;
        drop_item(link);
        return 0;
    }
    return -1;
}

static bool has_paths(const FILEXFERLIST* item, const char* const* texts)
{
    return strcmp(item->src, texts[0]) == 0 && strcmp(item->dst, texts[1]) == 0;
}

static bool has_all(const FILEXFERLIST* item, const char* const* texts)
{
    return has_paths(item, texts) && strcmp(item->category, texts[2]) == 0 &&
           strcmp(item->target, texts[3]) == 0;
}

int File_XferList_Remove(FILEXFERLIST** list, const char* src, const char* dst)
{
    const char* const texts[] = {src, dst};
    return src && dst ? remove_first(list, has_paths, texts) : -1;
}

int File_XferList_SCPRemove(FILEXFERLIST** list, const char* src, const char* dst,
                            const char* category, const char* target)
{
    const char* const texts[] = {src, dst, category, target};
    return src && dst && category && target ? remove_first(list, has_all, texts) : -1;
}

int File_XferList_Move(FILEXFERLIST** from, FILEXFERLIST* item, FILEXFERLIST** to)
{
    if (!from || !to || !item || item->job)
        return -1;
    for (FILEXFERLIST** link = from; *link; link = &(*link)->next) {
        if (*link != item)
            continue;
        unlink_item(link);
        item->next = nullptr;
        list_append(to, item);
        return 0;
    }
    return -1;
}

void File_XferList_RemoveAll(FILEXFERLIST** list)
{
    while (list && *list)
        drop_item(list);
    appended = {};
}

void File_XferList_SCPRemoveAll(FILEXFERLIST** list)
{
    File_XferList_RemoveAll(list);
}

void file_free_items(FILEXFERLIST** list)
{
    while (list && *list) {
        FILEXFERLIST* item = *list;
        unlink_item(list);
        queue_forget_item(item);
        GDL_Free(item);
    }
}
