#pragma once

#include "Interfaces/URLKeys.h"

#include <QTreeWidget>

#include <functional>

/// Every link the shell knows: a readable name and its address, one row each; Enter or a double
/// click opens one. Scrolls by touch as well.
class LinksPanel : public QTreeWidget
{
    Q_OBJECT

public:
    using Opener = std::function<void(Ostrel::App::URLKeys)>;
    using Address = std::function<QString(Ostrel::App::URLKeys)>;
    /// @p address gives a key's address (empty shows none); @p open opens a key.
    explicit LinksPanel(const Opener& open, const Address& address = {}, QWidget* parent = nullptr);

    /// Shows only the rows whose name, key or address holds @p text, whatever its case.
    void setFilter(const QString& text);

    /// "FAQ_URL_menu" reads "FAQ (menu)"; "CONTACT_SUPPORT_URL" reads "Contact support".
    static QString readableName(const std::string& keyName);

protected:
    /// A filter field that installs the panel as its event filter hands it the arrow keys.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
