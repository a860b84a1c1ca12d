// Messages, questions and progress: a box with a text that grows and scrolls.
#include "memory.h"
#include "pane_private.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

constexpr Rect MESSAGE_BOX = {200, 140, 599, 439};
constexpr int MESSAGE_OK = 1;
constexpr int PROGRESS_CANCEL = 1;
constexpr int YESNO_YES = 1;
constexpr int YESNO_NO = 2;

static constexpr BUTTON Button_Message[] = {
    {.id = MESSAGE_OK, .caption = "OK", .type = LOOK_KEY, .x1 = 153, .y1 = 247},
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 66},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_YesNo[] = {
    {.id = YESNO_YES, .caption = "Yes", .type = LOOK_KEY, .x1 = 97, .y1 = 247},
    {.id = YESNO_NO, .caption = "No", .type = LOOK_KEY, .x1 = 210, .y1 = 247},
    {.id = 3, .type = LOOK_UP, .x1 = 337, .y1 = 66},
    {.id = 4, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_Progress[] = {
    {.id = PROGRESS_CANCEL, .caption = "Cancel", .type = LOOK_KEY, .x1 = 153, .y1 = 247},
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 121},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_Progress_NoCancel[] = {
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 121},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
constexpr int MESSAGE_BUTTONS = 4; // at most

SCROLLTEXT* pane_text(PANE* pane)
{
    switch (pane->type) {
    case TYPE_MESSAGE:
    case TYPE_YESNO: return &pane->each.message.text;
    case TYPE_PROGRESS: return &pane->each.progress.text;
    default: return nullptr;
    }
}

// --- Their text ---

// Make room for count elements of what array points to, of which it has place for *room. Doubling
// keeps the cost of an append that of what is appended. False when memory is out: all is as before.
template <typename T> static bool make_room(T*& array, size_t* room, size_t count)
{
    if (count <= *room)
        return true;
    const size_t wanted = std::max(count, 2 * *room);
    auto* larger = static_cast<T*>(GDL_Realloc(array, wanted * sizeof(T)));
    if (!larger)
        return false;
    array = larger;
    *room = wanted;
    return true;
}

bool grow_text(GROWTEXT* text, const char* more)
{
    const size_t size = strlen(more) + 1;
    if (!make_room(text->mes, &text->room, text->length + size))
        return false;
    memcpy(text->mes + text->length, more, size);
    text->length += size - 1;
    return true;
}

void free_text(GROWTEXT* text)
{
    GDL_Free(text->mes);
    *text = {};
}

static bool begin_line(SCROLLTEXT* text, size_t offset)
{
    if (!make_room(text->start, &text->start_room, size_t(text->starts) + 1))
        return false;
    text->start[text->starts++] = offset;
    return true;
}

// Find the lines behind the last one that is known, which may have grown. Without memory for their
// places they can't be scrolled to.
static void find_lines(SCROLLTEXT* text)
{
    const char* mes = text->grown.mes;
    if (text->starts == 0 && !begin_line(text, 0))
        return;
    for (size_t at = text->start[text->starts - 1];;) {
        at += TDL_GetLineLength(TEXT_WIDTH, mes + at, TEXT_FONT);
        const bool is_broken = at > 0 && mes[at - 1] == '\n';
        if ((!mes[at] && !is_broken) || at == text->start[text->starts - 1] ||
            !begin_line(text, at))
            return;
    }
}

static int text_append(SCROLLTEXT* text, const char* more)
{
    if (!grow_text(&text->grown, more))
        return -1;
    find_lines(text);
    return 0;
}

// A text counts as ended by a break, whether it is or not.
static int line_count(const SCROLLTEXT* text)
{
    const GROWTEXT& grown = text->grown;
    const bool is_ended = grown.length > 0 && grown.mes[grown.length - 1] == '\n';
    return text->starts + !is_ended;
}

// The first line of the last page of a text.
static int last_page(const PANE* pane, const SCROLLTEXT* text)
{
    return std::max(0, line_count(text) - (pane_kind(pane).lines + 1));
}

const char* pane_text_in_view(PANE* pane)
{
    const SCROLLTEXT* text = pane_text(pane);
    return text->starts > 0 ? text->grown.mes + text->start[text->topline] : "";
}

void message_release(PANE* pane)
{
    SCROLLTEXT* text = pane_text(pane);
    free_text(&text->grown);
    GDL_Free(text->start);
}

void progress_release(PANE* pane)
{
    message_release(pane);
    GDL_Free(pane->each.progress.progmes);
}

// --- Opening ---

static PANE* message_create(TYPE type, const char* caption, const char* mes, const BUTTON* buttons)
{
    PANE* pane = pane_create(type, caption, MESSAGE_BOX, MESSAGE_BUTTONS);
    if (!pane)
        return nullptr;
    for (const BUTTON* b = buttons; b->id != BUTTON_END; b++)
        (void)pane_add(pane, *b);                       // there is room
    (void)text_append(pane_text(pane), mes ? mes : ""); // without memory the box is empty
    return pane;
}

int PaneMessage_Create(const char* caption, int icon, const char* mes)
{
    PANE* pane = message_create(TYPE_MESSAGE, caption, mes, Button_Message);
    if (!pane)
        return 0;
    pane->each.message.icon = icon;
    return pane->id;
}

int PaneYesNo_Create(const char* caption, int icon, const char* mes)
{
    PANE* pane = message_create(TYPE_YESNO, caption, mes, Button_YesNo);
    if (!pane)
        return 0;
    pane->each.message.icon = icon;
    return pane->id;
}

int PaneProgress_Create(const char* caption, const char* mes, int cancel)
{
    const PANE* pane = message_create(TYPE_PROGRESS, caption, mes,
                                      cancel ? Button_Progress : Button_Progress_NoCancel);
    return pane ? pane->id : 0;
}

int Pane_AppendMessage(int id, const char* text)
{
    PANE* pane = pane_find(id);
    if (!pane)
        return -1;
    SCROLLTEXT* scroll = pane_text(pane);
    if (!scroll)
        return -2;
    if (!text || !*text)
        return 0;
    if (text_append(scroll, text) != 0)
        return 0; // out of memory: the line is lost, the pane goes on
    scroll->topline = last_page(pane, scroll);
    pane->text_redraw = 1;
    return 0;
}

// 0 with the pane, or what a call for the wrong one answers.
static int find_progress(int id, PANE** pane)
{
    *pane = pane_find(id);
    if (!*pane)
        return -1;
    return (*pane)->type == TYPE_PROGRESS ? 0 : -2;
}

// Whether the text is another one now.
static bool set_progmes(PANE* pane, const char* text)
{
    char*& progmes = pane->each.progress.progmes;
    if (!text || strcmp(progmes ? progmes : "", text) == 0)
        return false;
    GDL_Free(progmes);
    progmes = GDL_StrDup(text);
    return true;
}

int PaneProgress_SetProg(int id, int percent, const char* text)
{
    PANE* pane;
    if (const int error = find_progress(id, &pane))
        return error;
    auto& progress = pane->each.progress;
    percent = std::clamp(percent, 0, 100);
    const bool has_text = set_progmes(pane, text);
    if (percent == progress.prog && !has_text)
        return 0;
    progress.prog = percent;
    progress.prog_redraw = 1;
    return 0;
}

int PaneProgress_SetRouteLamp(int id, int lamp)
{
    PANE* pane;
    if (const int error = find_progress(id, &pane))
        return error;
    auto& progress = pane->each.progress;
    if (progress.lamp == lamp)
        return 0;
    progress.lamp = lamp;
    progress.prog_redraw = 1;
    return 0;
}

static void scroll(PANE* pane, int step)
{
    SCROLLTEXT* text = pane_text(pane);
    const int topline = std::clamp(text->topline + step, 0, last_page(pane, text));
    if (topline == text->topline)
        return;
    text->topline = topline;
    pane->text_redraw = 1;
}

void message_select(PANE* pane, int id)
{
    for (const BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
        if (b->id != id)
            continue;
        if (b->type == LOOK_KEY)
            pane->quitmem = id;
        else
            scroll(pane, b->type == LOOK_UP ? -1 : 1);
    }
}

int message_result(const PANE* pane)
{
    return pane->quitmem == QUIT_SILENT ? -1 : pane->quitmem - 1;
}
