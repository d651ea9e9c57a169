#include "FileManager.h"
#include "MacInventoryClassifier.h"
#include "Row.h"
#include "TemporaryMac.h"

#include <QLocale>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::MacInventoryClassifier;

class ClassifierTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void systemApplications()
    {
        const TemporaryMac mac;
        const auto isSystem = [&mac](const QString &path, const QString &identifier) {
            return isSystemApplication(path, identifier, *mac.services().files);
        };
        QVERIFY(!isSystem(u"/Systems/Chess.app"_s, u"com.apple.Chess"_s));
        QVERIFY(isSystem(u"/Library/Apple/System/Library/X.app"_s, u"x"_s));
        QVERIFY(isSystem(u"/Applications/Safari.app"_s, u"COM.Apple.safari"_s));
    }

    void signatures()
    {
        const auto fields = [](const QString &report, bool verified) {
            const auto [status, team, identifier] = signatureFields(report, verified);
            return status + u'|' + team + u'|' + identifier;
        };
        QCOMPARE(fields(u"Executable=/a\nIdentifier= one \r\nIdentifier=two\nTeamIdentifier=ABCDE12345\n"_s, true),
                 u"valid|ABCDE12345|one"_s);
        QCOMPARE(fields(u"Signature=adhoc\nTeamIdentifier=not set"_s, true), u"ad-hoc|not set|—"_s);
        QCOMPARE(fields(u"Signature=adhoc\n"_s, false), u"invalid|—|—"_s);
        QCOMPARE(fields(u"/a: code object is Not Signed at all"_s, false), u"unsigned|—|—"_s);
    }

    void developers_data()
    {
        columns<QString, QString, QString, QString, QString>("report", "profile", "copyright", "team", "developer");
        const char *chain =
            "Authority=(unavailable)\nAuthority=Apple Root CA\nAuthority=Developer ID Application: Example: Ltd (ABCDE12345)\n"
            "Authority=Developer ID Certification Authority\n";
        row("leaf authority", chain, "Profile", "© Line", "T", "Example: Ltd");
        row("store",
            "Authority=Apple Mac OS Application Signing\nAuthority=Apple Worldwide Developer Relations "
            "Certification Authority\nAuthority=Apple Root CA\n",
            " Profile ", "© Line", "T", "Profile");
        row("code of another form", "Authority=A: Example (ABCDE1234)\n", "", "", "T", "Example (ABCDE1234)");
        row("Spanish line", "", "", "© Estudio. TODOS los derechos reservados.", "T", "Estudio");
        row("German line", "", "", "© Firma. Alle Rechte vorbehalten.", "T", "Firma");
        row("no-break spaces", "", "", "\u00a0(C)\u00a02001\u00a0–\u00a02003,\u00a0Example,\u00a0Inc.", "T",
            "Example, Inc");
        row("other numbers stay", "", "", "© 2020 Studio 1234 and 20201", "T", "Studio 1234 and 20201");
        row("years alone", "", "", "© 2020–2024.", "ABCDE12345", "Team ABCDE12345");
        row("121 characters", "", "", qUtf8Printable(u"© "_s + QString(121, u'a')), "T", "Team T");
        row("accents are not characters", "", "", qUtf8Printable(u"© "_s + u"e\u0323\u0302"_s.repeated(120)), "T",
            qUtf8Printable(u"e\u0323\u0302"_s.repeated(120)));
        row("nothing", "", "", "", "", "—");
    }

    void developers()
    {
        QFETCH(QString, report);
        QFETCH(QString, profile);
        QFETCH(QString, copyright);
        QFETCH(QString, team);
        QTEST(developerName(report, profile, copyright, team), "developer");
    }

    void inferredDevelopers()
    {
        const auto inferred = [](const QString &name, const QString &identifier, bool isFormula = false) {
            const QString source = isFormula ? u"Homebrew formula"_s : u"/Applications"_s;
            return inferredDeveloperName(name, identifier, source).value_or(u"(none)"_s);
        };
        QCOMPARE(inferred(u"Firefox"_s, u"x.y"_s), u"Mozilla"_s);
        QCOMPARE(inferred(u"Zoom-Player"_s, u"x.y"_s), u"Zoom"_s);
        QCOMPARE(inferred(u"Zoomer"_s, u"com.acme.zoomer"_s), u"Acme"_s); // not its beginning
        QCOMPARE(inferred(u"git-lfs"_s, u"homebrew.formula.git-lfs"_s, true), u"Git"_s);
        QCOMPARE(inferred(u"github-tool"_s, u"homebrew.formula.github-tool"_s, true), u"GitHub"_s);
        QCOMPARE(inferred(u"Tool"_s, u"com.app.tool"_s), u"Tool"_s); // no organisation's name
        QCOMPARE(inferred(u"x"_s, u"IO.fooBar_ui.x"_s), u"FooBar UI"_s);
        QCOMPARE(inferred(u" \n"_s, u"x.app"_s), u"(none)"_s);
    }

    void formulas()
    {
        const auto pairs = [](const QList<BrewVersion> &versions) {
            QString text;
            for (const BrewVersion &version : versions)
                text += version.name + u'=' + version.version + u' ';
            return text;
        };
        const QString leaves = u"zlib\n bat \nBat\n\nÖko\nApple\nmissing\n"_s;
        QCOMPARE(pairs(brewVersions(leaves, u"Bat 7\nbat 1.0 0.9\nzlib\ndependency 3\n Öko  2\nApple 1_2\n\n"_s)),
                 u"Apple=1_2 Bat=7 bat=1.0 Öko=2 zlib=unknown "_s);
        QCOMPARE(brewVersions(QString(), u" \nbat 1"_s).size(), 0);
    }

    void unusableLicenses()
    {
        for (const char *unusable :
             {"{", R"({"formulae": {"name": "a", "license": "MIT"}})",
              R"({"formulae": ["f", {"license": "MIT"}, {"name": 7, "license": "MIT"}, {"name": "h", "license": 3}]})"})
            QVERIFY2(brewLicenses(unusable).isEmpty(), unusable);
    }

    void licenseRules()
    {
        const auto concluded = [](const QString &source, const QString &license) {
            const AppLicenseEvidence evidence = licenseEvidence(source, {}, false, license);
            return rawValue(evidence.state) + u' ' + evidence.source;
        };
        const QString formula = u"Homebrew formula"_s;
        QCOMPARE(concluded(formula, u"Unknown"_s), u"needsEntitlementReview homebrew-license-metadata"_s);
        QCOMPARE(concluded(u"/Applications"_s, u"MIT"_s), u"noEvidence none"_s);
        QVERIFY(!licenseEvidence(formula, {}, false, u"MIT\nName: x"_s).detail.contains(u'\n')); // forges a line
        const AppLicenseEvidence withReceipt = licenseEvidence(u"/Applications"_s, u"us.zoom.xos"_s, true, {});
        QVERIFY(withReceipt.state == AppLicenseEvidenceState::acquisitionReceipt);
    }

    void hardware()
    {
        const auto profile = hardwareProfile(R"({"SPHardwareDataType": [
            {"machine_name": " MacBook Air\n", "chip_type": null, "physical_memory": 8}, {"machine_name": "other"}]})");
        QVERIFY(profile);
        QCOMPARE((QStringList{profile->machineName, profile->machineModel, profile->chipType, profile->physicalMemory}),
                 (QStringList{u"MacBook Air"_s, u"—"_s, u"—"_s, u"—"_s}));
        for (const char *unusable :
             {"", R"({"SPHardwareDataType": []})", R"({"SPHardwareDataType": [{"machine_name": "iMac"}, 1]})"})
            QVERIFY(!hardwareProfile(unusable));
    }
};

QTEST_GUILESS_MAIN(ClassifierTest)
#include "ClassifierTest.moc"
