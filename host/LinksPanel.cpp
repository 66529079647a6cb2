#include "LinksPanel.h"

#include "App/Application/Gesture/Scroller.h"
#include "Foundation/Utf8.h"

using namespace Ostrel::App;

LinksPanel::LinksPanel(const Opener& open, QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("linksPanel"));
    // The window's own background shows through, so the theme's text colour reads on it in every
    // theme (the themes colour text, not the bases of item views).
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    // One line of text each: the view measures one item instead of every one of them.
    setUniformItemSizes(true);
    for (const auto& [key, name] : UrlKeyNames) {
        auto* item = new QListWidgetItem(Ostrel::Util::Utf8ToQString(name), this);
        item->setData(Qt::UserRole, static_cast<int>(key));
    }
    connect(this, &QListWidget::itemActivated, this, [open](QListWidgetItem* item) {
        if (open)
            open(static_cast<URLKeys>(item->data(Qt::UserRole).toInt()));
    });
    // Found by the router's walk under the finger: a touch pan moves the list.
    new Gesture::Scroller(this);
}
