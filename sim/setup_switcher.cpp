#include "setup_switcher.h"
#include "log.h"
#include "setup.h"
#include "setup_kind.h"
#include "setup_list.h"
#include "text.h"
#include "tree.h"
#include "verbs.h"
#include <algorithm>
#include <iterator>
#include <vector>

namespace
{
using Words = std::vector<std::string>;

struct Bank {
    const char* word = "";
    const char* menu = ""; // first word of the operation pages' paths
};
// A link that counts: what is its master, and what goes along.
struct Link {
    std::string master;
    std::string linked;
    Words more; // its other fields
};
} // namespace

#define BANKS "M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P"
#define FMS "FM1,FM2,FM3,FM4,FM5,FM6,FM7,FM8"
#define PERCENT "num 0 100 0"
#define OUTPUT "word PGM,PVW,Clean,Key PVW,Sub PGM,Sub PVW,Sub Clean,None"
#define SOURCE "num 1 64 0"
static const std::string SWITCHER = "Engineering Setup@Switcher@";
static constexpr int KEYS = 8;
static constexpr int BUSES = 2; // of a bank that can be linked: A and B
static constexpr Bank banks[] = {{"M/E-1", "M/E-1"}, {"M/E-2", "M/E-2"}, {"M/E-3", "M/E-3"},
                                 {"M/E-4", "M/E-4"}, {"M/E-5", "M/E-5"}, {"P/P", "PGM/PST"}};

static constexpr SetupKind settings[] = {
    {"Config@Side Flags@Side Flags@$", BANKS, "bool", "false"},
    {"Config@Side Flags@Mode@$", BANKS, "word Auto,Manual", "Auto"},
    {"Config@Side Flags@Fill@$", BANKS, "word Black,Color Bkgd 1,Color Bkgd 2,FM1,FM2,FM3,FM4",
     "Black"},
    {"Config@Key Config@Sub Key Mode@$", BANKS, "word Main Link,Independent", "Independent"},
    {"Config@DME Config@Use@$", "Ch1,Ch2,Ch3,Ch4,Ch5,Ch6,Ch7,Ch8", "bool", "true"},
    {"Config@DME Config@Assign@$", "Ch1,Ch2,Ch3,Ch4,Ch5,Ch6,Ch7,Ch8", "word Common," BANKS,
     "Common"},
    {"Config@CG Border@CG Border@$", BANKS, "bool", "true"},
    {"Config@CG Border@Quality@$", BANKS, "word Normal,Fine", "Normal"},
    {"Config@Key PVW@Mode@$", BANKS, "word Key,Key Fill,Keyed", "Key"},
    {"Config@Key PVW@Bkgd@$", BANKS, "word Bkgd A,Bkgd B,Black", "Bkgd A"},
    {"Config@Switcher Timing@H Phase@$", "SWR1,SWR2", "num -1100 1100 0", "0"},
    {"Config@Switcher Timing@V Phase@$", "SWR1,SWR2", "num -512 512 0", "0"},
    {"Config@Switcher Timing@Auto Timing@$", "SWR1,SWR2", "bool", "true"},
    {"Config@3D Config@Mode@$", BANKS, "word 2D,3D", "2D"},
    {"Config@3D Config@Output@$", BANKS, "word L,R,L/R", "L/R"},
    {"Config@Out Config@$ Out1", BANKS, OUTPUT, "PGM"},
    {"Config@Out Config@$ Out2", BANKS, OUTPUT, "PVW"},
    {"Config@Out Config@$ Out3", BANKS, OUTPUT, "Clean"},
    {"Config@Out Config@$ Out4", BANKS, OUTPUT, "Key PVW"},
    {"Config@Out Config@$ Out5", BANKS, OUTPUT, "None"},
    {"Config@Out Config@$ Out6", BANKS, OUTPUT, "None"},
    {"Transition@Key Transition@$", BANKS, "word Common,Independent", "Common"},
    {"Transition@Bus Toggle@$", BANKS, "bool", "true"},
    {"Transition@Split Fader@$", BANKS, "bool", "false"},
    {"Transition@Default Rate@$", BANKS, "num 0 999 0", "30"},
    {"Transition@Preset Color Mix@Stroke@$", BANKS, "word 1 Stroke,2 Strokes", "1 Stroke"},
    {"Transition@Preset Color Mix@Pattern@$", BANKS, "word Mix,Wipe", "Mix"},
    {"Transition@Preset Color Mix@Fill@$", BANKS,
     "word Matte,Color Bkgd 1,Color Bkgd 2,FM1,FM2,Black", "Matte"},
    {"Transition@Transition Curve@Mix@$", BANKS, "word Linear,S Curve,Curve1,Curve2,Curve3,Curve4",
     "Linear"},
    {"Transition@Transition Curve@Wipe@$", BANKS, "word Linear,S Curve,Curve1,Curve2,Curve3,Curve4",
     "Linear"},
    {"Transition@Transition Curve@DME Wipe@$", BANKS,
     "word Linear,S Curve,Curve1,Curve2,Curve3,Curve4", "Linear"},
    {"Key/Wipe/FM/CCR@Wipe Aspect@$", BANKS, "word 16:9,4:3", "16:9"},
    {"Key/Wipe/FM/CCR@Key Delay@$", BANKS, "num -8 8 0", "0"},
    {"Key/Wipe/FM/CCR@CCR V Proc@V Proc@$", "CCR1,CCR2,CCR3,CCR4", "bool", "false"},
    {"Key/Wipe/FM/CCR@CCR V Proc@Luminance@$", "CCR1,CCR2,CCR3,CCR4", "num 0 200 0", "100"},
    {"Key/Wipe/FM/CCR@CCR V Proc@Chroma@$", "CCR1,CCR2,CCR3,CCR4", "num 0 200 0", "100"},
    {"Key/Wipe/FM/CCR@CCR V Proc@Hue@$", "CCR1,CCR2,CCR3,CCR4", "num -180 180 0", "0"},
    {"Key/Wipe/FM/CCR@CCR V Proc@Black@$", "CCR1,CCR2,CCR3,CCR4", "num -50 50 0", "0"},
    {"Key/Wipe/FM/CCR@DSK Auto Drop@Auto Drop@$", "DSK1,DSK2,DSK3,DSK4,DSK5,DSK6,DSK7,DSK8", "bool",
     "false"},
    {"Key/Wipe/FM/CCR@DSK Auto Drop@Mode@$", "DSK1,DSK2,DSK3,DSK4,DSK5,DSK6,DSK7,DSK8",
     "word Cut,Auto Trans", "Cut"},
    {"Key/Wipe/FM/CCR@Show Key@Output@$", BANKS,
     "word PVW,Key PVW,Aux 1,Aux 2,Aux 3,Aux 4,Mon 1,Mon 2", "PVW"},
    {"Key/Wipe/FM/CCR@Show Key@Mode@$", BANKS, "word Hold,Latch", "Hold"},
    {"Link@Enable@$", "Key Link,M/E Link,Internal Bus Link,GPI Link", "bool", "true"},
};

static constexpr SetupList tables[] = {
    {"Config@Key Config", BANKS, "word Key3 Key4,Key3 Key PVW", "Key3 Key4"},
    {"Config@3D Config@Input Link", "1..64", SOURCE "|bool", "$,false"},
    {"Config@3D Config@FM Output Link", FMS, "word " FMS "|bool", "$,false"},
    {"Transition@Transition Curve@Fader Curve", "Curve1,Curve2,Curve3,Curve4",
     PERCENT "|" PERCENT "|" PERCENT "|" PERCENT "|" PERCENT, "10,25,50,75,90"},
    {"Link@Key Link", "1..24", "key|key|bool", "None,None,false"},
    {"Link@M/E Link", "1..8", "word None," BANKS "|word None," BANKS "|word Off,Transition,Xpt,All",
     "None,None,Off"},
    {"Link@Internal Bus Link@Link", "1..32", "bus|bus|num 1 8 0|bool", "None,None,1,false"},
    {"Link@Internal Bus Link@Table", "1..64",
     SOURCE "|" SOURCE "|" SOURCE "|" SOURCE "|" SOURCE "|" SOURCE "|" SOURCE "|" SOURCE,
     "$,$,$,$,$,$,$,$"},
    {"Link@GPI Link", "1..16", "bus|" SOURCE "|num 1 8 0|bool|num 0 255 0|num 1 255 0",
     "None,1,1,false,0,5"},
};

// --- Words ---

static std::string key_word(int bank, int key)
{
    return std::string(banks[bank].word) + " Key" + std::to_string(key);
}

static std::string bus_word(int bank, int bus)
{
    return std::string(banks[bank].word) + (bus == 0 ? " A" : " B");
}

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node ? node->value : "";
}

// --- Start ---

void SetupSwitcher_Install()
{
    SetupKind_Install({SWITCHER, settings, std::size(settings)});
    SetupList_Install(SWITCHER, tables);
    const std::string logical = SWITCHER + "Config@Logical M/E";
    Tree_Preset(logical, BANKS ",");
    Words names;
    for (int bank = 0; bank < int(std::size(banks)); ++bank)
        for (int bus = 0; bus < BUSES; ++bus)
            names.push_back(std::to_string(names.size() + 1) + "," + bus_word(bank, bus));
    Tree_SetList(SWITCHER + "Link@Internal Bus Link@Master Bus List", names, 1);
}

// --- What a panel asks for ---

static bool falls(const Words& curve)
{
    for (size_t i = 2; i < curve.size(); ++i)
        if (atoi(curve[i].c_str()) < atoi(curve[i - 1].c_str()))
            return true;
    return false;
}

// Every bank once.
static bool put_logical(const std::string& path, const std::string& value)
{
    Words wanted = Text_Split(value, ','), all = Text_Split(BANKS, ',');
    wanted.resize(all.size());
    const Words order = wanted;
    std::sort(wanted.begin(), wanted.end());
    std::sort(all.begin(), all.end());
    if (wanted != all)
        return SetupKind_Refuse(path, value);
    Tree_Show(path, value);
    // The row that works a bank is known by the bank's logical name.
    constexpr const char* rows[] = {"1st Row", "2nd Row", "3rd Row",
                                    "5th Row", "6th Row", "4th Row"};
    for (size_t i = 0; i < std::size(rows); ++i)
        Tree_Show(std::string("Engineering Setup@Panel@Config@M/E Assign@") + rows[i], order[i]);
    return true;
}

static bool put_me_config(const std::string& path, const std::string& value)
{
    const Words known = {"Standard", "Multi Program", "Multi Program 2", "DSK"};
    if (std::find(known.begin(), known.end(), value) == known.end())
        return SetupKind_Refuse(path, value);
    if (value == value_of(path))
        return true;
    (void)Setup_Multi(path.substr(path.rfind('@') + 1), value == "Multi Program 2");
    Tree_Show(path, value);
    return true;
}

// A function belongs to one region: the others lose it.
static bool put_user(const std::string& path, const std::string& value)
{
    const Words wanted = Text_Split(value, ',');
    static constexpr const char* known[] = {"FM?",  "FM1?",  "FM20",        "CCR?",
                                            "Aux?", "Aux1?", "Color Bkgd?", "Util?"};
    for (const std::string& word : wanted)
        if (!value.empty() && std::none_of(std::begin(known), std::end(known),
                                           [&](const char* k) { return Text_Matches(word, k); }))
            return SetupKind_Refuse(path, value);
    const std::string users = path.substr(0, path.size() - 1);
    for (int n = 1; n <= 8; ++n) {
        const std::string other = users + std::to_string(n);
        std::string left;
        for (const std::string& word : Text_Split(value_of(other), ','))
            if (std::find(wanted.begin(), wanted.end(), word) == wanted.end())
                left += (left.empty() ? "" : ",") + word;
        Tree_Show(other, other == path ? value : left);
    }
    return true;
}

bool SetupSwitcher_Put(const std::string& path, const std::string& value)
{
    if (path == SWITCHER + "Config@Logical M/E")
        return put_logical(path, value);
    if (Text_MatchesPath(path, SWITCHER + "Config@User1-8 Config@User?"))
        return put_user(path, value);
    if (Text_MatchesPath(path, SWITCHER + "Config@M/E Config@*"))
        return put_me_config(path, value);
    if (SetupList_Refuse(SWITCHER, tables, path, value))
        return true;
    if (path.ends_with("Fader Curve") && falls(Text_Split(value, ',')))
        return SetupKind_Refuse(path, value);
    return false;
}

// --- What goes along ---

// The links of a kind that are on, of which that is the master. The field says so: "true", or not
// "Off".
static std::vector<Link> links_of(const char* list, const char* kind, const std::string& master,
                                  size_t is_on)
{
    std::vector<Link> links;
    const Node* const node = Tree_Get(SWITCHER + list);
    if (!node || value_of(SWITCHER + "Link@Enable@" + kind) != "true")
        return links;
    for (const std::string& row : node->rows) {
        const Words f = Text_Split(row, ',');
        if (f.size() > is_on && f[1] == master && f[is_on] != "false" && f[is_on] != "Off")
            links.push_back({f[1], f[2], {f.begin() + 3, f.end()}});
    }
    return links;
}

static int bank_of_menu(const std::string& word)
{
    for (int i = 0; i < int(std::size(banks)); ++i)
        if (word == banks[i].menu)
            return i;
    return -1;
}

static int bank_of_word(const std::string& word)
{
    for (int i = 0; i < int(std::size(banks)); ++i)
        if (word == banks[i].word)
            return i;
    return -1;
}

// "M/E-1 Key2" as the operation pages call it.
static std::string key_path(const std::string& word)
{
    const size_t blank = word.rfind(' ');
    const int bank = blank == word.npos ? -1 : bank_of_word(word.substr(0, blank));
    if (bank < 0)
        return "";
    const bool is_pgm = std::string(banks[bank].menu) == "PGM/PST";
    return std::string(banks[bank].menu) + (is_pgm ? "@DSK" : "@Key") + word.substr(blank + 4);
}

static void follow_key(int bank, const std::string& key, const std::string& tail)
{
    const std::string value = value_of(std::string(banks[bank].menu) + "@" + key + tail);
    for (const Link& link :
         links_of("Link@Key Link", "Key Link", key_word(bank, key.back() - '0'), 3))
        if (const std::string linked = key_path(link.linked); !linked.empty())
            Verb_Do(linked + tail, value);
}

// The transitions of keys that a panel has linked.
static void follow_key_transition(int bank, const std::string& key)
{
    static bool is_following = false; // two keys may be linked to each other
    if (is_following)
        return;
    is_following = true;
    const Node* const links = Tree_Find("Engineering Setup@Panel@Config@Key Trans Link");
    const std::string master = key_word(bank, key.back() - '0');
    for (const std::string& row : links ? links->rows : Words()) {
        const Words f = Text_Split(row, ',');
        const std::string linked = f.size() > 3 && f[1] == master ? key_path(f[2]) : "";
        if (!linked.empty() && f[3] == "true")
            Verb_Do(linked + "@Transition@Auto Trans", "true");
    }
    is_following = false;
}

static void follow_bank(int bank, const std::string& tail, const char* mode,
                        const std::string& value)
{
    for (const Link& link : links_of("Link@M/E Link", "M/E Link", banks[bank].word, 3)) {
        const int linked = bank_of_word(link.linked);
        if (linked >= 0 && (link.more[0] == mode || link.more[0] == "All"))
            Verb_Do(banks[linked].menu + tail, value);
    }
}

// What a table makes of a source of the master; sources are cameras by their number.
static std::string source_by_table(const std::string& source, const std::string& table)
{
    const Node* const node = Tree_Get(SWITCHER + "Link@Internal Bus Link@Table");
    const std::string number = Text_Begins(source, "CAM") ? source.substr(3) : "";
    for (const std::string& row : node->rows) {
        const Words f = Text_Split(row, ',');
        if (f[0] == number)
            return "CAM" + f[size_t(atoi(table.c_str()))];
    }
    return source;
}

static void follow_bus(int bank, int bus)
{
    constexpr const char* tails[BUSES] = {"@Status@Xpt Assign@A", "@Status@Xpt Assign@B"};
    const std::string name = bus_word(bank, bus);
    const std::string source = value_of(banks[bank].menu + std::string(tails[bus]));
    for (const Link& link : links_of("Link@Internal Bus Link@Link", "Internal Bus Link", name, 4))
        for (int b = 0; b < int(std::size(banks)); ++b)
            for (int other = 0; other < BUSES; ++other)
                if (link.linked == bus_word(b, other))
                    Verb_Do(banks[b].menu + std::string(tails[other]),
                            source_by_table(source, link.more[0]));
    for (const Link& link : links_of("Link@GPI Link", "GPI Link", name, 4))
        if (source == "CAM" + link.linked)
            Log_Note("gpi output %s: %s on %s, delay %s, width %s", link.more[0].c_str(),
                     source.c_str(), name.c_str(), link.more[2].c_str(), link.more[3].c_str());
}

// Downstream keys that are on the air go with the next picture.
static void drop_keys()
{
    const std::string drop = SWITCHER + "Key/Wipe/FM/CCR@DSK Auto Drop@";
    for (int n = 1; n <= KEYS; ++n) {
        const std::string dsk = "DSK" + std::to_string(n), path = "PGM/PST@" + dsk;
        if (value_of(drop + "Auto Drop@" + dsk) != "true" ||
            value_of(path + "@Status@Key ON") != "true")
            continue;
        if (value_of(drop + "Mode@" + dsk) == "Cut")
            Verb_Do(path + "@Status@Key ON", "false");
        else
            Verb_Do(path + "@Transition@Auto Trans", "true");
    }
}

// A bank whose fourth key's place is the preview's has no such key.
static bool has_key4(int bank)
{
    const Node* const node = Tree_Get(SWITCHER + "Config@Key Config");
    const std::string wanted = std::string(banks[bank].word) + ",Key3 Key PVW";
    return std::find(node->rows.begin(), node->rows.end(), wanted) == node->rows.end();
}

static void drop_key4(int bank)
{
    if (!has_key4(bank))
        Verb_Do(key_path(key_word(bank, 4)) + "@Status@Key ON", "false");
}

// What a bank starts with, and how its buses change.
static void follow_setup(const std::string& setting, const std::string& value)
{
    for (int bank = 0; bank < int(std::size(banks)); ++bank) {
        const std::string trans = std::string(banks[bank].menu) + "@Misc@Transition@";
        if (setting == std::string("Transition@Default Rate@") + banks[bank].word)
            Tree_Get(trans + "Transition Rate")->initial = value;
        if (setting == std::string("Transition@Bus Toggle@") + banks[bank].word)
            Tree_Show(trans + "Flip-Flop", value);
        if (setting == "Config@Key Config")
            drop_key4(bank);
    }
}

void SetupSwitcher_Follow(const std::string& path)
{
    if (Text_Begins(path, SWITCHER))
        return follow_setup(path.substr(SWITCHER.size()), value_of(path));
    const int bank = bank_of_menu(Text_Head(path, 1));
    if (bank < 0)
        return;
    const std::string tail = path.substr(path.find('@'));
    const bool is_take = tail == "@Misc@Transition@Auto Trans" || tail == "@Misc@Transition@Cut";
    if (Text_MatchesPath(path, "*@*@Status@Key ON")) {
        const Words w = Text_Split(path, '@');
        follow_key(bank, w[1], "@Status@Key ON");
        drop_key4(bank);
    } else if (Text_MatchesPath(path, "*@Key?@Transition@Auto Trans") ||
               Text_MatchesPath(path, "*@DSK?@Transition@Auto Trans")) {
        follow_key_transition(bank, Text_Split(path, '@')[1]);
    } else if (is_take) {
        if (std::string(banks[bank].menu) == "PGM/PST")
            drop_keys();
        follow_bank(bank, tail, "Transition", "true");
    } else if (tail == "@Status@Xpt Assign@A" || tail == "@Status@Xpt Assign@B") {
        follow_bank(bank, tail, "Xpt", value_of(path));
        follow_bus(bank, tail.back() - 'A');
    }
}

// --- The curve of a transition ---

double SetupSwitcher_Curve(const std::string& bank, double percent)
{
    constexpr double fader[] = {0, 10, 25, 50, 75, 90, 100};
    const int number = bank_of_menu(bank);
    if (number < 0)
        return percent;
    const bool is_wipe = value_of(bank + "@Misc@Transition@Wipe") == "true";
    const std::string name = value_of(SWITCHER + "Transition@Transition Curve@" +
                                      (is_wipe ? "Wipe@" : "Mix@") + banks[number].word);
    std::vector<double> out = {0, 10, 25, 50, 75, 90, 100};
    if (name == "S Curve")
        out = {0, 3, 16, 50, 84, 97, 100};
    const Node* const curves = Tree_Get(SWITCHER + "Transition@Transition Curve@Fader Curve");
    for (const std::string& row : curves->rows) {
        const Words f = Text_Split(row, ',');
        for (size_t i = 1; f[0] == name && i < f.size(); ++i)
            out[i] = atoi(f[i].c_str());
    }
    for (size_t i = 1; i < out.size(); ++i)
        if (percent <= fader[i])
            return out[i - 1] +
                   (out[i] - out[i - 1]) * (percent - fader[i - 1]) / (fader[i] - fader[i - 1]);
    return 100;
}
