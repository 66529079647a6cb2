#pragma once

#include "Nag/AbstractContent.h"
#include "Nag/ostrel_nagquick_export.h"

class QQuickItem;
class QQuickWidget;

namespace Ostrel::App::NagScreen {

class NagCallback;

/// What a local and a web QML nag have in common: a QQuickWidget with the bridge "callback", the
/// nag's self-description read from its root item, its size, its picture and its fingerprint.
///
/// Properties read from the nag's root item (all optional): "nag_id", "nag_name", "nag_type",
/// "nag_locale" (makes HasLocale true), "dimming_name", "dimming_parameters" (a JS object of
/// strings), "hash_name", "hash_size" (a size), "nag_hash" (the declared fingerprint).
class OSTREL_NAGQUICK_EXPORT QmlContent : public AbstractContent
{
    Q_OBJECT
public:
    QmlContent(const NagContext& context, ContentEnvironment environment, QObject* parent = nullptr);
    ~QmlContent() override;

    QString Id() const override;
    QString Name() const override;
    QString DimmingName() const override;
    const QMap<QString, QString>& DimmingParameters() const override;
    QString Locale() const override;
    bool HasLocale() const override;
    QString DeclaredHash() const override;
    QString ComputedHash() const override;
    QString HashName() const override;
    QSize HashSize() const override;
    QPixmap Picture() const override;

    /// Id and name the nag map knows the nag by, used when the nag doesn't name itself.
    void SetFallbackIdentity(const QString& id, const QString& name);

protected:
    QQuickWidget* view() const;
    /// Lets the nag read the folder of its main.qml when the product chose a local one; any other
    /// address (a web nag, a resource) leaves it no folder on disk.
    void allowOwnFolder(const QUrl& mainQml);
    /// The item that is the nag: the root of a local nag, the loaded item of a web one.
    virtual QQuickItem* nagItem() const;
    /// Starts showing the nag's root item: reads its description, follows its size, becomes Ready.
    void adoptNagItem();
    /// The load failed: logs `why` and becomes Failed (ending the nag if it is on screen).
    void fail(const std::string& why);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class NagCallback;
    QVariant nagProperty(const char* name) const;
    void followSize();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
