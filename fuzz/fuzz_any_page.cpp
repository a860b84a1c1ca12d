// Any page of the table under any server: whatever is told on the paths that it follows, it takes
// or refuses it, is drawn, and gives back all that it has subscribed. The input: two bytes for the
// page, then steps. A step is a byte for what is told, one for the length of the value, and the
// value.
#include "fuzz_books.h"
#include "message.h"
#include <vector>

static std::vector<uint32_t> all_pages()
{
    std::vector<uint32_t> ids;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        ids.push_back(page->id);
    return ids;
}

static void step(unsigned what, const std::string& value, const Books& books)
{
    Tell(what, value, books);
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<uint32_t> pages = (OpenScreen(), all_pages());
    if (size >= 2)
        VisitPage(pages[size_t(data[0] << 8 | data[1]) % pages.size()], data + 2, size - 2, step);
    return 0;
}
