#include "window_style.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "toolbar_icons.h"

namespace quilmar {

namespace {

class WindowStyle : public QProxyStyle {
public:
    explicit WindowStyle(QStyle *base) : QProxyStyle(base) {}

    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override
    {
        if (which == SP_ToolBarHorizontalExtensionButton)
            return toolbarIcon(kMoreRightPicture);
        if (which == SP_ToolBarVerticalExtensionButton)
            return toolbarIcon(kMoreDownPicture);
        return QProxyStyle::standardIcon(which, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameLineEdit) {
            drawFieldFrame(option, painter);
            return;
        }
        if (element != PE_FrameGroupBox) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        // A line a shade darker than the window with a light line inside it,
        // as the platform's frame looks, in filled rectangles: the cheapest
        // thing a painter draws.
        const QColor window = option->palette.window().color();
        outline(painter, option->rect, window.darker(140));
        outline(painter, option->rect.adjusted(1, 1, -1, -1), window.lighter(108));
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element != CE_ToolBar) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        // A band a shade lighter than the window with a line under it, which
        // sets the buttons apart from the grid as the platform's bar does.
        const QRect r = option->rect;
        const QColor window = option->palette.window().color();
        painter->fillRect(r, window.lighter(103));
        painter->fillRect(r.left(), r.bottom() - 1, r.width(), 1, window.darker(130));
        painter->fillRect(r.left(), r.bottom(), r.width(), 1, window.lighter(103));
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control != CC_ScrollBar || !bar) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            return;
        }
        drawScrollBar(bar, painter, widget);
    }

private:
    // A scroll bar in flat filled rectangles, laid out where the platform's
    // style puts its parts (so clicks land as they always did): a grey
    // trough, two arrow buttons and a light slider with a darker edge. The
    // platform's own bar paints its trough and slider with gradients, which
    // cost the window's first paint more than all hundred text fields.
    void drawScrollBar(const QStyleOptionSlider *bar, QPainter *painter, const QWidget *widget) const
    {
        const QColor window = bar->palette.window().color();
        const QColor edge = window.darker(140);
        const bool horizontal = bar->orientation == Qt::Horizontal;
        const QRect groove = subControlRect(CC_ScrollBar, bar, SC_ScrollBarGroove, widget);
        painter->fillRect(bar->rect, window.lighter(104));
        painter->fillRect(groove, window.darker(104));
        if (horizontal)
            painter->fillRect(groove.left(), groove.top(), groove.width(), 1, window.darker(115));
        else
            painter->fillRect(groove.left(), groove.top(), 1, groove.height(), window.darker(115));

        const auto pressed = [bar](SubControl part) {
            return (bar->activeSubControls & part) && (bar->state & State_Sunken);
        };
        const bool enabled = bar->state & State_Enabled;
        const QColor arrow = enabled ? window.darker(230)
                                     : bar->palette.color(QPalette::Disabled, QPalette::WindowText);
        for (const SubControl part : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
            const QRect r = subControlRect(CC_ScrollBar, bar, part, widget);
            if (pressed(part))
                painter->fillRect(r, window.darker(115));
            drawArrow(painter, r, horizontal, part == SC_ScrollBarAddLine, arrow);
        }

        const QRect slider = subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget);
        if (!enabled || slider.isEmpty())
            return;
        QColor face = window.lighter(108);
        if (pressed(SC_ScrollBarSlider))
            face = window.darker(110);
        else if ((bar->state & State_MouseOver) && (bar->activeSubControls & SC_ScrollBarSlider))
            face = window.lighter(103);
        painter->fillRect(slider, face);
        outline(painter, slider, edge);
    }

    // A small solid triangle centred in @p r, pointing down or right when
    // @p forward (up or left otherwise), in one-pixel rows.
    static void drawArrow(QPainter *painter, const QRect &r, bool horizontal, bool forward, const QColor &colour)
    {
        const int size = std::max(2, std::min(r.width(), r.height()) / 4);
        const QPoint c = r.center();
        // Row i, counted from the point of the triangle, is 2i + 1 pixels long.
        for (int i = 0; i < size; ++i) {
            const int along = forward ? size / 2 - i : i - size / 2;
            if (horizontal)
                painter->fillRect(c.x() + along, c.y() - i, 1, 2 * i + 1, colour);
            else
                painter->fillRect(c.x() - i, c.y() + along, 2 * i + 1, 1, colour);
        }
    }

    // A text field's frame: a square line a shade darker than the window (the
    // selection colour while the field has the focus) and a faint shadow under
    // its top edge, in filled rectangles: the window shows a hundred of these
    // at once, and square corners line up into a grid.
    static void drawFieldFrame(const QStyleOption *option, QPainter *painter)
    {
        const QRect r = option->rect;
        const QColor highlight = option->palette.highlight().color().darker(125);
        if (option->state & State_HasFocus) {
            outline(painter, r, highlight);
            QColor soft = highlight;
            soft.setAlpha(60);
            outline(painter, r.adjusted(1, 1, -1, -1), soft);
        } else {
            outline(painter, r, option->palette.window().color().darker(140));
            painter->fillRect(r.left() + 1, r.top() + 1, r.width() - 2, 1, QColor(0, 0, 0, 18));
        }
    }

    // A one-pixel line just inside @p r.
    static void outline(QPainter *painter, const QRect &r, const QColor &colour)
    {
        painter->fillRect(r.left(), r.top(), r.width(), 1, colour);
        painter->fillRect(r.left(), r.bottom(), r.width(), 1, colour);
        painter->fillRect(r.left(), r.top() + 1, 1, r.height() - 2, colour);
        painter->fillRect(r.right(), r.top() + 1, 1, r.height() - 2, colour);
    }
};

} // namespace

void useWindowStyle()
{
    if (dynamic_cast<WindowStyle *>(QApplication::style()))
        return;
    // A new instance of the style in use, since the application owns and
    // deletes the one it has when it takes ours.
    QStyle *base = QStyleFactory::create(QApplication::style()->name());
    QApplication::setStyle(new WindowStyle(base));
}

} // namespace quilmar
