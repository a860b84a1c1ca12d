#include "command.h"
#include "global.h"
#include "harness.h"
#include "netio_private.h"
#include <cstring>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using Strings = std::vector<std::string>;

// Nobody listens: the links are down, lines are fed and commands taken by hand.
struct Netio : testing::Test {
    void SetUp() override
    {
        strcpy(GL_ServerAddress, "127.0.0.1");
        GL_ClipStoreSupportMode = 0;
        Net_Init();
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        (void)TakeQueuedCommands();
        GL_FreezeStore = GL_FreezeStore_Exec = 0;
    }
};

static Strings Feed(const std::string& bytes)
{
    EXPECT_EQ(Net_FeedText(bytes.data(), int(bytes.size())), int(bytes.size()));
    Strings lines;
    while (const char* line = Net_ReceiveCommand())
        lines.emplace_back(line);
    return lines;
}

TEST_F(Netio, ALineComesWhenItsEndHasCome)
{
    static const struct {
        Strings pieces;
        Strings lines;
    } cases[] = {
        {{"A#1\rB#2\r\nC#3\n\nD#4\n"}, {"A#1", "B#2", "C#3", "D#4"}},
        {{"A#", "1", "\n"}, {"A#1"}},
        {{"A#1\r", "\nB#2\n"}, {"A#1", "B#2"}}, // CRLF in two pieces is no empty line
        {{"\n\r\n", "A#1\n"}, {"A#1"}},
        {{"no mark\n"}, {"no mark"}},
        {{std::string(404, 'a'), "\n"}, {std::string(404, 'a')}},
    };
    for (const auto& c : cases) {
        Net_Init();
        Strings lines;
        for (const auto& piece : c.pieces)
            for (const auto& line : Feed(piece))
                lines.push_back(line);
        EXPECT_EQ(lines, c.lines) << c.pieces[0];
    }
}

TEST_F(Netio, ALineThatFillsTheBufferStaysThere)
{
    EXPECT_THAT(Feed(std::string(405, 'a')), IsEmpty());
    EXPECT_EQ(Net_FeedText("\n", 1), 0);
    EXPECT_EQ(Net_ReceiveCommand(), nullptr);
}

TEST_F(Netio, AFreezeIsNotedWhileAStoreWaitsForIt)
{
    static const struct {
        int waits;
        const char* cmd;
        int noted;
    } cases[] = {
        {1, "put Frame Mem@Edit@Freeze@Freeze@Frame@PROC#1", 1},
        {1, "put Frame Mem@Edit@Freeze@Freeze@Field@PROC", 1},
        {1, "put Frame Mem@Edit@Freeze@Freeze@Frame@PRO", 0},
        {0, "put Frame Mem@Edit@Freeze@Freeze@Frame@PROC#1", 0},
    };
    for (const auto& c : cases) {
        GL_FreezeStore = c.waits;
        GL_FreezeStore_Exec = 0;
        Net_SendCommand(c.cmd);
        EXPECT_EQ(GL_FreezeStore_Exec, c.noted) << c.cmd;
    }
}

// --- Frames ---

// The frame with this length field, whose bytes are counted up.
static std::string Frame(int length)
{
    std::string frame;
    for (int i = 0; i < length + 2; i++)
        frame.push_back(char(i));
    frame[0] = char(length >> 8);
    frame[1] = char(length);
    return frame;
}

// What comes out of the splitter when the bytes arrive in pieces of this size.
static Strings TakeFrames(const std::string& bytes, size_t piece)
{
    unsigned char buf[8192];
    unsigned char frame[NET_FRAME_MAX];
    int fill = 0;
    Strings frames;
    for (size_t at = 0; at < bytes.size(); at += piece) {
        const std::string part = bytes.substr(at, piece);
        memcpy(buf + fill, part.data(), part.size());
        fill += int(part.size());
        int size;
        while ((size = net_take_frame(buf, &fill, frame)) > 0)
            frames.emplace_back(reinterpret_cast<char*>(frame), size_t(size));
        if (size < 0)
            frames.emplace_back("wrong");
    }
    return frames;
}

TEST(NetioFrame, FramesComeWholeHoweverTheyArrive)
{
    const std::string a = Frame(7), b = Frame(300), c = Frame(1039);
    for (const size_t piece : {1, 2, 5, 1000, 8000}) {
        EXPECT_THAT(TakeFrames(a + b + c + a, piece), ElementsAre(a, b, c, a)) << piece;
        EXPECT_THAT(TakeFrames(a + b.substr(0, 301), piece), ElementsAre(a)) << piece;
    }
    EXPECT_THAT(TakeFrames(Frame(1040), 8000), ElementsAre("wrong"));
    EXPECT_THAT(TakeFrames(Frame(1040).substr(0, 2) + a, 2)[0],
                "wrong"); // the two bytes are enough
    EXPECT_THAT(TakeFrames(Frame(0) + a, 8000), ElementsAre(Frame(0), a));
}
