#pragma once

#include <QMap>
#include <QString>
#include <QUrl>
#include <QVariant>

namespace Ostrel::App::NagScreen {

class AbstractContent;

/// What a nag may ask the product to do. The nag's own calls arrive here through its bridge.
class IActionStrategy
{
public:
    virtual ~IActionStrategy() = default;
    virtual void ShowBuyNow(const AbstractContent& content) = 0;
    virtual void OpenLiveChat(const AbstractContent& content) = 0;
    virtual void OpenUrl(const AbstractContent& content, const QUrl& url,
                         const QMap<QString, QVariant>& params) = 0;
    virtual void OpenUrlKey(const AbstractContent& content, const QString& key,
                            const QMap<QString, QVariant>& params) = 0;
    virtual void PerformButtonAction(const AbstractContent& content, const QString& buttonId,
                                     const QVariant& value) = 0;
    virtual void NagDontShowClicked(const AbstractContent& content) = 0;
    virtual void NagClose(const AbstractContent& content, int code,
                          const QMap<QString, QVariant>& params) = 0;
    virtual void PerformCustomAction(const AbstractContent& content, const QString& action,
                                     const QVariant& value) = 0;
    virtual void ScreenShown(const AbstractContent& content, const QMap<QString, QVariant>& params) = 0;
};

} // namespace Ostrel::App::NagScreen
