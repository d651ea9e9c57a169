#include "DirectInstaller.h"

#include "FileManager.h"
#include "Row.h"
#include "Workshop.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString cache = u"/Users/technician/Library/Caches/tavelo-deskrig"_s;
const QString target = u"/Applications/Tool.app"_s;

AppItem tool(InstallerType type = InstallerType::dmg)
{
    AppItem item = anItem(AppKind::direct, {}, u"/Applications/Tool.app ~/Applications/Tool.app"_s);
    item.directInstaller = DirectInstallerSpec{
        u"https://vendor.example/tool"_s,       u"Tool.img"_s, type, u"Tool.app"_s, u"org.example.Tool"_s, u"TEAM1"_s,
        {u"vendor.example"_s, u"cdn.example"_s}};
    return item;
}

/// The image of the vendor is what lies in `/image`; `/final` names another end of the download.
void furnish(const TemporaryMac &mac)
{
    addSigningTools(mac);
    for (const QString &name : {u"codesign"_s, u"curl"_s, u"ditto"_s, u"hdiutil"_s, u"spctl"_s, u"unzip"_s})
        mac.addTool(u"/opt/homebrew/bin/"_s + name, "exit 9"); // what a name alone would find
    mac.addApp(u"/image/Tool.app"_s, u"org.example.Tool"_s);
    mac.write(u"/image/Tool.app/team"_s, "TEAM1");
    mac.addTool(u"/usr/bin/curl"_s, R"(while [ "$1" != -o ]; do shift; done
echo image >"$ROOT$2"
echo 'a progress meter' >&2
cat "$ROOT/final" 2>/dev/null || printf '%s' "$3")");
    mac.addTool(u"/usr/bin/hdiutil"_s, R"(case $1 in
attach) [ ! -e "$ROOT/unreadable" ] && cp -R "$ROOT/image/." "$ROOT$last" ;;
detach) rm -r "$ROOT$2"/* ;;
esac)");
    mac.addTool(u"/usr/bin/unzip"_s, R"(cp -R "$ROOT/image/." "$ROOT$last")");
    mac.addTool(u"/usr/bin/ditto"_s,
                R"(cp -R "$ROOT$1" "$ROOT$2"; [ ! -e "$ROOT/damaging" ] || echo OTHER >"$ROOT$2/team")");
}

/// Another's folder: nothing can be put there or taken away.
struct LockedApplications : FileManager {
    using FileManager::FileManager;
    bool isWritable(const QString &path) const override
    {
        return path != u"/Applications" && FileManager::isWritable(path);
    }
    bool remove(const QString &path, FileError *error) const override
    {
        if (path != target)
            return FileManager::remove(path, error);
        *error = {EACCES, u"Permission denied"_s};
        return false;
    }
};

} // namespace

class DirectInstallerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void installs_data()
    {
        // team: of the application that is there afterwards
        columns<QString, QString, QString>("furniture", "team", "line");
        const char *done = "Đã cài trực tiếp Item: /Applications/Tool.app",
                   *refused = "Bundle tải về không đạt bundle ID";
        row("redirect in capitals", "echo https://CDN.example/x >final", "TEAM1", done);
        row("redirect elsewhere", "echo https://cdn.example.evil/x >final", "",
            "Download thất bại hoặc redirect ra ngoài allowlist của Item.");
        row("in folders", "mkdir -p image/a/b image/a/.h/Tool.app; mv image/Tool.app image/a/b/", "TEAM1", done);
        row("in another app", "mkdir -p image/A.app/in; mv image/Tool.app image/A.app/in/", "", refused);
        row("after another app", "mkdir -p image/A.app image/b; mv image/Tool.app image/b/", "TEAM1", done);
        row("under another name", "mv image/Tool.app image/Other.app", "TEAM1", done);
        row("another team", "echo TEAM2 >image/Tool.app/team", "", refused);
        row("another identifier", "sed -i s/example.Tool/example.tool/ image/Tool.app/Contents/Info.plist", "",
            refused);
        row("no identifier", "rm image/Tool.app/Contents/Info.plist", "", refused);
        row("broken signature", "printf '#!/bin/sh\necho TeamIdentifier=TEAM1 >&2; [ $1 = -dv ]\n' >usr/bin/codesign",
            "", refused);
        row("signature without a team", "printf '#!/bin/sh\n' >usr/bin/codesign", "", refused);
        row("Gatekeeper's no", "touch image/Tool.app/rejected", "", refused);
        row("damaged copy", "touch damaging", "", "xoá bản copy không hoàn chỉnh.");
        row("genuine in place", "cp -R image/Tool.app Applications; touch damaging", "TEAM1", "Tool.app đã tồn tại");
        row("foreign in place", "cd Applications; mkdir Tool.app; printf X >Tool.app/team", "X", "không ghi đè.");
    }

    void installs()
    {
        QFETCH(QString, furniture);
        QFETCH(QString, team);
        QFETCH(QString, line);
        for (const InstallerType type : {InstallerType::dmg, InstallerType::zip}) {
            const TemporaryMac mac;
            furnish(mac);
            mac.furnish(furniture);
            Workshop shop(mac.services());
            const DirectInstaller installer(shop.services, shop.runtime, shop.runner, shop.log);
            QCOMPARE(installer.installDirectApp(tool(type)), team == u"TEAM1");
            QCOMPARE(mac.contents(target + u"/team"_s), team.toUtf8());
            QCOMPARE(mac.exists(target), !team.isEmpty());
            QVERIFY2(shop.texts().join(u'\n').contains(line), qPrintable(shop.texts().join(u'\n')));
            const bool downloaded = !line.startsWith(u"Download");
            QCOMPARE(mac.exists(cache + u"/downloads/Tool.img"_s), downloaded);
            const bool dmg = type == InstallerType::dmg;
            QCOMPARE(shop.heard.progress.contains({dmg ? u"Đang mount bộ cài Item"_s : u"Đang giải nén Item"_s, 0.45}),
                     downloaded);
            QCOMPARE(mac.calls(u"hdiutil|attach"_s).size(), mac.calls(u"hdiutil|detach"_s).size());
            mac.furnish(u"cd .%1; ! ls mounts extract 2>/dev/null | grep item"_s.arg(cache));
            for (const QString &folder : {cache + u"/downloads"_s, cache + u"/mounts"_s, cache + u"/extract"_s})
                QVERIFY(!mac.exists(folder) || mac.mode(folder) == 0700);
        }
    }

    void toolsAreCalledJustSo()
    {
        const TemporaryMac mac;
        furnish(mac);
        Workshop shop(mac.services());
        QVERIFY(shop.backend.install(tool()));
        const QRegularExpression uuid(u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_s);
        const QStringList calls = mac.calls(u"curl"_s) + mac.calls(u"hdiutil"_s) + mac.calls(u"codesign"_s).mid(0, 2) +
                                  mac.calls(u"spctl"_s).mid(0, 1);
        QCOMPARE(
            calls.join(u'\n').replace(uuid, u"UUID"_s).remove(cache),
            u"curl|-fL|--proto|=https|--proto-redir|=https|--max-redirs|5|--retry|2|--connect-timeout|20|--write-out|%{url_effective}|-o|/downloads/Tool.img|"
            "https://vendor.example/tool\n"
            "hdiutil|attach|/downloads/Tool.img|-nobrowse|-readonly|-mountpoint|/mounts/item-UUID\n"
            "hdiutil|detach|/mounts/item-UUID|-quiet\n"
            "codesign|--verify|--deep|--strict|-R=anchor apple generic and identifier \"org.example.Tool\" and "
            "certificate leaf[subject.OU] = \"TEAM1\"|/mounts/item-UUID/Tool.app\n"
            "codesign|-dv|--verbose=4|/mounts/item-UUID/Tool.app\n"
            "spctl|--assess|--type|execute|/mounts/item-UUID/Tool.app"_s);
        mac.furnish(
            u"rm -r Applications/Tool.app; touch unreadable; echo victim >victim; ln -sf $PWD/victim .%1/downloads/Tool.img"_s
                .arg(cache));
        QVERIFY(!shop.backend.install(tool()));
        QCOMPARE(mac.calls(u"hdiutil|detach"_s).size(), 1);
        QCOMPARE(mac.contents(u"/victim"_s), "victim\n");
        QCOMPARE(mac.contents(cache + u"/downloads/Tool.img"_s), "image\n");
    }

    void tellsWhatIsMissing()
    {
        const auto told = [](InstallerType type, const QString &furniture) {
            const TemporaryMac mac;
            furnish(mac);
            mac.furnish(u"mkdir -p Users/technician/Library/Caches; C=.%1; "_s.arg(cache) + furniture);
            Workshop shop(mac.services());
            const DirectInstaller installer(shop.services, shop.runtime, shop.runner, shop.log);
            return installer.installDirectApp(tool(type)) ? QString() : shop.texts().filter(u"Không "_s).join(u'|');
        };
        using enum InstallerType;
        QCOMPARE(told(dmg, u"touch $C"_s), u"Không chuẩn bị được direct install cho Item: Not a directory"_s);
        QCOMPARE(told(dmg, u"mkdir $C; touch $C/mounts"_s), u"Không tạo được mount point: Not a directory"_s);
        QCOMPARE(told(zip, u"mkdir $C; touch $C/extract"_s), u"Không tạo được extract dir: Not a directory"_s);
        QCOMPARE(told(zip, u"rmdir Applications; touch Users/technician/Applications"_s),
                 u"Không tạo được thư mục cài /Users/technician/Applications: File exists"_s);
        QCOMPARE(told(dmg, u"rm -r image/*"_s), u"Không tìm thấy Tool.app trong DMG."_s);
        QCOMPARE(told(zip, u"mv image/Tool.app image/Tool"_s), u"Không tìm thấy Tool.app trong ZIP."_s);
    }

    void addressIsCheckedBeforeAnythingGoesOut()
    {
        const TemporaryMac mac;
        furnish(mac);
        Workshop shop(mac.services());
        AppItem item = tool();
        for (const char *refused :
             {"http://vendor.example/tool", "HTTPS://vendor.example/tool", "https://evil.example/tool",
              "https://vendor.example@evil.example/", "https://vendor.example\\@evil.example/", "https:vendor.example",
              "https:///tool", "vendor.example", ""}) {
            item.directInstaller->url = QString::fromLatin1(refused);
            QVERIFY2(!shop.backend.install(item), refused);
        }
        QCOMPARE(mac.calls().size(), 0);
        QCOMPARE(shop.texts().count(u"URL tải không thuộc allowlist HTTPS của Item."_s), 9);
        item.directInstaller->url = u"https://VENDOR.Example/tool"_s;
        QVERIFY(shop.backend.install(item));
    }

    void lockedAndForeignCopiesStay()
    {
        const TemporaryMac mac;
        furnish(mac);
        PlatformServices services = mac.services();
        services.files = std::make_shared<LockedApplications>(HostRoot(mac.folder()));
        Workshop shop(services);
        const QString own = mac.home() + target;
        const DirectInstaller installer(shop.services, shop.runtime, shop.runner, shop.log);
        QVERIFY(installer.installDirectApp(tool()) && !mac.exists(target) && mac.exists(own));
        mac.furnish(u"cp -R image/Tool.app Applications"_s);
        QVERIFY(!installer.removeDirectApp(tool()));
        QVERIFY(shop.texts().contains(u"Không xoá được /Applications/Tool.app: Permission denied"_s));
        QVERIFY(mac.exists(target) && !mac.exists(own)); // the second goes although the first stays

        mac.furnish(u"rm .%1/team"_s.arg(target));
        Workshop unlocked(mac.services());
        QVERIFY(!unlocked.backend.uninstall(tool()) && mac.exists(target));
        QVERIFY(unlocked.texts().contains(
            u"Từ chối xoá /Applications/Tool.app: bundle ID hoặc chữ ký không khớp manifest Item."_s));
        mac.furnish(u"rm -r .%1"_s.arg(target));
        QVERIFY(unlocked.backend.uninstall(tool()));
        QVERIFY(unlocked.texts().contains(u"Không tìm thấy app direct để gỡ: Item"_s));
    }
};

QTEST_GUILESS_MAIN(DirectInstallerTest)

#include "DirectInstallerTest.moc"
