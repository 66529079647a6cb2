#include "LinksPanel.h"

#include "App/Application/Gesture/Scroller.h"

using namespace Ostrel::App;

LinksPanel::LinksPanel(const Opener& open, QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("linksPanel"));
    for (const auto& [key, name] : UrlKeyNames()) {
        auto* item = new QListWidgetItem(QString::fromStdString(name), this);
        item->setData(Qt::UserRole, static_cast<int>(key));
    }
    connect(this, &QListWidget::itemActivated, this, [open](QListWidgetItem* item) {
        if (open)
            open(static_cast<URLKeys>(item->data(Qt::UserRole).toInt()));
    });
    // Found by the router's walk under the finger: a touch pan moves the list.
    new Gesture::Scroller(this);
}
