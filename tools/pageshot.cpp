// pageshot: pages as PNG files.
//
// usage: pageshot PAGE FILE.png [PATH#VALUE]... [--press X,Y]... [--before PATH#VALUE]...
//          One page without a server: every path of the page gets the default that the simulator
//          would answer, then the tallies of the command line. PAGE as the operator writes it:
//          1111, 1111.2; a tally that decides whether the page exists is played before it opens
//        pageshot --all DIR [BANK]...
//          Every page, as the simulator at the links fills it, and sheets of each bank of pages
//          (the first two digits, or as many as are given) with many of them side by side
// Both in the working directory build/run.
#include "a_kf.h"
#include "bus.h"
#include "device.h"
#include "file.h"
#include "global.h"
#include "graphics.h"
#include "guest.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "picture.h"
#include "tdl.h"
#include "text.h"
#include <SDL.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

static bool OpenScreen()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return false;
    SDL_Surface* surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0);
    if (!surface || TDL_Init(surface) != 0)
        return false;
    LoadGraphics();
    return true;
}

static uint32_t PageId(const char* text)
{
    unsigned high = 0, low = 0;
    (void)sscanf(text, "%4x.%x", &high, &low); // what is missing stays 0
    return high << 16 | low;
}

// The defaults of the exported values: the first word, 0 for a number, false for the rest.
static void SendDefault(char* line)
{
    line[strcspn(line, "\n")] = '\0';
    char* kind = strchr(line, '\t');
    if (!kind)
        return;
    *kind++ = '\0';
    char* args = strchr(kind, '\t');
    const char* value = strncmp(kind, "num", 3) == 0 ? "0" : "false";
    if (strncmp(kind, "word", 4) == 0 && args) {
        value = args + 1;
        args[1 + strcspn(args + 1, ",")] = '\0';
    }
    char tally[CMD_SIZE];
    PrintText(tally, "%s#%s", line, value);
    SendDummyTally(tally);
}

// The options of the command line that count once the page is open are left where they are.
static void PlayBefore(int argc, char** argv)
{
    for (int i = 3; i + 1 < argc; i++)
        if (strcmp(argv[i], "--before") == 0)
            SendDummyTally(argv[++i]);
}

// Tallies and touches in the order in which they stand.
static void Play(int argc, char** argv)
{
    for (int i = 3; i < argc; i++) {
        int x = 0, y = 0;
        if (strcmp(argv[i], "--before") == 0) {
            i++;
        } else if (strcmp(argv[i], "--press") == 0 && i + 1 < argc &&
                   sscanf(argv[++i], "%d,%d", &x, &y) == 2) {
            SendMessage(MSG_REDRAW, 10, 0, 0, 0); // as a pass would have painted by then
            SendMessage(MSG_PRESS, x, y, SDL_BUTTON_LEFT, 0);
        } else {
            SendDummyTally(argv[i]);
        }
    }
}

static void SendDefaults()
{
    FILE* fp = fopen("values.txt", "r");
    if (!fp)
        return;
    char line[4096];
    while (fgets(line, sizeof line, fp))
        SendDefault(line);
    fclose(fp);
}

static int OnePage(int argc, char** argv)
{
    Log_SetLevel(LOG_FORCED);
    if (!OpenScreen()) {
        fprintf(stderr, "pageshot: %s; is the working directory build/run?\n", SDL_GetError());
        return 1;
    }
    Device_Init();
    Global_InitBusNames();
    KF_Init();
    DeviceStructure();
    PlayBefore(argc, argv);
    if (CreatePage(PageId(argv[1])) != 0) {
        fprintf(stderr, "pageshot: there is no page %s\n", argv[1]);
        return 1;
    }
    SendDefaults();
    Play(argc, argv);
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    if (!Picture_Write(Picture_OfScreen(), argv[2])) {
        fprintf(stderr, "pageshot: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}

// --- All pages ---

namespace
{
constexpr int ROUNDS = 3;    // of answers, and answers to what they led to
constexpr size_t SHEET = 20; // pictures on one sheet
constexpr int SHEET_COLUMNS = 4;
constexpr int SHEET_SCALE = 2; // the part of a page's size
constexpr int FILES_MS = 2000;
} // namespace

// The rows of the banks, of all banks without any, by id.
static std::vector<const PAGE*> Wanted(char** banks, int count)
{
    std::vector<const PAGE*> rows;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++) {
        char id[16];
        PrintText(id, "%08X", unsigned(row->id));
        if (count == 0 || std::any_of(banks, banks + count,
                                      [&](const char* bank) { return BeginsWith(id, bank); }))
            rows.push_back(row);
    }
    std::ranges::sort(rows, {}, &PAGE::id);
    return rows;
}

static bool WriteSheet(const std::string& dir, unsigned bank, int number,
                       std::vector<NamedPicture>* pictures)
{
    if (pictures->empty())
        return true;
    char name[32];
    PrintText(name, "/sheet_%02X_%02d.png", bank, number);
    const bool is_written =
        Picture_Write(Picture_Sheet(*pictures, SHEET_COLUMNS), (dir + name).c_str());
    pictures->clear();
    return is_written;
}

static std::string Caption(const PAGE& row)
{
    char number[16];
    Page_Number(number, sizeof number, row.id);
    std::string caption = number;
    for (const char* word : row.tree)
        if (word)
            caption += std::string(" ") + word;
    return caption;
}

// Drives answer in their own time, and the end of one job begins another.
static void WaitForFiles(int limit_ms, int quiet_for_ms = 50)
{
    constexpr int PASS_MS = 10;
    for (int ms = 0, quiet_ms = 0; ms < limit_ms && quiet_ms < quiet_for_ms; ms += PASS_MS) {
        Guest_Pass(PASS_MS);
        SDL_Delay(PASS_MS);
        quiet_ms = QueueRoot ? 0 : quiet_ms + PASS_MS;
    }
}

constexpr int SAVE_QUIET_MS = 500; // from one step of a save to the next, on a busy machine

static void SaveWhatAllLeavesOut()
{
    // User setup, names of frames and of sources.
    for (const uint32_t page : {0x71160000U, 0x71530000U, 0x71740000U}) {
        if (CreatePage(page) != 0)
            continue;
        Guest_Settle(ROUNDS);
        WaitForFiles(FILES_MS, SAVE_QUIET_MS);
        SendMessage(LMSG_BTNSEL, MsgArg("LOCAL@File@Single@L to R"), 0, 0, 0);
        WaitForFiles(FILES_MS, SAVE_QUIET_MS);
        Guest_CloseAll();
    }
}

// The pages of files show a show that has been saved.
static void SaveShow()
{
    constexpr uint32_t ALL_PAGE = 0x71110000;
    constexpr int SAVED_MS = 60000;
    constexpr int yes = 1;
    if (CreatePage(ALL_PAGE) != 0)
        return;
    Guest_Settle(ROUNDS);
    SendMessage(LMSG_BTNSEL, MsgArg("LOCAL@File@All@L to R"), 0, 0, 0);
    const int question = Pane_GetActiveID();
    (void)Pane_Quit(question);
    SendMessage(LMSG_PANEQUIT, question, yes, 0, 0);
    for (int i = 0; i < ROUNDS; i++)
        WaitForFiles(SAVED_MS, SAVE_QUIET_MS); // the registers, then the pictures
    Guest_CloseAll();
    SaveWhatAllLeavesOut();
}

static int AllPages(const std::string& dir, char** banks, int count)
{
    std::vector<NamedPicture> sheet;
    unsigned bank = 0;
    int number = 0, written = 0, missing = 0;
    bool is_good = true;
    const auto end_sheet = [&] { is_good = is_good && WriteSheet(dir, bank, ++number, &sheet); };
    SaveShow();
    for (const PAGE* row : Wanted(banks, count)) {
        if (!is_good)
            break;
        if (sheet.size() == SHEET || (!sheet.empty() && bank != row->id >> 24))
            end_sheet();
        if (bank != row->id >> 24) {
            bank = row->id >> 24;
            number = 0;
        }
        if (!Guest_Open(*row)) {
            fprintf(stderr, "pageshot: %08X cannot be opened\n", unsigned(row->id));
            missing++;
            continue;
        }
        Guest_Settle(ROUNDS);
        WaitForFiles(FILES_MS);
        const Picture picture = Picture_OfScreen();
        char id[16];
        PrintText(id, "/%08X.png", unsigned(row->id));
        is_good = Picture_Write(picture, (dir + id).c_str());
        sheet.push_back({Caption(*row), Picture_Smaller(picture, SHEET_SCALE)});
        written++;
        Guest_CloseAll();
    }
    end_sheet();
    if (!is_good)
        fprintf(stderr, "pageshot: cannot write to %s\n", dir.c_str());
    printf("%d pages\n", written);
    return is_good && missing == 0 ? 0 : 1;
}

int main(int argc, char** argv)
{
    if (argc < 3) {
        fprintf(stderr, "usage: pageshot PAGE FILE.png [PATH#VALUE]... [--press X,Y]... "
                        "[--before PATH#VALUE]...\n"
                        "       pageshot --all DIR [BANK]...\n");
        return 2;
    }
    if (strcmp(argv[1], "--all") != 0)
        return OnePage(argc, argv);
    return Guest_Start() ? AllPages(argv[2], argv + 3, argc - 3) : 1;
}
