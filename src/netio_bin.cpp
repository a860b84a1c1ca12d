// The binary link: fixed frames, in both directions. The length of a frame counts the bytes before
// the trailer, which are two of 0xFF. It goes out low byte first and comes in high byte first. That
// is meant: the server speaks so.
#include "bin_frame.h"
#include "log.h"
#include "netio_private.h"
#include <cstring>

#include "safeguards.h"

static constexpr int BIN_IN_LENGTH_MAX = 1039;

static int SockFD2 = 0;
static NetDial bin_dial = {.owner = READY_BIN};
static NetQueue BinSendCommandQueue;
static unsigned char BBuf[8192];
static int BBufPos = 0; // bytes in BBuf
static unsigned char RBCmd[NET_FRAME_MAX];
static uint32_t received_frames = 0;
static unsigned char SBCmd[1040];

static_assert(NET_FRAME_MAX == BIN_IN_LENGTH_MAX + FRAME_TRAILER);
static_assert(FRAME_HEAD + FRAME_DATA_MAX + FRAME_TRAILER <= sizeof SBCmd);
static_assert(sizeof SBCmd <= NET_ITEM_MAX);

static bool bin_connect()
{
    if (net_connect_inet(&bin_dial, NET_BIN_PORT, &SockFD2) < 1)
        return false;
    net_queue_restart(&BinSendCommandQueue);
    BBufPos = 0; // half a frame of the old connection would put all that follows out of step
    return true;
}

void net_bin_init()
{
    net_close(&SockFD2);
    net_hang_up(&bin_dial);
    BBufPos = 0;
    (void)bin_connect(); // goes on in every pass
}

// " %02X" for each byte, by hand: frames come many times a second. Only as many as text has room
// for.
static void bin_hex(char* text, int size, const unsigned char* bytes, int length, bool mark_fields)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    int n = 0;
    for (int i = 0; i < length && n + 6 <= size; i++) {
        text[n++] = ' ';
        text[n++] = digits[bytes[i] >> 4];
        text[n++] = digits[bytes[i] & 15];
        if (!mark_fields || (i != 2 && i != 6))
            continue;
        text[n++] = ' ';
        text[n++] = '/';
    }
    text[n] = '\0';
}

int Net_SendBinCommand(int command, uint32_t id, const unsigned char* data, int ndata)
{
    if (ndata < 0 || ndata > FRAME_DATA_MAX)
        return -1;
    const int length = FRAME_HEAD + ndata;
    SBCmd[0] = uint8_t(length);
    SBCmd[1] = uint8_t(length >> 8);
    SBCmd[2] = uint8_t(command);
    for (int i = 0; i < 4; i++)
        SBCmd[3 + i] = uint8_t(id >> (8 * i));
    if (ndata > 0)
        memcpy(SBCmd + FRAME_HEAD, data, size_t(ndata));
    SBCmd[length] = 0xFF;
    SBCmd[length + 1] = 0xFF;
    if (!net_queue_append(&BinSendCommandQueue, SBCmd, length + FRAME_TRAILER))
        Log_Output(LOG_TRACE, MOD_LINK, "Net_SendBinCommand:alloc error !\n");
    return 0;
}

// 1 when the first frame is gone, 0 when it or a rest of it stays, -1 on failure.
static int bin_send_first()
{
    const ClientSendQueue_t& item = *BinSendCommandQueue.first;
    const int sent = net_send(SockFD2, item);
    if (sent == NET_NO_ROOM)
        return 0;
    char hex[4096];
    bin_hex(hex, sizeof hex, item.data_array, item.length, true);
    Log_Output(LOG_TRACE, MOD_LINK, ">%s", hex);
    if (sent < 1) {
        Log_Output(LOG_LINK, MOD_LINK, "send_client_command: ERROR on send() returns [%d].", sent);
        return -1;
    }
    return net_queue_sent(&BinSendCommandQueue, sent, "send_client_command");
}

int Net_SendBinCommandQueue()
{
    while (BinSendCommandQueue.first) {
        if (SockFD2 == 0) {
            (void)bin_connect();
            return 0;
        }
        const int result = bin_send_first();
        if (result < 1)
            return result;
    }
    return 0;
}

static void bin_fill()
{
    if (BBufPos == sizeof BBuf) {
        Log_Output(LOG_LINK, MOD_LINK, "Net_ReceiveBinCommand() Buffer Full!!");
        return;
    }
    if (SockFD2 == 0 && !bin_connect())
        return;
    BBufPos += net_read(READY_BIN, &SockFD2, BBuf + BBufPos, int(sizeof BBuf) - BBufPos);
}

int net_take_frame(unsigned char* buf, int* fill, unsigned char* frame)
{
    if (*fill < 2)
        return 0;
    const int length = buf[0] << 8 | buf[1];
    if (length > BIN_IN_LENGTH_MAX) {
        *fill = 0;
        return -1;
    }
    const int size = length + FRAME_TRAILER;
    if (size > *fill)
        return 0;
    memcpy(frame, buf, size_t(size));
    *fill -= size;
    memmove(buf, buf + size, size_t(*fill));
    return size;
}

const unsigned char* Net_ReceiveBinCommand(int* length)
{
    *length = 0;
    if (BBufPos == 0 && SockFD2 > 0 && Ready_IsQuiet(READY_BIN))
        return nullptr; // at rest
    int size = net_take_frame(BBuf, &BBufPos, RBCmd);
    if (size == 0) {
        bin_fill();
        size = net_take_frame(BBuf, &BBufPos, RBCmd);
    }
    if (size < 0)
        Log_Output(LOG_ALWAYS, MOD_LINK, "ERROR: Wrong BC");
    if (size < 1)
        return nullptr;

    char hex[4096];
    bin_hex(hex, sizeof hex, RBCmd, size, false);
    Log_Output(LOG_TRACE, MOD_LINK, "<--(%s)", hex);
    *length = size;
    received_frames++;
    return RBCmd;
}

NetState net_bin_state()
{
    return net_state_of(SockFD2, BinSendCommandQueue, received_frames);
}

void Net_DropBinQueue()
{
    while (BinSendCommandQueue.first)
        net_queue_remove(&BinSendCommandQueue);
}
