#include "fault.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include <climits>
#include <random>

static constexpr size_t WAITING_BYTES = 64 << 10; // a client with more than this gets nothing new
static constexpr int GARBAGE_PER_TURN = 20;       // pieces; a turn is 10 ms
static constexpr int TURN_MS = 10;

static struct {
    std::mt19937 random{1};
    long flood_lines = 0; // still to come
    int64_t garbage_until_ms = 0;
    int64_t garbage_next_ms = 0;
    bool is_garbage = false;
} ft;

static int fault_random(int below)
{
    return int(ft.random() % unsigned(below));
}

void Fault_Seed(unsigned seed)
{
    ft.random.seed(seed);
}

void Fault_Flood(long lines)
{
    ft.flood_lines = lines;
    Log_Note("flood of %ld lines", lines);
}

void Fault_Garbage(int ms)
{
    ft.is_garbage = true;
    ft.garbage_next_ms = Now_Ms();
    ft.garbage_until_ms = ft.garbage_next_ms + ms;
    Log_Note("garbage for %d ms", ms);
}

static bool fault_has_room(const std::vector<int>& clients)
{
    for (const int client : clients)
        if (Link_Waiting(client) > WAITING_BYTES)
            return false;
    return true;
}

static void fault_flood()
{
    const std::vector<int> clients = Link_Clients(LINK_TEXT);
    if (clients.empty())
        ft.flood_lines = 0;
    while (ft.flood_lines > 0 && fault_has_room(clients)) {
        const std::string line =
            Text_Format("Flood@Nobody Wants@%ld#%d\n", ft.flood_lines % 1000, fault_random(100000));
        for (const int client : clients)
            Link_SendBytes(client, line);
        if (--ft.flood_lines == 0)
            Log_Note("flood is over");
    }
}

// --- Garbage ---

static std::string fault_bytes(int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += char(fault_random(256));
    return bytes;
}

// Paths that a panel really reads, so that the value is parsed and not just dropped.
static const char* const fault_paths[] = {
    "Engineering Setup@System@Network Config@List",
    "Engineering Setup@System@System Config@Panel Assign",
    "Engineering Setup@System@System Config@Switcher Assign",
    "Engineering Setup@System@Format@Switcher Aspect",
    "Engineering Setup@System@Format@FC Format",
    "Engineering Setup@Panel@Xpt Assign@Source@List",
    "Engineering Setup@Panel@Xpt Assign@Assign",
    "Engineering Setup@Panel@Config@10 Key Region Assign@Common@Region@Common@99999",
    "16@Frame Mem@Status@Register Status@44",
    "Info@Processor Status@-1",
    "Info@DME@RefCH",
    "Info@Operation Setup Data@Group Name@0",
    "Info@Operation Setup Data@Timeline Region Priority",
    "INFORMATION@SWR File Process Progress",
    "Global Effect@Ch1-Ch4@Combine@Ch9",
    "Panel@Common@Knob4",
    "",
};

static std::string fault_value()
{
    static const char* const values[] = {
        "99999999999999999999",
        "-2147483649",
        "4294967296,18446744073709551616",
        "1e999",
        "nan",
        "-1,-1,-1,-1,-1,-1",
        "0x80000000",
        "%s%s%s%n%n%08x%p",
        "%1000000d",
        "#",
        "",
        "\t\x01\x7F",
    };
    const int kind = fault_random(int(std::size(values)) + 3);
    if (kind < int(std::size(values)))
        return values[kind];
    if (kind == int(std::size(values)))
        return std::string(size_t(fault_random(5000)), ',');
    if (kind == int(std::size(values)) + 1)
        return std::string(size_t(fault_random(3000)), 'A');
    return fault_bytes(fault_random(300));
}

static std::string fault_piece(LinkKind kind)
{
    if (kind == LINK_BIN || fault_random(8) == 0)
        return fault_bytes(1 + fault_random(64));
    const char* const path = fault_paths[fault_random(int(std::size(fault_paths)))];
    const std::string head = kind == LINK_HUB ? "Notify#CS1.ClipStoreInfo:" : "";
    return head + path + (fault_random(10) ? "#" : "") + fault_value() + "\n";
}

static void fault_garbage(int64_t now)
{
    for (int kind = 0; kind < LINK_KINDS; ++kind) {
        for (const int client : Link_Clients(LinkKind(kind))) {
            for (int i = 0; i < GARBAGE_PER_TURN && Link_Waiting(client) < WAITING_BYTES; ++i)
                Link_SendBytes(client, fault_piece(LinkKind(kind)));
            // The next good line must not hang on the end of the last bad one.
            if (now >= ft.garbage_until_ms && kind != LINK_BIN)
                Link_SendBytes(client, "\n");
        }
    }
    if (now < ft.garbage_until_ms)
        return;
    ft.is_garbage = false;
    Log_Note("garbage is over");
}

int64_t Fault_Tick(int64_t now)
{
    if (ft.flood_lines > 0)
        fault_flood();
    if (ft.is_garbage && now >= ft.garbage_next_ms) {
        fault_garbage(now);
        ft.garbage_next_ms = now + TURN_MS;
    }
    if (ft.flood_lines > 0)
        return now + 1;
    return ft.is_garbage ? ft.garbage_next_ms : INT64_MAX;
}
