// The line splitters of the text link and of the hub's: whatever arrives in whatever pieces, a line
// is never empty, holds no line end, and is nothing but what was fed.
#include "global.h"
#include "netio_private.h"
#include "text.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// The hub's buffer, filled as far as it has room; what is too long is dropped.
static void TakeRows(char (&buf)[1024], const uint8_t* bytes, size_t size)
{
    const size_t used = strlen(buf);
    const size_t n = std::min(size, sizeof buf - 1 - used);
    memcpy(buf + used, bytes, n);
    buf[used + n] = '\0';
    char row[NET_LINE_MAX];
    for (;;) {
        const size_t before = strlen(buf);
        const int length = net_take_line(buf, row, net_is_hub_end);
        if (length < 0)
            break;
        if (size_t(length) != strlen(row) || strlen(buf) >= before)
            abort();
        for (const char* c = row; *c; c++)
            if (net_is_hub_end((unsigned char)*c))
                abort();
    }
    if (strlen(buf) == sizeof buf - 1)
        buf[0] = '\0';
}

// Each piece is a length byte and that many bytes. A line is the end of what was fed without its
// line ends.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    CopyText(GL_ServerAddress, "127.0.0.1"); // refused at once
    Net_Init();                              // empties the buffer
    char rows[1024] = "";
    size_t taken = 0;
    size_t received = 0;
    while (size > 0) {
        const size_t piece = data[0] < size - 1 ? data[0] : size - 1;
        taken += size_t(Net_FeedText(reinterpret_cast<const char*>(data + 1), int(piece)));
        while (char* line = Net_ReceiveCommand()) {
            const size_t length = strlen(line);
            received += length + 1;
            if (length == 0 || length > 404 || strpbrk(line, "\r\n") || received > taken)
                abort();
            line[length - 1] = '\0'; // as for a line without "#"
        }
        TakeRows(rows, data + 1, piece);
        data += 1 + piece;
        size -= 1 + piece;
    }
    return 0;
}
