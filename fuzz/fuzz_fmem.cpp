// The pages of the clip store under any server and any hub. The input is lines: "@2121" opens a
// page, "!3" touches its third key, "*200,157" the screen, "?1" answers the pane on top, "+7" turns
// the first knob, ">Insert File root/A.SFH:..." is a line of the hub, "path#value" one of the
// server's. Whatever is told, no request touches the root itself, and no command an output that
// there is not.
#include "a_bt.h"
#include "command.h"
#include "fmctrl3.h"
#include "fuzz_page.h"
#include "global.h"
#include "netio.h"
#include "page.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdint>

static void Begin()
{
    BeginPages();
    GL_ClipStoreSupportMode = 1;
    DEV_MySwr[0] = &DEV_Swr[0];
    SYS_MySwrMax = 1;
    CopyText(DEV_Swr[0].id, "SWR000D001");
    FMCtrl3_Init();
}

static void CheckCommand(const std::string& line)
{
    const size_t at = line.find("@FM");
    if (!line.starts_with("put ") || line.find("Clip/Still") == std::string::npos ||
        at == std::string::npos)
        return;
    const int output = atoi(line.c_str() + at + 3);
    Check(output >= 1 && output <= 20, line);
}

// "Execute#CS1.ClipStoreFile:Delete root/...": something is named below the root, and not by the
// way up again.
static void CheckRequest(const std::string& line)
{
    if (!line.starts_with("Execute#"))
        return;
    constexpr char ROOT[] = " root/";
    const size_t path = line.find(ROOT);
    Check(path != std::string::npos, line);
    std::string name = line.substr(path + strlen(ROOT));
    name = name.substr(0, name.find('/'));
    Check(name.find_first_not_of(". ") != std::string::npos, line);
}

static void TakeCommands()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text))
        CheckCommand(text);
    while (Net_TakeQueuedSHP(text, sizeof text))
        CheckRequest(text);
}

static void Hub(const std::string& line)
{
    const size_t blank = line.find(' '), row_at = line.find(' ', blank + 1);
    if (row_at == std::string::npos)
        return;
    const std::string verb = line.substr(0, blank);
    const std::string table = "CS1.ClipStore" + line.substr(blank + 1, row_at - blank - 1);
    std::string row = line.substr(row_at + 1);
    SendMessage(MSG_SHPTALLY, Arg(verb.c_str()), Arg(table.c_str()), 0, Arg(row.c_str()));
}

static void Step(const std::string& line)
{
    switch (line[0]) {
    case '@': (void)CreatePage(uint32_t(strtoul(line.c_str() + 1, nullptr, 16)) << 16); break;
    case '!': Touch(atoi(line.c_str() + 1)); break;
    case '?': Answer(atoi(line.c_str() + 1)); break;
    case '*': Press(line.c_str() + 1); break;
    case '+': SendMessage(LMSG_KNOBVAR, 1, atoi(line.c_str() + 1), 0, 0); break;
    case '>': Hub(line.substr(1)); break;
    case '-': FMCtrl3_HubLost(); break;
    default:
        if (line.starts_with("Frame Mem") && line.find('#') != std::string::npos)
            SendDummyTally(line.c_str());
    }
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    TakeCommands();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    (void)is_begun;
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
    GL_CreatePage = 0;
    FMCtrl3_Clear(ELEMENT_TYPE_ALL);
    TakeCommands();
    return 0;
}
