#include "command.h"
#include "page.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

char Cmd[CMD_SIZE];

uint32_t Hash(const char* text)
{
    uint32_t sum = 0;
    for (; *text; text++)
        sum += static_cast<unsigned char>(*text);
    return sum;
}

static const char* command_behind(const char* text, char separator)
{
    const char* at = strchr(text, separator);
    return at ? at + 1 : text + strlen(text);
}

const char* FindVarPointer(const char* text)
{
    return command_behind(text, '#');
}

char* FindSHPRowIDPointer(char* text)
{
    return const_cast<char*>(command_behind(text, ':'));
}

// Only the one blank that people type behind a separator is dropped; a second one is part of the
// value.
static int command_split(char* var, char** v, int vn, char separator, bool drop_blank)
{
    for (int i = 0; i < vn; i++)
        v[i] = nullptr;
    if (!var || vn < 1)
        return 0;

    v[0] = var;
    int count = 1;
    while (count < vn) {
        char* at = strchr(var, separator);
        if (!at)
            break;
        *at++ = '\0';
        if (drop_blank && *at == ' ')
            *at++ = '\0';
        v[count++] = var = at;
    }
    return count;
}

int SplitVars(char* var, char** v, int vn)
{
    return command_split(var, v, vn, ',', true);
}

int SplitCmds(char* var, char** v, int vn)
{
    return command_split(var, v, vn, '@', false);
}

int SplitSHPValues(char* var, char** v, int vn)
{
    return command_split(var, v, vn, ':', true);
}

// Append the first depth segments of the page's tree, each with its "@". The sub bank of an M/E is
// a subtree of its own, named after the main one.
static void command_append_tree(char* dst, int depth, size_t size)
{
    if (!GL_NowTree)
        return; // before the first page
    for (int i = 0; i < depth; i++) {
        if (!GL_NowTree[i])
            continue;
        ktr_strncat(dst, GL_NowTree[i], size);
        if (i == 0 && isNowPageME(0) == 2)
            ktr_strncat(dst, " SUB", size);
        ktr_strncat(dst, "@", size);
    }
}

// Expand "~" and "~1" to "~6" at the start of a template into dst and set *write to where the rest
// of the template goes: onto the last "@", so that "~" alone is a path without it. Returns the
// rest.
static const char* command_expand_tree(char* dst, const char* src, size_t size, char** write)
{
    *write = dst;
    if (*src != '~')
        return src;

    src++;
    int depth = PAGE_DEPTH;
    if (*src >= '1' && *src <= '6')
        depth = *src++ - '0';
    command_append_tree(dst, depth, size);
    *write = dst + strlen(dst);
    if (*write > dst && (*write)[-1] == '@')
        *--*write = '\0';
    return src;
}

void DecodeCommand(char* dst, const char* src, int dst_size)
{
    if (dst_size < 1)
        return;
    *dst = '\0';
    if (!src)
        return;

    const size_t size = size_t(dst_size);
    char* write;
    const char* rest = command_expand_tree(dst, src, size, &write);
    ktr_strncpy(write, rest, size - size_t(write - dst));
}

void DecodeCommandWithVar(char* dst, const char* src, const char* var, int dst_size)
{
    if (dst_size < 1)
        return;
    *dst = '\0';
    if (!src)
        return;

    char* write;
    src = command_expand_tree(dst, src, size_t(dst_size), &write);
    const char* const end = dst + dst_size - 1;
    for (; *src && write < end; src++) {
        if (*src != '$') {
            *write++ = *src;
            continue;
        }
        while (var && *var && write < end)
            *write++ = *var++; // used up by the first "$"
    }
    *write = '\0';
}

// Compares in place: a condition is read on every tally of its path.
int IsDisableCondition(const char* cond, const char* var)
{
    if (!cond)
        return 0;
    if (!var)
        var = "";

    const size_t var_length = strlen(var);
    int is_disabled = 0;
    for (;;) {
        const bool is_negated = *cond == '!';
        if (is_negated)
            cond++;
        const size_t length = strcspn(cond, ",");
        const bool is_equal = length == var_length && memcmp(cond, var, length) == 0;
        if (is_equal != is_negated)
            is_disabled = 1;
        cond += length;
        if (!*cond)
            return is_disabled;
        cond++;
        if (*cond == ' ')
            cond++;
    }
}

const char* Bool(int x)
{
    return x ? "true" : "false";
}

const char* ToggleBool(int x)
{
    return Bool(!x);
}

bool IsLocal(const char* cmd)
{
    return cmd && BeginsWith(cmd, "LOCAL");
}
