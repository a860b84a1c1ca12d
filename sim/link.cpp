#include "link.h"
#include "diag.h"
#include "hub.h"
#include "log.h"
#include "stream.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include "verbs.h"
#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <climits>
#include <cstring>
#include <deque>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
struct Listener {
    const char* name = "";
    uint16_t port = 0;
    int fd = -1;            // -1: closed
    int64_t open_at_ms = 0; // while closed by a drop
    long cut_bytes = -1;    // still to go until a client is cut off; below 0: none is to be
};
} // namespace

static constexpr size_t CLIENTS_MAX = 32;
static constexpr size_t LINE_BYTES = 2048; // of a client's line; a panel's command has 1023 at most
static constexpr size_t FRAME_HEAD = 7;    // length, command, id
static constexpr size_t FRAME_LENGTH = 1031; // 1024 bytes of data and the head
static constexpr size_t HEARD_LINES = 5000;

static struct {
    Listener listener[LINK_KINDS] = {{"text", 10001}, {"bin", 10000}, {"hub", 9500}};
    in_addr address = {};
    bool is_refusing = false;
    std::vector<Client> clients;
    int last_number = 0;
    int64_t stall_until_ms = 0;
    size_t piece_bytes = 0; // 0: no limit
    int piece_gap_ms = 0;
    std::deque<std::string> heard; // the last HEARD_LINES
    int64_t heard_first = 0;       // number of heard.front()
} lk;

// --- Listening ---

static bool link_listen(Listener& listener)
{
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const int on = 1;
    setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in name = {};
    name.sin_family = AF_INET;
    name.sin_port = htons(listener.port);
    name.sin_addr = lk.address;
    if (bind(fd, (sockaddr*)&name, sizeof name) != 0 || listen(fd, 16) != 0) {
        Log_Note("cannot listen on port %d: %s", listener.port, strerror(errno));
        close(fd);
        return false;
    }
    listener.fd = fd;
    return true;
}

static void link_close_listener(Listener& listener)
{
    if (listener.fd >= 0)
        close(listener.fd);
    listener.fd = -1;
}

bool Link_Start(const char* address)
{
    if (inet_pton(AF_INET, address, &lk.address) != 1) {
        Log_Note("not an address: %s", address);
        return false;
    }
    for (Listener& listener : lk.listener)
        if (!link_listen(listener))
            return false;
    return true;
}

static void link_accept(LinkKind kind)
{
    const int fd = accept4(lk.listener[kind].fd, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (fd < 0)
        return;
    if (lk.clients.size() >= CLIENTS_MAX) {
        Log_Note("too many clients, one refused on %s", lk.listener[kind].name);
        close(fd);
        return;
    }
    const int on = 1;
    setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    Client client;
    client.number = ++lk.last_number;
    client.fd = fd;
    client.kind = kind;
    lk.clients.push_back(client);
    Log_Note("client %d on %s", client.number, lk.listener[kind].name);
    if (kind == LINK_TEXT)
        System_Connected(client.number);
}

static void link_reopen(int64_t now)
{
    for (Listener& listener : lk.listener) {
        if (listener.fd >= 0 || lk.is_refusing || now < listener.open_at_ms)
            continue;
        if (!link_listen(listener))
            listener.open_at_ms = now + 1000;
    }
}

// --- Clients ---

static void link_lose(Client& client, const char* why)
{
    if (client.fd < 0)
        return;
    Log_Note("client %d %s", client.number, why);
    close(client.fd);
    client.fd = -1;
}

static void link_sweep()
{
    for (const Client& client : lk.clients) {
        if (client.fd >= 0)
            continue;
        if (client.kind == LINK_BIN)
            Stream_ForgetClient(client.number);
        if (client.kind == LINK_HUB)
            Hub_ForgetClient(client.number);
        if (client.kind != LINK_TEXT)
            continue;
        Tree_ForgetClient(client.number);
        Diag_ForgetClient(client.number);
        System_Lost(client.number);
    }
    std::erase_if(lk.clients, [](const Client& client) { return client.fd < 0; });
}

Client* Link_Find(int client)
{
    for (Client& c : lk.clients)
        if (c.number == client && c.fd >= 0)
            return &c;
    return nullptr;
}

std::vector<int> Link_Clients(LinkKind kind)
{
    std::vector<int> numbers;
    for (const Client& client : lk.clients)
        if (client.kind == kind && client.fd >= 0)
            numbers.push_back(client.number);
    return numbers;
}

// --- Sending ---

// So many of the bytes may go now, all at once.
static size_t link_portion(const Client& client)
{
    const long cut = lk.listener[client.kind].cut_bytes;
    size_t count = client.out.size() - client.out_at;
    if (lk.piece_bytes)
        count = std::min(count, lk.piece_bytes);
    return cut < 0 ? count : std::min(count, size_t(cut));
}

// Whether the client ends here, with the rest of its line or frame unsent.
static bool link_is_cut(LinkKind kind, size_t sent)
{
    long& cut = lk.listener[kind].cut_bytes;
    if (cut < 0)
        return false;
    cut -= long(sent);
    if (cut > 0)
        return false;
    cut = -1;
    return true;
}

static void link_flush(Client& client, int64_t now)
{
    while (client.fd >= 0 && client.out_at < client.out.size() && now >= client.next_write_ms) {
        const ssize_t sent = send(client.fd, client.out.data() + client.out_at,
                                  link_portion(client), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (sent < 0 && (errno == EAGAIN || errno == EINTR))
            break;
        if (sent < 0)
            return link_lose(client, "takes no more");
        if (link_is_cut(client.kind, size_t(sent)))
            return link_lose(client, "cut off");
        client.out_at += size_t(sent);
        if (!lk.piece_bytes)
            continue;
        client.next_write_ms = now + lk.piece_gap_ms;
        break; // one piece a turn, so that each is a segment of its own
    }
    if (client.out_at == client.out.size()) {
        client.out.clear();
        client.out_at = 0;
    } else if (client.out_at > (1 << 16)) {
        client.out.erase(0, client.out_at);
        client.out_at = 0;
    }
}

void Link_SendBytes(int client, std::string_view bytes)
{
    Client* c = Link_Find(client);
    if (!c)
        return;
    if (c->out.size() - c->out_at + bytes.size() > LINK_OUT_BYTES)
        return link_lose(*c, "is too slow");
    c->out += bytes;
}

void Link_SendLine(int client, const std::string& line)
{
    Log_Traffic(client, '>', line);
    Link_SendBytes(client, line + "\n");
}

size_t Link_Waiting(int client)
{
    const Client* c = Link_Find(client);
    return c ? c->out.size() - c->out_at : 0;
}

// --- Receiving ---

static void link_hear(const Client& client, const std::string& text)
{
    Log_Traffic(client.number, '<', text);
    lk.heard.push_back(text);
    if (lk.heard.size() <= HEARD_LINES)
        return;
    lk.heard.pop_front();
    ++lk.heard_first;
}

static void link_line(const Client& client, const std::string& line)
{
    if (line.empty())
        return;
    link_hear(client, client.kind == LINK_HUB ? "hub " + line : line);
    if (client.kind == LINK_TEXT)
        Verb_Line(client.number, line);
    else
        Hub_Line(client.number, line);
}

// Take whole lines off the front; what is left is the begin of the next.
static void link_split_lines(Client& client)
{
    for (;;) {
        const size_t end = client.in.find('\n');
        if (end == std::string::npos)
            break;
        std::string line = client.in.substr(0, end);
        client.in.erase(0, end + 1);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const bool is_rest = client.is_skipping;
        client.is_skipping = false;
        if (is_rest)
            continue;
        if (line.size() > LINE_BYTES)
            Log_Note("client %d: line of %zu bytes dropped", client.number, line.size());
        else
            link_line(client, line);
    }
    if (client.in.size() <= LINE_BYTES)
        return;
    if (!client.is_skipping)
        Log_Note("client %d: line too long, dropped", client.number);
    client.is_skipping = true;
    client.in.clear();
}

static void link_frame(int client, const std::string& frame)
{
    unsigned id = 0;
    for (size_t at = FRAME_HEAD; at-- > 3;)
        id = id << 8 | (unsigned char)frame[at];
    Stream_Receive(client, (unsigned char)frame[2], id, std::string_view(frame).substr(FRAME_HEAD));
}

// A frame: length L low byte first, command, id (4), data, and 0xFF 0xFF behind the L bytes. There
// is no way back into step but the next connection, so a bad frame costs all that was received.
static void link_split_frames(Client& client)
{
    while (client.in.size() >= 2) {
        const auto* const byte = (const unsigned char*)client.in.data();
        const size_t length = byte[0] | size_t(byte[1]) << 8;
        const bool is_sound = length >= FRAME_HEAD && length <= FRAME_LENGTH;
        if (is_sound && client.in.size() < length + 2)
            return;
        if (!is_sound || byte[length] != 0xFF || byte[length + 1] != 0xFF) {
            Log_Note("client %d: bad frame, %zu bytes dropped: %s", client.number, client.in.size(),
                     Text_Hex(client.in.substr(0, 16)).c_str());
            client.in.clear();
            return;
        }
        const std::string frame = client.in.substr(0, length + 2);
        client.in.erase(0, length + 2);
        link_hear(client, "bin " + Text_Hex(frame));
        link_frame(client.number, frame.substr(0, length));
    }
}

static void link_read(Client& client, int64_t now)
{
    char bytes[16384];
    const ssize_t count = recv(client.fd, bytes, sizeof bytes, MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0) {
        // One that only stops sending ("echo ... | nc") still gets what it asked for.
        if (count == 0)
            link_flush(client, now);
        link_lose(client, count == 0 ? "has gone" : "is lost");
        return;
    }
    client.in.append(bytes, size_t(count));
    if (client.kind == LINK_BIN)
        link_split_frames(client);
    else
        link_split_lines(client);
}

// --- The main loop ---

static bool link_is_stalled(int64_t now)
{
    return now < lk.stall_until_ms;
}

int64_t Link_Wait(std::vector<pollfd>* set, int64_t now)
{
    if (link_is_stalled(now))
        return lk.stall_until_ms;
    int64_t next = INT64_MAX;
    for (const Listener& listener : lk.listener) {
        if (listener.fd >= 0)
            set->push_back({listener.fd, POLLIN, 0});
        else if (!lk.is_refusing)
            next = std::min(next, listener.open_at_ms);
    }
    for (const Client& client : lk.clients) {
        short events = POLLIN;
        const bool has_more = client.out_at < client.out.size();
        if (has_more && now >= client.next_write_ms)
            events |= POLLOUT;
        else if (has_more)
            next = std::min(next, client.next_write_ms);
        set->push_back({client.fd, events, 0});
    }
    return next;
}

// What poll reported isn't looked at: nothing here blocks, so each client is simply tried.
void Link_Serve(int64_t now)
{
    link_sweep();
    if (link_is_stalled(now))
        return;
    link_reopen(now);
    for (int kind = 0; kind < LINK_KINDS; ++kind)
        if (lk.listener[kind].fd >= 0)
            link_accept(LinkKind(kind));
    for (Client& client : lk.clients)
        if (client.fd >= 0)
            link_read(client, now);
    for (Client& client : lk.clients)
        link_flush(client, now);
    link_sweep();
}

void Link_Stop()
{
    for (Client& client : lk.clients) {
        link_flush(client, Now_Ms());
        link_lose(client, "closed");
    }
    for (Listener& listener : lk.listener)
        link_close_listener(listener);
}

// --- Faults ---

void Link_Drop(LinkKind kind, int down_ms)
{
    Listener& listener = lk.listener[kind];
    for (Client& client : lk.clients)
        if (client.kind == kind)
            link_lose(client, "dropped");
    if (down_ms <= 0)
        return;
    link_close_listener(listener);
    listener.open_at_ms = Now_Ms() + down_ms;
}

void Link_Cut(LinkKind kind, long bytes)
{
    lk.listener[kind].cut_bytes = bytes;
}

void Link_Refuse(bool on)
{
    lk.is_refusing = on;
    for (Listener& listener : lk.listener) {
        if (on)
            link_close_listener(listener);
        listener.open_at_ms = 0;
    }
    link_reopen(Now_Ms());
}

void Link_Stall(int ms)
{
    lk.stall_until_ms = Now_Ms() + ms;
}

void Link_Pieces(size_t bytes, int gap_ms)
{
    lk.piece_bytes = bytes;
    lk.piece_gap_ms = gap_ms;
}

// --- The record ---

int64_t Link_HeardCount()
{
    return lk.heard_first + int64_t(lk.heard.size());
}

bool Link_Heard(int64_t* from, const std::string& pattern, std::string* line)
{
    *from = std::max(*from, lk.heard_first);
    while (*from < Link_HeardCount()) {
        const std::string& heard = lk.heard[size_t((*from)++ - lk.heard_first)];
        if (!Text_Matches(heard, pattern))
            continue;
        *line = heard;
        return true;
    }
    return false;
}
