#pragma once
// The map canvas `minmap`: a light grey picture box that paints the figure of
// the engine's last computation at the scale origin that computation chose.
// It never computes on paint; a new size takes effect at the next computation.

#include <QWidget>

#include "figure.h"

namespace quilmar {

class MapCanvas : public QWidget {
    Q_OBJECT
public:
    /// Twips per logical pixel: the fit is computed on a 96-dpi grid of 15 twips.
    static constexpr int kTwipsPerPixel = 15;

    explicit MapCanvas(QWidget *parent = nullptr);

    /// Shows @p figure with the drawing point (@p scaleLeft, @p scaleTop) at the
    /// top-left corner. The figure must outlive the canvas or the next call.
    void show(const Figure *figure, float scaleLeft, float scaleTop);
    /// Clears the canvas to its background until the next show().
    void clear();
    bool isBlank() const { return m_figure == nullptr; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Figure *m_figure = nullptr;
    float m_left = 0.0f;
    float m_top = 0.0f;
};

} // namespace quilmar
