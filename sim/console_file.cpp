// The commands about files, the hub and the frame memory.
#include "autoload.h"
#include "clip_store.h"
#include "console_command.h"
#include "drive.h"
#include "file_job.h"
#include "frame_memory.h"
#include "hub.h"
#include "link.h"
#include "package.h"
#include "text.h"
#include "unit_file.h"

static bool con_stick(Runner&, const std::string& rest)
{
    return (rest == "in" || rest == "out") && Drive_PutStick(rest == "in");
}

static bool con_slow(Runner&, const std::string& rest)
{
    double factor = 0;
    if (!Text_ToNumber(rest, &factor) || factor < 0 || factor > 1000)
        return false;
    FileJob_SetSlow(factor);
    return true;
}

static bool con_full(Runner&, const std::string& rest)
{
    long megabytes = 0;
    if (rest == "off") {
        Drive_SetRoom(-1);
        return true;
    }
    if (!Console_Number(rest, 0, 1 << 20, &megabytes))
        return false;
    Drive_SetRoom(int64_t(megabytes) << 20);
    return true;
}

static bool con_user(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    if (word.size() != 4 || (word[1] != "holds" && word[1] != "leaves"))
        return false;
    return Hub_Hold(word[1] == "holds" ? word[0] : "Non", word[2], word[3]);
}

static bool con_unit(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    bool on = false;
    return word.size() == 2 && Console_OnOff(word[1], &on) && Hub_Connect(word[0], on);
}

static bool con_results(Runner&, const std::string& rest)
{
    static const char* const words[RESULT_FAULTS] = {"right", "crlf",     "nocomma", "long",
                                                     "lower", "trailing", "ng",      "missing"};
    for (int fault = 0; fault < RESULT_FAULTS; ++fault)
        if (rest == words[fault]) {
            UnitFile_SetResultFault(ResultFault(fault));
            return true;
        }
    return false;
}

static bool con_packages(Runner&, const std::string&)
{
    return Package_Put();
}

static bool con_script(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long status = 0, calls = 1;
    return (word.size() == 2 || word.size() == 3) && word[0].find('/') == std::string::npos &&
           Console_Number(word[1], 0, 255, &status) &&
           (word.size() == 2 || Console_Number(word[2], 0, 1000, &calls)) &&
           Package_Fail(word[0], int(status), int(calls));
}

static bool con_autoload(Runner&, const std::string&)
{
    Autoload_Start();
    return true;
}

static bool con_jobs(Runner&, const std::string&)
{
    FileJob_Print();
    Hub_Print();
    return true;
}

// --- Frame memory ---

static bool con_frame_capacity(const std::vector<std::string>& word)
{
    long count = 0;
    if (word.size() < 2 || !Console_Number(word[1], 0, FRAME_REGISTERS, &count))
        return false;
    FrameMemory_SetCapacity(int(count), word.size() > 2 && word[2] == "extended");
    return true;
}

static bool con_frame_fill(const std::vector<std::string>& word)
{
    long count = 0;
    if (word.size() < 2 || !Console_Number(word[1], 0, FRAME_REGISTERS, &count))
        return false;
    FrameMemory_Fill(int(count), word.size() > 2 && word[2] == "extended");
    return true;
}

static bool con_frames(Runner&, const std::string& rest)
{
    const auto word = Text_Split(rest, ' ');
    long number = 0;
    if (word[0] == "max")
        return con_frame_capacity(word);
    if (word[0] == "fill")
        return con_frame_fill(word);
    if (word.size() < 2 || !Console_Number(word[1], 1, FRAME_REGISTERS, &number))
        return false;
    if (word[0] == "delete")
        return FrameMemory_Delete(int(number));
    return word[0] == "store" && word.size() == 3 && FrameMemory_Draw(int(number), word[2]);
}

// --- The hub and the clip stores ---

static bool con_hub_fail(const std::string& arguments, int result)
{
    long count = 1;
    if (!arguments.empty() && !Console_Number(arguments, 0, 1000, &count))
        return false;
    ClipStore_FailNext(int(count), result);
    return true;
}

static bool con_hub(Runner&, const std::string& rest)
{
    const size_t blank = rest.find(' ');
    const std::string word = rest.substr(0, blank);
    const std::string arguments = blank == rest.npos ? "" : rest.substr(blank + 1);
    long ms = 0;
    double factor = 0;
    bool on = false;
    if (word == "refuse")
        return con_hub_fail(arguments, CLIP_REFUSED);
    if (word == "lost")
        return con_hub_fail(arguments, 0);
    if (word == "drop" && (arguments.empty() || Console_Number(arguments, 0, 600000, &ms)))
        Link_Drop(LINK_HUB, int(ms));
    else if (word == "slow" && Text_ToNumber(arguments, &factor) && factor >= 0 && factor <= 1000)
        ClipStore_SetSlow(factor);
    else if (word == "ready" && Console_OnOff(arguments, &on))
        ClipStore_SetReady(on);
    else
        return false;
    return true;
}

// A name with a folder, without blanks; of the second store with "CS2:" before it.
static bool con_clip(Runner&, const std::string& rest)
{
    constexpr int FRAMES = 3000, MANY = 12000;
    const auto word = Text_Split(rest, ' ');
    long count = 0;
    if (word[0] == "full" && word.size() == 1)
        ClipStore_SetMemory(0);
    else if (word[0] == "room" && word.size() == 1)
        ClipStore_SetMemory(FRAMES);
    else if (word[0] == "fill" && word.size() == 2 && Console_Number(word[1], 1, MANY, &count))
        for (long i = 0; i < count; ++i)
            (void)ClipStore_Make(1, Text_Format("FILL%02ld/still%05ld", i / 250, i), 1);
    else if (word[0] == "make" && word.size() == 3 && Console_Number(word[2], 1, MANY, &count))
        return Text_Begins(word[1], "CS2:") ? ClipStore_Make(2, word[1].substr(4), int(count))
                                            : ClipStore_Make(1, word[1], int(count));
    else
        return false;
    return true;
}

static constexpr Command commands[] = {
    {"hub", "drop [MS]|refuse [N]|lost [N]|slow N|ready on|off",
     "the hub's link, and what becomes of requests to the clip stores", con_hub},
    {"clip", "make NAME FRAMES|fill N|full|room", "clips of a store; whether its memory is full",
     con_clip},
    {"stick", "in|out", "plug the memory stick in, or pull it", con_stick},
    {"slow", "N", "file work takes N times as long; 0: no time", con_slow},
    {"full", "MB|off", "so much room is left on the drives", con_full},
    {"user", "NAME holds|leaves SWR1 SETUP", "another user reserves a category", con_user},
    {"unit", "SWR1|CS1|PNL1 on|off", "a unit comes to the hub or leaves it", con_unit},
    {"results", "right|crlf|nocomma|long|lower|trailing|ng|missing", "form of the result lists",
     con_results},
    {"packages", "", "put packages to install, and bitmaps for textures, on the stick",
     con_packages},
    {"script", "scs_exec|scs_transfer|ui_install|fpga_updater|... STATUS [N]",
     "the next N calls of a device's script end with that status", con_script},
    {"autoload", "", "ask the panels to load what is there for power-on", con_autoload},
    {"jobs", "", "print the file work under way, and who holds what", con_jobs},
    {"frames", "max N [extended]|fill N [extended]|store N NAME|delete N",
     "registers of the frame memory", con_frames},
};
constinit const std::span<const Command> console_file_commands = commands;
