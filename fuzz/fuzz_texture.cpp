// A package of user textures: whatever stands in it, it is taken over whole and lies in the memory
// without overlap, and can be written again; or nothing changes.
#include "texture_package.h"
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static std::string drive;
    if (drive.empty()) {
        char name[] = "/tmp/fuzz_texture.XXXXXX";
        Check(mkdtemp(name) != nullptr);
        drive = std::string(name) + "/";
        Check(mkdir((drive + TEXTURE_FOLDER).c_str(), 0700) == 0);
    }
    const std::string path = drive + TEXTURE_FOLDER "/" TEXTURE_FILE;
    FILE* fp = fopen(path.c_str(), "w");
    Check(fp && fwrite(data, 1, size, fp) == size);
    fclose(fp);
    TexturePackage_Clear();
    if (TexturePackage_Read(drive.c_str()) != 0) {
        Check(TextureMax == 0);
        return 0;
    }
    bool is_taken[TEXTURE_EDGE][TEXTURE_EDGE] = {};
    for (int i = 0; i < TextureMax; i++) {
        const TEXTURE& t = Texture[i];
        Check(t.name[0] && memchr(t.name, '\0', sizeof t.name));
        Check(t.x >= 0 && t.y >= 0 && t.sizeX >= 1 && t.sizeY >= 1);
        Check(t.x + t.sizeX <= TEXTURE_EDGE && t.y + t.sizeY <= TEXTURE_EDGE);
        for (int k = 0; k < t.sizeX * t.sizeY; k++) {
            bool& cell = is_taken[t.x + k % t.sizeX][t.y + k / t.sizeX];
            Check(!cell);
            cell = true;
        }
    }
    Check(TexturePackage_Write(drive.c_str()) == 0);
    const int count = TextureMax;
    Check(TexturePackage_Read(drive.c_str()) == 0 && TextureMax == count);
    return 0;
}
