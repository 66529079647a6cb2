#pragma once

#include "Interfaces/URLKeys.h"

#include <QListWidget>

#include <functional>

/// Every link the shell knows, by key; activating one opens it. Scrolls by touch as well.
class LinksPanel : public QListWidget
{
    Q_OBJECT
public:
    using Opener = std::function<void(Ostrel::App::URLKeys)>;
    explicit LinksPanel(const Opener& open, QWidget* parent = nullptr);
};
