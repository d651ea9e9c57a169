#include "MacReportPDF.h"

#include "FileManager.h"
#include "Golden.h"
#include "ReadPdf.h"
#include "RefusingFiles.h"
#include "Row.h"
#include "SampleReports.h"
#include "TemporaryMac.h"

#include <QDir>
#include <QProcess>

#include <cerrno>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString cannotCreate = u"Không thể tạo tài liệu PDF."_s;
const QString target = u"/out/report.pdf"_s;

/// A Mac on which a report was made earlier.
struct Office {
    Office() { mac.write(target, "earlier"); }
    MacReportPDF::Surroundings surroundings() const { return {*files, u"/none"_s, u"/cache"_s, sampleTime()}; }
    QByteArray pdf(const MacReportPDF::Contents &contents) const
    {
        return MacReportPDF::document(contents, surroundings()).value_or(QByteArray());
    }
    std::optional<QString> write(const MacReportPDF::Contents &contents = {}) const
    {
        return MacReportPDF::write(contents, target, surroundings());
    }
    QByteArray qpdf(const QString &option) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"qpdf"_s, {option, mac.hostPath(target)});
        return process.waitForFinished() && process.exitCode() == 0 ? process.readAll() : QByteArray();
    }

    TemporaryMac mac;
    std::shared_ptr<const FileManager> files = mac.services().files;
};

/// Files of which none can be written, for that reason.
struct FullFiles : FileManager {
    explicit FullFiles(int code) : reason(code) {}
    bool writeAtomically(const QString &, const QByteArray &, mode_t, FileError *error) const override
    {
        *error = {reason, u"the system's words"_s};
        return false;
    }
    int reason;
};

InstalledMacApplication application(const QString &name)
{
    InstalledMacApplication application = sampleApplications(1, 0).first();
    application.name = name;
    application.licenseEvidence->detail = u"Fine."_s;
    return application;
}

/// One of everything; the last text takes two lines.
MacReportPDF::Contents onePage()
{
    MacReportPDF::Contents contents{
        u"Hardware model: MacBook Pro\nModel identifier: Mac15,3\nChip: Apple M3\n"
        "Memory: 16 GB\nmacOS version: 15.1.0\nSystem checks:\n- Homebrew: OK\n- Disk: FAIL"_s +
            u" a"_s.repeated(80),
        {application(u"Skim"_s), application(u"A name too long for it"_s)},
        {u"Lan"_s, u"IT"_s, u"Boss"_s, u"Audit"_s, u"Note"_s}};
    contents.applications[1].signatureStatus = u"ad-hoc"_s;
    contents.applications[1].licenseEvidence->state = AppLicenseEvidenceState::explicitUnlicensed;
    return contents;
}

bool isNear(const QColor &one, const QColor &other, int tolerance = 1)
{
    const auto near = [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; };
    return near(one.red(), other.red()) && near(one.green(), other.green()) && near(one.blue(), other.blue());
}

QColor faint(const QColor &color, double alpha)
{
    const auto mixed = [alpha](int part) { return qRound(255 - (255 - part) * alpha); };
    return QColor(mixed(color.red()), mixed(color.green()), mixed(color.blue()));
}

/// What stands out most from the background at the left end of a run.
QColor textColor(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            counts[picture.pixel(x, y)] += picture.pixel(x, y) != picture.pixel(0, 0) ? 1 : 0;
    QList<QRgb> colors = counts.keys();
    return *std::max_element(colors.begin(), colors.end(), [&](QRgb a, QRgb b) { return counts[a] < counts[b]; });
}

} // namespace

class MacReportPDFTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Top, edges to the left and right (to a quarter of a point), size, weight and colour of every text on a page.
    void texts()
    {
        MacReportPDF::Contents none{u"Khuyến nghị:\n- x"_s, {}, {}};
        none.profile.notes = u"line\n"_s.repeated(5);
        for (const auto &[name, contents] :
             {std::pair(u"page-en.txt"_s, onePage()), std::pair(u"page-vi.txt"_s, none)}) {
            const Office office;
            office.mac.write(u"/cache/technician-workspace.json"_s,
                             contents.applications.isEmpty() ? sampleBranding(u" Cửa hàng "_s, {320, 120}) : "{}");
            const ReadPdf pdf(office.pdf(contents));
            QCOMPARE(pdf.pages.size(), 1);
            QStringList lines;
            for (const ReadPdf::Run &run : pdf.runs(0)) {
                const QRectF start(run.box.topLeft(), QSizeF(std::min(run.box.width(), 9.), run.box.height()));
                lines << u"%1 | %2 to %3 | %4 %5 %6 | %7"_s.arg(qRound(run.box.top() * 4) / 4., 6, 'f', 2)
                             .arg(qRound(run.box.left() * 4) / 4., 6, 'f', 2)
                             .arg(qRound(run.box.right() * 4) / 4., 6, 'f', 2)
                             .arg(run.size, 0, 'f', 1)
                             .arg(run.font.section(u'-', -1), textColor(pdf.picture(0, start, 20)).name(), run.text);
            }
            lines.sort();
            const QByteArray differences = differencesFromGolden(name, lines.join(u'\n').toUtf8() + '\n');
            QVERIFY2(differences.isEmpty(), differences);
        }
    }

    void shapes()
    {
        struct Shape {
            const char *name;
            QRectF rect;
            double radius;
            QColor fill;
            QColor stroke = {};
            QString edges = u"tblr"_s;
        };
        const QColor white = Qt::white, blue(0x2563eb), orange(0xf97316), violet(0x7c3aed), line(0xe3eaf3);
        const std::initializer_list<Shape> shapes{
            {"logo box", {42, 9, 31, 31}, 8, white, 0xd8e3f0},
            {"blue rule", {42, 45, 368, 2.5}, 0, blue},
            {"orange rule", {410, 45, 143, 2.5}, 0, orange},
            {"hero", {42, 58, 511, 72}, 12, 0xeff6ff, 0xcfe0f5, u"tbr"_s},
            {"accent bar", {42, 58, 5, 72}, 2.5, orange},
            {"macOS", {431.25, 141, 121.75, 48}, 9, faint(orange, 0.07), faint(orange, 0.2)},
            {"generated", {302, 255, 251, 49}, 9, faint(violet, 0.07), faint(violet, 0.22)},
            {"dot of generated", {314, 267, 8, 8}, 4, violet},
            {"notes", {42, 310, 511, 52}, 9, 0xfff7ed, 0xfed7aa},
            {"count", {42, 372, 121.75, 48}, 9, faint(blue, 0.075), faint(blue, 0.18)},
            {"pill", {507, 438, 46, 21}, 10.5, 0xdbeafe},
            {"table header", {42, 467, 511, 25}, 6, 0x233454},
            {"divider", {42, 522.4, 511, 0.6}, 0, line},
            {"shaded row", {42, 524, 511, 30}, 0, 0xf5f9ff, {}, u"tlr"_s},
            {"signature badge", {332.16, 499, 101.865, 18}, 9, 0xdcfce7},
            {"license badge", {442.025, 530, 106.975, 18}, 9, 0xfee2e2},
            {"plain detail", {42, 603, 511, 26}, 6, white, line},
            {"shaded detail", {42, 632, 511, 26}, 6, 0xf7faff, line},
            {"green dot", {53, 716.5, 7, 7}, 3.5, 0x16a34a},
            {"footer rule", {42, 812, 511, 0.7}, 0, 0xdbe5f0},
        };
        for (const auto &[name, rect, radius, fill, stroke, edges] : shapes) {
            // Across the edge at `point`, from the inside to the outside.
            const auto edgeIsAt = [&, fill = fill, stroke = stroke](const QPointF &point, const QPointF &outwards) {
                const auto is = [&](double distance, const QColor &color) {
                    return isNear(m_pdf.color(0, point + distance * outwards), color);
                };
                return stroke.isValid() ? is(-0.5, fill) && is(0.25, stroke) && !is(0.45, stroke)
                                        : is(-0.15, fill) && !is(0.15, fill);
            };
            const double fromCorner = radius * (1 - M_SQRT1_2);
            for (const auto &[edge, x, y] :
                 {std::tuple(u't', 0, -1), std::tuple(u'b', 0, 1), std::tuple(u'l', -1, 0), std::tuple(u'r', 1, 0)}) {
                const QPointF middle = rect.center() + QPointF(x * rect.width(), y * rect.height()) / 2;
                QVERIFY2(!edges.contains(edge) || edgeIsAt(middle, QPointF(x, y)), name);
            }
            for (const auto &[vertical, horizontal, x, y] :
                 {std::tuple(u't', u'l', -1, -1), std::tuple(u't', u'r', 1, -1), std::tuple(u'b', u'l', -1, 1),
                  std::tuple(u'b', u'r', 1, 1)}) {
                const QPointF outwards(x, y);
                const QPointF corner = rect.center() + QPointF(x * rect.width(), y * rect.height()) / 2;
                const bool isRound = radius > 0 && edges.contains(vertical) && edges.contains(horizontal);
                QVERIFY2(!isRound || edgeIsAt(corner - outwards * fromCorner, outwards * M_SQRT1_2), name);
            }
        }
    }

    void tableOverPages()
    {
        MacReportPDF::Contents contents = onePage();
        contents.applications.clear();
        for (int number = 1; number <= 60; ++number)
            contents.applications << application(u"Name%1"_s.arg(number));
        contents.applications.last().licenseEvidence.reset();
        const ReadPdf pdf(m_office.pdf(contents));
        // Ten on the first page, then 23 a page below the header's 26 points.
        for (const auto &[number, page, top] :
             {std::tuple(1, 0, 493), std::tuple(10, 0, 772), std::tuple(11, 1, 81), std::tuple(33, 1, 763),
              std::tuple(34, 2, 81), std::tuple(56, 2, 763), std::tuple(57, 3, 81), std::tuple(60, 3, 174)})
            QVERIFY(pdf.has(size_t(page), u"Name%1"_s.arg(number), top + 9) &&
                    pdf.has(size_t(page), QString::number(number), top + 9));
        QVERIFY(pdf.has(3, u"NO LOCAL EVIDENCE"_s, 174 + 11));
        for (size_t page = 0; page < pdf.pages.size(); ++page) {
            QCOMPARE(pdf.pages.at(page)->page_rect(poppler::media_box).bottom(), 842.);
            QCOMPARE(pdf.pages.at(page)->page_rect(poppler::media_box).right(), 595.);
            QVERIFY(isNear(pdf.color(page, {65.6, 17}), 0xff8a00)); // the program's own mark
            QCOMPARE(pdf.has(page, u"NAME"_s, page == 0 ? 475 : 63), page <= 3);
            QVERIFY(pdf.has(page, u"TAVELO DESKRIG"_s, 15));
            QVERIFY(pdf.has(page, u"%1 / %2"_s.arg(page + 1).arg(pdf.pages.size()), 818));
        }
    }

    void branding()
    {
        const auto branded = [](const QByteArray &workspace) {
            const Office office;
            office.mac.write(u"/cache/technician-workspace.json"_s, workspace);
            return ReadPdf(office.pdf({}));
        };
        const auto named = [&](const QString &name) {
            return branded(R"({"workspace":{"display_name":")" + name.toUtf8() + R"("}})");
        };
        const auto endsAt = [](const ReadPdf &pdf, const QString &name, double right) {
            const ReadPdf::Run run = pdf.run(0, name.left(1), 21);
            return run.text == name && std::abs(run.box.right() - right) < 0.3;
        };
        const auto isLogo = [](const ReadPdf &pdf, double x, double y) {
            return isNear(pdf.color(0, {x, y}), 0x0f9f8f, 16);
        };
        const QString name = u"Cửa hàng"_s;
        const ReadPdf wide = branded(sampleBranding(name, {24, 9}));
        const ReadPdf high = branded(sampleBranding(name, {40, 400}));
        QVERIFY(endsAt(wide, name, 523 - 7) && endsAt(high, name, 536.8 - 7));
        QVERIFY(isLogo(wide, 523.2, 18.6) && isLogo(wide, 552.8, 29.4));
        QVERIFY(!isLogo(wide, 538, 18.2) && !isLogo(wide, 538, 29.8));
        QVERIFY(isLogo(high, 537, 12.2) && isLogo(high, 539, 35.8));
        QVERIFY(!isLogo(high, 536.6, 24) && !isLogo(high, 539.4, 24));
        for (int number = 0; number < 20; ++number) {
            const QString whole = u"%1 & sons"_s.arg(qint64(1) << 3 * number).repeated(1 + number % 3);
            QVERIFY2(endsAt(named(whole), whole, 553), qPrintable(whole));
        }
        const ReadPdf::Run cut = named(QString(120, u'M')).run(0, u"M"_s, 21);
        QVERIFY(cut.text.endsWith(u"M…") && cut.box.left() > 160 && std::abs(cut.box.right() - 553) < 8);
    }

    void searchableText()
    {
        const QStringList lines{u"Kiểm tra e\u0323\u0302 Tiếng Việt ĐƯỢC"_s,
                                u"日本語 ／ 中文 한국어 10:30 A-B i\u0305"_s, u"a\tb\u0007c fi ffi 1/2 ↳ • …"_s,
                                u"Homebrew \u202E<b>&amp;</b> ) Tj \\ %1"_s};
        const ReadPdf pdf(m_office.pdf({u"System checks:\n- "_s + lines.join(u"\n- "_s), {}, {}}));
        const QStringList expected{u"Kiểm tra ệ Tiếng Việt ĐƯỢC"_s, lines.at(1), u"a b c fi ffi 1/2 ↳ • …"_s,
                                   u"Homebrew <b>&amp;</b> ) Tj \\ %1"_s};
        double y = 498; // of the first line's card
        for (const QString &line : expected) {
            const poppler::rectf card(60, y, 490, 26);
            QCOMPARE(fromPoppler(pdf.pages.at(0)->text(card, poppler::page::raw_order_layout)).trimmed(), line);
            y += 29;
        }
    }

    void everySample()
    {
        for (const SampleReport &sample : sampleReports()) {
            const Office office;
            office.mac.write(u"/cache/technician-workspace.json"_s, sample.branding);
            QCOMPARE(office.write(sample.contents), std::nullopt);
            QVERIFY2(office.qpdf(u"--check"_s).contains("No syntax or stream encoding errors"), sample.name.toUtf8());
            const ReadPdf pdf(office.mac.contents(target));
            for (const poppler::font_info &font : pdf.document->fonts())
                QVERIFY2(font.is_embedded() && font.is_subset(), font.name().c_str());
            for (size_t page = 0; page < pdf.pages.size(); ++page)
                for (const ReadPdf::Run &run : pdf.runs(page)) {
                    QVERIFY2(QRectF(42, 12, 511.3, 818).contains(run.box), run.text.toUtf8());
                    const bool isEvidence = std::abs(run.size - 8.7) < 0.05;
                    QVERIFY2(!isEvidence || !run.text.endsWith(u'…'), run.text.toUtf8());
                }
        }
    }

    void properties()
    {
        const auto check = [this](const QString &text, const MacReportProfile &profile, const QStringList &expected) {
            QCOMPARE(m_office.write({text, {}, profile}), std::nullopt);
            const ReadPdf pdf(m_office.mac.contents(target));
            const QByteArray json = m_office.qpdf(u"--json"_s);
            const qsizetype language = json.indexOf("\"/Lang\": \"u:");
            QCOMPARE(QStringList({fromPoppler(pdf.document->get_title()), fromPoppler(pdf.document->get_author()),
                                  QString::fromLatin1(json.mid(language + 12, 2))}),
                     expected);
        };
        check(u"x"_s, {u" Lan"_s, {}, {}, u" Kiểm kê "_s, {}}, {u"Kiểm kê"_s, u"Lan"_s, u"en"_s});
        check(u"Khuyến nghị:"_s, {}, {u"Tavelo Deskrig macOS Report"_s, u"Tavelo Deskrig"_s, u"vi"_s});
    }

    void chineseCharacters()
    {
        QList<QImage> pictures;
        for (const QString &heading : {u"システムチェック"_s, u"系统检查"_s}) {
            const ReadPdf pdf(m_office.pdf({heading + u":\n- x"_s, {}, {{}, {}, {}, u"骨直"_s, {}}}));
            pictures << pdf.picture(0, {60, 68, 40, 26}, 4);
        }
        QVERIFY(pictures.at(0) != pictures.at(1));
    }

    void refusals()
    {
        Office office;
        for (const QString &path : {u"/missing/report.pdf"_s, u"/out"_s, target + u"/report.pdf"_s})
            QCOMPARE(MacReportPDF::write({}, path, office.surroundings()), cannotCreate);
        const QString said = u"the system's words"_s;
        for (const auto &[code, words] :
             {std::pair(EACCES, cannotCreate), std::pair(0, cannotCreate), std::pair(ENOSPC, said),
              std::pair(EFBIG, said), std::pair(EDQUOT, said), std::pair(EIO, said)}) {
            office.files = std::make_shared<FullFiles>(code);
            QCOMPARE(office.write(), words);
        }
        QCOMPARE(QDir(office.mac.folder()).entryList({u"out*"_s, u"missing"_s}), QStringList{u"out"_s});
        for (const auto &[code, words] : {std::pair(EPERM, said), std::pair(0, u"Input/output error"_s)}) {
            QCOMPARE(office.mac.contents(target).left(4), code ? "earl" : "%PDF");
            office.files = std::make_shared<RefusingFiles>(office.mac.folder(), target, code);
            QCOMPARE(office.write(), words);
        }
    }

    void onAnotherThread()
    {
        const Office office;
        office.mac.furnish(u"chmod 666 .%1"_s.arg(target));
        std::optional<QString> words = u"not run"_s;
        std::thread([&] { words = office.write(onePage()); }).join();
        QCOMPARE(words, std::nullopt);
        QCOMPARE(office.mac.mode(target), 0600);
        const ReadPdf pdf(office.mac.contents(target));
        QCOMPARE(pdf.picture(0, {0, 0, 595, 842}, 1), m_pdf.picture(0, {0, 0, 595, 842}, 1));
    }

private:
    const Office m_office;
    const ReadPdf m_pdf = ReadPdf(m_office.pdf(onePage()));
};

QTEST_MAIN(MacReportPDFTest)

#include "MacReportPDFTest.moc"
