// The commands that make a unit ill, and well again.
#include "console_command.h"
#include "diag.h"
#include "text.h"

// What a word of the console is in a report; empty for none of them.
static std::string con_report(const std::string& word)
{
    static const struct {
        const char* word;
        const char* report;
    } reports[] = {{"ok", "OK"},       {"bad", "NG"},   {"min", "NG(Min)"},
                   {"max", "NG(Max)"}, {"out", "None"}, {"silent", "--"}};
    for (const auto& r : reports)
        if (word == r.word)
            return r.report;
    return "";
}

// "UNIT N WORD"
static bool con_part(const std::string& rest,
                     bool (*set)(const std::string&, int, const std::string&))
{
    const auto part = Text_Split(rest, ' ');
    long n = 0;
    if (part.size() != 3 || !Console_Number(part[1], 1, 100, &n))
        return false;
    const std::string report = con_report(part[2]);
    return !report.empty() && set(part[0], int(n), report);
}

static bool con_fan(Runner&, const std::string& rest)
{
    return con_part(rest, Diag_Fan);
}

static bool con_psu(Runner&, const std::string& rest)
{
    return con_part(rest, Diag_Psu);
}

static bool con_board(Runner&, const std::string& rest)
{
    return con_part(rest, Diag_Board);
}

static bool con_reference(Runner&, const std::string& rest)
{
    const auto part = Text_Split(rest, ' ');
    if (part.size() != 2 || (part[1] != "ok" && part[1] != "bad" && part[1] != "out"))
        return false;
    return Diag_Reference(part[0], part[1] == "ok", part[1] != "out");
}

static bool con_hours(Runner&, const std::string& rest)
{
    const auto part = Text_Split(rest, ' ');
    long hours = 0;
    return part.size() == 2 && Console_Number(part[1], 0, 1000000, &hours) &&
           Diag_Hours(part[0], int(hours));
}

static bool con_temp(Runner&, const std::string& rest)
{
    long celsius = 0;
    return Console_Number(rest, 0, 255, &celsius) && Diag_Temperature(int(celsius));
}

static bool con_i2c(Runner&, const std::string& rest)
{
    const auto part = Text_Split(rest, ' ');
    long device = 0, address = 0, byte = 0;
    return part.size() == 3 && Console_Number(part[0], 0, 127, &device) &&
           Console_Number(part[1], 0, 255, &address) && Console_Number(part[2], 0, 255, &byte) &&
           Diag_I2c(int(device), int(address), int(byte));
}

static bool con_ok(Runner&, const std::string&)
{
    Diag_Heal();
    return true;
}

static constexpr Command commands[] = {
    {"fan", "UNIT N ok|bad|min|max", "a fan of PNL1, DCU1, SWR1.., DME1..", con_fan},
    {"psu", "UNIT N ok|bad|out", "a power supply", con_psu},
    {"board", "UNIT SLOT ok|bad", "a board", con_board},
    {"reference", "UNIT ok|bad|out", "the reference, also of MPE1", con_reference},
    {"hours", "UNIT HOURS", "of its fans and power supplies", con_hours},
    {"temp", "CELSIUS", "of the menu's board", con_temp},
    {"i2c", "DEVICE ADDRESS BYTE", "a byte of the menu's board", con_i2c},
    {"ok", "", "every unit is well", con_ok},
};
constinit const std::span<const Command> console_diag_commands = commands;
