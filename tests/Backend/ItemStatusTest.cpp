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
        row("formula, one package of two", some, "a cask:b", "/bin/y", false);
        const AppItem all = anItem(bundle, u"formula:a cask:c"_s, u"/A.app"_s, u"x y"_s);
        row("bundle, all", all, "a cask:c", "/bin/x /bin/y /A.app", true);
        row("bundle, one command of two", all, "a cask:c", "/bin/y /A.app", false);
        row("cask, one package of two", anItem(cask, u"c d"_s), "cask:c d", "", false);
        const AppItem app = anItem(cask, u"c"_s, u"/A.app ~/A.app"_s);
        row("cask, app dragged away", app, "cask:c", "", false);
        row("cask, app of another source", app, "", "/A.app", false);
        const AppItem office = catalogItem(u"libreoffice"_s);
        const char *casks = "cask:libreoffice cask:libreoffice-language-pack";
        const char *dictionary = "/Applications/LibreOffice.app/Contents/Resources/extensions/vi/vi_VN.dic";
        row("libreoffice, no dictionary", office, casks, "/Applications/LibreOffice.app/Contents", false);
        row("libreoffice, all", office, casks, dictionary, true);
        row("libreoffice, no language pack", office, "cask:libreoffice", dictionary, false);
        row("builtin, one command", anItem(builtin, {}, u"/A.app"_s, u"x y"_s), "", "/bin/y", true);
        row("builtin, neither", anItem(builtin, {}, u"/A.app"_s, u"x"_s), "", "", false);
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
};

QTEST_GUILESS_MAIN(ItemStatusTest)

#include "ItemStatusTest.moc"
