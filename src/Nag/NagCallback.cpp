#include "Nag/NagCallback_p.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Nag/IActionStrategy.h"
#include "Nag/QmlContent.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QUrl>

namespace Ostrel::App::NagScreen {

NagCallback::NagCallback(QmlContent& content) : m_content(content) {}

void NagCallback::Accept()
{
    m_content.finish(1, {});
}

void NagCallback::Accept(const QVariantMap& params)
{
    m_content.finish(1, params);
}

void NagCallback::Reject()
{
    m_content.finish(0, {});
}

void NagCallback::Reject(const QVariantMap& params)
{
    m_content.finish(0, params);
}

void NagCallback::BuyNow()
{
    if (const auto actions = m_content.actionStrategy())
        actions->ShowBuyNow(m_content);
    m_content.finish(1, {});
}

void NagCallback::OpenLiveChat()
{
    if (const auto actions = m_content.actionStrategy())
        actions->OpenLiveChat(m_content);
}

void NagCallback::RequestUrl(const QString& url)
{
    RequestUrl(url, {});
}

void NagCallback::RequestUrl(const QString& url, const QVariantMap& params)
{
    const auto actions = m_content.actionStrategy();
    if (!actions) {
        LOG(WARNING) << "Nag link dropped, no action strategy is set: "
                     << Util::QStringToUtf8(Core::PersonalDataMask::mask(url));
        return;
    }
    // Macros such as -TAIL_WITH_ARGS- survive tolerant parsing; the strategy expands them.
    actions->OpenUrl(m_content, QUrl(url, QUrl::TolerantMode), params);
}

void NagCallback::RequestUrlKey(const QString& key, const QVariantMap& params)
{
    if (const auto actions = m_content.actionStrategy())
        actions->OpenUrlKey(m_content, key, params);
}

void NagCallback::ButtonClicked(const QString& buttonId, const QVariant& value)
{
    if (const auto actions = m_content.actionStrategy())
        actions->PerformButtonAction(m_content, buttonId, value);
}

void NagCallback::CustomAction(const QString& action, const QVariant& value)
{
    if (const auto actions = m_content.actionStrategy())
        actions->PerformCustomAction(m_content, action, value);
}

void NagCallback::DontShow()
{
    if (m_content.environment().dontShow)
        m_content.environment().dontShow(m_content);
    if (const auto actions = m_content.actionStrategy())
        actions->NagDontShowClicked(m_content);
}

void NagCallback::ScreenShown(const QVariantMap& params)
{
    if (const auto actions = m_content.actionStrategy())
        actions->ScreenShown(m_content, params);
}

QString NagCallback::GetLocale() const
{
    if (m_content.HasLocale())
        return m_content.Locale();
    const auto& locale = m_content.environment().locale;
    const QString current = locale ? locale() : QString();
    return current.isEmpty() ? QStringLiteral("en_US") : current;
}

QString NagCallback::GetOrganizationPresentableName() const
{
    return QCoreApplication::organizationName();
}

QString NagCallback::GetProductNameWithOrganization() const
{
    const QString organization = QCoreApplication::organizationName();
    const QString product = QCoreApplication::applicationName();
    if (organization.isEmpty())
        return product;
    return product.startsWith(organization) ? product : organization + QLatin1Char(' ') + product;
}

} // namespace Ostrel::App::NagScreen
