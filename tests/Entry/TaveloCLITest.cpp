#include "TaveloCLI.h"

#include "PrintedColumn.h"
#include "Row.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

class TaveloCLITest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheRoute_data()
    {
        columns<QString, bool>("line", "commandLine");
        row("check", "TaveloDeskrig --check", true);
        row("no gui", "TaveloDeskrig x --no-gui", true);
        row("preset without value", "TaveloDeskrig --preset", true);
        row("preset=", "TaveloDeskrig --preset=", true);
        row("help", "TaveloDeskrig -h", true);
        row("another case", "TaveloDeskrig --HELP", false);
        row("no such word", "TaveloDeskrig --presets --yes -y --no-shortcuts --no-mime-defaults", false);
        row("the program's own name does not count", "--check", false);
    }

    void choosesTheRoute()
    {
        QFETCH(QString, line);
        QTEST(TaveloCLI::shouldRun(line.split(u' ')), "commandLine");
    }

    void readsOptions_data()
    {
        columns<QString, TaveloCLI::Options>("line", "options");
        using Options = TaveloCLI::Options;
        row("all", "--check --no-gui -y --no-shortcuts --no-mime-defaults -h --preset full",
            Options{true, true, true, true, true, true, u"full"_s});
        row("a value may look like an option", "--preset --yes", Options{.preset = u"--yes"_s});
        row("the last preset stands", "--preset=minimal --preset full", Options{.preset = u"full"_s});
        row("a preset without a value keeps the one before", "--preset full --preset", Options{.preset = u"full"_s});
        row("empty value", "--preset=", Options{.preset = QString()});
        row("unknown words", "--Check --verbose", Options());
    }

    void readsOptions()
    {
        QFETCH(QString, line);
        QFETCH(TaveloCLI::Options, options);
        const TaveloCLI::Options read = TaveloCLI::parse(line.split(u' '));
        QVERIFY(read == options);
    }

    void countsColumnsAsAReaderDoes()
    {
        QCOMPARE(printedColumn(u"OK"_s, 5), u"OK   "_s);
        QCOMPARE(printedColumn(u"Dung lượng"_s, 12), u"Dung lượng  "_s);
        const QString decomposed = u"lượng"_s.normalized(QString::NormalizationForm_D);
        QCOMPARE(printedColumn(decomposed, 6), decomposed + u' ');
        QCOMPARE(printedColumn(decomposed, 3), decomposed.left(decomposed.indexOf(u'n')));
        QCOMPARE(printedColumn(u"a👩‍💻b"_s, 2), u"a👩‍💻"_s);
        QCOMPARE(printedColumn({}, 2), u"  "_s);
    }
};

QTEST_APPLESS_MAIN(TaveloCLITest)
#include "TaveloCLITest.moc"
