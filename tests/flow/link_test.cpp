// The three links over real sockets: a server that stalls, drops and comes back.
#include "a_kf_frames.h"
#include "bus.h"
#include "device.h"
#include "file.h"
#include "global.h"
#include "harness.h"
#include "initread.h"
#include "log.h"
#include "netio_private.h"
#include "page.h"
#include "ready.h"
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>

static constexpr int HUB_PORT = 9500;

struct Link : testing::Test {
    void SetUp() override
    {
        strcpy(GL_ServerAddress, "127.0.0.1");
        strcpy(SYS_StatusHubAddress, "127.0.0.1");
        SYS_StatusHubPort = HUB_PORT;
        GL_ClipStoreSupportMode = 0;
        (void)Net_TakeTextLoss(); // of the test before
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
    // On a busy machine the answer may have come behind the first look.
    int length;
    (void)Net_ReceiveCommand();
    (void)Net_ReceiveBinCommand(&length);
    (void)Net_ReceiveSHPCommand();
}

// With a server on one of the links from the beginning.
template <int PORT> struct LinkTo : Link {
    Peer peer{PORT};

    void SetUp() override
    {
        Link::SetUp();
        GL_ClipStoreSupportMode = PORT == HUB_PORT;
        Connect(peer);
    }
    void TearDown() override
    {
        peer.Drop();
        peer.StopListening();
        Link::TearDown();
    }
};
using TextLink = LinkTo<NET_TEXT_PORT>;
using BinLink = LinkTo<NET_BIN_PORT>;
using HubLink = LinkTo<HUB_PORT>;

// Everything that arrives within a moment; a loopback needs some.
template <typename Receive> static Strings ReceiveAll(Receive receive, size_t count)
{
    Strings lines;
    for (int i = 0; i < 200 && lines.size() < count; i++, usleep(1000))
        while (const char* line = receive())
            lines.emplace_back(line);
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
    (void)Net_ReceiveCommand();
    EXPECT_EQ(GL_NetReConnect, 1);
}

TEST_F(TextLink, APassReadsWhatHadComeWhenItAsked)
{
    Ready_Ask();
    peer.Send("A#1\nB#2\n");
    usleep(20000);
    EXPECT_FALSE(Net_ReceiveCommand());
    Ready_Ask();
    EXPECT_STREQ(Net_ReceiveCommand(), "A#1");
    EXPECT_STREQ(Net_ReceiveCommand(), "B#2");
    EXPECT_FALSE(Net_ReceiveCommand());
    peer.Drop();
    usleep(20000);
    Ready_Ask();
    (void)Net_ReceiveCommand();
    EXPECT_EQ(Net_TakeTextLoss(), 1) << "an end is something to read, too";
    GL_NetReConnect = 0;
    for (int i = 0; i < 100 && !GL_NetReConnect; i++, usleep(1000)) {
        Ready_Ask();
        (void)Net_ReceiveCommand();
    }
    ASSERT_TRUE(peer.Accept());
    Ready_Ask();
    peer.Send("C#3\n");
    usleep(20000);
    EXPECT_FALSE(Net_ReceiveCommand()) << "the new socket is asked for as well";
    Ready_Ask();
    EXPECT_STREQ(Net_ReceiveCommand(), "C#3");
}

static std::string Numbered(int i)
{
    return "put A@B#" + std::to_string(100000 + i);
}

TEST_F(TextLink, APassSends33ItemsAndACommandOf1023CharactersHasNoRoomForItsEnd)
{
    Net_SendCommand(std::string(1022, 'a').c_str());
    Net_SendCommand(std::string(1030, 'b').c_str());
    Net_SendCommand("c");
    EXPECT_EQ(Net_SendCommandQueue(), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre(std::string(1022, 'a'), std::string(1023, 'b') + "c"));
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

TEST_F(Link, WhatWasQueuedWhileTheServerWasAwayGoesOutInOrder)
{
    auto peer = std::make_unique<Peer>(NET_TEXT_PORT);
    Connect(*peer);
    EXPECT_EQ(Net_TakeTextLoss(), 0);
    peer.reset();
    usleep(20000);
    Strings sent;
    for (int i = 0; i < 1000; i++) {
        (void)Net_ReceiveCommand();
        EXPECT_EQ(Net_TakeTextLoss(), i == 0) << "told once";
        (void)Net_SendCommandQueue();
        sent.push_back(Numbered(i));
        Net_SendCommand(sent.back().c_str());
    }
    EXPECT_EQ(Net_QueueLength(), 1000);

    peer = std::make_unique<Peer>(NET_TEXT_PORT);
    GL_NetReConnect = 0;
    for (int i = 0; i < 1000 && !GL_NetReConnect; i++, usleep(1000))
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

TEST_F(TextLink, AWriteToADeadSocketKeepsTheCommandAndAReturningServerIsReadFromItsFirstByte)
{
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
    peer.Send("A#1\nhalf a li");
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), ElementsAre("A#1"));
    int keep = -1;
    ComeBack(peer, &keep);
    peer.Send("B#2\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveCommand, 1), ElementsAre("B#2"));
    close(keep);
}

static const std::string pad(900, 'x'); // behind a number

// Queue far more than the kernel holds for a peer that does not read, until nothing more goes. That
// the peer is slow is no failure.
static int Stall(Peer& peer)
{
    const int small = 4096;
    setsockopt(peer.listen_fd, SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
    Connect(peer);
    int queued = 0;
    for (int waiting = -1; waiting != Net_QueueLength() && queued < 100000;) {
        for (int i = 0; i < 33; i++)
            Net_SendCommand((Numbered(queued++) + pad).c_str());
        waiting = Net_QueueLength();
        EXPECT_EQ(Net_SendCommandQueue(), 0); // and does not wait
    }
    return queued;
}

// Pass and read until the last command has arrived; from is the number of the first.
static void ExpectRest(Peer& peer, int from, int queued)
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
    Peer peer(NET_TEXT_PORT);
    const int queued = Stall(peer);
    Log_Init("/tmp/stalled.log", 1000000);
    const auto lines = [] { return std::ranges::count(FileText("/tmp/stalled.log"), '\n'); };
    const auto before = lines();
    const int waiting = Net_QueueLength();
    for (int pass = 0; pass < 100; pass++)
        EXPECT_EQ(Net_SendCommandQueue(), 0);
    // The kernel may have taken some more; a pass that sent nothing has nothing to say.
    EXPECT_LE(lines() - before, waiting - Net_QueueLength() + 1);
    Log_Init("", 0);
    ExpectRest(peer, 0, queued);
}

TEST_F(Link, ACommandThatWasCutByALossIsSentWholeAgain)
{
    Peer peer(NET_TEXT_PORT);
    const int queued = Stall(peer);
    const int left = Net_QueueLength();
    ASSERT_GT(left, 0);
    ComeBack(peer);
    ExpectRest(peer, queued - left, queued);
}

// A port that answers nothing, as a host without power: its queue of connections is full, and the
// kernel drops whatever else comes.
struct DeadPort : Peer {
    std::vector<int> clog;

    explicit DeadPort(int port) : Peer(port, 0)
    {
        sockaddr_in a = LocalAddress(port);
        int result = 0;
        for (int i = 0; i < 8 && result == 0; i++) {
            clog.push_back(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
            result = connect(clog.back(), reinterpret_cast<sockaddr*>(&a), sizeof a);
        }
        EXPECT_EQ(result, -1) << "the port still answers";
    }
    ~DeadPort()
    {
        for (const int clog_fd : clog)
            close(clog_fd);
    }
};

static double Now_ms()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

// What a pass does with the links.
static void LinkPass()
{
    Ready_Ask();
    ReceiveCommand_Management();
    (void)Net_SendCommandQueue();
    (void)Net_SendBinCommandQueue();
    (void)Net_SendSHPCommandQueue(10);
    Clock_ms += 10;
}

// The longest of some passes; a busy machine may take the processor away in one of them.
static double SlowPass_ms(int passes)
{
    std::vector<double> ms;
    for (int i = 0; i < passes; i++) {
        const double start = Now_ms();
        LinkPass();
        ms.push_back(Now_ms() - start);
    }
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() * 9 / 10];
}

static int Count(const std::string& text, const std::string& what)
{
    int n = 0;
    for (size_t at = 0; (at = text.find(what, at)) != text.npos; at += what.size())
        n++;
    return n;
}

TEST_F(Link, HostsThatAreSwitchedOffCostNoPassItsTime)
{
    GL_ClipStoreSupportMode = 1;
    auto text = std::make_unique<DeadPort>(NET_TEXT_PORT);
    const DeadPort bin(NET_BIN_PORT);
    const DeadPort hub(HUB_PORT);
    std::filesystem::remove("/tmp/dead.log");
    Log_Init("/tmp/dead.log", 1000000);
    const double start = Now_ms();
    const NetLink links[] = {NET_LINK_TEXT, NET_LINK_BIN, NET_LINK_HUB};
    std::vector<uint32_t> connects;
    for (const NetLink link : links)
        connects.push_back(Net_State(link).connects);
    Net_Init();
    Net_SendCommand("put A#1");
    (void)Net_SendBinCommand(1, 0, nullptr, 0);
    EXPECT_LT(SlowPass_ms(1200), 10.0);
    for (const NetLink link : links)
        EXPECT_EQ(Net_State(link).connects, connects[size_t(link)]) << "none has come about";
    EXPECT_LT(Now_ms() - start, 6000.0) << "something waited";

    const std::string log = FileText("/tmp/dead.log");
    EXPECT_EQ(Count(log, "create_inet_connection(127.0.0.1:10001)"), 3) << "5 s each";
    EXPECT_EQ(Count(log, "create_inet_connection(127.0.0.1:10000)"), 3);
    EXPECT_EQ(Count(log, "create_inet_connection_shp("), 1) << "its back-off stands";
    EXPECT_EQ(Count(log, "ERROR: Failed to connect server"), 5);
    Log_Init("", 0);

    text.reset(); // the host is back
    Peer peer(NET_TEXT_PORT);
    GL_NetReConnect = 0;
    for (int i = 0; i < 600 && !GL_NetReConnect; i++)
        LinkPass();
    ASSERT_TRUE(peer.Accept());
    LinkPass();
    EXPECT_THAT(peer.Lines(), ElementsAre("put A#1"));
    Net_DropBinQueue();
}

TEST_F(Link, AServerMayBeGivenByName)
{
    strcpy(GL_ServerAddress, "localhost");
    Peer peer(NET_TEXT_PORT);
    Net_Init();
    GL_NetReConnect = 0;
    for (int i = 0; i < 2000 && !GL_NetReConnect; i++, usleep(1000))
        (void)Net_ReceiveCommand();
    ASSERT_TRUE(peer.Accept());

    strcpy(GL_ServerAddress, "no-such-host.invalid");
    Net_Init();
    GL_NetReConnect = 0;
    EXPECT_LT(SlowPass_ms(300), 10.0) << "the resolver is waited for";
    EXPECT_EQ(GL_NetReConnect, 0);
    strcpy(GL_ServerAddress, "127.0.0.1");
}

// Until the attempt has come to its end.
static int Dial(NetDial& dial, const char* host, int* fd)
{
    int state = NET_PENDING;
    for (int i = 0; i < 2000 && state == NET_PENDING; i++, usleep(1000))
        state = net_dial(&dial, host, HUB_PORT, fd);
    return state;
}

// Whether the next call begins a look-up; an attempt that it begins instead is refused.
static bool LooksUp(NetDial& dial, const char* host)
{
    int fd = 0;
    (void)net_dial(&dial, host, HUB_PORT, &fd);
    const bool looks_up = dial.lookup_pid != 0;
    if (dial.fd > 0) {
        EXPECT_EQ(Dial(dial, host, &fd), NET_FAILED);
    }
    return looks_up;
}

static auto OpenFiles()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

// Each look-up is a process.
TEST_F(Link, ANameIsLookedUpAfterAPauseWhenItHadNoAddressAndAnewWhenItsHostMayHaveMoved)
{
    static constexpr char nobody[] = "no-such-host.invalid";
    NetDial dial{.owner = READY_HUB};
    int fd = 0;
    Clock_ms += 20000;
    EXPECT_EQ(net_dial(&dial, "", HUB_PORT, &fd), NET_FAILED);
    Clock_ms += 1000;
    EXPECT_EQ(Dial(dial, nobody, &fd), NET_FAILED);
    const auto files = OpenFiles();
    Clock_ms += 999;
    EXPECT_FALSE(LooksUp(dial, nobody));
    Clock_ms += 1;
    EXPECT_TRUE(LooksUp(dial, nobody));

    EXPECT_EQ(Dial(dial, "localhost", &fd), NET_FAILED) << "refused";
    EXPECT_FALSE(LooksUp(dial, "localhost"));
    Clock_ms += 10001;
    EXPECT_FALSE(LooksUp(dial, "localhost")) << "only what comes of this one tells";
    EXPECT_TRUE(LooksUp(dial, "localhost"));
    Peer peer(HUB_PORT);
    for (const char* host : {"127.0.0.1", "localhost"}) { // the first without waiting for a name
        EXPECT_EQ(Dial(dial, host, &fd), 1) << host;
        ASSERT_TRUE(peer.Accept());
        peer.Drop();
        close(fd);
    }
    EXPECT_EQ(Dial(dial, "127.0.0.2", &fd), NET_FAILED) << "where nobody listens";
    peer.StopListening();
    EXPECT_EQ(Dial(dial, nobody, &fd), NET_FAILED);
    net_hang_up(&dial);
    EXPECT_TRUE(LooksUp(dial, "localhost")) << "nothing is remembered";
    net_hang_up(&dial);
    {
        const DeadPort port(HUB_PORT);
        const auto before = OpenFiles();
        EXPECT_EQ(net_dial(&dial, "127.0.0.1", HUB_PORT, &fd), NET_PENDING);
        net_hang_up(&dial);
        EXPECT_EQ(OpenFiles(), before);
    }
    EXPECT_EQ(OpenFiles(), files);
}

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
    for (int i = 0; i < 200; i++, usleep(1000))
        if (const unsigned char* frame = Net_ReceiveBinCommand(&length))
            return {reinterpret_cast<const char*>(frame), size_t(length)};
    return "";
}

// What has gone over a link since then.
static void ExpectTraffic(NetLink link, const NetState& since, uint32_t sent, uint32_t received)
{
    const NetState now = Net_State(link);
    EXPECT_TRUE(now.is_up);
    EXPECT_EQ(now.waiting, 0);
    EXPECT_EQ(now.sent - since.sent, sent);
    EXPECT_EQ(now.received - since.received, received);
}

TEST_F(BinLink, AFrameGoesOutLowByteFirstAndComesInHighByteFirst)
{
    const NetState before = Net_State(NET_LINK_BIN);
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
    ExpectTraffic(NET_LINK_BIN, before, 302, 2);
}

constexpr uint32_t FRAMES = 6000; // more than the kernel holds

static void QueueFrames()
{
    const unsigned char data[1024] = {};
    for (uint32_t i = 0; i < FRAMES; i++)
        EXPECT_EQ(Net_SendBinCommand(5, i, data, sizeof data), 0);
}

TEST_F(BinLink, FramesWaitForAServerThatIsBehindAndACutOneIsSentWholeAgain)
{
    QueueFrames();
    for (uint32_t i = 0; i < FRAMES; i++) {
        EXPECT_EQ(Net_SendBinCommandQueue(), 0);
        const std::string frame = Bytes(peer, 1033);
        ASSERT_EQ(uint8_t(frame.at(3)) | uint8_t(frame.at(4)) << 8, int(i));
        ASSERT_EQ(frame.substr(1031), "\xFF\xFF");
    }
    QueueFrames();
    EXPECT_EQ(Net_SendBinCommandQueue(), 0);
    peer.Drop();
    usleep(20000);
    for (int i = 0; i < 2; i++) { // the loss, the new connection
        int length = 1;
        EXPECT_EQ(Net_ReceiveBinCommand(&length), nullptr);
        EXPECT_EQ(length, 0);
    }
    ASSERT_TRUE(peer.Accept());
    (void)Net_SendBinCommandQueue(); // connects at the latest now
    EXPECT_EQ(Net_SendBinCommandQueue(), 0);
    EXPECT_EQ(Bytes(peer, 1033).substr(0, 3), "\7\4\5");
    Net_DropBinQueue();
}

TEST_F(BinLink, FramesAreInStepAgainAfterALoss)
{
    Log_Init("/tmp/bin_link.log", 1000000);
    (void)Net_SendBinCommand(4, 0x12345678, reinterpret_cast<const unsigned char*>("A"), 1);
    EXPECT_EQ(Net_SendBinCommandQueue(), 0);
    peer.Send("\xFF\xFFrubbish"); // no length: what has come is dropped
    EXPECT_EQ(ReceiveFrame(), "");
    Log_Init("", 0);
    const std::string log = FileText("/tmp/bin_link.log");
    EXPECT_THAT(log, testing::HasSubstr("> 08 00 04 / 78 56 34 12 / 41 FF FF"));
    EXPECT_EQ(Count(log, "ERROR: Wrong BC"), 1);
    const std::string frame("\0\7\x84\xAA\0\2\0\xFF\xFF", 9);
    peer.Send(frame + frame.substr(0, 4));
    EXPECT_EQ(ReceiveFrame(), frame);
    Net_SendBinCommand(1, 0, nullptr, 0); // never read: the drop is then a reset, and read fails
    EXPECT_EQ(Net_SendBinCommandQueue(), 0);
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

// "command/id/data" of what has been sent.
static Strings SentFrames(Peer& peer)
{
    EXPECT_EQ(Net_SendBinCommandQueue(), 0);
    std::string bytes;
    for (const auto& line : peer.Lines())
        bytes += line + "\n"; // a 10 among the bytes ends a "line"
    bytes += std::exchange(peer.received, "");
    Strings frames;
    for (size_t at = 0; at + 9 <= bytes.size(); at += uint8_t(bytes[at]) + 2u) {
        char text[32];
        snprintf(text, sizeof text, "%d/%02X%02X%02X/", bytes[at + 2], uint8_t(bytes[at + 5]),
                 uint8_t(bytes[at + 4]), uint8_t(bytes[at + 3]));
        frames.push_back(text);
        for (size_t i = at + 7; i < at + uint8_t(bytes[at]); i++)
            frames.back() += std::to_string(uint8_t(bytes[i])) + " ";
    }
    return frames;
}

TEST_F(BinLink, TheStreamsAreSubscribedBeforeTheirRegionsJoin)
{
    Net_DropBinQueue();
    InitialCommand1();
    const Strings frames = SentFrames(peer);
    ASSERT_EQ(frames.size(), 3u + 47 + 4);
    EXPECT_THAT(Strings(frames.begin(), frames.begin() + 4),
                ElementsAre("1/0200AA/", "1/1000AA/", "1/1100AA/", "4/8200AA/1 1 1 0 "));
    EXPECT_THAT(Strings(frames.end() - 5, frames.end()),
                ElementsAre("4/8100AA/", "4/8200AA/1 68 1 0 ", "4/8100AA/68 ", "4/8200AA/1 69 1 0 ",
                            "4/8100AA/69 "));
    DeathCommand1();
    EXPECT_THAT(SentFrames(peer), ElementsAre("2/0200AA/", "2/1000AA/", "2/1100AA/"));
    GL_CreatePage = 0;
}

// Both ends of the count: what the length bytes say when they are read the other way round is less
// than what came for some of them.
TEST_F(BinLink, AnEffectArrivesWholeWhateverItsCountOfKeyframes)
{
    SYS_FrameRate = 30;
    KF_Init();
    for (const int count : {0, 1, 104, 105, 106, 233, 234, 235, 361, 362, 489, 490, 491, 496}) {
        kf::Data effect = {.code = 1, .regnum = count + 1};
        for (int i = 1; i <= count; i++)
            effect.keyframes.push_back((i + count) & 0x7FF);
        const kf::Bytes data = kf::DataFrame(effect);
        const size_t length = data.size() + 7;
        std::string frame = {char(length >> 8), char(length), char(132)};
        frame +=
            std::string("\xAA\0\x11\0", 4) + std::string(data.begin(), data.end()) + "\xFF\xFF";
        std::string other = frame;
        other[2] = char(131); // not of the region streams
        other[8] = 99;
        peer.Send(frame + other);
        const KF_REGION& r = *KF_GetRegionStatus(0);
        for (int i = 0; i < 200 && r.regnum != count + 1; i++, usleep(1000))
            ReceiveCommand_Management();
        usleep(2000);
        ReceiveCommand_Management();
        EXPECT_EQ(r.regnum, count + 1);
        ASSERT_EQ(r.kfnum, count);
        for (int i = 1; i <= count; i++)
            ASSERT_EQ(r.kf[i].duration, (i + count) & 0x7FF) << i << " of " << count;
    }
    KF_Init();
}

TEST_F(HubLink, TheHubGetsOneLineEach100ms)
{
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    const NetState before = Net_State(NET_LINK_HUB);
    Log_Init("/tmp/hub_link.log", 1000000);
    Net_SendSHPCommand("Listen#CS1.File");
    Net_SendSHPCommandFormat("Listen#PNL%d.File", 1);
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0); // the first at once
    Log_Init("", 0);
    EXPECT_EQ(Count(FileText("/tmp/hub_link.log"), "Listen#"), 1);
    EXPECT_EQ(Count(FileText("/tmp/hub_link.log"), "alloc error"), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre("Listen#CS1.File"));
    for (int ms = 10; ms < 100; ms += 10)
        EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    EXPECT_THAT(peer.Lines(), IsEmpty());
    EXPECT_EQ(Net_SendSHPCommandQueue(10), 0);
    EXPECT_THAT(peer.Lines(), ElementsAre("Listen#PNL1.File"));
    Net_SendSHPCommand("Listen#CS2.File");
    EXPECT_EQ(Net_State(NET_LINK_HUB).waiting, 1);
    EXPECT_EQ(Net_SendSHPCommandQueue(100), 0);
    peer.Send("Ready#CS1.File\n");
    EXPECT_THAT(ReceiveAll(Net_ReceiveSHPCommand, 1), ElementsAre("Ready#CS1.File"));
    ExpectTraffic(NET_LINK_HUB, before, 3, 1);
}

TEST_F(Link, AHubThatIsNotThereIsLeftAloneFor6000Calls)
{
    GL_ClipStoreSupportMode = 1;
    Net_Init();
    usleep(20000);
    (void)Net_ReceiveSHPCommand(); // at the latest now the refusal is seen
    Peer peer(HUB_PORT);
    GL_NetReConnect_SHP = 0;
    Net_SendSHPCommand("Listen#CS1.File");
    (void)Net_SendSHPCommandQueue(0);
    EXPECT_EQ(Net_State(NET_LINK_HUB).waiting, 1);
    GL_ClipStoreSupportMode = 0; // without clip stores there is no hub, and calls do not count
    (void)Net_SendSHPCommandQueue(0);
    EXPECT_EQ(Net_State(NET_LINK_HUB).waiting, 0); // nobody will ever take it
    (void)Net_ReceiveSHPCommand();
    GL_ClipStoreSupportMode = 1;
    for (int i = 0; i < 5999; i++)
        (void)Net_ReceiveSHPCommand();
    EXPECT_EQ(GL_NetReConnect_SHP, 0);
    for (int i = 0; i < 3; i++, usleep(20000))
        (void)Net_ReceiveSHPCommand();
    EXPECT_EQ(GL_NetReConnect_SHP, 1);
    ASSERT_TRUE(peer.Accept());
}

TEST_F(HubLink, HubLinesEndWithAnyLowControlByteAndRequestsToTheOwnClipStoreAreNumbered)
{
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
    DEVICE first{.id = "SWR001D001"}, second{.id = "SWR001D003"};
    SYS_MySwrMax = 2;
    DEV_MySwr[0] = &first;
    DEV_MySwr[1] = &second;
    Net_SendSHPCommand("Read#CS*.File:a");
    SYS_DualSimul = 1;
    for (const char* cmd : {"Read#CS*.File:b", "Read#CS2.File:c", "InitRead#CS*.File"})
        Net_SendSHPCommand(cmd);
    SYS_MySwrMax = 0;
    DEV_MySwr[0] = DEV_MySwr[1] = nullptr;
    for (const int dual : {1, 0}) {
        SYS_DualSimul = dual;
        Net_SendSHPCommand("Read#CS*.File:d"); // no switcher, no request
    }
    for (int i = 0; i < 6; i++)
        Net_SendSHPCommandQueue(100);
    EXPECT_THAT(peer.Lines(), ElementsAre("Read#CS1.File:a", "Read#CS1.File:b", "Read#CS3.File:b",
                                          "Read#CS2.File:c", "InitRead#CS*.File"));
}

TEST_F(Link, AHubThatHasFallenIsToldOnce)
{
    GL_ClipStoreSupportMode = 1;
    for (const bool is_new : {false, true}) {
        auto peer = std::make_unique<Peer>(HUB_PORT);
        Connect(*peer);
        EXPECT_EQ(Net_TakeHubLoss(), 0);
        peer.reset();
        usleep(20000);
        for (int i = 0; i < 3; i++) {
            (void)Net_ReceiveSHPCommand();
            if (is_new)
                Net_Init(); // all begins anew
            EXPECT_EQ(Net_TakeHubLoss(), i == 0 && !is_new) << "and not for a try that fails";
        }
    }
}

TEST_F(TextLink, ALineWithoutEndIsHeldForAWhileAndThenGivenUp)
{
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

// The install pumps the link itself until the server has answered.
TEST_F(TextLink, AFileOfTheInstallIsWaitedFor)
{
    Clock_IsReal = true;
    for (const std::string reply : {"OK", "NG(no)", "OK"}) {
        std::string line;
        std::thread server([&] {
            for (int i = 0; i < 200 && line.empty(); i++)
                for (const std::string& sent : peer.Lines(10))
                    if (sent.starts_with("put File@"))
                        line = sent;
            const size_t label = line.find('#');
            peer.Send("File@Transfer@Transfer" + line.substr(label, line.find(',') - label) +
                      ",7\nFile@Transfer@Transfer@Status#7," + reply + "\n");
        });
        EXPECT_EQ(File_InstallPut("/a", "/b", "10.0.0.1"), reply == "OK" ? 0 : -1) << reply;
        server.join();
        EXPECT_THAT(line, testing::MatchesRegex("put File@Transfer@Transfer#L[0-9]+,MYHOST:/a,"
                                                "10.0.0.1:/b"));
    }
    Clock_IsReal = false;
    EXPECT_EQ(File_InstallPut("/a", nullptr, "10.0.0.1"), -1);
}
