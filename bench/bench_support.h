// bench_support: what the benchmark programs share: the screen without a display, with the
// product's fonts and bitmaps, and times that mean the same on every machine: processor time in
// copies of the screen's memory, measured in the same run; of one is counted at least three
// quarters of what the processor takes to copy it word by word.
#pragma once

// A row is one thing that is measured.
struct BenchCase {
    const char* name = nullptr;
    void (*once)() = nullptr;  // what is done again and again
    double limit_copies = 0.0; // above it --check fails; 0 is no limit
    double per = 1.0;          // how many things once() does; the figure is for one
};

// A 32-bit screen on SDL's dummy driver, fonts and bitmaps from the run folder, which becomes the
// working directory. Ends the program when there is none.
void Bench_Screen();

// Run the cases: median of nine runs each, the runs of all cases mixed. Prints a table, or with
// --check only what is above its limit in three rounds one after the other; then it returns 1.
// Other arguments go to the benchmark library.
int Bench_Main(int argc, char** argv, const BenchCase* cases, int count);

template <int COUNT> int Bench_Main(int argc, char** argv, const BenchCase (&cases)[COUNT])
{
    return Bench_Main(argc, argv, cases, COUNT);
}
