#include "Homebrew.h"

#include "Row.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

class HomebrewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packages_data()
    {
        columns<QString, QString, QString, QString, bool, QString, QString>(
            "operation", "packages", "listed", "refused", "succeeds", "commands", "fractions");
        const char *pack = "libreoffice-language-pack";
        row("second is there", "install casks", "a  b", "cask:b formula:a", "", true, "install --cask a",
            "0.12 0.5 0.5");
        row("first fails", "install formulae", "a b", "", "a", false, "install a, install b", "0.12 0.5 0.5 0.88");
        row("in one language", "install casks", pack, "", "", true,
            "install --cask --language=vi libreoffice-language-pack", "0.12 0.88");
        row("mixed", "install mixed", "cask:libreoffice-language-pack f", "", "", true,
            "install --cask libreoffice-language-pack, install f", "0.12 0.5 0.5 0.88");
        row("none", "install casks", "", "", "", true, "", "");
        row("last first", "remove casks", "a b", "cask:a cask:b", "", true, "uninstall --cask b, uninstall --cask a",
            "0.15 0.5 0.5 0.85");
        row("last is another's", "remove formulae", "a b", "a cask:b", "", false, "uninstall a", "0.15 0.5 0.85");
        row("last stays", "remove casks", "a b", "cask:a cask:b", "b", false, "uninstall --cask b, uninstall --cask a",
            "0.15 0.5 0.5 0.85");
        row("last is missing", "remove mixed", "formula:a cask:b", "a", "", true, "uninstall a", "0.15 0.15 0.5");
    }

    void packages()
    {
        QFETCH(QString, operation);
        QFETCH(QString, packages);
        QFETCH(QString, listed);
        QFETCH(QString, refused);
        const TemporaryMac mac;
        addBrew(mac, listed, refused);
        Workshop shop(mac.services());
        const Homebrew homebrew(shop.runner, shop.log);
        const QStringList names = packages.split(u' '); // some empty
        const bool cask = operation.endsWith(u"casks"), install = operation.startsWith(u"install");
        const bool done = operation.endsWith(u"mixed") ? install ? homebrew.installMixedBrewPackages(names)
                                                                 : homebrew.uninstallMixedBrewPackages(names)
                          : install ? homebrew.installBrewPackages(names, cask)
                                                       : homebrew.uninstallBrewPackages(names, cask);
        QTEST(done, "succeeds");
        QStringList commands = mac.calls(u"brew|install"_s) + mac.calls(u"brew|uninstall"_s);
        QTEST(commands.replaceInStrings(u"brew|"_s, QString()).join(u", "_s).replace(u'|', u' '), "commands");
        QTEST(shop.fractions(), "fractions");
        QTEST(shop.texts().filter(u"$ brew "_s).join(u", "_s).remove(u"$ brew "_s), "commands");
    }

    void withoutHomebrew()
    {
        const TemporaryMac mac;
        Workshop shop(mac.services());
        const Homebrew homebrew(shop.runner, shop.log);
        QVERIFY(!homebrew.installBrewPackages({u"a"_s}, true) && !homebrew.uninstallMixedBrewPackages({}));
        QCOMPARE(shop.texts(), QStringList({u"Chưa tìm thấy Homebrew. Cài Homebrew trước: https://brew.sh"_s,
                                            u"Chưa tìm thấy Homebrew nên không thể gỡ package Homebrew."_s}));
    }
};

QTEST_GUILESS_MAIN(HomebrewTest)

#include "HomebrewTest.moc"
