#include "InstalledMacApplication.h"
#include "Row.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

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

std::optional<InstalledMacApplication> afterReplacing(const char *before, const char *after)
{
    QByteArray json = wholeRecord;
    const QJsonDocument document = QJsonDocument::fromJson(json.replace(before, after));
    if (json == wholeRecord || !document.isObject())
        qFatal("the row changes nothing, or breaks the JSON");
    return installedMacApplication(document.object());
}

/// What a reader makes of the object without each of its keys, or with a value there that cannot be right.
template <typename Record>
void onlyTheseMayBeMissing(const QStringList &optional, const QJsonObject &whole,
                           std::optional<Record> (*read)(const QJsonObject &))
{
    QVERIFY(read(whole));
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
    void aWholeRecordReadsAndWrites()
    {
        const auto record = installedMacApplication(object(wholeRecord));
        QVERIFY(record);
        QVERIFY(record->licenseEvidence->state == AppLicenseEvidenceState::needsEntitlementReview);
        QVERIFY(record->licenseEvidence->confidence == LicenseEvidenceConfidence::indicative);
        QVERIFY(record->licenseEvidence->signals->last().verification == LicenseEvidenceVerification::inaccessible);
        QCOMPARE(toJson(*record), object(wholeRecord));
    }

    void onlyTheOptionalKeysMayBeMissing()
    {
        const QJsonObject record = object(wholeRecord);
        const QJsonObject evidence = record["licenseEvidence"_L1].toObject();
        const QJsonObject signal = evidence["signals"_L1][0].toObject();
        onlyTheseMayBeMissing({u"developerName"_s, u"licenseEvidence"_s}, record, installedMacApplication);
        onlyTheseMayBeMissing({u"confidence"_s, u"signals"_s}, evidence, appLicenseEvidence);
        onlyTheseMayBeMissing({}, signal, licenseEvidenceSignal);
    }

    void unknownWordsAndWrongShapesFail_data()
    {
        columns<QString, QString>("before", "after");
        row("state", "needsEntitlementReview", "owned");
        row("confidence", "indicative", "certain");
        row("verification", "detected", "guessed");
        row("a signal that is text", R"([
            {"kind")",
            R"(["text", {"kind")");
    }

    void unknownWordsAndWrongShapesFail()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QVERIFY(!afterReplacing(before.toUtf8(), after.toUtf8()));
    }

    void wordsStandInTheirOrder()
    {
        const auto &all = allLicenseEvidenceConfidences();
        QVERIFY(all.size() == 5 && std::is_sorted(all.begin(), all.end()));
    }

    void keysOfLaterVersionsArePassedOver() { QVERIFY(afterReplacing("\"state\"", "\"grade\": 4, \"state\"")); }

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

    void developer_data()
    {
        columns<QString, QString, QString, QString, QString>("developer", "team", "identifier", "name", "resolved");
        row("known", " Example Ltd\n", "ABCDE12345", "org.acme.x", "X", "Example Ltd");
        row("only a team", "Team ABCDE12345", "ABCDE12345", "org.acme.x", "X", "Team ABCDE12345");
        row("blank", "  \n", "ABCDE12345", "org.acme.x", "X", "Team ABCDE12345");
        row("begins like a team", "Teamwork", "ABCDE12345", "org.acme.x", "X", "Teamwork");
        row("unsigned", "—", "—", "org.acme.x", "X", "Acme");
        row("team not set", "Team X", "not set", "org.acme.x", "X", "Acme");
        row("name alone", "—", "", "x.app", " my-tool ", "My Tool");
        row("nothing", "—", "—", "", " ", "Không xác định");
    }

    void developer()
    {
        QFETCH(QString, developer);
        QFETCH(QString, team);
        QFETCH(QString, identifier);
        QFETCH(QString, name);
        InstalledMacApplication record;
        record.developerName = developer;
        record.teamIdentifier = team;
        record.identifier = identifier;
        record.name = name;
        record.source = u"/Applications"_s;
        QTEST(record.resolvedDeveloperName(), "resolved");
    }
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
