#include "device_bus.h"
#include "text.h"
#include "tree.h"

static constexpr int PBUS_DEVICES = 24, GPI_OUTPUTS = 8;
static const std::string PBUS = "Device@P-BUS@", PBUS_TIMELINE = "Device@P-BUS Timeline@";
static const std::string GPI = "Device@GPI@", GPI_TIMELINE = "Device@GPI Timeline@";

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

void DeviceBus_Install()
{
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
