#pragma once

#include "platform/DrawSurface.h"

#include <QPixmap>
#include <QWidget>

/// Shows what is drawn on a surface: black on white paper, a twip being a fifteenth of a pixel. The painted
/// drawing is kept at the resolution of the screen, so that an expose costs one blit.
class SurfaceView : public QWidget
{
    Q_OBJECT

public:
    /// How the paper lies in the widget: from its top left corner at natural size, or as a whole, scaled.
    enum class Fit { NaturalSize, WholePaper };

    explicit SurfaceView(QWidget* parent = nullptr);

    /// Shows `surface`, which must outlive the view.
    void setSurface(const DrawSurface& surface, Fit fit);
    /// Shows `text` while nothing is drawn.
    void setPlaceholder(const QString& text);
    /// Shows what is drawn on the surface now.
    void refresh();

    /// Size of the surface's paper in pixels at natural size, at least one pixel.
    static QSize paperPixels(const DrawSurface& surface);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Where the paper lies in the widget, in pixels.
    QRectF paperRectangle() const;

private:
    /// Colour around the paper.
    QColor surroundings() const;
    bool isTooLargeToKeep() const;
    void paintPaper(QPainter& painter) const;
    QPixmap paintedView() const;

    const DrawSurface* m_surface = nullptr;
    Fit m_fit = Fit::NaturalSize;
    QString m_placeholder;
    /// The painted view; null where it must be painted anew.
    QPixmap m_view;
};
