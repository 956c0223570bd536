#include "ui/Icons.h"

#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QResource>
#include <QSvgRenderer>

namespace icons {
namespace {

constexpr qreal secondaryOpacity = 0.6;

QByteArray sourceOf(const QString &name)
{
    return QResource(QStringLiteral(":/images/%1.svg").arg(name)).uncompressedData();
}

/// The sources are drawn in exactly two colours, which stand for the text and the accent colour of the palette.
QByteArray recoloured(QByteArray source, const QColor &text, const QColor &accent)
{
    return source.replace("#000000", text.name().toLatin1()).replace("#808080", accent.name().toLatin1());
}

class PaletteIconEngine : public QIconEngine
{
public:
    PaletteIconEngine(QString name, Tone tone)
        : m_name(std::move(name))
        , m_tone(tone)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, rendered(rect.size() * ratio, ratio, mode));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override { return rendered(size, 1, mode); }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal) override
    {
        return rendered(size, 1, mode);
    }

    [[nodiscard]] QIconEngine *clone() const override { return new PaletteIconEngine(*this); }

private:
    [[nodiscard]] QPixmap rendered(const QSize &size, qreal ratio, QIcon::Mode mode) const
    {
        const QPalette palette = QApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor text = palette.color(group, QPalette::WindowText);
        const QColor accent = mode == QIcon::Disabled ? text : palette.color(QPalette::Highlight);
        const QString key = QStringLiteral("tessaro-%1-%2-%3x%4@%5-%6-%7")
                                .arg(m_name, text.name(), QString::number(size.width()), QString::number(size.height()),
                                     QString::number(ratio), accent.name(), QString::number(static_cast<int>(m_tone)));
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QSvgRenderer renderer(recoloured(sourceOf(m_name), text, m_tone == Tone::Secondary ? text : accent));
        QPainter painter(&pixmap);
        painter.setOpacity(m_tone == Tone::Secondary ? secondaryOpacity : 1);
        renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
        painter.end();
        pixmap.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QString m_name;
    Tone m_tone;
};

} // namespace

QIcon named(const char *name, Tone tone)
{
    static QHash<QString, QIcon> made;
    const QString text = QString::fromLatin1(name);
    QIcon &icon = made[text + (tone == Tone::Secondary ? u'~' : u' ')];
    if (icon.isNull()) {
        icon = QIcon(new PaletteIconEngine(text, tone));
        icon.setIsMask(true); // may be drawn in any colour
    }
    return icon;
}

QIcon application()
{
    QSvgRenderer renderer(sourceOf(QStringLiteral("tessaro")));
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter, QRectF(0, 0, side, side));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace icons
