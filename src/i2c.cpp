#include "i2c.h"
#include "crc32.h"
#include <SDL.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

namespace
{
constexpr char I2C_NODE[] = "/dev/i2c-0";
constexpr int DEVICE_BYTES = 256; // an 8-bit address reaches no further
constexpr int DEVICES = 128;
constexpr int PAGE_BYTES = 8; // the smallest page of the EEPROMs in use: a write must not cross one
constexpr int WRITE_CYCLE_MS = 5; // an EEPROM answers nothing while it burns a page
constexpr int EEPROM_FIRST = 0x50;
constexpr int EEPROM_LAST = 0x57;

constexpr int MAC_EEPROM = 0x57;
constexpr int SYS_EEPROM = 0x53;

struct Element {
    int elem = 0;
    const char* name = nullptr;
    int device = 0;
    int address = 0;
    int size = 0;
    bool is_foreign = false;
};
constexpr Element Mac(int elem, const char* name, int address, int size)
{
    return {.elem = elem, .name = name, .device = MAC_EEPROM, .address = address, .size = size};
}

constexpr Element Sys(int elem, const char* name, int address, int size)
{
    return {.elem = elem, .name = name, .device = SYS_EEPROM, .address = address, .size = size};
}

// Belongs to another program: never written here.
constexpr Element Foreign(int elem, const char* name, int address, int size)
{
    Element e = Sys(elem, name, address, size);
    e.is_foreign = true;
    return e;
}

// clang-format off
constexpr Element iem[] = { // element, name, address, size
    Mac(0, "MAC_SIGNATURE", 0, 4),
    Mac(1, "MAC_MAC_COUNT", 4, 1),
    Mac(2, "MAC_MAC_ADDR_ETH0", 5, 6),
    Mac(3, "MAC_MAC_ADDR_ETH1", 11, 6),
    Mac(4, "MAC_RESERVED", 17, 107),
    Mac(5, "MAC_CRC32", 124, 4),
    Mac(6, "PRODUCT_LOT", 128, 3),
    Mac(7, "PRODUCT_SERIAL", 131, 5),
    Mac(8, "PRODUCT_NAME", 136, 12),
    Mac(9, "PRODUCT_COMPLE_A_NUM", 148, 10),
    Mac(10, "PRODUCT_BOARD_NUM", 158, 10),
    Mac(11, "PRODUCT_CARD_ID", 168, 2),
    Mac(12, "PRODUCT_RESERVED", 170, 82),
    Mac(13, "PRODUCT_CRC32", 252, 4),
    Sys(14, "SYS_IP_ADDR_ETH0", 0, 4),
    Sys(15, "SYS_IP_ADDR_ETH1", 4, 4),
    Sys(16, "SYS_TOUCH_PANEL_CORRECT_VALUE", 8, 8),
    Foreign(17, "SYS_FOREIGN", 16, 32),
    Sys(18, "SYS_NETMASK_ENABLE_ETH1", 48, 1),
    Sys(19, "SYS_NETMASK_ETH1", 49, 4),
    Sys(20, "SYS_ENABLE_ETH1", 53, 1),
    Sys(21, "SYS_PIP_ADDR", 54, 4),
    Sys(22, "SYS_PIP_PORT", 58, 2),
    Sys(23, "SYS_PMP_ADDR", 60, 4),
    Sys(24, "SYS_PMP_PORT", 64, 2),
    Sys(25, "SYS_SHP_ADDR", 66, 4),
    Sys(26, "SYS_SHP_PORT", 70, 2),
    Sys(27, "SYS_RESERVED", 72, 52),
    Sys(28, "SYS_CRC32", 124, 4),
    Sys(29, "MAINT_TOTAL_TIME_CPU", 128, 4),
    Sys(30, "MAINT_TOTAL_TIME_POWER_A", 132, 4),
    Sys(31, "MAINT_TOTAL_TIME_POWER_B", 136, 4),
    Sys(32, "MAINT_TOTAL_TIME_FAN", 140, 4),
    Sys(33, "MAINT_RESERVED", 144, 44),
    Sys(34, "MAINT_CRC32", 188, 4),
};
// clang-format on
constexpr int ELEMENTS = sizeof iem / sizeof iem[0];

struct CrcRegion {
    int device = 0;
    int address = 0;
    int size = 0;
    int crc_address = 0;
};
constexpr CrcRegion iem_crc32[] = {
    {.device = MAC_EEPROM, .address = 0, .size = 124, .crc_address = 124},
    {.device = MAC_EEPROM, .address = 128, .size = 124, .crc_address = 252},
    {.device = SYS_EEPROM, .address = 0, .size = 124, .crc_address = 124},
    {.device = SYS_EEPROM, .address = 128, .size = 60, .crc_address = 188},
};
constexpr int REGIONS = sizeof iem_crc32 / sizeof iem_crc32[0];
constexpr int CRC_BYTES = 4; // most significant first

// The number of an element is its row, and the elements of one device neither overlap nor leave
// gaps within a region.
constexpr bool MapIsSound()
{
    for (int i = 0; i < ELEMENTS; i++) {
        if (iem[i].elem != i)
            return false;
        if (i == 0 || iem[i].device != iem[i - 1].device)
            continue;
        if (iem[i].address != iem[i - 1].address + iem[i - 1].size)
            return false;
    }
    return true;
}
static_assert(MapIsSound());
static_assert(ELEMENTS == 35);
} // namespace

static struct {
    int device = -1;       // the address of the next open; -1 before the first
    int fd = -1;           // from i2c_open to i2c_close
    bool is_image = false; // the node is a plain file
} bus;

void i2c_address_set(int device)
{
    bus.device = device;
}

int i2c_open()
{
    i2c_close();
    if (bus.device < 0 || bus.device >= DEVICES)
        return -1;
    const int fd = open(I2C_NODE, O_RDWR | O_CLOEXEC);
    struct stat st;
    if (fd < 0 || fstat(fd, &st) != 0) {
        if (fd >= 0)
            close(fd);
        return -1;
    }
    bus.is_image = S_ISREG(st.st_mode);
    if (!bus.is_image && ioctl(fd, I2C_SLAVE, long(bus.device)) < 0) {
        close(fd);
        return -1;
    }
    bus.fd = fd;
    return 0;
}

void i2c_close()
{
    if (bus.fd >= 0)
        close(bus.fd);
    bus.fd = -1;
}

static bool i2c_is_in_range(int address, int size)
{
    return bus.fd >= 0 && address >= 0 && size >= 0 && size <= DEVICE_BYTES &&
           address <= DEVICE_BYTES - size;
}

static off_t i2c_image_offset(int address)
{
    return off_t(bus.device) * DEVICE_BYTES + address;
}

int i2c_rd(int address, int size, unsigned char* data)
{
    if (!data || !i2c_is_in_range(address, size))
        return -1;
    unsigned char bytes[DEVICE_BYTES];
    ssize_t n = -1;
    if (bus.is_image) {
        n = pread(bus.fd, bytes, size_t(size), i2c_image_offset(address));
    } else {
        const auto start = static_cast<unsigned char>(address);
        if (write(bus.fd, &start, 1) == 1)
            n = read(bus.fd, bytes, size_t(size));
    }
    // A part of a value is worth nothing: the caller keeps what it had.
    if (n != size)
        return -1;
    memcpy(data, bytes, size_t(size));
    return size;
}

static bool i2c_write_page(int address, int size, const unsigned char* data)
{
    unsigned char message[1 + PAGE_BYTES];
    message[0] = static_cast<unsigned char>(address);
    memcpy(message + 1, data, size_t(size));
    if (write(bus.fd, message, size_t(1 + size)) != 1 + size)
        return false;
    if (bus.device >= EEPROM_FIRST && bus.device <= EEPROM_LAST)
        SDL_Delay(WRITE_CYCLE_MS);
    return true;
}

int i2c_wr(int address, int size, const unsigned char* data)
{
    if (!data || !i2c_is_in_range(address, size))
        return -1;
    if (bus.is_image)
        return pwrite(bus.fd, data, size_t(size), i2c_image_offset(address)) == size ? size : -1;
    for (int done = 0; done < size;) {
        const int to_page_end = PAGE_BYTES - (address + done) % PAGE_BYTES;
        const int n = size - done < to_page_end ? size - done : to_page_end;
        if (!i2c_write_page(address + done, n, data + done))
            return -1;
        done += n;
    }
    return size;
}

// --- EEPROM elements ---

static int eeprom_read(int device, int address, int size, unsigned char* data)
{
    i2c_address_set(device);
    if (i2c_open() != 0)
        return -1;
    const int n = i2c_rd(address, size, data);
    i2c_close();
    return n;
}

static int eeprom_write(int device, int address, int size, const unsigned char* data)
{
    i2c_address_set(device);
    if (i2c_open() != 0)
        return -1;
    const int n = i2c_wr(address, size, data);
    i2c_close();
    return n;
}

// The row of an element that a buffer of this size can hold, or null.
static const Element* eeprom_element(int elem, int size)
{
    if (elem < 0 || elem >= ELEMENTS || size < iem[elem].size)
        return nullptr;
    return &iem[elem];
}

int I2cEepromService_ReadElem(int elem, int size, unsigned char* buffer)
{
    const Element* e = eeprom_element(elem, size);
    return e ? eeprom_read(e->device, e->address, e->size, buffer) : -1;
}

int I2cEepromService_WriteElem(int elem, int size, const unsigned char* buffer)
{
    const Element* e = eeprom_element(elem, size);
    return e && !e->is_foreign ? eeprom_write(e->device, e->address, e->size, buffer) : -1;
}

// The CRC that a region should have, as it is stored. False when the region cannot be read.
static bool eeprom_crc(const CrcRegion& region, unsigned char (&crc)[CRC_BYTES])
{
    unsigned char bytes[DEVICE_BYTES];
    if (eeprom_read(region.device, region.address, region.size, bytes) != region.size)
        return false;
    const uint32_t value = crc32(0, bytes, size_t(region.size));
    for (int i = 0; i < CRC_BYTES; i++)
        crc[i] = static_cast<unsigned char>(value >> (24 - 8 * i));
    return true;
}

int I2cEepromService_UpdateCrc32(int region)
{
    if (region < 0 || region >= REGIONS)
        return -1;
    const CrcRegion& r = iem_crc32[region];
    unsigned char crc[CRC_BYTES];
    if (!eeprom_crc(r, crc))
        return -1;
    return eeprom_write(r.device, r.crc_address, CRC_BYTES, crc) == CRC_BYTES ? 0 : -1;
}

int I2cEepromService_IsCrc32Valid(int region)
{
    if (region < 0 || region >= REGIONS)
        return -1;
    const CrcRegion& r = iem_crc32[region];
    unsigned char stored[CRC_BYTES], crc[CRC_BYTES];
    if (eeprom_read(r.device, r.crc_address, CRC_BYTES, stored) != CRC_BYTES)
        return -1;
    if (!eeprom_crc(r, crc))
        return -1;
    return memcmp(stored, crc, CRC_BYTES) == 0;
}

int I2cEepromService_GetElemSize(int elem, int* size)
{
    if (elem < 0 || elem >= ELEMENTS || !size)
        return -1;
    *size = iem[elem].size;
    return 0;
}
