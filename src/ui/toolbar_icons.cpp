#include "toolbar_icons.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOption>

namespace quilmar {

namespace {

// One stroke of a picture, in the units of a 24 x 24 square.
struct Stroke {
    enum Kind { Open, Closed, Segments, Box, RoundBox, Dot } kind;
    unsigned colour;              ///< pen colour, 0xRRGGBB
    float width;                  ///< pen width; 0 for none
    long fill;                    ///< fill colour, 0xRRGGBB, or -1 for none
    std::vector<float> v;         ///< points x,y...; Box x,y,w,h; Dot cx,cy,r
};

constexpr long kNone = -1;

// Each picture names what the button does: a parcel drawn again, a row or the
// whole table crossed out, a printer with a map, a parcel filled, measured all
// round, and a traverse whose ends do not meet; then the two chevrons of a
// bar with entries beyond its end, pointing along it.
const std::vector<Stroke> &picture(int index)
{
    static const std::vector<Stroke> pictures[9] = {
        {{Stroke::Closed, 0x1f4e99, 1.5f, kNone, {6, 17, 9, 8, 17, 9, 18, 16}},
         // a turning arrow: most of a circle of radius 8.5 about (12, 11.7), clockwise
         // from the right, in steps of 12.8 degrees
         {Stroke::Open, 0x2e7d32, 2.0f, kNone,
          {20.50f, 12.00f, 20.22f, 13.88f, 19.53f, 15.65f, 18.46f, 17.22f, 17.06f, 18.52f, 15.42f, 19.47f, 13.61f,
           20.03f, 11.71f, 20.18f, 9.83f, 19.90f, 8.06f, 19.21f, 6.48f, 18.15f, 5.18f, 16.76f, 4.23f, 15.12f, 3.66f,
           13.30f, 3.51f, 11.41f, 3.78f, 9.53f, 4.47f, 7.75f, 5.53f, 6.18f, 6.92f, 4.88f, 8.56f, 3.92f, 10.37f, 3.34f,
           12.27f, 3.19f, 14.15f, 3.46f, 15.92f, 4.14f, 17.50f, 5.20f}},
         {Stroke::Open, 0x2e7d32, 2.0f, kNone, {18.8f, 1.8f, 17.7f, 5.6f, 21.5f, 6.4f}}},
        {{Stroke::Box, 0x555555, 1.5f, 0xffffff, {2.5f, 8.5f, 19, 7}},
         {Stroke::Segments, 0x555555, 1.0f, kNone, {8, 8.5f, 8, 15.5f, 14, 8.5f, 14, 15.5f}},
         {Stroke::Segments, 0xc62828, 2.2f, kNone, {5, 6, 19, 18, 19, 6, 5, 18}}},
        {{Stroke::Box, 0x555555, 1.5f, 0xffffff, {2.5f, 3.5f, 19, 17}},
         {Stroke::Segments, 0x555555, 1.0f, kNone,
          {2.5f, 9, 21.5f, 9, 2.5f, 14.5f, 21.5f, 14.5f, 9, 3.5f, 9, 20.5f, 15, 3.5f, 15, 20.5f}},
         {Stroke::Segments, 0xc62828, 2.4f, kNone, {4, 5, 20, 19, 20, 5, 4, 19}}},
        {{Stroke::Open, 0x444444, 1.5f, 0xffffff, {6.5f, 9, 6.5f, 2.5f, 17.5f, 2.5f, 17.5f, 9}},
         {Stroke::Closed, 0x1f4e99, 1.0f, kNone, {9, 7, 11, 4, 15, 5, 14, 7.5f}},
         {Stroke::RoundBox, 0x444444, 1.5f, 0x9e9e9e, {2.5f, 9, 19, 8}},
         {Stroke::Box, 0x444444, 1.5f, 0xffffff, {6.5f, 14, 11, 7.5f}},
         {Stroke::Segments, 0x444444, 1.0f, kNone, {8.5f, 17, 15.5f, 17, 8.5f, 19.5f, 13.5f, 19.5f}},
         {Stroke::Dot, 0, 0, 0x2e7d32, {18.5f, 11.5f, 0.9f}}},
        {{Stroke::Closed, 0x1b5e20, 1.6f, 0xa5d6a7, {4, 19, 6, 6, 15, 3.5f, 20.5f, 10, 17, 20}},
         {Stroke::Open, 0x1b5e20, 1.8f, kNone, {9.2f, 15.5f, 12, 8.5f, 14.8f, 15.5f}},
         {Stroke::Segments, 0x1b5e20, 1.8f, kNone, {10.3f, 13, 13.7f, 13}}},
        {{Stroke::Closed, 0xe65100, 2.2f, 0xffffff, {4, 19, 6, 6, 15, 3.5f, 20.5f, 10, 17, 20}},
         {Stroke::Segments, 0xe65100, 1.4f, kNone,
          {4.2f, 12.5f, 6.4f, 12.8f, 10.2f, 4.6f, 10.8f, 6.6f, 17.6f, 6.6f, 16, 8, 18.9f, 15, 17, 14.4f, 10.5f,
           19.5f, 10.6f, 17.5f}}},
        {{Stroke::Open, 0x1f4e99, 2.0f, kNone, {8, 20, 4, 7, 14, 3, 20.5f, 11, 15, 19}},
         {Stroke::Dot, 0, 0, 0xc62828, {8, 20, 1.4f}},
         {Stroke::Dot, 0, 0, 0xc62828, {15, 19, 1.4f}},
         // the gap, dotted: two dashes as long as the pen is wide
         {Stroke::Segments, 0xc62828, 1.2f, kNone, {9.8f, 19.7f, 11.0f, 19.56f, 12.19f, 19.42f, 13.2f, 19.3f}}},
        {{Stroke::Open, 0x444444, 2.0f, kNone, {6, 6, 11, 12, 6, 18}},
         {Stroke::Open, 0x444444, 2.0f, kNone, {13, 6, 18, 12, 13, 18}}},
        {{Stroke::Open, 0x444444, 2.0f, kNone, {6, 6, 12, 11, 18, 6}},
         {Stroke::Open, 0x444444, 2.0f, kNone, {6, 13, 12, 18, 18, 13}}},
    };
    static const std::vector<Stroke> none;
    return index >= 0 && index < 9 ? pictures[index] : none;
}

// The area a stroke fills (Closed, Box, RoundBox and Dot).
QPainterPath fillOf(const Stroke &s)
{
    const std::vector<float> &v = s.v;
    QPainterPath path;
    switch (s.kind) {
    case Stroke::Closed:
        path.moveTo(v[0], v[1]);
        for (size_t i = 2; i + 1 < v.size(); i += 2)
            path.lineTo(v[i], v[i + 1]);
        path.closeSubpath();
        break;
    case Stroke::Box: path.addRect(v[0], v[1], v[2], v[3]); break;
    case Stroke::RoundBox: path.addRoundedRect(v[0], v[1], v[2], v[3], 1.5, 1.5); break;
    case Stroke::Dot: path.addEllipse(QPointF(v[0], v[1]), v[2], v[2]); break;
    default: break;
    }
    return path;
}

// The lines a stroke's pen draws, each a list of points and whether it closes.
std::vector<std::pair<QPolygonF, bool>> linesOf(const Stroke &s)
{
    const std::vector<float> &v = s.v;
    std::vector<std::pair<QPolygonF, bool>> lines;
    auto points = [&](size_t from, size_t to) {
        QPolygonF line;
        for (size_t i = from; i + 1 < to; i += 2)
            line << QPointF(v[i], v[i + 1]);
        return line;
    };
    switch (s.kind) {
    case Stroke::Open:
    case Stroke::Closed: lines.emplace_back(points(0, v.size()), s.kind == Stroke::Closed); break;
    case Stroke::Segments:
        for (size_t i = 0; i + 3 < v.size(); i += 4)
            lines.emplace_back(points(i, i + 4), false);
        break;
    case Stroke::Box:
    case Stroke::RoundBox: {
        const QRectF r(v[0], v[1], v[2], v[3]);
        lines.emplace_back(QPolygonF{r.topLeft(), r.topRight(), r.bottomRight(), r.bottomLeft()}, true);
        break;
    }
    case Stroke::Dot: break;
    }
    return lines;
}

// Adds @p polygon to @p path turning one way, whichever way it was given, so
// that where pieces overlap the winding rule fills them once.
void addTurningOneWay(QPainterPath &path, QPolygonF polygon)
{
    double twiceArea = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon[i];
        const QPointF &b = polygon[(i + 1) % polygon.size()];
        twiceArea += a.x() * b.y() - b.x() * a.y();
    }
    if (twiceArea < 0)
        std::reverse(polygon.begin(), polygon.end());
    path.addPolygon(polygon);
    path.closeSubpath();
}

// What a pen of @p width with round caps and joins covers along @p lines: a
// band for every segment and a disc at every point, filled as one area. Filling
// this costs far less than Qt's stroker, which brings in the trigonometry of
// the maths library at start-up only for these few pictures.
QPainterPath penArea(const std::vector<std::pair<QPolygonF, bool>> &lines, float width)
{
    // A disc as a 16-sided polygon; kC holds the cosines of 0, 22.5, 45, 67.5
    // and 90 degrees, from which the others follow by symmetry.
    static constexpr double kC[5] = {1.0, 0.9238795, 0.7071068, 0.3826834, 0.0};
    const double h = width / 2.0;
    QPainterPath area;
    area.setFillRule(Qt::WindingFill);
    for (const auto &[line, closed] : lines) {
        const qsizetype n = line.size();
        const qsizetype segments = closed && n > 2 ? n : n - 1;
        for (qsizetype i = 0; i < segments; ++i) {
            const QPointF a = line[i];
            const QPointF b = line[(i + 1) % n];
            const QPointF d = b - a;
            const double length = std::sqrt(QPointF::dotProduct(d, d));
            if (length == 0)
                continue;
            const QPointF side(-d.y() / length * h, d.x() / length * h);
            addTurningOneWay(area, QPolygonF{a + side, b + side, b - side, a - side});
        }
        for (qsizetype i = 0; i < n; ++i) {
            const QPointF p = line[i];
            // Where a line runs on almost straight (the turning arrow's arc),
            // its bands already meet: the disc would add nothing to see.
            if (closed || (i > 0 && i + 1 < n)) {
                const QPointF in = p - line[(i + n - 1) % n];
                const QPointF out = line[(i + 1) % n] - p;
                const double dot = QPointF::dotProduct(in, out);
                if (dot > 0 && dot * dot > 0.95 * QPointF::dotProduct(in, in) * QPointF::dotProduct(out, out))
                    continue;
            }
            QPolygonF disc;
            for (int k = 0; k < 16; ++k) {
                const double c = k < 4 ? kC[k] : k < 8 ? -kC[8 - k] : k < 12 ? -kC[k - 8] : kC[16 - k];
                const double sn = k < 4 ? kC[4 - k] : k < 8 ? kC[k - 4] : k < 12 ? -kC[12 - k] : -kC[k - 12];
                disc << p + QPointF(c * h, sn * h);
            }
            addTurningOneWay(area, disc);
        }
    }
    return area;
}

class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(int index) : m_index(index) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        for (const Stroke &s : picture(m_index)) {
            if (s.fill != kNone)
                painter->fillPath(fillOf(s), QColor::fromRgb(QRgb(s.fill)));
            if (s.width > 0)
                painter->fillPath(penArea(linesOf(s), s.width), QColor::fromRgb(s.colour));
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pm(size);
        pm.fill(Qt::transparent);
        {
            QPainter p(&pm);
            paint(&p, QRect(QPoint(0, 0), size), QIcon::Normal, state);
        }
        // A disabled button greys its picture the way the style greys any other.
        if (mode == QIcon::Disabled) {
            QStyleOption option;
            option.palette = QApplication::palette();
            return QApplication::style()->generatedIconPixmap(QIcon::Disabled, pm, &option);
        }
        return pm;
    }

    QIconEngine *clone() const override { return new PictureEngine(m_index); }
    QString key() const override { return QStringLiteral("quilmar-toolbar"); }

private:
    int m_index;
};

} // namespace

QIcon toolbarIcon(int index)
{
    if (picture(index).empty())
        return {};
    return QIcon(new PictureEngine(index));
}

} // namespace quilmar
