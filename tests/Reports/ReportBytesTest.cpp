#include "FileManager.h"
#include "PdfDocument.h"
#include "ReportLogo.h"
#include "SampleReports.h"
#include "TemporaryMac.h"
#include "WorkspaceBranding.h"

#include <QBuffer>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace Tavelo::MacReportPDF;

namespace
{

QByteArray png(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "png");
    return buffer.data();
}

/// An entry of an icon file, or the whole file.
QByteArray icns(const char *type, const QByteArray &contents)
{
    QByteArray size(4, '\0');
    qToBigEndian(quint32(contents.size()) + 8, size.data());
    return type + size + contents;
}

QByteArray workspace(const QByteArray &name, const QByteArray &logo)
{
    return "{\"workspace\":{\"display_name\":" + name + ",\"logo_data_url\":" + logo + "}}";
}

} // namespace

class ReportBytesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void branding()
    {
        const auto url = [](const QByteArray &image, const QByteArray &before = "data:image/png;base64,") {
            return '"' + before + image.toBase64() + '"';
        };
        const QByteArray logo = png({64, 64}, Qt::red), whole = workspace("\" Shop\\n\"", url(logo));
        QCOMPARE(workspaceBranding(whole).name, u"Shop"_s);
        QCOMPARE(workspaceBranding(whole).logo.size(), QSize(64, 64));
        for (const QByteArray &none :
             {url(logo, "data:image/png,"), url(logo, ";base64,;base64,"), url(logo, ";base64,!"), url({}),
              url("GIF89a and nothing more"), url(logo.left(40)), url(png({9000, 1}, Qt::red)), QByteArray("7"),
              QByteArray("null"), QByteArray("[]")}) {
            QCOMPARE(workspaceBranding(workspace("\"S\"", none)).name, u"S"_s);
            QVERIFY2(workspaceBranding(workspace("\"S\"", none)).logo.isNull(), none);
        }
        QByteArrayList nothing{whole.chopped(1), QByteArray(100'000, '[')};
        for (const char *json : {"", "{", "[]", "{}", "\"S\"", R"({"workspace":"S"})", R"({"workspace":[{}]})",
                                 R"({"display_name":"S"})", R"([{"workspace":{"display_name":"S"}}])"})
            nothing << json;
        for (const char *name : {"\" \\t\"", "\"\"", "7", "null", "[\"S\"]", "{}"})
            nothing << workspace(name, url(logo));
        for (const QByteArray &json : nothing)
            QVERIFY2(workspaceBranding(json).name.isEmpty() && workspaceBranding(json).logo.isNull(), json);
    }

    void icon()
    {
        const TemporaryMac mac;
        const auto logo = [&](const QByteArray &file) {
            mac.write(u"/Resources/AppIcon.icns"_s, file);
            return appLogo(*mac.services().files, u"/Resources"_s);
        };
        const QByteArray large = icns("ic07", png({128, 128}, Qt::red)), small = icns("icp4", png({16, 16}, Qt::blue));
        QCOMPARE(logo(icns("icns", large)).pixelColor(64, 64), QColor(Qt::red));
        for (const QByteArray &damaged :
             {QByteArray(), QByteArray("icns"), icns("icns", {}), icns("icns", large.left(60)),
              icns("icns", icns("ic07", "no image")), QByteArray("<svg/>")})
            QCOMPARE(logo(damaged), fallbackAppLogo());
        QCOMPARE(logo(icns("icns", small + large)).size(), QSize(128, 128));
    }

    void ownMark()
    {
        const QImage mark = fallbackAppLogo();
        const double scale = mark.width() / 128.;
        const auto at = [&](double x, double y) { return mark.pixelColor(int(x * scale), int(y * scale)).rgba(); };
        QVERIFY(at(64, 4.5) == 0xffffffff && at(64, 3) == 0xffd1d9e4 && at(125, 64) == 0xffd1d9e4 && at(8, 8) == 0);
        QVERIFY(at(94.5, 28) == 0xffff8a00 && at(110.5, 28) == 0xffff8a00 && at(112, 28) == 0xffffffff);
        QVERIFY(at(25, 91.5) == 0xffff8a00 && at(25, 107.5) == 0xffff8a00 && at(25, 109) == 0xffffffff);
        // The letter, which leans to the right.
        QVERIFY(at(56, 60) == 0xffffffff && at(56, 90) == 0xff4f5661);
        QVERIFY(at(74, 60) == 0xff4f5661 && at(74, 90) == 0xffffffff);
    }

    void garbage()
    {
        const auto upper = [](char16_t character) { return QString(QChar(character)).toUpper(); };
        const TemporaryMac mac;
        const auto pdf = document({}, {*mac.services().files, u"/none"_s, u"/none"_s, sampleTime()});
        for (const QByteArray &bytes : {QByteArray(), QByteArray("%PDF-1.4"), QByteArray(5000, '<'), pdf->left(500),
                                        QByteArray("%PDF-1.4\ntrailer<</Root 1 0 R>>")})
            QCOMPARE(finishedPdf(bytes, {}, upper), std::nullopt);

        for (const char *none : {"", "endbfrange", "1 beginbfrange\n<0001> <0002> <0041>", "beginbfrange endbfrange"})
            QCOMPARE(withMeanings(none, upper), none);
        QCOMPARE(withMeanings("a\n2 beginbfrange\n<0001> <0002> [<0061>]\n<0007> <0008> <0078>\nendbfrange\nb", upper),
                 "a\n4 beginbfchar\n<0001> <0041>\n<0002> <0000>\n<0007> <0058>\n<0008> <0059>\nendbfchar\nb\n");
        const QByteArray all = withMeanings("1 beginbfrange <0000> <FFFF> <0000> endbfrange", upper);
        QVERIFY(all.count("100 beginbfchar") == 655 && all.count("36 beginbfchar") == 1);
    }
};

QTEST_MAIN(ReportBytesTest)

#include "ReportBytesTest.moc"
