#include "PropertyList.h"
#include "Row.h"

#include <QDateTime>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

QByteArray document(const QByteArray &value)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + value + "</plist>";
}

QByteArray nested(int levels)
{
    return document(QByteArray("<array>").repeated(levels) + QByteArray("</array>").repeated(levels));
}

QByteArray nestedBinary(quint32 levels)
{
    QByteArray objects = "bplist00", offsets;
    const auto bigEndian = [](quint32 number) { return QByteArray::number(number, 16).rightJustified(8, '0'); };
    for (quint32 level = 1; level <= levels; ++level) {
        offsets += QByteArray::fromHex(bigEndian(quint32(objects.size())));
        objects += '\xA1' + QByteArray::fromHex(bigEndian(level % levels)); // the last would close the circle
    }
    objects.replace(objects.size() - 5, 5, "\x09");
    const QByteArray trailer = "0000000000000404"
                               "00000000" +
                               bigEndian(levels) +
                               "0000000000000000"
                               "00000000";
    return objects + offsets + QByteArray::fromHex(trailer + bigEndian(quint32(objects.size())));
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

    void refuses_data()
    {
        columns<QByteArray>("bytes");
        row("nothing", QByteArray());
        row("another format", QByteArray("\x7f\x45LF\0\0\1", 7));
        row("binary, only its name", QByteArray("bplist00"));
        row("binary, cut", binary.chopped(10));
        row("xml, cut", document("<dict><key>a</key><string>b</string></dict>").left(80));
        row("key archive",
            QByteArray::fromHex("62706c69737430308003080000000000000101000000000000000100000000000000000000"
                                "00000000000a"));
        row("list within itself",
            QByteArray::fromHex("62706c6973743030a1000800000000000001010000000000000001000000000000"
                                "0000000000000000000a"));
        row("too deep", nested(PropertyList::maximumDepth + 2));
        row("absurdly deep", nested(200'000));
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
