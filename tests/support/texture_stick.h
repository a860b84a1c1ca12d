// texture_stick: bitmaps in a folder of the test's own that stands for the removable drive.
#pragma once
#include "harness.h"
#include "texture_package.h"
#include <filesystem>
#include <fstream>

#define TEXTURE_STICK "/tmp/texture_test/"

// The bytes of an uncompressed bitmap; a negative height is one from the top.
inline std::string BitmapBytes(int width, int height, int bits = 24, char fill = 'x')
{
    const int line = (width * bits + 31) / 32 * 4, offset = 54 + (bits == 8 ? 1024 : 0);
    std::string bytes(size_t(offset), '\0');
    const auto put = [&](size_t at, int value) {
        for (size_t i = 0; i < 4; i++)
            bytes[at + i] = char(value >> 8 * i);
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(10, offset);
    put(14, 40);
    put(18, width);
    put(22, height);
    put(26, 1 | bits << 16);
    return bytes + std::string(size_t(line * std::abs(height)), fill);
}

struct TextureStick {
    TextureStick()
    {
        std::filesystem::remove_all(TEXTURE_STICK);
        std::filesystem::create_directories(TEXTURE_STICK);
        TexturePackage_Clear();
    }
    ~TextureStick()
    {
        std::filesystem::remove_all(TEXTURE_STICK);
        TexturePackage_Clear();
    }

    static std::string Put(const std::string& name, const std::string& bytes)
    {
        const std::string path = TEXTURE_STICK + name;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static std::string Put(const std::string& name, int width, int height, char fill = 'x')
    {
        return Put(name, BitmapBytes(width * TEXTURE_UNIT_PX, height * TEXTURE_UNIT_PX, 24, fill));
    }
    // "NAME@x,y" of the package in hand.
    static Strings Places()
    {
        Strings places;
        for (int i = 0; i < TextureMax; i++)
            places.push_back(std::string(Texture[i].name) + "@" + std::to_string(Texture[i].x) +
                             "," + std::to_string(Texture[i].y));
        return places;
    }
};
