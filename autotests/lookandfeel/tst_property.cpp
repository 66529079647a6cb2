// The text form of property trees: what title files are written in, damaged ones included.

#include "Foundation/DataInputString.h"
#include "Foundation/Property.h"
#include "Foundation/PropertySerializer.h"

#include <QtTest>

#include <glog/logging.h>

using namespace Ostrel::Core;

namespace {

Property parse(const QByteArray& text, bool* ok = nullptr)
{
    Property property;
    const bool result =
        PropertySerializer::Deserialize(property, DataInputString::Create(text.toStdString()), true);
    if (ok)
        *ok = result;
    return property;
}

// "name=value" of the top-level children, in order, for compact comparisons.
QStringList flat(const Property& property)
{
    QStringList out;
    for (const Property& child : property.GetChildren())
        out << QString::fromStdString(child.GetName() + "=" + child.GetString());
    return out;
}

} // namespace

class PropertyTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { FLAGS_minloglevel = google::GLOG_ERROR; }

    void parses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QStringList>("children");

        QTest::newRow("plain and utf-8")
            << QByteArray("en_US = Dark\nru_RU = Тёмная\n") << true
            << QStringList{QStringLiteral("en_US=Dark"), QStringLiteral("ru_RU=Тёмная")};
        QTest::newRow("comments, blanks, crlf, bom")
            << QByteArray("\xEF\xBB\xBF# title\r\n\r\n  de_DE =  Dunkel  \r\n") << true
            << QStringList{QStringLiteral("de_DE=Dunkel")};
        QTest::newRow("quoted with escapes") << QByteArray("a = \"x \\\"y\\\" \\\\ \\n\"") << true
                                             << QStringList{QStringLiteral("a=x \"y\" \\ \n")};
        QTest::newRow("empty value") << QByteArray("a =\n") << true << QStringList{QStringLiteral("a=")};
        QTest::newRow("empty input") << QByteArray() << true << QStringList{};
        QTest::newRow("broken line keeps the leading part")
            << QByteArray("a = 1\nthis is no statement\nb = 2\n") << false
            << QStringList{QStringLiteral("a=1")};
        QTest::newRow("unterminated quote")
            << QByteArray("a = 1\nb = \"open\n") << false << QStringList{QStringLiteral("a=1")};
        QTest::newRow("text after closing quote") << QByteArray("a = \"x\" y\n") << false << QStringList{};
        QTest::newRow("stray closing brace")
            << QByteArray("a = 1\n}\nb = 2") << false << QStringList{QStringLiteral("a=1")};
        QTest::newRow("unclosed block")
            << QByteArray("a {\nb = 1\n") << false << QStringList{QStringLiteral("a=")};
        QTest::newRow("binary garbage") << QByteArray("\x00\x01\xff=\n", 5) << false << QStringList{};
    }

    void parses()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, ok);
        QFETCH(QStringList, children);
        bool result = !ok;
        const Property property = parse(text, &result);
        QCOMPARE(result, ok);
        QCOMPARE(flat(property), children);
    }

    void nestedBlocksRoundTrip()
    {
        Property root;
        Property& theme = root.AddChild("theme");
        theme.AddChild("en_US", "Dark \"night\"");
        theme.AddChild("multi", "line\nbreak\tand tab");
        root.AddChild("plain", "value");
        const std::string text = PropertySerializer::Serialize(root);

        bool ok = false;
        const Property back = parse(QByteArray::fromStdString(text), &ok);
        QVERIFY(ok);
        QCOMPARE(PropertySerializer::Serialize(back), text);
        QVERIFY(back.ChildExists("theme"));
        QCOMPARE(back.GetChild("theme")->GetChildString("en_US"), std::string("Dark \"night\""));
        QCOMPARE(back.GetChildString("missing", "fallback"), std::string("fallback"));
    }

    void deepNestingIsRefused()
    {
        QByteArray text;
        for (int i = 0; i < 10000; ++i)
            text += "n {\n";
        bool ok = true;
        const Property property = parse(text, &ok);
        QVERIFY(!ok);
        QCOMPARE(property.GetChildren().size(), size_t(1));
    }

    void deserializeAppendsWithoutClear()
    {
        Property property;
        property.AddChild("kept", "1");
        QVERIFY(PropertySerializer::Deserialize(property, DataInputString::Create("new = 2"), false));
        QCOMPARE(flat(property), (QStringList{QStringLiteral("kept=1"), QStringLiteral("new=2")}));
    }
};

QTEST_GUILESS_MAIN(PropertyTest)
#include "tst_property.moc"
