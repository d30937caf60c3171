#include "platform/forms/ThemeIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace {

QColor inkOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::HighlightedText);
    }
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::ButtonText);
}

/// Draws an icon whose file leaves its colour open.
class ThemeIconEngine : public QIconEngine
{
public:
    explicit ThemeIconEngine(QByteArray svg) : m_svg(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QSvgRenderer(QByteArray(m_svg).replace("currentColor", inkOf(mode).name().toLatin1()))
            .render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new ThemeIconEngine(m_svg); } // the icon owns it

private:
    QByteArray m_svg;
};

} // namespace

QIcon themeIcon(const QString& name)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new ThemeIconEngine(file.readAll())); // the icon owns it
}
