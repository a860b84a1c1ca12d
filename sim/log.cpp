#include "log.h"
#include "text.h"
#include <cstdarg>
#include <cstdio>
#include <ctime>

static constexpr size_t LOG_BYTES = 2048; // of one line; the rest is of no use to anybody

static struct {
    FILE* file = nullptr; // null: no log file
    bool echo = true;
} lg; // from start to end

static void log_write(const std::string& line)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local = {};
    localtime_r(&now.tv_sec, &local);
    const std::string stamp = Text_Format("%02d:%02d:%02d.%03d", local.tm_hour, local.tm_min,
                                          local.tm_sec, int(now.tv_nsec / 1000000));
    for (FILE* out : {lg.file, lg.echo ? stdout : nullptr})
        if (out)
            fprintf(out, "%s %s\n", stamp.c_str(), line.c_str());
}

bool Log_Open(const char* file)
{
    lg.file = fopen(file, "w");
    if (!lg.file)
        return false;
    setvbuf(lg.file, nullptr, _IOLBF, 1 << 16); // tests read the file while it grows
    return true;
}

void Log_SetEcho(bool on)
{
    lg.echo = on;
}

void Log_Traffic(int client, char direction, std::string_view text)
{
    if (!lg.file && !lg.echo)
        return;
    log_write(Text_Format("#%d %c ", client, direction) + Text_Escape(text, LOG_BYTES));
}

void Log_Note(const char* format, ...)
{
    char text[512];
    va_list args;
    va_start(args, format);
    vsnprintf(text, sizeof text, format, args);
    va_end(args);
    log_write(std::string("- ") + text);
}
