// What a vendor download can meet, driven through the tools of a simulated Mac: each refusal has its words, leaves what
// was there and leaves nothing behind.

#include "ProgramOnAMac.h"
#include "Row.h"
#include "Workshop.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString applicationPath = u"/Applications/Thunderbird.app"_s;

/// The arguments that put a copy of Thunderbird by this team there.
QStringList copyBy(const QString &team)
{
    return {u"Thunderbird"_s, u"--path"_s, applicationPath, u"--identifier"_s, u"org.mozilla.thunderbird"_s,
            u"--team"_s,      team};
}

} // namespace

class VendorDownloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meets_data()
    {
        // tool: one program of `simulated-mac/`, run beforehand; line: of the log, among others
        columns<QString, QStringList, bool, QString>("tool", "arguments", "installs", "line");
        const auto broken = [](const char *name, const QString &line, bool installs, const char *told) {
            row(name, u"break-tool"_s, line.split(u' '), installs, told);
        };
        const char *installed = "Đã cài trực tiếp Thunderbird: /Applications/Thunderbird.app";
        row("all is well", "", QStringList(), true, installed);
        row("redirected elsewhere", "set-download",
            QStringList{u"https://download.mozilla.org/?product=thunderbird-latest-ssl&os=osx&lang=en-US"_s,
                        u"--redirect"_s, u"https://telegram.org/dl/desktop/mac"_s},
            false, "Download thất bại hoặc redirect ra ngoài allowlist của Thunderbird.");
        broken("damaged image", u"curl --damage"_s, false, "Hoàn tất: hdiutil attach Thunderbird.dmg (exit 1)");
        broken("Gatekeeper's no", u"spctl --status 3"_s, false,
               "Bundle tải về không đạt bundle ID, Team ID, designated requirement hoặc Gatekeeper policy.");
        broken("damaged copy", u"ditto --damage"_s, false,
               "App sau khi copy không đạt policy chữ ký; xoá bản copy không hoàn chỉnh.");
        broken("detaching fails", u"hdiutil --when detach --status 16"_s, true, installed);
        row("another team's copy in place", "add-app", copyBy(u"EVIL123456"_s), false,
            "App đã tồn tại nhưng không đạt policy chữ ký kỳ vọng; không ghi đè.");
    }

    void meets()
    {
        QFETCH(QString, tool);
        QFETCH(QStringList, arguments);
        QFETCH(bool, installs);
        QFETCH(QString, line);
        const ProgramOnAMac mac;
        if (!tool.isEmpty())
            mac.furnish(tool, arguments);
        const QString information = applicationPath + u"/Contents/Info.plist"_s;
        const QByteArray before = mac.contents(information);

        Workshop shop(mac.services());
        const AppItem thunderbird = catalogItem(u"thunderbird"_s);
        const bool result = shop.backend.install(thunderbird);
        const QStringList texts = shop.texts();
        QVERIFY2(texts.contains(line), qPrintable(texts.join(u'\n')));
        QCOMPARE(result, installs);
        QCOMPARE(shop.backend.status(thunderbird), installs ? InstallStatus::installed : InstallStatus::missing);
        QCOMPARE(mac.exists(applicationPath), installs || !before.isEmpty());
        if (!before.isEmpty())
            QCOMPARE(mac.contents(information), before);

        const QString cache = mac.hostPath(u"/Users/technician/Library/Caches/tavelo-deskrig/"_s);
        const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(cache + u"mounts"_s).entryList(everything), QStringList());
        QCOMPARE(QDir(cache + u"downloads"_s).entryList(everything),
                 line.startsWith(u"Download") ? QStringList() : QStringList(u"Thunderbird.dmg"_s));
    }
};

QTEST_GUILESS_MAIN(VendorDownloadTest)
#include "VendorDownloadTest.moc"
