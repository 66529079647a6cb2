#pragma once

#include "Nag/QmlContent.h"

namespace Ostrel::App::NagScreen {

/// A QML nag shipped with the product (resources) or lying in a local folder.
class OSTREL_NAGQUICK_EXPORT QuickContent : public QmlContent
{
    Q_OBJECT
public:
    /// `mainQml` is the nag's main.qml: a "qrc:" or "file:" URL.
    QuickContent(const NagContext& context, const QUrl& mainQml, ContentEnvironment environment,
                 QObject* parent = nullptr);
    ~QuickContent() override;

    QUrl SourceUrl() const override;
    QUrl LocalUrl() const override;
    QString Type() const override;
    void Load() override;
    /// Loads the main.qml at `path` instead: a file path, or a resource path starting with ":/".
    void LoadFromPath(const QString& path) override;

private:
    void load(const QUrl& url);
    void onStatus();

    QUrl m_source;
};

} // namespace Ostrel::App::NagScreen
