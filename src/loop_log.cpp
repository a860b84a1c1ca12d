#include "loop_log.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "page.h"
#include "text.h"
#include "types.h"
#include <ctime>
#include <sys/resource.h>
#include "safeguards.h"

int GL_LoopLog = 0;

namespace
{
constexpr int LONG_MS = 10; // a pass is to take no longer
constexpr long LONG_US = LONG_MS * 1000;
constexpr const char* step_names[] = {"self-diagnosis", "receive", "send",  "event",
                                      "page change",    "redraw",  "saver", "initial read"};
static_assert(sizeof step_names / sizeof *step_names == STEPS);

// The passes since the last line about them.
struct Record {
    int since_ms = 0;
    uint32_t passes = 0;
    uint32_t over_ms = 0; // so many took longer than a pass is to take, by the clock
    uint32_t over_us = 0; // and by the processor
    int longest_ms = 0;
    uint32_t longest_ms_page = 0; // that was shown at the end of it
    long longest_us = 0;
    uint32_t longest_us_page = 0;
};
} // namespace

static struct {
    Record record;
    long begun_us = 0; // of this pass
    long last_us = 0;  // the end of the step before
    long step_us[STEPS] = {};
    long faults = 0; // of memory, until this pass
} log_of;            // while GL_LoopLog is set

void LoopLog_Reset()
{
    log_of = {};
}

// Processor time of this process, without that of its children.
static long processor_us()
{
    timespec t = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return long(t.tv_sec % 1000) * 1000000 + t.tv_nsec / 1000;
}

// Pages of memory that the process had to ask for: many of them in a pass are a child's doing,
// which shares all of them, or that of memory given back and taken anew.
static long memory_faults()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt + usage.ru_majflt;
}

void LoopLog_Begin()
{
    if (!GL_LoopLog)
        return;
    log_of.faults = memory_faults();
    log_of.begun_us = log_of.last_us = processor_us();
}

void LoopLog_Step(LoopStep now)
{
    if (!GL_LoopLog)
        return;
    const long us = processor_us();
    log_of.step_us[now] = us - log_of.last_us;
    log_of.last_us = us;
}

static void tell_steps(long busy_us)
{
    char steps[256] = "";
    char one[48];
    for (int i = 0; i < STEPS; i++) {
        PrintText(one, ", %s %ld", step_names[i], log_of.step_us[i]);
        ktr_strncat(steps, one, sizeof steps);
    }
    Log_Output(LOG_ALWAYS, MOD_START, "LONG PASS: %ld us of processor at %08X, %ld faults%s\n",
               busy_us, unsigned(GL_NowPage), memory_faults() - log_of.faults, steps);
}

static void tell_passes(const Record& r)
{
    Log_Output(LOG_ALWAYS, MOD_START,
               "PASSES: %u, longest %d ms at %08X and %ld us of processor at %08X, over %d ms %u "
               "and %u, %d blocks\n",
               unsigned(r.passes), r.longest_ms, unsigned(r.longest_ms_page), r.longest_us,
               unsigned(r.longest_us_page), LONG_MS, unsigned(r.over_ms), unsigned(r.over_us),
               UsedMemPtr);
}

void LoopLog_End(int elapsed_ms, int busy_ms)
{
    if (!GL_LoopLog)
        return;
    const long busy_us = log_of.last_us - log_of.begun_us;
    Record& r = log_of.record;
    r.passes++;
    r.over_ms += busy_ms > LONG_MS;
    r.over_us += busy_us > LONG_US;
    if (busy_us > LONG_US)
        tell_steps(busy_us);
    if (busy_ms > r.longest_ms) {
        r.longest_ms = busy_ms;
        r.longest_ms_page = GL_NowPage;
    }
    if (busy_us > r.longest_us) {
        r.longest_us = busy_us;
        r.longest_us_page = GL_NowPage;
    }
    r.since_ms += elapsed_ms;
    if (r.since_ms / 1000 < GL_LoopLog)
        return;
    tell_passes(r);
    r = {};
}
