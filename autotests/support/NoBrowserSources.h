#pragma once

#include "App/Application/IBrowserSources.h"

namespace Ostrel::Test {

/// A system with no running processes and an empty registry: no browser is ever found.
class NoBrowserSources : public App::IBrowserSources
{
public:
    std::map<QString, QString> processMap() const override { return {}; }
    QStringList valueNames(const QString&) const override { return {}; }
    QStringList subkeys(const QString&) const override { return {}; }
    QString defaultValue(const QString&) const override { return {}; }
};

} // namespace Ostrel::Test
