// How long one redraw of the map canvas takes: a deed of 202 courses (straight
// legs of 200 to 2000 twips and curves of radius 500 to 3000 twips), the point
// of beginning mark and a few texts, painted on a full-HD canvas including the
// clear. A redraw should stay well under 5 ms.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include "figure_painter.h"
#include "qt_painter_surface.h"

namespace quilmar {
namespace {

constexpr int kWidthPixels = 1920;
constexpr int kHeightPixels = 1080;
constexpr int kCourses = 202;
constexpr double kTurn = 6.283185307179586;

double uniform(std::mt19937 &random, double low, double high)
{
    return low + (high - low) * (random() / 4294967296.0);
}

double mapAngle(PointF centre, PointF p)
{
    const double a = std::atan2(-(double(p.y) - centre.y), double(p.x) - centre.x);
    return a < 0.0 ? a + kTurn : a;
}

// A pen walk that winds about five times round the canvas centre on a ring growing
// from 2500 to 6500 twips, so that the whole deed stays on the canvas; every
// third course is a curve bending left over its chord. The same figure on
// every run.
Figure deedFigure()
{
    std::mt19937 random(20240611);
    Figure figure;
    const PointF middle{kWidthPixels * 15 / 2.0f, kHeightPixels * 15 / 2.0f};
    PointF pen{middle.x + 2500, middle.y};
    const PointF beginning = pen;
    for (int i = 0; i < kCourses; ++i) {
        // Along the ring (a quarter turn on from the pen's bearing from the
        // centre), steered back towards it when the pen has strayed.
        const double ring = 2500.0 + 4000.0 * i / kCourses;
        const double bearing = std::atan2(double(pen.y) - middle.y, double(pen.x) - middle.x);
        const double stray = std::hypot(double(pen.x) - middle.x, double(pen.y) - middle.y) / ring - 1.0;
        const double a = bearing + kTurn / 4 + std::clamp(stray, -0.5, 0.5) + uniform(random, -0.2, 0.2);
        if (i % 3 != 2) {
            const double d = uniform(random, 200, 2000);
            const PointF end{float(pen.x + std::cos(a) * d), float(pen.y + std::sin(a) * d)};
            figure.items.push_back({FigLine{pen, end}, Palette::Blue, Target::Both});
            pen = end;
            continue;
        }
        const double r = uniform(random, 500, 3000);
        const double c = uniform(random, 200, std::min(2000.0, 2 * r));
        const double beta = std::atan(std::sqrt(r * r - c * c / 4) / (c / 2));
        const PointF centre{float(pen.x + r * std::cos(a - beta)), float(pen.y + r * std::sin(a - beta))};
        const PointF end{float(pen.x + std::cos(a) * c), float(pen.y + std::sin(a) * c)};
        double from = mapAngle(centre, pen);
        double to = mapAngle(centre, end);
        if (std::fmod(to - from + kTurn, kTurn) > kTurn / 2)
            std::swap(from, to); // trace the shorter arc counter-clockwise
        figure.items.push_back({FigArc{centre, float(r), from, to}, Palette::Blue, Target::Both});
        pen = end;
    }
    figure.items.push_back({FigCircle{beginning, 30}, Palette::Blue, Target::Both});
    figure.items.push_back({FigText{pen, 0, "x"}, Palette::Red, Target::Both});
    figure.items.push_back({FigScaleLeft{-360}, Palette::Red, Target::Screen});
    figure.items.push_back({FigText{{0, 600}, 0, "CANNOT CLOSE."}, Palette::Red, Target::Screen});
    figure.items.push_back({FigText{{0, 600}, 1, "Error in curve."}, Palette::Red, Target::Screen});
    return figure;
}

void BM_PaintDeedOnCanvas(benchmark::State &state)
{
    const Figure figure = deedFigure();
    QImage image(kWidthPixels, kHeightPixels, QImage::Format_ARGB32_Premultiplied);
    const QColor background = toQColor(kCanvasGrey);
    for (auto _ : state) {
        image.fill(background);
        QPainter painter(&image);
        QtPainterSurface surface(painter, DeviceMapping::forPixels(0, 0));
        paintFigure(figure, surface, Target::Screen);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(figure.items.size()));
}
BENCHMARK(BM_PaintDeedOnCanvas)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quilmar
