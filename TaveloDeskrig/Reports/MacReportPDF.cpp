#include "MacReportPDF.h"

#include "FileManager.h"
#include "PdfDocument.h"
#include "ReportLogo.h"
#include "ReportPages.h"
#include "ReportPainter.h"
#include "ReportSections.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <cerrno>

namespace Tavelo
{

QString description(ExportError error)
{
    switch (error) {
    case ExportError::cannotCreateDocument:
        break;
    }
    return QStringLiteral("Không thể tạo tài liệu PDF.");
}

namespace MacReportPDF
{

namespace
{

const QString productName = QStringLiteral("Tavelo Deskrig");
constexpr mode_t privateFile = 0600;
constexpr int dotsPerInch = 1440; // twenty to a point, so that each size of text is a whole number of dots

void setUp(QPdfWriter &writer)
{
    writer.setResolution(dotsPerInch);
    writer.setPageSize(
        QPageSize(QSizeF(Page::width, Page::height), QPageSize::Point, QStringLiteral("A4"), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setCreator(productName);
}

PdfProperties properties(const MacReportProfile &profile, bool vietnamese)
{
    const QString subject = profile.subject.trimmed();
    const QString inspector = profile.inspectorName.trimmed();
    return {.title = subject.isEmpty() ? QStringLiteral("Tavelo Deskrig macOS Report") : subject,
            .author = inspector.isEmpty() ? productName : inspector,
            .language = rawValue(vietnamese ? AppLanguage::vietnamese : AppLanguage::english)};
}

/// The target may not be where a document can be made, or the disk did not take it.
QString words(const FileError &error)
{
    const bool disk = error.code == ENOSPC || error.code == EDQUOT || error.code == EIO || error.code == EFBIG;
    return disk ? error.text : description(ExportError::cannotCreateDocument);
}

} // namespace

std::optional<QByteArray> document(const Contents &contents, const Surroundings &surroundings)
{
    const WorkspaceBranding branding = loadWorkspaceBranding(surroundings.files, surroundings.cacheDirectory);
    const QImage logo = appLogo(surroundings.files, surroundings.resourcesDirectory);
    const bool vietnamese = isVietnamese(contents.reportText);

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    setUp(writer);
    ReportTypography typography(writer, reportLanguage(contents.reportText));
    const QList<Block> blocks =
        makeBlocks(contents.reportText, contents.applications, contents.profile, vietnamese, surroundings.now);
    const QList<QList<Block>> pages = paginate(blocks, Page::contentWidth, typography);

    QPainter painter(&writer);
    if (!painter.isActive())
        return std::nullopt;
    painter.setRenderHint(QPainter::LosslessImageRendering);
    PageCanvas canvas(painter, typography);
    for (qsizetype index = 0; index < pages.size(); ++index) {
        if (index > 0)
            writer.newPage();
        drawPageHeader(canvas, logo, branding);
        double y = Page::firstBlockY;
        for (const Block &block : pages.at(index)) {
            draw(canvas, block, y, Page::contentWidth);
            y += height(block, Page::contentWidth, typography);
        }
        drawPageFooter(canvas, index + 1, pages.size());
    }
    painter.end();
    return finishedPdf(buffer.data(), properties(contents.profile, vietnamese),
                       [&](char16_t character) { return typography.meaning(character); });
}

std::optional<QString> write(const Contents &contents, const QString &path, const Surroundings &surroundings)
{
    const std::optional<QByteArray> bytes = document(contents, surroundings);
    if (!bytes)
        return description(ExportError::cannotCreateDocument);
    FileError error;
    if (!surroundings.files.writeAtomically(path, *bytes, privateFile, &error))
        return words(error);
    if (!surroundings.files.setMode(path, privateFile, &error))
        return error.orInputOutput().text;
    return std::nullopt;
}

} // namespace MacReportPDF

} // namespace Tavelo
