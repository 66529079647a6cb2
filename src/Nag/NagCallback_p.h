#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace Ostrel::App::NagScreen {

class QmlContent;

/// The bridge a QML nag sees as its context property "callback". Every call goes back to the
/// content, which knows the strategies in force at that moment.
class NagCallback : public QObject
{
    Q_OBJECT
public:
    explicit NagCallback(QmlContent& content);

    Q_INVOKABLE void Accept();
    Q_INVOKABLE void Accept(const QVariantMap& params);
    Q_INVOKABLE void Reject();
    Q_INVOKABLE void Reject(const QVariantMap& params);
    Q_INVOKABLE void BuyNow();
    Q_INVOKABLE void OpenLiveChat();
    Q_INVOKABLE void RequestUrl(const QString& url);
    Q_INVOKABLE void RequestUrl(const QString& url, const QVariantMap& params);
    Q_INVOKABLE void RequestUrlKey(const QString& key, const QVariantMap& params);
    Q_INVOKABLE void ButtonClicked(const QString& buttonId, const QVariant& value);
    Q_INVOKABLE void CustomAction(const QString& action, const QVariant& value);
    Q_INVOKABLE void DontShow();
    Q_INVOKABLE void ScreenShown(const QVariantMap& params);
    Q_INVOKABLE QString GetLocale() const;
    Q_INVOKABLE QString GetOrganizationPresentableName() const;
    Q_INVOKABLE QString GetProductNameWithOrganization() const;

private:
    QmlContent& m_content;
};

} // namespace Ostrel::App::NagScreen
