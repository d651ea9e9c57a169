#include "CatalogOverlays.h"
#include "Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Tavelo;

namespace
{

/// The ids of what is left of the items a, b, c and d.
QString left(QList<AppItem> (*apply)(const QList<QJsonObject> &, const QList<AppItem> &))
{
    QFETCH(const QString, rows);
    QList<QJsonObject> objects;
    const QJsonArray array = QJsonDocument::fromJson(rows.toUtf8()).array();
    for (const QJsonValue row : array)
        objects.append(row.toObject());
    QList<AppItem> items(4);
    for (int index = 0; index < 4; ++index)
        items[index].id = QChar(u'a' + index);
    QStringList ids;
    for (const AppItem &item : apply(objects, items))
        ids.append(items.contains(item) ? item.id : QStringLiteral("changed"));
    return ids.join(u' ');
}

} // namespace

class CatalogOverlaysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overlay_data() { rowsOfTable(QStringLiteral("catalog-overlay.txt"), {"rows", "left"}); }
    void overlay() { QTEST(::left(Catalog::applyingCloudOverlay), "left"); }
    void policies_data() { rowsOfTable(QStringLiteral("business-policies.txt"), {"rows", "left"}); }
    void policies() { QTEST(::left(Catalog::applyingBusinessPolicies), "left"); }
};

QTEST_APPLESS_MAIN(CatalogOverlaysTest)

#include "CatalogOverlaysTest.moc"
