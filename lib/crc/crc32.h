// crc32: the CRC-32 of the EEPROM regions (reflected polynomial 0xEDB88320, as common archive formats use it).
#pragma once
#include <cstddef>
#include <cstdint>

// Continue crc (0 at the start) over size bytes.
uint32_t crc32(uint32_t crc, const unsigned char* data, size_t size);
