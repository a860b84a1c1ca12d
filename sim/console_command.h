// console_command: what the files of the console share: the row of a command and the reading of its
// arguments.
#pragma once
#include <deque>
#include <span>
#include <string>
#include <vector>

struct ConsoleLine {
    std::string text;
    int number = 0; // in the script
};

// A source of commands and where it stands.
struct Runner {
    const char* name = "";
    bool is_script = false; // a mistake or a line that doesn't come ends the program
    std::deque<ConsoleLine> lines;
    int line_number = 0; // of the line that is being run
    int64_t wait_until_ms = 0;
    std::string expected; // pattern; empty: not waiting for a line
    int64_t expect_until_ms = 0;
    int64_t heard = 0; // number of the first client line that "expect" has not looked at
};

struct Command {
    const char* word = "";
    const char* arguments = "";
    const char* help = "";
    bool (*func)(Runner& runner, const std::string& rest) = nullptr; // false: wrong arguments
};

bool Console_OnOff(const std::string& text, bool* on);
bool Console_Number(const std::string& text, long from, long to, long* number);

extern const std::span<const Command> console_effect_commands;   // regions and effects
extern const std::span<const Command> console_register_commands; // stored registers
extern const std::span<const Command> console_file_commands;     // files, hub, frame memory
extern const std::span<const Command> console_macro_commands;    // macros at work
extern const std::span<const Command> console_setup_commands;    // what the installation is made of
extern const std::span<const Command> console_diag_commands;     // the health of the units
