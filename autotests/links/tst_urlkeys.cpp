// The link vocabulary: every key's number, name and template, compared with the table written out
// in url_table.tsv (not worked out from the library's own tables), and nothing more in the library.

#include "Interfaces/URLKeys.h"

#include "TestEnvironment.h"
#include "TestFiles.h"

using namespace Ostrel;
using namespace Ostrel::App;

class TestUrlKeys : public QObject
{
    Q_OBJECT
private slots:
    void everyKeyAsWrittenDown_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        const QList<QStringList> rows = Test::readTable(QStringLiteral(OSTREL_URL_TABLE));
        QVERIFY(!rows.isEmpty());
        for (const QStringList& fields : rows) {
            QCOMPARE(fields.size(), 3);
            QTest::newRow(qPrintable(fields[1])) << fields[0].toInt() << fields[1] << fields[2];
        }
        // The library holds no key and no template that the table lacks.
        QCOMPARE(size_t(rows.size()), UrlKeyNames.size());
        QCOMPARE(size_t(rows.size()), UrlTemplates.size());
    }

    void everyKeyAsWrittenDown()
    {
        QFETCH(int, number);
        QFETCH(QString, name);
        QFETCH(QString, expected);
        const auto found = UrlKeyNames.find(static_cast<URLKeys>(number));
        QVERIFY(found != UrlKeyNames.end());
        QCOMPARE(QString::fromStdString(found->second), name);
        const auto templ = UrlTemplates.find(found->second);
        QVERIFY(templ != UrlTemplates.end());
        QCOMPARE(QString::fromStdString(templ->second), expected);
    }
};

OSTREL_TEST_MAIN(TestUrlKeys)
#include "tst_urlkeys.moc"
