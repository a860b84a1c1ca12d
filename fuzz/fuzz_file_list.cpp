// The file list under any drive. The input is lines: "/path|time" is a clip that a search told,
// "+/path" a folder, ">/path" shows another folder, "?text" searches; all of it is also the head of
// a clip. Whatever comes, the list stays in order, its texts end, and what it holds is given back.
#include "a_fl_private.h"
#include "memory.h"
#include "netio.h"
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

static void TakeLine(const std::string& line)
{
    const size_t bar = std::min(line.find('|'), line.size());
    const std::string path = line.substr(0, bar);
    const std::string time = bar < line.size() ? line.substr(bar + 1) : "";
    switch (line[0]) {
    case '+': dirGet_tly(path.c_str() + 1, time.c_str(), FL_L_LIST); break;
    case '>': (void)FL_ChangeDirectory(FL_L_LIST, path.c_str() + 1); break;
    case '?': (void)FL_Find(FL_L_LIST, path.c_str() + 1, time.empty() ? 1 : -1); break;
    default: file_find_tly(path.c_str(), time.c_str(), FL_L_LIST); break;
    }
}

static void CheckList()
{
    int count = 0;
    const FL_LIST* before = nullptr;
    for (const FL_LIST* node = fl.list[0].head; node; before = node, node = node->next, count++) {
        const ELEMENT& e = node->file.element;
        Check(node->prev == before);
        Check(e.layer == fl.side[0].current_layer && e.layer <= ELEMENT_DEPTH);
        Check(e.name[0] && memchr(e.name, 0, sizeof e.name) && !strchr(e.name, '/'));
        Check(memchr(e.full_name, 0, sizeof e.full_name) && memchr(e.create_time, 0, 32));
        Check(!before || before->file.element.type != e.type ||
              strcmp(before->file.element.full_name, e.full_name) < 0);
    }
    Check(fl.list[0].tail == before && fl.list[0].count == count);
    Check(fl.now[0].folders + fl.now[0].files == count);
}

static void CheckHead(const uint8_t* data, size_t size)
{
    SFH_HEADER header;
    const bool is_taken = fl_take_sfh(data, size, &header);
    Check(is_taken == (size >= SFH_BYTES));
    Check(is_taken ? header.info_pair == data[5] : header.info_pair == 0);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static constexpr FL_TBL table = {{{.device = FL_DIRDATA_LOCAL_DRIVE}, {}}};
    const int used = UsedMemPtr;
    FL_Init_File();
    FL_Create(&table, 0);
    CheckHead(data, size);
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        if (end > at)
            TakeLine(text.substr(at, end - at));
        at = end + 1;
        CheckList();
    }
    FL_Create(nullptr, 0);
    char line[CMD_SIZE];
    while (Net_TakeQueued(line, sizeof line)) {
    }
    Check(UsedMemPtr == used);
    return 0;
}
