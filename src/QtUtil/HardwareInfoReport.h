#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QString>

namespace Ostrel::App {
class ICustomizationManager;
}

namespace Ostrel::Util {

/// A few lines on the product and the machine for support requests and crash reports:
///   Application: <name> <visible version> (<full version>)
///   OS: <pretty product name>, kernel <type> <version>
///   CPU: <architecture>, <n> logical cores, <model or "unknown model">
///   Memory: <total physical memory in MiB, or "unknown">
///   Screen <n>: <w>x<h> at <x>,<y>, device pixel ratio <r>   (one line each, or "Screens: none")
/// Lines are separated by '\n'. Screens need a QGuiApplication; without one the line says none.
OSTREL_QTUTIL_EXPORT QString GetHardwareInfo(const Ostrel::App::ICustomizationManager& customization);

} // namespace Ostrel::Util
