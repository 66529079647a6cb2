#pragma once

#include "App/Application/NagScreen/BaseDimmer.h"

class QLabel;
class QMovie;

namespace Ostrel::App::NagScreen {

/// An animation over the window: "fileName" (relative to the nag's folder) and "loopCount" (a
/// number of passes, or "infinity"; anything else plays once).
class OSTREL_APP_EXPORT GifDimmer : public BaseDimmer
{
    Q_OBJECT
public:
    explicit GifDimmer(QWidget* parent = nullptr, QWidget* target = nullptr, Qt::WindowFlags flags = {});
    ~GifDimmer() override;

    void SetParameters(const QMap<QString, QString>& parameters) override;
    std::vector<QString> FilePathParameters() const override;

    QMovie* Movie() const;
    int LoopCount() const;
    bool IsInfinite() const;
    int LoopsDone() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void onFrame(int frame);

    QMovie* m_movie;
    bool m_infinite = false;
    int m_loopCount = 1;
    int m_loopsDone = 0;
};

} // namespace Ostrel::App::NagScreen
