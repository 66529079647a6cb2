#include "App/Application/ColorDialogHelper.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IApplicationSettingsManager.h"

#include <QColor>
#include <QColorDialog>

#include <string>

namespace Ostrel::App {

namespace {

const char* const SettingsGroup = "Ostrel::App::ColorDialogHelper";

std::string countKey()
{
    return std::string(SettingsGroup) + "/ColorsCount";
}

std::string colorKey(int index)
{
    return std::string(SettingsGroup) + "/Color" + std::to_string(index);
}

} // namespace

class ColorDialogHelper::Impl
{
public:
    std::shared_ptr<IApplicationSettingsManager> settings;
};

ColorDialogHelper::ColorDialogHelper(const std::shared_ptr<IApplicationSettingsManager>& settings)
    : d(std::make_unique<Impl>(Impl{settings}))
{
    if (!settings)
        return;
    const int count = settings->GetInt(countKey(), 0);
    if (count < 1)
        return;
    const std::string transparent = Util::QStringToUtf8(QColor(Qt::transparent).name());
    for (int i = 0; i < count; ++i)
        QColorDialog::setCustomColor(
            i, QColor(Util::Utf8ToQString(settings->GetString(colorKey(i), transparent))));
}

ColorDialogHelper::ColorDialogHelper(const ColorDialogHelper& other) : d(std::make_unique<Impl>(*other.d)) {}

ColorDialogHelper& ColorDialogHelper::operator=(const ColorDialogHelper& other)
{
    *d = *other.d;
    return *this;
}

ColorDialogHelper::~ColorDialogHelper()
{
    const auto& settings = d->settings;
    if (!settings)
        return;
    const int count = QColorDialog::customCount();
    // Every write saves the whole file: a group that holds the table and nothing else is not
    // written again. Anything else in it (a stray "Color99", a subgroup) goes with the rewrite.
    bool stored = settings->GetInt(countKey(), -1) == count &&
                  settings->ChildKeys(SettingsGroup).size() == static_cast<size_t>(count) + 1 &&
                  settings->ChildGroups(SettingsGroup).empty();
    for (int i = 0; stored && i < count; ++i)
        stored = settings->GetString(colorKey(i), std::string()) ==
                 Util::QStringToUtf8(QColorDialog::customColor(i).name());
    if (stored)
        return;
    settings->RemoveGroup(SettingsGroup);
    settings->SetInt(countKey(), count);
    for (int i = 0; i < count; ++i)
        settings->SetString(colorKey(i), Util::QStringToUtf8(QColorDialog::customColor(i).name()));
}

} // namespace Ostrel::App
