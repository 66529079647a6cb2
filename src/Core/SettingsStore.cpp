#include "Core/SettingsStore.h"
#include "Core/SettingsText_p.h"
#include "Foundation/UserOnlyFiles.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <mutex>
#include <optional>

namespace Ostrel::App {

namespace {

std::vector<std::string> toUtf8List(const QStringList& list)
{
    std::vector<std::string> result;
    result.reserve(static_cast<std::size_t>(list.size()));
    for (const QString& item : list)
        result.push_back(Util::QStringToUtf8(item));
    return result;
}

// The text QSettings holds for a value, whatever type it kept it as in this run.
QString textOf(const QVariant& value)
{
    // An unquoted "a, b" written by hand reads back as a list; the person meant the text.
    if (value.userType() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", "));
    return value.toString();
}

} // namespace

class SettingsStore::Impl
{
public:
    explicit Impl(const QString& path) : filePath(path), settings(path, QSettings::IniFormat)
    {
        if (auto* application = QCoreApplication::instance()) {
            // The saves run in the application's thread, whichever thread changed a value; the
            // context ends with the store, and a save still queued with it.
            saver = std::make_unique<QObject>();
            saver->moveToThread(application->thread());
            QObject::connect(application, &QCoreApplication::aboutToQuit, saver.get(), [this]() {
                std::lock_guard<std::recursive_mutex> lock(mutex);
                saveIfChanged();
            });
        }
        const QFileInfo info(path);
        bool broken = settings.status() != QSettings::NoError;
        if (!broken && info.exists()) {
            // Running as a privileged user hides permission problems from QSettings' status;
            // opening the file ourselves tells the truth.
            QFile probe(path);
            broken = info.isDir() || !probe.open(QIODevice::ReadOnly);
        }
        if (broken) {
            readOnly = true;
            QFile file(path);
            const std::optional<int> badLine = file.open(QIODevice::ReadOnly)
                                                   ? SettingsText::firstMalformedLine(file.readAll())
                                                   : std::nullopt;
            LOG(ERROR) << "Settings file " << Util::QStringToUtf8(path) << " is unreadable or broken"
                       << (badLine ? " (line " + std::to_string(*badLine) + ")" : std::string())
                       << "; it is left untouched and nothing is saved to it in this run";
        }
    }

    // Null when the key is unusable or absent; the caller returns its default.
    std::optional<QString> text(const std::string& key) const
    {
        if (!checkKey(key, "read"))
            return std::nullopt;
        const QVariant value = settings.value(Util::Utf8ToQString(key));
        if (!value.isValid())
            return std::nullopt;
        return textOf(value);
    }

    void warnUnconvertible(const std::string& key, const QString& value, const char* type) const
    {
        LOG(WARNING) << "Settings value " << key << "=\"" << Util::QStringToUtf8(value) << "\" in "
                     << Util::QStringToUtf8(filePath) << " is not a " << type << "; using the default";
    }

    bool checkKey(const std::string& key, const char* operation) const
    {
        if (!key.empty())
            return true;
        LOG(WARNING) << "Settings " << operation << " with an empty key in " << Util::QStringToUtf8(filePath)
                     << " ignored";
        return false;
    }

    bool checkWritable(const std::string& key)
    {
        if (!checkKey(key, "write"))
            return false;
        if (!writeChecked && !readOnly) {
            writeChecked = true;
            checkBeforeFirstWrite();
        }
        if (readOnly) {
            LOG(WARNING) << "Settings write of \"" << key << "\" ignored: " << Util::QStringToUtf8(filePath)
                         << " is kept untouched in this run";
            return false;
        }
        return true;
    }

    // QSettings reads sections lazily and drops what it does not understand, so a line it can
    // not parse would be gone at the first write. The whole file is read strictly once instead,
    // and a file that fails stays as it is.
    void checkBeforeFirstWrite()
    {
        clearOwnerlessLock();
        QFile file(filePath);
        if (!file.exists()) {
            // Created user-only before QSettings writes it: its atomic save keeps the mode of the
            // file it replaces.
            if (!Core::UserOnlyFiles::prepareFile(filePath))
                LOG(WARNING) << "Settings file " << Util::QStringToUtf8(filePath)
                             << " could not be created user-only";
            return;
        }
        if (!file.open(QIODevice::ReadOnly))
            return; // reported at opening
        const QByteArray text = file.readAll();
        const std::optional<int> badLine = SettingsText::firstMalformedLine(text);
        const std::optional<int> undecodable =
            badLine ? std::nullopt : SettingsText::firstUndecodableLine(text);
        if (!badLine && !undecodable)
            return;
        readOnly = true;
        LOG(ERROR) << "Settings file " << Util::QStringToUtf8(filePath)
                   << (badLine ? " has a line that is not a setting (line " + std::to_string(*badLine)
                               : " has a value this build cannot read (line " + std::to_string(*undecodable))
                   << "); it is left untouched and nothing is saved to it in this run";
    }

    // QSettings saves under a lock file and takes over one whose owner it can't find only once
    // the file is 30 s old, all that time on the writing (GUI) thread. A lock that names no owner
    // at all (empty, garbage) is gone at once instead.
    void clearOwnerlessLock() const
    {
        const QString lockPath = filePath + QStringLiteral(".lock");
        if (!QFileInfo::exists(lockPath))
            return;
        QLockFile lock(lockPath);
        qint64 pid = 0;
        QString host;
        QString application;
        // A live saver keeps the file locked while it writes its id: then the removal fails.
        if (!lock.getLockInfo(&pid, &host, &application) && lock.removeStaleLockFile())
            LOG(WARNING) << "Settings lock file " << Util::QStringToUtf8(lockPath)
                         << " named no owner; removed";
    }

    ~Impl() { saveIfChanged(); }

    void write(const std::string& key, const QVariant& value)
    {
        // A value that is already there (same type, same value) changes nothing to save.
        const QString name = Util::Utf8ToQString(key);
        const QVariant stored = settings.value(name);
        if (stored.isValid() && stored.userType() == value.userType() && stored == value)
            return;
        settings.setValue(name, value);
        changed();
    }

    // Each save is a locked, synced, atomic rewrite of the whole file, so the changes of one turn
    // of the event loop are saved together at the next one: a run that changes twenty values
    // rewrites the file once, not twenty times. Without an application (a tool, a test before
    // it) every change is saved at once.
    void changed()
    {
        if (!saver) {
            save();
            return;
        }
        if (savePending)
            return;
        savePending = true;
        QMetaObject::invokeMethod(
            saver.get(),
            [this]() {
                std::lock_guard<std::recursive_mutex> lock(mutex);
                saveIfChanged();
            },
            Qt::QueuedConnection);
    }

    void saveIfChanged()
    {
        if (!savePending)
            return;
        savePending = false;
        save();
    }

    void save()
    {
        settings.sync();
        // A FormatError here only says that the re-read file had a line QSettings skipped (a "#"
        // comment); the write itself went through.
        if (settings.status() == QSettings::AccessError && !writeErrorReported) {
            writeErrorReported = true;
            LOG(ERROR) << "Settings file " << Util::QStringToUtf8(filePath) << " could not be written";
        }
    }

    QStringList childrenOf(const std::string& group, bool groups) const
    {
        settings.beginGroup(Util::Utf8ToQString(group));
        const QStringList result = groups ? settings.childGroups() : settings.childKeys();
        settings.endGroup();
        return result;
    }

    const QString filePath;
    // QSettings' reads are const only in name: beginGroup() changes its state.
    mutable QSettings settings;
    mutable std::recursive_mutex mutex;
    bool readOnly = false;
    bool writeChecked = false;
    bool writeErrorReported = false;
    bool savePending = false;
    // Declared last, so that it goes first: no queued save runs on a store half destroyed.
    std::unique_ptr<QObject> saver;
};

SettingsStore::SettingsStore(const QString& filePath) : d(std::make_unique<Impl>(filePath)) {}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::filePath() const
{
    return d->filePath;
}

bool SettingsStore::isReadOnly() const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->readOnly;
}

void SettingsStore::SetString(const std::string& key, const std::string& value)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (d->checkWritable(key))
        d->write(key, Util::Utf8ToQString(value));
}

bool SettingsStore::GetBool(const std::string& key, bool defaultValue) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    const std::optional<QString> text = d->text(key);
    if (!text)
        return defaultValue;
    if (const std::optional<bool> value = SettingsText::parseBool(*text))
        return *value;
    d->warnUnconvertible(key, *text, "boolean");
    return defaultValue;
}

std::string SettingsStore::GetString(const std::string& key, const std::string& defaultValue) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    const std::optional<QString> text = d->text(key);
    return text ? Util::QStringToUtf8(*text) : defaultValue;
}

unsigned int SettingsStore::GetUInt(const std::string& key, unsigned int defaultValue) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    const std::optional<QString> text = d->text(key);
    if (!text)
        return defaultValue;
    bool ok = false;
    const unsigned int value = text->trimmed().toUInt(&ok);
    if (ok)
        return value;
    d->warnUnconvertible(key, *text, "non-negative number");
    return defaultValue;
}

int SettingsStore::GetInt(const std::string& key, int defaultValue) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    const std::optional<QString> text = d->text(key);
    if (!text)
        return defaultValue;
    bool ok = false;
    const int value = text->trimmed().toInt(&ok);
    if (ok)
        return value;
    d->warnUnconvertible(key, *text, "number");
    return defaultValue;
}

bool SettingsStore::Has(const std::string& key) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return d->checkKey(key, "lookup") && d->settings.contains(Util::Utf8ToQString(key));
}

void SettingsStore::Remove(const std::string& key)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (!d->checkWritable(key))
        return;
    const QString name = Util::Utf8ToQString(key);
    // QSettings::remove() also takes every key below a group of the same name; put those back
    // before syncing so that the file never misses them.
    QList<QPair<QString, QVariant>> below;
    d->settings.beginGroup(name);
    const QStringList keysBelow = d->settings.allKeys();
    for (const QString& child : keysBelow)
        below.append({child, d->settings.value(child)});
    d->settings.endGroup();
    d->settings.remove(name);
    for (const auto& [child, value] : below)
        d->settings.setValue(name + QLatin1Char('/') + child, value);
    d->changed();
}

void SettingsStore::SetBool(const std::string& key, bool value)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (d->checkWritable(key))
        d->write(key, value);
}

void SettingsStore::SetUInt(const std::string& key, unsigned int value)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (d->checkWritable(key))
        d->write(key, value);
}

void SettingsStore::SetInt(const std::string& key, int value)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (d->checkWritable(key))
        d->write(key, value);
}

void SettingsStore::RemoveGroup(const std::string& group)
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    if (!d->checkWritable(group))
        return;
    d->settings.remove(Util::Utf8ToQString(group));
    d->changed();
}

std::vector<std::string> SettingsStore::ChildKeys(const std::string& group) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return toUtf8List(d->childrenOf(group, false));
}

std::vector<std::string> SettingsStore::ChildGroups(const std::string& group) const
{
    std::lock_guard<std::recursive_mutex> lock(d->mutex);
    return toUtf8List(d->childrenOf(group, true));
}

} // namespace Ostrel::App
