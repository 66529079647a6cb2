#pragma once

#include "App/Application/NagScreen/BaseDimmer.h"

#include <QHash>

#include <memory>
#include <unordered_map>

namespace Ostrel::App::NagScreen {

/// The dimmers of a dialog strategy, by name.
class OSTREL_APP_EXPORT DimmingProvider
{
public:
    DimmingProvider();
    ~DimmingProvider();

    /// Replaces a dimmer of the same name.
    void Add(const QString& name, const std::shared_ptr<BaseDimmer>& dimmer);
    /// Null for a name that isn't registered.
    std::shared_ptr<BaseDimmer> Get(const QString& name) const;
    /// The file path parameters of all dimmers together.
    std::vector<QString> FilePathParameters() const;

private:
    struct Hash
    {
        std::size_t operator()(const QString& text) const { return qHash(text); }
    };
    std::unordered_map<QString, std::shared_ptr<BaseDimmer>, Hash> m_dimmers;
};

} // namespace Ostrel::App::NagScreen
