// process: child processes without losing signals, and the small file-system helpers around them.
// One child at a time is tracked in cpid; the SIGCHLD handler of main reaps only that one.
#pragma once
#include <cstdio>

extern volatile int cpid; // the one tracked child, 0 none

// Run the words of cmd without a shell. Blocks until the child ends. Returns the wait status, -1 for a null cmd or
// when no process can be made.
int ktr_system(const char* cmd);
// Replace this process by the words of cmd (no shell, no quoting but "..."). Returns only on failure, with -1.
int ktr_exec(const char* cmd);
// A pipe to or from a child run by the shell; type "r" or "w". Null on failure.
FILE* ktr_popen(const char* cmd, const char* type);
// Close a stream of ktr_popen and wait. Returns the wait status, -1 for a stream it does not know.
int ktr_pclose(FILE* fp);
// Run cmd and copy its output line by line to file. -1 for a null argument or when either cannot be opened,
// otherwise the wait status.
int ktr_system_and_redirect(const char* cmd, const char* file);
// Run cmd through the shell (redirections, pipes). Refuses nothing itself: a text from outside that is to stand in
// cmd goes through IsShellSafe first. Returns the wait status or -1.
int ktr_shell(const char* cmd);
// 1 when the text holds only letters, digits, / . _ - : @ + and blanks. Otherwise 0 and one log line.
int IsShellSafe(const char* text);

void WaitSec(int sec);                // blocks
int FileExist(const char* fn);        // 1 when it can be stat-ed
int MakeDir(const char* dir);         // with its parents; 0 or -1
