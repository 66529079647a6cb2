// The nag map on arbitrary bytes: a refusal or a map whose every row is usable, and whose look-ups
// agree with its listing.

#include "Nag/NagConfig.h"
#include "Nag/NagContext.h"

#include <glog/logging.h>

#include <cstdint>
#include <cstdlib>

using namespace Ostrel::App::NagScreen;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FLAGS_minloglevel = google::GLOG_FATAL; // broken maps log by design
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto config =
        NagConfig::fromJson(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    if (!config)
        return 0;
    for (const QString& mode : {AppMode::Free(), AppMode::Trial(), AppMode::Licensed(), AppMode::AnyMode()}) {
        for (const auto& row : config->ActionsForMode(mode)) {
            if (row.second.action != row.first || row.second.source.isEmpty() ||
                row.second.implementation == Implementation::None)
                std::abort();
        }
        for (const QString& action : config->ActionsIn(mode)) {
            if (!config->Find(mode, action))
                std::abort();
        }
    }
    return 0;
}
