#include "App/Application/NagScreen/ColorDimmer.h"

namespace Ostrel::App::NagScreen {

namespace {
QString styleFor(const QString& color)
{
    return QStringLiteral("background-color: %1;").arg(color);
}
} // namespace

ColorDimmer::ColorDimmer(QWidget* parent, QWidget* target, Qt::WindowFlags flags)
    : BaseDimmer(parent, target, flags)
{
    setStyleSheet(styleFor(QStringLiteral("#7f000000")));
}

ColorDimmer::~ColorDimmer() = default;

void ColorDimmer::SetParameters(const QMap<QString, QString>& parameters)
{
    // Not validated: a wrong colour is the stylesheet's to reject.
    const QString color = parameters.value(QStringLiteral("color"));
    if (!color.isEmpty())
        setStyleSheet(styleFor(color));
}

} // namespace Ostrel::App::NagScreen
