#include "toolbar_icons.h"

#include <initializer_list>
#include <vector>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>

namespace quilmar {

namespace {

// One stroke of a picture, in the units of a 24 x 24 square.
struct Stroke {
    enum Kind { Open, Closed, Segments, Box, RoundBox, Dot, Arc } kind;
    unsigned colour;              ///< pen colour, 0xRRGGBB
    float width;                  ///< pen width; 0 for none
    long fill;                    ///< fill colour, 0xRRGGBB, or -1 for none
    std::vector<float> v;         ///< points x,y...; Box x,y,w,h; Dot cx,cy,r; Arc cx,cy,r,start°,sweep°
    bool dashed = false;
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
         // a turning arrow: most of a circle about the parcel, clockwise from the right
         {Stroke::Arc, 0x2e7d32, 2.0f, kNone, {12.005f, 11.686f, 8.5f, -2.1f, -308.2f}},
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
         {Stroke::Segments, 0xc62828, 1.2f, kNone, {9.8f, 19.7f, 13.2f, 19.3f}, true}},
        {{Stroke::Open, 0x444444, 2.0f, kNone, {6, 6, 11, 12, 6, 18}},
         {Stroke::Open, 0x444444, 2.0f, kNone, {13, 6, 18, 12, 13, 18}}},
        {{Stroke::Open, 0x444444, 2.0f, kNone, {6, 6, 12, 11, 18, 6}},
         {Stroke::Open, 0x444444, 2.0f, kNone, {6, 13, 12, 18, 18, 13}}},
    };
    static const std::vector<Stroke> none;
    return index >= 0 && index < 9 ? pictures[index] : none;
}

QPainterPath pathOf(const Stroke &s)
{
    const std::vector<float> &v = s.v;
    QPainterPath path;
    switch (s.kind) {
    case Stroke::Open:
    case Stroke::Closed:
        path.moveTo(v[0], v[1]);
        for (size_t i = 2; i + 1 < v.size(); i += 2)
            path.lineTo(v[i], v[i + 1]);
        if (s.kind == Stroke::Closed)
            path.closeSubpath();
        break;
    case Stroke::Segments:
        for (size_t i = 0; i + 3 < v.size(); i += 4) {
            path.moveTo(v[i], v[i + 1]);
            path.lineTo(v[i + 2], v[i + 3]);
        }
        break;
    case Stroke::Box: path.addRect(v[0], v[1], v[2], v[3]); break;
    case Stroke::RoundBox: path.addRoundedRect(v[0], v[1], v[2], v[3], 1.5, 1.5); break;
    case Stroke::Dot: path.addEllipse(QPointF(v[0], v[1]), v[2], v[2]); break;
    case Stroke::Arc: {
        const QRectF box(v[0] - v[2], v[1] - v[2], 2 * v[2], 2 * v[2]);
        path.arcMoveTo(box, v[3]);
        path.arcTo(box, v[3], v[4]);
        break;
    }
    }
    return path;
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
            const QPainterPath path = pathOf(s);
            if (s.fill != kNone)
                painter->fillPath(path, QColor::fromRgb(QRgb(s.fill)));
            if (s.width > 0) {
                QPen pen(QColor::fromRgb(s.colour), s.width, s.dashed ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap,
                         Qt::RoundJoin);
                if (s.dashed)
                    pen.setDashPattern({1.0, 1.0});
                painter->strokePath(path, pen);
            }
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
