#include "LinksPanel.h"

#include "App/Application/Gesture/Scroller.h"
#include "Foundation/Utf8.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>

using namespace Ostrel::App;

LinksPanel::LinksPanel(const Opener& open, const Address& address, QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("linksPanel"));
    setColumnCount(2);
    setHeaderLabels({tr("Name"), tr("Address")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (const auto& [key, name] : UrlKeyNames) {
        auto* item = new QTreeWidgetItem(this);
        item->setText(0, readableName(name));
        if (address)
            item->setText(1, address(key));
        item->setToolTip(0, Ostrel::Util::Utf8ToQString(name));
        item->setToolTip(1, item->text(1));
        item->setData(0, Qt::UserRole, static_cast<int>(key));
    }
    if (topLevelItemCount() > 0)
        setCurrentItem(topLevelItem(0));
    // Enter and a double click both open, whatever the style's single-click setting.
    connect(this, &QTreeWidget::itemActivated, this, [open](QTreeWidgetItem* item) {
        if (open && item)
            open(static_cast<URLKeys>(item->data(0, Qt::UserRole).toInt()));
    });
    // Found by the router's walk under the finger: a touch pan moves the list.
    new Gesture::Scroller(this);
}

void LinksPanel::setFilter(const QString& text)
{
    const QString wanted = text.trimmed();
    QTreeWidgetItem* firstShown = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        const bool shown = wanted.isEmpty() || item->text(0).contains(wanted, Qt::CaseInsensitive) ||
                           item->text(1).contains(wanted, Qt::CaseInsensitive) ||
                           item->toolTip(0).contains(wanted, Qt::CaseInsensitive);
        item->setHidden(!shown);
        if (shown && !firstShown)
            firstShown = item;
    }
    // Enter in the filter opens what is current: keep it on a row that shows.
    if (!currentItem() || currentItem()->isHidden())
        setCurrentItem(firstShown);
}

bool LinksPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != viewport() && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(this, event);
            return true;
        default:
            break;
        }
    }
    return QTreeWidget::eventFilter(watched, event);
}

QString LinksPanel::readableName(const std::string& keyName)
{
    const QString key = Ostrel::Util::Utf8ToQString(keyName);
    const int marker = key.indexOf(QStringLiteral("_URL"));
    QString name = marker < 0 ? key : key.left(marker);
    QString place = marker < 0 ? QString() : key.mid(marker + 4);
    if (place.startsWith(QLatin1Char('_')))
        place.remove(0, 1);
    // Abbreviations stay in capitals; other words are written as a sentence.
    static const QStringList abbreviations{QStringLiteral("FAQ"), QStringLiteral("NPS"),
                                           QStringLiteral("CW"),  QStringLiteral("VK"),
                                           QStringLiteral("GPU"), QStringLiteral("OS")};
    QStringList words = name.split(QLatin1Char('_'), Qt::SkipEmptyParts);
    for (int i = 0; i < words.size(); ++i) {
        if (abbreviations.contains(words[i]))
            continue;
        words[i] = words[i].toLower();
        if (i == 0)
            words[i][0] = words[i][0].toUpper();
    }
    name = words.join(QLatin1Char(' '));
    if (!place.isEmpty())
        name += QStringLiteral(" (") + place.replace(QLatin1Char('_'), QLatin1Char(' ')) + QLatin1Char(')');
    return name;
}
