#include "frame_memory.h"
#include "drive.h"
#include "frame_file.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <cctype>
#include <map>

namespace
{
struct Frame {
    bool is_stored = false;
    std::string name;
    int folder = 0;
    unsigned version = 0;  // of the picture: a panel fetches each one once
    bool is_drawn = false; // else there is a file
};
} // namespace

static constexpr int BANK = 128; // registers told together
static constexpr int FIRST_EXTENDED = 16384;
static constexpr int FOLDERS = 12; // the first is the system's
static constexpr size_t NAME_BYTES = 9;
static constexpr size_t FOLDER_BYTES = 8;
static constexpr int CAPACITY = 1000;
static constexpr int OUTPUTS = 8;
static const std::string STATUS = "16@Frame Mem@Status@";
static const std::string MOVE_STILL = "Frame Mem@Folder@Move Still";
static const std::string ANCILLARY = "Frame Mem@Clip@Ancillary Playback Enable";

static struct {
    std::vector<Frame> frames[FRAME_STORES];
    bool has_extended = false;
    std::string folders[FOLDERS];
    std::map<std::string, bool> ancillary; // of clips, by name with the prefix
    unsigned last_version = 0;
    // The version that each panel was last told of, by client and command number.
    std::map<std::pair<int, int>, unsigned> told;
} fm;

// The external drive: what it holds, and the work under way, in steps.
static struct {
    std::vector<Frame> frames[FRAME_STORES];
    std::string folders[FOLDERS];
    bool is_load = false;
    int step = 0;
    int64_t next_ms = INT64_MAX; // of its next step: none
} hdd;
static const std::string HDD = "16@Frame Mem@External HDD@";
static constexpr int HDD_STEPS = 20;
static constexpr int HDD_STEP_MS = 200;

// --- Names ---

bool FrameMemory_Parse(const std::string& file_name, FrameRef* ref)
{
    *ref = {};
    const size_t dot = file_name.rfind('.');
    if (dot == std::string::npos)
        return false;
    const std::string stem = file_name.substr(0, dot);
    const size_t mark = stem.rfind('.');
    std::string place = mark == std::string::npos ? stem : stem.substr(mark + 1);
    ref->name = mark == std::string::npos ? "" : stem.substr(0, stem.find('.'));
    ref->ext = file_name.substr(dot + 1);
    std::transform(ref->ext.begin(), ref->ext.end(), ref->ext.begin(),
                   [](unsigned char c) { return char(toupper(c)); });
    const bool is_extended = Text_Begins(place, "FMEX");
    if (!is_extended && !Text_Begins(place, "FMEM"))
        return false;
    ref->store = is_extended ? FRAME_EXTENDED : FRAME_MAIN;
    place.erase(0, place.size() > 4 && place[4] == '_' ? 5 : 4);
    long number = 0;
    const bool is_number = !place.empty() && isdigit((unsigned char)place[0]) &&
                           Text_ToInt(place, &number) && number <= 9999;
    ref->number = int(number);
    return is_number;
}

static std::string file_of(FrameStore store, int number)
{
    return Drive_UnitFolder(HOST_SWR, 1) +
           Text_Format("/vorn/frames/%s%04d.SFM", store == FRAME_MAIN ? "FMEM" : "FMEX", number);
}

static Frame* frame_at(FrameStore store, int number)
{
    auto& frames = fm.frames[store];
    return number >= 1 && number <= int(frames.size()) ? &frames[size_t(number - 1)] : nullptr;
}

// --- What panels hear ---

// The first register of a bank is the lowest bit of the last digit.
static std::string bank_status(FrameStore store, int bank)
{
    std::string digits(BANK / 4, '0');
    for (int i = 0; i < BANK; ++i) {
        const Frame* frame = frame_at(store, bank * BANK + i + 1);
        char& digit = digits[size_t(BANK / 4 - 1 - i / 4)];
        if (!frame || !frame->is_stored)
            continue;
        const int value = (digit >= 'A' ? digit - 'A' + 10 : digit - '0') | 1 << i % 4;
        digit = "0123456789ABCDEF"[value];
    }
    return digits;
}

static std::string bank_folders(FrameStore store, int bank)
{
    std::string digits;
    for (int i = 0; i < BANK; ++i) {
        const Frame* frame = frame_at(store, bank * BANK + i + 1);
        digits += Text_Format("%02X", frame ? frame->folder : 0);
    }
    return digits;
}

static int bank_number(FrameStore store, int bank)
{
    return bank + (store == FRAME_EXTENDED ? FIRST_EXTENDED / BANK : 0);
}

static void show_bank(FrameStore store, int bank)
{
    const std::string number = std::to_string(bank_number(store, bank));
    Tree_Show(STATUS + "Register Status@" + number, bank_status(store, bank));
}

// Not told: who follows has heard of the one register that moved.
static void keep_folders(FrameStore store, int bank)
{
    const std::string number = std::to_string(bank_number(store, bank));
    if (Node* node = Tree_Get(STATUS + "Folder Status@" + number))
        node->value = bank_folders(store, bank);
}

static void show_room()
{
    const auto& frames = fm.frames[FRAME_MAIN];
    const auto stored = std::count_if(frames.begin(), frames.end(),
                                      [](const Frame& frame) { return frame.is_stored; });
    for (const char* tail : {"Store Number Sense", "Store Number2 Sense"})
        Tree_Show(std::string("Frame Mem@Status@") + tail,
                  std::to_string(long(frames.size()) - long(stored)));
}

static std::string folder_names()
{
    std::string text;
    for (int id = 0; id < FOLDERS; ++id)
        text += Text_Format("%s%d,%s", id ? "," : "", id, fm.folders[id].c_str());
    return text;
}

static int command_number(FrameStore store, int number)
{
    return number + (store == FRAME_EXTENDED ? FIRST_EXTENDED : 0);
}

// 1: a picture that this panel hasn't seen; 81: stored, and it has it; 0: empty.
static void tell_name(int client, FrameStore store, int number)
{
    const Frame* const frame = frame_at(store, number);
    const bool is_stored = frame && frame->is_stored;
    const int command = command_number(store, number);
    unsigned& told = fm.told[{client, command}];
    const bool is_new = is_stored && told != frame->version;
    told = is_stored ? frame->version : 0;
    Link_SendLine(client, STATUS + Text_Format("File Name Sense#%d,%s,%s", command,
                                               !is_stored ? "0"
                                               : is_new   ? "1"
                                                          : "81",
                                               is_stored ? frame->name.c_str() : ""));
}

// All panels that have asked for names before, or follow the status.
static void tell_name_to_all(FrameStore store, int number)
{
    const Node* const node = Tree_Find(STATUS + "Register Status@" +
                                       std::to_string(bank_number(store, (number - 1) / BANK)));
    for (const int client : node ? node->followers : std::vector<int>())
        tell_name(client, store, number);
}

// A bit that changes makes panels ask for all names of its bank; a new name in its place is told.
static void show_register(FrameStore store, int number)
{
    const int bank = (number - 1) / BANK;
    const std::string path = STATUS + "Register Status@" + std::to_string(bank_number(store, bank));
    const Node* const node = Tree_Get(path);
    const bool is_bit_new = node && node->value != bank_status(store, bank);
    show_bank(store, bank);
    if (!is_bit_new)
        tell_name_to_all(store, number);
    keep_folders(store, bank);
    show_room();
}

// --- Changing ---

static void empty_register(FrameStore store, int number)
{
    Frame* const frame = frame_at(store, number);
    if (!frame || !frame->is_stored)
        return;
    (void)Drive_Remove(file_of(store, number)); // a drawn one has none
    *frame = {};
    show_register(store, number);
}

static void set_register(FrameStore store, int number, const std::string& name, bool is_drawn)
{
    Frame* const frame = frame_at(store, number);
    frame->is_stored = true;
    frame->name = name.substr(0, NAME_BYTES);
    frame->version = ++fm.last_version;
    frame->is_drawn = is_drawn;
}

static FrameFile drawn(const Frame& frame, int width, int height)
{
    FrameFile file;
    file.name = frame.name;
    file.picture = Picture_Draw(frame.name, width, height);
    return file;
}

bool FrameMemory_Read(const FrameRef& ref, std::string* bytes)
{
    const Frame* const frame = frame_at(ref.store, ref.number);
    if (!frame || !frame->is_stored)
        return false;
    const bool is_thumbnail = ref.ext == "SFT";
    FrameFile file;
    std::string stored;
    if (frame->is_drawn)
        file = drawn(*frame, is_thumbnail ? THUMBNAIL_WIDTH : FRAME_WIDTH,
                     is_thumbnail ? THUMBNAIL_HEIGHT : FRAME_HEIGHT);
    else if (!Drive_Read(file_of(ref.store, ref.number), &stored) || !FrameFile_Read(stored, &file))
        return false;
    file.name = frame->name;
    file.is_packed = ref.ext == "SF2" || ref.ext == "SF4";
    if (is_thumbnail && !frame->is_drawn)
        file.picture = Picture_Scale(file.picture, THUMBNAIL_WIDTH, THUMBNAIL_HEIGHT);
    *bytes = FrameFile_Write(file);
    return true;
}

std::string FrameMemory_Store(const FrameRef& ref, const std::string& bytes)
{
    FrameFile file;
    if (!frame_at(ref.store, ref.number) || (ref.store == FRAME_EXTENDED && !fm.has_extended))
        return "NG(Invalid Register)";
    if (!FrameFile_Read(bytes, &file))
        return "NG(File Type Error)";
    file.is_packed = false;
    if (!ref.name.empty())
        file.name = ref.name;
    std::replace(file.name.begin(), file.name.end(), ',', '_'); // it stands in a line
    const std::string error = Drive_Write(file_of(ref.store, ref.number), FrameFile_Write(file));
    if (!error.empty())
        return error;
    set_register(ref.store, ref.number, file.name, false);
    show_register(ref.store, ref.number);
    return "";
}

std::vector<FrameName> FrameMemory_Names()
{
    std::vector<FrameName> names;
    int number = 0;
    for (const Frame& frame : fm.frames[FRAME_MAIN]) {
        ++number;
        if (frame.is_stored)
            names.push_back({number, frame.name});
    }
    return names;
}

void FrameMemory_Rename(int number, const std::string& name)
{
    Frame* const frame = frame_at(FRAME_MAIN, number);
    if (!frame || !frame->is_stored || name.empty() || frame->name == name)
        return;
    frame->name = name.substr(0, NAME_BYTES);
    show_register(FRAME_MAIN, number);
}

// --- Commands of panels ---

static void for_name(const std::string& name, void (*func)(FrameStore, int, int), int value)
{
    for (int store = 0; store < FRAME_STORES; ++store)
        for (int n = 1; n <= int(fm.frames[store].size()); ++n)
            if (fm.frames[store][size_t(n - 1)].is_stored &&
                fm.frames[store][size_t(n - 1)].name == name)
                func(FrameStore(store), n, value);
}

static void put_delete(const std::string& name)
{
    for_name(
        name, [](FrameStore store, int n, int) { empty_register(store, n); }, 0);
}

static void put_delete_all()
{
    for (int store = 0; store < FRAME_STORES; ++store)
        for (int n = 1; n <= int(fm.frames[store].size()); ++n)
            empty_register(FrameStore(store), n);
}

// "0,NAME,FOLDER"; told with the folder in hexadecimal.
static void put_move(const std::string& value)
{
    const auto part = Text_Split(value, ',');
    long folder = 0;
    if (part.size() != 3 || !Text_ToInt(part[2], &folder) || folder < 0 || folder >= FOLDERS)
        return;
    for_name(
        part[1],
        [](FrameStore store, int n, int to) {
            frame_at(store, n)->folder = to;
            keep_folders(store, (n - 1) / BANK);
        },
        int(folder));
    if (const Node* node = Tree_Get(MOVE_STILL))
        Tree_Tell(*node, Text_Format("0,%s,%lX", part[1].c_str(), folder), 0);
}

// "ID,NAME" gives a folder its name; no name: the folder goes and what was in it goes to the first.
static void put_folder(const std::string& value, bool is_delete)
{
    const size_t comma = value.find(',');
    long id = 0;
    if (!Text_ToInt(value.substr(0, comma), &id) || id < 1 || id >= FOLDERS ||
        (comma == std::string::npos) != is_delete)
        return;
    std::string name = is_delete ? "" : value.substr(comma + 1).substr(0, FOLDER_BYTES);
    std::replace(name.begin(), name.end(), ',', '_');
    fm.folders[id] = name;
    for (int store = 0; store < FRAME_STORES && name.empty(); ++store) {
        auto& frames = fm.frames[store];
        for (Frame& frame : frames)
            if (frame.folder == id)
                frame.folder = 0;
        for (int bank = 0; bank * BANK < int(frames.size()); ++bank)
            Tree_Show(STATUS + "Folder Status@" +
                          std::to_string(bank_number(FrameStore(store), bank)),
                      bank_folders(FrameStore(store), bank));
    }
    Tree_Show(STATUS + "Folder Name Sense", folder_names());
}

// "0,CLIP" asks, "0,CLIP,1" sets; all who follow hear it.
static void put_ancillary(int client, const std::string& value)
{
    const auto part = Text_Split(value, ',');
    if (part.size() < 2)
        return;
    if (part.size() > 2)
        fm.ancillary[part[1]] = part[2] == "1" || part[2] == "true";
    const auto found = fm.ancillary.find(part[1]);
    const bool is_on = found != fm.ancillary.end() && found->second;
    if (const Node* node = Tree_Get(ANCILLARY))
        Tree_Tell(*node, "0," + part[1] + (is_on ? ",1" : ",0"), client);
}

static void put_name_sense(int client, const std::string& value)
{
    long number = 0;
    if (!Text_ToInt(value, &number) || number < 1 || number > FIRST_EXTENDED + FRAME_REGISTERS)
        return;
    const bool is_extended = number > FIRST_EXTENDED;
    tell_name(client, is_extended ? FRAME_EXTENDED : FRAME_MAIN,
              int(number) - (is_extended ? FIRST_EXTENDED : 0));
}

// "OLD,NEW" of a register.
static void put_rename(const std::string& value)
{
    const size_t comma = value.find(',');
    if (comma == std::string::npos || comma + 1 == value.size())
        return;
    const std::string name = value.substr(comma + 1);
    for (int store = 0; store < FRAME_STORES; ++store)
        for (int n = 1; n <= int(fm.frames[store].size()); ++n) {
            Frame& frame = fm.frames[store][size_t(n - 1)];
            if (!frame.is_stored || frame.name != value.substr(0, comma))
                continue;
            frame.name = name.substr(0, name.find(',')).substr(0, NAME_BYTES);
            show_register(FrameStore(store), n);
        }
}

// "NUMBER,NAME": what a processor has frozen.
static void put_store(const std::string& value)
{
    const size_t comma = value.find(',');
    long number = 0;
    if (comma != std::string::npos && Text_ToInt(value.substr(0, comma), &number))
        (void)FrameMemory_Draw(int(number), value.substr(comma + 1)); // false: no such register
}

static void show_all();

// --- The external drive ---

static void hdd_copy()
{
    for (int i = 0; i < FRAME_STORES; ++i)
        (hdd.is_load ? fm.frames[i] : hdd.frames[i]) = hdd.is_load ? hdd.frames[i] : fm.frames[i];
    for (int i = 0; i < FOLDERS; ++i)
        (hdd.is_load ? fm.folders[i] : hdd.folders[i]) =
            hdd.is_load ? hdd.folders[i] : fm.folders[i];
    if (hdd.is_load)
        show_all();
}

static void hdd_end()
{
    hdd.next_ms = INT64_MAX;
    Tree_Show(HDD + "Busy", "false");
}

static bool put_hdd(const std::string& word)
{
    const bool is_running = hdd.next_ms != INT64_MAX;
    if (word == "Cancel" && is_running)
        hdd_end();
    if (is_running || (word != "Save" && word != "Load"))
        return word == "Save" || word == "Load" || word == "Cancel";
    hdd.is_load = word == "Load";
    hdd.step = 0;
    hdd.next_ms = 0;
    Tree_Show(HDD + "Busy", "true");
    return true;
}

int64_t FrameMemory_Tick(int64_t now)
{
    if (hdd.next_ms > now)
        return hdd.next_ms;
    hdd.next_ms = now + HDD_STEP_MS;
    Tree_Show(HDD + "Progress", std::to_string(++hdd.step * 100 / HDD_STEPS));
    if (hdd.step == HDD_STEPS) {
        hdd_copy();
        hdd_end();
    }
    return hdd.next_ms;
}

bool FrameMemory_Put(int client, const std::string& path, const std::string& value)
{
    const bool has_unit = Text_Begins(path, "16@") || Text_Begins(path, "32@");
    const std::string command = has_unit ? path.substr(3) : path;
    if (!Text_Begins(command, "Frame Mem@"))
        return false;
    if (Text_Begins(path, "32@"))
        return false; // the second switcher has no frame memory
    if (Text_Begins(path, HDD))
        return put_hdd(path.substr(HDD.size()));
    if (command == "Frame Mem@Status@File Name Sense")
        put_name_sense(client, value);
    else if (command == MOVE_STILL)
        put_move(value);
    else if (command == "Frame Mem@Folder@Rename")
        put_folder(value, false);
    else if (command == "Frame Mem@Folder@Delete")
        put_folder(value, true);
    else if (command == "Frame Mem@File@Delete Thumbnail@Single")
        put_delete(value);
    else if (command == "Frame Mem@File@Delete Thumbnail@All")
        put_delete_all();
    else if (command == "Frame Mem@File@Rename")
        put_rename(value);
    else if (command == ANCILLARY)
        put_ancillary(client, value);
    else if (Text_Begins(command, "Frame Mem@Edit@Store@PROC"))
        put_store(value);
    else
        return false;
    return true;
}

// --- Filling ---

static void show_all()
{
    fm.told.clear();
    Tree_Show("Frame Mem@Status@Extended Capacity", fm.has_extended ? "1" : "0");
    for (int store = 0; store < FRAME_STORES; ++store)
        for (int bank = 0; bank * BANK < FRAME_REGISTERS; ++bank) {
            const std::string number = std::to_string(bank_number(FrameStore(store), bank));
            Tree_Show(STATUS + "Register Status@" + number, bank_status(FrameStore(store), bank));
            Tree_Show(STATUS + "Folder Status@" + number, bank_folders(FrameStore(store), bank));
        }
    show_room();
}

void FrameMemory_SetCapacity(int registers, bool has_extended)
{
    fm.has_extended = has_extended;
    fm.frames[FRAME_MAIN].assign(size_t(registers), {});
    fm.frames[FRAME_EXTENDED].assign(has_extended ? size_t(registers) : 0, {});
    // The number first: who hears it asks for what follows.
    Tree_Show(STATUS + "Max Register", std::to_string(registers));
    show_all();
}

// By turns four stills, the first two a pair, and a clip of six frames.
static std::string filler_name(int i)
{
    const int set = i / 10, step = i % 10;
    if (step >= 4)
        return Text_Format("Mc%02d%04d", set % 100, step - 4 + set / 100 * 6);
    return Text_Format("%cs%05d", step == 1 ? 'S' : 'M', step == 1 ? i - 1 : i);
}

void FrameMemory_Fill(int registers, bool is_extended)
{
    const FrameStore store = is_extended ? FRAME_EXTENDED : FRAME_MAIN;
    for (int n = 1; n <= int(fm.frames[store].size()) && registers > 0; ++n) {
        if (frame_at(store, n)->is_stored)
            continue;
        set_register(store, n, filler_name(n - 1 + (is_extended ? 10000 : 0)), true);
        --registers;
    }
    for (int bank = 0; bank * BANK < int(fm.frames[store].size()); ++bank)
        show_bank(store, bank);
    show_room();
}

bool FrameMemory_Draw(int number, const std::string& name)
{
    if (!frame_at(FRAME_MAIN, number) || name.empty())
        return false;
    (void)Drive_Remove(file_of(FRAME_MAIN, number)); // mostly there is none
    set_register(FRAME_MAIN, number, name, true);
    show_register(FRAME_MAIN, number);
    return true;
}

bool FrameMemory_Delete(int number)
{
    if (!frame_at(FRAME_MAIN, number))
        return false;
    empty_register(FRAME_MAIN, number);
    return true;
}

// What is there at the start: a pair, a key side alone, a clip, and names at the grammar's edge.
static const struct {
    int number;
    const char* name;
    int folder;
} stock[] = {
    {1, "Mlogo", 0},      {2, "Slogo", 0},      {3, "Mbackdrop", 1},  {4, "Stitle", 1},
    {10, "Mnews0001", 2}, {11, "Mnews0002", 2}, {12, "Mnews0003", 2}, {13, "Mnews0004", 2},
    {20, "Snews0001", 2}, {21, "Snews0002", 2}, {30, "M1234", 0},     {31, "M12345", 0},
};

void FrameMemory_Install()
{
    fm = {};
    hdd = {};
    fm.frames[FRAME_MAIN].resize(CAPACITY);
    fm.folders[0] = "Default";
    fm.folders[1] = "Graphics";
    fm.folders[2] = "News";
    for (const auto& frame : stock) {
        set_register(FRAME_MAIN, frame.number, frame.name, true);
        frame_at(FRAME_MAIN, frame.number)->folder = frame.folder;
    }
    fm.ancillary["Mnews"] = true;
    Tree_SetKind(MOVE_STILL, KIND_ANY);
    for (int store = 0; store < FRAME_STORES; ++store)
        for (int bank = 0; bank * BANK < FRAME_REGISTERS; ++bank) {
            const std::string number = std::to_string(bank_number(FrameStore(store), bank));
            Tree_Preset(STATUS + "Register Status@" + number, bank_status(FrameStore(store), bank));
            Tree_Preset(STATUS + "Folder Status@" + number, bank_folders(FrameStore(store), bank));
        }
    Tree_Preset(HDD + "Progress", "0");
    Tree_Preset(STATUS + "Max Register", std::to_string(CAPACITY));
    Tree_Preset(STATUS + "Folder Name Sense", folder_names());
    Tree_Preset("Frame Mem@Status@Extended Capacity", "0");
    const std::string recall = "Frame Mem@Recall@Recall Thumbnail@";
    Tree_Preset(recall + "Select", "FM1&2");
    for (int output = 1; output <= OUTPUTS; ++output) // the first two show registers 3 and 4
        Tree_Preset(recall + "FM" + std::to_string(output),
                    output <= 2 ? stock[output + 1].name : "");
    show_room();
}
