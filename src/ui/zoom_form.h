#pragma once
// The zoom window `Zoomform`: the map on a square picture twice the screen's
// height, moved with two scroll bars, redrawn at a magnification the user
// enters. Modeless: the main window stays usable beside it. It draws the
// course table through its own fit (zoomFit) and the one walk, so it never
// changes what the main window shows.
//
// Sizes follow the classic twips (15 a pixel on a 96-dpi screen).

#include <QWidget>

#include "dialogs.h"
#include "engine.h"
#include "figure.h"

class QScrollBar;
class QPushButton;

namespace quilmar {

class MapCanvas;

class ZoomForm : public QWidget {
    Q_OBJECT
public:
    static constexpr const char *kButtonPrompt =
        "Please enter the magnification rate.\r\n6 = normal.  If map is not correctly displayed, use a smaller "
        "number, for example 5.  Use the scroll bars to locate the map.";
    static constexpr const char *kMenuPrompt =
        "Please enter magnification rate.  1 = normal.  If map is not correctly displayed, use a smaller number, "
        "for example 0.6.";

    /// @param screenHeightTwips  the screen the picture is sized for (0: the window's screen)
    ZoomForm(Engine &engine, Dialogs &dialogs, QWidget *parent = nullptr, float screenHeightTwips = 0.0f);

    /// Draws at the default magnification (each activation does).
    void Form_Activate();
    /// The redraw button: magnification = the answer / 6.3.
    void Redraw_Click();
    /// The Redraw menu: magnification = the answer.
    void mnuRedraw_Click();
    /// Draws at magnification @p m of the fit (0.95 of the picture).
    void drawAt(double m);

    MapCanvas *picture() const { return m_minmap; }
    QScrollBar *hScroll() const { return m_hscroll; }
    QScrollBar *vScroll() const { return m_vscroll; }
    float pictureSide() const { return m_side; }
    /// The scale factor of the last drawing (twips per ground unit).
    float scaleFactor() const { return m_scaleFactor; }
    /// The picture's top-left corner in twips (negative: scrolled).
    QPoint pictureOffset() const;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void HScroll1_Change(int value, bool ended);
    void VScroll1_Change(int value, bool ended);

    Engine &m_engine;
    Dialogs &m_dialogs;
    QWidget *m_view = nullptr;
    MapCanvas *m_minmap = nullptr;
    QScrollBar *m_hscroll = nullptr;
    QScrollBar *m_vscroll = nullptr;
    QWidget *m_top = nullptr;
    Figure m_figure;
    float m_side = 0.0f;
    float m_scaleFactor = 0.0f;
};

} // namespace quilmar
