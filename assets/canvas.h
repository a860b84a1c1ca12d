// canvas: one bitmap in the making, on a cairo surface, and its way into a BMP file.
// Coordinates are pixels from the top left corner, colours are 0x00RRGGBB. Nothing here knows what
// is drawn.
#pragma once
#include <cairo.h>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

constexpr double PI = 3.14159265358979323846;
using Colour = uint32_t;

struct Canvas {
    int width = 0;
    int height = 0;
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
};

struct Point {
    double x, y;
};

struct Stop {
    double at; // 0 top, 1 bottom
    Colour colour;
};

enum Corners { TOP_LEFT = 1, TOP_RIGHT = 2, BOTTOM_RIGHT = 4, BOTTOM_LEFT = 8 };
constexpr int ALL_CORNERS = TOP_LEFT | TOP_RIGHT | BOTTOM_RIGHT | BOTTOM_LEFT;
constexpr int TOP_CORNERS = TOP_LEFT | TOP_RIGHT;
constexpr int BOTTOM_CORNERS = BOTTOM_LEFT | BOTTOM_RIGHT;
constexpr int LEFT_CORNERS = TOP_LEFT | BOTTOM_LEFT;

// Free what CV_New gave; the canvas is filled with its ground.
Canvas CV_New(int width, int height, Colour ground);
void CV_Free(Canvas& cv);

// --- Paths: each replaces the path before it ---
void CV_RoundRect(const Canvas& cv, double x, double y, double w, double h, double radius,
                  int corners = ALL_CORNERS);
void CV_Lines(const Canvas& cv, std::initializer_list<Point> points);   // open
void CV_Polygon(const Canvas& cv, std::initializer_list<Point> points); // closed
void CV_Circle(const Canvas& cv, double x, double y, double radius);
void CV_Arc(const Canvas& cv, double x, double y, double radius, double from, double to);

// --- What is done with a path, which is then gone ---
void CV_Paint(const Canvas& cv, Colour colour, double alpha = 1);
// A vertical gradient from y0 to y1.
void CV_PaintGradient(const Canvas& cv, double y0, double y1, std::initializer_list<Stop> stops);
// Joins are round.
void CV_Stroke(const Canvas& cv, double line_width, Colour colour, double alpha = 1,
               cairo_line_cap_t cap = CAIRO_LINE_CAP_ROUND);
// All drawing until CV_EndClip stays inside the path; the pair nests.
void CV_Clip(const Canvas& cv);
void CV_EndClip(const Canvas& cv);

// --- Whole shapes ---
void CV_Fill(const Canvas& cv, double x, double y, double w, double h, Colour colour,
             double alpha = 1);
// A solid triangle round (x, y) that points along (dx, dy), a unit vector.
void CV_Arrow(const Canvas& cv, double x, double y, double dx, double dy, double half_width,
              Colour colour);
void CV_ChevronDown(const Canvas& cv, double x, double y, double half_width, Colour colour,
                    double line_width = 2.2);

// --- Out ---
// The picture as 24-bit rows of red, green, blue, top row first, nothing between the rows.
std::vector<uint8_t> CV_Pixels(const Canvas& cv);
// A 24-bit BMP, bottom row first. Returns 0, or -1 when the file could not be written (errno says
// why).
int CV_WriteBmp(const std::string& path, int width, int height, const std::vector<uint8_t>& pixels);
