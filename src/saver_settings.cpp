// The settings of the screen saver in a file of this unit: lines of "Key=value", as in the ini
// file.
#include "safe_file.h"
#include "saver.h"
#include "text.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr char FILE_NAME[] = "/mnt/data/.screensaver";
constexpr char NAME_KEY[] = "Name"; // with its number, from 0
constexpr char FOLDER_KEY[] = "Folder";

struct Number {
    const char* key;
    int* value;
    int min;
    int max;
};
constexpr Number numbers[] = {
    {"Pattern", &GL_ScreenSaverPTN_Mode, 0, SAVER_PATTERNS},
    {"Speed", &GL_ScreenSaverVariable_speed, 0, SAVER_SPEEDS - 1},
    {"Hold", &GL_ScreenSaverPath_Time, 1, SAVER_HOLD_MAX_S},
};
} // namespace

static void take_name(const char* number, const char* value)
{
    char* end;
    const long n = strtol(number, &end, 10);
    if (end != number && !*end && n >= 0 && n < SAVER_NAMES)
        CopyText(GL_Scr_disp_name[n], value);
}

static void take_line(const char* key, const char* value)
{
    for (const Number& number : numbers) {
        if (strcmp(key, number.key) != 0)
            continue;
        char* end;
        const long n = strtol(value, &end, 10);
        if (end != value && !*end && n >= number.min && n <= number.max)
            *number.value = int(n);
    }
    if (strcmp(key, FOLDER_KEY) == 0 && *value)
        CopyText(GL_Scr_disp_ImagePath, value);
    if (BeginsWith(key, NAME_KEY))
        take_name(key + sizeof NAME_KEY - 1, value);
}

void Saver_LoadSettings()
{
    FILE* fp = fopen(FILE_NAME, "r");
    if (!fp)
        return; // nothing has been changed yet
    char line[256];
    while (fgets(line, sizeof line, fp)) {
        line[strcspn(line, "\r\n")] = '\0';
        char* equals = strchr(line, '=');
        if (!equals)
            continue;
        *equals = '\0';
        take_line(line, equals + 1);
    }
    fclose(fp);
}

static void write_settings(FILE* fp)
{
    for (const Number& number : numbers)
        fprintf(fp, "%s=%d\n", number.key, *number.value);
    fprintf(fp, "%s=%s\n", FOLDER_KEY, GL_Scr_disp_ImagePath);
    for (int n = 0; n < SAVER_NAMES; n++)
        fprintf(fp, "%s%d=%s\n", NAME_KEY, n, GL_Scr_disp_name[n]);
}

int Saver_SaveSettings()
{
    SafeFile file;
    if (SafeFile_Open(file, FILE_NAME) != 0)
        return -1;
    write_settings(file.fp);
    return SafeFile_Commit(file);
}
