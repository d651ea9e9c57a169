// Prints what reports cost: a PDF of 1,000 applications beside its primitives painted with no layout, and the text
// report of 4,000 applications beside joining its lines.

#include "FileManager.h"
#include "Measure.h"
#include "PaintRecorder.h"
#include "ReportBlocks.h"
#include "ReportLogo.h"
#include "ReportPages.h"
#include "ReportPainter.h"
#include "SampleReports.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

using namespace Tavelo;
using namespace Tavelo::Bench;

namespace
{

constexpr double pdfBudget = 1.5;
constexpr int dotsPerInch = 1440;
constexpr int signalsEach = 3;

using Pages = QList<QList<Primitive>>;

/// The document as what is painted on each of its pages.
Pages paintedPages(const MacReportPDF::Contents &contents)
{
    PaintRecorder device(dotsPerInch, QSize(11900, 16840));
    ReportTypography typography(device, AppLanguage::english);
    const QList<QList<Block>> pages = MacReportPDF::paginate(
        MacReportPDF::makeBlocks(contents.reportText, contents.applications, contents.profile, false, sampleTime()),
        MacReportPDF::Page::contentWidth, typography);
    const QImage logo = MacReportPDF::fallbackAppLogo();
    QPainter painter(&device);
    PageCanvas canvas(painter, typography);
    Pages painted;
    for (qsizetype index = 0; index < pages.size(); ++index) {
        MacReportPDF::drawPageHeader(canvas, logo, {});
        double y = MacReportPDF::Page::firstBlockY;
        for (const Block &block : pages.at(index)) {
            MacReportPDF::draw(canvas, block, y, MacReportPDF::Page::contentWidth);
            y += MacReportPDF::height(block, MacReportPDF::Page::contentWidth, typography);
        }
        MacReportPDF::drawPageFooter(canvas, index + 1, pages.size());
        painted << device.take();
    }
    return painted;
}

QByteArray paintedWithoutLayout(const Pages &pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    for (qsizetype index = 0; index < pages.size(); ++index) {
        if (index > 0)
            writer.newPage();
        for (const Primitive &primitive : pages.at(index))
            PaintRecorder::paint(painter, primitive);
    }
    painter.end();
    return buffer.data();
}

void pdf()
{
    MacReportPDF::Contents contents;
    contents.applications = sampleApplications(1000, signalsEach);
    contents.reportText = sampleReportText(AppLanguage::english, contents.applications);
    const FileManager files;
    const MacReportPDF::Surroundings surroundings{files, QString(), QStringLiteral("/nonexistent"), sampleTime()};

    const qint64 before = ownMemory("VmRSS:");
    const qsizetype size = MacReportPDF::document(contents, surroundings).value_or(QByteArray()).size();
    const qint64 after = ownMemory("VmHWM:");
    const Pages pages = paintedPages(contents);
    const qsizetype floorSize = paintedWithoutLayout(pages).size();
    // As many bytes, or one of the two did not paint what the other did.
    if (size == 0 || floorSize < size / 2 || floorSize > size * 2)
        qFatal("the two documents have %lld and %lld bytes", static_cast<long long>(size),
               static_cast<long long>(floorSize));
    const Pair pair =
        compare([&] { MacReportPDF::document(contents, surroundings); }, [&] { paintedWithoutLayout(pages); }, 5);
    print(QStringLiteral("PDF of 1,000 applications"), pair, pdfBudget);
    printFigure(QStringLiteral("  of which one page"), pair.measured / static_cast<double>(pages.size()), "ms");
    printFigure(QStringLiteral("  its file"), static_cast<double>(size) / 1024 / 1024, "MiB");
    printFigure(QStringLiteral("  memory above that before"), static_cast<double>(after - before) / 1024, "MiB");
}

void textReport()
{
    const QList<InstalledMacApplication> applications = sampleApplications(4000, signalsEach);
    const QStringList lines = sampleReportText(AppLanguage::vietnamese, applications).split(u'\n');
    const Pair pair = compare([&] { sampleReportText(AppLanguage::vietnamese, applications); },
                              [&] {
                                  QString text;
                                  for (const QString &line : lines)
                                      text += line + u'\n';
                              },
                              21);
    print(QStringLiteral("text report of 4,000 beside joining its lines"), pair, noBudget);
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    pdf();
    textReport();
    return 0;
}
