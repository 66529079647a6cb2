#pragma once

#include "Nag/ContentEnvironment.h"
#include "Nag/NagContext.h"
#include "Nag/ostrel_nag_export.h"

#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QSize>
#include <QUrl>
#include <QVariant>

#include <memory>

class QWidget;

namespace Ostrel::App::NagScreen {

/// One nag, ready to be put in front of the user by a show strategy. The content owns its widget;
/// a strategy borrows it and gives it back (parent null) before its own windows die.
///
/// A content ends itself: Finished fires once per load, with 1 for an accepted nag, 0 for a
/// rejected one and -1 for one that failed while on screen.
class OSTREL_NAG_EXPORT AbstractContent : public QObject
{
    Q_OBJECT
public:
    AbstractContent(const NagContext& context, ContentEnvironment environment, QObject* parent = nullptr);
    ~AbstractContent() override;

    QString AppAction() const;
    QString AppMode() const;
    NagContext GetContext() const;
    QWidget* GetUi() const;
    ContentState State() const;

    virtual QUrl SourceUrl() const = 0;
    virtual QString Id() const = 0;
    virtual QString Name() const = 0;
    virtual QUrl LocalUrl() const = 0;
    virtual QString DimmingName() const = 0;
    virtual const QMap<QString, QString>& DimmingParameters() const = 0;
    virtual QString Locale() const = 0;
    virtual bool HasLocale() const = 0;
    virtual void Load() = 0;
    virtual void LoadFromPath(const QString& path) = 0;
    virtual QString Type() const = 0;
    /// The fingerprint the nag was published with, "0"/"1" text; empty when it has none.
    virtual QString DeclaredHash() const = 0;
    /// The fingerprint of what is rendered now, at HashSize(); empty before the first frame or
    /// without a hash size.
    virtual QString ComputedHash() const = 0;
    virtual QString HashName() const = 0;
    /// Invalid when the nag names no size.
    virtual QSize HashSize() const = 0;
    /// What the nag shows now; null before the first frame.
    virtual QPixmap Picture() const = 0;
    /// The id a web nag's server gave it (its "nag_id"), without the nag map's fallback; empty for
    /// other nags, while loading, or when it names none.
    virtual QString ReportedId() const;

Q_SIGNALS:
    void Finished(int code, const QMap<QString, QVariant>& params);
    void SizeChanged(const QSize& size);
    void StateChanged(Ostrel::App::NagScreen::ContentState state);
    void AcceptRequested(const QMap<QString, QVariant>& params);
    /// The first frame of a shown nag is on screen: its picture and hash can be taken.
    void Rendered();

protected:
    /// The widget is handed over by the concrete content when it makes it.
    void setUi(QWidget* ui);
    void setState(ContentState state);
    /// Ends the nag once: later calls until the next load are ignored, so that a double click or
    /// Escape after a button cannot end a nag twice. Reports NagClose to the action strategy.
    void finish(int code, const QMap<QString, QVariant>& params);
    /// A new load may end again.
    void rearmFinish();
    const ContentEnvironment& environment() const;
    std::shared_ptr<IActionStrategy> actionStrategy() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
