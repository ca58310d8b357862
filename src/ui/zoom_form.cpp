#include "zoom_form.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

#include "map_canvas.h"
#include "vb_math.h"
#include "walk.h"
#include "zoom_fit.h"

namespace quilmar {

namespace {

constexpr int kTwips = MapCanvas::kTwipsPerPixel;

// Connects a scroll bar's classic pair of events: Scroll while the thumb is
// dragged, Change when a scroll ends (a click, a key, the thumb released).
void onScroll(QScrollBar *bar, std::function<void(int, bool)> handler)
{
    QObject::connect(bar, &QScrollBar::valueChanged, bar,
                     [bar, handler](int v) { handler(v, !bar->isSliderDown()); });
    QObject::connect(bar, &QScrollBar::sliderReleased, bar, [bar, handler] { handler(bar->value(), true); });
}

} // namespace

ZoomForm::ZoomForm(Engine &engine, Dialogs &dialogs, QWidget *parent, float screenHeightTwips)
    : QWidget(parent, Qt::Window), m_engine(engine), m_dialogs(dialogs)
{
    setObjectName("Zoomform");
    setWindowTitle("Magnify");

    // Form_Load: as high as the screen less 720 twips, square, centred across, 240 from the top.
    const QScreen *screen = parent ? parent->screen() : QGuiApplication::primaryScreen();
    const QRect s = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
    if (screenHeightTwips <= 0.0f)
        screenHeightTwips = float(s.height() * kTwips);
    const int side = std::max(200, int(screenHeightTwips) / kTwips - 720 / kTwips);
    resize(side, side);
    move(s.left() + (s.width() - side) / 2, s.top() + 240 / kTwips);

    auto *menu = new QMenuBar(this);
    QAction *redraw = menu->addAction("&Redraw");
    redraw->setObjectName("mnuRedraw");
    connect(redraw, &QAction::triggered, this, &ZoomForm::mnuRedraw_Click);
    m_top = new QWidget(this);
    auto *top = new QHBoxLayout(m_top);
    top->setContentsMargins(4, 2, 4, 2);
    top->setMenuBar(menu);
    auto *button = new QPushButton("Redraw", m_top);
    button->setObjectName("Redraw");
    button->setToolTip("Redraw the map at a magnification");
    connect(button, &QPushButton::clicked, this, &ZoomForm::Redraw_Click);
    top->addWidget(button);
    top->addStretch(1);

    m_view = new QWidget(this); // clips the picture
    m_minmap = new MapCanvas(m_view);
    m_minmap->setObjectName("minmap");
    const ZoomPicture picture = zoomPicture(screenHeightTwips);
    m_side = picture.side;
    m_minmap->setFixedSize(int(m_side) / kTwips, int(m_side) / kTwips);
    m_minmap->move(0, 0);

    m_hscroll = new QScrollBar(Qt::Horizontal, this);
    m_hscroll->setObjectName("HScroll1");
    m_vscroll = new QScrollBar(Qt::Vertical, this);
    m_vscroll->setObjectName("VScroll1");
    for (QScrollBar *bar : {m_hscroll, m_vscroll}) {
        bar->setRange(0, picture.scrollMax);
        bar->setSingleStep(picture.smallChange);
    }
    // The window stays after the fault; its bars keep the largest maximum they can hold.
    if (picture.overflow)
        m_dialogs.exclaim(VbError::overflow().description());
    onScroll(m_hscroll, [this](int v, bool ended) { HScroll1_Change(v, ended); });
    onScroll(m_vscroll, [this](int v, bool ended) { VScroll1_Change(v, ended); });
}

QPoint ZoomForm::pictureOffset() const
{
    return {m_minmap->x() * kTwips, m_minmap->y() * kTwips};
}

void ZoomForm::HScroll1_Change(int value, bool ended)
{
    m_minmap->move(zoomPictureOffset(value, ended) / kTwips, m_minmap->y());
}

void ZoomForm::VScroll1_Change(int value, bool ended)
{
    m_minmap->move(m_minmap->x(), zoomPictureOffset(value, ended) / kTwips);
}

void ZoomForm::resizeEvent(QResizeEvent *)
{
    // Form_Resize: the bars along the right and bottom edges, the picture's view the rest.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int topHeight = m_top->sizeHint().height();
    m_top->setGeometry(0, 0, width(), topHeight);
    m_vscroll->setGeometry(width() - bar, topHeight, bar, height() - topHeight - bar);
    m_hscroll->setGeometry(0, height() - bar, width() - bar, bar);
    m_view->setGeometry(0, topHeight, width() - bar, height() - topHeight - bar);
}

bool ZoomForm::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return QWidget::event(event);
}

void ZoomForm::Form_Activate()
{
    drawAt(0.95);
}

void ZoomForm::Redraw_Click()
{
    const auto answer = m_dialogs.inputBox(kButtonPrompt, Prompter::kTitle);
    drawAt(redrawButtonMagnification(answer.value_or("")));
}

void ZoomForm::mnuRedraw_Click()
{
    const auto answer = m_dialogs.inputBox(kMenuPrompt, Prompter::kTitle);
    drawAt(redrawMenuMagnification(answer.value_or("")));
}

void ZoomForm::drawAt(double m)
{
    auto show = [this](const std::string &text) { m_dialogs.exclaim(text); };
    m_figure.clear();
    // The courses as the main window last computed them: the zoom converts
    // nothing, so an edit not yet drawn there is not drawn here either. The
    // points and the scale factor it computes are the shared ones.
    const LegTable &legs = m_engine.legs();
    TraverseState state = m_engine.state();
    struct KeepShared {
        ZoomForm &zoom;
        TraverseState &state;
        ~KeepShared() { zoom.m_engine.keepZoomDraw(state, zoom.m_scaleFactor); }
    } keep{*this, state};
    try {
        state.origin = {};
        const ZoomFit fit = zoomFit(legs, m_side, m_side, state);
        if (fit.failed) {
            show("Error in rescaling");
            return;
        }
        m_scaleFactor = magnifiedScaleFactor(fit, m);
        state.canvas = {};
        state.pen = {};
        state.closingFlag = false;
        state.closingStart = {};
        state.areaMode = false;
        state.perimeterMode = false;
        WalkOptions options;
        options.scaleFactor = m_scaleFactor;
        const WalkStop stop = walkCourses(legs, options, state, m_figure);
        if (stop != WalkStop::None)
            show(walkStopMessage(stop));
        m_minmap->show(&m_figure, fit.scaleLeft, fit.scaleTop);
    } catch (const VbError &) {
        show("Error in drawing map (drawmap)");
        m_minmap->show(&m_figure, 0, 0);
    }
}

} // namespace quilmar
