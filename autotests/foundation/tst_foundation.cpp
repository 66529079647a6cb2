#include "Foundation/AppMutexLocker.h"
#include "Foundation/CrashRecord.h"
#include "Foundation/DyLib.h"
#include "Foundation/SHA1.h"
#include "Foundation/SystemInfo.h"
#include "Foundation/ioPath.h"

#include "LogCapture.h"
#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSysInfo>

#include <set>
#include <stdexcept>

using Ostrel::Core::ioPath;
using Ostrel::Util::AppMutexLocker;

namespace {

// Fixed names: lock files are never deleted, so fresh names on every run would pile up.
std::string lockName(const char* tag)
{
    return "tst-foundation-" + std::string(tag);
}

QByteArray readCrashRecords()
{
    QFile file(Ostrel::Core::CrashRecordPath().toQString());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A foundation_lockholder child; killed and reaped on destruction so that no test leaves one
// behind (and QProcess does not warn about a running process).
class LockHolder
{
public:
    explicit LockHolder(const std::string& name)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(FOUNDATION_LOCKHOLDER), {QString::fromStdString(name)});
    }
    ~LockHolder() { kill(); }

    /// The child's answer: "locked", "busy", or empty if it said nothing in time.
    QByteArray answer()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(10000)) {
        }
        return m_process.readLine().trimmed();
    }

    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished(10000);
    }

private:
    QProcess m_process;
};

} // namespace

class TestFoundation : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(Ostrel::Core::CrashRecordPath().toQString()); }

    void pathJoin_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QString>("joined");

        // clang-format off
        QTest::newRow("plain") << "a" << "b" << "a/b";
        QTest::newRow("left trailing separator") << "a/" << "b/c" << "a/b/c";
        QTest::newRow("left doubled trailing separators") << "a//" << "b" << "a/b";
        QTest::newRow("right trailing separator kept") << "a" << "b/" << "a/b/";
        QTest::newRow("root left") << "/" << "b" << "/b";
        QTest::newRow("empty left") << "" << "b/c" << "b/c";
        QTest::newRow("empty right") << "/a/b/" << "" << "/a/b/";
        QTest::newRow("both empty") << "" << "" << "";
        QTest::newRow("absolute right replaces") << "/a/b" << "/c" << "/c";
        QTest::newRow("non-ASCII") << "/données" << QString::fromUtf8("日本語.txt")
                                   << QString::fromUtf8("/données/日本語.txt");
        // clang-format on
    }

    void pathJoin()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(QString, joined);

        QCOMPARE((ioPath(left) / ioPath(right)).toQString(), joined);
        ioPath compound(left.toStdString());
        compound /= right.toStdString();
        QCOMPARE(compound.utf8(), joined.toStdString());
    }

    void pathComponents_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("parent");

        // clang-format off
        QTest::newRow("relative") << "a/b.txt" << "b.txt" << "a";
        QTest::newRow("under root") << "/a" << "a" << "/";
        QTest::newRow("single component") << "a" << "a" << "";
        QTest::newRow("trailing separator") << "a/b/" << "" << "a/b";
        QTest::newRow("doubled separator") << "a//b" << "b" << "a";
        QTest::newRow("root") << "/" << "" << "/";
        QTest::newRow("empty") << "" << "" << "";
        QTest::newRow("non-ASCII") << QString::fromUtf8("/tmp/Ünï/ç.log") << QString::fromUtf8("ç.log")
                                   << QString::fromUtf8("/tmp/Ünï");
        // clang-format on
    }

    void pathComponents()
    {
        QFETCH(QString, path);
        QFETCH(QString, fileName);
        QFETCH(QString, parent);

        QCOMPARE(ioPath(path).fileName().toQString(), fileName);
        QCOMPARE(ioPath(path).parent().toQString(), parent);
    }

    void pathConversions()
    {
        const QString text = QString::fromUtf8("/home/Zoë/日本語 folder/файл.txt");
        const ioPath path(text);
        QCOMPARE(path.utf8(), std::string(text.toUtf8().constData()));
        QCOMPARE(path.toQString(), text);
        QCOMPARE(ioPath(path.utf8()), path);
        QCOMPARE(ioPath::fromNative(path.nativeString()), path);

        // A moved-from path must still behave as a value.
        ioPath moved(path);
        const ioPath target(std::move(moved));
        QCOMPARE(target, path);
        QVERIFY(moved.empty());
        moved = moved / "x";
        QCOMPARE(moved.utf8(), std::string("x"));

        const std::set<ioPath> ordered{"b", "a/c", "a", "b"};
        QCOMPARE(ordered.size(), std::size_t(3));
        QCOMPARE(ordered.begin()->utf8(), std::string("a"));
    }

    void dyLibResolvesSystemLibrary()
    {
        if (QSysInfo::kernelType() != QLatin1String("linux"))
            QSKIP("libm.so.6 is a Linux library name");
        Ostrel::Core::DyLib libm("libm.so.6");
        QVERIFY(libm.isLoaded());
        auto* cosine = libm.resolve<double(double)>("cos");
        QVERIFY(cosine);
        QCOMPARE(cosine(0.0), 1.0);
        QVERIFY(!libm.resolve<void()>("no_such_symbol_in_libm"));

        Ostrel::Core::DyLib moved(std::move(libm));
        QVERIFY(moved.isLoaded());
        QVERIFY(moved.resolve<double(double)>("cos"));
        QVERIFY(!libm.isLoaded());
        QVERIFY(!libm.resolve<double(double)>("cos"));
    }

    void dyLibMissingLibrary_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("absent library") << "Shcore.dll";
        QTest::newRow("empty name") << "";
    }

    void dyLibMissingLibrary()
    {
        QFETCH(QString, name);
        const int verbosity = FLAGS_v;
        FLAGS_v = 1;
        Ostrel::Test::LogCapture log;
        Ostrel::Core::DyLib library(name.toStdString());
        FLAGS_v = verbosity;

        QVERIFY(!library.isLoaded());
        QVERIFY(!library.resolve<void()>("GetDpiForMonitor"));
        QCOMPARE(log.matching("not loaded").size(), std::size_t(1));
    }

    void crashRecordAppendsEachException()
    {
        const std::string first = "first failure";
        const std::string second = "second failure";
        Ostrel::Test::LogCapture log;

        try {
            throw std::runtime_error(first);
        } catch (...) {
            Ostrel::Core::TrackCurrentException();
        }
        const QByteArray afterFirst = readCrashRecords();
        QVERIFY(afterFirst.contains(first.c_str()));
        QVERIFY(afterFirst.contains("std::runtime_error"));

        try {
            throw std::logic_error(second);
        } catch (const std::exception&) {
            Ostrel::Core::TrackCurrentException();
        }
        const QByteArray afterSecond = readCrashRecords();
        QVERIFY(afterSecond.startsWith(afterFirst));
        QVERIFY(afterSecond.contains(second.c_str()));
        // Each record is stamped like 2024-05-01T12:34:56.789Z.
        QVERIFY(QRegularExpression(QStringLiteral("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z"))
                    .match(QString::fromUtf8(afterSecond))
                    .hasMatch());

        const auto lines = log.lines();
        QCOMPARE(log.matching(first).size(), std::size_t(1));
        QCOMPARE(log.matching(second).size(), std::size_t(1));
        for (const auto& line : lines)
            QCOMPARE(line.severity, google::GLOG_ERROR);
    }

    void crashRecordWithoutException()
    {
        Ostrel::Core::TrackCurrentException();
        QVERIFY(readCrashRecords().contains("no exception in flight"));
    }

    void crashRecordUnwritable()
    {
        // A plain file where the data folder should be: the record cannot be written.
        const QString folder = Ostrel::Core::CrashRecordPath().parent().toQString();
        QVERIFY(QDir(folder).removeRecursively());
        QVERIFY(QDir().mkpath(QFileInfo(folder).absolutePath()));
        QFile blocker(folder);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();

        Ostrel::Test::LogCapture log;
        try {
            throw std::runtime_error("lost record");
        } catch (...) {
            Ostrel::Core::TrackCurrentException();
        }
        QVERIFY(QFile::remove(folder));
        QCOMPARE(log.matching("lost record").size(), std::size_t(1));
        QCOMPARE(log.matching("Could not write the crash record").size(), std::size_t(1));
    }

    void appMutexExcludesWithinProcess()
    {
        const std::string name = lockName("local");
        auto first = std::make_unique<AppMutexLocker>(name);
        AppMutexLocker second(name);
        QVERIFY(!first->IsLocked());
        QVERIFY(first->TryLockAppMutex());
        QVERIFY(first->TryLockAppMutex());
        QVERIFY(!second.TryLockAppMutex());
        QVERIFY(!second.IsLocked());

        first.reset();
        QVERIFY(second.TryLockAppMutex());
        QVERIFY(second.IsLocked());
    }

    void appMutexAwkwardNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("separators") << "a/b\\c:d";
        QTest::newRow("spaces and dots") << " .. hidden? *";
        QTest::newRow("non-ASCII") << QString::fromUtf8("Приложение-日本");
        QTest::newRow("empty") << "";
        QTest::newRow("longer than a file name") << QString(400, QLatin1Char('n'));
    }

    void appMutexAwkwardNames()
    {
        QFETCH(QString, name);
        const std::string fullName = name.isEmpty() ? std::string() : lockName("odd") + name.toStdString();
        AppMutexLocker locker(fullName);
        QVERIFY(locker.TryLockAppMutex());
        LockHolder other(fullName);
        QCOMPARE(other.answer(), QByteArray("busy"));
    }

    void appMutexDistinctNamesDoNotCollide()
    {
        // Names that differ only in characters a file name cannot hold still lock separately.
        // Asked from another process, since this one's own bookkeeping tells the names apart.
        const std::string base = lockName("distinct");
        AppMutexLocker slash(base + "x/y");
        QVERIFY(slash.TryLockAppMutex());
        for (const std::string& other : {base + "x_y", base + "x%2Fy"}) {
            LockHolder holder(other);
            QCOMPARE(holder.answer(), QByteArray("locked"));
        }
    }

    void appMutexExcludesOtherProcess()
    {
        const std::string name = lockName("child");
        LockHolder holder(name);
        QCOMPARE(holder.answer(), QByteArray("locked"));

        AppMutexLocker locker(name);
        QVERIFY(!locker.TryLockAppMutex());
        QVERIFY(!locker.IsLocked());

        holder.kill();
        QVERIFY(locker.TryLockAppMutex());
        LockHolder loser(name);
        QCOMPARE(loser.answer(), QByteArray("busy"));
    }

    void appMutexNotInheritedByChildren()
    {
        // A child started while this process holds the lock must not keep it alive after the
        // holder releases it.
        const std::string name = lockName("inherit");
        auto locker = std::make_unique<AppMutexLocker>(name);
        QVERIFY(locker->TryLockAppMutex());
        LockHolder bystander(lockName("bystander"));
        QCOMPARE(bystander.answer(), QByteArray("locked"));

        locker.reset();
        QVERIFY(AppMutexLocker(name).TryLockAppMutex());
    }

    void sha1_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("digest");
        QTest::newRow("empty") << QByteArray() << "da39a3ee5e6b4b0d3255bfef95601890afd80709";
        QTest::newRow("abc") << QByteArray("abc") << "a9993e364706816aba3e25717850c26c9cd0d89d";
        QTest::newRow("two blocks") << QByteArray("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq")
                                    << "84983e441c3bd26ebaae4aa1f95129e5e54670f1";
        QTest::newRow("embedded NUL") << QByteArray("a\0b", 3) << "4a3dec2d1f8245280855c42db0ee4239f917fdb8";
    }

    void sha1()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, digest);
        QCOMPARE(Ostrel::Util::SHA1::digest(data.toStdString()), digest.toStdString());
    }

    void systemInfo()
    {
        QCOMPARE(Ostrel::Core::AppBits(), QSysInfo::WordSize);
        QVERIFY(Ostrel::Core::OSBits() == 32 || Ostrel::Core::OSBits() == 64);
        QVERIFY(Ostrel::Core::OSBits() >= Ostrel::Core::AppBits());
        QVERIFY(!Ostrel::Core::SystemName().empty());
        QVERIFY(!Ostrel::Core::ProcessorArchitecture().empty());
    }
};

OSTREL_TEST_MAIN(TestFoundation)

#include "tst_foundation.moc"
