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

/// Refuses files and folders by name, also to root.
struct LockedFiles : FileManager {
    LockedFiles(const TemporaryMac &mac, const QString &names)
        : FileManager(HostRoot(mac.folder())), locked(names.split(u' '))
    {
    }
    bool isReadable(const QString &path) const override
    {
        return !locked.contains(path.section(u'/', -1)) && FileManager::isReadable(path);
    }
    const QStringList locked;
};

const QString receiptPath = u"/Applications/Example.app/Contents/_MASReceipt/receipt"_s;

/// Makes files in a Mac, told as "path=contents" with bars between. A path that begins with `~` lies in the user's
/// library, one that begins with `+` in the Mac's; one that ends with `/` is a folder. The contents "key" stand for a
/// property list with a licence key.
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
        // An application with a dot is an identifier, any other a name.
        columns<QString, QString, QString, QString, QString>("app", "furniture", "installed", "conclusion", "found");
        const char *key = "~/Preferences/org.x.plist=key";
        const auto withKey = [key](const char *furniture) { return QByteArray(furniture) + '|' + key; };
        row("key before policy", "org.gimp.gimp", "~/Preferences/org.gimp.gimp.plist=key", "",
            "needsEntitlementReview app-preferences indicative", "app-preferences");
        row("key before account", "TeamViewer", withKey("~/Application Support/TeamViewer/").constData(), "",
            "needsEntitlementReview app-preferences indicative", "teamviewer-account-store app-preferences");
        row("sound Parallels", "Parallels",
            withKey(R"(+/Preferences/Parallels/licenses.json={"license": "SECRET", "signature": "s"})").constData(), "",
            "licenseArtifact parallels-license-store strong",
            "parallels-license-store:structurallyValid app-preferences");
        row("unsound Parallels", "Parallels", "+/Preferences/Parallels/licenses.json={}", "",
            "needsEntitlementReview parallels-license-store indicative", "parallels-license-store:failed");
        row("receipt before all", "Setapp", withKey("receipt=signed|~/Application Support/Setapp/").constData(), "cask",
            "verifiedReceipt mac-app-store-receipt verified", "mac-app-store-receipt:verified");
        row("policy before failed receipt", "us.zoom.xos", "receipt=x", "",
            "accountBased account-based-app-policy informational", "mac-app-store-receipt:failed");
        row("failed receipt before locked store", "Locked", "receipt=x|~/Application Support/Locked/", "",
            "needsEntitlementReview failed-local-verification none",
            "mac-app-store-receipt:failed app-support-artifacts:inaccessible");
        row("locked receipt before provenance", "Example", "receipt=locked", "cask pkg",
            "accessRestricted local-access-restricted none",
            "mac-app-store-receipt:inaccessible homebrew-cask installer-receipt");
        row("cask before package", "Example", "", "cask pkg", "installationEvidence homebrew-cask informational",
            "homebrew-cask installer-receipt");
    }

    void conclusions()
    {
        QFETCH(QString, app);
        QFETCH(QString, furniture);
        QFETCH(QString, installed);
        const TemporaryMac mac;
        furnish(mac, furniture.replace(u"receipt="_s, receiptPath + u'='));
        const QByteArray receipt = mac.contents(receiptPath);
        if (receipt == "signed")
            mac.write(receiptPath, m_authority.sign(TestAuthority::payload(u"org.x"_s, u"2016-06-01T10:00:00Z"_s)));
        const ReceiptSecurity security({m_authority.rootFingerprint()});
        const LockedFiles files(mac, receipt == "locked" ? u"receipt"_s : u"Locked"_s);

        Request request{.appURL = u"/Applications/Example.app"_s,
                        .applicationName = app.contains(u'.') ? u"Example"_s : app,
                        .bundleIdentifier = app.contains(u'.') ? app : u"org.x"_s,
                        .source = u"/Applications"_s,
                        .homeDirectory = mac.home(),
                        .systemLibraryURL = u"/Library"_s};
        if (installed.contains(u"cask"))
            request.cask = HomebrewCaskApplication{u"example\nName: x"_s, u"1.2"_s, {}};
        if (installed.contains(u"pkg"))
            request.installerReceiptIdentifiers = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s};
        const AppLicenseEvidence evidence = MacLicenseEvidenceCollector::evidence(request, files, security);
        QTEST(rawValue(evidence.state) + u' ' + evidence.source + u' ' + rawValue(evidence.confidence.value()),
              "conclusion");
        QTEST(summary(evidence.signals.value()), "found");

        const QByteArray written = QJsonDocument(toJson(evidence)).toJson();
        QVERIFY2(!written.contains("SECRET"), written);
        QCOMPARE(written.contains("receipt exists but cannot be read with"), receipt == "locked");
        QCOMPARE(written.contains("cask 'example Name: x' (recorded version 1.2). This"),
                 written.contains("\"homebrew-cask\""));
        QCOMPARE(written.contains("detected: a, b, c, d. Installer"), written.contains("\"installer-receipt\""));
    }

    void stores_data()
    {
        columns<QString, QString, QString, QString, QString>("name", "identifier", "furniture", "locked", "found");
        row("Office, in turn", "Word", "com.microsoft.Outlook",
            "+/Preferences/com.microsoft.office.licensingV2.plist|+/Application Support/Microsoft/Office/Licenses/",
            "com.microsoft.office.licensingV2.plist", "microsoft-license-store:inaccessible microsoft-license-store !");
        row("not Office", "Microsoft Word", "com.microsoft.teams2",
            "+/Preferences/com.microsoft.office.licensing.plist", "", "");
        row("Parallels locked", "X", "Parallels", "+/Preferences/Parallels/licenses.json", "licenses.json",
            "parallels-license-store:inaccessible !");
        row("several vendors", "Setapp for AnyDesk", "x",
            "~/Preferences/com.philandro.anydesk.plist|~/Application Support/Setapp", "",
            "setapp-account-store anydesk-account-store");
        row("all places of its own", "A", "x.y",
            "~/Preferences/x.y.plist=key|+/Preferences/x.y.plist=key|~/Application Support/A/my-activation|"
            "~/Application Support/x.y|~/Containers/x.y/Data/Library/Application Support/A/Subscription/",
            "",
            "app-preferences app-preferences app-support-artifacts app-support-artifacts:inaccessible "
            "app-support-artifacts !");
        row("locked", "A", "x.y", "+/Preferences/x.y.plist=key|~/Application Support/A/", "x.y.plist A",
            "app-preferences:inaccessible app-support-artifacts:inaccessible !");
        row("name that leaves", "..", "x.y", "~/activation", "", "");
        row("identifier that leaves", "A", "../x", "~/x.plist=key|~/x/activation", "", "");
    }

    void stores()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, locked);
        const TemporaryMac mac;
        furnish(mac, furniture);
        const LockedFiles files(mac, locked);
        const Findings ofVendors = vendorSignals(name, identifier, files, mac.home(), u"/Library"_s);
        const Findings own = preferenceSignals(name, identifier, files, mac.home());
        const bool inaccessible = ofVendors.inaccessible || own.inaccessible;
        QTEST(summary(ofVendors.signals + own.signals) + (inaccessible ? u" !"_s : QString()), "found");
    }

    void parallelsStructure()
    {
        const TemporaryMac mac;
        const auto signalOf = [&mac](const QByteArray &json) {
            mac.write(u"/Library/Preferences/Parallels/licenses.json"_s, json);
            return vendorSignals(u"Parallels"_s, u"x"_s, *mac.services().files, mac.home(), u"/Library"_s)
                .signals.value(0);
        };
        const auto isSound = [&](const QByteArray &json) {
            return signalOf(json).verification == LicenseEvidenceVerification::structurallyValid;
        };
        QCOMPARE(signalOf("license signature").detail,
                 u"A Parallels license file exists, but its expected license/signature structure was not found."_s);
        QVERIFY(isSound(R"([1, {"x": [{"y": {"Signature": "b", "LICENSE": "a"}}]}])"));
        QVERIFY(isSound(R"({"license": {"license": "a", "signature": "b"}})"));
        QVERIFY(!isSound(R"({"license": 7, "signature": "b"})"));
        QVERIFY(!isSound(R"([{"license": " \n", "signature": "b"}, {"license": "a"}])"));
        QVERIFY(!isSound(QByteArray(100000, '[') + QByteArray(100000, ']')));
    }

    void namesOfKeysAndArtifacts()
    {
        const auto found = [](const TemporaryMac &mac) {
            const Findings all = preferenceSignals(u"Example"_s, u"org.example"_s, *mac.services().files, mac.home());
            const QString detail = all.signals.isEmpty() ? QString() : all.signals.constFirst().detail;
            return detail.section(u": "_s, 1).section(u". F"_s, 0, -2);
        };
        const auto keys = [&](const QString &json) {
            const TemporaryMac mac;
            mac.write(u"/Library/Preferences/org.example.plist"_s,
                      PropertyList::xml(QJsonDocument::fromJson(json.toUtf8()).toVariant()));
            return found(mac);
        };
        QCOMPARE(keys(uR"({"License_Key": {"productKey": 1}, "SERIAL-number 2": 1})"_s),
                 u"License_Key, SERIAL-number 2"_s);
        QCOMPARE(keys(uR"({"TrialAgreementLicenseKey": {"productKey": 1}})"_s), u"productKey"_s);
        QCOMPARE(keys(uR"([[[[[{"x": {"a\nSerial Number": 1}}]]]]])"_s), u"a Serial Number"_s);
        QCOMPARE(keys(uR"([[[[[[{"x": {"Serial Number": 1}}]]]]]])"_s), QString());
        const QString ones = u"1,"_s.repeated(49), key = uR"({"licenceKey": 1}])"_s;
        QCOMPARE(keys(u'[' + ones + key), u"licenceKey"_s);
        QCOMPARE(keys(u"[1,"_s + ones + key), QString());
        QString many = u"["_s;
        for (int number = 10; number <= 21; ++number)
            many += uR"({"b%1 entitlement": 1},)"_s.arg(number);
        const QString last = uR"({"a entitlement": 1}])"_s, five =
                                                                u"b10 entitlement, b11 entitlement, b12 entitlement, "
                                                                "b13 entitlement, b14 entitlement"_s;
        QCOMPARE(keys(many + last), five);
        QCOMPARE(keys(many.chopped(23) + last), u"a entitlement, "_s + five.chopped(17));

        const auto artifact = [&](const QString &script) {
            const TemporaryMac mac;
            mac.furnish(u"cd .%1; mkdir -p 'Library/Application Support/Example'; cd Library/App*/Example; %2"_s.arg(
                mac.home(), script));
            return found(mac);
        };
        QCOMPARE(artifact(u"touch EULA-activation 'subscription agreement' third-party-entitlement"_s), QString());
        QCOMPARE(artifact(u"touch .activation; mkdir .h A.app; touch .h/activation A.app/activation"_s), QString());
        QCOMPARE(artifact(u"mkdir -p a/b/c; touch a/b/c/purchase-receipt a/b/License-Key"_s), u"License-Key"_s);
        QCOMPARE(artifact(u"touch $(seq 100 398) license-key"_s), u"license-key"_s);
        QCOMPARE(artifact(u"touch $(seq 100 399) license-key"_s), QString());
        QCOMPARE(artifact(u"touch \"$(printf 'activation\\n\\nName: x')\""_s), u"activation Name: x"_s);
    }

    void casks()
    {
        const auto table = homebrewCaskApplications(R"({"casks": [
            {"token": "old", "installed": "1", "artifacts": [{"app": ["Firefox.app"]}]},
            {"token": "firefox", "installed": "2", "version": "3", "artifacts": [{"uninstall": [{"quit": "x"}]},
                {"app": ["Firefox.app"], "target": "/Applications/Firefox.app"}, "x", {"app": "Text.app"},
                {"app": ["Build/Name.APP", {"target": "Renamed.app"}]}, {"app": [{"target": "a.app"}, "b.app"]}]},
            {"token": "waiting", "installed": null, "version": "latest", "artifacts": [{"app": ["W.app/"]}]},
            {"token": 5, "artifacts": [{"app": ["Five.app"]}]}, {"token": "none", "artifacts": null}, null]})");
        QCOMPARE(table.size(), 3);
        const HomebrewCaskApplication firefox = table.value(u"firefox.app"_s);
        QCOMPARE(firefox.token + u'@' + firefox.installedVersion, u"firefox@2"_s);
        QCOMPARE(firefox.appNames, (QStringList{u"firefox.app"_s, u"name.app"_s}));
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
