// Lines of an ini file, as the file reader hands them on.
#include "config.h"
#include "global.h"
#include "text.h"
#include <cassert>
#include <cstdint>
#include <cstdio>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The echo would drown the fuzzer's own report.
    if (!freopen("/dev/null", "w", stdout))
        return 0;
    IniBegin();
    while (size > 0) {
        char line[257];
        const void* end = memchr(data, '\n', size);
        size_t n = end ? size_t(static_cast<const uint8_t*>(end) - data) + 1 : size;
        if (n > sizeof line - 1)
            n = sizeof line - 1;
        memcpy(line, data, n);
        line[n] = '\0';
        IniLine(line);
        data += n;
        size -= n;
    }
    assert(memchr(GL_ServerAddress, '\0', sizeof GL_ServerAddress));
    assert(memchr(GL_RegistDataPath, '\0', sizeof GL_RegistDataPath));
    assert(memchr(GL_TempFile, '\0', sizeof GL_TempFile));
    return 0;
}
