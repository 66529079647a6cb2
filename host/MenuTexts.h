#pragma once

#include <QObject>

#include <memory>

class QAction;
class QMenu;

/// The texts of one menu, following every switch of the language. Widgets hear of a switch by
/// themselves (QEvent::LanguageChange) but actions do not, so the menu keeps the source text of
/// its title and of each entry and sets them again when it is told. It lives as long as the menu.
class MenuTexts : public QObject
{
public:
    /// @p context is the translation context of every entry given afterwards, one context per
    /// menu; the title is in the context "MenuBar", with the other titles of the bar. So a context
    /// holds exactly the texts whose mnemonics must differ. It must outlive the menu, as a string
    /// literal does.
    MenuTexts(QMenu& menu, const char* context, const char* title);
    ~MenuTexts() override;

    /// Adds an entry whose text follows the language. @p source must outlive the menu.
    QAction* addAction(const char* source);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retranslate();

    class Impl;
    std::unique_ptr<Impl> d;
};
