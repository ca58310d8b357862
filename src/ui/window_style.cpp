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
        // A rounded line a shade darker than the window, with a light line
        // inside it, as the platform's frame looks.
        const QColor window = option->palette.window().color();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(window.lighter(108));
        painter->drawRoundedRect(box.adjusted(1, 1, -1, -1), 2, 2);
        painter->setPen(window.darker(140));
        painter->drawRoundedRect(box, 2.5, 2.5);
        painter->restore();
    }

private:
    // A text field's frame: a square line a shade darker than the window (the
    // selection colour while the field has the focus) and a faint shadow under
    // its top edge. Drawn without antialiasing: the window shows a hundred of
    // these at once, and square corners line up into a grid.
    static void drawFieldFrame(const QStyleOption *option, QPainter *painter)
    {
        const QRect r = option->rect.adjusted(0, 0, -1, -1);
        const bool focus = option->state & State_HasFocus;
        const QColor highlight = option->palette.highlight().color().darker(125);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(focus ? highlight : option->palette.window().color().darker(140));
        painter->drawRect(r);
        if (focus) {
            QColor soft = highlight;
            soft.setAlpha(60);
            painter->setPen(soft);
            painter->drawRect(r.adjusted(1, 1, -1, -1));
        } else {
            painter->setPen(QColor(0, 0, 0, 18));
            painter->drawLine(r.left() + 1, r.top() + 1, r.right() - 1, r.top() + 1);
        }
        painter->restore();
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
