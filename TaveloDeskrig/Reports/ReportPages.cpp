#include "ReportPages.h"

#include "Overloaded.h"

#include <algorithm>

namespace Tavelo::MacReportPDF
{

double height(const Block &block, double contentWidth, const ReportTypography &typography)
{
    return std::visit(Overloaded{
                          [](const Blocks::Hero &) { return 82.; },
                          [](const Blocks::Hardware &) { return 61.; },
                          [](const Blocks::Summary &) { return 61.; },
                          [](const Blocks::Metadata &) { return 112.; },
                          [&](const Blocks::Notes &notes) {
                              return std::max(58., typography.height(notes.value, contentWidth - 28, notesStyle) + 36);
                          },
                          [](const Blocks::SectionTitle &) { return 38.; },
                          [](const Blocks::ApplicationHeader &) { return 26.; },
                          [](const Blocks::ApplicationRow &) { return 31.; },
                          [&](const Blocks::DetailRow &row) {
                              return std::max(29., typography.height(row.text, contentWidth - 28, detailStyle) + 14);
                          },
                          [&](const Blocks::Paragraph &paragraph) {
                              return std::max(20., typography.height(paragraph.text, contentWidth, paragraphStyle) + 6);
                          },
                          [](const Blocks::Spacer &spacer) { return spacer.height; },
                      },
                      block);
}

QList<QList<Block>> paginate(const QList<Block> &blocks, double contentWidth, const ReportTypography &typography)
{
    QList<QList<Block>> pages{{}};
    std::optional<Block> header;
    double used = 0;
    for (const Block &block : blocks) {
        if (std::holds_alternative<Blocks::ApplicationHeader>(block))
            header = block;
        const double blockHeight = height(block, contentWidth, typography);
        if (used + blockHeight > Page::budget && !pages.last().isEmpty()) {
            pages.append(QList<Block>());
            used = 0;
            if (header && std::holds_alternative<Blocks::ApplicationRow>(block)) {
                pages.last() << *header;
                used = height(*header, contentWidth, typography);
            }
        }
        pages.last() << block;
        used += blockHeight;
    }
    return pages;
}

std::array<double, 7> applicationColumnWidths(double contentWidth)
{
    std::array<double, 7> widths{0.05, 0.165, 0.085, 0.115, 0.145, 0.215, 0.225};
    for (double &width : widths)
        width *= contentWidth;
    return widths;
}

} // namespace Tavelo::MacReportPDF
