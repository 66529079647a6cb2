#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QMap>
#include <QString>
#include <QWidget>

#include <vector>

namespace Ostrel::App::NagScreen {

/// A widget laid over the window behind a nag. Made once, reused for every nag: parameters that
/// one nag set stay until another nag sets them.
class OSTREL_APP_EXPORT BaseDimmer : public QWidget
{
    Q_OBJECT
public:
    BaseDimmer(QWidget* parent, QWidget* target, Qt::WindowFlags flags = {});
    ~BaseDimmer() override;

    virtual void SetParameters(const QMap<QString, QString>& parameters) = 0;
    /// Names of the parameters whose values are file paths.
    virtual std::vector<QString> FilePathParameters() const;

    /// Covers `parent` (taking its size now, not following it later) for the nag's window `target`.
    void Attach(QWidget* parent, QWidget* target);
    QWidget* Target() const;

private:
    QWidget* m_target;
};

} // namespace Ostrel::App::NagScreen
