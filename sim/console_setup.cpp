// The commands that change the installation.
#include "console_command.h"
#include "gpi.h"
#include "setup.h"
#include "text.h"

static bool con_keys(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    if (word.size() != 2 || (word[1] != "4" && word[1] != "8"))
        return false;
    return Setup_Keys(word[0], word[1] == "4" ? 4 : 8);
}

static bool con_multi(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    bool on = false;
    return word.size() == 2 && Console_OnOff(word[1], &on) && Setup_Multi(word[0], on);
}

static bool con_4k(Runner&, const std::string& rest)
{
    bool on = false;
    if (!Console_OnOff(rest, &on))
        return false;
    Setup_4K(on);
    return true;
}

static bool con_config(Runner&, const std::string& rest)
{
    if (rest != "ng")
        return false;
    Setup_NextNg();
    return true;
}

static bool con_gpi(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long port = 0;
    if (word.size() < 2 || word.size() > 3 || !Console_Number(word[1], 1, 99, &port) ||
        (word.size() == 3 && word[2] != "high" && word[2] != "low"))
        return false;
    if (word.size() == 3)
        return Gpi_Set(word[0], int(port), word[2] == "high");
    return Gpi_Set(word[0], int(port), true) && Gpi_Set(word[0], int(port), false);
}

static bool con_units(Runner&, const std::string& rest)
{
    return Setup_Units(Text_Split(rest, ' '));
}

static constexpr Command commands[] = {
    {"keys", "M/E-1 4|8", "how many keys the bank has", con_keys},
    {"multi", "BANK|all on|off", "a bank runs two programs: main and sub side", con_multi},
    {"4k", "on|off", "the picture format", con_4k},
    {"gpi", "UNIT PORT [high|low]", "a contact, shortly high: SWR, PNL, DME1 to 4, DCU1, DCU2",
     con_gpi},
    {"units", "UNIT...", "which units there are", con_units},
    {"config", "ng", "the next Define or Auto Config of the network fails", con_config},
};
constinit const std::span<const Command> console_setup_commands = commands;
