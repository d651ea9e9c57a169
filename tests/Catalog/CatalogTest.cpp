#include "Catalog.h"
#include "CatalogOverlays.h"
#include "Golden.h"
#include "Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// The ids that are left of these items, which get the letters of the alphabet for ids.
QString left(QList<AppItem> items, const std::function<QList<AppItem>(const QList<AppItem> &)> &apply)
{
    for (int index = 0; index < items.size(); ++index)
        items[index].id = QChar(u'a' + index);
    QStringList ids;
    for (const AppItem &item : apply(items))
        ids.append(items.contains(item) ? item.id : u"changed"_s);
    return ids.join(u' ');
}

/// What the rows of the cloud leave of four items.
QString left(QList<AppItem> (*apply)(const QList<QJsonObject> &, const QList<AppItem> &))
{
    QFETCH(const QString, rows);
    QList<QJsonObject> objects;
    const QJsonArray array = QJsonDocument::fromJson(rows.toUtf8()).array();
    for (const QJsonValue row : array)
        objects.append(row.toObject());
    return left(QList<AppItem>(4), [&](const QList<AppItem> &items) { return apply(objects, items); });
}

AppItem packaged(const QStringList &packages, AppKind kind = AppKind::cask)
{
    AppItem item;
    item.kind = kind;
    item.packages = packages;
    return item;
}

AppItem shortcutIn(const QString &fileName)
{
    AppItem item = packaged({}, AppKind::shortcut);
    item.shortcut = ShortcutSpec{fileName, {}, {}};
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
    void table()
    {
        QByteArray lines;
        for (const AppItem &item : Catalog::items())
            lines += line(item);
        const QByteArray differences = differencesFromGolden(u"catalog.txt"_s, lines);
        QVERIFY2(differences.isEmpty(), differences);
    }

    void uniqueInstallItems()
    {
        const auto kept = [](const QList<AppItem> &of) { return left(of, Catalog::uniqueInstallItems); };
        const QString x = u"x"_s, y = u"y"_s;
        QCOMPARE(kept({packaged({x, y}), packaged({x, y})}), u"a"_s);
        QCOMPARE(kept({packaged({x, y}), packaged({y, x})}), u"a b"_s);
        QCOMPARE(kept({packaged({x}), packaged({x}, AppKind::formula)}), u"a b"_s);
        QCOMPARE(kept({packaged({x, y}), packaged({x + y}), packaged({u"x y"_s}), packaged({u"x,y"_s})}), u"a b c d"_s);
        QCOMPARE(kept({packaged({}), packaged({})}), u"a b"_s);
        QCOMPARE(kept({shortcutIn(x), shortcutIn(x), shortcutIn(y)}), u"a c"_s);
    }

    void prefixesOfMixedPackages()
    {
        const QHash<QString, MixedBrewPackage> read{{u"cask:keka"_s, {u"keka"_s, true}},
                                                    {u"formula:p7zip"_s, {u"p7zip"_s}},
                                                    {u"Cask:keka"_s, {u"Cask:keka"_s}},
                                                    {u"cask:formula:x"_s, {u"formula:x"_s, true}},
                                                    {u"tap/cask:x"_s, {u"tap/cask:x"_s}}};
        for (auto each = read.cbegin(); each != read.cend(); ++each)
            QVERIFY2(parseMixedBrewPackage(each.key()) == each.value(), qPrintable(each.key()));
    }

    void overlay_data() { rowsOfTable(u"catalog-overlay.txt"_s, {"rows", "left"}); }
    void overlay() { QTEST(::left(Catalog::applyingCloudOverlay), "left"); }
    void policies_data() { rowsOfTable(u"business-policies.txt"_s, {"rows", "left"}); }
    void policies() { QTEST(::left(Catalog::applyingBusinessPolicies), "left"); }
};

QTEST_APPLESS_MAIN(CatalogTest)

#include "CatalogTest.moc"
