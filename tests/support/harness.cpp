#include "harness.h"
#include "a_ba.h"
#include "a_fl.h"
#include "a_kf.h"
#include "a_st.h"
#include "autoload.h"
#include "bus.h"
#include "device.h"
#include "file.h"
#include "file_dir.h"
#include "fmctrl.h"
#include "fmctrl3.h"
#include "global.h"
#include "graphics.h"
#include "held.h"
#include "info.h"
#include "log.h"
#include "loop.h"
#include "me_config.h"
#include "menu_macro.h"
#include "netio.h"
#include "page_family.h"
#include "pane.h"
#include "pane_private.h"
#include "pc_file_all.h"
#include "pc_file_dual.h"
#include "pc_macro_offline.h"
#include "pc_register.h"
#include "register.h"
#include "saver.h"
#include "scrollbar.h"
#include "selfdiag.h"
#include "setup_index.h"
#include "tdl.h"
#include "test_dirs.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <arpa/inet.h>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <png.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

uint32_t Clock_ms = 1000;
bool Clock_IsReal = false;

// The test program's own clock takes the place of the library's.
extern "C" Uint32 SDL_GetTicks()
{
    return Clock_ms;
}
extern "C" void SDL_Delay(Uint32 ms)
{
    Clock_ms += ms;
    if (Clock_IsReal)
        usleep(ms * 1000);
}

void Harness_Video()
{
    if (Screen)
        return;
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    SDL_Surface* surface = nullptr;
    if (SDL_Init(SDL_INIT_VIDEO) == 0)
        surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0);
    if (!surface || TDL_Init(surface) != 0) {
        fprintf(stderr, "no video: %s\n", SDL_GetError());
        exit(1);
    }
    LoadGraphics();
}

// What tests set of the settings and the system's state.
static void reset_state()
{
    Device_Init();
    DeviceStructure();
    SelfDiag_Init();
    GL_ErrorPopup = GL_RedrawMenu9991 = 0;
    me_config_reset();
    Global_FreeBusNames();
    SYS_DualProc = SYS_Simul = SYS_DualSimul = SYS_3DMode = SYS_4KMode = SYS_SetupTarget = 0;
    SYS_DMEReference = SYS_Format_Size = SYS_Format_Freq = SYS_Format_Scan = 0;
    SYS_KeyTransitionME1 = SYS_KeyTransitionME2 = SYS_KeyTransitionME3 = SYS_KeyTransitionME4 = 0;
    SYS_KeyTransitionME5 = SYS_KeyTransitionPP = 0;
    GL_KeyRowMode = GL_DebugMode = GL_DskInhibit = GL_AllPageDisplayMode = GL_MenuMacro_Edit = 0;
    GL_MenuMacro_Run = GL_Macro_Offline_Store = GL_Macro_Online_TrueOrFalse = 0;
    GL_TimelineDisplayPriority = GL_ContinuousLoad = GL_SSver_PVW = GL_SSver_Shown = 0;
    GL_FileProcessing = 0;
    GL_ErrorPopup_On = GL_ErrorExist = GL_InitRead = GL_InitProgress = GL_InitReadStatus_Busy = 0;
    GL_MouseSliderControl = GL_MouseWheelDirection = GL_FM_Find_Window = GL_FM_Find_PaneID = 0;
    GL_ClipStoreSupportMode = SetupMenu_Max = 0;
    const auto clear = [](auto&... arrays) { (std::ranges::fill(arrays, 0), ...); };
    clear(SYS_MEOperation, multiprogram2_me, me_config_type, GL_DmeModel, GL_DmeSdiIF, SYS_Combine,
          SYS_CombineCh, GL_ProcStatus, GL_InitReadStatus, GL_BoardMESplit, GL_MainSubAssign,
          FileProc_Prog, SYS_RefSwrScreenAspect);
    std::ranges::fill(GL_KeyMax, 8);
    std::ranges::fill(GL_MEAssign, -1);
    SYS_FrameRate = 60;
    GL_ChatteringTime = 130;
    SYS_FmemV6 = SYS_SignalFormat = SYS_ScreenAspect = 1;
    SYS_DWSubEnable = GL_FillSourceAssignMode = 0;
    GL_ImportDataPath[0] = '\0';
    GL_InitialPage = PAGE_TOP;
    SetupLock = {};
    for (const auto set : {BA_SetDefaultButton, BA_SetUsbAccess, BA_SetFtpAccess, BA_SetHDDAccess})
        set(0);
    UnHackMessage(0);
    GL_ScreenSaverInterval = 1200;
    GL_ScreenSaverPTN_Mode = SAVER_PATTERNS;
    GL_ScreenSaverVariable_speed = 0;
    GL_ScreenSaverPath_Time = 5;
    CopyText(GL_Scr_disp_ImagePath, "/mnt/data/SSrc");
    for (auto& name : GL_Scr_disp_name)
        name[0] = '\0';
    CopyText(GL_Scr_disp_name[0], "KTR-20");
}

static int full_houses; // alive

static void fill_house()
{
    GL_ClipStoreSupportMode = 1;
    std::fill_n(multiprogram2_me, ME_COUNT, 1);
    std::fill_n(GL_KeyMax, ME_COUNT, 8);
    SYS_RefSwrType = DEVTYPE_KTR40GSF;
    SYS_FmemV6 = SYS_DWSubEnable = 1;
}

// Every selector of regions as at the process start.
static void reset_regions()
{
    static std::map<BTNSEL*, int> first;
    for (int grp = 0; grp < REGION_GROUPS; grp++)
        for (int i = 0; i < RegionBtn[grp].cells; i++) {
            BTNSEL* const cell = &RegionBtn[grp].btnsel[i];
            cell->select = first.emplace(cell, cell->select).first->second;
        }
}

void Harness_Reset()
{
    Harness_Video();
    Log_Init(nullptr, LOG_FILE_SIZE);
    Log_SetLevel(0);
    (void)EndScreenSaver();
    SDL_ShowCursor(0);
    while (Pane_GetActiveID())
        Pane_Quit(Pane_GetActiveID());
    (void)CloseWindow();   // none is open: fine
    PageFamily_EmptyAll(); // rows may live in a test that ends
    CloseScrollBarAll();
    Page_Reset();
    Loop_Reset();
    Held_Reset();
    KF_Init();
    reset_state();
    if (full_houses)
        fill_house();
    GL_CreatePage = 0;
    SDL_Event e;
    while (SDL_PollEvent(&e)) {
    }
    FL_Init_File();
    AutoLoad_Reset();
    File_Reset();
    FileDual_Reset();
    FileAll_Reset();
    FMCtrl_Quit();
    FMCtrl3_Init();
    MacroOffline_Reset();
    Register_StatusReport(0);
    Register_Free();
    RegisterPages_Reset();
    mm_registers_free();
    reset_regions();
    File_DirReset();
    File_ReplaceSync([] { return 0; }); // a job of a test does not wait for the host's drives
    (void)TakeQueuedCommands();         // what an earlier test left
    (void)TakeQueuedHubLines();
    TDL_FillRectS(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0);
}

FullHouse::FullHouse()
{
    full_houses++;
    fill_house();
}

FullHouse::~FullHouse()
{
    if (--full_houses == 0)
        reset_state();
}

sockaddr_in LocalAddress(int port)
{
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(uint16_t(port));
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return a;
}

Peer::Peer(int port, int backlog)
{
    listen_fd = socket(AF_INET, SOCK_STREAM, 0);
    const int on = 1;
    setsockopt(listen_fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in a = LocalAddress(port);
    if (bind(listen_fd, reinterpret_cast<sockaddr*>(&a), sizeof a) != 0 ||
        listen(listen_fd, backlog) != 0)
        ADD_FAILURE() << "cannot listen on port " << port << ": " << strerror(errno);
}

Peer::~Peer()
{
    Drop();
    StopListening();
}

bool Peer::Accept()
{
    pollfd p{listen_fd, POLLIN, 0};
    if (poll(&p, 1, 2000) != 1)
        return false;
    fd = accept(listen_fd, nullptr, nullptr);
    return fd >= 0;
}

void Peer::Send(const std::string& text)
{
    size_t sent = 0;
    while (sent < text.size()) {
        const ssize_t n = send(fd, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
        if (n <= 0) {
            ADD_FAILURE() << "send: " << strerror(errno);
            return;
        }
        sent += size_t(n);
    }
}

void Peer::Drop()
{
    if (fd >= 0)
        close(fd);
    fd = -1;
    received.clear();
}

void Peer::StopListening()
{
    if (listen_fd >= 0)
        close(listen_fd);
    listen_fd = -1;
}

Strings Peer::Lines(int wait_ms)
{
    pollfd p{fd, POLLIN, 0};
    char buf[4096];
    while (poll(&p, 1, wait_ms) == 1) {
        const ssize_t n = recv(fd, buf, sizeof buf, 0);
        if (n <= 0)
            break;
        received.append(buf, size_t(n));
        wait_ms = 5;
    }
    Strings lines;
    for (size_t end; (end = received.find('\n')) != std::string::npos; received.erase(0, end + 1))
        lines.push_back(received.substr(0, end));
    return lines;
}

template <typename Take> static Strings queued(Take take)
{
    Strings lines;
    for (char text[CMD_SIZE]; take(text, sizeof text);)
        lines.emplace_back(text);
    return lines;
}

Strings TakeQueuedCommands()
{
    return queued(Net_TakeQueued);
}

Strings TakeQueuedHubLines()
{
    return queued(Net_TakeQueuedSHP);
}

std::string FileText(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

uint32_t PixelAt(int x, int y)
{
    const auto* row = static_cast<const uint8_t*>(Screen->pixels) + y * Screen->pitch;
    uint32_t pixel;
    memcpy(&pixel, row + x * 4, 4);
    return pixel & 0xFFFFFF;
}

std::vector<uint32_t> PixelsIn(const Rect& r)
{
    std::vector<uint32_t> pixels;
    for (int y = r.y1; y <= r.y2; y++)
        for (int x = r.x1; x <= r.x2; x++)
            pixels.push_back(PixelAt(x, y));
    return pixels;
}

namespace
{
struct Picture {
    int w = 0;
    int h = 0;
    std::vector<uint8_t> rgb;
};

Picture Grab(SDL_Surface* s, const Rect& r)
{
    Picture p{r.x2 - r.x1 + 1, r.y2 - r.y1 + 1, {}};
    for (int y = r.y1; y <= r.y2; y++)
        for (int x = r.x1; x <= r.x2; x++) {
            const auto* at = static_cast<const uint8_t*>(s->pixels) + y * s->pitch +
                             x * s->format->BytesPerPixel;
            uint32_t pixel = 0;
            memcpy(&pixel, at, s->format->BytesPerPixel);
            uint8_t c[3];
            SDL_GetRGB(pixel, s->format, &c[0], &c[1], &c[2]);
            p.rgb.insert(p.rgb.end(), c, c + 3);
        }
    return p;
}

bool Save(const std::string& path, const Picture& p)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(p.w);
    image.height = png_uint_32(p.h);
    image.format = PNG_FORMAT_RGB;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    return png_image_write_to_file(&image, path.c_str(), 0, p.rgb.data(), 0, nullptr) != 0;
}

bool Load(const std::string& path, Picture* p)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path.c_str()))
        return false;
    image.format = PNG_FORMAT_RGB;
    p->w = int(image.width);
    p->h = int(image.height);
    p->rgb.resize(PNG_IMAGE_SIZE(image));
    return png_image_finish_read(&image, nullptr, p->rgb.data(), 0, nullptr) != 0;
}
} // namespace

bool WritePng(const std::string& path, SDL_Surface* surface)
{
    return Save(path, Grab(surface, {0, 0, surface->w - 1, surface->h - 1}));
}

testing::AssertionResult MatchesGolden(const std::string& name, Rect part)
{
    const std::string golden = TEST_SOURCE_DIR "/screen/golden/" + name + ".png";
    const Picture actual = Grab(Screen, part);
    if (getenv("TM3_GOLDEN_UPDATE")) {
        if (!Save(golden, actual))
            return testing::AssertionFailure() << "cannot write " << golden;
        return testing::AssertionSuccess();
    }
    Picture expected;
    const bool loaded = Load(golden, &expected);
    if (loaded && expected.w == actual.w && expected.h == actual.h && expected.rgb == actual.rgb)
        return testing::AssertionSuccess();

    const std::string out = TEST_OUT_DIR "/" + name;
    Save(out + ".actual.png", actual);
    if (!loaded)
        return testing::AssertionFailure()
               << "no picture " << golden << "; drew " << out << ".actual.png";
    Save(out + ".expected.png", expected);
    if (expected.w != actual.w || expected.h != actual.h)
        return testing::AssertionFailure() << name << ": another size; see " << out << ".*.png";

    Picture difference = actual;
    int count = 0, first_x = -1, first_y = -1;
    for (size_t i = 0; i < actual.rgb.size(); i += 3) {
        const bool same = std::equal(&actual.rgb[i], &actual.rgb[i] + 3, &expected.rgb[i]);
        for (int c = 0; c < 3; c++)
            difference.rgb[i + size_t(c)] = uint8_t(same ? actual.rgb[i + size_t(c)] / 4 : 255);
        if (!same && count++ == 0) {
            first_x = int(i / 3) % actual.w + part.x1;
            first_y = int(i / 3) / actual.w + part.y1;
        }
    }
    Save(out + ".difference.png", difference);
    return testing::AssertionFailure()
           << name << ": " << count << " pixels differ, the first at (" << first_x << ", "
           << first_y << "); see " << out << ".*.png";
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (chdir(TEST_RUN_DIR) != 0) {
        perror(TEST_RUN_DIR);
        return 1;
    }
    return RUN_ALL_TESTS();
}
