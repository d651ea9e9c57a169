#include "LanguageKit.h"

#include "Row.h"
#include "Workshop.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class LanguageKitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void installs_data()
    {
        // ran: tools, in order
        // left: in the working folder
        columns<QString, bool, QString, QString, QString>("furniture", "succeeds", "ran", "left", "line");
        const char *staged = "vi vietnamese-dictionaries.oxt", *all = "curl curl zip unopkg";
        row("an earlier package", "mkdir -p $C; cd $C; touch stale; zip -q vietnamese-dictionaries.oxt stale; rm stale",
            true, all, staged, "(exit 0)");
        row("user's own LibreOffice", "mkdir -p $H/Applications; mv Applications/LibreOffice.app $H/Applications", true,
            all, staged, "(exit 0)");
        row("there, in other case", "mkdir -p \"$L/uno_packages/a/b\"; touch \"$L/uno_packages/a/b/VI_vn.AFF\"", true,
            "", "", "đã có sẵn.");
        row("there, in the user's own LibreOffice", "D=$H$E/vi; mkdir -p $D; touch $D/vi_VN.dic", true, "", "",
            "đã có sẵn.");
        row("there, among the user's", "mkdir -p \"$L/extensions\"; touch \"$L/extensions/vi_VN.aff\"", true, "", "",
            "đã có sẵn.");
        row("only in hidden folders and packages",
            "cd \"$L\"; mkdir -p extensions/.a extensions/A.app; touch extensions/.a/vi_VN.dic extensions/A.app/vi_VN.dic",
            true, all, staged, "(exit 0)");
        row("no unopkg", "rm -r Applications/LibreOffice.app", false, "", "", "để cài Vietnamese dictionary.");
        row("silent unopkg", "touch silent", false, all, staged, "(exit 0)");
        row("failing unopkg", "touch failing-unopkg", false, all, staged, "dictionary bằng unopkg.");
        row("failing zip", "touch failing-zip", false, "curl curl zip", "vi", "(exit 1)");
        row("failing download", "touch failing-curl", false, "curl", "vi", "file: one.xml");
        row("links planted",
            "mkdir -p $C/vi/META-INF; printf mine >notes; for each in vietnamese-dictionaries.oxt "
            "vi/one.xml vi/META-INF/manifest.xml; do ln -s $PWD/notes $C/$each; done",
            true, all, staged, "(exit 0)");
        row("second is corrupted", "mkdir -p $C; touch $C/vietnamese-dictionaries.oxt corrupt-manifest.xml", false,
            "curl curl", "", "file: META-INF/manifest.xml");
    }

    void installs()
    {
        QFETCH(QString, furniture);
        QFETCH(QString, line);
        const TemporaryMac mac;
        mac.addTool(u"/usr/bin/curl"_s, R"(while [ "$1" != -o ]; do shift; done
[ ! -e "$ROOT/failing-curl" ] || exit 22
name=${last##*/}
if [ -e "$ROOT/corrupt-$name" ]; then echo "$name"; else printf '%s' "$name"; fi >"$ROOT$2")");
        mac.addTool(u"/opt/homebrew/bin/curl"_s, "exit 9"); // what a name alone would find
        mac.addTool(u"/usr/bin/zip"_s, "[ ! -e \"$ROOT/failing-zip\" ] && zip \"$1\" \"$ROOT$2\" \"$3\"");
        mac.addTool(u"/Applications/LibreOffice.app/Contents/MacOS/unopkg"_s,
                    R"([ ! -e "$ROOT/failing-unopkg" ] || exit 1
[ "$1 $2 $3" = "add --force --suppress-license" ] && [ ! -e "$ROOT/silent" ] || exit 0
unzip -Z1 "$ROOT$4" | sort | xargs | grep -qx 'META-INF/ META-INF/manifest.xml one.xml' || exit 1
D="$ROOT/Users/technician/Library/Application Support/LibreOffice/4/user/uno_packages/cache"
mkdir -p "$D" && touch "$D/vi_VN.dic")");
        mac.furnish(
            u"H=Users/technician; L=\"$H/Library/Application Support/LibreOffice/4/user\"; C=$H/Library/Caches/tavelo-deskrig/libreoffice-vi-dictionary; E=/Applications/LibreOffice.app/Contents/Resources/extensions; mkdir -p \"$L\"; "_s +
            furniture);
        Workshop shop(mac.services());
        const auto pinned = [](const QString &path) {
            const QByteArray content = path.section(u'/', -1).toUtf8();
            return PinnedFile{path, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex()};
        };
        const LanguageKit kit(shop.services, shop.runtime, shop.runner, shop.log,
                              {pinned(u"one.xml"_s), pinned(u"META-INF/manifest.xml"_s)});
        QTEST(kit.installLibreOfficeVietnameseDictionary(), "succeeds");

        const QString folder = shop.runtime.cacheDir() + u"/libreoffice-vi-dictionary"_s;
        QTEST(mac.calls().replaceInStrings(QRegularExpression(u"\\|.*"_s), QString()).join(u' '), "ran");
        QTEST(QDir(mac.hostPath(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(u' '), "left");
        QVERIFY2(shop.texts().value(shop.texts().size() - 1).endsWith(line), qPrintable(shop.texts().join(u'\n')));
        QCOMPARE(mac.contents(u"/notes"_s), mac.exists(u"/notes"_s) ? "mine" : "");
        if (!mac.calls().isEmpty())
            QCOMPARE(
                mac.calls().at(0),
                u"curl|-fL|--proto|=https|--proto-redir|=https|--retry|2|--connect-timeout|20|-o|%1/vi/one.xml|https://raw.githubusercontent.com/"
                "LibreOffice/dictionaries/38d96a4d54ec3449cf7f28cddae1fce32e2b15a7/vi/one.xml"_s.arg(folder));
    }
};

QTEST_GUILESS_MAIN(LanguageKitTest)

#include "LanguageKitTest.moc"
