#include "App/Application/NagScreen/ShadowDimmer.h"

#include <QGraphicsBlurEffect>
#include <QPainter>
#include <QPixmap>

namespace Ostrel::App::NagScreen {

namespace {
QColor defaultColor()
{
    return QColor(QStringLiteral("#ff000000"));
}
} // namespace

ShadowDimmer::ShadowDimmer(QWidget* parent, QWidget* target, Qt::WindowFlags flags)
    : BaseDimmer(parent, target, flags), m_blur(new QGraphicsBlurEffect(this)), m_color(defaultColor())
{
    m_blur->setBlurRadius(250.0);
    setGraphicsEffect(m_blur);
}

ShadowDimmer::~ShadowDimmer() = default;

void ShadowDimmer::SetParameters(const QMap<QString, QString>& parameters)
{
    bool valid = false;
    const auto padding = parameters.constFind(QStringLiteral("shadowPadding"));
    if (padding != parameters.constEnd()) {
        const int value = padding.value().toInt(&valid);
        m_shadowPadding = valid ? value : 30;
    }
    const auto blur = parameters.constFind(QStringLiteral("blurRadius"));
    if (blur != parameters.constEnd()) {
        const int value = blur.value().toInt(&valid);
        if (valid)
            m_blur->setBlurRadius(value);
    }
    const auto original = parameters.constFind(QStringLiteral("originalColor"));
    if (original != parameters.constEnd())
        m_originalColor = original.value() == QLatin1String("true");
    const auto color = parameters.constFind(QStringLiteral("color"));
    if (color != parameters.constEnd()) {
        m_color = QColor(color.value());
        if (!m_color.isValid())
            m_color = defaultColor();
    }
}

int ShadowDimmer::ShadowPadding() const
{
    return m_shadowPadding;
}

qreal ShadowDimmer::BlurRadius() const
{
    return m_blur->blurRadius();
}

bool ShadowDimmer::OriginalColor() const
{
    return m_originalColor;
}

QColor ShadowDimmer::Color() const
{
    return m_color;
}

void ShadowDimmer::paintEvent(QPaintEvent*)
{
    QWidget* target = Target();
    if (!target)
        return;
    const QSize size = target->size();
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    target->render(&pixmap, QPoint(0, 0), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    pixmap = pixmap.scaled(size.width() + 2 * m_shadowPadding, size.height() + 2 * m_shadowPadding,
                           Qt::IgnoreAspectRatio, Qt::FastTransformation);
    const QPoint position =
        mapFromGlobal(target->mapToGlobal(QPoint(0, 0))) - QPoint(m_shadowPadding, m_shadowPadding);
    if (!m_originalColor) {
        QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        const QRgb silhouette = m_color.rgba();
        for (int y = 0; y < image.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(line[x]) > 0)
                    line[x] = silhouette;
            }
        }
        pixmap = QPixmap::fromImage(image);
    }
    QPainter painter(this);
    painter.drawPixmap(position, pixmap);
}

} // namespace Ostrel::App::NagScreen
