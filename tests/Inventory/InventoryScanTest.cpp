// Whole scans: of a populated Mac, from the backend down to the Mac's tools, and of a small one that is cancelled.

#include "Golden.h"
#include "InventoryText.h"
#include "MainQueue.h"
#include "ProgramOnAMac.h"
#include "PropertyList.h"
#include "ReceiptSecurity.h"
#include "Row.h"
#include "ScanCandidates.h"
#include "TestAuthority.h"
#include "Workshop.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

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

/// What a simulated Mac is populated with, of the test's own making: receipts and a provisioning profile.
void addSigned(const TemporaryMac &given, const TestAuthority &authority)
{
    const auto receipt = [&authority](const QString &identifier, const QString &created) {
        return authority.sign(TestAuthority::payload(identifier, created));
    };
    const QString inTime = u"2016-06-01T10:00:00Z"_s;
    const QByteArray verified = receipt(u"org.example.store.verified"_s, inTime);
    given.write(u"/verified.receipt"_s, verified);
    given.write(u"/foreign.receipt"_s, verified);
    given.write(u"/integrity.receipt"_s, receipt(u"org.example.store.integrity"_s, u"2019-06-01T10:00:00Z"_s));
    given.write(u"/damaged.receipt"_s,
                receipt(u"org.example.store.damaged"_s, inTime).replace("2016-06-01", "2016-06-02"));
    given.write(u"/profile.cms"_s,
                authority.sign(PropertyList::xml(QVariantMap{{u"TeamName"_s, u"Provisioned Team of Hà Nội"_s},
                                                             {u"Name"_s, u"TAVELO-SECRET-PROFILE"_s}})));
}

/// A scan of a small Mac whose tools answer at once. What happens becomes a text: "?" for the question whether to go
/// on, b for brew, p for the list of packages, c, v and i for one application or package, and the progress.
struct SmallScan {
    QList<InstalledMacApplication> run()
    {
        const auto answer = [this](const QStringList &command) {
            const QString call = command.mid(1).join(u' ');
            events += call == "--pkgs"_L1 ? u'p' : call.startsWith("--pkg-info"_L1) ? u'i' : u'b';
            return answers.value(call);
        };
        const InventoryTools tools{
            .brewPath = [] { return std::optional(u"/opt/homebrew/bin/brew"_s); },
            .runCapture = answer,
            .runCaptureCombined = [this](const QStringList &) { return events += u'c', answers.value(u"-dv"_s); },
            .runQuiet = [this](const QStringList &) { return events += u'v', 0; }};
        const PlatformServices services = mac.services();
        return InventoryScan(*services.files, *services.receipts, tools, mac.home())
            .installedAdditionalApplications(
                [this](qsizetype done, qsizetype total) { events += u"%1/%2 "_s.arg(done).arg(total); },
                [this] { return events += u'?', events.count(u'?') >= cancelledAt; });
    }

    TemporaryMac mac;
    QHash<QString, QString> answers; ///< Of the tools, by their arguments.
    int cancelledAt = 1000;          ///< The first question that is answered with an end.
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
    }

    void applicationsWithoutIdentifierStayApart()
    {
        const TemporaryMac mac;
        mac.addApp(u"/Applications/One.app"_s, u""_s);
        mac.addApp(u"/Applications/Two.app"_s, u" "_s);
        const auto found = scanCandidates(*mac.services().files, mac.home(), [] { return false; });
        QSet<QString> identifiers;
        for (const ScanCandidate &candidate : found.value())
            identifiers.insert(candidate.identifier);
        QCOMPARE(identifiers, (QSet<QString>{u"One.app"_s, u"Two.app"_s}));
    }

    void listsWhatWasAdded()
    {
        const ProgramOnAMac mac;
        const TestAuthority authority;
        const TemporaryMac given; // only a folder here
        addSigned(given, authority);
        mac.furnish(u"populate"_s, {u"--receipts"_s, given.folder()});
        PlatformServices services = mac.services();
        services.receipts = std::make_shared<ReceiptSecurity>(QList{authority.rootFingerprint()});
        Workshop workshop(services);
        QStringList progress, expected;
        const QList<InstalledMacApplication> records = workshop.backend.installedAdditionalApplications(
            [&](qsizetype done, qsizetype total) { progress.append(u"%1/%2"_s.arg(done).arg(total)); });
        const QStringList calls = mac.takeCalls();

        QByteArrayList lines;
        for (const InstalledMacApplication &record : records)
            lines.append(QJsonDocument(toJson(record)).toJson(QJsonDocument::Compact));
        const QByteArray json = "[\n" + lines.join(",\n") + "\n]\n";
        const QByteArray differences = differencesFromGolden(u"inventory-scan.json"_s, json);
        QVERIFY2(differences.isEmpty(), differences);
        for (qsizetype done = 0; done <= records.size(); ++done)
            expected.append(u"%1/%2"_s.arg(done).arg(records.size()));
        QCOMPARE(progress, expected);

        // Two processes for each application, one for each package, and few others.
        const qsizetype receipts = json.count("\"signatureStatus\":\"receipt-only");
        const qsizetype formulas = json.count("\"signatureStatus\":\"not-applicable");
        const QStringList others = calls.filter(QRegularExpression(u"^(openssl|brew) |--pkgs$"_s));
        QCOMPARE(others,
                 QStringList({u"brew info --json=v2 --installed"_s, u"brew leaves"_s, u"brew list --versions"_s,
                              u"pkgutil --pkgs"_s,
                              u"openssl cms -verify -inform DER -in "
                              "/Applications/Provisioned.app/Contents/embedded.provisionprofile -noverify -nosigs"_s}));
        QCOMPARE(calls.size(), 2 * (records.size() - receipts - formulas) + receipts + others.size());
        QCOMPARE(QSet<QString>(calls.begin(), calls.end()).size(), calls.size());

        // Nothing that was told holds a secret.
        int planted = 0;
        QDirIterator each(mac.folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext())
            planted += holdsSecret(mac.contents(each.next().mid(mac.folder().size()))) ? 1 : 0;
        QVERIFY2(planted >= 12, QByteArray::number(planted));
        QVERIFY(!holdsSecret(json));
        services.mainQueue->service();
        QVERIFY(!holdsSecret((workshop.heard.lines + mac.logLines() + calls).join(u'\n').toUtf8()));
    }

    void noBundleForgesItsSignature_data()
    {
        columns<QString, QString>("report", "fields"); // status, team, identifier, developer
        const QString genuine = u"Executable=/Applications/Foo.app/Contents/MacOS/Foo\nIdentifier=x.y\nFormat=app\n"
                                "Authority=Developer ID Application: Foo Ltd\nTeamIdentifier=TEAM1\n"_s;
        const char *nothing = "invalid,—,—,Foo";
        row("genuine", genuine, "valid,TEAM1,x.y,Foo Ltd");
        row("a line break in the path",
            u"Executable=/A/Foo\nIdentifier=evil\nFormat=x\nAuthority=Evil\nSignature=x\n"_s + genuine, nothing);
        row("a separator in the path", QString(genuine).replace(u"/Foo\n"_s, u"/Foo\u2028Authority=Evil\n"_s), nothing);
        row("a line break in the identifier", QString(genuine).replace(u"x.y"_s, u"x.y\nFormat=x\nAuthority=Evil"_s),
            nothing);
        row("a second team", genuine + u"TeamIdentifier=OTHER\n"_s, nothing);
        row("no such report", "Authority=Evil\n", nothing);
    }

    void noBundleForgesItsSignature()
    {
        QFETCH(QString, report);
        SmallScan scan;
        scan.mac.addApp(u"/Applications/Foo.app"_s, u"foo"_s);
        scan.answers.insert(u"-dv"_s, report);
        const InstalledMacApplication record = scan.run().value(0);
        QTEST(QStringList({record.signatureStatus, record.teamIdentifier, record.signingIdentifier,
                           record.developerName.value_or(QString())})
                  .join(u','),
              "fields");
        // Half of a surrogate pair does not switch the cleaning off.
        QCOMPARE(withoutControls(u"a\n\u2028b"_s + QChar(0xD800)), u"a b\uFFFD"_s);
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
        for (int question = 1; question <= collecting + 8; ++question) {
            SmallScan scan;
            scan.cancelledAt = question;
            scan.mac.addApp(u"/Applications/Folder/Zeta.app"_s, u"org.zeta"_s);
            scan.mac.addApp(u"/Applications/Twin.app"_s, u"org.twin"_s);
            scan.mac.addApp(u"/usr/libexec/Helper.app"_s, u"org.helper"_s);
            scan.mac.furnish(u"ln -s ../usr/libexec/Helper.app Applications/Helper.app"_s);
            scan.mac.addApp(scan.mac.home() + u"/Applications/Twin.app"_s, u"ORG.twin"_s);
            // The key of the package ZZ.y.
            scan.mac.addApp(scan.mac.home() + u"/Applications/Usurped.app"_s, u"pkg.zz.y"_s);
            scan.answers = {{u"leaves"_s, u"alpha\nomega"_s},
                            {u"list --versions"_s, u"alpha 1\nneeded 1\nomega 2"_s},
                            {u"--pkgs"_s, u"ZZ.y\ncom.apple.pkg.X\nlone.one"_s}};
            QStringList names;
            for (const InstalledMacApplication &record : scan.run())
                names.append(record.name);
            const int done = std::max(0, question - collecting - 1);
            QCOMPARE(names.join(u' '), finished.at(done));
            // Nothing happens after the answer, but that a stage that is left asks too.
            const QString happened = QString(scan.events).remove(QRegularExpression(u"\\?+$"_s));
            QVERIFY2(whole.startsWith(happened) && happened.count(u'?') < question, qPrintable(scan.events));
            QVERIFY(done < 7 || happened == whole);
        }
    }
};

QTEST_GUILESS_MAIN(InventoryScanTest)
#include "InventoryScanTest.moc"
