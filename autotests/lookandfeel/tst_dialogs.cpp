// The dialogs that keep an answer or a colour in the settings, driven as a user would, with what
// they stored read back by a second process; the driver messages and the statistics question.

#include "App/Application/AppStoreStatistics.h"
#include "App/Application/ColorDialogHelper.h"
#include "App/Application/ConfirmationAlertBox.h"
#include "App/Application/GPUDriverMessages.h"
#include "Core/ApplicationSettingsManager.h"
#include "Interfaces/ICustomizationManager.h"

#include "AccessibleTree.h"
#include "FakeCustomization.h"
#include "ProbeRunner.h"
#include "TestEnvironment.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDeadlineTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

// The second process's "key=value" lines; empty when it failed.
QMap<QString, QString> probe(const QStringList& arguments)
{
    const auto result = Test::ProbeRunner(QStringLiteral(LOOKANDFEEL_PROBE)).run(arguments, 10000);
    return result.finished && result.exitCode == 0 ? result.values : QMap<QString, QString>();
}

// Acts on the next modal box as soon as it shows, like a person in front of the screen. Gives up
// after five seconds, so that a box that never came cannot be answered in a later row.
void whenShown(const std::function<void(QMessageBox*)>& act)
{
    auto* timer = new QTimer;
    const QDeadlineTimer deadline(5000);
    QObject::connect(timer, &QTimer::timeout, [timer, act, deadline]() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            if (deadline.hasExpired()) {
                timer->stop();
                timer->deleteLater();
            }
            return;
        }
        timer->stop();
        timer->deleteLater();
        act(box);
    });
    timer->start(10);
}

void tickAndClick(QMessageBox* box, QMessageBox::StandardButton button, bool tick)
{
    if (tick)
        QTest::mouseClick(box->checkBox(), Qt::LeftButton);
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

} // namespace

class DialogsTest : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_dir;
    QString m_file;
    std::shared_ptr<ApplicationSettingsManager> m_settings;
    // A box that nobody answers (one that should not have shown) is closed after ten seconds, and
    // the row fails, instead of the test hanging.
    QTimer m_boxGuard;
    bool m_boxLeftOpen = false;

private slots:
    void initTestCase()
    {
        m_boxGuard.setSingleShot(true);
        connect(&m_boxGuard, &QTimer::timeout, this, [this]() {
            QWidget* box = QApplication::activeModalWidget();
            m_boxLeftOpen = box != nullptr;
            // Rejected rather than closed: a message box without an escape button ignores a close.
            if (auto* dialog = qobject_cast<QDialog*>(box))
                dialog->reject();
        });
    }

    void cleanup()
    {
        m_boxGuard.stop();
        QVERIFY2(!m_boxLeftOpen, "a box stayed open without an answer");
    }

    void init()
    {
        m_boxLeftOpen = false;
        m_boxGuard.start(10000);
        m_file =
            m_dir.filePath(QStringLiteral("%1.ini").arg(QString::fromLatin1(QTest::currentTestFunction()) +
                                                        QString::fromLatin1(QTest::currentDataTag())));
        m_file.replace(QLatin1Char(' '), QLatin1Char('_'));
        QFile::remove(m_file);
        m_settings = std::make_shared<ApplicationSettingsManager>(m_file);
    }

    void confirmation_data()
    {
        QTest::addColumn<int>("clicked");
        QTest::addColumn<bool>("tick");
        QTest::addColumn<bool>("rememberOnReject");
        QTest::addColumn<int>("rememberOnly");
        QTest::addColumn<int>("forced");
        QTest::addColumn<bool>("remembered");
        QTest::addColumn<int>("storedAnswer");

        const int yes = QMessageBox::Yes, no = QMessageBox::No, cancel = QMessageBox::Cancel;
        QTest::newRow("ticked yes") << yes << true << false << 0 << -1 << true << yes;
        QTest::newRow("ticked no (no role)") << no << true << false << 0 << -1 << true << no;
        QTest::newRow("unticked yes") << yes << false << false << 0 << -1 << false << 0;
        QTest::newRow("ticked cancel is not remembered") << cancel << true << false << 0 << -1 << false << 0;
        QTest::newRow("ticked cancel with remember on reject")
            << cancel << true << true << 0 << -1 << true << cancel;
        QTest::newRow("remember only yes, no clicked") << no << true << false << yes << -1 << false << 0;
        QTest::newRow("remember only yes, yes clicked") << yes << true << false << yes << -1 << true << yes;
        QTest::newRow("forced answer is stored")
            << yes << true << false << 0 << int(QMessageBox::Ok) << true << int(QMessageBox::Ok);
    }

    void confirmation()
    {
        QFETCH(int, clicked);
        QFETCH(bool, tick);
        QFETCH(bool, rememberOnReject);
        QFETCH(int, rememberOnly);
        QFETCH(int, forced);
        QFETCH(bool, remembered);
        QFETCH(int, storedAnswer);
        {
            ConfirmationAlertBox box(m_settings, Util::AlertBox::Question, QStringLiteral("Title"),
                                     QStringLiteral("Continue?"),
                                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            box.SetConfirmationId(QStringLiteral("Question_1"));
            QVERIFY(!box.IsDontConfirm());
            QCOMPARE(box.checkBox()->objectName(), QStringLiteral("dontConfirmCheckBox"));
            box.SetRememberOnReject(rememberOnReject);
            box.SetRememberOnly(QMessageBox::StandardButtons(rememberOnly));
            if (forced >= 0)
                box.SetForceSaveAnswer(forced);
            whenShown(
                [&](QMessageBox* shown) { tickAndClick(shown, QMessageBox::StandardButton(clicked), tick); });
            QCOMPARE(int(box.Exec()), clicked);
        }
        QCOMPARE(m_settings->GetBool("confirm/Question_1_dont_confirm", false), remembered);

        QCoreApplication::processEvents(); // the store saves its changes at the next turn
        const auto readBack = probe({QStringLiteral("confirm"), m_file, QStringLiteral("Question_1")});
        QCOMPARE(readBack.value(QStringLiteral("shown")),
                 remembered ? QStringLiteral("0") : QStringLiteral("1"));
        if (remembered)
            QCOMPARE(readBack.value(QStringLiteral("answer")).toInt(), storedAnswer);
    }

    void dontConfirmWithoutAnswerGivesNoButton()
    {
        ConfirmationAlertBox box(m_settings, Util::AlertBox::Question, QString(), QString(), QMessageBox::Ok);
        QCOMPARE(box.GetConfirmationText(), QStringLiteral("Don't show this again"));
        box.SetDontConfirm(true);
        QCOMPARE(int(box.Exec()), int(QMessageBox::NoButton));
        QVERIFY(!box.isVisible());
    }

    void noIdUsesEmptyKeys()
    {
        m_settings->SetBool("confirm/_dont_confirm", true);
        m_settings->SetInt("confirm/_answer", QMessageBox::Ok);
        ConfirmationAlertBox box(m_settings, Util::AlertBox::Question, QString(), QString(), QMessageBox::Ok);
        QVERIFY(!box.IsDontConfirm()); // not tied to any state before SetConfirmationId
        box.SetConfirmationId(QString());
        QCOMPARE(int(box.Exec()), int(QMessageBox::Ok));
    }

    void resetAsksAgainAndKeepsTheOldAnswer()
    {
        m_settings->SetBool("confirm/Q_dont_confirm", true);
        m_settings->SetInt("confirm/Q_answer", QMessageBox::Yes);
        {
            ConfirmationAlertBox box(m_settings, Util::AlertBox::Question, QString(), QString(),
                                     QMessageBox::Yes | QMessageBox::No);
            box.SetConfirmationId(QStringLiteral("Q"));
            box.Reset();
            QVERIFY(box.IsDontConfirm());
        }
        QCOMPARE(m_settings->GetInt("confirm/Q_answer", 0), int(QMessageBox::Yes));
        QCOMPARE(
            probe({QStringLiteral("confirm"), m_file, QStringLiteral("Q")}).value(QStringLiteral("shown")),
            QStringLiteral("1"));

        ConfirmationAlertBox box(m_settings, Util::AlertBox::Question, QString(), QString(),
                                 QMessageBox::Yes | QMessageBox::No);
        box.SetConfirmationId(QStringLiteral("Q"));
        whenShown([](QMessageBox* shown) { tickAndClick(shown, QMessageBox::No, true); });
        QCOMPARE(int(box.Exec()), int(QMessageBox::No));
        QCOMPARE(m_settings->GetInt("confirm/Q_answer", 0), int(QMessageBox::No));
    }

    void customColoursSurviveTheProcess()
    {
        const QString group = QStringLiteral("Ostrel::App::ColorDialogHelper/");
        const auto key = [&](const QString& name) { return QString(group + name).toStdString(); };
        const auto first = probe({QStringLiteral("colors-load"), m_file});
        QCOMPARE(first.value(QStringLiteral("count")).toInt(), QColorDialog::customCount());
        QVERIFY(first.value(QStringLiteral("color1")) != QStringLiteral("#a0b0c0"));

        const auto saved = Test::ProbeRunner(QStringLiteral(LOOKANDFEEL_PROBE))
                               .run({QStringLiteral("colors-save"), m_file, QStringLiteral("#102030"),
                                     QStringLiteral("#a0b0c0")});
        QVERIFY(saved.finished && saved.exitCode == 0);
        const auto stored = std::make_shared<ApplicationSettingsManager>(m_file);
        QCOMPARE(stored->GetInt(key(QStringLiteral("ColorsCount")), 0), QColorDialog::customCount());
        QCOMPARE(stored->GetString(key(QStringLiteral("Color0")), ""), std::string("#102030"));
        QCOMPARE(stored->GetString(key(QStringLiteral("Color1")), ""), std::string("#a0b0c0"));

        const auto second = probe({QStringLiteral("colors-load"), m_file});
        QCOMPARE(second.value(QStringLiteral("color0")), QStringLiteral("#102030"));
        QCOMPARE(second.value(QStringLiteral("color1")), QStringLiteral("#a0b0c0"));
        QCOMPARE(second.value(QStringLiteral("color2")), first.value(QStringLiteral("color2")));

        // The same table saved again takes nothing else in its group along.
        stored->SetString(key(QStringLiteral("Color99")), "#ffffff");
        QCoreApplication::processEvents(); // saved at the next turn
        QVERIFY(Test::ProbeRunner(QStringLiteral(LOOKANDFEEL_PROBE))
                    .run({QStringLiteral("colors-save"), m_file, QStringLiteral("#102030"),
                          QStringLiteral("#a0b0c0")})
                    .exitCode == 0);
        QVERIFY(!ApplicationSettingsManager(m_file).Has(key(QStringLiteral("Color99"))));

        // An entry missing below the count reads as transparent's name.
        stored->Remove(key(QStringLiteral("Color0")));
        QCoreApplication::processEvents(); // saved at the next turn
        QCOMPARE(probe({QStringLiteral("colors-load"), m_file}).value(QStringLiteral("color0")),
                 QColor(Qt::transparent).name());
    }

    void statisticsQuestion_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("sendStatistics");
        QTest::newRow("agree") << QStringLiteral("agree") << true;
        QTest::newRow("disagree") << QStringLiteral("disagree") << false;
        QTest::newRow("escape") << QStringLiteral("escape") << false;
        QTest::newRow("close") << QStringLiteral("close") << false;
    }

    void statisticsQuestion()
    {
        QFETCH(QString, action);
        QFETCH(bool, sendStatistics);
        const auto customization = std::make_shared<Test::FakeCustomization>();
        QString text;
        whenShown([&](QMessageBox* box) {
            QCOMPARE(box->objectName(), QStringLiteral("requestAppStoreStatistics"));
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::Cancel));
            text = box->text();
            // A screen reader reads it as a named alert whose buttons tell what they do.
            const QStringList silent = Test::silentControls(box);
            QVERIFY2(silent.isEmpty(), qPrintable(silent.join(QStringLiteral("; "))));
            if (action == QLatin1String("agree"))
                QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            else if (action == QLatin1String("disagree"))
                QTest::mouseClick(box->button(QMessageBox::Cancel), Qt::LeftButton);
            else if (action == QLatin1String("escape"))
                QTest::keyClick(box, Qt::Key_Escape);
            else
                box->close();
        });
        requestAppStoreStatistics(m_settings, customization);
        QVERIFY(text.contains(QStringLiteral("Links Probe")));
        QCOMPARE(m_settings->GetBool("sendStatistics", !sendStatistics), sendStatistics);
        QCOMPARE(m_settings->GetBool("is_first_show_appstore_statistic", true), false);

        // Asked once: a second call shows nothing (a shown box would block this test until timeout).
        requestAppStoreStatistics(m_settings, customization);
    }

    void statisticsNotAskedOfAnAgreedUser()
    {
        m_settings->SetBool("sendStatistics", true);
        requestAppStoreStatistics(m_settings, std::make_shared<Test::FakeCustomization>());
        QVERIFY(!m_settings->Has("is_first_show_appstore_statistic"));
    }

    void driverMessages()
    {
        qApp->setProperty("linkStyle", QVariant());
        const QString needSetup = GetGPUNeedSetupDriverMessage(QStringLiteral("u%1"), QStringLiteral("p"));
        QVERIFY(needSetup.contains(QStringLiteral("<a href=\"u%1\" style=\"\">Detailed Instructions</a>")));
        QVERIFY(needSetup.contains(QStringLiteral("acceleration for p, select")));

        qApp->setProperty("linkStyle", QStringLiteral("color: #58e47b"));
        QVERIFY(GetGPUUnsupportedDriverMessage(QStringLiteral("https://d/%2"))
                    .endsWith(QStringLiteral(
                        "<a href=\"https://d/%2\" style=\"color: #58e47b\">Download Driver</a>")));
        qApp->setProperty("linkStyle", QVariant());
    }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    QApplication app(argc, argv);
    DialogsTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}
#include "tst_dialogs.moc"
