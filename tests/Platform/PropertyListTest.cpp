#include "PropertyList.h"
#include "PropertyListBounds.h"
#include "Row.h"

#include <QDateTime>
#include <QStringEncoder>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

QByteArray document(const QByteArray &value)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + value + "</plist>";
}

/// Arrays in the binary form, each of which holds the next so many times: few bytes for very many values.
QByteArray nestedBinary(quint32 levels, int times = 1)
{
    const auto bigEndian = [](quint32 number) {
        return QByteArray::fromHex(QByteArray::number(number, 16).rightJustified(8, '0'));
    };
    QByteArray objects = "bplist00", offsets;
    for (quint32 level = 1; level <= levels; ++level) {
        offsets += bigEndian(quint32(objects.size()));
        objects +=
            level < levels ? static_cast<char>(0xA0 + times) + bigEndian(level).repeated(times) : QByteArray("\x09");
    }
    const QByteArray zero = bigEndian(0);
    return objects + offsets + zero + bigEndian(0x0404) + zero + bigEndian(levels) + zero + zero + zero +
           bigEndian(quint32(objects.size()));
}

/// `{id: "org.example.App", n: -5}` in the binary form.
const QByteArray binary =
    QByteArray::fromHex("62706c6973743030d201020304526964516e5f100f6f72672e6578616d706c652e41707013fffffff"
                        "ffffffffb080d101224000000000000010100000000000000050000000000000000000000000000002d");

} // namespace

class PropertyListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsesBothForms()
    {
        QCOMPARE(PropertyList::parse(binary), QVariant(QVariantMap{{u"id"_s, u"org.example.App"_s}, {u"n"_s, -5LL}}));
        QCOMPARE(PropertyList::parse(
                     document("<array><string>Ti\341\272\277ng &amp;</string><integer>-7</integer></array>")),
                 QVariant(QVariantList{u"Tiếng &"_s, -7LL}));
        QVERIFY(PropertyList::parse(nestedBinary(10)));
        QCOMPARE(PropertyList::parse(document("<array><date>2026-01-02T03:04:05Z</date><true/></array>")),
                 QVariant(QVariantList{QDateTime(), true})); // its other values are still of use
    }

    void readsOddEncodings()
    {
        const QString text = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<plist><string>ế</string></plist>"_s;
        for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
            for (const auto flag : {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
                QStringEncoder encoder(encoding, flag);
                QCOMPARE(PropertyList::parse(encoder(text)), QVariant(u"ế"_s));
            }
        }
        QCOMPARE(PropertyList::parse("\xEF\xBB\xBF" + document("<string>x</string>")), QVariant(u"x"_s));
        QCOMPARE(PropertyList::parse("<?xml version='1.0' encoding='ISO-8859-1'?><plist><string>\xE9</string></plist>"),
                 QVariant(u"é"_s));
    }

    void readsOddLists()
    {
        QCOMPARE(
            PropertyList::parse("\n " + document("<!-- -- --- --><string>a<!---->b<![CDATA[<!-- c -->]]></string>")),
            QVariant(u"ab<!-- c -->"_s));
        // {"u": a key-archive UID, "k": true}
        const QByteArray list = QByteArray::fromHex(
            "62706c6973743030d2010203045175516b800909080d0f11130000000000000101000000000000000500000000000000000000000000000014");
        QCOMPARE(PropertyList::parse(list), QVariant(QVariantMap{{u"u"_s, QVariant()}, {u"k"_s, true}}));
    }

    void refuses_data()
    {
        columns<QByteArray>("bytes");
        const auto nested = [](int levels) {
            return document(QByteArray("<array>").repeated(levels) + QByteArray("</array>").repeated(levels));
        };
        QByteArray attributes;
        for (int number = 0; number < 200'000; ++number)
            attributes += " a" + QByteArray::number(number) + "=''";
        row("nothing", QByteArray());
        row("another format", QByteArray("\x7f\x45LF\0\0\1", 7));
        row("binary, only its name", QByteArray("bplist00"));
        row("binary, cut", binary.chopped(10));
        row("xml, cut", document("<dict><key>a</key><string>b</string></dict>").left(80));
        row("binary, each array twice in the next", nestedBinary(40, 2));
        // {"k\\0": true}
        row("binary, a NUL in a key",
            QByteArray::fromHex(
                "62706c6973743030d10102526b0009080b0e000000000000010100000000000000030000000000000000000000000000000f"));
        row("list within itself",
            QByteArray::fromHex("62706c6973743030a1000800000000000001010000000000000001000000000000"
                                "0000000000000000000a"));
        row("too deep", nested(PropertyList::maximumDepth + 2));
        row("absurdly deep", nested(200'000));
        row("a tag of many attributes", document("<string" + attributes + ">x</string>"));
        row("hours of entities", document("<string>" + QByteArray("&lt;").repeated(1'000'000) + "</string>"));
        row("no end of a comment", document("<string>x</string>") + "<!-- ");
        row("binary, absurdly deep", nestedBinary(200'000));
    }

    void refuses()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!PropertyList::parse(bytes));
    }

    void xmlReadsBackTheSame()
    {
        const QVariant value =
            QVariantMap{{u"URL"_s, u"https://example.org/?a=1&b=<ế>"_s},
                        {u""_s, QVariantMap{{u"empty"_s, u""_s}}},
                        {u"list"_s, QVariantList{1LL, -2LL, 0.25, false, QByteArray("\0x", 2), QVariantList()}}};
        QVERIFY(PropertyList::xml(value).startsWith("<?xml"));
        QCOMPARE(PropertyList::parse(PropertyList::xml(value)), value);
    }
};

QTEST_APPLESS_MAIN(PropertyListTest)

#include "PropertyListTest.moc"
