// kill9: kills the program while it writes its files, and looks what is there afterwards. A child
// stores, renames and installs as fast as it can, is killed after a time at chance, and then every
// file must be what one of its writes made: the old one or the new one, whole. Each is read by the
// program's own reader, and each says in several places which write it came from.
//
// usage: kill9 N [SEED]   N kills; in the working directory build/run, in a device root of its own
#include "err.h"
#include "fmctrl_private.h"
#include "global.h"
#include "install.h"
#include "log.h"
#include "macro_file.h"
#include "menu_macro_private.h"
#include "process.h"
#include "saver.h"
#include "screen_capture.h"
#include "setup_index.h"
#include "start.h"
#include "tdl.h"
#include "text.h"
#include "texture_package.h"
#include "version.h"
#include <SDL.h>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr int LIFE_US = 30000; // of a child, at most; its slowest write takes some 5 ms
constexpr char DRIVE[] = "/mnt/usb/usb1/";
constexpr char INSTALLED[] = "/var/tmp/installed_version";

struct Work {
    const char* name;
    void (*write)(int n);  // as the n-th write makes it
    std::string (*look)(); // what is wrong with what is there; empty: nothing
};
} // namespace

static std::string Text(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

static std::string Number(int n)
{
    return std::to_string(n);
}

// --- The lock of the setup pages ---

static void WriteLock(int n)
{
    for (int i = 0; i < SetupMenu_Max; i++)
        SetupMenu[i].lock = i < n % 20;
    SetupLock = {.lock = 1};
    CopyText(SetupLock.password, Number(n).c_str());
    (void)SetupIndex_SaveLock();
}

static std::string LookLock()
{
    SetupLock = {};
    SetupIndex_LoadLock();
    return SetupLock_New                                    ? "there is no lock"
           : atoi(SetupLock.password) % 20 != SetupLock.num ? "the lock is mixed"
                                                            : "";
}

// --- The settings of the screen saver ---

static void WriteSaver(int n)
{
    for (auto& name : GL_Scr_disp_name)
        CopyText(name, Number(n).c_str());
    (void)Saver_SaveSettings();
}

static std::string LookSaver()
{
    for (int i = 0; i < SAVER_NAMES; i++)
        GL_Scr_disp_name[i][0] = char('a' + i); // none of them may stay
    Saver_LoadSettings();
    for (const auto& name : GL_Scr_disp_name)
        if (strcmp(name, GL_Scr_disp_name[0]) != 0)
            return "settings of two writes, or not all";
    return "";
}

// --- Menu macros: stored, renamed, copied and deleted ---

static void WriteMenuMacro(int n)
{
    MacroReader reader;
    for (const std::string& line :
         {"Header:" + Number(n), "Event:put A#" + Number(n), "Contnue:put B#" + Number(n)})
        mm_read_line(reader, line.c_str());
    (void)mm_register_store(0, reader.reg.register_data);
    mm_rename_exec(1, ("N" + Number(n)).c_str());
    mm_copy_exec(1, 1, 2 + n % 5, false);
    mm_delete_delete_exec(2 + (n + 2) % 5, 2 + (n + 2) % 5);
}

// A file is whole when it is stored again as the same bytes.
static std::string LookMenuMacro()
{
    for (int no = 0; no < 7; no++) {
        char path[PATH_SIZE];
        PrintText(path, "/mnt/data/Menu_Macro_tmp/mm_reg%02d.tmp", no + 1);
        const std::string text = Text(path);
        if (!fs::exists(path))
            continue;
        mm_registers_free();
        if (mm_macro_file_load(no) != 0 || mm_register2hdd_bk_file(no, path) != 0)
            return std::string(path) + " cannot be read";
        if (Text(path) != text)
            return std::string(path) + " is not whole";
    }
    return fs::exists("/mnt/data/Menu_Macro_tmp/mm_reg01.tmp") ? "" : "the register has gone";
}

// --- The macro that the offline editor has in hand ---

static void WriteMacro(int n)
{
    MacroEventList list;
    MacroFile_Header(9, Number(n).c_str(), list.MacroFileName);
    for (int i = 0; i < 1 + n % 50; i++) {
        MacroEvent* const event = add_node(list, list.pTail);
        CopyText(event->Contents, "#");
        CopyText(event->Data[0], Number(n).c_str());
    }
    if (!fs::exists(MACRO_EDIT_FILE))
        (void)MacroFile_New(MACRO_EDIT_FILE, list.MacroFileName);
    (void)MacroFile_Write(MACRO_EDIT_FILE, list);
    MacroList_Clear(list);
}

static std::string LookMacro()
{
    MacroEventList list;
    std::string wrong = MacroFile_Read(MACRO_EDIT_FILE, list) != 0 ? "it cannot be read"
                        : !list.count || !list.MacroFileName[0]    ? "it is empty"
                                                                   : "";
    if (list.count && list.count != 1 + atoi(list.pHead->Data[0]) % 50)
        wrong = "lines are missing";
    MacroList_Clear(list);
    return wrong;
}

// --- Textures for the effects units ---

static void WriteTextures(int n)
{
    TexturePackage_Clear();
    for (int i = 0; i < 1 + n % 4; i++) {
        TEXTURE texture;
        (void)Texture_ReadBitmap(&texture, (std::string(DRIVE) + "texture.bmp").c_str());
        PrintText(texture.name, "%c%d", 'A' + i, n);
        (void)TexturePackage_Add(texture);
    }
    (void)TexturePackage_Write(DRIVE);
}

static std::string LookTextures()
{
    if (TexturePackage_Read(DRIVE) != 0)
        return "the package cannot be read";
    return TextureMax == 1 + atoi(Texture[0].name + 1) % 4 ? "" : "patterns are missing";
}

// --- The error list ---

static void WriteErrors(int n)
{
    Err_Clear();
    for (int i = 0; i <= n % 100; i++)
        (void)Err_Add("%d of %d", i, n % 100);
    Err_Create();
}

static std::string LookErrors()
{
    const std::string text = Text("/var/log2/tm3err.log");
    const size_t last = text.rfind("] ");
    int i = 0, of = -1, end = 0;
    return last != std::string::npos &&
                   sscanf(text.c_str() + last, "] %d of %d\n%n", &i, &of, &end) == 2 && i == of &&
                   text.back() == '\n'
               ? ""
               : "the list is cut: " + text.substr(std::min(text.size(), last));
}

// --- Versions, for the other units ---

static void WriteVersions(int)
{
    GetMenuDetailInfo();
}

static std::string LookVersions()
{
    const std::string text = Text("/var/tmp/version2/GUI" + Number(SYS_UnitID));
    return std::count(text.begin(), text.end(), '\n') == GL_DetailInfoMax + 1 ? ""
                                                                              : "lines are missing";
}

// --- Thumbnails ---

static void WriteThumbnail(int n)
{
    (void)fm_sft_to_bmp(n % 2 ? "/var/tmp/even.SFT" : "/var/tmp/odd.SFT",
                        "/mnt/sys/FrameMemory/FM_0001.BMP");
}

static std::string LookThumbnail()
{
    const std::string text = Text("/mnt/sys/FrameMemory/FM_0001.BMP");
    return text == std::string(40000, 'e') || text == std::string(30000, 'o')
               ? ""
               : "of neither picture: " + Number(int(text.size()));
}

// --- The answer to automation ---

static void WriteAnswer(int n)
{
    FMCtrl_FtpAnswer("allsave.res", n % 2);
}

static std::string LookAnswer()
{
    const std::string text = Text("/tmp/FTPIF/Command/allsave.res");
    return text == "OK\n" || text == "Error\n" ? "" : "neither well nor wrong: " + text;
}

// --- The log, which is written on and rotated ---

static void WriteLog(int n)
{
    for (int i = 0; i < 20; i++)
        Log_Output(LOG_ALWAYS, MOD_GLOBAL, "line %d of %d, and that is all", i, n);
}

static std::string LookLog()
{
    for (const auto& entry : fs::directory_iterator("/var/log2")) {
        const std::string name = entry.path().filename();
        const std::string text = Text(entry.path());
        if (name.rfind("tm3.log", 0) == 0 && !text.empty() && text.back() != '\n')
            return name + " ends in a line";
    }
    return "";
}

// --- A picture of the screen on the stick ---

static void WriteCapture(int n)
{
    if (n % 10 == 0)
        for (int i = 1; i <= 9; i++)
            fs::remove(std::string(DRIVE) + "menuss_0000_00_" + Number(i) + ".bmp");
    Screen_Capture();
}

static std::string LookCapture()
{
    for (const auto& entry : fs::directory_iterator(DRIVE)) {
        const std::string name = entry.path().filename();
        if (name.rfind("menuss", 0) != 0 || entry.path().extension() != ".bmp")
            continue;
        SDL_Surface* const picture = SDL_LoadBMP(entry.path().c_str());
        if (!picture)
            return name + " is no picture";
        SDL_FreeSurface(picture);
    }
    return "";
}

// --- An install, which can be begun again and then comes to its end ---

static constexpr char INSTALL_CFG[] = "/mnt/usb/usb1/INSTALL/install.cfg";

static void WriteInstall(int)
{
    (void)SystemInstall(INSTALL_CFG, TARGET_UI, 1);
}

static std::string LookInstall()
{
    if (SystemInstall(INSTALL_CFG, TARGET_UI, 1) != 0)
        return "it cannot be installed again";
    return Text(INSTALLED) == std::string(100000, 'm') ? "" : "what is installed is not whole";
}

static constexpr Work works[] = {
    {"setup lock", WriteLock, LookLock},
    {"screen saver", WriteSaver, LookSaver},
    {"menu macros", WriteMenuMacro, LookMenuMacro},
    {"macro", WriteMacro, LookMacro},
    {"textures", WriteTextures, LookTextures},
    {"error list", WriteErrors, LookErrors},
    {"versions", WriteVersions, LookVersions},
    {"thumbnail", WriteThumbnail, LookThumbnail},
    {"answer", WriteAnswer, LookAnswer},
    {"log", WriteLog, LookLog},
    {"screen capture", WriteCapture, LookCapture},
    {"install", WriteInstall, LookInstall},
};

// --- The whole ---

// A picture of 64 x 64, uncompressed: a pattern of one unit.
static void LayBitmap(const std::string& path)
{
    SDL_Surface* const picture =
        SDL_CreateRGBSurface(SDL_SWSURFACE, 64, 64, 24, 0xFF0000, 0xFF00, 0xFF, 0);
    if (!picture || SDL_SaveBMP(picture, path.c_str()) != 0)
        exit(2);
    SDL_FreeSurface(picture);
}

static void Lay(const std::string& path, const std::string& text)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

// Where all is written, and what is read for it.
static void LayAll()
{
    const std::string head(64, 'h');
    Lay("/var/tmp/even.SFT", head + std::string(40000, 'e'));
    Lay("/var/tmp/odd.SFT", head + std::string(30000, 'o'));
    Lay(INSTALL_CFG,
        "TITLE Soak\nVERSION 1\nTARGET MENU\nEXEC /bin/cp /mnt/usb/usb1/INSTALL/menu.bin "
        "/var/tmp/menu.part\n"
        "EXEC /bin/mv /var/tmp/menu.part " +
            std::string(INSTALLED) + "\n");
    Lay(std::string(DRIVE) + "INSTALL/menu.bin", std::string(100000, 'm'));
    LayBitmap(std::string(DRIVE) + "texture.bmp");
    for (const char* folder : {"/mnt/sys/FrameMemory", "/tmp/FTPIF/Command", MACRO_EDIT_DIR})
        fs::create_directories(folder);
    CopyText(GL_ImportDataPath, DRIVE);
    Log_Init("/var/log2/tm3.log", 20000); // rotated often
}

[[noreturn]] static void WriteForEver(const Work& work, int n, int ready)
{
    (void)!write(ready, "", 1);
    for (;;)
        work.write(n++);
}

// A child writes for some time; how it ended.
static int Kill(const Work& work, int n, int us)
{
    int pipe_fd[2];
    if (pipe(pipe_fd) != 0)
        exit(2);
    const pid_t child = fork();
    if (child == 0)
        WriteForEver(work, n, pipe_fd[1]);
    close(pipe_fd[1]);
    char byte = 0;
    (void)!read(pipe_fd[0], &byte, 1);
    close(pipe_fd[0]);
    usleep(unsigned(us));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

int main(int argc, char** argv)
{
    const int kills = argc > 1 ? atoi(argv[1]) : 0;
    if (kills < 1) {
        fprintf(stderr, "usage: kill9 N [SEED]\n");
        return 2;
    }
    std::mt19937 random(argc > 2 ? unsigned(atoi(argv[2])) : 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    Start_Init(32);
    LayAll();
    for (const Work& work : works)
        work.write(1); // from here on there is one
    int faults = 0;
    for (int i = 0; i < kills; i++) {
        const Work& work = works[size_t(i) % std::size(works)];
        const int us = int(random() % LIFE_US);
        const int status = Kill(work, i + 2, us);
        const std::string wrong = !WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL
                                      ? "the writer ended by itself"
                                      : work.look();
        if (wrong.empty())
            continue;
        faults++;
        fprintf(stderr, "kill %d after %d us, %s: %s\n", i + 1, us, work.name, wrong.c_str());
    }
    printf("%d kills, %d files that were not whole\n", kills, faults);
    return faults != 0;
}
