// picture: PNG files of what is drawn, and sheets on which many of them stand side by side.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

// Rows of red, green and blue bytes.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> rgb;
};

Picture Picture_Blank(int width, int height);
Picture Picture_OfScreen();
// The same at 1/n of the size, each pixel the middle of those that it stands for.
Picture Picture_Smaller(const Picture& picture, int n);
// A line of text, white on black, as wide as the picture is to be; drawn over the screen and away
// again.
Picture Picture_OfText(const char* text, int width);
void Picture_Paste(Picture* onto, const Picture& what, int x, int y);
bool Picture_Write(const Picture& picture,
                   const char* path); // false when the file cannot be written

// Pictures of one size in rows, each with a name below it.
struct NamedPicture {
    std::string name;
    Picture picture;
};
Picture Picture_Sheet(const std::vector<NamedPicture>& pictures, int columns);
