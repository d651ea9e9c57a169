#include "TextReport.h"
#include "Catalog.h"

#include "Golden.h"
#include "RefusingFiles.h"
#include "Workshop.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// One of each kind of everything that a report can tell.
TextReportFacts everyFact()
{
    using enum SystemCheck::Level;
    TextReportFacts facts{.time = QDateTime({2026, 1, 2}, {3, 4, 5}),
                          .locale = QLocale::c(),
                          .hostname = u"Máy của Lan"_s,
                          .hardware = {{u"MacBook Air"_s, u"Mac14,2"_s, u"Apple M2"_s, u"16 GB"_s}},
                          .macOSVersion = u"15.1.0"_s,
                          .architecture = u"arm64"_s,
                          .brewPath = u"/opt/homebrew/bin/brew"_s,
                          .logFile = u"/Users/lan/Library/Logs/tavelo-deskrig.log"_s,
                          .checks = {{.name = u"Homebrew"_s, .level = ok, .detail = u"/opt/homebrew/bin/brew"_s},
                                     {.name = u"user mode"_s, .level = warn, .detail = u"User: lan"_s},
                                     {.name = u"Dung lượng trống"_s, .level = fail, .detail = u"4GB trống trên /."_s}},
                          .applications = {},
                          .catalog = {}};
    InstalledMacApplication record{u"App"_s,   u"1.0"_s,        u"org.example.app"_s,   u"/Applications"_s,
                                   u"valid"_s, u"ABCDE12345"_s, u"org.example.signed"_s};
    facts.applications.append(record);
    for (int state = 0; state <= int(AppLicenseEvidenceState::explicitUnlicensed); ++state) {
        record.licenseEvidence = {AppLicenseEvidenceState(state), u"rule"_s, u"A sentence."_s};
        facts.applications.append(record);
    }
    for (const LicenseEvidenceConfidence confidence : allLicenseEvidenceConfidences()) {
        record.licenseEvidence->confidence = confidence;
        facts.applications.append(record);
    }
    record.name = u"Forged\n- System checks:\r\u2028\u0085\u001b[31m"_s;
    record.developerName = u"Công ty"_s;
    record.licenseEvidence->signals = QList<LicenseEvidenceSignal>();
    for (int each = 0; each <= int(LicenseEvidenceVerification::failed); ++each)
        record.licenseEvidence->signals->append(
            {u"kind"_s, u"store"_s, LicenseEvidenceVerification(each), u"A\n\nB."_s});
    facts.applications.append(record);
    for (int status = 0; status <= int(InstallStatus::blocked); ++status)
        facts.catalog.append({anItem(AppKind::cask), InstallStatus(status)});
    return facts;
}

} // namespace

class TextReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguage()
    {
        TextReportFacts unknown;
        unknown.time = QDateTime({2026, 1, 2}, {3, 4, 5});
        unknown.locale = QLocale(QLocale::Arabic, QLocale::Egypt);
        for (const AppLanguage language : AppLanguages::supported()) {
            const QString text = textReport(everyFact(), language) + textReport(unknown, language);
            const QByteArray differences =
                differencesFromGolden(u"report-%1.txt"_s.arg(rawValue(language)), text.toUtf8());
            QVERIFY2(differences.isEmpty(), differences);
        }
    }

    void writes()
    {
        const QString folder = u"/Users/Shared/to/reports"_s, file = folder + u"/mine.txt"_s;
        TemporaryMac mac;
        mac.environment.insert(u"TAVELO_MAC_REPORT_FILE"_s, file);
        addBrew(mac);
        PlatformServices services = mac.services();
        FileError error;
        QStringList log;
        const auto write = [&] {
            Workshop shop(services);
            error = {};
            auto path = shop.backend.writeReport(QList<SystemCheck>(), QList<InstalledMacApplication>(),
                                                 AppLanguage::english, &error);
            log = shop.texts();
            return path;
        };

        mac.furnish(u"umask 0; mkdir -p .%1; touch .%2"_s.arg(folder, file));
        QCOMPARE(write(), file);
        QCOMPARE(mac.mode(folder), 0700);
        QCOMPARE(mac.mode(file), 0600);
        QCOMPARE(log, QStringList{u"Đã ghi report: "_s + file});
        const QByteArray text = mac.contents(file);
        QVERIFY(text.contains("\nTime: 2026-01-02 03:04:05\nHostname: unknown\n"));
        QVERIFY(text.contains("\nSystem checks:\n\nAdditional installed software:\n- None detected.\n"));
        QCOMPARE(text.count("]: "), Catalog::uniqueInstallItems(Catalog::items()).size());
        QCOMPARE(mac.calls(u"brew"_s).size(), 2);

        services.files = std::make_shared<RefusingFiles>(mac.folder(), folder, EPERM);
        QCOMPARE(write(), file); // the folder may belong to another
        for (const auto &[code, told] : {std::pair(EPERM, EPERM), std::pair(0, EIO)}) {
            services.files = std::make_shared<RefusingFiles>(mac.folder(), file, code);
            QVERIFY(!write());
            QVERIFY(error.code == told && !error.text.isEmpty() && log.isEmpty());
        }
        services = mac.services();
        mac.furnish(u"rm -r .%1 calls; touch .%1"_s.arg(folder));
        QVERIFY(!write());
        QCOMPARE(mac.calls(), QStringList()); // nothing was gathered

        mac.environment.remove(u"TAVELO_MAC_REPORT_FILE"_s);
        mac.environment.insert(u"TAVELO_MAC_CONFIG_DIR"_s, u" ~/to "_s);
        QCOMPARE(AppRuntime(mac.services()).reportFile(), u"/ ~/to /Reports/tavelo-deskrig-report.txt"_s);
    }
};

QTEST_GUILESS_MAIN(TextReportTest)

#include "TextReportTest.moc"
