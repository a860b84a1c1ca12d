// The hub's lines about the clip store: what they change in the tree, and who is told.
#include "fmctrl3.h"
#include "bus.h"
#include "command.h"
#include "fmctrl3_private.h"
#include "global.h"
#include "indexed.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

constexpr size_t VERB_LETTERS = 5;      // of a verb that are compared
constexpr uint32_t RESULT_DONE = 0x7F;  // of a request
constexpr uint32_t CAPACITY_ALL = 0x7F; // all fields of a capacity row are valid

namespace
{
struct Column {
    int number;
    const char* word;
    int ELEMENT::*field; // null: another kind of value, or none that a row may change
};
struct StoreTable {
    const char* name;
    int type;
};
} // namespace

static constexpr Column shp_column[] = {
    {FMCTRL_MSG_COLUMN_NONE, "", nullptr},
    {FMCTRL_MSG_COLUMN_FRAMES, "frames", nullptr},
    {FMCTRL_MSG_COLUMN_PAIRFILE, "pairfile", &ELEMENT::is_pair},
    {FMCTRL_MSG_COLUMN_FORMAT4K, "format4k", &ELEMENT::format4k},
    {FMCTRL_MSG_COLUMN_FORMAT, "format", &ELEMENT::format},
    {FMCTRL_MSG_COLUMN_TIMESTAMP, "timestamp", nullptr},
    {FMCTRL_MSG_COLUMN_STATUS, "status", &ELEMENT::exist},
    {FMCTRL_MSG_COLUMN_THUMBNAIL, "thumbnail", &ELEMENT::thumbnail},
};
static_assert(IndexedBy(shp_column, &Column::number, FMCTRL_MSG_COLUMN_NUM));

static constexpr StoreTable store_tables[] = {
    {"ClipStoreInfo", ELEMENT_TYPE_NONE},
    {"ClipStoreFolder", ELEMENT_TYPE_FOLDER},
    {"ClipStoreFile", ELEMENT_TYPE_FILE},
};

// --- Telling ---

static void tell(int kind, const ELEMENT* e, int column)
{
    if (isNowPageFM(0))
        SendMessage(LMSG_FMCTRL3CHANGE, kind, Arg(e), column, 0);
}

// --- Tables ---

// "CS1.ClipStoreFile": which of them it is; null for another.
static const StoreTable* store_table(const char* table)
{
    const char* const dot = BeginsWith(table, "CS") ? strchr(table, '.') : nullptr;
    for (const StoreTable& t : store_tables)
        if (dot && Same(dot + 1, t.name))
            return &t;
    return nullptr;
}

// --- Rows ---

static void insert_element_list(int type, const char* row)
{
    ELEMENT e;
    if (FMCtrl3_ReadRow(row, type, &e) != 0)
        return;
    clip_thumbnails_inserted();
    CLIP_NODE* node = clip_tree_find(e.full_name, type);
    const bool is_new = !node;
    if (is_new) {
        node = clip_tree_insert(e);
        if (!node)
            return;
    } else {
        ELEMENT& old = node->list.element;
        const bool is_same_clip =
            old.duration == e.duration && Same(old.create_time, e.create_time);
        if (!is_same_clip) {
            clip_thumbnails_forget(node);
            clip_thumbnails_remove(old);
        }
        old = e;
    }
    clip_thumbnails_want(node);
    tell(is_new ? FMCTRL_MSG_ELEMENT_INSERT : FMCTRL_MSG_ELEMENT_NOTIFY, &node->list.element,
         FMCTRL_MSG_COLUMN_NONE);
}

static CLIP_NODE* node_of_row(int type, const char* path)
{
    ELEMENT e = {.type = type};
    return clip_read_path(path, &e) ? clip_tree_find(e.full_name, type) : nullptr;
}

static int column_of(const char* word)
{
    for (int i = FMCTRL_MSG_COLUMN_PAIRFILE; i < FMCTRL_MSG_COLUMN_NUM; i++)
        if (BeginsWith(word, shp_column[i].word))
            return i;
    return FMCTRL_MSG_COLUMN_NONE;
}

static void set_thumbnail(CLIP_NODE* node, int thumbnail)
{
    ELEMENT& e = node->list.element;
    if (e.thumbnail && !thumbnail) {
        clip_thumbnails_forget(node);
        clip_thumbnails_remove(e);
    }
    e.thumbnail = thumbnail;
    clip_thumbnails_want(node);
}

static void set_time(ELEMENT& e, const char* time)
{
    convert_create_time_format(time, e.create_time, sizeof e.create_time);
    clip_thumbnails_same(e);
}

static void notify_element(int type, const char* row)
{
    char text[CMD_SIZE];
    char* part[3]; // path, column, value
    CopyText(text, row);
    if (SplitSHPValues(text, part, 3) != 3)
        return;
    CLIP_NODE* const node = node_of_row(type, part[0]);
    const int column = column_of(part[1]);
    if (!node || column == FMCTRL_MSG_COLUMN_NONE)
        return;
    ELEMENT& e = node->list.element;
    if (column == FMCTRL_MSG_COLUMN_TIMESTAMP)
        set_time(e, part[2]);
    else if (column == FMCTRL_MSG_COLUMN_THUMBNAIL)
        set_thumbnail(node, Decimal(part[2]));
    else
        e.*shp_column[column].field = Decimal(part[2]);
    tell(FMCTRL_MSG_ELEMENT_NOTIFY, &e, column);
}

static void delete_element(int type, const char* row)
{
    char path[CMD_SIZE];
    CopyText(path, row);
    path[strcspn(path, ":")] = '\0';
    CLIP_NODE* const node = node_of_row(type, path);
    if (!node) // the root is none: its path has no name behind it
        return;
    clip_thumbnails_forget(node);
    clip_tree_unlink(node);
    tell(FMCTRL_MSG_ELEMENT_DELETE, &node->list.element, FMCTRL_MSG_COLUMN_NONE);
    if (type == ELEMENT_TYPE_FILE)
        clip_thumbnails_remove(node->list.element);
    clip_node_free(node);
}

// --- The result of a trim ---

// Cut the last word off a text and read it as a number; false when it is none.
static bool take_last_number(char* text, int* number)
{
    char* const blank = strrchr(text, ' ');
    if (!blank || blank[1] < '0' || blank[1] > '9')
        return false;
    *number = clip_frames(blank + 1);
    *blank = '\0';
    return true;
}

static void trim(CLIP_NODE* node, int first, int last, int total)
{
    ELEMENT& e = node->list.element;
    clip_thumbnails_forget(node); // answers under way have the old numbers
    const bool is_sound = first <= last && last < e.duration && total == last - first + 1;
    if (!is_sound || !clip_thumbnails_renumber(e, first, last))
        clip_thumbnails_remove(e);
    e.duration = total;
    clip_thumbnails_want(node);
    tell(FMCTRL_MSG_ELEMENT_NOTIFY, &e, FMCTRL_MSG_COLUMN_FRAMES);
}

// "Trim root/NEWS/OPENING.SFH 10 19 10:7F". Blanks may stand in the path.
static void result_execute(int type, const char* row)
{
    constexpr char VERB[] = "Trim ";
    char text[CMD_SIZE];
    char* part[2];
    int first = 0, last = 0, total = 0;
    CopyText(text, row);
    if (type != ELEMENT_TYPE_FILE || SplitSHPValues(text, part, 2) != 2 ||
        Hex(part[1]) != RESULT_DONE || !BeginsWith(part[0], VERB) ||
        !take_last_number(part[0], &total) || !take_last_number(part[0], &last) ||
        !take_last_number(part[0], &first))
        return;
    if (CLIP_NODE* const node = node_of_row(type, part[0] + strlen(VERB)))
        trim(node, first, last, total);
}

// --- For the bus ---

static void take_line(const char* verb, const char* table, const char* row)
{
    static constexpr struct {
        const char* verb;
        void (*take)(int type, const char* row);
    } verbs[] = {
        {"Insert", insert_element_list},
        {"Notify", notify_element},
        {"Delete", delete_element},
        {"Result", result_execute},
    };
    const StoreTable* const t = store_table(table);
    if (!t || t->type == ELEMENT_TYPE_NONE)
        return;
    for (const auto& v : verbs)
        if (strncmp(verb, v.verb, VERB_LETTERS) == 0)
            v.take(t->type, row);
}

int FMCtrl3_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    if (msg == MSG_REDRAW)
        clip_thumbnails_pass(int(ax));
    else if (msg == MSG_SHPTALLY && ax && bx && dx && ElementListBottom)
        take_line(reinterpret_cast<const char*>(ax), reinterpret_cast<const char*>(bx),
                  reinterpret_cast<const char*>(dx));
    return 0;
}

void FMCtrl3_Init()
{
    clip_thumbnails_init();
    clip_tree_init();
}

void FMCtrl3_Finalize()
{
    clip_thumbnails_end();
    clip_tree_free();
}

void FMCtrl3_Clear(int type)
{
    if (!ElementListBottom)
        return;
    clip_tree_clear(type == ELEMENT_TYPE_NONE ? ELEMENT_TYPE_ALL : type);
    tell(FMCTRL_MSG_TALBE_CLEAR, nullptr, FMCTRL_MSG_COLUMN_NONE);
}

// --- The tables of the followed store ---

static void clear_capacity()
{
    SYS_StoreTotal = SYS_StoreFree = SYS_MemoryTotal = SYS_MemoryFree = 0;
    SendMessage(LMSG_FMLOAD, SYS_StoreFree, SYS_MemoryFree, 0, 0);
}

void FMCtrl3_HubLost()
{
    clear_capacity();
    FMCtrl3_Clear(ELEMENT_TYPE_ALL);
}

static void clear_table(const StoreTable& t)
{
    if (t.type == ELEMENT_TYPE_NONE)
        clear_capacity();
    else
        FMCtrl3_Clear(t.type);
}

static void table_is_ready(const char* table, const StoreTable& t)
{
    clear_table(t);
    if (t.type == ELEMENT_TYPE_NONE)
        Net_SendSHPCommandFormat("Read#%s:CAPACITY:", table);
    else
        Net_SendSHPCommandFormat("InitRead#%s", table);
}

static void take_capacity(const char* row)
{
    constexpr char HEAD[] = "CAPACITY::";
    constexpr int VALUES = 5;
    Parts p;
    if (!row || !BeginsWith(row, HEAD) || SplitValue(p, row + strlen(HEAD), VALUES) != VALUES ||
        Hex(p.v[4]) != CAPACITY_ALL)
        return;
    SYS_StoreTotal = Decimal(p.v[0]);
    SYS_StoreFree = Decimal(p.v[1]);
    SYS_MemoryTotal = Decimal(p.v[2]);
    SYS_MemoryFree = Decimal(p.v[3]);
    SendMessage(LMSG_FMLOAD, SYS_StoreFree, SYS_MemoryFree, 0, 0);
}

void clipstore_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    if (msg != MSG_SHPTALLY || !ax || !bx)
        return;
    const auto* const verb = reinterpret_cast<const char*>(ax);
    const auto* const table = reinterpret_cast<const char*>(bx);
    const StoreTable* const t = store_table(table);
    if (!t || !is_refCS_command(table))
        return;
    if (Same(verb, "Ready"))
        table_is_ready(table, *t);
    else if (Same(verb, "Disconnect"))
        clear_table(*t);
    else if (Same(verb, "Notify") && t->type == ELEMENT_TYPE_NONE)
        take_capacity(reinterpret_cast<const char*>(dx));
}
