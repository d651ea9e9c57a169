#include "FileManager.h"
#include "MacLicenseEvidenceCollector.h"
#include "PropertyList.h"
#include "ReceiptSecurity.h"
#include "Row.h"
#include "TemporaryMac.h"
#include "TestAuthority.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::MacLicenseEvidenceCollector;

namespace
{

/// Refuses what holds the word "locked", also to root.
struct LockedFiles : FileManager {
    using FileManager::FileManager;
    bool isReadable(const QString &path) const override
    {
        return contents(path).value_or("") != "locked" && contents(path + u"/.keep"_s).value_or("") != "locked";
    }
};

const QString receiptPath = u"/Applications/Example.app/Contents/_MASReceipt/receipt"_s;

/// Makes files in a Mac, told as "path=contents" with bars between. A path that begins with `~` lies in the user's
/// library, one that begins with `+` in the Mac's; one that ends with `/` is a folder. The contents "key" stand for a
/// property list with a licence key, "locked" for something unreadable.
void furnish(const TemporaryMac &mac, const QString &furniture)
{
    const QStringList pieces = furniture.split(u'|', Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        QString path = piece.section(u'=', 0, 0);
        path.replace(u'~', mac.home() + u"/Library"_s).replace(u'+', u"/Library"_s);
        QByteArray contents = piece.section(u'=', 1).toUtf8();
        if (contents == "key")
            contents = PropertyList::xml(QVariantMap{{u"LicenseKey"_s, u"SECRET"_s}});
        mac.write(path.endsWith(u'/') ? path + u".keep"_s : path, contents);
    }
}

/// The sources of the signals, with how far each was verified where it was not merely detected.
QString summary(const QList<LicenseEvidenceSignal> &all)
{
    QStringList texts;
    for (const LicenseEvidenceSignal &signal : all) {
        const QString verification = rawValue(signal.verification);
        texts.append(verification == u"detected" ? signal.source : signal.source + u':' + verification);
    }
    return texts.join(u' ');
}

} // namespace

class EvidenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conclusions_data()
    {
        columns<QString, QString, QString, QString, QString, QString>("name", "identifier", "furniture", "installed",
                                                                      "conclusion", "found");
        const char *key = "~/Preferences/org.x.plist=key";
        const auto withKey = [key](const char *furniture) { return QByteArray(furniture) + '|' + key; };
        row("key before policy", "Example", "org.gimp.gimp", "~/Preferences/org.gimp.gimp.plist=key", "",
            "needsEntitlementReview app-preferences indicative", "app-preferences");
        row("key before account", "TeamViewer", "org.x", withKey("~/Application Support/TeamViewer/").constData(), "",
            "needsEntitlementReview app-preferences indicative", "teamviewer-account-store app-preferences");
        row("sound Parallels", "Parallels", "org.x",
            withKey(R"(+/Preferences/Parallels/licenses.json={"license": "SECRET", "signature": "s"})").constData(), "",
            "licenseArtifact parallels-license-store strong",
            "parallels-license-store:structurallyValid app-preferences");
        row("unsound Parallels", "Parallels", "org.x", "+/Preferences/Parallels/licenses.json={}", "",
            "needsEntitlementReview parallels-license-store indicative", "parallels-license-store:failed");
        row("receipt before all", "Setapp", "org.x", "receipt=signed|~/Application Support/Setapp/", "cask",
            "verifiedReceipt mac-app-store-receipt verified", "mac-app-store-receipt:verified");
        row("policy before failed receipt", "Example", "us.zoom.xos", "receipt=x", "",
            "accountBased account-based-app-policy informational", "mac-app-store-receipt:failed");
        row("failed receipt before locked store", "A", "org.x", "receipt=x|~/Application Support/A/=locked", "",
            "needsEntitlementReview failed-local-verification none",
            "mac-app-store-receipt:failed app-support-artifacts:inaccessible");
        row("locked receipt before provenance", "Example", "org.x", "receipt=locked", "cask pkg",
            "accessRestricted local-access-restricted none",
            "mac-app-store-receipt:inaccessible homebrew-cask installer-receipt");
        row("cask before package", "Example", "org.x", "", "cask pkg",
            "installationEvidence homebrew-cask informational", "homebrew-cask installer-receipt");
        row("Office, in turn", "Word", "com.microsoft.Outlook",
            "+/Preferences/com.microsoft.office.licensingV2.plist=locked|"
            "+/Application Support/Microsoft/Office/Licenses/",
            "", "needsEntitlementReview microsoft-license-store indicative",
            "microsoft-license-store:inaccessible microsoft-license-store");
        row("not Office", "Microsoft Word", "com.microsoft.teams2",
            "+/Preferences/com.microsoft.office.licensing.plist", "", "noEvidence multi-layer-local-scan none", "");
        row("Parallels locked", "X", "Parallels", "+/Preferences/Parallels/licenses.json=locked", "",
            "accessRestricted local-access-restricted none", "parallels-license-store:inaccessible");
        row("several vendors", "Setapp for AnyDesk", "x",
            "~/Preferences/com.philandro.anydesk.plist|~/Application Support/Setapp", "",
            "needsEntitlementReview setapp-account-store indicative", "setapp-account-store anydesk-account-store");
        row("all places of its own", "A", "x.y",
            "~/Preferences/x.y.plist=key|+/Preferences/x.y.plist=locked|~/Application Support/A/my-activation|"
            "~/Application Support/x.y|~/Containers/x.y/Data/Library/Application Support/A/Subscription/",
            "", "needsEntitlementReview app-preferences indicative",
            "app-preferences app-preferences:inaccessible app-support-artifacts app-support-artifacts:inaccessible "
            "app-support-artifacts");
    }

    void conclusions()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, installed);
        QFETCH(QString, found);
        const TemporaryMac mac;
        furnish(mac, furniture.replace(u"receipt="_s, receiptPath + u'='));
        const QByteArray receipt = mac.contents(receiptPath);
        if (receipt == "signed")
            mac.write(receiptPath, m_authority.sign(TestAuthority::payload(u"org.x"_s, u"2016-06-01T10:00:00Z"_s)));
        const ReceiptSecurity security({m_authority.rootFingerprint()});

        Request request{.appURL = u"/Applications/Example.app"_s,
                        .applicationName = name,
                        .bundleIdentifier = identifier,
                        .source = u"/Applications"_s,
                        .homeDirectory = mac.home(),
                        .systemLibraryURL = u"/Library"_s};
        if (installed.contains(u"cask"))
            request.cask = HomebrewCaskApplication{u"example\nName: x"_s, u"1.2"_s, {}};
        if (installed.contains(u"pkg"))
            request.installerReceiptIdentifiers = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s};
        const AppLicenseEvidence evidence =
            MacLicenseEvidenceCollector::evidence(request, LockedFiles(HostRoot(mac.folder())), security);
        QTEST(rawValue(evidence.state) + u' ' + evidence.source + u' ' + rawValue(evidence.confidence.value()),
              "conclusion");
        QCOMPARE(summary(evidence.signals.value()), found);

        const QByteArray written = QJsonDocument(toJson(evidence)).toJson();
        QVERIFY2(!written.contains("SECRET"), written);
        QCOMPARE(written.contains("receipt exists but cannot be read with"), receipt == "locked");
        QCOMPARE(written.contains("its expected license/signature structure was not found."),
                 found.contains(u"parallels-license-store:failed"));
        QCOMPARE(written.contains("cask 'example Name: x' (recorded version 1.2). This"), found.contains(u"cask"));
    }

    void parallelsStructure()
    {
        const TemporaryMac mac;
        const auto isSound = [&mac](const QByteArray &json) {
            mac.write(u"/Library/Preferences/Parallels/licenses.json"_s, json);
            const PlatformServices services = mac.services();
            return summary(vendorSignals(u"Parallels"_s, u"x"_s, *services.files, mac.home(), u"/Library"_s).signals)
                .endsWith(u":structurallyValid");
        };
        QVERIFY(isSound(R"([1, {"x": [{"y": {"Signature": "b", "LICENSE": "a"}}]}])"));
        QVERIFY(isSound(R"({"license": {"license": "a", "signature": "b"}})"));
        QVERIFY(!isSound(R"({"license": 7, "signature": "b"})"));
        QVERIFY(!isSound(R"([{"license": " \n", "signature": "b"}, {"license": "a"}])"));
        QVERIFY(!isSound(QByteArray(100000, '[') + QByteArray(100000, ']')));
    }

    /// Beyond those that the scan of the populated Mac shows.
    void boundsOfTraces()
    {
        const TemporaryMac mac;
        const auto found = [&mac] {
            const Findings all = preferenceSignals(u"Example"_s, u"org.example"_s, *mac.services().files, mac.home());
            const QString detail = all.signals.isEmpty() ? QString() : all.signals.constFirst().detail;
            return detail.section(u": "_s, 1).section(u". F"_s, 0, -2);
        };
        const auto keys = [&](const QVariantList &list) {
            mac.write(u"/Library/Preferences/org.example.plist"_s, PropertyList::xml(list));
            return found();
        };
        const auto key = [](const QString &name) { return QVariantMap{{name, QVariantMap{{u"productKey"_s, 1}}}}; };
        QCOMPARE(keys({key(u"TrialAgreementLicenseKey"_s)}), u"productKey"_s);
        QVariantList eleven;
        for (int number = 10; number < 21; ++number)
            eleven.append(key(u"b%1 entitlement"_s.arg(number)));
        const QString four = u"b10 entitlement, b11 entitlement, b12 entitlement, b13 entitlement"_s;
        QCOMPARE(keys(eleven + QVariantList{key(u"a entitlement"_s)}), u"a entitlement, "_s + four);
        QCOMPARE(keys(eleven + QVariantList{key(u"c entitlement"_s), key(u"a entitlement"_s)}),
                 four + u", b14 entitlement"_s);

        mac.furnish(
            u"rm Library/Preferences/*; cd .%1; mkdir -p 'Library/Application Support/Example'; "
            "cd Library/App*/Example; touch $(seq 101 398) '0 agreement of activation' license-key"_s.arg(mac.home()));
        QCOMPARE(found(), u"license-key"_s);
    }

    void casks()
    {
        const auto table = homebrewCaskApplications(R"({"casks": [
            {"token": "vlc", "installed": "2", "version": "3", "artifacts": [{"uninstall": [{"quit": "x"}]}, "x",
                {"app": "Text.app"}, {"app": ["Build/VLC.APP"]}, {"app": [{"target": "a.app"}, "b.app"]}]},
            {"token": "waiting", "installed": null, "version": "latest", "artifacts": [{"app": ["W.app/"]}]},
            {"token": 5, "artifacts": [{"app": ["Five.app"]}]}, {"token": "none", "artifacts": null}, null]})");
        QCOMPARE(table.size(), 2);
        QCOMPARE(table.value(u"vlc.app"_s).installedVersion, u"2"_s);
        QCOMPARE(table.value(u"w.app"_s).installedVersion, u"latest"_s);
    }

    void installerReceipts()
    {
        const auto matching = [](const QString &name, const QString &identifier, const QString &receipts) {
            return matchingInstallerReceipts(name, identifier, receipts.split(u' ')).join(u' ');
        };
        QCOMPARE(matching(u"Widget"_s, u"org.example.x"_s, u"z.WIDGET.core org.widgets a.example a.b"_s),
                 u"a.example z.WIDGET.core"_s);
        QCOMPARE(matching(u"Mac Desktop App"_s, u"com.foo.macos"_s, u"com.foo.desktop com.macos.mac"_s), QString());
        // Accents count, however they are written.
        QCOMPARE(matching(u"T\u01b0\u0300 điê\u0309n"_s, u"x"_s, u"vn.tu.dien vn.ĐIỂN"_s), u"vn.ĐIỂN"_s);
    }

private:
    const TestAuthority m_authority;
};

QTEST_GUILESS_MAIN(EvidenceTest)
#include "EvidenceTest.moc"
