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
