#include "FileManager.h"
#include "PropertyList.h"
#include "Row.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

struct StubbornFiles : FileManager {
    using FileManager::FileManager;
    bool remove(const QString &, FileError *error) const override
    {
        *error = {1, u"Operation not permitted"_s};
        return false;
    }
};

} // namespace

class ItemOperationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepAndStatusMustAgree_data()
    {
        columns<AppItem, QString, bool, bool, QString>("item", "furniture", "installed", "removed", "line");
        using enum AppKind;
        const QString app = u"/Applications/A.app"_s;
        AppItem harmful = anItem(builtin, {}, app);
        harmful.id = u"deja-dup"_s;
        const AppItem office = catalogItem(u"libreoffice"_s);
        row("agree", anItem(cask, u"a"_s), ":", true, true, "Thành công: Item");
        row("nothing appears", anItem(cask, u"a"_s, app), ":", false, true, "kiểm tra trạng thái sau cài chưa đạt.");
        row("failed, reads as installed", harmful, "mkdir Applications/A.app", false, true, "Thất bại: Item");
        row("blocked kind", anItem(blocked), "rm opt/homebrew/bin/brew", true, true, "Bỏ qua Item: mục này");
        row("language pack fails", office, "touch brew/refused/libreoffice-language-pack", false, false,
            "Thất bại: LibreOffice + Vietnamese");
        row("no dictionary", office, ":", false, true, "Không tìm thấy unopkg");
        row("no brew", anItem(bundle, u"a"_s), "rm opt/homebrew/bin/brew", false, false, "BLOCK: Chưa có Homebrew.");
        row("app stays", anItem(bundle, {}, app), "mkdir Applications/A.app", true, false,
            "kiểm tra trạng thái sau gỡ chưa đạt.");
    }

    void stepAndStatusMustAgree()
    {
        QFETCH(AppItem, item);
        QFETCH(QString, furniture);
        QFETCH(QString, line);
        const TemporaryMac mac;
        addBrew(mac);
        mac.furnish(furniture);
        Workshop shop(mac.services());
        QTEST(shop.backend.install(item), "installed");
        QVERIFY(shop.fractions().startsWith(u"0 ") && shop.fractions().endsWith(u" 1"));
        mac.setVersion(u"11.0"_s); // nothing blocks the way out
        mac.write(u"/etc/hosts"_s, {});
        QTEST(shop.backend.uninstall(item), "removed");
        QVERIFY2(shop.texts().join(u'\n').contains(line), qPrintable(shop.texts().join(u'\n')));
        for (const QString &word : {u"unopkg"_s, u"chưa đạt"_s}) // told only where it was the reason
            QCOMPARE(shop.texts().filter(word).isEmpty(), !line.contains(word));
    }

    void opens_data()
    {
        // call: of `open`; none for an item that does not open
        columns<AppItem, QString, QString>("item", "call", "line");
        using enum AppKind;
        const QString paths = u"/Applications/Gone.app ~/Applications/A.app"_s;
        row("path as it stands", anItem(direct, {}, paths), "~/Applications/A.app",
            "$ /usr/bin/open ~/Applications/A.app");
        row("no path", anItem(cask, {}, u"/Gone.app"_s), "", "Không tìm thấy app path");
        row("formula with app", anItem(formula, {}, paths), "~/Applications/A.app", "Mở: Item [item]");
        row("shortcut without its file", catalogItem(u"meet-shortcut"_s), "https://meet.google.com",
            "$ /usr/bin/open https://meet.google.com");
        row("disks", catalogItem(u"gnome-disks"_s), "-a|Disk Utility", "$ /usr/bin/open -a Disk Utility");
        const QString settings = u"x-apple.systempreferences:com.apple."_s;
        row("keyboard", catalogItem(u"ibus-unikey"_s), settings + u"Keyboard-Settings.extension"_s, "Mở: Vietnamese");
        row("printers", catalogItem(u"printer-drivers"_s), settings + u"Print-Scan-Settings.extension"_s, "Mở: ");
        AppItem harmful = anItem(builtin, {}, paths);
        harmful.id = u"rclone"_s;
        row("harmful", harmful, "", "có rủi ro dữ liệu.");
    }

    void opens()
    {
        QFETCH(AppItem, item);
        QFETCH(QString, call);
        QFETCH(QString, line);
        const TemporaryMac mac;
        mac.addTool(u"/usr/bin/open"_s, "exit 0");
        mac.write(mac.home() + u"/Applications/A.app"_s, {});
        Workshop shop(mac.services());
        QCOMPARE(shop.backend.open(item), !call.isEmpty());
        QCOMPARE(mac.calls().join(u' '), call.isEmpty() ? QString() : u"open|"_s + call);
        QVERIFY2(shop.texts().join(u'\n').contains(line), qPrintable(shop.texts().join(u'\n')));

        mac.addTool(u"/usr/bin/open"_s, "exit 1");
        QCOMPARE(shop.backend.open(item), item.builtinReady); // what macOS has is there, opened or not
        if (item.builtinReady) {
            QVERIFY(shop.backend.uninstall(item));
            QCOMPARE(mac.calls(u"open"_s).count(u"open|"_s + call), 3);
            QVERIFY(shop.texts().contains(item.macName +
                                          u" là tính năng có sẵn của macOS nên không thể gỡ khỏi máy bằng app này."_s));
        }
    }

    void shortcutsComeAndGo()
    {
        TemporaryMac mac;
        mac.environment.insert(u"TAVELO_MAC_SHORTCUT_DIR"_s, u"~/new/folder"_s);
        const AppItem zalo = catalogItem(u"zalo-shortcut"_s);
        const QString file = u"/Users/technician/new/folder/Zalo Web.webloc"_s;
        Workshop shop(mac.services());
        mac.write(file, "spoiled");
        QVERIFY(shop.backend.install(zalo));
        QCOMPARE(PropertyList::parse(mac.contents(file)).value(),
                 QVariant(QVariantMap{{u"URL"_s, u"https://chat.zalo.me"_s}}));
        PlatformServices stubborn = mac.services();
        stubborn.files = std::make_shared<StubbornFiles>(HostRoot(mac.folder()));
        Workshop other(stubborn);
        QVERIFY(!other.backend.uninstall(zalo));
        QVERIFY(other.texts().contains(u"Không xoá được shortcut Zalo Web shortcut: Operation not permitted"_s));
        QVERIFY(shop.backend.uninstall(zalo) && !mac.exists(file) && shop.backend.uninstall(zalo));
        QVERIFY(shop.texts().contains(u"Shortcut không còn tồn tại: "_s + file));
        mac.furnish(u"cd Users/technician/new; rmdir folder; touch folder"_s);
        QVERIFY(!shop.backend.install(zalo));
        QVERIFY(shop.texts().contains(u"Không tạo được shortcut Zalo Web shortcut: File exists"_s));
    }

    void defaultApps_data()
    {
        // commands: of setting and taking back
        columns<QString, bool, bool, int, QString>("furniture", "set", "reset", "commands", "line");
        row("one fails", "touch duti/refuse-docx", false, false, 12, "$ duti -r org.example.Office pptx all");
        row("one does not hold", "touch duti/idle-pptx; mv Applications/ONLY* Applications/ONLYOFFICE.app", false, true,
            12, "Office pptx all (exit 0)");
        row("no ONLYOFFICE", "rm -r Applications/ONLYOFFICE*", false, true, 6, "Hãy cài ONLYOFFICE trước.");
        row("no duti", "rm usr/local/bin/duti", false, false, 0, "Không tìm thấy lệnh duti sau khi cài.");
        row("duti listed, but gone", "rm usr/local/bin/duti; touch brew/formula/duti", false, false, 0,
            "Không tìm thấy lệnh duti sau khi cài.");
        row("user's own, without identifier",
            "mkdir -p $H/ONLYOFFICE.app; rm -r Applications/ONLY*; touch $H/ONLYOFFICE.app/Contents", true, true, 12,
            "$ duti -r org.onlyoffice.desktopeditors pptx all");
    }

    void defaultApps()
    {
        QFETCH(QString, furniture);
        QFETCH(int, commands);
        QFETCH(QString, line);
        const TemporaryMac mac;
        addBrew(mac);
        mac.addApp(u"/Applications/ONLYOFFICE Desktop Editors.app"_s, u"org.example.Office"_s);
        mac.addTool(u"/usr/local/bin/duti"_s, R"(cd "$ROOT/duti"
case $1 in
-x) cat "$2" ;;
-s) [ ! -e "refuse-$3" ] || exit 1; [ -e "idle-$3" ] || echo "$2" >"$3" ;;
-r) [ ! -e "refuse-$3" ] && rm -f "$3" ;;
esac)");
        mac.furnish(u"mkdir duti; H=Users/technician/Applications; "_s + furniture);
        const qsizetype lacking = mac.exists(u"/usr/local/bin/duti"_s) || mac.exists(u"/brew/formula/duti"_s) ? 0 : 1;
        Workshop shop(mac.services());
        const AppItem defaults = catalogItem(u"onlyoffice-mime"_s);
        const QDateTime start = shop.services.clock->now();
        QTEST(shop.backend.install(defaults), "set");
        QCOMPARE(shop.backend.status(defaults) == InstallStatus::installed,
                 commands == 12 && shop.texts().contains(u"Thành công: Set ONLYOFFICE Defaults"_s));
        QTEST(shop.backend.uninstall(defaults), "reset");
        QCOMPARE(mac.calls(u"duti|-s"_s).size() + mac.calls(u"duti|-r"_s).size(), commands);
        QCOMPARE(start.secsTo(shop.services.clock->now()), commands / 6);
        QVERIFY2(shop.texts().join(u'\n').contains(line), qPrintable(shop.texts().join(u'\n')));
        QCOMPARE(mac.calls(u"brew|install"_s).size(), lacking);
        QCOMPARE(shop.texts().count(u"Chưa có duti, đang cài duti bằng Homebrew."_s), lacking);
    }
};

QTEST_GUILESS_MAIN(ItemOperationsTest)

#include "ItemOperationsTest.moc"
