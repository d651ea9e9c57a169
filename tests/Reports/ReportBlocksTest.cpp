#include "ReportBadges.h"
#include "ReportFonts.h"
#include "ReportPages.h"
#include "ReportSections.h"

#include "Golden.h"
#include "Row.h"
#include "SampleReports.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPdfWriter>

#include <cmath>

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

/// What a block holds.
struct Words {
    QStringList operator()(const Blocks::Hero &hero) const { return {u"hero"_s, hero.title, hero.subtitle}; }
    QStringList operator()(const Blocks::Hardware &hardware) const { return cells(u"hardware"_s, hardware.cells); }
    QStringList operator()(const Blocks::Metadata &metadata) const { return cells(u"metadata"_s, metadata.cells); }
    QStringList operator()(const Blocks::Summary &summary) const { return cells(u"summary"_s, summary.cells); }
    QStringList operator()(const Blocks::Notes &notes) const { return {u"notes"_s, notes.label, notes.value}; }
    QStringList operator()(const Blocks::SectionTitle &title) const { return {u"title"_s, title.title, *title.detail}; }
    QStringList operator()(const Blocks::ApplicationHeader &header) const
    {
        return QStringList(u"header"_s) + header.titles;
    }
    QStringList operator()(const Blocks::ApplicationRow &row) const
    {
        return {row.vietnamese ? u"row vi"_s : u"row en"_s, QString::number(row.number), row.application.name,
                shade(row.alternate)};
    }
    QStringList operator()(const Blocks::DetailRow &row) const { return {u"detail"_s, shade(row.alternate), row.text}; }
    QStringList operator()(const Blocks::Paragraph &paragraph) const { return {u"paragraph"_s, paragraph.text}; }
    QStringList operator()(const Blocks::Spacer &spacer) const { return {u"spacer %1"_s.arg(spacer.height)}; }

    static QString shade(bool alternate) { return alternate ? u"shaded"_s : u"plain"_s; }
    static QStringList cells(const QString &kind, const QList<ReportCell> &cells)
    {
        QStringList words{kind};
        for (const ReportCell &cell : cells)
            words << u"%1 = %2 %3"_s.arg(cell.label, cell.value, cell.tint.name());
        return words;
    }
};

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

    /// In each language a report with every state of evidence, then one about nothing.
    void everyBlock()
    {
        QList<InstalledMacApplication> applications = sampleApplications(11, 0) + sampleApplications(2, 3);
        applications[11].licenseEvidence->confidence = LicenseEvidenceConfidence::indicative;
        applications[12].licenseEvidence.reset();
        applications[12].name = u"%1 forged\n- x"_s;
        const MacReportProfile profile{u" Lan\n"_s, u"IT %1"_s, u" \t"_s, u" Audit of <b>"_s, u" a\nb "_s};
        const QString english = u"Hardware model: MacBook Pro\nModel identifier: Mac15,3\nChip: Apple M3\nMemory:\n"
                                "macOS version: 15.1.0\nSystem checks:\n- Homebrew: OK\n- Disk: FAIL\n"
                                "Additional installed software:\n- Dropped: 1.0\nRecommendations:\n- Go on."_s;
        const QString vietnamese = u"Model identifier: Mac15,3\nKiểm tra hệ thống:\n- Homebrew: OK"_s;
        for (const bool inVietnamese : {false, true}) {
            QByteArray lines;
            for (const Block &block :
                 makeBlocks(inVietnamese ? vietnamese : english, applications, profile, inVietnamese, sampleTime()) +
                     makeBlocks(u"- No report"_s, {}, {}, inVietnamese, QDateTime({2026, 1, 2}, {0, 3})))
                lines += std::visit(Words(), block).join(u" | "_s).replace(u'\n', u"\\n"_s).toUtf8() + '\n';
            const QByteArray differences =
                differencesFromGolden(inVietnamese ? u"blocks-vi.txt"_s : u"blocks-en.txt"_s, lines);
            QVERIFY2(differences.isEmpty(), differences);
        }
    }

    void badgesAndTints()
    {
        QByteArray lines; // the golden ones were written by hand
        const auto add = [&](const QString &of, const ReportBadge &badge, const ReportBadge &vietnamese) {
            QCOMPARE(vietnamese, ReportBadge({vietnamese.word, badge.text, badge.fill}));
            lines +=
                (QStringList{of, badge.word, vietnamese.word, badge.text.name(), badge.fill.name()}.join(u" | "_s) +
                 u'\n')
                    .toUtf8();
        };
        for (const QString &status :
             {u"valid"_s, u"invalid"_s, u"unsigned"_s, u"ad-hoc"_s, u"receipt-only"_s, u"Valid"_s})
            add(status, signatureBadge(status, false), signatureBadge(status, true));
        for (int state = 0; state <= int(AppLicenseEvidenceState::explicitUnlicensed); ++state) {
            const AppLicenseEvidenceState of{state};
            add(rawValue(of), licenseEvidenceBadge(of, false), licenseEvidenceBadge(of, true));
        }
        for (const QString &text : {u"Homebrew: ok - WARN"_s, u"Slack [slack]: Installed"_s, u"Slack: đã cài"_s,
                                    u"Slack: Not installed"_s, u"Disk: WARN - unsupported"_s, u"Slack: Chưa cài"_s,
                                    u"rclone: Unsupported"_s, u"rclone: Không hỗ trợ"_s, u"Disk: FAIL - OK : no"_s})
            lines += text.toUtf8() + " | " + detailTint(text).name().toLatin1() + '\n';
        const QByteArray differences = differencesFromGolden(u"badges.txt"_s, lines);
        QVERIFY2(differences.isEmpty(), differences);
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

    void measuredHeights()
    {
        QFont face;
        face.setFamilies(ReportFonts::font(AppLanguage::english).families());
        face.setPixelSize(1000);
        face.setWeight(QFont::Medium);
        const double lineInEms = QFontMetricsF(face).lineSpacing() / 1000;
        using Make = std::function<Block(const QString &)>;
        const auto check = [&](const Make &make, double size, double padding, double least, double textWidth) {
            const auto heightOf = [&](const QString &text) { return height(make(text), 511, m_typography); };
            const auto ofLines = [&](int count) {
                return std::max(least, std::ceil(count * size * lineInEms + count - 1) + padding);
            };
            for (const int count : {1, 2, 3, 10})
                QCOMPARE(heightOf(QStringList(count, u"日 line"_s).join(u'\n')), ofLines(count));
            QString full; // fills a line
            while (m_typography.width(full + u'n', {size, QFont::Medium}) <= textWidth)
                full += u'n';
            QCOMPARE(heightOf(full), least);
            QCOMPARE(heightOf(full + u'n'), ofLines(2));
            QCOMPARE(heightOf(full + u' ' + full + u" n"_s), ofLines(3));
            QCOMPARE(heightOf(u"a\u2028b\r\nc\u0085"_s), ofLines(4));
        };
        check([](const QString &text) { return Blocks::Notes{{}, text}; }, 9.5, 36, 58, 483);
        check([](const QString &text) { return Blocks::DetailRow{text}; }, 8.7, 14, 29, 483);
        check([](const QString &text) { return Blocks::Paragraph{text}; }, 9.2, 6, 20, 511);
    }

private:
    QBuffer m_buffer;
    QPdfWriter m_device = QPdfWriter((m_buffer.open(QIODevice::WriteOnly), &m_buffer));
    const ReportTypography m_typography = ReportTypography(m_device, AppLanguage::english);
};

QTEST_MAIN(ReportBlocksTest)

#include "ReportBlocksTest.moc"
