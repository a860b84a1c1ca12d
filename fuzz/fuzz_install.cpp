// An install.cfg: whatever stands in it, only known steps come out, each with its value, none of
// them cut.
#include "install.h"
#include "text.h"
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static bool is_trimmed(const char* value)
{
    const size_t n = strlen(value);
    return !strpbrk(value, "\t\r\n") && (n == 0 || (value[0] != ' ' && value[n - 1] != ' '));
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static std::string path;
    if (path.empty()) {
        char name[] = "/tmp/fuzz_install.XXXXXX";
        Check(mkdtemp(name) != nullptr);
        path = std::string(name) + "/install.cfg";
    }
    FILE* fp = fopen(path.c_str(), "w");
    Check(fp && fwrite(data, 1, size, fp) == size);
    fclose(fp);
    cfg_info* info = parse_cfgfile(path.c_str(), TARGET_SWR);
    if (!info)
        return 0;
    Check(g_list_length(info->command) == g_list_length(info->rest));
    Check(is_trimmed(info->title->str) && is_trimmed(info->version->str));
    for (const GList *step = info->command, *rest = info->rest; step;
         step = step->next, rest = rest->next) {
        const char* const word = static_cast<const char*>(step->data);
        std::string value = static_cast<const char*>(rest->data);
        Check(strlen(word) >= 2 && strspn(word, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                "abcdefghijklmnopqrstuvwxyz_") == strlen(word));
        Check(is_trimmed(value.c_str()) && value.size() < size_t(INSTALL_LINE));
    }
    clear_cfg_info(info);
    return 0;
}
