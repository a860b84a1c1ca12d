// The pages of the File menu under any server. The input is lines: "@7131" opens a page, "!3"
// touches its third key, "*200,157" the screen, "?1" answers the pane on top, "=text" is what the
// server replies to the job that was asked for last, "-" drops the link, "path#value" is any other
// line of the server's. Whatever is told, no command names a place outside the drives and the
// staging folders.
#include "a_bt.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "file.h"
#include "file_dir.h"
#include "fuzz_page.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static std::string last; // path of the command whose reply is told next, "" none
static int last_label = 0;

static void Begin()
{
    BeginPages();
    File_ReplaceSync([] { return 0; });
}

// Each path on this machine lies below a root.
static void CheckPlaces(const std::string& line)
{
    static const char* const roots[] = {"/mnt/data/", "/mnt/usb/", "/var/nfs/user/",
                                        "/var/tmp/",  "/mnt/sys/", "/tmp/FTPIF/"};
    Check(line.find("/../") == std::string::npos, line);
    for (size_t at = 0; (at = line.find("MYHOST:", at)) != std::string::npos;) {
        at += strlen("MYHOST:");
        Check(std::any_of(
                  std::begin(roots), std::end(roots),
                  [&](const char* root) { return line.compare(at, strlen(root), root) == 0; }),
              line);
    }
}

static void TakeCommands()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text)) {
        const std::string line = text;
        const size_t mark = line.find("#L");
        if (!line.starts_with("put File@") || mark == std::string::npos)
            continue;
        CheckPlaces(line);
        last = line.substr(4, mark - 4);
        last_label = atoi(line.c_str() + mark + 2);
        if (last_label > 0)
            SendDummyTally(
                (last + "#L" + std::to_string(last_label) + "," + std::to_string(last_label))
                    .c_str());
    }
    while (Net_TakeQueuedSHP(text, sizeof text)) {
    }
}

static void Step(const std::string& line)
{
    switch (line[0]) {
    case '@': (void)CreatePage(uint32_t(strtoul(line.c_str() + 1, nullptr, 16)) << 16); break;
    case '!': Touch(atoi(line.c_str() + 1)); break;
    case '?': Answer(atoi(line.c_str() + 1)); break;
    case '*': Press(line.c_str() + 1); break;
    case '-': File_LinkLost(); break;
    case '=':
        if (!last.empty())
            SendDummyTally(
                (last + "@Status#" + std::to_string(last_label) + "," + line.substr(1)).c_str());
        break;
    default:
        if (line.find('#') != std::string::npos && !line.starts_with("Engineering"))
            SendDummyTally(line.c_str());
    }
    (void)CloseWindow();
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    TakeCommands();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    (void)is_begun;
    last.clear();
    (void)CreatePage(PAGE_TOP);
    TakeCommands();
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        if (end > at)
            Step(text.substr(at, std::min<size_t>(end - at, 400)));
        at = end + 1;
    }
    while (Pane_GetActiveID())
        Answer(0);
    (void)CreatePage(PAGE_TOP);
    File_LinkLost();
    File_Reset();
    File_DirReset();
    while (Pane_GetActiveID())
        Answer(0);
    TakeCommands();
    GL_CreatePage = 0;
    return 0;
}
