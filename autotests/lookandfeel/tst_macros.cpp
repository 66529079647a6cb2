// Theme macros replaced in one scan against the ordered replacement (one pass over the whole text
// per macro, ascending key order): the same text on hand-made cases, on generated sheets built to
// hit prefixes, values that name macros and runs of "@", and on the fuzz corpus of stylesheets.

#include "App/Application/StylesheetMacros.h"

#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cstring>
#include <random>

using namespace Ostrel::App;

using Macros = std::map<QString, QString>;
Q_DECLARE_METATYPE(Macros)

namespace {

const QString Corpus = QStringLiteral(OSTREL_STYLESHEET_CORPUS);

// Every block of every section of a macro file, as the manager merges them (later wins).
Macros macrosOfFile(const QByteArray& json)
{
    Macros macros;
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    for (const QJsonValue& section : root) {
        const QJsonObject blocks = section.toObject();
        for (const QJsonValue& block : blocks) {
            const QVariantMap values = block.toObject().toVariantMap();
            for (auto it = values.cbegin(); it != values.cend(); ++it)
                macros[QLatin1Char('@') + it.key()] = it.value().toString();
        }
    }
    return macros;
}

// Short names over two letters make prefixes and partial names common; values and text use "@".
struct Generator
{
    std::mt19937 random;
    explicit Generator(unsigned seed) : random(seed) {}
    QString word(const char* alphabet, int maxLength)
    {
        const int length = int(random() % unsigned(maxLength + 1));
        const int letters = int(std::strlen(alphabet));
        QString text;
        for (int i = 0; i < length; ++i)
            text += QLatin1Char(alphabet[random() % unsigned(letters)]);
        return text;
    }
    Macros macros(int count, bool valuesWithMarks)
    {
        Macros macros;
        for (int i = 0; i < count; ++i)
            macros[QLatin1Char('@') + word("ab", 3)] = word(valuesWithMarks ? "ab@x " : "x;#", 4);
        return macros;
    }
};

// The text kept by the caller and the text handed over (rewritten in place where it can be), both
// against the ordered replacement: empty when all three agree, else what differs.
QString differences(const Macros& macros, const QString& text, bool* onePass = nullptr)
{
    const StylesheetMacros scan(macros);
    const QString expected = StylesheetMacros::applyInOrder(text, macros);
    const QString kept = scan.apply(text, onePass);
    const QString handedOver = scan.apply(QString(text));
    if (kept == expected && handedOver == expected)
        return QString();
    QStringList pairs;
    for (const auto& [key, value] : macros)
        pairs << key + QLatin1Char('=') + value;
    return QStringLiteral("text \"%1\", macros %2: \"%3\" / \"%4\", expected \"%5\"")
        .arg(text.left(200), pairs.join(QLatin1Char(' ')).left(200), kept.left(200), handedOver.left(200),
             expected.left(200));
}

} // namespace

class MacrosTest : public QObject
{
    Q_OBJECT
private slots:
    void sameTextAsTheOrderedReplacement_data()
    {
        QTest::addColumn<Macros>("macros");
        QTest::addColumn<QString>("text");
        const auto m = [](std::initializer_list<std::pair<const char*, const char*>> pairs) {
            Macros macros;
            for (const auto& [key, value] : pairs)
                macros[QString::fromUtf8(key)] = QString::fromUtf8(value);
            return macros;
        };
        QTest::newRow("no macros") << Macros() << QStringLiteral("a { color: @c; }");
        QTest::newRow("no marks in the text") << m({{"@c", "red"}}) << QStringLiteral("a { color: c; }");
        QTest::newRow("macro used nowhere")
            << m({{"@c", "red"}, {"@d", "blue"}}) << QStringLiteral("x: @d @e;");
        QTest::newRow("prefix name wins inside the longer")
            << m({{"@A", "red"}, {"@AB", "blue"}}) << QStringLiteral("c: @AB @A;");
        QTest::newRow("value names a later macro")
            << m({{"@a", "@b!"}, {"@b", "@c?"}, {"@c", "z"}}) << QStringLiteral("@a @b @c");
        QTest::newRow("value names an earlier macro, which stays")
            << m({{"@a", "x"}, {"@b", "@a"}}) << QStringLiteral("@b");
        QTest::newRow("value completes a name with the text after it")
            << m({{"@a", "@b"}, {"@bc", "Z"}}) << QStringLiteral("@ac;");
        QTest::newRow("replacement completes the name before it")
            << m({{"@A", "Y"}, {"@XY", "Z"}}) << QStringLiteral("@X@A;");
        QTest::newRow("runs of marks") << m({{"@", "!"}, {"@@", "?"}}) << QStringLiteral("@@@ @");
        QTest::newRow("name holding a second mark")
            << m({{"@a@b", "1"}, {"@b", "2"}}) << QStringLiteral("@a@b @b");
        QTest::newRow("empty value") << m({{"@a", ""}}) << QStringLiteral("x@a;@a");
        QTest::newRow("non-ASCII names and values")
            << m({{"@ä", "ö"}, {"@äx", "ü"}}) << QStringLiteral("@äx @ä");

        Macros many;
        QString manyText;
        for (int i = 0; i < 10000; ++i) {
            many[QStringLiteral("@m%1").arg(i)] = QStringLiteral("#%1").arg(i, 6, 16, QLatin1Char('0'));
            if (i % 7 == 0)
                manyText += QStringLiteral("w%1 { color: @m%1; }\n").arg(i);
        }
        QTest::newRow("10,000 macros, prefix names among them") << many << manyText;
        QString big;
        while (big.size() < 5 * 1024 * 1024)
            big += QStringLiteral("QWidget#w { color: @fg; background: @bg; border: 1px solid @fgx; }\n");
        QTest::newRow("5 MB sheet") << m({{"@fg", "#fff"}, {"@bg", "#000"}}) << big;
    }

    void sameTextAsTheOrderedReplacement()
    {
        QFETCH(Macros, macros);
        QFETCH(QString, text);
        const QString differs = differences(macros, text);
        QVERIFY2(differs.isEmpty(), qPrintable(differs));
    }

    // Thousands of random cases; most must be decided by the single scan, or the equality above
    // would prove nothing about it.
    void generatedSheets_data()
    {
        QTest::addColumn<bool>("valuesWithMarks");
        QTest::newRow("plain values") << false;
        QTest::newRow("values naming macros") << true;
    }

    void generatedSheets()
    {
        QFETCH(bool, valuesWithMarks);
        Generator generate(valuesWithMarks ? 7 : 3);
        int scanned = 0;
        const int cases = 3000;
        for (int i = 0; i < cases; ++i) {
            const Macros macros = generate.macros(int(generate.random() % 8), valuesWithMarks);
            const QString text = generate.word("ab@ ;", 60);
            bool onePass = false;
            const QString differs = differences(macros, text, &onePass);
            scanned += onePass ? 1 : 0;
            QVERIFY2(differs.isEmpty(), qPrintable(differs));
        }
        QVERIFY2(scanned > cases / 2,
                 qPrintable(QStringLiteral("%1 of %2 in one scan").arg(scanned).arg(cases)));
    }

    // The fuzz target's inputs: the macro file before the first NUL byte, the stylesheet after it.
    void fuzzCorpus()
    {
        const QFileInfoList inputs = QDir(Corpus).entryInfoList(QDir::Files);
        QVERIFY(!inputs.isEmpty());
        for (const QFileInfo& input : inputs) {
            QFile file(input.absoluteFilePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            const int split = bytes.indexOf('\0');
            const Macros macros = macrosOfFile(split < 0 ? bytes : bytes.left(split));
            const QString text = split < 0 ? QString() : QString::fromUtf8(bytes.mid(split + 1));
            const QString differs = differences(macros, text);
            QVERIFY2(differs.isEmpty(), qPrintable(input.fileName() + QLatin1String(": ") + differs));
        }
    }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    QCoreApplication app(argc, argv);
    MacrosTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}
#include "tst_macros.moc"
