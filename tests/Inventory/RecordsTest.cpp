#include "InstalledMacApplication.h"
#include "Row.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <functional>

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

/// Every object in the value, with how to get the whole value after a change to that object.
void forEachObject(const QJsonValue &value, const std::function<QJsonValue(const QJsonValue &)> &whole,
                   const std::function<void(const QJsonObject &, const std::function<QJsonValue(QJsonValue)> &)> &visit)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (qsizetype index = 0; index < array.size(); ++index) {
            forEachObject(
                array.at(index),
                [&, index](const QJsonValue &changed) {
                    QJsonArray copy = array;
                    copy[index] = changed;
                    return whole(copy);
                },
                visit);
        }
    }
    if (!value.isObject())
        return;
    const QJsonObject members = value.toObject();
    visit(members, whole);
    for (const QString &key : members.keys()) {
        forEachObject(
            members.value(key),
            [&, key](const QJsonValue &changed) {
                QJsonObject copy = members;
                copy[key] = changed;
                return whole(copy);
            },
            visit);
    }
}

template <typename Value>
void everyWordReadsBack(std::optional<Value> (*parse)(QStringView), Value last)
{
    QSet<QString> words;
    for (int number = 0; number <= static_cast<int>(last); ++number) {
        const Value value = static_cast<Value>(number);
        QVERIFY(parse(rawValue(value)) == value);
        words.insert(rawValue(value));
    }
    QCOMPARE(words.size(), static_cast<int>(last) + 1);
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
        QCOMPARE(record->developerName, u"Example Ltd"_s);
        QVERIFY(record->licenseEvidence->state == AppLicenseEvidenceState::needsEntitlementReview);
        QVERIFY(record->licenseEvidence->confidence == LicenseEvidenceConfidence::indicative);
        QCOMPARE(record->licenseEvidence->signals->size(), 2);
        QVERIFY(record->licenseEvidence->signals->last().verification == LicenseEvidenceVerification::inaccessible);
        QCOMPARE(toJson(*record), object(wholeRecord));
    }

    void onlyTheOptionalKeysMayBeMissing()
    {
        static const QSet<QString> optional = {u"developerName"_s, u"licenseEvidence"_s, u"confidence"_s, u"signals"_s};
        int objects = 0;
        forEachObject(
            object(wholeRecord), [](const QJsonValue &value) { return value; },
            [&](const QJsonObject &members, const std::function<QJsonValue(QJsonValue)> &whole) {
                ++objects;
                for (const QString &key : members.keys()) {
                    const auto with = [&](const QJsonValue &value) {
                        QJsonObject changed = members;
                        changed.insert(key, value); // an undefined value removes the key
                        return whole(changed).toObject();
                    };
                    const auto without = installedMacApplication(with(QJsonValue::Undefined));
                    QVERIFY2(without.has_value() == optional.contains(key), qPrintable(key));
                    QVERIFY2(!without || toJson(*without) == with(QJsonValue::Undefined), qPrintable(key));
                    QVERIFY2(installedMacApplication(with(QJsonValue::Null)) == without, qPrintable(key));
                    QVERIFY2(!installedMacApplication(with(7)), qPrintable(key));
                }
            });
        QCOMPARE(objects, 4);
    }

    void unknownWordsAndWrongShapesFail_data()
    {
        columns<QString, QString>("before", "after");
        row("state", "needsEntitlementReview", "owned");
        row("case of the state", "needsEntitlementReview", "NeedsEntitlementReview");
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

    void keysOfLaterVersionsArePassedOver() { QVERIFY(afterReplacing("\"state\"", "\"grade\": 4, \"state\"")); }

    void wordsReadBack()
    {
        everyWordReadsBack(appLicenseEvidenceState, AppLicenseEvidenceState::explicitUnlicensed);
        everyWordReadsBack(licenseEvidenceConfidence, LicenseEvidenceConfidence::none);
        everyWordReadsBack(licenseEvidenceVerification, LicenseEvidenceVerification::failed);
        QVERIFY(std::is_sorted(allLicenseEvidenceConfidences().begin(), allLicenseEvidenceConfidences().end()));
        QCOMPARE(allLicenseEvidenceConfidences().size(), 5);
    }

    void equalRecordsHashAlike()
    {
        const auto record = installedMacApplication(object(wholeRecord));
        QVERIFY((QSet{*record, *installedMacApplication(toJson(*record))}.size()) == 1);
    }

    void auditState_data()
    {
        columns<QString, QString>("status", "state");
        row("valid", "valid", "verified");
        row("invalid", "invalid", "review");
        row("unsigned", "unsigned", "review");
        row("ad-hoc", "ad-hoc", "local");
        row("formula", "not-applicable", "detected");
        row("receipt", "receipt-only", "detected");
        row("other case", "Valid", "detected");
    }

    void auditState()
    {
        QFETCH(QString, status);
        InstalledMacApplication record;
        record.signatureStatus = status;
        QTEST(rawValue(record.auditEvidenceState()), "state");
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
