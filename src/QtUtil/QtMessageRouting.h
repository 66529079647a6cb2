#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QtGlobal>

namespace Ostrel::Util {

/// Sends Qt's own messages to glog, so that one log holds everything: debug and info at INFO,
/// warning at WARNING, critical at ERROR, fatal at ERROR followed by abort() as Qt itself would.
/// A category other than "default" is written in brackets before the text. The host calls this
/// once, after glog is initialized. QT_FATAL_WARNINGS and QT_FATAL_CRITICALS keep working.
/// Returns the handler it replaced, so that a caller (a test) can put it back.
OSTREL_QTUTIL_EXPORT QtMessageHandler InstallQtMessageRouting();

} // namespace Ostrel::Util
