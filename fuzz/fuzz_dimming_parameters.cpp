// The dimming parameters of the web configuration on arbitrary text: never a crash, no empty key
// or value, and parsing what was read, written back as text, gives the same map.

#include "App/Application/NagScreen/ParseDimmingParameters.h"

#include <QStringList>

#include <cstdint>
#include <cstdlib>

using namespace Ostrel::App::NagScreen;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QMap<QString, QString> parameters = ParseDimmingParameters(text);
    QStringList pairs;
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it) {
        if (it.key().isEmpty() || it.value().isEmpty() || it.key().contains(QLatin1Char(',')) ||
            it.value().contains(QLatin1Char('=')))
            std::abort();
        pairs << it.key() + QLatin1Char('=') + it.value();
    }
    if (ParseDimmingParameters(pairs.join(QLatin1Char(','))) != parameters)
        std::abort();
    return 0;
}
