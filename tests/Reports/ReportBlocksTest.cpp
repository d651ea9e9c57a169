#include "ReportPages.h"
#include "ReportSections.h"

#include "Golden.h"
#include "Row.h"
#include "SampleReports.h"

#include <QBuffer>
#include <QPdfWriter>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::MacReportPDF;

namespace
{

/// As "Title{line|line} Title{line}".
QString inShort(const QList<ReportSection> &sections)
{
    QStringList texts;
    for (const ReportSection &section : sections)
        texts << section.title + u'{' + section.lines.join(u'|') + u'}';
    return texts.join(u' ');
}

/// "row", "detail" and so on; a number is a spacer of that height.
QList<Block> blocks(const QString &words)
{
    static const QHash<QString, Block> kinds{
        {u"row"_s, Blocks::ApplicationRow()},       {u"detail"_s, Blocks::DetailRow()},
        {u"title"_s, Blocks::SectionTitle()},       {u"paragraph"_s, Blocks::Paragraph()},
        {u"header"_s, Blocks::ApplicationHeader()}, {u"header2"_s, Blocks::ApplicationHeader{{u"2"_s}}}};
    QList<Block> list;
    for (const QString &word : words.split(u' ', Qt::SkipEmptyParts))
        list << kinds.value(word, Blocks::Spacer{word.toDouble()});
    return list;
}

} // namespace

class ReportBlocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values()
    {
        const auto chip = [](const QString &text) { return reportValue(u"Chip"_s, text); };
        QCOMPARE(chip(u"Memory: 8 GB\nChip: \t Apple: M3 \r\nX"_s), u"Apple: M3"_s);
        QCOMPARE(chip(u"Chip:A\nChip: B"_s), u"A"_s);
        for (const QString &none : {u""_s, u"Chip:\nChip: B"_s, u"Chip: \u00A0\t\u2028B"_s,
                                    u" Chip: A\n- Chip: B\nchip: C\nChipset: D\nChip : E"_s})
            QCOMPARE(chip(none), u"—"_s);
    }

    void sections_data()
    {
        columns<QString, bool, QString>("text", "inVietnamese", "expected");
        row("heading without lines", "- x\nSystem checks:\nRecommendations:\n- a\n- b", false, "Recommendations{a|b}");
        row("software", "System checks:\n- a\nAdditional installed software:\n- b\nx\n- c\nKey detection limits:\n- d",
            false, "System checks{a} Key detection limits{d}");
        row("other lines", "System checks:\n- a\n  ↳ b\nc\n-d\n- \n-\n• e\nX:\n- f", false, "System checks{a|f}");
        row("blanks", " \tSystem checks: \r\n\t -  a \r\n\u00A0- b", false, "System checks{ a|b}");
        row("twice", "System checks:\n- a\nSystem checks:\n- b", false, "System checks{a} System checks{b}");
        row("no headings", "System checks:\n- a\n- System checks:\nsystem checks:\nSystem checks: b\n- <b>%1", false,
            "System checks{a|System checks:|<b>%1}");
        row("mixed languages", "시스템 검사:\n- a\n建议:\n- b", true, "Kiểm tra hệ thống{a} Khuyến nghị{b}");
        row("fallback", "x Tavelo\nTavelo Deskrig macOS Report 2\n=\n- a\n \n====\n- - b\n=c\n- =", false,
            "Report details{x Tavelo|a|- b|=c|=}");
        row("only software", "System checks:\nAdditional installed software:\n- b", true,
            "Chi tiết báo cáo{System checks:|Additional installed software:|b}");
        row("nothing", "\n==\n \r\nTavelo Deskrig macOS Report\n", false, "");
        for (const QString &earlier : {u"License evidence limits"_s, u"Giới hạn bằng chứng bản quyền"_s,
                                       u"라이선스 증거 한계"_s, u"ライセンス証跡の制限"_s, u"许可证证据限制"_s})
            for (const bool inVietnamese : {false, true})
                row(earlier.toUtf8(), earlier + u":\n- a"_s, inVietnamese,
                    (inVietnamese ? u"Giới hạn phát hiện key"_s : earlier) + u"{a}"_s);
    }

    void sections()
    {
        QFETCH(QString, text);
        QFETCH(bool, inVietnamese);
        QTEST(inShort(parseSections(text, inVietnamese)), "expected");
    }

    void languages()
    {
        QByteArray lines;
        for (const AppLanguage language : AppLanguages::supported()) {
            const QString text = sampleReportText(language, sampleApplications(2, 2));
            for (const ReportSection &section : parseSections(text, false))
                lines += u"%1 %2 | "_s.arg(section.title).arg(section.lines.size()).toUtf8();
            lines += rawValue(reportLanguage(text)).toUtf8() + '\n';
            QCOMPARE(isVietnamese(text), language == AppLanguage::vietnamese);
        }
        const QByteArray differences = differencesFromGolden(u"sections.txt"_s, lines);
        QVERIFY2(differences.isEmpty(), differences);
        for (const QString &heading : {u"Kiểm tra hệ thống:"_s, u"Phần mềm cài thêm:"_s, u"Khuyến nghị:"_s})
            QVERIFY(isVietnamese(u"x "_s + heading + u" y"_s) && !isVietnamese(heading.chopped(1)));
        QVERIFY(!isVietnamese(u"Giới hạn phát hiện key:\nTrạng thái ứng dụng Tavelo:"_s));
    }

    void pages()
    {
        // "|" begins a page, "+" marks what is repeated; 749 points fit on one.
        const QString rows = u" row"_s.repeated(23);
        for (const QString &expected :
             {QString(), u"700 49 | 1"_s, u"700 | 49.01"_s, u"10 | 800 | 5"_s, u"0 | 800"_s,
              u"720 header | +header row"_s, u"header 723 | detail row"_s, u"header 723 | title row"_s,
              u"header 723 | 9 row"_s, u"711 title | detail"_s, u"header 723 | header2 723 | 749 | +header2 row"_s,
              u"header 723 | +header"_s + rows + u" | +header"_s + rows + u" | +header row"_s}) {
            QList<QList<Block>> wanted;
            for (const QString &page : QString(expected).remove(u'+').split(u'|'))
                wanted << blocks(page);
            const QString given = QString(expected).remove(QRegularExpression(u"\\+\\w+|\\|"_s));
            QVERIFY2(paginate(blocks(given), 511, m_typography) == wanted, qPrintable(expected));
        }
    }

    /// Of one, two and ten lines, of a line that is full, of one with a letter more, and of odd line ends.
    void measuredHeights()
    {
        const auto heights = [&](auto make, double size, double textWidth) {
            QString full;
            while (m_typography.width(full + u'n', {size, QFont::Medium}) <= textWidth)
                full += u'n';
            QStringList numbers;
            for (const QString &text : QStringList{u"日"_s, u"日\n日"_s, u"日\n"_s.repeated(9) + u'日', full,
                                                   full + u'n', full + u' ' + full + u" n"_s, u"a\u2028b\r\nc\u0085"_s})
                numbers << QString::number(height(make(text), 511, m_typography));
            return numbers.join(u' ');
        };
        QCOMPARE(heights(
                     [](const QString &text) {
                         return Blocks::Notes{{}, text};
                     },
                     9.5, 483),
                 u"58 60 160 58 60 73 85"_s);
        QCOMPARE(heights([](const QString &text) { return Blocks::DetailRow{text}; }, 8.7, 483),
                 u"29 37 129 29 37 48 60"_s);
        QCOMPARE(heights([](const QString &text) { return Blocks::Paragraph{text}; }, 9.2, 511),
                 u"20 30 127 20 30 42 54"_s);
    }

private:
    QBuffer m_buffer;
    QPdfWriter m_device = QPdfWriter((m_buffer.open(QIODevice::WriteOnly), &m_buffer));
    const ReportTypography m_typography = ReportTypography(m_device, AppLanguage::english);
};

QTEST_MAIN(ReportBlocksTest)

#include "ReportBlocksTest.moc"
