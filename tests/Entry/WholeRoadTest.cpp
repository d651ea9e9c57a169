// The whole road of the command line, from a fresh Mac to its report, where three vendors offer the wrong thing and
// where each of the Mac's tools fails in turn.

#include "AppLanguage.h"
#include "ProgramOnAMac.h"
#include "UserDefaults.h"
#include "Workshop.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// What follows that beginning in the lines that have it.
QStringList rests(const QString &text, const QString &beginning)
{
    QStringList rests;
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines) {
        if (const qsizetype at = line.indexOf(beginning); at >= 0)
            rests.append(line.mid(at + beginning.size()));
    }
    return rests;
}

/// The end of a run as "STATUS: FAILED ITEMS", with what no run may leave behind it.
QString ending(const ProgramOnAMac &mac, const ProgramOnAMac::Outcome &outcome)
{
    return u"%1: %2"_s.arg(outcome.status).arg(rests(outcome.output, u"] Thất bại: "_s).join(u", "_s)) +
           outcome.errors + mac.leftovers().join(u' ');
}

/// The report that a check writes, without what differs from one moment to the next.
QStringList report(const ProgramOnAMac &mac)
{
    const auto outcome = mac.run(u"--check"_s);
    const QString file = rests(outcome.output, u"Report: "_s).value(0);
    if (outcome.status != 0 || !outcome.errors.isEmpty() || file.isEmpty())
        return {u"status %1: %2"_s.arg(outcome.status).arg(outcome.errors)};
    QStringList lines = QString::fromUtf8(mac.contents(file)).split(u'\n');
    lines.removeIf([](const QString &line) {
        return line.startsWith(u"Thời gian: ") || line.startsWith(u"- Dung lượng trống: ");
    });
    return lines;
}

/// The lines as far as they name something.
QStringList names(QStringList lines)
{
    return lines.replaceInStrings(QRegularExpression(u" •.*"_s), QString());
}

/// The lines of `of` that are not among the others.
QString beyond(const QStringList &others, QStringList of)
{
    of.removeIf([&](const QString &line) { return others.contains(line); });
    return names(of).join(u'\n');
}

// Ways to break a tool; all but the last are options of `break-tool`.
constexpr char lies[] = "--status 0 --silent", dies[] = "--signal KILL", gone[] = "gone";

void breakTool(const ProgramOnAMac &mac, const QString &tool, const QString &way)
{
    if (way == u"gone")
        QFile::rename(mac.hostPath(tool), mac.hostPath(tool) + u".gone"_s);
    else
        mac.furnish(u"break-tool"_s, QStringList(tool.section(u'/', -1)) + way.split(u' '));
}

void mendTool(const ProgramOnAMac &mac, const QString &tool)
{
    mac.furnish(u"break-tool"_s, {tool.section(u'/', -1), u"--mend"_s});
    QFile::rename(mac.hostPath(tool) + u".gone"_s, mac.hostPath(tool));
}

/// The applications that are there without being whole.
QStringList halfInstalled(const ProgramOnAMac &mac)
{
    QStringList names = QDir(mac.hostPath(u"/Applications"_s)).entryList({u"*.app"_s}, QDir::AllEntries);
    names.removeIf([&](const QString &name) {
        QProcess codesign;
        codesign.setProcessEnvironment(mac.environment);
        codesign.start(mac.hostPath(u"/usr/bin/codesign"_s),
                       {u"--verify"_s, u"--deep"_s, u"--strict"_s, u"/Applications/"_s + name});
        return codesign.waitForFinished() && codesign.exitCode() == 0;
    });
    return names;
}

/// Does the work on as many Macs at once as this machine has processors.
QStringList onManyMacs(const std::vector<std::function<QString()>> &work)
{
    QThreadPool pool;
    std::vector<QString> results(work.size());
    for (size_t index = 0; index < work.size(); ++index)
        pool.start([&, index] { results[index] = work[index](); });
    pool.waitForDone();
    return QStringList(results.cbegin(), results.cend());
}

} // namespace

class WholeRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeVendorsOfferTheWrongThing()
    {
        const ProgramOnAMac mac;
        // What somebody chose in the window is not for the command line.
        QVERIFY(mac.services().defaults->setText(AppLanguages::storedKey.toString(), u"ko"_s));
        QVERIFY(report(mac).contains(u"- Không phát hiện."_s));

        const QString image = mac.hostPath(u"/private/tmp/Slack.dmg"_s), foreign = u"/private/tmp/Slack.app"_s;
        mac.furnish(u"add-app"_s, {u"Slack"_s, u"--path"_s, foreign, u"--identifier"_s, u"com.tinyspeck.slackmacgap"_s,
                                   u"--team"_s, u"WRONGTEAM1"_s});
        mac.furnish(u"make-image"_s, {image, foreign});
        const QString elsewhere = catalogItem(u"telegram"_s).directInstaller->url;
        QList<QStringList> genuine;
        for (const auto &[id, option, offered] : {std::tuple(u"thunderbird"_s, u"--redirect"_s, elsewhere),
                                                  std::tuple(u"telegram"_s, u"--file"_s, mac.hostPath(u"/etc/hosts"_s)),
                                                  std::tuple(u"slack"_s, u"--file"_s, image)}) {
            const QString address = catalogItem(id).directInstaller->url;
            const QByteArray redirect =
                mac.contents(u"/private/var/simulated-mac/internet/"_s + address.section(u"://"_s, 1) + u".redirect"_s);
            genuine.append({address, u"--redirect"_s, QString::fromUtf8(redirect).trimmed()});
            mac.furnish(u"set-download"_s, {address, option, offered});
        }
        const QString full = u"--preset full --yes"_s;
        const auto first = mac.run(full);
        const auto planned = first.output.count(u"\n- "_s);
        QCOMPARE(ending(mac, first), u"1: Thunderbird, Telegram Desktop, Slack"_s);
        QVERIFY(first.output.endsWith(u"\nHoàn tất: %1 thành công, 3 lỗi.\n"_s.arg(planned - 3)));
        QCOMPARE(halfInstalled(mac), QStringList());
        const QStringList before = report(mac);
        const QString missing = u"- Thunderbird [thunderbird]: Chưa cài\n"
                                "- Telegram Desktop [telegram]: Chưa cài\n- Slack [slack]: Chưa cài"_s;
        QCOMPARE(before.filter(u"]: Chưa cài"_s).join(u'\n'), missing);

        // Once the vendors are themselves again, a second run finds all the rest in place.
        for (const QStringList &download : genuine)
            mac.furnish(u"set-download"_s, download);
        mac.takeCalls();
        const auto second = mac.run(full);
        QCOMPARE(ending(mac, second), u"0: "_s);
        QVERIFY(second.output.endsWith(u"\nHoàn tất: %1 thành công, 0 lỗi.\n"_s.arg(planned)));
        const QStringList calls = mac.takeCalls();
        QCOMPARE(calls.filter(u"brew install"_s), QStringList());
        QCOMPARE(calls.filter(QRegularExpression(u"^ditto "_s)).size(), 3);
        QCOMPARE(calls.filter(QRegularExpression(u"^unopkg "_s)), QStringList());
        const QStringList after = report(mac);
        QCOMPARE(beyond(after, before), missing);
        QCOMPARE(beyond(before, after), u"- Slack: 4.41.97 [com.tinyspeck.slackmacgap] (/Applications)\n"
                                        "- Telegram: 5.8.3 [com.tdesktop.Telegram] (/Applications)\n"
                                        "- Thunderbird: 128.5.0 [org.mozilla.thunderbird] (/Applications)\n"
                                        "- Thunderbird [thunderbird]: Đã cài\n"
                                        "- Telegram Desktop [telegram]: Đã cài\n- Slack [slack]: Đã cài"_s);
    }

    void eachToolFails()
    {
        struct Row {
            const char *tool;
            std::vector<const char *> ways;
            const char *failed; ///< In these ways, these of the preset's items fail, and no other.
            const char *preset = "minimal";
        };
        const QList<Row> rows{
            {"/opt/homebrew/bin/brew",
             {dies, "--status 1"},
             "LibreOffice + Vietnamese, Office Fonts, Skim, PDFsam Basic, Archive Tools"},
            {"/opt/homebrew/bin/brew", {lies}, "LibreOffice + Vietnamese, Skim, PDFsam Basic, Archive Tools"},
            {"/usr/bin/curl", {lies, gone, "--damage"}, "Thunderbird"},
            {"/usr/bin/hdiutil", {lies, dies}, "Thunderbird"},
            {"/usr/bin/hdiutil", {"--flood 3000000", "--when detach --status 16"}, ""},
            {"/usr/bin/codesign", {lies, dies}, "Thunderbird"},
            {"/usr/bin/codesign", {"--delay 0.2"}, ""},
            {"/usr/bin/ditto", {lies, gone, "--damage"}, "Thunderbird"},
            {"/usr/sbin/spctl", {dies, gone}, "Thunderbird"},
            {"/usr/bin/zip", {gone}, "Archive Tools"},
            {"/usr/bin/unzip", {gone}, "Archive Tools"},
            {"/usr/bin/open", {dies}, ""}, // what it would open is there
            {"/opt/homebrew/bin/duti", {lies, dies}, "Set ONLYOFFICE Defaults", "standard"},
        };
        std::vector<std::function<QString()>> trials;
        QStringList expected;
        for (const Row &row : rows) {
            const QString tool = QString::fromLatin1(row.tool), failed = QString::fromUtf8(row.failed);
            const QString arguments = u"--preset %1 --yes"_s.arg(QString::fromLatin1(row.preset));
            for (const char *option : row.ways) {
                const QString way = QString::fromLatin1(option), name = tool + u' ' + way + u": "_s;
                expected += name + (failed.isEmpty() ? u"0: "_s : u"1: "_s) + failed + u"; ; 0: "_s;
                trials.emplace_back([=] {
                    const ProgramOnAMac mac;
                    breakTool(mac, tool, way);
                    const QString broken = ending(mac, mac.run(arguments));
                    mendTool(mac, tool);
                    const QString half = halfInstalled(mac).join(u' ');
                    return name + broken + u"; "_s + half + u"; "_s + ending(mac, mac.run(arguments));
                });
            }
        }
        QCOMPARE(onManyMacs(trials), expected);
    }

    void inventoryLosesOnlyWhatAToolKnows()
    {
        const auto inventory = [](const QString &tool, const QString &way) {
            const ProgramOnAMac mac;
            mac.furnish(u"populate"_s, {});
            breakTool(mac, tool, way);
            return QStringList(report(mac).filter(u" • signature="_s));
        };
        const QStringList whole = names(inventory(u"/usr/bin/open"_s, u"gone"_s)); // which no scan needs
        QVERIFY(whole.size() > 90);
        struct Row {
            const char *tool, *way, *known; ///< What only this tool knows.
        };
        std::vector<std::function<QString()>> trials;
        for (const Row &row :
             {Row{"/opt/homebrew/bin/brew", dies, "Homebrew formula"},
              Row{"/usr/sbin/pkgutil", gone, "installer receipt"}, Row{"/usr/bin/codesign", dies, "signature=valid"},
              Row{"/usr/sbin/system_profiler", gone, "nothing"}}) {
            trials.emplace_back([=] {
                const QString known = QString::fromLatin1(row.known);
                const QStringList found = inventory(QString::fromLatin1(row.tool), QString::fromLatin1(row.way));
                QStringList left = whole;
                left.removeIf([&](const QString &line) { return line.contains(known); });
                return beyond(names(found), left) + beyond(left, names(found)) + found.filter(known).join(u'\n');
            });
        }
        QCOMPARE(onManyMacs(trials).join(QString()), QString());
    }
};

QTEST_GUILESS_MAIN(WholeRoadTest)
#include "WholeRoadTest.moc"
