#include "App/Application/Testing/TestNagContext_p.h"

#include "Foundation/Utf8.h"
#include "QtUtil/AlertBox.h"

#include <boost/exception/all.hpp>
#include <boost/throw_exception.hpp>

#include <glog/logging.h>

#include <QCoreApplication>
#include <QFile>
#include <QTime>

#include <map>
#include <stdexcept>

namespace Ostrel::App {

void StorePixmap(const QPixmap& pixmap, const QString& folder, const QString& name)
{
    const QString fileName = folder + name + QStringLiteral(".time-") +
                             QTime::currentTime().toString(QStringLiteral("hh.mm.ss.zzz")) +
                             QStringLiteral(".png");
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        pixmap.save(&file, "PNG");
        return;
    }
    LOG(ERROR) << "Can't open picture file " << Util::QStringToUtf8(fileName);
    // Built, not shown: the report of the exception is what the user gets to see.
    Util::AlertBox box(Util::AlertBox::Question, QString(),
                       QCoreApplication::translate("TestNagContext", "Access error. Can't open picture file"),
                       QMessageBox::Ok, nullptr, Qt::WindowFlags(0x103));
    throw boost::enable_error_info(std::logic_error("Can't open picture file"))
        << boost::throw_function(BOOST_CURRENT_FUNCTION)
        << boost::throw_file("App/Application/Testing/TestNagContext") << boost::throw_line(__LINE__);
}

QPixmap PlaceholderPixmap()
{
    QPixmap pixmap(200, 200);
    pixmap.fill(Qt::magenta);
    return pixmap;
}

QString NagHashReport(const NagHashTable& table)
{
    const QString end = QStringLiteral("  \n");
    QString text;
    // Sorted, so that the reports of two runs can be compared with diff.
    const std::map<QString, std::map<QString, std::pair<QString, QString>>> sorted = [&table]() {
        std::map<QString, std::map<QString, std::pair<QString, QString>>> result;
        for (const auto& [name, byLocale] : table)
            result[name].insert(byLocale.begin(), byLocale.end());
        return result;
    }();
    for (const auto& [name, byLocale] : sorted) {
        text += QStringLiteral("# ") + name + end;
        for (const auto& [locale, hashes] : byLocale) {
            const QString& declared = hashes.first;
            const QString& computed = hashes.second;
            text += QStringLiteral("## ") + locale + end;
            text += QStringLiteral("inNagHash: ") + declared + end;
            text += QStringLiteral("computedHash: ") + computed + end;
            if (declared.isEmpty()) {
                text += QStringLiteral("distance: -") + end;
                text += QStringLiteral("distance (%): -") + end;
                continue;
            }
            int distance = 0;
            for (int i = 0; i < computed.size(); ++i) {
                if (i >= declared.size() || declared.at(i) != computed.at(i))
                    ++distance;
            }
            // An empty computed hash gives 0/0: "nan" says plainly that nothing could be compared.
            const double percent = distance * 100.0 / computed.size();
            text +=
                QStringLiteral("distance: ") + QString::number(static_cast<double>(distance), 'g', 6) + end;
            text += QStringLiteral("distance (%): ") + QString::number(percent, 'g', 6) + end;
        }
    }
    return text;
}

} // namespace Ostrel::App
