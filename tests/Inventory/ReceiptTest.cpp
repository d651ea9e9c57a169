#include "FileManager.h"
#include "MacAppStoreReceiptInspector.h"
#include "ReceiptDER.h"
#include "ReceiptSecurity.h"
#include "Row.h"
#include "TemporaryMac.h"
#include "TestAuthority.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace Tavelo;

using Kind = MacAppStoreReceiptStatus::Kind;
using A = TestAuthority;

namespace
{

const QString identifier = u"org.example.app"_s;
const QString noChain =
    u"The historical Apple signer chain could not be re-established at the embedded receipt creation date."_s;
const QString otherOwner = u"The signed receipt bundle identifier does not match this application."_s;

MacAppStoreReceiptStatus inspected(const QByteArray &receipt, const ReceiptSecurity &security,
                                   const QString &expected = identifier)
{
    static const TemporaryMac mac;
    mac.write(u"/receipt"_s, receipt);
    return MacAppStoreReceiptInspector::inspect(u"/receipt"_s, expected, *mac.services().files, security);
}

QByteArray flipped(QByteArray bytes, qsizetype index)
{
    bytes[index] = static_cast<char>(bytes.at(index) ^ 0x01);
    return bytes;
}

struct DamagedSystem : ReceiptSecurity {
    DamagedSystem(const QByteArray &anchor, bool isThere) : ReceiptSecurity({anchor}), available(isThere) {}
    bool isAvailable() const override { return available; }
    bool hasReceiptPolicy() const override { return false; }
    const bool available;
};

} // namespace

class ReceiptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOneNode()
    {
        const auto node = [](const char *hex, int index) { // as "tag start end", or empty
            const auto read = ReceiptDER::node(QByteArray::fromHex(hex), index);
            return read ? u"%1 %2 %3"_s.arg(read->tag).arg(read->contentStart).arg(read->contentEnd) : QString();
        };
        QCOMPARE(node("0c01610c0162", 3), u"12 5 6"_s);
        QCOMPARE(node("0500", 0), u"5 2 2"_s);
        QCOMPARE(node("050005", 2), QString());
        QCOMPARE(node("048400000001aa", 0), u"4 6 7"_s); // the long form of a short length
        // Content cut short; a length that is indefinite, of five bytes, cut short, huge.
        for (const char *none : {"0c0361", "308000000000", "30850000000000", "308201", "3084ffffffff00"})
            QVERIFY2(node(none, 0).isEmpty(), none);
    }

    void findsAttributes_data()
    {
        columns<QByteArray, QString>("content", "text"); // of attribute 2 as UTF-8 text; "-" for none
        const QByteArray good = A::attribute(2, A::der(12, "good"));
        const auto wideType = [](const QByteArray &type) {
            return A::der(0x30, A::der(2, type) + A::der(2, "\1") + A::der(4, A::der(12, "wide")));
        };
        row("the first one counts", A::attribute(2, A::der(22, "tag")) + good, "-");
        row("three wrong nodes are walked past", A::der(0x30, A::der(4, "a") + A::der(4, "b") + A::der(2, "c")) + good,
            "good");
        row("an empty sequence is walked past", A::der(0x30, {}) + good, "good");
        row("another element ends the search", A::der(4, "x") + good, "-");
        row("a value beyond its element", A::der(0x30, QByteArray::fromHex("02010202010104060c04")) + good, "good");
        row("more than the text", A::attribute(2, A::der(12, "good") + "x"), "-");
        row("a type of many bytes", wideType(QByteArray(9, 0) + '\2'), "wide");
        row("a type that would wrap around", wideType('\1' + QByteArray(8, 0) + '\2'), "-");
        row("not UTF-8", A::attribute(2, A::der(12, "\xff")), "-");
    }

    void findsAttributes()
    {
        QFETCH(QByteArray, content);
        QTEST(ReceiptDER::stringAttribute(2, 12, A::der(0x31, content)).value_or(u"-"_s), "text");
        QVERIFY(!ReceiptDER::stringAttribute(2, 12, A::der(0x30, content))); // no set
    }

    void judgesReceipts_data()
    {
        columns<QByteArray, QByteArray, Kind, QString>("receipt", "anchor", "kind", "reason");
        const A authority;
        const QString validDate = u"2016-06-01T10:00:00Z"_s;
        const QByteArray anchor = authority.rootFingerprint(), payload = A::payload(identifier, validDate);
        const QByteArray good = authority.sign(payload), attributed = authority.sign(payload, A::Form::withAttributes);
        const QByteArray others = authority.sign(A::payload(u"org.example.App"_s, validDate));
        row("good", good, anchor, Kind::verified, "");
        row("good, with signed attributes", attributed, anchor, Kind::verified, "");
        row("truncated", good.chopped(1), anchor, Kind::invalid, "The receipt is not a valid CMS message.");
        row("without a payload", authority.sign(payload, A::Form::withoutPayload), anchor, Kind::invalid,
            "The signed receipt payload is missing.");
        row("a payload of another kind", authority.sign("plain words"), anchor, Kind::invalid,
            "The signed receipt does not contain a readable bundle identifier.");
        row("another's, changed", flipped(others, others.size() - 4), anchor, Kind::invalid, otherOwner);
        for (const auto &[name, changed] :
             {std::pair("payload changed", flipped(good, good.indexOf("2016"))),
              std::pair("signature changed", flipped(good, good.size() - 4)),
              std::pair("attributes whole", flipped(attributed, attributed.indexOf("Production")))})
            row(name, changed, anchor, Kind::invalid, "The receipt CMS signature failed integrity verification.");

        const QString noDate =
            u"The signed receipt creation date could not be decoded for historical certificate evaluation."_s;
        row("no date", authority.sign(A::der(0x31, A::attribute(2, A::der(12, identifier.toUtf8())))), anchor,
            Kind::integrityVerified, noDate);
        for (const auto &[date, reason] :
             {std::pair("2016-06-01T10:00:00.250Z", QString()), std::pair("2016-06-01T10:00:00", noDate),
              std::pair("2016-02-30T10:00:00Z", noDate), std::pair("2014-12-31T23:59:59Z", noChain),
              std::pair("2017-01-01T00:00:01Z", noChain)})
            row(date, authority.sign(A::payload(identifier, QString::fromLatin1(date))), anchor,
                reason.isEmpty() ? Kind::verified : Kind::integrityVerified, reason);

        row("another root", good, ReceiptSecurity::appleRootFingerprint(), Kind::integrityVerified, noChain);
        using enum A::Missing;
        for (const A::Missing missing : {signerMark, issuerMark, issuer}) {
            const A other(missing);
            row(qPrintable(u"chain without %1"_s.arg(int(missing))), other.sign(payload), other.rootFingerprint(),
                Kind::integrityVerified, noChain);
        }
    }

    void judgesReceipts()
    {
        QFETCH(QByteArray, receipt);
        QFETCH(QByteArray, anchor);
        QFETCH(Kind, kind);
        QFETCH(QString, reason);
        const bool isOwn = kind == Kind::verified || kind == Kind::integrityVerified;
        const MacAppStoreReceiptStatus told = inspected(receipt, ReceiptSecurity({anchor}));
        QCOMPARE(told.reason, reason);
        QVERIFY(told == (MacAppStoreReceiptStatus{kind, isOwn ? identifier : QString(), reason}));

        if (kind == Kind::verified) { // the same on a damaged system
            QCOMPARE(inspected(receipt, DamagedSystem(anchor, false)).reason,
                     u"macOS could not initialize the receipt verifier."_s);
            const auto noPolicy = inspected(flipped(receipt, receipt.size() - 4), DamagedSystem(anchor, true));
            QCOMPARE(noPolicy.kind, Kind::integrityVerified);
            QCOMPARE(noPolicy.reason, u"macOS could not create the Mac App Store receipt trust policy."_s);
        }
    }

    void genuineReceiptOf2017()
    {
        QFile file(QStringLiteral(FIXTURES "/receipts/mac-2017.receipt"));
        if (!file.open(QIODevice::ReadOnly))
            QSKIP("the folder of genuine receipts is not beside this checkout");
        const QByteArray receipt = file.readAll();
        const ReceiptSecurity security;
        const QString owner = u"com.ideasoncanvas.MindNodeMac"_s;
        QVERIFY(inspected(receipt, security, owner) == (MacAppStoreReceiptStatus{Kind::verified, owner, {}}));
        QCOMPARE(inspected(receipt, ReceiptSecurity({QByteArray(32, 'x')}), owner).reason, noChain);
        QCOMPARE(inspected(receipt, security, owner.toLower()).reason, otherOwner);

        // With one bit changed. Where this receipt holds its payload and its certificates, which follow each other, and
        // its signature, which ends it. What lies between only frames them, and decides nothing.
        constexpr qsizetype payload = 62;
        constexpr qsizetype signerInfo = 4286;
        const qsizetype signature = receipt.size() - 256;
        for (qsizetype index = payload; index < receipt.size(); ++index) {
            const MacAppStoreReceiptStatus told = inspected(flipped(receipt, index), security, owner);
            const bool isFraming = index >= signerInfo && index < signature;
            QVERIFY2(isFraming || (told.kind != Kind::verified && !told.reason.isEmpty()),
                     qPrintable(QString::number(index)));
        }
    }
};

QTEST_APPLESS_MAIN(ReceiptTest)
#include "ReceiptTest.moc"
