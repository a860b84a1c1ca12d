// loop_log: what the passes of the loop take, told in the log while the ini file asks for it. On a
// machine that does other things besides, the clock tells little of what a pass costs: the time of
// the processor is told beside it, and of a pass that takes too much of it, by steps.
#pragma once

// Seconds between two lines of the log about the passes, from the ini file; 0: none.
extern int GL_LoopLog;

enum LoopStep : int {
    STEP_SELFDIAG,
    STEP_RECEIVE,
    STEP_SEND,
    STEP_EVENT, // the touch panel and the display
    STEP_PAGE,
    STEP_REDRAW,
    STEP_SAVER,
    STEP_READ, // the schedule of the initial read and what else ends a pass
    STEPS
};

// --- For the loop; without GL_LoopLog they do nothing ---
void LoopLog_Begin();            // of a pass, after the wait for it
void LoopLog_Step(LoopStep now); // this step has ended
// busy_ms: of the pass, by the clock; elapsed_ms: since the one before.
void LoopLog_End(int elapsed_ms, int busy_ms);
// As at process start.
void LoopLog_Reset();
