// The file of a menu macro: whatever stands in it, only commands come out, and no more than a
// register holds.
#include "menu_macro_private.h"
#include "text.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void CheckCommand(const char* line)
{
    const char* const end = strchr(line, '\n');
    Check(end && end[1] == '\0' && strlen(line) < size_t(CMD_SIZE));
    Check(BeginsWith(line, "put ") || BeginsWith(line, "default ") || BeginsWith(line, MM_PAUSE) ||
          BeginsWith(line, MM_LOCAL));
}

static void CheckEvent(const CURRENT_EVENT_DATA& event)
{
    Check(event.protcol_cnt >= 1 && event.protcol_cnt <= MENU_MACRO_COMMANDS);
    size_t bytes = 0;
    for (int n = 0; n < event.protcol_cnt; n++) {
        const char* const line = mm_event_command(event, n);
        CheckCommand(line);
        bytes += strlen(line) + 1;
        char shown[MM_ROW_DATA];
        Check(mm_event_get(1, n, event, shown, 0, sizeof shown) == 0);
    }
    Check(bytes == event.data_byte);
    Check(mm_event_pause(event) <= MENU_MACRO_INTERVAL_MAX);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MacroReader reader;
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        mm_read_line(reader, text.substr(at, end - at).c_str());
        at = end + 1;
    }
    int events = 0, commands = 0;
    for (const CURRENT_REGISTER_DATA* node = reader.reg.register_data; node; node = node->next) {
        CheckEvent(node->event_data);
        events++;
        commands += node->event_data.protcol_cnt;
    }
    Check(events <= MENU_MACRO_EVENTS && commands <= MENU_MACRO_LINES);
    Check(events == reader.events && commands == reader.reg.register_protcol_max);
    Check(memchr(reader.reg.name, '\0', sizeof reader.reg.name) != nullptr);
    mm_current_register_all_dele(reader.reg.register_data);
    return 0;
}
