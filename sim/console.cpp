#include "console.h"
#include "console_command.h"
#include "fault.h"
#include "file_job.h"
#include "link.h"
#include "log.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include "verbs.h"
#include <algorithm>
#include <cctype>
#include <climits>
#include <fstream>
#include <unistd.h>

static constexpr int EXPECT_MS = 5000;
static constexpr int MS_MAX = 24 * 3600 * 1000;
static constexpr int SPLIT_GAP_MS = 2;
static constexpr const char* link_names[LINK_KINDS] = {"text", "bin", "hub"};

static struct {
    Runner input{.name = "console"};
    Runner script{.name = "script", .is_script = true};
    std::string partial; // of a line on standard input
    bool has_ended = false;
    bool has_quit = false;
    int status = 0;
} cn;

// --- Arguments ---

bool Console_OnOff(const std::string& text, bool* on)
{
    *on = text == "on";
    return text == "on" || text == "off";
}

bool Console_Number(const std::string& text, long from, long to, long* number)
{
    return Text_ToInt(text, number) && *number >= from && *number <= to;
}

// "PATH#VALUE", or "PATH VALUE" with the value behind the last blank.
static bool con_path_value(const std::string& text, std::string* path, std::string* value)
{
    size_t at = text.find('#');
    if (at == std::string::npos)
        at = text.rfind(' ');
    if (at == std::string::npos || at == 0)
        return false;
    *path = Text_Trim(text.substr(0, at));
    *value = text.substr(at + 1);
    return true;
}

// --- Values ---

static bool con_set(Runner&, const std::string& rest)
{
    std::string path, value;
    if (!con_path_value(rest, &path, &value))
        return false;
    Node* node = Tree_Get(path);
    if (!node)
        return true;
    // As it stands: a switcher may say what its tables don't know.
    if (node->type.kind == KIND_LIST)
        (void)Tree_Put(*node, value, &value); // a refused row is told all the same
    else
        node->value = value;
    Tree_Tell(*node, value, 0);
    return true;
}

// As a panel would: with all that the switcher does about it.
static bool con_put(Runner&, const std::string& rest)
{
    std::string path, value;
    if (!con_path_value(rest, &path, &value))
        return false;
    Verb_Line(0, "put " + path + "#" + value);
    return true;
}

static void con_print(const Node& node)
{
    if (node.type.kind != KIND_LIST)
        printf("%s#%s\n", node.path.c_str(), node.value.c_str());
    for (const std::string& row : node.rows)
        printf("%s#%s\n", node.path.c_str(), row.c_str());
}

static bool con_get(Runner&, const std::string& rest)
{
    if (rest.empty())
        return false;
    if (const Node* node = Tree_Get(rest))
        con_print(*node);
    return true;
}

static bool con_tree(Runner&, const std::string& rest)
{
    for (const auto& [path, node] : Tree_All())
        if (Text_Begins(path, rest))
            con_print(node);
    return true;
}

static bool con_knob(Runner&, const std::string& rest)
{
    const auto part = Text_Split(rest, ' ');
    long knob = 0, detents = 0;
    if (part.size() != 2 || !Console_Number(part[0], 0, KNOBS - 1, &knob))
        return false;
    if (!Console_Number(part[1], -100000, 100000, &detents))
        return false;
    Verb_Knob(int(knob), int(detents));
    return true;
}

// --- Lines as they stand ---

static void con_send_all(const std::string& line)
{
    for (const int client : Link_Clients(LINK_TEXT))
        Link_SendLine(client, line);
}

static bool con_send(Runner&, const std::string& rest)
{
    con_send_all(rest);
    return true;
}

static bool con_page(Runner&, const std::string& rest)
{
    if (rest.empty())
        return false;
    con_send_all("Page#" + rest);
    return true;
}

static bool con_menu(Runner&, const std::string& rest)
{
    if (rest.empty())
        return false;
    con_send_all("TopMenu#" + rest);
    return true;
}

static bool con_raw(Runner&, const std::string& rest)
{
    const std::string bytes = Text_Unescape(rest);
    for (const int client : Link_Clients(LINK_TEXT)) {
        Log_Traffic(client, '>', bytes);
        Link_SendBytes(client, bytes);
    }
    return true;
}

// --- The run of a script ---

static bool con_wait(Runner& runner, const std::string& rest)
{
    long ms = 0;
    if (!Console_Number(rest, 0, MS_MAX, &ms))
        return false;
    runner.wait_until_ms = Now_Ms() + ms;
    return true;
}

// The pattern may stand in quotes, which a pattern that ends with a number needs.
static bool con_expect(Runner& runner, const std::string& rest)
{
    long ms = EXPECT_MS;
    std::string pattern = rest;
    const size_t quote = rest.rfind('"');
    const size_t blank = rest.rfind(' ');
    if (!rest.empty() && rest[0] == '"') {
        if (quote == 0)
            return false;
        pattern = rest.substr(1, quote - 1);
        const std::string timeout = Text_Trim(rest.substr(quote + 1));
        if (!timeout.empty() && !Console_Number(timeout, 0, MS_MAX, &ms))
            return false;
    } else if (blank != std::string::npos &&
               Console_Number(rest.substr(blank + 1), 0, MS_MAX, &ms)) {
        pattern = Text_Trim(rest.substr(0, blank));
    } else {
        ms = EXPECT_MS;
    }
    runner.expected = pattern;
    runner.expect_until_ms = Now_Ms() + ms;
    return !pattern.empty();
}

static bool con_log(Runner&, const std::string& rest)
{
    bool on = false;
    if (!Console_OnOff(rest, &on))
        return false;
    Log_SetEcho(on);
    return true;
}

static bool con_clients(Runner&, const std::string&)
{
    for (int kind = 0; kind < LINK_KINDS; ++kind) {
        for (const int number : Link_Clients(LinkKind(kind))) {
            const Client* client = Link_Find(number);
            printf("#%d %s menu=%s", number, link_names[kind], client->menu.c_str());
            for (int k = 0; k < KNOBS; ++k)
                if (!client->knob[k].empty())
                    printf(" Knob%d=%s", k, client->knob[k].c_str());
            printf("\n");
        }
    }
    return true;
}

static bool con_restart(Runner&, const std::string&)
{
    System_Restart();
    return true;
}

static bool con_quit(Runner&, const std::string&)
{
    Console_Quit(0);
    return true;
}

// --- Faults ---

// "NAME" or "NAME NUMBER"; without the number it stays as it is.
static bool con_link_number(const std::string& rest, long max, LinkKind* kind, long* number)
{
    const auto part = Text_Split(rest, ' ');
    const auto* const name = std::find(std::begin(link_names), std::end(link_names), part[0]);
    *kind = LinkKind(name - link_names);
    return name != std::end(link_names) &&
           (part.size() == 1 || (part.size() == 2 && Console_Number(part[1], 0, max, number)));
}

static bool con_drop(Runner&, const std::string& rest)
{
    LinkKind kind = LINK_TEXT;
    long ms = 0;
    if (!con_link_number(rest, MS_MAX, &kind, &ms))
        return false;
    Link_Drop(kind, int(ms));
    return true;
}

static bool con_cut(Runner&, const std::string& rest)
{
    LinkKind kind = LINK_TEXT;
    long bytes = -1;
    if (!con_link_number(rest, 1 << 30, &kind, &bytes))
        return false;
    Link_Cut(kind, bytes);
    return true;
}

static bool con_stall(Runner&, const std::string& rest)
{
    long ms = 0;
    if (!Console_Number(rest, 0, MS_MAX, &ms))
        return false;
    Link_Stall(int(ms));
    return true;
}

static bool con_dribble(Runner&, const std::string& rest)
{
    bool on = false;
    if (!Console_OnOff(rest, &on))
        return false;
    Link_Pieces(on ? 1 : 0, 0);
    return true;
}

static bool con_split(Runner&, const std::string& rest)
{
    long bytes = 0;
    if (!Console_Number(rest, 0, 1 << 20, &bytes))
        return false;
    Link_Pieces(size_t(bytes), SPLIT_GAP_MS);
    return true;
}

static bool con_flood(Runner&, const std::string& rest)
{
    long lines = 0;
    if (!Console_Number(rest, 0, 100000000, &lines))
        return false;
    Fault_Flood(lines);
    return true;
}

static bool con_garbage(Runner&, const std::string& rest)
{
    long ms = 0;
    if (!Console_Number(rest, 0, MS_MAX, &ms))
        return false;
    Fault_Garbage(int(ms));
    return true;
}

static bool con_refuse(Runner&, const std::string& rest)
{
    bool on = false;
    if (!Console_OnOff(rest, &on))
        return false;
    Link_Refuse(on);
    return true;
}

// "next [N] [WORDS]"
static bool con_ng_next(const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long count = 1;
    const bool has_count = word.size() > 1 && Console_Number(word[1], 1, 1000000, &count);
    size_t at = 4 + (has_count ? word[1].size() + 1 : 0);
    at = std::min(at + 1, rest.size());
    FileJob_FailNext(int(count), at < rest.size() ? rest.substr(at) : "Device Error");
    return true;
}

static bool con_ng(Runner&, const std::string& rest)
{
    bool on = false;
    if (Text_Begins(rest, "next"))
        return con_ng_next(rest);
    if (!Console_OnOff(rest, &on))
        return false;
    Verb_SetNg(on);
    return true;
}

// --- Commands ---

static bool con_help(Runner&, const std::string&);

static constexpr Command commands[] = {
    {"help", "", "this list", con_help},
    {"set", "PATH#VALUE", "change a value as the switcher would (also: PATH VALUE)", con_set},
    {"put", "PATH#VALUE", "change a value as a panel would", con_put},
    {"get", "PATH", "print a value", con_get},
    {"tree", "[PREFIX]", "print all values that somebody has asked for", con_tree},
    {"clients", "", "who is connected, with menu and knobs", con_clients},
    {"knob", "N +K|-K", "turn knob 0..4 by K detents", con_knob},
    {"send", "LINE", "send a line to all text clients", con_send},
    {"raw", "BYTES", "send bytes without a line end; \\n \\r \\t \\0 \\xHH \\\\", con_raw},
    {"page", "XXXX.XXXX", "ask the panels for a page", con_page},
    {"menu", "CAPTION", "press a menu key", con_menu},
    {"wait", "MS", "go on later", con_wait},
    {"expect", "PATTERN [MS]", "wait for a client's line, * and ? as usual", con_expect},
    {"log", "on|off", "show the traffic", con_log},
    {"drop", "text|bin|hub [MS]", "close the clients; listen again after MS", con_drop},
    {"cut", "text|bin|hub [N]", "close a client when N bytes more have gone; none", con_cut},
    {"stall", "MS", "neither read nor write", con_stall},
    {"dribble", "on|off", "one byte a write", con_dribble},
    {"split", "N", "at most N bytes a write, 2 ms apart; 0: off", con_split},
    {"flood", "N", "N tallies that nobody wants", con_flood},
    {"garbage", "MS", "rubbish on all links", con_garbage},
    {"refuse", "on|off", "stop listening", con_refuse},
    {"ng", "on|off|next [N] [WORDS]", "apply no put; the next N file jobs fail", con_ng},
    {"restart", "", "all values at their defaults, announced to all", con_restart},
    {"quit", "", "end", con_quit},
};

static const std::span<const Command> command_sets[] = {commands,
                                                        console_effect_commands,
                                                        console_register_commands,
                                                        console_macro_commands,
                                                        console_file_commands,
                                                        console_setup_commands,
                                                        console_diag_commands};

static bool con_help(Runner&, const std::string&)
{
    for (const auto& set : command_sets)
        for (const Command& command : set)
            printf("  %-9s %-24s %s\n", command.word, command.arguments, command.help);
    return true;
}

// A word may have several forms, each a command of its own: the first that takes the arguments.
// What they take is left in *usage; it stays empty when there is no such word.
static bool con_call(Runner& runner, const std::string& word, const std::string& rest,
                     std::string* usage)
{
    for (const auto& set : command_sets)
        for (const Command& command : set) {
            if (word != command.word)
                continue;
            if (command.func(runner, rest))
                return true;
            *usage += (usage->empty() ? "usage: " : "; or: ") + word + " " + command.arguments;
        }
    return false;
}

// A mistake: a message for a person, the end for a script.
static void con_fail(const Runner& runner, const std::string& why)
{
    Log_Note("%s: %s", runner.name, why.c_str());
    if (runner.is_script)
        fprintf(stderr, "script line %d: %s\n", runner.line_number, why.c_str());
    else
        fprintf(stderr, "%s\n", why.c_str());
    if (runner.is_script)
        Console_Quit(1);
}

static void con_run(Runner& runner, const ConsoleLine& line)
{
    runner.line_number = line.number;
    const std::string text = Text_Trim(line.text);
    if (text.empty() || text[0] == '#')
        return;
    Log_Note("%s: %s", runner.name, text.c_str());
    const size_t blank = text.find(' ');
    const std::string word = text.substr(0, blank);
    const std::string rest = blank == std::string::npos ? "" : Text_Trim(text.substr(blank));
    std::string usage;
    if (!con_call(runner, word, rest, &usage))
        con_fail(runner, usage.empty() ? "no such command: " + word + " (try help)" : usage);
}

// True when the runner may go on to its next line.
static bool con_is_ready(Runner& runner, int64_t now)
{
    if (now < runner.wait_until_ms)
        return false;
    if (runner.expected.empty())
        return true;
    std::string line;
    const bool has_come = Link_Heard(&runner.heard, runner.expected, &line);
    if (!has_come && now < runner.expect_until_ms)
        return false;
    const std::string expected = runner.expected;
    runner.expected.clear();
    if (!has_come)
        con_fail(runner, "did not come: " + expected);
    return true;
}

static int64_t con_advance(Runner& runner, int64_t now)
{
    while (!cn.has_quit && con_is_ready(runner, now)) {
        if (runner.lines.empty() || cn.has_quit)
            return INT64_MAX;
        const ConsoleLine line = runner.lines.front();
        runner.lines.pop_front();
        con_run(runner, line);
    }
    return now < runner.wait_until_ms ? runner.wait_until_ms : runner.expect_until_ms;
}

int64_t Console_Tick(int64_t now)
{
    const int64_t next = std::min(con_advance(cn.script, now), con_advance(cn.input, now));
    fflush(stdout);
    return next;
}

bool Console_OpenScript(const char* file)
{
    std::ifstream in(file);
    if (!in)
        return false;
    std::string text;
    for (int number = 1; std::getline(in, text); ++number)
        cn.script.lines.push_back({text, number});
    return true;
}

bool Console_IsReading()
{
    return !cn.has_ended;
}

void Console_ReadInput()
{
    char bytes[4096];
    const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0) {
        cn.has_ended = true; // started without a console: go on serving
        return;
    }
    cn.partial.append(bytes, size_t(count));
    auto lines = Text_Split(cn.partial, '\n');
    cn.partial = lines.back();
    lines.pop_back();
    for (const std::string& line : lines)
        cn.input.lines.push_back({line, 0});
}

void Console_Quit(int status)
{
    cn.has_quit = true;
    cn.status = status;
}

bool Console_HasQuit(int* status)
{
    *status = cn.status;
    return cn.has_quit;
}
