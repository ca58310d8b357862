#include "window_style.h"

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

private:
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
