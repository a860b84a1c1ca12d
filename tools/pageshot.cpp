// pageshot: one page as a PNG, without a server: every path of the page gets the default that the
// simulator would answer, then the tallies of the command line.
//
// usage: pageshot PAGE FILE.png [PATH#VALUE]... [--press X,Y]... [--before PATH#VALUE]...
//        in the working directory build/run. PAGE as the operator writes it: 1111, 1111.2; a
//        tally that decides whether the page exists is played before it opens
#include "a_kf.h"
#include "bus.h"
#include "device.h"
#include "global.h"
#include "graphics.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "tdl.h"
#include "text.h"
#include <SDL.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <png.h>
#include <vector>

static bool WritePng(const char* path)
{
    std::vector<uint8_t> rgb;
    for (int y = 0; y < Screen->h; y++) {
        for (int x = 0; x < Screen->w; x++) {
            uint32_t pixel;
            memcpy(&pixel, static_cast<uint8_t*>(Screen->pixels) + y * Screen->pitch + x * 4, 4);
            uint8_t c[3];
            SDL_GetRGB(pixel, Screen->format, &c[0], &c[1], &c[2]);
            rgb.insert(rgb.end(), c, c + 3);
        }
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(Screen->w);
    image.height = png_uint_32(Screen->h);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, path, 0, rgb.data(), 0, nullptr) != 0;
}

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

int main(int argc, char** argv)
{
    if (argc < 3) {
        fprintf(stderr, "usage: pageshot PAGE FILE.png [PATH#VALUE]... [--press X,Y]... "
                        "[--before PATH#VALUE]...\n");
        return 2;
    }
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
    if (!WritePng(argv[2])) {
        fprintf(stderr, "pageshot: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
