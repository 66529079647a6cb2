#include "App/Application/VersionLines.h"

#include "App/Application/BuildInfo.h"

namespace Ostrel::App {

const std::vector<std::string>& VersionLines()
{
    static const std::vector<std::string> lines{
        std::string("FFmpeg version: ") + BuildInfo::FFmpegVersion,
        std::string("Build commit: ") + BuildInfo::BuildCommit,
    };
    return lines;
}

} // namespace Ostrel::App
