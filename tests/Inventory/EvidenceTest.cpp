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
class LockedFiles : public FileManager
{
public:
    LockedFiles(const TemporaryMac &mac, const QString &locked)
        : FileManager(mac.services().files->root()), m_locked(locked.split(u' '))
    {
    }
    bool isReadable(const QString &path) const override
    {
        return !m_locked.contains(path.section(u'/', -1)) && FileManager::isReadable(path);
    }

private:
    QStringList m_locked;
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

/// The names in the detail of the only signal; nothing without one.
QString namesFound(const TemporaryMac &mac)
{
    const Findings findings = preferenceSignals(u"Example"_s, u"org.example"_s, *mac.services().files, mac.home());
    const QString detail = findings.signals.isEmpty() ? QString() : findings.signals.constFirst().detail;
    return detail.section(u": "_s, 1).section(u". F"_s, 0, -2);
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
        row("policy before provenance", "us.zoom.xos", "", "cask",
            "accountBased account-based-app-policy informational", "homebrew-cask");
        row("key before policy", "org.gimp.gimp", "~/Preferences/org.gimp.gimp.plist=key", "",
            "needsEntitlementReview app-preferences indicative", "app-preferences");
        row("key before account", "TeamViewer", withKey("~/Application Support/TeamViewer/").constData(), "",
            "needsEntitlementReview app-preferences indicative", "teamviewer-account-store app-preferences");
        row("sound Parallels", "Parallels",
            withKey(R"(+/Preferences/Parallels/licenses.json={"license": "SECRET", "signature": "s"})").constData(), "",
            "licenseArtifact parallels-license-store strong",
            "parallels-license-store:structurallyValid app-preferences");
        row("another's receipt", "Example", withKey("receipt=signed org.other").constData(), "",
            "needsEntitlementReview app-preferences indicative", "mac-app-store-receipt:failed app-preferences");
        row("receipt before all", "Setapp", withKey("receipt=signed org.x|~/Application Support/Setapp/").constData(),
            "cask", "verifiedReceipt mac-app-store-receipt verified", "mac-app-store-receipt:verified");
        row("untrusted receipt", "Example", "receipt=foreign org.x", "cask",
            "receiptIntegrityVerified mac-app-store-receipt strong", "mac-app-store-receipt:structurallyValid");
        row("policy before failed receipt", "us.zoom.xos", "receipt=x", "",
            "accountBased account-based-app-policy informational", "mac-app-store-receipt:failed");
        row("failed receipt before locked store", "Locked", "receipt=x|~/Application Support/Locked/", "",
            "needsEntitlementReview failed-local-verification none",
            "mac-app-store-receipt:failed app-support-artifacts:inaccessible");
        row("failed receipt before provenance", "Example", "receipt=x", "pkg",
            "needsEntitlementReview failed-local-verification none", "mac-app-store-receipt:failed installer-receipt");
        row("locked receipt before provenance", "Example", "receipt=locked", "cask",
            "accessRestricted local-access-restricted none", "mac-app-store-receipt:inaccessible homebrew-cask");
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
        const bool isSigned = receipt.startsWith("signed");
        if (const qsizetype space = receipt.indexOf(' '); space > 0)
            mac.write(receiptPath, m_authority.sign(TestAuthority::payload(QString::fromUtf8(receipt.mid(space + 1)),
                                                                           u"2016-06-01T10:00:00Z"_s)));
        const ReceiptSecurity security(isSigned ? QList{m_authority.rootFingerprint()}
                                                : QList{ReceiptSecurity::appleRootFingerprint()});
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
        QCOMPARE(written.contains("cask 'example Name: x' (recorded version 1.2). This"),
                 written.contains("\"homebrew-cask\""));
        QCOMPARE(written.contains("detected: a, b, c, d. Installer"), written.contains("\"installer-receipt\""));
    }

    void vendorStores_data()
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
    }

    void vendorStores()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, locked);
        const TemporaryMac mac;
        furnish(mac, furniture);
        const Findings findings = vendorSignals(name, identifier, LockedFiles(mac, locked), mac.home(), u"/Library"_s);
        QTEST(summary(findings.signals) + (findings.inaccessible ? u" !"_s : QString()), "found");
    }

    void parallelsStructure()
    {
        const TemporaryMac mac;
        const auto isSound = [&mac](const QByteArray &json) {
            mac.write(u"/Library/Preferences/Parallels/licenses.json"_s, json);
            const auto found = vendorSignals(u"Parallels"_s, u"x"_s, *mac.services().files, mac.home(), u"/Library"_s);
            return found.signals.value(0).verification == LicenseEvidenceVerification::structurallyValid;
        };
        QVERIFY(isSound(R"([1, {"x": [{"y": {"Signature": "b", "LICENSE": "a"}}]}])"));
        QVERIFY(isSound(R"({"license": {"license": "a", "signature": "b"}})"));
        QVERIFY(!isSound(R"({"license": 7, "signature": "b"})"));
        QVERIFY(!isSound(R"([{"license": " \n", "signature": "b"}, {"license": "a"}])"));
        QVERIFY(!isSound(QByteArray(100000, '[') + QByteArray(100000, ']')));
        QVERIFY(!isSound("license signature"));
    }

    void licenseKeys_data()
    {
        columns<QString, QString>("json", "names");
        const auto many = [](int count) {
            QStringList entries;
            for (int number = 10; number < 10 + count; ++number)
                entries.append(uR"("b%1 entitlement": 1)"_s.arg(number));
            return (uR"({"1": {%1}, "2": {"a entitlement": 1}})"_s.arg(entries.join(u','))).toUtf8();
        };
        const auto listOf = [](int before) {
            return (u'[' + u"1,"_s.repeated(before) + uR"({"licenceKey": 1}])"_s).toUtf8();
        };
        row("normalised", R"({"License_Key": {"productKey": 1}, "SERIAL-number 2": 1})",
            "License_Key, SERIAL-number 2");
        row("excluded key", R"({"TrialAgreementLicenseKey": {"productKey": 1}})", "productKey");
        row("sorted, five, on one line", R"({"x": {"a\nlicensekey": 1}, "f licensekey": 1, "e licensekey": 1,
            "d licensekey": 1, "c licensekey": 1, "b licensekey": 1})",
            "a licensekey, b licensekey, c licensekey, d licensekey, e licensekey");
        row("depth 6", R"([[[[[{"x": {"Serial Number": 1}}]]]]])", "Serial Number");
        row("depth 7", R"([[[[[[{"x": {"Serial Number": 1}}]]]]]])", "");
        row("50th element", listOf(49).constData(), "licenceKey");
        row("51st element", listOf(50).constData(), "");
        row("11 names", many(11).constData(),
            "a entitlement, b10 entitlement, b11 entitlement, b12 entitlement, b13 entitlement");
        row("12 names", many(12).constData(),
            "b10 entitlement, b11 entitlement, b12 entitlement, b13 entitlement, b14 entitlement");
    }

    void licenseKeys()
    {
        QFETCH(QString, json);
        const TemporaryMac mac;
        mac.write(u"/Library/Preferences/org.example.plist"_s,
                  PropertyList::xml(QJsonDocument::fromJson(json.toUtf8()).toVariant()));
        QTEST(namesFound(mac), "names");
    }

    void traces_data()
    {
        columns<QString, QString, QString, QString, QString>("name", "identifier", "furniture", "locked", "found");
        row("all places in turn", "A", "x.y",
            "~/Preferences/x.y.plist=key|+/Preferences/x.y.plist=key|~/Application Support/A/my-activation|"
            "~/Application Support/x.y|~/Containers/x.y/Data/Library/Application Support/A/Subscription/",
            "",
            "app-preferences app-preferences app-support-artifacts app-support-artifacts:inaccessible "
            "app-support-artifacts !");
        row("locked", "A", "x.y", "+/Preferences/x.y.plist=key|~/Application Support/A/", "x.y.plist A",
            "app-preferences:inaccessible app-support-artifacts:inaccessible !");
        row("damaged preferences", "A", "x.y", "~/Preferences/x.y.plist=<plist><dict><key>LicenseKey", "", "");
        row("name that leaves", "..", "x.y", "~/activation", "", "");
        row("identifier that leaves", "A", "../x", "~/x.plist=key|~/x/activation", "", "");
    }

    void traces()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, locked);
        const TemporaryMac mac;
        furnish(mac, furniture);
        const Findings findings = preferenceSignals(name, identifier, LockedFiles(mac, locked), mac.home());
        QTEST(summary(findings.signals) + (findings.inaccessible ? u" !"_s : QString()), "found");
    }

    void artifactNames()
    {
        const auto found = [](const QString &script) {
            const TemporaryMac mac;
            mac.furnish(u"cd .%1; mkdir -p 'Library/Application Support/Example'; cd Library/App*/Example; %2"_s.arg(
                mac.home(), script));
            return namesFound(mac);
        };
        QCOMPARE(found(u"touch EULA-activation 'subscription agreement' third-party-entitlement"_s), QString());
        QCOMPARE(found(u"touch .activation; mkdir .h A.app; touch .h/activation A.app/activation"_s), QString());
        QCOMPARE(found(u"mkdir -p a/b/c; touch a/b/c/purchase-receipt a/b/License-Key"_s), u"License-Key"_s);
        QCOMPARE(found(u"touch $(seq 100 398) license-key"_s), u"license-key"_s);
        QCOMPARE(found(u"touch $(seq 100 399) license-key"_s), QString());
        QCOMPARE(found(u"touch \"$(printf 'activation\\n\\nName: x')\""_s), u"activation Name: x"_s);
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
