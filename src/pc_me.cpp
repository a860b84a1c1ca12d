#include "pc_me.h"
#include "a_bt.h"
#include "bus.h"
#include "global.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include "safeguards.h"

static const char* first_word()
{
    return GL_NowTree && GL_NowTree[0] ? GL_NowTree[0] : "";
}

int Now_disp_draw()
{
    const MeBank* bank = Page_Bank();
    return bank ? bank->place : 0;
}

int ME_ServerBank()
{
    return me_bank[Now_disp_draw()].me;
}

int ME_IsSubPage()
{
    return isNowPageME(0) == 2;
}

void ME_BankWord(char* dst, int size)
{
    snprintf(dst, size_t(size), "%s%s", first_word(), ME_IsSubPage() ? " SUB" : "");
}

bool ME_IsKey3Or4()
{
    const char* key = *first_word() ? GL_NowTree[1] : nullptr;
    for (const char* word : {"Key3", "DSK3", "Key4", "DSK4"})
        if (key && strcmp(key, word) == 0)
            return true;
    return false;
}

void ME_OpenPageOfKey(uint32_t id)
{
    AddPageOffset(&id);
    GL_CreatePage = id;
}

void ME_Mirror(const char* format, ...)
{
    char line[CMD_SIZE];
    va_list ap;
    va_start(ap, format);
    vsnprintf(line, sizeof line, format, ap);
    va_end(ap);
    SendDummyTally(line);
}

void ME_PullDownTally(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now, const char* path,
                      const char* value)
{
    if (!*now.Cmd || !Same(path, now.Cmd))
        return;
    now.Chosen = 0;
    for (int i = 0; i < of.choices; i++)
        if (Same(value, of.choice[i].word))
            now.Chosen = i + 1;
    BT_SetCaption(of.button, now.Chosen ? of.choice[now.Chosen - 1].caption : of.caption);
}

void ME_PullDownOpen(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now)
{
    BTNSEL items[ME_CHOICES_MAX];
    for (int i = 0; i < of.choices; i++)
        items[i] = {i + 1, of.choice[i].caption, now.Chosen == i + 1};
    if (const BT_MEM* key = bt_find(of.button))
        now.Pane = PanePullDown_Create(key->x1, key->y2 + 1, of.choices, items);
}

void ME_PullDownClosed(const ME_PULLDOWN& of, ME_PULLDOWN_STATE& now, int pane, int id)
{
    if (pane != now.Pane || !pane)
        return;
    now.Pane = 0;
    if (id >= 1 && id <= of.choices)
        Net_SendCommandFormat("put %s#%s", now.Cmd, of.choice[id - 1].word);
}

int ME_SnapshotRegion()
{
    return Now_disp_draw() + (ME_IsSubPage() ? ME_BANKS_SHOWN : 0);
}
