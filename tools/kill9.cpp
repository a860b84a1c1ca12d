// kill9: kills the program while it writes its files, and looks what is there afterwards. A child
// stores, renames and installs as fast as it can, is killed after a time at chance, and then every
// file must be what one of its writes made: the old one or the new one, whole. Each is read by the
// program's own reader, and each says in several places which write it came from. Of the files that
// a server writes the child is the simulator.
//
// usage: kill9 N [SEED [KIND]]   N kills, all of one kind if it is named; in the working directory
//                                build/run, in a device root of its own, with the simulator's path
//                                in TM3_SIMULATOR
#include "device.h"
#include "err.h"
#include "file_dir.h"
#include "fmctrl3_private.h"
#include "fmctrl_private.h"
#include "global.h"
#include "install.h"
#include "log.h"
#include "macro_file.h"
#include "menu_macro_private.h"
#include "message.h"
#include "page.h"
#include "process.h"
#include "saver.h"
#include "screen_capture.h"
#include "setup_index.h"
#include "start.h"
#include "tdl.h"
#include "text.h"
#include "texture_package.h"
#include "version.h"
#include "window_private.h"
#include <SDL.h>
#include <algorithm>
#include <arpa/inet.h>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

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
    bool stays = false;    // it never returns, and says itself when it may be killed
};
} // namespace

static int ready_fd = -1; // of the child: a byte when it has begun to write

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
    mm_current_register_all_dele(reader.reg.register_data);
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

// --- The protection of a directory, which comes and goes ---

static constexpr char MARKER[] = "/mnt/data/user/root/SYSTEM/.dirprotect";

static void WriteProtection(int n)
{
    DIRINFO d = {.protect = 1};
    CopyText(d.name, Number(n).c_str());
    CopyText(d.time, Number(n).c_str());
    if (n % 3 == 0)
        (void)unlink(MARKER);
    else
        (void)File_DirWriteMarker(MARKER, d);
}

static std::string LookProtection()
{
    const std::string text = Text(MARKER);
    if (!fs::exists(MARKER))
        return File_DirIsProtected(FILE_LOCAL, "SYSTEM") ? "a protection without a file" : "";
    const size_t time_at = sizeof(DIRINFO::name);
    const bool is_whole = text.size() == sizeof(DIRINFO) && text.back() == 1 && text[0] != '\0' &&
                          strcmp(text.c_str(), text.c_str() + time_at) == 0;
    return is_whole ? "" : "the marker is of no directory";
}

// --- The operator's own keys ---

constexpr int FAVORITES = 29; // of a set

// A key leads to its page only where there is one.
static std::vector<uint32_t> PagesThere()
{
    std::vector<uint32_t> ids;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++)
        if ((row->id & 0xFFFF) == 0 && Page_Exists(row->id))
            ids.push_back(row->id);
    return ids;
}

// The page that is open goes onto a key; its number stands in the record and in the caption.
static void WriteFavorites(int n)
{
    static const std::vector<uint32_t> pages = PagesThere();
    GL_NowPage = pages[size_t(n) % pages.size()];
    (void)favorites_select(KEY_STORE);
    (void)favorites_select(KEY_FAVORITE + n % FAVORITES);
}

static std::string LookFavorites()
{
    constexpr size_t RECORD = 24;
    constexpr size_t CAPTION_AT = 6;
    const std::string text = Text("/mnt/data/TopMenu/user_date1.usr");
    if (text.size() != FAVORITES * RECORD)
        return "keys are missing";
    favorites_open(); // from here on the child has what the file says
    for (int i = 0; i < FAVORITES; i++) {
        const uint32_t page = favorites_select(KEY_FAVORITE + i);
        const char* const caption = text.c_str() + size_t(i) * RECORD + CAPTION_AT;
        if (page >> 16 != strtoul(caption, nullptr, 16))
            return "a key of two writes";
    }
    return "";
}

// --- The thumbnails of a clip, which the store trims and the program renumbers ---

constexpr int CLIP_FRAMES = 40;
constexpr int CLIP_FIRST = 5; // what a trim leaves
constexpr int CLIP_LAST = 34;
static const std::string CLIP_FILES = "/mnt/sys/FM/1/OPENING.SFH";
static const std::string CLIP_STORE = "/var/tmp/store"; // how many frames the store has

// Told, and with the passes in which its files change.
static void TellOfClip(const char* verb, const std::string& row)
{
    constexpr int PASSES = 30;
    (void)FMCtrl3_Proc(MSG_SHPTALLY, Arg(verb), Arg("CS1.ClipStoreFile"), 0, Arg(row.c_str()));
    for (int i = 0; i < PASSES; i++)
        (void)FMCtrl3_Proc(MSG_REDRAW, 10, 0, 0, 0);
}

static void TellClip(int frames)
{
    TellOfClip("Insert", "root/OPENING.SFH:" + Number(frames) + ",0,0,0,2026-01-31 23:59:00,1,1");
}

static void StoreHas(int frames)
{
    std::ofstream(CLIP_STORE + ".part") << frames;
    fs::rename(CLIP_STORE + ".part", CLIP_STORE);
}

// The frame that a picture says that it is of, before any trim; -1 when it is not there.
static int FrameOf(int number)
{
    char name[16];
    PrintText(name, "#%06d.THM", number);
    const std::string text = Text(CLIP_FILES + name);
    return text.empty() ? -1 : text[0];
}

// Pictures that arrive, each whole, long before the trim: what just came is fetched anew.
static void PutFrames()
{
    constexpr int BYTES = 6966;
    for (int i = 0; i < CLIP_FRAMES; i++) {
        char name[16];
        PrintText(name, "#%06d.THM", i);
        std::ofstream(CLIP_FILES, std::ios::binary) << std::string(BYTES, char(i));
        fs::last_write_time(CLIP_FILES, fs::file_time_type::clock::now() - std::chrono::hours(1));
        fs::rename(CLIP_FILES, CLIP_FILES + name);
    }
}

// A new clip that the store has trimmed, and nobody has read of it.
static void TrimAtStore()
{
    FMCtrl3_Init();
    TellClip(0); // the one before
    TellOfClip("Delete", "root/OPENING.SFH");
    StoreHas(CLIP_FRAMES);
    TellClip(CLIP_FRAMES);
    PutFrames();
    StoreHas(CLIP_LAST - CLIP_FIRST + 1);
}

static void WriteClip(int)
{
    TrimAtStore();
    TellOfClip("Result", "Trim root/OPENING.SFH " + Number(CLIP_FIRST) + " " + Number(CLIP_LAST) +
                             " " + Number(CLIP_LAST - CLIP_FIRST + 1) + ":7F");
}

// Killed at this one moment.
static void WriteTrim(int)
{
    TrimAtStore();
    (void)!write(ready_fd, "", 1);
    for (;;)
        pause();
}

// The next start reads the store: what is there then is of the clip as it is.
static std::string LookClip()
{
    const int frames = atoi(Text(CLIP_STORE).c_str());
    const int first = frames == CLIP_FRAMES ? 0 : CLIP_FIRST;
    FMCtrl3_Init();
    TellClip(frames);
    FMCtrl3_Finalize();
    for (int i = 0; i < frames; i++)
        if (FrameOf(i) >= 0 && FrameOf(i) != first + i)
            return "frame " + Number(i) + " of " + Number(frames) + " is of " + Number(FrameOf(i));
    return "";
}

// --- Files that a server writes for the program, of more than one piece ---

static constexpr char COPY[] = "/mnt/data/user/root/SYSTEM/COPY.BIN";
constexpr size_t COPY_BYTES = 300000;
constexpr int SIM_SPEED = 50; // its clock: a copy takes 20 ms of it

// Back when the simulator has told what came of it; the process ends when it is gone.
static void SendCopy(int fd, const std::string& line)
{
    char bytes[4096];
    std::string replies;
    bool is_there = send(fd, line.data(), line.size(), MSG_NOSIGNAL) == ssize_t(line.size());
    while (is_there && replies.find("Copy@Status#") == std::string::npos) {
        const ssize_t size = recv(fd, bytes, sizeof bytes, 0);
        is_there = size > 0;
        replies.append(bytes, size_t(std::max<ssize_t>(size, 0)));
    }
    if (!is_there)
        _exit(0);
}

// Asks the simulator for one copy after the other.
[[noreturn]] static void AskForCopies(int n)
{
    sockaddr_in name = {};
    name.sin_family = AF_INET;
    name.sin_port = htons(10001);
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    while (connect(fd, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0)
        usleep(1000);
    const char* sources[] = {"odd.bin", "even.bin"};
    for (bool is_first = true;; is_first = false) {
        const std::string line = "put File@Access@Copy#L" + Number(++n) + ",MYHOST:/mnt/data/user/";
        SendCopy(fd, line + sources[0] + ",MYHOST:" + COPY + "\n");
        if (is_first)
            (void)!write(ready_fd, "", 1); // there is one
        std::swap(sources[0], sources[1]);
    }
}

// The simulator takes the place of the child.
static void WriteCopies(int n)
{
    const pid_t parent = getpid();
    if (fork() == 0) {
        (void)prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() == parent)
            AskForCopies(n);
        _exit(0);
    }
    const char* const program = getenv("TM3_SIMULATOR");
    (void)!freopen("/dev/null", "r", stdin);
    execl(program, program, "--quiet", "--speed", Number(SIM_SPEED).c_str(), nullptr);
    _exit(1);
}

static std::string LookCopies()
{
    const std::string text = Text(COPY);
    for (const auto& entry : fs::directory_iterator(fs::path(COPY).parent_path()))
        if (entry.path().extension() == ".part")
            fs::remove(entry.path()); // what it was at
    return text == std::string(COPY_BYTES, 'e') || text == std::string(COPY_BYTES, 'o')
               ? ""
               : "of neither source: " + Number(int(text.size()));
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
    {"protection", WriteProtection, LookProtection},
    {"favourites", WriteFavorites, LookFavorites},
    {"clip", WriteClip, LookClip},
    {"trim", WriteTrim, LookClip, true},
    {"copies", WriteCopies, LookCopies, true},
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
    Lay("/mnt/data/user/odd.bin", std::string(COPY_BYTES, 'o'));
    Lay("/mnt/data/user/even.bin", std::string(COPY_BYTES, 'e'));
    fs::create_directories(fs::path(COPY).parent_path());
    for (const char* folder :
         {"/mnt/sys/FrameMemory", "/tmp/FTPIF/Command", MACRO_EDIT_DIR, "/mnt/sys/FM/1"})
        fs::create_directories(folder);
    static DEVICE switcher; // whose clip store it is
    CopyText(switcher.id, "SWR001D001");
    DEV_MySwr[0] = &switcher;
    favorites_open(); // of which there are none yet
    CopyText(GL_ImportDataPath, DRIVE);
    Log_Init("/var/log2/tm3.log", 20000); // rotated often
}

[[noreturn]] static void WriteForEver(const Work& work, int n)
{
    if (!work.stays)
        (void)!write(ready_fd, "", 1);
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
    if (child == 0) {
        ready_fd = pipe_fd[1];
        WriteForEver(work, n);
    }
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
        fprintf(stderr, "usage: kill9 N [SEED [KIND]]\n");
        return 2;
    }
    std::mt19937 random(argc > 2 ? unsigned(atoi(argv[2])) : 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    Start_Init(32);
    LayAll();
    for (const Work& work : works)
        if (!work.stays)
            work.write(1); // from here on there is one
    const Work* const only = std::find_if(std::begin(works), std::end(works), [&](const Work& w) {
        return argc > 3 && strcmp(w.name, argv[3]) == 0;
    });
    int faults = 0;
    for (int i = 0; i < kills; i++) {
        const Work& work = only != std::end(works) ? *only : works[size_t(i) % std::size(works)];
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
