#include "i2c.h"
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
constexpr char IMAGE[] = "/dev/i2c-0";
constexpr int IMAGE_BYTES = 128 * 256;

struct I2c : testing::Test {
    void TearDown() override { std::filesystem::resize_file(IMAGE, IMAGE_BYTES); }
};

int ImageByte(int device, int address)
{
    std::ifstream in(IMAGE, std::ios::binary);
    in.seekg(device * 256 + address);
    return in.get();
}

void Spoil(int device, int address)
{
    const int old = ImageByte(device, address);
    std::fstream image(IMAGE, std::ios::binary | std::ios::in | std::ios::out);
    image.seekp(device * 256 + address);
    image.put(char(old ^ 1));
}

void EmptyDevice(int device)
{
    const unsigned char zeros[256] = {};
    i2c_address_set(device);
    ASSERT_EQ(i2c_open(), 0);
    ASSERT_EQ(i2c_wr(0, 256, zeros), 256);
    i2c_close();
}
} // namespace

TEST_F(I2c, AFailedReadLeavesTheBytesAndEachOpenIsClosed)
{
    unsigned char in[4] = {9, 9, 9, 9};
    i2c_address_set(0x60);
    EXPECT_EQ(i2c_rd(0, 4, in), -1) << "closed";
    ASSERT_EQ(i2c_open(), 0);
    EXPECT_EQ(i2c_rd(253, 4, in), -1) << "past the device";
    EXPECT_EQ(i2c_wr(253, 4, in), -1) << "past the device";
    EXPECT_EQ(i2c_rd(0, 4, nullptr), -1);
    EXPECT_EQ(i2c_wr(0, 4, nullptr), -1);
    std::filesystem::resize_file(IMAGE, 0x60 * 256 + 2);
    EXPECT_EQ(i2c_rd(0, 4, in), -1) << "cut in the middle";
    i2c_close();
    for (const unsigned char byte : in)
        EXPECT_EQ(byte, 9);

    const int free_fd = open("/dev/null", O_RDONLY);
    close(free_fd);
    i2c_address_set(128);
    EXPECT_EQ(i2c_open(), -1) << "the bus has 128 devices";
    i2c_address_set(127);
    for (int i = 0; i < 2; i++)
        EXPECT_EQ(i2c_open(), 0);
    i2c_close();
    i2c_close();
    const int fd = open("/dev/null", O_RDONLY);
    EXPECT_EQ(fd, free_fd);
    close(fd);
}

TEST_F(I2c, ElementsAreReadAndWrittenWhole)
{
    EmptyDevice(0x53);
    const unsigned char port[3] = {0x25, 0x1C, 0x77};
    EXPECT_EQ(I2cEepromService_WriteElem(EEPROM_SHP_PORT, 3, port), 2);
    EXPECT_EQ(ImageByte(0x53, 70), 0x25);
    EXPECT_EQ(ImageByte(0x53, 71), 0x1C);
    EXPECT_EQ(ImageByte(0x53, 72), 0) << "the next element";
    const unsigned char ones[32] = {1};
    EXPECT_EQ(I2cEepromService_WriteElem(17, 32, ones), -1) << "the other program's element";
    EXPECT_EQ(ImageByte(0x53, 16), 0);
    unsigned char in[4] = {9, 9, 9, 9};
    EXPECT_EQ(I2cEepromService_ReadElem(EEPROM_SHP_PORT, 1, in), -1) << "buffer too small";
    EXPECT_EQ(in[0], 9);
    EXPECT_EQ(I2cEepromService_ReadElem(EEPROM_SHP_PORT, 4, in), 2);
    EXPECT_EQ(in[1], 0x1C);
    EXPECT_EQ(in[2], 9);
    for (const int none : {-1, 35}) {
        EXPECT_EQ(I2cEepromService_ReadElem(none, 200, in), -1);
        EXPECT_EQ(I2cEepromService_WriteElem(none, 200, in), -1);
    }
}

TEST_F(I2c, EachRegionHasItsCrc)
{
    EmptyDevice(0x57);
    EmptyDevice(0x53);
    // The first byte of the CRC of 124 and of 60 zero bytes.
    static const std::tuple<int, int, int> regions[] = {
        {0x57, 124, 0x15}, {0x57, 252, 0x15}, {0x53, 124, 0x15}, {0x53, 188, 0x04}};
    for (int region = 0; region < 4; region++) {
        const auto& [device, crc_address, first] = regions[region];
        EXPECT_EQ(I2cEepromService_IsCrc32Valid(region), 0);
        EXPECT_EQ(I2cEepromService_UpdateCrc32(region), 0);
        EXPECT_EQ(I2cEepromService_IsCrc32Valid(region), 1);
        EXPECT_EQ(ImageByte(device, crc_address), first) << region;
    }
    for (int region = 0; region < 4; region++) {
        const auto& [device, crc_address, first] = regions[region];
        Spoil(device, crc_address - 1); // the region's last byte
        for (int other = 0; other < 4; other++)
            EXPECT_EQ(I2cEepromService_IsCrc32Valid(other), other > region) << region << other;
    }
    EXPECT_EQ(I2cEepromService_UpdateCrc32(4), -1);
    EXPECT_EQ(I2cEepromService_UpdateCrc32(-1), -1);
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(4), -1);
    std::filesystem::resize_file(IMAGE, 0x53 * 256);
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(2), -1);
    EXPECT_EQ(I2cEepromService_UpdateCrc32(2), -1);
}
