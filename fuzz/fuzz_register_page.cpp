// The pages of the stored registers under any server. The input is lines: "@6321.1" opens a page,
// "!3" touches its third key, "*200,157" the screen, "?1" answers the pane on top, "+7" turns the
// knob, "path#value" is a line of the server's. Whatever is told, a command goes to registers that
// there are, from the first to the last of a run.
#include "a_bt.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "fuzz_page.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_register.h"
#include "register.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

static void Begin()
{
    BeginPages();
    std::fill_n(multiprogram2_me, ME_COUNT, 1);
}

// "...@Lock#MASK,FROM,TO": the verbs that go to a run of registers.
static void CheckRun(const std::string& line)
{
    static const char* const verbs[] = {"@Lock#", "@UnLock#", "@Delete#",  "@Copy#",
                                        "@Move#", "@Swap#",   "@Xpt Hold#"};
    for (const char* verb : verbs) {
        const size_t at = line.find(verb);
        if (at == std::string::npos)
            continue;
        const bool has_mask =
            line.find("Master") == std::string::npos && line.find("Shotbox") == std::string::npos;
        const size_t value = at + strlen(verb);
        const size_t from_at = has_mask ? line.find(',', value) + 1 : value;
        const size_t to_at = line.find(',', from_at) + 1;
        Check(from_at > 0 && to_at > 0, line);
        const int from = atoi(line.c_str() + from_at);
        const int to = atoi(line.c_str() + to_at);
        Check(from >= 1 && from <= to && to < 400, line);
    }
}

static void TakeCommands()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text))
        if (BeginsWith(text, "put Snapshot@") || BeginsWith(text, "put Effect@") ||
            BeginsWith(text, "put Shotbox@"))
            CheckRun(text);
}

static void Open(const char* number)
{
    char* sub = nullptr;
    const uint32_t page = uint32_t(strtoul(number, &sub, 16)) << 16;
    (void)CreatePage(page | (*sub == '.' ? uint32_t(strtoul(sub + 1, nullptr, 16)) & 0xFFFF : 0));
}

static void Step(const std::string& line)
{
    switch (line[0]) {
    case '@': Open(line.c_str() + 1); break;
    case '!': Touch(atoi(line.c_str() + 1)); break;
    case '?': Answer(atoi(line.c_str() + 1)); break;
    case '*': Press(line.c_str() + 1); break;
    case '+': SendMessage(LMSG_KNOBVAR, 1, atoi(line.c_str() + 1), 0, 0); break;
    default:
        if (line.find('#') != std::string::npos && !line.starts_with("Engineering"))
            SendDummyTally(line.c_str());
    }
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    if (GL_CreatePage != 0)
        (void)CreatePage(GL_CreatePage);
    GL_CreatePage = 0;
    TakeCommands();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    (void)is_begun;
    (void)CreatePage(PAGE_TOP);
    TakeCommands();
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        if (end > at)
            Step(text.substr(at, std::min<size_t>(end - at, 900)));
        at = end + 1;
    }
    while (Pane_GetActiveID())
        Answer(0);
    (void)CloseWindow(); // none is open: fine
    (void)CreatePage(PAGE_TOP);
    RegisterPages_Reset();
    Register_Free();
    TakeCommands();
    return 0;
}
