#include "text.h"
#include <cctype>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <strings.h>

#include "safeguards.h"

namespace
{
// What a name may not hold, besides control characters and bytes above 126. Every list has the
// separators of paths, command values and drive prefixes. A file name also loses what a shell could
// act on, so that a name which went through StrFileName always passes IsShellSafe, and the dot, so
// that the extension is the program's own.
#define NAME_SEPARATORS "\\/:,;*?\"<>|"
constexpr char FILE_UNSAFE[] = NAME_SEPARATORS " .!#$%&'()=@[]^`{}~";
constexpr char FAT_UNSAFE[] = NAME_SEPARATORS ".+=[]";  // blanks are welcome on a stick
constexpr char REG_UNSAFE[] = NAME_SEPARATORS " .#'@~"; // part of file names on the switcher
constexpr char SOURCE_UNSAFE[] = "\\:,;\"#@";           // shown and sent, never a file
#undef NAME_SEPARATORS
} // namespace

static char NumBuf[16]; // NumStr's result

char* ktr_strncpy(char* dst, const char* src, size_t len)
{
    if (len == 0)
        return dst;
    const size_t n = src ? strnlen(src, len - 1) : 0;
    if (n > 0)
        memmove(dst, src, n); // callers shift a text inside its own buffer
    dst[n] = '\0';
    dst[len - 1] = '\0';
    return dst;
}

char* ktr_strncat(char* dst, const char* src, size_t len)
{
    if (len == 0)
        return dst;
    const size_t used = strnlen(dst, len - 1);
    ktr_strncpy(dst + used, src, len - used);
    return dst;
}

char* strncpy_secu(char* dst, const char* src, size_t dst_size, size_t n)
{
    return ktr_strncpy(dst, src, n < dst_size ? n + 1 : dst_size);
}

char* strncpy_close(char* dst, const char* src, size_t n)
{
    return ktr_strncpy(dst, src, n + 1);
}

bool BeginsWith(const char* text, const char* prefix)
{
    return strncmp(text, prefix, strlen(prefix)) == 0;
}

static int text_make_name(char* str, const char* unsafe)
{
    if (!str)
        return 0;
    char* p = str;
    for (; *p; p++) {
        if (iscntrl(uint8_t(*p)))
            break;
        if (uint8_t(*p) > 126 || strchr(unsafe, *p))
            *p = '_';
    }
    *p = '\0';
    return str[0] != '\0';
}

int StrFileName(char* str)
{
    return text_make_name(str, FILE_UNSAFE);
}

int StrFatFileName(char* str)
{
    return text_make_name(str, FAT_UNSAFE);
}

int StrRegName(char* str)
{
    return text_make_name(str, REG_UNSAFE);
}

int StrSourceName(char* str)
{
    return text_make_name(str, SOURCE_UNSAFE);
}

void StrUpr(char* str)
{
    for (; str && *str; str++)
        *str = char(toupper(uint8_t(*str)));
}

void StrLwr(char* str)
{
    for (; str && *str; str++)
        *str = char(tolower(uint8_t(*str)));
}

const char* StrIStr(const char* text, const char* part)
{
    return strcasestr(text ? text : "", part ? part : "");
}

int StrICmp(const char* a, const char* b)
{
    return strcasecmp(a ? a : "", b ? b : "");
}

int StrNICmp(const char* a, const char* b, size_t n)
{
    return strncasecmp(a ? a : "", b ? b : "", n);
}

const char* NumStr(int n)
{
    *std::to_chars(NumBuf, NumBuf + sizeof NumBuf - 1, n).ptr = '\0'; // any int fits
    return NumBuf;
}
