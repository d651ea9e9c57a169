#include "FileManager.h"
#include "MacInventoryClassifier.h"
#include "Row.h"
#include "TemporaryMac.h"

#include <QLocale>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::MacInventoryClassifier;

namespace
{

/// In a row, an empty text stands for none.
std::optional<QString> given(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QString pairs(const QList<BrewVersion> &versions)
{
    QStringList texts;
    for (const BrewVersion &version : versions)
        texts.append(version.name + u'=' + version.version);
    return texts.join(u' ');
}

} // namespace

class ClassifierTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void systemApplications_data()
    {
        columns<QString, QString, bool>("path", "identifier", "system");
        row("system folder", "/System/Applications/Chess.app", "", true);
        row("system itself", "/System", "", true);
        row("named like it", "/Systems/Chess.app", "com.apple.Chess", false);
        row("Apple's library", "/Library/Apple/System/Library/X.app", "x", true);
        row("link into the system", "/Applications/Linked.app", "org.example.linked", true);
        row("up and into the system", "/Applications/../System/X.app", "x", true);
        row("listed, in any case", "/Applications/Safari.app", "COM.Apple.safari", true);
        row("no identifier", "/Applications/Safari.app", "", false);
        row("Apple's, but added", "/Applications/Xcode.app", "com.apple.dt.Xcode", false);
    }

    void systemApplications()
    {
        QFETCH(QString, path);
        QFETCH(QString, identifier);
        const TemporaryMac mac;
        mac.furnish(u"mkdir -p System/Applications/Chess.app; ln -s ../System/Applications/Chess.app "
                    "Applications/Linked.app"_s);
        QTEST(isSystemApplication(path, given(identifier), *mac.services().files), "system");
    }

    void signatures_data()
    {
        columns<QString, bool, QString>("report", "verified", "fields");
        row("developer's", "Executable=/a\nIdentifier= org.example.x \nTeamIdentifier=ABCDE12345\nSignature size=9\n",
            true, "valid|ABCDE12345|org.example.x");
        row("first line counts", "Identifier=one\r\nIdentifier=two\r\n", true, "valid|—|one");
        row("ad hoc", "Signature=adhoc\nTeamIdentifier=not set", true, "ad-hoc|not set|—");
        row("ad hoc and broken", "Signature=adhoc\n", false, "invalid|—|—");
        row("not signed", "/a: code object is Not Signed at all", false, "unsigned|—|—");
    }

    void signatures()
    {
        QFETCH(QString, report);
        QFETCH(bool, verified);
        const auto [status, team, identifier] = signatureFields(report, verified);
        QTEST(status + u'|' + team + u'|' + identifier, "fields");
    }

    void developers_data()
    {
        columns<QString, QString, QString, QString, QString>("report", "profile", "copyright", "team", "developer");
        const char *chain = "Authority=Apple Root CA\nAuthority=Developer ID Application: Example: Ltd (ABCDE12345)\n"
                            "Authority=Developer ID Certification Authority\n";
        row("leaf authority", chain, "Profile", "© Line", "T", "Example: Ltd");
        row("store",
            "Authority=Apple Mac OS Application Signing\nAuthority=Apple Worldwide Developer Relations "
            "Certification Authority\nAuthority=Apple Root CA\n",
            " Profile ", "© Line", "T", "Profile");
        row("no colon", "Authority=Software Signing\n", "", "", "T", "Software Signing");
        row("code of another form", "Authority=A: Example (ABCDE1234)\n", "", "", "T", "Example (ABCDE1234)");
        row("only a code", "Authority=(unavailable)\nAuthority=A: \nAuthority=B: Second\n", "", "", "T", "Second");
        row("English line", "", " ", "Copyright © 2015-2024 Example Corp. All rights reserved.", "T", "Example Corp");
        row("Vietnamese line", "", "", "Bản quyền © 2020 Công ty ABC. Mọi quyền được bảo lưu.", "T", "Công ty ABC");
        row("capitals", "", "", "BẢN QUYỀN © 1999 ABC. ALLE RECHTE vorbehalten", "T", "ABC");
        row("no-break spaces", "", "", "\u00a0(C)\u00a02001\u00a0–\u00a02003,\u00a0Example,\u00a0Inc.", "T",
            "Example, Inc");
        row("other numbers stay", "", "", "© 2020 Studio 1234 and 20201", "T", "Studio 1234 and 20201");
        row("years alone", "", "", "© 2020–2024.", "ABCDE12345", "Team ABCDE12345");
        row("120 characters", "", "", qUtf8Printable(u"© "_s + QString(120, u'ệ')), "T",
            qUtf8Printable(QString(120, u'ệ')));
        row("121 characters", "", "", qUtf8Printable(u"© "_s + QString(121, u'a')), "T", "Team T");
        row("accents are not characters", "", "", qUtf8Printable(u"© "_s + u"e\u0323\u0302"_s.repeated(120)), "T",
            qUtf8Printable(u"e\u0323\u0302"_s.repeated(120)));
        row("team not set", "", "", "", "not set", "—");
        row("nothing", "", "", "", "", "—");
    }

    void developers()
    {
        QFETCH(QString, report);
        QFETCH(QString, profile);
        QFETCH(QString, copyright);
        QFETCH(QString, team);
        QTEST(developerName(report, given(profile), given(copyright), team), "developer");
    }

    void inferredDevelopers_data()
    {
        columns<QString, QString, QString, QString>("name", "identifier", "source", "developer");
        row("vendor by identifier", "Whatever", "com.Apple.dt.Xcode", "/Applications", "Apple");
        row("vendor by name", "Firefox", "x.y", "/Applications", "Mozilla");
        row("vendor by beginning", "Zoom-Player", "x.y", "/Applications", "Zoom");
        row("vendor inside", "X", "ru.slack.x", "/Applications", "Slack");
        row("not a beginning", "Zoomer", "com.acme.zoomer", "/Applications", "Acme");
        row("formula gh", "gh", "homebrew.formula.gh", "Homebrew formula", "GitHub");
        row("formula git-lfs", "git-lfs", "homebrew.formula.git-lfs", "Homebrew formula", "Git");
        row("formula github-tool", "github-tool", "homebrew.formula.github-tool", "Homebrew formula", "GitHub");
        row("formula", "node-gyp", "homebrew.formula.node-gyp", "Homebrew formula", "Node Gyp");
        row("generic later", "Acme Tool", "com.acme.app", "/Applications", "Acme");
        row("generic second", "Tool", "com.App.tool", "/Applications", "Tool");
        row("other domain", "my tool", "vn.acme.tool", "/Applications", "My Tool");
        row("case of the prefix", "x", "IO.fooBar_ui.x", "installer receipt", "FooBar UI");
        row("empty part", "Tool", "com..tool", "/Applications", "Tool");
        row("nothing", " \n", "x.app", "/Applications", "(none)");
    }

    void inferredDevelopers()
    {
        QFETCH(QString, name);
        QFETCH(QString, identifier);
        QFETCH(QString, source);
        QTEST(inferredDeveloperName(name, identifier, source).value_or(u"(none)"_s), "developer");
    }

    void projectNames()
    {
        QCOMPARE(readableProjectName(u"my__PDF-toolKit gh-cli"_s), u"My PDF ToolKit GitHub CLI"_s);
        QCOMPARE(readableProjectName(u"-_"_s), u"-_"_s);
        QCOMPARE(readableProjectName(u"ứng\u3000\U00010428x"_s), u"Ứng \U00010400x"_s);
    }

    void formulas()
    {
        const QString leaves = u"zlib\n bat \nBat\n\nÖko\nApple\nmissing\n"_s;
        QCOMPARE(pairs(brewVersions(leaves, u"Bat 7\nbat 1.0 0.9\nzlib\ndependency 3\n Öko  2\nApple 1_2\n\n"_s)),
                 u"Apple=1_2 Bat=7 bat=1.0 Öko=2 zlib=unknown"_s);
        QCOMPARE(brewVersions(QString(), u" \nbat 1"_s).size(), 0);
    }

    void licenses()
    {
        const auto table = brewLicenses(R"({"formulae": [
            {"name": "a", "license": " MIT "}, {"name": "b", "license": null}, {"name": "c", "license": " "},
            {"name": "d", "license": {"any_of": ["MIT", "Proprietary"]}}, {"name": "e"}, "f", {"license": "MIT"},
            {"name": 7, "license": "MIT"}, {"name": "g", "license": ["Mít"]}, {"name": "h", "license": 3}]})");
        QCOMPARE(table, (QHash<QString, QString>{{u"a"_s, u"MIT"_s},
                                                 {u"d"_s, uR"({"any_of":["MIT","Proprietary"]})"_s},
                                                 {u"g"_s, uR"(["Mít"])"_s}}));
        const QByteArray deep = QByteArray(5000, '[') + QByteArray(5000, ']');
        for (const QByteArray &unusable : {QByteArray(), QByteArray("{"), QByteArray("[]"), QByteArray("\xff"), deep,
                                           QByteArray(R"({"formulae": {"name": "a", "license": "MIT"}})")})
            QVERIFY(brewLicenses(unusable).isEmpty());
    }

    void rules_data()
    {
        columns<QString, QString, bool, QString, QString>("source", "identifier", "receipt", "license", "conclusion");
        const char *added = "/Applications";
        const char *formula = "Homebrew formula";
        row("receipt first", added, "us.zoom.xos", true, "",
            "acquisitionReceipt mac-app-store-receipt indicative path.");
        row("account", added, "US.zoom.xos", false, "", "accountBased account-based-app-policy informational queried.");
        row("key-free", added, "org.gimp.GIMP", false, "", "freeOrOpenSource key-free-app-policy informational key.");
        row("web application", added, "com.google.Chrome.app.abc", false, "",
            "freeOrOpenSource key-free-app-policy informational key.");
        row("proprietary", formula, "", false, R"({"all_of":["LicenseRef-Proprietary"]})",
            R"(needsEntitlementReview homebrew-license-metadata informational {"all_of":["LicenseRef-Proprietary"]}.)");
        row("open", formula, "", false, "MIT", "freeOrOpenSource homebrew-license-metadata informational MIT.");
        row("forges a line", formula, "", false,
            "MIT\n:", "freeOrOpenSource homebrew-license-metadata informational :.");
        row("formula without a licence", formula, "", false, "", "noEvidence none none contract.");
        row("licence of no formula", added, "", false, "MIT", "noEvidence none none contract.");
        row("installer", "installer receipt", "", false, "",
            "noEvidence installer-receipt-only informational entitlement.");
    }

    void rules()
    {
        QFETCH(QString, source);
        QFETCH(QString, identifier);
        QFETCH(bool, receipt);
        QFETCH(QString, license);
        const AppLicenseEvidence evidence = licenseEvidence(source, given(identifier), receipt, given(license));
        const QString lastWord = evidence.detail.section(u' ', -1);
        QTEST((QStringList{rawValue(evidence.state), evidence.source, rawValue(*evidence.confidence), lastWord}.join(
                  u' ')),
              "conclusion");
        QCOMPARE(evidence.signals.has_value(), receipt);
    }

    void hardware_data()
    {
        columns<QString, QString>("json", "profile");
        row("whole", R"({"SPHardwareDataType": [{"machine_name": " MacBook Air\n", "machine_model": "Mac14,2",
            "chip_type": "Apple M2", "physical_memory": "16 GB"}, {"machine_name": "other"}]})",
            "MacBook Air|Mac14,2|Apple M2|16 GB");
        row("Intel", R"({"SPHardwareDataType": [{"machine_name": "iMac", "chip_type": null, "physical_memory": 8}]})",
            "iMac|—|—|—");
        row("no entry", R"({"SPHardwareDataType": []})", "(none)");
        row("one of another shape", R"({"SPHardwareDataType": [{"machine_name": "iMac"}, 1]})", "(none)");
        row("nothing", "", "(none)");
    }

    void hardware()
    {
        QFETCH(QString, json);
        const auto profile = hardwareProfile(json.toUtf8());
        const auto text = [](const HardwareProfile &is) {
            return QStringList{is.machineName, is.machineModel, is.chipType, is.physicalMemory}.join(u'|');
        };
        QTEST(profile ? text(*profile) : u"(none)"_s, "profile");
    }
};

QTEST_GUILESS_MAIN(ClassifierTest)
#include "ClassifierTest.moc"
