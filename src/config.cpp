#include "config.h"
#include "global.h"
#include "log.h"
#include "loop_log.h"
#include "text.h"
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr char INI_FILE[] = "tm3.ini";
constexpr int INI_LINE = 256; // characters a line; what is longer is not read

enum Kind {
    TEXT,  // target: char[size]
    INT,   // target: int
    LEVEL, // goes to the log
    DEBUG, // target: int, and it allows the DME_INT keys behind it
    DME_INT,
};

struct IniKey {
    const char* key = nullptr;
    Kind kind = INT;
    void* target = nullptr;
    size_t size = 0;
    const char* echo = nullptr; // prints the value, a %s for TEXT and a %d for the rest
};

template <size_t N> constexpr IniKey TextKey(const char* key, char (&target)[N], const char* echo)
{
    return {.key = key, .kind = TEXT, .target = target, .size = N, .echo = echo};
}

constexpr IniKey IntKey(const char* key, int& target, const char* echo, Kind kind = INT)
{
    return {.key = key, .kind = kind, .target = &target, .size = sizeof target, .echo = echo};
}
} // namespace

static int dme_debug_mode = 0; // from IniBegin on: the debug keys of the effects units count

#define ECHO_TEXT(name) "tm3.ini: " name " = [%s]\n"
#define ECHO_INT(name) "tm3.ini: " name " = [%d]\n"
static constexpr IniKey ini_keys[] = {
    TextKey("I/FAddress", GL_ServerAddress, ECHO_TEXT("GL_ServerAddress")),
    IntKey("ChatteringTime", GL_ChatteringTime, ECHO_INT("GL_ChatteringTime")),
    TextKey("RegistDataPath", GL_RegistDataPath, ECHO_TEXT("GL_RegistDataPath")),
    TextKey("TempFile", GL_TempFile, ECHO_TEXT("GL_TempFile")),
    IntKey("DebugMode", GL_DebugMode, ECHO_INT("GL_DebugMode")),
    TextKey("LogFileName", GL_LogFileName, ECHO_TEXT("GL_LogFileName")),
    IntKey("LoopCounter", GL_LoopCounter, ECHO_INT("GL_LoopCounter")),
    IntKey("LoopLog", GL_LoopLog, ECHO_INT("GL_LoopLog")),
    IntKey("NextVersion", GL_NextVersion, ECHO_INT("GL_NextVersion")),
    {.key = "LogLevel", .kind = LEVEL, .echo = ECHO_INT("LogLevel")},
    IntKey("DMEDebugMode", dme_debug_mode, ECHO_INT("DMEDebugMode"), DEBUG),
    IntKey("DMEDebugSdiIF1", GL_DmeSdiIF[0], ECHO_INT("GL_DmeSdiIF[0]"), DME_INT),
    IntKey("DMEDebugSdiIF2", GL_DmeSdiIF[1], ECHO_INT("GL_DmeSdiIF[1]"), DME_INT),
    IntKey("DMEDebugModel1", GL_DmeModel[0], ECHO_INT("GL_DmeModel[0]"), DME_INT),
    IntKey("DMEDebugModel2", GL_DmeModel[1], ECHO_INT("GL_DmeModel[1]"), DME_INT),
    IntKey("DMEDebugRefCH", SYS_DMEReference, ECHO_INT("SYS_DMEReference"), DME_INT),
    IntKey("InitialReadPopupDisable", GL_InitialReadPopupDisable,
           ECHO_INT("GL_InitialReadPopupDisable")),
    IntKey("ContinuousLoad", GL_ContinuousLoad, ECHO_INT("GL_ContinuousLoad")),
    IntKey("ELCMode", GL_ELCMode, ECHO_INT("GL_ELCMode")),
    IntKey("UtilCommand", GL_UtilCommand, ECHO_INT("GL_UtilCommand")),
    IntKey("EmergencyMode", GL_EmergencyMode, ECHO_INT("GL_EmergencyMode")),
    IntKey("ClipStoreSupportMode", GL_ClipStoreSupportMode, ECHO_INT("GL_ClipStoreSupportMode")),
    IntKey("ClipStoreDebugMode", GL_ClipStoreDebugMode, ECHO_INT("GL_ClipStoreDebugMode")),
    TextKey("ClipStoreDebugAddress", GL_ClipStoreDebugAddress,
            ECHO_TEXT("GL_ClipStoreDebugAddress")),
};
#undef ECHO_TEXT
#undef ECHO_INT

static int ini_number(const char* value)
{
    const long n = strtol(value, nullptr, 10);
    return n > INT_MAX ? INT_MAX : n < INT_MIN ? INT_MIN : int(n);
}

static void ini_apply(const IniKey& row, const char* value)
{
    if (row.kind == TEXT) {
        ktr_strncpy(static_cast<char*>(row.target), value, row.size);
        printf(row.echo, static_cast<const char*>(row.target));
        return;
    }
    if (row.kind == DME_INT && !dme_debug_mode)
        return;
    const int n = ini_number(value);
    if (row.kind == LEVEL)
        Log_SetLevel(n);
    else
        *static_cast<int*>(row.target) = n;
    printf(row.echo, n);
}

void IniBegin()
{
    dme_debug_mode = 0;
}

void IniLine(char* line)
{
    if (line[0] == '#')
        return;
    line[strcspn(line, "\r\n")] = '\0';
    // A key that stands alone says nothing about its value: the variable stays as it is.
    char* value = strchr(line, '=');
    if (!value)
        return;
    *value++ = '\0';
    for (const IniKey& row : ini_keys) {
        if (strcmp(line, row.key) == 0)
            return ini_apply(row, value);
    }
}

static void ini_skip_rest(FILE* fp)
{
    for (int c = fgetc(fp); c != EOF && c != '\n';)
        c = fgetc(fp);
}

int LoadIniFile()
{
    CopyText(GL_TempFile, "/var/tmp/__tm3__.tmp");
    CopyText(GL_RegistDataPath, "/mnt/data/");
    IniBegin();
    FILE* fp = fopen(INI_FILE, "r");
    if (!fp) {
        printf("Error: Can't open %s\n", INI_FILE);
        return -1;
    }
    char line[INI_LINE + 1];
    while (fgets(line, sizeof line, fp)) {
        if (strlen(line) == INI_LINE && line[INI_LINE - 1] != '\n')
            ini_skip_rest(fp);
        IniLine(line);
    }
    fclose(fp);
    return 0;
}
