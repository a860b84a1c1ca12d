// Wipes proper: a mask decides for each point of the screen which picture shows.
#include "wipes.h"
#include <algorithm>
#include <cmath>
#include <random>

namespace
{
constexpr int SAMPLES = 4; // a side, in each pixel
constexpr double PROGRESS = 0.42;
constexpr double SHADE = 0.22; // how much darker the incoming picture gets towards the bottom
constexpr double TURN = 2 * PI;

struct Spot {
    double u, v;          // 0 to 1 across and down the screen
    double x, y;          // from the middle, in screen heights
    double radius, angle; // the same, polar
};

// Random masks: a grid of cells, drawn once a picture.
struct Cells {
    int columns = 0, rows = 0;
    std::vector<double> value; // row by row
};

double cell_at(const Cells& cells, const Spot& s)
{
    return cells.value[size_t(int(s.v * cells.rows) * cells.columns + int(s.u * cells.columns))];
}

// Rest of a division, never negative.
double wrap(double value, double period)
{
    return value - period * std::floor(value / period);
}

struct Axis {
    double position; // along the direction, 0 in the middle
    double extent;   // from the middle to the last corner
};

Axis along(const Spot& s, double degrees)
{
    const double a = degrees * PI / 180, c = std::cos(a), n = std::sin(a);
    const double aspect = double(WIPE_SCREEN_W) / WIPE_SCREEN_H;
    return {s.x * c + s.y * n, std::fabs(c) * aspect / 2 + std::fabs(n) / 2};
}

// u and v measured from corner i, clockwise from the top left.
double from_corner_u(const Spot& s, int i)
{
    return i == 0 || i == 3 ? s.u : 1 - s.u;
}
double from_corner_v(const Spot& s, int i)
{
    return i < 2 ? s.v : 1 - s.v;
}

bool straight(int k, const Spot& s, const Cells&)
{
    constexpr double degrees[] = {0, 90, 180, 270, 45, 135, 225, 315};
    const Axis a = along(s, degrees[k]);
    return a.position < -a.extent + 2 * a.extent * PROGRESS;
}

bool doors(int k, const Spot& s, const Cells&)
{
    constexpr double degrees[] = {0, 90, 45, 135};
    const Axis a = along(s, degrees[k % 4]);
    const double distance = std::fabs(a.position);
    return k < 4 ? distance < a.extent * PROGRESS : distance > a.extent * (1 - PROGRESS);
}

bool corner_box(int k, const Spot& s, const Cells&)
{
    return from_corner_u(s, k) < 0.55 && from_corner_v(s, k) < 0.55;
}

bool corner_triangle(int k, const Spot& s, const Cells&)
{
    return from_corner_u(s, k) + from_corner_v(s, k) < 0.85;
}

bool edge_box(int k, const Spot& s, const Cells&)
{
    switch (k) {
    case 0: return std::fabs(s.u - 0.5) < 0.3 && s.v < 0.55;
    case 1: return 1 - s.u < 0.5 && std::fabs(s.v - 0.5) < 0.3;
    case 2: return std::fabs(s.u - 0.5) < 0.3 && 1 - s.v < 0.55;
    default: return s.u < 0.5 && std::fabs(s.v - 0.5) < 0.3;
    }
}

bool four_fold(int k, const Spot& s, const Cells&)
{
    const double a = std::fabs(s.u - 0.5), b = std::fabs(s.v - 0.5);
    switch (k) {
    case 0: return a > 0.24 && b > 0.24;
    case 1: return a < 0.13 || b < 0.15;
    case 2: return std::fabs(std::fabs(s.x) - std::fabs(s.y)) < 0.16;
    default: return a + b > 0.62;
    }
}

bool box(int k, const Spot& s, const Cells&)
{
    constexpr Point half_sizes[] = {{0.28, 0.28}, {0.16, 0.36}, {0.36, 0.16}, {0.28, 0.28}};
    const double a = std::fabs(s.u - 0.5) / half_sizes[k % 4].x;
    const double b = std::fabs(s.v - 0.5) / half_sizes[k % 4].y;
    const bool is_rounded = k % 4 == 3;
    const double distance =
        is_rounded ? std::pow(std::pow(a, 4) + std::pow(b, 4), 0.25) : std::max(a, b);
    return k < 4 ? distance < 1 : distance > 1.15;
}

bool polygon(int k, const Spot& s, const Cells&)
{
    const double side = TURN / (k + 3);
    return s.radius * std::cos(wrap(s.angle + PI / 2, side) - side / 2) <
           0.3 * std::cos(side / 2) + 0.03;
}

// Growing, shrinking, ring, concentric, over a distance from the middle.
struct Rings {
    double growing, shrinking;
    double outer, inner; // of the ring
    double period;       // of the concentric ones, half of which is lit
};

bool ringed(int kind, double distance, const Rings& rings)
{
    switch (kind) {
    case 0: return distance < rings.growing;
    case 1: return distance > rings.shrinking;
    case 2: return distance < rings.outer && distance > rings.inner;
    default: return wrap(distance, rings.period) < rings.period / 2;
    }
}

bool diamond(int k, const Spot& s, const Cells&)
{
    constexpr Point scales[] = {{1, 1}, {0.6, 1.3}, {1.5, 0.7}};
    const int shape = k % 4;
    double distance = 0;
    if (shape == 3)
        distance = (std::min(std::fabs(s.x - 0.22), std::fabs(s.x + 0.22)) + std::fabs(s.y)) * 1.5;
    else
        distance = std::fabs(s.x) / scales[shape].x + std::fabs(s.y) / scales[shape].y;
    return ringed(k / 4, distance, {0.42, 0.5, 0.5, 0.26, 0.34});
}

bool circle(int k, const Spot& s, const Cells&)
{
    constexpr Point scales[] = {{1, 1}, {0.65, 1.2}, {1.35, 0.75}};
    const int shape = k % 4;
    double distance = 0;
    if (shape == 3)
        distance = std::hypot(std::min(std::fabs(s.x - 0.28), std::fabs(s.x + 0.28)), s.y) * 1.35;
    else
        distance = std::hypot(s.x / scales[shape].x, s.y / scales[shape].y);
    return ringed(k / 4, distance, {0.34, 0.4, 0.42, 0.24, 0.24});
}

double clock_start(int k)
{
    return (k % 8) * PI / 4 - PI / 2;
}

bool clock_hand(int k, const Spot& s, const Cells&)
{
    const double turned = s.angle - clock_start(k);
    return wrap(k < 8 ? turned : -turned, TURN) < TURN * 0.36;
}

bool fan(int k, const Spot& s, const Cells&)
{
    return std::fabs(wrap(s.angle - clock_start(k) + PI, TURN) - PI) < PI * 0.36;
}

bool clock_hands(int k, const Spot& s, const Cells&)
{
    constexpr int hands[] = {2, 3, 4, 6};
    const double sector = TURN / hands[k % 4];
    return wrap((k < 4 ? s.angle : -s.angle) + PI / 2, sector) < sector * 0.42;
}

bool slats(int k, double position)
{
    constexpr int counts[] = {2, 3, 4, 6, 8, 10, 12, 16};
    const double slat = position * counts[k % 8], within = slat - std::floor(slat);
    const bool is_mirrored = k >= 8 && int(slat) % 2 == 1;
    return is_mirrored ? within > 1 - PROGRESS : within < PROGRESS;
}
bool vertical_slats(int k, const Spot& s, const Cells&)
{
    return slats(k, s.u);
}
bool horizontal_slats(int k, const Spot& s, const Cells&)
{
    return slats(k, s.v);
}

// An uneven edge: the position of the point along the move, and along the edge in teeth.
struct EdgePoint {
    double along, tooth;
};

EdgePoint edge_point(int k, const Spot& s)
{
    constexpr int teeth[] = {2, 3, 4, 6};
    const bool is_upright = k % 2 == 0;
    double position = is_upright ? s.u : s.v;
    if (k % 4 >= 2)
        position = 1 - position;
    return {position, (is_upright ? s.v : s.u) * teeth[k / 4]};
}

bool saw_edge(int k, const Spot& s, const Cells&)
{
    const EdgePoint p = edge_point(k, s);
    return p.along < 0.48 + (std::fabs(wrap(p.tooth, 1) - 0.5) * 2 - 0.5) * 0.22;
}

bool wave_edge(int k, const Spot& s, const Cells&)
{
    const EdgePoint p = edge_point(k, s);
    return p.along < 0.48 + std::sin(p.tooth * TURN) * 0.5 * 0.22;
}

bool matrix(int k, const Spot& s, const Cells&)
{
    constexpr struct {
        int columns, rows;
    } grids[] = {{4, 3}, {6, 4}, {8, 6}, {10, 8}, {4, 4}, {12, 9}, {3, 3}, {16, 12}};
    const auto& grid = grids[k % 8];
    const int column = int(s.u * grid.columns), row = int(s.v * grid.rows);
    const int cells = grid.columns * grid.rows;
    switch (k / 8) {
    case 0: return row * grid.columns + column < cells * 0.45;
    case 1: { // snake
        const int step = row % 2 == 0 ? column : grid.columns - 1 - column;
        return row * grid.columns + step < cells * 0.38;
    }
    case 2:
        return std::max(std::fabs(column - (grid.columns - 1) / 2.0) / grid.columns,
                        std::fabs(row - (grid.rows - 1) / 2.0) / grid.rows) < 0.30;
    default: return (column + row) % 2 == 0;
    }
}

bool rotary(int k, const Spot& s, const Cells&)
{
    const double blade = TURN / (2 + k % 8);
    const bool is_clockwise = k / 8 % 2 == 0, is_curved = k >= 16;
    const double angle = (is_clockwise ? s.angle : -s.angle) + (is_curved ? s.radius * 2.2 : 0);
    return wrap(angle, blade) < blade * 0.48;
}

bool star(int k, const Spot& s, const Cells&)
{
    const int points = 3 + k % 8, kind = k / 8;
    const double sector = TURN / points;
    const double angle = s.angle + PI / 2 + (kind == 2 ? PI / points : 0);
    const double off_point =
        std::fabs(wrap(angle + sector / 2, sector) - sector / 2) / (sector / 2);
    const double rim = 0.42 * (1 - 0.52 * off_point);
    switch (kind) {
    case 1: return s.radius > rim;
    case 3: return s.radius < rim && s.radius > rim * 0.55;
    default: return s.radius < rim;
    }
}

bool random_cells(int k, const Spot& s, const Cells& cells)
{
    const bool is_dust = k >= 24;
    return is_dust ? cell_at(cells, s) * 0.5 + s.u * 0.5 < 0.47 : cell_at(cells, s) > 0;
}

// The generator of the library is fixed by the standard, its distributions are not: they are
// written out here.
uint32_t random_up_to(std::mt19937& random, uint32_t top)
{
    uint32_t mask = 1;
    while (mask < top)
        mask = mask << 1 | 1;
    uint32_t value = 0;
    do
        value = random() & mask;
    while (value > top);
    return value;
}

Cells random_pick(int number, int columns, int rows)
{
    std::mt19937 random{uint32_t(number)};
    Cells cells = {columns, rows, std::vector<double>(size_t(columns * rows), 0)};
    const int count = columns * rows, lit = std::max(1, int(std::lround(count * 0.45)));
    for (int i = 0; i < lit; i++)
        cells.value[size_t(i)] = 1;
    std::vector<int> order;
    for (int i = 0; i < count; i++)
        order.push_back(i);
    for (int i = count - 1; i > 0; i--)
        std::swap(order[size_t(i)], order[random_up_to(random, uint32_t(i))]);
    for (int i = 0; i < count; i++)
        cells.value[size_t(i)] = order[size_t(i)] < lit;
    return cells;
}

Cells random_dust(int number, int columns, int rows)
{
    std::mt19937 random{uint32_t(number)};
    Cells cells = {columns, rows, {}};
    for (int i = 0; i < columns * rows; i++) {
        const uint32_t high = random() >> 5, low = random() >> 6; // 53 bits of a double
        cells.value.push_back((high * 67108864.0 + low) / 9007199254740992.0);
    }
    return cells;
}

constexpr int FIRST_RANDOM = 273;

Cells cells_of(int number)
{
    constexpr int columns[] = {4, 6, 8, 12, 16, 20, 28, 40};
    if (number < FIRST_RANDOM)
        return {};
    const int k = number - FIRST_RANDOM, across = columns[k % 8],
              down = std::max(3, across * 3 / 4);
    switch (k / 8) {
    case 0: return random_pick(number, across, 1); // vertical bars
    case 1: return random_pick(number, 1, down);   // horizontal bars
    case 2: return random_pick(number, across, down);
    default: return random_dust(number, across, down);
    }
}

constexpr struct MaskRange {
    int first; // up to the next row's first
    bool (*is_incoming)(int k, const Spot& s, const Cells& cells);
} MASKS[] = {
    {1, straight},
    {9, doors},
    {17, corner_box},
    {21, corner_triangle},
    {25, edge_box},
    {29, four_fold},
    {33, box},
    {41, polygon},
    {49, diamond},
    {65, circle},
    {81, clock_hand},
    {97, fan},
    {105, clock_hands},
    {113, vertical_slats},
    {129, horizontal_slats},
    {145, saw_edge},
    {161, wave_edge},
    {177, matrix},
    {209, rotary},
    {241, star},
    {FIRST_RANDOM, random_cells},
};

const MaskRange& mask_of(int number)
{
    const MaskRange* found = MASKS;
    for (const MaskRange& row : MASKS)
        if (row.first <= number)
            found = &row;
    return *found;
}

Spot spot_at(int sample_x, int sample_y)
{
    Spot s = {};
    s.u = (sample_x + 0.5) / (WIPE_SCREEN_W * SAMPLES);
    s.v = (sample_y + 0.5) / (WIPE_SCREEN_H * SAMPLES);
    s.x = (s.u - 0.5) * WIPE_SCREEN_W / WIPE_SCREEN_H;
    s.y = s.v - 0.5;
    s.radius = std::hypot(s.x, s.y);
    s.angle = std::atan2(s.y, s.x);
    return s;
}

// All sample points of the screen, pixel by pixel: the same for every number.
std::vector<Spot> all_spots()
{
    std::vector<Spot> list;
    for (int y = 0; y < WIPE_SCREEN_H; y++)
        for (int x = 0; x < WIPE_SCREEN_W; x++)
            for (int i = 0; i < SAMPLES * SAMPLES; i++)
                list.push_back(spot_at(x * SAMPLES + i % SAMPLES, y * SAMPLES + i / SAMPLES));
    return list;
}
const std::vector<Spot> SPOTS = all_spots();

void mix_pixel(uint8_t* rgb, double incoming, double light)
{
    for (int i = 0; i < 3; i++) {
        const int shift = 16 - 8 * i;
        const double from = (WIPE_OUTGOING >> shift) & 0xFF, to = (WIPE_INCOMING >> shift) & 0xFF;
        rgb[i] = uint8_t(from * (1 - incoming) + to * incoming * light);
    }
}
} // namespace

std::vector<uint8_t> WIPE_Picture(int number, bool with_channels)
{
    if (number > 1000)
        return WIPE_Effect(number, with_channels);
    const MaskRange& mask = mask_of(number);
    const Cells cells = cells_of(number);
    std::vector<uint8_t> pixels(size_t(WIPE_WIDTH * WIPE_HEIGHT * 3), 0);
    const Spot* spot = SPOTS.data();
    for (int y = 0; y < WIPE_SCREEN_H; y++) {
        const double light = 1 - SHADE * y / (WIPE_SCREEN_H - 1);
        for (int x = 0; x < WIPE_SCREEN_W; x++) {
            int lit = 0;
            for (int i = 0; i < SAMPLES * SAMPLES; i++)
                lit += mask.is_incoming(number - mask.first, *spot++, cells);
            const int at = (WIPE_SCREEN_Y + y) * WIPE_WIDTH + WIPE_SCREEN_X + x;
            mix_pixel(&pixels[size_t(at * 3)], double(lit) / (SAMPLES * SAMPLES), light);
        }
    }
    return pixels;
}
