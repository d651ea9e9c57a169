// Every way in which the program writes, with a fault of the disk at each of its steps in turn.

#include "CloudCache.h"
#include "FaultyDisk.h"
#include "MacReportPDF.h"
#include "MacReportProfile.h"
#include "ReportSnapshot.h"
#include "Row.h"
#include "SampleReports.h"
#include "Workshop.h"

#include <QDir>
#include <QDirIterator>

#include <cerrno>
#include <cstring>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString home = u"/Users/technician"_s;
const QString reports = home + u"/Library/Application Support/Tavelo Deskrig/Reports"_s;
const QString logFile = home + u"/Library/Logs/tavelo-deskrig.log"_s;
const QString profileFile = home + u"/Library/Preferences/io.github.tavelo.deskrig.plist"_s;
const QString pdf = home + u"/report.pdf"_s;

/// Does the work, for the old file or for the new one. Gives what was told of a failure; nothing on success.
using Work = QString (*)(const PlatformServices &services, bool renewed);

QString writeLog(const PlatformServices &services, bool renewed)
{
    Workshop shop(services);
    shop.log.log(renewed ? u"new"_s : u"old"_s);
    return shop.texts().filter(u"Không ghi được log file"_s).value(0);
}

QString writeReport(const PlatformServices &services, bool renewed)
{
    FileError error;
    const auto language = renewed ? AppLanguage::korean : AppLanguage::english;
    const auto written = Workshop(services).backend.writeReport(QList<SystemCheck>(), QList<InstalledMacApplication>(),
                                                                language, &error);
    return written ? QString() : error.text;
}

QString saveSnapshot(const PlatformServices &services, bool renewed)
{
    FileError error;
    const ReportSnapshotStore store(services, AppRuntime(services));
    const QString text = renewed ? u"new"_s : u"old"_s;
    return store.save(text, sampleApplications(20, 2), &error) ? QString() : error.text;
}

QString saveProfile(const PlatformServices &services, bool renewed)
{
    MacReportProfile profile;
    profile.notes = renewed ? u"new"_s : u"old"_s;
    FileError error;
    return saveReportProfile(*services.defaults, profile, &error) ? QString() : error.text;
}

QString writeCache(const PlatformServices &services, bool renewed)
{
    FileError error;
    const QJsonObject cache{{u"new"_s, renewed}};
    return CloudCache::write(services, CloudCache::catalogFile, cache, &error) ? QString() : error.text;
}

QString exportPdf(const PlatformServices &services, bool renewed)
{
    const auto contents = sampleReports().at(renewed ? 1 : 0).contents;
    return MacReportPDF::write(contents, pdf, {*services.files, QString(), QString(), sampleTime()})
        .value_or(QString());
}

/// A preset of a built-in item, a shortcut and a vendor's download.
QString installPreset(const PlatformServices &services, bool renewed)
{
    Workshop shop(services);
    AppItem shortcut = anItem(AppKind::shortcut), tool = anItem(AppKind::direct, {}, u"/Applications/Tool.app"_s);
    shortcut.shortcut =
        ShortcutSpec{u"Site.webloc"_s, {}, renewed ? u"https://new.example"_s : u"https://old.example"_s};
    tool.directInstaller = DirectInstallerSpec{u"https://vendor.example/tool"_s,
                                               u"Tool.dmg"_s,
                                               InstallerType::dmg,
                                               u"Tool.app"_s,
                                               u"org.example.Tool"_s,
                                               u"TEAM1"_s,
                                               {u"vendor.example"_s}};
    bool succeeded = true;
    for (const AppItem &item : {catalogItem(u"flameshot"_s), shortcut, tool})
        succeeded = shop.backend.install(item) && succeeded;
    return succeeded ? QString() : shop.texts().join(u'\n');
}

void furnish(const TemporaryMac &mac)
{
    addBrew(mac);
    addSigningTools(mac);
    mac.addApp(u"/image/Tool.app"_s, u"org.example.Tool"_s);
    mac.write(u"/image/Tool.app/team"_s, "TEAM1");
    mac.addTool(u"/usr/bin/open"_s, ":");
    mac.addTool(u"/usr/bin/curl"_s, R"(while [ "$1" != -o ]; do shift; done; : >"$ROOT$2" && printf '%s' "$3")");
    mac.addTool(u"/usr/bin/hdiutil"_s,
                R"(if [ $1 = attach ]; then cp -R "$ROOT/image/." "$ROOT$last"; else rm -r "$ROOT$2"/*; fi)");
    mac.addTool(u"/usr/bin/ditto"_s, R"(cp -R "$ROOT$1" "$ROOT$2")");
}

QStringList temporaryFilesOn(const TemporaryMac &mac)
{
    QStringList found;
    QDirIterator each(mac.folder(), {u".tavelo-*"_s}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext())
        found.append(each.next());
    return found;
}

} // namespace

Q_DECLARE_METATYPE(Work)

class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStep_data()
    {
        // steps: at least so many are struck
        columns<Work, QString, int>("work", "file", "steps");
        row("log", &writeLog, logFile, 6);
        row("text report", &writeReport, reports + u"/tavelo-deskrig-report.txt"_s, 10);
        row("snapshot", &saveSnapshot, reports + u"/report-snapshot.json"_s, 7);
        row("profile", &saveProfile, profileFile, 6);
        row("cloud cache", &writeCache, home + u"/Library/Caches/tavelo-deskrig/supabase-catalog.json"_s, 5);
        row("PDF", &exportPdf, pdf, 6);
        row("preset", &installPreset, home + u"/Applications/Tavelo Deskrig/Site.webloc"_s, 11);
    }

    void everyStep()
    {
        QFETCH(Work, work);
        QFETCH(QString, file);
        QFETCH(int, steps);
        using enum FaultyDisk::Kind;
        TemporaryMac mac;
        if (work != &writeLog) // which has a row of its own
            mac.environment.insert(u"TAVELO_MAC_LOG_DIR"_s, u"/logs"_s);
        furnish(mac);
        struct Series {
            FaultyDisk::Kind kind;
            int code;
            bool isThere; // the file, from an earlier run
        };
        for (const auto &[kind, code, isThere] : {Series{once, EIO, true},
                                                  {once, EACCES, false},
                                                  {full, ENOSPC, true},
                                                  {death, 0, true},
                                                  {death, 0, false}}) {
            int at = 1;
            for (bool struck = true; struck; ++at) {
                mac.furnish(u"rm -rf Users/technician Applications/Tool.app; mkdir -p Users/technician"_s);
                QVERIFY(!isThere || work(mac.services(), false).isEmpty());
                mac.furnish(u"rm -rf Applications/Tool.app"_s);
                round(mac, work, file, {kind, code, at}, struck);
                const QString where = u"kind %1, code %2, step %3, file there: %4"_s;
                if (QTest::currentTestFailed())
                    QFAIL(qPrintable(where.arg(int(kind)).arg(code).arg(at).arg(isThere)));
            }
            QVERIFY2(at - 2 >= steps, qPrintable(QString::number(at - 2)));
        }
    }

private:
    static void round(const TemporaryMac &mac, Work work, const QString &file, const FaultyDisk::Fault &fault,
                      bool &struck)
    {
        const QByteArray before = mac.contents(file);
        const auto told = underFault(mac, work, fault, struck);
        const QByteArray after = mac.contents(file);
        const QString words = QString::fromLocal8Bit(std::strerror(fault.code));
        const bool dead = fault.kind == FaultyDisk::Kind::death;
        QVERIFY2(told.isEmpty() || told.contains(words) || told.contains(u"Không thể tạo tài liệu PDF."_s) ||
                     told.contains(u"Bundle tải về không đạt"_s),
                 qPrintable(told));
        if (dead) { // what is left goes some day, where the folder is the program's own
            mac.furnish(u"find Users -name '.tavelo-*' -exec touch -d '2 days ago' {} +"_s);
            const Workshop later(mac.services());
        }
        if (!dead || (file != pdf && file != profileFile))
            QCOMPARE(temporaryFilesOn(mac), QStringList());

        // The next start does its work as if nothing had been.
        mac.furnish(u"rm -rf Applications/Tool.app"_s);
        QCOMPARE(work(mac.services(), true), QString());
        const QByteArray renewed = mac.contents(file);
        QVERIFY(renewed != before);
        if (file == logFile)
            QVERIFY(after.startsWith(before) && renewed.startsWith(after));
        else if (file == pdf)
            QVERIFY(after == before || (after.startsWith("%PDF") && after.endsWith("%%EOF\n")));
        else
            QVERIFY(after == before || after == renewed);
        QVERIFY(!told.isEmpty() || dead || after != before);
    }

    /// What the work told of the fault, which may also have ended a process of its own.
    static QString underFault(const TemporaryMac &mac, Work work, const FaultyDisk::Fault &fault, bool &struck)
    {
        const pid_t child = fault.kind == FaultyDisk::Kind::death ? ::fork() : 0;
        if (child == 0) {
            const PlatformServices services = mac.services();
            const FaultyDisk disk(mac.hostPath(home), fault);
            const QString told = work(services, true);
            if (fault.kind == FaultyDisk::Kind::death)
                ::_exit(told.isEmpty() ? 0 : 1);
            struck = disk.struck();
            return told;
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        struck = WIFEXITED(status) && WEXITSTATUS(status) == FaultyDisk::deathStatus;
        if (!struck && status != 0)
            qFatal("the child ended with %d", status);
        return {};
    }
};

QTEST_MAIN(FaultsTest)

#include "FaultsTest.moc"
