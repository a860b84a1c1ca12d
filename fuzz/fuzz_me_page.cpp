// A page of a bank or a key: whatever the server tells and whatever keys are touched in between, a
// page gives back all that it has subscribed. The input: a byte for the page, then steps. A step is
// a byte for what is told or touched, one for the length of the value, and the value.
#include "a_bt.h"
#include "fuzz_books.h"
#include "message.h"
#include <vector>

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

static void touch(size_t button)
{
    BT_MEM* b = bt_first();
    for (size_t i = 0; i < button && b->id >= 1; i++)
        b++;
    if (b->id >= 1 && b->visible == BT_ENABLED && IsLocal(b->cmd[0]))
        SendMessage(LMSG_BTNSEL, Arg(b->cmd[0]), Arg(b->cmd_var[0]), 0, 0);
}

// The lowest 32 touch a button.
static void step(unsigned what, const std::string& value, const Books& books)
{
    if (what < BT_MAX)
        touch(what);
    else
        Tell(what - BT_MAX, value, books);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<uint32_t> pages = (OpenScreen(), pages_of_a_bank());
    if (size >= 1 && !VisitPage(pages[data[0] % pages.size()], data + 1, size - 1, step))
        abort();
    return 0;
}
