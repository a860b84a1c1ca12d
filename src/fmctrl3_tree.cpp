// The elements of the clip store: one list in the order of the tree. A skip list finds the place of
// a new one, and steps over a folder with all that is in it; a hash finds paths.
#include "fmctrl3_private.h"
#include "log.h"
#include "memory.h"
#include "text.h"
#include <cstddef>
#include <cstring>
#include <new>
#include <type_traits>

#include "safeguards.h"

constexpr uint32_t BUCKETS = 16384; // a power of two
static_assert(std::is_standard_layout_v<CLIP_NODE> && offsetof(CLIP_NODE, list) == 0);

ELEMENT_LIST ElementListTop;
ELEMENT_LIST* ElementListBottom = nullptr;

static struct {
    CLIP_NODE root; // head of all levels
    CLIP_NODE* bucket[BUCKETS] = {};
    uint32_t random = 1;
} tr;

// --- The order ---

static int order(const ELEMENT& a, const ELEMENT& b)
{
    for (int i = 0;; i++) {
        const bool a_ends = i >= a.layer;
        const bool b_ends = i >= b.layer;
        const bool is_a_folder = !a_ends || a.type == ELEMENT_TYPE_FOLDER;
        const bool is_b_folder = !b_ends || b.type == ELEMENT_TYPE_FOLDER;
        if (is_a_folder != is_b_folder)
            return is_a_folder ? -1 : 1;
        const int d = strcmp(a_ends ? a.name : a.path[i], b_ends ? b.name : b.path[i]);
        if (d != 0)
            return d;
        if (a_ends || b_ends)
            return int(b_ends) - int(a_ends);
    }
}

static bool lies_below(const ELEMENT& e, const ELEMENT& folder)
{
    const size_t length = strlen(folder.full_name);
    return strncmp(e.full_path, folder.full_name, length) == 0 &&
           (e.full_path[length] == '/' || e.full_path[length] == '\0');
}

// The last element of each level that stands before e; or, beyond, before the end of folder e.
static CLIP_NODE* last_before(const ELEMENT& e, bool is_beyond, CLIP_NODE** before)
{
    CLIP_NODE* node = &tr.root;
    for (int level = NODE_LEVELS - 1; level >= 0; level--) {
        for (CLIP_NODE* next = node->ahead[level]; next; next = node->ahead[level]) {
            const ELEMENT& n = next->list.element;
            if (order(n, e) >= 0 && !(is_beyond && (&n == &e || lies_below(n, e))))
                break;
            node = next;
        }
        if (before)
            before[level] = node;
    }
    return node;
}

// --- The hash ---

static uint32_t hash_of(const char* full_name, int type)
{
    uint32_t hash = 2166136261U + uint32_t(type);
    for (const char* p = full_name; *p; p++)
        hash = (hash ^ uint8_t(*p)) * 16777619U;
    return hash ^ hash >> 15;
}

static CLIP_NODE** slot_of(const char* full_name, int type)
{
    CLIP_NODE** slot = &tr.bucket[hash_of(full_name, type) & (BUCKETS - 1)];
    while (*slot && ((*slot)->list.element.type != type ||
                     strcmp((*slot)->list.element.full_name, full_name) != 0))
        slot = &(*slot)->same_hash;
    return slot;
}

CLIP_NODE* clip_tree_find(const char* full_name, int type)
{
    return *slot_of(full_name, type);
}

// --- Changing ---

static int random_levels()
{
    tr.random = tr.random * 1664525U + 1013904223U;
    uint32_t bits = tr.random >> 8;
    int levels = 1;
    for (; levels < NODE_LEVELS && (bits & 3) == 0; bits >>= 2)
        levels++;
    return levels;
}

CLIP_NODE* clip_tree_insert(const ELEMENT& e)
{
    void* const room = GDL_Malloc(sizeof(CLIP_NODE));
    if (!room)
        return nullptr;
    auto* const node = new (room) CLIP_NODE;
    node->list.element = e;
    node->levels = random_levels();
    CLIP_NODE* before[NODE_LEVELS];
    CLIP_NODE* const last = last_before(e, false, before);
    for (int level = 0; level < node->levels; level++) {
        node->ahead[level] = before[level]->ahead[level];
        before[level]->ahead[level] = node;
    }
    node->list.prev = &last->list;
    node->list.next = last->list.next;
    last->list.next = &node->list;
    (node->list.next ? node->list.next->prev : ElementListBottom) = &node->list;
    *slot_of(e.full_name, e.type) = node;
    return node;
}

void clip_tree_unlink(CLIP_NODE* node)
{
    const ELEMENT& e = node->list.element;
    CLIP_NODE* before[NODE_LEVELS];
    (void)last_before(e, false, before);
    for (int level = 0; level < node->levels; level++)
        before[level]->ahead[level] = node->ahead[level];
    node->list.prev->next = node->list.next;
    (node->list.next ? node->list.next->prev : ElementListBottom) = node->list.prev;
    *slot_of(e.full_name, e.type) = node->same_hash;
    node->list.next = node->list.prev = nullptr;
}

void clip_node_free(CLIP_NODE* node)
{
    GDL_Free(node);
}

static void clear_all()
{
    clip_thumbnails_forget_all();
    for (ELEMENT_LIST *list = tr.root.list.next, *next = nullptr; list; list = next) {
        next = list->next;
        clip_node_free(clip_node(list));
    }
    memset(tr.bucket, 0, sizeof tr.bucket);
    memset(tr.root.ahead, 0, sizeof tr.root.ahead);
    tr.root.list.next = nullptr;
    ElementListBottom = &tr.root.list;
}

void clip_tree_clear(int type)
{
    if (type == ELEMENT_TYPE_ALL) {
        clear_all();
        return;
    }
    for (ELEMENT_LIST *list = tr.root.list.next, *next = nullptr; list; list = next) {
        next = list->next;
        if (list->element.type != type)
            continue;
        CLIP_NODE* const node = clip_node(list);
        clip_thumbnails_forget(node);
        clip_tree_unlink(node);
        clip_node_free(node);
    }
}

void clip_tree_init()
{
    clip_tree_free();
    ELEMENT& root = tr.root.list.element;
    root.type = ELEMENT_TYPE_FOLDER;
    root.exist = 1;
    CopyText(root.name, ELEMENT_ROOT);
    PrintText(root.full_name, "/%s/", ELEMENT_ROOT);
    tr.root.list.prev = &ElementListTop;
    ElementListTop.next = ElementListBottom = &tr.root.list;
}

void clip_tree_free()
{
    if (ElementListBottom)
        clip_tree_clear(ELEMENT_TYPE_ALL);
    tr.root = {};
    ElementListTop = {};
    ElementListBottom = nullptr;
}

// --- Looking up ---

static bool is_root(const ELEMENT_LIST* list)
{
    return list == &tr.root.list;
}

static ELEMENT_LIST* find_full(const char* full_name, int type)
{
    for (const int one : {ELEMENT_TYPE_FOLDER, ELEMENT_TYPE_FILE}) {
        CLIP_NODE* const node = (type & one) ? clip_tree_find(full_name, one) : nullptr;
        if (node)
            return &node->list;
    }
    return nullptr;
}

static bool names_root(const char* path)
{
    static_assert(sizeof ELEMENT_ROOT == sizeof "root");
    return strcmp(path, "/") == 0 || strcmp(path, "/root") == 0 || strcmp(path, "/root/") == 0;
}

// A folder by its full name alone: FMCtrl3_FindPath takes "/root/x" for a path from the root, too,
// where there is no such folder.
static ELEMENT_LIST* find_folder(const char* full_name)
{
    return names_root(full_name) ? &tr.root.list : find_full(full_name, ELEMENT_TYPE_FOLDER);
}

ELEMENT_LIST* FMCtrl3_FindPath(const CURRENT_INFO* current, int type, const char* path)
{
    if (!path || !*path || !ElementListBottom)
        return nullptr;
    char full_name[ELEMENT_PATH_SIZE + ELEMENT_FOLDER_SIZE];
    if (*path != '/') {
        const bool is_at_root = !current || !*current->path || names_root(current->path);
        const char* const from = is_at_root ? "/root" : current->path;
        if (PrintText(full_name, "%s/%s", from, path) >= int(sizeof full_name))
            return nullptr;
        return find_full(full_name, type);
    }
    if (names_root(path))
        return (type & ELEMENT_TYPE_FOLDER) ? &tr.root.list : nullptr;
    if (ELEMENT_LIST* const found = find_full(path, type)) // first: most texts are full names
        return found;
    if (PrintText(full_name, "/%s%s", ELEMENT_ROOT, path) >= int(sizeof full_name))
        return nullptr;
    return find_full(full_name, type);
}

ELEMENT_LIST* FMCtrl3_GetParent(const ELEMENT_LIST* element)
{
    if (!element || is_root(element))
        return nullptr;
    return find_folder(element->element.full_path);
}

static ELEMENT_LIST* first_beyond(const ELEMENT_LIST* folder)
{
    return last_before(folder->element, true, nullptr)->list.next;
}

ELEMENT_LIST* FMCtrl3_GetChild(const ELEMENT_LIST* folder, const ELEMENT_LIST* after)
{
    if (!folder || folder->element.type != ELEMENT_TYPE_FOLDER)
        return nullptr;
    const int layer = is_root(folder) ? 0 : folder->element.layer + 1;
    ELEMENT_LIST* e = folder->next;
    if (after)
        e = after->element.type == ELEMENT_TYPE_FOLDER ? first_beyond(after) : after->next;
    // What lies deeper without a folder of its own is passed, too.
    for (; e && (is_root(folder) || lies_below(e->element, folder->element)); e = e->next)
        if (e->element.layer == layer)
            return e;
    return nullptr;
}

// --- Searching ---

static bool fits(const ELEMENT_LIST* list, const SEARCH_CONFIG& config)
{
    const ELEMENT& e = list->element;
    if (is_root(list) || !(e.type & config.type) || !StrIStr(e.name, config.text))
        return false;
    if (e.type == ELEMENT_TYPE_FILE &&
        ((config.place && !(e.exist & config.place)) || (config.is_pair && !e.is_pair)))
        return false;
    return FMCtrl3_GetParent(list) != nullptr;
}

ELEMENT_LIST* FMCtrl3_FindName(SEARCH_DIR dir, const SEARCH_CONFIG* config)
{
    if (!config || !ElementListBottom)
        return nullptr;
    const ELEMENT_LIST* const start = config->start ? config->start : &tr.root.list;
    for (const ELEMENT_LIST* e = start;;) {
        if (dir == SEARCH_DIR_NEXT)
            e = e->next ? e->next : &tr.root.list;
        else
            e = is_root(e) ? ElementListBottom : e->prev;
        if (fits(e, *config))
            return const_cast<ELEMENT_LIST*>(e);
        if (e == start)
            return nullptr;
    }
}

// --- Views ---

void FMCtrl3_InitCurrentInfo(CURRENT_INFO* info)
{
    PrintText(info->path, "/%s/", ELEMENT_ROOT);
}

ELEMENT_LIST* FMCtrl3_GetCurrent(const CURRENT_INFO* info)
{
    return ElementListBottom ? find_folder(*info->path ? info->path : "/") : nullptr;
}

// "..", "../.." and so on; 0 for another text.
static int steps_up(const char* directory)
{
    for (int steps = 1; BeginsWith(directory, ".."); steps++, directory += 3) {
        if (directory[2] == '\0')
            return steps;
        if (directory[2] != '/')
            return 0;
    }
    return 0;
}

static ELEMENT_LIST* folder_above(const CURRENT_INFO* info, int steps)
{
    char path[ELEMENT_PATH_SIZE];
    CopyText(path, info->path);
    if (!*path || names_root(path))
        return nullptr;
    for (; steps > 0; steps--) {
        char* const slash = strrchr(path, '/');
        if (!slash || slash == path)
            return nullptr;
        *slash = '\0';
    }
    return find_folder(path);
}

int FMCtrl3_ChangeDirectory(CURRENT_INFO* info, const char* directory)
{
    if (!info || !directory)
        return -1;
    const ELEMENT_LIST* folder = nullptr;
    const int steps = steps_up(directory);
    if (steps > 0)
        folder = folder_above(info, steps);
    else if (*directory == '/' ||
             (strlen(directory) < ELEMENT_FOLDER_SIZE && !strchr(directory, '/')))
        folder = FMCtrl3_FindPath(info, ELEMENT_TYPE_FOLDER, directory);
    if (!folder)
        return -1;
    CopyText(info->path, folder->element.full_name);
    return 0;
}

void FMCtrl3_PrintElementListAll()
{
    for (const ELEMENT_LIST* e = ElementListTop.next; e; e = e->next)
        Log_Output(LOG_TRACE, MOD_CLIP, "%s %s exist=%d frames=%d pair=%d thumbnail=%d %s",
                   e->element.type == ELEMENT_TYPE_FOLDER ? "folder" : "file", e->element.full_name,
                   e->element.exist, e->element.duration, e->element.is_pair, e->element.thumbnail,
                   e->element.create_time);
}
