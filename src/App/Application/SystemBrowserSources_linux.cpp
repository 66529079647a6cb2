#include "App/Application/SystemBrowserSources.h"

#include "App/Application/StartupEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>

#include <utility>
#include <vector>

namespace Ostrel::App {

namespace {

const QString& currentUserRoot()
{
    static const QString root = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Clients\\StartMenuInternet");
    return root;
}

const QString& localMachineRoot()
{
    static const QString root = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Clients\\StartMenuInternet");
    return root;
}

QString environmentOr(const char* name, const QString& fallback)
{
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

QStringList userApplicationFolders()
{
    return {environmentOr("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share")) +
            QStringLiteral("/applications")};
}

QStringList systemApplicationFolders()
{
    QStringList folders;
    const QString dirs = environmentOr("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share"));
    for (const QString& dir : dirs.split(QLatin1Char(':'), Qt::SkipEmptyParts))
        folders << dir + QStringLiteral("/applications");
    return folders;
}

// The keys of the [group] of a desktop-style file; "" for a missing file.
std::map<QString, QString> readGroup(const QString& path, const QString& group)
{
    std::map<QString, QString> values;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return values;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    bool inGroup = false;
    const QString header = QLatin1Char('[') + group + QLatin1Char(']');
    while (!stream.atEnd()) {
        const QString line = stream.readLine().trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inGroup = line == header;
            continue;
        }
        const int equals = line.indexOf(QLatin1Char('='));
        if (inGroup && equals > 0 && !line.startsWith(QLatin1Char('#')))
            values.emplace(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return values;
}

// The program of a command line, without its arguments, absolute through PATH; empty if none.
QString programOf(const QString& command)
{
    const QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return QString();
    const QString program = words.first();
    if (QFileInfo(program).isAbsolute())
        return program;
    return QStandardPaths::findExecutable(program);
}

struct Entry
{
    QString id;
    QString program;
};

bool handlesHttp(const std::map<QString, QString>& entry)
{
    const auto mime = entry.find(QStringLiteral("MimeType"));
    const auto hidden = entry.find(QStringLiteral("Hidden"));
    return mime != entry.end() &&
           mime->second.split(QLatin1Char(';')).contains(QStringLiteral("x-scheme-handler/http")) &&
           (hidden == entry.end() || hidden->second != QLatin1String("true"));
}

// The browsers' desktop entries in `folders`, the first of an id winning, the default first.
std::vector<Entry> browsersIn(const QStringList& folders, const QString& defaultId)
{
    std::vector<Entry> entries;
    QStringList seen;
    for (const QString& folder : folders) {
        const auto files = QDir(folder).entryInfoList({QStringLiteral("*.desktop")}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files) {
            if (seen.contains(file.fileName()))
                continue;
            seen << file.fileName();
            const auto entry = readGroup(file.filePath(), QStringLiteral("Desktop Entry"));
            const auto exec = entry.find(QStringLiteral("Exec"));
            if (!handlesHttp(entry) || exec == entry.end())
                continue;
            const QString program = programOf(exec->second);
            if (program.isEmpty())
                continue;
            Entry found{file.fileName(), program};
            if (file.fileName() == defaultId)
                entries.insert(entries.begin(), found);
            else
                entries.push_back(found);
        }
    }
    return entries;
}

QString defaultBrowserId()
{
    const QString config = environmentOr("XDG_CONFIG_HOME", QDir::homePath() + QStringLiteral("/.config"));
    const auto defaults =
        readGroup(config + QStringLiteral("/mimeapps.list"), QStringLiteral("Default Applications"));
    const auto http = defaults.find(QStringLiteral("x-scheme-handler/http"));
    return http == defaults.end() ? QString() : http->second.section(QLatin1Char(';'), 0, 0);
}

std::vector<Entry> browsersUnder(const QString& root)
{
    if (root.compare(localMachineRoot(), Qt::CaseInsensitive) == 0)
        return browsersIn(systemApplicationFolders(), defaultBrowserId());
    if (root.compare(currentUserRoot(), Qt::CaseInsensitive) != 0)
        return {};
    std::vector<Entry> entries = browsersIn(userApplicationFolders(), defaultBrowserId());
    // $BROWSER is the user's word on it and leads.
    const QString program = programOf(qEnvironmentVariable("BROWSER").section(QLatin1Char(':'), 0, 0));
    if (!program.isEmpty())
        entries.insert(entries.begin(), Entry{QStringLiteral("BROWSER"), program});
    return entries;
}

} // namespace

std::map<QString, QString> SystemBrowserSources::processMap() const
{
    std::map<QString, QString> result;
    for (const auto& [name, path] : GetCurrentProcessMap([](const QString& name) { return !name.isEmpty(); }))
        result.emplace(name + QStringLiteral(".exe"), path);
    return result;
}

QStringList SystemBrowserSources::valueNames(const QString&) const
{
    return {};
}

QStringList SystemBrowserSources::subkeys(const QString& key) const
{
    QStringList ids;
    for (const Entry& entry : browsersUnder(key))
        ids << entry.id;
    return ids;
}

QString SystemBrowserSources::defaultValue(const QString& key) const
{
    const QString suffix = QStringLiteral("\\shell\\open\\command");
    if (!key.endsWith(suffix))
        return QString();
    const QString withoutSuffix = key.left(key.size() - suffix.size());
    const int separator = withoutSuffix.lastIndexOf(QLatin1Char('\\'));
    const QString root = withoutSuffix.left(separator);
    const QString id = withoutSuffix.mid(separator + 1);
    for (const Entry& entry : browsersUnder(root)) {
        if (entry.id == id)
            return entry.program;
    }
    return QString();
}

} // namespace Ostrel::App
