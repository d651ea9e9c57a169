#include "Catalog.h"

#include <QTest>
#include <QUrl>

#include <algorithm>

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

AppItem catalogItem(const QString &id)
{
    const QList<AppItem> &items = Catalog::items();
    return *std::find_if(items.begin(), items.end(), [&id](const AppItem &item) { return item.id == id; });
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

} // namespace

class CatalogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyItemIsWellFormed();
    void directDownloadsStayOnVendorHosts();
    void presets_data();
    void presets();
    void uniqueInstallItems_data();
    void uniqueInstallItems();
    void mixedPackages_data();
    void mixedPackages();
    void kindsFromText_data();
    void kindsFromText();
    void groupMembership();
    void equalItemsHashAlike();
};

void CatalogTest::everyItemIsWellFormed()
{
    static const QSet<QString> groups{u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s};
    QSet<QString> seen;
    for (const AppItem &item : Catalog::items()) {
        const QByteArray id = item.id.toUtf8();
        QVERIFY2(!seen.contains(item.id), id);
        seen.insert(item.id);

        for (const QString &text : {item.linuxName, item.macName, item.description, item.replacementNote, item.symbol})
            QVERIFY2(!text.isEmpty() && text == text.trimmed(), id);
        QVERIFY2(groups.contains(item.group), id);
        QVERIFY2(groups.contains(QSet<QString>(item.extraGroups.begin(), item.extraGroups.end())), id);
        QVERIFY2(!item.extraGroups.contains(item.group), id);

        const bool needsPackages = item.kind == AppKind::formula || item.kind == AppKind::cask ||
                                   item.kind == AppKind::bundle || item.kind == AppKind::mime;
        QVERIFY2(item.packages.isEmpty() != needsPackages, id);
        QVERIFY2(item.shortcut.has_value() == (item.kind == AppKind::shortcut), id);
        QVERIFY2(item.directInstaller.has_value() == (item.kind == AppKind::direct), id);
        QVERIFY2(!item.directInstaller || !item.appPaths.isEmpty(), id);
        QVERIFY2(!item.builtinReady || item.kind == AppKind::builtin, id);
        if (item.shortcut) {
            QCOMPARE(item.shortcut->fileName, item.shortcut->name + u".webloc"_s);
            const QUrl url(item.shortcut->url, QUrl::StrictMode);
            QVERIFY2(url.isValid() && url.scheme() == u"https"_s && !url.host().isEmpty() && url.path().isEmpty(), id);
        }
    }
    QCOMPARE(seen.size(), 28);
}

void CatalogTest::directDownloadsStayOnVendorHosts()
{
    int directItems = 0;
    for (const AppItem &item : Catalog::items()) {
        if (!item.directInstaller)
            continue;
        ++directItems;
        const DirectInstallerSpec &spec = *item.directInstaller;
        const QUrl url(spec.url, QUrl::StrictMode);
        QVERIFY2(url.isValid(), qPrintable(spec.url));
        QCOMPARE(url.scheme(), u"https"_s);
        QVERIFY2(spec.allowedDownloadHosts.contains(url.host()), qPrintable(spec.url));
        QCOMPARE(spec.allowedDownloadHosts.size(), 2);
        for (const QString &host : spec.allowedDownloadHosts)
            QVERIFY2(host == host.toLower() && !host.contains(u'/'), qPrintable(host));
        // The installed application is looked for under the name that the download brings.
        for (const QString &path : item.appPaths)
            QVERIFY2(path.endsWith(u"/Applications/"_s + spec.appBundleName), qPrintable(path));
    }
    QCOMPARE(directItems, 3);
}

void CatalogTest::presets_data()
{
    QTest::addColumn<QSet<QString>>("groups");
    QTest::addColumn<QStringList>("expected");

    const QStringList minimal{u"libreoffice"_s, u"ibus-unikey"_s,   u"office-fonts"_s, u"evince"_s,
                              u"pdfarranger"_s, u"archive-tools"_s, u"thunderbird"_s,  u"flameshot"_s};
    const QStringList standard = minimal + QStringList{u"onlyoffice"_s, u"onlyoffice-mime"_s, u"microsoft-365"_s,
                                                       u"printer-drivers"_s, u"scanner-tools"_s};
    QStringList full = ids(Catalog::items());
    for (const QString &dropped : {u"xournalpp"_s, u"deja-dup"_s, u"rclone"_s})
        full.removeOne(dropped);
    QCOMPARE(full.size(), 25);

    QTest::newRow("minimal") << QSet<QString>{u"office"_s} << minimal;
    QTest::newRow("standard") << Catalog::standardGroups() << standard;
    QTest::newRow("full") << QSet<QString>{u"office"_s, u"microsoft"_s, u"printer"_s, u"meeting"_s, u"media"_s} << full;
}

void CatalogTest::presets()
{
    QFETCH(const QSet<QString>, groups);
    QFETCH(const QStringList, expected);

    QList<AppItem> selected;
    for (const AppItem &item : Catalog::items()) {
        const bool chosen =
            std::any_of(groups.begin(), groups.end(), [&item](const QString &group) { return item.belongsTo(group); });
        if (chosen && item.kind != AppKind::blocked)
            selected.append(item);
    }
    QCOMPARE(ids(Catalog::uniqueInstallItems(selected)), expected);
}

void CatalogTest::uniqueInstallItems_data()
{
    QTest::addColumn<QList<AppItem>>("items");
    QTest::addColumn<QStringList>("kept");

    const QString a = u"a"_s, b = u"b"_s, x = u"x"_s, y = u"y"_s;
    QTest::newRow("nothing") << QList<AppItem>{} << QStringList{};
    QTest::newRow("first comes first") << QList<AppItem>{catalogItem(u"xournalpp"_s), catalogItem(u"vlc"_s),
                                                         catalogItem(u"evince"_s)}
                                       << QStringList{u"xournalpp"_s, u"vlc"_s};
    QTest::newRow("same packages") << QList<AppItem>{packaged(a, {x, y}), packaged(b, {x, y})} << QStringList{a};
    QTest::newRow("another order") << QList<AppItem>{packaged(a, {x, y}), packaged(b, {y, x})} << QStringList{a, b};
    QTest::newRow("another kind") << QList<AppItem>{packaged(a, {x}), packaged(b, {x}, AppKind::formula)}
                                  << QStringList{a, b};
    QTest::newRow("names that run together")
        << QList<AppItem>{packaged(a, {x, y}), packaged(b, {x + y}), packaged(x, {u"x y"_s}), packaged(y, {u"x,y"_s})}
        << QStringList{a, b, x, y};
    QTest::newRow("no packages") << QList<AppItem>{packaged(a, {}, AppKind::builtin), packaged(b, {}, AppKind::builtin)}
                                 << QStringList{a, b};
    QTest::newRow("same item twice") << QList<AppItem>{packaged(a, {}, AppKind::builtin),
                                                       packaged(a, {}, AppKind::builtin)}
                                     << QStringList{a};
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

void CatalogTest::mixedPackages_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("cask");

    QTest::newRow("cask") << u"cask:keka"_s << u"keka"_s << true;
    QTest::newRow("formula") << u"formula:p7zip"_s << u"p7zip"_s << false;
    QTest::newRow("bare") << u"keka"_s << u"keka"_s << false;
    QTest::newRow("cask without a name") << u"cask:"_s << u""_s << true;
    QTest::newRow("formula without a name") << u"formula:"_s << u""_s << false;
    QTest::newRow("empty") << u""_s << u""_s << false;
    QTest::newRow("prefix in capitals is a name") << u"Cask:keka"_s << u"Cask:keka"_s << false;
    QTest::newRow("only the first prefix goes") << u"cask:formula:x"_s << u"formula:x"_s << true;
    QTest::newRow("prefix further on") << u"tap/cask:x"_s << u"tap/cask:x"_s << false;
}

void CatalogTest::mixedPackages()
{
    QFETCH(const QString, entry);
    QFETCH(const QString, name);
    QFETCH(const bool, cask);

    const MixedBrewPackage package = parseMixedBrewPackage(entry);
    QCOMPARE(package.name, name);
    QCOMPARE(package.cask, cask);
}

void CatalogTest::kindsFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("known");

    for (const char *text : {"direct", "formula", "cask", "bundle", "shortcut", "builtin", "mime", "blocked"})
        QTest::newRow(text) << QString::fromLatin1(text) << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("capitals") << u"Cask"_s << false;
    QTest::newRow("a status") << u"missing"_s << false;
    QTest::newRow("more than the name") << u"cask "_s << false;
}

void CatalogTest::kindsFromText()
{
    QFETCH(const QString, text);
    QFETCH(const bool, known);

    const std::optional<AppKind> kind = appKind(text);
    QCOMPARE(kind.has_value(), known);
    if (kind)
        QCOMPARE(rawValue(*kind), text);
}

void CatalogTest::groupMembership()
{
    const AppItem item = catalogItem(u"pdfarranger"_s);
    QVERIFY(item.belongsTo(u"office"_s));
    QVERIFY(item.belongsTo(u"printer"_s));
    QVERIFY(!item.belongsTo(u"media"_s));
    QVERIFY(!item.belongsTo(u"all"_s));
    QVERIFY(!item.belongsTo(QString()));
}

void CatalogTest::equalItemsHashAlike()
{
    AppItem one = catalogItem(u"slack"_s);
    AppItem other = one;
    QSet<QString> &hosts = one.directInstaller->allowedDownloadHosts;
    QSet<QString> &otherHosts = other.directInstaller->allowedDownloadHosts;
    hosts.clear();
    otherHosts.clear();
    const QStringList names{u"a.example"_s, u"b.example"_s, u"c.example"_s};
    std::for_each(names.begin(), names.end(), [&hosts](const QString &name) { hosts.insert(name); });
    std::for_each(names.rbegin(), names.rend(), [&otherHosts](const QString &name) { otherHosts.insert(name); });
    QCOMPARE(other, one);
    QCOMPARE(qHash(other), qHash(one));

    other.directInstaller->expectedTeamID = u"AAAAAAAAAA"_s;
    QVERIFY(other != one);
    QCOMPARE((QSet<AppItem>{one, other, one}.size()), 2);
}

QTEST_APPLESS_MAIN(CatalogTest)

#include "CatalogTest.moc"
