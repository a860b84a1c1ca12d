// The online editor of macros and the attachments under any server. The input is lines: "@1" opens
// the editor, another "@" the attachments; "!3" touches the third key, "*200,157" the screen,
// "path#value" is a line of the server's. Whatever is told, a command names lines that there may
// be, and an entry goes back with all its fields.
#include "a_bt.h"
#include "a_ls.h"
#include "command.h"
#include "fuzz_page.h"
#include "global.h"
#include "macro_attach.h"
#include "macro_file.h"
#include "netio.h"
#include "page.h"
#include "pc_macro.h"
#include "pc_macro_online_edit.h"
#include "register.h"
#include "window.h"
#include <algorithm>
#include <cstdint>
#include <vector>

static std::vector<long> NumbersOf(const std::string& value, const std::string& line)
{
    std::vector<long> numbers;
    for (const char* at = value.c_str(); *at;) {
        char* end = nullptr;
        numbers.push_back(strtol(at, &end, 10));
        Check(end != at && (*end == ',' || *end == '\0'), line);
        at = *end ? end + 1 : end;
    }
    return numbers;
}

static void CheckCommand(const std::string& line)
{
    static const struct {
        std::string head;
        size_t numbers;
        long max;
    } rules[] = {{"put Macro@Reg@On Line Edit@Delete#", 3, MACRO_LINES},
                 {"put Macro@Reg@On Line Edit@Modify#", 3, MACRO_LINES},
                 {"put Macro@Reg@On Line Edit@Insert#", 2, MACRO_LINES},
                 {"put Macro@Reg@On Line Edit@Macro Event Edit Range#", 2, MACRO_LINES},
                 {"put Macro@Attachment@Delete#", ATTACH_FIELDS, UINT16_MAX}};
    for (const auto& rule : rules) {
        if (!line.starts_with(rule.head))
            continue;
        const auto numbers = NumbersOf(line.substr(rule.head.size()), line);
        Check(numbers.size() == rule.numbers, line);
        for (const long n : numbers)
            Check(n >= 0 && n <= rule.max, line);
    }
}

static void TakeCommands()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text))
        CheckCommand(text);
}

static void CheckList()
{
    const int id = GL_NowPage == PAGE_MACRO_ONLINE ? int(LIST_MACRO_ONLINE) : 1;
    const int rows = LS_GetNData(id);
    Check(rows <= std::max<int>(MACRO_EVENTS, ATTACH_MAX), "rows");
    for (int row = 0; row < rows; row++)
        for (int column = 0; column < 3; column++)
            if (const char* const cell = LS_GetData(id, row, column))
                Check(strlen(cell) < 256, "cell");
}

static void Open(bool is_editor)
{
    GL_MacroEditNo = 3;
    GL_Macro_Online_TrueOrFalse = 1;
    (void)CreatePage(is_editor ? PAGE_MACRO_ONLINE : 0x54210000);
}

static void Step(const std::string& line)
{
    switch (line[0]) {
    case '@': Open(line[1] == '1'); break;
    case '!': Touch(atoi(line.c_str() + 1)); break;
    case '*': Press(line.c_str() + 1); break;
    default:
        if (line.starts_with("Macro@") && line.find('#') != std::string::npos)
            SendDummyTally(line.c_str());
    }
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    GL_CreatePage = 0;
    TakeCommands();
    CheckList();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (BeginPages(), true);
    (void)is_begun;
    Open(true);
    TakeCommands();
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        if (end > at)
            Step(text.substr(at, std::min<size_t>(end - at, 900)));
        at = end + 1;
    }
    (void)CloseWindow(); // none is open: fine
    (void)CreatePage(PAGE_TOP);
    Register_Free();
    TakeCommands();
    return 0;
}
