// The text link's line splitter: whatever arrives in whatever pieces, a line is never empty, holds
// no line end, and is nothing but what was fed.
#include "global.h"
#include "netio.h"
#include "text.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>

// Each piece is a length byte and that many bytes. A line is the end of what was fed without its
// line ends.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    CopyText(GL_ServerAddress, "127.0.0.1"); // refused at once
    Net_Init();                              // empties the buffer
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
        data += 1 + piece;
        size -= 1 + piece;
    }
    return 0;
}
