#include "DirectInstaller.h"

#include "DirectAppVerifier.h"
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

struct LockedApplications : FileManager {
    using FileManager::FileManager;
    bool isWritable(const QString &path) const override
    {
        return path != u"/Applications" && FileManager::isWritable(path);
    }
};

} // namespace

class DirectInstallerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verifierStopsAtTheFirstFailure_data()
    {
        // asked: of the three commands
        columns<QString, int, QString, int, int>("identifier", "signature", "report", "gatekeeper", "asked");
        const char *id = "org.example.Tool", *report = "Format=app\nxTeamIdentifier=TEAM1x\n";
        row("genuine", id, 0, report, 0, 3);
        row("no identifier", QString(), 0, report, 0, 0);
        row("identifier in other case", "org.example.tool", 0, report, 0, 0);
        row("bad signature", id, 3, report, 0, 1);
        row("other team", id, 0, "TeamIdentifier=TEAM2\n", 0, 2);
        row("Gatekeeper's no", id, 0, report, 3, 3);
    }

    void verifierStopsAtTheFirstFailure()
    {
        QFETCH(QString, identifier);
        QFETCH(int, signature);
        QFETCH(QString, report);
        QFETCH(int, gatekeeper);
        QFETCH(int, asked);
        QStringList calls;
        const auto call = [&](const QStringList &arguments) {
            calls.append(arguments.join(u'|'));
            return calls.size();
        };
        const DirectAppVerificationTools tools{
            [&](const QString &) { return identifier.isNull() ? std::nullopt : std::optional(identifier); },
            [&](const QStringList &arguments) { return call(arguments) == 1 ? signature : gatekeeper; },
            [&](const QStringList &arguments) { return call(arguments) == 2 ? report : QString(); }};
        QCOMPARE(DirectAppVerifier::verify(u"/T.app"_s, *tool().directInstaller, tools), asked == 3 && gatekeeper == 0);
        QCOMPARE(
            calls,
            QStringList(
                {u"/usr/bin/codesign|--verify|--deep|--strict|-R=anchor apple generic and identifier \"org.example.Tool\" and "
                 "certificate leaf[subject.OU] = \"TEAM1\"|/T.app"_s,
                 u"/usr/bin/codesign|-dv|--verbose=4|/T.app"_s, u"/usr/sbin/spctl|--assess|--type|execute|/T.app"_s})
                .mid(0, asked));
    }

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
        row("no app", "mv image/Tool.app image/Tool", "", "Không tìm thấy Tool.app trong ");
        row("another team", "echo TEAM2 >image/Tool.app/team", "", refused);
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
            QCOMPARE(mac.exists(cache + u"/downloads/Tool.img"_s), !line.startsWith(u"Download"));
            QCOMPARE(mac.calls(u"hdiutil|attach"_s).size(), mac.calls(u"hdiutil|detach"_s).size());
            mac.furnish(u"cd .%1; ! ls mounts extract 2>/dev/null | grep item"_s.arg(cache));
        }
    }

    void toolsAreCalledJustSo()
    {
        const TemporaryMac mac;
        furnish(mac);
        Workshop shop(mac.services());
        QVERIFY(shop.backend.install(tool()));
        const QRegularExpression uuid(u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_s);
        const QStringList calls = mac.calls(u"curl"_s) + mac.calls(u"hdiutil"_s);
        QCOMPARE(
            calls.join(u'\n').replace(uuid, u"UUID"_s).remove(cache),
            u"curl|-fL|--proto|=https|--proto-redir|=https|--max-redirs|5|--retry|2|--connect-timeout|20|--write-out|%{url_effective}|-o|/downloads/Tool.img|"
            "https://vendor.example/tool\n"
            "hdiutil|attach|/downloads/Tool.img|-nobrowse|-readonly|-mountpoint|/mounts/item-UUID\n"
            "hdiutil|detach|/mounts/item-UUID|-quiet"_s);
        QCOMPARE(shop.fractions(), u"0 0.08 0.35 0.45 0.62 0.68 0.75 0.9 1"_s);
        mac.furnish(u"rm -r Applications/Tool.app; touch unreadable"_s);
        QVERIFY(!shop.backend.install(tool()));
        QCOMPARE(mac.calls(u"hdiutil|detach"_s).size(), 1);
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

    void lockedApplicationsFolderGivesTheUsersOwn()
    {
        const TemporaryMac mac;
        furnish(mac);
        PlatformServices services = mac.services();
        services.files = std::make_shared<LockedApplications>(HostRoot(mac.folder()));
        QVERIFY(Workshop(services).backend.install(tool()));
        QVERIFY(!mac.exists(target) && mac.exists(mac.home() + target));
    }

    void removesOnlyGenuineCopies()
    {
        const TemporaryMac mac;
        furnish(mac);
        const QString own = mac.home() + target;
        mac.furnish(u"mkdir -p .%1 .%2; cp -R image/Tool.app/. .%2"_s.arg(target, own));
        Workshop shop(mac.services());
        QVERIFY(!shop.backend.uninstall(tool())); // the second goes although the first is foreign
        QVERIFY(mac.exists(target) && !mac.exists(own));
        mac.furnish(u"rm -r .%1"_s.arg(target));
        QVERIFY(shop.backend.uninstall(tool()));
        QVERIFY(shop.texts().contains(u"Không tìm thấy app direct để gỡ: Item"_s));
    }
};

QTEST_GUILESS_MAIN(DirectInstallerTest)

#include "DirectInstallerTest.moc"
