// The find pane with its keyboard.
#include "pane_search.h"
#include "global.h"
#include "message.h"
#include "pane.h"
#include "text.h"
#include "window.h"

#include "safeguards.h"

static constexpr int FIND_X = 300;
static constexpr int FIND_Y = 200;

static PANESEARCH search; // without a text: not open

static void step(SEARCH_DIR dir)
{
    if (!search.step)
        return;
    (void)PaneFind_Indicator(1);
    search.step(dir);
    (void)PaneFind_Indicator(0);
}

static int text_entered(const char* text)
{
    if (!search.text)
        return 0;
    CopyText(*search.text, text);
    search.begin();
    step(SEARCH_DIR_NEXT);
    return 0;
}

static void button(int id)
{
    switch (id) {
    case PANEFIND_TEXT:
        (void)CreateWindow(
            WINDOW_KEYBOARD, "Find",
            {.value = *search.text, .input_max = ELEMENT_NAME_SIZE - 1, .ok_text = text_entered});
        return;
    case PANEFIND_PREV: step(SEARCH_DIR_PREV); return;
    case PANEFIND_NEXT: step(SEARCH_DIR_NEXT); return;
    case PANEFIND_CLOSE: (void)Pane_SetQuitFlag(GL_FM_Find_PaneID); return;
    default: return;
    }
}

bool PaneSearch_Open(const PANESEARCH& owner)
{
    GL_FM_Find_PaneID = PaneFind_Create(FIND_X, FIND_Y, 0);
    search = GL_FM_Find_PaneID ? owner : PANESEARCH{};
    return GL_FM_Find_PaneID != 0;
}

void PaneSearch_Close()
{
    if (search.text)
        (void)Pane_Quit(GL_FM_Find_PaneID);
    search = {};
}

void PaneSearch_Proc(int msg, MsgArg ax)
{
    if (!search.text)
        return;
    if (msg == LMSG_PANEBTNSEL) {
        button(int(ax));
    } else if (msg == LMSG_PANEQUIT && int(ax) == GL_FM_Find_PaneID) {
        search = {};
        GL_FM_Find_PaneID = 0;
    }
}
