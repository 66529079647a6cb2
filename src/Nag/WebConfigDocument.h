#pragma once

#include "Nag/ostrel_nag_export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVariant>

namespace Ostrel::App::WebConfig {

/// The web configuration: sections of keys, each key with a "DefaultValue" and "Values", a list of
/// overrides that apply when all their "Criteria" hold. The first override that applies wins.
///
/// Known criterion: "Locale" (equal to the locale asked for). A criterion of another type never
/// holds, so an override that a newer server adds for something this build doesn't know is
/// skipped rather than applied blindly.
class OSTREL_NAG_EXPORT WebConfigDocument
{
public:
    /// An empty document: every key reads as absent.
    WebConfigDocument();
    /// A document that isn't a JSON object of objects logs one error and reads as empty.
    static WebConfigDocument fromJson(const QByteArray& json);
    /// The built-in defaults of the product, read from ":/webConfig/defaultWebConfig.json". The
    /// shell library carries that resource (it owns the strategies and actions the defaults speak
    /// of), so a product that brings a nag library of its own keeps them; without the shell the
    /// document logs one error and reads as empty.
    static WebConfigDocument defaults();

    bool isEmpty() const;
    /// The value of `section`/`key` for `locale`; `fallback` when the key is absent or malformed.
    QVariant value(const QString& section, const QString& key, const QString& locale,
                   const QVariant& fallback = {}) const;
    /// A copy in which every key of `other` replaces the key of this document.
    WebConfigDocument mergedWith(const WebConfigDocument& other) const;

private:
    explicit WebConfigDocument(QJsonObject root);
    QJsonObject m_root;
};

} // namespace Ostrel::App::WebConfig
