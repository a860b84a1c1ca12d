#include "device_bus.h"
#include "log.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>

static constexpr int PBUS_DEVICES = 24, GPI_OUTPUTS = 8;
static const std::string PBUS = "Device@P-BUS@", PBUS_TIMELINE = "Device@P-BUS Timeline@";
static const std::string GPI = "Device@GPI@", GPI_TIMELINE = "Device@GPI Timeline@";

static int64_t pulse_ms[GPI_OUTPUTS]; // when each output gives its pulse; 0: none is due

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
    return false;
}

// --- Timelines ---

void DeviceBus_RunPbus()
{
    for (int n = 0; n < PBUS_DEVICES; ++n) {
        const std::string action = value_of(pbus_path(PBUS_TIMELINE, n, "Action"));
        const char* const number = action == "Recall" ? "Register" : "Trigger";
        if (action != "None" && value_of(pbus_path(PBUS, n, "Enable")) == "true")
            Tree_Show(pbus_path(PBUS, n, "Last"),
                      action + " " + value_of(pbus_path(PBUS_TIMELINE, n, number)));
    }
}

void DeviceBus_RunGpi()
{
    for (int n = 0; n < GPI_OUTPUTS; ++n) {
        long frames = 0;
        (void)Text_ToInt(value_of(numbered_path(GPI_TIMELINE, n, "Delay")), &frames);
        if (value_of(numbered_path(GPI, n, "Enable")) == "true" &&
            value_of(numbered_path(GPI_TIMELINE, n, "Fire")) == "true")
            pulse_ms[n] = Now_Ms() + frames * 1000 / System_FrameRate();
    }
}

int64_t DeviceBus_Tick(int64_t now)
{
    int64_t next = INT64_MAX;
    for (int n = 0; n < GPI_OUTPUTS; ++n) {
        if (pulse_ms[n] && pulse_ms[n] <= now) {
            pulse_ms[n] = 0;
            Log_Note("GPI output %d: fired by its timeline", n + 1);
        }
        if (pulse_ms[n])
            next = std::min(next, pulse_ms[n]);
    }
    return next;
}

void DeviceBus_Install()
{
    std::fill(pulse_ms, pulse_ms + GPI_OUTPUTS, 0);
    static const char* const names[PBUS_DEVICES] = {"DVE 1", "DVE 2", "AUDIO MIXER", "STILL STORE",
                                                    "CG 1",  "CG 2",  "LIGHTS"};
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
}
