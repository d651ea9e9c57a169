#pragma once

#include "ReportBlocks.h"
#include "ReportTypography.h"

#include <QList>

#include <array>

namespace Tavelo::MacReportPDF
{

/// The page, in points from its upper left corner: A4, as a whole number of points.
namespace Page
{
inline constexpr double width = 595;
inline constexpr double height = 842;
inline constexpr double contentLeft = 42;
inline constexpr double contentRight = 553;
inline constexpr double contentWidth = contentRight - contentLeft;
inline constexpr double firstBlockY = 55;
inline constexpr double budget = 749; ///< The heights of a page's blocks may add up to this.
} // namespace Page

/// The styles of the texts whose height decides that of their block.
inline constexpr TextStyle notesStyle{9.5, QFont::Medium};
inline constexpr TextStyle detailStyle{8.7, QFont::Medium};
inline constexpr TextStyle paragraphStyle{9.2, QFont::Medium};

/// The height that a block takes on a page.
double height(const Block &block, double contentWidth, const ReportTypography &typography);

/// The blocks by page. A block is never split: one that is higher than a page has that page to itself and runs off it.
/// An application row that begins a page gets the column titles again. There is always one page.
QList<QList<Block>> paginate(const QList<Block> &blocks, double contentWidth, const ReportTypography &typography);

/// Widths of the seven columns of the application table, which add up to `contentWidth`.
std::array<double, 7> applicationColumnWidths(double contentWidth);

} // namespace Tavelo::MacReportPDF
