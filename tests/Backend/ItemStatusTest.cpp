#include "Catalog.h"
#include "Row.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

class ItemStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data()
    {
        // listed: by Homebrew
        columns<AppItem, QString, QString, bool>("item", "listed", "files", "installed");
        using enum AppKind;
        const AppItem some = anItem(formula, u"a b"_s, u"/A.app"_s, u"x y"_s);
        row("formula, one command of two", some, "a b", "/bin/y", true);
        row("formula, no command", some, "a b", "/A.app", false);
        row("formula, one package of two", some, "a cask:b", "/bin/y", false);
        row("formula without commands", anItem(formula, u"a"_s), "a", "", true);
        const AppItem all = anItem(bundle, u"formula:a cask:c"_s, u"/A.app"_s, u"x y"_s);
        row("bundle, all", all, "a cask:c", "/bin/x /bin/y /A.app", true);
        row("bundle, one command of two", all, "a cask:c", "/bin/y /A.app", false);
        row("bundle, package of the other kind", all, "a c", "/bin/x /bin/y /A.app", false);
        row("bundle, no app", all, "a cask:c", "/bin/x /bin/y", false);
        row("cask, all packages", anItem(cask, u"c d"_s), "cask:c cask:d", "", true);
        row("cask, one package of two", anItem(cask, u"c d"_s), "cask:c d", "", false);
        const AppItem app = anItem(cask, u"c"_s, u"/A.app ~/A.app"_s);
        row("cask, own app", app, "cask:c", "/Users/technician/A.app", true);
        row("cask, app dragged away", app, "cask:c", "", false);
        row("cask, app of another source", app, "", "/A.app", false);
        const AppItem office = catalogItem(u"libreoffice"_s);
        const char *casks = "cask:libreoffice cask:libreoffice-language-pack";
        const char *dictionary = "/Applications/LibreOffice.app/Contents/Resources/extensions/vi/vi_VN.dic";
        row("libreoffice", office, casks, dictionary, true);
        row("libreoffice, no dictionary", office, casks, "/Applications/LibreOffice.app/Contents", false);
        row("libreoffice, no language pack", office, "cask:libreoffice", dictionary, false);
        row("builtin, one command", anItem(builtin, {}, u"/A.app"_s, u"x y"_s), "", "/bin/y", true);
        row("builtin, app", anItem(builtin, {}, u"/A.app"_s, u"x"_s), "", "/A.app", true);
        row("builtin, neither", anItem(builtin, {}, u"/A.app"_s, u"x"_s), "", "", false);
        row("builtin, ready", catalogItem(u"flameshot"_s), "", "", true);
        row("shortcut of none", anItem(shortcut), "", "", false);
        row("direct, of another team", catalogItem(u"slack"_s), "", "/Applications/Slack.app/team", false);
    }

    void rules()
    {
        QFETCH(AppItem, item);
        QFETCH(QString, listed);
        QFETCH(QString, files);
        QFETCH(bool, installed);
        TemporaryMac mac;
        addBrew(mac, listed);
        addSigningTools(mac);
        for (const QString &path : files.split(u' ', Qt::SkipEmptyParts))
            mac.write(path, "team", true);
        if (item.directInstaller)
            mac.addApp(item.appPaths.at(0), item.directInstaller->expectedBundleID);
        const auto check = [&](InstallStatus expected) {
            const Workshop shop(mac.services());
            QCOMPARE(shop.backend.status(item), expected);
            QCOMPARE(shop.backend.statuses({item}).value(item.id), expected);
        };
        const InstallStatus expected = installed ? InstallStatus::installed : InstallStatus::missing;
        check(expected);
        item.minimumMacOSMajor = 15;
        check(expected);
        mac.setVersion(u"14.9"_s);
        check(InstallStatus::blocked);
        item.minimumMacOSMajor.reset();
        mac.furnish(u"rm opt/homebrew/bin/brew"_s);
        check(item.packages.isEmpty() ? expected : InstallStatus::missing);
    }

    void wholeListAsksHomebrewTwice()
    {
        const TemporaryMac mac;
        addBrew(mac, u"cask:skim cask:vlc cask:keka p7zip ocrmypdf"_s);
        mac.furnish(
            u"touch Applications/Skim.app Applications/Keka.app; mkdir -p bin; cd bin; touch zip unzip 7z; chmod +x *"_s);
        const Workshop shop(mac.services());
        const QHash<QString, InstallStatus> statuses = shop.backend.statuses(Catalog::items());
        QCOMPARE(mac.calls(u"brew"_s).join(u' '), u"brew|list|--formula|-1 brew|list|--cask|-1"_s);
        for (const AppItem &item : Catalog::items())
            QVERIFY2(statuses.value(item.id) == shop.backend.status(item), qPrintable(item.id));
        QCOMPARE(statuses.value(u"archive-tools"_s), InstallStatus::installed);
        QCOMPARE(statuses.value(u"rclone"_s), InstallStatus::blocked);
    }
};

QTEST_GUILESS_MAIN(ItemStatusTest)

#include "ItemStatusTest.moc"
