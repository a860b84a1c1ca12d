// The parsers of values and the expansion of templates. The input is cut at NUL bytes into a
// template, a value and a condition; its first two bytes are the sizes.
#include "command.h"
#include "page.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

// The parts stand in order inside the text and hold no separator, but for the last when it had to
// keep the rest.
static void Split(int (*split)(char*, char**, int), std::string text, int vn, char separator)
{
    std::vector<char*> v(size_t(vn) + 1);
    const std::string whole = text;
    const int count = split(text.data(), v.data(), vn);
    Check(count <= vn && !v[size_t(vn)]);
    for (int i = 0; i < count; i++) {
        const char* part = v[size_t(i)];
        Check(part >= text.data() && part + strlen(part) <= text.data() + text.size());
        Check(i == 0 || part > v[size_t(i) - 1]);
        Check(i == vn - 1 || !strchr(part, separator));
    }
    if (count == 1)
        Check(whole.c_str() == std::string(v[0]));
}

static void Decode(const std::string& src, const std::string& var, int size)
{
    std::vector<char> dst(size_t(size) + 1, '?');
    DecodeCommandWithVar(dst.data(), src.c_str(), var.c_str(), size);
    Check(dst[size_t(size)] == '?' &&
          (size == 0 || strnlen(dst.data(), size_t(size)) < size_t(size)));
    if (strchr(src.c_str(), '$'))
        return;
    std::vector<char> plain(size_t(size) + 1, '?');
    DecodeCommand(plain.data(), src.c_str(), size);
    Check(size == 0 || strcmp(plain.data(), dst.data()) == 0);
}

static std::string Next(const uint8_t** data, size_t* size)
{
    const size_t length = strnlen(reinterpret_cast<const char*>(*data), *size);
    std::string text(reinterpret_cast<const char*>(*data), length);
    const size_t used = length < *size ? length + 1 : length;
    *data += used;
    *size -= used;
    return text;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const char* const tree[PAGE_DEPTH] = {"M/E-1", nullptr, "Type"};
    if (size < 2)
        return 0;
    GL_NowTree = tree;
    GL_NowPage = data[0] & 1 ? 0x15510000 : 0x11510000;
    const int dst_size = data[0];
    const int vn = data[1] % 12;
    data += 2;
    size -= 2;
    const std::string src = Next(&data, &size);
    const std::string var = Next(&data, &size);
    const std::string cond = Next(&data, &size);

    Decode(src, var, dst_size);
    Split(SplitVars, var, vn, ',');
    Split(SplitCmds, var, vn, '@');
    Split(SplitSHPValues, var, vn, ':');
    Check(FindVarPointer(var.c_str()) <= var.c_str() + var.size());
    const int disabled = IsDisableCondition(cond.c_str(), var.c_str());
    Check(disabled == 0 || disabled == 1);
    return 0;
}
