// st_status: the cells of the overview of the banks. Each is a way to its bank.
#pragma once
#include "rows.h"

#define ST_KINDS(misc) misc "@Mix", misc "@NAM", misc "@Super Mix", misc "@Preset Color Mix", misc "@Wipe", misc "@DME Wipe", misc "@Clip"
#define ST_ON(bank, key) bank "@" key "1@Status@Key ON", bank "@" key "2@Status@Key ON", bank "@" key "3@Status@Key ON", \
                         bank "@" key "4@Status@Key ON", bank "@" key "5@Status@Key ON", bank "@" key "6@Status@Key ON", \
                         bank "@" key "7@Status@Key ON", bank "@" key "8@Status@Key ON"
// Lower than cells of two lines: the keys below have a title.
constexpr ST_TBL BankCell(int column, int line, ST_TBL row, int columns)
{
    constexpr int HEIGHT = 176;
    row = CellAt(column, 0, row, columns);
    row.y1 += HEIGHT * line;
    row.y2 = row.y1 + HEIGHT - 1;
    return row;
}
// The order is that of the painter.
#define ST_BANK(n, bank, key, target) \
    {.id = (n), .draw_func = st_drw_status_bank, \
     .cmd = {bank "@Status@Xpt Assign@A", bank "@Status@Xpt Assign@B", bank "@Status@Xpt Assign@UTIL1", bank "@Status@Xpt Assign@UTIL2", \
             ST_KINDS(bank "@Misc@Transition"), bank "@Wipe@Main Pattern@Pattern", bank "@DME Wipe@Pattern Select@Pattern", \
             bank "@Misc@Transition@Transition Rate", ST_ON(bank, key)}, \
     .page = (target)}
inline constexpr ST_TBL st_status_me[] = {
    BankCell(0, 0, ST_BANK(1, "M/E-1",   "Key", 0x11000000), 2),
    BankCell(2, 0, ST_BANK(2, "M/E-2",   "Key", 0x12000000), 2),
    BankCell(4, 0, ST_BANK(3, "M/E-3",   "Key", 0x13000000), 2),
    BankCell(0, 1, ST_BANK(4, "M/E-4",   "Key", 0x81000000), 2),
    BankCell(2, 1, ST_BANK(5, "M/E-5",   "Key", 0x82000000), 2),
    BankCell(4, 1, ST_BANK(6, "PGM/PST", "DSK", 0x14000000), 2),
    ST_END,
};
// The smaller model has no fourth and fifth one.
inline constexpr ST_TBL st_status_me_small[] = {
    BankCell(0, 0, ST_BANK(1, "M/E-1",   "Key", 0x11000000), 3),
    BankCell(3, 0, ST_BANK(2, "M/E-2",   "Key", 0x12000000), 3),
    BankCell(0, 1, ST_BANK(3, "M/E-3",   "Key", 0x13000000), 3),
    BankCell(3, 1, ST_BANK(4, "PGM/PST", "DSK", 0x14000000), 3),
    ST_END,
};

// The rates, in the order of the painter.
#define ST_RATE(bank, key) bank "@" key "@Transition@ON Transition Rate"
#define ST_RATES(n, bank, key, target) \
    CellAt((n), 0, {.id = (n) + 1, .draw_func = st_drw_status_rates, \
                    .cmd = {bank "@Misc@Transition@Transition Rate", ST_RATE(bank, key "1"), ST_RATE(bank, key "2"), \
                            ST_RATE(bank, key "3"), ST_RATE(bank, key "4"), ST_RATE(bank, key "5"), ST_RATE(bank, key "6"), \
                            ST_RATE(bank, key "7"), ST_RATE(bank, key "8")}, \
                    .page = (target)}, 1, 2)
inline constexpr ST_TBL st_misc_rates[] = {
    ST_RATES(0, "M/E-1", "Key", 0x11710000), ST_RATES(1, "M/E-2", "Key", 0x12710000), ST_RATES(2, "M/E-3", "Key", 0x13710000),
    ST_RATES(3, "M/E-4", "Key", 0x81710000), ST_RATES(4, "M/E-5", "Key", 0x82710000), ST_RATES(5, "PGM/PST", "DSK", 0x14710000),
    ST_END,
};
static_assert(CellsAreSound(st_misc_rates));
#undef ST_RATES
#undef ST_RATE
static_assert(CellsAreSound(st_status_me) && CellsAreSound(st_status_me_small));
#undef ST_BANK
#undef ST_ON
#undef ST_KINDS
