// i2c: bytes of the board's I2C devices, and the elements of its two EEPROMs.
// A device node is opened at /dev/i2c-0. Where the node is a plain file (a desk), the file is a
// memory image: device d, address a is byte d * 256 + a.
#pragma once

// --- One device at a time: set the address, open, read or write, close ---
void i2c_address_set(int device);                       // 7-bit address
int i2c_open();                                         // 0 or -1
int i2c_rd(int address, int size, unsigned char* data); // bytes read or -1
int i2c_wr(int address, int size, const unsigned char* data);
void i2c_close();

// --- EEPROM elements ---
enum : int {
    EEPROM_IP_ADDR_ETH0 = 14,
    EEPROM_TOUCH_CALIBRATION = 16,
    EEPROM_SHP_ADDR = 25,
    EEPROM_SHP_PORT = 26,
    EEPROM_HOURS_CPU = 29,
    EEPROM_HOURS_POWER = 30,
};
// The element's size on success; -1 for an unknown element or a size below the element's; else the
// error of the read.
int I2cEepromService_ReadElem(int elem, int size, unsigned char* buffer);
// The same checks; does not touch the region's CRC.
int I2cEepromService_WriteElem(int elem, int size, const unsigned char* buffer);
// Region 0..3. -1 for another region or on failure, else 0.
int I2cEepromService_UpdateCrc32(int region);
int I2cEepromService_IsCrc32Valid(int region);         // 1, 0, or -1
int I2cEepromService_GetElemSize(int elem, int* size); // 0 or -1
