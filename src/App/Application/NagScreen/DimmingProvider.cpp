#include "App/Application/NagScreen/DimmingProvider.h"

#include <algorithm>

namespace Ostrel::App::NagScreen {

DimmingProvider::DimmingProvider() = default;

DimmingProvider::~DimmingProvider() = default;

void DimmingProvider::Add(const QString& name, const std::shared_ptr<BaseDimmer>& dimmer)
{
    m_dimmers[name] = dimmer;
}

std::shared_ptr<BaseDimmer> DimmingProvider::Get(const QString& name) const
{
    const auto it = m_dimmers.find(name);
    return it == m_dimmers.end() ? nullptr : it->second;
}

std::vector<QString> DimmingProvider::FilePathParameters() const
{
    std::vector<QString> names;
    for (const auto& entry : m_dimmers) {
        for (const QString& name : entry.second->FilePathParameters()) {
            if (std::find(names.begin(), names.end(), name) == names.end())
                names.push_back(name);
        }
    }
    return names;
}

} // namespace Ostrel::App::NagScreen
