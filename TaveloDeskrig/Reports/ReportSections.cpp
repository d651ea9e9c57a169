#include "ReportSections.h"

#include "InventoryText.h"
#include "ReportTexts.h"

#include <algorithm>

namespace Tavelo::MacReportPDF
{

namespace
{

const QString bullet = QStringLiteral("- ");

/// One heading in the five languages, in the order of `AppLanguages::supported`.
QStringList inAllLanguages(QString ReportTexts::*heading)
{
    QStringList entries;
    for (const AppLanguage language : AppLanguages::supported())
        entries << reportTexts(language).*heading;
    return entries;
}

/// The headings whose lines the PDF shows. What follows the five languages are headings of earlier reports.
const QList<QStringList> &shownHeadings()
{
    static const QList<QStringList> lists = {
        inAllLanguages(&ReportTexts::systemChecksHeading),
        inAllLanguages(&ReportTexts::catalogHeading),
        inAllLanguages(&ReportTexts::recommendationsHeading),
        inAllLanguages(&ReportTexts::limitsHeading) +
            QStringList{QStringLiteral("License evidence limits:"), QStringLiteral("Giới hạn bằng chứng bản quyền:"),
                        QStringLiteral("라이선스 증거 한계:"), QStringLiteral("ライセンス証跡の制限:"),
                        QStringLiteral("许可证证据限制:")},
    };
    return lists;
}

const QStringList &additionalSoftwareHeadings()
{
    static const QStringList entries = inAllLanguages(&ReportTexts::additionalSoftwareHeading);
    return entries;
}

QString withoutBullet(const QString &line)
{
    return line.startsWith(bullet) ? line.mid(bullet.size()) : line;
}

QString withoutColon(const QString &heading)
{
    return heading.chopped(1);
}

QStringList trimmedLines(const QString &text)
{
    QStringList lines = linesOf(text);
    for (QString &line : lines)
        line = line.trimmed();
    lines.removeAll(QString());
    return lines;
}

QList<ReportSection> wholeTextAsOneSection(const QStringList &lines, bool vietnamese)
{
    ReportSection section{vietnamese ? QStringLiteral("Chi tiết báo cáo") : QStringLiteral("Report details"), {}};
    for (const QString &line : lines) {
        const bool rule = std::all_of(line.cbegin(), line.cend(), [](QChar sign) { return sign == u'='; });
        if (!rule && !line.startsWith(u"Tavelo Deskrig macOS Report"))
            section.lines << withoutBullet(line);
    }
    return section.lines.isEmpty() ? QList<ReportSection>() : QList<ReportSection>{section};
}

} // namespace

QString reportValue(const QString &label, const QString &text)
{
    const QString key = label + u':';
    const QStringList lines = linesOf(text);
    const auto line =
        std::find_if(lines.cbegin(), lines.cend(), [&](const QString &each) { return each.startsWith(key); });
    const QString value = line == lines.cend() ? QString() : line->mid(key.size()).trimmed();
    return value.isEmpty() ? QStringLiteral("—") : value;
}

QList<ReportSection> parseSections(const QString &text, bool vietnamese)
{
    const QStringList lines = trimmedLines(text);
    QList<ReportSection> sections;
    ReportSection current;
    const auto close = [&] {
        if (!current.lines.isEmpty())
            sections << current;
        current = {};
    };
    for (const QString &line : lines) {
        const QList<QStringList> &shown = shownHeadings();
        const auto heading =
            std::find_if(shown.cbegin(), shown.cend(), [&](const QStringList &list) { return list.contains(line); });
        if (heading != shown.cend()) {
            close();
            current.title = withoutColon(vietnamese ? heading->at(1) : line);
        } else if (additionalSoftwareHeadings().contains(line)) {
            close();
        } else if (!current.title.isEmpty() && line.startsWith(bullet)) {
            current.lines << withoutBullet(line);
        }
    }
    close();
    return sections.isEmpty() ? wholeTextAsOneSection(lines, vietnamese) : sections;
}

bool isVietnamese(const QString &reportText)
{
    const ReportTexts &texts = reportTexts(AppLanguage::vietnamese);
    return reportText.contains(texts.systemChecksHeading) || reportText.contains(texts.additionalSoftwareHeading) ||
           reportText.contains(texts.recommendationsHeading);
}

AppLanguage reportLanguage(const QString &reportText)
{
    const QStringList lines = trimmedLines(reportText);
    for (const AppLanguage language : AppLanguages::supported()) {
        const ReportTexts &texts = reportTexts(language);
        if (lines.contains(texts.systemChecksHeading) || lines.contains(texts.recommendationsHeading))
            return language;
    }
    return AppLanguage::english;
}

} // namespace Tavelo::MacReportPDF
