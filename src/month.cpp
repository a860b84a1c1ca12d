#include "month.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

static constexpr const char* months[] = {"---", "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

const char* Month_Name(int number)
{
    return months[number >= 1 && number < int(std::size(months)) ? number : 0];
}

int Month_Number(const char* name)
{
    int number = int(std::size(months)) - 1;
    while (number > 0 && strcmp(name, months[number]) != 0)
        number--;
    return number;
}
