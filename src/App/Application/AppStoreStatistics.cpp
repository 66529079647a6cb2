#include "App/Application/AppStoreStatistics.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IApplicationSettingsManager.h"
#include "Interfaces/ICustomizationManager.h"
#include "QtUtil/AlertBox.h"

#include <glog/logging.h>

#include <QAbstractButton>
#include <QApplication>

namespace Ostrel::App {

namespace {

// Builds of other stores may switch the question off; this library always asks.
constexpr bool AskForStatistics = true;

// Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint.
constexpr int StatisticsWindowFlags = 259;

} // namespace

void requestAppStoreStatistics(const std::shared_ptr<IApplicationSettingsManager>& settings,
                               const std::shared_ptr<ICustomizationManager>& customization)
{
    if (!AskForStatistics)
        return;
    if (!settings) {
        LOG(WARNING) << "requestAppStoreStatistics: no settings manager, not asking";
        return;
    }
    if (!settings->GetBool("is_first_show_appstore_statistic", true))
        return;
    if (settings->GetBool("sendStatistics", false))
        return;

    const QString name = customization ? Util::Utf8ToQString(customization->GetPresentableName()) : QString();
    Util::AlertBox box(
        static_cast<Util::AlertBox::Level>(2), QApplication::tr("Attention"),
        QApplication::tr("Help improve %1 software by automatically sending anonymous usage stats").arg(name),
        QMessageBox::Ok | QMessageBox::Cancel, nullptr, Qt::WindowFlags(StatisticsWindowFlags));
    box.setObjectName(QStringLiteral("requestAppStoreStatistics"));
    box.button(QMessageBox::Ok)->setText(QApplication::tr("Agree"));
    box.button(QMessageBox::Cancel)->setText(QApplication::tr("Disagree"));
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);

    settings->SetBool("sendStatistics", box.Exec() == QMessageBox::Ok);
    settings->SetBool("is_first_show_appstore_statistic", false);
}

} // namespace Ostrel::App
