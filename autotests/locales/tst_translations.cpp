// Every text the shell and the sample host mark for translation, as lupdate finds it in the
// sources today, looked up in the compiled translations of every locale: each has a translation,
// and the translation keeps the source's placeholders, tags and entities, so that no window shows
// English in the middle of another language, loses an argument or breaks its markup.

#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

const QString SourceRoot = QStringLiteral(OSTREL_SOURCE_ROOT);
const QString BuildRoot = QStringLiteral(OSTREL_BUILD_ROOT);

struct Message
{
    QString context;
    QString source;
    QString comment;
    bool numerus = false;
};

// What a translator must carry over unchanged: %1-style arguments (and the %n, %v and %m that Qt
// fills in), tags with their attributes, and entities. Order may change with the language.
QStringList keptParts(const QString& text)
{
    static const QRegularExpression parts(QStringLiteral("%L?\\d+|%[nvm]|<[^>]*>|&#?\\w+;"));
    QStringList found;
    for (auto it = parts.globalMatch(text); it.hasNext();)
        found << it.next().captured();
    found.sort();
    return found;
}

QList<Message> readMessages(const QString& tsFile, QString* error)
{
    QFile file(tsFile);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1").arg(tsFile);
        return {};
    }
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            Message message{context, QString(), QString(),
                            xml.attributes().value(QStringLiteral("numerus")) == QLatin1String("yes")};
            while (xml.readNextStartElement()) {
                if (xml.name() == QLatin1String("source"))
                    message.source = xml.readElementText();
                else if (xml.name() == QLatin1String("comment"))
                    message.comment = xml.readElementText();
                else
                    xml.skipCurrentElement();
            }
            messages << message;
        }
    }
    if (xml.hasError())
        *error = QStringLiteral("%1: %2").arg(tsFile, xml.errorString());
    return messages;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QList<Message> m_messages;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QString extracted = m_dir.filePath(QStringLiteral("marked.ts"));
        QProcess script;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(OSTREL_LUPDATE));
        script.setProcessEnvironment(environment);
        script.setProcessChannelMode(QProcess::ForwardedChannels);
        script.start(QStringLiteral("bash"), {SourceRoot + QStringLiteral("/scripts/translations.sh"),
                                              QStringLiteral("--extract"), extracted});
        QVERIFY2(script.waitForFinished(60000), "the extraction did not end within a minute");
        QCOMPARE(script.exitStatus(), QProcess::NormalExit);
        QCOMPARE(script.exitCode(), 0);
        QString error;
        m_messages = readMessages(extracted, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        // The shell and the host mark dozens of texts; a handful means the extraction went wrong.
        QVERIFY2(m_messages.size() > 40, qPrintable(QString::number(m_messages.size())));
    }

    void everyTextTranslated_data()
    {
        QTest::addColumn<QString>("qmFile");
        const QStringList sources = QDir(SourceRoot + QStringLiteral("/resources/locales"))
                                        .entryList({QStringLiteral("ostrel_*.ts")}, QDir::Files, QDir::Name);
        QCOMPARE(sources.size(), 14);
        for (const QString& ts : sources) {
            const QString locale = ts.mid(7, ts.size() - 10);
            QTest::newRow(qPrintable(locale))
                << QStringLiteral("%1/resources/locales/%2/ostrel_%2.qm").arg(BuildRoot, locale);
        }
    }

    void everyTextTranslated()
    {
        QFETCH(QString, qmFile);
        QVERIFY2(QFileInfo::exists(qmFile), qPrintable(QStringLiteral("missing: ") + qmFile));
        QTranslator translator;
        QVERIFY2(translator.load(qmFile) && !translator.isEmpty(),
                 qPrintable(QStringLiteral("damaged or empty: ") + qmFile));

        QStringList faults;
        for (const Message& message : qAsConst(m_messages)) {
            const QByteArray context = message.context.toUtf8();
            const QByteArray source = message.source.toUtf8();
            const QByteArray comment = message.comment.toUtf8();
            // A text with a count is asked for with several, so that every plural form is seen;
            // -1 is what a call without a count asks for.
            const QList<int> counts = message.numerus ? QList<int>{-1, 1, 2, 5, 11, 21} : QList<int>{-1};
            for (int n : counts) {
                const QString translation =
                    translator.translate(context.constData(), source.constData(),
                                         comment.isEmpty() ? nullptr : comment.constData(), n);
                const QString where = QStringLiteral("%1 \"%2\"%3")
                                          .arg(message.context, message.source,
                                               n < 0 ? QString() : QStringLiteral(" n=%1").arg(n));
                if (translation.isEmpty())
                    faults << QStringLiteral("untranslated: ") + where;
                else if (keptParts(translation) != keptParts(message.source))
                    faults << QStringLiteral("placeholders or markup differ: %1 -> \"%2\"")
                                  .arg(where, translation);
            }
        }
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(),
                 qPrintable(qmFile + QStringLiteral(":\n  ") + faults.join(QStringLiteral("\n  "))));
    }
};

OSTREL_TEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
