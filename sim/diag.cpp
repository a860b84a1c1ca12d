#include "diag.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <fcntl.h>
#include <map>
#include <unistd.h>
#include <vector>

using Words = std::vector<std::string>;

namespace
{
struct Model {
    const char* unit = "";
    const char* notice = ""; // by which its reports are asked for
    const char* from = "";   // "PNL": of the path of its reports
    size_t temperatures = 0;
    size_t fans = 0;
    size_t slots = 0;
    size_t psus = 0;
    size_t boards = 0; // that report a status of their own
};

struct Unit {
    const Model* model = nullptr;
    std::map<std::string, Words> group; // by the last part of the path
};
} // namespace

static constexpr const char* FAN_SPEED = "Fan Speed";
static constexpr const char* BOARD_FUNCTION = "Circuit Board Function";
static constexpr const char* BOARD_ID = "Circuit Board ID";
static constexpr const char* PSU_STATUS = "PSU Status";
static constexpr const char* REFERENCE = "Reference Status";
static constexpr size_t PSU_FIELDS = 4; // exists, AC, DC, fan
static const std::string NOTICE = "Info@Self Diagnosis Notice@";
static const std::string MPE = NOTICE + "MPE Status@";
static constexpr const char* I2C_IMAGE = "/dev/i2c-0"; // device d, address a is byte d * 256 + a
static constexpr int I2C_DEVICE_BYTES = 256;
static constexpr int THERMOMETER = 77;
static constexpr int COOL = 40;

static constexpr Model models[] = {
    {"PNL1", "PNL", "PNL", 2, 4, 6, 2, 3},     {"DCU1", "PNL", "PNL", 1, 2, 3, 2, 1},
    {"SWR1", "SWR1", "SWR", 8, 12, 16, 4, 16}, {"SWR2", "SWR2", "SWR", 8, 12, 16, 4, 16},
    {"DME1", "DME1", "DME", 2, 4, 6, 2, 6},    {"DME2", "DME2", "DME", 2, 4, 6, 2, 6},
    {"DME3", "DME3", "DME", 2, 4, 6, 2, 6},    {"DME4", "DME4", "DME", 2, 4, 6, 2, 6},
};

// Of a switcher, by slot.
static const char* const board_ids[] = {"CPU-31", "SYS-12", "XPT-44", "XPT-44", "MIX-70", "MIX-70",
                                        "MIX-70", "MIX-70", "KPC-19", "KPC-19", "FM-25",  "FM-25",
                                        "DIF-88", "DIF-88", "DOF-90", "DOF-90"};
// Of an effects unit.
static const char* const dme_board_ids[] = {"CPU-31", "GEO-52", "GEO-52",
                                            "MEM-40", "DIF-88", "DOF-90"};

static struct {
    std::vector<Unit> units;
    std::map<std::string, std::vector<int>> asked; // clients by notice
} dg;

static Words words_of(size_t count, const std::string& word)
{
    return Words(count, word);
}

static Words healthy_psus(size_t count)
{
    Words words;
    for (size_t i = 0; i < count; ++i)
        words.insert(words.end(), {"Exist", "OK", "OK", "OK"});
    return words;
}

static Unit healthy(const Model& m)
{
    Unit unit{&m, {}};
    unit.group["Board Temperature"] = words_of(m.temperatures, "OK");
    unit.group[FAN_SPEED] = words_of(m.fans, "OK");
    unit.group["FAN Operation Hours"] = words_of(m.fans, "8760");
    unit.group["PSU Operation Hours"] = words_of(m.psus, "8760");
    unit.group[BOARD_FUNCTION] = words_of(m.slots, "OK");
    const bool is_panel = std::string(m.from) == "PNL";
    const size_t slots = is_panel                       ? 6
                         : std::string(m.from) == "SWR" ? 31
                                                        : 8; // places, the fuse behind
    unit.group[BOARD_FUNCTION].resize(slots, "--");
    unit.group[BOARD_FUNCTION].push_back("OK");
    unit.group[PSU_STATUS] = healthy_psus(m.psus);
    unit.group[REFERENCE] = {"OK", "Exist"};
    unit.group["Board Status"] = words_of(m.boards, "OK");
    if (std::string(m.from) == "SWR")
        unit.group[BOARD_ID] = Words(std::begin(board_ids), std::end(board_ids));
    if (std::string(m.from) == "DME")
        unit.group[BOARD_ID] = Words(std::begin(dme_board_ids), std::end(dme_board_ids));
    return unit;
}

void Diag_Install()
{
    dg = {};
    for (const Model& m : models)
        dg.units.push_back(healthy(m));
}

void Diag_ForgetClient(int client)
{
    for (auto& [notice, clients] : dg.asked)
        std::erase(clients, client);
}

// --- Reports ---

static std::string line_of(const Unit& unit, const std::string& group)
{
    std::string line = "INFORMATION@" + std::string(unit.model->from) + " Self Diagnosis Notice@" +
                       group + "#" + unit.model->unit;
    for (const std::string& word : unit.group.at(group))
        line += "," + word;
    return line;
}

static void tell(const Unit& unit, const std::string& group)
{
    for (const int client : dg.asked[unit.model->notice])
        Link_SendLine(client, line_of(unit, group));
}

// The ids first: the reports are about the boards that they name.
static void tell_all(const Unit& unit, int client)
{
    static const std::string IDS = "Circuit Board ID";
    if (unit.group.count(IDS))
        Link_SendLine(client, line_of(unit, IDS));
    for (const auto& [group, words] : unit.group)
        if (group != IDS)
            Link_SendLine(client, line_of(unit, group));
}

bool Diag_Put(int client, const std::string& path, const std::string& value)
{
    if (!Text_Begins(path, NOTICE) || Text_Begins(path, MPE))
        return false;
    const std::string notice = path.substr(NOTICE.size());
    auto& clients = dg.asked[notice];
    std::erase(clients, client);
    if (value != "true")
        return true;
    clients.push_back(client);
    for (const Unit& unit : dg.units)
        if (notice == unit.model->notice)
            tell_all(unit, client);
    return true;
}

// --- Faults ---

static Unit* unit_named(const std::string& name)
{
    for (Unit& unit : dg.units)
        if (name == unit.model->unit)
            return &unit;
    return nullptr;
}

static bool change(const std::string& name, const char* group, size_t at, const Words& words)
{
    Unit* const unit = unit_named(name);
    if (!unit || at + words.size() > unit->group[group].size())
        return false;
    std::copy(words.begin(), words.end(), unit->group[group].begin() + long(at));
    tell(*unit, group);
    return true;
}

bool Diag_Fan(const std::string& unit, int fan, const std::string& word)
{
    return change(unit, FAN_SPEED, size_t(fan - 1), {word});
}

bool Diag_Board(const std::string& unit, int slot, const std::string& word)
{
    return change(unit, BOARD_FUNCTION, size_t(slot - 1), {word});
}

bool Diag_Psu(const std::string& unit, int psu, const std::string& word)
{
    const bool is_out = word == "None";
    const Words words = is_out ? Words{"None", "--", "--", "--"} : Words{"Exist", word, word, "OK"};
    return change(unit, PSU_STATUS, size_t(psu - 1) * PSU_FIELDS, words);
}

// A unit of the multi-picture effects has a number for each of its two references: 4 no lock, 5
// nothing there.
bool Diag_Reference(const std::string& unit, bool is_locked, bool exists)
{
    if (Text_Begins(unit, "MPE")) {
        Tree_Show(MPE + unit, !exists ? "5,5" : is_locked ? "0,0" : "4,0");
        return true;
    }
    return change(unit, REFERENCE, 0, {is_locked ? "OK" : "NG", exists ? "Exist" : "None"});
}

bool Diag_Hours(const std::string& unit, int hours)
{
    const std::string text = std::to_string(hours);
    Unit* const u = unit_named(unit);
    return u && change(unit, "FAN Operation Hours", 0, words_of(u->model->fans, text)) &&
           change(unit, "PSU Operation Hours", 0, words_of(u->model->psus, text));
}

void Diag_Heal()
{
    for (Unit& unit : dg.units) {
        const Unit well = healthy(*unit.model);
        for (const auto& [group, words] : well.group) {
            if (unit.group[group] == words)
                continue;
            unit.group[group] = words;
            tell(unit, group);
        }
    }
    for (const Node* node : Tree_Under(NOTICE + "MPE Status"))
        Tree_Show(node->path, node->initial);
    (void)Diag_Temperature(COOL); // without a board there is nothing to cool
}

// --- The menu's board ---

bool Diag_I2c(int device, int address, int byte)
{
    const int fd = open(I2C_IMAGE, O_WRONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const auto value = static_cast<unsigned char>(byte);
    const bool ok = pwrite(fd, &value, 1, off_t(device) * I2C_DEVICE_BYTES + address) == 1;
    close(fd);
    return ok;
}

bool Diag_Temperature(int celsius)
{
    return Diag_I2c(THERMOMETER, 0, celsius);
}
