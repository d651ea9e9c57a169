#include "ReportPainter.h"

#include "Overloaded.h"
#include "ReportBadges.h"
#include "ReportColors.h"
#include "ReportEvidence.h"
#include "ReportLogo.h"
#include "ReportPages.h"

namespace Tavelo::MacReportPDF
{

namespace
{

constexpr auto truncating = LineBreaking::truncating;
constexpr auto wrapping = LineBreaking::wrapping;

constexpr QColor navy(0x23, 0x34, 0x54);    // wordmark and table header
constexpr QColor heading(0x17, 0x25, 0x54); // titles
constexpr QColor value(0x26, 0x36, 0x4D);   // what a cell is about
constexpr QColor muted(0x52, 0x62, 0x7A);   // labels and lesser columns
constexpr QColor detail(0x34, 0x44, 0x5C);  // running text
constexpr QColor hairline(0xE3, 0xEA, 0xF3);

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

void drawHero(PageCanvas &canvas, const Blocks::Hero &hero, double y, double width)
{
    canvas.card({Page::contentLeft, y + 3, width, 72}, 12, {0xEF, 0xF6, 0xFF}, {0xCF, 0xE0, 0xF5});
    canvas.fillRounded({Page::contentLeft, y + 3, 5, 72}, 2.5, ReportColors::orange);
    canvas.text(hero.title, {60, y + 16, width - 36, 29}, {19, QFont::Bold}, heading);
    canvas.text(hero.subtitle, {60, y + 46, width - 36, 21}, {8.8, QFont::Medium}, muted);
}

/// Calls `drawCell(cell, x, cellWidth)` for four cells side by side.
template <typename DrawCell>
void drawFourCells(const QList<ReportCell> &cells, double width, DrawCell drawCell)
{
    constexpr double gap = 8;
    const double cellWidth = (width - 3 * gap) / 4;
    double x = Page::contentLeft;
    for (const ReportCell &cell : cells) {
        drawCell(cell, x, cellWidth);
        x += cellWidth + gap;
    }
}

void drawHardware(PageCanvas &canvas, const Blocks::Hardware &hardware, double y, double width)
{
    drawFourCells(hardware.cells, width, [&](const ReportCell &cell, double x, double cellWidth) {
        canvas.card({x, y + 4, cellWidth, 48}, 9, withAlpha(cell.tint, 0.07), withAlpha(cell.tint, 0.2));
        canvas.text(cell.label, {x + 10, y + 12, cellWidth - 20, 10}, {6.7, QFont::Bold}, cell.tint, truncating);
        canvas.text(cell.value, {x + 10, y + 28, cellWidth - 20, 15}, {8.6, QFont::DemiBold}, value, truncating);
    });
}

void drawSummary(PageCanvas &canvas, const Blocks::Summary &summary, double y, double width)
{
    drawFourCells(summary.cells, width, [&](const ReportCell &cell, double x, double cellWidth) {
        canvas.card({x, y + 4, cellWidth, 48}, 9, withAlpha(cell.tint, 0.075), withAlpha(cell.tint, 0.18));
        canvas.text(cell.value, {x + 10, y + 11, cellWidth - 20, 20}, {17, QFont::Bold}, cell.tint);
        canvas.text(cell.label, {x + 10, y + 33, cellWidth - 20, 12}, {6.7, QFont::Bold}, muted, truncating);
    });
}

void drawMetadata(PageCanvas &canvas, const Blocks::Metadata &metadata, double y, double width)
{
    constexpr double gap = 9;
    constexpr double cellHeight = 49;
    constexpr double rowPitch = 57;
    const double cellWidth = (width - gap) / 2;
    for (qsizetype index = 0; index < metadata.cells.size(); ++index) {
        const ReportCell &cell = metadata.cells.at(index);
        const qsizetype row = index / 2;
        const double x = Page::contentLeft + static_cast<double>(index % 2) * (cellWidth + gap);
        const double cellY = y + static_cast<double>(row) * rowPitch;
        canvas.card({x, cellY, cellWidth, cellHeight}, 9, withAlpha(cell.tint, 0.07), withAlpha(cell.tint, 0.22));
        canvas.fillOval({x + 12, cellY + 12, 8, 8}, cell.tint);
        canvas.text(cell.label, {x + 27, cellY + 8, cellWidth - 38, 11}, {7.1, QFont::Bold}, cell.tint);
        canvas.text(cell.value, {x + 12, cellY + 25, cellWidth - 24, 17}, {10.5, QFont::DemiBold}, value, truncating);
    }
}

void drawNotes(PageCanvas &canvas, const Blocks::Notes &notes, double y, double width)
{
    const double cardHeight = height(notes, width, canvas.typography()) - 6;
    canvas.card({Page::contentLeft, y, width, cardHeight}, 9, {0xFF, 0xF7, 0xED}, {0xFE, 0xD7, 0xAA});
    canvas.text(notes.label, {56, y + 10, width - 28, 11}, {7.4, QFont::Bold}, {0xC2, 0x41, 0x0C});
    canvas.text(notes.value, {56, y + 27, width - 28, cardHeight - 33}, notesStyle, {0x3F, 0x3F, 0x46});
}

void drawSectionTitle(PageCanvas &canvas, const Blocks::SectionTitle &section, double y, double width)
{
    canvas.text(section.title, {Page::contentLeft, y + 10, width - 70, 22}, {14, QFont::Bold}, heading);
    if (!section.detail)
        return;
    canvas.fillRounded({507, y + 9, 46, 21}, 10.5, {0xDB, 0xEA, 0xFE});
    canvas.text(*section.detail, {507, y + 14, 46, 11}, {8, QFont::Bold}, {0x1D, 0x4E, 0xD8}, wrapping,
                Qt::AlignHCenter);
}

/// A column of the application table: where its text begins and how wide it may be.
struct ColumnText {
    double x;
    double width;
    Qt::Alignment alignment;
};

ColumnText columnText(size_t column, double columnX, double columnWidth)
{
    const bool numeric = column == 0 || column == 2;
    const double inset = column == 0 ? 2 : 7;
    const double padding = column == 0 ? 4 : 12;
    return {columnX + inset, columnWidth - padding, numeric ? Qt::AlignRight : Qt::AlignLeft};
}

void drawApplicationHeader(PageCanvas &canvas, const Blocks::ApplicationHeader &header, double y, double width)
{
    canvas.fillRounded({Page::contentLeft, y, width, 25}, 6, navy);
    const std::array<double, 7> widths = applicationColumnWidths(width);
    double x = Page::contentLeft;
    for (size_t column = 0; column < widths.size(); ++column) {
        const ColumnText place = columnText(column, x, widths.at(column));
        canvas.text(header.titles.value(static_cast<qsizetype>(column)), {place.x, y + 8, place.width, 10},
                    {6.7, QFont::Bold}, Qt::white, truncating, place.alignment);
        x += widths.at(column);
    }
}

void drawApplicationRow(PageCanvas &canvas, const Blocks::ApplicationRow &row, double y, double width)
{
    if (row.alternate)
        canvas.fill({Page::contentLeft, y, width, 30}, {0xF5, 0xF9, 0xFF});
    canvas.fill({Page::contentLeft, y + 29.4, width, 0.6}, hairline);

    const InstalledMacApplication &application = row.application;
    const std::array<QString, 5> texts{QString::number(row.number), application.name, application.version,
                                       application.source, application.resolvedDeveloperName()};
    const std::array<double, 7> widths = applicationColumnWidths(width);
    double x = Page::contentLeft;
    for (size_t column = 0; column < texts.size(); ++column) {
        const bool name = column == 1;
        const ColumnText place = columnText(column, x, widths.at(column));
        canvas.text(texts.at(column), {place.x, y + 9, place.width, 12},
                    name ? TextStyle{8.3, QFont::DemiBold} : TextStyle{7.8, QFont::Medium}, name ? value : muted,
                    truncating, place.alignment);
        x += widths.at(column);
    }
    drawSignatureStatus(canvas, application.signatureStatus, row.vietnamese, {x + 4, y + 6, widths.at(5) - 8, 18});
    x += widths.at(5);
    drawLicenseEvidence(canvas, reportedEvidence(application), row.vietnamese, {x + 4, y + 6, widths.at(6) - 8, 18});
}

void drawBadge(PageCanvas &canvas, const ReportBadge &badge, double textSize, const QRectF &rect)
{
    canvas.fillRounded(rect, rect.height() / 2, badge.fill);
    canvas.text(badge.word, {rect.x() + 8, rect.y() + 5, rect.width() - 16, 9}, {textSize, QFont::Bold}, badge.text,
                truncating);
}

void drawDetailRow(PageCanvas &canvas, const Blocks::DetailRow &row, double y, double width)
{
    const double cardHeight = height(row, width, canvas.typography()) - 3;
    canvas.card({Page::contentLeft, y, width, cardHeight}, 6,
                row.alternate ? QColor(0xF7, 0xFA, 0xFF) : QColor(Qt::white), hairline);
    canvas.fillOval({53, y + cardHeight / 2 - 3.5, 7, 7}, detailTint(row.text));
    // The height was measured at a width a little above this one. Where that saved a line, the text may use it, still
    // inside the card: no word of evidence is cut.
    canvas.text(row.text, {68, y + 8, width - 38, cardHeight - 12}, detailStyle, detail, wrapping, Qt::AlignLeft,
                width - 28);
}

void drawParagraph(PageCanvas &canvas, const Blocks::Paragraph &paragraph, double y, double width)
{
    const double blockHeight = height(paragraph, width, canvas.typography());
    canvas.text(paragraph.text, {Page::contentLeft, y + 3, width, blockHeight - 3}, paragraphStyle, detail);
}

} // namespace

void drawPageHeader(PageCanvas &canvas, const QImage &logo, const WorkspaceBranding &branding)
{
    canvas.card({Page::contentLeft, 9, 31, 31}, 8, Qt::white, {0xD8, 0xE3, 0xF0});
    canvas.image(fittedRect(logo.size(), {44, 11, 27, 27}), logo);
    canvas.text(QStringLiteral("TAVELO DESKRIG"), {81, 15, 170, 14}, {9, QFont::Bold}, navy);
    canvas.text(QStringLiteral("macOS AUDIT"), {81, 28, 100, 10}, {7.2, QFont::Bold}, ReportColors::orange);

    double rightEdge = Page::contentRight;
    if (!branding.logo.isNull()) {
        const QRectF rect = fittedRect(branding.logo.size(), {523, 12, 30, 24});
        canvas.image(rect, branding.logo);
        rightEdge = rect.x() - 7;
    }
    if (!branding.name.isEmpty()) {
        const TextStyle style{8, QFont::DemiBold};
        const double left = 190; // clear of the wordmark
        const double width = std::min(canvas.typography().width(branding.name, style), rightEdge - left);
        canvas.text(branding.name, {rightEdge - width, 21, width, 12}, style, {0x64, 0x74, 0x8B}, truncating);
    }

    canvas.fill({Page::contentLeft, 45, 368, 2.5}, ReportColors::blue);
    canvas.fill({410, 45, 143, 2.5}, ReportColors::orange);
}

void drawPageFooter(PageCanvas &canvas, qsizetype page, qsizetype total)
{
    canvas.fill({Page::contentLeft, 812, Page::contentWidth, 0.7}, {0xDB, 0xE5, 0xF0});
    canvas.text(QStringLiteral("Generated by Tavelo Deskrig"), {Page::contentLeft, 818, 250, 12}, {7.5, QFont::Medium},
                {0x7C, 0x8D, 0xA6});
    canvas.text(QStringLiteral("%1 / %2").arg(page).arg(total), {483, 818, 70, 12}, {7.5, QFont::Bold}, muted, wrapping,
                Qt::AlignRight);
}

void draw(PageCanvas &canvas, const Block &block, double y, double contentWidth)
{
    std::visit(
        Overloaded{
            [&](const Blocks::Hero &hero) { drawHero(canvas, hero, y, contentWidth); },
            [&](const Blocks::Hardware &hardware) { drawHardware(canvas, hardware, y, contentWidth); },
            [&](const Blocks::Metadata &metadata) { drawMetadata(canvas, metadata, y, contentWidth); },
            [&](const Blocks::Notes &notes) { drawNotes(canvas, notes, y, contentWidth); },
            [&](const Blocks::Summary &summary) { drawSummary(canvas, summary, y, contentWidth); },
            [&](const Blocks::SectionTitle &section) { drawSectionTitle(canvas, section, y, contentWidth); },
            [&](const Blocks::ApplicationHeader &header) { drawApplicationHeader(canvas, header, y, contentWidth); },
            [&](const Blocks::ApplicationRow &row) { drawApplicationRow(canvas, row, y, contentWidth); },
            [&](const Blocks::DetailRow &row) { drawDetailRow(canvas, row, y, contentWidth); },
            [&](const Blocks::Paragraph &paragraph) { drawParagraph(canvas, paragraph, y, contentWidth); },
            [](const Blocks::Spacer &) {},
        },
        block);
}

void drawSignatureStatus(PageCanvas &canvas, const QString &status, bool vietnamese, const QRectF &rect)
{
    drawBadge(canvas, signatureBadge(status, vietnamese), 5.7, rect);
}

void drawLicenseEvidence(PageCanvas &canvas, const AppLicenseEvidence &evidence, bool vietnamese, const QRectF &rect)
{
    drawBadge(canvas, licenseEvidenceBadge(evidence.state, vietnamese), 5.8, rect);
}

} // namespace Tavelo::MacReportPDF
