// A second process for the dialog tests: it reads back, from the persisted settings alone, what
// an earlier process stored. Prints "key=value" lines.
//
//   lookandfeel_probe confirm <settings.ini> <id>     answers a confirmation box (closing it if shown)
//   lookandfeel_probe colors-load <settings.ini>      the custom colours after loading
//   lookandfeel_probe colors-save <settings.ini> <#rrggbb>...  sets custom colours and saves them

#include "App/Application/ColorDialogHelper.h"
#include "App/Application/ConfirmationAlertBox.h"
#include "Core/ApplicationSettingsManager.h"

#include <QApplication>
#include <QColorDialog>
#include <QTimer>

#include <cstdio>

using namespace Ostrel::App;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 3)
        return 2;
    const auto settings = std::make_shared<ApplicationSettingsManager>(args.at(2));
    const QString mode = args.at(1);

    if (mode == QLatin1String("confirm") && args.size() == 4) {
        ConfirmationAlertBox box(settings, Ostrel::Util::AlertBox::Question, QStringLiteral("Probe"),
                                 QStringLiteral("Continue?"),
                                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.SetConfirmationId(args.at(3));
        bool shown = false;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, [&]() {
            if (box.isVisible()) {
                shown = true;
                box.reject();
            }
        });
        closer.start(50);
        const int answer = box.Exec();
        std::printf("shown=%d\nanswer=%d\n", shown ? 1 : 0, answer);
        return 0;
    }
    if (mode == QLatin1String("colors-load")) {
        const ColorDialogHelper helper(settings);
        std::printf("count=%d\n", QColorDialog::customCount());
        for (int i = 0; i < QColorDialog::customCount(); ++i)
            std::printf("color%d=%s\n", i, qPrintable(QColorDialog::customColor(i).name()));
        return 0;
    }
    if (mode == QLatin1String("colors-save")) {
        const ColorDialogHelper helper(settings);
        for (int i = 3; i < args.size(); ++i)
            QColorDialog::setCustomColor(i - 3, QColor(args.at(i)));
        return 0; // the helper saves as it goes
    }
    return 2;
}
