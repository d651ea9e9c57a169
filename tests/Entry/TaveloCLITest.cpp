#include "TaveloCLI.h"
#include "PrintedColumn.h"

#include <QTest>

using namespace Tavelo;

class TaveloCLITest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheRoute_data();
    void choosesTheRoute();
    void readsOptions_data();
    void readsOptions();
    void countsColumnsAsAReaderDoes();
};

void TaveloCLITest::choosesTheRoute_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("commandLine");

    QTest::newRow("nothing") << "TaveloDeskrig" << false;
    QTest::newRow("check") << "TaveloDeskrig --check" << true;
    QTest::newRow("no gui") << "TaveloDeskrig x --no-gui" << true;
    QTest::newRow("preset without value") << "TaveloDeskrig --preset" << true;
    QTest::newRow("preset=") << "TaveloDeskrig --preset=" << true;
    QTest::newRow("help") << "TaveloDeskrig -h" << true;
    QTest::newRow("another case") << "TaveloDeskrig --HELP" << false;
    QTest::newRow("only modifiers") << "TaveloDeskrig --yes -y --no-shortcuts --no-mime-defaults" << false;
    QTest::newRow("longer word") << "TaveloDeskrig --presets" << false;
    QTest::newRow("the program's own name does not count") << "--check" << false;
}

void TaveloCLITest::choosesTheRoute()
{
    QFETCH(QString, line);
    QTEST(TaveloCLI::shouldRun(line.split(u' ')), "commandLine");
}

void TaveloCLITest::readsOptions_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<TaveloCLI::Options>("options");

    const QString full = QStringLiteral("full");
    QTest::newRow("all") << "--check --no-gui -y --no-shortcuts --no-mime-defaults -h --preset full"
                         << TaveloCLI::Options{true, true, true, true, true, true, full};
    QTest::newRow("a value may look like an option")
        << "--preset --yes" << TaveloCLI::Options{.preset = QStringLiteral("--yes")};
    QTest::newRow("the last preset stands") << "--preset=minimal --preset full" << TaveloCLI::Options{.preset = full};
    QTest::newRow("a preset without a value keeps the one before")
        << "--preset full --preset" << TaveloCLI::Options{.preset = full};
    QTest::newRow("empty value") << "--preset=" << TaveloCLI::Options{.preset = QString()};
    QTest::newRow("unknown words") << "--Check --verbose" << TaveloCLI::Options{};
}

void TaveloCLITest::readsOptions()
{
    QFETCH(QString, line);
    QFETCH(TaveloCLI::Options, options);
    const TaveloCLI::Options read = TaveloCLI::parse(line.split(u' '));
    QCOMPARE(read.preset.has_value(), options.preset.has_value());
    QVERIFY(read == options);
}

void TaveloCLITest::countsColumnsAsAReaderDoes()
{
    QCOMPARE(printedColumn(QStringLiteral("OK"), 5), QStringLiteral("OK   "));
    QCOMPARE(printedColumn(QStringLiteral("Dung lượng"), 12), QStringLiteral("Dung lượng  "));
    const QString decomposed = QStringLiteral("lượng").normalized(QString::NormalizationForm_D);
    QCOMPARE(printedColumn(decomposed, 6), decomposed + u' ');
    QCOMPARE(printedColumn(decomposed, 3), decomposed.left(decomposed.indexOf(u'n')));
    QCOMPARE(printedColumn(QStringLiteral("a👩‍💻b"), 2), QStringLiteral("a👩‍💻"));
    QCOMPARE(printedColumn(QString(), 2), QStringLiteral("  "));
}

QTEST_APPLESS_MAIN(TaveloCLITest)
#include "TaveloCLITest.moc"
