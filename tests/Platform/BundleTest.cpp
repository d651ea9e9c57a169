#include "Bundle.h"
#include "FileManager.h"
#include "PropertyList.h"
#include "Row.h"
#include "TemporaryMac.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

QByteArray utf16(const QString &text, QStringConverter::Encoding encoding)
{
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

QByteArray plist(const QVariant &value)
{
    return PropertyList::xml(QVariantMap{{u"line"_s, value}});
}

} // namespace

class BundleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stringsTable_data()
    {
        columns<QByteArray, QString>("bytes", "line");
        const QString pair = u"\"line\" = \"Tiếng Việt 🙂\";"_s;
        row("UTF-8", pair.toUtf8(), u"Tiếng Việt 🙂"_s);
        row("UTF-8 with a mark", "\xEF\xBB\xBF" + pair.toUtf8(), u"Tiếng Việt 🙂"_s);
        row("UTF-16, little end first", utf16(pair, QStringConverter::Utf16LE), u"Tiếng Việt 🙂"_s);
        row("UTF-16, big end first", utf16(pair, QStringConverter::Utf16BE), u"Tiếng Việt 🙂"_s);
        row("without quotes around the key", QByteArray("line=\"x\" ;"), u"x"_s);
        row("among others", QByteArray("\"a\"=\"line\";\n\"line\"\n=\n\"x\";\r\n\"b\"=\"y\";"), u"x"_s);
        row("empty", QByteArray("\"line\" = \"\";"), u""_s);
        row("the last one counts", QByteArray("\"line\" = \"x\"; \"line\" = \"y\";"), u"y"_s);
        row("escapes", QByteArray(R"("li\ne" = "no"; "line" = "\"\\n\" \U1EA3\UD83D\UDE42 one\ntwo \z";)"),
            u"\"\\n\" ả🙂 one\ntwo z"_s);
        row("behind comments", QByteArray("/* \"line\" = \"no\"; */ // \"line\" = \"no\";\n\"line\" = \"x\";"), u"x"_s);
        row("with slashes in it", QByteArray("\"line\" = \"http://x /* no comment */\"; /* \" */"),
            u"http://x /* no comment */"_s);
        row("property list", plist(u"Tiếng"_s), u"Tiếng"_s);
        row("property list of another type", plist(7), u"7"_s);
        for (const auto &[name, bytes] : std::initializer_list<std::pair<const char *, QByteArray>>{
                 {"nothing", ""},
                 {"no end", "\"line\" = \"x\""},
                 {"no end of the text", "\"line\" = \"x;"},
                 {"no end of the comment", "/* \"line\" = x; "},
                 {"hours of a text without an end", "\"" + QByteArray(R"(\")").repeated(1'000'000)},
                 {"hours of a name without a text", QByteArray(4'000'000, 'a')},
                 {"hours of comments without an end", QByteArray("/*").repeated(1'000'000)},
                 {"noise", QByteArray::fromHex("00ff22fe3d00d800dc5c223b")},
                 {"half a UTF-16 text", utf16(pair, QStringConverter::Utf16LE).left(13)},
                 {"half a property list", plist(u"x"_s).left(200)},
                 {"a list without keys", PropertyList::xml(QVariantList{u"line"_s})}})
            row(name, bytes, u"-"_s);
    }

    void stringsTable()
    {
        QFETCH(QByteArray, bytes);
        QTEST(Bundle::stringsTable(bytes).value(u"line"_s, u"-"_s).toString(), "line");
    }

    void applicationsMadeForAPhone()
    {
        const TemporaryMac mac;
        mac.write(u"/Applications/Pad.app/Wrapper/Inner.app/Info.plist"_s,
                  PropertyList::xml(QVariantMap{{u"CFBundleIdentifier"_s, u"com.example.pad"_s}}));
        mac.furnish(u"ln -s Wrapper/Inner.app Applications/Pad.app/WrappedBundle"_s);
        QCOMPARE(Bundle::identifier(*mac.services().files, u"/Applications/Pad.app"_s), u"com.example.pad"_s);
    }

    void localizedText_data()
    {
        // Files of the bundle's resources as "name=text"; a text of "7" stands for a number.
        columns<QString, QString, QString>("languages", "resources", "text");
        row("no resources", "vi", "", "-");
        row("the user's language", "vi-VN en-US", "en.lproj=e vi.lproj=v", "v");
        row("with its region", "en-GB", "en.lproj=e en-GB.lproj=b", "b");
        row("the second language", "de fr", "fr.lproj=f en.lproj=e", "f");
        row("the bundle's own language", "de", "nl.lproj=n en.lproj=e", "n");
        row("English at last", "de", "fr.lproj=f English.lproj=e", "e");
        row("the base", "de", "Base.lproj=b", "b");
        row("no language told", "", "en.lproj=e", "e");
        row("another language only", "de", "fr.lproj=f", "-");
        row("all in one table", "vi", "table.vi=t vi.lproj=v", "t");
        row("not in the table", "vi", "table.en=t vi.lproj=v", "v");
        row("no text", "vi", "vi.lproj=7 en.lproj=e", "e");
        row("out of the bundle", "../Other vi", "../Other.lproj=o vi.lproj=v", "v");
    }

    void localizedText()
    {
        QFETCH(QString, languages);
        QFETCH(QString, resources);
        const TemporaryMac mac;
        const QString bundle = u"/Applications/Example.app"_s, folder = bundle + u"/Contents/Resources/"_s;
        mac.write(bundle + u"/Contents/Info.plist"_s,
                  PropertyList::xml(QVariantMap{{u"CFBundleDevelopmentRegion"_s, u"nl"_s}}));
        mac.write(mac.home() + u"/Library/Preferences/.GlobalPreferences.plist"_s,
                  PropertyList::xml(QVariantMap{{u"AppleLanguages"_s, languages.split(u' ', Qt::SkipEmptyParts)}}));
        for (const QString &piece : resources.split(u' ', Qt::SkipEmptyParts)) {
            const QString name = piece.section(u'=', 0, 0), text = piece.section(u'=', 1);
            const QVariantMap table{{u"line"_s, text == u'7' ? QVariant(7) : QVariant(text)}};
            if (name.startsWith(u"table."))
                mac.write(folder + u"InfoPlist.loctable"_s, PropertyList::xml(QVariantMap{{name.mid(6), table}}));
            else
                mac.write(folder + name + u"/InfoPlist.strings"_s, PropertyList::xml(table));
        }
        QTEST(Bundle::localizedText(*mac.services().files, bundle, u"line"_s, mac.home()).value_or(u"-"_s), "text");
    }
};

QTEST_APPLESS_MAIN(BundleTest)
#include "BundleTest.moc"
