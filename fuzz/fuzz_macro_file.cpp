// A macro's file: whatever stands in it, the list is linked both ways and within its limits, and
// what is stored reads back as the same list and is stored as the same bytes.
#include "macro_file.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

static std::string path;

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void CheckLinks(const MacroEventList& list)
{
    int n = 0;
    const MacroEvent* last = nullptr;
    for (const MacroEvent* e = list.pHead; e; last = e, e = e->pNext, n++)
        Check(e->pPrev == last && strlen(e->Data[0]) < MACRO_VALUE_SIZE &&
              (MacroEvent_IsComment(*e) || get_param_count(e->Symbol) > 0));
    Check(last == list.pTail && n == list.count && n <= MACRO_EVENTS);
}

static std::string Store(const MacroEventList& list)
{
    Check(MacroFile_Write(path.c_str(), list) == 0);
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (path.empty()) {
        char name[] = "/tmp/fuzz_macro.XXXXXX";
        Check(mkdtemp(name) != nullptr);
        path = std::string(name) + "/a.PMR";
    }
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(data), long(size));
    MacroEventList list, again;
    Check(MacroFile_Read(path.c_str(), list) == 0);
    CheckLinks(list);
    if (*list.MacroFileName) {
        const std::string stored = Store(list);
        Check(MacroFile_Read(path.c_str(), again) == 0 && again.count == list.count);
        CheckLinks(again);
        Check(Store(again) == stored);
    }
    MacroList_Clear(list);
    MacroList_Clear(again);
    return 0;
}
