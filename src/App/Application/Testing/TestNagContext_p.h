#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/NagConfig.h"

#include <QPixmap>
#include <QStringList>

#include <map>
#include <unordered_map>
#include <utility>

namespace Ostrel::App {

/// The working record of one nag walk.
struct TestNagContext
{
    QStringList locales;
    QString moduleName;
    /// Only these actions are walked; empty walks every action.
    QStringList appActions;
    /// How long a nag stays on screen after its picture, in ms.
    std::int32_t delay = 300;
    /// All locales in one folder, the locale at the end of each file name.
    bool groupByModule = false;
    /// Mode, then action.
    std::map<QString, std::map<QString, NagScreen::NagRecord>> actions;
    QString dir;
    /// A single nag from this main.qml instead of the nag map.
    QString path;
};

/// Picture name, then locale, then the pair (declared hash, computed hash).
using NagHashTable = std::unordered_map<QString, std::unordered_map<QString, std::pair<QString, QString>>>;

/// Saves `pixmap` as `folder` + `name` + ".time-hh.mm.ss.zzz.png". Throws std::logic_error when the
/// file can't be opened.
void StorePixmap(const QPixmap& pixmap, const QString& folder, const QString& name);

/// What is saved in place of a nag that could not be shown: 200 by 200, magenta.
QPixmap PlaceholderPixmap();

/// The Markdown report of the hashes: per name and locale both hashes and how far they differ,
/// names and locales in sorted order. Exported for the tests.
OSTREL_APP_EXPORT QString NagHashReport(const NagHashTable& table);

} // namespace Ostrel::App
