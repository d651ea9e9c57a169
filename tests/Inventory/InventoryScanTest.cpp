// Whole scans: of a populated Mac, from the backend down to the Mac's tools, and of a small one that is cancelled.

#include "Golden.h"
#include "InventoryText.h"
#include "MainQueue.h"
#include "ProgramOnAMac.h"
#include "PropertyList.h"
#include "ReceiptSecurity.h"
#include "TestAuthority.h"
#include "Workshop.h"

#include <QJsonDocument>
#include <QLocale>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// Whether a planted secret is in the text: the word, or a value that is data (as a property list holds it) or a
/// number.
bool holdsSecret(const QByteArray &text)
{
    return text.contains("TAVELO-SECRET") || text.contains("VEFWRUxPLVNFQ1JFVC1EQVRB") || text.contains("20250114");
}

QByteArray line(const InstalledMacApplication &record)
{
    return QJsonDocument(toJson(record)).toJson(QJsonDocument::Compact);
}

/// One scan of a populated Mac, and all that came out of it.
struct PopulatedMac {
    PopulatedMac(const QStringList &makeOptions, const QStringList &populateOptions) : mac(makeOptions)
    {
        const TestAuthority authority; // its certificates hold in 2015 and 2016
        const auto receipt = [&authority](const QByteArray &identifier, const QByteArray &created) {
            using A = TestAuthority;
            return authority.sign(A::der(0x31, A::attribute(6, A::der(12, "TAVELO-SECRET-RECEIPT")) +
                                                   A::attribute(2, A::der(12, identifier)) +
                                                   A::attribute(12, A::der(22, created))));
        };
        const TemporaryMac given; // only a folder here
        given.write(u"/verified.receipt"_s, receipt("org.example.store.verified", "2016-06-01T10:00:00Z"));
        given.write(u"/integrity.receipt"_s, receipt("org.example.store.integrity", "2019-06-01T10:00:00Z"));
        given.write(u"/foreign.receipt"_s, receipt("org.example.store.verified", "2016-06-01T10:00:00Z"));
        given.write(u"/damaged.receipt"_s,
                    receipt("org.example.store.damaged", "2016-06-01T10:00:00Z").replace("2016-06-01", "2016-06-02"));
        given.write(u"/profile.cms"_s,
                    authority.sign(PropertyList::xml(QVariantMap{{u"TeamName"_s, u"Provisioned Team of Hà Nội"_s},
                                                                 {u"Name"_s, u"TAVELO-SECRET-PROFILE"_s}})));
        mac.furnish(u"populate"_s, QStringList{u"--receipts"_s, given.folder()} + populateOptions);

        PlatformServices services = mac.services();
        services.receipts = std::make_shared<ReceiptSecurity>(QList{authority.rootFingerprint()});
        Workshop workshop(services);
        records = workshop.backend.installedAdditionalApplications(
            [this](qsizetype done, qsizetype total) { progress.append(u"%1/%2"_s.arg(done).arg(total)); });
        calls = mac.takeCalls();
        services.mainQueue->service();
        QStringList told = workshop.heard.lines + mac.logLines() + calls + progress;
        for (const InstallProgressUpdate &update : std::as_const(workshop.heard.progress))
            told.append(update.message);
        allButTheRecords = told.join(u'\n').toUtf8();
    }

    /// An array, with a record on each line.
    QByteArray json() const
    {
        QList<QByteArray> lines;
        for (const InstalledMacApplication &record : records)
            lines.append(line(record));
        return "[\n" + lines.join(",\n") + "\n]\n";
    }

    QStringList callsOf(const QString &beginning) const
    {
        QStringList found = calls;
        found.removeIf([&beginning](const QString &call) { return !call.startsWith(beginning); });
        return found;
    }

    qsizetype countOf(const QString &status) const { return json().count("\"signatureStatus\":\"" + status.toUtf8()); }

    ProgramOnAMac mac;
    QList<InstalledMacApplication> records;
    QStringList progress, calls;
    QByteArray allButTheRecords; ///< Log lines, live and in the file, the tools' arguments, the progress.
};

/// A Mac for scans that are cancelled, whose tools answer at once. What happens becomes a text: "?" for the question
/// whether to go on, b for brew, p for the list of packages, c, v and i for one application or package, and the
/// progress.
struct SmallMac {
    SmallMac()
    {
        mac.addApp(u"/Applications/Folder/Zeta.app"_s, u"org.zeta"_s);
        mac.addApp(u"/Applications/Twin.app"_s, u"org.twin"_s);
        mac.addApp(u"/usr/libexec/Helper.app"_s, u"org.helper"_s);
        mac.furnish(u"ln -s ../usr/libexec/Helper.app Applications/Helper.app"_s);
        mac.addApp(mac.home() + u"/Applications/Twin.app"_s, u"ORG.twin"_s);
        mac.addApp(mac.home() + u"/Applications/Usurped.app"_s, u"pkg.zz.y"_s); // the key of the package ZZ.y
    }

    /// The names in the result, when that question is the first to be answered with an end.
    QString scan(int cancelledAt)
    {
        events.clear();
        const auto answer = [this](const QStringList &command) {
            const QString call = command.mid(1).join(u' ');
            events += call == "--pkgs"_L1 ? u'p' : call.startsWith("--pkg-info"_L1) ? u'i' : u'b';
            return call == "leaves"_L1            ? u"alpha\nomega"_s
                   : call == "list --versions"_L1 ? u"alpha 1\nneeded 1\nomega 2"_s
                   : call == "--pkgs"_L1          ? u"ZZ.y\ncom.apple.pkg.X\nlone.one"_s
                                                  : QString();
        };
        const InventoryTools tools{.brewPath = [] { return std::optional(u"/opt/homebrew/bin/brew"_s); },
                                   .runCapture = answer,
                                   .runCaptureCombined = [this](const QStringList &) { return events += u'c', u""_s; },
                                   .runQuiet = [this](const QStringList &) { return events += u'v', 1; }};
        const PlatformServices services = mac.services();
        const InventoryScan scan(*services.files, *services.receipts, tools, mac.home());
        const QList<InstalledMacApplication> records = scan.installedAdditionalApplications(
            [this](qsizetype done, qsizetype total) { events += u"%1/%2 "_s.arg(done).arg(total); },
            [this, cancelledAt] { return events += u'?', events.count(u'?') >= cancelledAt; });
        QStringList names;
        for (const InstalledMacApplication &record : records)
            names.append(record.name);
        return names.join(u' ');
    }

    TemporaryMac mac;
    QString events;
};

} // namespace

class InventoryScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::English); // which orders the list
        m_scanned = std::make_unique<PopulatedMac>(QStringList(), QStringList());
    }

    void listsWhatWasAdded()
    {
        const QByteArray differences = differencesFromGolden(u"inventory-scan.json"_s, m_scanned->json());
        QVERIFY2(differences.isEmpty(), differences);
    }

    void tellsItsProgress()
    {
        const qsizetype total = m_scanned->records.size();
        QStringList expected;
        for (qsizetype done = 0; done <= total; ++done)
            expected.append(u"%1/%2"_s.arg(done).arg(total));
        QCOMPARE(m_scanned->progress, expected);
    }

    void startsFewProcesses()
    {
        const PopulatedMac &mac = *m_scanned;
        const qsizetype receipts = mac.countOf(u"receipt-only"_s);
        const qsizetype applications = mac.records.size() - receipts - mac.countOf(u"not-applicable"_s);
        QCOMPARE(mac.callsOf(u"codesign -dv --verbose=4 "_s).size(), applications);
        QCOMPARE(mac.callsOf(u"codesign --verify --strict "_s).size(), applications);
        QVERIFY(mac.callsOf(u"codesign "_s).filter(u"/Contents"_s).isEmpty());
        QCOMPARE(mac.callsOf(u"openssl "_s),
                 QStringList(u"openssl cms -verify -inform DER -in "
                             "/Applications/Provisioned.app/Contents/embedded.provisionprofile -noverify -nosigs"_s));
        QCOMPARE(mac.callsOf(u"pkgutil --pkg-info "_s).size(), receipts);
        QCOMPARE(mac.callsOf(u"brew "_s),
                 QStringList({u"brew info --json=v2 --installed"_s, u"brew leaves"_s, u"brew list --versions"_s}));
        QCOMPARE(mac.calls.size(), 2 * applications + 1 + receipts + 3 + 1); // the last is the list of packages
        QCOMPARE(QSet<QString>(mac.calls.begin(), mac.calls.end()).size(), mac.calls.size());
    }

    void givesNoSecretAway()
    {
        for (const char *place :
             {"/Users/technician/Library/Preferences/com.ledgerline.Ledgerline.plist",
              "/Users/technician/Library/Preferences/com.bitwise.Bitwise.plist",
              "/Users/technician/Library/Preferences/com.oddtypes.Oddtypes.plist",
              "/Users/technician/Library/Preferences/com.teamviewer.TeamViewer.plist",
              "/Users/technician/Library/Application Support/Adobe/OOBE/opm.db",
              "/Users/technician/Library/Application Support/Fileworks/Data/activation.DAT",
              "/Library/Preferences/com.everybody.Everybody.plist", "/Library/Preferences/Parallels/licenses.json",
              "/Library/Application Support/Microsoft/Office/Licenses/5/license.bin",
              "/Applications/Store Verified.app/Contents/_MASReceipt/receipt",
              "/Applications/Store Damaged.app/Contents/_MASReceipt/receipt",
              "/Applications/Provisioned.app/Contents/embedded.provisionprofile"})
            QVERIFY2(holdsSecret(m_scanned->mac.contents(QString::fromUtf8(place))), place);
        QVERIFY(!holdsSecret(m_scanned->json()));
        QVERIFY(m_scanned->allButTheRecords.contains("codesign")); // there is something to search
        QVERIFY(!holdsSecret(m_scanned->allButTheRecords));
    }

    void withoutHomebrew()
    {
        const PopulatedMac bare({u"--without-homebrew"_s}, {u"--parallels"_s, u"bad"_s});
        QList<InstalledMacApplication> expected = m_scanned->records;
        expected.removeIf([](const InstalledMacApplication &each) { return each.source == "Homebrew formula"_L1; });
        QCOMPARE(bare.records.size(), expected.size());
        QCOMPARE(bare.progress.constLast(), u"%1/%1"_s.arg(expected.size()));
        for (qsizetype index = 0; index < expected.size(); ++index) {
            InstalledMacApplication record = bare.records.at(index), before = expected.at(index);
            const bool isParallels = record.name == "Parallels Desktop"_L1;
            if (isParallels) {
                const QByteArray now = line(record) + '\n';
                const QByteArray differences = differencesFromGolden(u"inventory-bad-parallels.json"_s, now);
                QVERIFY2(differences.isEmpty(), differences);
            }
            if (isParallels || line(before).contains("homebrew-cask"))
                record.licenseEvidence = before.licenseEvidence = {};
            QCOMPARE(line(record), line(before));
        }
        QVERIFY(!bare.json().contains("homebrew"));
        QCOMPARE(bare.callsOf(u"brew"_s), QStringList());
        QVERIFY(!holdsSecret(bare.json() + bare.allButTheRecords));
    }

    void noBundleForgesItsSignature_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<QString>("fields"); // status, team, identifier, developer

        const QString genuine = u"Executable=/Applications/Foo.app/Contents/MacOS/Foo\nIdentifier=x.y\nFormat=app\n"
                                "Authority=Developer ID Application: Foo Ltd\nTeamIdentifier=TEAM1\n"_s;
        const QString nothing = u"invalid,—,—,Foo"_s;
        QTest::newRow("genuine") << genuine << u"valid,TEAM1,x.y,Foo Ltd"_s;
        QTest::newRow("a line break in the path")
            << u"Executable=/A/Foo\nIdentifier=evil\nFormat=x\nAuthority=Evil\nSignature=x\n"_s + genuine << nothing;
        QTest::newRow("a separator in the path")
            << QString(genuine).replace(u"/Foo\n"_s, u"/Foo\u2028Authority=Evil\n"_s) << nothing;
        QTest::newRow("a line break in the identifier")
            << QString(genuine).replace(u"x.y"_s, u"x.y\nFormat=x\nAuthority=Evil"_s) << nothing;
        QTest::newRow("a second team") << genuine + u"TeamIdentifier=OTHER\n"_s << nothing;
        QTest::newRow("no such report") << u"Authority=Evil\n"_s << nothing;
    }

    void noBundleForgesItsSignature()
    {
        QFETCH(QString, report);
        const TemporaryMac mac;
        mac.addApp(u"/Applications/Foo.app"_s, u"foo"_s);
        const auto nothing = [](const QStringList &) { return QString(); };
        const InventoryTools tools{.brewPath = [] { return std::optional<QString>(); },
                                   .runCapture = nothing,
                                   .runCaptureCombined = [&](const QStringList &) { return report; },
                                   .runQuiet = [](const QStringList &) { return 0; }};
        const PlatformServices services = mac.services();
        const auto record = InventoryScan(*services.files, *services.receipts, tools, mac.home())
                                .installedAdditionalApplications()
                                .value(0);
        QTEST(QStringList({record.signatureStatus, record.teamIdentifier, record.signingIdentifier,
                           record.developerName.value_or(QString())})
                  .join(u','),
              "fields");
        // Half of a surrogate pair does not switch the cleaning off.
        QCOMPARE(withoutControls(u"a\n\u2028b"_s + QChar(0xD800)), u"a b\uFFFD"_s);
    }

    void emptyMac()
    {
        const TemporaryMac mac;
        const Workshop workshop(mac.services());
        QString told;
        const auto progress = [&told](qsizetype done, qsizetype total) { told += u"%1/%2 "_s.arg(done).arg(total); };
        QVERIFY(workshop.backend.installedAdditionalApplications(progress).isEmpty());
        QCOMPARE(told, u"0/0 "_s);
    }

    void cancelled()
    {
        // Two folders with three and two applications, Homebrew, three packages; then the records, of which the last
        // but one takes the place of another.
        constexpr int collecting = 4 + 3 + 1 + 4; // questions
        const QString whole = u"????????bbb?p???0/7 ?cv1/7 ?cv2/7 ?cv3/7 ?4/7 ?5/7 ?i6/7 ?i7/7 "_s;
        const QStringList finished =
            u"|Zeta|Twin Zeta|Twin Usurped Zeta|alpha Twin Usurped Zeta|alpha omega Twin Usurped Zeta|"
            "alpha omega Twin Zeta ZZ.y|alpha lone.one omega Twin Zeta ZZ.y"_s.split(u'|');
        SmallMac mac;
        QCOMPARE(mac.scan(1000), finished.constLast());
        QCOMPARE(mac.events, whole);
        for (int question = 1; question <= collecting + 7; ++question) {
            const int done = std::max(0, question - collecting - 1);
            QCOMPARE(mac.scan(question), finished.at(done));
            // Nothing happens after the answer, but that each stage that is left asks once.
            const int stagesLeft = question <= collecting ? 0 : done < 3 ? 2 : done < 5 ? 1 : 0;
            QVERIFY(mac.events.endsWith(QString(1 + stagesLeft, u'?')));
            mac.events.chop(stagesLeft);
            QCOMPARE(mac.events.count(u'?'), question);
            QVERIFY2(whole.startsWith(mac.events), qPrintable(mac.events));
        }
    }

private:
    std::unique_ptr<PopulatedMac> m_scanned;
};

QTEST_GUILESS_MAIN(InventoryScanTest)
#include "InventoryScanTest.moc"
