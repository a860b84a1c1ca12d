#include "xsyslog.h"
#include "text.h"
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <syslog.h>
#include <unistd.h>

#include "safeguards.h"

namespace
{
constexpr int DEFAULT_FACILITY = 128; // the first of the local ones
}

static char progname[64] = "";    // the library keeps the pointer
static int xsys_debug = 0;        // 1: lines go to standard error
static bool xsys_is_open = false; // by whatever caller

int xsys_openlog(const char* ident, int option, int facility)
{
    CopyText(progname, ident);
    xsys_is_open = true;
    xsys_debug = facility < 0;
    if (xsys_debug)
        return 1;
    openlog(progname, option, facility);
    return 0;
}

void xsys_tagsyslog(int priority, const char* tag, const char* kind, const char* format, ...)
{
    char* text = nullptr;
    va_list ap;
    va_start(ap, format);
    const int length = vasprintf(&text, format, ap);
    va_end(ap);
    if (length < 0)
        return;

    if (!xsys_is_open)
        xsys_openlog(program_invocation_short_name, 0, DEFAULT_FACILITY);
    if (xsys_debug)
        fprintf(stderr, "%s[%d]: %s [%s] %s\n", progname, int(getpid()), tag, kind, text);
    else
        syslog(priority, "%s [%s] %s", tag, kind, text);
    free(text); // the library's own allocation, never counted
}

void xsys_closelog()
{
    if (xsys_is_open && !xsys_debug)
        closelog();
    xsys_is_open = false;
    xsys_debug = 0;
}
