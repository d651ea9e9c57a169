#pragma once

#include "PageCanvas.h"
#include "ReportBlocks.h"
#include "WorkspaceBranding.h"

#include <QImage>
#include <QRectF>
#include <QString>

namespace Tavelo::MacReportPDF
{

// Drawing of one page's pieces. All lengths are points, from the page's upper left corner.

void drawPageHeader(PageCanvas &canvas, const QImage &logo, const WorkspaceBranding &branding);

/// Pages count from 1.
void drawPageFooter(PageCanvas &canvas, qsizetype page, qsizetype total);

/// Draws the block with its upper edge at `y`, over the height that `height` tells.
void draw(PageCanvas &canvas, const Block &block, double y, double contentWidth);

/// The two badges of an application's row; without evidence the second says so.
void drawSignatureStatus(PageCanvas &canvas, const QString &status, bool vietnamese, const QRectF &rect);
void drawLicenseEvidence(PageCanvas &canvas, const AppLicenseEvidence &evidence, bool vietnamese, const QRectF &rect);

} // namespace Tavelo::MacReportPDF
