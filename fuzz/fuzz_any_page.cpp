// Any page of the table under any server: whatever is told on the paths that it follows, or on
// those that are followed whatever page is up, it takes or refuses it, is drawn, and gives back all
// that it has subscribed; but units that come and go bring and take subscriptions of other modules.
// The input: two bytes for the page, then steps. A step is a byte for what is told, one for the
// length of the value, and the value.
#include "fuzz_books.h"
#include "initread.h"
#include "message.h"
#include <vector>

static std::vector<uint32_t> all_pages()
{
    std::vector<uint32_t> ids;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        ids.push_back(page->id);
    return ids;
}

static Books paths_of_the_start()
{
    Books books;
    for (void (*stage)() : {InitialCommand0, InitialCommand1, InitialCommand2}) {
        stage();
        TakeCommands(books);
    }
    return books;
}

static bool is_start_told = false; // by this input

// The upper half tells a path of the start, the first byte of the value with it chooses which.
static void step(unsigned what, const std::string& value, const Books& books)
{
    static const Books at_start = paths_of_the_start();
    constexpr unsigned START = 128;
    if (what < START) {
        Tell(what, value, books);
    } else if (!value.empty()) {
        is_start_told = true;
        const size_t n = (what - START) << 8 | uint8_t(value[0]);
        const auto at = std::next(at_start.begin(), long(n % at_start.size()));
        SendDummyTally((*at + "#" + value.substr(1)).c_str());
    }
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<uint32_t> pages = (OpenScreen(), all_pages());
    if (size < 2)
        return 0;
    is_start_told = false;
    const uint32_t id = pages[size_t(data[0] << 8 | data[1]) % pages.size()];
    if (!VisitPage(id, data + 2, size - 2, step) && !is_start_told)
        abort();
    return 0;
}
