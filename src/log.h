// log: the rolling text log for engineers, and the maintenance log that survives a restart.
// Every write opens, appends and closes, so that nothing is lost in a power failure. The system log
// is in syslog/xsyslog, the list that the operator sees in err.
#pragma once
#include <cstdarg>

enum : int {
    LOG_TRACE = 1, // command traffic
    LOG_LINK = 2,  // connections and hardware
    LOG_DETAIL = 3,
    LOG_LIFE = 5, // life-cycle events; from here on also to the system log
    LOG_ALWAYS = 9,
    LOG_FORCED = 65535,
};
enum : int {
    MOD_CALIBRATION = 10,
    MOD_GLOBAL = 11,
    MOD_START = 14,
    MOD_LINK = 15,
    MOD_PAGE = 16,
};
constexpr int LOG_FILE_SIZE = 1000000; // bytes at which a log is rotated

// Store the file name (null: none) and the rotation limit, enable all modules, write the start
// lines.
void Log_Init(const char* fname, int fsize);
void Log_SetLevel(int level); // messages below it are dropped
int Log_GetLevel();
int Log_SetModule(int module, int v); // -1 for a module below 0 or above 1024
int Log_GetModule(int module);        // 1 on, 0 off, -1 as above
void Log_SetAllModule(int v);
// Returns 0 on a write, 1 when dropped by level or for want of a file, 2 when dropped by module, -1
// when the file cannot be opened. A format of 4032 characters or more is replaced by a marker.
int Log_Output(int level, int module, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
// The raw line, without stamp and module test, into the same file with the same rotation.
int Log_Output2(int level, const char* text);
int get_filelength(const char* path); // bytes, -1 when it cannot be opened

// Format into the buffer that all logged texts share: cut at 4095 characters, a marker for a format
// that is too long by itself. Valid until the next logging call.
const char* Log_Format(const char* format, va_list ap) __attribute__((format(printf, 1, 0)));

// The maintenance log. 1 without a real disk, -1 when it cannot be opened, 0 on a write.
int SelfDiag_AddLog(const char* dev, const char* format, ...) __attribute__((format(printf, 2, 3)));
