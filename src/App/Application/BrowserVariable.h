#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QStringList>
#include <QUrl>

#include <vector>

namespace Ostrel::App {

/// The browsers a person names in the environment variable BROWSER, read the way Python's
/// webbrowser module reads it: a list of commands separated by ":", tried in order; a command
/// that holds "%s" gets the URL there, any other gets it as its last argument. A command is split
/// into words as QProcess::splitCommand does (double quotes group, single quotes do not), never
/// by a shell.
class OSTREL_APP_EXPORT BrowserVariable
{
public:
    /// The command lines (program first) that would open @p url, in the order to try them.
    static std::vector<QStringList> commands(const QString& value, const QUrl& url);
    /// Starts the first command of $BROWSER whose program exists and starts; its program, or
    /// empty when none did.
    static QString open(const QUrl& url);
};

} // namespace Ostrel::App
