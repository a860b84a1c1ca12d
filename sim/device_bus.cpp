#include "device_bus.h"
#include "macro.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <climits>

static constexpr int PBUS_DEVICES = 24, GPI_OUTPUTS = 8, STEPS = 10;
static const std::string PBUS = "Device@P-BUS@", PBUS_TIMELINE = "Device@P-BUS Timeline@";
static const std::string GPI = "Device@GPI@", GPI_TIMELINE = "Device@GPI Timeline@";
static const std::string AUTO = "Auto Execute Menu@";

static struct {
    int step = -1;      // that waits or was executed last; -1 none
    int64_t due_ms = 0; // 0: nothing runs
} ae;

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node ? node->value : "";
}

static std::string pbus_path(const std::string& head, int n, const char* what)
{
    return head + Text_Format("P-Bus%d@%s", n + 1, what);
}

static std::string numbered_path(const std::string& head, int n, const char* what)
{
    return head + Text_Format("%d@%s", n + 1, what);
}

// --- P-Bus and GPI ---

static void show_all(const std::string& head, int count, bool is_pbus, const char* what,
                     const std::string& value)
{
    for (int n = 0; n < count; ++n)
        Tree_Show(is_pbus ? pbus_path(head, n, what) : numbered_path(head, n, what), value);
}

static void tell_enabled(const std::string& what)
{
    for (int n = 0; n < PBUS_DEVICES; ++n)
        if (value_of(pbus_path(PBUS, n, "Enable")) == "true")
            Tree_Show(pbus_path(PBUS, n, "Last"), what);
}

// --- Auto execute ---

static void execute(int n)
{
    const std::string action = value_of(numbered_path(AUTO, n, "Action"));
    const std::string reg = value_of(numbered_path(AUTO, n, "Register"));
    long number = 0;
    (void)Text_ToInt(reg, &number);
    if (action == "Macro")
        Macro_Run(int(number));
    else if (action == "Master Snapshot")
        (void)Macro_Operate("MasterSnapshot,Register," + reg);
    else if (action == "Shotbox")
        (void)Macro_Operate("ShotBox,Register," + reg);
    else
        (void)Macro_Operate("MenuMacroRun,Register," + reg);
    Tree_Show(numbered_path(AUTO, n, "State"), "Done");
}

// The next step that does something begins to wait. False: there is none.
static bool wait_for_next(int64_t now)
{
    for (int n = ae.step + 1; n < STEPS; ++n) {
        const std::string action = value_of(numbered_path(AUTO, n, "Action"));
        if (action.empty() || action == "None")
            continue;
        double frames = 0;
        (void)Text_ToNumber(value_of(numbered_path(AUTO, n, "Wait")), &frames);
        ae.step = n;
        ae.due_ms = now + int64_t(frames * 1000 / System_FrameRate()) + 1;
        Tree_Show(numbered_path(AUTO, n, "State"), "Wait");
        return true;
    }
    return false;
}

static void begin(int64_t now)
{
    ae = {};
    show_all(AUTO, STEPS, false, "State", "");
    if (!wait_for_next(now))
        Tree_Show(AUTO + "Run", "false");
}

int64_t DeviceBus_Tick(int64_t now)
{
    const bool runs = value_of(AUTO + "Run") == "true";
    if (runs && ae.due_ms == 0)
        begin(now);
    if (!runs && ae.due_ms != 0)
        ae = {};
    if (ae.due_ms == 0)
        return INT64_MAX;
    if (now < ae.due_ms)
        return ae.due_ms;
    execute(ae.step);
    if (wait_for_next(now))
        return ae.due_ms;
    if (value_of(AUTO + "Loop") == "true") {
        begin(now);
        return ae.due_ms ? ae.due_ms : INT64_MAX;
    }
    ae = {};
    Tree_Show(AUTO + "Run", "false");
    return INT64_MAX;
}

// --- Puts ---

bool DeviceBus_Put(const std::string& path, const std::string& value)
{
    if (value != "true")
        return false;
    if (path == PBUS + "All Enable" || path == PBUS + "All Disable")
        show_all(PBUS, PBUS_DEVICES, true, "Enable",
                 path == PBUS + "All Enable" ? "true" : "false");
    else if (path == PBUS_TIMELINE + "All None")
        show_all(PBUS_TIMELINE, PBUS_DEVICES, true, "Action", "None");
    else if (path == PBUS + "Store" || path == PBUS + "Recall")
        tell_enabled(path.substr(PBUS.size()) + " " + value_of(PBUS + "Register"));
    else if (Text_Begins(path, PBUS + "Trigger@"))
        tell_enabled("Trigger " + path.substr(path.rfind('@') + 1));
    else if (path == GPI + "All Enable" || path == GPI + "All Disable")
        show_all(GPI, GPI_OUTPUTS, false, "Enable", path == GPI + "All Enable" ? "true" : "false");
    else if (path == GPI_TIMELINE + "All Off")
        show_all(GPI_TIMELINE, GPI_OUTPUTS, false, "Fire", "false");
    else if (path == AUTO + "All None")
        show_all(AUTO, STEPS, false, "Action", "None");
    else if (path == AUTO + "Next" && ae.due_ms != 0)
        ae.due_ms = 1; // its wait is over
    return false;
}

void DeviceBus_Install()
{
    static const char* const names[PBUS_DEVICES] = {"DVE 1", "DVE 2", "AUDIO MIXER", "STILL STORE",
                                                    "CG 1",  "CG 2",  "LIGHTS"};
    ae = {};
    for (int n = 0; n < PBUS_DEVICES; ++n) {
        Tree_Preset(pbus_path(PBUS, n, "Name"), names[n] ? names[n] : "");
        Tree_Preset(pbus_path(PBUS, n, "Enable"), names[n] ? "true" : "false");
        Tree_Preset(pbus_path(PBUS_TIMELINE, n, "Action"), "None");
        Tree_Preset(pbus_path(PBUS_TIMELINE, n, "Register"), "0");
        Tree_Preset(pbus_path(PBUS_TIMELINE, n, "Trigger"), "1");
    }
    for (int n = 0; n < GPI_OUTPUTS; ++n) {
        Tree_Preset(numbered_path(GPI, n, "Name"), Text_Format("OUT %d", n + 1));
        Tree_Preset(numbered_path(GPI, n, "Enable"), "true");
        Tree_Preset(numbered_path(GPI_TIMELINE, n, "Fire"), "false");
        Tree_Preset(numbered_path(GPI_TIMELINE, n, "Delay"), "0");
    }
    for (int n = 0; n < STEPS; ++n) {
        Tree_Preset(numbered_path(AUTO, n, "Action"), "None");
        Tree_Preset(numbered_path(AUTO, n, "Register"), "1");
        Tree_Preset(numbered_path(AUTO, n, "Wait"), "0");
        Tree_Preset(numbered_path(AUTO, n, "State"), "");
    }
}
