// Paths, names and dates of file work.
#include "file_private.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

static constexpr char LOCAL_HOST[] = "MYHOST:";

const char* file_name_of(const char* path)
{
    if (const char* slash = strrchr(path, '/'))
        return slash + 1;
    const char* colon = strchr(path, ':');
    return colon ? colon + 1 : path;
}

// The reply is cut, never the name; a name longer than the line stands alone.
void file_set_text(FILEXFERLIST* item, const char* text)
{
    const char* name = file_name_of(item->src);
    const int room = std::max(0, TEXT_AND_NAME - int(strlen(name)));
    PrintText(item->mesg, "%s: %.*s", name, room, text);
}

bool file_is_local(const char* path)
{
    return BeginsWith(path, LOCAL_HOST);
}

const char* file_local_path(const char* path)
{
    return file_is_local(path) ? path + strlen(LOCAL_HOST) : path;
}

void file_set_ext(char (&path)[FILE_PATH_SIZE], const char* ext)
{
    const size_t name = size_t(file_name_of(path) - path);
    char* dot = strrchr(path + name, '.');
    if (!dot)
        dot = path + strlen(path);
    ktr_strncpy(dot, ext, size_t(path + sizeof path - dot));
}

bool file_is_macro_pair(const FILEXFERLIST* item)
{
    return (strstr(item->src, ".MMR") && strstr(item->dst, ".tmp")) ||
           (strstr(item->src, ".tmp") && strstr(item->dst, ".MMR"));
}

// "Wed Nov 25 09:20:08 2026": weekday, month, day, time, year at fixed places.
static constexpr char CTIME_PATTERN[] = "aaa aaa dd dd:dd:dd dddd";

bool file_is_ctime(const char* text)
{
    if (!text || strlen(text) != sizeof CTIME_PATTERN - 1)
        return false;
    for (int i = 0; text[i]; i++) {
        const char c = text[i];
        const bool is_letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        const bool is_digit = (c >= '0' && c <= '9') || c == ' ';
        switch (CTIME_PATTERN[i]) {
        case 'a':
            if (!is_letter)
                return false;
            break;
        case 'd':
            if (!is_digit)
                return false;
            break;
        default:
            if (c != CTIME_PATTERN[i])
                return false;
        }
    }
    return true;
}

void file_reduce_date(char (&dst)[24], const char* t)
{
    dst[0] = '\0';
    if (file_is_ctime(t))
        PrintText(dst, "%.3s.%.2s.%.4s %.5s", t + 4, t + 8, t + 20, t + 11);
}
