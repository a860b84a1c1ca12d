#include "frame_file.h"
#include "text.h"

// Place of each field in the header.
enum HeadPlace {
    AT_FORMAT = 4,
    AT_PAIR = 5,
    AT_4K = 6,
    AT_PACKED = 7,
    AT_INVERTED = 8,
    AT_NAME = 16,
    AT_CRC = 60
};

static const std::string MAGIC = "SFMD";
static constexpr size_t NAME_BYTES = 9;
static constexpr size_t BODY_BYTES = 256 << 20; // of a picture at most

static uint32_t crc_of(const std::string& bytes)
{
    uint32_t crc = 0xFFFFFFFF;
    for (const char c : bytes) {
        crc ^= (unsigned char)c;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

// Runs: a byte of 128 and more stands before one byte that comes so many times (less 126), a lower
// one before so many bytes (and one more) that stand as they are.
static std::string pack(const std::string& bytes)
{
    constexpr size_t RUN = 128;
    std::string packed;
    for (size_t at = 0; at < bytes.size();) {
        size_t same = 1;
        while (same < RUN && at + same < bytes.size() && bytes[at + same] == bytes[at])
            ++same;
        if (same > 2) {
            packed += char(same + 126);
            packed += bytes[at];
            at += same;
            continue;
        }
        size_t count = 1;
        while (count < RUN && at + count < bytes.size() &&
               !(at + count + 2 < bytes.size() && bytes[at + count] == bytes[at + count + 1] &&
                 bytes[at + count] == bytes[at + count + 2]))
            ++count;
        packed += char(count - 1);
        packed += bytes.substr(at, count);
        at += count;
    }
    return packed;
}

static bool unpack(const std::string& packed, std::string* bytes)
{
    for (size_t at = 0; at < packed.size();) {
        const size_t mark = (unsigned char)packed[at++];
        const bool is_run = mark >= 128;
        const size_t needed = is_run ? 1 : mark + 1;
        if (packed.size() - at < needed || bytes->size() > BODY_BYTES)
            return false;
        *bytes += is_run ? std::string(mark - 126, packed[at]) : packed.substr(at, needed);
        at += needed;
    }
    return true;
}

std::string FrameFile_Write(const FrameFile& frame)
{
    std::string head(FRAME_HEAD, '\0');
    head.replace(0, MAGIC.size(), MAGIC);
    head[AT_FORMAT] = char(frame.format);
    head[AT_PAIR] = char(frame.is_pair);
    head[AT_4K] = char(frame.is_4k);
    head[AT_PACKED] = char(frame.is_packed);
    head[AT_INVERTED] = char(frame.is_inverted);
    const std::string name = frame.name.substr(0, NAME_BYTES);
    head.replace(AT_NAME, name.size(), name);
    const uint32_t crc = crc_of(head.substr(0, AT_CRC));
    for (int i = 0; i < 4; ++i)
        head[size_t(AT_CRC + i)] = char(crc >> 8 * (3 - i));
    std::string bmp;
    (void)Picture_Write("BMP", frame.picture, &bmp); // cannot fail
    return head + (frame.is_packed ? pack(bmp) : bmp);
}

bool FrameFile_ReadHead(const std::string& bytes, FrameFile* frame)
{
    if (bytes.size() < FRAME_HEAD || !Text_Begins(bytes, MAGIC))
        return false;
    uint32_t crc = 0;
    for (int i = 0; i < 4; ++i)
        crc = crc << 8 | (unsigned char)bytes[size_t(AT_CRC + i)];
    if (crc != crc_of(bytes.substr(0, AT_CRC)))
        return false;
    *frame = {};
    frame->format = (unsigned char)bytes[AT_FORMAT];
    frame->is_pair = bytes[AT_PAIR];
    frame->is_4k = bytes[AT_4K];
    frame->is_packed = bytes[AT_PACKED];
    frame->is_inverted = bytes[AT_INVERTED];
    const std::string name = bytes.substr(AT_NAME, NAME_BYTES);
    frame->name = name.substr(0, name.find('\0'));
    return true;
}

bool FrameFile_Read(const std::string& bytes, FrameFile* frame)
{
    if (!FrameFile_ReadHead(bytes, frame))
        return false;
    std::string body = bytes.substr(FRAME_HEAD), bmp;
    if (frame->is_packed && !unpack(body, &bmp))
        return false;
    return Picture_Read("BMP", frame->is_packed ? bmp : body, &frame->picture);
}
