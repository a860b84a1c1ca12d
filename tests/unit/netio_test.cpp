#include "global.h"
#include "harness.h"
#include "netio_private.h"
#include "text.h"
#include <cstring>

// Nobody listens: the links are down, lines are fed and commands taken by hand.
struct Netio : testing::Test {
    void SetUp() override
    {
        strcpy(GL_ServerAddress, "127.0.0.1");
        GL_ClipStoreSupportMode = GL_FreezeStore = GL_FreezeStore_Exec = 0;
        Net_Init();
        (void)TakeQueuedCommands();
    }
    void TearDown() override
    {
        Net_Init(); // a full buffer takes no line of the next test
        (void)TakeQueuedCommands();
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
    for (const auto& [pieces, expected] :
         {std::pair{Strings{"A#1\rB#2\r\nC#3\n\nD#4\n"}, Strings{"A#1", "B#2", "C#3", "D#4"}},
          {{"A#", "1", "\n"}, {"A#1"}},
          {{"A#1\r", "\nB#2\n"}, {"A#1", "B#2"}}, // CRLF in two pieces is no empty line
          {{"\n\r\n", "A#1\n"}, {"A#1"}},
          {{"no mark\n"}, {"no mark"}},
          {{std::string(404, 'a'), "\n"}, {std::string(404, 'a')}}}) {
        Net_Init();
        Strings lines;
        for (const auto& piece : pieces)
            for (const auto& line : Feed(piece))
                lines.push_back(line);
        EXPECT_EQ(lines, expected) << pieces[0];
    }
}

TEST(NetioLine, ALineHasRoomForItsEnd)
{
    const auto is_end = [](unsigned char c) { return c == '\n'; };
    char line[NET_LINE_MAX];
    for (const auto& [length, taken] :
         {std::pair{NET_LINE_MAX - 1, NET_LINE_MAX - 1}, {NET_LINE_MAX, NET_LINE_TOO_LONG}}) {
        std::string text = std::string(size_t(length), 'a') + "\n";
        EXPECT_EQ(net_take_line(text.data(), line, is_end), taken);
    }
    for (const char* rest : {"", "A#1\n"}) { // what has come whole before a loss stays
        PrintText(line, "%sB#2", rest);
        net_drop_open_line(line, is_end);
        EXPECT_STREQ(line, rest);
    }
}

// The kernel takes it in pieces; then the link is lost.
TEST(NetioQueue, AnItemIsWholeAgainAfterALoss)
{
    NetQueue queue;
    for (const char* item : {"abcdef", "ghi"})
        ASSERT_TRUE(net_queue_append(&queue, item, int(strlen(item))));
    const auto first = [&] {
        return std::string(reinterpret_cast<char*>(queue.first->data_array),
                           size_t(queue.first->length));
    };
    for (uint32_t loss = 0; loss < 2; loss++) { // also a second time
        EXPECT_EQ(net_queue_sent(&queue, 2, "test"), 0);
        EXPECT_EQ(net_queue_sent(&queue, 3, "test"), 0);
        EXPECT_EQ(first(), "f");
        net_queue_restart(&queue);
        EXPECT_EQ(first(), "abcdef");
        EXPECT_EQ(net_state_of(0, queue, 0).connects, loss + 1);
        net_queue_restart(&queue);
        EXPECT_EQ(first(), "abcdef") << "nothing had gone this time";
        queue.connects--;
    }
    EXPECT_EQ(net_queue_sent(&queue, 1, "test"), 0);
    EXPECT_EQ(net_queue_sent(&queue, 5, "test"), 1);
    net_queue_restart(&queue);
    EXPECT_EQ(first(), "ghi") << "what has gone belongs to another item";
    EXPECT_FALSE(net_state_of(0, queue, 0).is_up);
    net_queue_remove(&queue);
}

TEST_F(Netio, AFreezeIsNotedWhileAStoreWaitsForIt)
{
    Net_SendCommand("put Frame Mem@Edit@Freeze@Freeze@Frame@PROC#1");
    EXPECT_EQ(GL_FreezeStore_Exec, 0);
    GL_FreezeStore = 1;
    Net_SendCommand("put Frame Mem@Edit@Freeze@Freeze@Frame@PRO");
    EXPECT_EQ(GL_FreezeStore_Exec, 0);
    Net_SendCommand("put Frame Mem@Edit@Freeze@Freeze@Field@PROC");
    EXPECT_EQ(GL_FreezeStore_Exec, 1);
}

TEST(NetioFrame, AnImpossibleLengthIsSeenInItsTwoBytes)
{
    unsigned char buf[8192] = {1040 >> 8, 1040 & 0xFF};
    unsigned char frame[NET_FRAME_MAX];
    int fill = 1;
    EXPECT_EQ(net_take_frame(buf, &fill, frame), 0);
    fill++;
    EXPECT_LT(net_take_frame(buf, &fill, frame), 0);
    buf[1]--;
    fill = 2 + 1039 - 1;
    EXPECT_EQ(net_take_frame(buf, &fill, frame), 0) << "the last byte is missing";
    fill++;
    EXPECT_EQ(net_take_frame(buf, &fill, frame), 2 + 1039);
    EXPECT_EQ(fill, 0);
}

// The bytes of a stream come in two pieces, cut at every place.
TEST(NetioFrame, FramesComeWholeAndInOrderWhereverTheyWereCut)
{
    const Strings frames = {std::string("\0\11\x84\xAA\0\2\0\1\2\xFF\xFF", 11),
                            std::string("\0\7\x84\xAA\0\x10\0\xFF\xFF", 9),
                            std::string("\1\7\x84", 3) + std::string(262, 'd'),
                            std::string(2, '\0')};
    std::string stream;
    for (const auto& frame : frames)
        stream += frame;
    for (size_t cut = 0; cut <= stream.size(); cut++) {
        unsigned char buf[8192];
        unsigned char frame[NET_FRAME_MAX];
        int fill = 0;
        Strings taken;
        for (const auto& piece : {stream.substr(0, cut), stream.substr(cut)}) {
            memcpy(buf + fill, piece.data(), piece.size());
            fill += int(piece.size());
            while (const int size = net_take_frame(buf, &fill, frame))
                taken.emplace_back(reinterpret_cast<char*>(frame), size_t(size));
        }
        ASSERT_EQ(taken, frames) << cut;
        ASSERT_EQ(fill, 0);
    }
}
