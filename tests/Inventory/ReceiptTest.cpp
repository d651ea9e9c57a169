#include "FileManager.h"
#include "MacAppStoreReceiptInspector.h"
#include "ReceiptDER.h"
#include "ReceiptSecurity.h"
#include "TemporaryMac.h"
#include "TestAuthority.h"

#include <QFile>
#include <QTest>

using namespace Tavelo;

using Kind = MacAppStoreReceiptStatus::Kind;
Q_DECLARE_METATYPE(MacAppStoreReceiptStatus)

namespace
{

const QString identifier = QStringLiteral("org.example.app");
const QString receiptPath = QStringLiteral("/Applications/Example.app/Contents/_MASReceipt/receipt");
const QString validDate = QStringLiteral("2016-06-01T10:00:00Z");

const QString brokenIntegrity = QStringLiteral("The receipt CMS signature failed integrity verification.");
const QString noDate =
    QStringLiteral("The signed receipt creation date could not be decoded for historical certificate evaluation.");
const QString noChain = QStringLiteral(
    "The historical Apple signer chain could not be re-established at the embedded receipt creation date.");

MacAppStoreReceiptStatus inspected(const QByteArray &receipt, const ReceiptSecurity &security,
                                   const QString &expected = identifier)
{
    const TemporaryMac mac;
    mac.write(receiptPath, receipt);
    return MacAppStoreReceiptInspector::inspect(receiptPath, expected, *mac.services().files, security);
}

QByteArray genuineReceipt()
{
    QFile file(QStringLiteral(FIXTURES "/receipts/mac-2017.receipt"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray flipped(QByteArray bytes, qsizetype index)
{
    bytes[index] = static_cast<char>(bytes.at(index) ^ 0x01);
    return bytes;
}

class UnreadableFiles : public FileManager
{
public:
    UnreadableFiles(const HostRoot &root, bool readable) : FileManager(root), m_readable(readable) {}
    bool isReadable(const QString &) const override { return m_readable; }
    std::optional<QByteArray> contents(const QString &, FileError *) const override { return std::nullopt; }

private:
    bool m_readable;
};

class DamagedSystem : public ReceiptSecurity
{
public:
    DamagedSystem(const QList<QByteArray> &anchors, bool available) : ReceiptSecurity(anchors), m_available(available)
    {
    }
    bool isAvailable() const override { return m_available; }
    bool hasReceiptPolicy() const override { return false; }

private:
    bool m_available;
};

} // namespace

class ReceiptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOneNode_data();
    void readsOneNode();
    void findsAttributes_data();
    void findsAttributes();
    void filesThatCannotBeRead();
    void judgesReceipts_data();
    void judgesReceipts();
    void genuineReceiptOf2017();
    void genuineReceiptWithOneBitChanged();
};

void ReceiptTest::readsOneNode_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("node"); // "tag start end", or empty

    QTest::newRow("short length") << QByteArray::fromHex("0c026162ff") << 0 << "12 2 4";
    QTest::newRow("second sibling") << QByteArray::fromHex("0c01610c0162") << 3 << "12 5 6";
    QTest::newRow("no content") << QByteArray::fromHex("0500") << 0 << "5 2 2";
    QTest::newRow("long form of a short length") << QByteArray::fromHex("048400000001aa") << 0 << "4 6 7";
    QTest::newRow("content cut short") << QByteArray::fromHex("0c0361") << 0 << "";
    QTest::newRow("indefinite") << QByteArray::fromHex("308000000000") << 0 << "";
    QTest::newRow("five bytes of length") << QByteArray::fromHex("30850000000000") << 0 << "";
    QTest::newRow("length bytes cut short") << QByteArray::fromHex("308201") << 0 << "";
    QTest::newRow("huge length") << QByteArray::fromHex("3084ffffffff00") << 0 << "";
    QTest::newRow("one byte left") << QByteArray::fromHex("050005") << 2 << "";
    QTest::newRow("behind the end") << QByteArray::fromHex("0500") << 7 << "";
    QTest::newRow("negative") << QByteArray::fromHex("0500") << -1 << "";
}

void ReceiptTest::readsOneNode()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, index);
    const std::optional<ReceiptDER::Node> node = ReceiptDER::node(bytes, index);
    const QString told =
        node ? QStringLiteral("%1 %2 %3").arg(node->tag).arg(node->contentStart).arg(node->contentEnd) : QString();
    QTEST(told, "node");
}

void ReceiptTest::findsAttributes_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("text"); // of attribute 2 as UTF-8 text; "-" for none

    using Authority = TestAuthority;
    const QByteArray good = Authority::attribute(2, Authority::der(12, "good"));
    const auto set = [](const QByteArray &content) { return Authority::der(0x31, content); };
    QTest::newRow("found") << set(Authority::attribute(1, Authority::der(12, "no")) + good) << "good";
    QTest::newRow("the first one counts") << set(Authority::attribute(2, Authority::der(22, "tag")) + good) << "-";
    QTest::newRow("not there") << set(Authority::attribute(3, Authority::der(12, "x"))) << "-";
    QTest::newRow("not a set") << Authority::der(0x30, good) << "-";
    QTest::newRow("three wrong nodes are walked past")
        << set(Authority::der(0x30, Authority::der(4, "a") + Authority::der(4, "b") + Authority::der(2, "c")) + good)
        << "good";
    QTest::newRow("an empty sequence is walked past") << set(Authority::der(0x30, {}) + good) << "good";
    QTest::newRow("another element ends the search") << set(Authority::der(4, "x") + good) << "-";
    QTest::newRow("a value beyond its element")
        << set(Authority::der(0x30, QByteArray::fromHex("02010202010104060c04")) + good) << "good";
    QTest::newRow("more than the text") << set(Authority::attribute(2, Authority::der(12, "good") + "x")) << "-";
    QTest::newRow("a type of many bytes")
        << set(Authority::der(0x30, Authority::der(2, QByteArray(9, 0) + '\2') + Authority::der(2, "\1") +
                                        Authority::der(4, Authority::der(12, "wide"))))
        << "wide";
    QTest::newRow("a type that would wrap around")
        << set(Authority::der(0x30, Authority::der(2, '\1' + QByteArray(8, 0) + '\2') + Authority::der(2, "\1") +
                                        Authority::der(4, Authority::der(12, "x"))))
        << "-";
    QTest::newRow("not UTF-8") << set(Authority::attribute(2, Authority::der(12, "\xff"))) << "-";
    QTest::newRow("nothing at all") << QByteArray() << "-";
}

void ReceiptTest::findsAttributes()
{
    QFETCH(QByteArray, data);
    QTEST(ReceiptDER::stringAttribute(2, 12, data).value_or(QStringLiteral("-")), "text");
}

void ReceiptTest::filesThatCannotBeRead()
{
    const TemporaryMac mac;
    const ReceiptSecurity security;
    const auto files = mac.services().files;
    QCOMPARE(MacAppStoreReceiptInspector::inspect(receiptPath, identifier, *files, security).kind, Kind::absent);

    mac.write(receiptPath + QStringLiteral("/inner"), "x"); // a folder where the receipt belongs
    const auto notRead = QStringLiteral("The Mac App Store receipt could not be read with the current permissions.");
    const MacAppStoreReceiptStatus folder{Kind::inaccessible, {}, notRead};
    QVERIFY(MacAppStoreReceiptInspector::inspect(receiptPath, identifier, *files, security) == folder);
    const UnreadableFiles fails(files->root(), true);
    QVERIFY(MacAppStoreReceiptInspector::inspect(receiptPath, identifier, fails, security) == folder);
    const UnreadableFiles refused(files->root(), false);
    const MacAppStoreReceiptStatus noPermission{
        Kind::inaccessible,
        {},
        QStringLiteral("The Mac App Store receipt exists but cannot be read with the current permissions.")};
    QVERIFY(MacAppStoreReceiptInspector::inspect(receiptPath, identifier, refused, security) == noPermission);
}

void ReceiptTest::judgesReceipts_data()
{
    QTest::addColumn<QByteArray>("receipt");
    QTest::addColumn<QByteArray>("anchor");
    QTest::addColumn<MacAppStoreReceiptStatus>("status");

    const TestAuthority authority;
    const QByteArray anchor = authority.rootFingerprint();
    const QByteArray payload = TestAuthority::payload(identifier, validDate);
    const QByteArray good = authority.sign(payload);
    const auto row = [&](const char *name, const QByteArray &receipt, Kind kind, const QString &reason = {}) {
        const bool signedHere = kind == Kind::verified || kind == Kind::integrityVerified;
        QTest::newRow(name) << receipt << anchor
                            << MacAppStoreReceiptStatus{kind, signedHere ? identifier : QString(), reason};
    };
    const QString notCms = QStringLiteral("The receipt is not a valid CMS message.");
    const QString noIdentifier = QStringLiteral("The signed receipt does not contain a readable bundle identifier.");

    row("good", good, Kind::verified);
    row("good, with signed attributes", authority.sign(payload, TestAuthority::Form::withSignedAttributes),
        Kind::verified);
    row("with a fraction of a second",
        authority.sign(TestAuthority::payload(identifier, QStringLiteral("2016-06-01T10:00:00.250Z"))), Kind::verified);
    row("empty", QByteArray(), Kind::invalid, QStringLiteral("The Mac App Store receipt is empty."));
    row("text", "hello", Kind::invalid, notCms);
    row("truncated", good.chopped(1), Kind::invalid, notCms);
    row("without a payload", authority.sign(payload, TestAuthority::Form::withoutPayload), Kind::invalid,
        QStringLiteral("The signed receipt payload is missing."));
    row("a payload of another kind", authority.sign("plain words"), Kind::invalid, noIdentifier);
    const QByteArray others = authority.sign(TestAuthority::payload(QStringLiteral("org.example.App"), validDate));
    for (const auto &[name, receipt] : {std::pair("another application's", others),
                                        std::pair("another's, changed", flipped(others, others.size() - 4))})
        row(name, receipt, Kind::invalid,
            QStringLiteral("The signed receipt bundle identifier does not match this application."));
    row("payload changed", flipped(good, good.indexOf(validDate.toLatin1()) + 3), Kind::invalid, brokenIntegrity);
    row("signature changed", flipped(good, good.size() - 4), Kind::invalid, brokenIntegrity);
    const QByteArray attributed = authority.sign(payload, TestAuthority::Form::withSignedAttributes);
    row("payload changed, attributes whole", flipped(attributed, attributed.indexOf("Production")), Kind::invalid,
        brokenIntegrity);

    const auto dated = [&](const char *date) {
        return authority.sign(TestAuthority::payload(identifier, QString::fromLatin1(date)));
    };
    row("no date",
        authority.sign(
            TestAuthority::der(0x31, TestAuthority::attribute(2, TestAuthority::der(12, identifier.toUtf8())))),
        Kind::integrityVerified, noDate);
    row("a date without a time", dated("2016-06-01"), Kind::integrityVerified, noDate);
    row("a date without a zone", dated("2016-06-01T10:00:00"), Kind::integrityVerified, noDate);
    row("a day that is none", dated("2016-02-30T10:00:00Z"), Kind::integrityVerified, noDate);
    row("before the certificates", dated("2014-12-31T23:59:59Z"), Kind::integrityVerified, noChain);
    row("after the certificates", dated("2017-01-01T00:00:01Z"), Kind::integrityVerified, noChain);

    const auto of = [&](const char *name, const TestAuthority::Options &options) {
        const TestAuthority other(options);
        QTest::newRow(name) << other.sign(payload) << other.rootFingerprint()
                            << MacAppStoreReceiptStatus{Kind::integrityVerified, identifier, noChain};
    };
    of("a signer without its mark", {.signerMark = false});
    of("an issuer without its mark", {.issuerMark = false});
    of("no issuer between", {.issuer = false});
    QTest::newRow("another root") << good << ReceiptSecurity::appleRootFingerprint()
                                  << MacAppStoreReceiptStatus{Kind::integrityVerified, identifier, noChain};
}

void ReceiptTest::judgesReceipts()
{
    QFETCH(QByteArray, receipt);
    QFETCH(QByteArray, anchor);
    QFETCH(MacAppStoreReceiptStatus, status);
    const MacAppStoreReceiptStatus told = inspected(receipt, ReceiptSecurity({anchor}));
    QCOMPARE(told.reason, status.reason);
    QVERIFY(told == status);

    if (status.kind == Kind::verified) { // the same on a damaged system
        QCOMPARE(inspected(receipt, DamagedSystem({anchor}, false)).reason,
                 QStringLiteral("macOS could not initialize the receipt verifier."));
        const MacAppStoreReceiptStatus noPolicy =
            inspected(flipped(receipt, receipt.size() - 4), DamagedSystem({anchor}, true));
        QCOMPARE(noPolicy.kind, Kind::integrityVerified);
        QCOMPARE(noPolicy.reason, QStringLiteral("macOS could not create the Mac App Store receipt trust policy."));
    }
}

void ReceiptTest::genuineReceiptOf2017()
{
    const QByteArray receipt = genuineReceipt();
    if (receipt.isEmpty())
        QSKIP("the folder of genuine receipts is not beside this checkout");
    const QString owner = QStringLiteral("com.ideasoncanvas.MindNodeMac");
    const MacAppStoreReceiptStatus verified{Kind::verified, owner, {}};
    QVERIFY(inspected(receipt, ReceiptSecurity(), owner) == verified);
    QCOMPARE(inspected(receipt, ReceiptSecurity({QByteArray(32, 'x')}), owner).reason, noChain);
    QCOMPARE(inspected(receipt, ReceiptSecurity(), owner.toLower()).reason,
             QStringLiteral("The signed receipt bundle identifier does not match this application."));
}

void ReceiptTest::genuineReceiptWithOneBitChanged()
{
    const QByteArray receipt = genuineReceipt();
    if (receipt.isEmpty())
        QSKIP("the folder of genuine receipts is not beside this checkout");
    const ReceiptSecurity security;
    const QString owner = QStringLiteral("com.ideasoncanvas.MindNodeMac");
    const TemporaryMac mac;
    const auto files = mac.services().files;
    // Where this receipt holds its payload and its certificates, which follow each other, and its signature, which ends
    // it. What lies between only frames them, and decides nothing.
    constexpr qsizetype payload = 62;
    constexpr qsizetype signerInfo = 4286;
    const qsizetype signature = receipt.size() - 256;
    for (qsizetype index = 0; index < receipt.size(); ++index) {
        mac.write(receiptPath, flipped(receipt, index));
        const MacAppStoreReceiptStatus told =
            MacAppStoreReceiptInspector::inspect(receiptPath, owner, *files, security);
        const bool isFraming = index < payload || (index >= signerInfo && index < signature);
        QVERIFY2(isFraming || (told.kind != Kind::verified && !told.reason.isEmpty()),
                 qPrintable(QString::number(index)));
    }
}

QTEST_APPLESS_MAIN(ReceiptTest)
#include "ReceiptTest.moc"
