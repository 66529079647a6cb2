#pragma once

#include "App/Application/NagScreen/BaseDimmer.h"

namespace Ostrel::App::NagScreen {

/// A translucent colour over the window: "color" (any stylesheet colour), by default #7f000000.
class OSTREL_APP_EXPORT ColorDimmer : public BaseDimmer
{
    Q_OBJECT
public:
    explicit ColorDimmer(QWidget* parent = nullptr, QWidget* target = nullptr, Qt::WindowFlags flags = {});
    ~ColorDimmer() override;

    void SetParameters(const QMap<QString, QString>& parameters) override;
};

} // namespace Ostrel::App::NagScreen
