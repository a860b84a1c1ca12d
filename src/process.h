// process: child processes without losing signals, and the small file-system helpers around them.
// One child at a time is tracked in cpid; the SIGCHLD handler of main reaps only that one.
#pragma once
#include <cstddef>
#include <cstdio>

extern volatile int cpid; // the one tracked child, 0 none

// Run the words of cmd without a shell. Blocks until the child ends. Returns the wait status, -1
// for a null cmd or when no process can be made; a program that cannot be run exits with 255.
int ktr_system(const char* cmd);
// Replace this process by the words of cmd (no shell, no quoting but "..."; the first word is a
// path). Returns only on failure, with -1; a command with too many words or characters is refused,
// never cut.
int ktr_exec(const char* cmd);
// As ktr_system, without waiting: the child works beside the pass. Returns its id, -1 when it can't
// be run. The caller asks ktr_has_ended until it has, and no longer.
int ktr_start(const char* cmd);
// 1, with the wait status, when a child of ktr_start has ended (-1: somebody else has taken the
// status); 0 while it runs.
int ktr_has_ended(int child, int* status);
// A pipe to or from a child run by the shell; type "r" or "w". Null on failure. The table of
// streams is made at the first call and lives as long as the process: one live allocation.
FILE* ktr_popen(const char* cmd, const char* type);
// Close a stream of ktr_popen and wait. Returns the wait status, -1 for a stream it does not know.
int ktr_pclose(FILE* fp);
// Run cmd and copy its output line by line to file. -1 for a null argument or when either cannot be
// opened, otherwise the wait status.
int ktr_system_and_redirect(const char* cmd, const char* file);
// Run cmd through the shell (redirections, pipes). Refuses nothing itself: a text from outside that
// is to stand in cmd goes through IsShellSafe first. Returns the wait status or -1.
int ktr_shell(const char* cmd);
// 1 when the text holds only letters, digits, / . _ - : @ + and blanks (so quote it). Otherwise 0,
// and one log line.
int IsShellSafe(const char* text);
// A text from outside as one word of a command of the shell: as it stands, in quotation marks when
// it has blanks. Returns 1; 0 with dst empty when IsShellSafe refuses it or dst has no room.
int ShellWord(char* dst, size_t size, const char* text);

void WaitSec(int sec);         // blocks
int FileExist(const char* fn); // 1 when it can be stat-ed
int MakeDir(const char* dir);  // with its parents; 0 or -1
