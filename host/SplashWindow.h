#pragma once

#include <QWidget>

/// The splash's window: it paints its gradient and texts itself, so that no picture of it is
/// kept beside the window's own buffer for the few moments it is up.
class SplashWindow : public QWidget
{
public:
    explicit SplashWindow(const QString& title);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
};
