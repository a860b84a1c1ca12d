// frame_file: one register of the frame memory as a file: 64 bytes of header and a BMP, which is
// packed in the forms that end with a digit (SF2, SF4). SFT holds a thumbnail, plain.
#pragma once
#include "picture.h"
#include <string>

struct FrameFile {
    std::string name; // of the register, with its "M" or "S"
    int format = 3;   // of the system, a number
    bool is_pair = false;
    bool is_4k = false;
    bool is_inverted = false; // its fields change places
    bool is_packed = false;
    Picture picture;
};

constexpr int FRAME_WIDTH = 320, FRAME_HEIGHT = 180;
constexpr int THUMBNAIL_WIDTH = 160, THUMBNAIL_HEIGHT = 90;
constexpr size_t FRAME_HEAD = 64;

std::string FrameFile_Write(const FrameFile& frame);
bool FrameFile_Read(const std::string& bytes, FrameFile* frame);     // false: it is none
bool FrameFile_ReadHead(const std::string& bytes, FrameFile* frame); // without the picture
