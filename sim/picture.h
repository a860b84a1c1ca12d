// picture: images of the frame memory: drawing them, and the file formats that they are imported
// from and exported to. A picture that comes from outside is checked before it is believed.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

constexpr int PICTURE_SIDE = 4096; // pixels at most, width and height

struct Picture {
    int width = 0;
    int height = 0;
    bool has_alpha = false;
    std::vector<uint32_t> pixels; // 0xAARRGGBB, from the top left corner, row by row
};

// A test card that the name tells from others: its text in large letters over colour bars.
Picture Picture_Draw(const std::string& name, int width, int height);
Picture Picture_Scale(const Picture& picture, int width, int height); // nearest pixel
Picture Picture_Key(const Picture& picture);                          // alpha as grey
void Picture_SwapFields(Picture* picture);                            // rows two by two

// kind: "BMP", "TGA", "TIF" or "PNG". False: not one, or of a form that isn't known.
bool Picture_Read(const std::string& kind, const std::string& bytes, Picture* picture);
bool Picture_Write(const std::string& kind, const Picture& picture, std::string* bytes);
