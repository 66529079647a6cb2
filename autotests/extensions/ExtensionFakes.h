#pragma once

// What the extensions read from their components, set by each test.

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "MemorySettings.h"

#include "Interfaces/IGateway.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/ILinksManager.h"

#include <QCoreApplication>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <vector>

namespace Ostrel::Test {

/// The links manager and the gateway belong to the GUI thread: their fakes note a call from any
/// other, for the test to check.
class GuiThreadOnly
{
public:
    bool calledOffGuiThread() const { return m_offGuiThread; }

protected:
    void noteThread() const
    {
        if (QThread::currentThread() != QCoreApplication::instance()->thread())
            m_offGuiThread = true;
    }

private:
    mutable std::atomic<bool> m_offGuiThread{false};
};

class ExtensionCustomization : public FakeCustomization
{
public:
    bool emailCollection = true;
    std::string pageType = "thankyou";
    bool IsEmailCollectionEnabled() const override { return emailCollection; }
    std::string GetPageType() const override { return pageType; }
};

class SettableLaunchType : public App::ILaunchTypeProcessor
{
public:
    int type = 1;
    int GetLaunchType() const override { return type; }
};

/// Answers every key with "https://links.test/<key number>" and keeps what it was asked to open.
class RecordingLinks : public App::ILinksManager, public GuiThreadOnly
{
public:
    mutable QStringList opened;
    QString GetUrl(const QString& key) const override { return QStringLiteral("https://links.test/") + key; }
    QString GetUrl(App::URLKeys key) const override
    {
        return QStringLiteral("https://links.test/") + QString::number(static_cast<int>(key));
    }
    QString GenerateUrl(const QString& url, QMap<QString, QString> parameters) const override
    {
        QString result = url;
        for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
            result.replace(it.key(), it.value());
        return result;
    }
    void OpenUrl(const QString& url) const override
    {
        noteThread();
        opened.append(url);
    }
    void OpenUrl(App::URLKeys key) const override { OpenUrl(GetUrl(key)); }
};

/// Holds the actions back until the test runs them.
class HoldingGateway : public ExternalStimulus::IGateway, public GuiThreadOnly
{
public:
    std::vector<ExternalStimulus::Stimulus> posted;
    void post(const ExternalStimulus::Stimulus& stimulus) override
    {
        noteThread();
        posted.push_back(stimulus);
    }
    void flush() override
    {
        const auto actions = std::move(posted);
        posted.clear();
        for (const auto& stimulus : actions)
            stimulus.action();
    }
    bool isHolding() const override { return true; }
};

/// Keeps the requests; the test answers them.
class PendingHttpClient : public Networking::IHttpClient
{
public:
    std::vector<Networking::HttpRequest> requests;
    std::vector<Callback> pending;
    void send(const Networking::HttpRequest& request, Callback done) override
    {
        requests.push_back(request);
        pending.push_back(std::move(done));
    }
};

} // namespace Ostrel::Test
