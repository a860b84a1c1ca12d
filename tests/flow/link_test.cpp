// The three links over real sockets: a server that stalls, drops and comes back.
#include "device.h"
#include "global.h"
#include "harness.h"
#include "netio.h"
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

static constexpr int HUB_PORT = 9500;

struct Link : testing::Test {
    void SetUp() override
    {
        strcpy(GL_ServerAddress, "127.0.0.1");
        strcpy(SYS_StatusHubAddress, "127.0.0.1");
        SYS_StatusHubPort = HUB_PORT;
        GL_ClipStoreSupportMode = 0;
    }
    void TearDown() override // no peer is left: closes the links
    {
        GL_ClipStoreSupportMode = 0;
        Net_Init();
        (void)TakeQueuedCommands();
    }
};

static void Connect(Peer& peer)
{
    Net_Init();
    ASSERT_TRUE(peer.Accept());
}

// Everything that arrives within a moment; a loopback needs some.
template <typename Receive> static Strings ReceiveAll(Receive receive, size_t count)
{
    Strings lines;
    for (int i = 0; i < 200 && lines.size() < count; i++) {
        while (const char* line = receive())
            lines.emplace_back(line);
        usleep(1000);
    }
    return lines;
}

// Let the application notice that the connection is gone, and take the new one. keep is a number
// that the new socket may not get, as when a file was opened in between.
static void ComeBack(Peer& peer, int* keep = nullptr)
{
    peer.Drop();
    usleep(20000);
    (void)Net_ReceiveCommand();
    if (keep)
        *keep = open("/dev/null", O_RDONLY);
    GL_NetReConnect = 0;
    (void)Net_ReceiveCommand();
    ASSERT_TRUE(peer.Accept());
    EXPECT_EQ(GL_NetReConnect, 1);
}

static std::string Numbered(int i)
{
    char text[32];
    snprintf(text, sizeof text, "put A@B#%06d", i);
    return text;
}

TEST_F(Link, APassSends33ItemsAndPausesAreAmongThem)
{
    Peer peer(NET_TEXT_PORT);
    Connect(peer);
    Net_SendCommand("TM3WAIT#0");
    Net_SendCommand("TM3WAIT#250");
    Net_SendCommand("TM3WAIT#-1");
    for (int i = 0; i < 40; i++)
        Net_SendCommand(Numbered(i).c_str());
    const uint32_t before = Clock_ms;
    EXPECT_EQ(Net_SendCommandQueue(), 0);
    EXPECT_EQ(Clock_ms - before, 250u);
    Strings lines = peer.Lines();
    ASSERT_EQ(lines.size(), 30u);
    EXPECT_EQ(lines[0], Numbered(0));
    EXPECT_EQ(Net_QueueLength(), 10);
}

TEST_F(Link, ACommandOf1023CharactersHasNoRoomForItsEnd)
{
    Peer peer(NET_TEXT_PORT);
    Connect(peer);
    Net_SendCommand(std::string(1022, 'a').c_str());
    Net_SendCommand(std::string(1030, 'b').c_str());
    Net_SendCommand("c");
    EXPECT_EQ(Net_SendCommandQueue(), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre(std::string(1022, 'a'), std::string(1023, 'b') + "c"));
}

TEST_F(Link, WhatWasQueuedWhileTheServerWasAwayGoesOutInOrder)
{
    auto peer = std::make_unique<Peer>(NET_TEXT_PORT);
    Connect(*peer);
    peer.reset();
    usleep(20000);
    Strings sent;
    for (int i = 0; i < 1000; i++) {
        (void)Net_ReceiveCommand();
        (void)Net_SendCommandQueue();
        sent.push_back(Numbered(i));
        Net_SendCommand(sent.back().c_str());
    }
    EXPECT_EQ(Net_QueueLength(), 1000);

    peer = std::make_unique<Peer>(NET_TEXT_PORT);
    EXPECT_EQ(Net_SendCommandQueue(), 0); // connects only
    ASSERT_TRUE(peer->Accept());
    Strings received;
    for (int pass = 0; pass < 31; pass++) {
        EXPECT_EQ(Net_SendCommandQueue(), 0);
        for (auto& line : peer->Lines(1))
            received.push_back(line);
    }
    EXPECT_EQ(received, sent);
}

TEST_F(Link, AWriteToADeadSocketKeepsTheCommand)
{
    Peer peer(NET_TEXT_PORT);
    Connect(peer);
    peer.Drop();
    usleep(20000);
    Net_SendCommand("put A#1"); // the kernel takes it and learns of the reset
    EXPECT_EQ(Net_SendCommandQueue(), 0);
    usleep(20000);
    Net_SendCommand("put A#2");
    EXPECT_EQ(Net_SendCommandQueue(), -1);
    EXPECT_EQ(Net_QueueLength(), 1);
    ComeBack(peer);
    EXPECT_EQ(Net_SendCommandQueue(), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre("put A#2"));
}

TEST_F(Link, AReturningServerIsReadUnderAnyDescriptorAndFromItsFirstByte)
{
    Peer peer(NET_TEXT_PORT);
    Connect(peer);
    peer.Send("A#1\nhalf a li");
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), ElementsAre("A#1"));
    int keep = -1;
    ComeBack(peer, &keep);
    peer.Send("B#2\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), ElementsAre("B#2"));
    close(keep);
}

// Queue far more than the kernel holds for a peer that does not read, until nothing more goes.
static int Stall(Peer& peer, const std::string& pad)
{
    const int small = 4096;
    setsockopt(peer.listen_fd, SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
    Connect(peer);
    int queued = 0;
    while (Net_SendCommandQueue() == 0 && queued < 100000)
        for (int i = 0; i < 33; i++)
            Net_SendCommand((Numbered(queued++) + pad).c_str());
    EXPECT_EQ(Net_SendCommandQueue(), -1); // and does not wait
    return queued;
}

// Pass and read until the last command has arrived; from is the number of the first.
static void ExpectRest(Peer& peer, int from, int queued, const std::string& pad)
{
    int next = from;
    for (int pass = 0; pass < 100000 && next < queued; pass++) {
        for (const auto& line : peer.Lines(1))
            ASSERT_EQ(line, Numbered(next++) + pad);
        (void)Net_SendCommandQueue();
    }
    EXPECT_EQ(next, queued);
}

TEST_F(Link, AStalledServerGetsEveryByteOnceAndInOrder)
{
    const std::string pad(900, 'x');
    Peer peer(NET_TEXT_PORT);
    const int queued = Stall(peer, pad);
    ExpectRest(peer, 0, queued, pad);
}

TEST_F(Link, ACommandThatWasCutByALossIsSentWholeAgain)
{
    const std::string pad(900, 'x');
    Peer peer(NET_TEXT_PORT);
    const int queued = Stall(peer, pad);
    const int left = Net_QueueLength();
    ASSERT_GT(left, 0);
    ComeBack(peer);
    ExpectRest(peer, queued - left, queued, pad);
}

// --- Binary link ---

static std::string Bytes(Peer& peer, size_t count)
{
    std::string bytes(count, '\0');
    const ssize_t n = recv(peer.fd, bytes.data(), count, MSG_WAITALL);
    bytes.resize(n > 0 ? size_t(n) : 0);
    return bytes;
}

static std::string ReceiveFrame()
{
    int length = 0;
    for (int i = 0; i < 200; i++) {
        if (const unsigned char* frame = Net_ReceiveBinCommand(&length))
            return {reinterpret_cast<const char*>(frame), size_t(length)};
        usleep(1000);
    }
    return "";
}

TEST_F(Link, AFrameGoesOutLowByteFirstAndComesInHighByteFirst)
{
    Peer peer(NET_BIN_PORT);
    Connect(peer);
    unsigned char data[1025] = {1, 'D', 1, 0};
    EXPECT_EQ(Net_SendBinCommand(1, 0x000200AA, nullptr, 0), 0);
    EXPECT_EQ(Net_SendBinCommand(4, 0x12345678, data, 4), 0);
    EXPECT_EQ(Net_SendBinCommand(4, 0, data, 1025), -1);
    for (int i = 0; i < 300; i++)
        EXPECT_EQ(Net_SendBinCommand(5, 0, data, 1024), 0);
    EXPECT_EQ(Net_SendBinCommandQueue(), 0); // no limit a pass
    EXPECT_EQ(Bytes(peer, 9), std::string("\7\0\1\xAA\0\2\0\xFF\xFF", 9));
    EXPECT_EQ(Bytes(peer, 13), std::string("\13\0\4\x78\x56\x34\x12\1D\1\0\xFF\xFF", 13));
    const std::string rest = Bytes(peer, 300 * 1033);
    ASSERT_EQ(rest.size(), 300u * 1033);

    const std::string frame("\0\11\x84\xAA\0\2\0\1\2\xFF\xFF", 11);
    peer.Send(frame + frame.substr(0, 5));
    EXPECT_EQ(ReceiveFrame(), frame);
    peer.Send(frame.substr(5));
    EXPECT_EQ(ReceiveFrame(), frame);
}

TEST_F(Link, FramesAreInStepAgainAfterALoss)
{
    Peer peer(NET_BIN_PORT);
    Connect(peer);
    const std::string frame("\0\7\x84\xAA\0\2\0\xFF\xFF", 9);
    peer.Send(frame + frame.substr(0, 4));
    EXPECT_EQ(ReceiveFrame(), frame);
    Net_SendBinCommand(1, 0, nullptr, 0);
    EXPECT_EQ(Net_SendBinCommandQueue(),
              0); // never read: the drop is then a reset, and read fails with -1
    usleep(20000);
    peer.Drop();
    usleep(20000);
    int length;
    EXPECT_EQ(Net_ReceiveBinCommand(&length), nullptr);
    EXPECT_EQ(Net_ReceiveBinCommand(&length), nullptr);
    ASSERT_TRUE(peer.Accept());
    peer.Send(frame);
    EXPECT_EQ(ReceiveFrame(), frame);
}

// --- Hub link ---

TEST_F(Link, TheHubGetsOneLineEach100ms)
{
    GL_ClipStoreSupportMode = 1;
    Peer peer(HUB_PORT);
    Connect(peer);
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    Net_SendSHPCommand("Listen#CS1.File");
    Net_SendSHPCommandFormat("Listen#PNL%d.File", 1);
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0); // the first at once
    EXPECT_THAT(peer.Lines(), ElementsAre("Listen#CS1.File"));
    for (int ms = 10; ms < 100; ms += 10)
        EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    EXPECT_THAT(peer.Lines(), IsEmpty());
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre("Listen#PNL1.File"));
}

TEST_F(Link, AHubThatIsNotThereIsLeftAloneFor6000Calls)
{
    GL_ClipStoreSupportMode = 1;
    Net_Init(); // fails
    Peer peer(HUB_PORT);
    GL_NetReConnect_SHP = 0;
    GL_ClipStoreSupportMode = 0; // without clip stores there is no hub, and calls do not count
    (void)Net_ReceiveSHPCommand();
    GL_ClipStoreSupportMode = 1;
    for (int i = 0; i < 6000; i++)
        (void)Net_ReceiveSHPCommand();
    EXPECT_EQ(GL_NetReConnect_SHP, 0);
    (void)Net_ReceiveSHPCommand();
    EXPECT_EQ(GL_NetReConnect_SHP, 1);
    ASSERT_TRUE(peer.Accept());
}

TEST_F(Link, HubLinesEndWithAnyLowControlByte)
{
    GL_ClipStoreSupportMode = 1;
    Peer peer(HUB_PORT);
    Connect(peer);
    peer.Send("Ready#CS1.File\x01\x0F\x7FNotify#CS1.File:a\tb\n\x10\n\nlast\n");
    usleep(20000);
    for (const char* line : {"Ready#CS1.File", "Notify#CS1.File:a", "b", "\x10", "last"})
        EXPECT_STREQ(Net_ReceiveSHPCommand(), line); // a run of ends is one
    peer.Send("\n");                                 // an empty line is none, and blocks nothing
    peer.Send("Ready#CS2.File\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveSHPCommand, 1), ElementsAre("Ready#CS2.File"));
    peer.Send(std::string(1023, 'x')); // costs a log line, not the link
    EXPECT_THAT(ReceiveAll(Net_ReceiveSHPCommand, 1), IsEmpty());
    peer.Send("A#1\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveSHPCommand, 1), ElementsAre("A#1"));
}

TEST_F(Link, ARequestToTheOwnClipStoreIsNumbered)
{
    auto swr = std::make_unique<DEVICE[]>(2);
    strcpy(swr[0].id, "SWR001D001");
    strcpy(swr[1].id, "SWR001D003");
    GL_ClipStoreSupportMode = 1;
    Peer peer(HUB_PORT);
    Connect(peer);
    SYS_MySwrMax = 2;
    for (int i = 0; i < 2; i++)
        DEV_MySwr[i] = &swr[size_t(i)];
    Net_SendSHPCommand("Read#CS*.File:a");
    SYS_DualSimul = 1;
    for (const char* cmd : {"Read#CS*.File:b", "Read#CS2.File:c", "Listen#CS*.File"})
        Net_SendSHPCommand(cmd);
    SYS_MySwrMax = 0;
    DEV_MySwr[0] = DEV_MySwr[1] = nullptr;
    Net_SendSHPCommand("Read#CS*.File:d"); // no switcher, no request
    SYS_DualSimul = 0;
    for (int i = 0; i < 6; i++)
        Net_SendSHPCommandQueue(100);
    EXPECT_THAT(peer.Lines(), ElementsAre("Read#CS1.File:a", "Read#CS1.File:b", "Read#CS3.File:b",
                                          "Read#CS2.File:c", "Listen#CS*.File"));
}

TEST_F(Link, ALineWithoutEndIsHeldForAWhileAndThenGivenUp)
{
    Peer peer(NET_TEXT_PORT);
    Connect(peer);
    peer.Send(std::string(500, 'x')); // 95 of them wait in the socket, behind what can be read
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), IsEmpty());
    Clock_ms += 9000;
    EXPECT_FALSE(Net_ReceiveCommand());
    peer.Send("A#1\n"); // nothing is read behind it
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), IsEmpty());
    Clock_ms += 2000;
    (void)Net_ReceiveCommand();
    (void)Net_ReceiveCommand();
    ASSERT_TRUE(peer.Accept());
    peer.Send("B#2\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), ElementsAre("B#2"));
}
