// xsyslog: the system log for a central collector.
#pragma once

// ident is copied. A negative facility means debug: lines go to standard error with the process id;
// returns 1 and the library is not called. Otherwise 0.
int xsys_openlog(const char* ident, int option, int facility);
// "tag [kind] message". Opens the log with the process name and facility 128 when nobody has.
void xsys_tagsyslog(int priority, const char* tag, const char* kind, const char* format, ...)
    __attribute__((format(printf, 4, 5)));
void xsys_closelog();
