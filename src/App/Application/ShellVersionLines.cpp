#include "App/Application/ShellVersionLines.h"

#include "App/Application/BuildInfo.h"

namespace Ostrel::App {

const std::vector<std::string>& ShellVersionLines()
{
    static const std::vector<std::string> lines{
        std::string("Shell version: ") + BuildInfo::ShellVersion,
        std::string("Shell commit: ") + BuildInfo::ShellCommit,
    };
    return lines;
}

} // namespace Ostrel::App
