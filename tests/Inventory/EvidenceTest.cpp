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

/// Refuses what a name in `locked` is part of, also to root.
class LockedFiles : public FileManager
{
public:
    LockedFiles(const HostRoot &root, const QString &locked) : FileManager(root), m_locked(locked.split(u' ')) {}
    bool isReadable(const QString &path) const override
    {
        return !m_locked.contains(path.section(u'/', -1)) && FileManager::isReadable(path);
    }

private:
    QStringList m_locked;
};

const QString application = u"/Applications/Example.app"_s;
const QString receiptPath = application + u"/Contents/_MASReceipt/receipt"_s;

/// Makes files in a Mac: "path" or "path=contents", a path that begins with `~` being the home's. "key" stands for a
/// property list with a licence key in it; a path that ends with `/` is a folder.
void furnish(const TemporaryMac &mac, const QString &furniture)
{
    for (const QString &piece : furniture.split(u'|', Qt::SkipEmptyParts)) {
        const QString path = piece.section(u'=', 0, 0).replace(u"~/"_s, mac.home() + u"/Library/"_s);
        QByteArray contents = piece.section(u'=', 1).toUtf8();
        if (contents == "key")
            contents = PropertyList::xml(QVariantMap{{u"LicenseKey"_s, u"SECRET-plist"_s}});
        mac.write(path.endsWith(u'/') ? path + u".keep"_s : path, contents);
    }
}

QString summary(const QList<LicenseEvidenceSignal> &signalList)
{
    QStringList texts;
    for (const LicenseEvidenceSignal &signal : signalList)
        texts.append(signal.kind + u'/' + signal.source + u'/' + rawValue(signal.verification));
    return texts.join(u' ');
}

QString summary(const Findings &findings)
{
    return summary(findings.signals) + (findings.inaccessible ? u" !"_s : QString());
}

QString details(const Findings &findings)
{
    QStringList texts;
    for (const LicenseEvidenceSignal &signal : findings.signals)
        texts.append(signal.detail.section(u": "_s, 1).section(u". F"_s, 0, -2));
    return texts.join(u'|');
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
        const char *name = "Example";
        const char *id = "org.example.tool";
        const char *preferences = "~/Preferences/org.example.tool.plist=key";
        const char *metadata = "license-metadata/app-preferences/detected";
        const char *badReceipt = "app-store-receipt/mac-app-store-receipt/failed";
        row("nothing", name, id, "", "", "noEvidence multi-layer-local-scan none", "");
        row("cask", name, id, "", "cask", "installationEvidence homebrew-cask informational",
            "installation-provenance/homebrew-cask/detected");
        row("installer", name, id, "", "receipts", "installationEvidence installer-receipt informational",
            "installation-provenance/installer-receipt/detected");
        row("both", name, id, "", "cask receipts", "installationEvidence homebrew-cask informational",
            "installation-provenance/homebrew-cask/detected installation-provenance/installer-receipt/detected");
        row("policy before provenance", name, "us.zoom.xos", "", "cask",
            "accountBased account-based-app-policy informational", "installation-provenance/homebrew-cask/detected");
        row("key before policy", name, "org.gimp.gimp", "~/Preferences/org.gimp.gimp.plist=key", "",
            "needsEntitlementReview app-preferences indicative", metadata);
        row("key before account", "TeamViewer", id,
            qUtf8Printable(u"~/Application Support/TeamViewer/|"_s + QLatin1StringView(preferences)), "",
            "needsEntitlementReview app-preferences indicative",
            "account-metadata/teamviewer-account-store/detected license-metadata/app-preferences/detected");
        row("account", "AnyDesk", id, "~/Preferences/com.philandro.anydesk.plist=", "",
            "accountBased anydesk-account-store indicative", "account-metadata/anydesk-account-store/detected");
        row("store of a vendor", "Setapp", id, "~/Application Support/Setapp/", "",
            "needsEntitlementReview setapp-account-store indicative",
            "vendor-license-artifact/setapp-account-store/detected");
        row("sound Parallels", "Parallels", id,
            qUtf8Printable(
                uR"(/Library/Preferences/Parallels/licenses.json={"license": "SECRET-l", "signature": "s"}|)"_s +
                QLatin1StringView(preferences)),
            "", "licenseArtifact parallels-license-store strong",
            "vendor-license-artifact/parallels-license-store/structurallyValid "
            "license-metadata/app-preferences/detected");
        row("unsound Parallels", "Parallels", id, "/Library/Preferences/Parallels/licenses.json={}", "",
            "needsEntitlementReview parallels-license-store indicative",
            "vendor-license-artifact/parallels-license-store/failed");
        row("bad receipt", name, id, "receipt=no receipt", "cask",
            "needsEntitlementReview failed-local-verification none",
            "app-store-receipt/mac-app-store-receipt/failed installation-provenance/homebrew-cask/detected");
        row("policy before bad receipt", name, "us.zoom.xos", "receipt=no receipt", "",
            "accountBased account-based-app-policy informational", badReceipt);
        row("locked receipt", name, id, "receipt=locked", "cask", "accessRestricted local-access-restricted none",
            "app-store-receipt/mac-app-store-receipt/inaccessible installation-provenance/homebrew-cask/detected");
        row("bad receipt before access", name, id, "receipt=no receipt|~/Application Support/Example=", "",
            "needsEntitlementReview failed-local-verification none",
            "app-store-receipt/mac-app-store-receipt/failed access/app-support-artifacts/inaccessible");
        row("a file for a folder", name, id, "~/Application Support/Example=", "",
            "accessRestricted local-access-restricted none", "access/app-support-artifacts/inaccessible");
        row("another's receipt", name, id,
            qUtf8Printable(u"receipt=signed for org.other|"_s + QLatin1StringView(preferences)), "",
            "needsEntitlementReview app-preferences indicative",
            "app-store-receipt/mac-app-store-receipt/failed license-metadata/app-preferences/detected");
        row("receipt before all", "Setapp", id,
            qUtf8Printable(u"receipt=signed for org.example.tool|~/Application Support/Setapp/|"_s +
                           QLatin1StringView(preferences)),
            "cask", "verifiedReceipt mac-app-store-receipt verified",
            "app-store-receipt/mac-app-store-receipt/verified");
        row("untrusted receipt", name, id, "receipt=foreign for org.example.tool", "cask",
            "receiptIntegrityVerified mac-app-store-receipt strong",
            "app-store-receipt/mac-app-store-receipt/structurallyValid");
        row("said once", "org.example.tool", id, "~/Application Support/org.example.tool/activation.dat=x", "",
            "needsEntitlementReview app-support-artifacts indicative",
            "license-metadata/app-support-artifacts/detected");
    }

    void conclusions()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, installed);
        const TemporaryMac mac;
        furnish(mac, furniture.replace(u"receipt="_s, receiptPath + u'='));
        const QByteArray receipt = mac.contents(receiptPath);
        if (receipt.contains(" for "))
            mac.write(receiptPath, signedReceipt(QString::fromUtf8(receipt.mid(receipt.lastIndexOf(' ') + 1))));
        const ReceiptSecurity security(receipt.startsWith("signed") ? QList{m_authority.rootFingerprint()}
                                                                    : QList{ReceiptSecurity::appleRootFingerprint()});
        const LockedFiles files(mac.services().files->root(), receipt == "locked" ? u"receipt"_s : QString());

        Request request = requested(mac, name, identifier);
        if (installed.contains(u"cask"_s))
            request.cask = HomebrewCaskApplication{u"example\nName: x"_s, u"1.2"_s, {}};
        if (installed.contains(u"receipts"_s))
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
        if (receipt.startsWith("foreign"))
            QVERIFY2(written.contains("were verified. The historical Apple signer chain"), written);
    }

    void vendorStores_data()
    {
        columns<QString, QString, QString, QString, QString>("name", "identifier", "furniture", "locked", "found");
        const char *office = "vendor-license-artifact/microsoft-license-store/detected";
        row("Office by a later path", "Word", "com.Microsoft.Word.beta",
            "/Library/Preferences/com.microsoft.office.licensing.plist=", "", office);
        row("Office, in turn", "Word", "com.microsoft.Outlook",
            "/Library/Preferences/com.microsoft.office.licensingV2.plist=|"
            "/Library/Preferences/com.microsoft.office.licensing.plist=|"
            "/Library/Application Support/Microsoft/Office/Licenses/",
            "com.microsoft.office.licensingV2.plist",
            "access/microsoft-license-store/inaccessible vendor-license-artifact/microsoft-license-store/detected !");
        row("not Office", "Microsoft Word", "com.microsoft.teams2",
            "/Library/Preferences/com.microsoft.office.licensing.plist=", "", "");
        row("Adobe by name", "ACROBAT Reader", "org.example", "~/Application Support/Adobe/OOBE/", "",
            "vendor-license-artifact/adobe-license-store/detected");
        row("Adobe locked", "X", "com.Adobe.x",
            "/Library/Application Support/Adobe/SLStore/|/Library/Application Support/Adobe/SLCache/",
            "SLStore SLCache", "access/adobe-license-store/inaccessible access/adobe-license-store/inaccessible !");
        row("TeamViewer locked", "TeamViewer Host", "x",
            "~/Application Support/TeamViewer/|~/Preferences/com.teamviewer.TeamViewer.plist=", "TeamViewer",
            "account-metadata/teamviewer-account-store/detected");
        row("Parallels locked", "Parallels Desktop", "x",
            "/Library/Preferences/Parallels/licenses.json=", "licenses.json",
            "access/parallels-license-store/inaccessible !");
        row("several vendors", "Setapp for AnyDesk", "x",
            "~/Preferences/com.philandro.anydesk.plist=|~/Application Support/Setapp=", "",
            "vendor-license-artifact/setapp-account-store/detected account-metadata/anydesk-account-store/detected");
        row("none of them", "Example", "x", "~/Application Support/Setapp/", "", "");
    }

    void vendorStores()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, locked);
        const TemporaryMac mac;
        furnish(mac, furniture);
        const LockedFiles files(mac.services().files->root(), locked);
        QTEST(summary(vendorSignals(name, identifier, files, mac.home(), u"/Library"_s)), "found");
    }

    void parallelsStructure_data()
    {
        columns<QByteArray, bool>("json", "sound");
        const auto add = [](const char *name, const QByteArray &json, bool sound) { row(name, json, sound); };
        add("plain", R"({"license": "a", "signature": "b"})", true);
        add("other case, far inside", R"([1, {"x": [{"y": {"Signature": "b", "LICENSE": "a"}}]}])", true);
        add("inside a licence", R"({"license": {"license": "a", "signature": "b"}})", true);
        add("blank", R"({"license": " \n", "signature": "b"})", false);
        add("not text", R"({"license": 7, "signature": "b"})", false);
        add("apart", R"([{"license": "a"}, {"signature": "b"}])", false);
        add("too deep", QByteArray(100000, '[') + QByteArray(100000, ']'), false);
        add("not JSON", "license signature", false);
        add("empty", "", false);
    }

    void parallelsStructure()
    {
        QFETCH(QByteArray, json);
        const TemporaryMac mac;
        mac.write(u"/Library/Preferences/Parallels/licenses.json"_s, json);
        const Findings findings =
            vendorSignals(u"Parallels"_s, u"x"_s, *mac.services().files, mac.home(), u"/Library"_s);
        QCOMPARE(findings.signals.size(), 1);
        QTEST(findings.signals.constFirst().verification == LicenseEvidenceVerification::structurallyValid, "sound");
    }

    void licenseKeys_data()
    {
        columns<QVariant, QString>("list", "names");
        const auto nested = [](int depth) {
            QVariant value = QVariantMap{{u"Serial Number"_s, 1}};
            for (int level = 0; level < depth; ++level)
                value = level % 2 ? QVariant(QVariantMap{{u"x"_s, value}}) : QVariant(QVariantList{value});
            return value;
        };
        const auto many = [](int count) {
            QVariantMap map;
            for (int number = 0; number < count; ++number)
                map.insert(u"b%1 entitlement"_s.arg(number, 2, 10, QChar(u'0')), 1);
            return QVariant(QVariantMap{{u"1"_s, map}, {u"2"_s, QVariantMap{{u"a entitlement"_s, 1}}}});
        };
        const auto keys = [](const QStringList &names) {
            QVariantMap map;
            for (const QString &name : names)
                map.insert(name, QVariantMap{{u"productKey"_s, 1}});
            return QVariant(map);
        };
        const auto listOf = [](int before) {
            QVariantList list(before, 1);
            return QVariant(list << QVariantMap{{u"licenceKey"_s, 1}});
        };
        const auto add = [](const char *name, const QVariant &list, const char *names) { row(name, list, names); };
        add("normalised", keys({u"License_Key"_s, u"SERIAL-number 2"_s}), "License_Key, SERIAL-number 2");
        add("excluded key is descended into", keys({u"TrialAgreementLicenseKey"_s}), "productKey");
        add("letters between", keys({u"licensé key"_s, u"licenseякеy"_s}), "productKey");
        add("sorted, five, on one line",
            keys({u"f licensekey"_s, u"e licensekey"_s, u"d licensekey"_s, u"c licensekey"_s, u"b licensekey"_s,
                  u"a\nlicensekey"_s}),
            "a licensekey, b licensekey, c licensekey, d licensekey, e licensekey");
        add("depth 6", nested(6), "Serial Number");
        add("depth 7", nested(7), "");
        add("50th element", listOf(49), "licenceKey");
        add("51st element", listOf(50), "");
        add("11 names", many(11), "a entitlement, b00 entitlement, b01 entitlement, b02 entitlement, b03 entitlement");
        add("12 names", many(12),
            "b00 entitlement, b01 entitlement, b02 entitlement, b03 entitlement, b04 entitlement");
        add("text", u"licensekey"_s, "");
    }

    void licenseKeys()
    {
        QFETCH(QVariant, list);
        const TemporaryMac mac;
        mac.write(u"/Library/Preferences/org.example.plist"_s, PropertyList::xml(list));
        QTEST(details(preferenceSignals(u"Example"_s, u"org.example"_s, *mac.services().files, mac.home())), "names");
    }

    void traces_data()
    {
        columns<QString, QString, QString, QString, QString>("name", "identifier", "furniture", "locked", "found");
        const char *artifact = "license-metadata/app-support-artifacts/detected";
        row("all places in turn", "Example", "org.example",
            "~/Preferences/org.example.plist=key|/Library/Preferences/org.example.plist=key|"
            "~/Application Support/Example/|~/Application Support/org.example=|"
            "~/Containers/org.example/Data/Library/Application Support/Example/my-subscription/",
            "Example",
            "license-metadata/app-preferences/detected license-metadata/app-preferences/detected "
            "access/app-support-artifacts/inaccessible access/app-support-artifacts/inaccessible "
            "access/app-support-artifacts/inaccessible !");
        row("container", "Example", "org.example",
            "~/Containers/org.example/Data/Library/Application Support/Example/my-subscription/", "", artifact);
        row("file name for an identifier", "Example", "Example.app", "~/Preferences/Example.app.plist=key", "",
            "license-metadata/app-preferences/detected");
        row("locked preferences", "Example", "org.example", "/Library/Preferences/org.example.plist=key",
            "org.example.plist", "access/app-preferences/inaccessible !");
        row("damaged preferences", "Example", "org.example", "~/Preferences/org.example.plist=<plist><dict><key>Lice",
            "", "");
        row("name that leaves", "..", "org.example", "~/activation.dat=", "", "");
        row("name that goes elsewhere", "a/b", "org.example", "~/Application Support/a/b/activation.dat=", "", "");
        row("name that stays", ".", "org.example", "~/Application Support/activation.dat=", "", "");
        row("empty name", "", "org.example", "~/Application Support/activation.dat=", "", "");
        row("identifier that leaves", "x", "../Secret", "~/Secret.plist=key|~/Secret/activation.dat=", "", "");
        row("identifier that is a folder up", "x", "..", "~/activation.dat=|~/Data/Library/Application Support/x/=", "",
            "");
    }

    void traces()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, furniture);
        QFETCH(QString, locked);
        const TemporaryMac mac;
        furnish(mac, furniture);
        const LockedFiles files(mac.services().files->root(), locked);
        QTEST(summary(preferenceSignals(name, identifier, files, mac.home())), "found");
    }

    void artifactNames_data()
    {
        columns<QString, QString>("script", "name");
        row("own case", "mkdir -p b; touch b/My-Activation.DAT", "My-Activation.DAT");
        row("excluded", "touch EULA-activation 'subscription agreement' third-party-entitlement activation-LICENSE.txt",
            "");
        row("a folder", "mkdir -p Entitlements", "Entitlements");
        row("third level", "mkdir -p a/b; touch a/b/purchase-receipt", "purchase-receipt");
        row("fourth level", "mkdir -p a/b/c; touch a/b/c/purchase-receipt", "");
        row("after a deep folder", "mkdir -p a/b/c/d; touch a/b/c/d/x licence-key", "licence-key");
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
        const QString folder = mac.home() + u"/Library/Application Support/Example"_s;
        mac.furnish(u"mkdir -p '.%1'; cd '.%1'; "_s.arg(folder) + script);
        QTEST(details(preferenceSignals(u"Example"_s, u"org.example"_s, *mac.services().files, mac.home())), "name");
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
            texts.append(entry.key() + u'=' + entry->token + u'@' + entry->installedVersion + u'[' +
                         entry->appNames.join(u' ') + u']');
        texts.sort();
        QCOMPARE(texts.join(u", "_s), u"b.app=bare@unknown[b.app], firefox.app=firefox@2[firefox.app name.app], "
                                      "name.app=firefox@2[firefox.app name.app], w.app=waiting@latest[w.app]"_s);
        QVERIFY(homebrewCaskApplications("[1]").isEmpty());
    }

    void installerReceipts_data()
    {
        columns<QString, QString, QString, QString>("name", "identifier", "receipts", "matching");
        row("by a word of either", "Widget Pro", "org.example.x", "z.WIDGET.core a.example a.other",
            "a.example z.WIDGET.core");
        row("stop words and short ones", "Mac Desktop App", "com.foo.macos", "com.foo.desktop com.macos.mac", "");
        row("numbers", "Tool 2019", "x", "org.tool-2019 org.2019", "org.2019 org.tool-2019");
        row("whole words only", "Widget", "x", "org.widgets", "");
        row("accents, however written", "T\u01b0\u0300 điê\u0309n", "x", "vn.tu.dien vn.ĐIỂN", "vn.ĐIỂN");
        row("three accented letters", "ê\u0309ô\u0309i", "x", "vn.ểổi", "");
    }

    void installerReceipts()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, receipts);
        QTEST(matchingInstallerReceipts(name, identifier, receipts.split(u' ')).join(u' '), "matching");
    }

private:
    QByteArray signedReceipt(const QString &identifier) const
    {
        return m_authority.sign(TestAuthority::payload(identifier, u"2016-06-01T10:00:00Z"_s));
    }

    static Request requested(const TemporaryMac &mac, const QString &name, const QString &identifier)
    {
        return {.appURL = application,
                .applicationName = name,
                .bundleIdentifier = identifier,
                .source = u"/Applications"_s,
                .homeDirectory = mac.home(),
                .systemLibraryURL = u"/Library"_s};
    }

    TestAuthority m_authority;
};

QTEST_GUILESS_MAIN(EvidenceTest)
#include "EvidenceTest.moc"
