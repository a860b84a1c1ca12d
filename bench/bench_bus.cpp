// The bus: what one tally costs that nobody wants, and a whole pass of them from the wire.
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "text.h"
#include <algorithm>
#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <netinet/in.h>
#include <sys/socket.h>

// Limit: 2 us for the first; the second is 129 of them with reading and cutting.
static const char* const unwanted[] = {
    "M/E-1@Key1@Type@Key Type",
    "Engineering Setup@Switcher@Input@FC Adjust@Conversion@16",
    "Info@Board Config@Board Status@SWR1@3",
    "Global Effect@Ch1-Ch2@Trail@Density",
};

static void BusTallyNobodyWants(benchmark::State& state)
{
    const char* path = unwanted[state.range(0)];
    const uint32_t hash = Hash(path);
    for (auto _ : state)
        benchmark::DoNotOptimize(SendMessage(MSG_TALLY, Arg(path), Arg("1"), hash, 0));
    state.SetLabel(path);
}
BENCHMARK(BusTallyNobodyWants)->DenseRange(0, 3);

constexpr int LINES_A_PASS = 129;
constexpr int LINES_A_FILL = 8; // the receive buffer holds that many whole

static void BusPassOfTallies(benchmark::State& state)
{
    static const char line[] = "M/E-1@Key1@Type@Key Type#Luminance\n";
    for (auto _ : state) {
        for (int i = 0; i < LINES_A_PASS; i++) {
            (void)Net_FeedText(line, int(sizeof line - 1)); // there is room
            if (i % LINES_A_FILL == LINES_A_FILL - 1 || i == LINES_A_PASS - 1)
                ReceiveCommand_Management();
        }
    }
    state.SetItemsProcessed(state.iterations() * LINES_A_PASS);
}
BENCHMARK(BusPassOfTallies)->Unit(benchmark::kMicrosecond);

// A server that accepts and says nothing: with the links down each receive call would try to
// connect.
static bool Listen(int port)
{
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(uint16_t(port));
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return fd >= 0 && bind(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 &&
           listen(fd, 4) == 0;
}

constexpr double LIMIT_US = 2.0;

// Processor time of one tally that nobody wants; the best of a few runs, for a machine has other
// work.
static double UnwantedMicroseconds()
{
    const char* path = unwanted[0];
    const uint32_t hash = Hash(path);
    double best = 1e9;
    for (int run = 0; run < 5; run++) {
        const clock_t start = clock();
        for (int i = 0; i < 100000; i++)
            SendMessage(MSG_TALLY, Arg(path), Arg("1"), hash, 0);
        best = std::min(best, double(clock() - start) * 1e6 / CLOCKS_PER_SEC / 100000);
    }
    return best;
}

static int Check()
{
    const double us = UnwantedMicroseconds();
    if (us <= LIMIT_US)
        return 0;
    printf("a tally that nobody wants takes %.2f us, limit %.2f\n", us, LIMIT_US);
    return 1;
}

int main(int argc, char** argv)
{
    if (!Listen(NET_TEXT_PORT) || !Listen(NET_BIN_PORT)) {
        perror("the links' ports");
        return 1;
    }
    CopyText(GL_ServerAddress, "127.0.0.1");
    Net_Init();
    if (argc > 1 && strcmp(argv[1], "--check") == 0)
        return Check();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
