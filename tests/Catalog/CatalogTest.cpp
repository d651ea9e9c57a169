#include "Catalog.h"
#include "Golden.h"

#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

QStringList ids(const QList<AppItem> &items)
{
    QStringList result;
    for (const AppItem &item : items)
        result.append(item.id);
    return result;
}

bool isSecure(const QUrl &url)
{
    return url.isValid() && url.scheme() == u"https"_s && !url.host().isEmpty();
}

AppItem packaged(const QString &id, const QStringList &packages, AppKind kind = AppKind::cask)
{
    AppItem item;
    item.id = id;
    item.kind = kind;
    item.packages = packages;
    return item;
}

AppItem shortcutTo(const QString &id, const QString &fileName)
{
    AppItem item = packaged(id, {}, AppKind::shortcut);
    item.shortcut = ShortcutSpec{.fileName = fileName, .name = id, .url = u"https://example.org"_s};
    return item;
}

/// What an item does to a Mac, on a line; its texts are left out.
QByteArray line(const AppItem &item)
{
    QStringList cells{item.id,
                      item.macName,
                      (QStringList(item.group) + item.extraGroups).join(u' '),
                      rawValue(item.kind),
                      item.packages.join(u' '),
                      item.appPaths.join(u':'),
                      item.commands.join(u' '),
                      item.builtinReady ? u"ready"_s : QString(),
                      item.minimumMacOSMajor ? QString::number(*item.minimumMacOSMajor) : QString(),
                      item.symbol};
    if (const std::optional<DirectInstallerSpec> &spec = item.directInstaller) {
        QStringList hosts(spec->allowedDownloadHosts.begin(), spec->allowedDownloadHosts.end());
        hosts.sort();
        cells << spec->url << hosts.join(u' ') << spec->fileName << rawValue(spec->installerType) << spec->appBundleName
              << spec->expectedBundleID << spec->expectedTeamID;
    }
    if (item.shortcut)
        cells << item.shortcut->fileName << item.shortcut->name << item.shortcut->url;
    return cells.join(u" | "_s).toUtf8() + '\n';
}

} // namespace

class CatalogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table();
    void everyItemIsWellFormed();
    void uniqueInstallItems_data();
    void uniqueInstallItems();
    void prefixesOfMixedPackages();
};

void CatalogTest::table()
{
    QByteArray lines;
    for (const AppItem &item : Catalog::items())
        lines += line(item);
    const QByteArray differences = differencesFromGolden(u"catalog.txt"_s, lines);
    QVERIFY2(differences.isEmpty(), differences);
}

void CatalogTest::everyItemIsWellFormed()
{
    static const QSet<QString> groups{u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s};
    QSet<QString> seen;
    for (const AppItem &item : Catalog::items()) {
        const QByteArray id = item.id.toUtf8();
        QVERIFY2(!seen.contains(item.id), id);
        seen.insert(item.id);

        QVERIFY2(groups.contains(item.group), id);
        QVERIFY2(groups.contains(QSet<QString>(item.extraGroups.begin(), item.extraGroups.end())), id);
        const bool needsPackages = item.kind == AppKind::formula || item.kind == AppKind::cask ||
                                   item.kind == AppKind::bundle || item.kind == AppKind::mime;
        QVERIFY2(item.packages.isEmpty() != needsPackages, id);
        QVERIFY2(item.shortcut.has_value() == (item.kind == AppKind::shortcut), id);
        QVERIFY2(item.directInstaller.has_value() == (item.kind == AppKind::direct), id);
        QVERIFY2(!item.directInstaller || !item.appPaths.isEmpty(), id);
        if (item.shortcut)
            QVERIFY2(isSecure(QUrl(item.shortcut->url, QUrl::StrictMode)), id);
        if (item.directInstaller) {
            const DirectInstallerSpec &spec = *item.directInstaller;
            const QUrl url(spec.url, QUrl::StrictMode);
            QVERIFY2(isSecure(url) && spec.allowedDownloadHosts.contains(url.host()), id);
            for (const QString &host : spec.allowedDownloadHosts)
                QVERIFY2(host == host.toLower() && !host.contains(u'/'), qPrintable(host));
            // The installed application is looked for under the name that the download brings.
            for (const QString &path : item.appPaths)
                QVERIFY2(path.endsWith(u"/Applications/"_s + spec.appBundleName), qPrintable(path));
        }
    }
}

void CatalogTest::uniqueInstallItems_data()
{
    QTest::addColumn<QList<AppItem>>("items");
    QTest::addColumn<QStringList>("kept");

    const QString a = u"a"_s, b = u"b"_s, x = u"x"_s, y = u"y"_s;
    QTest::newRow("same packages") << QList<AppItem>{packaged(a, {x, y}), packaged(b, {x, y})} << QStringList{a};
    QTest::newRow("another order") << QList<AppItem>{packaged(a, {x, y}), packaged(b, {y, x})} << QStringList{a, b};
    QTest::newRow("another kind") << QList<AppItem>{packaged(a, {x}), packaged(b, {x}, AppKind::formula)}
                                  << QStringList{a, b};
    QTest::newRow("names that run together")
        << QList<AppItem>{packaged(a, {x, y}), packaged(b, {x + y}), packaged(x, {u"x y"_s}), packaged(y, {u"x,y"_s})}
        << QStringList{a, b, x, y};
    QTest::newRow("no packages") << QList<AppItem>{packaged(a, {}, AppKind::builtin), packaged(b, {}, AppKind::builtin)}
                                 << QStringList{a, b};
    QTest::newRow("same shortcut file") << QList<AppItem>{shortcutTo(a, u"X.webloc"_s), shortcutTo(b, u"X.webloc"_s),
                                                          shortcutTo(x, u"Y.webloc"_s)}
                                        << QStringList{a, x};
}

void CatalogTest::uniqueInstallItems()
{
    QFETCH(const QList<AppItem>, items);
    QFETCH(const QStringList, kept);
    QCOMPARE(ids(Catalog::uniqueInstallItems(items)), kept);
}

void CatalogTest::prefixesOfMixedPackages()
{
    const auto parsed = [](const QString &entry) {
        const MixedBrewPackage package = parseMixedBrewPackage(entry);
        return (package.cask ? u"cask "_s : u"formula "_s) + package.name;
    };
    QCOMPARE(parsed(u"cask:keka"_s), u"cask keka"_s);
    QCOMPARE(parsed(u"formula:p7zip"_s), u"formula p7zip"_s);
    QCOMPARE(parsed(u"Cask:keka"_s), u"formula Cask:keka"_s);
    QCOMPARE(parsed(u"cask:formula:x"_s), u"cask formula:x"_s);
    QCOMPARE(parsed(u"tap/cask:x"_s), u"formula tap/cask:x"_s);
}

QTEST_APPLESS_MAIN(CatalogTest)

#include "CatalogTest.moc"
