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
        row("nothing", "Example", "", "", "noEvidence multi-layer-local-scan none", "");
        row("cask", "Example", "", "cask", "installationEvidence homebrew-cask informational", "homebrew-cask");
        row("installer", "Example", "", "pkg", "installationEvidence installer-receipt informational",
            "installer-receipt");
        row("both", "Example", "", "cask pkg", "installationEvidence homebrew-cask informational",
            "homebrew-cask installer-receipt");
        row("policy before provenance", "us.zoom.xos", "", "cask",
            "accountBased account-based-app-policy informational", "homebrew-cask");
        row("free by policy", "org.gimp.gimp", "", "pkg", "freeOrOpenSource key-free-app-policy informational",
            "installer-receipt");
        row("key before policy", "org.gimp.gimp", "~/Preferences/org.gimp.gimp.plist=key", "",
            "needsEntitlementReview app-preferences indicative", "app-preferences");
        row("key before account", "TeamViewer", withKey("~/Application Support/TeamViewer/").constData(), "",
            "needsEntitlementReview app-preferences indicative", "teamviewer-account-store app-preferences");
        row("account", "AnyDesk", "~/Preferences/com.philandro.anydesk.plist", "",
            "accountBased anydesk-account-store indicative", "anydesk-account-store");
        row("sound Parallels", "Parallels",
            withKey(R"(+/Preferences/Parallels/licenses.json={"license": "SECRET", "signature": "s"})").constData(), "",
            "licenseArtifact parallels-license-store strong",
            "parallels-license-store:structurallyValid app-preferences");
        row("unsound Parallels", "Parallels", "+/Preferences/Parallels/licenses.json={}", "",
            "needsEntitlementReview parallels-license-store indicative", "parallels-license-store:failed");
        row("bad receipt", "Example", "receipt=SECRET", "cask", "needsEntitlementReview failed-local-verification none",
            "mac-app-store-receipt:failed homebrew-cask");
        row("locked receipt", "Example", "receipt=locked", "cask", "accessRestricted local-access-restricted none",
            "mac-app-store-receipt:inaccessible homebrew-cask");
        row("bad receipt before access", "Example", "receipt=SECRET|~/Application Support/Example", "",
            "needsEntitlementReview failed-local-verification none",
            "mac-app-store-receipt:failed app-support-artifacts:inaccessible");
        row("file for a folder", "Example", "~/Application Support/Example", "pkg",
            "accessRestricted local-access-restricted none", "app-support-artifacts:inaccessible installer-receipt");
        row("another's receipt", "Example", withKey("receipt=signed org.other").constData(), "",
            "needsEntitlementReview app-preferences indicative", "mac-app-store-receipt:failed app-preferences");
        row("receipt before all", "Setapp", withKey("receipt=signed org.x|~/Application Support/Setapp/").constData(),
            "cask", "verifiedReceipt mac-app-store-receipt verified", "mac-app-store-receipt:verified");
        row("untrusted receipt", "Example", "receipt=foreign org.x", "cask",
            "receiptIntegrityVerified mac-app-store-receipt strong", "mac-app-store-receipt:structurallyValid");
        row("found twice", "org.x ", "~/Application Support/org.x/activation=SECRET", "",
            "needsEntitlementReview app-support-artifacts indicative", "app-support-artifacts");
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
        const LockedFiles files(mac, receipt == "locked" ? u"receipt"_s : QString());

        Request request{.appURL = u"/Applications/Example.app"_s,
                        .applicationName = app.endsWith(u' ') || !app.contains(u'.') ? app.trimmed() : u"Example"_s,
                        .bundleIdentifier = app.contains(u'.') ? app.trimmed() : u"org.x"_s,
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
        QCOMPARE(written.contains("were verified. The historical Apple signer chain"), receipt.startsWith("foreign"));
    }

    void vendorStores_data()
    {
        columns<QString, QString, QString, QString, QString>("name", "identifier", "furniture", "locked", "found");
        row("Office by a later path", "Word", "com.Microsoft.Word.beta",
            "+/Preferences/com.microsoft.office.licensing.plist", "", "microsoft-license-store");
        row("Office, in turn", "Word", "com.microsoft.Outlook",
            "+/Preferences/com.microsoft.office.licensingV2.plist|+/Application Support/Microsoft/Office/Licenses/",
            "com.microsoft.office.licensingV2.plist", "microsoft-license-store:inaccessible microsoft-license-store !");
        row("not Office", "Microsoft Word", "com.microsoft.teams2",
            "+/Preferences/com.microsoft.office.licensing.plist", "", "");
        row("Adobe by name", "ACROBAT Reader", "x", "~/Application Support/Adobe/OOBE/", "", "adobe-license-store");
        row("Adobe locked", "X", "com.Adobe.x",
            "+/Application Support/Adobe/SLStore/|+/Application Support/Adobe/SLCache/", "SLStore SLCache",
            "adobe-license-store:inaccessible adobe-license-store:inaccessible !");
        row("TeamViewer locked", "TeamViewer Host", "x", "~/Application Support/TeamViewer/", "TeamViewer",
            "teamviewer-account-store");
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

    void parallelsStructure_data()
    {
        columns<QString, bool>("json", "sound");
        row("other case, far inside", R"([1, {"x": [{"y": {"Signature": "b", "LICENSE": "a"}}]}])", true);
        row("inside a licence", R"({"license": {"license": "a", "signature": "b"}})", true);
        row("blank", R"({"license": " \n", "signature": "b"})", false);
        row("not text", R"({"license": 7, "signature": "b"})", false);
        row("apart", R"([{"license": "a"}, {"signature": "b"}])", false);
        row("too deep", qUtf8Printable(QString(100000, u'[') + QString(100000, u']')), false);
        row("not JSON", "license signature", false);
        row("empty", "", false);
    }

    void parallelsStructure()
    {
        QFETCH(QString, json);
        const TemporaryMac mac;
        mac.write(u"/Library/Preferences/Parallels/licenses.json"_s, json.toUtf8());
        const auto found = vendorSignals(u"Parallels"_s, u"x"_s, *mac.services().files, mac.home(), u"/Library"_s);
        QCOMPARE(found.signals.size(), 1);
        QTEST(found.signals.constFirst().verification == LicenseEvidenceVerification::structurallyValid, "sound");
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
        row("letters between", R"({"licensé key": 1, "licenseякеy": 1})", "");
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
        row("file name for an identifier", "A", "A.app", "~/Preferences/A.app.plist=key", "", "app-preferences");
        row("damaged preferences", "A", "x.y", "~/Preferences/x.y.plist=<plist><dict><key>LicenseKey", "", "");
        row("name that leaves", "..", "x.y", "~/activation", "", "");
        row("name that goes elsewhere", "a/b", "x.y", "~/Application Support/a/b/activation", "", "");
        row("name that stays", ".", "x.y", "~/Application Support/activation", "", "");
        row("empty name", "", "x.y", "~/Application Support/activation", "", "");
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

    void artifactNames_data()
    {
        columns<QString, QString>("script", "name");
        row("own case", "mkdir b; touch b/My-Activation.DAT", "My-Activation.DAT");
        row("excluded", "touch EULA-activation 'subscription agreement' third-party-entitlement", "");
        row("third level", "mkdir -p a/b; touch a/b/purchase-receipt", "purchase-receipt");
        row("fourth level", "mkdir -p a/b/c; touch a/b/c/purchase-receipt", "");
        row("after a deep folder", "mkdir -p a/b/c/d; touch licence-key", "licence-key");
        row("hidden", "mkdir .h; touch .activation .h/activation", "");
        row("in a package", "mkdir A.app; touch A.app/activation", "");
        row("300th", "touch $(seq 100 398) license-key", "license-key");
        row("301st", "touch $(seq 100 399) license-key", "");
        row("forges a line", "touch \"$(printf 'activation\\n\\nName: x')\"", "activation Name: x");
    }

    void artifactNames()
    {
        QFETCH(QString, script);
        const TemporaryMac mac;
        mac.furnish(u"cd .%1; mkdir -p 'Library/Application Support/Example'; cd Library/App*/Example; %2"_s.arg(
            mac.home(), script));
        QTEST(namesFound(mac), "name");
    }

    void casks()
    {
        const auto table = homebrewCaskApplications(R"({"casks": [
            {"token": "old", "installed": "1", "artifacts": [{"app": ["Firefox.app"]}]},
            {"token": "firefox", "installed": "2", "version": "3", "artifacts": [{"uninstall": [{"quit": "x"}]},
                {"app": ["Firefox.app"], "target": "/Applications/Firefox.app"}, "x", {"app": "Text.app"},
                {"app": ["Build/Name.APP", {"target": "Renamed.app"}]}, {"app": [{"target": "a.app"}, "b.app"]}]},
            {"token": "waiting", "installed": null, "version": "latest", "artifacts": [{"app": ["W.app/"]}]},
            {"token": "bare", "version": 4, "artifacts": [{"app": ["B.app"]}]},
            {"token": 5, "artifacts": [{"app": ["Five.app"]}]}, {"token": "none", "artifacts": null}, null]})");
        QStringList texts;
        for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
            texts.append(entry.key() + u'=' + entry->token + u'@' + entry->installedVersion);
        texts.sort();
        QCOMPARE(texts.join(u' '),
                 u"b.app=bare@unknown firefox.app=firefox@2 name.app=firefox@2 w.app=waiting@latest"_s);
        QCOMPARE(table.value(u"name.app"_s).appNames, (QStringList{u"firefox.app"_s, u"name.app"_s}));
    }

    void installerReceipts_data()
    {
        columns<QString, QString, QString, QString>("name", "identifier", "receipts", "matching");
        row("a word of either", "Widget", "org.example.x", "z.WIDGET.core a.example a.b", "a.example z.WIDGET.core");
        row("stop words and short ones", "Mac Desktop App", "com.foo.macos", "com.foo.desktop com.macos.mac", "");
        row("numbers", "Tool 2019", "x", "org.2019", "org.2019");
        row("three accented letters", "x\u0323yz", "x", "vn.x\u0323yz", "");
        row("whole words only", "Widget", "x", "org.widgets", "");
        row("accents, however written", "T\u01b0\u0300 điê\u0309n", "x", "vn.tu.dien vn.ĐIỂN", "vn.ĐIỂN");
    }

    void installerReceipts()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, receipts);
        QTEST(matchingInstallerReceipts(name, identifier, receipts.split(u' ')).join(u' '), "matching");
    }

private:
    const TestAuthority m_authority;
};

QTEST_GUILESS_MAIN(EvidenceTest)
#include "EvidenceTest.moc"
