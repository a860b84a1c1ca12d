#include "unit_file.h"
#include "attach.h"
#include "frame_memory.h"
#include "log.h"
#include "region.h"
#include "store_private.h"
#include "text.h"
#include "tree.h"
#include "value_text.h"
#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <set>

namespace
{
// A category of registers: the words of its regions stand in rows of the store.
struct RegisterSet {
    const char* ext = "";
    StoreKind kind = STORE_EFFECT;
    int digits = 0; // of the number in a file name
};

// A category of values: what stands below tree words. "?" is one of 1 to 8.
struct ValueSet {
    const char* ext = "";
    const char* region = "";
    const char* trees = "";  // separated by "|"
    bool is_by_word = false; // every unit has the paths with its own word, the first not the rest
};
} // namespace

static constexpr const char* BANK_TREES =
    "M/E-1|M/E-2|M/E-3|M/E-4|M/E-5|PGM/PST|M/E-1 SUB|M/E-2 SUB|M/E-3 SUB|M/E-4 SUB|M/E-5 SUB|"
    "PGM/PST SUB";

static constexpr RegisterSet register_sets[] = {
    {"SKF", STORE_EFFECT, 3},   {"DKF", STORE_EFFECT, 4},  {"SSS", STORE_SNAPSHOT, 3},
    {"DSS", STORE_SNAPSHOT, 4}, {"SWS", STORE_WIPE, 3},    {"SDS", STORE_DME, 3},
    {"SKS", STORE_KEY, 2},      {"PSB", STORE_SHOTBOX, 4}, {"PMR", STORE_MACRO, 4},
};

static constexpr const char* KEY_TREES =
    "M/E-1@Key?|M/E-2@Key?|M/E-3@Key?|M/E-4@Key?|M/E-5@Key?|PGM/PST@DSK?";
static constexpr const char* VIDEO_PROCESS_TREES =
    "M/E-1@Misc@Video Process|M/E-2@Misc@Video Process|M/E-3@Misc@Video Process|"
    "M/E-4@Misc@Video Process|M/E-5@Misc@Video Process|PGM/PST@Misc@Video Process|"
    "M/E-1@Key?@Video Process|M/E-2@Key?@Video Process|M/E-3@Key?@Video Process|"
    "M/E-4@Key?@Video Process|M/E-5@Key?@Video Process|PGM/PST@DSK?@Video Process";

static constexpr ValueSet value_sets[] = {
    {"SST", "DEV", "Engineering Setup@Switcher"},
    {"SFS", "DEV", "Engineering Setup@System@Format"},
    {"SCC", "DEV", "CCR"},
    {"DST", "DEV", "Engineering Setup@DME", true},
    {"PST", "PNL", "Engineering Setup@Panel"},
    {"PST", "GUI", "Info@Operation Setup Data"},
    {"PST", "TLY", "Engineering Setup@Tally"},
    {"PST", "RTR", "Engineering Setup@Router"},
    {"SIS", "DEV", BANK_TREES},
    {"DIS", "CHF", "DME"},
    {"PIS", "PNL", "Panel"},
    {"SKM", "DEV", KEY_TREES},
    {"SVM", "DEV", VIDEO_PROCESS_TREES},
    {"PMA", "PNL", "Macro@Attachment"},
    {"SUS", "DEV", "Engineering Setup@User"},
    {"SUP", "DEV", "Engineering Setup@Panel@Prefs/Utility"},
    {"SUN", "DEV", "Engineering Setup@Panel@Xpt Assign"},
};

namespace
{
struct Category {
    const char* word = "";
    const char* exts = "";
    bool is_panel = false, is_switcher = false;
};
} // namespace

static constexpr Category categories[] = {
    {"SETUP", "SST,SFS,SCC,DST,PST", true, true},
    {"INITSTAT", "SIS,DIS,PIS", true, true},
    {"KEYMEM", "SKM", false, true},
    {"VPROCMEM", "SVM", false, true},
    {"EFFECT", "SKF,DKF", true, true},
    {"SNAPSHOT", "SSS,DSS", true, true},
    {"WSNAP", "SWS", false, true},
    {"DSNAP", "SDS", false, true},
    {"KSNAP", "SKS", false, true},
    {"SHOTBOX", "PSB", true, false},
    {"MACROATC", "PMA", true, false},
    {"MACRO", "PMR", true, false},
    {"FMNAME", "SFR", false, true},
    {"USRSETUP", "SUS,SUN,SUP", false, true},
};

static const std::string WORK = "/vorn/tmp/file/";
static const std::string KEPT = "/vorn/registers/"; // of a unit, below its folder
static constexpr const char* RESULT_LIST = "result.lst";

static struct {
    ResultFault fault = RESULT_RIGHT;
    std::map<std::string, std::string> names; // of registers, by the local path of their files
} uf;

// --- Names ---

bool UnitFile_Parse(const std::string& file_name, UnitFile* file)
{
    *file = {};
    const size_t dot = file_name.rfind('.');
    if (dot == std::string::npos)
        return false;
    const size_t mark = file_name.rfind('_', dot);
    long number = 0;
    if (mark == std::string::npos || mark + 1 == dot ||
        !isdigit((unsigned char)file_name[mark + 1]) ||
        !Text_ToInt(file_name.substr(mark + 1, dot - mark - 1), &number) || number > 9999)
        return false;
    const size_t begin = file_name.rfind('.', mark);
    const size_t region = begin == std::string::npos ? 0 : begin + 1;
    file->name = begin == std::string::npos ? "" : file_name.substr(0, begin);
    file->region = file_name.substr(region, mark - region);
    file->ext = file_name.substr(dot + 1);
    std::transform(file->ext.begin(), file->ext.end(), file->ext.begin(),
                   [](unsigned char c) { return char(toupper(c)); });
    file->number = int(number);
    return !file->region.empty();
}

static bool has_word(const char* words, const std::string& word)
{
    const auto all = Text_Split(words, ',');
    return std::find(all.begin(), all.end(), word) != all.end();
}

const char* UnitFile_Category(const UnitFile& file)
{
    for (const Category& category : categories)
        if (has_word(category.exts, file.ext))
            return category.word;
    return nullptr;
}

static const Category* category_of(const std::string& word)
{
    for (const Category& category : categories)
        if (word == category.word)
            return &category;
    return nullptr;
}

bool UnitFile_IsCategory(const std::string& word, HostKind host)
{
    const Category* const category = category_of(word);
    return category && (host == HOST_PNL ? category->is_panel : category->is_switcher);
}

static int index_of(const std::string& text, const char* head, int count)
{
    long number = 0;
    const bool is_one =
        Text_Begins(text, head) && Text_ToInt(text.substr(std::string(head).size()), &number);
    return is_one && number >= 1 && number <= count ? int(number) - 1 : -1;
}

// "ME1" to "ME5" and "PP", from 0.
static int bank_of(const std::string& word)
{
    return word == "PP" ? 5 : index_of(word, "ME", 5);
}

static constexpr int BANKS = 6;
static constexpr int KEYS = 8;

// The row that a region's registers stand in; -1: the simulator has none.
static int row_of(const RegisterSet& set, HostKind host, int unit, const std::string& region)
{
    if (set.kind == STORE_SHOTBOX || set.kind == STORE_MACRO)
        return region == "PNL" && unit == 1 ? 0 : -1;
    if (host == HOST_DME) {
        if (unit > 2)
            return -1;
        const int channel = region == "CHF" ? 0 : index_of(region, "CH", 4);
        return channel < 0 ? -1 : REGION_DME1 + 4 * (unit - 1) + channel;
    }
    if (host != HOST_SWR || unit != 1)
        return -1;
    const size_t mark = region.find('_');
    const int bank = bank_of(region.substr(0, mark));
    const std::string tail = mark == std::string::npos ? "" : region.substr(mark + 1);
    if (set.kind == STORE_KEY) {
        const int key = index_of(tail, "", KEYS);
        return bank < 0 || key < 0 ? -1 : bank * KEYS + key;
    }
    if (bank >= 0 && (tail.empty() || tail == "SUB"))
        return bank + (tail.empty() ? 0 : BANKS);
    if (set.kind == STORE_WIPE || set.kind == STORE_DME)
        return -1;
    if (const int user = index_of(region, "USR", 8); user >= 0)
        return REGION_USER1 + user;
    if (set.kind == STORE_SNAPSHOT)
        return region == "RTR" ? REGION_SNAPSHOTS : -1;
    if (const int device = index_of(region, "DEV", 12); device >= 0)
        return REGION_DEV1 + device;
    return region == "PBUS"   ? REGION_PBUS
           : region == "GPI"  ? REGION_PBUS + 1
           : region == "MCRO" ? int(REGION_MACRO)
                              : -1;
}

// The reverse: the file regions of a row, which the effects units tell by their number.
static std::string region_of(const RegisterSet& set, int row, int number)
{
    static const char* const banks[] = {"ME1", "ME2", "ME3", "ME4", "ME5", "PP"};
    if (set.kind == STORE_SHOTBOX || set.kind == STORE_MACRO)
        return "PNL";
    if (set.kind == STORE_KEY)
        return Text_Format("%s_%d", banks[row / KEYS], row % KEYS + 1);
    if (row < 2 * BANKS)
        return std::string(banks[row % BANKS]) + (row < BANKS ? "" : "_SUB");
    if (row < REGION_DME1)
        return Text_Format("USR%d", row - REGION_USER1 + 1);
    if (row < REGION_DEV1)
        return number > 100 ? "CHF" : Text_Format("CH%d", (row - REGION_DME1) % 4 + 1);
    if (set.kind == STORE_SNAPSHOT)
        return "RTR";
    if (row < REGION_PBUS)
        return Text_Format("DEV%d", row - REGION_DEV1 + 1);
    return row == REGION_PBUS ? "PBUS" : row == REGION_MACRO ? "MCRO" : "GPI";
}

static const RegisterSet* register_set(const std::string& ext)
{
    for (const RegisterSet& set : register_sets)
        if (ext == set.ext)
            return &set;
    return nullptr;
}

static const ValueSet* value_set(const UnitFile& file)
{
    for (const ValueSet& set : value_sets)
        if (file.ext == set.ext && file.region == set.region)
            return &set;
    return nullptr;
}

static std::string kept_file(HostKind host, int unit, const UnitFile& file)
{
    return Drive_UnitFolder(host, unit) + KEPT +
           Text_Format("%s_%04d.%s", file.region.c_str(), file.number, file.ext.c_str());
}

// A register's name as panels write it in a file name.
static std::string safe_name(std::string name)
{
    for (char& c : name)
        if (!isalnum((unsigned char)c) && c != '-' && c != '+')
            c = '_';
    return name;
}

// --- Registers ---

static void write_effect(const Effect& effect, std::string* text)
{
    *text += Text_Format("effect %d,%d,%d,%d\n", effect.delay, effect.loop_first, effect.loop_last,
                         effect.loop_count);
    for (const Keyframe& key : effect.keys)
        *text += Text_Format("key %d,%d\n", key.duration, int(key.has_pause));
}

static std::string write_register(const Kind& kind, const Register& r)
{
    std::string text = Text_Format("register %s\nname %s\nlocked %d\n", kind.word, r.name.c_str(),
                                   int(r.is_locked));
    text += Text_Format("pattern %d\nhold %s\ndissolve %d,%d\nauto %d,%d,%d\n", r.pattern,
                        r.hold.c_str(), int(r.has_dissolve), r.duration, int(r.has_auto_transition),
                        int(r.has_gpi), int(r.is_auto_run));
    std::string links;
    for (const int link : r.links)
        links += Text_Format(links.empty() ? "%d" : ",%d", link);
    text += "links " + links + "\n";
    write_effect(r.effect, &text);
    for (const auto& [tail, value] : r.values)
        text += "value " + tail + "#" + value + "\n";
    return text;
}

// The numbers of a line, 0 for those that are missing or none.
static std::vector<int> numbers_of(const std::string& text)
{
    std::vector<int> numbers;
    for (const std::string& part : Text_Split(text, ',')) {
        long number = 0;
        numbers.push_back(Text_ToInt(part, &number) && number >= 0 && number < 1000000 ? int(number)
                                                                                       : 0);
    }
    numbers.resize(std::max<size_t>(numbers.size(), 5));
    return numbers;
}

static std::vector<int> links_of(const std::string& text)
{
    std::vector<int> links;
    for (const std::string& part : Text_Split(text, ',')) {
        long number = 0;
        const bool is_link = Text_ToInt(part, &number) && std::abs(number) < 1000;
        links.push_back(is_link ? int(number) : 0);
    }
    return links;
}

static void read_line(const std::string& word, const std::string& rest, Register& r)
{
    const auto n = numbers_of(rest);
    if (word == "name") {
        r.name = rest.substr(0, NAME_BYTES);
    } else if (word == "locked") {
        r.is_locked = n[0];
    } else if (word == "pattern") {
        r.pattern = n[0];
    } else if (word == "hold") {
        r.hold = rest;
    } else if (word == "dissolve") {
        r.has_dissolve = n[0];
        r.duration = n[1];
    } else if (word == "auto") {
        r.has_auto_transition = n[0];
        r.has_gpi = n[1];
        r.is_auto_run = n[2];
    } else if (word == "links") {
        r.links = links_of(rest);
    } else if (word == "effect") {
        r.effect.delay = n[0];
        r.effect.loop_first = n[1];
        r.effect.loop_last = n[2];
        r.effect.loop_count = std::min(n[3], LOOPS_MAX);
    } else if (word == "key" && r.effect.keys.size() < TIMELINE_KEYFRAMES) {
        r.effect.keys.push_back({std::min(n[0], KEYFRAME_FRAMES), n[1] != 0});
    } else if (word == "value" && rest.find('#') != std::string::npos) {
        r.values[rest.substr(0, rest.find('#'))] = rest.substr(rest.find('#') + 1);
    }
}

static bool read_register(const Kind& kind, const std::string& bytes, Register* r)
{
    const auto lines = Text_Split(bytes, '\n');
    if (lines[0] != std::string("register ") + kind.word)
        return false;
    for (const std::string& line : lines) {
        const size_t blank = line.find(' ');
        if (blank != std::string::npos)
            read_line(line.substr(0, blank), line.substr(blank + 1), *r);
    }
    const int keys = int(r->effect.keys.size());
    if (r->effect.loop_last > keys)
        r->effect.loop_first = r->effect.loop_last = 0;
    return true;
}

// A macro's body is a list of events; it is kept as it came.
static std::string write_macro(const UnitFile& file, const Register& r)
{
    return Text_Format("PNL 0001PNL_%04d.PMR%s", file.number, r.name.c_str()) +
           (r.macro.empty() ? "\n" : r.macro);
}

static bool read_macro(const std::string& bytes, Register* r)
{
    constexpr size_t HEAD = 20;
    if (!Text_Begins(bytes, "PNL") || bytes.size() < HEAD || bytes.substr(16, 4) != ".PMR")
        return false;
    const size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    r->name = bytes.substr(HEAD, end > HEAD ? end - HEAD : 0).substr(0, NAME_BYTES);
    r->macro = bytes.substr(end);
    return true;
}

// --- Files ---

static std::vector<std::string> value_trees(const ValueSet& set)
{
    std::vector<std::string> trees;
    for (const std::string& tree : Text_Split(set.trees, '|')) {
        const size_t mark = tree.find('?');
        for (int n = 1; n <= KEYS && mark != tree.npos; ++n)
            trees.push_back(std::string(tree).replace(mark, 1, std::to_string(n)));
        if (mark == tree.npos)
            trees.push_back(tree);
    }
    return trees;
}

// The units of a kind share the trees: the first has all that isn't the second's by its word.
static std::string value_word(const ValueSet& set, HostKind host, int unit)
{
    const char* const kind = host == HOST_SWR ? "SWR" : host == HOST_PNL ? "PNL" : "DME";
    const bool is_other = unit == 1 && !set.is_by_word;
    return Text_Format("%s%s%d", is_other ? "!" : "", kind, is_other ? 2 : unit);
}

constexpr char ATTACHMENTS_HEAD[] = "attachments PMA\n"; // of the panel that macros hang on

static bool is_attachments(HostKind host, int unit, const UnitFile& file)
{
    return file.ext == "PMA" && host == HOST_PNL && unit == 1 && file.number == 0;
}

static std::string load_attachments(const std::string& bytes)
{
    if (!Text_Begins(bytes, ATTACHMENTS_HEAD))
        return "NG(File Type Error)";
    Attach_Load(bytes.substr(strlen(ATTACHMENTS_HEAD)));
    return "";
}

static std::string frame_names();
static std::string load_frame_names(const std::string& bytes);

bool UnitFile_Make(HostKind host, int unit, const UnitFile& file, std::string* bytes)
{
    const RegisterSet* const set = register_set(file.ext);
    const int row = set ? row_of(*set, host, unit, file.region) : -1;
    if (row >= 0) {
        const Kind& kind = Store_Kind(set->kind);
        if (!Store_IsNumber(kind, row, file.number))
            return false;
        const Register& r = Store_Register(kind, row, file.number);
        if (r.exists)
            *bytes = kind.kind == STORE_MACRO ? write_macro(file, r) : write_register(kind, r);
        return r.exists;
    }
    if (is_attachments(host, unit, file)) {
        *bytes = ATTACHMENTS_HEAD + Attach_Write();
        return true;
    }
    const ValueSet* const values = value_set(file);
    if (values && file.number == 0) {
        *bytes = "values " + file.ext + "\n" +
                 ValueText_Write(value_trees(*values), value_word(*values, host, unit));
        return true;
    }
    if (file.ext == "SFR" && host == HOST_SWR && unit == 1 && file.number <= 1) {
        *bytes = frame_names();
        return true;
    }
    return Drive_Read(kept_file(host, unit, file), bytes);
}

static std::string load_register(const RegisterSet& set, int row, const UnitFile& file,
                                 const std::string& bytes)
{
    const Kind& kind = Store_Kind(set.kind);
    if (!Store_IsNumber(kind, row, file.number))
        return "NG(Invalid Register)";
    Register& r = Store_Register(kind, row, file.number);
    if (r.is_locked)
        return "NG(Locked)";
    Register loaded;
    const bool is_sound =
        kind.kind == STORE_MACRO ? read_macro(bytes, &loaded) : read_register(kind, bytes, &loaded);
    if (!is_sound)
        return "NG(File Type Error)";
    // A file that was renamed renames the register; its safe spelling alone does not.
    if (!file.name.empty() && file.name != safe_name(loaded.name))
        loaded.name = file.name.substr(0, NAME_BYTES);
    std::replace(loaded.name.begin(), loaded.name.end(), ',', ' '); // it stands in a list line
    loaded.exists = true;
    loaded.effect.name = loaded.name;
    r = loaded;
    Store_Show(kind, row, file.number);
    return "";
}

std::string UnitFile_Load(HostKind host, int unit, const UnitFile& file, const std::string& bytes)
{
    const RegisterSet* const set = register_set(file.ext);
    const int row = set ? row_of(*set, host, unit, file.region) : -1;
    if (row >= 0)
        return load_register(*set, row, file, bytes);
    if (is_attachments(host, unit, file))
        return load_attachments(bytes);
    if (const ValueSet* const values = value_set(file)) {
        const std::string head = "values " + file.ext + "\n";
        if (!Text_Begins(bytes, head))
            return "NG(File Type Error)";
        ValueText_Load(bytes.substr(head.size()), value_trees(*values),
                       value_word(*values, host, unit));
        return "";
    }
    if (file.ext == "SFR" && host == HOST_SWR && unit == 1)
        return load_frame_names(bytes);
    return UnitFile_Category(file) ? Drive_Write(kept_file(host, unit, file), bytes)
                                   : "NG(File Type Error)";
}

static std::string frame_names()
{
    std::string text = "names SFR\n";
    for (const FrameName& frame : FrameMemory_Names())
        text += Text_Format("%d,%s\n", frame.number, frame.name.c_str());
    return text;
}

static std::string load_frame_names(const std::string& bytes)
{
    if (!Text_Begins(bytes, "names SFR\n"))
        return "NG(File Type Error)";
    for (const std::string& line : Text_Split(bytes, '\n')) {
        long number = 0;
        const size_t comma = line.find(',');
        if (comma != std::string::npos && Text_ToInt(line.substr(0, comma), &number))
            FrameMemory_Rename(int(number), line.substr(comma + 1));
    }
    return "";
}

// --- What a unit has of a category ---

namespace
{
struct Held {
    HostKind host = HOST_NONE;
    int unit = 0;
    UnitFile file;
};
} // namespace

static void add_registers(const RegisterSet& set, HostKind host, int unit, std::vector<Held>* held)
{
    const Kind& kind = Store_Kind(set.kind);
    for (int row = 0; row < kind.rows; ++row)
        for (const auto& [number, r] : Store_Row(kind, row)) {
            const std::string region = region_of(set, row, number);
            if (r.exists && row_of(set, host, unit, region) == row)
                held->push_back({host, unit, {r.name, region, set.ext, number}});
        }
}

static bool is_ext_of(HostKind host, const std::string& ext)
{
    return ext[0] == (host == HOST_SWR ? 'S' : host == HOST_PNL ? 'P' : 'D');
}

static std::vector<Held> held_by(const Category& category, HostKind host, int unit)
{
    std::vector<Held> held;
    for (const std::string& ext : Text_Split(category.exts, ',')) {
        if (!is_ext_of(host, ext))
            continue;
        if (const RegisterSet* set = register_set(ext))
            add_registers(*set, host, unit, &held);
        for (const ValueSet& set : value_sets)
            if (ext == set.ext)
                held.push_back({host, unit, {"", set.region, ext, 0}});
        if (ext == "SFR")
            held.push_back({host, unit, {"", "DEV", ext, 0}});
    }
    Place folder;
    folder.path = KEPT;
    folder.local = Drive_UnitFolder(host, unit) + KEPT;
    UnitFile file;
    for (const Entry& entry : Drive_List(folder, 0))
        if (UnitFile_Parse(Drive_FileName(entry.path), &file) &&
            has_word(category.exts, file.ext) && file.ext != "PMR")
            held.push_back({host, unit, file});
    return held;
}

// --- Work folders ---

namespace
{
struct Owner {
    HostKind host;
    int unit;
};
} // namespace

// A switcher speaks for its effects units, two each.
static std::vector<Owner> owners_of(HostKind host, int unit)
{
    std::vector<Owner> owners = {{host, unit}};
    if (host == HOST_SWR) {
        owners.push_back({HOST_DME, 2 * unit - 1});
        owners.push_back({HOST_DME, 2 * unit});
    }
    return owners;
}

static std::string target_word(HostKind host, int unit)
{
    return Text_Format("%s%d", host == HOST_PNL ? "PNL" : "SWR", unit);
}

static std::string work_path(const std::string& category, HostKind host, int unit)
{
    return WORK + category + "/" + target_word(host, unit) + "/";
}

static std::string work_folder(const Owner& owner, const std::string& category, HostKind host,
                               int unit)
{
    return Drive_UnitFolder(owner.host, owner.unit) + work_path(category, host, unit);
}

bool UnitFile_IsWork(const std::string& path, std::string* category, std::string* target)
{
    if (!Text_Begins(path, WORK))
        return false;
    const auto part = Text_Split(path.substr(WORK.size()), '/');
    if (part.size() < 3)
        return false;
    *category = part[0];
    *target = part[1];
    return true;
}

void UnitFile_ClearWork(const std::string& category, HostKind host, int unit)
{
    for (const Owner& owner : owners_of(host, unit)) {
        const std::string folder = work_folder(owner, category, host, unit);
        (void)Drive_RemoveFolder(folder); // there may be none
        std::erase_if(uf.names, [&](const auto& name) { return Text_Begins(name.first, folder); });
    }
}

void UnitFile_NoteName(const std::string& local, const std::string& name)
{
    if (!name.empty())
        uf.names[local] = name;
}

void UnitFile_SetResultFault(ResultFault fault)
{
    uf.fault = fault;
}

static std::string result_line(const std::string& name, const std::string& error)
{
    switch (uf.fault) {
    case RESULT_LOWER: return name + "," + (error.empty() ? "ok" : error) + "\n";
    case RESULT_TRAILING: return name + ",OK \n";
    case RESULT_NG: return name + ",NG(Busy)\n";
    case RESULT_CRLF: return name + "," + (error.empty() ? "OK" : error) + "\r\n";
    case RESULT_NO_COMMA: return "a line without its mark\n" + name + ",OK\n";
    case RESULT_LONG: {
        std::string text(1023, 'x'); // appended to: g++ 12 warns of a sum at -O2
        text.append(",y\n").append(name).append(",OK\n");
        return text;
    }
    default: return name + "," + (error.empty() ? "OK" : error) + "\n";
    }
}

static void write_results(const std::string& category, HostKind host, int unit,
                          const std::string& lines)
{
    const std::string local =
        Drive_UnitFolder(host, unit) + work_path(category, host, unit) + RESULT_LIST;
    std::string error;
    if (uf.fault == RESULT_MISSING)
        (void)Drive_Remove(local);
    else
        error = Drive_Write(local, lines);
    if (!error.empty())
        Log_Note("no result list: %s", error.c_str());
}

// The name on the unit, and that on a drive, which says the register's name as well.
static std::string unit_name(const UnitFile& file)
{
    const RegisterSet* const set = register_set(file.ext);
    return Text_Format("%s_%0*d.%s", file.region.c_str(), set ? set->digits : 4, file.number,
                       file.ext.c_str());
}

void UnitFile_PrepareGet(const std::string& word, HostKind host, int unit)
{
    const Category* const category = category_of(word);
    std::string lines, bytes;
    for (const Owner& owner : category ? owners_of(host, unit) : std::vector<Owner>())
        for (const Held& held : held_by(*category, owner.host, owner.unit)) {
            if (!UnitFile_Make(held.host, held.unit, held.file, &bytes))
                continue;
            const std::string name = unit_name(held.file);
            const std::string error =
                Drive_Write(work_folder(owner, word, host, unit) + name, bytes);
            // Panels name it with the register's name or without, a setting, which has none, also
            // by its category.
            const std::string& held_name = held.file.name;
            std::set<std::string> spellings = {name, safe_name(held_name) + "." + name,
                                               held_name + "." + name};
            if (held_name.empty())
                spellings.insert(word + "." + name);
            for (const std::string& spelling : spellings)
                lines += result_line(spelling, error);
        }
    write_results(word, host, unit, lines);
}

void UnitFile_TakePut(const std::string& word, HostKind host, int unit)
{
    std::string lines, bytes;
    for (const Owner& owner : owners_of(host, unit)) {
        Place folder;
        folder.path = work_path(word, host, unit);
        folder.local = work_folder(owner, word, host, unit);
        for (const Entry& entry : Drive_List(folder, 0)) {
            const std::string name = Drive_FileName(entry.path);
            if (name == RESULT_LIST)
                continue;
            UnitFile file;
            const bool is_file = UnitFile_Parse(name, &file) && Drive_Read(entry.local, &bytes);
            const auto noted = uf.names.find(entry.local);
            if (file.name.empty() && noted != uf.names.end())
                file.name = noted->second;
            lines += result_line(name, is_file ? UnitFile_Load(owner.host, owner.unit, file, bytes)
                                               : "NG(File Type Error)");
        }
    }
    write_results(word, host, unit, lines);
}
