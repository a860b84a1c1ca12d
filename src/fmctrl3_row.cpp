// What the hub says of an element, in one row.
#include "fmctrl3_private.h"
#include "month.h"
#include "tally_value.h"
#include "text.h"
#include <cctype>
#include <cstdio>

#include "safeguards.h"

enum : int { // values of a clip
    AT_FRAMES,
    AT_PAIR,
    AT_FORMAT4K,
    AT_FORMAT,
    AT_TIME,
    AT_STATUS,
    AT_THUMBNAIL,
    FILE_VALUES
};

void FMCtrl3_CopyPath(char* s1, const char* s2, int n)
{
    constexpr size_t EXT = 4;
    const size_t length = strlen(s2);
    const bool has_ext = length >= EXT && Same(s2 + length - EXT, ".SFH");
    strncpy_secu(s1, s2, size_t(n), has_ext ? length - EXT : length);
}

void convert_create_time_format(const char* text, char* dst, size_t size)
{
    char year[5] = "", month[3] = "", day[3] = "", time[6] = "";
    dst[0] = '\0';
    if (sscanf(text, "%4[0-9]-%2[0-9]-%2[0-9] %5[0-9:]", year, month, day, time) < 4)
        return;
    const int number = Decimal(month);
    if (number >= 1 && number <= 12)
        (void)snprintf(dst, size, "%s %s.%s %s", year, Month_Name(number), day, time);
}

// The path's last word is the name; false when there are too many words, or one is too long, or is
// nothing but dots and blanks: that may be the folder itself, or the one above.
static bool read_path(const char* path, ELEMENT* e)
{
    constexpr int WORDS = ELEMENT_DEPTH + 2; // the root and the name
    const char* word = path;
    for (int n = 0; n < WORDS; n++) {
        const size_t length = strcspn(word, "/");
        const bool is_last = word[length] == '\0';
        const size_t room = is_last ? ELEMENT_NAME_SIZE : ELEMENT_FOLDER_SIZE;
        if (strspn(word, ". ") >= length || length >= room)
            return false;
        if (n == 0 &&
            (is_last || length != strlen(ELEMENT_ROOT) || !BeginsWith(word, ELEMENT_ROOT)))
            return false;
        if (is_last) {
            CopyText(e->name, word);
            e->layer = n - 1;
            return true;
        }
        if (n > 0 && n <= ELEMENT_DEPTH)
            strncpy_secu(e->path[n - 1], word, sizeof e->path[0], length);
        word += length + 1;
    }
    return false;
}

static bool join_path(ELEMENT* e)
{
    PrintText(e->full_path, "/%s", ELEMENT_ROOT);
    for (int i = 0; i < e->layer; i++) {
        AppendText(e->full_path, "/");
        AppendText(e->full_path, e->path[i]);
    }
    return PrintText(e->full_name, "%s/%s", e->full_path, e->name) < int(sizeof e->full_name);
}

bool clip_read_path(const char* row_path, ELEMENT* element)
{
    char path[CMD_SIZE];
    FMCtrl3_CopyPath(path, row_path, sizeof path);
    return read_path(path, element) && join_path(element);
}

int clip_frames(const char* text)
{
    return int(NumberIn(text, 0, ELEMENT_FRAMES_MAX));
}

static bool read_values(const char* values, ELEMENT* e)
{
    Parts p;
    if (e->type == ELEMENT_TYPE_FOLDER) {
        e->exist = Decimal(values);
        return !Same(values, ",");
    }
    if (SplitValue(p, values, VALUE_PARTS) != FILE_VALUES)
        return false;
    e->duration = clip_frames(p.v[AT_FRAMES]);
    e->is_pair = Decimal(p.v[AT_PAIR]);
    e->format4k = Decimal(p.v[AT_FORMAT4K]);
    e->format = Decimal(p.v[AT_FORMAT]);
    convert_create_time_format(p.v[AT_TIME], e->create_time, sizeof e->create_time);
    e->exist = Decimal(p.v[AT_STATUS]);
    e->thumbnail = Decimal(p.v[AT_THUMBNAIL]);
    return true;
}

int FMCtrl3_ReadRow(const char* row, int type, ELEMENT* element)
{
    char text[CMD_SIZE];
    if (strlen(row) >= sizeof text)
        return -1;
    CopyText(text, row);
    char* const values = FindSHPRowIDPointer(text);
    if (values == text || values[-1] != ':')
        return -1;
    values[-1] = '\0';
    ELEMENT e = {.type = type};
    if (!clip_read_path(text, &e) || !read_values(values, &e))
        return -1;
    *element = e;
    return 0;
}
