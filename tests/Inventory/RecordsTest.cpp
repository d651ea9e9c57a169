#include "InstalledMacApplication.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QByteArray wholeRecord = R"({
    "name": "Ảnh", "version": "2.1", "identifier": "org.example.photo", "source": "/Applications",
    "signatureStatus": "valid", "teamIdentifier": "ABCDE12345", "signingIdentifier": "org.example.photo",
    "developerName": "Example Ltd",
    "licenseEvidence": {
        "state": "needsEntitlementReview", "source": "app-preferences", "detail": "A sentence.",
        "confidence": "indicative",
        "signals": [
            {"kind": "license-metadata", "source": "app-preferences", "verification": "detected", "detail": "One."},
            {"kind": "access", "source": "app-preferences", "verification": "inaccessible", "detail": "Two."}
        ]
    }
})";

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

/// What a reader makes of the object without each of its keys, or with a value there that cannot be right.
template <typename Record>
void onlyTheseMayBeMissing(const QStringList &optional, const QJsonObject &whole,
                           std::optional<Record> (*read)(const QJsonObject &))
{
    QCOMPARE(toJson(read(whole).value()), whole);
    const QStringList keys = whole.keys();
    for (const QString &key : keys) {
        QJsonObject changed = whole;
        changed.remove(key);
        const std::optional<Record> without = read(changed);
        QVERIFY2(without.has_value() == optional.contains(key), qPrintable(key));
        QVERIFY2(!without || toJson(*without) == changed, qPrintable(key));
        changed.insert(key, QJsonValue::Null);
        QVERIFY2(read(changed) == without, qPrintable(key));
        changed.insert(key, 7);
        QVERIFY2(!read(changed), qPrintable(key));
    }
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheOptionalKeysMayBeMissing()
    {
        const QJsonObject record = object(wholeRecord);
        const QJsonObject evidence = record["licenseEvidence"_L1].toObject();
        const QJsonObject signal = evidence["signals"_L1][0].toObject();
        onlyTheseMayBeMissing({u"developerName"_s, u"licenseEvidence"_s}, record, installedMacApplication);
        onlyTheseMayBeMissing({u"confidence"_s, u"signals"_s}, evidence, appLicenseEvidence);
        onlyTheseMayBeMissing({}, signal, licenseEvidenceSignal);
    }

    void unknownWordsAndWrongShapesFail()
    {
        const auto isReadWith = [](const char *before, const char *after) {
            const QJsonObject changed = object(QByteArray(wholeRecord).replace(before, after));
            if (changed.isEmpty() || changed == object(wholeRecord))
                qFatal("nothing is changed, or the JSON is broken");
            return installedMacApplication(changed).has_value();
        };
        QVERIFY(!isReadWith("needsEntitlementReview", "owned"));
        QVERIFY(!isReadWith("indicative", "certain"));
        QVERIFY(!isReadWith("detected", "guessed"));
        QVERIFY(!isReadWith("\"signals\": [", "\"signals\": [\"text\", "));
        QVERIFY(isReadWith("\"state\"", "\"grade\": 4, \"state\"")); // a key of a later version
    }

    void auditState()
    {
        QStringList states;
        InstalledMacApplication record;
        for (const char *status :
             {"valid", "invalid", "unsigned", "ad-hoc", "not-applicable", "receipt-only", "Valid"}) {
            record.signatureStatus = QString::fromUtf8(status);
            states.append(rawValue(record.auditEvidenceState()));
        }
        QCOMPARE(states.join(u' '), u"verified review review local detected detected detected"_s);
    }

    void developer()
    {
        const auto resolved = [](const QString &developer, const QString &team) {
            InstalledMacApplication record;
            record.developerName = developer;
            record.teamIdentifier = team;
            record.identifier = u"org.acme.x"_s;
            record.source = u"/Applications"_s;
            return record.resolvedDeveloperName();
        };
        QCOMPARE(resolved(u" Example Ltd\n"_s, u"ABCDE12345"_s), u"Example Ltd"_s);
        QCOMPARE(resolved(u"  \n"_s, u"ABCDE12345"_s), u"Team ABCDE12345"_s);
        QCOMPARE(resolved(u"Teamwork"_s, u"ABCDE12345"_s), u"Teamwork"_s);
        QCOMPARE(resolved(u"—"_s, u"—"_s), u"Acme"_s);
        QCOMPARE(resolved(u"Team X"_s, u"not set"_s), u"Acme"_s);
        QCOMPARE(InstalledMacApplication().resolvedDeveloperName(), u"Không xác định"_s);
    }
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
