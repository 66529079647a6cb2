#pragma once

#include "App/Application/NagScreen/BaseDimmer.h"

#include <QColor>

class QGraphicsBlurEffect;

namespace Ostrel::App::NagScreen {

/// A blurred silhouette of the nag's own window, drawn behind it. Parameters: "shadowPadding"
/// (pixels around the nag, 30), "blurRadius", "originalColor" ("true": keep the nag's colours),
/// "color" (the silhouette's colour, #ff000000).
class OSTREL_APP_EXPORT ShadowDimmer : public BaseDimmer
{
    Q_OBJECT
public:
    explicit ShadowDimmer(QWidget* parent = nullptr, QWidget* target = nullptr, Qt::WindowFlags flags = {});
    ~ShadowDimmer() override;

    void SetParameters(const QMap<QString, QString>& parameters) override;

    int ShadowPadding() const;
    qreal BlurRadius() const;
    bool OriginalColor() const;
    QColor Color() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QGraphicsBlurEffect* m_blur;
    int m_shadowPadding = 30;
    bool m_originalColor = false;
    QColor m_color;
};

} // namespace Ostrel::App::NagScreen
