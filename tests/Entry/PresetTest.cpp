// Presets from an empty Mac to the last line, through the program itself.

#include "Catalog.h"
#include "ProgramOnAMac.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Tavelo;

namespace
{

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

QString lastLine(const QString &output)
{
    return output.trimmed().section(u'\n', -1);
}

} // namespace

class PresetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standardTwice();
    void fullAndItsFilters();
    void oldSystemsBlockTheFullSet();
    void survivesItsParent_data();
    void survivesItsParent();
    void survivesBrokenTools_data();
    void survivesBrokenTools();
};

void PresetTest::standardTwice()
{
    const ProgramOnAMac mac;
    const auto first = mac.run(words("--preset standard --yes --no-gui"));
    QCOMPARE(first.status, 0);
    QCOMPARE(first.errors, QString());
    QCOMPARE(lastLine(first.output), QStringLiteral("Hoàn tất: 13 thành công, 0 lỗi."));
    QCOMPARE(mac.leftovers(), QStringList());
    // What the terminal showed of the backend is what the log holds, in its order.
    QStringList shown =
        first.output.split(u'\n').filter(QRegularExpression(QStringLiteral("^\\[\\d\\d:\\d\\d:\\d\\d\\] ")));
    QCOMPARE(shown, mac.logLines());
    QVERIFY(!mac.takeCalls().filter(QStringLiteral("brew install")).isEmpty());

    const auto second = mac.run(words("--preset standard --yes --no-gui"));
    QCOMPARE(second.status, 0);
    QCOMPARE(lastLine(second.output), QStringLiteral("Hoàn tất: 13 thành công, 0 lỗi."));
    const QStringList calls = mac.takeCalls();
    QCOMPARE(calls.filter(QStringLiteral("brew install")), QStringList());
    QCOMPARE(calls.filter(QRegularExpression(QStringLiteral("^(ditto|unopkg)"))), QStringList());
}

void PresetTest::fullAndItsFilters()
{
    const ProgramOnAMac mac;
    const auto full = mac.run(words("--preset full --yes"));
    const auto planned = [](const ProgramOnAMac::Outcome &outcome) {
        return outcome.output.count(QStringLiteral("\n- "));
    };
    QCOMPARE(planned(full), Catalog::uniqueInstallItems(Catalog::items()).size() - 2); // two are not supported
    QCOMPARE(lastLine(full.output), QStringLiteral("Hoàn tất: %1 thành công, 0 lỗi.").arg(planned(full)));
    QCOMPARE(full.status, 0);
    const auto filtered = mac.run(words("--preset full --no-shortcuts --no-mime-defaults"), "n\n");
    QCOMPARE(planned(filtered), planned(full) - full.output.count(QStringLiteral(" (shortcut)\n")) -
                                    full.output.count(QStringLiteral(" (mime)\n")));
    QVERIFY(!filtered.output.contains(QStringLiteral("(shortcut)")));
    QVERIFY(!filtered.output.contains(QStringLiteral("(mime)")));
}

void PresetTest::oldSystemsBlockTheFullSet()
{
    const ProgramOnAMac mac(words("--macos 13.6"));
    const auto outcome = mac.run(words("--preset full --yes"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, QStringLiteral("BLOCK: Windows App yêu cầu macOS 14 trở lên.\n"));
    QCOMPARE(outcome.output, QString());
    QCOMPARE(mac.takeCalls(), QStringList());
}

void PresetTest::survivesItsParent_data()
{
    QTest::addColumn<QString>("line"); // of a shell; $0 is the program

    QTest::newRow("nobody reads") << R"("$0" --preset=minimal --yes 2>&1 | head -n 1)";
    QTest::newRow("closed streams") << R"(exec "$0" --preset=minimal --yes <&- >&- 2>&-)";
    QTest::newRow("closed input") << R"(exec "$0" --preset=minimal --yes <&-)";
    QTest::newRow("the end of children is ignored") << R"(trap '' CHLD; exec "$0" --preset=minimal --yes)";
    QTest::newRow("an odd PATH") << R"(PATH=:/nowhere::. exec "$0" --preset=minimal --yes)";
    QTest::newRow("blanks for folders")
        << R"(TAVELO_MAC_CACHE_DIR=' ' TAVELO_MAC_LOG_DIR='  ' exec "$0" --preset=minimal --yes)";
    QTest::newRow("a relative folder") << R"(TAVELO_MAC_CACHE_DIR=tmp/cache exec "$0" --preset=minimal --yes)";
    QTest::newRow("a folder above the root")
        << R"(TAVELO_MAC_CACHE_DIR=/../../tmp/cache exec "$0" --preset=minimal --yes)";
}

void PresetTest::survivesItsParent()
{
    QFETCH(QString, line);
    const ProgramOnAMac mac;
    QProcess shell;
    shell.setProcessEnvironment(mac.environment);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line, ProgramOnAMac::program()});
    QVERIFY(shell.waitForFinished(120000));
    QCOMPARE(shell.exitCode(), 0);
    const QString log = mac.logLines().join(u'\n');
    QCOMPARE(log.count(QStringLiteral("] Thành công: ")), 8);
    QVERIFY(!log.contains(QStringLiteral("] Thất bại: ")));
    QVERIFY(mac.exists(QStringLiteral("/Applications/Thunderbird.app")));
    QCOMPARE(mac.leftovers(), QStringList());
}

void PresetTest::survivesBrokenTools_data()
{
    QTest::addColumn<QStringList>("broken");
    QTest::addColumn<int>("failures"); // of the eight items of the smallest set

    QTest::newRow("brew fails") << words("brew --status 1") << 5;
    QTest::newRow("brew says nothing and does nothing") << words("brew --status 0 --silent") << 4;
    QTest::newRow("floods") << words("hdiutil --flood 3000000") << 0;
    QTest::newRow("a slow tool") << words("codesign --delay 0.2") << 0;
}

void PresetTest::survivesBrokenTools()
{
    QFETCH(QStringList, broken);
    QFETCH(int, failures);
    const ProgramOnAMac mac;
    mac.furnish(QStringLiteral("break-tool"), broken);
    const auto outcome = mac.run(words("--preset minimal --yes"));
    QCOMPARE(lastLine(outcome.output),
             QStringLiteral("Hoàn tất: %1 thành công, %2 lỗi.").arg(8 - failures).arg(failures));
    QCOMPARE(outcome.status, failures == 0 ? 0 : 1);
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(mac.leftovers(), QStringList());
}

QTEST_GUILESS_MAIN(PresetTest)
#include "PresetTest.moc"
