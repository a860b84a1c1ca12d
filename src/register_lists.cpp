// The lists of registers: their paths, what stands where in their lines, how they are subscribed.
#include "command.h"
#include "netio.h"
#include "register_private.h"
#include "snapshot_region.h"
#include "tally_value.h"
#include <array>
#include <cstring>

#include "safeguards.h"

static int effect_tly(const RegisterList& list, int region, const char* value);
static int register_tly(const RegisterList& list, int region, const char* value);

// --- The words ---

static constexpr RegisterWord Word(const char* text)
{
    RegisterWord word = {.text = text};
    for (; text[word.length]; word.length++)
        word.hash += static_cast<unsigned char>(text[word.length]);
    return word;
}

template <size_t N>
static constexpr std::array<RegisterWord, N> WordsOf(const RegionWords<N>& texts)
{
    std::array<RegisterWord, N> words{};
    for (size_t i = 0; i < N; i++)
        words[i] = Word(texts[i]);
    return words;
}

static constexpr auto effect_words = WordsOf(EffectCmd);
static constexpr auto snapshot_words = WordsOf(SnapshotCmd);
static constexpr auto side_words = WordsOf(region_sides);
static constexpr auto key_words = WordsOf(KeySSCmd);
static constexpr auto clip_words = WordsOf(JoinWords(ClipEventCmd, ClipEventSubREG));
static constexpr auto one_list = WordsOf(RegionWords<1>{""});

// --- The lists ---

// The lines of all regions at once are much longer than the others.
constexpr int BOUND_SNAPSHOT = 512;
constexpr int BOUND_LONG = LINE_SIZE;

// The words of a table up to its empty last one.
template <size_t N>
static constexpr RegisterList Regions(const std::array<RegisterWord, N>& words, RegisterList row)
{
    row.words = words.data();
    row.known = int(N) - (words[N - 1].length == 0);
    row.subscribed = row.known;
    row.head_length = Word(row.head).length;
    row.digest = register_tly;
    return row;
}

static constexpr RegisterList Single(RegisterList row)
{
    row = Regions(one_list, row);
    row.known = row.subscribed = 1;
    return row;
}

static constexpr RegisterList Effects(RegisterList row)
{
    row = Regions(effect_words, row);
    row.digest = effect_tly;
    return row;
}

// Twenty words are subscribed although there are eight users: the frame memories FM1 to FM12 stand
// behind them. That is meant: keep it.
static constexpr RegisterList Clips(RegisterList row)
{
    row = Regions(clip_words, row);
    row.digest = clipevnt_tly;
    row.known = int(ClipEventCmd.size());
    row.subscribed = int(ClipEventSubREG.size());
    return row;
}

// In the order in which they are subscribed.
// clang-format off
static constexpr RegisterList lists[] = {
    Effects({.kind = REGISTER_EFFECT, .head = "Effect@Effect@Attribute@List@",
             .fields = 6, .status = 1, .lock = 3, .name = 2}),
    Single ({.kind = REGISTER_EFFECT, .head = "Effect@Master Timeline@Store/Recall@List",
             .first_row = EFF_REGION_MASTER,
             .fields = 47, .status = 2, .lock = 3, .name = 1, .bound = BOUND_LONG}),
    Regions(snapshot_words,
            {.kind = REGISTER_SNAPSHOT, .head = "Snapshot@Snapshot@Attribute@", .tail = "@List",
             .fields = 7, .status = 2, .lock = 2, .name = 1, .bound = BOUND_SNAPSHOT}),
    Single ({.kind = REGISTER_SNAPSHOT, .head = "Snapshot@Master Snapshot@Store/Recall@List",
             .first_row = SS_REGION_MASTER,
             .fields = 34, .status = 2, .lock = 3, .name = 1, .bound = BOUND_LONG}),
    Regions(side_words,
            {.kind = REGISTER_WIPESS, .head = "Snapshot@Wipe Snapshot@", .tail = "@List",
             .fields = 3, .status = 2, .lock = 2, .name = 1, .max_number = REGISTERS_WIPESS}),
    Regions(side_words,
            {.kind = REGISTER_DMESS, .head = "Snapshot@DME Snapshot@", .tail = "@List",
             .fields = 3, .status = 2, .lock = 2, .name = 1, .max_number = REGISTERS_WIPESS}),
    Regions(key_words,
            {.kind = REGISTER_KEYSS, .head = "Snapshot@Key Snapshot@Attribute@", .tail = "@List",
             .fields = 3, .status = 2, .lock = 2, .name = 1, .max_number = REGISTERS_KEYSS}),
    Single ({.kind = REGISTER_SHOTBOX, .head = "Shotbox@Register@Store/Recall@List",
             .fields = LINE_FIELDS, .lock = 2, .name = 1, .first_data = 4, .bound = BOUND_LONG}),
    Single ({.kind = REGISTER_MACRO, .head = "Macro@Register@List",
             .fields = 4, .status = 1, .lock = 3, .name = 2, .bound = BOUND_LONG,
             .max_number = REGISTERS_MACRO}),
    Clips  ({.kind = REGISTER_CLIP_EVENT, .head = "Snapshot@Snapshot@Clip Event@", .tail = "@List",
             .fields = 8}),
};
// clang-format on

static constexpr bool ListsAreSound()
{
    for (const RegisterList& list : lists)
        if (list.fields > LINE_FIELDS || list.bound > LINE_SIZE || list.status >= list.fields ||
            list.lock >= list.fields || list.name >= list.fields)
            return false;
    return true;
}
static_assert(ListsAreSound());

// --- Subscribing ---

enum class Sides { Main, Sub, All };

static bool is_wanted(const RegisterWord& word, Sides sides)
{
    const bool is_sub = strstr(word.text, "Sub") != nullptr;
    return sides == Sides::All || is_sub == (sides == Sides::Sub);
}

static void send_list(const char* verb, const RegisterList& list, const char* region)
{
    PrintText(Cmd, "%s %s%s%s", verb, list.head, region, list.tail);
    Net_SendCommand(Cmd);
}

static void send_lists(const char* verb, Sides sides)
{
    for (const RegisterList& list : lists)
        for (int i = 0; i < list.subscribed; i++)
            if (is_wanted(list.words[i], sides))
                send_list(verb, list, list.words[i].text);
}

void Register_InitCommand()
{
    send_lists("add", Sides::Main);
}

void Register_InitCommand_MP2()
{
    send_lists("add", Sides::Sub);
}

void Register_DeathCommand()
{
    send_lists("remove", Sides::All);
}

// Of two lists of a kind the first is the one with regions.
void register_ask(int kind, int region)
{
    for (const RegisterList& list : lists)
        if (list.kind == kind)
            return send_list("read", list, list.words[region].text);
}

// --- Digesting a line ---

bool register_cut(RegisterLine& line, const RegisterList& list, const char* value)
{
    ktr_strncpy(line.text, value, size_t(list.bound));
    return SplitVars(line.text, line.v, list.fields) == list.fields;
}

static int has_data(const RegisterList& list, const RegisterLine& line)
{
    if (list.first_data == 0)
        return line.v[list.status][0] != 'E';
    for (int i = list.first_data; i < list.fields; i++)
        if (line.v[i][0])
            return 1;
    return 0;
}

static void keep_line(const RegisterList& list, const RegisterLine& line,
                      const RegisterPlace& place, const char* value)
{
    register_keep(place,
                  {.exist = has_data(list, line),
                   .lock = line.v[list.lock][0] == 'L',
                   .name = line.v[list.name]},
                  value);
}

static int register_tly(const RegisterList& list, int region, const char* value)
{
    RegisterLine line;
    if (region < 0 || !register_cut(line, list, value))
        return -1;
    const int number = Index(line.v[0], list.max_number + 1);
    if (number < 1)
        return -1;
    keep_line(list, line, {list.kind, list.first_row + region, number - 1}, value);
    return 0;
}

// The devices have one long run of numbers, the other regions 1 to 99. The three hundreds above
// belong to the effects channels; a group of channels shares them. An even hundred is no register.
static bool effect_place(int region, int number, RegisterPlace& place)
{
    const bool is_device = region >= EFF_REGION_DEV1 && region <= EFF_REGION_PBUS;
    if (number <= (is_device ? REGISTERS_EFFECT : REGISTERS)) {
        place = {REGISTER_EFFECT, region, number - 1};
        return true;
    }
    const bool is_channel = region >= SS_REGION_DME1 && region <= SS_REGION_DME8;
    const int hundred = number / 100;
    if (!is_channel || hundred > 3 || number % 100 == 0)
        return false;
    place = {REGISTER_EFFECT + hundred, Register_DMEGroup(region), number % 100 - 1};
    return true;
}
static_assert(REGISTER_EFF300 == REGISTER_EFFECT + 3);

constexpr int NUMBERS = 400;

static int effect_tly(const RegisterList& list, int region, const char* value)
{
    RegisterLine line;
    if (region < 0 || !register_cut(line, list, value))
        return -1;
    const int number = Index(line.v[0], NUMBERS);
    RegisterPlace place;
    if (number < 1 || !effect_place(region, number, place))
        return -1;
    keep_line(list, line, place, value);
    return 0;
}

// --- From a path to its list ---

static int find_word(const RegisterWord* words, int count, const char* text, size_t length)
{
    uint32_t hash = 0;
    for (size_t i = 0; i < length; i++)
        hash += static_cast<unsigned char>(text[i]);
    for (int i = 0; i < count; i++)
        if (words[i].hash == hash && words[i].length == length &&
            memcmp(words[i].text, text, length) == 0)
            return i;
    return -1;
}

static const RegisterList* list_of(const char* path)
{
    for (const RegisterList& list : lists)
        if (strncmp(path, list.head, list.head_length) == 0)
            return &list;
    return nullptr;
}

int register_take(const char* path, const char* value)
{
    const RegisterList* list = list_of(path);
    if (!list)
        return -1;
    const char* region = path + list->head_length;
    const char* end = *list->tail ? strstr(region, list->tail) : region + strlen(region);
    if (!end)
        return -1; // a path beside the lists
    const int row = find_word(list->words, list->known, region, size_t(end - region));
    return list->digest(*list, row, value);
}
