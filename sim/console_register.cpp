// The commands for the stored registers. A region's name may hold blanks.
#include "attach.h"
#include "console_command.h"
#include "store.h"
#include "text.h"

using Words = std::vector<std::string>;

static std::string joined(const Words& words, size_t from, size_t to)
{
    std::string text;
    for (size_t i = from; i < to; ++i)
        text += (i == from ? "" : " ") + words[i];
    return text;
}

// "store KIND [REGION] N [NAME]": the name is what stands behind the number. The region comes
// before it, so the number is the first word that is one.
static bool do_register(const std::string& verb, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long number = 0;
    size_t at = 1;
    while (at < word.size() && !Console_Number(word[at], 1, 999, &number))
        ++at;
    if (at >= word.size())
        return false;
    StoreOrder order;
    order.verb = verb;
    order.kind = word[0];
    order.region = joined(word, 1, at);
    order.first = order.last = int(number);
    order.name = joined(word, at + 1, word.size());
    return Store_Do(order);
}

static bool con_store(Runner&, const std::string& rest)
{
    return do_register("store", rest);
}

static bool con_recall(Runner&, const std::string& rest)
{
    return do_register("recall", rest);
}

static bool con_effect(Runner&, const std::string& rest)
{
    return do_register("recall", "effect " + rest);
}

static bool con_list(Runner&, const std::string& rest)
{
    const size_t blank = rest.find(' ');
    return Store_Print(rest.substr(0, blank),
                       blank == std::string::npos ? "" : rest.substr(blank + 1));
}

// --- Another panel ---

// "12" or "1-20".
static bool number_range(const std::string& text, int* first, int* last)
{
    const size_t dash = text.find('-');
    long from = 0, to = 0;
    if (!Console_Number(text.substr(0, dash), 1, 999, &from))
        return false;
    to = from;
    if (dash != std::string::npos && !Console_Number(text.substr(dash + 1), from, 999, &to))
        return false;
    *first = int(from);
    *last = int(to);
    return true;
}

// A region or key at word *at, one word or two ("M/E-1 Sub"); none where the kind has none.
static std::string region_at(const Words& word, size_t* at, const std::string& kind)
{
    if (*at >= word.size() || !Store_HasRegions(kind))
        return "";
    const bool is_sub = *at + 1 < word.size() && word[*at + 1] == "Sub";
    const size_t from = *at;
    *at += is_sub ? 2 : 1;
    return joined(word, from, *at);
}

// "panel VERB KIND N[-N] [REGION] ...": behind it a name, or number and region of the target.
static bool con_panel(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    StoreOrder order;
    if (word.size() < 3 || !number_range(word[2], &order.first, &order.last))
        return false;
    order.verb = word[0];
    order.kind = word[1];
    size_t at = 3;
    order.region = region_at(word, &at, order.kind);
    const bool has_target = order.verb == "copy" || order.verb == "move" || order.verb == "swap";
    if (!has_target) {
        order.name = joined(word, at, word.size());
        return Store_Do(order);
    }
    int last = 0;
    if (at >= word.size() || !number_range(word[at++], &order.to, &last))
        return false;
    order.to_region = region_at(word, &at, order.kind);
    order.keeps_names = at < word.size() && word[at] == "noname";
    return Store_Do(order);
}

// "clip USER FM N on|off": the auto play of a clip event.
static bool con_clip(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long user = 0, memory = 0, number = 0;
    bool on = false;
    if (word.size() != 4 || !Console_Number(word[0], 1, 8, &user) ||
        !Console_Number(word[1], 1, 20, &memory) || !Console_Number(word[2], 1, 99, &number) ||
        !Console_OnOff(word[3], &on))
        return false;
    (void)Store_Put(
        Text_Format("Snapshot@Snapshot@Clip Event@User%ld@FM%ld@AutoPlay", user, memory),
        Text_Format("%ld,%s", number, on ? "ON" : "OFF"));
    return true;
}

static bool con_attach(Runner&, const std::string& rest)
{
    return Attach_Add(rest);
}

static constexpr Command commands[] = {
    {"effect", "REGION N", "recall an effect", con_effect},
    {"store", "KIND [REGION] N [NAME]", "store what is there now into a register", con_store},
    {"recall", "KIND [REGION] N", "recall a register", con_recall},
    {"list", "KIND [REGION]", "print the registers that hold data", con_list},
    {"panel", "VERB KIND N[-M] [REGION] [NAME | N [REGION] [noname]]",
     "another panel does it: store recall rename lock unlock delete copy move swap", con_panel},
    {"attach", "BLOCK,BUTTON1,BUTTON2,MODE,N,PAIR,PAIR,...", "a macro to a button: 13 numbers",
     con_attach},
    {"clip", "USER FM N on|off", "another panel sets the auto play of a clip event", con_clip},
};
constinit const std::span<const Command> console_register_commands = commands;
