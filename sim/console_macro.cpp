// The commands for macros.
#include "attach.h"
#include "console_command.h"
#include "macro.h"
#include "setup_panel.h"
#include "text.h"

using Words = std::vector<std::string>;

static bool number_at(const Words& word, size_t at, long to, int* number)
{
    long n = 0;
    if (at >= word.size() || !Console_Number(word[at], 0, to, &n))
        return false;
    *number = int(n);
    return true;
}

static bool do_run(const Words& word)
{
    int number = 0;
    if (!number_at(word, 1, 250, &number) || number < 1)
        return false;
    Macro_Run(number);
    return true;
}

static bool do_record(const Words& word)
{
    int number = 0;
    return number_at(word, 1, 250, &number) && Macro_Record(number, word.size() > 2 ? word[2] : "");
}

static bool do_print(const Words& word)
{
    int number = 0;
    return number_at(word, 1, 250, &number) && Macro_Print(number);
}

static bool do_press(const Words& word)
{
    int n[3] = {};
    for (size_t i = 0; i < 3; ++i)
        if (!number_at(word, i + 1, 999, &n[i]))
            return false;
    const int number = Attach_Macro(n[0], n[1], n[2]);
    Macro_Run(number);
    return number > 0;
}

static bool do_key2(const Words& word)
{
    int n[2] = {};
    for (size_t i = 0; i < 2; ++i)
        if (!number_at(word, i + 1, 99, &n[i]))
            return false;
    return SetupPanel_PressKey2(n[0], n[1]);
}

static bool do_operate(const Words& word)
{
    std::string event;
    for (size_t i = 1; i < word.size(); ++i)
        event += (i == 1 ? "" : " ") + word[i];
    return Macro_Operate(event);
}

static bool do_stop(const Words&)
{
    Macro_Stop();
    return true;
}

static bool do_end(const Words&)
{
    return Macro_EndRecord();
}

static bool con_macro(Runner&, const std::string& rest)
{
    static constexpr struct {
        const char* verb;
        bool (*func)(const Words& word);
    } verbs[] = {{"run", do_run},     {"stop", do_stop},   {"record", do_record},
                 {"end", do_end},     {"print", do_print}, {"operate", do_operate},
                 {"press", do_press}, {"key2", do_key2}};
    const auto word = Text_Split(rest, ' ');
    for (const auto& v : verbs)
        if (word[0] == v.verb)
            return v.func(word);
    return false;
}

static constexpr Command commands[] = {
    {"macro", "run N | stop", "run a macro, or end the run", con_macro},
    {"macro", "record N [NAME] | end", "what panels do from now on becomes a macro", con_macro},
    {"macro", "operate SYMBOL,NAME,VALUE,...", "a panel does what the event says", con_macro},
    {"macro", "print N", "print the events of a macro", con_macro},
    {"macro", "press BLOCK BUTTON BUTTON2", "press a button that a macro hangs on", con_macro},
    {"macro", "key2 PLACE BUTTON", "press a key 2 bus button that runs a register", con_macro},
};
constinit const std::span<const Command> console_macro_commands = commands;
