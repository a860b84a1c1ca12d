// A page of a bank or a key: whatever the server tells and whatever keys are touched in between, a
// page gives back all that it has subscribed. The input: a byte for the page, then steps. A step is
// a byte for what is told or touched, one for the length of the value, and the value.
#include "a_bt.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "tdl.h"
#include "window.h"
#include <SDL.h>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <set>
#include <string>
#include <vector>

static const std::string KNOBS = "Panel@Common@Knob";
// The paths that are followed. The server keeps one subscription of each, however often it was
// asked.
using Books = std::set<std::string>;

static std::vector<uint32_t> pages_of_a_bank()
{
    std::vector<uint32_t> ids;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        const uint32_t bank = page->id >> 24, group = page->id >> 20 & 0x0F;
        const bool is_sub = bank == 0x15 && group >= 5;
        if ((bank == 0x11 && (group == 1 || group >= 5)) || bank == 0x14 || is_sub)
            ids.push_back(page->id);
    }
    return ids;
}

static void open_screen()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        abort();
    SDL_Surface* surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0);
    if (!surface)
        abort();
    (void)TDL_Init(surface); // there are no fonts here, and nothing is drawn
    std::fill_n(multiprogram2_me, ME_COUNT, 1);
    GL_AllPageDisplayMode = 1;
}

static void take_commands(Books& books)
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text)) {
        const std::string line = text;
        if (line.starts_with("add "))
            books.insert(line.substr(4));
        else if (line.starts_with("remove "))
            books.erase(line.substr(7));
    }
}

static void touch(size_t button)
{
    BT_MEM* b = bt_first();
    for (size_t i = 0; i < button && b->id >= 1; i++)
        b++;
    if (b->id >= 1 && b->visible == BT_ENABLED && IsLocal(b->cmd[0]))
        SendMessage(LMSG_BTNSEL, Arg(b->cmd[0]), Arg(b->cmd_var[0]), 0, 0);
}

// The lowest 32 touch a button, the next five turn a knob, the others tell a path that is followed.
static void step(unsigned what, const std::string& value, const Books& books)
{
    if (what < BT_MAX) {
        touch(what);
    } else if (what < BT_MAX + 5) {
        SendDummyTally((KNOBS + std::to_string(what - BT_MAX) + "#" + value).c_str());
    } else if (!books.empty()) {
        const auto at = std::next(books.begin(), long((what - BT_MAX - 5) % books.size()));
        SendDummyTally((*at + "#" + value).c_str());
    }
}

static void close_all()
{
    (void)CloseWindow(); // none may be open
    while (const int id = Pane_GetActiveID())
        Pane_Quit(id);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<uint32_t> pages = (open_screen(), pages_of_a_bank());
    if (size < 1)
        return 0;
    CreatePage(PAGE_TOP);
    Books ignored, books;
    take_commands(ignored);
    CreatePage(pages[data[0] % pages.size()]);
    take_commands(books);
    for (data++, size--; size >= 2;) {
        const size_t length = std::min(size_t(data[1]), size - 2);
        step(data[0], std::string(reinterpret_cast<const char*>(data) + 2, length), books);
        take_commands(books);
        close_all();
        data += 2 + length;
        size -= 2 + length;
    }
    CreatePage(PAGE_TOP);
    take_commands(books);
    for (const std::string& path : books)
        if (path != "TopMenu" && !ignored.contains(path))
            abort();
    GL_CreatePage = 0;
    return 0;
}
