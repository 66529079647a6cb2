#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <mutex>

namespace Ostrel::Core {

namespace {

const QString& replacement()
{
    static const QString text = QStringLiteral("***");
    return text;
}

// An address, with "@" or its encoding "%40"; the local part may carry encoded characters
// ("%2B" for "+") and the domain needs a dot, so that "user@localhost" in a log of sockets
// stays readable.
const QRegularExpression& addressPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"([A-Za-z0-9._%+\-]+(?:@|%40)[A-Za-z0-9\-]+(?:\.[A-Za-z0-9\-]+)*\.[A-Za-z]{2,})"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

// The query items of links that carry the name and the address. A value ends where its query
// item ends, in every form a URL is written in: a display form shows "%20" as a blank, so a blank
// does not end it; a URL quoted inside another one ("%3F", "%26", "%3D", encoded once or more)
// ends it at the encoded separator. Whatever follows on the line up to a quote, "<" or ">" counts
// as the value: a log line may lose its tail, a name never its second word.
const QString& personalKeys()
{
    static const QString keys =
        QStringLiteral("(?:name|email|e-mail|mail|username|user_name|first_?name|last_?name|full_?name)");
    return keys;
}

const QRegularExpression& personalItemPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(((?:[?&;]|%(?:25)*(?:3F|26|3B))%1=)[^&#"'<>\r\n]*)").arg(personalKeys()),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

const QRegularExpression& encodedPersonalItemPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(
            R"(((?:[?&;]|%(?:25)*(?:3F|26|3B))%1%(?:25)*3D)(?:(?!%(?:25)*(?:26|23))[^&#"'<>\r\n])*)")
            .arg(personalKeys()),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

struct KnownValues
{
    std::mutex mutex;
    QStringList forms;
};

KnownValues& knownValues()
{
    static KnownValues values;
    return values;
}

} // namespace

QString PersonalDataMask::mask(const QString& text)
{
    QString result = text;
    {
        KnownValues& known = knownValues();
        std::lock_guard<std::mutex> lock(known.mutex);
        for (const QString& form : qAsConst(known.forms))
            result.replace(form, replacement(), Qt::CaseInsensitive);
    }
    result.replace(addressPattern(), replacement());
    result.replace(personalItemPattern(), QStringLiteral("\\1") + replacement());
    result.replace(encodedPersonalItemPattern(), QStringLiteral("\\1") + replacement());
    return result;
}

std::string PersonalDataMask::mask(const std::string& text)
{
    return Util::QStringToUtf8(mask(Util::Utf8ToQString(text)));
}

void PersonalDataMask::rememberPersonalValue(const QString& value)
{
    const QString trimmed = value.trimmed();
    if (trimmed.size() < 3)
        return;
    const QString encoded = QString::fromLatin1(QUrl::toPercentEncoding(trimmed));
    QString formEncoded = encoded;
    formEncoded.replace(QStringLiteral("%20"), QStringLiteral("+"));
    KnownValues& known = knownValues();
    std::lock_guard<std::mutex> lock(known.mutex);
    for (const QString& form : {trimmed, encoded, formEncoded}) {
        if (!known.forms.contains(form, Qt::CaseInsensitive))
            known.forms.append(form);
    }
}

void PersonalDataMask::forgetPersonalValues()
{
    KnownValues& known = knownValues();
    std::lock_guard<std::mutex> lock(known.mutex);
    known.forms.clear();
}

} // namespace Ostrel::Core
